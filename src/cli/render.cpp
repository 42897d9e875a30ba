#include "cli/render.h"

#include "base/texts.h"
#include "book/tablepages.h"
#include "desktop/clock.h"
#include "dives/divespan.h"
#include "dives/statgraph.h"
#include "dives/statistics.h"
#include "dives/statisticsreport.h"
#include "logbook/diveprofile.h"

#include <algorithm>
#include <array>
#include <limits>

namespace tavrel {

namespace {

/// The paper that the windows print the session's document on at first.
Paper paperFor(Session& session, bool landscape) {
    PrintSettings settings = session.book->description().print;
    settings.landscape = landscape;
    return usualPaper(settings, session.book->displayName(), session.desktop.desktop().clock.now().date());
}

Expected<Pages> tablePages(Session& session, const std::vector<int>&) {
    return pagesOf(*session.book, wholeTable(*session.book), paperFor(session, true));
}

Expected<Pages> cardPages(Session& session, const std::vector<int>& rows) {
    return cardOf(session, rows).map([&](const StyledText& card) { return pagesOf(card, paperFor(session, false)); });
}

/// The dive at the first of the rows, or the last one.
Expected<DivePointer> diveOf(Session& session, const std::vector<int>& rows) {
    return session.logbook().and_then([&](Carnet* carnet) -> Expected<DivePointer> {
        const auto dive = carnet->recordAt(rows.empty() ? carnet->count() - 1 : rows.front());
        return dive ? Expected<DivePointer>(dive) : failure(textWith("Cli", "No such row", 0, 0));
    });
}

Expected<Pages> profilePages(Session& session, const std::vector<int>& rows) {
    return diveOf(session, rows).map([&](const DivePointer& dive) {
        return pagesOf(profileDrawing(*dive, session.desktop.desktop().preferences));
    });
}

/// Statistics as their window shows them at first: with the totals of the dives before the logbook.
Expected<Pages> statisticsPages(Session& session, const std::vector<int>&) {
    return session.logbook().map([&](Carnet* carnet) {
        const PreviousTotals previous = PreviousTotals::read(session.desktop.desktop().preferences);
        const Statistics statistics(divesIn(carnet->records()), &previous);
        return pagesOf(statisticsReport(statistics, carnet->displayName()), paperFor(session, false));
    });
}

Expected<Pages> graphPages(Session& session, const std::vector<int>&) {
    return session.logbook().map([&](Carnet* carnet) {
        const Preferences& preferences = session.desktop.desktop().preferences;
        const PreviousTotals previous = PreviousTotals::read(preferences);
        const Statistics statistics(divesIn(carnet->records()), &previous);
        return pagesOf(statGraphDrawing(setDataForStatGraphes(statistics), preferences));
    });
}

struct Rendering {
    const char* name;
    Expected<Pages> (*pages)(Session& session, const std::vector<int>& rows);
    std::size_t mostRows = 0;
};

constexpr std::array all{
    Rendering{"table", tablePages},        Rendering{"card", cardPages, std::numeric_limits<std::size_t>::max()},
    Rendering{"profile", profilePages, 1}, Rendering{"graphs", graphPages},
    Rendering{"stats", statisticsPages},
};

const Rendering& rendering(const std::string& what) {
    return *std::find_if(all.begin(), all.end(), [&](const Rendering& each) { return each.name == what; });
}

}  // namespace

Expected<StyledText> cardOf(Session& session, const std::vector<int>& rows) {
    const BookBase& book = *session.book;
    if (!book.description().card) {
        return failure(textWith("Cli", "No card", book.type()));
    }
    const CardRecords records = rows.empty() ? CardRecords(book.records()) : CardRecords(book.records(), rows);
    return book.description().card(records, session.desktop.desktop(), book.file());
}

std::vector<std::string> renderings() {
    std::vector<std::string> names;
    names.reserve(std::size(all));
    for (const Rendering& each : all) {
        names.emplace_back(each.name);
    }
    return names;
}

std::size_t mostRows(const std::string& what) {
    return rendering(what).mostRows;
}

Expected<Pages> renderedPages(Session& session, const std::string& what, const std::vector<int>& rows) {
    return rendering(what).pages(session, rows);
}

}  // namespace tavrel
