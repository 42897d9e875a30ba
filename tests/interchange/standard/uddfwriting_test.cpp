#include "interchange/standard/uddfwriting.h"

#include "base/safefile.h"
#include "dives/divecodes.h"
#include "interchange/standard/csvtext.h"
#include "interchange/standard/divedifference.h"
#include "interchange/standard/founddive.h"
#include "interchange/standard/sourcereading.h"
#include "interchange/standard/tablereading.h"
#include "support/printing.h"
#include "support/records.h"

#include <libxml/parser.h>
#include <libxml/xmlschemas.h>

#include <random>
#include <set>

namespace tavrel {

namespace {

const UddfHeader header{QDateTime(QDate(2024, 6, 15), QTime(14, 30)), QStringLiteral("Logbook Owner")};

DivePointer shared(const Plongee& dive) {
    return std::make_shared<const Plongee>(dive);
}

/// Why the bytes break the schema that TAVREL_UDDF_SCHEMA names; empty when they do not.
std::string breach(const QByteArray& bytes, const QByteArray& schemaFile) {
    std::string why;
    const auto note = [](void* context, xmlErrorPtr error) {
        static_cast<std::string*>(context)->append(error->message);
    };
    xmlSchemaParserCtxtPtr parser = xmlSchemaNewParserCtxt(schemaFile.constData());
    xmlSchemaPtr schema = xmlSchemaParse(parser);
    xmlSchemaFreeParserCtxt(parser);
    if (!schema) {
        return "no schema";
    }
    xmlSchemaValidCtxtPtr validator = xmlSchemaNewValidCtxt(schema);
    xmlSchemaSetValidStructuredErrors(validator, note, &why);
    xmlDocPtr tree =
        xmlReadMemory(bytes.constData(), static_cast<int>(bytes.size()), nullptr, nullptr, XML_PARSE_NONET);
    if (!tree || (xmlSchemaValidateDoc(validator, tree) != 0 && why.empty())) {
        why = "not valid";
    }
    xmlFreeDoc(tree);
    xmlSchemaFreeValidCtxt(validator);
    xmlSchemaFree(schema);
    return why;
}

std::vector<Plongee> thereAndBack(const RecordList& dives) {
    const auto bytes = writeUddf(dives, header);
    EXPECT_TRUE(bytes);
    if (const QByteArray schema = qgetenv("TAVREL_UDDF_SCHEMA"); !schema.isEmpty()) {
        EXPECT_EQ(breach(*bytes, schema), "") << bytes->left(3000).toStdString();
    }
    const auto source = readSource(*bytes);
    EXPECT_TRUE(source && source->kind == SourceKind::uddf);
    std::vector<Plongee> again;
    for (const FoundDive& found : source->found.dives) {
        again.push_back(found.dive);
    }
    EXPECT_EQ(again.size(), dives.size());
    return again;
}

std::set<std::string_view> lostFields(const Plongee& dive) {
    const auto again = thereAndBack({shared(dive)});
    const auto fields = again.empty() ? std::vector<std::string_view>{"dive"} : differingFields(dive, again[0]);
    return {fields.begin(), fields.end()};
}

/// A dive with something in every field.
Plongee fullDive() {
    Plongee dive = unknownDive();
    setStart(dive, QDate(2019, 7, 14), QTime(9, 5, 30));
    fill(dive, R"(noPlongee=57|coeff=95|pmBm=1|lieu=Saint-Raphaël|
        site=Lion de mer <sud> & "nord"|pays=France|countryCode=FR|gps=N 43° 24.123'  E 006° 46.456'|
        partenaires=Équipière Première, Max, Guide de la Tour|epaves=Le Donator, Le Grec|structure=Club du Port|
        bateau=La Palme|surface=02:05|profondeur=42.7|temps=61|altitude=320|deco=1|deco_TTS=12|
        deco_Level_1_sw=1|decoDepth_Level_1=3.5|decoTime_Level_1=14|decoO2_Level_1=100|decoDepth_Level_3=9|
        decoTime_Level_3=2|decoO2_Level_3=50|decoHe_Level_3=10|volPony1=7|pressDepartPony1=200|
        pressFinPony1=150|volPony3=11|pressDepartPony3=210|volBailout2=12|O2Bailout2=32|alliageBloc=2|
        volumeBloc=15|pressionBloc=232|pressionDepart=220|pressionFin=60|gaz=2|o2Mix=18|heMix=45|
        volumeBloc_2=12|gaz_2=1|o2Mix_2=36|highGF=85|lowGF=30|decoSoftName=GAP|runtime=42 m 20 min|meteo=1|
        ventSecteur=3|ventForce=4|visibilite=2|courant=3|typePlongee=5|nocturne=1|tempEau=-2|tempAir=31|
        inoubliable=2|combinaison=4|fabricant=Reef|ordinateur=Two|serie=0042|samplingRate=5|equip_1=Lamp|
        equip_2=Reel|lestage=6.25|configuration=0|difficulte=3|PRESS_Data=220,200.5,180.12,150,120,100,80,60|
        profilProfondeur=0,11.13,42.7,42.65,9,6.04,3,0)");
    dive.notes = QStringLiteral("First line\n\n  third line\r with < and &\n");
    dive.ASC_Flag = Series::ofIntegers({0, 0, 0, 1, 0, 0, 0, 0});
    dive.SLOW_Flag = Series::ofIntegers({0, 0, 0, 0, 1, 0, 0, 0});
    dive.CEIL_Flag = Series::ofIntegers({0, 0, 0, 0, 1, 1, 0, 0});
    dive.SURF_Flag = Series::ofIntegers({0, 0, 0, 0, 0, 0, 0, 1});
    dive.GAZ_Flag = Series::ofIntegers({0, 0, 0, 0, 4, 1, 2, 0});
    return dive;
}

TEST(UddfWriting, losesOnlyWhatUddfCannotSay) {
    EXPECT_EQ(lostFields(fullDive()),
              (std::set<std::string_view>{"coeff", "pmBm", "countryCode", "deco_TTS", "pressionBloc", "decoSoftName",
                                          "highGF", "lowGF", "runtime", "meteo", "ventSecteur", "ventForce", "nocturne",
                                          "configuration"}));
}

TEST(UddfWriting, keepsARebreatherWithItsSetPoints) {
    Plongee dive = fullDive();
    fill(dive, R"(rebreather=2|ppO2=2|lowSetpoint=10|gaz=1|o2Mix=100|heMix=0|gaz_2=4|
        o2Mix_2=25|heMix_2=30|flow=7.5)");
    std::set<std::string_view> lost = lostFields(dive);
    EXPECT_EQ(lost.count("flow"), 1U);
    for (const char* kept : {"rebreather", "ppO2", "lowSetpoint", "gaz", "o2Mix", "gaz_2", "o2Mix_2", "heMix_2",
                             "volBailout2", "GAZ_Flag"}) {
        EXPECT_EQ(lost.count(kept), 0U) << kept;
    }
}

TEST(UddfWriting, turnsED50IntoWGS84) {
    Plongee dive = unknownDive();
    setStart(dive, QDate(2019, 7, 14), QTime(9, 5));
    dive.gps = QStringLiteral("N 48° 00.000'  E 002° 00.000'");
    dive.gpsSystem = 0;
    const Plongee again = thereAndBack({shared(dive)}).at(0);
    EXPECT_EQ(again.gpsSystem, 1);
    // ED50 lies some 80 m to the east and 100 m to the north of WGS84 there.
    EXPECT_TRUE(again.gps.startsWith(QStringLiteral("N 47° 59.9"))) << again.gps.toStdString();
    EXPECT_TRUE(again.gps.contains(QStringLiteral("E 001° 59.9"))) << again.gps.toStdString();
    dive.gpsSystem = 2;
    EXPECT_EQ(thereAndBack({shared(dive)}).at(0).gps, dive.gps) << "of an unknown datum as it stands";
}

TEST(UddfWriting, staysValidWhateverADiveHolds) {
    Plongee nothing;
    Plongee odd = fullDive();
    odd.noPlongee = -4;
    odd.profondeur = -std::numeric_limits<float>::infinity();
    odd.temps = -1;
    odd.samplingRate = 99;
    odd.alliageBloc = -7;
    odd.courant = odd.visibilite = odd.typePlongee = odd.combinaison = odd.rebreather = odd.ppO2 = 1000;
    odd.decoDepth_Level_1 = std::numeric_limits<float>::quiet_NaN();
    odd.profilProfondeur = Series::ofReals({std::numeric_limits<double>::quiet_NaN(), -1, 1e300});
    odd.PRESS_Data = Series::ofReals({-5, 1e9});
    odd.GAZ_Flag = Series::ofIntegers({9, -1});
    odd.notes = QString(QChar(0)) + QStringLiteral("\u0001 ok \uFFFF");
    odd.date = Date(1e300);
    const auto again = thereAndBack({shared(nothing), shared(odd)});
    ASSERT_EQ(again.size(), 2U);
    EXPECT_FALSE(startOf(again[0]).isValid());
    thereAndBack({});
}

TEST(UddfWriting, bringsBackRandomDives) {
    std::mt19937 random(20240615);
    const auto below = [&](int bound) { return static_cast<int>(random() % static_cast<unsigned>(bound)); };
    for (int round = 0; round < 40; ++round) {
        Plongee dive = unknownDive();
        setStart(dive, QDate(1950, 1, 1).addDays(below(30000)), QTime(below(24), below(60), below(60)));
        dive.noPlongee = 1 + below(5000);
        dive.lieu = below(2) ? QStringLiteral("Agay") : QString();
        dive.site = below(2) ? QStringLiteral("La Chrétienne") : QString();
        dive.profondeur = static_cast<float>(10 + below(1000)) / 10;
        dive.temps = 1 + below(200);
        dive.tempEau = below(35) - 2;
        dive.volumeBloc = below(20);
        dive.pressionDepart = 150 + below(80);
        dive.pressionFin = below(150);
        dive.o2Mix = 22 + below(70);
        dive.gaz = 1;
        dive.samplingRate = below(8);
        dive.notes = below(2) ? QStringLiteral("a\nb") : QString();
        std::vector<double> depths{0};
        std::vector<qint32> flags{0};
        const int samples = 2 + below(300);
        for (int sample = 1; sample < samples; ++sample) {
            depths.push_back(std::round(std::max(0.0, depths.back() + below(61) - 28.0) * 4) / 4);
            flags.push_back(below(10) == 0 ? 1 : 0);
        }
        dive.profilProfondeur = Series::ofReals(depths);
        dive.ASC_Flag = Series::ofIntegers(flags);
        dive.CEIL_Flag = Series::ofIntegers(flags);
        EXPECT_EQ(lostFields(dive), std::set<std::string_view>()) << round;
        // A table holds every field as it is.
        dive.profondeur = static_cast<float>(below(900)) / 7;
        dive.partenaires = QStringLiteral("Ann,  Bo , ");
        const auto table = readTable(*writeCsv({shared(dive)}));
        ASSERT_TRUE(table && table->found.dives.size() == 1);
        EXPECT_EQ(differingFields(dive, table->found.dives[0].dive), std::vector<std::string_view>()) << round;
    }
}

TEST(UddfWriting, aSightInMetresIsReadAsTheSameRating) {
    RecordList dives;
    for (qint32 rating = 0; rating <= Visibility::exceptional; ++rating) {
        Plongee dive;
        dive.visibilite = rating;
        dives.push_back(shared(dive));
    }
    const auto again = thereAndBack(dives);
    for (std::size_t rating = 0; rating < again.size(); ++rating) {
        EXPECT_EQ(again[rating].visibilite, static_cast<qint32>(rating));
    }
}

}  // namespace

}  // namespace tavrel
