#pragma once

#include "dives/ui/divesource.h"

#include <QList>
#include <QObject>

#include <memory>
#include <vector>

class QAction;
class QWidget;

namespace tavrel {

class CardChoice;
class CardWindow;
class Carnet;
class ConsumptionSheet;
class LogbookWindow;
class StatisticsWindow;
struct Desktop;

/// What a logbook's dives tell, in windows of their own: statistics, cards and the consumption of the dive in the form.
/// Each is made when it is asked for first. Gives the logbook's window their commands.
class DiveWindows : public QObject {
    Q_OBJECT

public:
    DiveWindows(Carnet& carnet, LogbookWindow& window, Desktop& desktop);
    ~DiveWindows() override;

    StatisticsWindow& statisticsWindow();
    /// Opens the choice of dives for the card.
    void divesForSynthesisWindow();
    /// Opens the card of the dives chosen. It keeps to the choice while dives or settings change.
    void syntheseWindow(DiveChoice choice);
    /// Opens the consumption sheet on the edit window.
    void consommation();

    CardChoice& cardChoice();
    CardWindow& cardWindow();
    ConsumptionSheet& consumptionSheet();

    /// The commands that no toolbar offers.
    QList<QAction*> commands() const { return commands_; }
    /// Those that were made.
    QList<QWidget*> windows() const;

private:
    void addCommands();
    std::vector<const Plongee*> dives(DiveChoice choice) const;
    DiveSource source() const;
    void fillSynthesisWindow();
    void scheduleRefresh();
    void refresh();

    Carnet& carnet_;
    LogbookWindow& window_;
    Desktop& desktop_;
    QList<QAction*> commands_;
    DiveChoice shown_ = DiveChoice::all;
    std::unique_ptr<StatisticsWindow> statistics_;
    std::unique_ptr<CardWindow> card_;
    CardChoice* choice_ = nullptr;
    ConsumptionSheet* consumption_ = nullptr;
    bool refreshScheduled_ = false;
};

}  // namespace tavrel
