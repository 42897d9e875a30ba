#pragma once

#include <QString>
#include <initializer_list>
#include <variant>
#include <vector>

namespace tavrel {

/// What a format's placeholder may be filled with: integers for %d and %ld, reals for %f and its kin, texts for %@ and %s.
using FormatArgument = std::variant<qint64, double, QString>;

/// The text of a key in a named table ("Main", "Carnet" …) in the user's language, English when that language lacks the
/// key, and the fallback when no language has it.
QString text(const char* table, const char* key, const QString& fallback = QStringLiteral("error !"));

/// Fills a printf-style format (%d, %ld, %.1f, %@, %%). A placeholder that does not fit its argument, or a wrong number of
/// them, gives the fallback instead; it never crashes.
QString fillFormat(const QString& format, const std::vector<FormatArgument>& arguments,
                   const QString& fallback = QStringLiteral("error !"));

FormatArgument formatArgument(int value);
FormatArgument formatArgument(qint64 value);
FormatArgument formatArgument(std::size_t value);
FormatArgument formatArgument(double value);
FormatArgument formatArgument(QString value);

/// The text of a key used as a format.
template <class... Arguments>
QString textWith(const char* table, const char* key, const QString& fallback, const Arguments&... arguments) {
    return fillFormat(text(table, key, fallback), {formatArgument(arguments)...}, fallback);
}

/// Chooses the language of all texts: a locale name such as "fr_FR" (its language part decides); empty: the system's. Also
/// installs the toolkit's own translations where a QCoreApplication exists.
void setTextLanguage(const QString& localeName = {});

}  // namespace tavrel
