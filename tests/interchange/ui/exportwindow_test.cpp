#include "interchange/ui/exportwindow.h"

#include "interchange/standard/founddive.h"
#include "support/files.h"
#include "support/queuedfiledialogs.h"
#include "support/testdesktop.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>

namespace tavrel {

namespace {

struct Exporting : testing::Test {
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
            carnet, dialogs, [this](const QString& name) { return name == taken; }, nullptr);
        window->show();
    }
    void choose(const char* format) {
        auto* formats = window->findChild<QComboBox*>(QStringLiteral("exportFormat"));
        formats->setCurrentIndex(formats->findData(QLatin1String(format)));
    }
    QStringList losses() {
        QStringList lines;
        const auto* list = window->findChild<QListWidget*>(QStringLiteral("losses"));
        while (list->item(0)->text() == text("Interchange", "Looking for losses")) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
        for (int row = 0; row < list->count(); ++row) {
            lines.append(list->item(row)->text());
        }
        return lines;
    }
    QListWidget* columns() { return window->findChild<QListWidget*>(QStringLiteral("exportColumns")); }
    /// Ticks these and no others.
    void tick(const QStringList& fields) {
        for (int row = 0; row < columns()->count(); ++row) {
            const bool isTicked = fields.contains(columns()->item(row)->data(Qt::UserRole).toString());
            columns()->item(row)->setCheckState(isTicked ? Qt::Checked : Qt::Unchecked);
        }
    }
    QPushButton* button() { return window->findChild<QPushButton*>(QStringLiteral("exportChosen")); }
    /// Presses Export; whether there is a file then.
    bool exports() {
        dialogs.save = {{file}};
        button()->click();
        return QFile::exists(file);
    }

    TestDesktop desktop;
    Carnet carnet{desktop.desktop()};
    QueuedFileDialogs dialogs;
    const QString file = desktop.path(QStringLiteral("out"));
    QString taken;
    QPointer<ExportWindow> window;
};

TEST_F(Exporting, saysWhatIsLostBeforeItWrites) {
    show();
    EXPECT_EQ(losses(), QStringList{QStringLiteral("Tide coefficient [coeff] of 3 dives")});
    for (const char* format : {"csv", "csv-comma"}) {
        choose(format);
        EXPECT_EQ(losses(), QStringList{QStringLiteral("Nothing is lost.")}) << format;
    }
    ASSERT_TRUE(exports());
    EXPECT_EQ(contentsOf(file).count('\n'), 3);
    EXPECT_EQ(dialogs.offered.value(0).extensions, QStringList{QStringLiteral("csv")});
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
    tick({QStringLiteral("date"), QStringLiteral("lieu")});
    EXPECT_EQ(losses().filter(QStringLiteral("coeff")).size(), 1);
    ASSERT_TRUE(exports());
    EXPECT_EQ(contentsOf(file), "date,lieu\r\n2020-01-02,Agay\r\n");
}

TEST_F(Exporting, leavesOtherDocumentsAndItsOwnFileAlone) {
    show();
    taken = file;
    EXPECT_FALSE(exports()) << "told by who knows the open documents";
    taken.clear();
    ASSERT_TRUE(carnet.saveAs(file));
    const QByteArray own = contentsOf(file);
    EXPECT_TRUE(exports());
    EXPECT_EQ(desktop.alerts.failures.size(), 1U);
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(dialogs.proposed, file);
    EXPECT_EQ(contentsOf(file), own);
    window->exportDives();
    EXPECT_TRUE(window->isVisible()) << "no file was chosen";
    delete window;
}

TEST_F(Exporting, offersOnlyDivesThatThereAre) {
    show();
    const auto choices = window->findChildren<QRadioButton*>();
    EXPECT_TRUE(choices[0]->isEnabled());
    EXPECT_FALSE(choices[1]->isEnabled() || choices[2]->isEnabled());
    choose("csv");
    EXPECT_TRUE(button()->isEnabled());
    tick({});
    EXPECT_FALSE(button()->isEnabled());
    delete window;
}

}  // namespace

}  // namespace tavrel
