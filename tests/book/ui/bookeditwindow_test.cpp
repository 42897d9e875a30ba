#include "book/ui/bookeditwindow.h"

#include "book/ui/bookactions.h"
#include "desktop/ui/customtoolbar.h"
#include "forms/formentry.h"
#include "forms/ui/datepicker.h"
#include "forms/ui/listcombo.h"
#include "logbook/carnet.h"
#include "support/testdesktop.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QCompleter>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QSignalSpy>
#include <QSlider>
#include <QTest>
#include <QWheelEvent>

#include <set>

namespace tavrel {

namespace {

struct BookEditWindowTest : testing::Test {
    BookEditWindowTest() { show(); }

    void show() {
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    FormStateBase& state() { return carnet.form().state(); }
    const std::vector<PlacedControl>& placed() const { return controls.controls(); }
    QWidget* widget(int index) { return window.pages().widget(index); }
    template <class Widget, class Id>
    Widget* find(Id id) {
        auto* found = qobject_cast<Widget*>(widget(id.index));
        EXPECT_TRUE(found) << placed()[static_cast<std::size_t>(id.index)].name;
        window.goView(window.pages().pageOf(id.index));
        return found;
    }

    /// Does with the widget of a control what a user would; gives the control's state as it should then be.
    ControlState use(int index);
    /// What the widget of a control shows, in the words of a state.
    ControlState shown(int index);
    void addDives(int count) {
        for (int each = 0; each < count; ++each) {
            carnet.newDive();
            carnet.addDive();
        }
    }

    TestDesktop desktop;
    Carnet carnet{desktop.desktop()};
    const DiveControls& controls = carnet.form().controls();
    BookActions actions{carnet};
    BookEditWindow window{carnet, actions};
};

ControlState BookEditWindowTest::use(int index) {
    const Control& control = placed()[static_cast<std::size_t>(index)].control;
    ControlState expected = state().at(index);
    QWidget* used = widget(index);
    const auto* combo = qobject_cast<ListCombo*>(used);
    if (auto* line = combo ? combo->lineEdit() : qobject_cast<QLineEdit*>(used)) {
        line->selectAll();
        QTest::keyClicks(line, QStringLiteral("4x2"));
        expected.text = QStringLiteral("4x2");
    } else if (auto* menu = qobject_cast<QComboBox*>(used)) {
        const int row = menu->currentIndex() == 0 ? 1 : 0;
        menu->setFocus();
        QTest::keyClick(menu, row == 1 ? Qt::Key_Down : Qt::Key_Home);
        expected.tag = control.choices[static_cast<std::size_t>(row)].tag;
    } else if (control.kind == ControlKind::radio) {
        QTest::mouseClick(used->findChildren<QRadioButton*>().at(2), Qt::LeftButton, {}, QPoint(5, 10));
        expected.tag = control.choices[2].tag;
    } else if (auto* box = qobject_cast<QCheckBox*>(used)) {
        box->click();
        expected.tag = 1;
    } else if (auto* slider = qobject_cast<QSlider*>(used)) {
        QTest::keyClick(slider, Qt::Key_Right);
        expected.tag = 1;
    } else if (auto* picker = qobject_cast<DatePicker*>(used)) {
        picker->setFocus();
        QTest::keyClick(picker, Qt::Key_Up);
        expected.date = state().at(index).date;
    } else if (auto* text = qobject_cast<QPlainTextEdit*>(used)) {
        QTest::keyClicks(text, QStringLiteral("a b"));
        QTest::keyClick(text, Qt::Key_Return);
        expected.text = QStringLiteral("a b\n");
    }
    return expected;
}

ControlState BookEditWindowTest::shown(int index) {
    ControlState seen = state().at(index);
    QWidget* used = widget(index);
    seen.enabled = used->isEnabled();
    if (const auto* line = qobject_cast<QLineEdit*>(used)) {
        seen.text = line->text();
    } else if (const auto* combo = qobject_cast<ListCombo*>(used)) {
        seen.text = combo->currentText();
    } else if (const auto* menu = qobject_cast<QComboBox*>(used)) {
        seen.tag = menu->currentIndex() < 0 ? -1 : menu->currentData().toInt();
    } else if (const auto* box = qobject_cast<QCheckBox*>(used)) {
        seen.tag = box->isChecked() ? 1 : 0;
    } else if (const auto* slider = qobject_cast<QSlider*>(used)) {
        seen.tag = slider->value();
    } else if (const auto* text = qobject_cast<QPlainTextEdit*>(used)) {
        seen.text = text->toPlainText();
    } else if (const auto* label = qobject_cast<QLabel*>(used)) {
        seen.text = label->text();
    }
    const auto radios = used->findChildren<QRadioButton*>();
    for (qsizetype place = 0; place < radios.size(); ++place) {
        if (radios[place]->isChecked()) {
            const Control& control = placed()[static_cast<std::size_t>(index)].control;
            seen.tag = control.choices[static_cast<std::size_t>(place)].tag;
        }
    }
    return seen;
}

TEST_F(BookEditWindowTest, bindsEveryControlOfTheTableOnceAndBothWays) {
    carnet.newDive();
    std::set<QWidget*> met;
    for (int index = 0; index < static_cast<int>(placed().size()); ++index) {
        const auto& [control, name, field, group, line, place] = placed()[static_cast<std::size_t>(index)];
        SCOPED_TRACE(name);
        QWidget* bound = widget(index);
        ASSERT_TRUE(met.insert(bound).second);
        EXPECT_EQ(bound->objectName().toStdString(), name);
        EXPECT_FALSE(bound->accessibleName().isEmpty());
        const int page = controls.groups()[static_cast<std::size_t>(group)].page;
        EXPECT_TRUE(window.pages().page(page)->isAncestorOf(bound));
        if (!takesEntries(control.kind)) {
            continue;
        }
        window.goView(page);
        state().setTag(controls.rebreatherMatrix.index, 1);  // the flow can be typed
        carnet.updateUI();
        QSignalSpy edited(&state(), &FormStateBase::edited);
        const Date before = state().at(index).date;
        const ControlState expected = use(index);
        EXPECT_GE(edited.size(), 1);
        EXPECT_EQ(state().at(index), expected);
        EXPECT_EQ(state().at(index).date == before,
                  control.kind != ControlKind::date && control.kind != ControlKind::time);

        edited.clear();
        state().setText(index, QStringLiteral("18"));
        state().setTag(index, control.choices.empty() ? 1 : control.choices.back().tag);
        EXPECT_EQ(shown(index), state().at(index));
        EXPECT_EQ(edited.size(), 0);
    }
    EXPECT_EQ(window.pages().pageCount(), 6);
}

TEST_F(BookEditWindowTest, visitsTheControlsInReadingOrder) {
    for (int page = 1; page <= window.pageCount(); ++page) {
        std::vector<std::array<int, 3>> order;
        QWidget* first = nullptr;
        for (int index = 0; index < static_cast<int>(placed().size()) && !first; ++index) {
            if (window.pages().pageOf(index) == page && widget(index)->focusPolicy() & Qt::TabFocus) {
                first = widget(index);
            }
        }
        ASSERT_TRUE(first);
        QWidget* at = first;
        do {
            const int index = controls.find(at->objectName().toStdString());
            if (index >= 0 && (at->focusPolicy() & Qt::TabFocus)) {
                const PlacedControl& control = placed()[static_cast<std::size_t>(index)];
                const auto& group = controls.groups()[static_cast<std::size_t>(control.group)];
                const int place = group.layout == GroupLayout::pairs ? 0 : control.place;
                order.push_back({control.group, place, index});
            }
            at = at->nextInFocusChain();
        } while (at != first && window.pages().page(page)->isAncestorOf(at));
        EXPECT_TRUE(std::is_sorted(order.begin(), order.end())) << "page " << page;
        EXPECT_GT(order.size(), 6U) << "page " << page;
    }
}

TEST_F(BookEditWindowTest, combosFollowTheSharedListsAndKeepWhatIsTyped) {
    auto* combo = find<ListCombo>(controls.lieuField);
    state().setText(controls.lieuField.index, QStringLiteral("nice"));
    desktop.pickLists.append(PickList::tableauDesLieux, QStringLiteral("Nice"));
    desktop.pickLists.append(PickList::tableauDesLieux, QStringLiteral("Calvi"));
    EXPECT_EQ(combo->count(), 2);
    EXPECT_EQ(combo->currentText(), u"nice");
    EXPECT_EQ(find<ListCombo>(controls.volumeBlocField[1])->count(), 16);

    // What the document holds is proposed along with the list, each once, in the order of the language.
    carnet.appendDives(QStringLiteral("Add"), {Plongee(), Plongee(), Plongee()});
    for (int row = 0; row < 3; ++row) {
        ASSERT_TRUE(carnet.setValue(row, QStringLiteral("lieu"), QStringLiteral(u"Élbe")));
    }
    combo->lineEdit()->clearFocus();
    combo->lineEdit()->setFocus();
    EXPECT_EQ(combo->proposals().join(u'|'), QStringLiteral("Calvi|Élbe|Nice"));
    EXPECT_EQ(combo->count(), 2) << "the list itself stays as it is";
    // One that the keys take is what was typed, and is asked about once.
    combo->lineEdit()->selectAll();
    QTest::keyClicks(combo->lineEdit(), QStringLiteral("lb"));
    QTest::keyClick(combo->completer()->popup(), Qt::Key_Down);
    desktop.alerts.answerNext(1);
    QTest::keyClick(combo->completer()->popup(), Qt::Key_Return);
    EXPECT_TRUE(QTest::qWaitFor([&] { return desktop.alerts.questions.size() == 1; }));
    EXPECT_EQ(state().at(controls.lieuField.index).text, u"Élbe");
    combo->lineEdit()->clearFocus();
    QCoreApplication::processEvents();
    carnet.undoStack().clear();
    carnet.replaceList({});

    // The words come up for the list once they are finished, however the editing ends, and differing capitals stay.
    combo->lineEdit()->selectAll();
    QTest::keyClicks(combo->lineEdit(), QStringLiteral("CALVI"));
    desktop.alerts.answerNext(0);
    QTest::keyClick(combo->lineEdit(), Qt::Key_Return);
    EXPECT_TRUE(QTest::qWaitFor([&] { return desktop.alerts.questions.size() == 2; }));
    EXPECT_EQ(combo->count(), 3);
    EXPECT_EQ(state().at(controls.lieuField.index).text, u"CALVI");
    QTest::keyClick(combo->lineEdit(), Qt::Key_Return);

    combo->lineEdit()->selectAll();
    QTest::keyClicks(combo->lineEdit(), QStringLiteral("Sete"));
    desktop.alerts.answerNext(1);
    window.toolBar().action(QStringLiteral("addDiveToList"))->trigger();
    QCoreApplication::processEvents();
    EXPECT_EQ(desktop.alerts.questions.size(), 3U);
    EXPECT_EQ(carnet.recordAt(0)->lieu, u"Sete");

    combo->setFocus();
    QTest::keyClick(combo, Qt::Key_Down);
    EXPECT_EQ(state().at(controls.lieuField.index).text, u"CALVI");
}

TEST_F(BookEditWindowTest, leavesValuesAloneThatNobodyChanged) {
    // A tag without an item, a text that a widget would alter, a moment beyond any calendar, no date at all.
    const QString notes = QStringLiteral("a\r\nb\u00a0c");
    state().setTag(controls.typePlongeePopUp.index, 2);
    state().setTag(controls.difficulteSlider.index, 9);
    state().setText(controls.notesField.index, notes);
    state().setDate(controls.dateField.index, Date(1e300));
    state().setDate(controls.heureField.index, {});
    EXPECT_EQ(find<QComboBox>(controls.typePlongeePopUp)->currentIndex(), -1);
    for (int index = 0; index < static_cast<int>(placed().size()); ++index) {
        const auto kind = placed()[static_cast<std::size_t>(index)].control.kind;
        if (!takesEntries(kind)) {
            continue;
        }
        window.goView(window.pages().pageOf(index));
        auto* target = widget(index);
        const ControlState before = state().at(index);
        window.setFocus();
        QWheelEvent wheel(QPointF(5, 5), target->mapToGlobal(QPointF(5, 5)), {}, QPoint(0, -120), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(target, &wheel);
        target->setFocus();
        window.setFocus();
        EXPECT_EQ(state().at(index), before) << placed()[static_cast<std::size_t>(index)].name;
    }
    auto* edit = find<QPlainTextEdit>(controls.notesField);
    edit->moveCursor(QTextCursor::End);
    QTest::keyClicks(edit, QStringLiteral("d"));
    EXPECT_EQ(state().at(controls.notesField.index).text, QStringLiteral("a\nb\u00a0cd"));
}

TEST_F(BookEditWindowTest, picksTheDayAndTheTimeApart) {
    const QDateTime moment(QDate(2023, 7, 9), QTime(10, 20, 30, 250));
    auto* day = find<DatePicker>(controls.dateField);
    auto* time = find<DatePicker>(controls.heureField);
    for (const auto& id : {controls.dateField, controls.heureField}) {
        state().setDate(id.index, Date::fromDateTime(moment));
    }
    day->setDate(QDate(2024, 2, 29));
    time->setTime(QTime(8, 5, 30, 250));
    EXPECT_EQ(state().at(controls.dateField.index).date.toDateTime(), QDateTime(QDate(2024, 2, 29), moment.time()));
    EXPECT_EQ(state().at(controls.heureField.index).date.toDateTime(), QDateTime(moment.date(), QTime(8, 5, 30, 250)));

    state().setDate(controls.dateField.index, {});
    EXPECT_TRUE(day->text().trimmed().isEmpty());
    state().setDate(controls.heureField.index, Date(0));
    EXPECT_FALSE(time->text().trimmed().isEmpty());
    day->setDate(QDate(2020, 1, 2));
    EXPECT_EQ(state().at(controls.dateField.index).date.toDateTime(), QDate(2020, 1, 2).startOfDay());
}

TEST_F(BookEditWindowTest, keepsOneSizeOverItsPages) {
    window.move(40, 30);
    const QRect frame = window.geometry();
    for (const int page : {3, 2, 6, 1, 4, 5}) {
        QTest::keyClick(&window, static_cast<Qt::Key>(Qt::Key_0 + page), Qt::ControlModifier);
        EXPECT_EQ(window.currentPage(), page);
        EXPECT_TRUE(window.pages().page(page)->isVisible());
        EXPECT_FALSE(window.pages().page(page % 6 + 1)->isVisible());
        EXPECT_GE(window.pages().page(page)->height(), window.pages().page(page)->sizeHint().height());
        EXPECT_EQ(window.geometry(), frame);
    }
    EXPECT_LE(window.height(), window.screen()->availableSize().height());
}

TEST_F(BookEditWindowTest, storesTheFormAndGoesFromRecordToRecord) {
    window.close();
    addDives(3);
    carnet.newDive();
    EXPECT_TRUE(window.isVisible());
    show();
    EXPECT_EQ(window.windowTitle(), textWith("Carnet", "Dive number title", 4));
    EXPECT_EQ(window.focusWidget(), widget(controls.noPlongeeField.index));
    auto* previous = window.findChild<QPushButton*>(QStringLiteral("previousRecord"));
    auto* next = window.findChild<QPushButton*>(QStringLiteral("nextRecord"));
    EXPECT_FALSE(previous->isEnabled() || next->isEnabled());

    carnet.selectRows({0});
    EXPECT_EQ(window.windowTitle(), textWith("Carnet", "Dive number title", 1));
    EXPECT_TRUE(!previous->isEnabled() && next->isEnabled());
    QTest::keyClicks(find<QLineEdit>(controls.bateauField), QStringLiteral("Alcyon"));
    next->click();
    EXPECT_EQ(carnet.selectedRow(), 1);
    EXPECT_EQ(carnet.recordAt(0)->bateau, u"Alcyon");
    EXPECT_TRUE(previous->isEnabled() && next->isEnabled());
    EXPECT_TRUE(find<QLineEdit>(controls.bateauField)->text().isEmpty());

    QTest::keyClicks(find<QLineEdit>(controls.bateauField), QStringLiteral("Elie"));
    QTest::keyClick(&window, Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(carnet.recordAt(1)->bateau, u"Elie");
    QTest::keyClicks(find<QLineEdit>(controls.bateauField), QStringLiteral(" Monnier"));
    window.close();
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(carnet.recordAt(1)->bateau, u"Elie Monnier");
    EXPECT_EQ(carnet.count(), 3);

    // The title follows the number that is typed.
    auto* number = find<QLineEdit>(controls.noPlongeeField);
    number->selectAll();
    QTest::keyClicks(number, QStringLiteral("77"));
    EXPECT_EQ(window.windowTitle(), textWith("Carnet", "Dive number title", 77));
    carnet.blankFields();
    EXPECT_EQ(window.windowTitle(), u"New Dive");
}

TEST_F(BookEditWindowTest, turnsItsPagesByKeysWhateverIsSelected) {
    addDives(3);
    carnet.selectRows({1});
    carnet.editWindow();
    const int top = window.currentPage();
    QTest::keyClick(&window, Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(window.currentPage(), top + 1);
    QTest::keyClick(&window, Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_EQ(window.currentPage(), top);
    EXPECT_EQ(carnet.selectedRow(), 1);
    QTest::keyClick(&window, Qt::Key_PageDown, Qt::AltModifier);
    EXPECT_EQ(carnet.selectedRow(), 2);
}

TEST_F(BookEditWindowTest, storesNothingThatNobodyTyped) {
    addDives(2);
    carnet.undoStack().setClean();
    carnet.selectRows({0});
    QTest::keyClick(&window, Qt::Key_Return, Qt::ControlModifier);
    window.findChild<QPushButton*>(QStringLiteral("nextRecord"))->click();
    auto* boat = find<QLineEdit>(controls.bateauField);
    QTest::keyClicks(boat, QStringLiteral("x"));
    QTest::keyClick(boat, Qt::Key_Backspace);
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible() || carnet.isChanged());

    // Nor is a new dive added that nobody touched, though the button adds what it is told to.
    carnet.newDive();
    show();
    QTest::keyClick(&window, Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(carnet.count(), 2);
    QTest::keyClicks(find<QLineEdit>(controls.bateauField), QStringLiteral("Alcyon"));
    QTest::keyClick(&window, Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(carnet.count(), 3);
    window.toolBar().action(QStringLiteral("addDiveToList"))->trigger();
    EXPECT_EQ(carnet.count(), 4);
}

TEST_F(BookEditWindowTest, asksBeforeEscapeLosesWhatWasTyped) {
    enum { keep, discard };
    addDives(1);
    carnet.selectRows({0});
    const auto typeAndEscape = [&](int answer) {
        show();
        QTest::keyClicks(find<QLineEdit>(controls.bateauField), QStringLiteral("A"));
        desktop.alerts.answerNext(answer);
        QTest::keyClick(&window, Qt::Key_Escape);
        EXPECT_FALSE(window.isVisible());
    };
    typeAndEscape(discard);
    EXPECT_TRUE(carnet.recordAt(0)->bateau.isEmpty());
    typeAndEscape(keep);
    EXPECT_EQ(carnet.recordAt(0)->bateau, u"A");
    EXPECT_EQ(desktop.alerts.questions.size(), 2U);
}

TEST_F(BookEditWindowTest, saysThatAddingAStoredRecordMakesASecondOne) {
    QAction* add = window.toolBar().action(QStringLiteral("addDiveToList"));
    EXPECT_EQ(add->iconText(), text("Main", "Add"));
    addDives(1);
    carnet.selectRows({0});
    EXPECT_EQ(add->iconText(), text("Main", "Add second"));
    add->trigger();
    EXPECT_EQ(carnet.count(), 2);
    EXPECT_EQ(add->iconText(), text("Main", "Add"));
}

}  // namespace

}  // namespace tavrel
