#include "logbook/carnet.h"

#include "base/texts.h"
#include "desktop/clock.h"
#include "desktop/preferences.h"
#include "dives/divecard.h"
#include "logbook/carnettoolbars.h"
#include "logbook/divecells.h"
#include "logbook/divecolumns.h"
#include "logbook/logbooksettings.h"

#include <array>

namespace tavrel {

namespace {

constexpr std::size_t divesPerReport = 256;

constexpr std::array<Title, 6> pages{{{"Carnet", "Page dive"},
                                      {"Carnet", "Page conditions"},
                                      {"Carnet", "Page decompression"},
                                      {"Carnet", "Page gas"},
                                      {"Carnet", "Page bottles"},
                                      {"Carnet", "Page equipment"}}};

constexpr std::array<BookSearch, 5> searches{{{{"Carnet", "Find boats"}, "bateau"},
                                              {{"Carnet", "Find wrecks"}, "epaves"},
                                              {{"Carnet", "Find notes"}, "notes"},
                                              {{"Carnet", "Find computers"}, "ordi"},
                                              {{"Carnet", "Find buddies"}, "partenaires"}}};

constexpr BookWords words{
    .windowTitle = {"Carnet", "Dive number title"},
    .newRecord = {"Carnet", "Menu new dive"},
    .editRecord = {"Carnet", "Menu edit dive"},
    .insertRecord = {"Carnet", "Menu insert dive"},
    .deleteRecords = {"Carnet", "Menu delete dives"},
    .previousRecord = {"Carnet", "Previous dive"},
    .nextRecord = {"Carnet", "Next dive"},
    .menu = {"Carnet", "Menu dive"},
    .tableName = {"Carnet", "Table of dives"},
    .emptyTable = {"Carnet", "No dives yet"},
    .oneRecord = {"Carnet", "One dive"},
    .manyRecords = {"Carnet", "Total dives"},
    .oneFound = {"Carnet", "One dive found"},
    .manyFound = {"Carnet", "Found dives"},
    .eraseQuestion = {"Main", "Erase dive"},
    .eraseQuestions = {"Main", "Erase dives"},
    .formOfRecord = {"Carnet", "Form of dive"},
    .formOfNew = {"Carnet", "Form of new dive"},
    .undoAdd = {"Carnet", "Undo add"},
    .undoInsert = {"Carnet", "Undo insert"},
    .undoUpdate = {"Carnet", "Undo update"},
    .undoDelete = {"Carnet", "Undo delete"},
    .undoImport = {"Carnet", "Undo import"},
    .addQuestion = {"Carnet", "Add new dive question"},
    .storeQuestion = {"Carnet", "Store dive question"},
};

}  // namespace

const BookDescription& carnetDescription() {
    static const BookDescription description{
        .kind = {{"Main", "Carnet de plongee"}, "Plongee", "carnet"},
        .title = {"Main", "Type logbook"},
        .layoutName = "Carnet",
        .newAction = "newCarnetDocumentMenuAction",
        .layout = &Plongee::layout,
        .columns = diveColumns(),
        .tableStyle = [](const Desktop& desktop) -> std::unique_ptr<TableStyle> {
            return std::make_unique<DiveTableStyle>(desktop.preferences, desktop.clock);
        },
        .pages = pages,
        .numberField = "noPlongeeField",
        .blankingDeselects = false,
        .opensOnFirstRecord = false,
        .dropDuplicatesLast = false,
        .tableToolBar = setupToolbarCarnet(),
        .editToolBar = setupToolbarEdit(),
        .commands = {.newRecord = "newDive",
                     .addRecord = "addDiveToList",
                     .insertRecord = "insertDive",
                     .updateRecord = "updateDive",
                     .deleteRecord = "deleteDive"},
        .words = words,
        .searches = searches,
        .print = Carnet::defaultPrintingSettings(true),
        .card = [](const CardRecords& records, const Desktop& desktop,
                   const QString&) { return diveCard(divesIn(records.chosen()), desktop.preferences); },
        .makeForm = [](Desktop& desktop) -> std::unique_ptr<BookForm> { return std::make_unique<DiveForm>(desktop); },
        .make = [](Desktop& desktop) -> std::unique_ptr<BookBase> { return std::make_unique<Carnet>(desktop); },
    };
    return description;
}

Carnet::Carnet(Desktop& desktop, std::span<const LogbookExport> exports)
    : Book(desktop, carnetDescription()), exports_(exports) {
    listen(Notification::updateTableView, [this] { Q_EMIT tableReloadRequested(); });
    listen(Notification::updateColumnsTableView, [this] { Q_EMIT columnsRebuildRequested(); });
    listen(Notification::profile, [this] { Q_EMIT profileRedrawRequested(); });
    listen(Notification::updateEditDive, [this] {
        updateUI();
        Q_EMIT synthesisRefillRequested();
    });
    listen(Notification::updateDeco, [this] { updateUI(); });
    form().findSitesWith([this](const QString& site) -> Pointer {
        for (int row = count() - 1; row >= 0; --row) {
            if (record(row).site.compare(site, Qt::CaseInsensitive) == 0) {
                return recordAt(row);
            }
        }
        return nullptr;
    });
    listen(Notification::renumDives, [this] { Q_EMIT renumberWindowRequested(); });
    setUpFirstRunColumns();

    const Date now = Date::fromDateTime(desktop.clock.now());
    form().state().setDate(form().controls().dateField, now);
    form().state().setDate(form().controls().heureField, now);
    updateUI();
    form().remember();
}

Carnet::~Carnet() = default;

void Carnet::setUpFirstRunColumns() {
    Preferences& preferences = desktop().preferences;
    if (preferences.get(settings::columnNumero)) {
        return;
    }
    const Preferences::Together together(preferences);
    for (const auto& column : diveColumns()) {
        preferences.set(*column.shown, column.shownAtFirst);
    }
}

Expected<QByteArray> Carnet::dataRepresentationOfType(const QString& type) {
    for (const LogbookExport& each : exports_) {
        if (type == QLatin1StringView(each.typeName)) {
            return each.produce(*this);
        }
    }
    return type == this->type() ? Book::dataRepresentationOfType(type)
                                : failure(textWith("Main", "Unknown document type", type));
}

qint32 Carnet::nextDiveNumber() const {
    return count() == 0 ? 1 : numberAfter(record(count() - 1));
}

qint32 Carnet::numberAfter(const Plongee& dive) {
    return static_cast<qint32>(static_cast<quint32>(dive.noPlongee) + 1U);
}

void Carnet::proposeNumber() {
    form().state().setInteger(form().controls().noPlongeeField, nextDiveNumber());
    if (desktop().preferences.get(settings::newDiveFromLast) && count() > 0) {
        form().startFrom(record(count() - 1));
    }
}

QString Carnet::formTitle() const {
    const auto& number = form().controls().noPlongeeField;
    return form().state().text(number).isEmpty()
               ? description().words.newRecord.text()
               : textWith(description().words.windowTitle, form().state().integer(number));
}

bool Carnet::renumDives(qint32 first, const Progress& progress) {
    // In a form of its own: the window's one need not follow, and stays as it is when the user cancels.
    DiveForm renumbering(desktop());
    RecordList dives = records();
    for (std::size_t row = 0; row < dives.size(); ++row) {
        renumbering.editFields(*dives[row]);
        renumbering.state().setInteger(renumbering.controls().noPlongeeField, first + static_cast<qint32>(row));
        dives[row] = renumbering.buildRecord();
        if (progress && row % divesPerReport == 0 && !progress(row, dives.size())) {
            return false;
        }
    }
    changeList(text("Carnet", "Undo renumber"), std::move(dives));
    selectRows({count() - 1});
    followSelection();
    Q_EMIT renumberWindowClosed();
    return true;
}

void Carnet::convertUnits(UnitSystem to) {
    RecordList dives = records();
    for (RecordPointer& dive : dives) {
        dive = std::make_shared<const Plongee>(convertedDive(static_cast<const Plongee&>(*dive), to));
    }
    const QList<int> selected = selectedRows();
    changeList(text("Carnet", "Undo convert units"), std::move(dives));
    selectRows(selected);
    followSelection();
}

void Carnet::appendDives(const QString& step, std::vector<Plongee> taken) {
    RecordList dives;
    dives.reserve(taken.size());
    for (auto& dive : taken) {
        dives.push_back(std::make_shared<const Plongee>(std::move(dive)));
    }
    appendRecords(step, dives);
}

PrintSettings Carnet::defaultPrintingSettings(bool landscape) {
    return {.top = 23.2, .bottom = 25.0, .left = 10.0, .right = 10.0, .scale = 0.67, .landscape = landscape};
}

}  // namespace tavrel
