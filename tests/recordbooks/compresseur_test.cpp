#include "recordbooks/compresseur.h"

#include "recordbooks/bookfixture.h"
#include "recordbooks/recordbooks.h"

namespace tavrel {

namespace {

using CompresseurTest = BookFixture<Compresseur, maintComp>;

TEST_F(CompresseurTest, takesADashAndWhatLiesBelowMinusOneAsNotMeasured) {
    book->newRecord();
    EXPECT_TRUE(holds(*built(), "anHuile=-1|anCO2=-1|anCO=-1|anH2O=-1"));
    for (const char* control : {"anHuileField", "anCO2Field", "anCOField", "anH2OField"}) {
        EXPECT_EQ(at(control).text, u"-") << control;
    }
    enter("anHuileField=-5|anCO2Field=-1|anCOField=0|anH2OField=-1.5");
    const auto service = built();
    EXPECT_TRUE(holds(*service, "anHuile=-1|anCO2=-1|anCO=0|anH2O=-1.5"));
    enter("anHuileField=0.45");
    EXPECT_EQ(built()->anHuile, 0.45F);

    book->form().editFields(*service);
    EXPECT_EQ(at("anHuileField").text, u"-");
    EXPECT_EQ(at("anCOField").text, u"0");
}

TEST_F(CompresseurTest, offersChoicesOnlyForWhatWasDone) {
    book->newRecord();
    const auto offered = [this] {
        QString letters;
        for (const auto& [letter, control] :
             {std::pair(u'h', "typeHuileMatrix"), std::pair(u'f', "operationFiltreMatrix"),
              std::pair(u's', "intSoupapeMatrix"), std::pair(u'c', "charbonSwitch"), std::pair(u'a', "alumineSwitch"),
              std::pair(u't', "tamisSwitch")}) {
            letters += at(control).enabled ? QString(letter) : QString();
        }
        return letters;
    };
    EXPECT_EQ(offered(), u"");
    for (const auto& [control, choices] : {std::pair("vidangeSwitch", u"h"), std::pair("filtreAirSwitch", u"f"),
                                           std::pair("soupapesSwitch", u"s"), std::pair("cartoucheSwitch", u"cat")}) {
        state().choose(indexOf(control), 1);
        EXPECT_EQ(offered(), choices) << control;
        state().choose(indexOf(control), 0);
        EXPECT_EQ(offered(), u"") << control;
    }
}

TEST_F(CompresseurTest, showsOperationsAndAnalysesInItsColumns) {
    Compresseur service;
    service.temps = Date::fromDateTime(QDateTime(QDate(2001, 1, 1), QTime(7, 5)));
    EXPECT_EQ(cell(service, "temps").text, u"07:05");
    book->form().blankFields(0);
    EXPECT_EQ(cell(*built(), "temps").text, u"");
    enter("tempsField=06:40");
    EXPECT_EQ(cell(*built(), "temps").text, u"06:40");
    EXPECT_EQ(cell(service, "vidange").text, u"");
    EXPECT_EQ(cell(service, "operationFiltre").text, u"Cleaning");
    EXPECT_EQ(cell(service, "intSoupape").text, u"Verification");
    EXPECT_EQ(cell(service, "anCO2").text, u"0");
    service.vidange = service.operationFiltre = service.intSoupape = 1;
    EXPECT_EQ(cell(service, "vidange").text, u"✓");
    EXPECT_EQ(cell(service, "operationFiltre").text, u"Replacement");
    EXPECT_EQ(cell(service, "intSoupape").text, u"Re-setting");
    service.anHuile = service.anH2O = service.anCO = 2.5F;
    service.anCO2 = -1;
    service.anCO2Unit = service.anCOUnit = 1;
    EXPECT_EQ(cell(service, "anHuile").text, u"2.5");
    EXPECT_EQ(cell(service, "anH2O").text, u"2.5");
    EXPECT_EQ(cell(service, "anCO").text, u"2.5 ppm");
    EXPECT_EQ(cell(service, "anCO2").text, u"-");
    service.anCO2 = 300;
    service.anCOUnit = 0;
    EXPECT_EQ(cell(service, "anCO2").text, u"300 ppm");
    EXPECT_EQ(cell(service, "anCO").text, u"2.5");
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
}

TEST_F(CompresseurTest, countsServicesAndNamesThemByTheirDay) {
    EXPECT_EQ(book->countText(), u"0 services");
    Compresseur service;
    service.date = day(2024, 5, 3);
    service.typeHuile = 7;
    hold({service});
    EXPECT_EQ(book->countText(), u"One service");
    book->userSelects({0});
    EXPECT_TRUE(book->editWindowTitle().contains(u"2024")) << book->editWindowTitle().toStdString();
    EXPECT_EQ(at("typeHuileMatrix").tag, 1);
    book->newRecord();
    EXPECT_EQ(book->editWindowTitle(), u"Service of …");
}

}  // namespace

}  // namespace tavrel
