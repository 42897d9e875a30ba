#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

#include <array>

namespace tavrel {

class Preferences;

/// The sixteen shared lists.
enum class PickList {
    tableauDesLieux,
    tableauDesSites,
    tableauDesPays,
    countryCodeArray,
    tableauDesPalanquees,
    tableauDesEpaves,
    tableauDesStructures,
    tableauDesOrdis,
    sacDePlongee,
    tableauDesTypesEpaves,
    tableauDesCausesNaufrages,
    tableauDesTypesMatos,
    tableauDesMarques,
    tableauDesMagasins,
    tableauDesPrestations,
    tableauDesActivites,
};
inline constexpr int pickListCount = 16;

/// The one holder of the shared lists: filled from the preferences once, before anything reads them, and seen by every
/// open document and editor. changed() follows every change of a list.
class PickLists : public QObject {
    Q_OBJECT

public:
    explicit PickLists(Preferences& preferences);

    /// Takes every list from its key, but the activities, which are taken when their editor opens.
    void fill();
    /// Takes one list from its own key again.
    void reload(PickList list);

    const QStringList& operator[](PickList list) const;
    /// The preferences key of the list ("lieux").
    static QString key(PickList list);

    /// Appends as it is given: no trimming, empty and duplicate entries allowed. Nothing is sorted or stored.
    void append(PickList list, const QString& entry);
    /// Removes the entries at the rows; rows outside the list count for nothing.
    void remove(PickList list, const QList<int>& rows);
    /// Sorts by the plain comparison of strings, character code by character code ("Zoo" before "abc").
    void sort(PickList list);
    /// Stores the list under its own key, or under the key given.
    void store(PickList list, const QString& key = {});

Q_SIGNALS:
    void changed(tavrel::PickList list);

private:
    Preferences& preferences_;
    std::array<QStringList, pickListCount> lists_;
};

}  // namespace tavrel
