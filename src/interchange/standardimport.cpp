#include "interchange/standardimport.h"

#include "base/safefile.h"
#include "desktop/clock.h"
#include "desktop/commonsettings.h"
#include "desktop/preferences.h"
#include "interchange/logbookunits.h"
#include "interchange/standard/csvtext.h"
#include "logbook/divecontrols.h"

#include <algorithm>
#include <limits>
#include <unordered_set>

namespace tavrel {

namespace {

using List = RecordList;

/// The setting with the fields of table columns by their headings.
constexpr const char* columnsKey = "tableColumns";

bool hasNumber(const Plongee& dive) {
    return dive.noPlongee > 0;
}

/// Whether all dives bring a number that no other has, in the file or the logbook.
bool areNumbersFree(const Carnet& carnet, const std::vector<Plongee>& dives) {
    std::unordered_set<qint32> known;
    for (const RecordPointer& record : carnet.records()) {
        known.insert(asDive(record).noPlongee);
    }
    return std::all_of(dives.begin(), dives.end(),
                       [&](const Plongee& dive) { return hasNumber(dive) && known.insert(dive.noPlongee).second; });
}

void numberOn(const Carnet& carnet, std::vector<Plongee>& dives) {
    qint32 number = carnet.nextDiveNumber();
    for (const RecordPointer& record : carnet.records()) {
        number = std::max(number, Carnet::numberAfter(asDive(record)));
    }
    for (Plongee& dive : dives) {
        dive.noPlongee = number;
        number = Carnet::numberAfter(dive);
    }
}

qint32 firstNumber(const List& list) {
    qint32 number = list.empty() ? 1 : asDive(list.front()).noPlongee;
    for (const RecordPointer& dive : list) {
        number = std::min(number, asDive(dive).noPlongee);
    }
    return std::max(number, 1);
}

/// All dives in the order of their starts, those without one last, numbered on from a number.
List byDate(List list, qint32 number) {
    std::vector<std::pair<qint64, RecordPointer>> dives;
    for (const RecordPointer& dive : list) {
        const QDateTime start = startOf(asDive(dive));
        dives.emplace_back(start.isValid() ? start.toMSecsSinceEpoch() : std::numeric_limits<qint64>::max(), dive);
    }
    std::stable_sort(dives.begin(), dives.end(),
                     [](const auto& one, const auto& other) { return one.first < other.first; });
    list.clear();
    for (auto& [start, dive] : dives) {
        if (asDive(dive).noPlongee != number) {
            Plongee renumbered = asDive(dive);
            renumbered.noPlongee = number;
            dive = std::make_shared<const Plongee>(std::move(renumbered));
        }
        number = Carnet::numberAfter(asDive(dive));
        list.push_back(std::move(dive));
    }
    return list;
}

void append(Carnet& carnet, std::vector<Plongee> dives, bool renumberByDate) {
    // Nothing of what the form shows may be stored into a dive that stands elsewhere afterwards.
    carnet.deselectAll();
    if (!renumberByDate) {
        carnet.appendDives(text("Carnet", "Undo import"), std::move(dives));
        return;
    }
    List list = carnet.records();
    for (Plongee& dive : dives) {
        list.push_back(std::make_shared<const Plongee>(std::move(dive)));
    }
    // The logbook goes on from its own first number.
    const qint32 number = firstNumber(carnet.records().empty() ? list : carnet.records());
    carnet.changeList(text("Carnet", "Undo import"), byDate(std::move(list), number));
}

FoundDives foundFrom(const List& records, std::size_t first) {
    FoundDives found;
    for (std::size_t row = first; row < records.size(); ++row) {
        FoundDive it;
        it.dive = asDive(records[row]);
        found.dives.push_back(std::move(it));
    }
    return found;
}

}  // namespace

Expected<Source> findDives(const Carnet& carnet, QByteArrayView bytes, const Progress& progress) {
    const Preferences& preferences = carnet.desktop().preferences;
    return readSource(bytes, progress, tableColumns(preferences), preferences.get(settings::usUnits))
        .map([&](Source&& source) {
            judge(carnet, source.found);
            return std::move(source);
        });
}

TableColumns tableColumns(const Preferences& preferences) {
    std::map<QString, QStringList> byTitle;
    for (const PlacedControl& placed : DiveControls::table().controls()) {
        const QString field = QString::fromStdString(placed.field);
        if (!placed.control.label.isEmpty() && csvItem(field)) {
            byTitle[text(placed.control.label)].append(field);
        }
    }
    TableColumns columns;
    for (const auto& [title, fields] : byTitle) {
        if (fields.size() == 1) {
            columns[title] = fields.front();
        }
    }
    const QVariantMap chosen = preferences.dictionary(QLatin1String(columnsKey));
    for (auto it = chosen.begin(); it != chosen.end(); ++it) {
        columns[it.key()] = it.value().toString();
    }
    return columns;
}

void rememberTableColumns(Preferences& preferences, const TableColumns& chosen) {
    QVariantMap known = preferences.dictionary(QLatin1String(columnsKey));
    for (const auto& [heading, field] : chosen) {
        known[heading] = field;
    }
    preferences.set(QLatin1String(columnsKey), known);
}

void judge(const Carnet& carnet, FoundDives& found) {
    doubt(found, carnet.desktop().clock.now());
    toLogbookUnits(carnet.desktop().preferences, found);
    markDuplicates(found, carnet.records());
}

QStringList lostItemLines(const FoundDives& found) {
    QStringList lines;
    for (const auto& [name, dives] : found.lostCounts()) {
        lines.append(textWith("Interchange", "Lost of dives", name, dives));
    }
    return lines + found.lostWithFile;
}

ImportResult takeDives(Carnet& carnet, FoundDives found, const TakeChoices& choices) {
    ImportResult result;
    result.damage = found.damage;
    std::vector<Plongee> dives;
    for (FoundDive& it : found.dives) {
        if (choices.skipDuplicates && it.duplicate) {
            ++result.skipped;
            continue;
        }
        if (choices.keepLostTexts) {
            keepLostTexts(it);
        }
        it.dive.profilArraysDefaultContent();
        result.count(it);
        dives.push_back(std::move(it.dive));
    }
    if (!areNumbersFree(carnet, dives)) {
        result.renumbered = !choices.renumberByDate && std::any_of(dives.begin(), dives.end(), hasNumber);
        numberOn(carnet, dives);
    }
    result.taken = static_cast<int>(dives.size());
    if (!dives.empty()) {
        append(carnet, std::move(dives), choices.renumberByDate);
    }
    carnet.updateUI();
    return result;
}

Expected<FoundDives> previewOwnImport(Carnet& carnet, const QString& file, ImportFormat format) {
    const List before = carnet.records();
    return importOf(format).read(carnet, file, {}).map([&](const ImportResult& result) {
        FoundDives found = foundFrom(carnet.records(), before.size());
        if (result.taken > 0) {
            carnet.undoStack().undo();
        }
        doubt(found, carnet.desktop().clock.now());
        markDuplicates(found, before);
        if (result.leftOut > 0) {
            found.lostWithFile.append(textWith("Interchange", "Left out", result.leftOut));
        }
        found.damage = result.damage;
        if (result.stoppedAt > 0) {
            found.lostWithFile.append(textWith("Carnet", "Import stopped", result.stoppedAt, result.why));
        }
        return found;
    });
}

Expected<ImportResult> runOwnImport(Carnet& carnet, const QString& file, ImportFormat format,
                                    const TakeChoices& choices) {
    const List before = carnet.records();
    auto result = importOf(format).read(carnet, file, {});
    const bool changes = choices.renumberByDate || (choices.skipDuplicates && result && result->twice > 0);
    if (!result || result->taken == 0 || !changes) {
        return result;
    }
    FoundDives found = foundFrom(carnet.records(), before.size());
    carnet.undoStack().undo();
    markDuplicates(found, before);
    const ImportResult taken = takeDives(carnet, std::move(found), choices);
    result->taken = taken.taken;
    result->skipped = taken.skipped;
    result->twice = taken.twice;
    result->renumbered = taken.renumbered;
    return result;
}

}  // namespace tavrel
