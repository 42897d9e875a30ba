#include "logbook/divecells.h"

#include "base/numbers.h"
#include "base/texts.h"
#include "desktop/commonsettings.h"
#include "desktop/preferences.h"
#include "dives/divechoices.h"
#include "dives/divecodes.h"
#include "logbook/logbooksettings.h"

#include <algorithm>
#include <span>

namespace tavrel {

namespace {

/// Percent of oxygen from which a gas counts as pure oxygen.
constexpr qint32 leastOxygen = 98;

QString numberText(qint32 value) {
    return QString::number(value);
}
QString numberText(float value) {
    return shortestText(value);
}

std::optional<QString> titleOf(std::span<const Choice> choices, qint32 tag) {
    const auto* found = std::find_if(choices.data(), choices.data() + choices.size(),
                                     [tag](const Choice& choice) { return choice.tag == tag; });
    return found == choices.data() + choices.size() ? std::nullopt : std::optional(found->title.text());
}

QString tideText(const Plongee& dive) {
    if (dive.pmBm == Tide::high) {
        return dive.coeff != 0 ? textWith("Carnet", "TableView high tide", Fallback{QStringLiteral("N/A")}, dive.coeff)
                               : text("Carnet", "TableView high tide only", QStringLiteral("N/A"));
    }
    if (dive.pmBm == Tide::low) {
        return dive.coeff != 0 ? textWith("Carnet", "TableView low tide", Fallback{QStringLiteral("N/A")}, dive.coeff)
                               : text("Carnet", "TableView low tide only", QStringLiteral("N/A"));
    }
    return dive.coeff != 0 ? numberText(dive.coeff) : QStringLiteral("-");
}

QString waterText(const Plongee& dive, const DiveTableStyle& style) {
    if (dive.tempEau == temperatureNotGiven) {
        return QStringLiteral("-");
    }
    return style.usUnits ? textWith("Carnet", "Farenheit", dive.tempEau) : textWith("Carnet", "Celsius", dive.tempEau);
}

QString visibilityText(const Plongee& dive) {
    // The menu's last item, not given, has no word here.
    return dive.visibilite == Visibility::notGiven ? QString()
                                                   : titleOf(choices::visibility, dive.visibilite).value_or(QString());
}

/// Air, and what the diver breathed at the first two stops. A gas entered for a stop counts whether or not the stop is
/// marked as made, as it does for the colours; no gas entered (0) counts as air. Where oxygen meets the leanest nitrox,
/// 22 percent, which a badly analysed air could be, only the oxygen is named.
QString airText(const Plongee& dive) {
    const auto [lean, rich] = std::minmax(dive.decoO2_Level_1, dive.decoO2_Level_2);
    if (rich >= leastOxygen) {
        return lean > leastNitrox && lean < leastOxygen ? text("Carnet", "TableView air Nx O2")
                                                        : text("Carnet", "TableView air O2");
    }
    return rich >= leastNitrox ? text("Carnet", "TableView air Nx") : text("Carnet", "Air");
}

QString gasText(const Plongee& dive) {
    const auto mix = [&dive](QLatin1StringView name) {
        return QStringLiteral("%1 %2/%3").arg(name, numberText(dive.o2Mix), numberText(dive.heMix));
    };
    switch (dive.gaz) {
        case Gas::air:
            return airText(dive);
        case Gas::nitrox:
            return dive.deco_Level_1_sw == 1 && dive.decoO2_Level_1 >= leastOxygen
                       ? QStringLiteral("O2")
                       : QStringLiteral("Nx ") + numberText(dive.o2Mix);
        case Gas::trimix:
            return mix(QLatin1StringView("Tx"));
        case Gas::heliox:
            return QStringLiteral("Heliox ") + numberText(dive.o2Mix);
        case Gas::triox:
            return mix(QLatin1StringView("Triox"));
        case Gas::heliair:
            return mix(QLatin1StringView("Heliair"));
        default:
            return numberText(dive.gaz);
    }
}

const QColor deviceGreen = QColor::fromRgbF(0.0F, 0.7F, 0.0F);
const QColor deviceBrown = QColor::fromRgbF(0.4F, 0.2F, 0.0F);
const QColor nightBlue = QColor::fromRgbF(0.0F, 0.0F, 0.3F);
const QColor brown = QColor::fromRgbF(0.6F, 0.4F, 0.2F);
const QColor grey = QColor::fromRgbF(0.5F, 0.5F, 0.5F);
const QColor black = QColor::fromRgbF(0.0F, 0.0F, 0.0F);
const QColor white = QColor::fromRgbF(1.0F, 1.0F, 1.0F);
const QColor yellow = QColor::fromRgbF(1.0F, 1.0F, 0.0F);
const QColor red = QColor::fromRgbF(1.0F, 0.0F, 0.0F);

bool isMixWithHelium(const Plongee& dive) {
    return dive.gaz >= Gas::trimix && dive.gaz <= Gas::heliair;
}

void colourForeign(CellStyle& cell, const Plongee& dive, std::string_view field, const DiveTableStyle& style) {
    if (!style.foreignInColor || field == "epaves" || field == "inoubliable") {
        return;
    }
    cell.text.reset();
    cell.background.reset();
    if (dive.countryCode != style.countryCode && style.foreignColor.isValid()) {
        cell.background = style.foreignColor;
    }
}

CellStyle mixStyleOfNumber(const Plongee& dive) {
    if (dive.gaz == Gas::nitrox && dive.rebreather == Apparatus::openCircuit) {
        return {true, yellow, deviceGreen};
    }
    if (isMixWithHelium(dive) && dive.rebreather == Apparatus::openCircuit) {
        return {true, white, brown};
    }
    if (dive.decoO2_Level_1 >= leastOxygen) {
        return {true, white, black};
    }
    if (dive.rebreather == Apparatus::semiClosed) {
        return {true, yellow, grey};
    }
    if (Apparatus::isClosed(dive.rebreather)) {
        return {true, yellow, black};
    }
    return {true, deviceBrown, {}};
}

CellStyle mixStyleOfGas(const Plongee& dive, bool boldBefore) {
    if (dive.gaz == Gas::nitrox) {
        return {true, yellow, deviceGreen};
    }
    if (isMixWithHelium(dive)) {
        return {true, white, brown};
    }
    if (Apparatus::isClosed(dive.rebreather)) {
        return {boldBefore, yellow, black};
    }
    if (dive.decoO2_Level_1 < leastOxygen) {
        return {};
    }
    return {true, white, black};
}

void colourMix(CellStyle& cell, const Plongee& dive, std::string_view field, const DiveTableStyle& style) {
    if (!style.mixInColor) {
        return;
    }
    if (field == "noPlongee") {
        cell = mixStyleOfNumber(dive);
    } else if (field == "gaz") {
        cell = mixStyleOfGas(dive, cell.bold);
    }
}

void colourNight(CellStyle& cell, const Plongee& dive, std::string_view field, const DiveTableStyle& style) {
    if (style.nightInColor) {
        if (field == "visibilite" && dive.nocturne == 1) {
            cell.text = white;
            cell.background = nightBlue;
        } else if (field == "visibilite") {
            cell = {};
        }
    } else if (!style.mixInColor && (field == "noPlongee" || field == "gaz")) {
        cell = {};
    }
}

void colourText(Cell& shown, std::string_view field, const DiveTableStyle& style) {
    const std::string_view column = style.colouredTheme == 0   ? "lieu"
                                    : style.colouredTheme == 1 ? "site"
                                                               : "visibilite";
    if (field != column) {
        return;
    }
    const bool chosen = shown.text == style.colouredText;
    CellStyle& cell = shown.style;
    if (style.textInColor || chosen) {
        const bool marked = style.textInColor && chosen;
        cell.bold = marked;
        cell.text = marked ? std::optional(red) : std::nullopt;
    }
}

std::optional<QColor> given(const QColor& color) {
    return color.isValid() ? std::optional(color) : std::nullopt;
}

void colourLowTemperature(CellStyle& cell, const Plongee& dive, std::string_view field, const DiveTableStyle& style) {
    if (field == "tempEau") {
        // A temperature that was not given, -50, lies below most thresholds and is coloured too.
        const bool low = style.lowTemperatureInColor && dive.tempEau < style.lowTemperature;
        cell.text = low ? given(style.lowTemperatureColor) : std::nullopt;
    }
}

void colourDepthAndTime(CellStyle& cell, std::string_view field, const DiveTableStyle& style) {
    if (field == "profondeur") {
        cell.text = style.depthTimeInColor ? given(style.depthColor) : std::nullopt;
    } else if (field == "temps") {
        cell.text = style.depthTimeInColor ? given(style.timeColor) : std::nullopt;
    }
}

/// The words of a cell that says something else than its field's plain text.
std::optional<QString> ownText(const Plongee& dive, std::string_view field, const DiveTableStyle& style) {
    if (field == "coeff") {
        return tideText(dive);
    }
    if (field == "profondeur" && style.displayUnits) {
        return numberText(dive.profondeur) + (style.usUnits ? QStringLiteral(" ft") : QStringLiteral(" m"));
    }
    if (field == "temps" && style.displayUnits) {
        return numberText(dive.temps) + QStringLiteral(" '");
    }
    if (field == "tempEau") {
        return waterText(dive, style);
    }
    if (field == "deco") {
        return titleOf(choices::decoMethod, dive.deco).value_or(numberText(dive.deco));
    }
    if (field == "visibilite") {
        return visibilityText(dive);
    }
    if (field == "inoubliable" || field == "epaves") {
        return QString();
    }
    if (field == "gaz") {
        return gasText(dive);
    }
    if (field == "ppO2") {
        return titleOf(choices::setPoint, dive.ppO2).value_or(QStringLiteral("..."));
    }
    if (field == "rebreather") {
        return titleOf(choices::apparatus, dive.rebreather).value_or(numberText(dive.rebreather));
    }
    if (field == "heure") {
        return style.locale.toString(dive.heure.toDateTime().time(), QLocale::ShortFormat);
    }
    return std::nullopt;
}

QString imageOf(const Plongee& dive, std::string_view field) {
    if (field == "epaves" && !dive.epaves.isEmpty()) {
        return QStringLiteral("epave");
    }
    if (field == "inoubliable") {
        switch (dive.inoubliable) {
            case Rating::unforgettable:
                return QStringLiteral("coeur");
            case Rating::good:
                return QStringLiteral("point");
            case Rating::poor:
                return QStringLiteral("croix");
            case Rating::neverAgain:
                return QStringLiteral("death");
            default:
                break;
        }
    }
    return {};
}

}  // namespace

DiveTableStyle::DiveTableStyle(const Preferences& preferences, const Clock& clock, const QLocale& itsLocale)
    : TableStyle(clock, itsLocale) {
    displayUnits = preferences.get(settings::displayUnits);
    usUnits = preferences.get(settings::usUnits);
    foreignInColor = preferences.get(settings::foreignInColor);
    mixInColor = preferences.get(settings::mixInColor);
    nightInColor = preferences.get(settings::nocturnesInColor);
    textInColor = preferences.get(settings::colorItem);
    lowTemperatureInColor = preferences.get(settings::lowTemperatureInColor);
    depthTimeInColor = preferences.get(settings::depthTimeInColor);
    countryCode = preferences.get(settings::countryCode);
    colouredText = preferences.get(settings::colouredText);
    colouredTheme = preferences.get(settings::colouredTheme);
    lowTemperature = preferences.get(settings::lowTemperatureValue);
    foreignColor = preferences.get(settings::foreignColor);
    lowTemperatureColor = preferences.get(settings::lowTemperatureColor);
    depthColor = preferences.get(settings::depthColor);
    timeColor = preferences.get(settings::timeColor);
}

void describeDiveCell(const Plongee& dive, std::string_view field, const DiveTableStyle& style, Cell& cell) {
    if (const auto own = ownText(dive, field, style)) {
        cell.text = *own;
    }
    cell.image = imageOf(dive, field);
    if (field == "epaves") {
        cell.words = dive.epaves;
    } else if (!cell.image.isEmpty()) {
        cell.words = titleOf(choices::rating, dive.inoubliable).value_or(QString());
    }
    // Each rule may override what the ones before it set. Drawing a cell asks for nothing more: the table is read again
    // once per change of the preferences or the list, never from here.
    colourForeign(cell.style, dive, field, style);
    colourMix(cell.style, dive, field, style);
    colourNight(cell.style, dive, field, style);
    colourText(cell, field, style);
    colourLowTemperature(cell.style, dive, field, style);
    colourDepthAndTime(cell.style, field, style);
}

}  // namespace tavrel
