#include "calculators/ui/physiquecontroller.h"

#include "base/decimalsign.h"
#include "base/numbers.h"
#include "calculators/calculators.h"
#include "calculators/ui/calculatorwidgets.h"
#include "desktop/ui/fittedtoscreen.h"

#include <QButtonGroup>
#include <QGraphicsEffect>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace tavrel {

namespace {

// Conversions are not rounded, so the fields take all the digits of a double.
constexpr int unroundedDigits = 21;

QLineEdit* fieldOf(const QWidget* parent, const ConversionUnit& unit) {
    return parent->findChild<QLineEdit*>(QLatin1StringView(unit.field));
}

// The tab of an identifier; null for one that this window does not know.
const ConversionTab* tabNamed(const QString& identifier) {
    for (const ConversionTab& tab : conversionTabs()) {
        if (identifier == QLatin1StringView(tab.identifier)) {
            return &tab;
        }
    }
    return nullptr;
}

}  // namespace

PhysiqueController::PhysiqueController(QWidget* parent) : QDialog(parent), conversionsTabView(new QTabWidget(this)) {
    const Calculator& known = calculator(CalculatorId::Conversions);
    setObjectName(QLatin1StringView(known.windowLayout));
    setWindowTitle(text(known.title));
    conversionsTabView->setObjectName(QStringLiteral("conversionsTabView"));
    for (const ConversionTab& tab : conversionTabs()) {
        conversionsTabView->addTab(newTab(tab), text(tab.title));
    }

    auto* convert = new QPushButton(text(Title("Calculators", "Convert")), this);
    convert->setDefault(true);
    connect(convert, &QPushButton::clicked, this, &PhysiqueController::convertir);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(newCopyButton(
        Title("Calculators", "Copy"), [this] { return resultText(); }, this));
    buttons->addWidget(convert);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(conversionsTabView);
    layout->addLayout(buttons);
    fitToScreen(*this);
    fieldOf(this, conversionTabs().front().units.front())->setFocus();
}

QWidget* PhysiqueController::newTab(const ConversionTab& tab) {
    auto* page = new QWidget;
    page->setObjectName(QLatin1StringView(tab.identifier));
    auto* group = new QGroupBox(text(Title("Calculators", "Convert from")), page);
    auto* grid = new QGridLayout(group);
    grid->setColumnStretch(0, 1);
    auto* choice = new QButtonGroup(page);
    choice->setObjectName(QLatin1StringView(tab.radioGroup));
    int row = 0;
    for (const ConversionUnit& unit : tab.units) {
        auto* radio = new QRadioButton(text(unit.label), group);
        radio->setChecked(row == 0);
        choice->addButton(radio, unit.tag);
        QLineEdit* field = newNumberField(unit.field, group, unroundedDigits);
        field->setAccessibleName(withoutMnemonic(radio->text()));
        field->setGraphicsEffect(newDimming(field));
        connect(field, &QLineEdit::textEdited, this, [this, radio] {
            radio->setChecked(true);
            dimOthers(true);
        });
        connect(radio, &QRadioButton::clicked, field, [field] {
            field->setFocus();
            field->selectAll();
        });
        grid->addWidget(radio, row, 0);
        grid->addWidget(field, row, 1);
        grid->addWidget(new QLabel(QString::fromUtf8(unit.symbol), group), row, 2);
        ++row;
    }
    auto* layout = new QVBoxLayout(page);
    layout->addWidget(group);
    layout->addWidget(newStaleNote(page));
    layout->addWidget(newFormulaLabel(withDecimalSign(tab.formula()), page));
    layout->addStretch();
    return page;
}

void PhysiqueController::convertir() {
    const QWidget* page = conversionsTabView->currentWidget();
    const ConversionTab* tab = page ? tabNamed(page->objectName()) : nullptr;
    if (!tab) {
        return;
    }
    const int tag = page->findChild<QButtonGroup*>(QLatin1StringView(tab->radioGroup))->checkedId();
    auto source =
        std::find_if(tab->units.begin(), tab->units.end(), [&](const ConversionUnit& unit) { return unit.tag == tag; });
    if (source == tab->units.end()) {
        --source;  // Any other tag is the last unit's.
    }
    const auto position = static_cast<std::size_t>(source - tab->units.begin());
    const std::vector<double> values = tab->convert(tag, doubleValue(fieldOf(page, *source)->text()));
    for (std::size_t unit = 0; unit < values.size(); ++unit) {
        if (unit != position) {
            fieldOf(page, tab->units[unit])->setText(withDecimalSign(shortestText(values[unit])));
        }
    }
    dimOthers(false);
}

void PhysiqueController::dimOthers(bool stale) {
    QWidget* page = conversionsTabView->currentWidget();
    const int source =
        page->findChild<QButtonGroup*>(QLatin1StringView(tabNamed(page->objectName())->radioGroup))->checkedId();
    bool anything = false;
    for (const ConversionUnit& unit : tabNamed(page->objectName())->units) {
        QLineEdit* field = fieldOf(page, unit);
        const bool dimmed = stale && unit.tag != source && !field->text().isEmpty();
        field->graphicsEffect()->setEnabled(dimmed);
        anything = anything || dimmed;
    }
    page->findChild<QLabel*>(QStringLiteral("staleNote"))->setVisible(anything);
}

QString PhysiqueController::resultText() const {
    const QWidget* page = conversionsTabView->currentWidget();
    QStringList lines;
    for (const ConversionUnit& unit : tabNamed(page->objectName())->units) {
        if (const QString figure = fieldOf(page, unit)->text(); !figure.isEmpty()) {
            lines << figure + u' ' + QString::fromUtf8(unit.symbol);
        }
    }
    return lines.join(u'\n');
}

}  // namespace tavrel
