#pragma once

#include "cli/commandline.h"
#include "desktop/alerts.h"
#include "desktop/clock.h"
#include "desktop/desktop.h"
#include "desktop/notificationcentre.h"
#include "desktop/picklists.h"
#include "desktop/preferences.h"

#include <optional>
#include <utility>
#include <vector>

namespace tavrel {

/// Speaks on standard error. Whoever typed a command meant it: every question is answered with its affirmative button.
class ConsoleAlerts : public Alerts {
public:
    explicit ConsoleAlerts(Console& console) : console_(console) {}

    void beep() override {}
    int ask(const QString& message, const QStringList& buttons) override;
    void tell(const QString& message) override;
    void fail(const Failure& failure) override;

private:
    Console& console_;
};

/// The clock of a run.
class RunClock : public Clock {
public:
    explicit RunClock(std::optional<QDateTime> set) : set_(std::move(set)) {}
    QDateTime now() const override { return set_ ? *set_ : Clock::now(); }

private:
    std::optional<QDateTime> set_;
};

/// What documents live on in the command line: the user's preferences as they stand, and those of the run's options,
/// none of which any command stores.
class CliDesktop {
public:
    explicit CliDesktop(Console& console);

    Desktop& desktop() { return desktop_; }
    /// Puts the settings of the run's options over all others, those included that a document set when it was made.
    void applyOptions();

private:
    const RunOptions& options_;
    Preferences preferences_;
    NotificationCentre notifications_;
    PickLists pickLists_;
    ConsoleAlerts alerts_;
    RunClock clock_;
    Desktop desktop_;
};

}  // namespace tavrel
