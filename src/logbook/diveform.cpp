#include "logbook/diveform.h"

#include "desktop/clock.h"
#include "desktop/commonsettings.h"
#include "desktop/preferences.h"
#include "dives/divecodes.h"
#include "forms/picklistentry.h"
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

DiveForm::DiveForm(Desktop& desktop)
    : desktop_(desktop),
      controls_(DiveControls::table()),
      state_(controls_),
      ownLists_{
          QString::fromUtf8("2 4 5 6 9 10 11 12 15 18 20 22 24 30 33 36").split(u' '),
          QString::fromUtf8("176 200 207 232 300").split(u' '),
          QString::fromUtf8("...,Abyss,Decoplanner,GAP-Diveplanner,V Planner,Z Planner").split(u','),
          QString::fromUtf8("...,BühlmannB-GF,BühlmannC-GF,MF11F6,RGBM,VPM-A,VPM-B,VPM-B/E,ZH-L 16 B,ZH-L 16 C")
              .split(u','),
      } {
    connect(&state_, &FormStateBase::edited, this, &DiveForm::userEntered);
}

void DiveForm::blankFields() {
    const FormStateBase::Batch batch(state_);
    const Preferences& preferences = desktop_.preferences;
    state_.clear();
    state_.setDate(controls_.dateField, Date::fromDateTime(desktop_.clock.now()));
    state_.setDate(controls_.heureField, Date::fromDateTime(QDate(2001, 1, 1).startOfDay()));
    state_.setText(controls_.countryCodeField, preferences.get(settings::countryCode));
    state_.setText(controls_.gpsField, text("Carnet", "GPS template"));
    const qint64 interval = preferences.get(settings::stopInterval);
    for (std::size_t level = 0; level < 6; ++level) {
        state_.setInteger(controls_.depthDeco_Level_Field[level], interval * static_cast<qint64>(level + 1));
    }
    state_.setInteger(controls_.lowGFField, preferences.get(settings::lowGF));
    state_.setInteger(controls_.highGFField, preferences.get(settings::highGF));
    for (std::size_t tank = 0; tank < 2; ++tank) {
        state_.setInteger(controls_.volumeBlocField[tank], preferences.get(settings::tankVolume));
        state_.setInteger(controls_.pressionBlocField[tank], preferences.get(settings::tankPressure));
    }
    state_.setText(controls_.fabricantField, preferences.get(settings::fabricant));
    state_.setText(controls_.ordinateurField, preferences.get(settings::ordinateur));
    state_.setText(controls_.serieField, preferences.get(settings::serie));
    _plg.reset();
    updateSlider();
    state_.requestFocus(controls_.noPlongeeField);
}

void DiveForm::editFields(const Plongee& dive) {
    const FormStateBase::Batch batch(state_);
    state_.load(dive);
    if (dive.coeff == 0) {
        state_.setText(controls_.coeffField, dash);
    }
    if (dive.tempEau == temperatureNotGiven) {
        state_.setText(controls_.tempEauField, dash);
    }
    if (dive.tempAir == temperatureNotGiven) {
        state_.setText(controls_.tempAirField, dash);
    }
    for (std::size_t level = 0; level < 6; ++level) {
        if (!(state_.single(controls_.depthDeco_Level_Field[level]) > 0)) {
            state_.setInteger(controls_.depthDeco_Level_Field[level], 3 * (static_cast<qint64>(level) + 1));
        }
        for (const auto& control : {controls_.decoO2_Level_Field[level], controls_.timeDeco_Level_Field[level]}) {
            if (state_.integer(control) == 0) {
                state_.setText(control, dash);
            }
        }
    }
    _plg = dive;
    updateSlider();
}

Plongee DiveForm::addDiveToList() {
    const FormStateBase::Batch batch(state_);
    if (const qint32 coefficient = state_.integer(controls_.coeffField); coefficient < 20 || coefficient > 120) {
        state_.setText(controls_.coeffField, dash);
    }
    if (state_.integer(controls_.profondeurField) < 0) {
        state_.setInteger(controls_.profondeurField, 0);
    }
    if (state_.integer(controls_.tempsField) < 0) {
        state_.setInteger(controls_.tempsField, 0);
    }
    if (const qint32 altitude = state_.integer(controls_.altitudeField); altitude < 0 || altitude > 4000) {
        state_.setInteger(controls_.altitudeField, 0);
    }
    for (const auto& time : controls_.timeDeco_Level_Field) {
        if (state_.integer(time) < 0) {
            state_.setInteger(time, 0);
        }
    }
    // Tank pressures are taken as typed, an end above the start included: nothing is asked or replaced.
    for (std::size_t tank = 0; tank < 2; ++tank) {
        if (state_.integer(controls_.o2MixField[tank]) < 1) {
            state_.setInteger(controls_.o2MixField[tank], 21);
        }
        if (const qint32 helium = state_.integer(controls_.heMixField[tank]); helium < 0 || helium > 86) {
            state_.setInteger(controls_.heMixField[tank], 0);
        }
    }
    if (state_.real(controls_.lestageField) < 0) {
        state_.setText(controls_.lestageField, QStringLiteral("0.0"));
    }

    Plongee dive;
    state_.build(dive);
    // Both ranges are inclusive; the lowest air temperature is at once the value for none.
    dive.tempEau = temperature(state_.text(controls_.tempEauField), dive.tempEau, -5, 100);
    dive.tempAir = temperature(state_.text(controls_.tempAirField), dive.tempAir, temperatureNotGiven, 140);
    _plg.profilArraysDefaultContent();
    static_cast<ProfileSeries&>(dive) = _plg;
    updateSlider();
    return dive;
}

void DiveForm::updateSlider() {
    static constexpr std::array<Title, 6> words{{{"Carnet", "Very easy"},
                                                 {"Carnet", "Easy"},
                                                 {"Carnet", "Normal"},
                                                 {"Carnet", "Hard"},
                                                 {"Carnet", "Very hard"},
                                                 {"Carnet", "Extreme"}}};
    const int difficulty = state_.tag(controls_.difficulteSlider);
    const bool named = difficulty >= 0 && difficulty < static_cast<int>(words.size());
    state_.setText(controls_.difficulteField,
                   (named ? words[static_cast<std::size_t>(difficulty)] : words.back()).text());
    updateUI();
}

void DiveForm::updateUI() {
    const FormStateBase::Batch batch(state_);
    const int apparatus = state_.tag(controls_.rebreatherMatrix);
    // The captions are French in every language; a hybrid rebreather leaves them as they were.
    if (apparatus == Apparatus::manualClosed || apparatus == Apparatus::electronicClosed) {
        state_.setText(controls_.blocField[0], QStringLiteral("OXYGÈNE :"));
        state_.setText(controls_.blocField[1], QStringLiteral("DILUANT :"));
        state_.setText(controls_.setPointField, text("Carnet", "high setpoint"));
        state_.setInteger(controls_.o2MixField[0], 100);
    } else if (apparatus == Apparatus::openCircuit || apparatus == Apparatus::semiClosed) {
        state_.setText(controls_.blocField[0], QStringLiteral("Bloc principal :"));
        state_.setText(controls_.blocField[1], QStringLiteral("Bloc secondaire :"));
        state_.setText(controls_.setPointField, text("Carnet", "PpO2"));
    }
    state_.setEnabled(controls_.flowField, apparatus == Apparatus::semiClosed);

    const bool usUnits = desktop_.preferences.get(settings::usUnits);
    const QString degree = usUnits ? text("Carnet", "Degree Farenheit") : text("Carnet", "Degree Celsius");
    const QString length = usUnits ? QStringLiteral("ft") : QStringLiteral("m");
    state_.setText(controls_.fahrEauField, degree);
    state_.setText(controls_.fahrAirField, degree);
    state_.setText(controls_.ftDepthField, length);
    state_.setText(controls_.ftAltitudeField, length);
    for (const auto& caption : controls_.ft_m_Field) {
        state_.setText(caption, length);
    }
    for (std::size_t tank = 0; tank < 2; ++tank) {
        const qint64 nitrogen =
            qint64(100) - state_.integer(controls_.o2MixField[tank]) - state_.integer(controls_.heMixField[tank]);
        state_.setText(controls_.n2MixField[tank], QString::number(nitrogen));
    }
}

GasReadings DiveForm::gasReadings() const {
    GasReadings readings;
    const auto read = [this](auto volume, auto start, auto end) {
        return BottleReading{state_.integer(volume), state_.integer(start), state_.integer(end)};
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
        readings.levels[level] = {state_.tag(controls_.deco_Level_Switch[level]) == 1,
                                  state_.real(controls_.decoO2_Level_Field[level]),
                                  state_.integer(controls_.depthDeco_Level_Field[level])};
    }
    readings.time = state_.integer(controls_.tempsField);
    readings.minutes = state_.real(controls_.tempsField);
    readings.depth = state_.real(controls_.profondeurField);
    readings.oxygen = state_.real(controls_.o2MixField[0]);
    readings.readProfile(_plg);
    return readings;
}

void DiveForm::presetGas(qint64 oxygen, qint64 nitrogen, qint64 helium) {
    state_.requestFocus(controls_.surfaceField);
    state_.setInteger(controls_.o2MixField[0], oxygen);
    state_.setInteger(controls_.n2MixField[0], nitrogen);
    state_.setInteger(controls_.heMixField[0], helium);
    updateUI();
}

void DiveForm::razAir() {
    presetGas(21, 79, 0);
}

void DiveForm::razNitrox() {
    const qint64 oxygen = state_.integer(controls_.o2MixField[0]);
    presetGas(oxygen, 100 - oxygen, 0);
}

void DiveForm::razHeliox() {
    const qint64 oxygen = state_.integer(controls_.o2MixField[0]);
    presetGas(oxygen, 0, 100 - oxygen);
}

void DiveForm::endEditing(int control, const QString& typed) {
    if (const auto& list = controls_.controls()[static_cast<std::size_t>(control)].control.pickList) {
        offerToPickList(desktop_, *list, typed);
    }
}

void DiveForm::userEntered(int control) {
    if (control == controls_.razAirButton.index) {
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
    Q_EMIT userEdited();
}

}  // namespace tavrel
