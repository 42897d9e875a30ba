#include "desktop/defaults.h"

#include "archive/colorarchive.h"
#include "desktop/picklists.h"
#include "desktop/preferences.h"

namespace tavrel {

void registerDefaults(Preferences& preferences) {
    QVariantMap defaults{
        {QStringLiteral("ASC color"), archivedColor(QColor::fromRgbF(1, 1, 0))},
        {QStringLiteral("SLOW color"), archivedColor(QColor::fromRgbF(0, 0, 1))},
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
