#include "base/safefile.h"
#include "base/texts.h"
#include "cli/clidesktop.h"
#include "cli/logbookdriver.h"
#include "divelist.h"

#include <QCoreApplication>
#include <QTemporaryDir>

#include <iostream>

namespace {

using namespace tavrel;

/// Enters the dives into the form one after the other, as their diver would, and saves them.
Expected<void> makeLogbook(const QString& list, const QString& target, Console& console) {
    const auto text = FileBytes::open(list);
    if (!text) {
        return tl::unexpected(text.error());
    }
    const auto dives = readDiveList(QString::fromUtf8(text->bytes()));
    if (!dives) {
        return tl::unexpected(dives.error());
    }
    CliDesktop desktop(console);
    LogbookDriver logbook(desktop.desktop());
    for (const ListedDive& dive : *dives) {
        logbook.beginRecord();
        for (const auto& [field, value] : dive.entries) {
            if (auto entered = logbook.enter(field, value); !entered) {
                return entered;
            }
        }
        if (dive.shape) {
            const DiveForm& form = logbook.carnet().form();
            const int code = form.state().tag(form.controls().samplingRatePopUp);
            const int interval = samplingIntervals.at(static_cast<std::size_t>(code));
            logbook.carnet().form().profile() = drawProfile(*dive.shape, interval);
        }
        logbook.addRecord();
    }
    return logbook.document().saveAs(target);
}

}  // namespace

/// tavrel-samples LIST TARGET: makes a logbook of a list of dives. Time zone, language and settings are always the
/// same, so that the same list gives the same bytes everywhere.
int main(int argc, char** argv) {
    const QTemporaryDir settings;
    qputenv("TZ", "UTC");
    qputenv("LC_ALL", "C.UTF-8");
    qputenv("XDG_CONFIG_HOME", settings.path().toUtf8());
    const QCoreApplication application(argc, argv);
    setTextLanguage(QStringLiteral("en"));
    if (argc != 3) {
        std::cerr << "tavrel-samples LIST TARGET\n";
        return exitWrongUsage;
    }
    Console console{std::cout, std::cerr};
    if (const auto made = makeLogbook(QString::fromLocal8Bit(argv[1]), QString::fromLocal8Bit(argv[2]), console);
        !made) {
        fail(console, made.error());
    }
    return console.exitCode;
}
