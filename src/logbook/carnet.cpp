#include "logbook/carnet.h"

#include "base/texts.h"
#include "desktop/alerts.h"
#include "desktop/clock.h"
#include "desktop/preferences.h"
#include "logbook/divecolumns.h"
#include "logbook/divesort.h"

#include <algorithm>

namespace tavrel {

namespace {

constexpr std::size_t divesPerReport = 256;

}  // namespace

Carnet::Carnet(Desktop& desktop, const std::vector<ExportType>& exportTypes)
    : ListDocument(desktop), form_(desktop), exportTypes_(exportTypes) {
    setType(typeName());
    listen(Notification::updateTableView, [this] { Q_EMIT tableReloadRequested(); });
    listen(Notification::updateColumnsTableView, [this] { Q_EMIT columnsRebuildRequested(); });
    listen(Notification::profile, [this] { Q_EMIT profileRedrawRequested(); });
    listen(Notification::updateEditDive, [this] {
        updateUI();
        Q_EMIT synthesisRefillRequested();
    });
    listen(Notification::updateDeco, [this] { updateUI(); });
    listen(Notification::renumDives, [this] { Q_EMIT renumberWindowRequested(); });
    setUpFirstRunColumns();

    const Date now = Date::fromDateTime(desktop.clock.now());
    form_.state().setDate(form_.controls().dateField, now);
    form_.state().setDate(form_.controls().heureField, now);
    connect(&form_, &DiveForm::userEdited, this, [this] { hasEntries_ = true; });
    connect(this, &ListDocumentBase::selectionChanged, this, &Carnet::changementSelectionMaTableView);
    connect(this, &ListDocumentBase::listChanged, this, &Carnet::stateChanged);
    connect(this, &ListDocumentBase::listRestored, this, &Carnet::changementSelectionMaTableView);
    updateUI();
}

Carnet::~Carnet() = default;

void Carnet::listen(Notification name, std::function<void()> handler) {
    subscriptions_.push_back(desktop().notifications.subscribe(name, std::move(handler)));
}

void Carnet::setUpFirstRunColumns() {
    Preferences& preferences = desktop().preferences;
    if (preferences.get(settings::columnNumero)) {
        return;
    }
    const Preferences::Together together(preferences);
    for (const auto& column : diveColumns) {
        preferences.set(column.shown, column.shownAtFirst);
    }
}

Expected<QByteArray> Carnet::dataRepresentationOfType(const QString& type) {
    if (type == typeName()) {
        return archive();
    }
    for (const auto& exportType : exportTypes_) {
        if (exportType.name == type) {
            return exportType.produce(*this);
        }
    }
    return failure(textWith("Main", "Unknown document type", type));
}

Expected<void> Carnet::loadDataRepresentation(QByteArrayView data, const QString& type) {
    auto dives = unarchive(data);
    if (!dives) {
        return tl::unexpected(dives.error());
    }
    deselectAll();
    replaceList(std::move(*dives));
    if (type != typeName()) {
        return failure(textWith("Main", "Unknown document type", type));
    }
    updateUI();
    selectLastDive(count() - 1, false);
    return {};
}

qint32 Carnet::nextDiveNumber() const {
    return records().empty() ? 1 : numberAfter(*records().back());
}

qint32 Carnet::numberAfter(const Plongee& dive) {
    return static_cast<qint32>(static_cast<quint32>(dive.noPlongee) + 1U);
}

void Carnet::proposeNextNumber() {
    form_.state().setInteger(form_.controls().noPlongeeField, nextDiveNumber());
}

void Carnet::newDive() {
    blankFields();
    Q_EMIT editWindowRequested();
    proposeNextNumber();
    titleEditWindow(nextDiveNumber());
    updateUI();
}

void Carnet::titleEditWindow(qint32 number) {
    editWindowTitle_ = textWith("Carnet", "Dive number title", number);
    Q_EMIT editWindowTitleChanged();
}

void Carnet::addDive() {
    List dives = records();
    dives.push_back(std::make_shared<const Plongee>(builtDive()));
    changeList(text("Carnet", "Undo add"), std::move(dives));
    selectLastDive(count() - 1, false);
    blankFields();
    proposeNextNumber();
    updateUI();
}

void Carnet::insertDive() {
    const int row = selectedRow();
    if (row < 0) {
        desktop().alerts.beep();
        return;
    }
    List dives = records();
    dives.insert(dives.begin() + row, std::make_shared<const Plongee>(builtDive()));
    changeList(text("Carnet", "Undo insert"), std::move(dives));
    formIsStored(row);
}

void Carnet::updateDive() {
    const int row = selectedRow();
    if (row < 0) {
        desktop().alerts.beep();
        return;
    }
    List dives = records();
    dives[static_cast<std::size_t>(row)] = std::make_shared<const Plongee>(builtDive());
    changeList(text("Carnet", "Undo update"), std::move(dives));
    formIsStored(row);
}

void Carnet::formIsStored(int row) {
    showsSelectedDive_ = true;
    hasEntries_ = false;
    titleEditWindow(recordAt(row)->noPlongee);
    updateUI();
}

void Carnet::storeEntries() {
    if (hasEntries_ && formShowsSelectedDive()) {
        updateDive();
    }
}

void Carnet::deleteDive() {
    if (selectedRow() < 0) {
        return;
    }
    desktop().alerts.beep();
    if (desktop().alerts.ask(text("Main", "Erase dive"), {QStringLiteral("OK"), text("Main", "Cancel")}) != 0) {
        return;
    }
    List dives;
    const QList<int>& rows = selectedRows();
    for (int row = 0; row < count(); ++row) {
        if (!std::binary_search(rows.begin(), rows.end(), row)) {
            dives.push_back(recordAt(row));
        }
    }
    deselectAll();
    changeList(text("Carnet", "Undo delete"), std::move(dives));
    updateUI();
}

bool Carnet::renumDives(qint32 first, const Progress& progress) {
    // In a form of its own: the window's one need not follow, and stays as it is when the user cancels.
    DiveForm form(desktop());
    List dives = records();
    for (std::size_t row = 0; row < dives.size(); ++row) {
        form.editFields(*dives[row]);
        form.state().setInteger(form.controls().noPlongeeField,
                                static_cast<qint32>(static_cast<quint32>(first) + static_cast<quint32>(row)));
        dives[row] = std::make_shared<const Plongee>(form.addDiveToList());
        if (progress && row % divesPerReport == 0 && !progress(row, dives.size())) {
            return false;
        }
    }
    changeList(text("Carnet", "Undo renumber"), std::move(dives));
    selectRows({count() - 1});
    changementSelectionMaTableView();
    Q_EMIT renumberWindowClosed();
    return true;
}

// Before the form shows another dive or closes. A cleared form holds no selected dive: untouched there is nothing to
// store, and a new dive in it takes the place of a stored one only when its diver says so.
bool Carnet::storeForm() {
    if (showsSelectedDive_) {
        updateDive();
        return true;
    }
    if (!hasEntries_) {
        return true;
    }
    desktop().alerts.beep();
    const qint32 number = recordAt(selectedRow())->noPlongee;
    switch (desktop().alerts.ask(
        text("Carnet", "New dive not added"),
        {text("Main", "Add"), textWith("Carnet", "Replace dive", number), text("Main", "Cancel")})) {
        case 0: {
            const QList<int> rows = selectedRows();
            addDive();
            selectRows(rows);
            return true;
        }
        case 1:
            updateDive();
            return true;
        default:
            return false;
    }
}

void Carnet::step(int direction) {
    const int row = selectedRow();
    if (row < 0) {
        updateDive();
        return;
    }
    if (!storeForm()) {
        return;
    }
    selectLastDive(row + direction, true);
    changementSelectionMaTableView();
}

void Carnet::selectLastDive(int index, bool selected) {
    selectRows({index});
    if (index >= 0 && index < count()) {
        Q_EMIT rowRevealed(index);
    }
    if (!selected) {
        deselectAll();
    }
}

void Carnet::editWindow() {
    Q_EMIT editWindowRequested();
    if (selectedRow() >= 0) {
        changementSelectionMaTableView();
    }
}

bool Carnet::closeEditWindow() {
    if (selectedRow() >= 0 && !storeForm()) {
        return false;
    }
    Q_EMIT editWindowClosed();
    return true;
}

void Carnet::changementSelectionMaTableView() {
    _currentIndex = selectedRow();
    if (_currentIndex >= 0 && !keepsForm_) {
        editFields();
        updateUI();
    } else {
        Q_EMIT stateChanged();
    }
}

void Carnet::appendDives(const QString& step, std::vector<Plongee> taken) {
    List dives = records();
    dives.reserve(dives.size() + taken.size());
    for (auto& dive : taken) {
        dives.push_back(std::make_shared<const Plongee>(std::move(dive)));
    }
    changeList(step, std::move(dives));
}

void Carnet::editFields() {
    const auto dive = recordAt(_currentIndex);
    if (!dive) {
        return;
    }
    form_.editFields(*dive);
    showsSelectedDive_ = true;
    hasEntries_ = false;
    titleEditWindow(dive->noPlongee);
}

void Carnet::blankFields() {
    form_.blankFields();
    showsSelectedDive_ = false;
    hasEntries_ = false;
    Q_EMIT stateChanged();
}

void Carnet::updateUI() {
    form_.updateUI();
    Q_EMIT stateChanged();
}

Expected<void> Carnet::setValue(int row, const QString& field, const FieldValue& value) {
    const auto* item = Plongee::layout().find(field.toStdString());
    const auto held = recordAt(row);
    if (!item || !held) {
        return failure(textWith("Carnet", "No such field", field));
    }
    auto dive = std::make_shared<Plongee>(*held);
    const bool fits = std::visit(
        [&](auto member) {
            auto& target = (*dive).*member;
            const auto* given = std::get_if<std::decay_t<decltype(target)>>(&value);
            if (given) {
                target = *given;
            }
            return given != nullptr;
        },
        item->member);
    if (!fits) {
        return failure(textWith("Carnet", "No such field", field));
    }
    List dives = records();
    dives[static_cast<std::size_t>(row)] = std::move(dive);
    changeList(text("Carnet", "Undo update"), std::move(dives));
    if (row == _currentIndex) {
        changementSelectionMaTableView();
    }
    return {};
}

void Carnet::sortBy(const QString& field) {
    bool& ascending = _ascendingDirection[field];
    if (_idColonne == field) {
        ascending = !ascending;
    }
    _idColonne = field;

    const std::vector<int> order = sortedOrder(records(), field, ascending);
    List dives;
    dives.reserve(order.size());
    QList<int> selection;
    for (std::size_t row = 0; row < order.size(); ++row) {
        dives.push_back(recordAt(order[row]));
        if (std::binary_search(selectedRows().begin(), selectedRows().end(), order[row])) {
            selection.append(static_cast<int>(row));
        }
    }
    // The dive in the form stays, with what was typed into it, unless another of several selected dives is now the
    // last.
    const auto inForm = recordAt(selectedRow());
    keepsForm_ = true;
    replaceList(std::move(dives));
    selectRows(selection);
    keepsForm_ = false;
    if (recordAt(selectedRow()) != inForm) {
        changementSelectionMaTableView();
    }
}

Expected<int> Carnet::findTextWithField(const QString& field, const QString& searched) {
    deselectAll();
    const auto* item = Plongee::layout().find(field.toStdString());
    const auto* member = item ? std::get_if<QString Plongee::*>(&item->member) : nullptr;
    if (!member) {
        return failure(textWith("Carnet", "No such field", field));
    }
    QList<int> found;
    for (int row = 0; row < count(); ++row) {
        const QString& value = (*records()[static_cast<std::size_t>(row)]).*(*member);
        if (value.isNull() || (!searched.isEmpty() && value.contains(searched, Qt::CaseInsensitive))) {
            found.append(row);
        }
    }
    const int matches = static_cast<int>(found.size());
    selectRows(found);
    if (!found.isEmpty()) {
        Q_EMIT rowRevealed(found.front());
    }
    foundText_ = matches == 1 ? text("Carnet", "One dive found") : textWith("Carnet", "Found dives", matches);
    Q_EMIT stateChanged();
    return matches;
}

void Carnet::find(const QString& field, const QString& searched) {
    if (const auto found = findTextWithField(field, searched); !found) {
        desktop().alerts.fail(found.error());
    }
}

QString Carnet::stateText() const {
    return count() == 1 ? text("Carnet", "One dive") : textWith("Carnet", "Total dives", count());
}

bool Carnet::canGoBack() const {
    return selectedRow() > 0;
}

bool Carnet::canGoForward() const {
    return count() > 0 && static_cast<quint32>(selectedRow()) < static_cast<quint32>(count() - 1);
}

PrintSettings Carnet::defaultPrintingSettings(bool landscape) {
    return {.top = 23.2, .bottom = 25.0, .left = 10.0, .right = 10.0, .scale = 0.67, .landscape = landscape};
}

}  // namespace tavrel
