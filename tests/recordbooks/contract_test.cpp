// What every record book keeps, whatever its records.

#include "archive/recordarchive.h"
#include "base/texts.h"
#include "book/booktable.h"
#include "book/card.h"
#include "forms/formentry.h"
#include "recordbooks/bookcase.h"
#include "recordbooks/recordbooks.h"
#include "records/nodate.h"
#include "support/testdesktop.h"

#include <QRegularExpression>
#include <QSignalSpy>

#include <set>
#include <tuple>

namespace tavrel {

namespace {

struct RecordBook : testing::TestWithParam<BookCase> {
    const BookDescription& description = GetParam().book();
    const RecordLayout& layout = description.layout();
    TestDesktop desktop;
    std::unique_ptr<BookBase> book = description.make(desktop.desktop());
    const std::vector<PlacedControl>& controls = book->form().state().table().controls();
};

TEST_P(RecordBook, archivesItsFieldsInOrder) {
    const auto record = distinctRecord(GetParam());
    const auto items = archivedItems(GetParam());
    QStringList expected;
    for (const auto& item : items) {
        int place = 0;
        while (items[static_cast<std::size_t>(place)].field != item.source) {
            ++place;
        }
        const std::string number = std::to_string(place + 1);
        const FieldKind kind = layout.field(std::string_view(item.source)).kind();
        const std::string value = item.code == 'i'           ? number
                                  : item.code == 'f'         ? number + ".5"
                                  : kind == FieldKind::date  ? std::to_string((place + 1) * 86400)
                                  : kind == FieldKind::image ? "nil"  // the name that pictures do not have
                                                             : "t" + number;
        expected << QString::fromStdString(std::string(1, item.code) + ' ' + value);
    }
    EXPECT_EQ(itemsOf(writeRecords({record}, layout)), expected);
}

TEST_P(RecordBook, givesItsBytesBack) {
    const QByteArray written = writeRecords({distinctRecord(GetParam()), layout.make()}, layout);
    ASSERT_TRUE(book->loadDataRepresentation(written, book->type()));
    ASSERT_EQ(book->count(), 2);
    for (const auto& item : archivedItems(GetParam())) {
        const Field field = layout.field(std::string_view(item.field));
        const Field source = layout.field(std::string_view(item.source));
        EXPECT_TRUE(field.value(*book->recordAt(0)) == source.value(*distinctRecord(GetParam()))) << item.field;
    }
    // A doubled slot settles with the first reading.
    const auto again = book->dataRepresentationOfType(QStringLiteral("Any"));
    ASSERT_TRUE(again);
    EXPECT_EQ(*again, written);
    EXPECT_EQ(*recordClassOf(*again), QString::fromUtf8(description.kind.recordClass));
}

TEST_P(RecordBook, replacesItsListBeforeItChecksTheType) {
    EXPECT_EQ(book->type(), QString::fromUtf8(GetParam().typeName));
    const QByteArray written = writeRecords({layout.make()}, layout);
    const bool succeeds = book->loadDataRepresentation(written, QStringLiteral("Other")).has_value();
    EXPECT_EQ(succeeds, description.typeCheck == TypeCheck::none);
    EXPECT_EQ(book->count(), 1);
    EXPECT_FALSE(book->loadDataRepresentation(QByteArray("no typed stream"), book->type()));
    EXPECT_EQ(book->count(), 1);
}

TEST_P(RecordBook, startsWithABlankForm) {
    book->appendRecords(QStringLiteral("Add"), {layout.make(), layout.make()});
    QSignalSpy focus(&book->form().state(), &FormStateBase::focusRequested);
    book->newRecord();
    EXPECT_FALSE(book->hasEntries());
    ASSERT_FALSE(focus.isEmpty());
    EXPECT_EQ(focus.back()[0].toInt(), book->form().state().table().find(description.numberField));
    EXPECT_EQ(book->selectedRow(), -1);
    EXPECT_GE(book->form().state().table().find(description.numberField), 0);
    EXPECT_EQ(formatPlaceholders(description.words.windowTitle.text()), u"@");
    const auto record = book->form().buildRecord();
    for (const auto& item : archivedItems(GetParam())) {
        const Field field = layout.field(std::string_view(item.field));
        if (const auto* text = field.get<QString>(*record)) {
            EXPECT_FALSE(text->isNull()) << item.field;
        } else if (const auto* date = field.get<Date>(*record)) {
            EXPECT_TRUE(isNoDate(*date) || *date == Date::fromDateTime(desktop.clock.moment)) << item.field;
        }
    }
    EXPECT_TRUE(desktop.alerts.failures.empty());
}

QString entryFor(const Control& control, int place) {
    switch (control.kind) {
        case ControlKind::onOff:
            return QStringLiteral("1");
        case ControlKind::slider:
        case ControlKind::rating:
            return QString::number(control.maximum);
        case ControlKind::date:
            return QStringLiteral("2020-01-%1").arg(place % 28 + 1, 2, 10, QLatin1Char('0'));
        case ControlKind::time:
            return QStringLiteral("07:%1").arg(place % 60, 2, 10, QLatin1Char('0'));
        default:
            return QString::number(control.choices.empty() ? place + 1 : control.choices.back().tag);
    }
}

TEST_P(RecordBook, bringsARecordFromTheFormAndBack) {
    book->newRecord();
    FormStateBase& state = book->form().state();
    std::vector<int> taking;
    for (int index = 0; index < static_cast<int>(controls.size()); ++index) {
        const auto& placed = controls[static_cast<std::size_t>(index)];
        const ControlKind kind = placed.control.kind;
        if (takesEntries(kind) && kind != ControlKind::picture && !placed.field.empty()) {
            taking.push_back(index);
            EXPECT_TRUE(enterValue(state, index, entryFor(placed.control, index))) << placed.name;
        }
    }
    EXPECT_TRUE(book->hasEntries());
    const auto shown = [&] {
        return eachOf(taking, [&](int index) {
            const ControlState& at = state.at(index);
            return QStringLiteral("%1: %2, %3, %4").arg(index).arg(at.text).arg(at.tag).arg(at.date.toIso());
        });
    };
    const QString entered = shown();
    const auto record = book->form().buildRecord();
    book->form().blankFields(0);
    book->form().editFields(*record);
    EXPECT_FALSE(book->hasEntries());
    EXPECT_EQ(shown(), entered);
    EXPECT_EQ(writeRecords({book->form().buildRecord()}, layout), writeRecords({record}, layout));
}

TEST_P(RecordBook, hasAControlForEveryStoredFieldAndNarrowMargins) {
    const PrintSettings& print = description.print;
    EXPECT_EQ(std::tuple(print.top, print.bottom, print.left, print.right, print.scale),
              std::tuple(24.8, 25.0, 10.0, 10.0, 0.7));
    for (const auto& item : archivedItems(GetParam())) {
        const QString name = QString::fromStdString(item.field);
        EXPECT_TRUE(book->form().state().table().find(item.field) >= 0 || book->form().holdsBeside(name)) << item.field;
    }
    EXPECT_EQ(book->form().state().table().pageCount(), GetParam().pages);
    EXPECT_EQ(static_cast<int>(description.pages.size()), GetParam().pages);
}

TEST_P(RecordBook, hasItsColumnsWithTitles) {
    const BookTable table(*book);
    QStringList fields;
    for (const auto& placed : table.columns()) {
        const std::string where = placed.column->field;
        EXPECT_EQ(table.columnOf(where), fields.size());
        fields << QString::fromStdString(where);
        if (placed.column->alignment != Qt::AlignLeft) {
            fields.back() += placed.column->alignment == Qt::AlignRight ? u'>' : u'|';
        }
        EXPECT_FALSE(placed.field.isNull() || placed.column->title.isEmpty()) << where;
    }
    EXPECT_EQ(fields.join(u' ').toStdString(), GetParam().columns);
}

TEST_P(RecordBook, writesACardOfEveryRecord) {
    ASSERT_EQ(description.card == nullptr, GetParam().closing == nullptr);
    if (!description.card) {
        return;
    }
    const RecordList records{distinctRecord(GetParam()), layout.make()};
    const StyledText card = description.card(records, desktop.desktop(), QStringLiteral("/home/b.file"));
    EXPECT_EQ(card.runs().front().colour, plaincolour::green);
    EXPECT_EQ(card.runs().back().colour, plaincolour::green);
    EXPECT_TRUE(card.runs().back().text.startsWith(QString::fromUtf8(GetParam().closing)))
        << card.runs().back().text.toStdString();
    EXPECT_TRUE(QRegularExpression(QStringLiteral(" 14:30:00 [+-][0-9]{4}$")).match(card.text()).hasMatch())
        << card.text().toStdString();
    EXPECT_GE(card.text().count(QStringLiteral("\r--------------------")), GetParam().separators);
    EXPECT_FALSE(card.text().contains(u'\n'));
    for (const QColor& colour : {plaincolour::black, plaincolour::blue}) {  // of labels, of values
        EXPECT_TRUE(std::any_of(card.runs().begin(), card.runs().end(),
                                [&](const StyledRun& run) { return run.colour == colour; }));
    }
}

TEST_P(RecordBook, offersItsCommandsInTwoToolbars) {
    const QStringList words = QString::fromUtf8(GetParam().commands).split(u' ');
    const QString divider = QString::fromUtf8(toolSeparator);
    const QString end = QStringLiteral(" synthese %1 %2 %3")
                            .arg(divider, QString::fromUtf8(toolCustomise), QString::fromUtf8(toolFlexibleSpace));
    const QString table = QStringLiteral("saveDocument imprimer %1 %2 %3").arg(divider, words[0], words[4]) + end;
    const QString edit = QStringLiteral("%1 %2 %3 blankFields").arg(words[1], words[2], words[3]) + end;
    EXPECT_EQ(joined(description.tableToolBar.initial), table);
    EXPECT_EQ(joined(description.editToolBar.initial), edit);
    const QStringList needRecords{QStringLiteral("imprimer"), words[2], words[3], words[4], QStringLiteral("synthese")};
    for (const auto& bar : {description.tableToolBar, description.editToolBar}) {
        for (const ToolItem& item : bar.items) {
            EXPECT_EQ(item.needsRecords, needRecords.contains(QString::fromUtf8(item.identifier))) << item.identifier;
        }
    }
}

TEST_P(RecordBook, addsChangesDeletesAndTakesItBack) {
    book->newRecord();
    book->addRecord();
    EXPECT_EQ(book->count(), 1);
    EXPECT_EQ(book->countText(), QString::fromUtf8(GetParam().oneRecord));
    book->addRecord();
    EXPECT_TRUE(book->countText().startsWith(u"2 "));
    book->userSelects({0});
    book->insertRecord();
    EXPECT_EQ(book->count(), 3);
    book->updateRecord();
    desktop.alerts.answerNext(0);
    book->deleteRecords();
    EXPECT_EQ(book->count(), 2);
    QStringList steps;
    while (book->undoStack().canUndo()) {
        steps << book->undoStack().undoText();
        book->undoStack().undo();
    }
    EXPECT_EQ(book->count(), 0);
    const BookWords& words = description.words;
    EXPECT_EQ(steps, QStringList({words.undoDelete.text(), words.undoUpdate.text(), words.undoInsert.text(),
                                  words.undoAdd.text(), words.undoAdd.text()}));
    EXPECT_EQ(std::set<QString>(steps.begin(), steps.end()).size(), 4U);
    EXPECT_FALSE(book->isChanged());
}

TEST(RecordBooks, areMadeByActionsOfTheirOwn) {
    const auto action = [](const auto& book) {
        return QString::fromUtf8(book().newAction).remove(QStringLiteral("DocumentMenuAction"));
    };
    EXPECT_EQ(
        eachOf(recordBooks, action, u' '),
        u"newMateriel newEpaves newCompresseur newRebreather newConsommables newBudget newEntreprise newStructure "
        u"newDocument");
}

INSTANTIATE_TEST_SUITE_P(All, RecordBook, testing::ValuesIn(bookCases),
                         [](const auto& each) { return std::string(each.param.name); });

}  // namespace

}  // namespace tavrel
