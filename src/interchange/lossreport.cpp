#include "interchange/lossreport.h"

#include "interchange/standard/divedifference.h"
#include "interchange/standard/sourcereading.h"
#include "logbook/divecontrols.h"

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
            losses.push_back(
                {QString::fromLatin1(item.key().data(), static_cast<qsizetype>(item.key().size())), count->second});
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

Expected<std::vector<FieldLoss>> lossesOf(Carnet& carnet, const LogbookExport& format, const RecordList& dives) {
    if (!format.heldFields.empty()) {
        return missingFields(dives, format.heldFields);
    }
    const auto bytes = format.produceFrom(carnet, dives);
    if (!bytes) {
        return tl::unexpected(bytes.error());
    }
    return readSource(*bytes).map([&](const Source& source) {
        std::map<std::string_view, int> counts;
        for (std::size_t index = 0; index < dives.size(); ++index) {
            const bool isThere = index < source.found.dives.size();
            for (const std::string_view key :
                 differingFields(asDive(dives[index]), isThere ? source.found.dives[index].dive : unknownDive())) {
                ++counts[key];
            }
        }
        return listed(counts);
    });
}

QString lossText(const FieldLoss& loss) {
    const auto& table = DiveControls::table();
    const int index = table.find(loss.field.toStdString());
    QString name = loss.field;
    if (index >= 0) {
        const PlacedControl& control = table.controls()[static_cast<std::size_t>(index)];
        if (!control.control.label.isEmpty()) {
            name = control.control.label.text();
        }
    }
    if (name != loss.field) {
        name += QStringLiteral(" [") + loss.field + QStringLiteral("]");
    }
    return textWith("Interchange", "Lost of dives", name, loss.dives);
}

QStringList lossLines(const std::vector<FieldLoss>& losses) {
    QStringList lines;
    std::transform(losses.begin(), losses.end(), std::back_inserter(lines), lossText);
    return lines.isEmpty() ? QStringList(text("Interchange", "Nothing lost")) : lines;
}

}  // namespace tavrel
