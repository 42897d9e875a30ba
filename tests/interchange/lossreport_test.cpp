#include "interchange/lossreport.h"

#include "desktop/commonsettings.h"
#include "interchange/standard/divedifference.h"
#include "interchange/standardimport.h"
#include "support/records.h"
#include "support/testdesktop.h"

#include <algorithm>
#include <map>

namespace tavrel {

namespace {

const LogbookExport& formatNamed(std::string_view name) {
    const auto all = logbookExports();
    return *std::find_if(all.begin(), all.end(), [&](const LogbookExport& each) { return each.name == name; });
}

struct LossReport : testing::Test {
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
    EXPECT_EQ(losses("csv", {QStringLiteral("date"), QStringLiteral("heure"), QStringLiteral("notes")}),
              (std::map<QString, int>{{QStringLiteral("coeff"), 2}}));
    EXPECT_EQ(lossText({QStringLiteral("coeff"), 12}), u"Tide coefficient [coeff] of 12 dives");
    EXPECT_EQ(lossText({QStringLiteral("notes"), 1}), u"Notes [notes] of one dive");
    EXPECT_EQ(lossText({QStringLiteral("GAZ_Flag"), 1}), u"Gas switch [GAZ_Flag] of one dive");
}

TEST_F(LossReport, keepsALogbookInFeetInFeet) {
    desktop.preferences.set(settings::usUnits, true);
    Plongee dive = unknownDive();
    setStart(dive, QDate(2020, 1, 1), QTime(10, 0));
    fill(dive, "noPlongee=1|profondeur=33|tempEau=68|profilProfondeur=0,33.25,1.5");
    dive.profilArraysDefaultContent();
    carnet.appendDives(QStringLiteral("add"), {dive});
    ++dive.noPlongee;
    setStart(dive, QDate(2020, 1, 2), QTime(10, 0));
    dive.tempEau = 70;  // 21.1 °C, which is 21 and 69.8 °F again
    carnet.appendDives(QStringLiteral("add"), {dive});
    const auto bytes = formatNamed("uddf-3.2").produceFrom(carnet, carnet.records());
    EXPECT_TRUE(bytes && bytes->contains("<greatestdepth>10.0584</greatestdepth>")) << bytes->toStdString();
    EXPECT_EQ(thereAndBack("uddf-3.2"), losses("uddf-3.2"));
    for (const char* format : {"uddf-3.2", "csv", "udcf"}) {
        EXPECT_EQ(losses(format).count(QStringLiteral("profondeur")), 0U) << format;
    }
}

}  // namespace

}  // namespace tavrel
