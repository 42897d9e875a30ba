#pragma once

#include "interchange/xml/xmltree.h"

#include <QString>

#include <initializer_list>
#include <optional>
#include <string_view>

namespace tavrel {

// Elements' values by their meaning, as files write them.

/// The text without blanks at its ends.
QString wordsOf(XmlElement element);
/// The number that the text begins with, a decimal comma allowed; nothing for none and for one that is not finite.
std::optional<double> numberOf(XmlElement element);
std::optional<double> numberOf(std::string_view text);

/// The first child whose name is one of these, case aside.
XmlElement childOf(XmlElement parent, std::initializer_list<std::string_view> names);
bool isNamed(XmlElement element, std::string_view name);

/// Metres; deeper is no number of a depth.
inline constexpr double deepestThinkable = 12'000;

/// The nearest whole number that 32 bits hold.
qint32 rounded(double value);

/// Kelvin to degrees Celsius; what is too cold for kelvin counts as degrees Celsius.
double celsiusOf(double kelvin);
/// The same in whole degrees. Nothing for 0, which stands for none, and for what no diver meets.
std::optional<qint32> celsius(std::optional<double> kelvin);
/// Degrees Celsius as whole ones; nothing for what no diver meets.
std::optional<qint32> thinkableCelsius(std::optional<double> degrees);
/// The same for water, which no diver meets below 5 degrees of frost.
std::optional<qint32> ofWater(std::optional<qint32> degrees);
std::optional<qint32> waterCelsius(std::optional<double> kelvin);
/// The seconds of a duration, also of one that is written as "52:30" (minutes and seconds) or "0:52:30".
std::optional<double> secondsOf(XmlElement element);
/// A surface interval as the dive form writes it: "02:30".
QString intervalText(qint32 minutes);
/// Pascal to bar, to a millionth; what is too little for pascal counts as bar. Nothing for what is not above 0.
std::optional<double> bars(std::optional<double> pascal);
/// Cubic metres to litres; what is too much for a tank counts as litres.
std::optional<double> litres(std::optional<double> cubicMetres);

}  // namespace tavrel
