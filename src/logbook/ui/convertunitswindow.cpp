#include "logbook/ui/convertunitswindow.h"

#include "base/decimalsign.h"
#include "base/numbers.h"
#include "base/texts.h"
#include "desktop/commonsettings.h"
#include "desktop/preferences.h"
#include "dives/divecodes.h"
#include "dives/divelimits.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <cmath>

namespace tavrel {

namespace {

// Enough to see whether the direction is the right one.
constexpr int previewedDives = 200;

enum Column { number, site, depthNow, depthThen, waterNow, waterThen, columnCount };

QString temperature(qint32 degrees) {
    return degrees == temperatureNotGiven ? QStringLiteral("–") : QString::number(degrees);
}

}  // namespace

ConvertUnitsWindow::ConvertUnitsWindow(Carnet& carnet, DocumentWindow* parent)
    : QDialog(parent),
      carnet_(carnet),
      window_(*parent),
      toFeet_(new QRadioButton(text("Carnet", "Convert to feet"), this)),
      toMetres_(new QRadioButton(text("Carnet", "Convert to metres"), this)),
      preview_(new QTableWidget(0, columnCount, this)),
      count_(new QLabel(this)),
      warning_(new QLabel(this)) {
    setObjectName(QStringLiteral("convertUnitsWindow"));
    setWindowTitle(text("Carnet", "Convert title"));
    toFeet_->setObjectName(QStringLiteral("toFeet"));
    toMetres_->setObjectName(QStringLiteral("toMetres"));
    auto* explanation = new QLabel(text("Carnet", "Convert explanation"), this);
    for (QLabel* label : {explanation, warning_}) {
        label->setWordWrap(true);
        label->setMinimumWidth(fontMetrics().averageCharWidth() * 60);
    }
    warning_->setObjectName(QStringLiteral("altitudeWarning"));

    preview_->setObjectName(QStringLiteral("preview"));
    preview_->setAccessibleName(text("Carnet", "Convert preview"));
    preview_->setHorizontalHeaderLabels({text("Carnet", "Column number"), text("Carnet", "Column site"),
                                         text("Carnet", "Convert depth now"), text("Carnet", "Convert depth then"),
                                         text("Carnet", "Convert water now"), text("Carnet", "Convert water then")});
    preview_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    preview_->setSelectionMode(QAbstractItemView::NoSelection);
    preview_->setTabKeyNavigation(false);
    preview_->verticalHeader()->hide();
    preview_->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    preview_->horizontalHeader()->setSectionResizeMode(site, QHeaderView::Stretch);
    preview_->setMinimumSize(fontMetrics().averageCharWidth() * 80, fontMetrics().lineSpacing() * 12);

    auto* buttons = new QDialogButtonBox(this);
    auto* convert = buttons->addButton(text("Carnet", "Convert units"), QDialogButtonBox::AcceptRole);
    convert->setDefault(true);
    buttons->addButton(text("Main", "Cancel"), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &ConvertUnitsWindow::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &ConvertUnitsWindow::reject);

    auto* layout = new QVBoxLayout(this);
    for (QWidget* each : std::initializer_list<QWidget*>{explanation, toFeet_, toMetres_, preview_, count_, warning_}) {
        layout->addWidget(each);
    }
    layout->addWidget(buttons);

    // Whoever just turned the feet on has numbers in metres.
    const bool usUnits = carnet.desktop().preferences.get(settings::usUnits);
    (usUnits ? toFeet_ : toMetres_)->setChecked(true);
    connect(toFeet_, &QRadioButton::toggled, this, &ConvertUnitsWindow::showPreview);
    convert->setEnabled(carnet.count() > 0);
    showPreview();
}

UnitSystem ConvertUnitsWindow::target() const {
    return toFeet_->isChecked() ? UnitSystem::us : UnitSystem::metric;
}

void ConvertUnitsWindow::showPreview() {
    const int shown = std::min(carnet_.count(), previewedDives);
    preview_->setRowCount(shown);
    for (int row = 0; row < shown; ++row) {
        const Plongee& dive = carnet_.record(row);
        const std::array<QString, columnCount> cells{
            QString::number(dive.noPlongee),
            dive.site,
            withDecimalSign(shortestText(dive.profondeur)),
            withDecimalSign(shortestText(convertedLength(static_cast<double>(dive.profondeur), target()))),
            temperature(dive.tempEau),
            temperature(convertedTemperature(dive.tempEau, target()))};
        for (int column = 0; column < columnCount; ++column) {
            auto* cell = new QTableWidgetItem(cells[static_cast<std::size_t>(column)]);
            if (column != site) {
                cell->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            }
            preview_->setItem(row, column, cell);
        }
    }
    count_->setText(shown < carnet_.count() ? textWith("Carnet", "Convert first dives", shown, carnet_.count())
                                            : textWith("Carnet", "Total dives", carnet_.count()));
    int tooHigh = 0;
    for (int row = 0; row < carnet_.count(); ++row) {
        const double altitude = convertedLength(carnet_.record(row).altitude, target());
        // The form would set it to 0.
        tooHigh += std::lround(altitude) > highestAltitude ? 1 : 0;
    }
    warning_->setText(tooHigh > 0 ? textWith("Carnet", "Convert altitudes", tooHigh) : QString());
    warning_->setVisible(tooHigh > 0);
}

void ConvertUnitsWindow::accept() {
    // The form is about to show another dive.
    if (window_.leaveEditing(Settling::leaving)) {
        carnet_.convertUnits(target());
        QDialog::accept();
    }
}

}  // namespace tavrel
