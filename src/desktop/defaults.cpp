#include "desktop/defaults.h"

#include "desktop/picklists.h"
#include "desktop/preferences.h"

namespace tavrel {

void registerDefaults(Preferences& preferences) {
    const QByteArray blue = archivedColor(QColor::fromRgbF(0, 0, 1));
    QVariantMap defaults{
        {QStringLiteral("depth time in color"), true},
        {QStringLiteral("color item"), false},
        {QStringLiteral("coloured text"), QString()},
        {QStringLiteral("coloured theme"), false},
        {QStringLiteral("display units"), true},
        {QStringLiteral("low temperature in color"), false},
        {QStringLiteral("low temperature value"), QString()},
        {QStringLiteral("low temperature color"), blue},
        {QStringLiteral("depth color"), blue},
        {QStringLiteral("time color"), blue},
        {QStringLiteral("fill plot"), true},
        {QStringLiteral("plot color"), archivedColor(QColor::fromRgbF(1, 0, 0))},
        {QStringLiteral("fill color"), blue},
        {QStringLiteral("alpha fill color"), QStringLiteral("0.5")},
        {QStringLiteral("background color"), archivedWhite(0.5F)},
        {QStringLiteral("alpha background color"), QStringLiteral("0.5")},
        {QStringLiteral("ASC color"), archivedColor(QColor::fromRgbF(1, 1, 0))},
        {QStringLiteral("SLOW color"), blue},
        {QStringLiteral("x minor ticks"), true},
        {QStringLiteral("y minor ticks"), true},
        // The readers ask for "stop interval": a stop interval exists only once the user has saved one.
        {QStringLiteral("stop_interval"), QStringLiteral("3")},
    };
    for (int index = 0; index < pickListCount; ++index) {
        const auto list = static_cast<PickList>(index);
        if (list == PickList::sacDePlongee) {
            continue;
        }
        const auto source = list == PickList::tableauDesActivites ? PickList::tableauDesPrestations : list;
        defaults.insert(PickLists::key(list), preferences.strings(PickLists::key(source)));
    }
    preferences.registerDefaults(defaults);
}

void startDesktop(Preferences& preferences, PickLists& pickLists) {
    pickLists.fill();
    registerDefaults(preferences);
}

}  // namespace tavrel
