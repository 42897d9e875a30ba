#include "logbook/ui/divewindows.h"

#include "book/ui/bookeditwindow.h"
#include "book/ui/cardwindow.h"
#include "dives/statistics.h"
#include "dives/ui/cardchoice.h"
#include "dives/ui/consumptionsheet.h"
#include "dives/ui/statisticswindow.h"
#include "logbook/ui/divedetails.h"
#include "logbook/ui/logbookwindow.h"
#include "logbook/ui/profilecommands.h"
#include "profile/ui/profileview.h"
#include "support/records.h"
#include "support/testdesktop.h"

#include <QComboBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSplitter>
#include <QTest>

namespace tavrel {

namespace {

/// A logbook of three dives in its window, none selected.
struct DiveWindowsTest : testing::Test {
    DiveWindowsTest() : carnet(desktop.desktop()), window(newWindow()) {
        carnet.appendDives(
            QStringLiteral("Add"),
            {filled<Plongee>("noPlongee=1|profondeur=10|lieu=Lake|notes=Two groupers|profilProfondeur=0,10,0"),
             filled<Plongee>("noPlongee=2|profondeur=20|lieu=Reef|pressionDepart=200|temps=40"),
             filled<Plongee>("noPlongee=3|profondeur=30|lieu=Lake")});
        carnet.deselectAll();
    }

    std::unique_ptr<LogbookWindow> newWindow() { return std::make_unique<LogbookWindow>(carnet, desktop.desktop()); }
    void trigger(const char* command) { window->actions().action(QLatin1StringView(command))->trigger(); }
    QLabel* figure(const char* name) { return window->details().findChild<QLabel*>(QLatin1StringView(name)); }
    QAction& detailsAction() { return *window->actions().action(QStringLiteral("details")); }

    TestDesktop desktop;
    Carnet carnet;
    std::unique_ptr<LogbookWindow> window;
};

TEST_F(DiveWindowsTest, statisticsFollowTheSelectionAndTheSearch) {
    trigger("statistics");
    StatisticsWindow& statistics = window->diveWindows().statisticsWindow();
    EXPECT_TRUE(window->furtherWindows().contains(&statistics));
    EXPECT_EQ(statistics.statistics().total(), 3);
    auto* choice = statistics.findChild<QComboBox*>(QStringLiteral("diveChoice"));
    const auto choose = [&](DiveChoice wanted) {
        choice->setCurrentIndex(choice->findData(static_cast<int>(wanted)));
        Q_EMIT choice->activated(choice->currentIndex());
    };
    choose(DiveChoice::selected);
    EXPECT_EQ(statistics.statistics().total(), 0);
    carnet.selectRows({0, 2});
    EXPECT_TRUE(QTest::qWaitFor([&] { return statistics.statistics().total() == 2; }));
    choose(DiveChoice::found);
    EXPECT_EQ(statistics.statistics().total(), 0);
    ASSERT_TRUE(carnet.findTextWithField(QStringLiteral("lieu"), QStringLiteral("lake")));
    EXPECT_TRUE(QTest::qWaitFor([&] { return statistics.statistics().total() == 2; }));
    // What matches counts, not what happened to be there at the time of the search.
    ASSERT_TRUE(carnet.setValue(1, QStringLiteral("lieu"), QStringLiteral("Mountain lake")));
    EXPECT_TRUE(QTest::qWaitFor([&] { return statistics.statistics().total() == 3; }));
}

TEST_F(DiveWindowsTest, cardShowsTheDivesChosenAndFollowsThem) {
    carnet.selectRows({0, 2});
    trigger("synthese");
    CardChoice& choice = window->diveWindows().cardChoice();
    EXPECT_TRUE(choice.isVisible());
    EXPECT_FALSE(window->furtherWindows().contains(&window->diveWindows().cardWindow()) &&
                 window->diveWindows().cardWindow().isVisible());
    choice.accept();
    CardWindow& card = window->diveWindows().cardWindow();
    EXPECT_TRUE(card.isVisible());
    const auto numbers = [&] {
        QString found;
        for (int number = 1; number <= 3; ++number) {
            found += card.card().text().contains(QStringLiteral("Dive number %1\r").arg(number))
                         ? QString::number(number)
                         : QString();
        }
        return found;
    };
    EXPECT_EQ(numbers(), u"13");
    carnet.selectRows({1});
    EXPECT_TRUE(QTest::qWaitFor([&] { return numbers() == u"2"; }));
    desktop.preferences.set(QStringLiteral("us units"), true);
    desktop.notifications.post(Notification::updateEditDive);
    EXPECT_TRUE(QTest::qWaitFor([&] { return card.card().text().contains(u"20 ft"); }));
    choice.findChild<QRadioButton*>(QStringLiteral("allDives"))->setChecked(true);
    choice.accept();
    EXPECT_EQ(numbers(), u"123");
}

TEST_F(DiveWindowsTest, consumptionIsThatOfTheForm) {
    QAction& command = *window->actions().action(QStringLiteral("consommation"));
    EXPECT_FALSE(command.isEnabled());
    carnet.selectRows({1});
    command.trigger();
    ConsumptionSheet& sheet = window->diveWindows().consumptionSheet();
    EXPECT_TRUE(sheet.isVisible() && window->editWindow().isVisible());
    EXPECT_EQ(sheet.windowTitle(), u"Gas consumption: Dive no.\u00a02");
    const auto report = [&] { return sheet.findChild<QLabel*>(QStringLiteral("consoField"))->text(); };
    EXPECT_TRUE(report().startsWith(u"Gas available: 0 L\n"));
    sheet.endConsoSheet();

    // The button on the form takes what is typed, stored or not.
    carnet.form().state().type(carnet.form().controls().volumeBlocField[0].index, QStringLiteral("10"));
    window->editWindow().goView(4);
    auto* button = window->editWindow().findChild<QPushButton*>(QStringLiteral("consommationButton"));
    button->click();
    EXPECT_TRUE(sheet.isVisible());
    EXPECT_TRUE(report().startsWith(u"Gas available: 2000 L\n"));
    EXPECT_TRUE(window->ownMenuActions().contains(&command));
}

TEST_F(DiveWindowsTest, detailsTurnWithTheSelection) {
    window->show();
    DiveDetails& details = window->details();
    EXPECT_TRUE(details.isVisible());
    EXPECT_FALSE(details.profile().isVisible());
    carnet.selectRows({0});
    EXPECT_EQ(details.profile().accessibleName(), u"Profile of dive 1");
    EXPECT_EQ(details.findChild<QPlainTextEdit*>(QStringLiteral("notes"))->toPlainText(), u"Two groupers");
    EXPECT_EQ(figure("Figure average depth")->text(), u"3.3 m");
    EXPECT_EQ(figure("Figure average depth")->toolTip(), u"Average depth = mean of 3 samples = 3.3 m");
    EXPECT_EQ(figure("Figure average depth")->accessibleDescription(), figure("Figure average depth")->toolTip());
    auto* sample = details.findChild<QLabel*>(QStringLiteral("sampleField"));
    details.profile().setFocus();
    QTest::keyClick(&details.profile(), Qt::Key_End);
    QTest::keyClick(&details.profile(), Qt::Key_Left);
    EXPECT_TRUE(sample->text().startsWith(u"0:10  ·  10.0 m")) << sample->text().toStdString();

    carnet.selectRows({1});
    EXPECT_EQ(figure("Label maximum depth")->text(), u"20 m");
    EXPECT_EQ(figure("Figure SAC")->text(), u"Not known: no tank volume");
    EXPECT_FALSE(sample->text().startsWith(u"0:10"));
    ASSERT_TRUE(carnet.setValue(1, QStringLiteral("profondeur"), 21.5F));
    EXPECT_EQ(figure("Label maximum depth")->text(), u"21.5 m");
    carnet.deselectAll();
    EXPECT_FALSE(details.profile().isVisible());
}

TEST_F(DiveWindowsTest, detailsStayAsTheUserHasThem) {
    window->resize(900, 700);
    window->show();
    auto* panes = window->findChild<QSplitter*>(QStringLiteral("panes"));
    panes->setSizes({200, 400});
    const int height = window->details().height();
    window.reset();
    window = newWindow();
    window->resize(900, 700);
    window->show();
    EXPECT_TRUE(detailsAction().isChecked());
    EXPECT_NEAR(window->details().height(), height, 2);
    EXPECT_TRUE(window->viewActions().contains(&detailsAction()));
    detailsAction().trigger();
    EXPECT_FALSE(window->details().isVisible());
    window.reset();
    window = newWindow();
    window->show();
    EXPECT_FALSE(window->details().isVisible());
    // What changed while it was away shows when it comes back.
    carnet.selectRows({0});
    detailsAction().trigger();
    EXPECT_EQ(figure("Label maximum depth")->text(), u"10 m");
}

TEST_F(DiveWindowsTest, formShowsTheProfileOfItsDive) {
    carnet.selectRows({0});
    carnet.editWindow();
    EXPECT_FALSE(window->profileCommands().formView()->isVisible());
    window->editWindow().goView(window->editWindow().pages().pageOf(carnet.form().controls().profilView.index));
    ProfileView& view = *window->profileCommands().formView();
    EXPECT_TRUE(view.isVisible());
    EXPECT_TRUE(QTest::qWaitFor([&] { return view.accessibleName() == u"Profile of dive 1"; }));
    carnet.nextDive();
    EXPECT_TRUE(QTest::qWaitFor([&] { return view.accessibleName() == u"Profile of dive 2"; }));
}

}  // namespace

}  // namespace tavrel
