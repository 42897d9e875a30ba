#include "desktop/picklists.h"

#include "desktop/preferences.h"

#include <algorithm>
#include <functional>

namespace tavrel {

namespace {

std::size_t position(PickList list) {
    return static_cast<std::size_t>(list);
}

}  // namespace

PickLists::PickLists(Preferences& preferences) : preferences_(preferences) {}

QString PickLists::key(PickList list) {
    switch (list) {
        case PickList::tableauDesLieux:
            return QStringLiteral("lieux");
        case PickList::tableauDesSites:
            return QStringLiteral("sites");
        case PickList::tableauDesPays:
            return QStringLiteral("pays");
        case PickList::countryCodeArray:
            return QStringLiteral("countryCode");
        case PickList::tableauDesPalanquees:
            return QStringLiteral("partenaires");
        case PickList::tableauDesEpaves:
            return QStringLiteral("epaves");
        case PickList::tableauDesStructures:
            return QStringLiteral("structures");
        case PickList::tableauDesOrdis:
            return QStringLiteral("ordinateurs");
        case PickList::sacDePlongee:
            return QStringLiteral("sac de plongee");
        case PickList::tableauDesTypesEpaves:
            return QStringLiteral("type epave");
        case PickList::tableauDesCausesNaufrages:
            return QStringLiteral("cause naufrage");
        case PickList::tableauDesTypesMatos:
            return QStringLiteral("type materiel");
        case PickList::tableauDesMarques:
            return QStringLiteral("fabricants");
        case PickList::tableauDesMagasins:
            return QStringLiteral("magasins");
        case PickList::tableauDesPrestations:
            return QStringLiteral("prestations");
        case PickList::tableauDesActivites:
            return QStringLiteral("activite");
    }
    Q_UNREACHABLE();
    return {};
}

void PickLists::fill() {
    for (int index = 0; index < pickListCount; ++index) {
        const auto list = static_cast<PickList>(index);
        if (list != PickList::tableauDesActivites) {
            reload(list);
        }
    }
}

void PickLists::reload(PickList list) {
    lists_[position(list)] = preferences_.strings(key(list));
    Q_EMIT changed(list);
}

const QStringList& PickLists::operator[](PickList list) const {
    return lists_[position(list)];
}

void PickLists::append(PickList list, const QString& entry) {
    lists_[position(list)].append(entry);
    Q_EMIT changed(list);
}

void PickLists::remove(PickList list, const QList<int>& rows) {
    QList<int> descending = rows;
    std::sort(descending.begin(), descending.end(), std::greater<>());
    descending.erase(std::unique(descending.begin(), descending.end()), descending.end());
    QStringList& entries = lists_[position(list)];
    for (const int row : descending) {
        if (row >= 0 && row < entries.size()) {
            entries.removeAt(row);
        }
    }
    Q_EMIT changed(list);
}

void PickLists::sort(PickList list) {
    QStringList& entries = lists_[position(list)];
    std::stable_sort(entries.begin(), entries.end());
    Q_EMIT changed(list);
}

void PickLists::store(PickList list, const QString& storedUnder) {
    preferences_.set(storedUnder.isEmpty() ? key(list) : storedUnder, lists_[position(list)]);
}

}  // namespace tavrel
