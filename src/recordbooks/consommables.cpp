#include "recordbooks/consommables.h"

#include "base/numbers.h"
#include "book/card.h"
#include "book/standardbook.h"
#include "recordbooks/recordbooks.h"

namespace tavrel {

namespace {

constexpr Item items[] = {
    {"reference", member<&Consommables::reference>},
    {"marque", member<&Consommables::marque>},
    {"utilisation", member<&Consommables::utilisation>},
    {"stock", member<&Consommables::stock>, Travel::integer, 0, 1},
    {"reserve", member<&Consommables::reserve>, Travel::integer, 0, 1},
    {"stock", member<&Consommables::stock>, Travel::plain, 2},
    {"reserve", member<&Consommables::reserve>, Travel::plain, 2},
    {"rangement", member<&Consommables::rangement>},
    {"noInventaire", member<&Consommables::noInventaire>},
    {"dateInventaire", member<&Consommables::dateInventaire>},
    {"notes", member<&Consommables::notes>},
    {"progress", member<&Consommables::progress>, Travel::memoryOnly},
};

constexpr RecordLayout consommablesLayout = recordLayout<Consommables>("Consommables", 2, items);

struct ConsommablesControls : ControlTable<ConsommablesControls> {
    const int partGroup = group({1, {"Consommables", "Group part"}, GroupLayout::pairs, 2});
    const Id referenceField =
        add({.name = "referenceField", .field = "reference", .label = {"Consommables", "Label reference"}});
    const Id marqueField = add({.name = "marqueField",
                                .kind = ControlKind::combo,
                                .field = "marque",
                                .label = {"Consommables", "Label brand"},
                                .pickList = PickList::tableauDesMarques});
    const Id utilisationField =
        add({.name = "utilisationField", .field = "utilisation", .label = {"Consommables", "Label use"}});
    const Id rangementField =
        add({.name = "rangementField", .field = "rangement", .label = {"Consommables", "Label storage"}});

    const int stockGroup = group({2, {"Consommables", "Group stock"}, GroupLayout::pairs, 2});
    const Id stockField = add({.name = "stockField",
                               .kind = ControlKind::decimal,
                               .field = "stock",
                               .label = {"Consommables", "Label stock"},
                               .clearedText = "0"});
    const Id reserveField = add({.name = "reserveField",
                                 .kind = ControlKind::decimal,
                                 .field = "reserve",
                                 .label = {"Consommables", "Label reserve"},
                                 .clearedText = "0"});
    const Id noInventaireSwitch = add({.name = "noInventaireSwitch",
                                       .kind = ControlKind::onOff,
                                       .field = "noInventaire",
                                       .label = {"Consommables", "Label not counted"}});
    const Id dateInventaireField = add({.name = "dateInventaireField",
                                        .kind = ControlKind::date,
                                        .field = "dateInventaire",
                                        .label = {"Consommables", "Label inventory date"},
                                        .emptyAt1900 = true});

    const int notesGroup = group({3, {"Consommables", "Group remarks"}});
    const Id notesField = add({.name = "notesField", .kind = ControlKind::longText, .field = "notes"});

    static const ConsommablesControls& table() {
        static const ConsommablesControls controls;
        return controls;
    }
};

class ConsommablesForm : public RecordBookForm<ConsommablesControls, Consommables> {
public:
    using RecordBookForm::RecordBookForm;

protected:
    void clear(int) override { state().setDate(controls().dateInventaireField, noDate()); }

    void complete(Consommables& part) override { part.progress = 7.4F; }
};

void referenceCell(const Consommables& part, const TableStyle&, Cell& cell) {
    cell.style.text = part.reserve > part.stock    ? plaincolour::red
                      : part.reserve == part.stock ? plaincolour::orange
                                                   : plaincolour::black;
}

void stockCell(const Consommables& part, const TableStyle&, Cell& cell) {
    cell.style.text = part.reserve > part.stock ? plaincolour::red : plaincolour::black;
}

void inventoryDateCell(const Consommables& part, const TableStyle&, Cell& cell) {
    if (part.noInventaire == 1) {
        cell.text.clear();
    }
}

void levelCell(const Consommables& part, const TableStyle&, Cell& cell) {
    cell.text = fillFormat(QStringLiteral("%f"), {formatArgument(part.stockLevel())});
}

constexpr Column columns[] = {
    {"reference", {"Consommables", "Label reference"}, 14, Qt::AlignLeft, cellHook<referenceCell>},
    {"marque", {"Consommables", "Label brand"}, 15},
    {"utilisation", {"Consommables", "Label use"}, 20},
    {"stock", {"Consommables", "Label stock"}, 8, Qt::AlignRight, cellHook<stockCell>},
    {"reserve", {"Consommables", "Label reserve"}, 8, Qt::AlignRight},
    {"progress", {"Consommables", "Label level"}, 10, Qt::AlignRight, cellHook<levelCell>},
    {"rangement", {"Consommables", "Label storage"}, 16},
    {"dateInventaire",
     {"Consommables", "Label inventory date"},
     widthOfDays,
     Qt::AlignRight,
     cellHook<inventoryDateCell>},
};

StyledText card(const CardRecords& records, const Desktop& desktop, const QString& file) {
    CardBuilder card({"Consommables", "Inventory"});
    for (const auto& record : records) {
        const auto& part = static_cast<const Consommables&>(*record);
        card.beginRecord();
        card.entry({"Consommables", "Reference"}, part.reference);
        card.entry({"Consommables", "Trade mark"}, part.marque);
        card.entry({"Consommables", "Use"}, part.utilisation);
        card.entry({"Consommables", "Quantity"}, shortestText(part.stock));
        card.entry({"Consommables", "Location"}, part.rangement);
        card.entry({"Consommables", "Remarks"}, part.notes);
    }
    return card.finish(file, desktop.clock.now());
}

constexpr Title pages[] = {
    {"Consommables", "Page part"}, {"Consommables", "Page stock"}, {"Consommables", "Page remarks"}};

constexpr BookCommands commands{"newPart", "addPart", "insertPart", "updatePart", "deletePart"};
constexpr RecordBookTools tools(commands);

}  // namespace

const RecordLayout& Consommables::layout() {
    return consommablesLayout;
}

const BookDescription& invConso() {
    static constexpr BookDescription description{
        .kind = {literal("Consommables"), "Consommables", "consommables"},
        .title = {"Main", "Type consumables"},
        .layoutName = "Consommables",
        .newAction = "newConsommablesDocumentMenuAction",
        .layout = &Consommables::layout,
        .columns = columns,
        .tableStyle = &plainTableStyle,
        .pages = pages,
        .numberField = "referenceField",
        .tableToolBar = tools.tableToolBar("partTableViewWindowToolbar"),
        .editToolBar = tools.editToolBar("partEditWindowToolbar"),
        .commands = commands,
        .words = recordBookWords({"Consommables", "Edit window title"}, {"Consommables", "Menu"},
                                 {"Consommables", "Table name"}),
        .print = recordBookPrint,
        .card = &card,
        .makeForm = &makeRecordBookForm<ConsommablesForm>,
        .make = &makeRecordBook<Consommables, invConso>,
    };
    return description;
}

}  // namespace tavrel
