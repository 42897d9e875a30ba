#include "interchange/ui/importcommands.h"

#include "support/files.h"
#include "support/queuedfiledialogs.h"
#include "support/testdesktop.h"

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
    const std::tuple<QString, QByteArray, int, const char*> cases[] = {
        {QStringLiteral("udcf"), "<PROFILE><REPGROUP>" + dive + dive + "</REPGROUP></PROFILE>", 2,
         "2 dives were imported. Without a date: 2."},
        {QStringLiteral("uddf"), "<uddf><profiledata><repetitiongroup><dive/></repetitiongroup></profiledata></uddf>",
         3, "One dive was imported. Without a date: 1."},
        {{},
         "<log><repgroup><dive>" + gases + "</dive><dive/></repgroup></log>",
         4,
         "One dive was imported. The import stopped at dive 2 of the file: the element gases is missing. Without a "
         "date: 1."},
    };
    const QList<QAction*> actions = window.importActions();
    ASSERT_EQ(actions.size(), std::ssize(cases) + 1);
    for (qsizetype place = 0; place < std::ssize(cases); ++place) {
        const auto& [extension, bytes, count, told] = cases[place];
        choose(bytes);
        actions[place]->trigger();
        const QStringList extensions{QStringLiteral("txt"), QStringLiteral("xml")};
        EXPECT_TRUE(dialogs.askedBy && !dialogs.severalAllowed);
        EXPECT_EQ(dialogs.offered.value(0).extensions,
                  extension.isEmpty() ? extensions : extensions + QStringList{extension});
        EXPECT_EQ(carnet.count(), count);
        EXPECT_EQ(desktop.alerts.told.last(), QLatin1String(told));
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
