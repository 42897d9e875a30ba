#include "cli/clidesktop.h"

#include "base/printable.h"
#include "desktop/defaults.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QVariant>

#include <ostream>

namespace tavrel {

int ConsoleAlerts::ask(const QString&, const QStringList&) {
    return 0;
}

void ConsoleAlerts::tell(const QString& message) {
    console_.error << toArgument(printable(message)) << '\n';
}

void ConsoleAlerts::fail(const Failure& failure) {
    tavrel::fail(console_, failure);
}

CliDesktop::CliDesktop(Console& console)
    : options_(console.options),
      preferences_({}, Preferences::Keeping::thisRun),
      pickLists_(preferences_),
      alerts_(console),
      clock_(console.options.now),
      desktop_{preferences_, notifications_, pickLists_, alerts_, clock_} {
    applyOptions();
    startDesktop(preferences_, pickLists_);
}

void CliDesktop::applyOptions() {
    for (const auto& [key, value] : options_.preferences) {
        const QJsonDocument object = QJsonDocument::fromJson(value.toUtf8());
        preferences_.set(key, object.isObject() ? QVariant(object.object().toVariantMap()) : QVariant(value));
    }
}

}  // namespace tavrel
