#pragma once

#include "desktop/desktop.h"
#include "logbook/carnet.h"

#include <QLineEdit>

class QMenu;

namespace tavrel {

/// The search field of a logbook: Return selects the dives that hold the text in the field chosen in its menu. The
/// choice is remembered.
class DiveSearchField : public QLineEdit {
    Q_OBJECT

public:
    DiveSearchField(Carnet& carnet, Desktop& desktop, QWidget* parent = nullptr);

    /// The boats, wrecks, notes, computers or buddies to search, by their place in the menu.
    QMenu* menu() const { return menu_; }

private:
    void choose(int item);
    void search();

    Carnet& carnet_;
    Desktop& desktop_;
    QMenu* menu_;
    int chosen_ = 0;
};

}  // namespace tavrel
