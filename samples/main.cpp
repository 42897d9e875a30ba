#include "base/safefile.h"
#include "base/texts.h"
#include "book/book.h"
#include "cli/clidesktop.h"
#include "cli/logbookdriver.h"
#include "divelist.h"
#include "forms/formentry.h"
#include "recordbooks/recordbooks.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QTemporaryDir>

#include <iostream>

namespace {

using namespace tavrel;

Expected<std::vector<ListedDive>> readList(const QString& list) {
    const auto text = FileBytes::open(list);
    if (!text) {
        return tl::unexpected(text.error());
    }
    return readDiveList(QString::fromUtf8(text->bytes()));
}

/// Enters the dives into the form one after the other, as their diver would, and saves them.
Expected<void> makeLogbook(const QString& list, const QString& target, Console& console) {
    const auto dives = readList(list);
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

/// Enters the records of a book of that type in the same way.
Expected<void> makeBook(const BookDescription& description, const QString& list, const QString& target,
                        Console& console) {
    const auto records = readList(list);
    if (!records) {
        return tl::unexpected(records.error());
    }
    CliDesktop desktop(console);
    const auto book = description.make(desktop.desktop());
    BookForm& form = book->form();
    for (const ListedDive& record : *records) {
        book->newRecord();
        for (const auto& [field, value] : record.entries) {
            const int control = form.state().table().find(field.toStdString());
            const auto entered =
                control >= 0 ? enterValue(form.state(), control, value) : form.enterBeside(field, value);
            if (!entered) {
                return entered;
            }
        }
        book->addRecord();
    }
    return book->saveAs(target);
}

/// The record book whose files have the target's extension; null when it is a logbook.
const BookDescription* bookOf(const QString& target) {
    const QString extension = QFileInfo(target).suffix();
    for (const auto& book : recordBooks) {
        if (extension == QLatin1StringView(book().kind.extension)) {
            return &book();
        }
    }
    return nullptr;
}

}  // namespace

/// tavrel-samples LIST TARGET: makes a logbook of a list of dives, or a record book of a list of its records. Time
/// zone, language and settings are always the same, so that the same list gives the same bytes everywhere.
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
    const QString list = QString::fromLocal8Bit(argv[1]);
    const QString target = QString::fromLocal8Bit(argv[2]);
    const BookDescription* book = bookOf(target);
    if (const auto made = book ? makeBook(*book, list, target, console) : makeLogbook(list, target, console); !made) {
        fail(console, made.error());
    }
    return console.exitCode;
}
