#pragma once

#include "calculators/conversions.h"
#include "interchange/standard/filevalues.h"

#include <cmath>

namespace tavrel {

/// What the numbers of a UDCF file are in: metres, degrees Celsius, bar, litres and minutes, or feet, degrees
/// Fahrenheit, pounds per square inch and cubic feet, or metres, kelvin, pascal, cubic metres and seconds. Gives the
/// first; a number that makes no sense in them is taken for one of the last, whatever the file says.
class UdcfUnits {
public:
    /// By the word of the file. This program's own holds the numbers of a logbook, which make sense as they are.
    UdcfUnits(const QString& units, bool own)
        : own_(own),
          imperial_(units.compare(QLatin1String("imperial"), Qt::CaseInsensitive) == 0),
          inSeconds_(units.compare(QLatin1String("si"), Qt::CaseInsensitive) == 0),
          metre_(imperial_ ? inUnit("metres", "feet", 1) : 1.0) {}

    bool inSeconds() const { return inSeconds_; }
    double seconds(double time) const {
        constexpr double minutesOfDay = 1440;
        return inSeconds_ || (time > minutesOfDay && !own_) ? time : time * 60;
    }
    double metres(double length) const { return imperial_ ? std::round(length * metre_ * 100) / 100 : length; }
    double celsius(double degrees) const {
        return imperial_ ? inUnit("celsius", "fahrenheit", degrees) : own_ ? degrees : celsiusOf(degrees);
    }
    double bars(double pressure) const {
        return imperial_ ? inUnit("bar", "psi", pressure) : own_ ? pressure : tavrel::bars(pressure).value_or(0);
    }
    /// The volume of a tank. Cubic feet are those of the gas in it when full, which for most tanks is at 3000 psi; only
    /// what is too little for a gas is the tank's own volume.
    double litres(double volume) const {
        constexpr double largestTank = 2;  // cubic feet
        if (!imperial_) {
            return own_ ? volume : tavrel::litres(volume).value_or(0);
        }
        return inUnit("litres", "cubicFeet", volume) / (volume > largestTank ? inUnit("bar", "psi", 3000) : 1.0);
    }

private:
    bool own_;
    bool imperial_;
    bool inSeconds_;
    double metre_;
};

}  // namespace tavrel
