#include "app/preferencetable.h"

#include "platform/numbers.h"

namespace tavrel {

namespace {

/// The columns that a chosen text is looked for in, by tag.
constexpr TextKey themes[] = {TextKey("Carnet", "Column place"), TextKey("Carnet", "Column site"),
                              TextKey("Carnet", "Column visibility")};

using Kind = PreferenceKind;
using Tell = PreferenceNotice;
constexpr TextKey none;
constexpr std::span<const TextKey> noChoices;

constexpr TextKey newDives("Preferences", "New dives");
constexpr TextKey units("Preferences", "Units");
constexpr TextKey depthAndTime("Preferences", "Depth and time");
constexpr TextKey chosenText("Preferences", "Chosen text");
constexpr TextKey coldWater("Preferences", "Cold water");
constexpr TextKey kindsOfDives("Preferences", "Kinds of dives");
constexpr TextKey columns("Preferences", "Columns");
constexpr TextKey curve("Preferences", "Curve");
constexpr TextKey background("Preferences", "Background");
constexpr TextKey grid("Preferences", "Grid");
constexpr TextKey decompressionStops("Preferences", "Decompression stops");
constexpr TextKey gradientFactors("Preferences", "Gradient factors");
constexpr TextKey oxygenCells("Preferences", "Oxygen cells");

const PreferenceKey keys[] = {
    {"tank volume", "volumeBlocField", 15, Kind::number, 1, Tell::none, newDives, TextKey("Preferences", "Tank volume"),
     TextKey("Preferences", "Litres")},
    {"tank pressure", "pressionBlocField", 230, Kind::number, 1, Tell::none, newDives,
     TextKey("Preferences", "Tank pressure"), TextKey("Preferences", "Bar")},
    {"us units", "usUnitsSwitch", false, Kind::onOff, 1, Tell::all, units, TextKey("Preferences", "US units")},
    {"display units", "displayUnitsSwitch", true, Kind::onOff, 1, Tell::tableView, units,
     TextKey("Preferences", "Units in the table")},
    {"depth time in color", "tableColorSwitch", true, Kind::onOff, 2, Tell::tableView, depthAndTime,
     TextKey("Preferences", "Depth and time in color")},
    {"depth color", "profondeurWell", Rgb{0.5F, 0, 0.5F}, Kind::color, 2, Tell::tableView, depthAndTime,
     TextKey("Preferences", "Color of depths"), none, "depth time in color"},
    {"time color", "dureeWell", Rgb{0, 0, 0.6F}, Kind::color, 2, Tell::tableView, depthAndTime,
     TextKey("Preferences", "Color of times"), none, "depth time in color"},
    {"color item", "itemColorSwitch", false, Kind::onOff, 2, Tell::tableView, chosenText,
     TextKey("Preferences", "Chosen text in color")},
    {"coloured text", "textInColorField", "", Kind::text, 2, Tell::tableView, chosenText,
     TextKey("Preferences", "Text to highlight"), none, "color item"},
    {"coloured theme", "themeInColorPopUp", 0, Kind::popUp, 2, Tell::tableView, chosenText,
     TextKey("Preferences", "Column to highlight"), none, "color item", themes},
    {"low temperature in color", "lowTemperatureSwitch", false, Kind::onOff, 2, Tell::tableView, coldWater,
     TextKey("Preferences", "Low temperatures in color")},
    {"low temperature value", "tempValueField", "", Kind::number, 2, Tell::tableView, coldWater,
     TextKey("Preferences", "Low temperature"), TextKey("Carnet", "Degree Celsius"), "low temperature in color"},
    {"low temperature color", "lowTemperatureWell", Rgb{0, 0, 1}, Kind::color, 2, Tell::tableView, coldWater,
     TextKey("Preferences", "Color of low temperatures"), none, "low temperature in color"},
    {"mix in color", "mixInColorSwitch", true, Kind::onOff, 2, Tell::tableView, kindsOfDives,
     TextKey("Preferences", "Mixes in color")},
    {"foreign in color", "foreignInColorSwitch", true, Kind::onOff, 2, Tell::tableView, kindsOfDives,
     TextKey("Preferences", "Dives abroad in color")},
    {"foreign color", "foreignWell", Rgb{0.725F, 1, 0.674F}, Kind::color, 2, Tell::tableView, kindsOfDives,
     TextKey("Preferences", "Color of dives abroad")},
    {"country code", "countryCodeField", "FRA", Kind::text, 1, Tell::tableView, newDives,
     TextKey("Preferences", "Home country code")},
    {"column numero", "numeroColumnSwitch", true, Kind::onOff, 3, Tell::columns, columns,
     TextKey("Carnet", "Column number")},
    {"column date", "dateColumnSwitch", true, Kind::onOff, 3, Tell::columns, columns, TextKey("Carnet", "Column date")},
    {"column lieu", "lieuColumnSwitch", true, Kind::onOff, 3, Tell::columns, columns,
     TextKey("Carnet", "Column place")},
    {"column site", "siteColumnSwitch", true, Kind::onOff, 3, Tell::columns, columns, TextKey("Carnet", "Column site")},
    {"column heure", "heureColumnSwitch", true, Kind::onOff, 3, Tell::columns, columns,
     TextKey("Carnet", "Column time of day")},
    {"column profondeur", "profondeurColumnSwitch", true, Kind::onOff, 3, Tell::columns, columns,
     TextKey("Carnet", "Column depth")},
    {"column temps", "tempsColumnSwitch", true, Kind::onOff, 3, Tell::columns, columns,
     TextKey("Carnet", "Column dive time")},
    {"column temp eau", "tempEauColumnSwitch", true, Kind::onOff, 3, Tell::columns, columns,
     TextKey("Carnet", "Column water")},
    {"column deco", "decoColumnSwitch", true, Kind::onOff, 3, Tell::columns, columns,
     TextKey("Carnet", "Column decompression")},
    {"column coeff", "coeffColumnSwitch", true, Kind::onOff, 3, Tell::columns, columns,
     TextKey("Carnet", "Column tide")},
    {"column visibilite", "visibiliteColumnSwitch", true, Kind::onOff, 3, Tell::columns, columns,
     TextKey("Carnet", "Column visibility")},
    {"column_epave", "epaveColumnSwitch", false, Kind::onOff, 3, Tell::columns, columns,
     TextKey("Carnet", "Column wreck"), none, nullptr, noChoices, false},
    {"column inoubliable", "inoubliableColumnSwitch", true, Kind::onOff, 3, Tell::columns, columns,
     TextKey("Carnet", "Column rating")},
    {"column gaz", "gazColumnSwitch", false, Kind::onOff, 3, Tell::columns, columns, TextKey("Carnet", "Column gas")},
    {"column scaph", "scaphColumnSwitch", false, Kind::onOff, 3, Tell::columns, columns,
     TextKey("Carnet", "Column apparatus")},
    {"plot color", "plotColorWell", Rgb{1, 0.5F, 0}, Kind::color, 4, Tell::profile, curve,
     TextKey("Preferences", "Plot color")},
    {"background color", "backgroundColorWell", Rgb{0.855F, 0.49F, 0.149F}, Kind::color, 4, Tell::profile, background,
     TextKey("Preferences", "Background color")},
    {"alpha background color", "alphaBackgroundField", 0.2, Kind::opacity, 4, Tell::profile, background,
     TextKey("Preferences", "Opacity")},
    {"fill plot", "fillSwitch", true, Kind::onOff, 4, Tell::profile, curve, TextKey("Preferences", "Fill the curve")},
    {"fill color", "fillColorWell", Rgb{0.1F, 0.1F, 1}, Kind::color, 4, Tell::profile, curve,
     TextKey("Preferences", "Fill color"), none, "fill plot"},
    {"alpha fill color", "alphaFillField", 0.4, Kind::opacity, 4, Tell::profile, curve,
     TextKey("Preferences", "Opacity"), none, "fill plot"},
    {"gradient yes", "gradientYesSwitch", true, Kind::onOff, 4, Tell::profile, grid,
     TextKey("Preferences", "Gradient lines")},
    {"gradient lines color", "gradientLinesColorWell", Rgb{0.702F, 0.702F, 0.702F}, Kind::color, 4, Tell::profile, grid,
     TextKey("Preferences", "Color of gradient lines"), none, "gradient yes"},
    {"x minor ticks", "xMinorTicksSwitch", true, Kind::onOff, 4, Tell::profile, grid,
     TextKey("Preferences", "Minor ticks of time")},
    {"y minor ticks", "yMinorTicksSwitch", true, Kind::onOff, 4, Tell::profile, grid,
     TextKey("Preferences", "Minor ticks of depth")},
    {"dashed lines", "dashedLinesSwitch", true, Kind::onOff, 4, Tell::profile, grid,
     TextKey("Preferences", "Dashed lines")},
    {"ppO2 line", "ppO2Switch", false, Kind::onOff, 4, Tell::profile, curve, TextKey("Preferences", "ppO2 line")},
    {"stop interval", "stopIntervalField", 3, Kind::number, 5, Tell::deco, decompressionStops,
     TextKey("Preferences", "Stop interval"), TextKey("Preferences", "Meters")},
    {"low GF", "lowGFField", 0, Kind::number, 5, Tell::deco, gradientFactors,
     TextKey("Preferences", "Low gradient factor"), TextKey("Preferences", "Percent")},
    {"high GF", "highGFField", 0, Kind::number, 5, Tell::deco, gradientFactors,
     TextKey("Preferences", "High gradient factor"), TextKey("Preferences", "Percent")},
    {"cell life", "cellLifeField", 18, Kind::number, 6, Tell::rebreather, oxygenCells,
     TextKey("Preferences", "Cell life"), TextKey("Preferences", "Months")},
};

}  // namespace

std::span<const PreferenceKey> preferenceKeys() {
    return keys;
}

QVariant storedValue(const Preferences& preferences, const PreferenceKey& key) {
    const QString name = QString::fromLatin1(key.key);
    switch (key.kind) {
        case PreferenceKind::onOff:
            return preferences.boolean(name);
        case PreferenceKind::number:
            return startsWithNumber(preferences.string(name)) ? shortestText(preferences.real(name)) : QString();
        case PreferenceKind::opacity:
            return preferences.real(name);
        case PreferenceKind::text:
            return preferences.string(name);
        case PreferenceKind::popUp:
            return preferences.integer(name);
        case PreferenceKind::color: {
            const QColor color = preferences.color(name);
            return color.isValid() ? QVariant(color) : resetValue(key);
        }
    }
    Q_UNREACHABLE();
    return {};
}

QVariant resetValue(const PreferenceKey& key) {
    struct Reader {
        QVariant operator()(bool value) const { return value; }
        QVariant operator()(int value) const { return value; }
        QVariant operator()(double value) const { return value; }
        QVariant operator()(const char* value) const { return QString::fromUtf8(value); }
        QVariant operator()(const Rgb& value) const { return value.color(); }
    };
    const QVariant value = std::visit(Reader(), key.reset);
    return key.kind == PreferenceKind::number ? QVariant(value.toString()) : value;
}

void storeValue(Preferences& preferences, const PreferenceKey& key, const QVariant& value) {
    const QString name = QString::fromLatin1(key.key);
    if (key.kind == PreferenceKind::color) {
        preferences.setColor(name, value.value<QColor>());
    } else if (key.kind == PreferenceKind::number && !value.toString().isEmpty()) {
        preferences.set(name, doubleValue(value.toString()));
    } else {
        preferences.set(name, value);
    }
}

}  // namespace tavrel
