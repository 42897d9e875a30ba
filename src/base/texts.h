#pragma once

#include <QString>
#include <QStringList>

#include <variant>
#include <vector>

namespace tavrel {

/// What a format's placeholder may be filled with: integers for %d and %ld, numbers for %f and its kin, anything for %@
/// and %s.
using FormatArgument = std::variant<qint64, double, QString>;

/// What shows when a text is not there, or does not fit what it is filled with.
inline QString missingText() {
    return QStringLiteral("error !");
}

/// The text of a key in a named table ("Main", "Carnet" …) in the user's language, English when that language lacks the
/// key, and the fallback when no language has it.
QString text(const char* table, const char* key, const QString& fallback = missingText());

/// The same in the language given, whatever the user's; null where that language lacks the key.
QString textIn(const QString& language, const char* table, const char* key);
/// The languages that there are texts in: "en", "fr".
QStringList textLanguages();

/// A word that a table of controls, columns or commands shows: a key with its text table, or the text itself where it
/// is the same in every language. Spelled out as Title("Carnet", "Depth") or {"Carnet", "Depth"}, which is how the
/// check of the text tables finds the keys that the code uses.
struct Title {
    constexpr Title() = default;
    constexpr Title(const char* itsTable, const char* itsKey) : table(itsTable), key(itsKey) {}

    constexpr bool isEmpty() const { return *key == 0; }
    QString text(const QString& fallback = missingText()) const {
        return table ? tavrel::text(table, key, fallback) : QString::fromUtf8(key);
    }

    QString textIn(const QString& language) const {
        return table ? tavrel::textIn(language, table, key) : QString::fromUtf8(key);
    }

    const char* table = nullptr;  ///< null: key is the text itself
    const char* key = "";
};

constexpr Title literal(const char* text) {
    return {nullptr, text};
}

/// The text of a title; empty for an empty one.
inline QString text(const Title& title, const QString& fallback = missingText()) {
    return title.text(fallback);
}

/// Fills a printf-style format: %d %i %u %x %o for integers, %f %e %g for numbers, %@ and %s for anything (a number as
/// its shortest text), %%; with flags, width and precision, length letters (%ld) making no difference. The locale plays
/// no part. A placeholder that does not fit its argument, or a wrong number of them, gives the fallback instead; it
/// never crashes.
QString fillFormat(const QString& format, const std::vector<FormatArgument>& arguments,
                   const QString& fallback = missingText());

/// The placeholders of a format in order, as letters: "Tx %@/%.1f" is "@f". Null when the format cannot be filled.
QString formatPlaceholders(const QString& format);

FormatArgument formatArgument(int value);
FormatArgument formatArgument(qint64 value);
FormatArgument formatArgument(std::size_t value);
FormatArgument formatArgument(float value);
FormatArgument formatArgument(double value);
FormatArgument formatArgument(QString value);

/// A text other than the usual one to show when a format is not there or does not fit its arguments.
struct Fallback {
    QString text;
};

/// The text of a key used as a format.
template <class... Arguments>
QString textWith(const Title& key, const Fallback& fallback, const Arguments&... arguments) {
    return fillFormat(key.text(fallback.text), {formatArgument(arguments)...}, fallback.text);
}
template <class... Arguments>
QString textWith(const Title& key, const Arguments&... arguments) {
    return fillFormat(key.text(), {formatArgument(arguments)...});
}
template <class... Arguments>
QString textWith(const char* table, const char* key, const Arguments&... arguments) {
    return textWith(Title(table, key), arguments...);
}

/// Chooses the language of all texts: a locale name such as "fr_FR" (its language part decides); empty: the system's.
/// Also installs the toolkit's own translations where a QCoreApplication exists.
void setTextLanguage(const QString& localeName = {});
/// The language of the texts: "en" or "fr".
QString textLanguage();

}  // namespace tavrel
