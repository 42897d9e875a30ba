#pragma once

#include "calculators/gps.h"
#include "calculators/gpsreport.h"

#include <QDialog>

class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QTextEdit;

namespace tavrel {

class ResultMark;

/// Two converters of positions between ED50 and WGS84: one from degrees, minutes and seconds with a report of every
/// step, one from decimal degrees in either direction. They share the altitude and the output fields. Enter runs the
/// converter that has the focus; elsewhere, as in the altitude, the one used last.
class GpsController : public QDialog {
    Q_OBJECT

public:
    explicit GpsController(QWidget* parent = nullptr);

    /// The sexagesimal converter, from the fields.
    void convertGPS();
    /// The decimal converter, from the fields and the direction menu.
    void convertGPS2();

    /// ED50 to WGS84; writes the output fields and the report. Altitude in metres.
    void convertCoordonatesWithLng_in_degrees(double lng_in_degrees, double lng_in_minutes, double lng_in_seconds,
                                              double lat_in_degrees, double lat_in_minutes, double lat_in_seconds,
                                              double altitude);
    /// In the direction of the menu; writes the output fields and the diagnostic log (category "tavrel.gps").
    void convertLongitude(double longitude, double latitude, double altitude);

    /// Reads a position as divers write one, latitude first, with letters for the sides, into the fields of both
    /// converters.
    void readPosition(const QString& typed);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    QGroupBox* newTypedPosition();
    QGroupBox* newSexagesimal();
    QGroupBox* newDecimal();
    QGroupBox* newOutput();
    QGroupBox* newReport();
    void showOutput(const GpsOutput& output, const GeographicPosition& position);
    void showReport();

    QLineEdit* longitude_in_degreeField;
    QLineEdit* longitude_in_minutesField;
    QLineEdit* longitude_in_secondsField;
    QLineEdit* latitude_in_degreeField;
    QLineEdit* latitude_in_minutesField;
    QLineEdit* latitude_in_secondsField;
    QComboBox* geodesiePopUp;
    QLineEdit* longitude_inField;
    QLineEdit* latitude_inField;
    QLineEdit* altitude_inField;
    QLineEdit* longitude_outField;
    QLineEdit* latitude_outField;
    QLineEdit* altitude_outField;
    QGroupBox* resultatField;  ///< the area that holds the output fields
    QTextEdit* gpsDataField;
    QLineEdit* positionField_;
    QLabel* positionNote_;
    QLineEdit* positionOut_;  ///< the result with decimal minutes and letters
    ResultMark* mark_;
    std::vector<ReportRun> report_;
    QGroupBox* sexagesimal_;
    QGroupBox* decimal_;
    bool decimalLast_ = false;
};

}  // namespace tavrel
