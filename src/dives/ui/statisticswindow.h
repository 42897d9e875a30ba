#pragma once

#include "desktop/desktop.h"
#include "desktop/notificationcentre.h"
#include "desktop/printsettings.h"
#include "dives/statistics.h"
#include "dives/ui/divesource.h"

#include <QMainWindow>
#include <QPageLayout>

#include <map>
#include <memory>

class QCheckBox;
class QComboBox;
class QLabel;
class QTabWidget;

namespace tavrel {

class Graphes;
struct PrintJob;
class PreviousTotalsWindow;

/// The statistics of a logbook's dives: figures and graphs, of all dives, the selected ones or those found, with or
/// without the dives before the logbook.
class StatisticsWindow : public QMainWindow {
    Q_OBJECT

public:
    StatisticsWindow(DiveSource source, Desktop& desktop, const PrintSettings& print, QWidget* parent = nullptr);
    ~StatisticsWindow() override;

    void showStatisticsWindow();
    /// Hands the graphs their values and brings them to the front.
    void displayGraphesWindow();
    /// Works out all figures anew, while the window is in sight.
    void updateStatistics();
    /// Prints the page in front: figures as a text, or the graphs.
    void printStatistics();
    void preview();

    const Statistics& statistics() const { return *statistics_; }
    PreviousTotalsWindow& previousTotals();
    Graphes& graphes() { return *graphes_; }

private:
    void buildToolBar();
    QWidget* newFiguresPage();
    QLabel* newFigure(const QString& field, const QString& label);
    void refresh();
    /// What the page in front prints, worked out anew.
    PrintJob printJob();
    QPageLayout::Orientation orientation() const;

    DiveSource source_;
    Desktop& desktop_;
    PrintSettings print_;
    std::unique_ptr<Statistics> statistics_;
    QComboBox* choice_ = nullptr;
    QCheckBox* previousDivesNoSwitch_ = nullptr;
    QTabWidget* pages_ = nullptr;
    Graphes* graphes_ = nullptr;
    std::map<QString, QLabel*> figures_;  ///< by the name of the field
    PreviousTotalsWindow* previousTotals_ = nullptr;
    NotificationCentre::Subscription totalsChanged_;
};

}  // namespace tavrel
