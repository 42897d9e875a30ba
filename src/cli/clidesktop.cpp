#include "cli/clidesktop.h"

#include "desktop/defaults.h"

#include <ostream>

namespace tavrel {

int ConsoleAlerts::ask(const QString&, const QStringList&) {
    return 0;
}

void ConsoleAlerts::tell(const QString& message) {
    console_.error << toArgument(message) << '\n';
}

void ConsoleAlerts::fail(const Failure& failure) {
    tavrel::fail(console_, failure);
}

CliDesktop::CliDesktop(Console& console)
    : preferences_({}, Preferences::Keeping::thisRun),
      pickLists_(preferences_),
      alerts_(console),
      desktop_{preferences_, notifications_, pickLists_, alerts_, clock_} {
    startDesktop(preferences_, pickLists_);
}

}  // namespace tavrel
