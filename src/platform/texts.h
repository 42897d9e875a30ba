#pragma once

#include <QString>

#include <variant>
#include <vector>

namespace tavrel {

/// What a format's placeholder may be filled with: integers for %d and %ld, numbers for %f and its kin, anything for %@
/// and %s.
using FormatArgument = std::variant<qint64, double, QString>;

/// The text of a key in a named table ("Main", "Carnet" …) in the user's language, English when that language lacks the
/// key, and the fallback when no language has it.
QString text(const char* table, const char* key, const QString& fallback = QStringLiteral("error !"));

/// A key with its table, for tables of constants. Spelled out as TextKey("Carnet", "Depth"), which is how the check of
/// the text tables finds the keys that the code uses.
struct TextKey {
    constexpr TextKey() = default;
    explicit constexpr TextKey(const char* itsTable, const char* itsKey) : table(itsTable), key(itsKey) {}

    constexpr bool isNull() const { return !key; }

    const char* table = nullptr;
    const char* key = nullptr;
};

/// The text of a key; empty for a null key.
QString text(TextKey key, const QString& fallback = QStringLiteral("error !"));

/// Fills a printf-style format: %d %i %u %x %o for integers, %f %e %g for numbers, %@ and %s for anything (a number as
/// its shortest text), %%; with flags, width and precision, length letters (%ld) making no difference. The locale plays
/// no part. A placeholder that does not fit its argument, or a wrong number of them, gives the fallback instead; it
/// never crashes.
QString fillFormat(const QString& format, const std::vector<FormatArgument>& arguments,
                   const QString& fallback = QStringLiteral("error !"));

/// The placeholders of a format in order, as letters: "Tx %@/%.1f" is "@f". Null when the format cannot be filled.
QString formatPlaceholders(const QString& format);

FormatArgument formatArgument(int value);
FormatArgument formatArgument(qint64 value);
FormatArgument formatArgument(std::size_t value);
FormatArgument formatArgument(float value);
FormatArgument formatArgument(double value);
FormatArgument formatArgument(QString value);

/// The text of a key used as a format.
template <class... Arguments>
QString textWith(const char* table, const char* key, const QString& fallback, const Arguments&... arguments) {
    return fillFormat(text(table, key, fallback), {formatArgument(arguments)...}, fallback);
}
template <class... Arguments>
QString textWith(TextKey key, const QString& fallback, const Arguments&... arguments) {
    return fillFormat(text(key, fallback), {formatArgument(arguments)...}, fallback);
}

/// Chooses the language of all texts: a locale name such as "fr_FR" (its language part decides); empty: the system's.
/// Also installs the toolkit's own translations where a QCoreApplication exists.
void setTextLanguage(const QString& localeName = {});
/// The language of the texts: "en" or "fr".
QString textLanguage();

}  // namespace tavrel
