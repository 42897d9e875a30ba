#include "interchange/standardimport.h"

#include "base/safefile.h"
#include "desktop/clock.h"
#include "desktop/preferences.h"
#include "interchange/logbookunits.h"
#include "interchange/standard/csvtext.h"
#include "logbook/divecontrols.h"

#include <algorithm>

namespace tavrel {

namespace {

using List = RecordList;

/// The setting with the fields of table columns by their headings.
constexpr const char* columnsKey = "tableColumns";

/// Whether the numbers that the dives bring go on from those of the logbook.
bool numbersGoOn(const Carnet& carnet, const std::vector<Plongee>& dives) {
    qint32 last = carnet.records().empty() ? 0 : asDive(carnet.records().back()).noPlongee;
    for (const Plongee& dive : dives) {
        if (dive.noPlongee <= last) {
            return false;
        }
        last = dive.noPlongee;
    }
    return true;
}

void numberOn(const Carnet& carnet, std::vector<Plongee>& dives) {
    qint32 number = carnet.nextDiveNumber();
    for (Plongee& dive : dives) {
        dive.noPlongee = number;
        number = Carnet::numberAfter(dive);
    }
}

/// All dives in the order of their starts, those without one last, numbered on from the first number there is.
List byDate(List list) {
    const auto startsBefore = [](const RecordPointer& one, const RecordPointer& other) {
        const QDateTime start = startOf(asDive(one));
        const QDateTime otherStart = startOf(asDive(other));
        return start.isValid() && (!otherStart.isValid() || start < otherStart);
    };
    qint32 number = list.empty() ? 1 : asDive(list.front()).noPlongee;
    for (const RecordPointer& dive : list) {
        number = std::min(number, asDive(dive).noPlongee);
    }
    number = std::max(number, 1);
    std::stable_sort(list.begin(), list.end(), startsBefore);
    for (RecordPointer& dive : list) {
        if (asDive(dive).noPlongee != number) {
            Plongee renumbered = asDive(dive);
            renumbered.noPlongee = number;
            dive = std::make_shared<const Plongee>(std::move(renumbered));
        }
        number = Carnet::numberAfter(asDive(dive));
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
    carnet.changeList(text("Carnet", "Undo import"), byDate(std::move(list)));
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
    return readSource(bytes, progress, tableColumns(carnet.desktop().preferences)).map([&](Source&& source) {
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
    std::vector<Plongee> dives;
    FoundDives taken;
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
    if (!numbersGoOn(carnet, dives)) {
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
    return result;
}

}  // namespace tavrel
