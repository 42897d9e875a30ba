#include "recordbooks/rebreather.h"

#include "base/numbers.h"
#include "book/card.h"
#include "book/standardbook.h"
#include "desktop/commonsettings.h"
#include "desktop/preferences.h"
#include "recordbooks/recordbooks.h"

namespace tavrel {

namespace {

constexpr Item items[] = {
    {"date", member<&Rebreather::date>},
    {"rebreatherTime", member<&Rebreather::rebreatherTime>},
    {"sofnoTime", member<&Rebreather::sofnoTime>},
    {"sofnolime", member<&Rebreather::sofnolime>},
    {"disinfection", member<&Rebreather::disinfection>},
    {"battery", member<&Rebreather::battery>},
    {"cells", member<&Rebreather::cells>},
    {"nbCells", member<&Rebreather::nbCells>},
    {"injector", member<&Rebreather::injector>},
    {"valve", member<&Rebreather::valve>},
    {"oRing", member<&Rebreather::oRing>},
    {"electronicHead", member<&Rebreather::electronicHead>},
    {"scrubber", member<&Rebreather::scrubber>},
    {"mpO2", member<&Rebreather::mpO2>, Travel::plain, 2},
    {"mpO2Value", member<&Rebreather::mpO2Value>, Travel::plain, 2},
    {"cell1", member<&Rebreather::cell1>, Travel::plain, 3},
    {"cell2", member<&Rebreather::cell2>, Travel::plain, 3},
    {"cell3", member<&Rebreather::cell3>, Travel::plain, 3},
    {"cell4", member<&Rebreather::cell4>, Travel::plain, 3},
    {"cell5", member<&Rebreather::cell5>, Travel::plain, 3},
    {"cell1_in", member<&Rebreather::cell1_in>, Travel::plain, 3},
    {"cell2_in", member<&Rebreather::cell2_in>, Travel::plain, 3},
    {"cell3_in", member<&Rebreather::cell3_in>, Travel::plain, 3},
    {"cell4_in", member<&Rebreather::cell4_in>, Travel::plain, 3},
    {"cell5_in", member<&Rebreather::cell5_in>, Travel::plain, 3},
    {"notes", member<&Rebreather::notes>},
};

constexpr RecordLayout rebreatherLayout = recordLayout<Rebreather>("Rebreather", 3, items);

constexpr int cellCount = 5;
using Fitted = Date Rebreather::*;
constexpr std::array<Fitted, cellCount> fittedDates{&Rebreather::cell1_in, &Rebreather::cell2_in, &Rebreather::cell3_in,
                                                    &Rebreather::cell4_in, &Rebreather::cell5_in};

constexpr Choice cellCounts[] = {{0, literal("-")}, {1, literal("1")}, {2, literal("2")},
                                 {3, literal("3")}, {4, literal("4")}, {5, literal("5")}};

struct RebreatherControls : ControlTable<RebreatherControls> {
    static constexpr std::array<const char*, cellCount> places{"1", "2", "3", "4", "5"};

    const int interventionGroup = group({1, {"Rebreather", "Group intervention"}, GroupLayout::pairs, 2});
    const Id dateField = add({.name = "dateField",
                              .kind = ControlKind::date,
                              .field = "date",
                              .label = {"Rebreather", "Label date"},
                              .emptyAt1900 = true});
    const Id rebreatherTimeField =
        add({.name = "rebreatherTimeField", .field = "rebreatherTime", .label = {"Rebreather", "Label unit time"}});
    const Id sofnoTimeField = add({.name = "sofnoTimeField",
                                   .kind = ControlKind::time,
                                   .field = "sofnoTime",
                                   .label = {"Rebreather", "Label absorbent time"}});

    const int operationsGroup = group({1, {"Rebreather", "Group operations"}, GroupLayout::pairs, 2});
    const Id sofnolimeSwitch = add({.name = "sofnolimeSwitch",
                                    .kind = ControlKind::onOff,
                                    .field = "sofnolime",
                                    .label = {"Rebreather", "Label absorbent"}});
    const Id disinfectionSwitch = add({.name = "disinfectionSwitch",
                                       .kind = ControlKind::onOff,
                                       .field = "disinfection",
                                       .label = {"Rebreather", "Label disinfection"}});
    const Id batterySwitch = add({.name = "batterySwitch",
                                  .kind = ControlKind::onOff,
                                  .field = "battery",
                                  .label = {"Rebreather", "Label battery"}});
    const Id injectorSwitch = add({.name = "injectorSwitch",
                                   .kind = ControlKind::onOff,
                                   .field = "injector",
                                   .label = {"Rebreather", "Label injector"}});
    const Id valveSwitch = add(
        {.name = "valveSwitch", .kind = ControlKind::onOff, .field = "valve", .label = {"Rebreather", "Label valve"}});
    const Id oRingSwitch = add({.name = "oRingSwitch",
                                .kind = ControlKind::onOff,
                                .field = "oRing",
                                .label = {"Rebreather", "Label O-rings"}});
    const Id electronicHeadSwitch = add({.name = "electronicHeadSwitch",
                                         .kind = ControlKind::onOff,
                                         .field = "electronicHead",
                                         .label = {"Rebreather", "Label electronic head"}});
    const Id scrubberSwitch = add({.name = "scrubberSwitch",
                                   .kind = ControlKind::onOff,
                                   .field = "scrubber",
                                   .label = {"Rebreather", "Label scrubber"}});

    const int oxygenGroup = group({1, {"Rebreather", "Group oxygen"}, GroupLayout::pairs, 2});
    const Id cellsSwitch = add({.name = "cellsSwitch",
                                .kind = ControlKind::onOff,
                                .field = "cells",
                                .label = {"Rebreather", "Label cells replaced"}});
    const Id nbCellsPopUp = add({.name = "nbCellsPopUp",
                                 .kind = ControlKind::popUp,
                                 .field = "nbCells",
                                 .label = {"Rebreather", "Label cell count"},
                                 .choices = cellCounts});
    const Id mpO2Switch = add({.name = "mpO2Switch",
                               .kind = ControlKind::onOff,
                               .field = "mpO2",
                               .label = {"Rebreather", "Label oxygen check"}});
    const Id mpO2ValueField = add({.name = "mpO2ValueField",
                                   .kind = ControlKind::decimal,
                                   .field = "mpO2Value",
                                   .label = {"Rebreather", "Label oxygen pressure"},
                                   .unit = literal("bar"),
                                   .clearedText = "0"});

    const int cellsGroup = group({2, {"Rebreather", "Group cells"}, GroupLayout::columns});
    const std::array<Id, cellCount> cellSwitch = addEach<cellCount>(
        places,
        {.name = "cell%Switch", .kind = ControlKind::onOff, .field = "cell%", .label = {"Rebreather", "Label fitted"}});
    const std::array<Id, cellCount> cell_inField =
        addEach<cellCount>(places, {.name = "cell%_inField",
                                    .kind = ControlKind::date,
                                    .field = "cell%_in",
                                    .label = {"Rebreather", "Label fitted on"},
                                    .emptyAt1900 = true});
    const std::array<Id, cellCount> cell_outField =
        addEach<cellCount>(places, {.name = "cell%_outField",
                                    .kind = ControlKind::date,
                                    .label = {"Rebreather", "Label end of life"},
                                    .emptyAt1900 = true});
    const std::array<Id, cellCount> cellProgress = addEach<cellCount>(
        places, {.name = "cell%Progress", .kind = ControlKind::progress, .label = {"Rebreather", "Label life used"}});

    const int notesGroup = group({3, {"Rebreather", "Group remarks"}});
    const Id notesField = add({.name = "notesField", .kind = ControlKind::longText, .field = "notes"});

    static const RebreatherControls& table() {
        static const RebreatherControls controls;
        return controls;
    }
};

class RebreatherForm : public RecordBookForm<RebreatherControls, Rebreather> {
public:
    using RecordBookForm::RecordBookForm;

protected:
    void clear(int) override {
        stored_.reset();
        state().setDate(controls().dateField, noDate());
        state().setDate(controls().sofnoTimeField, noDate());
        for (const auto& fitted : controls().cell_inField) {
            state().setDate(fitted, noDate());
        }
    }

    void show(const Rebreather& intervention) override { stored_ = intervention; }

    void complete(Rebreather& intervention) override {
        if (stored_) {
            stored_ = intervention;
        }
    }

    void refresh() override {
        const auto& form = controls();
        state().setEnabled(form.nbCellsPopUp, state().isOn(form.cellsSwitch));
        for (const auto& end : form.cell_outField) {
            state().setEnabled(end, false);
        }
        if (stored_) {
            const qint32 life = desktop().preferences.get(settings::cellLife);
            for (std::size_t cell = 0; cell < cellCount; ++cell) {
                updateCellsLifeWithDefault(life, cell);
            }
        }
    }

private:
    /// The end counts from the date that is stored, the share of life from the date in the form. What a cell that is
    /// not fitted shows stays.
    void updateCellsLifeWithDefault(qint32 months, std::size_t cell) {
        const auto& form = controls();
        if (!state().isOn(form.cellSwitch[cell])) {
            return;
        }
        const Date end = endOfCellLife((*stored_).*fittedDates[cell], months);
        state().setDate(form.cell_outField[cell], end);
        const double fitted = state().date(form.cell_inField[cell]).secondsSince2001();
        const double span = end.secondsSince2001() - fitted;
        state().setLevel(form.cellProgress[cell], span == 0 ? 0 : (today().secondsSince2001() - fitted) / span * 100);
    }

    std::optional<Rebreather> stored_;  ///< the record that the form shows
};

void blackCell(const Rebreather&, const TableStyle&, Cell& cell) {
    cell.style.text = plaincolour::black;
}

void absorbentTimeCell(const Rebreather& intervention, const TableStyle&, Cell& cell) {
    cell.text = hoursAndMinutes(intervention.sofnoTime);
    cell.style.text = plaincolour::black;
}

template <qint32 Rebreather::*operation>
void operationCell(const Rebreather& intervention, const TableStyle&, Cell& cell) {
    checkCell(intervention.*operation != 0, cell);
    cell.style.text = plaincolour::green;
}

template <auto number>
void numberCell(const Rebreather& intervention, const TableStyle&, Cell& cell) {
    if (intervention.*number == 0) {
        cell.text.clear();
    }
    cell.style.text = plaincolour::black;
}

template <qint32 Rebreather::*operation>
constexpr Column operationColumn(const char* field, Title title) {
    return {field, title, 8, Qt::AlignHCenter, cellHook<&operationCell<operation>>};
}

constexpr Column columns[] = {
    {"date", {"Rebreather", "Label date"}, widthOfDays, Qt::AlignRight, cellHook<&blackCell>},
    {"rebreatherTime", {"Rebreather", "Label unit time"}, 10, Qt::AlignRight, cellHook<&blackCell>},
    {"sofnoTime", {"Rebreather", "Label absorbent time"}, 9, Qt::AlignRight, cellHook<&absorbentTimeCell>},
    operationColumn<&Rebreather::sofnolime>("sofnolime", {"Rebreather", "Label absorbent"}),
    operationColumn<&Rebreather::disinfection>("disinfection", {"Rebreather", "Label disinfection"}),
    operationColumn<&Rebreather::battery>("battery", {"Rebreather", "Label battery"}),
    {"nbCells", {"Rebreather", "Label cell count"}, 8, Qt::AlignRight, cellHook<&numberCell<&Rebreather::nbCells>>},
    {"mpO2Value",
     {"Rebreather", "Label oxygen pressure"},
     8,
     Qt::AlignRight,
     cellHook<&numberCell<&Rebreather::mpO2Value>>},
    operationColumn<&Rebreather::injector>("injector", {"Rebreather", "Label injector"}),
    operationColumn<&Rebreather::valve>("valve", {"Rebreather", "Label valve"}),
    operationColumn<&Rebreather::oRing>("oRing", {"Rebreather", "Label O-rings"}),
    operationColumn<&Rebreather::electronicHead>("electronicHead", {"Rebreather", "Label electronic head"}),
    operationColumn<&Rebreather::scrubber>("scrubber", {"Rebreather", "Label scrubber"}),
};

/// The cells are those of the last intervention in the list.
void addCells(CardBuilder& card, const Rebreather& intervention) {
    static constexpr Title labels[] = {{"Rebreather", "Cell 1"},
                                       {"Rebreather", "Cell 2"},
                                       {"Rebreather", "Cell 3"},
                                       {"Rebreather", "Cell 4"},
                                       {"Rebreather", "Cell 5"}};
    static constexpr qint32 Rebreather::*fitted[] = {&Rebreather::cell1, &Rebreather::cell2, &Rebreather::cell3,
                                                     &Rebreather::cell4, &Rebreather::cell5};
    card.heading({"Rebreather", "Cells"});
    for (std::size_t cell = 0; cell < cellCount; ++cell) {
        if (intervention.*fitted[cell] != 0) {
            card.entry(labels[cell], intervention.*fittedDates[cell]);
        } else {
            card.entry(labels[cell], QStringLiteral("-"));
        }
    }
}

/// The text is the format of a calculator's result too; the words before its numbers are the label.
QString sodaTimeLabel() {
    const QString format = text("Rebreather", "Soda time");
    return format.left(format.indexOf(u'%'));
}

void addHistory(CardBuilder& card, const Rebreather& intervention) {
    card.entry({"Rebreather", "Date"}, intervention.date);
    card.heading({"Rebreather", "Rebreather history"});
    card.entry({"Rebreather", "Rebreather time"}, intervention.rebreatherTime);
    card.add(QStringLiteral("\r"), plaincolour::black);
    card.add(sodaTimeLabel(), plaincolour::black);
    card.add(intervention.sofnoTime.toDateTime().time().toString(u"HH:mm") + QStringLiteral(" h"), plaincolour::blue);
    const auto addWhenDone = [&card](qint32 done, const Title& label) {
        if (done != 0) {
            card.heading(label);
        }
    };
    addWhenDone(intervention.sofnolime, {"Rebreather", "Sofnolime"});
    addWhenDone(intervention.disinfection, {"Rebreather", "Disinfection"});
    addWhenDone(intervention.battery, {"Rebreather", "Battery"});
    addWhenDone(intervention.cells, {"Rebreather", "Cells replacement"});
    if (intervention.mpO2 != 0) {
        card.entry({"Rebreather", "MpO2"},
                   fillFormat(QStringLiteral(" : %@ bar"), {formatArgument(intervention.mpO2Value)}));
    }
    addWhenDone(intervention.injector, {"Rebreather", "Injector"});
    addWhenDone(intervention.valve, {"Rebreather", "Valve"});
    addWhenDone(intervention.oRing, {"Rebreather", "ORing"});
    addWhenDone(intervention.electronicHead, {"Rebreather", "Electonic head"});
    addWhenDone(intervention.scrubber, {"Rebreather", "Scrubber"});
    card.entry({"Rebreather", "Remarks"}, intervention.notes);
}

StyledText card(const CardRecords& records, const Desktop& desktop, const QString& file) {
    const QString separator = QStringLiteral("\r----------------------------------------\r");
    CardBuilder card({"Rebreather", "Inventory"});
    if (!records.list().empty()) {
        addCells(card, static_cast<const Rebreather&>(*records.list().back()));
    }
    for (const auto& record : records) {
        card.add(separator, plaincolour::black);
        addHistory(card, static_cast<const Rebreather&>(*record));
    }
    card.add(separator, plaincolour::black);
    return card.finish(file, desktop.clock.now());
}

constexpr Title pages[] = {
    {"Rebreather", "Page intervention"}, {"Rebreather", "Page cells"}, {"Rebreather", "Page remarks"}};

constexpr BookCommands commands{"newRebreatherService", "addRebreatherService", "insertRebreatherService",
                                "updateRebreatherService", "deleteRebreatherService"};
constexpr RecordBookTools tools(commands);

constexpr BookWords words() {
    BookWords words =
        recordBookWords({"Rebreather", "Edit window title"}, {"Rebreather", "Menu"}, {"Rebreather", "Table name"});
    words.oneRecord = {"Main", "One intervention"};
    words.manyRecords = {"Main", "Interventions"};
    words.eraseQuestions = {"Main", "Erase interventions"};
    return words;
}

}  // namespace

const RecordLayout& Rebreather::layout() {
    return rebreatherLayout;
}

Date endOfCellLife(const Date& fitted, qint32 months) {
    constexpr quint32 month = 2629800;
    const auto life = static_cast<qint32>(static_cast<quint32>(months) * month);
    return fitted.isNull() ? Date() : Date(fitted.secondsSince2001() + life);
}

const BookDescription& rebreatherServ() {
    static constexpr BookDescription description{
        .kind = {{"Main", "Rebreather"}, "Rebreather", "rebreather"},
        .title = {"Main", "Type rebreather"},
        .layoutName = "Rebreather",
        .newAction = "newRebreatherDocumentMenuAction",
        .layout = &Rebreather::layout,
        .columns = columns,
        .tableStyle = &plainTableStyle,
        .pages = pages,
        .numberField = "dateField",
        .tableToolBar = tools.tableToolBar("rebreatherTableViewWindowToolbar"),
        .editToolBar = tools.editToolBar("rebreatherEditWindowToolbar"),
        .commands = commands,
        .words = words(),
        .print = recordBookPrint,
        .card = &card,
        .makeForm = &makeRecordBookForm<RebreatherForm>,
        .make = &makeBookByDay<Rebreather, rebreatherServ>,
    };
    return description;
}

}  // namespace tavrel
