#include "recordbooks/structures.h"

#include "book/standardbook.h"
#include "recordbooks/recordbooks.h"

namespace tavrel {

namespace {

constexpr auto items = itemsAroundHours(std::to_array<Item>({{"nom", member<&Structures::nom>},
                                                             {"type", member<&Structures::type>},
                                                             {"affiliation", member<&Structures::affiliation>},
                                                             {"gerant", member<&Structures::gerant>},
                                                             {"adresse", member<&Structures::adresse>},
                                                             {"codePostal", member<&Structures::codePostal>},
                                                             {"ville", member<&Structures::ville>},
                                                             {"pays", member<&Structures::pays>},
                                                             {"telephone", member<&Structures::telephone>},
                                                             {"portable", member<&Structures::portable>},
                                                             {"fax", member<&Structures::fax>},
                                                             {"url", member<&Structures::url>},
                                                             {"email", member<&Structures::email>},
                                                             {"cotation", member<&Structures::cotation>},
                                                             {"miseAJour", member<&Structures::miseAJour>},
                                                             {"plongee_1", member<&Structures::plongee_1>},
                                                             {"plongee_2", member<&Structures::plongee_2>},
                                                             {"plongee_3", member<&Structures::plongee_3>},
                                                             {"plongee_4", member<&Structures::plongee_4>},
                                                             {"plongee_5", member<&Structures::plongee_5>},
                                                             {"bapteme", member<&Structures::bapteme>},
                                                             {"prix_1", member<&Structures::prix_1>},
                                                             {"prix_2", member<&Structures::prix_2>},
                                                             {"prix_3", member<&Structures::prix_3>},
                                                             {"prix_4", member<&Structures::prix_4>},
                                                             {"prix_5", member<&Structures::prix_5>},
                                                             {"formation_1", member<&Structures::formation_1>},
                                                             {"formation_2", member<&Structures::formation_2>},
                                                             {"formation_3", member<&Structures::formation_3>},
                                                             {"formation_4", member<&Structures::formation_4>},
                                                             {"formation_5", member<&Structures::formation_5>},
                                                             {"formation_6", member<&Structures::formation_6>},
                                                             {"prixForm_1", member<&Structures::prixForm_1>},
                                                             {"prixForm_2", member<&Structures::prixForm_2>},
                                                             {"prixForm_3", member<&Structures::prixForm_3>},
                                                             {"prixForm_4", member<&Structures::prixForm_4>},
                                                             {"prixForm_5", member<&Structures::prixForm_5>},
                                                             {"prixForm_6", member<&Structures::prixForm_6>}}),
                                        std::to_array<Item>({{"nbPlongees", member<&Structures::nbPlongees>},
                                                             {"remarques", member<&Structures::remarques>}}));
constexpr RecordLayout structuresLayout = recordLayout<Structures>("Structures", 0, items);

// The form.

/// The kinds of club, in the order of the menu.
constexpr Choice structureTypes[] = {
    {0, {"Structures", "Associative"}}, {1, {"Structures", "Commerciale"}}, {2, {"Structures", "N/A"}}};

struct StructuresControls : OpeningHoursControls<StructuresControls> {
    static constexpr std::array<const char*, 5> offers{"1", "2", "3", "4", "5"};
    static constexpr std::array<const char*, 6> courses{"1", "2", "3", "4", "5", "6"};

    // Page 1: the club and how to reach it.
    const int clubGroup = group({1, {"Structures", "Group club"}, GroupLayout::pairs, 2});
    const Id nomField = add({.name = "nomField", .field = "nom", .label = {"Structures", "Label name"}});
    const Id typePopUp = add({.name = "typePopUp",
                              .kind = ControlKind::popUp,
                              .field = "type",
                              .label = {"Structures", "Label type"},
                              .choices = structureTypes});
    const Id affiliationField =
        add({.name = "affiliationField", .field = "affiliation", .label = {"Structures", "Label affiliation"}});
    const Id gerantField = add({.name = "gerantField", .field = "gerant", .label = {"Structures", "Label manager"}});
    const Id cotationSlider = add({.name = "cotationSlider",
                                   .kind = ControlKind::rating,
                                   .field = "cotation",
                                   .label = {"Structures", "Label rating"},
                                   .minimum = 0,
                                   .maximum = 5});
    const Id miseAJourField = add({.name = "miseAJourField",
                                   .kind = ControlKind::date,
                                   .field = "miseAJour",
                                   .label = {"Structures", "Label update"},
                                   .emptyAt1900 = true});
    const Id nbPlongeesField = add({.name = "nbPlongeesField",
                                    .kind = ControlKind::wholeNumber,
                                    .field = "nbPlongees",
                                    .label = {"Structures", "Label dives made"}});
    const int addressGroup = group({1, {"Structures", "Group address"}, GroupLayout::pairs, 2});
    const Id adresseField = add({.name = "adresseField", .field = "adresse", .label = {"Structures", "Label street"}});
    const Id codePostalField = add({.name = "codePostalField",
                                    .kind = ControlKind::wholeNumber,
                                    .field = "codePostal",
                                    .label = {"Structures", "Label postal code"},
                                    .width = 8});
    const Id villeField = add({.name = "villeField", .field = "ville", .label = {"Structures", "Label town"}});
    const Id paysField = add({.name = "paysField", .field = "pays", .label = {"Structures", "Label country"}});
    const int contactGroup = group({1, {"Structures", "Group contact"}, GroupLayout::pairs, 2});
    const Id telephoneField = add({.name = "telephoneField",
                                   .field = "telephone",
                                   .label = {"Structures", "Label telephone"},
                                   .opens = Opens::phone});
    const Id portableField = add(
        {.name = "portableField", .field = "portable", .label = {"Structures", "Label mobile"}, .opens = Opens::phone});
    const Id faxField = add({.name = "faxField", .field = "fax", .label = {"Structures", "Label fax"}});
    const Id emailField = add({.name = "emailField",
                               .field = "email",
                               .label = {"Structures", "Label e-mail"},
                               .width = 26,
                               .opens = Opens::mail});
    const Id urlField = add(
        {.name = "urlField", .field = "url", .label = {"Structures", "Label web"}, .width = 26, .opens = Opens::web});

    // Page 2: prices.
    const int tryDiveGroup = group({2, {"Structures", "Group try-dive"}});
    const Id baptemeField = add({.name = "baptemeField",
                                 .kind = ControlKind::decimal,
                                 .field = "bapteme",
                                 .label = {"Structures", "Label try-dive"},
                                 .unit = literal("€")});
    const int offersGroup = group({2, {"Structures", "Group dives"}, GroupLayout::columns});
    const std::array<Id, 5> plongee_Field = addEach<5>(
        offers, {.name = "plongee_%Field", .field = "plongee_%", .label = {"Structures", "Label dive"}, .width = 28});
    const std::array<Id, 5> prix_Field = addEach<5>(offers, {.name = "prix_%Field",
                                                             .kind = ControlKind::decimal,
                                                             .field = "prix_%",
                                                             .label = {"Structures", "Label price"},
                                                             .unit = literal("€")});
    const int coursesGroup = group({2, {"Structures", "Group courses"}, GroupLayout::columns});
    const std::array<Id, 6> formation_Field = addEach<6>(
        courses,
        {.name = "formation_%Field", .field = "formation_%", .label = {"Structures", "Label course"}, .width = 28});
    const std::array<Id, 6> prixForm_Field = addEach<6>(courses, {.name = "prixForm_%Field",
                                                                  .kind = ControlKind::decimal,
                                                                  .field = "prixForm_%",
                                                                  .label = {"Structures", "Label price"},
                                                                  .unit = literal("€")});

    // Page 3: the week and remarks.
    const int hoursGroup = group({3, {"Structures", "Group hours"}, GroupLayout::rows});
    const Week hours = addWeek();
    const int remarksGroup = group({3, {"Structures", "Group remarks"}});
    const Id remarquesField = add({.name = "remarquesField", .kind = ControlKind::longText, .field = "remarques"});

    static const StructuresControls& table() {
        static const StructuresControls controls;
        return controls;
    }

private:
    StructuresControls() = default;
};

class StructuresForm : public RecordBookForm<StructuresControls, Structures> {
public:
    using RecordBookForm::RecordBookForm;

protected:
    void clear(int) override {
        constexpr int firstPosition = 1;  // counted from 0: commercial
        state().selectPosition(controls().typePopUp, firstPosition);
        state().setDate(controls().miseAJourField, today());
    }
};

// The table.

void ratingCell(const Structures& club, const TableStyle&, Cell& cell) {
    ratedCell(club.cotation, cell);
}

constexpr Column columns[] = {
    {"nom", {"Structures", "Column name"}, 24},
    {"affiliation", {"Structures", "Column affiliation"}, 25},
    {"codePostal", {"Structures", "Column postal code"}, 8, Qt::AlignRight},
    {"ville", {"Structures", "Column town"}, 16},
    {"pays", {"Structures", "Column country"}, 15},
    {"telephone", {"Structures", "Column telephone"}, 17},
    {"email", {"Structures", "Column e-mail"}, 26},
    {"cotation", {"Structures", "Column rating"}, 12, Qt::AlignLeft, cellHook<ratingCell>},
    {"nbPlongees", {"Structures", "Column dives made"}, 8, Qt::AlignRight},
    {"miseAJour", {"Structures", "Column update"}, widthOfDays, Qt::AlignRight},
};

// The card.

constexpr Title days[daysInWeek] = {{"Structures", "Monday"},   {"Structures", "Tuesday"}, {"Structures", "Wednesday"},
                                    {"Structures", "Thursday"}, {"Structures", "Friday"},  {"Structures", "Saturday"},
                                    {"Structures", "Sunday"}};

/// A line of the price list: "Exploration : 32.00 €".
QString priceLine(const QString& name, float price) {
    return name + textWith(literal(" : %.2f €"), price) + u'\r';
}

/// The try-dive, then the dives and courses that have a name.
QString priceList(const Structures& club) {
    const std::pair<const QString&, float> named[] = {
        {club.plongee_1, club.prix_1},       {club.plongee_2, club.prix_2},       {club.plongee_3, club.prix_3},
        {club.plongee_4, club.prix_4},       {club.plongee_5, club.prix_5},       {club.formation_1, club.prixForm_1},
        {club.formation_2, club.prixForm_2}, {club.formation_3, club.prixForm_3}, {club.formation_4, club.prixForm_4},
        {club.formation_5, club.prixForm_5}, {club.formation_6, club.prixForm_6}};
    QString list = priceLine(QStringLiteral("Bapteme"), club.bapteme);
    for (const auto& [name, price] : named) {
        if (!name.isEmpty()) {
            list += priceLine(name, price);
        }
    }
    return list;
}

StyledText cardOf(const CardRecords& records, const Desktop& desktop, const QString& file) {
    CardBuilder card({"Structures", "Inventory"});
    for (std::size_t row = 0; row < records.size(); ++row) {
        const auto& club = static_cast<const Structures&>(*records[row]);
        if (row > 0) {
            card.add(QLatin1StringView(addressSeparator), plaincolour::black);
        }
        card.entry({"Structures", "Name"}, club.nom);
        card.entry({"Structures", "Type"}, choiceText(structureTypes, club.type, QString()));
        card.entry({"Structures", "Affiliation"}, club.affiliation);
        card.entry({"Structures", "Gerant"}, club.gerant);
        card.entry({"Structures", "Address"},
                   QStringList{club.adresse, QString::number(club.codePostal), club.ville, club.pays}.join(u' '));
        card.entry({"Structures", "Phone"}, club.telephone);
        card.entry({"Structures", "Mobile"}, club.portable);
        card.entry({"Structures", "Fax"}, club.fax);
        card.entry({"Structures", "E-mail"}, club.email);
        card.entry({"Structures", "URL"}, club.url);
        card.entry({"Structures", "Cotation"}, club.cotation);
        card.entry({"Structures", "Update"}, club.miseAJour);
        card.entry({"Structures", "Prices"}, priceList(club));
        card.heading({"Structures", "Schedules"});
        addWeek(card, club, days);
        card.entry({"Structures", "NBDives"}, club.nbPlongees);
        card.entry({"Structures", "Remarks"}, club.remarques);
    }
    return card.finish(folderOf(file), desktop.clock.now());
}

constexpr BookCommands commands{"newStructure", "addStructure", "insertStructure", "updateStructure",
                                "deleteStructure"};
constexpr RecordBookTools tools(commands);

constexpr Title pages[] = {{"Structures", "Page club"}, {"Structures", "Page prices"}, {"Structures", "Page hours"}};

}  // namespace

const RecordLayout& Structures::layout() {
    return structuresLayout;
}

const BookDescription& adressesStruct() {
    static constexpr BookDescription description{
        .kind = {literal("Structures"), "Structures", "structures"},
        .title = {"Main", "Type clubs"},
        .layoutName = "Structures",
        .newAction = "newStructureDocumentMenuAction",
        .layout = &Structures::layout,
        .typeCheck = TypeCheck::none,
        .columns = columns,
        .tableStyle = &plainTableStyle,
        .pages = pages,
        .numberField = "nomField",
        .tableToolBar = tools.tableToolBar("structureTableViewWindowToolbar"),
        .editToolBar = tools.editToolBar("structureEditWindowToolbar"),
        .commands = commands,
        .words = recordBookWords({"Structures", "Edit window"}, {"Structures", "Menu clubs"}, {"Structures", "Clubs"}),
        .print = recordBookPrint,
        .card = &cardOf,
        .makeForm = &makeRecordBookForm<StructuresForm>,
        .make = &makeRecordBook<Structures, adressesStruct>,
    };
    return description;
}

}  // namespace tavrel
