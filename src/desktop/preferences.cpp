#include "desktop/preferences.h"

#include "archive/colorarchive.h"
#include "base/numbers.h"
#include "base/texts.h"
#include "desktop/alerts.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStandardPaths>

#include <algorithm>
#include <cmath>
#include <fcntl.h>
#include <limits>
#include <optional>
#include <sys/stat.h>
#include <type_traits>
#include <unistd.h>

namespace tavrel {

namespace {

/// A value as it will come back from the file, so that reading does not depend on whether the file was read since:
/// texts, lists of two entries and more, bytes, and an invalid value for an empty list.
QVariant encoded(const QVariant& value) {
    switch (value.typeId()) {
        case QMetaType::Bool:
            return value.toBool() ? QStringLiteral("1") : QStringLiteral("0");
        case QMetaType::Double:
            return shortestText(value.toDouble());
        case QMetaType::Float:
            return shortestText(value.toFloat());
        case QMetaType::QByteArray:
            return value;
        case QMetaType::QStringList: {
            const QStringList entries = value.toStringList();
            if (entries.isEmpty()) {
                return {};
            }
            return entries.size() == 1 ? QVariant(entries.first()) : value;
        }
        case QMetaType::QVariantMap:
            return QString::fromUtf8(
                QJsonDocument(QJsonObject::fromVariantMap(value.toMap())).toJson(QJsonDocument::Compact));
        default:
            return value.toString();
    }
}

std::optional<QString> readText(const QVariant& value) {
    if (value.typeId() != QMetaType::QString) {
        return std::nullopt;
    }
    return value.toString();
}

std::optional<QString> readNumberText(const QVariant& value) {
    auto text = readText(value);
    return text && startsWithNumber(*text) ? text : std::nullopt;
}

std::optional<bool> readBoolean(const QVariant& value) {
    const auto text = readText(value);
    if (!text) {
        return std::nullopt;
    }
    const QString word = text->trimmed().toLower();
    if (word == u"yes" || word == u"true") {
        return true;
    }
    if (word == u"no" || word == u"false") {
        return false;
    }
    return startsWithNumber(word) ? std::optional(std::fpclassify(doubleValue(word)) != FP_ZERO) : std::nullopt;
}

std::optional<qint32> readInteger(const QVariant& value) {
    const auto text = readNumberText(value);
    if (!text) {
        return std::nullopt;
    }
    // Through the decimal number, so that a stored 1e+06 is a million and not 1.
    const double number = std::trunc(doubleValue(*text));
    constexpr double lowest = std::numeric_limits<qint32>::min();
    constexpr double highest = std::numeric_limits<qint32>::max();
    return static_cast<qint32>(std::clamp(number, lowest, highest));
}

std::optional<double> readReal(const QVariant& value) {
    const auto text = readNumberText(value);
    return text ? std::optional(doubleValue(*text)) : std::nullopt;
}

std::optional<QStringList> readStrings(const QVariant& value) {
    if (value.typeId() == QMetaType::QStringList) {
        return value.toStringList();
    }
    if (value.typeId() == QMetaType::QString) {
        return QStringList{value.toString()};
    }
    return value.isValid() ? std::nullopt : std::optional(QStringList());
}

std::optional<QVariantMap> readDictionary(const QVariant& value) {
    const QJsonDocument document = QJsonDocument::fromJson(value.toString().toUtf8());
    return document.isObject() ? std::optional(document.object().toVariantMap()) : std::nullopt;
}

/// A colour archive, or #rrggbb as typed for one run.
std::optional<QColor> readColor(const QVariant& value) {
    if (value.typeId() == QMetaType::QString && value.toString().startsWith(u'#')) {
        const QColor typed(value.toString());
        return typed.isValid() ? std::optional(typed) : std::nullopt;
    }
    if (value.typeId() != QMetaType::QByteArray) {
        return std::nullopt;
    }
    const QColor color = unarchivedColor(value.toByteArray());
    return color.isValid() ? std::optional(color) : std::nullopt;
}

template <class Value>
auto readerOf() {
    if constexpr (std::is_same_v<Value, bool>) {
        return readBoolean;
    } else if constexpr (std::is_same_v<Value, qint32>) {
        return readInteger;
    } else if constexpr (std::is_same_v<Value, double>) {
        return readReal;
    } else if constexpr (std::is_same_v<Value, QColor>) {
        return readColor;
    } else {
        return readText;
    }
}

QByteArray archived(const Rgb& color) {
    return color.isGrey ? archivedWhite(color.red) : archivedColor(color.color());
}

QString windowKey(const QString& name) {
    return QStringLiteral("windows/") + name;
}

QString userFile() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/Tavrel/tavrel.ini");
}

constexpr qint64 longestFile = 4 << 20;  ///< bytes; a thousand times what the settings take

/// Whether the file can be read without hanging or filling the memory, or is not there yet.
bool isReadable(const QByteArray& file) {
    struct stat status {};
    return ::stat(file.constData(), &status) != 0 || (S_ISREG(status.st_mode) && status.st_size <= longestFile);
}

/// The settings name files and people: nobody else reads them. A file that is replaced keeps its permissions.
void keepPrivate(const QString& file) {
    const QByteArray name = QFile::encodeName(file);
    QDir().mkpath(QFileInfo(file).path());
    const int made = ::open(name.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
    if (made >= 0) {
        ::close(made);
    } else {
        struct stat status {};
        if (::stat(name.constData(), &status) == 0 && (status.st_mode & 0077U) != 0) {
            ::chmod(name.constData(), status.st_mode & 07700U);
        }
    }
}

/// A name under which there never is a file, for a store that stands apart from all files.
QString noFile() {
    return QStringLiteral("/proc/self/fdinfo/tavrel.ini");
}

}  // namespace

Preferences::Preferences(const QString& file, Keeping keeping)
    : Preferences(file.isEmpty() ? userFile() : file, keeping,
                  isReadable(QFile::encodeName(file.isEmpty() ? userFile() : file))) {}

Preferences::Preferences(const QString& file, Keeping keeping, bool isReadable)
    : store_(isReadable ? file : noFile(), QSettings::IniFormat) {
    store_.setFallbacksEnabled(false);
    if (!isReadable) {
        unreadable_ = file;
        thisRun_.emplace();
        return;
    }
    if (keeping == Keeping::onDisk) {
        keepPrivate(file);
    }
    if (keeping == Keeping::thisRun) {
        thisRun_.emplace();
        for (const QString& key : store_.allKeys()) {
            thisRun_->insert(key, store_.value(key));
        }
    }
}

void Preferences::registerDefaults(const QVariantMap& defaults) {
    for (auto entry = defaults.begin(); entry != defaults.end(); ++entry) {
        defaults_.insert(entry.key(), encoded(entry.value()));
    }
}

bool Preferences::isStored(const QString& key) const {
    return thisRun_ ? thisRun_->contains(key) : store_.contains(key);
}

QVariant Preferences::stored(const QString& key) const {
    return thisRun_ ? thisRun_->value(key) : store_.value(key);
}

/// What the stored value reads as, else what the registered default reads as, if either does.
template <class Reader>
auto Preferences::find(const QString& key, Reader reader) const {
    decltype(reader(QVariant())) value;
    if (isStored(key)) {
        value = reader(stored(key));
    }
    if (!value && defaults_.contains(key)) {
        value = reader(defaults_.value(key));
    }
    return value;
}

double Preferences::real(const QString& key) const {
    return find(key, readReal).value_or(0);
}
QString Preferences::string(const QString& key) const {
    return find(key, readText).value_or(QString());
}
QStringList Preferences::strings(const QString& key) const {
    return find(key, readStrings).value_or(QStringList());
}
QVariantMap Preferences::dictionary(const QString& key) const {
    return find(key, readDictionary).value_or(QVariantMap());
}

void Preferences::set(const QString& key, const QVariant& value) {
    write(key, encoded(value));
}

template <class Value>
Value Preferences::get(const Setting<Value>& setting) const {
    if (const auto value = find(setting.name(), readerOf<Value>())) {
        return *value;
    }
    return setting.fallback ? valueOf(*setting.fallback) : Value();
}

template <class Value>
void Preferences::set(const Setting<Value>& setting, const Value& value) {
    set(setting.name(), QVariant(value));
}

template <>
void Preferences::set(const Setting<QColor>& setting, const QColor& value) {
    const QString key = setting.name();
    QVariant held = stored(key);
    if (!isStored(key) && setting.fallback) {
        held = archived(*setting.fallback);
    }
    write(key, readColor(held) == value ? held : QVariant(archivedColor(value)));
}

template bool Preferences::get(const Setting<bool>&) const;
template qint32 Preferences::get(const Setting<qint32>&) const;
template double Preferences::get(const Setting<double>&) const;
template QString Preferences::get(const Setting<QString>&) const;
template QColor Preferences::get(const Setting<QColor>&) const;
template void Preferences::set(const Setting<bool>&, const bool&);
template void Preferences::set(const Setting<qint32>&, const qint32&);
template void Preferences::set(const Setting<double>&, const double&);
template void Preferences::set(const Setting<QString>&, const QString&);

void Preferences::write(const QString& key, const QVariant& value) {
    if (thisRun_) {
        thisRun_->insert(key, value);
        return;
    }
    store_.setValue(key, value);
    if (together_ == 0) {
        store_.sync();
    }
}

Preferences::Together::~Together() {
    if (--preferences_.together_ == 0) {
        preferences_.store_.sync();
    }
}

Expected<void> Preferences::synchronize() {
    // The status of a QSettings stays bad after one failure; a new one on the same file shares its pending values.
    QSettings writer(store_.fileName(), QSettings::IniFormat);
    writer.sync();
    if (writer.status() == QSettings::AccessError) {
        return failure(textWith("Main", "Preferences not saved", Fallback{QStringLiteral("Preferences not saved: %@")},
                                store_.fileName()));
    }
    return {};
}

void Preferences::synchronize(Alerts& alerts) {
    if (!unreadable_.isEmpty()) {
        alerts.fail({textWith("Main", "Preferences not saved", Fallback{QStringLiteral("Preferences not saved: %@")},
                              unreadable_),
                     text("Main", "File is not regular")});
        unreadable_.clear();
    }
    if (thisRun_ || troubleTold_) {
        return;
    }
    if (const auto written = synchronize(); !written) {
        troubleTold_ = true;
        alerts.fail(written.error());
    }
}

QByteArray Preferences::windowState(const QString& name) const {
    const QVariant state = stored(windowKey(name));
    return state.typeId() == QMetaType::QByteArray ? state.toByteArray() : QByteArray();
}

void Preferences::setWindowState(const QString& name, const QByteArray& state) {
    write(windowKey(name), state);
}

}  // namespace tavrel
