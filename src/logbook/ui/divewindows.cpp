#include "logbook/ui/divewindows.h"

#include "base/texts.h"
#include "book/ui/bookeditwindow.h"
#include "book/ui/cardwindow.h"
#include "desktop/desktop.h"
#include "dives/consumption.h"
#include "dives/divecard.h"
#include "dives/divespan.h"
#include "dives/ui/cardchoice.h"
#include "dives/ui/consumptionsheet.h"
#include "dives/ui/statisticswindow.h"
#include "logbook/carnet.h"
#include "logbook/ui/logbookwindow.h"

namespace tavrel {

DiveWindows::DiveWindows(Carnet& carnet, LogbookWindow& window, Desktop& desktop)
    : QObject(&window), carnet_(carnet), window_(window), desktop_(desktop) {
    window.provideCommand(QStringLiteral("statistics"), [this] { statisticsWindow().showStatisticsWindow(); });
    window.provideCommand(QStringLiteral("synthese"), [this] { divesForSynthesisWindow(); });
    connect(&carnet.form(), &DiveForm::consumptionRequested, this, &DiveWindows::consommation);
    const auto updateStatistics = [this] {
        if (statistics_) {
            statistics_->updateStatistics();
        }
    };
    connect(&carnet, &Carnet::listChanged, this, updateStatistics);
    connect(&carnet, &Carnet::selectionChanged, this, updateStatistics);
    const auto refill = [this] {
        if (card_ && card_->isVisible()) {
            fillSynthesisWindow();
        }
    };
    connect(&carnet, &Carnet::listChanged, this, refill);
    connect(&carnet, &Carnet::synthesisRefillRequested, this, refill);
}

DiveWindows::~DiveWindows() = default;

std::vector<const Plongee*> DiveWindows::dives(DiveChoice choice) const {
    std::vector<const Plongee*> chosen;
    switch (choice) {
        case DiveChoice::all:
            return divesIn(carnet_.records());
        case DiveChoice::found:
            return divesIn(carnet_.foundRecords());
        case DiveChoice::selected:
            for (const int row : carnet_.selectedRows()) {
                chosen.push_back(carnet_.recordAt(row).get());
            }
            break;
        case DiveChoice::current:
            if (const auto dive = carnet_.recordAt(carnet_.currentIndex())) {
                chosen.push_back(dive.get());
            }
            break;
    }
    return chosen;
}

DiveSource DiveWindows::source() const {
    return {[this](DiveChoice choice) { return dives(choice); }, [this] { return carnet_.displayName(); }};
}

StatisticsWindow& DiveWindows::statisticsWindow() {
    if (!statistics_) {
        statistics_ = std::make_unique<StatisticsWindow>(source(), desktop_, Carnet::defaultPrintingSettings(false));
    }
    return *statistics_;
}

void DiveWindows::divesForSynthesisWindow() {
    if (!choice_) {
        choice_ = new CardChoice(
            source(), [this](DiveChoice choice) { syntheseWindow(choice); }, &window_);
    }
    choice_->divesForSynthesisWindow();
}

CardWindow& DiveWindows::cardWindow() {
    if (!card_) {
        card_ = std::make_unique<CardWindow>(desktop_, Carnet::defaultPrintingSettings(false),
                                             QStringLiteral("Carnet card"));
    }
    return *card_;
}

void DiveWindows::syntheseWindow(DiveChoice choice) {
    shown_ = choice;
    fillSynthesisWindow();
    cardWindow().bringToFront();
}

void DiveWindows::fillSynthesisWindow() {
    cardWindow().setCard(textWith("Carnet", "Card of dives", carnet_.displayName()),
                         diveCard(dives(shown_), desktop_.preferences));
}

void DiveWindows::consommation() {
    QWidget& edit = window_.editWindow();
    if (!consumption_) {
        consumption_ = new ConsumptionSheet(desktop_, Carnet::defaultPrintingSettings(false), &edit);
    }
    consumption_->consommation(carnet_.form().gasReadings(), edit.windowTitle());
}

QList<QWidget*> DiveWindows::windows() const {
    QList<QWidget*> windows;
    for (QWidget* each : {static_cast<QWidget*>(statistics_.get()), static_cast<QWidget*>(card_.get())}) {
        if (each) {
            windows.append(each);
        }
    }
    return windows;
}

}  // namespace tavrel
