#pragma once

namespace tavrel {

class Alerts;
class Clock;
class NotificationCentre;
class PickLists;
class Preferences;

/// What a document needs of the desktop it lives on. The application, the command line and the tests each build their
/// own.
struct Desktop {
    Preferences& preferences;
    NotificationCentre& notifications;
    PickLists& pickLists;
    Alerts& alerts;
    const Clock& clock;
};

}  // namespace tavrel
