#include "recordbooks/budget.h"

#include "archive/recordarchive.h"
#include "base/numbers.h"
#include "book/card.h"
#include "book/standardbook.h"
#include "recordbooks/recordbooks.h"

#include <QXmlStreamReader>

namespace tavrel {

namespace {

constexpr Item items[] = {
    {"prestation", member<&Budget::prestation>},         {"quantite_0", member<&Budget::quantite_0>},
    {"quantite_1", member<&Budget::quantite_1>},         {"quantite_2", member<&Budget::quantite_2>},
    {"quantite_3", member<&Budget::quantite_3>},         {"quantite_4", member<&Budget::quantite_4>},
    {"quantite_5", member<&Budget::quantite_5>},         {"prixUnitaire_0", member<&Budget::prixUnitaire_0>},
    {"prixUnitaire_1", member<&Budget::prixUnitaire_1>}, {"prixUnitaire_2", member<&Budget::prixUnitaire_2>},
    {"prixUnitaire_3", member<&Budget::prixUnitaire_3>}, {"prixUnitaire_4", member<&Budget::prixUnitaire_4>},
    {"prixUnitaire_5", member<&Budget::prixUnitaire_5>}, {"supplement_1", member<&Budget::supplement_1>},
    {"supplement_2", member<&Budget::supplement_2>},     {"supplement_3", member<&Budget::supplement_3>},
    {"supplement_4", member<&Budget::supplement_4>},     {"prixDegressif", member<&Budget::prixDegressif>},
    {"unitesCarte_1", member<&Budget::unitesCarte_1>},   {"unitesCarte_2", member<&Budget::unitesCarte_2>},
    {"unitesCarte_3", member<&Budget::unitesCarte_3>},   {"unitesCarte_4", member<&Budget::unitesCarte_4>},
    {"prixCarte_1", member<&Budget::prixCarte_1>},       {"prixCarte_2", member<&Budget::prixCarte_2>},
    {"prixCarte_3", member<&Budget::prixCarte_3>},       {"prixCarte_4", member<&Budget::prixCarte_4>},
    {"prevDepense", member<&Budget::prevDepense>},       {"entreprise", member<&Budget::entreprise>},
    {"qualitePrix", member<&Budget::qualitePrix>},       {"delai", member<&Budget::delai>},
    {"miseAJour", member<&Budget::miseAJour>},           {"notes", member<&Budget::notes>},
};
constexpr RecordLayout budgetLayout = recordLayout<Budget>("Budget", 1, items);

// The words of both ratings, from 0 to 5 and above.
constexpr std::array<Title, 6> valueWords{{{"Budget", "N/A"},
                                           {"Budget", "Very bad"},
                                           {"Budget", "Bad"},
                                           {"Budget", "Medium"},
                                           {"Budget", "Good"},
                                           {"Budget", "Very good"}}};
constexpr std::array<Title, 6> delayWords{{{"Budget", "N/A"},
                                           {"Budget", "Very inefficient"},
                                           {"Budget", "Inefficient"},
                                           {"Budget", "Medium"},
                                           {"Budget", "Satisfying"},
                                           {"Budget", "Very satisfying"}}};

QString inWords(const std::array<Title, 6>& words, qint32 rating) {
    return words[static_cast<std::size_t>(std::clamp(rating, 0, highestCotation))].text();
}

// The form.

struct BudgetControls : ControlTable<BudgetControls> {
    static constexpr std::array<const char*, 5> lines{"1", "2", "3", "4", "5"};
    static constexpr std::array<const char*, 4> supplements{"1", "2", "3", "4"};
    static constexpr std::array<const char*, 4> cards{"1", "2", "3", "4"};

    // Page 1: the service and its lines.
    const int serviceGroup = group({1, {"Budget", "Group service"}});
    const Id prestationField = add({.name = "prestationField",
                                    .kind = ControlKind::combo,
                                    .field = "prestation",
                                    .label = {"Budget", "Label service"},
                                    .pickList = PickList::tableauDesPrestations});
    const Id quantite_0Field = add({.name = "quantite_0Field",
                                    .kind = ControlKind::wholeNumber,
                                    .field = "quantite_0",
                                    .label = {"Budget", "Label quantity"}});
    const Id prixUnitaire_0Field = add({.name = "prixUnitaire_0Field",
                                        .kind = ControlKind::decimal,
                                        .field = "prixUnitaire_0",
                                        .label = {"Budget", "Label unit price"},
                                        .unit = literal("€")});
    const Id prevDepenseSwitch = add({.name = "prevDepenseSwitch",
                                      .kind = ControlKind::onOff,
                                      .field = "prevDepense",
                                      .label = {"Budget", "Label planned"}});

    const int supplementsGroup = group({1, {"Budget", "Group supplements"}, GroupLayout::columns});
    const std::array<Id, 4> supplement_Field = addEach<4>(
        supplements,
        {.name = "supplement_%Field", .field = "supplement_%", .label = {"Budget", "Label supplement"}, .width = 24});
    /// Of line 5, in the form alone: no record holds it.
    const Id supplement_5Field = addFifthSupplement();
    const std::array<Id, 5> quantite_Field = addEach<5>(lines, {.name = "quantite_%Field",
                                                                .kind = ControlKind::wholeNumber,
                                                                .field = "quantite_%",
                                                                .label = {"Budget", "Label quantity"}});
    const std::array<Id, 5> prixUnitaire_Field = addEach<5>(lines, {.name = "prixUnitaire_%Field",
                                                                    .kind = ControlKind::decimal,
                                                                    .field = "prixUnitaire_%",
                                                                    .label = {"Budget", "Label unit price"},
                                                                    .unit = literal("€")});
    const int totalGroup = group({1, {"Budget", "Group total"}});
    const Id totalField = add({.name = "totalField",
                               .kind = ControlKind::readOnly,
                               .label = {"Budget", "Label total"},
                               .unit = literal("€"),
                               .width = 10});

    // Page 2: prepaid cards.
    const int discountGroup = group({2, {"Budget", "Group discount"}});
    const Id prixDegressifSwitch = add({.name = "prixDegressifSwitch",
                                        .kind = ControlKind::onOff,
                                        .field = "prixDegressif",
                                        .label = {"Budget", "Label discount"}});
    const int cardsGroup = group({2, {"Budget", "Group cards"}, GroupLayout::columns});
    const std::array<Id, 4> unitesCarte_Field = addEach<4>(cards, {.name = "unitesCarte_%Field",
                                                                   .kind = ControlKind::wholeNumber,
                                                                   .field = "unitesCarte_%",
                                                                   .label = {"Budget", "Label card units"}});
    const std::array<Id, 4> prixCarte_Field = addEach<4>(cards, {.name = "prixCarte_%Field",
                                                                 .kind = ControlKind::decimal,
                                                                 .field = "prixCarte_%",
                                                                 .label = {"Budget", "Label card price"},
                                                                 .unit = literal("€")});
    const std::array<Id, 4> prixUnite_Field = addEach<4>(cards, {.name = "prixUnite_%Field",
                                                                 .kind = ControlKind::readOnly,
                                                                 .label = {"Budget", "Label price of unit"},
                                                                 .width = 18});

    // Page 3: the supplier.
    const int supplierGroup = group({3, {"Budget", "Group supplier"}});
    const Id entrepriseField =
        add({.name = "entrepriseField", .field = "entreprise", .label = {"Budget", "Label supplier"}});
    const Id qualitePrixSlider = add({.name = "qualitePrixSlider",
                                      .kind = ControlKind::rating,
                                      .field = "qualitePrix",
                                      .label = {"Budget", "Label value"},
                                      .minimum = 0,
                                      .maximum = 5});
    const Id qualitePrixField =
        add({.name = "qualitePrixField", .kind = ControlKind::readOnly, .width = 18, .beside = true});
    const Id delaiSlider = add({.name = "delaiSlider",
                                .kind = ControlKind::rating,
                                .field = "delai",
                                .label = {"Budget", "Label delay"},
                                .minimum = 0,
                                .maximum = 5});
    const Id delaiField = add({.name = "delaiField", .kind = ControlKind::readOnly, .width = 18, .beside = true});
    const Id miseAJourField = add({.name = "miseAJourField",
                                   .kind = ControlKind::date,
                                   .field = "miseAJour",
                                   .label = {"Budget", "Label update"},
                                   .emptyAt1900 = true});
    const int notesGroup = group({3, {"Budget", "Group notes"}});
    const Id notesField = add({.name = "notesField", .kind = ControlKind::longText, .field = "notes"});

    static const BudgetControls& table() {
        static const BudgetControls controls;
        return controls;
    }

private:
    BudgetControls() = default;

    Id addFifthSupplement() {
        return {
            ControlTableBase::add({.name = "supplement_5Field", .label = {"Budget", "Label supplement"}, .width = 24},
                                  {}, controls().back().line, 4)};
    }
};

class BudgetForm : public RecordBookForm<BudgetControls, Budget> {
public:
    using RecordBookForm::RecordBookForm;

    QString hint(int control) const override {
        const bool isUnstored =
            control == controls().supplement_5Field.index && !state().text(controls().supplement_5Field).isEmpty();
        return isUnstored ? text("Budget", "Hint not stored") : RecordBookForm::hint(control);
    }

protected:
    void clear(int) override { state().setDate(controls().miseAJourField, noDate()); }
    void show(const Budget&) override { state().setText(controls().supplement_5Field, {}); }

    void refresh() override {
        state().setText(controls().totalField, shortestText(total()));
        const bool discounted = state().isOn(controls().prixDegressifSwitch);
        for (std::size_t card = 0; card < controls().cards.size(); ++card) {
            const auto units = controls().unitesCarte_Field[card];
            const auto price = controls().prixCarte_Field[card];
            const qint32 count = state().integer(units);
            state().setText(controls().prixUnite_Field[card],
                            count >= 1 ? textWith("Budget", "Discount price", state().real(price) / count) : QString());
            state().setEnabled(units, discounted);
            state().setEnabled(price, discounted);
        }
        state().setText(controls().qualitePrixField, inWords(valueWords, state().tag(controls().qualitePrixSlider)));
        state().setText(controls().delaiField, inWords(delayWords, state().tag(controls().delaiSlider)));
    }

private:
    /// Of the service and its four supplements. Line 5 is stored, but never counted.
    double total() const {
        constexpr std::size_t countedSupplements = 4;
        double sum = state().integer(controls().quantite_0Field) * state().real(controls().prixUnitaire_0Field);
        for (std::size_t line = 0; line < countedSupplements; ++line) {
            sum += state().integer(controls().quantite_Field[line]) * state().real(controls().prixUnitaire_Field[line]);
        }
        return sum;
    }
};

// The table.

void plainCell(const Budget& service, const TableStyle&, Cell& cell) {
    cell.style.text = service.prevDepense == 1 ? plaincolour::red : plaincolour::black;
}

void valueCell(const Budget& service, const TableStyle&, Cell& cell) {
    ratedCell(service.qualitePrix, cell);
}

void delayCell(const Budget& service, const TableStyle&, Cell& cell) {
    ratedCell(service.delai, cell);
}

constexpr Column columns[] = {
    {"prestation", {"Budget", "Column service"}, 24, Qt::AlignLeft, cellHook<plainCell>},
    {"quantite_0", {"Budget", "Column quantity"}, 8, Qt::AlignRight, cellHook<plainCell>},
    {"prixUnitaire_0", {"Budget", "Column unit price"}, 10, Qt::AlignRight, cellHook<plainCell>},
    {"entreprise", {"Budget", "Column supplier"}, 22, Qt::AlignLeft, cellHook<plainCell>},
    {"qualitePrix", {"Budget", "Column value"}, 12, Qt::AlignLeft, cellHook<valueCell>},
    {"delai", {"Budget", "Column delay"}, 12, Qt::AlignLeft, cellHook<delayCell>},
    {"miseAJour", {"Budget", "Column update"}, widthOfDays, Qt::AlignRight, cellHook<plainCell>},
};

// The card.

/// A price on the card: a blank and its whole euros, what is behind the point cut off.
QString wholePrice(float price) {
    return textWith(literal(" %d"), truncated(static_cast<double>(price)));
}

void addSupplement(CardBuilder& card, const QString& label, float price, qint32 quantity) {
    card.entry({"Budget", "Supplement"}, label);
    card.add(wholePrice(price), plaincolour::blue);
    card.entry({"Budget", "Quantity"}, quantity);
}

void addCard(CardBuilder& card, qint32 units, float price) {
    card.entry({"Budget", "Card"}, units);
    card.entry({"Budget", "Units at"}, wholePrice(price));
    card.heading({"Budget", "Money"});
}

StyledText cardOf(const CardRecords& records, const Desktop& desktop, const QString& file) {
    CardBuilder card({"Budget", "Inventory"});
    for (const RecordPointer& record : records) {
        const auto& service = static_cast<const Budget&>(*record);
        card.beginRecord();
        card.entry({"Budget", "Prestation"}, service.prestation);
        card.entry({"Budget", "Price per unit"}, wholePrice(service.prixUnitaire_0));
        card.entry({"Budget", "Quantity"}, service.quantite_0);
        addSupplement(card, service.supplement_1, service.prixUnitaire_1, service.quantite_1);
        addSupplement(card, service.supplement_2, service.prixUnitaire_2, service.quantite_2);
        addSupplement(card, service.supplement_3, service.prixUnitaire_3, service.quantite_3);
        addSupplement(card, service.supplement_4, service.prixUnitaire_4, service.quantite_4);
        // The third card stands there twice.
        addCard(card, service.unitesCarte_1, service.prixCarte_1);
        addCard(card, service.unitesCarte_2, service.prixCarte_2);
        addCard(card, service.unitesCarte_3, service.prixCarte_3);
        addCard(card, service.unitesCarte_3, service.prixCarte_3);
        addCard(card, service.unitesCarte_4, service.prixCarte_4);
        card.entry({"Budget", "Entreprise"}, service.entreprise);
        card.entry({"Budget", "Cotation"}, inWords(valueWords, service.qualitePrix));
        card.entry({"Budget", "Delay"}, inWords(delayWords, service.delai));
        card.entry({"Budget", "Remarks"}, service.notes);
    }
    // One line more than other cards leave before the file.
    card.add(QStringLiteral("\r"), plaincolour::green);
    return card.finish(file, desktop.clock.now());
}

// The earlier format.

/// The value of a property, in the element that the reader stands at; nothing when it does not suit the field.
std::optional<FieldValue> readProperty(QXmlStreamReader& xml, FieldKind kind) {
    const QString type = xml.name().toString();
    if (type == u"true" || type == u"false") {
        xml.skipCurrentElement();
        return kind == FieldKind::integer ? std::optional<FieldValue>(qint32{type == u"true"}) : std::nullopt;
    }
    const QString value = xml.readElementText(QXmlStreamReader::SkipChildElements);
    bool fits = false;
    switch (kind) {
        case FieldKind::text:
            return type == u"string" ? std::optional<FieldValue>(value.isNull() ? QStringLiteral("") : value)
                                     : std::nullopt;
        case FieldKind::integer: {
            const qint32 number = value.toInt(&fits);
            return fits && type == u"integer" ? std::optional<FieldValue>(number) : std::nullopt;
        }
        case FieldKind::real: {
            const float number = value.toFloat(&fits);
            return fits && (type == u"real" || type == u"integer") ? std::optional<FieldValue>(number) : std::nullopt;
        }
        case FieldKind::date: {
            const QDateTime moment = QDateTime::fromString(value, Qt::ISODate);
            return moment.isValid() && type == u"date" ? std::optional<FieldValue>(Date::fromDateTime(moment))
                                                       : std::nullopt;
        }
        default:
            return std::nullopt;
    }
}

/// The service of the dictionary that the reader stands at. What it does not know is passed over; null when a value
/// does not suit its property.
RecordPointer readService(QXmlStreamReader& xml) {
    const auto service = std::make_shared<Budget>();
    Field field;
    while (xml.readNextStartElement()) {
        if (xml.name() == u"key") {
            field = budgetLayout.field(xml.readElementText());
        } else if (field.isNull()) {
            xml.skipCurrentElement();
        } else {
            const auto value = readProperty(xml, field.kind());
            if (!value || !field.setValue(*service, *value)) {
                return nullptr;
            }
            field = {};
        }
    }
    return service;
}

std::optional<RecordList> readPropertyList(QByteArrayView data) {
    QXmlStreamReader xml(QByteArray::fromRawData(data.data(), data.size()));
    if (!xml.readNextStartElement() || xml.name() != u"plist" || !xml.readNextStartElement() ||
        xml.name() != u"array") {
        return std::nullopt;
    }
    RecordList services;
    while (xml.readNextStartElement()) {
        const RecordPointer service = xml.name() == u"dict" ? readService(xml) : nullptr;
        if (!service) {
            return std::nullopt;
        }
        services.push_back(service);
    }
    while (!xml.atEnd()) {
        xml.readNext();
    }
    return xml.hasError() ? std::nullopt : std::optional(services);
}

constexpr BookCommands commands{"newPrestation", "addPrestation", "insertPrestation", "updatePrestation",
                                "deletePrestation"};
constexpr RecordBookTools tools(commands);

constexpr Title pages[] = {{"Budget", "Page service"}, {"Budget", "Page cards"}, {"Budget", "Page supplier"}};

}  // namespace

const RecordLayout& Budget::layout() {
    return budgetLayout;
}

Expected<RecordList> importFromVersion20(QByteArrayView data) {
    if (auto services = readPropertyList(data)) {
        return std::move(*services);
    }
    qWarning("Format non reconnu");
    // What is wrong is said of the present format.
    return readRecords(data, budgetLayout).map([](const RecordFile& file) { return file.records; });
}

const BookDescription& previBudget() {
    static constexpr BookDescription description{
        .kind = {literal("Budget"), "Budget", "budget", true},
        .title = {"Main", "Type budget"},
        .layoutName = "Budget",
        .newAction = "newBudgetDocumentMenuAction",
        .layout = &Budget::layout,
        .olderFormat = &importFromVersion20,
        .columns = columns,
        .tableStyle = &plainTableStyle,
        .pages = pages,
        .numberField = "prestationField",
        .tableToolBar = tools.tableToolBar("prestationTableViewWindowToolbar"),
        .editToolBar = tools.editToolBar("prestationEditWindowToolbar"),
        .commands = commands,
        .words = recordBookWords({"Budget", "Edit window"}, {"Budget", "Menu services"}, {"Budget", "Services"}),
        .print = recordBookPrint,
        .card = &cardOf,
        .makeForm = &makeRecordBookForm<BudgetForm>,
        .make = &makeRecordBook<Budget, previBudget>,
    };
    return description;
}

}  // namespace tavrel
