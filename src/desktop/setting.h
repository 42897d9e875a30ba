#pragma once

#include <QColor>
#include <QString>

#include <optional>
#include <variant>

namespace tavrel {

/// An opaque calibrated colour, each part from 0 to 1. A grey is stored as a level of white, the others as RGB.
struct Rgb {
    float red;
    float green;
    float blue;
    bool isGrey = false;

    QColor color() const { return QColor::fromRgbF(red, green, blue); }
};

constexpr Rgb grey(float level) {
    return {level, level, level, true};
}

/// How a declaration writes down a setting's value.
template <class Value>
struct SettingLiteral {
    using Type = Value;
};
template <>
struct SettingLiteral<QString> {
    using Type = const char*;
};
template <>
struct SettingLiteral<QColor> {
    using Type = Rgb;
};

template <class Number>
Number valueOf(Number literal) {
    return literal;
}
inline QString valueOf(const char* literal) {
    return QString::fromUtf8(literal);
}
inline QColor valueOf(const Rgb& literal) {
    return literal.color();
}

/// A setting of the user's, declared once, in the room that reads it, as a bool, qint32, double, QString or QColor.
/// Read and stored through Preferences.
template <class Value>
struct Setting {
    using Literal = typename SettingLiteral<Value>::Type;

    const char* key;
    /// What it reads as while the user has no value of their own. Without one: no, 0, "" or an invalid colour.
    std::optional<Literal> fallback = std::nullopt;
    /// What a reset of the preferences gives it; without one its control is emptied.
    std::optional<Literal> reset = std::nullopt;

    QString name() const { return QString::fromLatin1(key); }
};

/// A setting of any kind.
using AnySetting = std::variant<const Setting<bool>*, const Setting<qint32>*, const Setting<double>*,
                                const Setting<QString>*, const Setting<QColor>*>;

inline const char* keyOf(const AnySetting& setting) {
    return std::visit([](const auto* each) { return each->key; }, setting);
}

}  // namespace tavrel
