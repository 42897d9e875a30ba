#include "app/preferencetable.h"

#include "base/numbers.h"

namespace tavrel {

namespace {

/// The columns that a chosen text is looked for in, by tag.
constexpr Title themes[] = {Title("Carnet", "Column place"), Title("Carnet", "Column site"),
                            Title("Carnet", "Column visibility")};

using Kind = PreferenceKind;
using Tell = PreferenceNotice;
constexpr Title none;
constexpr std::span<const Title> noChoices;

constexpr Title newDives("Preferences", "New dives");
constexpr Title units("Preferences", "Units");
constexpr Title depthAndTime("Preferences", "Depth and time");
constexpr Title chosenText("Preferences", "Chosen text");
constexpr Title coldWater("Preferences", "Cold water");
constexpr Title kindsOfDives("Preferences", "Kinds of dives");
constexpr Title columns("Preferences", "Columns");
constexpr Title curve("Preferences", "Curve");
constexpr Title background("Preferences", "Background");
constexpr Title grid("Preferences", "Grid");
constexpr Title decompressionStops("Preferences", "Decompression stops");
constexpr Title gradientFactors("Preferences", "Gradient factors");
constexpr Title oxygenCells("Preferences", "Oxygen cells");

const PreferenceKey keys[] = {
    {"tank volume", "volumeBlocField", 15, Kind::number, 1, Tell::none, newDives, Title("Preferences", "Tank volume"),
     Title("Preferences", "Litres")},
    {"tank pressure", "pressionBlocField", 230, Kind::number, 1, Tell::none, newDives,
     Title("Preferences", "Tank pressure"), Title("Preferences", "Bar")},
    {"us units", "usUnitsSwitch", false, Kind::onOff, 1, Tell::all, units, Title("Preferences", "US units")},
    {"display units", "displayUnitsSwitch", true, Kind::onOff, 1, Tell::tableView, units,
     Title("Preferences", "Units in the table")},
    {"depth time in color", "tableColorSwitch", true, Kind::onOff, 2, Tell::tableView, depthAndTime,
     Title("Preferences", "Depth and time in color")},
    {"depth color", "profondeurWell", Rgb{0.5F, 0, 0.5F}, Kind::color, 2, Tell::tableView, depthAndTime,
     Title("Preferences", "Color of depths"), none, "depth time in color"},
    {"time color", "dureeWell", Rgb{0, 0, 0.6F}, Kind::color, 2, Tell::tableView, depthAndTime,
     Title("Preferences", "Color of times"), none, "depth time in color"},
    {"color item", "itemColorSwitch", false, Kind::onOff, 2, Tell::tableView, chosenText,
     Title("Preferences", "Chosen text in color")},
    {"coloured text", "textInColorField", "", Kind::text, 2, Tell::tableView, chosenText,
     Title("Preferences", "Text to highlight"), none, "color item"},
    {"coloured theme", "themeInColorPopUp", 0, Kind::popUp, 2, Tell::tableView, chosenText,
     Title("Preferences", "Column to highlight"), none, "color item", themes},
    {"low temperature in color", "lowTemperatureSwitch", false, Kind::onOff, 2, Tell::tableView, coldWater,
     Title("Preferences", "Low temperatures in color")},
    {"low temperature value", "tempValueField", "", Kind::number, 2, Tell::tableView, coldWater,
     Title("Preferences", "Low temperature"), Title("Carnet", "Degree Celsius"), "low temperature in color"},
    {"low temperature color", "lowTemperatureWell", Rgb{0, 0, 1}, Kind::color, 2, Tell::tableView, coldWater,
     Title("Preferences", "Color of low temperatures"), none, "low temperature in color"},
    {"mix in color", "mixInColorSwitch", true, Kind::onOff, 2, Tell::tableView, kindsOfDives,
     Title("Preferences", "Mixes in color")},
    {"foreign in color", "foreignInColorSwitch", true, Kind::onOff, 2, Tell::tableView, kindsOfDives,
     Title("Preferences", "Dives abroad in color")},
    {"foreign color", "foreignWell", Rgb{0.725F, 1, 0.674F}, Kind::color, 2, Tell::tableView, kindsOfDives,
     Title("Preferences", "Color of dives abroad")},
    {"country code", "countryCodeField", "FRA", Kind::text, 1, Tell::tableView, newDives,
     Title("Preferences", "Home country code")},
    {"column numero", "numeroColumnSwitch", true, Kind::onOff, 3, Tell::columns, columns,
     Title("Carnet", "Column number")},
    {"column date", "dateColumnSwitch", true, Kind::onOff, 3, Tell::columns, columns, Title("Carnet", "Column date")},
    {"column lieu", "lieuColumnSwitch", true, Kind::onOff, 3, Tell::columns, columns, Title("Carnet", "Column place")},
    {"column site", "siteColumnSwitch", true, Kind::onOff, 3, Tell::columns, columns, Title("Carnet", "Column site")},
    {"column heure", "heureColumnSwitch", true, Kind::onOff, 3, Tell::columns, columns,
     Title("Carnet", "Column time of day")},
    {"column profondeur", "profondeurColumnSwitch", true, Kind::onOff, 3, Tell::columns, columns,
     Title("Carnet", "Column depth")},
    {"column temps", "tempsColumnSwitch", true, Kind::onOff, 3, Tell::columns, columns,
     Title("Carnet", "Column dive time")},
    {"column temp eau", "tempEauColumnSwitch", true, Kind::onOff, 3, Tell::columns, columns,
     Title("Carnet", "Column water")},
    {"column deco", "decoColumnSwitch", true, Kind::onOff, 3, Tell::columns, columns,
     Title("Carnet", "Column decompression")},
    {"column coeff", "coeffColumnSwitch", true, Kind::onOff, 3, Tell::columns, columns, Title("Carnet", "Column tide")},
    {"column visibilite", "visibiliteColumnSwitch", true, Kind::onOff, 3, Tell::columns, columns,
     Title("Carnet", "Column visibility")},
    {"column_epave", "epaveColumnSwitch", false, Kind::onOff, 3, Tell::columns, columns,
     Title("Carnet", "Column wreck"), none, nullptr, noChoices, false},
    {"column inoubliable", "inoubliableColumnSwitch", true, Kind::onOff, 3, Tell::columns, columns,
     Title("Carnet", "Column rating")},
    {"column gaz", "gazColumnSwitch", false, Kind::onOff, 3, Tell::columns, columns, Title("Carnet", "Column gas")},
    {"column scaph", "scaphColumnSwitch", false, Kind::onOff, 3, Tell::columns, columns,
     Title("Carnet", "Column apparatus")},
    {"plot color", "plotColorWell", Rgb{1, 0.5F, 0}, Kind::color, 4, Tell::profile, curve,
     Title("Preferences", "Plot color")},
    {"background color", "backgroundColorWell", Rgb{0.855F, 0.49F, 0.149F}, Kind::color, 4, Tell::profile, background,
     Title("Preferences", "Background color")},
    {"alpha background color", "alphaBackgroundField", 0.2, Kind::opacity, 4, Tell::profile, background,
     Title("Preferences", "Opacity")},
    {"fill plot", "fillSwitch", true, Kind::onOff, 4, Tell::profile, curve, Title("Preferences", "Fill the curve")},
    {"fill color", "fillColorWell", Rgb{0.1F, 0.1F, 1}, Kind::color, 4, Tell::profile, curve,
     Title("Preferences", "Fill color"), none, "fill plot"},
    {"alpha fill color", "alphaFillField", 0.4, Kind::opacity, 4, Tell::profile, curve, Title("Preferences", "Opacity"),
     none, "fill plot"},
    {"gradient yes", "gradientYesSwitch", true, Kind::onOff, 4, Tell::profile, grid,
     Title("Preferences", "Gradient lines")},
    {"gradient lines color", "gradientLinesColorWell", Rgb{0.702F, 0.702F, 0.702F}, Kind::color, 4, Tell::profile, grid,
     Title("Preferences", "Color of gradient lines"), none, "gradient yes"},
    {"x minor ticks", "xMinorTicksSwitch", true, Kind::onOff, 4, Tell::profile, grid,
     Title("Preferences", "Minor ticks of time")},
    {"y minor ticks", "yMinorTicksSwitch", true, Kind::onOff, 4, Tell::profile, grid,
     Title("Preferences", "Minor ticks of depth")},
    {"dashed lines", "dashedLinesSwitch", true, Kind::onOff, 4, Tell::profile, grid,
     Title("Preferences", "Dashed lines")},
    {"ppO2 line", "ppO2Switch", false, Kind::onOff, 4, Tell::profile, curve, Title("Preferences", "ppO2 line")},
    {"stop interval", "stopIntervalField", 3, Kind::number, 5, Tell::deco, decompressionStops,
     Title("Preferences", "Stop interval"), Title("Preferences", "Meters")},
    {"low GF", "lowGFField", 0, Kind::number, 5, Tell::deco, gradientFactors,
     Title("Preferences", "Low gradient factor"), Title("Preferences", "Percent")},
    {"high GF", "highGFField", 0, Kind::number, 5, Tell::deco, gradientFactors,
     Title("Preferences", "High gradient factor"), Title("Preferences", "Percent")},
    {"cell life", "cellLifeField", 18, Kind::number, 6, Tell::rebreather, oxygenCells,
     Title("Preferences", "Cell life"), Title("Preferences", "Months")},
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
