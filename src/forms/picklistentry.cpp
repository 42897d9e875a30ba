#include "forms/picklistentry.h"

#include "base/texts.h"
#include "desktop/alerts.h"
#include "desktop/preferences.h"

#include <algorithm>

namespace tavrel {

void offerToPickList(Desktop& desktop, PickList list, const QString& typed) {
    offerToPickList(desktop, list, typed, typed);
}

void offerToPickList(Desktop& desktop, PickList list, const QString& typed, const QString& named) {
    const bool blank = std::all_of(typed.begin(), typed.end(), [](QChar letter) { return letter == u' '; });
    if (blank || desktop.pickLists[list].contains(typed)) {
        return;
    }
    desktop.alerts.beep();
    const int answer =
        desktop.alerts.ask(textWith("Main", "Add item to ComboBox", named), {text("Main", "Yes"), text("Main", "No")});
    if (answer == 0) {
        desktop.pickLists.append(list, typed);
    }
    desktop.pickLists.sort(list);
    desktop.pickLists.store(list);
    desktop.preferences.synchronize(desktop.alerts);
}

}  // namespace tavrel
