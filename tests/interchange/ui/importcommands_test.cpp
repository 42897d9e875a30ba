#include "interchange/ui/importcommands.h"

#include "support/testdesktop.h"

#include <QFile>
#include <gtest/gtest.h>

namespace tavrel {

namespace {

/// Answers with one file and remembers what was asked.
class AnsweringFileDialogs : public FileDialogs {
public:
    QStringList filesToOpen(QWidget* parent, const QString&, const QList<FileFilter>& filters, bool several) override {
        EXPECT_NE(parent, nullptr);
        EXPECT_FALSE(several);
        offered = filters.value(0).extensions;
        return answer;
    }
    std::optional<FileToSave> fileToSave(QWidget*, const QString&, const QString&, const QList<FileFilter>&) override {
        return {};
    }

    QStringList answer;
    QStringList offered;
};

class ImportWindow : public testing::Test {
protected:
    QString written(const QByteArray& bytes) {
        const QString path = desktop.path(QStringLiteral("source.xml"));
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return path;
    }

    TestDesktop desktop;
    Carnet carnet{desktop.desktop()};
    LogbookWindow window{carnet, desktop.desktop()};
    AnsweringFileDialogs dialogs;
    // The window owns it.
    ImportCommands* commands = new ImportCommands(carnet, window, desktop.desktop(), dialogs);
};

TEST_F(ImportWindow, asksForAFileAndTellsWhatCameIn) {
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
        dialogs.answer = {written(it.file)};
        actions[&it - cases]->trigger();
        QStringList extensions{QStringLiteral("txt"), QStringLiteral("xml")};
        EXPECT_EQ(dialogs.offered, it.extension ? extensions << QLatin1String(it.extension) : extensions);
        EXPECT_EQ(carnet.count(), it.count);
        EXPECT_EQ(desktop.alerts.told.value(desktop.alerts.told.size() - 1), QLatin1String(it.told));
    }
    dialogs.answer = {};
    commands->importUDCF();
    EXPECT_EQ(desktop.alerts.told.size(), 3) << "nothing chosen, nothing told";
    dialogs.answer = {written("no dives")};
    commands->importUDDF();
    EXPECT_EQ(desktop.alerts.failures.size(), 1U);
    EXPECT_EQ(carnet.undoStack().count(), 3);
}

}  // namespace

}  // namespace tavrel
