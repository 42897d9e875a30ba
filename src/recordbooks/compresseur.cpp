#include "recordbooks/compresseur.h"

#include "base/numbers.h"
#include "book/card.h"
#include "book/standardbook.h"
#include "recordbooks/recordbooks.h"

namespace tavrel {

namespace {

constexpr Item items[] = {
    {"marque", member<&Compresseur::marque>},
    {"modele", member<&Compresseur::modele>},
    {"cumulTemps", member<&Compresseur::cumulTemps>},
    {"date", member<&Compresseur::date>},
    {"temps", member<&Compresseur::temps>},
    {"vidange", member<&Compresseur::vidange>},
    {"typeHuile", member<&Compresseur::typeHuile>},
    {"filtreAir", member<&Compresseur::filtreAir>},
    {"operationFiltre", member<&Compresseur::operationFiltre>},
    {"cartouche", member<&Compresseur::cartouche>},
    {"charbon", member<&Compresseur::charbon>},
    {"alumine", member<&Compresseur::alumine>},
    {"tamis", member<&Compresseur::tamis>},
    {"depoussierage", member<&Compresseur::depoussierage>},
    {"controles", member<&Compresseur::controles>},
    {"soupapes", member<&Compresseur::soupapes>},
    {"intSoupape", member<&Compresseur::intSoupape>},
    {"anHuile", member<&Compresseur::anHuile>},
    {"anCO2", member<&Compresseur::anCO2>},
    {"anCO", member<&Compresseur::anCO>},
    {"anH2O", member<&Compresseur::anH2O>},
    {"anCO2Unit", member<&Compresseur::anCO2Unit>},
    {"anCOUnit", member<&Compresseur::anCOUnit>},
    {"notes", member<&Compresseur::notes>},
};

constexpr RecordLayout compresseurLayout = recordLayout<Compresseur>("Compresseur", 1, items);

constexpr Choice oils[] = {{1, {"Compresseur", "Mineral"}}, {0, {"Compresseur", "Synthetic"}}};
constexpr Choice filterOperations[] = {{1, {"Compresseur", "TableView replacement"}},
                                       {0, {"Compresseur", "TableView cleaning"}}};
constexpr Choice valveOperations[] = {{1, {"Compresseur", "TableView retarage"}},
                                      {0, {"Compresseur", "TableView verification"}}};
constexpr Choice gasUnits[] = {{1, literal("ppm")}, {0, literal("ml/m3")}};

/// Choices of two are 1 or 0; any other number counts as the first here, as the second where only 1 is told apart.
QString ofTwo(std::span<const Choice> choices, bool first) {
    return choices[first ? 0 : 1].title.text();
}

struct CompresseurControls : ControlTable<CompresseurControls> {
    const int serviceGroup = group({1, {"Compresseur", "Group service"}, GroupLayout::pairs, 2});
    const Id marqueField = add({.name = "marqueField", .field = "marque", .label = {"Compresseur", "Label brand"}});
    const Id modeleField = add({.name = "modeleField", .field = "modele", .label = {"Compresseur", "Label model"}});
    const Id dateField = add({.name = "dateField",
                              .kind = ControlKind::date,
                              .field = "date",
                              .label = {"Compresseur", "Label date"},
                              .emptyAt1900 = true});
    const Id tempsField = add({.name = "tempsField",
                               .kind = ControlKind::time,
                               .field = "temps",
                               .label = {"Compresseur", "Label running time"}});
    const Id cumulTempsField =
        add({.name = "cumulTempsField", .field = "cumulTemps", .label = {"Compresseur", "Label sum time"}});

    const int oilGroup = group({2, {"Compresseur", "Group oil and filter"}, GroupLayout::pairs, 2});
    const Id vidangeSwitch = add({.name = "vidangeSwitch",
                                  .kind = ControlKind::onOff,
                                  .field = "vidange",
                                  .label = {"Compresseur", "Label oil change"}});
    const Id typeHuileMatrix = add({.name = "typeHuileMatrix",
                                    .kind = ControlKind::radio,
                                    .field = "typeHuile",
                                    .label = {"Compresseur", "Label oil"},
                                    .choices = oils});
    const Id filtreAirSwitch = add({.name = "filtreAirSwitch",
                                    .kind = ControlKind::onOff,
                                    .field = "filtreAir",
                                    .label = {"Compresseur", "Label air filter"}});
    const Id operationFiltreMatrix = add({.name = "operationFiltreMatrix",
                                          .kind = ControlKind::radio,
                                          .field = "operationFiltre",
                                          .label = {"Compresseur", "Label filter operation"},
                                          .choices = filterOperations});

    const int cartridgeGroup = group({2, {"Compresseur", "Group cartridge"}, GroupLayout::pairs, 2});
    const Id cartoucheSwitch = add({.name = "cartoucheSwitch",
                                    .kind = ControlKind::onOff,
                                    .field = "cartouche",
                                    .label = {"Compresseur", "Label cartridge"}});
    const Id charbonSwitch = add({.name = "charbonSwitch",
                                  .kind = ControlKind::onOff,
                                  .field = "charbon",
                                  .label = {"Compresseur", "Label charcoal"}});
    const Id alumineSwitch = add({.name = "alumineSwitch",
                                  .kind = ControlKind::onOff,
                                  .field = "alumine",
                                  .label = {"Compresseur", "Label alumina"}});
    const Id tamisSwitch = add(
        {.name = "tamisSwitch", .kind = ControlKind::onOff, .field = "tamis", .label = {"Compresseur", "Label sieve"}});

    const int checksGroup = group({2, {"Compresseur", "Group checks"}, GroupLayout::pairs, 2});
    const Id depoussierageSwitch = add({.name = "depoussierageSwitch",
                                        .kind = ControlKind::onOff,
                                        .field = "depoussierage",
                                        .label = {"Compresseur", "Label cleaning"}});
    const Id controlesSwitch = add({.name = "controlesSwitch",
                                    .kind = ControlKind::onOff,
                                    .field = "controles",
                                    .label = {"Compresseur", "Label checks"}});
    const Id soupapesSwitch = add({.name = "soupapesSwitch",
                                   .kind = ControlKind::onOff,
                                   .field = "soupapes",
                                   .label = {"Compresseur", "Label valves"}});
    const Id intSoupapeMatrix = add({.name = "intSoupapeMatrix",
                                     .kind = ControlKind::radio,
                                     .field = "intSoupape",
                                     .label = {"Compresseur", "Label valve operation"},
                                     .choices = valveOperations});

    const int analysesGroup = group({3, {"Compresseur", "Group analyses"}, GroupLayout::pairs, 2});
    const Id anHuileField = add({.name = "anHuileField",
                                 .kind = ControlKind::decimal,
                                 .field = "anHuile",
                                 .label = {"Compresseur", "Label oil content"},
                                 .unit = literal("mg/m3"),
                                 .clearedText = "-"});
    const Id anH2OField = add({.name = "anH2OField",
                               .kind = ControlKind::decimal,
                               .field = "anH2O",
                               .label = {"Compresseur", "Label water"},
                               .unit = literal("ml/m3"),
                               .clearedText = "-"});
    const Id anCO2Field = add({.name = "anCO2Field",
                               .kind = ControlKind::decimal,
                               .field = "anCO2",
                               .label = {"Compresseur", "Label carbon dioxide"},
                               .clearedText = "-"});
    const Id anCO2UnitPopUp = add({.name = "anCO2UnitPopUp",
                                   .kind = ControlKind::popUp,
                                   .field = "anCO2Unit",
                                   .label = {"Compresseur", "Label carbon dioxide unit"},
                                   .choices = gasUnits});
    const Id anCOField = add({.name = "anCOField",
                              .kind = ControlKind::decimal,
                              .field = "anCO",
                              .label = {"Compresseur", "Label carbon monoxide"},
                              .clearedText = "-"});
    const Id anCOUnitPopUp = add({.name = "anCOUnitPopUp",
                                  .kind = ControlKind::popUp,
                                  .field = "anCOUnit",
                                  .label = {"Compresseur", "Label carbon monoxide unit"},
                                  .choices = gasUnits});

    const int notesGroup = group({3, {"Compresseur", "Group remarks"}});
    const Id notesField = add({.name = "notesField", .kind = ControlKind::longText, .field = "notes"});

    static const CompresseurControls& table() {
        static const CompresseurControls controls;
        return controls;
    }
};

class CompresseurForm : public RecordBookForm<CompresseurControls, Compresseur> {
public:
    using RecordBookForm::RecordBookForm;

protected:
    void clear(int) override {
        state().setDate(controls().dateField, noDate());
        state().setDate(controls().tempsField, noDate());
    }

    void show(const Compresseur& service) override {
        state().setTag(controls().typeHuileMatrix, service.typeHuile != 0 ? 1 : 0);
        for (const auto& [control, analysis] : analyses()) {
            if (service.*analysis == Compresseur::notMeasured) {
                state().setText(control, QStringLiteral("-"));
            }
        }
    }

    void complete(Compresseur& service) override {
        for (const auto& [control, analysis] : analyses()) {
            if (state().text(control) == u"-" || state().integer(control) < -1) {
                service.*analysis = Compresseur::notMeasured;
            }
        }
    }

    void refresh() override {
        const auto& form = controls();
        state().setEnabled(form.typeHuileMatrix, state().isOn(form.vidangeSwitch));
        state().setEnabled(form.operationFiltreMatrix, state().isOn(form.filtreAirSwitch));
        state().setEnabled(form.intSoupapeMatrix, state().isOn(form.soupapesSwitch));
        for (const auto& part : {form.charbonSwitch, form.alumineSwitch, form.tamisSwitch}) {
            state().setEnabled(part, state().isOn(form.cartoucheSwitch));
        }
    }

private:
    struct Analysis {
        CompresseurControls::Id control;
        float Compresseur::*value;
    };

    std::array<Analysis, 4> analyses() const {
        const auto& form = controls();
        return {{{form.anHuileField, &Compresseur::anHuile},
                 {form.anCO2Field, &Compresseur::anCO2},
                 {form.anCOField, &Compresseur::anCO},
                 {form.anH2OField, &Compresseur::anH2O}}};
    }
};

void oilChangeCell(const Compresseur& service, const TableStyle&, Cell& cell) {
    checkCell(service.vidange != 0, cell);
}

void filterCell(const Compresseur& service, const TableStyle&, Cell& cell) {
    cell.text = ofTwo(filterOperations, service.operationFiltre == 1);
}

void valveCell(const Compresseur& service, const TableStyle&, Cell& cell) {
    cell.text = ofTwo(valveOperations, service.intSoupape == 1);
}

void showAnalysis(float value, bool isPpm, Cell& cell) {
    if (value == Compresseur::notMeasured) {
        cell.text = QStringLiteral("-");
    } else if (isPpm) {
        cell.text += QStringLiteral(" ppm");
    }
}

void oilContentCell(const Compresseur& service, const TableStyle&, Cell& cell) {
    showAnalysis(service.anHuile, false, cell);
}

void carbonDioxideCell(const Compresseur& service, const TableStyle&, Cell& cell) {
    showAnalysis(service.anCO2, service.anCO2Unit == 1, cell);
}

void carbonMonoxideCell(const Compresseur& service, const TableStyle&, Cell& cell) {
    showAnalysis(service.anCO, service.anCOUnit == 1, cell);
}

void waterCell(const Compresseur& service, const TableStyle&, Cell& cell) {
    showAnalysis(service.anH2O, false, cell);
}

void runningTimeCell(const Compresseur& service, const TableStyle&, Cell& cell) {
    cell.text = hoursAndMinutes(service.temps);
}

constexpr Column columns[] = {
    {"date", {"Compresseur", "Label date"}, widthOfDays, Qt::AlignRight},
    {"marque", {"Compresseur", "Label brand"}, 14},
    {"modele", {"Compresseur", "Label model"}, 12},
    {"temps", {"Compresseur", "Label running time"}, 9, Qt::AlignRight, cellHook<runningTimeCell>},
    {"cumulTemps", {"Compresseur", "Label sum time"}, 9, Qt::AlignRight},
    {"vidange", {"Compresseur", "Label oil change"}, 8, Qt::AlignHCenter, cellHook<oilChangeCell>},
    {"operationFiltre", {"Compresseur", "Label air filter"}, 14, Qt::AlignLeft, cellHook<filterCell>},
    {"intSoupape", {"Compresseur", "Label valves"}, 14, Qt::AlignLeft, cellHook<valveCell>},
    {"anHuile", {"Compresseur", "Label oil content"}, 8, Qt::AlignRight, cellHook<oilContentCell>},
    {"anCO2", {"Compresseur", "Label carbon dioxide"}, 10, Qt::AlignRight, cellHook<carbonDioxideCell>},
    {"anCO", {"Compresseur", "Label carbon monoxide"}, 10, Qt::AlignRight, cellHook<carbonMonoxideCell>},
    {"anH2O", {"Compresseur", "Label water"}, 8, Qt::AlignRight, cellHook<waterCell>},
};

void addOperations(CardBuilder& card, const Compresseur& service) {
    card.heading({"Compresseur", "Operations"});
    if (service.vidange != 0) {
        card.heading(service.typeHuile != 0 ? Title("Compresseur", "Vidange mineral")
                                            : Title("Compresseur", "Vidange synthesis"));
    }
    if (service.filtreAir != 0) {
        card.heading(service.operationFiltre == 1 ? Title("Compresseur", "Filter replacement")
                                                  : Title("Compresseur", "Filter cleaning"));
    }
    if (service.cartouche != 0) {
        card.heading({"Compresseur", "Cardridge"});
        if (service.charbon != 0) {
            card.heading({"Compresseur", "Charcoal"});
        }
        if (service.alumine != 0) {
            card.heading({"Compresseur", "Alumin"});
        }
        if (service.tamis != 0) {
            card.heading({"Compresseur", "Molecular mesh"});
        }
    }
    if (service.depoussierage != 0) {
        card.heading({"Compresseur", "Cleaning"});
    }
    if (service.controles != 0) {
        card.heading({"Compresseur", "Controls"});
    }
    if (service.soupapes != 0) {
        card.entry({"Compresseur", "Valves"},
                   service.intSoupape == 1 ? text("Compresseur", "Retarage") : text("Compresseur", "Verification"));
    }
}

void addAnalyses(CardBuilder& card, const Compresseur& service) {
    const auto add = [&card](const Title& label, float value, const QString& unit) {
        if (value >= 0) {
            card.entry(label, shortestText(value) + u' ' + unit);
        }
    };
    card.heading({"Compresseur", "Analyzes"});
    add({"Compresseur", "Analyse huile"}, service.anHuile, QStringLiteral("mg/m3"));
    add({"Compresseur", "Analyse CO2"}, service.anCO2, ofTwo(gasUnits, service.anCO2Unit == 1));
    add({"Compresseur", "Analyse CO"}, service.anCO, ofTwo(gasUnits, service.anCOUnit == 1));
    add({"Compresseur", "Analyse H2O"}, service.anH2O, QStringLiteral("ml/m3"));
}

StyledText card(const CardRecords& records, const Desktop& desktop, const QString& file) {
    CardBuilder card({"Compresseur", "Inventory"});
    if (!records.list().empty()) {
        // The compressor is that of the first service in the list.
        const auto& first = static_cast<const Compresseur&>(*records.list().front());
        card.entry({"Compresseur", "Trade mark"}, first.marque);
        card.entry({"Compresseur", "Model"}, first.modele);
    }
    for (std::size_t index = 0; index < records.size(); ++index) {
        const auto& service = static_cast<const Compresseur&>(*records[index]);
        card.add(QStringLiteral("\r\r------------------------------\r"), plaincolour::black);
        card.entry({"Compresseur", "Service"},
                   fillFormat(QStringLiteral("%d\r"), {formatArgument(records.row(index) + 1)}));
        card.entry({"Compresseur", "Date"}, service.date);
        card.entry({"Compresseur", "Time"}, service.temps.toDateTime().time().toString(u"HH 'h' mm 'min.'"));
        card.entry({"Compresseur", "Sum time"}, service.cumulTemps);
        addOperations(card, service);
        addAnalyses(card, service);
        card.entry({"Compresseur", "Remarks"}, service.notes);
    }
    card.add(QStringLiteral("\r--------------------\r"), plaincolour::black);
    return card.finish(file, desktop.clock.now());
}

constexpr Title pages[] = {
    {"Compresseur", "Page service"}, {"Compresseur", "Page operations"}, {"Compresseur", "Page analyses"}};

constexpr BookCommands commands{"newService", "addService", "insertMaintenance", "updateService", "deleteService"};
constexpr RecordBookTools tools(commands);

constexpr BookWords words() {
    BookWords words =
        recordBookWords({"Compresseur", "Edit window title"}, {"Compresseur", "Menu"}, {"Compresseur", "Table name"});
    words.oneRecord = {"Main", "One revision"};
    words.manyRecords = {"Main", "Revisions"};
    words.eraseQuestions = {"Main", "Erase revisions"};
    return words;
}

}  // namespace

const RecordLayout& Compresseur::layout() {
    return compresseurLayout;
}

const BookDescription& maintComp() {
    static constexpr BookDescription description{
        .kind = {literal("Compresseur"), "Compresseur", "compresseur"},
        .title = {"Main", "Type compressor"},
        .layoutName = "Compresseur",
        .newAction = "newCompresseurDocumentMenuAction",
        .layout = &Compresseur::layout,
        .columns = columns,
        .tableStyle = &plainTableStyle,
        .pages = pages,
        .numberField = "dateField",
        .tableToolBar = tools.tableToolBar("serviceTableViewWindowToolbar"),
        .editToolBar = tools.editToolBar("serviceEditWindowToolbar"),
        .commands = commands,
        .words = words(),
        .print = recordBookPrint,
        .card = &card,
        .makeForm = &makeRecordBookForm<CompresseurForm>,
        .make = &makeBookByDay<Compresseur, maintComp>,
    };
    return description;
}

}  // namespace tavrel
