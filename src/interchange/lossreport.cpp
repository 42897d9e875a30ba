#include "interchange/lossreport.h"

#include "interchange/logbookunits.h"
#include "interchange/standard/csvtext.h"
#include "interchange/standard/divedifference.h"
#include "interchange/standard/sourcereading.h"
#include "logbook/divecontrols.h"
#include "profile/profileeditor.h"

#include <algorithm>
#include <map>
#include <set>

namespace tavrel {

namespace {

/// Counts by field, in archive order.
std::vector<FieldLoss> listed(const std::map<std::string_view, int>& counts) {
    std::vector<FieldLoss> losses;
    for (const auto& item : Plongee::layout().items) {
        if (const auto count = counts.find(item.key()); count != counts.end()) {
            losses.push_back({QString::fromLatin1(item.key()), count->second});
        }
    }
    return losses;
}

std::vector<FieldLoss> missingFields(const RecordList& dives, std::span<const std::string_view> held) {
    const std::set<std::string_view> kept(held.begin(), held.end());
    const Plongee unknown = unknownDive();
    std::map<std::string_view, int> counts;
    for (const RecordPointer& dive : dives) {
        for (const std::string_view key : differingFields(unknown, asDive(dive))) {
            counts[key] += kept.count(key) == 0 ? 1 : 0;
        }
    }
    std::erase_if(counts, [](const auto& entry) { return entry.second == 0; });
    return listed(counts);
}

}  // namespace

Expected<std::vector<FieldLoss>> lossesOf(const Carnet& carnet, const LogbookExport& format, const RecordList& dives,
                                          const QStringList& columns) {
    if (!columns.isEmpty()) {
        std::vector<std::string> chosen;
        std::transform(columns.begin(), columns.end(), std::back_inserter(chosen),
                       [](const QString& column) { return column.toStdString(); });
        return missingFields(dives, std::vector<std::string_view>(chosen.begin(), chosen.end()));
    }
    if (!format.heldFields.empty()) {
        return missingFields(dives, format.heldFields);
    }
    const auto bytes = format.produceFrom(carnet, dives);
    if (!bytes) {
        return tl::unexpected(bytes.error());
    }
    return readSource(*bytes, carnet.progress()).map([&](Source&& source) {
        toLogbookUnits(carnet.desktop().preferences, source.found);
        std::map<std::string_view, int> counts;
        const Plongee unknown = unknownDive();
        for (std::size_t index = 0; index < dives.size(); ++index) {
            const bool isThere = index < source.found.dives.size();
            for (const std::string_view key :
                 differingFields(asDive(dives[index]), isThere ? source.found.dives[index].dive : unknown)) {
                ++counts[key];
            }
        }
        return listed(counts);
    });
}

namespace {

/// The title of a series of the profile, which no control of the form holds; none for another field.
Title seriesTitle(const QString& field) {
    const Item* item = csvItem(field);
    const auto kind = std::find_if(profileSeriesKinds.begin(), profileSeriesKinds.end(),
                                   [&](const ProfileSeriesKind& each) { return item && each.field == item->field(); });
    const auto edited = std::find_if(editedSeries.begin(), editedSeries.end(), [&](const EditedSeries& each) {
        return kind != profileSeriesKinds.end() && each.series == kind->series;
    });
    return edited == editedSeries.end() ? Title() : edited->title;
}

QString titled(const Title& title, const QString& field) {
    return title.isEmpty() ? field : text(title) + QStringLiteral(" [") + field + u']';
}

}  // namespace

QString fieldTitle(const QString& field) {
    const auto& table = DiveControls::table();
    const int index = table.find(field.toStdString());
    if (index < 0) {
        return titled(seriesTitle(field), field);
    }
    const PlacedControl& placed = table.controls()[static_cast<std::size_t>(index)];
    const Title& label = placed.control.label;
    // A control without a label of its own stands under its group's.
    return titled(label.isEmpty() ? table.groups()[static_cast<std::size_t>(placed.group)].title : label, field);
}

QString lossText(const FieldLoss& loss) {
    const QString field = fieldTitle(loss.field);
    return loss.dives == 1 ? textWith("Interchange", "Loss of one dive", field)
                           : textWith("Interchange", "Loss of dives", field, loss.dives);
}

QStringList lossLines(const std::vector<FieldLoss>& losses) {
    QStringList lines;
    std::transform(losses.begin(), losses.end(), std::back_inserter(lines), lossText);
    return lines.isEmpty() ? QStringList(text("Interchange", "Nothing lost")) : lines;
}

}  // namespace tavrel
