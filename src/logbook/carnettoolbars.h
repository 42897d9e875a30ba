#pragma once

#include "desktop/toolbar.h"

namespace tavrel {

/// The toolbar of the logbook window ("tableViewToolbar").
const ToolBarDescription& setupToolbarCarnet();
/// The toolbar of the dive edit window ("editWindowToolbar"). It starts with the two imports, which its palette does
/// not offer again once they were taken out.
const ToolBarDescription& setupToolbarEdit();

}  // namespace tavrel
