#include "recordbooks/epaves.h"

#include "base/numbers.h"
#include "book/card.h"
#include "book/standardbook.h"
#include "recordbooks/recordbooks.h"

namespace tavrel {

namespace {

constexpr Item items[] = {
    {"nom", member<&Epaves::nom>},
    {"type", member<&Epaves::type>},
    {"immatriculation", member<&Epaves::immatriculation>},
    {"nationalite", member<&Epaves::nationalite>},
    {"longueur", member<&Epaves::longueur>, Travel::integer, 0, 3},
    {"largeur", member<&Epaves::largeur>, Travel::integer, 0, 3},
    {"longueur", member<&Epaves::longueur>, Travel::plain, 4},
    {"largeur", member<&Epaves::largeur>, Travel::plain, 4},
    {"materiau", member<&Epaves::materiau>},
    {"jauge", member<&Epaves::jauge>},
    {"propulsion", member<&Epaves::propulsion>},
    {"dateConstruction", member<&Epaves::dateConstruction>},
    {"lieuConstruction", member<&Epaves::lieuConstruction>},
    {"dateNaufrage", member<&Epaves::dateNaufrage>},
    {"causeNaufrage", member<&Epaves::causeNaufrage>},
    {"pointHaut", member<&Epaves::pointHaut>},
    {"pointBas", member<&Epaves::pointBas>},
    {"orientationSwitch", member<&Epaves::orientationSwitch>, Travel::plain, 3},
    {"orientation", member<&Epaves::orientation>},
    {"inclinaison", member<&Epaves::inclinaison>},
    {"dateVisite", member<&Epaves::dateVisite>},
    {"aVisiter", member<&Epaves::aVisiter>, Travel::plain, 2},
    {"lieu", member<&Epaves::lieu>},
    {"site", member<&Epaves::site>},
    {"pays", member<&Epaves::pays>},
    {"gps", member<&Epaves::gps>},
    {"gpsSystem", member<&Epaves::gpsSystem>},
    {"acces", member<&Epaves::acces>},
    {"accesBord", member<&Epaves::accesBord>},
    {"localisation", member<&Epaves::localisation>},
    {"interet", member<&Epaves::interet>},
    {"technicite", member<&Epaves::technicite>},
    {"relevement1", member<&Epaves::relevement1>},
    {"relevement2", member<&Epaves::relevement2>},
    Item("relevement3", member<&Epaves::relevement3>).writtenFrom(member<&Epaves::relevement1>),
    {"photo", member<&Epaves::photo>},
    {"notes", member<&Epaves::notes>},
    {"typeMachine", member<&Epaves::typeMachine>, Travel::plain, 5},
    {"puissance", member<&Epaves::puissance>, Travel::plain, 5},
    {"natureFond", member<&Epaves::natureFond>, Travel::plain, 5},
    {"nomsPrecedents", member<&Epaves::nomsPrecedents>, Travel::plain, 5},
    {"armateur", member<&Epaves::armateur>, Travel::plain, 5},
    {"ports", member<&Epaves::ports>, Travel::plain, 5},
    {"capitaine", member<&Epaves::capitaine>, Travel::plain, 5},
    {"equipage", member<&Epaves::equipage>, Travel::plain, 5},
    {"chargement", member<&Epaves::chargement>, Travel::plain, 5},
    {"provenance", member<&Epaves::provenance>, Travel::plain, 5},
    {"destination", member<&Epaves::destination>, Travel::plain, 5},
    {"miseAJour", member<&Epaves::miseAJour>, Travel::plain, 5},
};

void afterReading(Epaves& wreck, int version) {
    if (version >= 5) {
        return;
    }
    for (QString* history :
         {&wreck.typeMachine, &wreck.puissance, &wreck.natureFond, &wreck.nomsPrecedents, &wreck.armateur, &wreck.ports,
          &wreck.capitaine, &wreck.equipage, &wreck.chargement, &wreck.provenance, &wreck.destination}) {
        *history = QStringLiteral("");
    }
}

constexpr RecordLayout epavesLayout = recordLayout<Epaves, &afterReading>("Epaves", 5, items);

constexpr Choice materials[] = {
    {0, literal("-")},           {1, {"Epaves", "Wood"}}, {2, {"Epaves", "Iron"}}, {3, {"Epaves", "Polyester"}},
    {4, {"Epaves", "Concrete"}},
};

constexpr Choice propulsions[] = {
    {0, literal("-")},
    {1, {"Epaves", "TableView essence"}},
    {2, {"Epaves", "TableView diesel"}},
    {3, {"Epaves", "TableView kerosene"}},
    {4, {"Epaves", "TableView nucleaire"}},
    {5, {"Epaves", "TableView rames"}},
    {6, {"Epaves", "TableView vapeur"}},
    {7, {"Epaves", "TableView voile"}},
    {8, {"Epaves", "TableView remorque"}},
    {9, {"Epaves", "TableView diesel elec"}},
};

constexpr Choice inclinations[] = {
    {0, literal("-")}, {1, {"Epaves", "None"}}, {2, {"Epaves", "Port"}}, {3, {"Epaves", "Starboard"}}};

constexpr Choice datums[] = {{0, literal("-")}, {1, literal("WGS84")}, {2, literal("ED50")}};

constexpr Choice eases[] = {
    {0, literal("-")}, {1, {"Epaves", "Easy"}}, {2, {"Epaves", "Medium"}}, {3, {"Epaves", "Difficult"}}};

struct EpavesControls : ControlTable<EpavesControls> {
    const int shipGroup = group({1, {"Epaves", "Group ship"}, GroupLayout::pairs, 2});
    const Id nomField = add({.name = "nomField", .field = "nom", .label = {"Epaves", "Label name"}});
    const Id typeField = add({.name = "typeField",
                              .kind = ControlKind::combo,
                              .field = "type",
                              .label = {"Epaves", "Label type"},
                              .pickList = PickList::tableauDesTypesEpaves});
    const Id immatriculationField =
        add({.name = "immatriculationField", .field = "immatriculation", .label = {"Epaves", "Label registration"}});
    const Id nationaliteField =
        add({.name = "nationaliteField", .field = "nationalite", .label = {"Epaves", "Label nationality"}});
    const Id longueurField = add({.name = "longueurField",
                                  .kind = ControlKind::decimal,
                                  .field = "longueur",
                                  .label = {"Epaves", "Label length"},
                                  .unit = literal("m")});
    const Id largeurField = add({.name = "largeurField",
                                 .kind = ControlKind::decimal,
                                 .field = "largeur",
                                 .label = {"Epaves", "Label width"},
                                 .unit = literal("m")});
    const Id jaugeField = add({.name = "jaugeField",
                               .kind = ControlKind::wholeNumber,
                               .field = "jauge",
                               .label = {"Epaves", "Label tonnage"}});
    const Id materiauPopUp = add({.name = "materiauPopUp",
                                  .kind = ControlKind::popUp,
                                  .field = "materiau",
                                  .label = {"Epaves", "Label material"},
                                  .choices = materials});

    const int engineGroup = group({1, {"Epaves", "Group engine"}, GroupLayout::pairs, 2});
    const Id propulsionPopUp = add({.name = "propulsionPopUp",
                                    .kind = ControlKind::popUp,
                                    .field = "propulsion",
                                    .label = {"Epaves", "Label propulsion"},
                                    .choices = propulsions});
    const Id typeMachineField =
        add({.name = "typeMachineField", .field = "typeMachine", .label = {"Epaves", "Label engine type"}});
    const Id puissanceField = add({.name = "puissanceField", .field = "puissance", .label = {"Epaves", "Label power"}});

    const int buildGroup = group({2, {"Epaves", "Group life"}, GroupLayout::pairs, 2});
    const Id nomsPrecedentsField =
        add({.name = "nomsPrecedentsField", .field = "nomsPrecedents", .label = {"Epaves", "Label previous names"}});
    const Id armateurField = add({.name = "armateurField", .field = "armateur", .label = {"Epaves", "Label owner"}});
    const Id dateConstructionField =
        add({.name = "dateConstructionField", .field = "dateConstruction", .label = {"Epaves", "Label build date"}});
    const Id lieuConstructionField =
        add({.name = "lieuConstructionField", .field = "lieuConstruction", .label = {"Epaves", "Label build place"}});
    const Id portsField = add({.name = "portsField", .field = "ports", .label = {"Epaves", "Label harbours"}});

    const int sinkingGroup = group({2, {"Epaves", "Group sinking"}, GroupLayout::pairs, 2});
    const Id capitaineField =
        add({.name = "capitaineField", .field = "capitaine", .label = {"Epaves", "Label captain"}});
    const Id equipageField = add({.name = "equipageField", .field = "equipage", .label = {"Epaves", "Label crew"}});
    const Id chargementField =
        add({.name = "chargementField", .field = "chargement", .label = {"Epaves", "Label cargo"}});
    const Id provenanceField =
        add({.name = "provenanceField", .field = "provenance", .label = {"Epaves", "Label from port"}});
    const Id destinationField =
        add({.name = "destinationField", .field = "destination", .label = {"Epaves", "Label to port"}});
    const Id dateNaufrageField =
        add({.name = "dateNaufrageField", .field = "dateNaufrage", .label = {"Epaves", "Label sinking date"}});
    const Id causeNaufrageField = add({.name = "causeNaufrageField",
                                       .kind = ControlKind::combo,
                                       .field = "causeNaufrage",
                                       .label = {"Epaves", "Label sinking cause"},
                                       .pickList = PickList::tableauDesCausesNaufrages});

    const int placeGroup = group({3, {"Epaves", "Group place"}, GroupLayout::pairs, 2});
    const Id lieuField = add({.name = "lieuField", .field = "lieu", .label = {"Epaves", "Label place"}});
    const Id siteField = add({.name = "siteField", .field = "site", .label = {"Epaves", "Label site"}});
    const Id paysField = add({.name = "paysField", .field = "pays", .label = {"Epaves", "Label country"}});
    const Id gpsField = add({.name = "gpsField", .field = "gps", .label = {"Epaves", "Label position"}, .width = 26});
    const Id gpsSystemPopUp = add({.name = "gpsSystemPopUp",
                                   .kind = ControlKind::popUp,
                                   .field = "gpsSystem",
                                   .label = {"Epaves", "Label datum"},
                                   .choices = datums});

    const int bearingsGroup = group({3, {"Epaves", "Group landmarks"}});
    const Id relevement1Field =
        add({.name = "relevement1Field", .field = "relevement1", .label = {"Epaves", "Label landmark 1"}});
    const Id relevement2Field =
        add({.name = "relevement2Field", .field = "relevement2", .label = {"Epaves", "Label landmark 2"}});
    const Id relevement3Field =
        add({.name = "relevement3Field", .field = "relevement3", .label = {"Epaves", "Label landmark 3"}});

    const int lieGroup = group({4, {"Epaves", "Group lie"}, GroupLayout::pairs, 2});
    const Id pointHautField = add({.name = "pointHautField",
                                   .kind = ControlKind::decimal,
                                   .field = "pointHaut",
                                   .label = {"Epaves", "Label shallowest point"},
                                   .unit = literal("m")});
    const Id pointBasField = add({.name = "pointBasField",
                                  .kind = ControlKind::decimal,
                                  .field = "pointBas",
                                  .label = {"Epaves", "Label deepest point"},
                                  .unit = literal("m")});
    const Id natureFondField =
        add({.name = "natureFondField", .field = "natureFond", .label = {"Epaves", "Label bottom"}});
    const Id inclinaisonPopUp = add({.name = "inclinaisonPopUp",
                                     .kind = ControlKind::popUp,
                                     .field = "inclinaison",
                                     .label = {"Epaves", "Label inclination"},
                                     .choices = inclinations});
    const Id orientationSwitch = add({.name = "orientationSwitch",
                                      .kind = ControlKind::onOff,
                                      .field = "orientationSwitch",
                                      .label = {"Epaves", "Label orientation given"}});
    const Id orientationField = add({.name = "orientationField",
                                     .kind = ControlKind::wholeNumber,
                                     .field = "orientation",
                                     .label = {"Epaves", "Label orientation"},
                                     .unit = literal("°")});

    const int diveGroup = group({4, {"Epaves", "Group dive"}, GroupLayout::pairs, 2});
    const Id aVisiterSwitch = add({.name = "aVisiterSwitch",
                                   .kind = ControlKind::onOff,
                                   .field = "aVisiter",
                                   .label = {"Epaves", "Label to visit"}});
    const Id dateVisiteField = add({.name = "dateVisiteField",
                                    .kind = ControlKind::date,
                                    .field = "dateVisite",
                                    .label = {"Epaves", "Label first visit"},
                                    .emptyAt1900 = true});
    const Id accesPopUp = add({.name = "accesPopUp",
                               .kind = ControlKind::popUp,
                               .field = "acces",
                               .label = {"Epaves", "Label access"},
                               .choices = eases});
    const Id accesBordPopUp = add({.name = "accesBordPopUp",
                                   .kind = ControlKind::popUp,
                                   .field = "accesBord",
                                   .label = {"Epaves", "Label access on board"},
                                   .choices = eases});
    const Id localisationPopUp = add({.name = "localisationPopUp",
                                      .kind = ControlKind::popUp,
                                      .field = "localisation",
                                      .label = {"Epaves", "Label finding"},
                                      .choices = eases});
    const Id interetSlider = add({.name = "interetSlider",
                                  .kind = ControlKind::rating,
                                  .field = "interet",
                                  .label = {"Epaves", "Label interest"},
                                  .maximum = highestCotation});
    const Id techniciteSlider = add({.name = "techniciteSlider",
                                     .kind = ControlKind::rating,
                                     .field = "technicite",
                                     .label = {"Epaves", "Label difficulty"},
                                     .maximum = highestCotation});

    const int notesGroup = group({5, {"Epaves", "Group remarks"}});
    const Id photoField = add({.name = "photoField", .field = "photo", .label = {"Epaves", "Label picture"}});
    const Id miseAJourField = add({.name = "miseAJourField",
                                   .kind = ControlKind::date,
                                   .field = "miseAJour",
                                   .label = {"Epaves", "Label updated"},
                                   .emptyAt1900 = true});
    const Id notesField = add({.name = "notesField", .kind = ControlKind::longText, .field = "notes"});

    static const EpavesControls& table() {
        static const EpavesControls controls;
        return controls;
    }
};

class EpavesForm : public RecordBookForm<EpavesControls, Epaves> {
public:
    using RecordBookForm::RecordBookForm;

protected:
    void clear(int) override {
        state().setDate(controls().dateVisiteField, noDate());
        state().setDate(controls().miseAJourField, noDate());
    }

    void refresh() override {
        state().setEnabled(controls().orientationField, state().isOn(controls().orientationSwitch));
    }
};

void nameCell(const Epaves& wreck, const TableStyle&, Cell& cell) {
    cell.style.text = wreck.aVisiter == 1 ? plaincolour::red : plaincolour::black;
}

void lengthCell(const Epaves& wreck, const TableStyle&, Cell& cell) {
    cell.text = fillFormat(QStringLiteral("%.1f m"), {formatArgument(wreck.longueur)});
}

/// The field's plain number with its unit.
void depthCell(const Epaves&, const TableStyle&, Cell& cell) {
    cell.text += QStringLiteral(" m");
}

void propulsionCell(const Epaves& wreck, const TableStyle&, Cell& cell) {
    cell.text = wreck.propulsion == 0 ? QString() : choiceText(propulsions, wreck.propulsion, QString());
}

/// It is the difficulty that colours the interest.
void interestCell(const Epaves& wreck, const TableStyle&, Cell& cell) {
    cotationCell(wreck.interet, cell);
    cell.style.text = wreck.technicite != 0 ? plaincolour::brown : plaincolour::black;
}

void difficultyCell(const Epaves& wreck, const TableStyle&, Cell& cell) {
    cotationCell(wreck.technicite, cell);
    switch (wreck.technicite) {
        case 1:
            cell.style.text = plaincolour::green;
            break;
        case 2:
            cell.style.text = plaincolour::blue;
            break;
        case 3:
            cell.style.text = plaincolour::red;
            break;
        case 4:
            cell.style.text = plaincolour::purple;
            break;
        default:
            cell.style.text = plaincolour::black;
    }
}

constexpr Column columns[] = {
    {"nom", {"Epaves", "Label name"}, 22, Qt::AlignLeft, cellHook<nameCell>},
    {"type", {"Epaves", "Label type"}, 14},
    {"nationalite", {"Epaves", "Label nationality"}, 12},
    {"longueur", {"Epaves", "Label length"}, 9, Qt::AlignRight, cellHook<lengthCell>},
    {"propulsion", {"Epaves", "Label propulsion"}, 17, Qt::AlignLeft, cellHook<propulsionCell>},
    {"dateNaufrage", {"Epaves", "Label sinking date"}, 18, Qt::AlignRight},
    {"causeNaufrage", {"Epaves", "Label sinking cause"}, 14},
    {"pointHaut", {"Epaves", "Label shallowest point"}, 9, Qt::AlignRight, cellHook<depthCell>},
    {"pointBas", {"Epaves", "Label deepest point"}, 9, Qt::AlignRight, cellHook<depthCell>},
    {"lieu", {"Epaves", "Label place"}, 15},
    {"site", {"Epaves", "Label site"}, 16},
    {"pays", {"Epaves", "Label country"}, 10},
    {"interet", {"Epaves", "Label interest"}, 8, Qt::AlignLeft, cellHook<interestCell>},
    {"technicite", {"Epaves", "Label difficulty"}, 8, Qt::AlignLeft, cellHook<difficultyCell>},
};

/// On the card a choice that is not given stands as such.
QString cardName(std::span<const Choice> choices, qint32 tag) {
    const QString none = QStringLiteral("N/A");
    return tag == 0 ? none : choiceText(choices, tag, none);
}

QString cardCotation(qint32 rating) {
    return choiceText(cotations, rating, QString::number(rating));
}

void addShip(CardBuilder& card, const Epaves& wreck) {
    card.entry({"Epaves", "Wreck name"}, wreck.nom);
    card.heading({"Epaves", "Characteristics"});
    card.entry({"Epaves", "Wreck type"}, wreck.type);
    card.entry({"Epaves", "Wreck registration"}, wreck.immatriculation);
    card.entry({"Epaves", "Wreck length"}, shortestText(wreck.longueur));
    card.entry({"Epaves", "Wreck wide"}, shortestText(wreck.largeur));
    card.entry({"Epaves", "Wreck tonnage"}, wreck.jauge);
    card.entry({"Epaves", "Wreck material"}, cardName(materials, wreck.materiau));
    // The card names the propulsion by the list of materials.
    card.entry({"Epaves", "Wreck propulsion"}, cardName(materials, wreck.propulsion));
    card.entry({"Epaves", "Wreck type machine"}, wreck.typeMachine);
    card.entry({"Epaves", "Wreck power"}, wreck.puissance);
    card.entry({"Epaves", "High depth"}, shortestText(wreck.pointHaut) + text("Epaves", "Depth unit"));
    card.entry({"Epaves", "Low depth"}, shortestText(wreck.pointBas) + text("Epaves", "Depth unit"));
    card.entry({"Epaves", "Bottom type"}, wreck.natureFond);
    if (wreck.orientationSwitch == 1) {
        card.entry({"Epaves", "Orientation"}, QString::number(wreck.orientation) + text("Epaves", "Degree"));
    }
    card.entry({"Epaves", "Inclination"}, cardName(inclinations, wreck.inclinaison));
}

void addHistory(CardBuilder& card, const Epaves& wreck) {
    card.heading({"Epaves", "Historic"});
    card.entry({"Epaves", "Wreck previous names"}, wreck.nomsPrecedents);
    card.entry({"Epaves", "Nationality"}, wreck.nationalite);
    card.entry({"Epaves", "Armateur"}, wreck.armateur);
    card.entry({"Epaves", "Build date"}, wreck.dateConstruction);
    card.entry({"Epaves", "Build location"}, wreck.lieuConstruction);
    card.entry({"Epaves", "Harbours"}, wreck.ports);
    card.entry({"Epaves", "Captain"}, wreck.capitaine);
    card.entry({"Epaves", "Crew"}, wreck.equipage);
    card.entry({"Epaves", "Cargo"}, wreck.chargement);
    card.entry({"Epaves", "From port"}, wreck.provenance);
    card.entry({"Epaves", "To port"}, wreck.destination);
    card.entry({"Epaves", "Ship wreck date"}, wreck.dateNaufrage);
    card.entry({"Epaves", "Ship wreck cause"}, wreck.causeNaufrage);
    card.entry({"Epaves", "Updated on"}, wreck.miseAJour);
}

void addPlace(CardBuilder& card, const Epaves& wreck) {
    card.heading({"Epaves", "Localisation title"});
    card.entry({"Epaves", "Location"}, wreck.lieu);
    card.entry({"Epaves", "Site"}, wreck.site);
    card.entry({"Epaves", "Country"}, wreck.pays);
    card.entry({"Epaves", "GPS"}, wreck.gps + QStringLiteral(" (") + cardName(datums, wreck.gpsSystem) + u')');
    card.entry({"Epaves", "Access"}, cardName(eases, wreck.acces));
    card.entry({"Epaves", "Localisation"}, cardName(eases, wreck.localisation));
    card.entry({"Epaves", "Interest"}, cardCotation(wreck.interet));
    card.entry({"Epaves", "Difficulty"}, cardCotation(wreck.technicite));
    card.heading({"Epaves", "Land marks"});
    card.entry({"Epaves", "Land mark 1"}, wreck.relevement1);
    card.entry({"Epaves", "Land mark 2"}, wreck.relevement2);
    card.entry({"Epaves", "Land mark 3"}, wreck.relevement3);
    card.entry({"Epaves", "First visit date"}, wreck.dateVisite);
    card.entry({"Epaves", "Remarks"}, wreck.notes);
}

StyledText card(const CardRecords& records, const Desktop& desktop, const QString& file) {
    const QString separator = QStringLiteral("\r--------------------\r");
    CardBuilder card({"Epaves", "Wrecks"});
    for (const auto& record : records) {
        const auto& wreck = static_cast<const Epaves&>(*record);
        card.add(separator, plaincolour::black);
        addShip(card, wreck);
        addHistory(card, wreck);
        addPlace(card, wreck);
    }
    card.add(separator, plaincolour::black);
    return card.finish(file, desktop.clock.now());
}

constexpr Title pages[] = {{"Epaves", "Page ship"},
                           {"Epaves", "Page history"},
                           {"Epaves", "Page place"},
                           {"Epaves", "Page dive"},
                           {"Epaves", "Page remarks"}};

constexpr BookCommands commands{"newWreck", "addWreck", "insertWreck", "updateWreck", "deleteWreck"};
constexpr RecordBookTools tools(commands);

}  // namespace

const RecordLayout& Epaves::layout() {
    return epavesLayout;
}

const BookDescription& repEpaves() {
    static constexpr BookDescription description{
        .kind = {literal("Epaves"), "Epaves", "epaves"},
        .title = {"Main", "Type wrecks"},
        .layoutName = "Epaves",
        .newAction = "newEpavesDocumentMenuAction",
        .layout = &Epaves::layout,
        .columns = columns,
        .tableStyle = &plainTableStyle,
        .pages = pages,
        .numberField = "nomField",
        .tableToolBar = tools.tableToolBar("wreckTableViewWindowToolbar"),
        .editToolBar = tools.editToolBar("wreckEditWindowToolbar"),
        .commands = commands,
        .words = recordBookWords({"Epaves", "Edit window title"}, {"Epaves", "Menu"}, {"Epaves", "Table name"}),
        .print = recordBookPrint,
        .card = &card,
        .makeForm = &makeRecordBookForm<EpavesForm>,
        .make = &makeRecordBook<Epaves, repEpaves>,
    };
    return description;
}

}  // namespace tavrel
