#include "calculators/ui/gpscontroller.h"

#include "base/decimalsign.h"
#include "base/numbers.h"
#include "calculators/calculators.h"
#include "calculators/position.h"
#include "calculators/ui/calculatorwidgets.h"
#include "calculators/ui/resultmark.h"
#include "desktop/ui/fittedtoscreen.h"
#include "desktop/ui/fixedpitch.h"

#include <QComboBox>
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
#include <cmath>
#include <initializer_list>
#include <utility>

namespace tavrel {

namespace {

Q_LOGGING_CATEGORY(gpsLog, "tavrel.gps")

// Red, blue and black as they read on the palette's base.
QColor colourOf(ReportRole role, const QPalette& palette) {
    switch (role) {
        case ReportRole::Title:
            return readableRed(palette);
        case ReportRole::Value:
            return readableBlue(palette);
        case ReportRole::Label:
            break;
    }
    return palette.color(QPalette::Text);
}

// Minutes to a hundred-thousandth and degrees to a ten-millionth: two centimetres and one.
constexpr double minutesFraction = 1e5;
constexpr double degreesFraction = 1e7;

/// A position as the charts of the user's language write it.
QString onScreen(QString position) {
    return withDecimalSign(position.replace(u'W', text("Calculators", "Letter of the west")));
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

GpsController::GpsController(QWidget* parent) : QDialog(parent), mark_(new ResultMark(this)) {
    const Calculator& known = calculator(CalculatorId::Gps);
    setObjectName(QLatin1StringView(known.windowLayout));
    setWindowTitle(text(known.title));

    auto* altitude = new QGroupBox(text(Title("Calculators", "Both converters")), this);
    auto* altitudeGrid = new QGridLayout(altitude);
    altitude_inField = newNumberField("altitude_inField", altitude);
    addFieldRow(altitudeGrid, text(Title("Calculators", "Altitude")), altitude_inField, QStringLiteral("m"));

    auto* left = new QVBoxLayout;
    left->addWidget(newTypedPosition());
    left->addWidget(altitude);
    left->addWidget(newSexagesimal());
    left->addWidget(newDecimal());
    left->addStretch();
    auto* right = new QVBoxLayout;
    right->addWidget(newOutput());
    right->addWidget(newReport(), 1);
    auto* layout = new QHBoxLayout(this);
    layout->addLayout(left);
    layout->addLayout(right, 1);
    for (QWidget* input :
         std::initializer_list<QWidget*>{longitude_in_degreeField, longitude_in_minutesField, longitude_in_secondsField,
                                         latitude_in_degreeField, latitude_in_minutesField, latitude_in_secondsField,
                                         geodesiePopUp, longitude_inField, latitude_inField, altitude_inField}) {
        mark_->watch(input);
    }
    fitToScreen(*this);
    longitude_in_degreeField->setFocus();
}

void GpsController::changeEvent(QEvent* event) {
    QDialog::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        showReport();
    }
}

QGroupBox* GpsController::newTypedPosition() {
    auto* group = new QGroupBox(text(Title("Calculators", "Position as typed")), this);
    auto* grid = new QGridLayout;
    positionField_ = new QLineEdit(group);
    positionField_->setObjectName(QStringLiteral("positionField"));
    positionField_->setPlaceholderText(onScreen(QStringLiteral("43° 12.345' N  5° 20.7' W")));
    positionField_->setToolTip(text(Title("Calculators", "Position hint")));
    addFieldRow(grid, text(Title("Calculators", "Typed position")), positionField_, {});
    grid->setColumnStretch(0, 0);
    grid->setColumnStretch(1, 1);
    positionNote_ = new QLabel(group);
    positionNote_->setObjectName(QStringLiteral("positionNote"));
    auto* layout = new QVBoxLayout(group);
    layout->addLayout(grid);
    layout->addWidget(positionNote_);
    readPosition({});
    connect(positionField_, &QLineEdit::textEdited, this, &GpsController::readPosition);
    return group;
}

void GpsController::readPosition(const QString& typed) {
    const auto position = positionOf(typed);
    if (!position) {
        positionNote_->setText(text(typed.trimmed().isEmpty() ? Title("Calculators", "Position hint short")
                                                              : Title("Calculators", "Position not read")));
        return;
    }
    positionNote_->setText(textWith("Calculators", "Position read", onScreen(positionText(*position))));
    // Each part takes the sign, as the converter adds them.
    const auto fill = [](double angle, const std::array<QLineEdit*, 3>& parts, QLineEdit* decimal) {
        const double whole = std::trunc(angle);
        const double minutes = std::round((angle - whole) * minutesFraction * 60) / minutesFraction;
        parts[0]->setText(withDecimalSign(shortestText(whole + 0.0)));
        parts[1]->setText(withDecimalSign(shortestText(minutes + 0.0)));
        parts[2]->setText(QStringLiteral("0"));
        decimal->setText(withDecimalSign(shortestText(std::round(angle * degreesFraction) / degreesFraction)));
    };
    fill(position->longitude, {longitude_in_degreeField, longitude_in_minutesField, longitude_in_secondsField},
         longitude_inField);
    fill(position->latitude, {latitude_in_degreeField, latitude_in_minutesField, latitude_in_secondsField},
         latitude_inField);
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
    layout->addWidget(newFormulaLabel(withDecimalSign(sexagesimalFormula()), group));
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
    layout->addWidget(newFormulaLabel(withDecimalSign(decimalFormula()), group));
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
    positionOut_ = newOutputField("positionOut", resultatField);
    addFieldRow(grid, text(Title("Calculators", "Longitude")), longitude_outField, {});
    addFieldRow(grid, text(Title("Calculators", "Latitude")), latitude_outField, {});
    addFieldRow(grid, text(Title("Calculators", "Resulting altitude")), altitude_outField, {});
    addFieldRow(grid, text(Title("Calculators", "Resulting position")), positionOut_, {});
    for (QLineEdit* field : {longitude_outField, latitude_outField, altitude_outField, positionOut_}) {
        mark_->dim(field);
    }
    grid->setColumnStretch(0, 0);
    grid->setColumnStretch(1, 1);
    auto* layout = new QVBoxLayout(resultatField);
    layout->addLayout(grid);
    layout->addWidget(mark_->note());
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
    gpsDataField->setFont(fixedPitch(font()));
    // Room for the longest line, a geocentric coordinate; the report is as high as what stands beside it and scrolls.
    gpsDataField->setMinimumWidth(gpsDataField->fontMetrics().horizontalAdvance(u'0') * 44);
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
    report_ = gpsReport(conversion);
    showReport();
    showOutput(outputOf(conversion), conversion.wgs84);
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
    showOutput(outputOf(conversion), conversion.position);
}

void GpsController::showOutput(const GpsOutput& output, const GeographicPosition& position) {
    longitude_outField->setText(withDecimalSign(output.longitude));
    latitude_outField->setText(withDecimalSign(output.latitude));
    altitude_outField->setText(withDecimalSign(output.altitude));
    const bool known = std::isfinite(position.latitude) && std::isfinite(position.longitude);
    positionOut_->setText(known ? onScreen(positionText({position.latitude, position.longitude})) : QString());
    mark_->calculated();
}

void GpsController::showReport() {
    gpsDataField->clear();
    QTextCursor cursor(gpsDataField->document());
    QTextCharFormat format;
    for (const ReportRun& run : report_) {
        format.setForeground(colourOf(run.role, palette()));
        cursor.insertText(withDecimalSign(run.text), format);
    }
}

}  // namespace tavrel
