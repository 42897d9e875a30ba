#pragma once

#include <QString>
#include <QStringView>

#include <string>
#include <string_view>

namespace tavrel {

// How a form reads numbers: blanks before the number are skipped, the leading number counts, the rest is ignored, and a
// text without a leading number is 0. A decimal comma counts as a point. The user's locale plays no part.

/// The leading integer ("12.7 m" is 12), saturating at the 32-bit bounds.
qint32 integerValue(QStringView text);
/// The leading decimal number, exponent included ("1e3" is 1000); infinite beyond the range of the type.
double doubleValue(QStringView text);
/// The leading decimal number rounded once to single precision.
float floatValue(QStringView text);
/// Whether there is a leading number at all, which 0 alone does not tell.
bool startsWithNumber(QStringView text);

// The numbers of a file, from its bytes: the same rules, but only a point separates decimals.
qint32 integerInFile(std::string_view text);
double doubleInFile(std::string_view text);
float floatInFile(std::string_view text);

/// Truncated toward zero, saturating at the 32-bit bounds; 0 for not-a-number.
qint32 truncated(double value);

/// Appends a number with a fixed count of decimals (0 to 9), rounded as printf rounds, with a point ("12.0", "-0.3",
/// "nan", "inf").
void appendFixed(std::string& text, double value, int decimals);
void appendInteger(std::string& text, qint64 value);

/// The shortest decimal that restores the value, with a point ("18", "18.5", "0.1", "nan", "inf", "-inf"); very large
/// and very small values have an exponent ("1e+22").
QString shortestText(double value);
QString shortestText(float value);

}  // namespace tavrel
