#include "calculators/ui/gpscontroller.h"

#include "base/numbers.h"
#include "calculators/calculators.h"
#include "calculators/ui/calculatorwidgets.h"

#include <QComboBox>
#include <QFontDatabase>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QLoggingCategory>
#include <QPushButton>
#include <QTextCursor>
#include <QTextEdit>
#include <QVBoxLayout>

#include <array>
#include <utility>

namespace tavrel {

namespace {

Q_LOGGING_CATEGORY(gpsLog, "tavrel.gps")

// The report's colours are its own, on white paper in every theme.
const QColor paper(Qt::white);

QColor colourOf(ReportRole role) {
    switch (role) {
        case ReportRole::Title:
            return Qt::red;
        case ReportRole::Value:
            return Qt::blue;
        case ReportRole::Label:
            break;
    }
    return Qt::black;
}

QLineEdit* newOutputField(const char* name, QWidget* parent) {
    auto* field = new QLineEdit(parent);
    field->setObjectName(QLatin1StringView(name));
    field->setReadOnly(true);
    QFont font = field->font();
    font.setBold(true);
    field->setFont(font);
    return field;
}

QPushButton* newConvertButton(const QString& title, QWidget* parent) {
    auto* button = new QPushButton(title, parent);
    button->setAutoDefault(false);
    return button;
}

}  // namespace

GpsController::GpsController(QWidget* parent) : QDialog(parent) {
    const Calculator& known = calculator(CalculatorId::Gps);
    setObjectName(QLatin1StringView(known.windowLayout));
    setWindowTitle(text(known.title));

    auto* altitude = new QGroupBox(text(Title("Calculators", "Both converters")), this);
    auto* altitudeGrid = new QGridLayout(altitude);
    altitude_inField = newNumberField("altitude_inField", altitude);
    addFieldRow(altitudeGrid, text(Title("Calculators", "Altitude")), altitude_inField, QStringLiteral("m"));

    auto* left = new QVBoxLayout;
    left->addWidget(altitude);
    left->addWidget(newSexagesimal());
    left->addWidget(newDecimal());
    left->addWidget(newOutput());
    left->addStretch();
    auto* layout = new QHBoxLayout(this);
    layout->addLayout(left);
    layout->addWidget(newReport(), 1);
    longitude_in_degreeField->setFocus();
}

void GpsController::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
        QDialog::keyPressEvent(event);
        return;
    }
    const QWidget* focused = focusWidget();
    const bool decimal = decimal_->isAncestorOf(focused) || (decimalLast_ && !sexagesimal_->isAncestorOf(focused));
    decimal ? convertGPS2() : convertGPS();
}

QGroupBox* GpsController::newSexagesimal() {
    auto* group = new QGroupBox(text(Title("Calculators", "Sexagesimal converter")), this);
    sexagesimal_ = group;
    auto* grid = new QGridLayout;
    const auto addAngle = [&](Title label, const std::array<std::pair<QLineEdit**, const char*>, 3>& parts) {
        const int row = grid->rowCount();
        auto* caption = new QLabel(text(label), group);
        grid->addWidget(caption, row, 0);
        const std::array signs{QStringLiteral("°"), QStringLiteral("′"), QStringLiteral("″")};
        const std::array names{Title("Calculators", "Degrees"), Title("Calculators", "Minutes"),
                               Title("Calculators", "Seconds")};
        for (int part = 0; part < 3; ++part) {
            const auto place = static_cast<std::size_t>(part);
            QLineEdit* field = newNumberField(parts[place].second, group, part == 2 ? 9 : 6);
            *parts[place].first = field;
            field->setAccessibleName(withoutMnemonic(caption->text()) + u' ' + text(names[place]));
            field->setToolTip(text(names[place]));
            grid->addWidget(field, row, 1 + 2 * part);
            grid->addWidget(new QLabel(signs[place], group), row, 2 + 2 * part);
        }
        caption->setBuddy(*parts[0].first);
    };
    addAngle(Title("Calculators", "Longitude ED50"), {{{&longitude_in_degreeField, "longitude_in_degreeField"},
                                                       {&longitude_in_minutesField, "longitude_in_minutesField"},
                                                       {&longitude_in_secondsField, "longitude_in_secondsField"}}});
    addAngle(Title("Calculators", "Latitude ED50"), {{{&latitude_in_degreeField, "latitude_in_degreeField"},
                                                      {&latitude_in_minutesField, "latitude_in_minutesField"},
                                                      {&latitude_in_secondsField, "latitude_in_secondsField"}}});
    grid->setColumnStretch(0, 1);
    auto* convert = newConvertButton(text(Title("Calculators", "Convert sexagesimal")), group);
    connect(convert, &QPushButton::clicked, this, &GpsController::convertGPS);
    auto* layout = new QVBoxLayout(group);
    layout->addLayout(grid);
    layout->addWidget(new QLabel(text(Title("Calculators", "Signs hint")), group));
    layout->addWidget(newFormulaLabel(sexagesimalFormula(), group));
    layout->addWidget(convert, 0, Qt::AlignRight);
    return group;
}

QGroupBox* GpsController::newDecimal() {
    auto* group = new QGroupBox(text(Title("Calculators", "Decimal converter")), this);
    decimal_ = group;
    auto* grid = new QGridLayout;
    geodesiePopUp = new QComboBox(group);
    geodesiePopUp->setObjectName(QStringLiteral("geodesiePopUp"));
    geodesiePopUp->addItem(QStringLiteral("ED50 → WGS84"), static_cast<int>(DatumDirection::Ed50ToWgs84));
    geodesiePopUp->addItem(QStringLiteral("WGS84 → ED50"), static_cast<int>(DatumDirection::Wgs84ToEd50));
    longitude_inField = newNumberField("longitude_inField", group);
    latitude_inField = newNumberField("latitude_inField", group);
    addFieldRow(grid, text(Title("Calculators", "Direction")), geodesiePopUp, {});
    addFieldRow(grid, text(Title("Calculators", "Decimal longitude")), longitude_inField, QStringLiteral("°"),
                Qt::AlignRight);
    addFieldRow(grid, text(Title("Calculators", "Decimal latitude")), latitude_inField, QStringLiteral("°"),
                Qt::AlignRight);
    auto* convert = newConvertButton(text(Title("Calculators", "Convert decimal")), group);
    connect(convert, &QPushButton::clicked, this, &GpsController::convertGPS2);
    auto* layout = new QVBoxLayout(group);
    layout->addLayout(grid);
    layout->addWidget(newFormulaLabel(decimalFormula(), group));
    layout->addWidget(convert, 0, Qt::AlignRight);
    return group;
}

QGroupBox* GpsController::newOutput() {
    resultatField = new QGroupBox(text(Title("Calculators", "Result")), this);
    resultatField->setObjectName(QStringLiteral("resultatField"));
    auto* grid = new QGridLayout;
    longitude_outField = newOutputField("longitude_outField", resultatField);
    latitude_outField = newOutputField("latitude_outField", resultatField);
    altitude_outField = newOutputField("altitude_outField", resultatField);
    addFieldRow(grid, text(Title("Calculators", "Longitude")), longitude_outField, {});
    addFieldRow(grid, text(Title("Calculators", "Latitude")), latitude_outField, {});
    addFieldRow(grid, text(Title("Calculators", "Resulting altitude")), altitude_outField, {});
    grid->setColumnStretch(0, 0);
    grid->setColumnStretch(1, 1);
    auto* layout = new QVBoxLayout(resultatField);
    layout->addLayout(grid);
    const auto lines = [this] {
        return longitude_outField->text() + u'\n' + latitude_outField->text() + u'\n' + altitude_outField->text();
    };
    layout->addWidget(newCopyButton(Title("Calculators", "Copy"), lines, resultatField), 0, Qt::AlignRight);
    return resultatField;
}

QGroupBox* GpsController::newReport() {
    auto* group = new QGroupBox(text(Title("Calculators", "Report")), this);
    gpsDataField = new QTextEdit(group);
    gpsDataField->setObjectName(QStringLiteral("gpsDataField"));
    gpsDataField->setAccessibleName(text(Title("Calculators", "Report")));
    gpsDataField->setReadOnly(true);
    gpsDataField->setTabChangesFocus(true);
    gpsDataField->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    QPalette colours = gpsDataField->palette();
    colours.setColor(QPalette::Base, paper);
    colours.setColor(QPalette::Text, colourOf(ReportRole::Label));
    gpsDataField->setPalette(colours);
    // Room for the whole report and its longest line, a geocentric coordinate.
    const QFontMetrics metrics = gpsDataField->fontMetrics();
    const auto lines = static_cast<int>(reportLines(gpsReport({})).size()) + 1;
    const int margin = static_cast<int>(gpsDataField->document()->documentMargin()) + gpsDataField->frameWidth();
    gpsDataField->setMinimumSize(metrics.horizontalAdvance(u'0') * 42, metrics.lineSpacing() * lines + 2 * margin);
    auto* layout = new QVBoxLayout(group);
    layout->addWidget(gpsDataField);
    layout->addWidget(newCopyButton(
                          Title("Calculators", "Copy report"), [this] { return gpsDataField->toPlainText(); }, group),
                      0, Qt::AlignRight);
    return group;
}

void GpsController::convertGPS() {
    convertCoordonatesWithLng_in_degrees(
        doubleValue(longitude_in_degreeField->text()), doubleValue(longitude_in_minutesField->text()),
        doubleValue(longitude_in_secondsField->text()), doubleValue(latitude_in_degreeField->text()),
        doubleValue(latitude_in_minutesField->text()), doubleValue(latitude_in_secondsField->text()),
        doubleValue(altitude_inField->text()));
}

void GpsController::convertGPS2() {
    convertLongitude(doubleValue(longitude_inField->text()), doubleValue(latitude_inField->text()),
                     doubleValue(altitude_inField->text()));
}

void GpsController::convertCoordonatesWithLng_in_degrees(double lng_in_degrees, double lng_in_minutes,
                                                         double lng_in_seconds, double lat_in_degrees,
                                                         double lat_in_minutes, double lat_in_seconds,
                                                         double altitude) {
    decimalLast_ = false;
    const SexagesimalConversion conversion = convertSexagesimal(
        {lng_in_degrees, lng_in_minutes, lng_in_seconds}, {lat_in_degrees, lat_in_minutes, lat_in_seconds}, altitude);
    showOutput(outputOf(conversion));
    showReport(gpsReport(conversion));
}

void GpsController::convertLongitude(double longitude, double latitude, double altitude) {
    decimalLast_ = true;
    const auto direction = geodesiePopUp->currentData().toInt() == static_cast<int>(DatumDirection::Wgs84ToEd50)
                               ? DatumDirection::Wgs84ToEd50
                               : DatumDirection::Ed50ToWgs84;
    const DecimalConversion conversion = convertDecimal(direction, {longitude, latitude, altitude});
    for (const QString& line : conversion.log) {
        qCInfo(gpsLog).noquote() << line;
    }
    showOutput(outputOf(conversion));
}

void GpsController::showOutput(const GpsOutput& output) {
    longitude_outField->setText(output.longitude);
    latitude_outField->setText(output.latitude);
    altitude_outField->setText(output.altitude);
}

void GpsController::showReport(const std::vector<ReportRun>& report) {
    gpsDataField->clear();
    QTextCursor cursor(gpsDataField->document());
    QTextCharFormat format;
    for (const ReportRun& run : report) {
        format.setForeground(colourOf(run.role));
        cursor.insertText(run.text, format);
    }
}

}  // namespace tavrel
