#include "calculators/ui/calculatorwindow.h"

#include "base/decimalsign.h"
#include "base/numbers.h"
#include "calculators/nitrox.h"
#include "calculators/ui/calculatorwidgets.h"
#include "calculators/ui/resultmark.h"
#include "desktop/ui/fittedtoscreen.h"

#include <QAction>
#include <QComboBox>
#include <QEvent>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace tavrel {

namespace {

/// Inputs whose results are about as long as results get; they size a window that has none yet.
constexpr std::array ordinaryInputs{61.7, 47.3, 203.9, 82.1};

// Label, field and unit stand before it.
constexpr int faultColumn = 3;

// What a row says before the first calculation.
QString emptyRow(double consumption) {
    return withDecimalSign(QString::number(consumption, 'f', 1)) + QStringLiteral(" l/min : –");
}

QComboBox* newPpO2Menu(const char* name, QWidget* parent) {
    auto* menu = new QComboBox(parent);
    menu->setObjectName(QLatin1StringView(name));
    for (const double ppO2 : ppO2Menu) {
        menu->addItem(withDecimalSign(ppO2Title(ppO2)));
    }
    menu->setCurrentIndex(defaultPpO2Index);
    return menu;
}

}  // namespace

CalculatorWindow::CalculatorWindow(CalculatorId id, QWidget* parent)
    : QDialog(parent), page_(*calculatorPage(id)), mark_(new ResultMark(this)) {
    rowColours_.fill(RowColour::Black);
    setObjectName(QLatin1StringView(calculator(id).windowLayout));
    setWindowTitle(text(calculator(id).title));

    // In the order of the tab key.
    auto* left = new QVBoxLayout;
    left->addWidget(newInputs());
    auto* button = new QPushButton(text(Title("Calculators", "Calculate")), this);
    button->setDefault(true);
    connect(button, &QPushButton::clicked, this, &CalculatorWindow::calculate);
    left->addWidget(button, 0, Qt::AlignRight);
    left->addWidget(newResult());
    left->addWidget(newFormulaLabel(withDecimalSign(formulaLine(page_)), this));
    left->addStretch();
    auto* layout = new QHBoxLayout(this);
    layout->addLayout(left, 1);
    if (page_.rowFieldLetter) {
        layout->addWidget(newTable());
    }

    auto* copy = new QAction(this);
    copy->setShortcut(QKeySequence::Copy);
    connect(copy, &QAction::triggered, this, [this] { copyResult(resultText()); });
    addAction(copy);
    fitToScreen(*this);
}

QGroupBox* CalculatorWindow::newInputs() {
    auto* group = new QGroupBox(text(Title("Calculators", "Inputs")), this);
    auto* grid = new QGridLayout(group);
    for (const CalculatorInput& input : page_.inputs) {
        QWidget* field = nullptr;
        if (input.kind == CalculatorInputKind::PpO2Menu) {
            field = newPpO2Menu(input.field, group);
        } else {
            field = newNumberField(input.field, group);
        }
        addFieldRow(grid, text(input.label), field, QLatin1StringView(input.unit));
        mark_->watch(field);
        faultLabels_.push_back(new QLabel(group));
        faultLabels_.back()->setObjectName(QLatin1StringView(input.field) + QStringLiteral("Fault"));
        grid->addWidget(faultLabels_.back(), grid->rowCount() - 1, faultColumn);
    }
    int width = 0;
    for (const Title& words : inputFaultWords()) {
        width = std::max(width, fontMetrics().horizontalAdvance(text(words)));
    }
    grid->setColumnMinimumWidth(faultColumn, width);
    mark_->whenChanged([this](bool) { showFaults(); });
    return group;
}

QGroupBox* CalculatorWindow::newResult() {
    auto* group = new QGroupBox(text(Title("Calculators", "Result")), this);
    auto* grid = new QGridLayout(group);
    grid->setColumnStretch(0, 1);
    QLabel* label = newResultLabel(page_.resultField, group);
    grid->addWidget(label, 0, 0);
    const QSize ordinary = label->fontMetrics().size(0, ordinaryResult().text + QStringLiteral("00"));
    grid->addItem(new QSpacerItem(ordinary.width(), ordinary.height()), 0, 0);
    mark_->dim(label);
    grid->addWidget(mark_->note(), 1, 0, 1, 2);
    grid->addWidget(newCopyButton(
                        Title("Calculators", "Copy"), [this] { return resultText(); }, group),
                    0, 1, Qt::AlignBottom);
    return group;
}

QGroupBox* CalculatorWindow::newTable() {
    auto* group = new QGroupBox(text(Title("Calculators", "By consumption")), this);
    auto* paper = new QFrame(group);
    paper->setFrameShape(QFrame::StyledPanel);
    paper->setBackgroundRole(QPalette::Base);
    paper->setAutoFillBackground(true);
    auto* rows = new QVBoxLayout(paper);
    // As wide as a red row.
    QFont bold = font();
    bold.setBold(true);
    const QFontMetrics metrics(bold);
    const CalculatorResult ordinary = ordinaryResult();
    for (std::size_t row = 0; row < tableConsumptions.size(); ++row) {
        auto* label = new QLabel(emptyRow(tableConsumptions[row]), paper);
        label->setObjectName(rowField(page_, row));
        label->setForegroundRole(QPalette::Text);
        label->setMinimumWidth(metrics.horizontalAdvance(ordinary.rows[row].text + QStringLiteral("00")));
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);
        rows->addWidget(label);
    }
    mark_->dim(paper);
    auto* layout = new QVBoxLayout(group);
    layout->addWidget(paper, 1);
    layout->addWidget(new QLabel(withDecimalSign(rowLegend(page_)), group));
    return group;
}

CalculatorResult CalculatorWindow::ordinaryResult() const {
    std::vector<double> values;
    for (std::size_t input = 0; input < page_.inputs.size(); ++input) {
        values.push_back(ordinaryInputs[input % ordinaryInputs.size()]);
    }
    return page_.evaluate(values);
}

QString CalculatorWindow::resultText() const {
    QStringList lines{findChild<QLabel*>(QLatin1StringView(page_.resultField))->text()};
    if (page_.rowFieldLetter && !lines.first().isEmpty()) {
        for (std::size_t row = 0; row < tableConsumptions.size(); ++row) {
            lines << findChild<QLabel*>(rowField(page_, row))->text();
        }
    }
    return lines.join(u'\n');
}

void CalculatorWindow::calculate() {
    std::vector<double> values;
    for (const CalculatorInput& input : page_.inputs) {
        values.push_back(inputValue(input));
    }
    const CalculatorResult result = page_.evaluate(values);
    findChild<QLabel*>(QLatin1StringView(page_.resultField))->setText(withDecimalSign(result.text));
    showRows(result.rows);
    faults_ = result.faults;
    mark_->calculated();
}

void CalculatorWindow::showFaults() {
    for (std::size_t input = 0; input < faultLabels_.size(); ++input) {
        QStringList words;
        for (const InputFault& fault : faults_) {
            if (fault.input == input && !mark_->isStale()) {
                words << text(fault.words);
            }
        }
        QLabel* label = faultLabels_[input];
        label->setText(words.join(QStringLiteral(", ")));
        QPalette colours = palette();
        colours.setColor(QPalette::WindowText, readableRed(palette()));
        label->setPalette(colours);
        findChild<QWidget*>(QLatin1StringView(page_.inputs[input].field))->setAccessibleDescription(label->text());
    }
}

double CalculatorWindow::inputValue(const CalculatorInput& input) const {
    if (input.kind == CalculatorInputKind::PpO2Menu) {
        return ppO2OfMenuIndex(findChild<QComboBox*>(QLatin1StringView(input.field))->currentIndex());
    }
    return doubleValue(findChild<QLineEdit*>(QLatin1StringView(input.field))->text());
}

void CalculatorWindow::showRows(const std::vector<CalculatorRow>& rows) {
    for (std::size_t row = 0; row < rows.size(); ++row) {
        findChild<QLabel*>(rowField(page_, row))->setText(withDecimalSign(rows[row].text));
        if (rows[row].colour != RowColour::Unchanged) {
            rowColours_[row] = rows[row].colour;
        }
    }
    colourRows();
}

void CalculatorWindow::colourRows() {
    if (!page_.rowFieldLetter) {
        return;
    }
    for (std::size_t row = 0; row < rowColours_.size(); ++row) {
        auto* label = findChild<QLabel*>(rowField(page_, row));
        if (!label) {
            return;
        }
        // Black is the palette's text, so that it reads on a dark theme; red rows are bold too, for those who do not
        // see it.
        const bool red = rowColours_[row] == RowColour::Red;
        QPalette colours;
        QFont font;
        if (red) {
            colours.setColor(QPalette::Text, readableRed(palette()));
            font.setBold(true);
        }
        label->setPalette(colours);
        label->setAccessibleDescription(red ? withDecimalSign(rowLegend(page_)) : QString());
        label->setFont(font);
    }
}

void CalculatorWindow::changeEvent(QEvent* event) {
    QDialog::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        colourRows();
        showFaults();
    }
}

}  // namespace tavrel
