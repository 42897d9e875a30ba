#include "dives/ui/previoustotalswindow.h"

#include "base/numbers.h"
#include "base/texts.h"
#include "desktop/notificationcentre.h"
#include "desktop/preferences.h"
#include "desktop/ui/bringtofront.h"
#include "dives/statistics.h"
#include "dives/statisticsreport.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QVBoxLayout>

namespace tavrel {

PreviousTotalsWindow::PreviousTotalsWindow(Desktop& desktop, QWidget* parent) : QDialog(parent), desktop_(desktop) {
    setObjectName(QStringLiteral("previousTotalsWindow"));
    setWindowTitle(text("Carnet", "Previous dives title"));
    build();
}

QLineEdit* PreviousTotalsWindow::addField(QGridLayout* grid, int row, const QString& label, const QString& name) {
    auto* field = new QLineEdit;
    field->setObjectName(name);
    field->setAlignment(Qt::AlignRight);
    field->setMaximumWidth(field->fontMetrics().averageCharWidth() * 14);
    // Any whole number counts: nothing holds a diver to a range. A separator of thousands would be read as a decimal
    // sign.
    QLocale plain = QLocale::c();
    plain.setNumberOptions(QLocale::RejectGroupSeparator);
    auto* validator = new QIntValidator(field);
    validator->setLocale(plain);
    field->setValidator(validator);
    auto* caption = new QLabel(label);
    caption->setBuddy(field);
    field->setAccessibleName(label);
    grid->addWidget(caption, row, 0);
    grid->addWidget(field, row, 1);
    return field;
}

void PreviousTotalsWindow::build() {
    const auto newGroup = [](const QString& title) {
        auto* box = new QGroupBox(title);
        auto* grid = new QGridLayout(box);
        grid->setColumnStretch(0, 1);
        return std::pair(box, grid);
    };
    auto* columns = new QHBoxLayout;
    auto* left = new QVBoxLayout;
    auto* right = new QVBoxLayout;
    columns->addLayout(left);
    columns->addLayout(right);

    const auto [measures, measureGrid] = newGroup(text("Carnet", "Stat group measures"));
    for (const StatMeasureName& name : statMeasureNames()) {
        fields_.emplace_back(
            QLatin1StringView(name.key),
            addField(measureGrid, measureGrid->rowCount(), name.label.text(), QLatin1StringView(name.sumField)));
    }
    right->addWidget(measures);
    for (const auto& [group, title] : statGroupNames) {
        const auto [box, grid] = newGroup(title.text());
        for (const StatCountName& name : statCountNames()) {
            if (name.group == group) {
                fields_.emplace_back(
                    QLatin1StringView(name.key),
                    addField(grid, grid->rowCount(), name.label.text(),
                             QStringLiteral("statSum") + QLatin1StringView(name.field) + QStringLiteral("Field")));
            }
        }
        (group == StatGroup::kinds || group == StatGroup::systems ? left : right)->addWidget(box);
    }
    left->addStretch();
    right->addStretch();

    auto* hint = new QLabel(text("Carnet", "Previous dives hint"));
    hint->setWordWrap(true);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &PreviousTotalsWindow::validateStatisticsValues);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(hint);
    layout->addLayout(columns);
    layout->addWidget(buttons);
}

void PreviousTotalsWindow::showEditStatisticsWindow() {
    const QVariantMap values = PreviousTotals::read(desktop_.preferences).values();
    for (const auto& [key, field] : fields_) {
        field->setText(QString::number(values.value(key).toInt()));
    }
    fields_.front().second->selectAll();
    fields_.front().second->setFocus();
    bringToFront(this);
}

void PreviousTotalsWindow::validateStatisticsValues() {
    QVariantMap values;
    for (const auto& [key, field] : fields_) {
        values.insert(key, integerValue(field->text()));
    }
    accept();
    desktop_.preferences.set(PreviousTotals::preferencesKey(), values);
    desktop_.preferences.synchronize(desktop_.alerts);
    desktop_.notifications.post(Notification::previousTotals);
}

}  // namespace tavrel
