#include "dives/statistics.h"

#include "base/numbers.h"
#include "desktop/preferences.h"
#include "dives/divecodes.h"

#include <algorithm>
#include <optional>

namespace tavrel {

namespace {

constexpr std::array<StatCountName, statCountCount> countNames{{
    {StatCount::bio, "bio", "Bio", StatGroup::kinds, {"Carnet", "Biology"}},
    {StatCount::carriere, "carriere", "Carriere", StatGroup::kinds, {"Carnet", "Quarry"}},
    {StatCount::derivante, "derivante", "Derivante", StatGroup::kinds, {"Carnet", "Drift"}},
    {StatCount::epaves, "epaves", "Epaves", StatGroup::kinds, {"Carnet", "Wreck"}},
    {StatCount::explo, "explo", "Explo", StatGroup::kinds, {"Carnet", "Recreational"}},
    {StatCount::formation, "formation", "Formation", StatGroup::kinds, {"Carnet", "Training"}},
    {StatCount::nocturne, "nocturne", "Nocturne", StatGroup::kinds, {"Carnet", "Stat night"}},
    {StatCount::photo, "photo", "Photo", StatGroup::kinds, {"Carnet", "Photo dive"}},
    {StatCount::recuperation, "recuperation", "Recup", StatGroup::kinds, {"Carnet", "Recuperation"}},
    {StatCount::glace, "glace", "Glace", StatGroup::kinds, {"Carnet", "Under ice"}},
    {StatCount::speleo, "speleo", "Speleo", StatGroup::kinds, {"Carnet", "Cave"}},
    {StatCount::tek, "tek", "Tek", StatGroup::kinds, {"Carnet", "Tek"}},
    {StatCount::travail, "travail", "Travail", StatGroup::kinds, {"Carnet", "Work"}},
    {StatCount::video, "video", "Video", StatGroup::kinds, {"Carnet", "Movies"}},
    {StatCount::autre, "autre", "Autre", StatGroup::kinds, {"Carnet", "Other"}},
    {StatCount::co, "co", "CO", StatGroup::systems, {"Carnet", "Stat open circuit"}},
    {StatCount::scr, "scr", "SCR", StatGroup::systems, {"Carnet", "Stat semi-closed"}},
    {StatCount::ccr, "ccr", "CCR", StatGroup::systems, {"Carnet", "Stat closed"}},
    {StatCount::air, "air", "Air", StatGroup::gases, {"Carnet", "Air"}},
    {StatCount::nitrox, "nitrox", "Nitrox", StatGroup::gases, literal("Nitrox")},
    {StatCount::trimix, "trimix", "Trimix", StatGroup::gases, literal("Trimix")},
    {StatCount::heliox, "heliox", "Heliox", StatGroup::gases, literal("Heliox")},
    {StatCount::prof_1, "prof_1", "Prof_1", StatGroup::depths, literal("0 - 9 m")},
    {StatCount::prof_2, "prof_2", "Prof_2", StatGroup::depths, literal("10 - 19 m")},
    {StatCount::prof_3, "prof_3", "Prof_3", StatGroup::depths, literal("20 - 29 m")},
    {StatCount::prof_4, "prof_4", "Prof_4", StatGroup::depths, literal("30 - 39 m")},
    {StatCount::prof_5, "prof_5", "Prof_5", StatGroup::depths, literal("40 - 49 m")},
    {StatCount::prof_6, "prof_6", "Prof_6", StatGroup::depths, literal("50 - 59 m")},
    {StatCount::prof_7, "prof_7", "Prof_7", StatGroup::depths, {"Carnet", "Deepest band"}},
}};

constexpr std::array<StatMeasureName, statMeasureCount> measureNames{{
    {StatMeasure::totalDives, "total plongees", "statSumDivesField", {"Carnet", "Stat dives"}},
    {StatMeasure::deepest, "prof max", "statSumProfMaxField", {"Carnet", "Stat deepest"}},
    {StatMeasure::longest, "temps max", "statSumTempsMaxField", {"Carnet", "Stat longest"}},
    {StatMeasure::totalDepth, "total profondeur", "statSumProfField", {"Carnet", "Stat total depth"}},
    {StatMeasure::totalTime, "total temps", "statSumTempsField", {"Carnet", "Stat total time"}},
    {StatMeasure::coldest, "temperature min", "statSumTempMinField", {"Carnet", "Stat coldest"}},
    {StatMeasure::warmest, "temperature max", "statSumTempMaxField", {"Carnet", "Stat warmest"}},
}};

/// The count of a kind of dive. Technical dives are counted by their configuration instead, and 2 means nothing.
std::optional<StatCount> countOfKind(qint32 kind) {
    switch (kind) {
        case DiveKind::wreck:
            return StatCount::epaves;
        case DiveKind::recreational:
            return StatCount::explo;
        case DiveKind::photo:
            return StatCount::photo;
        case DiveKind::cave:
            return StatCount::speleo;
        case DiveKind::movies:
            return StatCount::video;
        case DiveKind::work:
            return StatCount::travail;
        case DiveKind::other:
            return StatCount::autre;
        case DiveKind::drift:
            return StatCount::derivante;
        case DiveKind::underIce:
            return StatCount::glace;
        case DiveKind::training:
            return StatCount::formation;
        case DiveKind::biology:
            return StatCount::bio;
        case DiveKind::quarry:
            return StatCount::carriere;
        case DiveKind::recuperation:
            return StatCount::recuperation;
        default:
            return std::nullopt;
    }
}

/// The count of a gas, or none below the codes. What is breathed from a closed circuit always counts as nitrox.
std::optional<StatCount> countOfGas(qint32 apparatus, qint32 gas) {
    if (Apparatus::isClosed(apparatus)) {
        return StatCount::nitrox;
    }
    switch (gas) {
        case Gas::air:
            return StatCount::air;
        case Gas::nitrox:
            return StatCount::nitrox;
        case Gas::trimix:
        case Gas::triox:
        case Gas::heliair:
            return StatCount::trimix;
        default:
            return gas < 0 ? std::nullopt : std::optional(StatCount::heliox);
    }
}

StatCount countOfDepth(qint32 depth) {
    const qint32 band = depth <= 9 ? 0 : std::min(depth / 10, 6);
    return static_cast<StatCount>(static_cast<qint32>(StatCount::prof_1) + band);
}

QString fieldName(const char* front, const char* middle) {
    return QLatin1StringView(front) + QLatin1StringView(middle) + QStringLiteral("Field");
}

}  // namespace

std::span<const StatCountName, statCountCount> statCountNames() {
    return countNames;
}

QString statField(const StatCountName& name) {
    return fieldName("stat", name.field);
}

QString statShareField(const StatCountName& name) {
    return fieldName("statP_", name.field);
}

std::span<const StatMeasureName, statMeasureCount> statMeasureNames() {
    return measureNames;
}

PreviousTotals PreviousTotals::read(const Preferences& preferences) {
    return of(preferences.dictionary(preferencesKey()));
}

PreviousTotals PreviousTotals::of(const QVariantMap& values) {
    const auto number = [&](const char* key) { return truncated(values.value(QLatin1StringView(key)).toDouble()); };
    PreviousTotals totals;
    for (const auto& name : countNames) {
        totals.counts[static_cast<std::size_t>(name.count)] = number(name.key);
    }
    for (const auto& name : measureNames) {
        totals.measures[static_cast<std::size_t>(name.measure)] = number(name.key);
    }
    return totals;
}

QVariantMap PreviousTotals::values() const {
    QVariantMap values;
    for (const auto& name : countNames) {
        values.insert(QLatin1StringView(name.key), of(name.count));
    }
    for (const auto& name : measureNames) {
        values.insert(QLatin1StringView(name.key), of(name.measure));
    }
    return values;
}

Statistics::Statistics(DiveSpan dives, const PreviousTotals* previous) : total_(static_cast<qint64>(dives.size())) {
    if (previous) {
        std::copy(previous->counts.begin(), previous->counts.end(), counts_.begin());
        total_ += previous->of(StatMeasure::totalDives);
        deepest_ = previous->of(StatMeasure::deepest);
        longest_ = previous->of(StatMeasure::longest);
        totalDepth_ = previous->of(StatMeasure::totalDepth);
        totalTime_ = previous->of(StatMeasure::totalTime);
        coldest_ = previous->of(StatMeasure::coldest);
        warmest_ = previous->of(StatMeasure::warmest);
    }
    for (const Plongee* dive : dives) {
        take(*dive);
    }
}

void Statistics::take(const Plongee& dive) {
    if (const auto kind = countOfKind(dive.typePlongee)) {
        add(*kind);
    }
    if (dive.nocturne == 1) {
        add(StatCount::nocturne);
    }
    if (dive.configuration == Configuration::tek) {
        add(StatCount::tek);
    }
    if (dive.rebreather == Apparatus::openCircuit) {
        add(StatCount::co);
    } else if (dive.rebreather == Apparatus::semiClosed) {
        add(StatCount::scr);
    } else if (Apparatus::isClosed(dive.rebreather)) {
        add(StatCount::ccr);
    }
    if (const auto gas = countOfGas(dive.rebreather, dive.gaz)) {
        add(*gas);
    }
    const qint32 depth = truncated(static_cast<double>(dive.profondeur));
    add(countOfDepth(depth));
    deepest_ = std::max<qint64>(deepest_, depth);
    longest_ = std::max<qint64>(longest_, dive.temps);
    totalDepth_ += depth;
    totalTime_ += dive.temps;
    if (dive.tempEau != temperatureNotGiven) {
        temperatureSum_ += dive.tempEau;
        ++temperatureCount_;
        coldest_ = std::min<qint64>(coldest_, dive.tempEau);
    }
    warmest_ = std::max<qint64>(warmest_, dive.tempEau);
}

float Statistics::share(StatCount which) const {
    return static_cast<float>(count(which)) / static_cast<float>(divisor()) * 100;
}

float Statistics::graphShare(StatCount which) const {
    return static_cast<float>(count(which)) / static_cast<float>(total_) * 100;
}

qint64 Statistics::meanTemperature() const {
    return temperatureSum_ / std::max<qint64>(temperatureCount_, 1);
}

QString Statistics::shareText(StatCount which) const {
    // Films alone have a blank before their share.
    const QString format = which == StatCount::video ? QStringLiteral(" %.1f %%") : QStringLiteral("%.1f %%");
    return fillFormat(format, {FormatArgument(double{share(which)})});
}

QString Statistics::shareExplanation(StatCount which) const {
    return textWith("Carnet", "Explain share", count(which), divisor(), double{share(which)});
}

std::vector<StatText> Statistics::texts() const {
    std::vector<StatText> texts = measureTexts();
    for (const auto& name : countNames) {
        texts.push_back({statField(name), name.label, QString::number(count(name.count)), {}});
        texts.push_back({statShareField(name), name.label, shareText(name.count), shareExplanation(name.count)});
    }
    return texts;
}

std::vector<StatText> Statistics::measureTexts() const {
    std::vector<StatText> texts;
    const auto add = [&](const char* field, const Title& label, QString text, QString explanation = {}) {
        texts.push_back({QLatin1StringView(field), label, std::move(text), std::move(explanation)});
    };
    add("statDivesField", {"Carnet", "Stat dives"}, textWith("Carnet", "Total dives", total_));
    const auto metres = [](qint64 value) { return fillFormat(QStringLiteral("%d m"), {formatArgument(value)}); };
    const auto minutes = [](qint64 value) { return fillFormat(QStringLiteral("%d min."), {formatArgument(value)}); };
    const auto degrees = [](qint64 value) { return textWith("Carnet", "Celsius", value); };
    add("statProfMaxField", {"Carnet", "Stat deepest"}, metres(deepest_));
    add("statProfMoyField", {"Carnet", "Stat average depth"}, metres(averageDepth()),
        textWith("Carnet", "Explain mean depth", totalDepth_, divisor(), averageDepth()));
    add("statProfField", {"Carnet", "Stat total depth"}, metres(totalDepth_));
    add("statTempsMaxField", {"Carnet", "Stat longest"}, minutes(longest_));
    add("statTempsMoyField", {"Carnet", "Stat average time"}, minutes(averageTime()),
        textWith("Carnet", "Explain mean time", totalTime_, divisor(), averageTime()));
    add("statTempsField", {"Carnet", "Stat total time"},
        fillFormat(QStringLiteral("%d h %.2d min.\r(%d min.)"),
                   {formatArgument(totalTime_ / 60), formatArgument(totalTime_ % 60), formatArgument(totalTime_)}));
    add("statTempMinField", {"Carnet", "Stat coldest"}, degrees(coldest_));
    add("statTempMaxField", {"Carnet", "Stat warmest"}, degrees(warmest_));
    add("statTempMoyField", {"Carnet", "Stat mean water"}, degrees(meanTemperature()),
        textWith("Carnet", "Explain mean temperature", temperatureSum_, std::max<qint64>(temperatureCount_, 1),
                 meanTemperature()));
    return texts;
}

}  // namespace tavrel
