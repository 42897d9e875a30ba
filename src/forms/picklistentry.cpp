#include "forms/picklistentry.h"

#include "base/texts.h"
#include "desktop/alerts.h"
#include "desktop/picklisttitles.h"
#include "desktop/preferences.h"

#include <algorithm>

namespace tavrel {

namespace {

const QString always = QStringLiteral("always");
const QString never = QStringLiteral("never");

QString newWordsKey(PickList list) {
    return QStringLiteral("new words ") + PickLists::key(list);
}

}  // namespace

NewWords newWordsOf(const Preferences& preferences, PickList list) {
    const QString stored = preferences.string(newWordsKey(list));
    return stored == always ? NewWords::always : stored == never ? NewWords::never : NewWords::ask;
}

void setNewWords(Preferences& preferences, PickList list, NewWords choice) {
    preferences.set(newWordsKey(list), choice == NewWords::always  ? always
                                       : choice == NewWords::never ? never
                                                                   : QStringLiteral("ask"));
}

void offerToPickList(Desktop& desktop, PickList list, const QString& typed) {
    offerToPickList(desktop, list, typed, typed);
}

void offerToPickList(Desktop& desktop, PickList list, const QString& typed, const QString& named) {
    const bool blank = std::all_of(typed.begin(), typed.end(), [](QChar letter) { return letter == u' '; });
    if (blank || desktop.pickLists[list].contains(typed)) {
        return;
    }
    const NewWords choice = newWordsOf(desktop.preferences, list);
    bool added = choice == NewWords::always;
    if (choice == NewWords::ask) {
        desktop.alerts.beep();
        const QString question = textWith("Main", "Add item to ComboBox", named) + QStringLiteral("\n\n") +
                                 textWith("Main", "Add item to which list", text(pickListTitle(list)));
        added = desktop.alerts.ask(question, {text("Main", "Answer yes"), text("Main", "Answer no")}) == 0;
    }
    if (added) {
        desktop.pickLists.append(list, typed);
    }
    desktop.pickLists.sort(list);
    desktop.pickLists.store(list);
    desktop.preferences.synchronize(desktop.alerts);
}

}  // namespace tavrel
