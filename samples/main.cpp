#include "base/safefile.h"
#include "base/texts.h"
#include "book/bookentry.h"
#include "catalogue/documenttypes.h"
#include "cli/clidesktop.h"
#include "divelist.h"
#include "logbook/carnet.h"

#include <QFileInfo>
#include <QGuiApplication>
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

/// The type of document whose files have the target's extension; a logbook when none has.
const CatalogueType& typeOf(const QString& target) {
    const QString extension = QFileInfo(target).suffix();
    for (const CatalogueType& type : documentTypes()) {
        if (extension == QLatin1StringView(type.extension)) {
            return type;
        }
    }
    return documentTypes().front();
}

/// Enters the records into the form one after the other, as their user would, and saves them.
Expected<void> makeDocument(const QString& list, const QString& target, Console& console) {
    const auto records = readList(list);
    if (!records) {
        return tl::unexpected(records.error());
    }
    CliDesktop desktop(console);
    const auto book = typeOf(target).make(desktop.desktop());
    for (const ListedDive& record : *records) {
        book->newRecord();
        for (const auto& [field, value] : record.entries) {
            if (auto entered = enterByName(book->form(), field, value); !entered) {
                return entered;
            }
        }
        if (auto* logbook = dynamic_cast<Carnet*>(book.get()); logbook && record.shape) {
            DiveForm& form = logbook->form();
            const int code = form.state().tag(form.controls().samplingRatePopUp);
            form.profile() = drawProfile(*record.shape, samplingIntervals.at(static_cast<std::size_t>(code)));
        }
        book->addRecord();
    }
    return book->saveAs(target);
}

}  // namespace

/// tavrel-samples LIST TARGET: makes a logbook of a list of dives, or a record book of a list of its records. Time
/// zone, language and settings are always the same, so that the same list gives the same bytes everywhere.
int main(int argc, char** argv) {
    const QTemporaryDir settings;
    qputenv("TZ", "UTC");
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("LC_ALL", "C.UTF-8");
    qputenv("XDG_CONFIG_HOME", settings.path().toUtf8());
    const QGuiApplication application(argc, argv);
    setTextLanguage(QStringLiteral("en"));
    if (argc != 3) {
        std::cerr << "tavrel-samples LIST TARGET\n";
        return exitWrongUsage;
    }
    Console console{std::cout, std::cerr};
    const QString list = QString::fromLocal8Bit(argv[1]);
    const QString target = QString::fromLocal8Bit(argv[2]);
    if (const auto made = makeDocument(list, target, console); !made) {
        fail(console, made.error());
    }
    return console.exitCode;
}
