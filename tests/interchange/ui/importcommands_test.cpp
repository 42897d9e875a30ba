#include "interchange/ui/importcommands.h"

#include "support/files.h"
#include "support/queuedfiledialogs.h"
#include "support/testdesktop.h"

#include <gtest/gtest.h>

namespace tavrel {

namespace {

TEST(ImportCommands, askForAFileAndTellWhatCameIn) {
    TestDesktop desktop;
    Carnet carnet(desktop.desktop());
    LogbookWindow window(carnet, desktop.desktop());
    QueuedFileDialogs dialogs;
    // The window owns it.
    auto* commands = new ImportCommands(carnet, window, desktop.desktop(), dialogs);
    const QString file = desktop.path(QStringLiteral("source.xml"));
    const auto choose = [&](const QByteArray& bytes) {
        writeContents(file, bytes);
        dialogs.open = {file};
    };
    const QByteArray dive = "<DIVE><SAMPLES/><GASES><MIX><TANK/></MIX></GASES></DIVE>";
    const QByteArray gases = "<gases><mix><tank/></mix></gases>";
    struct Case {
        const char* extension;
        QByteArray file;
        int count;
        const char* told;
    };
    const Case cases[] = {
        {"udcf", "<PROFILE><REPGROUP>" + dive + dive + "</REPGROUP></PROFILE>", 2,
         "2 dives were imported. Without a date: 2."},
        {"uddf", "<uddf><profiledata><repetitiongroup><dive/></repetitiongroup></profiledata></uddf>", 3,
         "One dive was imported. Without a date: 1."},
        {nullptr, "<log><repgroup><dive>" + gases + "</dive><dive/></repgroup></log>", 4,
         "One dive was imported. The import stopped at dive 2 of the file: the element gases is missing. Without a "
         "date: 1."},
    };
    const QList<QAction*> actions = window.importActions();
    ASSERT_EQ(actions.size(), std::ssize(cases) + 1);
    for (const Case& it : cases) {
        choose(it.file);
        actions[&it - cases]->trigger();
        QStringList extensions{QStringLiteral("txt"), QStringLiteral("xml")};
        EXPECT_TRUE(dialogs.askedBy && !dialogs.severalAllowed);
        EXPECT_EQ(dialogs.offered.value(0).extensions,
                  it.extension ? extensions << QLatin1String(it.extension) : extensions);
        EXPECT_EQ(carnet.count(), it.count);
        EXPECT_EQ(desktop.alerts.told.value(desktop.alerts.told.size() - 1), QLatin1String(it.told));
    }
    commands->importUDCF();
    EXPECT_EQ(desktop.alerts.told.size(), 3) << "nothing chosen, nothing told";
    choose("no dives");
    commands->importUDDF();
    EXPECT_EQ(desktop.alerts.failures.size(), 1U);
    EXPECT_EQ(carnet.undoStack().count(), 3);
}

}  // namespace

}  // namespace tavrel
