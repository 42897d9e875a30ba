#pragma once

#include "dives/plongee.h"
#include "drawing/drawing.h"
#include "profile/profiledive.h"
#include "profile/profileeditor.h"

namespace tavrel {

class Carnet;
class DiveForm;
class Preferences;

/// What the profile's picture needs of a dive.
ProfileDive profileDiveOf(const Plongee& dive);
/// The same of the dive in the form, as it stands there.
ProfileDive profileDiveOf(const DiveForm& form);

/// The picture of a dive's profile, drawn as the user wants it.
Drawing profileDrawing(const Plongee& dive, const Preferences& preferences);
/// What the picture of a dive of that number is called.
QString profileTitle(qint32 number);

/// Replaces series of the dive in the logbook's form, stores the dive and shows it again. A new dive, which is stored
/// nowhere yet, only gets them in the form.
void importProfil(Carnet& carnet, const SeriesTexts& texts);

}  // namespace tavrel
