#include "dives/divecard.h"

#include "base/texts.h"
#include "desktop/commonsettings.h"
#include "support/printing.h"
#include "support/testdesktop.h"

#include <gtest/gtest.h>

namespace tavrel {
namespace {

class DiveCardTest : public testing::Test {
protected:
    QString cardOf(const Plongee& dive) {
        const std::vector<DivePointer> dives{std::make_shared<const Plongee>(dive)};
        return diveCard(divesIn(dives), desktop_.desktop().preferences).text();
    }
    static Plongee plainDive() {
        Plongee dive;
        dive.noPlongee = 12;
        dive.tempEau = dive.tempAir = -50;
        return dive;
    }

    TestDesktop desktop_;
};

TEST_F(DiveCardTest, TellsADiveFieldByField) {
    Plongee dive = plainDive();
    dive.date = Date::fromDateTime(QDateTime(QDate(2024, 5, 3), QTime(0, 0)));
    dive.heure = Date::fromDateTime(QDateTime(QDate(2024, 5, 3), QTime(23, 40)));
    dive.lieu = QStringLiteral("Marseille");
    dive.gpsSystem = 1;
    dive.gps = QStringLiteral("N 43°");
    dive.coeff = 95;
    dive.pmBm = 2;
    dive.meteo = 4;
    dive.ventSecteur = 8;
    dive.courant = 5;
    dive.visibilite = 8;
    dive.tempEau = 14;
    dive.nocturne = 1;
    dive.difficulte = 2;
    dive.profondeur = 32.5F;
    dive.temps = 41;
    dive.deco_TTS = 7;
    dive.rebreather = 1;
    dive.alliageBloc = 2;
    dive.volumeBloc = 12;
    dive.pressionBloc = 232;
    dive.pressionDepart = 200;
    dive.pressionFin = 50;
    dive.gaz = 2;
    dive.o2Mix = 18;
    dive.heMix = 45;
    dive.combinaison = 1;
    dive.equip_12 = QStringLiteral("Lamp");
    dive.lestage = 4.5F;
    dive.notes = QStringLiteral("Calm.");
    const QString card = cardOf(dive);
    EXPECT_EQ(card,
              QString::fromUtf8(
                  "Dive number 12"
                  "\r\rGeneral\rDate: 03/05/2024\rPlace: Marseille\rSite: \rCountry: \rG.P.S. (WGS84) : N 43°"
                  "\rTide coefficient: 95 (Basse mer)\rWrecks: \rBuddies: \rClub or dive centre: \rBoat: "
                  "\r\rConditions\rWeather: Hail\rWind: \rWind sector: N-W\rWind force: no wind"
                  "\rCurrent: Violent\rVisibility: Exceptional\rWater temperature: 14 °C\rAir temperature: -"
                  "\rDive type: Wreck\rNight dive\rDifficulty: ★★★"
                  "\r\rParameters\rDepth: 32.5 m\rDive time: 41 min.\rSurface interval: \rStart: 23:40\rEnd: 00:21"
                  "\rAltitude: 0 m"
                  "\r\rDecompression\rDive computer: \rPlanning software: \rAlgorithm: \rConservatism: "
                  "\rRun-time table: \r\r\rTime to surface: 7 min."
                  "\r\rGas\rSCR rebreather\rMain tank: Steel 12 L at 232 bar\rStart pressure: 200 bar."
                  "\rEnd pressure: 50 bar.\rPressure used: 150 bar.\rGas available: 2400 litres"
                  "\rGas breathed: 1800 litres\rGas: Trimix 18/45\rFlow: 0 L/min."
                  "\r\rEquipment\rConfiguration: Recreational\r   - Drysuit\r   - Lamp\rWeight: 4.5 kg"
                  "\r\rNotes\rCalm."));
}

TEST_F(DiveCardTest, WritesWindSectorsAsTheyStandInEveryLanguage) {
    Plongee dive = plainDive();
    dive.ventSecteur = 6;
    setTextLanguage(QStringLiteral("fr"));
    const QString card = cardOf(dive);
    setTextLanguage(QStringLiteral("en"));
    EXPECT_TRUE(card.contains(u"S-W\r")) << card;
}

TEST_F(DiveCardTest, NamesGasesAndStops) {
    Plongee dive = plainDive();
    dive.decoTime_Level_1 = 3;
    dive.decoDepth_Level_1 = 21;
    dive.decoO2_Level_1 = 21;
    dive.decoTime_Level_2 = 5;
    dive.decoDepth_Level_2 = 9.04F;
    dive.decoO2_Level_2 = 22;
    dive.decoTime_Level_4 = 1;
    dive.decoO2_Level_4 = 21;
    dive.decoHe_Level_4 = 35;
    dive.decoTime_Level_6 = 1;
    dive.decoO2_Level_6 = 22;
    dive.decoHe_Level_6 = 20;
    EXPECT_TRUE(
        cardOf(dive).contains(u"\n   - 21.0 m : 3 min. - (Air)\n   - 9.0 m : 5 min. - (Nitrox 22)"
                              "\n   - 0.0 m : 1 min. - (Trimix 21/35)\n   - 0.0 m : 1 min. - (Triox 22/20)\r"));
    dive.o2Mix = 30;
    dive.heMix = 10;
    for (const auto& [gas, name] : {std::pair(0, "Air"), std::pair(1, "Nitrox 30"), std::pair(3, "Heliox 30"),
                                    std::pair(4, "Triox 30/10"), std::pair(5, "Heliair 30/10")}) {
        dive.gaz = gas;
        EXPECT_TRUE(cardOf(dive).contains(QStringLiteral("\rGas: %1\r").arg(QLatin1StringView(name)))) << name;
    }
    desktop_.desktop().preferences.set(settings::usUnits, true);
    dive.tempAir = 70;
    EXPECT_TRUE(cardOf(dive).contains(u"\n   - 21.0 ft : 3 min."));
    EXPECT_TRUE(cardOf(dive).contains(u"\rDepth: 0 ft\r"));
    EXPECT_TRUE(cardOf(dive).contains(u"\rAir temperature: 70 °F\r"));
}

TEST_F(DiveCardTest, ShowsFurtherTanksOnlyWhenTheyAreUsed) {
    Plongee dive = plainDive();
    for (const auto* word : {u"Second tank", u"Diluent", u"Stage bottles", u"Bail-out"}) {
        EXPECT_FALSE(cardOf(dive).contains(word));
    }
    dive.volumeBloc_2 = 3;
    dive.pressionDepart_2 = 200;
    dive.gaz_2 = 1;
    dive.o2Mix_2 = 50;
    dive.heMix_2 = 10;
    EXPECT_TRUE(cardOf(dive).contains(u"\rSecond tank: Aluminium 3 L at 0 bar\rStart pressure: 200 bar."));
    EXPECT_TRUE(cardOf(dive).contains(u"\rGas breathed: 600 litres\rGas: Nitrox 50"));
    dive.rebreather = 3;
    EXPECT_TRUE(cardOf(dive).contains(u"\rDiluent tank: Aluminium 3"));
    EXPECT_TRUE(cardOf(dive).contains(u"\reCCR rebreather\r"));

    dive.volPony1 = dive.volPony3 = 7;
    dive.pressDepartPony1 = 190;
    dive.pressFinPony1 = 60;
    dive.decoO2_Level_1 = 80;
    dive.pressDepartPony3 = 200;
    EXPECT_TRUE(cardOf(dive).contains(u"\r   - Deco 1 : 80 % O₂ (190-60 bar)\r   - Deco 3 : % O₂ (200-0 bar)"));
    dive.pressDepartBailout1 = 210;
    dive.pressFinBailout1 = 200;
    dive.O2Bailout1 = 16;
    dive.HeBailout1 = 40;
    EXPECT_TRUE(cardOf(dive).contains(u"\r\rBail-out: \r   - Bail-out 1 : 16 % O₂ - 40 % He (210-200 bar)\r\r"));
}

TEST_F(DiveCardTest, SaysNothingForCodesWithoutAWord) {
    Plongee dive = plainDive();
    dive.meteo = 7;
    dive.courant = -1;
    dive.visibilite = 7;
    dive.typePlongee = 2;
    dive.gaz = 9;
    dive.gpsSystem = 5;
    dive.combinaison = 2;
    dive.difficulte = 2'000'000'000;
    const QString card = cardOf(dive);
    EXPECT_TRUE(card.contains(u"\rWeather: \rWind: NA\rCurrent: \rVisibility: \r"));
    EXPECT_TRUE(card.contains(u"\rDive type: \rDifficulty"));
    EXPECT_TRUE(card.contains(u"\rG.P.S. (...) : N 00° 00.000'  E 000° 00.000'\rTide coefficient: 0 (...)\r"));
    EXPECT_TRUE(card.contains(u"\r   - Shorty\rWeight"));
    EXPECT_LT(card.size(), 10000);
}

TEST_F(DiveCardTest, ParagraphsOfSeveralDivesAndTheirColours) {
    const std::vector<DivePointer> dives(2, std::make_shared<const Plongee>(plainDive()));
    const StyledText card = diveCard(divesIn(dives), desktop_.desktop().preferences);
    EXPECT_TRUE(card.text().contains(u"Notes\r\r\r--------------------\r\rDive number 12\r"));
    const auto& runs = card.runs();
    EXPECT_EQ(runs[0].text, u"Dive number ");
    EXPECT_EQ(runs[1].text, u"12");
    EXPECT_NE(runs[0].colour, runs[1].colour);
    EXPECT_TRUE(diveCard(DiveSpan(), desktop_.desktop().preferences).runs().empty());
}

}  // namespace
}  // namespace tavrel
