#pragma once

#include "calculators/conversions.h"

#include <cmath>

namespace tavrel {

/// What the numbers of a UDCF file are in: metres, degrees Celsius, bar and litres, or feet, degrees Fahrenheit, pounds
/// per square inch and cubic feet. Gives the former.
class UdcfUnits {
public:
    explicit UdcfUnits(bool imperial) : imperial_(imperial), metre_(imperial ? inUnit("metres", "feet", 1) : 1.0) {}

    double metres(double length) const { return imperial_ ? std::round(length * metre_ * 100) / 100 : length; }
    double celsius(double degrees) const { return imperial_ ? inUnit("celsius", "fahrenheit", degrees) : degrees; }
    double bars(double pressure) const { return imperial_ ? inUnit("bar", "psi", pressure) : pressure; }
    /// The volume of a tank. Cubic feet are those of the gas in it when full, which for most tanks is at 3000 psi; only
    /// what is too little for a gas is the tank's own volume.
    double litres(double volume) const {
        constexpr double largestTank = 2;  // cubic feet
        if (!imperial_) {
            return volume;
        }
        return inUnit("litres", "cubicFeet", volume) / (volume > largestTank ? inUnit("bar", "psi", 3000) : 1.0);
    }

private:
    bool imperial_;
    double metre_;
};

}  // namespace tavrel
