#pragma once

namespace tavrel {

class PickLists;
class Preferences;

/// Registers the defaults that no Setting states: of keys that only other programs read, and of the pick lists, whose
/// keys default to the lists stored at this moment, and the activities to the services.
void registerDefaults(Preferences& preferences);

/// What comes before any document or window, in this order: the shared lists are filled from what is stored, then the
/// defaults are registered.
void startDesktop(Preferences& preferences, PickLists& pickLists);

}  // namespace tavrel
