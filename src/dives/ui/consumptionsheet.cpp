#include "dives/ui/consumptionsheet.h"

#include "base/decimalsign.h"
#include "base/texts.h"
#include "desktop/clock.h"
#include "desktop/commonsettings.h"
#include "desktop/preferences.h"
#include "dives/cardcolours.h"
#include "dives/consumption.h"
#include "drawing/ui/printing.h"

#include <QDialogButtonBox>
#include <QFontMetrics>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace tavrel {

namespace {

QLabel* newText(const char* name) {
    auto* label = new QLabel;
    label->setObjectName(QLatin1StringView(name));
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    return label;
}

}  // namespace

ConsumptionSheet::ConsumptionSheet(Desktop& desktop, const PrintSettings& print, QWidget* parent)
    : QDialog(parent),
      desktop_(desktop),
      print_(print),
      consoField_(newText("consoField")),
      explanations_(newText("explanations")) {
    setObjectName(QStringLiteral("consoSheet"));
    setWindowModality(Qt::WindowModal);
    print_.landscape = false;
    QFont large = consoField_->font();
    large.setPointSizeF(large.pointSizeF() * 1.15);
    consoField_->setFont(large);
    explanations_->setForegroundRole(QPalette::PlaceholderText);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    auto* printButton = buttons->addButton(text("Main", "Print"), QDialogButtonBox::ActionRole);
    printButton->setAutoDefault(false);
    connect(printButton, &QPushButton::clicked, this, &ConsumptionSheet::print);
    connect(buttons, &QDialogButtonBox::rejected, this, &ConsumptionSheet::endConsoSheet);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(consoField_);
    layout->addWidget(explanations_);
    layout->addStretch();
    layout->addWidget(buttons);
}

void ConsumptionSheet::consommation(const GasReadings& readings, const QString& title) {
    const bool usUnits = desktop_.preferences.get(settings::usUnits);
    setWindowTitle(textWith("Carnet", "Consumption of", title));
    const QString report = consumptionReport(readings, calculVolumeAirConsomme(readings), usUnits);
    consoField_->setText(withDecimalSign(report).replace(u'\r', u'\n'));
    QStringList lines;
    for (const auto& figure :
         {explainedAvailable(readings), explainedUsed(readings), explainedPerMinute(readings), explainedSac(readings),
          explainedSacBar(readings), explainedAverageDepth(readings, usUnits)}) {
        // What several figures lack is told once.
        if (!lines.contains(figure.explanation)) {
            lines.append(figure.explanation);
        }
    }
    explanations_->setText(withDecimalSign(lines.join(u'\n')));
    consoField_->setAccessibleDescription(explanations_->text());
    open();
}

void ConsumptionSheet::print() {
    StyledText report;
    report.append(windowTitle() + QStringLiteral("\n\n"), cardcolours::heading);
    report.append(consoField_->text() + QStringLiteral("\n\n"), cardcolours::value);
    report.append(explanations_->text(), cardcolours::label);
    const PrintJob job{print_, windowTitle(), desktop_.clock.now().date(),
                       [&report](const Paper& paper) { return pagesOf(report, paper); }};
    runPrint(this, job, desktop_.alerts);
}

}  // namespace tavrel
