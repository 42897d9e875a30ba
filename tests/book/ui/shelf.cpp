#include "book/ui/shelf.h"

#include "book/card.h"
#include "book/standardbook.h"

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
constexpr BookCommands commands{"newThing", "addThing", "insertThing", "updateThing", "deleteThing"};
constexpr RecordBookTools tools(commands);

}  // namespace

const RecordLayout& Thing::layout() {
    static constexpr Item items[] = {{"name", member<&Thing::name>},
                                     {"price", member<&Thing::price>},
                                     {"bought", member<&Thing::bought>},
                                     {"stars", member<&Thing::stars>}};
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
        it.tableToolBar = tools.tableToolBar("shelfToolbar");
        it.editToolBar = tools.editToolBar("shelfEditToolbar");
        it.commands = commands;
        it.words = recordBookWords(literal("Thing %@"), literal("Things"), literal("Table of things"));
        it.card = thingCard;
        it.makeForm = makeRecordBookForm<ThingForm>;
        it.make = makeRecordBook<Thing, shelf>;
        return it;
    }();
    return description;
}

}  // namespace tavrel
