#include "app/preferenceswindow.h"

#include "desktop/alerts.h"
#include "desktop/commonsettings.h"
#include "desktop/preferences.h"
#include "desktop/ui/customtoolbar.h"
#include "desktop/ui/fittedtoscreen.h"
#include "desktop/ui/keptframe.h"
#include "desktop/ui/windowkeys.h"
#include "logbook/logbooksettings.h"

#include <QActionGroup>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <cstring>

namespace tavrel {

namespace {

constexpr std::array<ToolItem, 6> pageItems{{
    {"general", {"Main", "General"}, "GeneralPreferences", {}},
    {"carnet", {"Main", "Logbook"}, "carnet", {}},
    {"affichage", {"Main", "Display"}, "colonnes", {}},
    {"profil", {"Main", "Profile"}, "profil", {}},
    {"deco", {"Main", "Deco"}, "deco", {}},
    {"rebreather", {"Main", "Rebreather"}, "rebreather", {}},
}};
constexpr std::array<const char*, 6> pageNames{"general", "carnet", "affichage", "profil", "deco", "rebreather"};
constexpr ToolBarDescription toolBarDescription{"prefsToolbar", pageItems, pageNames, pageNames};

constexpr int columnsPerRow = 3;  // of the group that holds nothing but switches of columns

constexpr int noteWidth = 48;      // characters
constexpr int listedChanges = 24;  // a longer question would not fit a small screen

bool isOf(const PreferenceKey& key, const AnySetting& setting) {
    return key.setting == setting;
}

bool isSame(Title left, Title right) {
    return std::strcmp(left.key, right.key) == 0;
}

}  // namespace

PreferencesWindow::PreferencesWindow(Desktop& desktop)
    : desktop_(desktop),
      blank_(new QWidget),
      stack_(new QStackedWidget(this)),
      toolBar_(new CustomToolBar(toolBarDescription, desktop.preferences, this)) {
    setObjectName(QStringLiteral("Preferences"));
    stack_->addWidget(blank_);
    // Above and below a page stand the toolbar and the buttons.
    const int pageRoom = screen()->availableSize().height() - 12 * fontMetrics().lineSpacing();
    for (int page = 1; page <= static_cast<int>(pageItems.size()); ++page) {
        pages_.push_back(scrolledBeyond(pageRoom, newPage(page)));
        stack_->addWidget(pages_.back());
    }
    auto* resetButton = new QPushButton(text("Preferences", "Reset"), this);
    resetButton->setObjectName(QStringLiteral("resetPreferences"));
    resetButton->setToolTip(text("Preferences", "Tip reset"));
    auto* closeButton = new QPushButton(text("Preferences", "Close"), this);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(resetButton);
    buttons->addStretch();
    buttons->addWidget(closeButton);
    auto* central = new QWidget(this);
    auto* layout = new QVBoxLayout(central);
    layout->addWidget(stack_);
    layout->addStretch();
    layout->addLayout(buttons);
    setCentralWidget(central);
    setUpToolBar();

    for (const Row& row : rows_) {
        load(row);
        row.control->onEdited([this, &key = row.key] { edited(key); });
    }
    connect(resetButton, &QPushButton::clicked, this, &PreferencesWindow::resetByUser);
    connect(closeButton, &QPushButton::clicked, this, &QWidget::close);
    addCloseKeys(*this);
    addPageKeys(
        *this, static_cast<int>(pages_.size()), [this] { return page_; }, [this](int page) { goView(page); });
    // A logbook may change its columns too.
    columnsChanged_ = desktop.notifications.subscribe(Notification::updateColumnsTableView, [this] {
        for (const Row& row : rows_) {
            if (!posting_ && row.key.notice == PreferenceNotice::columns) {
                load(row);
            }
        }
    });
    new KeptFrame(*this, desktop.preferences, QStringLiteral("Preferences"));
    goView(1);
}

QWidget* PreferencesWindow::newPage(int page) {
    auto* widget = new QWidget;
    auto* layout = new QVBoxLayout(widget);
    layout->setContentsMargins(0, 0, 0, 0);
    std::vector<Title> groups;
    for (const PreferenceKey& key : preferenceKeys()) {
        const auto isKnown = [&](Title group) { return isSame(group, key.group); };
        if (key.page == page && std::none_of(groups.begin(), groups.end(), isKnown)) {
            groups.push_back(key.group);
            layout->addWidget(newGroup(page, key.group, widget));
        }
    }
    layout->addStretch();
    return widget;
}

QWidget* PreferencesWindow::newGroup(int page, Title group, QWidget* parent) {
    auto* box = new QGroupBox(text(group), parent);
    auto* layout = new QGridLayout(box);
    layout->setColumnStretch(columnsPerRow, 1);
    int place = 0;
    std::vector<QLabel*> notes;
    for (const PreferenceKey& key : preferenceKeys()) {
        if (key.page != page || !isSame(key.group, group)) {
            continue;
        }
        Row row{key, makePreferenceControl(key, box), {}};
        QWidget* control = row.control->widget();
        if (key.notice == PreferenceNotice::columns) {
            layout->addWidget(control, place / columnsPerRow, place % columnsPerRow);
        } else if (key.kind() == PreferenceKind::onOff) {
            layout->addWidget(control, place, 0, 1, columnsPerRow + 1);
        } else {
            auto* label = new QLabel(text(key.label), box);
            label->setBuddy(control);
            label->setIndent(key.enabledBy ? 24 : 0);
            auto* unit = new QLabel(key.unit.isEmpty() ? QString() : fillFormat(text(key.unit), {}), box);
            auto* line = new QHBoxLayout;
            line->addWidget(control);
            line->addWidget(unit);
            line->addStretch();
            layout->addWidget(label, place, 0);
            layout->addLayout(line, place, 1, 1, columnsPerRow);
            row.companions = {label, unit};
            if (isOf(key, &settings::lowTemperatureValue)) {
                temperatureUnit_ = unit;
                unit->setObjectName(QStringLiteral("temperatureUnit"));
            }
        }
        rows_.push_back(std::move(row));
        ++place;
        if (!key.note.isEmpty()) {
            control->setToolTip(text(key.note));
            control->setAccessibleDescription(text(key.note));
            if (key.notice == PreferenceNotice::columns) {
                notes.push_back(newNote(key.note, box));
            } else {
                layout->addWidget(newNote(key.note, box), place++, 0, 1, columnsPerRow + 1);
            }
        }
    }
    // Under the switches that stand side by side.
    for (QLabel* note : notes) {
        layout->addWidget(note, layout->rowCount(), 0, 1, columnsPerRow + 1);
    }
    return box;
}

QLabel* PreferencesWindow::newNote(Title note, QWidget* parent) {
    auto* label = new QLabel(text(note), parent);
    label->setObjectName(QLatin1StringView(note.key));
    label->setWordWrap(true);
    label->setMinimumWidth(fontMetrics().averageCharWidth() * noteWidth);
    return label;
}

void PreferencesWindow::setUpToolBar() {
    toolBar_->setContextMenuPolicy(Qt::PreventContextMenu);
    auto* pages = new QActionGroup(this);
    int page = 0;
    for (const ToolItem& item : pageItems) {
        QAction* action = newToolAction(item, this);
        action->setCheckable(true);
        connect(action, &QAction::triggered, this, [this, shown = ++page] { goView(shown); });
        toolBar_->setAction(action->objectName(), action);
        pages->addAction(action);
    }
    addToolBar(toolBar_);
    toolBar_->ensurePolished();  // the window is measured before it shows
}

void PreferencesWindow::goView(int page) {
    page_ = page;
    const auto place = static_cast<std::size_t>(page - 1);
    QWidget* shown = pages_[place];
    stack_->setCurrentWidget(blank_);
    // Only the page to be shown has a say in the window's size.
    for (QWidget* each : pages_) {
        const auto policy = each == shown ? QSizePolicy::Preferred : QSizePolicy::Ignored;
        each->setSizePolicy(policy, policy);
    }
    // The layouts above the page learn of it only later by themselves.
    stack_->updateGeometry();
    centralWidget()->layout()->activate();
    centralWidget()->updateGeometry();
    layout()->activate();
    resize(sizeHint().boundedTo(screen()->availableSize()));
    stack_->setCurrentWidget(shown);
    QAction* action = toolBar_->action(QString::fromLatin1(pageItems[place].identifier));
    action->setChecked(true);
    setWindowTitle(textWith("Preferences", "Window title", action->text()));
    updateUI();
}

PreferenceControl& PreferencesWindow::control(const AnySetting& setting) {
    const auto row = std::find_if(rows_.begin(), rows_.end(), [&](const Row& each) { return isOf(each.key, setting); });
    if (row == rows_.end()) {
        qFatal("There is no setting %s", keyOf(setting));
    }
    return *row->control;
}

void PreferencesWindow::load(const Row& row) {
    if (row.key.kept) {
        row.control->setValue(storedValue(desktop_.preferences, row.key));
    }
}

void PreferencesWindow::savePrefs() {
    {
        const Preferences::Together together(desktop_.preferences);
        for (const PreferenceKey& key : preferenceKeys()) {
            if (key.kept) {
                storeValue(desktop_.preferences, key, control(key.setting).value());
            }
        }
    }
    desktop_.preferences.synchronize(desktop_.alerts);
}

void PreferencesWindow::storeFrom(std::initializer_list<AnySetting> settings) {
    const Preferences::Together together(desktop_.preferences);
    for (const Row& row : rows_) {
        if (std::find(settings.begin(), settings.end(), row.key.setting) != settings.end()) {
            storeValue(desktop_.preferences, row.key, row.control->value());
        }
    }
}

void PreferencesWindow::resetPreferences() {
    for (const Row& row : rows_) {
        if (row.key.kept) {
            row.control->setValue(resetValue(row.key));
        }
    }
    savePrefs();
}

QStringList PreferencesWindow::resetChanges() {
    QStringList changes;
    for (const Row& row : rows_) {
        const QString now = valueInWords(row.key, row.control->value());
        const QString then = valueInWords(row.key, resetValue(row.key));
        if (row.key.kept && now != then) {
            changes << textWith("Preferences", "Reset change", text(row.key.group), text(row.key.label), now, then);
        }
    }
    return changes;
}

void PreferencesWindow::resetByUser() {
    QStringList changes = resetChanges();
    const auto more = changes.size() - listedChanges;
    if (more > 0) {
        changes = changes.first(listedChanges);
        changes << textWith("Preferences", "Reset more", more);
    } else if (changes.isEmpty()) {
        changes << text("Preferences", "Reset nothing");
    }
    desktop_.alerts.beep();
    if (desktop_.alerts.ask(text("Preferences", "Reset question") + QStringLiteral("\n\n") + changes.join(u'\n'),
                            {text("Preferences", "Reset answer"), text("Main", "Cancel")}) == 0) {
        resetPreferences();
        updateColumnsTableViewNotification();
        updateInterface();
    }
}

void PreferencesWindow::updateUI() {
    for (const Row& row : rows_) {
        if (row.key.enabledBy) {
            const bool enabled = control(row.key.enabledBy).value().toBool();
            row.control->widget()->setEnabled(enabled);
            for (QWidget* companion : row.companions) {
                companion->setEnabled(enabled);
            }
        }
        if (row.key.notice == PreferenceNotice::deco || row.key.notice == PreferenceNotice::rebreather) {
            load(row);
        }
    }
    const bool usUnits = control(&settings::usUnits).value().toBool();
    temperatureUnit_->setText(usUnits ? text("Carnet", "Degree Farenheit") : text("Carnet", "Degree Celsius"));
}

void PreferencesWindow::edited(const PreferenceKey& key) {
    if (key.kept) {
        savePrefs();
        tell(key.notice);
    }
}

void PreferencesWindow::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    // Going over to a logbook leaves the field, which by itself would only notice a change within the window.
    auto* field = qobject_cast<QLineEdit*>(focusWidget());
    if (event->type() == QEvent::ActivationChange && !isActiveWindow() && field) {
        Q_EMIT field->editingFinished();
    }
}

void PreferencesWindow::tell(PreferenceNotice notice) {
    switch (notice) {
        case PreferenceNotice::none:
            return;
        case PreferenceNotice::tableView:
            return updateTableViewNotification();
        case PreferenceNotice::columns:
            return updateColumnsTableViewNotification();
        case PreferenceNotice::editDive:
            return updateEditDiveNotification();
        case PreferenceNotice::profile:
            return updateProfileNotification();
        case PreferenceNotice::deco:
            return updateDecoNotification();
        case PreferenceNotice::rebreather:
            return updateRebreatherNotification();
        case PreferenceNotice::all:
            return updateInterface();
    }
}

void PreferencesWindow::post(Notification name) {
    posting_ = true;
    desktop_.notifications.post(name);
    posting_ = false;
}

void PreferencesWindow::updateTableViewNotification() {
    post(Notification::updateTableView);
    updateUI();
}

void PreferencesWindow::updateColumnsTableViewNotification() {
    post(Notification::updateColumnsTableView);
}

void PreferencesWindow::updateEditDiveNotification() {
    post(Notification::updateEditDive);
    updateUI();
}

void PreferencesWindow::updateProfileNotification() {
    post(Notification::profile);
    updateUI();
}

void PreferencesWindow::updateDecoNotification() {
    post(Notification::updateDeco);
    storeFrom({&settings::stopInterval, &settings::lowGF, &settings::highGF});
    updateUI();
}

void PreferencesWindow::updateRebreatherNotification() {
    post(Notification::updateRebreather);
    storeFrom({&settings::cellLife});
    updateUI();
}

void PreferencesWindow::updateInterface() {
    updateUI();
    updateTableViewNotification();
    updateProfileNotification();
    updateEditDiveNotification();
    updateDecoNotification();
    updateRebreatherNotification();
}

}  // namespace tavrel
