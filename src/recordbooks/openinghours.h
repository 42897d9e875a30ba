#pragma once

#include "book/card.h"
#include "forms/controltable.h"
#include "records/recordlayout.h"

#include <QString>

#include <array>
#include <cstddef>
#include <span>
#include <utility>

namespace tavrel {

/// The opening hours of a week as they were typed, four texts a day: morning opening and closing, afternoon opening and
/// closing. What two of the address books hold.
struct OpeningHours : Record {
    QString horaireLundi_1, horaireLundi_2, horaireLundi_3, horaireLundi_4;
    QString horaireMardi_1, horaireMardi_2, horaireMardi_3, horaireMardi_4;
    QString horaireMercredi_1, horaireMercredi_2, horaireMercredi_3, horaireMercredi_4;
    QString horaireJeudi_1, horaireJeudi_2, horaireJeudi_3, horaireJeudi_4;
    QString horaireVendredi_1, horaireVendredi_2, horaireVendredi_3, horaireVendredi_4;
    QString horaireSamedi_1, horaireSamedi_2, horaireSamedi_3, horaireSamedi_4;
    QString horaireDimanche_1, horaireDimanche_2, horaireDimanche_3, horaireDimanche_4;
};

inline constexpr std::size_t daysInWeek = 7;
inline constexpr std::size_t hoursInDay = 4;

/// The hours of a week in archive order, Monday first.
inline constexpr std::array<Item, daysInWeek * hoursInDay> openingHourItems{{
    {"horaireLundi_1", member<&OpeningHours::horaireLundi_1>},
    {"horaireLundi_2", member<&OpeningHours::horaireLundi_2>},
    {"horaireLundi_3", member<&OpeningHours::horaireLundi_3>},
    {"horaireLundi_4", member<&OpeningHours::horaireLundi_4>},
    {"horaireMardi_1", member<&OpeningHours::horaireMardi_1>},
    {"horaireMardi_2", member<&OpeningHours::horaireMardi_2>},
    {"horaireMardi_3", member<&OpeningHours::horaireMardi_3>},
    {"horaireMardi_4", member<&OpeningHours::horaireMardi_4>},
    {"horaireMercredi_1", member<&OpeningHours::horaireMercredi_1>},
    {"horaireMercredi_2", member<&OpeningHours::horaireMercredi_2>},
    {"horaireMercredi_3", member<&OpeningHours::horaireMercredi_3>},
    {"horaireMercredi_4", member<&OpeningHours::horaireMercredi_4>},
    {"horaireJeudi_1", member<&OpeningHours::horaireJeudi_1>},
    {"horaireJeudi_2", member<&OpeningHours::horaireJeudi_2>},
    {"horaireJeudi_3", member<&OpeningHours::horaireJeudi_3>},
    {"horaireJeudi_4", member<&OpeningHours::horaireJeudi_4>},
    {"horaireVendredi_1", member<&OpeningHours::horaireVendredi_1>},
    {"horaireVendredi_2", member<&OpeningHours::horaireVendredi_2>},
    {"horaireVendredi_3", member<&OpeningHours::horaireVendredi_3>},
    {"horaireVendredi_4", member<&OpeningHours::horaireVendredi_4>},
    {"horaireSamedi_1", member<&OpeningHours::horaireSamedi_1>},
    {"horaireSamedi_2", member<&OpeningHours::horaireSamedi_2>},
    {"horaireSamedi_3", member<&OpeningHours::horaireSamedi_3>},
    {"horaireSamedi_4", member<&OpeningHours::horaireSamedi_4>},
    {"horaireDimanche_1", member<&OpeningHours::horaireDimanche_1>},
    {"horaireDimanche_2", member<&OpeningHours::horaireDimanche_2>},
    {"horaireDimanche_3", member<&OpeningHours::horaireDimanche_3>},
    {"horaireDimanche_4", member<&OpeningHours::horaireDimanche_4>},
}};

namespace openinghours {

template <std::size_t N, std::size_t M, std::size_t... I, std::size_t... J>
constexpr std::array<Item, N + M> joined(const std::array<Item, N>& first, const std::array<Item, M>& second,
                                         std::index_sequence<I...>, std::index_sequence<J...>) {
    return {first[I]..., second[J]...};
}

}  // namespace openinghours

/// The items of a record that holds a week's hours, from those before them and those behind.
template <std::size_t N, std::size_t M>
constexpr auto itemsAroundHours(const std::array<Item, N>& before, const std::array<Item, M>& behind) {
    constexpr std::size_t hours = openingHourItems.size();
    using openinghours::joined;
    return joined(joined(before, openingHourItems, std::make_index_sequence<N>(), std::make_index_sequence<hours>()),
                  behind, std::make_index_sequence<N + hours>(), std::make_index_sequence<M>());
}

/// A table of controls with those of a week: "horaireLundi_1Field" to "horaireDimanche_4Field".
template <class Self>
struct OpeningHoursControls : ControlTable<Self> {
    using Day = std::array<ControlId<Self>, hoursInDay>;
    using Week = std::array<Day, daysInWeek>;

protected:
    /// Each day a row of controls, "-" in a cleared form.
    Week addWeek() {
        const auto day = [this](const char* name, const char* field, Title label) {
            return this->template addEach<hoursInDay>(
                {"1", "2", "3", "4"}, {.name = name, .field = field, .label = label, .clearedText = "-", .width = 8});
        };
        return {day("horaireLundi_%Field", "horaireLundi_%", {"Entreprises", "Label monday"}),
                day("horaireMardi_%Field", "horaireMardi_%", {"Entreprises", "Label tuesday"}),
                day("horaireMercredi_%Field", "horaireMercredi_%", {"Entreprises", "Label wednesday"}),
                day("horaireJeudi_%Field", "horaireJeudi_%", {"Entreprises", "Label thursday"}),
                day("horaireVendredi_%Field", "horaireVendredi_%", {"Entreprises", "Label friday"}),
                day("horaireSamedi_%Field", "horaireSamedi_%", {"Entreprises", "Label saturday"}),
                day("horaireDimanche_%Field", "horaireDimanche_%", {"Entreprises", "Label sunday"})};
    }
};

/// The days of a week on a card, each under its label: "9:00 - 12:00 / 14:00 - 19:00".
void addWeek(CardBuilder& card, const OpeningHours& record, std::span<const Title, daysInWeek> labels);

/// Between the records of an address book's card.
inline constexpr const char* addressSeparator = "\r------------------------------\r";

/// What the card of an address book calls its file: the folder that it lies in; nothing while it has no file.
QString folderOf(const QString& file);

}  // namespace tavrel
