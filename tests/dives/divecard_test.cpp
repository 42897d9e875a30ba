#include "dives/divecard.h"

#include "base/texts.h"
#include "desktop/commonsettings.h"
#include "support/records.h"
#include "support/testdesktop.h"

namespace tavrel {
namespace {

struct DiveCardTest : testing::Test {
    QString cardOf(const Plongee& dive) {
        const std::vector<DivePointer> dives{std::make_shared<const Plongee>(dive)};
        return diveCard(divesIn(dives), desktop_.desktop().preferences).text();
    }
    static Plongee plainDive(const char* more = "noPlongee=12") {
        auto dive = filled<Plongee>("noPlongee=12|tempEau=-50|tempAir=-50");
        fill(dive, more);
        return dive;
    }
    QString cardOf(const char* fields) { return cardOf(plainDive(fields)); }

    TestDesktop desktop_;
};

TEST_F(DiveCardTest, TellsADiveFieldByField) {
    EXPECT_EQ(
        cardOf(
            "date=2024-05-03|heure=2024-05-03T23:40|lieu=Marseille|site=Riou|pays=France|epaves=Liban|partenaires=Ana|"
            "structure=Club|bateau=Mistral|surface=2 h|ordinateur=Wrist|decoSoftName=Plan|decoAlgoType=VPM|"
            "decoConservatism=+2|runtime=9 m|flow=3|altitude=7|gpsSystem=1|gps=N 43°|coeff=95|pmBm=2|"
            "meteo=4|ventSecteur=8|courant=5|visibilite=8|tempEau=14|nocturne=1|difficulte=2|profondeur=32.5|"
            "temps=41|deco_TTS=7|rebreather=1|alliageBloc=2|volumeBloc=12|pressionBloc=232|pressionDepart=200|"
            "pressionFin=50|gaz=2|o2Mix=18|heMix=45|combinaison=1|equip_12=Lamp|lestage=4.5|notes=Calm."),
        QString::fromUtf8(
            "Dive number 12"
            "\r\rGeneral\rDate: 03/05/2024\rPlace: Marseille\rSite: Riou\rCountry: France\rG.P.S. (WGS84) : N 43°"
            "\rTide coefficient: 95 (Basse mer)\rWrecks: Liban\rBuddies: Ana\rClub or dive centre: Club\rBoat: Mistral"
            "\r\rConditions\rWeather: Hail\rWind: \rWind sector: N-W\rWind force: no wind"
            "\rCurrent: Violent\rVisibility: Exceptional\rWater temperature: 14 °C\rAir temperature: -"
            "\rDive type: Wreck\rNight dive\rDifficulty: ★★★"
            "\r\rParameters\rDepth: 32.5 m\rDive time: 41 min.\rSurface interval: 2 h\rStart: 23:40\rEnd: 00:21"
            "\rAltitude: 7 m"
            "\r\rDecompression\rDive computer: Wrist\rPlanning software: Plan\rAlgorithm: VPM\rConservatism: +2"
            "\rRun-time table: \r\r9 m\rTime to surface: 7 min."
            "\r\rGas\rSCR rebreather\rMain tank: Steel 12 L at 232 bar\rStart pressure: 200 bar."
            "\rEnd pressure: 50 bar.\rPressure used: 150 bar.\rGas available: 2400 litres"
            "\rGas breathed: 1800 litres\rGas: Trimix 18/45\rFlow: 3 L/min."
            "\r\rEquipment\rConfiguration: Recreational\r   - Drysuit\r   - Lamp\rWeight: 4.5 kg"
            "\r\rNotes\rCalm."));
}

TEST_F(DiveCardTest, WritesWindSectorsAsTheyStandInEveryLanguage) {
    Plongee dive = plainDive();
    dive.ventSecteur = 6;
    setTextLanguage(QStringLiteral("fr"));
    EXPECT_TRUE(cardOf(dive).contains(u"S-W\r")) << cardOf(dive).toStdString();
}

TEST_F(DiveCardTest, NamesGasesAndStops) {
    Plongee dive = plainDive(
        "decoTime_Level_1=3|decoDepth_Level_1=21|decoO2_Level_1=21|decoTime_Level_2=5|decoDepth_Level_2=9.04|"
        "decoO2_Level_2=22|decoTime_Level_4=1|decoO2_Level_4=21|decoHe_Level_4=35|decoTime_Level_6=1|"
        "decoO2_Level_6=22|decoHe_Level_6=20");
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
    EXPECT_TRUE(cardOf(dive).contains(u"\n   - 21.0 ft : 3 min.") && cardOf(dive).contains(u"\rDepth: 0 ft\r"));
    EXPECT_TRUE(cardOf(dive).contains(u"\rAir temperature: 70 °F\r"));
}

TEST_F(DiveCardTest, ShowsFurtherTanksOnlyWhenTheyAreUsed) {
    Plongee dive = plainDive();
    for (const auto* word : {u"Second tank", u"Diluent", u"Stage bottles", u"Bail-out"}) {
        EXPECT_FALSE(cardOf(dive).contains(word));
    }
    fill(dive, "volumeBloc_2=3|pressionDepart_2=200|gaz_2=1|o2Mix_2=50|heMix_2=10");
    EXPECT_TRUE(cardOf(dive).contains(u"\rSecond tank: Aluminium 3 L at 0 bar\rStart pressure: 200 bar."));
    EXPECT_TRUE(cardOf(dive).contains(u"\rGas breathed: 600 litres\rGas: Nitrox 50"));
    dive.rebreather = 3;
    EXPECT_TRUE(cardOf(dive).contains(u"\rDiluent tank: Aluminium 3") && cardOf(dive).contains(u"\reCCR rebreather\r"));

    fill(dive, "volPony1=7|volPony3=7|pressDepartPony1=190|pressFinPony1=60|decoO2_Level_1=80|pressDepartPony3=200");
    EXPECT_TRUE(cardOf(dive).contains(u"\r   - Deco 1 : 80 % O₂ (190-60 bar)\r   - Deco 3 : % O₂ (200-0 bar)"));
    fill(dive, "pressDepartBailout1=210|pressFinBailout1=200|O2Bailout1=16|HeBailout1=40");
    EXPECT_TRUE(cardOf(dive).contains(u"\r\rBail-out: \r   - Bail-out 1 : 16 % O₂ - 40 % He (210-200 bar)\r\r"));
}

TEST_F(DiveCardTest, SaysNothingForCodesWithoutAWord) {
    const QString card =
        cardOf("meteo=7|courant=-1|visibilite=7|typePlongee=2|gaz=9|gpsSystem=5|combinaison=2|difficulte=2000000000");
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
