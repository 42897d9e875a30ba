#include "interchange/lossreport.h"

#include "interchange/standard/divedifference.h"
#include "interchange/standardimport.h"
#include "support/testdesktop.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>

namespace tavrel {

namespace {

const LogbookExport& formatNamed(std::string_view name) {
    const auto& all = logbookExports();
    return *std::find_if(all.begin(), all.end(), [&](const LogbookExport& each) { return each.name == name; });
}

class LossReport : public testing::Test {
protected:
    std::map<QString, int> losses(const char* format, const QStringList& columns = {}) {
        const auto found = lossesOf(carnet, formatNamed(format), carnet.records(), columns);
        EXPECT_TRUE(found);
        std::map<QString, int> counts;
        for (const FieldLoss& loss : *found) {
            counts[loss.field] = loss.dives;
        }
        return counts;
    }

    /// What differs when the dives were exported and another logbook took them in.
    std::map<QString, int> thereAndBack(const char* format) {
        const auto bytes = formatNamed(format).produceFrom(carnet, carnet.records());
        EXPECT_TRUE(bytes);
        Carnet other(desktop.desktop());
        auto source = findDives(other, *bytes);
        EXPECT_TRUE(source) << (source ? "" : source.error().message().toStdString());
        takeDives(other, std::move(source->found), {});
        EXPECT_EQ(other.count(), carnet.count());
        std::map<QString, int> counts;
        for (int row = 0; row < std::min(carnet.count(), other.count()); ++row) {
            for (const std::string_view key : differingFields(carnet.record(row), other.record(row))) {
                ++counts[QString::fromLatin1(key.data(), static_cast<qsizetype>(key.size()))];
            }
        }
        return counts;
    }

    TestDesktop desktop;
    Carnet carnet{desktop.desktop()};
};

TEST_F(LossReport, saysOfTheSampleLogbookWhatComesBackDifferently) {
    ASSERT_TRUE(carnet.open(QStringLiteral(TAVREL_SAMPLE_FOLDER "/sample.carnet")));
    ASSERT_GT(carnet.count(), 10);
    EXPECT_EQ(thereAndBack("uddf-3.2"), losses("uddf-3.2"));
    EXPECT_EQ(thereAndBack("csv"), losses("csv"));
    const auto lost = losses("uddf-3.2");
    for (const char* kept : {"noPlongee", "date", "heure", "lieu", "site", "profondeur", "temps", "profilProfondeur",
                             "gaz", "o2Mix", "pressionDepart", "notes", "partenaires"}) {
        EXPECT_EQ(lost.count(QLatin1String(kept)), 0U) << kept;
    }
    EXPECT_GT(lost.count(QStringLiteral("coeff")), 0U);
}

TEST_F(LossReport, saysOfRandomDivesWhatComesBackDifferently) {
    std::mt19937 random(20240616);
    const auto below = [&](int bound) { return static_cast<int>(random() % static_cast<unsigned>(bound)); };
    std::vector<Plongee> dives;
    for (int number = 1; number <= 60; ++number) {
        Plongee dive = unknownDive();
        setStart(dive, QDate(1960, 1, 1).addDays(number * 300 + below(300)), QTime(below(24), below(60), below(60)));
        dive.noPlongee = number;
        dive.lieu = below(3) ? QStringLiteral("Agay - %1").arg(below(9)) : QString();
        dive.partenaires = below(2) ? QStringLiteral("Ann,  Bo , ") : QStringLiteral("Ann, Bo");
        dive.surface = below(2) ? QStringLiteral("12:3%1").arg(below(10)) : QStringLiteral("long");
        dive.notes = below(2) ? QStringLiteral(" x\n\n\ty ") : QString();
        dive.coeff = below(2) * (20 + below(100));
        dive.profondeur = static_cast<float>(below(900)) / 7;
        dive.temps = below(300);
        dive.altitude = below(6000) - 500;
        dive.rebreather = below(5);
        dive.ppO2 = below(12);
        dive.lowSetpoint = below(12);
        for (qint32* tank : {&dive.volumeBloc, &dive.pressionDepart, &dive.pressionFin, &dive.volumeBloc_2,
                             &dive.volPony2, &dive.pressDepartPony2, &dive.volBailout1, &dive.pressFinBailout2}) {
            *tank = below(3) ? 0 : below(300);
        }
        dive.o2Mix = 1 + below(99);
        dive.heMix = below(101 - dive.o2Mix);
        dive.gaz = below(6);
        dive.o2Mix_2 = 1 + below(99);
        dive.gaz_2 = below(6);
        dive.decoO2_Level_2 = below(2) * (22 + below(78));
        dive.decoTime_Level_2 = below(20);
        dive.meteo = below(8);
        dive.courant = below(7);
        dive.visibilite = below(9);
        dive.typePlongee = below(15);
        dive.combinaison = below(8);
        dive.inoubliable = below(5);
        dive.difficulte = below(6);
        dive.samplingRate = below(8);
        std::vector<double> depths;
        std::vector<qint32> switches, alarms;
        for (int rest = below(80); rest > 0; --rest) {
            depths.push_back(below(700) / 10.0);
            switches.push_back(below(8) ? 0 : below(9));
            alarms.push_back(below(4) == 0);
        }
        if (depths.size() > 1) {
            dive.profilProfondeur = Series::ofReals(depths);
            dive.GAZ_Flag = Series::ofIntegers(switches);
            dive.SLOW_Flag = Series::ofIntegers(alarms);
        }
        dive.profilArraysDefaultContent();
        dives.push_back(dive);
    }
    carnet.appendDives(QStringLiteral("add"), std::move(dives));
    EXPECT_EQ(thereAndBack("csv"), (std::map<QString, int>{}));
    EXPECT_EQ(thereAndBack("uddf-3.2"), losses("uddf-3.2"));
    const auto lost = losses("uddf-3.2");
    for (const char* kept : {"noPlongee", "date", "heure", "profondeur", "temps", "volumeBloc", "notes"}) {
        EXPECT_EQ(lost.count(QLatin1String(kept)), 0U) << kept;
    }
}

TEST_F(LossReport, countsTheDivesThatSaySomethingForWhichThereIsNoPlace) {
    Plongee dive = unknownDive();
    setStart(dive, QDate(2020, 1, 1), QTime(10, 0));
    dive.coeff = 95;
    carnet.appendDives(QStringLiteral("add"), {dive, dive});
    dive.coeff = 0;
    dive.notes = QStringLiteral("only this one");
    carnet.appendDives(QStringLiteral("add"), {dive});
    EXPECT_EQ(losses("uddf-3.2"), (std::map<QString, int>{{QStringLiteral("coeff"), 2}}));
    EXPECT_EQ(losses("csv-comma"), (std::map<QString, int>{{QStringLiteral("notes"), 1}}));
    const QStringList columns{QStringLiteral("date"), QStringLiteral("heure"), QStringLiteral("notes")};
    EXPECT_EQ(losses("csv", columns), (std::map<QString, int>{{QStringLiteral("coeff"), 2}}));
    EXPECT_EQ(lossText({QStringLiteral("coeff"), 12}), u"Tide coefficient [coeff] of 12 dives");
    EXPECT_EQ(lossText({QStringLiteral("notes"), 1}), u"Notes [notes] of one dive");
}

}  // namespace

}  // namespace tavrel
