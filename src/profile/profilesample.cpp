#include "profile/profilesample.h"

#include "base/texts.h"

#include <QStringList>

#include <algorithm>
#include <cmath>

namespace tavrel {

namespace {

QString fixed(double value, int decimals) {
    return std::isfinite(value) ? QString::number(value, 'f', decimals) : QStringLiteral("–");
}

QString clock(double minutes) {
    const auto seconds = static_cast<qint64>(std::llround(minutes * 60));
    return QStringLiteral("%1:%2").arg(seconds / 60).arg(seconds % 60, 2, 10, QLatin1Char('0'));
}

bool isSet(const Series& flags, int number, int count) {
    return static_cast<int>(flags.size()) == count && flags.integer(static_cast<std::size_t>(number)) == 1;
}

}  // namespace

ProfileSamples::ProfileSamples(ProfileDive dive) : dive_(std::move(dive)) {
    const Series& switches = dive_.series.GAZ_Flag;
    const auto count = static_cast<std::size_t>(dive_.samples());
    oxygen_.assign(count, dive_.fracO2);
    if (switches.size() != count) {
        return;
    }
    qint32 breathed = dive_.fracO2;
    for (std::size_t sample = 0; sample < count; ++sample) {
        const qint32 gas = switches.integer(sample);
        if (gas == 1) {
            breathed = dive_.fracO2;
        } else if (gas >= 2 && gas <= 7) {
            breathed = dive_.ean[static_cast<std::size_t>(gas - 2)];
        }
        oxygen_[sample] = breathed;
    }
}

ProfileSample ProfileSamples::at(int number) const {
    const auto index = static_cast<std::size_t>(number);
    const ProfileSeries& series = dive_.series;
    ProfileSample sample;
    sample.number = number;
    sample.minutes = number * samplingInterval(dive_.samplingRate) / 60.0;
    sample.depth = series.profilProfondeur.real(index);
    if (series.PRESS_Data.size() > 1 && index < series.PRESS_Data.size() && series.PRESS_Data.real(index) > 0) {
        sample.pressure = series.PRESS_Data.real(index);
    }
    sample.oxygen = oxygen_[index];
    // Ten metres of water to the bar, 1 bar at the surface.
    const double ambient = sample.depth / 10 + 1;
    if (!std::isfinite(ambient)) {
        sample.ppO2.reset();
    } else if (dive_.setPoint) {
        sample.ppO2 = std::min(*dive_.setPoint, ambient);
    } else if (sample.oxygen > 0) {
        sample.ppO2 = sample.oxygen / 100.0 * ambient;
    }
    QStringList events;
    if (isSet(series.ASC_Flag, number, count())) {
        events += text("Profil", "Ascent alarm");
    }
    if (isSet(series.SLOW_Flag, number, count())) {
        events += text("Profil", "Slow down");
    }
    if (isSet(series.CEIL_Flag, number, count())) {
        events += text("Profil", "Ceiling violated");
    }
    if (isSet(series.SURF_Flag, number, count())) {
        events += text("Profil", "At the surface");
    }
    if (static_cast<int>(series.GAZ_Flag.size()) == count() && series.GAZ_Flag.integer(index) >= 1 &&
        series.GAZ_Flag.integer(index) <= 7) {
        events += textWith("Profil", "Gas switch", sample.oxygen);
    }
    sample.events = events.join(QStringLiteral(", "));
    return sample;
}

QString ProfileSamples::words(int number) const {
    const ProfileSample sample = at(number);
    QStringList words{clock(sample.minutes), fixed(sample.depth, 1) + QStringLiteral(" m")};
    if (sample.pressure) {
        words += fixed(*sample.pressure, 0) + QStringLiteral(" bar");
    }
    if (sample.ppO2) {
        words += textWith("Profil", "Sample ppO2", *sample.ppO2);
    }
    if (!sample.events.isEmpty()) {
        words += sample.events;
    }
    return words.join(QStringLiteral("  ·  "));
}

DataTable sampleTable(std::shared_ptr<const ProfileSamples> samples) {
    enum Column { sampleNumber, time, depth, pressure, oxygen, ppO2, events };
    DataTable table;
    table.columns = {text("Profil", "Table sample"),   text("Profil", "Table time"),   text("Profil", "Table depth"),
                     text("Profil", "Table pressure"), text("Profil", "Table oxygen"), text("Profil", "Table ppO2"),
                     text("Profil", "Table events")};
    table.rows = samples->count();
    table.cell = [samples = std::move(samples)](int row, int column) {
        const ProfileSample sample = samples->at(row);
        switch (column) {
            case sampleNumber:
                return QString::number(sample.number + 1);
            case time:
                return clock(sample.minutes);
            case depth:
                return fixed(sample.depth, 1);
            case pressure:
                return sample.pressure ? fixed(*sample.pressure, 1) : QString();
            case oxygen:
                return QString::number(sample.oxygen) + QStringLiteral(" %");
            case ppO2:
                return sample.ppO2 ? fixed(*sample.ppO2, 2) : QString();
            default:
                return sample.events;
        }
    };
    return table;
}

}  // namespace tavrel
