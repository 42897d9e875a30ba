#include "logbook/ui/divewindows.h"

#include "base/texts.h"
#include "book/bookfilter.h"
#include "book/ui/bookeditwindow.h"
#include "book/ui/cardwindow.h"
#include "desktop/desktop.h"
#include "dives/divecard.h"
#include "dives/ui/cardchoice.h"
#include "dives/ui/consumptionsheet.h"
#include "dives/ui/previoustotalswindow.h"
#include "dives/ui/statisticswindow.h"
#include "documents/ui/madewindows.h"
#include "logbook/ui/logbookwindow.h"

namespace tavrel {

DiveWindows::DiveWindows(Carnet& carnet, LogbookWindow& window, Desktop& desktop)
    : QObject(&window), carnet_(carnet), window_(window), desktop_(desktop) {
    addCommands();
    connect(&carnet.form(), &DiveForm::consumptionRequested, this, &DiveWindows::consommation);
    connect(&carnet, &Carnet::listChanged, this, &DiveWindows::scheduleRefresh);
    connect(&carnet, &Carnet::selectionChanged, this, &DiveWindows::scheduleRefresh);
    connect(&carnet, &Carnet::searched, this, &DiveWindows::scheduleRefresh);
    connect(&carnet.filter(), &BookFilter::changed, this, &DiveWindows::scheduleRefresh);
    connect(&carnet, &Carnet::synthesisRefillRequested, this, &DiveWindows::scheduleRefresh);
}

DiveWindows::~DiveWindows() = default;

void DiveWindows::addCommands() {
    window_.provideCommand(QStringLiteral("statistics"), [this] { statisticsWindow().showStatisticsWindow(); });
    const auto add = [this](const char* name, const Title& title, const char* icon, BookActions::Rule rule,
                            std::function<void()> run) {
        commands_.append(window_.actions().add(QLatin1StringView(name), title.text(), icon, {}, rule, std::move(run)));
    };
    add("displayGraphesWindow", {"Carnet", "Menu graphs"}, "statistics", BookActions::withRecords,
        [this] { statisticsWindow().displayGraphesWindow(); });
    add("showEditStatisticsWindow", {"Carnet", "Menu previous dives"}, "", BookActions::always,
        [this] { statisticsWindow().previousTotals().showEditStatisticsWindow(); });
    add("consommation", {"Carnet", "Menu consumption"}, "", BookActions::withSelection, [this] {
        if (!window_.editWindow().isVisible()) {
            carnet_.editWindow();
        }
        consommation();
    });
}

std::vector<const Plongee*> DiveWindows::dives(DiveChoice choice) const {
    std::vector<const Plongee*> chosen;
    switch (choice) {
        case DiveChoice::all:
            return divesIn(carnet_.records());
        case DiveChoice::found:
            return divesIn(carnet_.foundRecords());
        case DiveChoice::selected:
            for (const int row : carnet_.selectedRows()) {
                chosen.push_back(&carnet_.record(row));
            }
            break;
        case DiveChoice::current:
            if (const int row = carnet_.currentIndex(); row >= 0 && row < carnet_.count()) {
                chosen.push_back(&carnet_.record(row));
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

CardChoice& DiveWindows::cardChoice() {
    if (!choice_) {
        choice_ = new CardChoice(
            source(), [this](DiveChoice choice) { syntheseWindow(choice); }, &window_);
    }
    return *choice_;
}

void DiveWindows::divesForSynthesisWindow() {
    cardChoice().divesForSynthesisWindow();
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

ConsumptionSheet& DiveWindows::consumptionSheet() {
    if (!consumption_) {
        consumption_ = new ConsumptionSheet(desktop_, Carnet::defaultPrintingSettings(false), &window_.editWindow());
    }
    return *consumption_;
}

void DiveWindows::consommation() {
    consumptionSheet().consommation(carnet_.form().gasReadings(), window_.editWindow().windowTitle());
}

void DiveWindows::scheduleRefresh() {
    // One step of the user's changes list, selection and form; the windows follow once.
    if (!refreshScheduled_) {
        refreshScheduled_ = true;
        QMetaObject::invokeMethod(this, &DiveWindows::refresh, Qt::QueuedConnection);
    }
}

void DiveWindows::refresh() {
    refreshScheduled_ = false;
    if (statistics_) {
        statistics_->updateStatistics();
    }
    if (card_ && card_->isVisible()) {
        fillSynthesisWindow();
    }
}

QList<QWidget*> DiveWindows::windows() const {
    return madeWindows({statistics_.get(), card_.get()});
}

}  // namespace tavrel
