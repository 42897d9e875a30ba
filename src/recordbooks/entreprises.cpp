#include "recordbooks/entreprises.h"

#include "book/standardbook.h"
#include "recordbooks/recordbooks.h"

#include <cmath>

namespace tavrel {

namespace {

constexpr auto items =
    itemsAroundHours(std::to_array<Item>({{"entreprise", member<&Entreprises::entreprise>},
                                          {"adresse", member<&Entreprises::adresse>},
                                          {"codePostal", member<&Entreprises::codePostal>, Travel::integer, 0, 1},
                                          {"codePostal", member<&Entreprises::codePostal>, Travel::plain, 2},
                                          {"ville", member<&Entreprises::ville>},
                                          {"pays", member<&Entreprises::pays>},
                                          {"telephone", member<&Entreprises::telephone>},
                                          {"fax", member<&Entreprises::fax>},
                                          {"email", member<&Entreprises::email>},
                                          {"url", member<&Entreprises::url>},
                                          {"activite", member<&Entreprises::activite>},
                                          {"miseAJour", member<&Entreprises::miseAJour>}}),
                     std::to_array<Item>({{"remarques", member<&Entreprises::remarques>},
                                          {"cotation", member<&Entreprises::cotation>, Travel::plain, 3}}));
constexpr RecordLayout entreprisesLayout = recordLayout<Entreprises>("Entreprises", 3, items);

// The form.

struct EntreprisesControls : OpeningHoursControls<EntreprisesControls> {
    // Page 1: the company and how to reach it.
    const int companyGroup = group({1, {"Entreprises", "Group company"}});
    const Id nomField =
        add({.name = "nomField", .field = "entreprise", .label = {"Entreprises", "Label name"}, .width = 34});
    const Id activiteField = add({.name = "activiteField",
                                  .kind = ControlKind::combo,
                                  .field = "activite",
                                  .label = {"Entreprises", "Label activity"},
                                  .pickList = PickList::tableauDesActivites});
    const Id cotationSlider = add({.name = "cotationSlider",
                                   .kind = ControlKind::rating,
                                   .field = "cotation",
                                   .label = {"Entreprises", "Label rating"},
                                   .minimum = 0,
                                   .maximum = 5});
    const Id miseAJourField = add({.name = "miseAJourField",
                                   .kind = ControlKind::date,
                                   .field = "miseAJour",
                                   .label = {"Entreprises", "Label update"},
                                   .emptyAt1900 = true});
    const Id resetDateToNowButton = add({.name = "resetDateToNowButton",
                                         .kind = ControlKind::button,
                                         .label = {"Entreprises", "Today"},
                                         .tip = {"Entreprises", "Tip today"},
                                         .beside = true});
    const int addressGroup = group({1, {"Entreprises", "Group address"}, GroupLayout::pairs, 2});
    const Id adresseField = add({.name = "adresseField", .field = "adresse", .label = {"Entreprises", "Label street"}});
    const Id codePostalField = add(
        {.name = "codePostalField", .field = "codePostal", .label = {"Entreprises", "Label postal code"}, .width = 8});
    const Id villeField = add({.name = "villeField", .field = "ville", .label = {"Entreprises", "Label town"}});
    const Id paysField = add({.name = "paysField", .field = "pays", .label = {"Entreprises", "Label country"}});
    const int contactGroup = group({1, {"Entreprises", "Group contact"}, GroupLayout::pairs, 2});
    const Id telephoneField = add({.name = "telephoneField",
                                   .field = "telephone",
                                   .label = {"Entreprises", "Label telephone"},
                                   .opens = Opens::phone});
    const Id faxField = add({.name = "faxField", .field = "fax", .label = {"Entreprises", "Label fax"}});
    const Id emailField = add({.name = "emailField",
                               .field = "email",
                               .label = {"Entreprises", "Label e-mail"},
                               .width = 26,
                               .opens = Opens::mail});
    const Id urlField = add(
        {.name = "urlField", .field = "url", .label = {"Entreprises", "Label web"}, .width = 26, .opens = Opens::web});

    // Page 2: the week.
    const int hoursGroup = group({2, {"Entreprises", "Group hours"}, GroupLayout::rows});
    const Week hours = addWeek();

    // Page 3: remarks.
    const int remarksGroup = group({3, {"Entreprises", "Group remarks"}});
    const Id remarquesField = add({.name = "remarquesField", .kind = ControlKind::longText, .field = "remarques"});

    static const EntreprisesControls& table() {
        static const EntreprisesControls controls;
        return controls;
    }

private:
    EntreprisesControls() = default;
};

class EntreprisesForm : public RecordBookForm<EntreprisesControls, Entreprises> {
public:
    using RecordBookForm::RecordBookForm;

    void resetDateToNow() { state().setDate(controls().miseAJourField, today()); }

protected:
    void clear(int) override {
        // Companies are closed on Sundays until their card says otherwise.
        for (const auto& hour : controls().hours.back()) {
            state().setText(hour, text("Main", "Closed"));
        }
        resetDateToNow();
    }

    void entered(int control) override {
        if (control == controls().resetDateToNowButton.index) {
            resetDateToNow();
        }
        updateUI();
    }
};

// The table.

/// The whole seconds since a card was brought up to date, the fraction dropped; 0 for a card without that date.
std::int64_t ageOf(const Date& update, const QDateTime& now) {
    if (update.isNull()) {
        return 0;
    }
    const double age = Date::fromDateTime(now).secondsSince2001() - update.secondsSince2001();
    constexpr double beyondAnyAge = 1e15;
    return std::isnan(age) ? 0 : static_cast<std::int64_t>(std::clamp(age, -beyondAnyAge, beyondAnyAge));
}

void updateCell(const Entreprises& company, const TableStyle& style, Cell& cell) {
    constexpr std::int64_t year = 31557600;  // seconds in 365.25 days
    const std::int64_t age = ageOf(company.miseAJour, style.now);
    // At exactly one and two years the colour is left as it was.
    cell.keepsColour = age == year || age == 2 * year;
    if (!cell.keepsColour) {
        cell.style.text = age < year ? plaincolour::black : age < 2 * year ? plaincolour::orange : plaincolour::red;
    }
}

void ratingCell(const Entreprises& company, const TableStyle&, Cell& cell) {
    ratedCell(company.cotation, cell);
}

constexpr Column columns[] = {
    {"entreprise", {"Entreprises", "Column name"}, 24},
    {"activite", {"Entreprises", "Column activity"}, 18},
    {"codePostal", {"Entreprises", "Column postal code"}, 8},
    {"ville", {"Entreprises", "Column town"}, 16},
    {"pays", {"Entreprises", "Column country"}, 14},
    {"telephone", {"Entreprises", "Column telephone"}, 17},
    {"email", {"Entreprises", "Column e-mail"}, 26},
    {"cotation", {"Entreprises", "Column rating"}, 12, Qt::AlignLeft, cellHook<ratingCell>},
    {"miseAJour", {"Entreprises", "Column update"}, widthOfDays, Qt::AlignRight, cellHook<updateCell>},
};

// The card.

constexpr Title days[daysInWeek] = {
    {"Entreprises", "Monday"}, {"Entreprises", "Tuesday"},  {"Entreprises", "Wednesday"}, {"Entreprises", "Thursday"},
    {"Entreprises", "Friday"}, {"Entreprises", "Saturday"}, {"Entreprises", "Sunday"}};

StyledText cardOf(const CardRecords& records, const Desktop& desktop, const QString& file) {
    CardBuilder card({"Entreprises", "Inventory"});
    for (std::size_t row = 0; row < records.size(); ++row) {
        const auto& company = static_cast<const Entreprises&>(*records[row]);
        if (row > 0) {
            card.add(QLatin1StringView(addressSeparator), plaincolour::black);
        }
        card.entry({"Entreprises", "Name"}, company.entreprise);
        card.entry({"Entreprises", "Address"},
                   QStringList{company.adresse, company.codePostal, company.ville, company.pays}.join(u' '));
        card.entry({"Entreprises", "Phone"}, company.telephone);
        card.entry({"Entreprises", "Fax"}, company.fax);
        card.entry({"Entreprises", "E-mail"}, company.email);
        card.entry({"Entreprises", "URL"}, company.url);
        card.entry({"Entreprises", "Activity"}, company.activite);
        card.heading({"Entreprises", "Schedules"});
        addWeek(card, company, days);
        card.entry({"Entreprises", "Remarks"}, company.remarques);
        card.entry({"Entreprises", "Update"}, company.miseAJour);
    }
    return card.finish(folderOf(file), desktop.clock.now());
}

constexpr BookCommands commands{"newFirm", "addFirm", "insertFirm", "updateEntreprise", "deleteFirm"};
constexpr RecordBookTools tools(commands);

constexpr Title pages[] = {
    {"Entreprises", "Page company"}, {"Entreprises", "Page hours"}, {"Entreprises", "Page remarks"}};

}  // namespace

const RecordLayout& Entreprises::layout() {
    return entreprisesLayout;
}

const BookDescription& adressesEts() {
    static constexpr BookDescription description{
        .kind = {literal("Entreprises"), "Entreprises", "entreprises"},
        .title = {"Main", "Type companies"},
        .layoutName = "Entreprises",
        .newAction = "newEntrepriseDocumentMenuAction",
        .layout = &Entreprises::layout,
        .typeCheck = TypeCheck::none,
        .columns = columns,
        .tableStyle = &plainTableStyle,
        .pages = pages,
        .numberField = "nomField",
        .tableToolBar = tools.tableToolBar("firmTableViewWindowToolbar"),
        .editToolBar = tools.editToolBar("firmEditWindowToolbar"),
        .commands = commands,
        .words = recordBookWords({"Entreprises", "Edit window"}, {"Entreprises", "Menu companies"},
                                 {"Entreprises", "Companies"}),
        .print = recordBookPrint,
        .card = &cardOf,
        .makeForm = &makeRecordBookForm<EntreprisesForm>,
        .make = &makeRecordBook<Entreprises, adressesEts>,
    };
    return description;
}

}  // namespace tavrel
