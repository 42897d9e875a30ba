#pragma once

namespace tavrel {

class PickLists;
class Preferences;

/// Registers the default of every setting that has one. The keys of the pick lists default to the lists stored at this
/// moment, and the activities to the services.
void registerDefaults(Preferences& preferences);

/// What comes before any document or window, in this order: the shared lists are filled from what is stored, then the
/// defaults are registered.
void startDesktop(Preferences& preferences, PickLists& pickLists);

}  // namespace tavrel
