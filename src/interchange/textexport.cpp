#include "base/numbers.h"
#include "dives/divewords.h"
#include "interchange/exportprogress.h"
#include "interchange/exports.h"
#include "interchange/macroman.h"
#include "interchange/standard/csvtext.h"

#include <array>
#include <span>

namespace tavrel {

namespace {

constexpr auto diveHeaders = [] {
    std::array<std::string_view, listColumns.size()> headings;
    for (std::size_t column = 0; column < headings.size(); ++column) {
        headings[column] = listColumns[column].heading;
    }
    return headings;
}();

constexpr std::array<std::string_view, 9> profileHeaders{"Dive #", "Point", "Depth", "ASC",  "SLOW",
                                                         "CEIL",   "SURF",  "GAS",   "PRESS"};

void appendJoined(std::string& out, std::span<const std::string_view> cells, std::string_view separator) {
    for (std::size_t cell = 0; cell < cells.size(); ++cell) {
        out += cell == 0 ? std::string_view() : separator;
        out += cells[cell];
    }
}

QByteArray bytesOf(const std::string& text) {
    return {text.data(), static_cast<qsizetype>(text.size())};
}

/// One line of the dive list. Remembers the first character that does not fit the character set.
class DiveLine {
public:
    DiveLine(std::string& out, const MacRoman& macRoman, std::string_view separator)
        : out_(out), macRoman_(macRoman), separator_(separator) {}

    void cell(const QString& text) {
        if (cells_++ > 0) {
            out_ += separator_;
        }
        if (const char32_t unfit = macRoman_.append(out_, text); unfit_ == 0) {
            unfit_ = unfit;
        }
    }
    void cell(qint32 number) { cell(QString::number(number)); }
    /// Codes count as unsigned: what lies outside the words, a negative code too, is an empty cell. What was not given
    /// is "N/A", in every language.
    void cell(qint32 code, std::span<const Title> words) {
        const auto index = static_cast<std::size_t>(static_cast<quint32>(code));
        if (index >= words.size()) {
            cell(QString());
        } else {
            cell(words[index].isEmpty() ? QStringLiteral("N/A") : text(words[index]));
        }
    }

    char32_t unfit() const { return unfit_; }

private:
    std::string& out_;
    const MacRoman& macRoman_;
    std::string_view separator_;
    int cells_ = 0;
    char32_t unfit_ = 0;
};

char32_t appendDive(std::string& out, const MacRoman& macRoman, std::string_view separator, const Plongee& dive) {
    DiveLine line(out, macRoman, separator);
    line.cell(dive.noPlongee);
    line.cell(dive.date.toDateTime().toString(QStringLiteral("dd/MM/yyyy")));
    line.cell(dive.lieu);
    line.cell(dive.site);
    line.cell(dive.pays);
    line.cell(dive.coeff);
    line.cell(dive.surface);
    line.cell(dive.heure.toDateTime().toString(QStringLiteral("HH:mm")));
    line.cell(shortestText(dive.profondeur));
    line.cell(dive.temps);
    line.cell(dive.pressionDepart);
    line.cell(dive.pressionFin);
    line.cell(dive.o2Mix);
    line.cell(dive.heMix);
    line.cell(dive.meteo, words::weather);
    line.cell(dive.courant, words::current);
    line.cell(dive.visibilite, words::visibility);
    line.cell(dive.tempEau);
    line.cell(dive.tempAir);
    line.cell(dive.partenaires);
    return line.unfit();
}

/// A line for each point of a dive's profile.
void appendProfile(std::string& out, const Plongee& dive, std::string_view separator) {
    // In the order of the cells: the surface flag comes before the ceiling flag, against the header.
    static constexpr std::array<Series ProfileSeries::*, 5> flagCells{
        &ProfileSeries::ASC_Flag, &ProfileSeries::SLOW_Flag, &ProfileSeries::SURF_Flag, &ProfileSeries::CEIL_Flag,
        &ProfileSeries::GAZ_Flag};
    const std::size_t points = dive.profilProfondeur.size();
    for (std::size_t point = 0; point < points; ++point) {
        appendInteger(out, dive.noPlongee);
        out += separator;
        appendInteger(out, static_cast<qint64>(point) + 1);
        out += separator;
        appendFixed(out, dive.profilProfondeur.real(point), 1);
        for (const auto flags : flagCells) {
            out += separator;
            if ((dive.*flags).size() == points) {
                appendInteger(out, (dive.*flags).integer(point));
            }
        }
        out += separator;
        if (dive.PRESS_Data.size() == points) {
            appendFixed(out, dive.PRESS_Data.real(point), 1);
        }
        out += '\n';
    }
}

Failure unfitCharacter(qint32 diveNumber, char32_t character) {
    const QString code = QStringLiteral("U+") + QString::number(character, 16).toUpper().rightJustified(4, u'0');
    return {textWith("Carnet", "Character not in Mac OS Roman", diveNumber, QString::fromUcs4(&character, 1), code),
            {}};
}

}  // namespace

Expected<QByteArray> exportTextCSVFormat(Carnet& carnet, std::string_view separator, std::string_view ends) {
    const auto macRoman = MacRoman::open();
    if (!macRoman) {
        return tl::unexpected(macRoman.error());
    }
    std::string out(ends);
    appendJoined(out, diveHeaders, separator);
    out += ends;
    out += '\r';
    const auto written = forEachDive(carnet, [&](const Plongee& dive) -> Expected<void> {
        out += ends;
        if (const char32_t unfit = appendDive(out, *macRoman, separator, dive)) {
            return tl::unexpected(unfitCharacter(dive.noPlongee, unfit));
        }
        out += ends;
        out += '\n';
        return {};
    });
    return written.map([&] { return bytesOf(out); });
}

Expected<QByteArray> exportProfileCSVFormat(Carnet& carnet, std::string_view separator) {
    std::string out;
    appendJoined(out, profileHeaders, separator);
    out += '\n';
    carnet.deselectAll();
    const auto written = forEachDive(carnet, [&](const Plongee& dive) -> Expected<void> {
        appendProfile(out, dive, separator);
        return {};
    });
    if (!written) {
        return tl::unexpected(written.error());
    }
    return bytesOf(out);
}

}  // namespace tavrel
