#include "cli/render.h"

#include "base/safefile.h"
#include "base/texts.h"
#include "book/booktable.h"
#include "book/tablepages.h"
#include "dives/divespan.h"
#include "dives/statgraph.h"
#include "dives/statistics.h"
#include "dives/statisticsreport.h"
#include "logbook/diveprofile.h"

#include <algorithm>
#include <array>

namespace tavrel {

namespace {

PrintSettings portrait(PrintSettings settings) {
    settings.landscape = false;
    return settings;
}

Expected<Pages> tablePages(Session& session, const std::vector<int>&) {
    PrintSettings settings = session.book->description().print;
    settings.landscape = true;
    return pagesOf(BookTable(*session.book), usualPaper(settings), settings, session.book->displayName());
}

Expected<Pages> cardPages(Session& session, const std::vector<int>& rows) {
    return cardOf(session, rows).map([&](const StyledText& card) {
        const PrintSettings settings = portrait(session.book->description().print);
        return pagesOf(card, usualPaper(settings), settings, session.book->displayName());
    });
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
        const PrintSettings settings = portrait(carnet->description().print);
        return pagesOf(statisticsReport(statistics, carnet->displayName()), usualPaper(settings), settings,
                       carnet->displayName());
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
};

constexpr std::array all{
    Rendering{"table", tablePages},  Rendering{"card", cardPages},        Rendering{"profile", profilePages},
    Rendering{"graphs", graphPages}, Rendering{"stats", statisticsPages},
};

/// NAME.png, NAME-2.png …
QString nameOfPage(const QString& path, int page) {
    if (page == 0) {
        return path;
    }
    const auto ending = path.lastIndexOf(u'.');
    return QStringLiteral("%1-%2%3").arg(path.left(ending)).arg(page + 1).arg(path.mid(ending));
}

}  // namespace

Expected<StyledText> cardOf(Session& session, const std::vector<int>& rows) {
    const BookBase& book = *session.book;
    if (!book.description().card) {
        return failure(textWith("Cli", "No card", book.type()));
    }
    RecordList records;
    for (const int row : rows) {
        records.push_back(book.recordAt(row));
    }
    return book.description().card(rows.empty() ? book.records() : records, session.desktop.desktop(), book.file());
}

std::vector<std::string> renderings() {
    std::vector<std::string> names;
    for (const Rendering& each : all) {
        names.emplace_back(each.name);
    }
    return names;
}

Expected<Pages> pagesFor(Session& session, const std::string& what, const std::vector<int>& rows) {
    const auto found = std::find_if(all.begin(), all.end(), [&](const Rendering& each) { return each.name == what; });
    return found->pages(session, rows);
}

Expected<void> writePages(const QString& path, const Pages& pages) {
    const auto format = pictureFormatOf(path);
    if (*format == PictureFormat::pdf) {
        return writePicture(path, pages);
    }
    for (int page = 0; page < pages.count; ++page) {
        Pages single = pages;
        single.count = 1;
        single.paint = [&pages, page](QPainter& painter, int) { pages.paint(painter, page); };
        if (auto written = writePicture(nameOfPage(path, page), single); !written) {
            return written;
        }
    }
    return {};
}

}  // namespace tavrel
