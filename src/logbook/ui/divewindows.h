#pragma once

#include "dives/ui/divesource.h"

#include <QObject>

#include <memory>

namespace tavrel {

class CardChoice;
class CardWindow;
class Carnet;
class ConsumptionSheet;
class LogbookWindow;
class StatisticsWindow;
struct Desktop;

/// What a logbook's dives tell, in windows of their own: statistics, cards and the consumption of the dive in the form.
/// Each is made when it is asked for first.
class DiveWindows : public QObject {
    Q_OBJECT

public:
    /// Hangs its commands into the window, whose child it becomes.
    DiveWindows(Carnet& carnet, LogbookWindow& window, Desktop& desktop);
    ~DiveWindows() override;

    StatisticsWindow& statisticsWindow();
    /// Opens the choice of dives for the card.
    void divesForSynthesisWindow();
    /// Opens the card of the dives chosen.
    void syntheseWindow(DiveChoice choice);
    CardWindow& cardWindow();
    /// Opens the consumption sheet on the edit window.
    void consommation();
    ConsumptionSheet* consumptionSheet() const { return consumption_; }

    QList<QWidget*> windows() const;

private:
    std::vector<const Plongee*> dives(DiveChoice choice) const;
    DiveSource source() const;
    void fillSynthesisWindow();

    Carnet& carnet_;
    LogbookWindow& window_;
    Desktop& desktop_;
    DiveChoice shown_ = DiveChoice::all;
    std::unique_ptr<StatisticsWindow> statistics_;
    std::unique_ptr<CardWindow> card_;
    CardChoice* choice_ = nullptr;
    ConsumptionSheet* consumption_ = nullptr;
};

}  // namespace tavrel
