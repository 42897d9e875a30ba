#pragma once

#include "desktop/ui/customtoolbar.h"

#include <QString>

namespace tavrel {

class Carnet;

/// The toolbar of the logbook window ("tableViewToolbar").
const ToolBarDescription& setupToolbarCarnet();
/// The toolbar of the dive edit window ("editWindowToolbar"). It starts with the two imports, which its palette does
/// not offer again once they were taken out.
const ToolBarDescription& setupToolbarEdit();

/// Whether an item of either toolbar can be used: printing, inserting, deleting, the profile, the card and the
/// statistics need at least one dive.
bool validateToolbarItem(const Carnet& carnet, const QString& identifier);

}  // namespace tavrel
