#include "recordbooks/compresseur.h"

#include "recordbooks/bookfixture.h"
#include "recordbooks/recordbooks.h"

namespace tavrel {

namespace {

class CompresseurTest : public BookFixture<Compresseur> {
protected:
    CompresseurTest() : BookFixture(maintComp()) {}
};

TEST_F(CompresseurTest, takesADashAndWhatLiesBelowMinusOneAsNotMeasured) {
    book->newRecord();
    for (const char* control : {"anHuileField", "anCO2Field", "anCOField", "anH2OField"}) {
        EXPECT_EQ(built()->anHuile, -1) << control;
        EXPECT_EQ(at(control).text, u"-");
    }
    enter("anHuileField", "-5");
    enter("anCO2Field", "-1");
    enter("anCOField", "0");
    enter("anH2OField", "-1.5");
    const auto service = built();
    EXPECT_EQ(service->anHuile, -1);
    EXPECT_EQ(service->anCO2, -1);
    EXPECT_EQ(service->anCO, 0);
    EXPECT_EQ(service->anH2O, -1.5F);
    enter("anHuileField", "0.45");
    EXPECT_EQ(built()->anHuile, 0.45F);

    book->form().editFields(*service);
    EXPECT_EQ(at("anHuileField").text, u"-");
    EXPECT_EQ(at("anCOField").text, u"0");
}

TEST_F(CompresseurTest, offersChoicesOnlyForWhatWasDone) {
    book->newRecord();
    const std::pair<const char*, std::vector<const char*>> rules[] = {
        {"vidangeSwitch", {"typeHuileMatrix"}},
        {"filtreAirSwitch", {"operationFiltreMatrix"}},
        {"soupapesSwitch", {"intSoupapeMatrix"}},
        {"cartoucheSwitch", {"charbonSwitch", "alumineSwitch", "tamisSwitch"}},
    };
    for (const auto& [control, followers] : rules) {
        for (const char* on : {"0", "1"}) {
            enter(control, on);
            for (const char* follower : followers) {
                EXPECT_EQ(at(follower).enabled, *on == '1') << follower;
            }
            for (const auto& [other, others] : rules) {
                if (other != control && at(other).tag == 0) {
                    EXPECT_FALSE(at(others.front()).enabled) << others.front() << " by " << control;
                }
            }
        }
        enter(control, "0");
    }
}

TEST_F(CompresseurTest, showsOperationsAndAnalysesInItsColumns) {
    Compresseur service;
    service.temps = Date::fromDateTime(QDateTime(QDate(2001, 1, 1), QTime(7, 5)));
    EXPECT_EQ(cell(service, "temps").text, u"07:05");
    book->form().blankFields(0);
    EXPECT_EQ(cell(*built(), "temps").text, u"");
    enter("tempsField", "06:40");
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
    Compresseur full;
    full.marque = QStringLiteral("");
    full.modele = QStringLiteral("Junior");
    full.date = day(2024, 5, 3);
    full.temps = Date::fromDateTime(QDateTime(QDate(2001, 1, 1), QTime(7, 5)));
    full.cumulTemps = QStringLiteral("about 120");
    full.vidange = full.filtreAir = full.operationFiltre = full.cartouche = full.charbon = full.alumine = full.tamis =
        full.depoussierage = full.controles = full.soupapes = full.intSoupape = 1;
    full.typeHuile = 3;
    full.anHuile = 0.5F;
    full.anCO2 = 300;
    full.anCO2Unit = 1;
    full.anCO = 0;
    full.anH2O = 25;
    full.notes = QStringLiteral("fine");
    Compresseur other;
    other.marque = QStringLiteral("Other");
    other.date = day(2024, 6, 4);
    other.temps = noDate();
    other.vidange = other.filtreAir = other.soupapes = other.charbon = 1;
    other.anHuile = other.anCO2 = other.anCO = other.anH2O = -1;
    EXPECT_EQ(
        card({full, other}),
        QStringLiteral(
            "Compressor maintenance/Brand: /Model: Junior//------------------------------/Service no. 1/"
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
