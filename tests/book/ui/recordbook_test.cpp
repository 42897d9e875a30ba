// What the windows give to every record book, driven with a small one.

#include "base/texts.h"
#include "book/card.h"
#include "book/tablepages.h"
#include "book/ui/bookeditwindow.h"
#include "book/ui/bookfilterbar.h"
#include "book/ui/booktableview.h"
#include "book/ui/bookwindow.h"
#include "book/ui/cardwindow.h"
#include "book/ui/shelf.h"
#include "desktop/ui/customtoolbar.h"
#include "drawing/drawingfont.h"
#include "forms/ui/datepicker.h"
#include "forms/ui/starrating.h"
#include "support/primitives.h"
#include "support/records.h"
#include "support/testdesktop.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFontMetricsF>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QProgressBar>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QTextEdit>
#include <QUrl>

#include <cmath>
#include <map>

namespace tavrel {

namespace {

enum Answer { keep, discard, cancel };

struct RecordBookTest : testing::Test {
    RecordBookTest() {
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    void hold(const QStringList& names) {
        std::vector<Thing> things;
        for (const QString& name : names) {
            things.emplace_back().name = name;
        }
        book.appendRecords(QStringLiteral("Add"), listOf(things));
    }
    QString names() {
        return eachOf(numbers(0, book.count()), [this](int row) { return book.record(row).name; });
    }
    void type(auto id, const QString& text) { book.form().state().type(id.index, text); }
    void click(int row) {
        QTest::mouseClick(window.table().viewport(), Qt::LeftButton, {},
                          window.table().visualRect(window.table().model()->index(row, 0)).center());
    }
    QAction* command(const char* name) { return window.actions().action(QString::fromUtf8(name)); }
    template <class Widget>
    Widget* control(auto id) {
        return qobject_cast<Widget*>(window.editWindow().pages().widget(id.index));
    }
    const QString& typedName() { return book.form().state().at(controls.nameField.index).text; }

    TestDesktop desktop;
    Book<Thing> book{desktop.desktop(), shelf()};
    const ThingControls& controls = ThingControls::table();
    BookWindow window{book, desktop.desktop()};
};

TEST_F(RecordBookTest, asksOnceWhateverTheWayOutOfANewRecord) {
    hold({QStringLiteral("a"), QStringLiteral("b")});
    const std::pair<const char*, std::function<void()>> ways[] = {
        {"another row", [&] { click(1); }},
        {"the arrow key", [&] { QTest::keyClick(&window.table(), Qt::Key_Up); }},
        {"all rows", [&] { command("selectAll")->trigger(); }},
        {"a new record", [&] { command("newThing")->trigger(); }},
        {"closing the form", [&] { window.editWindow().close(); }},
        {"Escape",
         [&] {
             window.editWindow().activateWindow();
             EXPECT_TRUE(QTest::qWaitForWindowActive(&window.editWindow()));
             QTest::keyClick(&window.editWindow(), Qt::Key_Escape);
         }},
        {"saving", [&] { EXPECT_FALSE(window.leaveEditing(Settling::saving)); }},
        {"leaving", [&] { EXPECT_FALSE(window.leaveEditing(Settling::leaving)); }},
        {"printing", [&] { command("imprimer")->trigger(); }},
    };
    for (const auto& [what, leave] : ways) {
        SCOPED_TRACE(what);
        desktop.alerts.clear();
        command("newThing")->trigger();
        type(controls.nameField, QStringLiteral("typed"));
        desktop.alerts.answerNext(cancel);
        leave();
        EXPECT_EQ(desktop.alerts.questions.size(), 1U);
        EXPECT_TRUE(window.editWindow().isVisible());
        EXPECT_EQ(typedName(), u"typed");
        EXPECT_EQ(book.selectedRow(), -1);
        EXPECT_TRUE(window.table().selectionModel()->selectedRows().isEmpty());
        EXPECT_EQ(book.count(), 2);
        desktop.alerts.answerNext(discard);
        EXPECT_TRUE(window.leaveEditing(Settling::leaving));
    }

    command("newThing")->trigger();
    type(controls.nameField, QStringLiteral("c"));
    desktop.alerts.answerNext(keep);
    click(1);
    EXPECT_EQ(names(), u"a|b|c");
    EXPECT_EQ(book.selectedRows(), QList<int>({1}));
    EXPECT_EQ(typedName(), u"b");
}

TEST_F(RecordBookTest, keepsTheSelectionWhereAnEditedRecordIsNotLeft) {
    hold({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
    click(0);
    command("editWindow")->trigger();
    type(controls.nameField, QStringLiteral("changed"));
    desktop.alerts.answerNext(cancel);
    click(2);
    EXPECT_EQ(book.selectedRows(), QList<int>({0}));
    EXPECT_EQ(window.table().currentIndex().row(), 0);
    desktop.alerts.answerNext(cancel);
    QTest::keyClick(&window.table(), Qt::Key_Down);
    EXPECT_EQ(window.table().currentIndex().row(), 0);
    EXPECT_EQ(typedName(), u"changed");
    desktop.alerts.answerNext(keep);
    click(2);
    EXPECT_EQ(book.selectedRows(), QList<int>({2}));
    EXPECT_TRUE(names().startsWith(u"changed|"));
    EXPECT_EQ(typedName(), u"c");
}

TEST_F(RecordBookTest, opensNothingWhereNoRowIsSelected) {
    hold({QStringLiteral("a"), QStringLiteral("b")});
    click(1);
    book.deselectAll();
    QTest::keyClick(&window.table(), Qt::Key_Return);
    EXPECT_TRUE(window.furtherWindows().isEmpty());
    click(1);
    QTest::keyClick(&window.table(), Qt::Key_Return);
    ASSERT_EQ(window.furtherWindows().size(), 1);
    EXPECT_EQ(window.editWindow().windowTitle(), u"Thing b");

    // What is opened is the selected record, also after another one was added on the way.
    command("newThing")->trigger();
    book.selectRows({});
    type(controls.nameField, QStringLiteral("c"));
    desktop.alerts.answerNext(keep);
    click(0);
    QTest::keyClick(&window.table(), Qt::Key_Return);
    EXPECT_EQ(window.editWindow().windowTitle(), u"Thing a");
}

TEST_F(RecordBookTest, tellsTheViewWhichRowsChanged) {
    hold({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
    const QAbstractItemModel& model = *window.table().model();
    const QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
    const QSignalSpy changes(&model, &QAbstractItemModel::dataChanged);
    ASSERT_TRUE(book.setValue(1, QStringLiteral("name"), QStringLiteral("B")));
    ASSERT_EQ(changes.count(), 1);
    EXPECT_EQ(std::pair(changes[0][0].toModelIndex().row(), changes[0][1].toModelIndex().row()), std::pair(1, 1));
    EXPECT_EQ(model.index(1, 0).data().toString(), u"B");
    book.undoStack().undo();
    EXPECT_EQ(model.index(1, 0).data().toString(), u"b");
    EXPECT_EQ(changes.count(), 2);
    EXPECT_EQ(resets.count(), 0);
    // A colour only where it is not that of text.
    ASSERT_TRUE(book.setValue(1, QStringLiteral("price"), 20.0F));
    EXPECT_FALSE(model.index(0, 1).data(Qt::ForegroundRole).isValid());
    EXPECT_EQ(model.index(1, 1).data(Qt::ForegroundRole).value<QColor>(), QColor(255, 0, 0));
}

TEST_F(RecordBookTest, takesRowsInAndOutWithoutMovingTheOthers) {
    QStringList many;
    for (int each = 0; each < 200; ++each) {
        many.append(QStringLiteral("thing %1").arg(each));
    }
    hold(many);
    QAbstractItemModel& model = *window.table().model();
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    const QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
    auto& scroll = *window.table().verticalScrollBar();
    const auto at = [&](int row) { return model.index(row, 0).data().toString(); };
    const auto changed = [&](auto change) {
        RecordList list = book.records();
        change(list);
        book.changeList(QStringLiteral("Change"), list);
    };
    book.selectRows({100});
    window.table().reveal(100);
    const QPersistentModelIndex kept = model.index(100, 0);
    const int scrolled = scroll.value();
    ASSERT_GT(scrolled, 0);

    changed([](RecordList& list) { list.erase(list.begin() + 150, list.begin() + 152); });
    changed([](RecordList& list) { list.insert(list.begin() + 170, list.front()); });
    EXPECT_EQ(model.rowCount(), 199);
    EXPECT_EQ(at(150), u"thing 152");
    EXPECT_EQ(at(170), u"thing 0");
    changed([](RecordList& list) { list.erase(list.begin()); });
    EXPECT_EQ(kept.row(), 99) << "the row goes with its record";
    book.undoStack().undo();
    EXPECT_EQ(kept.row(), 100);
    EXPECT_EQ(scroll.value(), scrolled);
    EXPECT_EQ(book.selectedRows(), QList<int>({100}));
    EXPECT_TRUE(window.table().selectionModel()->isRowSelected(100, {}));
    changed([](RecordList& list) {
        list.erase(list.begin() + 10, list.begin() + 12);
        list[10] = list.front();
    });
    EXPECT_EQ(at(10), u"thing 0");
    EXPECT_EQ(kept.row(), 98);
    book.undoStack().undo();
    EXPECT_EQ(at(10), u"thing 10");
    EXPECT_EQ(kept.row(), 100);

    // Under a filter the rows shown are others than the list's.
    window.filterBar().field().setText(QStringLiteral("19"));
    EXPECT_EQ(model.rowCount(), 12) << "19, 119, 190 to 199";
    changed([](RecordList& list) { list.erase(list.begin() + 19); });
    EXPECT_EQ(at(0), u"thing 119");
    window.filterBar().field().clear();
    EXPECT_EQ(model.rowCount(), 198);
    EXPECT_EQ(resets.count(), 0);
}

TEST_F(RecordBookTest, filtersAsOneTypes) {
    hold({QStringLiteral("Regulator"), QStringLiteral("Lamp 7"), QStringLiteral("Knife")});
    ASSERT_TRUE(book.setValue(2, QStringLiteral("price"), 17.5F));
    QLineEdit& field = window.filterBar().field();
    const auto* count = window.filterBar().findChild<QLabel*>(QStringLiteral("filterCount"));
    const QAbstractItemModel& model = *window.table().model();
    const auto shown = [&] {
        return eachOf(numbers(0, model.rowCount()), [&](int row) { return model.index(row, 0).data().toString(); });
    };
    EXPECT_EQ(window.searchField(), nullptr);
    EXPECT_EQ(count->text(), QString());
    field.setText(QStringLiteral("la"));
    book.selectRows({1});
    EXPECT_EQ(shown(), u"Regulator|Lamp 7");
    field.setText(QStringLiteral("7"));
    EXPECT_TRUE(window.table().selectionModel()->isRowSelected(0, {})) << "the record stands elsewhere";
    EXPECT_FALSE(window.table().selectionModel()->isRowSelected(1, {}));
    field.clear();
    book.deselectAll();
    command("filter")->trigger();
    EXPECT_TRUE(field.hasFocus());
    QTest::keyClicks(&field, QStringLiteral("7"));
    EXPECT_EQ(shown(), u"Lamp 7|Knife");
    EXPECT_EQ(count->text(), u"2 of 3");

    click(1);
    EXPECT_EQ(book.selectedRows(), QList<int>({2})) << "the record that the second row shows";
    EXPECT_EQ(window.table().selectionAsText(), u"Knife\t17.5\t0\n");
    command("selectAll")->trigger();
    EXPECT_EQ(book.selectedRows(), QList<int>({1, 2}));
    desktop.alerts.answerNext(0);
    command("deleteThing")->trigger();
    EXPECT_EQ(desktop.alerts.questions.front().message, u"Delete 2 cards?");
    EXPECT_EQ(names(), u"Regulator");
    EXPECT_EQ(model.rowCount(), 0);

    window.filterBar().keep(QStringLiteral("Sevens & such"));
    QTest::keyClick(&field, Qt::Key_Escape);
    EXPECT_EQ(shown(), u"Regulator");
    const auto kept = window.filterBar().menu().actions().front();
    EXPECT_EQ(kept->text(), u"Sevens && such");
    kept->trigger();
    EXPECT_EQ(field.text(), u"7");
    window.filterBar().forget(QStringLiteral("Sevens & such"));
    EXPECT_TRUE(window.filterBar().menu().actions().front()->isSeparator());
    QTest::keyClick(&field, Qt::Key_Escape);
    QTest::keyClick(&field, Qt::Key_Escape);
    EXPECT_TRUE(window.table().hasFocus());
}

/// The texts of a page that stand in the table's grid, row by row.
QStringList rowsOn(const Drawing& page) {
    std::map<int, std::map<double, QString>> rows;
    for (const auto& text : all<Drawing::Text>(page)) {
        if (text.size == 11) {
            rows[-qRound(text.at.y())][text.at.x()] = text.text;
        }
    }
    QStringList lines;
    for (const auto& [height, cells] : rows) {
        lines.append(eachOf(cells, [](const auto& cell) { return cell.second; }));
    }
    return lines;
}

TEST_F(RecordBookTest, goesToPaperAsItIsShown) {
    hold({QStringLiteral("Regulator"), QStringLiteral("Lamp 7"), QStringLiteral("Knife 7")});
    ASSERT_TRUE(book.setValue(1, QStringLiteral("price"), 17.5F));
    const Paper paper{QSizeF(400, 300), {10, 20, 30, 40, 1}, QStringLiteral("Shelf"), QDate(2024, 6, 15)};
    EXPECT_EQ(rowsOn(pagesOf(book, window.table().shownPart(), paper).page(0)),
              rowsOn(pagesOf(book, wholeTable(book), paper).page(0)));
    window.table().setColumnHidden(2, true);
    window.table().horizontalHeader()->moveSection(1, 0);
    window.filterBar().field().setText(QStringLiteral("7"));
    const Pages pages = pagesOf(book, window.table().shownPart(), paper);
    EXPECT_EQ(pages.paper(), QSizeF(400, 300));
    EXPECT_EQ(pages.size, QSizeF(330, 270));
    EXPECT_EQ(rowsOn(pages.page(0)),
              (QStringList{QStringLiteral("Price|Name"), QStringLiteral("17.5|Lamp 7"), QStringLiteral("0|Knife 7")}));
    setTextLanguage(QStringLiteral("fr"));
    EXPECT_EQ(rowsOn(pages.page(0))[1], u"17,5|Lamp 7");
    EXPECT_EQ(rowsOn(pagesOf(book, wholeTable(book), paper).page(0))[2], u"Lamp 7|17.5|0") << "not of a window";
    setTextLanguage(QStringLiteral("en"));
}

TEST_F(RecordBookTest, breaksItsTableIntoPages) {
    // 30 rows in room for 15 with the heading, columns of 200, 100 and 300 where 330 fit beside each other.
    hold(QStringList(30, QStringLiteral("thing")));
    const double digit = QFontMetricsF(drawingFont(11)).horizontalAdvance(u'0');
    const double line = std::ceil(QFontMetricsF(drawingFont(11, true)).height()) + 4;
    const TablePart part{book.records(), {{0, 200 / digit}, {1, 100 / digit}, {2, 300 / digit}}};
    const Paper paper{QSizeF(330, 16 * line + 20), {0, 0, 0, 0, 1}, {}, {}};
    const Pages pages = pagesOf(book, part, paper);
    ASSERT_EQ(pages.count, 4);
    EXPECT_EQ(rowsOn(pages.page(0)).size(), 16);
    EXPECT_EQ(rowsOn(pages.page(0)).front(), u"Name|Price");
    EXPECT_EQ(rowsOn(pages.page(1)).front(), u"Stars");
    EXPECT_EQ(rowsOn(pages.page(3)).size(), 16);
    // A little too wide for the page, or with room to spare: made to fit on one.
    const TablePart wider{{book.recordAt(0)}, {{0, 300 / digit}, {1, 100 / digit}}};
    EXPECT_EQ(pagesOf(book, wider, paper).count, 1);
    EXPECT_NEAR(pagesOf(book, wider, paper).page(0).size().width(), 400, 1);
    EXPECT_EQ(pagesOf(book, {}, paper).count, 1) << "an empty table is a page too";
}

TEST_F(RecordBookTest, bringsBackTheRecordOfTheSelectedRow) {
    hold({QStringLiteral("a"), QStringLiteral("b")});
    click(0);
    command("editWindow")->trigger();
    type(controls.nameField, QStringLiteral("changed"));
    desktop.alerts.answerNext(cancel);
    command("blankFields")->trigger();
    EXPECT_EQ(typedName(), u"changed");
    desktop.alerts.answerNext(discard);
    command("blankFields")->trigger();
    EXPECT_EQ(typedName(), QString());
    book.selectRows({0});
    book.blankFields();
    click(0);
    EXPECT_EQ(typedName(), u"a");
}

TEST_F(RecordBookTest, takesADroppedRowAsACopyOfTheLast) {
    hold({QStringLiteral("a"), QStringLiteral("b")});
    QMimeData row;
    row.setData(QStringLiteral("things"), "any");
    QMimeData words;
    words.setText(QStringLiteral("b"));
    QWidget* target = window.table().viewport();
    EXPECT_TRUE(target->acceptDrops());
    for (QMimeData* data : {&words, &row}) {
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction | Qt::MoveAction, data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(target, &enter);
        EXPECT_EQ(enter.isAccepted(), data == &row);
        QDropEvent drop(QPointF(5, 5), Qt::CopyAction | Qt::MoveAction, data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(target, &drop);
    }
    EXPECT_EQ(names(), u"a|b|b");
}

TEST_F(RecordBookTest, showsOneActionForACommandEverywhere) {
    EXPECT_FALSE(command("deleteThing")->isEnabled() || command("synthese")->isEnabled());
    EXPECT_TRUE(command("newThing")->isEnabled());
    hold({QStringLiteral("a")});
    EXPECT_TRUE(command("deleteThing")->isEnabled());
    EXPECT_FALSE(command("editWindow")->isEnabled());
    for (const char* name : {"newThing", "deleteThing", "synthese"}) {
        QAction* action = command(name);
        EXPECT_TRUE(window.toolBar().actions().contains(action)) << name;
        EXPECT_TRUE(window.ownMenuActions().contains(action)) << name;
    }
    EXPECT_TRUE(window.editWindow().toolBar().actions().contains(command("synthese")));
    EXPECT_EQ(window.commandAction(QStringLiteral("saveDocument")), command("saveDocument"));
    EXPECT_EQ(window.commandAction(QStringLiteral("printDocument")), command("imprimer"));
    EXPECT_FALSE(window.ownMenuActions().contains(command("imprimer")));
    EXPECT_EQ(window.viewActions().size(), 1) << "no columns to choose";

    QTest::keyClick(&window.table(), Qt::Key_Delete);  // nothing selected
    EXPECT_EQ(desktop.alerts.questions.size(), 0U);
    book.selectRows({0});
    desktop.alerts.answerNext(0);
    QTest::keyClick(&window.table(), Qt::Key_Delete);
    EXPECT_EQ(book.count(), 0);
}

TEST_F(RecordBookTest, showsTheCardOfAllRecords) {
    hold({QStringLiteral("Lamp")});
    command("synthese")->trigger();
    auto& card = window.cardWindow();
    EXPECT_TRUE(card.isVisible());
    EXPECT_TRUE(card.card().text().contains(u"\rName: Lamp"));
    auto* shown = card.findChild<QTextEdit*>();
    EXPECT_TRUE(shown->toPlainText().contains(u"\nName: Lamp"));
    EXPECT_TRUE(window.furtherWindows().contains(&card));

    // Dark: what is black is written as text is, and blue is lightened; the card keeps the plain colours.
    QPalette dark;
    dark.setColor(QPalette::Base, QColor(30, 30, 30));
    dark.setColor(QPalette::Text, QColor(220, 220, 220));
    card.setPalette(dark);
    const auto colourOf = [&](const char* words) {
        const QTextCursor found = shown->document()->find(QString::fromUtf8(words));
        return found.charFormat().foreground().color();
    };
    EXPECT_EQ(colourOf("Name:"), QColor(220, 220, 220));
    EXPECT_GT(colourOf("Lamp").lightnessF(), QColor(Qt::blue).lightnessF());
    EXPECT_EQ(card.card().runs()[2].colour, plaincolour::blue);
}

TEST_F(RecordBookTest, showsDaysStarsBarsAndColours) {
    hold({QStringLiteral("Lamp")});
    click(0);
    command("editWindow")->trigger();
    auto& state = book.form().state();
    auto* bought = control<DatePicker>(controls.boughtField);
    const Date none = Date::fromDateTime(QDate(1900, 1, 1).startOfDay());
    state.setDate(controls.boughtField.index, none);
    EXPECT_TRUE(bought->text().trimmed().isEmpty());
    bought->setDate(QDate(2024, 5, 3));
    EXPECT_EQ(state.at(controls.boughtField.index).date.toDateTime().date(), QDate(2024, 5, 3));
    QTest::keyClick(bought, Qt::Key_Delete);
    EXPECT_EQ(state.at(controls.boughtField.index).date, none);
    EXPECT_TRUE(bought->text().trimmed().isEmpty());

    auto* stars = window.editWindow().findChild<StarRating*>();
    ASSERT_TRUE(stars);
    QTest::keyClick(stars, Qt::Key_3);
    QTest::keyClick(stars, Qt::Key_Right);
    EXPECT_EQ(state.at(controls.starsSlider.index).tag, 4);
    EXPECT_TRUE(stars->accessibleName().endsWith(textWith("Main", "Cotation in words", 4, 5)));
    const int first = stars->height() / 2;
    QTest::mouseClick(stars, Qt::LeftButton, {}, QPoint(first, first));
    EXPECT_EQ(state.at(controls.starsSlider.index).tag, 1);
    QTest::mouseClick(stars, Qt::LeftButton, {}, QPoint(first, first));
    EXPECT_EQ(state.at(controls.starsSlider.index).tag, 0);
    QSignalSpy edited(&state, &FormStateBase::edited);
    state.setTag(controls.starsSlider.index, 5);
    EXPECT_EQ(stars->value(), 5);
    EXPECT_EQ(edited.count(), 0);

    auto* wear = control<QProgressBar>(controls.wearProgress);
    auto* condition = control<QLabel>(controls.stateField);
    type(controls.priceField, QStringLiteral("4"));
    EXPECT_EQ(wear->value(), 40);
    EXPECT_EQ(condition->palette().color(QPalette::WindowText), QApplication::palette().color(QPalette::WindowText));
    type(controls.priceField, QStringLiteral("13"));
    EXPECT_EQ(wear->value(), 100);
    EXPECT_EQ(wear->text(), QStringLiteral("130\u00a0%"));
    EXPECT_EQ(condition->text(), u"worn");
    EXPECT_GT(condition->palette().color(QPalette::WindowText).red(), 200);
    const auto* hint = window.editWindow().findChild<QLabel*>(QStringLiteral("priceFieldHint"));
    EXPECT_TRUE(hint->text().isEmpty() && hint->isHidden());
    type(controls.priceField, QStringLiteral("1001"));
    EXPECT_EQ(hint->text(), u"usually 0 to 1000");
    EXPECT_FALSE(hint->isHidden());
    EXPECT_EQ(control<QLineEdit>(controls.priceField)->accessibleDescription(), hint->text());
}

TEST(AddressOf, leadsOutOnlyWhereAnAddressDoes) {
    const std::tuple<Opens, const char*, const char*> cases[] = {
        {Opens::mail, " club@example.org ", "mailto:club@example.org"},
        {Opens::mail, "none", ""},
        {Opens::phone, "+33 (0)1 23.45", "tel:+3312345"},
        {Opens::phone, "01 23 / 06 45", "tel:0123"},
        {Opens::phone, "ask", ""},
        {Opens::web, "example.org/a", "http://example.org/a"},
        {Opens::web, "https://example.org", "https://example.org"},
        {Opens::web, "file:///etc/passwd", ""},
        {Opens::web, "/etc/passwd", ""},
        {Opens::nothing, "https://example.org", ""},
    };
    for (const auto& [opens, text, address] : cases) {
        EXPECT_EQ(addressOf(opens, QString::fromUtf8(text)).toString(), QString::fromUtf8(address)) << text;
    }
}

}  // namespace

}  // namespace tavrel
