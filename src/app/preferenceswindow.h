#pragma once

#include "app/preferencecontrol.h"
#include "desktop/desktop.h"
#include "desktop/notificationcentre.h"

#include <QLabel>
#include <QMainWindow>
#include <QStackedWidget>

#include <map>
#include <memory>
#include <vector>

namespace tavrel {

class CustomToolBar;

/// The preferences window: six pages made from the table of settings. A change of a control stores all settings and
/// tells the open documents; fields count as changed when they are left.
class PreferencesWindow : public QMainWindow {
    Q_OBJECT

public:
    explicit PreferencesWindow(Desktop& desktop);

    /// Shows a page, from 1: the window takes the page's size, its upper edge stays.
    void goView(int page);
    int page() const { return page_; }

    /// Stores every setting from its control, in the table's order. Tells nobody.
    void savePrefs();
    /// Gives every control its reset value, then stores them.
    void resetPreferences();
    /// Enables what depends on switches, shows the unit of temperatures, and shows the stop interval, the gradient
    /// factors and the cell life as they are stored.
    void updateUI();

    void updateTableViewNotification();
    void updateColumnsTableViewNotification();
    void updateEditDiveNotification();
    void updateProfileNotification();
    /// Posts, then stores the stop interval and the gradient factors.
    void updateDecoNotification();
    /// Posts, then stores the cell life.
    void updateRebreatherNotification();
    /// Everything but the columns.
    void updateInterface();

    /// The control of a setting.
    PreferenceControl& control(const AnySetting& setting);

protected:
    void changeEvent(QEvent* event) override;

private:
    struct Row {
        const PreferenceKey& key;
        std::unique_ptr<PreferenceControl> control;
        std::vector<QWidget*> companions;  ///< label and unit, enabled with the control
    };

    QWidget* newPage(int page);
    QWidget* newGroup(int page, Title group, QWidget* parent);
    void setUpToolBar();
    void load(const Row& row);
    void storeFrom(std::initializer_list<AnySetting> settings);
    void edited(const PreferenceKey& key);
    void tell(PreferenceNotice notice);
    void post(Notification name);
    void resetByUser();
    /// What a reset would make of each setting that is shown otherwise now, a line each.
    QStringList resetChanges();
    QLabel* newNote(Title note, QWidget* parent);

    Desktop& desktop_;
    std::vector<Row> rows_;
    std::vector<QWidget*> pages_;
    QWidget* blank_;
    QStackedWidget* stack_;
    CustomToolBar* toolBar_;
    QLabel* temperatureUnit_ = nullptr;
    int page_ = 0;
    bool posting_ = false;
    NotificationCentre::Subscription columnsChanged_;
};

}  // namespace tavrel
