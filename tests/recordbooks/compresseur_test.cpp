#include "recordbooks/compresseur.h"

#include "recordbooks/bookfixture.h"
#include "recordbooks/recordbooks.h"

namespace tavrel {

namespace {

using CompresseurTest = BookFixture<Compresseur, maintComp>;

TEST_F(CompresseurTest, takesADashAndWhatLiesBelowMinusOneAsNotMeasured) {
    book->newRecord();
    EXPECT_TRUE(holds(*built(), "anHuile=-1|anCO2=-1|anCO=-1|anH2O=-1"));
    EXPECT_EQ(texts("anHuileField anCO2Field anCOField anH2OField"), u"-|-|-|-");
    enter("anHuileField=-5|anCO2Field=-1|anCOField=0|anH2OField=-1.5");
    const auto service = built();
    EXPECT_TRUE(holds(*service, "anHuile=-1|anCO2=-1|anCO=0|anH2O=-1.5"));
    enter("anHuileField=0.45");
    EXPECT_EQ(built()->anHuile, 0.45F);

    book->form().editFields(*service);
    EXPECT_EQ(texts("anHuileField anCOField"), u"-|0");
}

TEST_F(CompresseurTest, offersChoicesOnlyForWhatWasDone) {
    book->newRecord();
    const auto offered = [this] {
        return eachOf("typeHuileMatrix operationFiltreMatrix intSoupapeMatrix charbonSwitch alumineSwitch tamisSwitch",
                      [this](const char* control) { return QString::number(at(control).enabled); });
    };
    EXPECT_EQ(offered(), u"0|0|0|0|0|0");
    for (const auto& [control, choices] :
         {std::pair("vidangeSwitch", u"1|0|0|0|0|0"), std::pair("filtreAirSwitch", u"0|1|0|0|0|0"),
          std::pair("soupapesSwitch", u"0|0|1|0|0|0"), std::pair("cartoucheSwitch", u"0|0|0|1|1|1")}) {
        state().choose(indexOf(control), 1);
        EXPECT_EQ(offered(), choices) << control;
        state().choose(indexOf(control), 0);
        EXPECT_EQ(offered(), u"0|0|0|0|0|0") << control;
    }
}

TEST_F(CompresseurTest, showsOperationsAndAnalysesInItsColumns) {
    const char* columns = "temps vidange operationFiltre intSoupape anHuile anH2O anCO2 anCO";
    auto service = filled<Compresseur>("temps=2001-01-01T07:05|anCO2=0");
    EXPECT_EQ(cells(service, columns), u"07:05||Cleaning|Verification|0|0|0|0");
    book->form().blankFields(0);
    EXPECT_EQ(cell(*built(), "temps").text, u"");
    enter("tempsField=06:40");
    EXPECT_EQ(cell(*built(), "temps").text, u"06:40");
    fill(service,
         "vidange=1|operationFiltre=1|intSoupape=1|anHuile=2.5|anH2O=2.5|anCO=2.5|anCO2=-1|anCO2Unit=1|anCOUnit=1");
    EXPECT_EQ(cells(service, columns), u"07:05|✓|Replacement|Re-setting|2.5|2.5|-|2.5 ppm");
    fill(service, "anCO2=300|anCOUnit=0");
    EXPECT_EQ(cells(service, "anCO2 anCO"), u"300 ppm|2.5");
}

TEST_F(CompresseurTest, writesACardOfTheOperationsDoneUnderTheFirstBrand) {
    const auto full = filled<Compresseur>(
        "marque=|modele=Compact|date=2024-05-03|temps=2001-01-01T07:05|cumulTemps=about 120|vidange=1|filtreAir=1|"
        "operationFiltre=1|cartouche=1|charbon=1|alumine=1|tamis=1|depoussierage=1|controles=1|soupapes=1|intSoupape=1|"
        "typeHuile=3|anHuile=0.5|anCO2=300|anCO2Unit=1|anCO=0|anH2O=25|notes=fine");
    auto other = filled<Compresseur>(
        "marque=Other|date=2024-06-04|vidange=1|filtreAir=1|soupapes=1|charbon=1|anHuile=-1|anCO2=-1|anCO=-1|anH2O=-1");
    other.temps = noDate();
    EXPECT_EQ(
        card({full, other}),
        QStringLiteral(
            "Compressor maintenance/Brand: /Model: Compact//------------------------------/Service no. 1/"
            "Date: 03/05/2024/Running time: 07 h 05 min./Running time in all: about 120//Operations"
            "/- Oil change, mineral/- Air filter replaced/- Filter cartridge/    - Activated charcoal"
            "/    - Activated alumina/    - Molecular sieve/- Dust removed/- Checks/- Valves: re-set//Air analyses"
            "/Oil: 0.5 mg/m3/CO₂: 300 ppm/CO: 0 ml/m3/H₂O: 25 ml/m3//Remarks: fine"
            "//------------------------------/Service no. 2/Date: 04/06/2024/Running time: 00 h 00 min."
            "/Running time in all: //Operations/- Oil change, synthetic/- Air filter cleaned/- Valves: verified"
            "//Air analyses//Remarks: /--------------------/"));
    const RecordList list = listOf<Compresseur>({full, other});
    const QString second = description.card({list, {1}}, desktop.desktop(), QString()).text();
    EXPECT_TRUE(second.contains(u"Model: Compact") && second.contains(u"Service no. 2\r"));
    EXPECT_FALSE(second.contains(u"Service no. 1\r"));
}

TEST_F(CompresseurTest, countsServicesAndNamesThemByTheirDay) {
    EXPECT_EQ(book->countText(), u"0 services");
    hold({filled<Compresseur>("date=2024-05-03|typeHuile=7")});
    book->userSelects({0});
    EXPECT_TRUE(book->editWindowTitle().contains(u"2024")) << book->editWindowTitle().toStdString();
    EXPECT_EQ(at("typeHuileMatrix").tag, 1);
    book->newRecord();
    EXPECT_EQ(book->editWindowTitle(), u"Service of …");
}

}  // namespace

}  // namespace tavrel
