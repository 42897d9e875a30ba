#include "base/texts.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <cstring>
#include <memory>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

/// The compiled tables live in a static library, whose resources must be registered by hand; outside the namespace
/// because the macro declares a function. Registering twice does no harm.
static void registerTextTables() {
    Q_INIT_RESOURCE(texts);
}

namespace tavrel {

namespace {

constexpr QLatin1StringView english("en");

/// One table in the user's language and in English.
struct TextTable {
    std::string name;
    QTranslator preferred;
    QTranslator fallback;
};

/// The tables met so far, read on their first use; tables are few, so a plain search finds them fastest.
class TextTables {
public:
    TextTables() {
        registerTextTables();
        choose({});
    }

    const QString& language() const { return language_; }

    void choose(const QString& localeName) {
        const std::lock_guard lock(mutex_);
        language_ = languageOf(localeName);
        tables_.clear();
        toolkit_.reset();
        if (!QCoreApplication::instance() || language_ == english) {
            return;
        }
        toolkit_ = std::make_unique<QTranslator>();
        if (toolkit_->load(QStringLiteral("qtbase_") + language_, QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
            QCoreApplication::installTranslator(toolkit_.get());
        }
    }

    QString find(const char* table, const char* key) {
        const std::lock_guard lock(mutex_);
        const TextTable& texts = tableNamed(table);
        QString found = texts.preferred.translate(table, key);
        return found.isNull() ? texts.fallback.translate(table, key) : found;
    }

private:
    /// The first language of the locale, or of the user's list, that has tables; English when none has.
    static QString languageOf(const QString& localeName) {
        const QStringList names = localeName.isEmpty() ? QLocale::system().uiLanguages() : QStringList{localeName};
        for (const QString& name : names) {
            QString language = name.left(name.indexOf(QLatin1Char(name.contains(u'_') ? '_' : '-'))).toLower();
            if (QFile::exists(QStringLiteral(":/texts/") + language)) {
                return language;
            }
        }
        return english;
    }

    const TextTable& tableNamed(const char* name) {
        for (const auto& table : tables_) {
            if (table->name == name) {
                return *table;
            }
        }
        auto table = std::make_unique<TextTable>();
        table->name = name;
        const auto path = QStringLiteral(":/texts/%1/%2.qm");
        const auto file = QString::fromUtf8(name);
        // A table that is not there answers like one without the key.
        static_cast<void>(table->preferred.load(path.arg(language_, file)));
        if (language_ != english) {
            static_cast<void>(table->fallback.load(path.arg(english, file)));
        }
        tables_.push_back(std::move(table));
        return *tables_.back();
    }

    std::recursive_mutex mutex_;  ///< cells are worked out on other threads too
    QString language_;
    std::vector<std::unique_ptr<TextTable>> tables_;
    std::unique_ptr<QTranslator> toolkit_;
};

TextTables& tables() {
    static TextTables instance;
    return instance;
}

}  // namespace

QString text(const char* table, const char* key, const QString& fallback) {
    const QString found = tables().find(table, key);
    return found.isNull() ? fallback : found;
}

QString textIn(const QString& language, const char* table, const char* key) {
    static_cast<void>(tables());
    QTranslator texts;
    return texts.load(QStringLiteral(":/texts/%1/%2.qm").arg(language, QString::fromUtf8(table)))
               ? texts.translate(table, key)
               : QString();
}

QStringList textLanguages() {
    static_cast<void>(tables());
    return QDir(QStringLiteral(":/texts")).entryList(QDir::Dirs, QDir::Name);
}

void setTextLanguage(const QString& localeName) {
    tables().choose(localeName);
}

QString textLanguage() {
    return tables().language();
}

}  // namespace tavrel
