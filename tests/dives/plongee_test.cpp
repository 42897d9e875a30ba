#include "dives/plongee.h"

#include "archive/recordarchive.h"
#include "support/files.h"
#include "support/records.h"

#include <sstream>

namespace tavrel {

namespace {

// The items of a dive in the order of the archive: field, type code, and the class version that first holds it.
constexpr const char* archivedDive =
    "profilProfondeur:@ ASC_Flag:@ SLOW_Flag:@ SURF_Flag:@ CEIL_Flag:@ GAZ_Flag:@ PRESS_Data:@ noPlongee:i coeff:i "
    "pmBm:i date:@ lieu:@ site:@ pays:@ countryCode:@ gps:@ gpsSystem:i partenaires:@ epaves:@ structure:@ bateau:@ "
    "surface:@ heure:@ profondeur:f temps:i altitude:i deco:i deco_TTS:i24 deco_Level_3_sw:i deco_Level_2_sw:i "
    "deco_Level_1_sw:i deco_Level_4_sw:i deco_Level_5_sw:i deco_Level_6_sw:i25 decoO2_Level_1:i decoO2_Level_2:i "
    "decoO2_Level_3:i decoO2_Level_4:i decoO2_Level_5:i decoO2_Level_6:i25 decoHe_Level_1:i decoHe_Level_2:i "
    "decoHe_Level_3:i decoHe_Level_4:i decoHe_Level_5:i decoHe_Level_6:i25 decoDepth_Level_1:i decoDepth_Level_2:i "
    "decoDepth_Level_3:i decoDepth_Level_4:i decoDepth_Level_5:i decoDepth_Level_6:i25 decoTime_Level_1:i "
    "decoTime_Level_2:i decoTime_Level_3:i decoTime_Level_4:i decoTime_Level_5:i decoTime_Level_6:i25 volPony1:i "
    "volPony2:i volPony3:i pressDepartPony1:i pressDepartPony2:i pressDepartPony3:i pressFinPony1:i pressFinPony2:i "
    "pressFinPony3:i volBailout1:i volBailout2:i pressDepartBailout1:i pressDepartBailout2:i pressFinBailout1:i "
    "pressFinBailout2:i O2Bailout1:i O2Bailout2:i HeBailout1:i HeBailout2:i alliageBloc:i volumeBloc:i "
    "pressionBloc:i pressionDepart:i pressionFin:i gaz:i flow:f o2Mix:i heMix:i alliageBloc_2:i volumeBloc_2:i "
    "pressionBloc_2:i pressionDepart_2:i pressionFin_2:i gaz_2:i o2Mix_2:i heMix_2:i ppO2:i lowSetpoint:i25 "
    "decoSoftName:@ decoAlgoType:@ decoConservatism:@ highGF:i25 lowGF:i25 runtime:@ meteo:i ventSecteur:i "
    "ventForce:i visibilite:i courant:i typePlongee:i nocturne:i tempEau:i tempAir:i inoubliable:i combinaison:i "
    "fabricant:@ ordinateur:@ serie:@ samplingRate:i equip_1:@ equip_2:@ equip_3:@ equip_4:@ equip_5:@ equip_6:@ "
    "equip_7:@ equip_8:@ equip_9:@ equip_10:@ equip_11:@ equip_12:@ rebreather:i lestage:f configuration:i notes:@ "
    "difficulte:i";

QByteArray committed(const char* name) {
    return contentsOf(QStringLiteral(TAVREL_TEST_DATA "/archives/") + QLatin1StringView(name));
}

TEST(DiveArchive, isReadInEveryVersionAndByteOrder) {
    for (const auto& [name, version] :
         {std::pair("dive-20-big", 20), {"dive-23-little", 23}, {"dive-24-big", 24}, {"dive-25-little", 25}}) {
        SCOPED_TRACE(name);
        const auto file = readRecords(committed(name), Plongee::layout());
        ASSERT_TRUE(file) << file.error().message().toStdString();
        EXPECT_EQ(file->version, version);
        ASSERT_EQ(file->records.size(), 1U);
        std::istringstream words(archivedDive);
        int number = 0;
        for (std::string word; words >> word;) {
            ++number;
            const std::string key = word.substr(0, word.find(':'));
            const std::string code = word.substr(key.size() + 1, 1);
            const int since = std::atoi(word.c_str() + key.size() + 2);
            const Field field = Plongee::layout().field(std::string_view(key));
            ASSERT_FALSE(field.isNull()) << key;
            EXPECT_EQ(code == "f", field.kind() == FieldKind::real && !key.starts_with("decoDepth")) << key;
            const FieldValue expected = version < since ? field.value(Plongee()) : distinctValue(field.kind(), number);
            EXPECT_TRUE(field.value(*file->records[0]) == expected) << key;
        }
        EXPECT_EQ(number, 134);
    }
}

TEST(DiveArchive, isWrittenAsTheNewestVersion) {
    const auto read = readRecords(committed("dive-25-little"), Plongee::layout());
    ASSERT_TRUE(read);
    EXPECT_EQ(writeRecords(read->records, Plongee::layout()).toHex(' '), committed("dive-25-little").toHex(' '));
    const auto older = readRecords(committed("dive-24-big"), Plongee::layout());
    ASSERT_TRUE(older);
    const auto again = readRecords(writeRecords(older->records, Plongee::layout()), Plongee::layout());
    ASSERT_TRUE(again);
    EXPECT_EQ(again->version, 25);
    EXPECT_EQ(fieldsOf(*again->records[0], Plongee::layout(), "deco_TTS deco_Level_6_sw highGF difficulte"),
              u"28; 0; 0; 134");
}

}  // namespace

}  // namespace tavrel
