#include "interchange/ui/exportwindow.h"

#include "interchange/standard/founddive.h"
#include "support/testdesktop.h"

#include <QAction>
#include <QComboBox>
#include <QCoreApplication>
#include <QFile>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <gtest/gtest.h>

namespace tavrel {

namespace {

class OneFile : public FileDialogs {
public:
    QStringList filesToOpen(QWidget*, const QString&, const QList<FileFilter>&, bool) override { return {}; }
    std::optional<FileToSave> fileToSave(QWidget*, const QString&, const QString& name,
                                         const QList<FileFilter>& filters) override {
        proposal = name;
        extension = filters.value(0).extensions.value(0);
        return file.isEmpty() ? std::nullopt : std::optional(FileToSave{file, 0});
    }
    QString file, proposal, extension;
};

class Exporting : public testing::Test {
protected:
    Exporting() {
        for (int number = 1; number <= 3; ++number) {
            Plongee dive = unknownDive();
            setStart(dive, QDate(2020, 1, number), QTime(10, 0));
            dive.noPlongee = number;
            dive.coeff = 80;
            dive.partenaires = number == 2 ? QStringLiteral("Ann") : QStringLiteral("Bo");
            dive.lieu = number == 2 ? QStringLiteral("Agay") : QString();
            carnet.appendDives(QStringLiteral("add"), {dive});
        }
    }

    void show() {
        window = new ExportWindow(
            carnet, dialogs, [this](const QString& file) { return file == taken; }, nullptr);
        window->show();
    }
    void choose(const char* format) {
        auto* formats = window->findChild<QComboBox*>(QStringLiteral("exportFormat"));
        formats->setCurrentIndex(formats->findData(QLatin1String(format)));
    }
    QStringList losses() {
        while (window->isReporting()) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
        QStringList lines;
        const auto* list = window->findChild<QListWidget*>(QStringLiteral("losses"));
        for (int row = 0; row < list->count(); ++row) {
            lines.append(list->item(row)->text());
        }
        return lines;
    }
    /// Presses Export; the bytes of the file, empty when there is none.
    QByteArray exported() {
        dialogs.file = desktop.path(QStringLiteral("out"));
        QFile::remove(dialogs.file);
        window->findChild<QPushButton*>(QStringLiteral("exportChosen"))->click();
        QFile file(dialogs.file);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    TestDesktop desktop;
    Carnet carnet{desktop.desktop()};
    OneFile dialogs;
    QString taken;
    QPointer<ExportWindow> window;
};

TEST_F(Exporting, saysWhatIsLostBeforeItWrites) {
    show();
    EXPECT_EQ(losses(), QStringList{QStringLiteral("Tide coefficient [coeff] of 3 dives")});
    choose("csv");
    EXPECT_EQ(losses(), QStringList{QStringLiteral("Nothing is lost.")});
    choose("csv-comma");
    EXPECT_EQ(losses(), QStringList{QStringLiteral("Nothing is lost.")});
    EXPECT_EQ(exported().count('\n'), 3);
    EXPECT_EQ(dialogs.extension, u"csv");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(window) << "done";
}

TEST_F(Exporting, writesTheDivesAndColumnsChosen) {
    carnet.find(QStringLiteral("partenaires"), QStringLiteral("Ann"));
    carnet.selectRows({2, 0});
    show();
    const auto choices = window->findChildren<QRadioButton*>();
    ASSERT_EQ(choices.size(), 3);
    EXPECT_EQ(choices[1]->text(), u"Selected (2)");
    EXPECT_EQ(choices[2]->text(), u"Found (1)");
    choices[1]->click();
    EXPECT_EQ(losses(), QStringList{QStringLiteral("Tide coefficient [coeff] of 2 dives")});
    choices[2]->click();
    choose("csv");
    auto* columns = window->findChild<QListWidget*>(QStringLiteral("exportColumns"));
    for (int row = 0; row < columns->count(); ++row) {
        const QString field = columns->item(row)->data(Qt::UserRole).toString();
        columns->item(row)->setCheckState(field == u"date" || field == u"lieu" ? Qt::Checked : Qt::Unchecked);
    }
    EXPECT_EQ(losses().filter(QStringLiteral("coeff")).size(), 1);
    EXPECT_EQ(exported(), "date,lieu\r\n2020-01-02,Agay\r\n");
}

TEST_F(Exporting, leavesOtherDocumentsAndItsOwnFileAlone) {
    const QString own = desktop.path(QStringLiteral("out"));
    show();
    taken = own;
    EXPECT_EQ(exported(), QByteArray()) << "told by who knows the open documents";
    taken.clear();
    ASSERT_TRUE(carnet.saveAs(own));
    dialogs.file = own;
    window->exportDives();
    EXPECT_EQ(desktop.alerts.failures.size(), 1U);
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(dialogs.proposal, own);
    EXPECT_TRUE(carnet.revert());
    dialogs.file.clear();
    window->exportDives();
    EXPECT_TRUE(window->isVisible()) << "no file was chosen";
    delete window;
}

TEST_F(Exporting, offersOnlyDivesThatThereAre) {
    show();
    const auto choices = window->findChildren<QRadioButton*>();
    EXPECT_TRUE(choices[0]->isEnabled());
    EXPECT_FALSE(choices[1]->isEnabled());
    EXPECT_FALSE(choices[2]->isEnabled());
    choose("csv");
    auto* columns = window->findChild<QListWidget*>(QStringLiteral("exportColumns"));
    for (int row = 0; row < columns->count(); ++row) {
        columns->item(row)->setCheckState(Qt::Unchecked);
    }
    EXPECT_FALSE(window->findChild<QPushButton*>(QStringLiteral("exportChosen"))->isEnabled());
    delete window;
}

}  // namespace

}  // namespace tavrel
