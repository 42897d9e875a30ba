#pragma once

#include "dives/plongee.h"
#include "drawing/drawing.h"
#include "profile/profiledive.h"
#include "profile/profileeditor.h"

namespace tavrel {

class Carnet;
class Preferences;

/// What the profile's picture needs of a dive.
ProfileDive profileDiveOf(const Plongee& dive);

/// The picture of a dive's profile, drawn as the user wants it.
Drawing profileDrawing(const Plongee& dive, const Preferences& preferences);

/// Replaces series of the dive in the logbook's form, stores the dive and shows it again.
void importProfil(Carnet& carnet, const SeriesTexts& texts);

}  // namespace tavrel
