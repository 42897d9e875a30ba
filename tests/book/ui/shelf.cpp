#include "book/ui/shelf.h"

#include "book/bookform.h"
#include "book/card.h"

namespace tavrel {

namespace {

/// Wears off by ten percent for each unit of its price.
struct ThingForm : RecordForm<ThingControls, Thing> {
    using RecordForm::RecordForm;

protected:
    void refresh() override {
        const double wear = state().real(controls().priceField) * 10;
        state().setLevel(controls().wearProgress, wear);
        state().setText(controls().stateField, wear > 100 ? QStringLiteral("worn") : QStringLiteral("good"));
        state().setColour(controls().stateField, wear > 100 ? plaincolour::red : plaincolour::black);
    }
};

void priceCell(const Thing& thing, const TableStyle&, Cell& cell) {
    cell.style.text = thing.price > 10 ? plaincolour::red : plaincolour::black;
}

StyledText thingCard(const CardRecords& records, const Desktop&, const QString& file) {
    CardBuilder card({"Main", "Materiel"});
    for (const auto& record : records) {
        card.beginRecord();
        card.entry(literal("\rName: "), static_cast<const Thing&>(*record).name);
    }
    card.add(file, plaincolour::green);
    return card.finish(file, QDateTime(QDate(2024, 6, 15), QTime(14, 30), Qt::UTC));
}

constexpr std::array columns{
    Column{"name", literal("Name"), 20},
    Column{"price", literal("Price"), 8, Qt::AlignRight, cellHook<priceCell>},
    Column{"stars", literal("Stars"), 6},
};
constexpr std::array pages{literal("Thing")};
constexpr std::array tableItems{
    ToolItem{"saveDocument", {"Main", "Save"}, "enregistrer", {}},
    ToolItem{"imprimer", {"Main", "Print"}, "imprimante", {}, true},
    ToolItem{"newThing", {"Main", "Add"}, "ajouterMat", {}},
    ToolItem{"deleteThing", {"Main", "Delete"}, "supprimerMat", {}, true},
    ToolItem{"synthese", {"Main", "Synthesis card"}, "texte", {}, true},
};
constexpr std::array tableOrder{"saveDocument", "imprimer", "newThing", "deleteThing", "synthese", toolCustomise};
constexpr std::array editItems{
    ToolItem{"addThing", {"Main", "Add"}, "ajouterMat", {}},
    ToolItem{"insertThing", {"Main", "Insert"}, "insererMat", {}, true},
    ToolItem{"updateThing", {"Main", "Store"}, "validerMat", {}, true},
    ToolItem{"blankFields", {"Main", "Erase"}, "raz", {}},
    ToolItem{"synthese", {"Main", "Synthesis card"}, "texte", {}, true},
};
constexpr std::array editOrder{"addThing", "insertThing", "updateThing", "blankFields", "synthese"};

}  // namespace

const RecordLayout& Thing::layout() {
    static constexpr Item items[] = {{"name", member<&Thing::name>},
                                     {"price", member<&Thing::price>},
                                     {"bought", member<&Thing::bought>},
                                     {"stars", member<&Thing::stars>},
                                     {"mail", member<&Thing::mail>}};
    static constexpr RecordLayout layout = recordLayout<Thing>("Thing", 1, items);
    return layout;
}

const ThingControls& ThingControls::table() {
    static const ThingControls table;
    return table;
}

const BookDescription& shelf() {
    static const BookDescription description = [] {
        BookDescription it{};
        it.kind = {literal("Shelf"), "Thing", "things"};
        it.layoutName = "Shelf";
        it.newAction = "newShelf";
        it.layout = &Thing::layout;
        it.columns = columns;
        it.tableStyle = plainTableStyle;
        it.pages = pages;
        it.numberField = "nameField";
        it.tableToolBar = {"shelfToolbar", tableItems, tableOrder, tableOrder};
        it.editToolBar = {"shelfEditToolbar", editItems, editOrder, editOrder};
        it.commands = {"newThing", "addThing", "insertThing", "updateThing", "deleteThing"};
        it.words.windowTitle = literal("Thing %@");
        it.words.newRecord = literal("New Thing");
        it.words.deleteRecords = literal("Delete Things");
        it.words.menu = literal("Things");
        it.words.tableName = literal("Table of things");
        it.words.emptyTable = literal("No things yet: %@");
        it.words.oneRecord = literal("One thing");
        it.words.manyRecords = literal("%d things");
        it.card = thingCard;
        it.makeForm = [](Desktop& desktop) -> std::unique_ptr<BookForm> {
            return std::make_unique<ThingForm>(desktop);
        };
        it.make = [](Desktop& desktop) -> std::unique_ptr<BookBase> {
            return std::make_unique<Book<Thing>>(desktop, shelf());
        };
        return it;
    }();
    return description;
}

}  // namespace tavrel
