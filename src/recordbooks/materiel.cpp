#include "recordbooks/materiel.h"

#include "base/numbers.h"
#include "book/card.h"
#include "book/standardbook.h"
#include "recordbooks/recordbooks.h"

#include <array>
#include <tuple>

namespace tavrel {

namespace {

constexpr Item items[] = {
    {"matosNo", member<&Materiel::matosNo>},
    {"typeMatos", member<&Materiel::typeMatos>},
    {"marqueMatos", member<&Materiel::marqueMatos>},
    {"serieMatos", member<&Materiel::serieMatos>},
    {"dateAchatMatos", member<&Materiel::dateAchatMatos>, Travel::plain, 0, 2},
    {"dateAchat", member<&Materiel::dateAchat>, Travel::plain, 3},
    {"quantiteMatos", member<&Materiel::quantiteMatos>},
    {"prixMatos", member<&Materiel::prixMatos>},
    {"lastRevision", member<&Materiel::lastRevision>},
    {"nextRevision", member<&Materiel::nextRevision>},
    {"firstRequalification", member<&Materiel::firstRequalification>},
    Item("nextRequalification", member<&Materiel::nextRequalification>).writtenFrom(member<&Materiel::lastRevision>),
    {"noInspection", member<&Materiel::noInspection>},
    {"bloc", member<&Materiel::bloc>},
    {"tiv", member<&Materiel::tiv>},
    {"noTIV", member<&Materiel::noTIV>},
    {"nomTIV", member<&Materiel::nomTIV>},
    {"capaciteBloc", member<&Materiel::capaciteBloc>},
    {"pressionService", member<&Materiel::pressionService>},
    {"pressionEpreuve", member<&Materiel::pressionEpreuve>},
    {"notesMatos", member<&Materiel::notesMatos>},
    {"equipState", member<&Materiel::equipState>, Travel::plain, 2},
    {"factureMatos", member<&Materiel::factureMatos>, Travel::plain, 2},
    {"lieuAchatMatos", member<&Materiel::lieuAchatMatos>, Travel::plain, 2},
    {"progress", member<&Materiel::progress>, Travel::memoryOnly},
};

void afterReading(Materiel& item, int version) {
    if (version <= 2) {
        const QDate day = QDate::fromString(item.dateAchatMatos.trimmed(), QStringLiteral("d/M/yyyy"));
        item.dateAchat = Date::fromDateTime(day.startOfDay());
        if (!day.isValid() && !item.dateAchatMatos.trimmed().isEmpty()) {
            // The present version has no other place for it.
            const QString line = textWith("Materiel", "Purchase date as text", item.dateAchatMatos);
            item.notesMatos = item.notesMatos.isEmpty() ? line : item.notesMatos + u'\n' + line;
        }
    }
    if (version < 2) {
        item.lieuAchatMatos = QStringLiteral("");
    }
}

constexpr RecordLayout materielLayout = recordLayout<Materiel, &afterReading>("Materiel", 3, items);

constexpr Choice equipStates[] = {
    {0, {"Materiel", "En service"}}, {1, {"Materiel", "A reparer"}}, {2, {"Materiel", "Reforme"}},
    {3, {"Materiel", "Gift"}},       {4, {"Materiel", "Sold"}},      {5, {"Materiel", "Lost"}},
    {6, {"Materiel", "Replace"}},
};

QString stateText(const Materiel& item) {
    return choiceText(equipStates, item.equipState, QString::number(item.equipState), QStringLiteral("N/A"));
}

struct MaterielControls : ControlTable<MaterielControls> {
    const int itemGroup = group({1, {"Materiel", "Group item"}, GroupLayout::pairs, 2});
    const Id matosNoField = add({.name = "matosNoField", .field = "matosNo", .label = {"Materiel", "Label number"}});
    const Id typeMatosField = add({.name = "typeMatosField",
                                   .kind = ControlKind::combo,
                                   .field = "typeMatos",
                                   .label = {"Materiel", "Label type"},
                                   .pickList = PickList::tableauDesTypesMatos});
    const Id marqueMatosField = add({.name = "marqueMatosField",
                                     .kind = ControlKind::combo,
                                     .field = "marqueMatos",
                                     .label = {"Materiel", "Label brand"},
                                     .pickList = PickList::tableauDesMarques});
    const Id serieMatosField =
        add({.name = "serieMatosField", .field = "serieMatos", .label = {"Materiel", "Label serial number"}});
    const Id equipStatePopUp = add({.name = "equipStatePopUp",
                                    .kind = ControlKind::popUp,
                                    .field = "equipState",
                                    .label = {"Materiel", "Label state"},
                                    .choices = equipStates});

    const int purchaseGroup = group({1, {"Materiel", "Group purchase"}, GroupLayout::pairs, 2});
    const Id dateAchatField = add({.name = "dateAchatField",
                                   .kind = ControlKind::date,
                                   .field = "dateAchat",
                                   .label = {"Materiel", "Label purchase date"},
                                   .emptyAt1900 = true});
    const Id quantiteMatosField = add({.name = "quantiteMatosField",
                                       .kind = ControlKind::wholeNumber,
                                       .field = "quantiteMatos",
                                       .label = {"Materiel", "Label quantity"},
                                       .clearedText = "1"});
    const Id prixMatosField =
        add({.name = "prixMatosField", .field = "prixMatos", .label = {"Materiel", "Label price"}, .alignRight = true});
    const Id lieuAchatMatosField = add({.name = "lieuAchatMatosField",
                                        .kind = ControlKind::combo,
                                        .field = "lieuAchatMatos",
                                        .label = {"Materiel", "Label shop"},
                                        .pickList = PickList::tableauDesMagasins});
    const Id factureSwitch = add({.name = "factureSwitch",
                                  .kind = ControlKind::onOff,
                                  .field = "factureMatos",
                                  .label = {"Materiel", "Label invoice"}});

    const int inspectionGroup = group({2, {"Materiel", "Group inspection"}, GroupLayout::pairs, 2});
    const Id noInspectionSwitch = add({.name = "noInspectionSwitch",
                                       .kind = ControlKind::onOff,
                                       .field = "noInspection",
                                       .label = {"Materiel", "Label no inspection"},
                                       .clearedTag = 1});
    const Id lastRevisionField = add({.name = "lastRevisionField",
                                      .kind = ControlKind::date,
                                      .field = "lastRevision",
                                      .label = {"Materiel", "Label last inspection"},
                                      .emptyAt1900 = true});
    const Id nextRevisionField = add({.name = "nextRevisionField",
                                      .kind = ControlKind::date,
                                      .field = "nextRevision",
                                      .label = {"Materiel", "Label next inspection"},
                                      .emptyAt1900 = true});
    const Id tempsProgress = add(
        {.name = "tempsProgress", .kind = ControlKind::progress, .label = {"Materiel", "Label inspection progress"}});
    const Id pourcentageRevField = add({.name = "pourcentageRevField", .kind = ControlKind::readOnly, .beside = true});
    const Id delaiDepasseField = add({.name = "delaiDepasseField", .kind = ControlKind::readOnly, .width = 24});

    const int tankGroup = group({2, {"Materiel", "Group tank"}, GroupLayout::pairs, 2});
    const Id blocSwitch =
        add({.name = "blocSwitch", .kind = ControlKind::onOff, .field = "bloc", .label = {"Materiel", "Label tank"}});
    const Id capaciteField = add({.name = "capaciteField",
                                  .kind = ControlKind::decimal,
                                  .field = "capaciteBloc",
                                  .label = {"Materiel", "Label capacity"},
                                  .unit = {"Materiel", "Litres"},
                                  .clearedText = "0"});
    const Id pressionServiceField = add({.name = "pressionServiceField",
                                         .kind = ControlKind::wholeNumber,
                                         .field = "pressionService",
                                         .label = {"Materiel", "Label service pressure"},
                                         .unit = literal("bar"),
                                         .clearedText = "0"});
    const Id pressionEpreuveField = add({.name = "pressionEpreuveField",
                                         .kind = ControlKind::wholeNumber,
                                         .field = "pressionEpreuve",
                                         .label = {"Materiel", "Label test pressure"},
                                         .unit = literal("bar"),
                                         .clearedText = "0"});
    const Id firstRequalificationField = add({.name = "firstRequalificationField",
                                              .field = "firstRequalification",
                                              .label = {"Materiel", "Label first pressure test"}});
    const Id nextRequalificationField = add({.name = "nextRequalificationField",
                                             .kind = ControlKind::date,
                                             .field = "nextRequalification",
                                             .label = {"Materiel", "Label next pressure test"},
                                             .emptyAt1900 = true});
    const Id tivSwitch = add({.name = "tivSwitch",
                              .kind = ControlKind::onOff,
                              .field = "tiv",
                              .label = {"Materiel", "Label technician inspection"}});
    const Id nomTIVField =
        add({.name = "nomTIVField", .field = "nomTIV", .label = {"Materiel", "Label technician name"}});
    const Id noTIVField =
        add({.name = "noTIVField", .field = "noTIV", .label = {"Materiel", "Label technician number"}});

    const int notesGroup = group({3, {"Materiel", "Group remarks"}});
    const Id notesMatosField = add({.name = "notesMatosField", .kind = ControlKind::longText, .field = "notesMatos"});

    static const MaterielControls& table() {
        static const MaterielControls controls;
        return controls;
    }
};

/// What the switch for no inspection hides and sets back.
struct Inspection {
    std::array<qint32, 2> switches{};  ///< tank and technician
    std::array<Date, 3> dates;         ///< last and next inspection, next pressure test

    static Inspection none() { return {{}, {noDate(), noDate(), noDate()}}; }
    bool operator==(const Inspection&) const = default;
};

class MaterielForm : public RecordBookForm<MaterielControls, Materiel> {
public:
    using RecordBookForm::RecordBookForm;

protected:
    void clear(int count) override {
        const auto& form = controls();
        state().setInteger(form.matosNoField, qint64(count) + 1);
        state().setDate(form.dateAchatField, today());
        put(Inspection::none());
        held_ = shown_ = stored_ = Inspection::none();
    }

    void show(const Materiel&) override {
        held_ = current();
        shown_ = stored_ = isInspected() ? Inspection::none() : held_;
    }

    void entered(int control) override {
        const bool isSwitch = control == controls().noInspectionSwitch.index;
        if (isSwitch && isInspected()) {
            put(held_);
        } else if (isSwitch) {
            stored_ = held_ == shown_ ? shown_ : Inspection::none();
        } else if (!isInspected()) {
            takeHidden(control);
        }
        RecordBookForm::entered(control);
    }

    /// What the record has behind the switch stays there, unless the user turned it on.
    void complete(Materiel& item) override {
        if (!isInspected()) {
            std::tie(item.bloc, item.tiv) = std::tie(stored_.switches[0], stored_.switches[1]);
            std::tie(item.lastRevision, item.nextRevision, item.nextRequalification) =
                std::tie(stored_.dates[0], stored_.dates[1], stored_.dates[2]);
        }
    }

    void refresh() override {
        const auto& form = controls();
        const bool inspected = isInspected();
        if (inspected) {
            held_ = current();
        } else {
            put(Inspection::none());
        }
        const bool tank = state().isOn(form.blocSwitch);
        state().setVisible(form.blocSwitch, inspected);
        state().setVisible(form.tivSwitch, inspected && tank);
        state().setVisible(form.lastRevisionField, inspected);
        state().setVisible(form.nextRevisionField, inspected);
        for (const auto& control : {form.firstRequalificationField, form.nextRequalificationField, form.capaciteField,
                                    form.pressionServiceField, form.pressionEpreuveField}) {
            state().setVisible(control, tank);
        }
        const bool technician = tank && state().isOn(form.tivSwitch);
        state().setVisible(form.noTIVField, technician);
        state().setVisible(form.nomTIVField, technician);
        showProgress(inspected);
    }

private:
    bool isInspected() const { return !state().isOn(controls().noInspectionSwitch); }

    auto switches() const { return std::array{controls().blocSwitch, controls().tivSwitch}; }
    auto dates() const {
        return std::array{controls().lastRevisionField, controls().nextRevisionField,
                          controls().nextRequalificationField};
    }

    Inspection current() const {
        const auto [tank, technician] = switches();
        const auto [last, next, pressureTest] = dates();
        return {{state().tag(tank), state().tag(technician)},
                {state().date(last), state().date(next), state().date(pressureTest)}};
    }

    void put(const Inspection& values) {
        for (std::size_t place = 0; place < values.switches.size(); ++place) {
            state().setTag(switches()[place], values.switches[place]);
        }
        for (std::size_t place = 0; place < values.dates.size(); ++place) {
            state().setDate(dates()[place], values.dates[place]);
        }
    }

    /// The command line enters into what the switch hides, too.
    void takeHidden(int control) {
        const Inspection typed = current();
        for (std::size_t place = 0; place < typed.switches.size(); ++place) {
            if (control == switches()[place].index) {
                held_.switches[place] = stored_.switches[place] = typed.switches[place];
            }
        }
        for (std::size_t place = 0; place < typed.dates.size(); ++place) {
            if (control == dates()[place].index) {
                held_.dates[place] = stored_.dates[place] = typed.dates[place];
            }
        }
    }

    void showProgress(bool inspected) {
        const auto& form = controls();
        Materiel dates;
        dates.lastRevision = state().date(form.lastRevisionField);
        dates.nextRevision = state().date(form.nextRevisionField);
        const double progress = inspected ? dates.inspectionProgress(today()) : 0;
        state().setLevel(form.tempsProgress, progress);
        state().setText(form.pourcentageRevField, fillFormat(QStringLiteral("%.0f %%"), {progress}));
        const bool late = progress >= 100;
        // The colour is that of the first 27 characters, and the text is shorter in every language.
        state().setText(form.delaiDepasseField,
                        late ? text("Materiel", "Out of date") : text("Materiel", "Elapsed time"));
        state().setColour(form.delaiDepasseField, late ? plaincolour::red : QColor());
    }

    Inspection held_;    ///< as last seen without the switch
    Inspection shown_;   ///< behind the switch of the record that is shown
    Inspection stored_;  ///< what is stored while the switch is on
};

void numberCell(const Materiel&, const TableStyle&, Cell& cell) {
    cell.style.text = plaincolour::brown;
}

void invoiceCell(const Materiel& item, const TableStyle&, Cell& cell) {
    checkCell(item.factureMatos == 1, cell);
    cell.style.text = plaincolour::red;
}

void stateCell(const Materiel& item, const TableStyle&, Cell& cell) {
    static const std::array colours{QColor::fromRgbF(0.12F, 0.53F, 0.01F),
                                    plaincolour::orange,
                                    plaincolour::red,
                                    plaincolour::blue,
                                    plaincolour::blue,
                                    plaincolour::red,
                                    plaincolour::orange};
    cell.text = stateText(item);
    if (item.equipState >= 0 && item.equipState < static_cast<qint32>(colours.size())) {
        cell.style.text = colours[static_cast<std::size_t>(item.equipState)];
    }
}

void nextInspectionCell(const Materiel& item, const TableStyle&, Cell& cell) {
    if (item.noInspection == 1) {
        cell.text = QStringLiteral("-");
    }
}

void progressCell(const Materiel& item, const TableStyle& style, Cell& cell) {
    cell.text = fillFormat(QStringLiteral("%f"), {item.inspectionProgress(Date::fromDateTime(style.now))});
}

constexpr Column columns[] = {
    {"matosNo", {"Materiel", "Label number"}, 6, Qt::AlignRight, cellHook<numberCell>},
    {"typeMatos", {"Materiel", "Label type"}, 16},
    {"marqueMatos", {"Materiel", "Label brand"}, 14},
    {"serieMatos", {"Materiel", "Label serial number"}, 12},
    {"dateAchat", {"Materiel", "Label purchase date"}, widthOfDays, Qt::AlignRight},
    {"quantiteMatos", {"Materiel", "Label quantity"}, 7, Qt::AlignRight},
    {"prixMatos", {"Materiel", "Label price"}, 9, Qt::AlignRight},
    {"factureMatos", {"Materiel", "Label invoice"}, 7, Qt::AlignHCenter, cellHook<invoiceCell>},
    {"lieuAchatMatos", {"Materiel", "Label shop"}, 16},
    {"equipState", {"Materiel", "Label state"}, 13, Qt::AlignLeft, cellHook<stateCell>},
    {"lastRevision", {"Materiel", "Label last inspection"}, widthOfDays, Qt::AlignRight},
    {"nextRevision", {"Materiel", "Label next inspection"}, widthOfDays, Qt::AlignRight, cellHook<nextInspectionCell>},
    {"progress", {"Materiel", "Label inspection progress"}, 11, Qt::AlignRight, cellHook<progressCell>},
};

StyledText card(const CardRecords& records, const Desktop& desktop, const QString& file) {
    CardBuilder card({"Materiel", "Inventory"});
    for (const auto& record : records) {
        const auto& item = static_cast<const Materiel&>(*record);
        card.beginRecord();
        card.entry({"Materiel", "Card No"}, item.matosNo);
        card.entry({"Materiel", "Equipment type"}, item.typeMatos);
        card.entry({"Materiel", "Trade mark"}, item.marqueMatos);
        card.entry({"Materiel", "Serial No"}, item.serieMatos);
        card.entry({"Materiel", "Purchase date"}, item.dateAchat);
        card.entry({"Materiel", "Purchase location"}, item.lieuAchatMatos);
        card.entry({"Materiel", "Quantity"}, item.quantiteMatos);
        card.entry({"Materiel", "Price"}, item.prixMatos);
        card.entry({"Materiel", "Facture"}, item.factureMatos == 1 ? text("Main", "Yes") : text("Main", "No"));
        if (item.noInspection == 0) {
            card.entry({"Materiel", "Last inspection"}, item.lastRevision);
            card.entry({"Materiel", "Next inspection"}, item.nextRevision);
            if (item.bloc == 1) {
                card.add(QStringLiteral("\rbloc"), plaincolour::black);
                card.entry({"Materiel", "Capacity"}, truncated(static_cast<double>(item.capaciteBloc)));
                card.entry({"Materiel", "Service pressure"}, item.pressionService);
                card.entry({"Materiel", "Test pressure"}, item.pressionEpreuve);
                card.entry({"Materiel", "First test pressure"}, item.firstRequalification);
                card.entry({"Materiel", "Next test pressure"}, item.nextRequalification);
                if (item.tiv == 1) {
                    card.entry({"Materiel", "TIV technician"}, item.nomTIV);
                    card.entry({"Materiel", "TIV No"}, item.noTIV);
                }
            }
        }
        card.entry({"Materiel", "Equipment state"}, stateText(item));
        card.entry({"Materiel", "Remarks"}, item.notesMatos);
    }
    return card.finish(file, desktop.clock.now());
}

constexpr Title pages[] = {{"Materiel", "Page item"}, {"Materiel", "Page inspection"}, {"Materiel", "Page remarks"}};

constexpr BookCommands commands{"newMatos", "addMatos", "insertMatos", "updateMatos", "deleteMatos"};
constexpr RecordBookTools tools(commands);

}  // namespace

const RecordLayout& Materiel::layout() {
    return materielLayout;
}

double Materiel::inspectionProgress(const Date& now) const {
    const double last = lastRevision.secondsSince2001();
    const double next = nextRevision.secondsSince2001();
    return last == next ? 0 : (now.secondsSince2001() - last) / (next - last) * 100;
}

const BookDescription& invMateriel() {
    static constexpr BookDescription description{
        .kind = {{"Main", "Materiel"}, "Materiel", "materiel"},
        .title = {"Main", "Type equipment"},
        .layoutName = "Materiel",
        .newAction = "newMaterielDocumentMenuAction",
        .layout = &Materiel::layout,
        .columns = columns,
        .tableStyle = &plainTableStyle,
        .pages = pages,
        .numberField = "matosNoField",
        .tableToolBar = tools.tableToolBar("equipTableViewWindowToolbar"),
        .editToolBar = tools.editToolBar("equipEditWindowToolbar"),
        .commands = commands,
        .words = recordBookWords({"Materiel", "Edit window title"}, {"Materiel", "Menu"}, {"Materiel", "Table name"}),
        .print = recordBookPrint,
        .card = &card,
        .makeForm = &makeRecordBookForm<MaterielForm>,
        .make = &makeRecordBook<Materiel, invMateriel>,
    };
    return description;
}

}  // namespace tavrel
