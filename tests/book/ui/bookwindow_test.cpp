#include "book/ui/bookwindow.h"

#include "book/tablepages.h"
#include "book/ui/bookeditwindow.h"
#include "book/ui/booksearchfield.h"
#include "book/ui/booktableview.h"
#include "desktop/ui/customtoolbar.h"
#include "desktop/ui/readablecolour.h"
#include "logbook/carnet.h"
#include "logbook/divecolumns.h"
#include "support/primitives.h"
#include "support/testdesktop.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTest>

#include <algorithm>

namespace tavrel {

namespace {

struct BookWindowTest : testing::Test {
    BookWindowTest() { open(); }

    void open() {
        window = std::make_unique<BookWindow>(carnet, desktop.desktop());
        window->show();
        window->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }

    void hold(int count) {
        std::vector<Plongee> dives(static_cast<std::size_t>(count));
        for (int row = 0; row < count; ++row) {
            Plongee& dive = dives[static_cast<std::size_t>(row)];
            dive.noPlongee = row + 1;
            dive.site = QStringLiteral("Site %1").arg(row + 1);
        }
        carnet.appendDives(QStringLiteral("Add"), std::move(dives));
    }

    BookTableView& table() { return window->table(); }
    QHeaderView& header() { return *table().horizontalHeader(); }
    QString shown(int row, const char* field) {
        return table().model()->index(row, table().columnOf(field)).data().toString();
    }
    bool isInSight(int row) {
        const auto site = table().model()->index(row, table().columnOf("site"));
        return table().viewport()->rect().contains(table().visualRect(site));
    }
    void click(int row, Qt::KeyboardModifiers modifiers = {}) {
        table().reveal(row);
        const QPoint place = table().visualRect(table().model()->index(row, table().columnOf("site"))).center();
        QTest::mouseClick(table().viewport(), Qt::LeftButton, modifiers, place);
    }
    void clickHeader(const char* field) {
        const int section = table().columnOf(field);
        QTest::mouseClick(header().viewport(), Qt::LeftButton, {},
                          QPoint(header().sectionViewportPosition(section) + 10, header().height() / 2));
    }
    QStringList visibleColumns() {
        QStringList fields;
        for (int place = 0; place < header().count(); ++place) {
            if (const int column = header().logicalIndex(place); !header().isSectionHidden(column)) {
                fields.append(QString::fromUtf8(diveColumns()[static_cast<std::size_t>(column)].field));
            }
        }
        return fields;
    }
    void press(int key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(&table(), static_cast<Qt::Key>(key), modifiers);
    }
    QAction* command(const char* name) { return window->findChild<QAction*>(QString::fromUtf8(name)); }

    TestDesktop desktop;
    Carnet carnet{desktop.desktop()};
    std::unique_ptr<BookWindow> window;
};

TEST_F(BookWindowTest, selectsInTheTableAndInTheDocumentAlike) {
    hold(5);
    const QSignalSpy changes(&carnet, &Carnet::selectionChanged);
    click(1);
    EXPECT_EQ(carnet.selectedRows(), QList<int>({1}));
    EXPECT_EQ(changes.count(), 1);
    click(3, Qt::ShiftModifier);
    EXPECT_EQ(carnet.selectedRows(), QList<int>({1, 2, 3}));
    click(2, Qt::ControlModifier);
    EXPECT_EQ(carnet.selectedRows(), QList<int>({1, 3}));
    press(Qt::Key_End, Qt::ShiftModifier);
    EXPECT_EQ(carnet.selectedRows().back(), 4);
    press(Qt::Key_Home);
    EXPECT_EQ(carnet.selectedRows(), QList<int>({0}));
    press(Qt::Key_Down);
    EXPECT_EQ(carnet.selectedRows(), QList<int>({1}));
    press(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(carnet.selectedRows().size(), 5);

    carnet.selectRows({0, 3});
    EXPECT_TRUE(table().selectionModel()->isRowSelected(3, {}));
    EXPECT_FALSE(table().selectionModel()->isRowSelected(1, {}));
    click(1, Qt::ControlModifier);  // goes on from what the document selected
    EXPECT_EQ(carnet.selectedRows(), QList<int>({0, 1, 3}));
    press(Qt::Key_Down);
    EXPECT_EQ(carnet.selectedRows(), QList<int>({2}));
}

TEST_F(BookWindowTest, sortsByAClickOnAHeaderAndKeepsTheSelectedDive) {
    hold(3);
    click(0);
    clickHeader("noPlongee");
    EXPECT_EQ(shown(0, "noPlongee"), u"3");
    EXPECT_EQ(header().sortIndicatorOrder(), Qt::DescendingOrder);
    EXPECT_EQ(carnet.selectedRows(), QList<int>({2}));
    EXPECT_EQ(table().currentIndex().row(), 2);
    clickHeader("noPlongee");
    EXPECT_EQ(shown(0, "noPlongee"), u"1");
    EXPECT_EQ(header().sortIndicatorOrder(), Qt::AscendingOrder);
    EXPECT_EQ(header().sortIndicatorSection(), 0);

    hold(60);
    click(0);
    clickHeader("noPlongee");
    ASSERT_GT(carnet.selectedRow(), 50);
    EXPECT_TRUE(isInSight(carnet.selectedRow()));
}

TEST_F(BookWindowTest, hidesColumnsAndPutsThemBackInTheirPlace) {
    QStringList all;
    for (const auto& column : diveColumns()) {
        all.append(QString::fromUtf8(column.field));
    }
    all.removeLast();  // the apparatus is off at first
    ASSERT_EQ(visibleColumns(), all);
    for (const char* field : {"deco", "coeff"}) {
        table().columnsMenu()->findChild<QAction*>(QString::fromUtf8(field))->trigger();
    }
    EXPECT_FALSE(desktop.preferences.get(Setting<bool>{"column coeff"}));
    QStringList fewer = all;
    fewer.removeAll(QStringLiteral("deco"));
    fewer.removeAll(QStringLiteral("coeff"));
    EXPECT_EQ(visibleColumns(), fewer);
    table().setColumn(QStringLiteral("coeff"), true);
    EXPECT_EQ(visibleColumns().indexOf(QStringLiteral("coeff")), all.indexOf(QStringLiteral("deco")));
    desktop.preferences.set(QStringLiteral("column deco"), true);
    desktop.preferences.set(QStringLiteral("column coeff"), true);
    desktop.notifications.post(Notification::updateColumnsTableView);
    EXPECT_EQ(visibleColumns(), all);

    // Order and widths outlive the window.
    header().moveSection(3, 0);
    table().setColumnWidth(table().columnOf("lieu"), 321);
    window.reset();
    open();
    EXPECT_EQ(visibleColumns().first(), u"site");
    EXPECT_EQ(table().columnWidth(table().columnOf("lieu")), 321);

    for (const auto& column : diveColumns()) {
        desktop.preferences.set(*column.shown, column.field == std::string_view("site"));
    }
    desktop.notifications.post(Notification::updateColumnsTableView);
    EXPECT_FALSE(table().columnsMenu()->findChild<QAction*>(QStringLiteral("site"))->isEnabled());
}

TEST_F(BookWindowTest, readsAgainOncePerChange) {
    hold(3);
    const QSignalSpy resets(table().model(), &QAbstractItemModel::modelReset);
    desktop.preferences.set(QStringLiteral("display units"), false);
    EXPECT_EQ(shown(0, "temps"), u"0 '");
    desktop.notifications.post(Notification::updateTableView);
    EXPECT_EQ(shown(0, "temps"), u"0");
    QTest::qWait(0);
    window->grab();
    EXPECT_EQ(resets.count(), 1);
}

TEST_F(BookWindowTest, printsAPictureBelowItsHeading) {
    hold(1);
    ASSERT_TRUE(carnet.setValue(0, QStringLiteral("inoubliable"), 1));
    const Paper paper{QSizeF(2000, 300), {}, {}, {}};
    const Drawing page = pagesOf(carnet, wholeTable(carnet), paper).page(0);
    const auto texts = all<Drawing::Text>(page);
    const auto heading =
        std::find_if(texts.begin(), texts.end(), [](const auto& each) { return each.text == u"Rating"; });
    const auto icons = all<Drawing::Icon>(page);
    ASSERT_TRUE(heading != texts.end() && !icons.empty());
    EXPECT_NEAR(icons.back().at.x() + icons.back().size.width() / 2, heading->at.x(), 0.01);
}

TEST_F(BookWindowTest, findsWhereItsToolBarIsTooNarrowForTheField) {
    window->resize(400, 500);
    QCoreApplication::processEvents();
    ASSERT_FALSE(window->searchField()->isVisible());
    command("find")->trigger();
    EXPECT_TRUE(window->searchField()->isVisible());
    EXPECT_TRUE(window->searchField()->hasFocus());
}

TEST_F(BookWindowTest, copiesTheSelectedRows) {
    hold(3);
    for (const auto& column : diveColumns()) {
        const std::string_view field = column.field;
        table().setColumn(QString::fromUtf8(column.field),
                          field == "noPlongee" || field == "site" || field == "epaves");
    }
    header().moveSection(header().visualIndex(table().columnOf("site")), 0);
    ASSERT_TRUE(carnet.setValue(2, QStringLiteral("epaves"), QStringLiteral("Tab\there")));
    carnet.selectRows({0, 2});
    command("copy")->trigger();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), u"Site 1\t1\t\nSite 3\t3\tTab here\n");
}

TEST_F(BookWindowTest, searchesTheFieldThatWasChosenLast) {
    hold(40);
    auto& field = *window->searchField();
    EXPECT_EQ(field.placeholderText(), u"Find in: Buddies");
    for (int row = 0; row < carnet.count(); ++row) {
        const QString notes = row == 30 ? QStringLiteral("a turtle") : QStringLiteral("none");
        ASSERT_TRUE(carnet.setValue(row, QStringLiteral("notes"), notes));
    }
    field.menu()->findChild<QAction*>(QStringLiteral("notes"))->trigger();
    QTest::keyClicks(&field, QStringLiteral("TURTLE"));
    EXPECT_EQ(carnet.selectedRow(), -1);
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_EQ(carnet.selectedRows(), QList<int>({30}));
    const auto labels = window->statusBar()->findChildren<QLabel*>();
    EXPECT_EQ(eachOf(labels, [](const QLabel* label) { return label->text(); }), u"40 dives|One dive found");
    EXPECT_TRUE(isInSight(30));

    field.menu()->findChild<QAction*>(QStringLiteral("ordi"))->trigger();
    window.reset();
    open();
    EXPECT_EQ(window->searchField()->placeholderText(), u"Find in: Computers");
}

TEST_F(BookWindowTest, opensTheEditWindowAndStoresItsEntries) {
    hold(3);
    click(1);
    press(Qt::Key_Return);
    auto& edit = window->editWindow();
    EXPECT_TRUE(edit.isVisible());
    carnet.form().state().type(carnet.form().controls().siteField.index, QStringLiteral("Reef"));
    EXPECT_TRUE(window->leaveEditing(Settling::saving));
    EXPECT_EQ(shown(1, "site"), u"Reef");
    edit.close();
    click(0);
    QTest::mouseDClick(table().viewport(), Qt::LeftButton, {},
                       table().visualRect(table().model()->index(0, table().columnOf("site"))).center());
    EXPECT_TRUE(edit.isVisible());
    command("nextRecord")->trigger();
    EXPECT_EQ(carnet.selectedRows(), QList<int>({1}));
}

TEST_F(BookWindowTest, offersTheCommandsThatItHas) {
    const auto* placeholder = table().viewport()->findChild<QLabel*>();
    EXPECT_TRUE(placeholder->isVisible());
    EXPECT_TRUE(placeholder->text().contains(command("newDive")->shortcut().toString(QKeySequence::NativeText)));
    auto& bar = window->toolBar();
    EXPECT_FALSE(bar.action(QStringLiteral("imprimer"))->isEnabled() || bar.action(QStringLiteral("profil")));

    int profiles = 0;
    static_cast<void>(window->editWindow());
    window->provideCommand(QStringLiteral("profil"), [&profiles] { ++profiles; });
    QAction* profile = bar.action(QStringLiteral("profil"));
    EXPECT_EQ(window->editWindow().toolBar().action(QStringLiteral("profil")), profile);
    EXPECT_TRUE(window->ownMenuActions().contains(profile));
    EXPECT_FALSE(profile->isEnabled()) << "there is no dive";
    QSignalSpy saves(window.get(), &DocumentWindow::saveRequested);
    bar.action(QStringLiteral("saveDocument"))->trigger();
    EXPECT_EQ(saves.count(), 1);

    hold(1);
    EXPECT_FALSE(placeholder->isVisible());
    EXPECT_TRUE(bar.action(QStringLiteral("imprimer"))->isEnabled());
    profile->trigger();
    EXPECT_EQ(profiles, 1);
}

TEST(ReadableOn, shiftsOnlyWhatTheGroundSwallows) {
    EXPECT_EQ(readableOn(Qt::white, Qt::blue), QColor(Qt::blue));
    EXPECT_EQ(readableOn(Qt::white, Qt::red), QColor(Qt::red));
    EXPECT_LT(readableOn(Qt::white, Qt::green).lightnessF(), QColor(Qt::green).lightnessF());
    EXPECT_EQ(readableOn(QColor(30, 30, 30), Qt::yellow), QColor(Qt::yellow));
    EXPECT_GT(readableOn(QColor(30, 30, 30), Qt::blue).lightnessF(), QColor(Qt::blue).lightnessF());
}

}  // namespace

}  // namespace tavrel
