#include "dives/ui/statisticswindow.h"

#include "base/decimalsign.h"
#include "base/texts.h"
#include "desktop/clock.h"
#include "desktop/ui/bringtofront.h"
#include "desktop/ui/icons.h"
#include "desktop/ui/keptframe.h"
#include "desktop/ui/windowkeys.h"
#include "dives/statisticsreport.h"
#include "dives/ui/graphes.h"
#include "dives/ui/previoustotalswindow.h"
#include "drawing/ui/printing.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QScrollArea>
#include <QTabWidget>
#include <QToolBar>
#include <QVBoxLayout>

namespace tavrel {

StatisticsWindow::StatisticsWindow(DiveSource source, Desktop& desktop, const PrintSettings& print, QWidget* parent)
    : QMainWindow(parent),
      source_(std::move(source)),
      desktop_(desktop),
      print_(print),
      statistics_(std::make_unique<Statistics>(DiveSpan(), nullptr)) {
    setObjectName(QStringLiteral("statisticsWindow"));
    setContextMenuPolicy(Qt::NoContextMenu);
    buildToolBar();
    pages_ = new QTabWidget;
    pages_->setDocumentMode(true);
    graphes_ = new Graphes(desktop);
    pages_->addTab(newFiguresPage(), text("Carnet", "Statistics"));
    pages_->addTab(graphes_, text("Carnet", "Statistics graphs"));
    setCentralWidget(pages_);
    resize(1000, 640);
    new KeptFrame(*this, desktop.preferences, QStringLiteral("Statistics"));
    totalsChanged_ = desktop.notifications.subscribe(Notification::previousTotals, [this] { updateStatistics(); });
}

StatisticsWindow::~StatisticsWindow() = default;

void StatisticsWindow::buildToolBar() {
    auto* bar = addToolBar(text("Carnet", "Statistics"));
    bar->setMovable(false);
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    auto* print = bar->addAction(iconNamed(QStringLiteral("imprimante")), text("Main", "Print"), this,
                                 &StatisticsWindow::printStatistics);
    print->setShortcut(QKeySequence::Print);
    bar->addAction(iconNamed(QStringLiteral("chercher")), text("Main", "Menu print preview"), this,
                   &StatisticsWindow::preview);
    bar->addAction(text("Main", "Menu page setup"), this, [this] { runPageLayout(this, orientation()); });
    bar->addAction(text("Carnet", "Previous dives edit"), this,
                   [this] { previousTotals().showEditStatisticsWindow(); });
    bar->addSeparator();

    choice_ = new QComboBox;
    choice_->setObjectName(QStringLiteral("diveChoice"));
    choice_->setAccessibleName(text("Carnet", "Dives counted"));
    choice_->addItem(text("Carnet", "All dives"), static_cast<int>(DiveChoice::all));
    choice_->addItem(text("Carnet", "Selected dives"), static_cast<int>(DiveChoice::selected));
    choice_->addItem(text("Carnet", "Dives found"), static_cast<int>(DiveChoice::found));
    connect(choice_, &QComboBox::activated, this, &StatisticsWindow::refresh);
    bar->addWidget(choice_);
    previousDivesNoSwitch_ = new QCheckBox(text("Carnet", "Without previous dives"));
    previousDivesNoSwitch_->setObjectName(QStringLiteral("previousDivesNoSwitch"));
    connect(previousDivesNoSwitch_, &QCheckBox::toggled, this, &StatisticsWindow::refresh);
    bar->addSeparator();
    bar->addWidget(previousDivesNoSwitch_);
    addCloseKeys(*this);
}

QLabel* StatisticsWindow::newFigure(const QString& field, const QString& label) {
    auto* figure = new QLabel;
    figure->setObjectName(field);
    figure->setAlignment(Qt::AlignRight | Qt::AlignTop);
    figure->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    figure->setAccessibleName(label);
    figures_.emplace(field, figure);
    return figure;
}

QWidget* StatisticsWindow::newFiguresPage() {
    auto* page = new QWidget;
    auto* columns = new QHBoxLayout(page);
    auto* left = new QVBoxLayout;
    auto* right = new QVBoxLayout;
    columns->addLayout(left);
    columns->addSpacing(12);
    columns->addLayout(right);
    const auto newGroup = [](const QString& title, QVBoxLayout* column) {
        auto* box = new QGroupBox(title);
        auto* grid = new QGridLayout(box);
        grid->setColumnStretch(0, 1);
        grid->setHorizontalSpacing(16);
        column->addWidget(box);
        return grid;
    };
    QGridLayout* measures = newGroup(text("Carnet", "Stat group measures"), right);
    for (const StatText& measure : statistics_->measureTexts()) {
        const int row = measures->rowCount();
        const QString label = measure.label.text();
        measures->addWidget(new QLabel(label), row, 0, Qt::AlignTop);
        measures->addWidget(newFigure(measure.field, label), row, 1);
    }
    for (const auto& [group, title] : statGroupNames) {
        QGridLayout* grid =
            newGroup(title.text(), group == StatGroup::kinds || group == StatGroup::systems ? left : right);
        for (const StatCountName& name : statCountNames()) {
            if (name.group == group) {
                const int row = grid->rowCount();
                const QString label = name.label.text();
                grid->addWidget(new QLabel(label), row, 0);
                grid->addWidget(newFigure(statField(name), label), row, 1);
                grid->addWidget(newFigure(statShareField(name), label), row, 2);
            }
        }
    }
    left->addStretch();
    right->addStretch();
    auto* area = new QScrollArea;
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setWidget(page);
    return area;
}

PreviousTotalsWindow& StatisticsWindow::previousTotals() {
    if (!previousTotals_) {
        previousTotals_ = new PreviousTotalsWindow(desktop_, this);
    }
    return *previousTotals_;
}

void StatisticsWindow::showStatisticsWindow() {
    refresh();
    bringToFront(this);
}

void StatisticsWindow::displayGraphesWindow() {
    pages_->setCurrentWidget(graphes_);
    showStatisticsWindow();
}

void StatisticsWindow::updateStatistics() {
    if (isVisible()) {
        refresh();
    }
}

void StatisticsWindow::refresh() {
    const auto choice = static_cast<DiveChoice>(choice_->currentData().toInt());
    const PreviousTotals previous = PreviousTotals::read(desktop_.preferences);
    statistics_ =
        std::make_unique<Statistics>(source_.dives(choice), previousDivesNoSwitch_->isChecked() ? nullptr : &previous);
    for (const StatText& each : statistics_->texts()) {
        QLabel* figure = figures_.at(each.field);
        const QString explanation = withDecimalSign(each.explanation);
        figure->setText(withDecimalSign(each.text).replace(u'\r', u'\n'));
        figure->setToolTip(explanation);
        figure->setAccessibleDescription(explanation);
    }
    graphes_->setShares(setDataForStatGraphes(*statistics_));
    setWindowTitle(textWith("Carnet", "Statistics of", source_.name()));
}

PrintJob StatisticsWindow::printJob() {
    refresh();
    const bool graphs = pages_->currentWidget() == graphes_;
    PrintJob job{print_, windowTitle(), desktop_.clock.now().date(), [this, graphs](const Paper& paper) {
                     return graphs ? pagesOf(graphes_->drawing(), paper)
                                   : pagesOf(statisticsReport(*statistics_, source_.name(), withDecimalSign), paper);
                 }};
    job.settings.landscape = orientation() == QPageLayout::Landscape;
    return job;
}

QPageLayout::Orientation StatisticsWindow::orientation() const {
    return pages_->currentWidget() == graphes_ ? QPageLayout::Landscape : QPageLayout::Portrait;
}

void StatisticsWindow::printStatistics() {
    runPrint(this, printJob(), desktop_.alerts);
}

void StatisticsWindow::preview() {
    runPrintPreview(this, printJob());
}

}  // namespace tavrel
