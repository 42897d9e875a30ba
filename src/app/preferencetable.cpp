#include "app/preferencetable.h"

#include "base/decimalsign.h"
#include "base/numbers.h"
#include "desktop/commonsettings.h"
#include "desktop/preferences.h"
#include "documents/documentsettings.h"
#include "logbook/divecolumns.h"
#include "logbook/logbooksettings.h"
#include "profile/profilesettings.h"

#include <QColor>

#include <algorithm>
#include <iterator>
#include <vector>

namespace tavrel {

namespace {

/// The columns that a chosen text is looked for in, by tag.
constexpr Title themes[] = {Title("Carnet", "Column place"), Title("Carnet", "Column site"),
                            Title("Carnet", "Column visibility")};

using Tell = PreferenceNotice;
constexpr Title none;
constexpr std::span<const Title> noChoices;

constexpr Title newDives("Preferences", "New dives");
constexpr Title files("Preferences", "Files");
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

/// The name of a column's switch by its setting: "column temp eau" has the "tempEauColumnSwitch".
std::string switchName(const Setting<bool>& shown) {
    const QStringList words = QString::fromLatin1(shown.key).replace(u'_', u' ').split(u' ');
    QString name = words.at(1);
    for (const QString& word : words.mid(2)) {
        name += word.front().toUpper() + word.mid(1);
    }
    return name.toStdString() + "ColumnSwitch";
}

/// The switch of a column of the logbook's table. One whose setting a reset leaves alone is not kept.
PreferenceKey columnSwitch(const Column& column) {
    const bool isKept = column.shown->reset.has_value();
    return {column.shown,
            switchName(*column.shown),
            3,
            Tell::columns,
            columns,
            column.title,
            none,
            nullptr,
            noChoices,
            isKept,
            isKept ? none : Title("Preferences", "Tip wreck column")};
}

std::vector<PreferenceKey> makeKeys() {
    std::vector<PreferenceKey> keys{
        {&settings::tankVolume, "volumeBlocField", 1, Tell::none, newDives, Title("Preferences", "Tank volume"),
         Title("Preferences", "Litres")},
        {&settings::tankPressure, "pressionBlocField", 1, Tell::none, newDives, Title("Preferences", "Tank pressure"),
         Title("Preferences", "Bar")},
        {&settings::newDiveFromLast, "newDiveFromLastSwitch", 1, Tell::none, newDives,
         Title("Preferences", "New dive from last"), none, nullptr, noChoices, true,
         Title("Preferences", "Note new dive from last")},
        {&settings::keepsBackup, "keepBackupSwitch", 1, Tell::none, files, Title("Preferences", "Keep backup")},
        {&settings::usUnits, "usUnitsSwitch", 1, Tell::all, units, Title("Preferences", "US units"), none, nullptr,
         noChoices, true, Title("Preferences", "Note US units")},
        {&settings::displayUnits, "displayUnitsSwitch", 1, Tell::tableView, units,
         Title("Preferences", "Units in the table")},
        {&settings::depthTimeInColor, "tableColorSwitch", 2, Tell::tableView, depthAndTime,
         Title("Preferences", "Depth and time in color")},
        {&settings::depthColor, "profondeurWell", 2, Tell::tableView, depthAndTime,
         Title("Preferences", "Color of depths"), none, &settings::depthTimeInColor},
        {&settings::timeColor, "dureeWell", 2, Tell::tableView, depthAndTime, Title("Preferences", "Color of times"),
         none, &settings::depthTimeInColor},
        {&settings::colorItem, "itemColorSwitch", 2, Tell::tableView, chosenText,
         Title("Preferences", "Chosen text in color")},
        {&settings::colouredText, "textInColorField", 2, Tell::tableView, chosenText,
         Title("Preferences", "Text to highlight"), none, &settings::colorItem},
        {&settings::colouredTheme, "themeInColorPopUp", 2, Tell::tableView, chosenText,
         Title("Preferences", "Column to highlight"), none, &settings::colorItem, themes},
        {&settings::lowTemperatureInColor, "lowTemperatureSwitch", 2, Tell::tableView, coldWater,
         Title("Preferences", "Low temperatures in color")},
        {&settings::lowTemperatureValue, "tempValueField", 2, Tell::tableView, coldWater,
         Title("Preferences", "Low temperature"), Title("Carnet", "Degree Celsius"), &settings::lowTemperatureInColor},
        {&settings::lowTemperatureColor, "lowTemperatureWell", 2, Tell::tableView, coldWater,
         Title("Preferences", "Color of low temperatures"), none, &settings::lowTemperatureInColor},
        {&settings::mixInColor, "mixInColorSwitch", 2, Tell::tableView, kindsOfDives,
         Title("Preferences", "Mixes in color")},
        {&settings::foreignInColor, "foreignInColorSwitch", 2, Tell::tableView, kindsOfDives,
         Title("Preferences", "Dives abroad in color")},
        {&settings::foreignColor, "foreignWell", 2, Tell::tableView, kindsOfDives,
         Title("Preferences", "Color of dives abroad")},
        {&settings::countryCode, "countryCodeField", 1, Tell::tableView, newDives,
         Title("Preferences", "Home country code")},
    };
    for (const Column& column : diveColumns()) {
        keys.push_back(columnSwitch(column));
    }
    const PreferenceKey further[] = {
        {&settings::plotColor, "plotColorWell", 4, Tell::profile, curve, Title("Preferences", "Plot color")},
        {&settings::backgroundColor, "backgroundColorWell", 4, Tell::profile, background,
         Title("Preferences", "Background color")},
        {&settings::alphaBackgroundColor, "alphaBackgroundField", 4, Tell::profile, background,
         Title("Preferences", "Opacity")},
        {&settings::fillPlot, "fillSwitch", 4, Tell::profile, curve, Title("Preferences", "Fill the curve")},
        {&settings::fillColor, "fillColorWell", 4, Tell::profile, curve, Title("Preferences", "Fill color"), none,
         &settings::fillPlot},
        {&settings::alphaFillColor, "alphaFillField", 4, Tell::profile, curve, Title("Preferences", "Opacity"), none,
         &settings::fillPlot},
        {&settings::gradientYes, "gradientYesSwitch", 4, Tell::profile, grid, Title("Preferences", "Gradient lines")},
        {&settings::gradientLinesColor, "gradientLinesColorWell", 4, Tell::profile, grid,
         Title("Preferences", "Color of gradient lines"), none, &settings::gradientYes},
        {&settings::xMinorTicks, "xMinorTicksSwitch", 4, Tell::profile, grid,
         Title("Preferences", "Minor ticks of time")},
        {&settings::yMinorTicks, "yMinorTicksSwitch", 4, Tell::profile, grid,
         Title("Preferences", "Minor ticks of depth")},
        {&settings::dashedLines, "dashedLinesSwitch", 4, Tell::profile, grid, Title("Preferences", "Dashed lines")},
        {&settings::ppO2Line, "ppO2Switch", 4, Tell::profile, curve, Title("Preferences", "ppO2 line")},
        {&settings::profileShadow, "profileShadowSwitch", 4, Tell::profile, curve,
         Title("Preferences", "Curve shadow")},
        {&settings::stopInterval, "stopIntervalField", 5, Tell::deco, decompressionStops,
         Title("Preferences", "Stop interval"), Title("Preferences", "Meters")},
        {&settings::lowGF, "lowGFField", 5, Tell::deco, gradientFactors, Title("Preferences", "Low gradient factor"),
         Title("Preferences", "Percent")},
        {&settings::highGF, "highGFField", 5, Tell::deco, gradientFactors, Title("Preferences", "High gradient factor"),
         Title("Preferences", "Percent")},
        {&settings::cellLife, "cellLifeField", 6, Tell::rebreather, oxygenCells, Title("Preferences", "Cell life"),
         Title("Preferences", "Months")},
    };
    keys.insert(keys.end(), std::begin(further), std::end(further));
    return keys;
}

}  // namespace

std::span<const PreferenceKey> preferenceKeys() {
    static const std::vector<PreferenceKey> keys = makeKeys();
    return keys;
}

const char* PreferenceKey::key() const {
    return keyOf(setting);
}

PreferenceKind PreferenceKey::kind() const {
    struct Reader {
        PreferenceKind operator()(const Setting<bool>*) const { return PreferenceKind::onOff; }
        PreferenceKind operator()(const Setting<qint32>*) const { return PreferenceKind::number; }
        PreferenceKind operator()(const Setting<double>*) const { return PreferenceKind::opacity; }
        PreferenceKind operator()(const Setting<QString>*) const { return PreferenceKind::text; }
        PreferenceKind operator()(const Setting<QColor>*) const { return PreferenceKind::color; }
    };
    return choices.empty() ? std::visit(Reader(), setting) : PreferenceKind::popUp;
}

QVariant storedValue(const Preferences& preferences, const PreferenceKey& key) {
    const QString name = QString::fromLatin1(key.key());
    if (key.kind() == PreferenceKind::number) {
        return startsWithNumber(preferences.string(name)) ? shortestText(preferences.real(name)) : QString();
    }
    const QVariant value =
        std::visit([&](const auto* setting) { return QVariant(preferences.get(*setting)); }, key.setting);
    const bool isMissingColor = key.kind() == PreferenceKind::color && !value.value<QColor>().isValid();
    return isMissingColor ? resetValue(key) : value;
}

QVariant resetValue(const PreferenceKey& key) {
    const auto value = [](const auto* setting) {
        return setting->reset ? QVariant(valueOf(*setting->reset)) : QVariant();
    };
    const QVariant reset = std::visit(value, key.setting);
    return key.kind() == PreferenceKind::number ? QVariant(reset.toString()) : reset;
}

QString valueInWords(const PreferenceKey& key, const QVariant& value) {
    QString nothing = QStringLiteral("–");
    switch (key.kind()) {
        case PreferenceKind::onOff:
            return value.toBool() ? text("Preferences", "On") : text("Preferences", "Off");
        case PreferenceKind::color:
            return value.value<QColor>().name();
        case PreferenceKind::popUp: {
            const auto tag = static_cast<std::size_t>(value.toInt());
            return text(key.choices[std::min(tag, key.choices.size() - 1)]);
        }
        case PreferenceKind::opacity:
            return withDecimalSign(shortestText(value.toDouble()));
        case PreferenceKind::number:
        case PreferenceKind::text:
            break;
    }
    const QString words = withDecimalSign(value.toString());
    if (words.isEmpty()) {
        return nothing;
    }
    return key.unit.isEmpty() ? words : words + u' ' + fillFormat(text(key.unit), {});
}

void storeValue(Preferences& preferences, const PreferenceKey& key, const QVariant& value) {
    const QString name = QString::fromLatin1(key.key());
    if (key.kind() == PreferenceKind::number) {
        const QString typed = value.toString();
        preferences.set(name, typed.isEmpty() ? QVariant(typed) : QVariant(doubleValue(typed)));
        return;
    }
    std::visit([&]<class Value>(const Setting<Value>* setting) { preferences.set(*setting, value.value<Value>()); },
               key.setting);
}

}  // namespace tavrel
