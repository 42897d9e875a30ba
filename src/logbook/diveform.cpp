#include "logbook/diveform.h"

#include "archive/recordarchive.h"
#include "base/texts.h"
#include "desktop/clock.h"
#include "desktop/commonsettings.h"
#include "desktop/preferences.h"
#include "dives/consumption.h"
#include "dives/divecodes.h"
#include "dives/divelimits.h"
#include "logbook/logbooksettings.h"

namespace tavrel {

namespace {

const QString dash = QStringLiteral("-");

qint32 temperature(const QString& typed, qint32 value, qint32 lowest, qint32 highest) {
    return typed == dash || value < lowest || value > highest ? temperatureNotGiven : value;
}

}  // namespace

const DiveControls& DiveControls::table() {
    static const DiveControls controls;
    return controls;
}

DiveForm::DiveForm(Desktop& desktop) : RecordForm(desktop), controls_(controls()) {
    DiveForm::rememberBeside();
}

QStringList DiveForm::ownList(int list) const {
    static const std::array<QStringList, 4> lists{
        QString::fromUtf8("2 4 5 6 9 10 11 12 15 18 20 22 24 30 33 36").split(u' '),
        QString::fromUtf8("176 200 207 232 300").split(u' '),
        QString::fromUtf8("...,Abyss,Decoplanner,GAP-Diveplanner,V Planner,Z Planner").split(u','),
        QString::fromUtf8("...,BühlmannB-GF,BühlmannC-GF,MF11F6,RGBM,VPM-A,VPM-B,VPM-B/E,ZH-L 16 B,ZH-L 16 C")
            .split(u','),
    };
    return lists[static_cast<std::size_t>(list)];
}

void DiveForm::endEditing(int control, const QString& typed) {
    RecordForm::endEditing(control, typed);
    if (control == controls_.siteField.index) {
        fillFromSite(typed);
    }
}

void DiveForm::fillFromSite(const QString& site) {
    const auto known = lastDiveAt_ && !site.trimmed().isEmpty() ? lastDiveAt_(site) : nullptr;
    if (!known) {
        return;
    }
    FormState<DiveControls>& fields = state();
    QStringList filled;
    const auto fill = [&](DiveControls::Id control, const QString& value, const QString& none = {}) {
        const QString held = fields.text(control).trimmed();
        if ((held.isEmpty() || held == none.trimmed()) && !value.trimmed().isEmpty() && value != none) {
            fields.type(control.index, value);
            filled << text(fields.table().controls()[static_cast<std::size_t>(control.index)].control.label);
        }
    };
    fill(controls_.lieuField, known->lieu);
    fill(controls_.paysField, known->pays);
    const auto before = filled.size();
    fill(controls_.gpsField, known->gps, text("Carnet", "GPS template"));
    if (filled.size() > before) {
        fields.choose(controls_.gpsSystemPopUp.index, known->gpsSystem);
    }
    if (!filled.isEmpty()) {
        filledFrom_ = textWith("Carnet", "Filled from site", known->noPlongee, filled.join(QStringLiteral(", ")));
        updateUI();
    }
}

void DiveForm::startFrom(const Plongee& previous) {
    FormState<DiveControls>& fields = state();
    DiveForm shown(desktop());
    shown.editFields(previous);
    const auto take = [&](DiveControls::Id control) {
        fields.setText(control, shown.state().text(control));
        fields.setTag(control, shown.state().tag(control));
    };
    for (const auto control :
         {controls_.lieuField, controls_.paysField, controls_.countryCodeField, controls_.partenairesField,
          controls_.rebreatherMatrix, controls_.lestageField, controls_.combinaisonPopUp}) {
        take(control);
    }
    for (std::size_t tank = 0; tank < 2; ++tank) {
        for (const auto control :
             {controls_.volumeBlocField[tank], controls_.pressionBlocField[tank], controls_.alliageBlocPopUp[tank],
              controls_.gazPopUp[tank], controls_.o2MixField[tank], controls_.heMixField[tank]}) {
            take(control);
        }
    }
    for (const auto control : controls_.equipement_Field) {
        take(control);
    }
    const QDateTime day = previous.date.toDateTime();
    const QDateTime start(day.date(), previous.heure.toDateTime().time());
    surfaced_ = start.isValid() ? std::optional(start.addSecs(qint64(previous.temps) * 60)) : std::nullopt;
    countSurfaceInterval();
}

void DiveForm::countSurfaceInterval() {
    constexpr qint64 longest = qint64{48} * 60;
    const FormState<DiveControls>& fields = state();
    const QDateTime start(fields.date(controls_.dateField).toDateTime().date(),
                          fields.date(controls_.heureField).toDateTime().time());
    const qint64 minutes = surfaced_->secsTo(start) / 60;
    const bool counts = minutes >= 0 && minutes <= longest;
    state().setText(controls_.surfaceField, counts ? QStringLiteral("%1:%2")
                                                         .arg(minutes / 60, 2, 10, QLatin1Char('0'))
                                                         .arg(minutes % 60, 2, 10, QLatin1Char('0'))
                                                   : QStringLiteral("--:--"));
}

QString DiveForm::hint(int control) const {
    if (control == controls_.siteField.index && !filledFrom_.isEmpty()) {
        return filledFrom_;
    }
    if (control == controls_.dateField.index &&
        state().date(controls_.dateField).toDateTime() > desktop().clock.now()) {
        return text("Carnet", "Hint future day");
    }
    return gainsGas(control) ? text("Carnet", "Hint pressure rises") : RecordForm::hint(control);
}

bool DiveForm::gainsGas(int endPressure) const {
    const auto rises = [&](const auto& starts, const auto& ends) {
        for (std::size_t each = 0; each < ends.size(); ++each) {
            if (ends[each].index == endPressure) {
                return state().integer(ends[each]) > state().integer(starts[each]);
            }
        }
        return false;
    };
    return rises(controls_.departField, controls_.finField) ||
           rises(controls_.pony_DepartField, controls_.pony_FinField) ||
           rises(controls_.bailout_DepartField, controls_.bailout_FinField);
}

namespace {

/// The series that the record's field holds; null when it is none.
const ProfileSeriesKind* seriesNamed(const QString& field) {
    const Field found = Plongee::layout().field(field);
    for (const auto& kind : profileSeriesKinds) {
        if (!found.isNull() && found == kind.field) {
            return &kind;
        }
    }
    return nullptr;
}

std::optional<Series> seriesOf(const QString& value, bool reals) {
    Series series = Series::empty();
    if (value.trimmed().isEmpty()) {
        return series;
    }
    for (const QString& part : value.split(u',')) {
        bool isNumber = false;
        if (reals) {
            series.appendReal(part.trimmed().toDouble(&isNumber));
        } else {
            series.appendInteger(part.trimmed().toInt(&isNumber));
        }
        if (!isNumber) {
            return std::nullopt;
        }
    }
    return series;
}

}  // namespace

bool DiveForm::holdsBeside(const QString& field) const {
    return seriesNamed(field) != nullptr;
}

Expected<void> DiveForm::enterBeside(const QString& field, const QString& value) {
    const ProfileSeriesKind* kind = seriesNamed(field);
    if (!kind) {
        return BookForm::enterBeside(field, value);
    }
    auto series = seriesOf(value, kind->real);
    if (!series) {
        return failure(textWith("Main", "No such value", field, value));
    }
    _plg.*(kind->series) = std::move(*series);
    return {};
}

bool DiveForm::differsBeside() const {
    return std::any_of(profileSeriesKinds.begin(), profileSeriesKinds.end(), [this](const ProfileSeriesKind& kind) {
        return !(_plg.*(kind.series) == remembered_.*(kind.series));
    });
}

void DiveForm::rememberBeside() {
    remembered_ = _plg;
}

std::function<QByteArray()> DiveForm::entriesBeside() const {
    if (!differsBeside()) {
        return {};
    }
    return [profile = _plg] {
        const auto dive = std::make_shared<Plongee>();
        static_cast<ProfileSeries&>(*dive) = profile;
        return writeRecords({dive}, Plongee::layout());
    };
}

void DiveForm::enterBesideAgain(QByteArrayView entries) {
    const auto read = readRecords(entries, Plongee::layout());
    if (read && read->records.size() == 1) {
        const auto& entered = static_cast<const Plongee&>(*read->records.front());
        _plg = static_cast<const ProfileSeries&>(entered);
    }
}

void DiveForm::clear(int) {
    FormState<DiveControls>& fields = state();
    const Preferences& preferences = desktop().preferences;
    fields.setDate(controls_.dateField, Date::fromDateTime(desktop().clock.now()));
    fields.setDate(controls_.heureField, Date::fromDateTime(QDate(2001, 1, 1).startOfDay()));
    fields.setText(controls_.countryCodeField, preferences.get(settings::countryCode));
    fields.setText(controls_.gpsField, text("Carnet", "GPS template"));
    const qint64 interval = preferences.get(settings::stopInterval);
    for (std::size_t level = 0; level < 6; ++level) {
        fields.setInteger(controls_.depthDeco_Level_Field[level], interval * static_cast<qint64>(level + 1));
    }
    fields.setInteger(controls_.lowGFField, preferences.get(settings::lowGF));
    fields.setInteger(controls_.highGFField, preferences.get(settings::highGF));
    for (std::size_t tank = 0; tank < 2; ++tank) {
        fields.setInteger(controls_.volumeBlocField[tank], preferences.get(settings::tankVolume));
        fields.setInteger(controls_.pressionBlocField[tank], preferences.get(settings::tankPressure));
    }
    fields.setText(controls_.fabricantField, preferences.get(settings::fabricant));
    fields.setText(controls_.ordinateurField, preferences.get(settings::ordinateur));
    fields.setText(controls_.serieField, preferences.get(settings::serie));
    _plg.reset();
    filledFrom_.clear();
    surfaced_.reset();
    nameDifficulty();
    fields.requestFocus(controls_.noPlongeeField);
}

void DiveForm::show(const Plongee& dive) {
    FormState<DiveControls>& fields = state();
    if (dive.coeff == 0) {
        fields.setText(controls_.coeffField, dash);
    }
    if (dive.tempEau == temperatureNotGiven) {
        fields.setText(controls_.tempEauField, dash);
    }
    if (dive.tempAir == temperatureNotGiven) {
        fields.setText(controls_.tempAirField, dash);
    }
    for (std::size_t level = 0; level < 6; ++level) {
        if (!(fields.single(controls_.depthDeco_Level_Field[level]) > 0)) {
            fields.setInteger(controls_.depthDeco_Level_Field[level], 3 * (static_cast<qint64>(level) + 1));
        }
        for (const auto& control : {controls_.decoO2_Level_Field[level], controls_.timeDeco_Level_Field[level]}) {
            if (fields.integer(control) == 0) {
                fields.setText(control, dash);
            }
        }
    }
    _plg = static_cast<const ProfileSeries&>(dive);
    filledFrom_.clear();
    surfaced_.reset();
    nameDifficulty();
}

void DiveForm::correct() {
    FormState<DiveControls>& fields = state();
    if (const qint32 coefficient = fields.integer(controls_.coeffField); coefficient < 20 || coefficient > 120) {
        fields.setText(controls_.coeffField, dash);
    }
    if (fields.integer(controls_.profondeurField) < 0) {
        fields.setInteger(controls_.profondeurField, 0);
    }
    if (fields.integer(controls_.tempsField) < 0) {
        fields.setInteger(controls_.tempsField, 0);
    }
    if (const qint32 altitude = fields.integer(controls_.altitudeField); altitude < 0 || altitude > highestAltitude) {
        fields.setInteger(controls_.altitudeField, 0);
    }
    for (const auto& time : controls_.timeDeco_Level_Field) {
        if (fields.integer(time) < 0) {
            fields.setInteger(time, 0);
        }
    }
    // Tank pressures are taken as typed, an end above the start included: nothing is asked or replaced.
    for (std::size_t tank = 0; tank < 2; ++tank) {
        if (fields.integer(controls_.o2MixField[tank]) < 1) {
            fields.setInteger(controls_.o2MixField[tank], 21);
        }
        if (const qint32 helium = fields.integer(controls_.heMixField[tank]); helium < 0 || helium > 86) {
            fields.setInteger(controls_.heMixField[tank], 0);
        }
    }
    if (fields.real(controls_.lestageField) < 0) {
        fields.setText(controls_.lestageField, QStringLiteral("0.0"));
    }
}

void DiveForm::complete(Plongee& dive) {
    FormState<DiveControls>& fields = state();
    // Both ranges are inclusive; the lowest air temperature is at once the value for none.
    dive.tempEau = temperature(fields.text(controls_.tempEauField), dive.tempEau, -5, 100);
    dive.tempAir = temperature(fields.text(controls_.tempAirField), dive.tempAir, temperatureNotGiven, 140);
    _plg.profilArraysDefaultContent();
    static_cast<ProfileSeries&>(dive) = _plg;
    nameDifficulty();
}

void DiveForm::updateSlider() {
    nameDifficulty();
    updateUI();
}

void DiveForm::nameDifficulty() {
    FormState<DiveControls>& fields = state();
    static constexpr std::array<Title, 6> words{{{"Carnet", "Very easy"},
                                                 {"Carnet", "Easy"},
                                                 {"Carnet", "Normal"},
                                                 {"Carnet", "Hard"},
                                                 {"Carnet", "Very hard"},
                                                 {"Carnet", "Extreme"}}};
    const int difficulty = fields.tag(controls_.difficulteSlider);
    const bool named = difficulty >= 0 && difficulty < static_cast<int>(words.size());
    fields.setText(controls_.difficulteField,
                   (named ? words[static_cast<std::size_t>(difficulty)] : words.back()).text());
}

void DiveForm::refresh() {
    FormState<DiveControls>& fields = state();
    const int apparatus = fields.tag(controls_.rebreatherMatrix);
    // A hybrid rebreather leaves the captions as they were.
    if (apparatus == Apparatus::manualClosed || apparatus == Apparatus::electronicClosed) {
        fields.setText(controls_.blocField[0], text("Carnet", "OXYGÈNE :"));
        fields.setText(controls_.blocField[1], text("Carnet", "DILUANT :"));
        fields.setText(controls_.setPointField, DiveControls::setPointCaptions[1].text());
        fields.setInteger(controls_.o2MixField[0], 100);
    } else if (apparatus == Apparatus::openCircuit || apparatus == Apparatus::semiClosed) {
        fields.setText(controls_.blocField[0], text("Carnet", "Bloc principal :"));
        fields.setText(controls_.blocField[1], text("Carnet", "Bloc secondaire :"));
        fields.setText(controls_.setPointField, DiveControls::setPointCaptions[0].text());
    }
    fields.setEnabled(controls_.flowField, apparatus == Apparatus::semiClosed);

    const bool usUnits = desktop().preferences.get(settings::usUnits);
    const QString degree = usUnits ? text("Carnet", "Degree Farenheit") : text("Carnet", "Degree Celsius");
    const QString length = usUnits ? QStringLiteral("ft") : QStringLiteral("m");
    fields.setText(controls_.fahrEauField, degree);
    fields.setText(controls_.fahrAirField, degree);
    fields.setText(controls_.ftDepthField, length);
    fields.setText(controls_.ftAltitudeField, length);
    for (const auto& caption : controls_.ft_m_Field) {
        fields.setText(caption, length);
    }
    for (std::size_t tank = 0; tank < 2; ++tank) {
        const qint64 oxygen = fields.integer(controls_.o2MixField[tank]);
        const qint64 helium = fields.integer(controls_.heMixField[tank]);
        const qint64 nitrogen = 100 - oxygen - helium;
        fields.setDerived(controls_.n2MixField[tank], QString::number(nitrogen),
                          textWith("Carnet", "Explain nitrogen", oxygen, helium, nitrogen));
    }
    refreshGas(gasReadings());
}

void DiveForm::calcDeltaPressure(const GasReadings& readings) {
    for (std::size_t tank = 0; tank < readings.tanks.size(); ++tank) {
        state().setDerived(controls_.deltaPressureField[tank], pressureDropText(pressureDrop(readings, tank)),
                           pressureDropExplanation(readings, tank));
    }
}

void DiveForm::refreshGas(const GasReadings& readings) {
    FormState<DiveControls>& fields = state();
    calcDeltaPressure(readings);
    const auto gases = auxiliaryGases(readings);
    const auto showGas = [&](const std::optional<AuxiliaryGas>& gas, auto report, auto gauge) {
        const AuxiliaryGas shown = gas.value_or(AuxiliaryGas());
        fields.setDerived(report, shown.text, shown.explanation);
        fields.setVisible(gauge, gas.has_value());
        fields.setGauge(gauge, shown.value, shown.maximum, shown.ticks);
        fields.setExplanation(gauge.index, shown.explanation);
    };
    constexpr std::size_t ponies = DiveControls::ponies.size();
    for (std::size_t pony = 0; pony < ponies; ++pony) {
        fields.setText(controls_.pony_TitleField[pony], ponyTitle(readings, pony));
        showGas(gases[pony], controls_.pony_ConsoField[pony], controls_.pony_Progress[pony]);
    }
    for (std::size_t bailout = 0; bailout < DiveControls::bailouts.size(); ++bailout) {
        showGas(gases[ponies + bailout], controls_.bailout_ConsoField[bailout], controls_.bailout_Progress[bailout]);
    }
    const OxygenExposure oxygen = oxygenExposure(readings);
    fields.setDerived(controls_.sncDrawer, oxygen.text, oxygen.explanation);

    const bool usUnits = desktop().preferences.get(settings::usUnits);
    fields.setDerived(
        controls_.maxAverageDepthField,
        textWith("Carnet", "Max and average depth", double{readings.deepest}, double{readings.averageDepth}),
        explainedAverageDepth(readings, usUnits).explanation);
    fields.setText(controls_.samplingRateField,
                   textWith("Carnet", "Sampling rate", samplingTitle(fields.tag(controls_.samplingRatePopUp))));
    fields.setText(controls_.recordedPointsField,
                   textWith("Carnet", "Recorded points", readings.hasProfile() ? readings.samples : 0));
}

GasReadings DiveForm::gasReadings() const {
    const FormState<DiveControls>& fields = state();
    GasReadings readings;
    const auto read = [&fields](auto volume, auto start, auto end) {
        return BottleReading{fields.integer(volume), fields.integer(start), fields.integer(end)};
    };
    for (std::size_t tank = 0; tank < readings.tanks.size(); ++tank) {
        readings.tanks[tank] =
            read(controls_.volumeBlocField[tank], controls_.departField[tank], controls_.finField[tank]);
    }
    constexpr std::size_t ponies = 3;
    for (std::size_t pony = 0; pony < ponies; ++pony) {
        readings.auxiliaries[pony] =
            read(controls_.pony_VolumeField[pony], controls_.pony_DepartField[pony], controls_.pony_FinField[pony]);
    }
    for (std::size_t bailout = 0; ponies + bailout < readings.auxiliaries.size(); ++bailout) {
        readings.auxiliaries[ponies + bailout] =
            read(controls_.bailout_VolumeField[bailout], controls_.bailout_DepartField[bailout],
                 controls_.bailout_FinField[bailout]);
    }
    for (std::size_t level = 0; level < readings.levels.size(); ++level) {
        readings.levels[level] = {fields.tag(controls_.deco_Level_Switch[level]) == 1,
                                  fields.real(controls_.decoO2_Level_Field[level]),
                                  fields.integer(controls_.depthDeco_Level_Field[level])};
    }
    readings.time = fields.integer(controls_.tempsField);
    readings.minutes = fields.real(controls_.tempsField);
    readings.depth = fields.real(controls_.profondeurField);
    readings.oxygen = fields.real(controls_.o2MixField[0]);
    readings.readProfile(_plg);
    return readings;
}

void DiveForm::presetGas(qint64 oxygen, qint64 nitrogen, qint64 helium) {
    FormState<DiveControls>& fields = state();
    fields.requestFocus(controls_.surfaceField);
    fields.setInteger(controls_.o2MixField[0], oxygen);
    fields.setInteger(controls_.n2MixField[0], nitrogen);
    fields.setInteger(controls_.heMixField[0], helium);
    updateUI();
}

void DiveForm::razAir() {
    presetGas(21, 79, 0);
}

void DiveForm::razNitrox() {
    FormState<DiveControls>& fields = state();
    const qint64 oxygen = fields.integer(controls_.o2MixField[0]);
    presetGas(oxygen, 100 - oxygen, 0);
}

void DiveForm::razHeliox() {
    FormState<DiveControls>& fields = state();
    const qint64 oxygen = fields.integer(controls_.o2MixField[0]);
    presetGas(oxygen, 0, 100 - oxygen);
}

void DiveForm::entered(int control) {
    if (control == controls_.siteField.index) {
        filledFrom_.clear();
    } else if (control == controls_.surfaceField.index) {
        surfaced_.reset();  // the user knows better
    } else if (surfaced_ && (control == controls_.dateField.index || control == controls_.heureField.index)) {
        countSurfaceInterval();
    }
    if (control == controls_.consommationButton.index) {
        Q_EMIT consumptionRequested();
    } else if (control == controls_.razAirButton.index) {
        razAir();
    } else if (control == controls_.razNitroxButton.index) {
        razNitrox();
    } else if (control == controls_.razHelioxButton.index) {
        razHeliox();
    } else if (control == controls_.difficulteSlider.index) {
        updateSlider();
    } else {
        updateUI();
    }
}

}  // namespace tavrel
