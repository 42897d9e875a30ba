#include "recordbooks/epaves.h"

#include "recordbooks/bookfixture.h"
#include "recordbooks/recordbooks.h"

namespace tavrel {

namespace {

using EpavesTest = BookFixture<Epaves, repEpaves>;

TEST_F(EpavesTest, readsEveryVersion) {
    // Version 1 has whole metres and no switches, 2 what is to be visited, 3 the orientation's switch, 4 decimal
    // metres: the code of decimals is met with the length already then, and is called by its place from then on.
    const struct {
        std::string version, sizes, decimal, orientationSwitch, toVisit;
        const char* fields;
    } cases[] = {
        {"01", "9628 960a", R"(84"f")", "", "", "longueur=40|largeur=10|orientationSwitch=0|aVisiter=0"},
        {"02", "9628 960a", R"(84"f")", "", "9601", "longueur=40|largeur=10|orientationSwitch=0|aVisiter=1"},
        {"03", "9628 960a", R"(84"f")", "9601", "9601", "longueur=40|largeur=10|orientationSwitch=1|aVisiter=1"},
        {"04", R"(84"f" 83 00002242 9a 83 00002841)", "9a", "9601", "9600",
         "longueur=40.5|largeur=10.5|orientationSwitch=1|aVisiter=0"},
    };
    for (const auto& it : cases) {
        SCOPED_TRACE(it.version);
        open(it.version, R"(92 8484 84"NSString"01 95 84"+" "Aline" 86 92 85 92 85 92 85 )" + it.sizes +
                             " 9602 9681f401 9602 92 85 92 85 92 85 92 85 " + it.decimal + " 83 00004841 9a 1e " +
                             it.orientationSwitch + R"( 965a 9603 92 8484 84"NSDate"00 95 84"d"05 86 )" + it.toVisit +
                             R"( 92 85 92 84 99 99 "Reef" 86 92 85 92 85 9601 9602 9603 9601 9604 9605
                             92 84 99 99 "church" 86 92 84 99 99 "mill" 86 92 84 99 99 "church" 86
                             92 85 92 84 99 99 "note" 86 )");
        EXPECT_TRUE(holds(record(), it.fields));
        EXPECT_TRUE(holds(record(),
                          "nom=Aline|materiau=2|jauge=500|pointHaut=12.5|pointBas=30|orientation=90|inclinaison=3|"
                          "dateVisite=5|site=Reef|gpsSystem=1|technicite=5|relevement2=mill|relevement3=church|"
                          "notes=note|typeMachine=|puissance=|natureFond=|nomsPrecedents=|armateur=|ports=|capitaine=|"
                          "equipage=|chargement=|provenance=|destination=|miseAJour=nil"));
    }
}

TEST_F(EpavesTest, writesMetresAndNamesInItsColumns) {
    auto wreck = filled<Epaves>("longueur=40.25|pointHaut=12.5|pointBas=30");
    EXPECT_EQ(cells(wreck, "longueur pointHaut pointBas"), u"40.2 m|12.5 m|30 m");
    const char* propulsions[] = {"",      "Petrol", "Diesel", "Kerosene",        "Nuclear", "Oars",
                                 "Steam", "Sail",   "Towed",  "Diesel-electric", ""};
    for (qint32 propulsion = 0; propulsion < 11; ++propulsion) {
        wreck.propulsion = propulsion;
        EXPECT_EQ(cell(wreck, "propulsion").text, QString::fromUtf8(propulsions[propulsion])) << propulsion;
    }
    wreck = filled<Epaves>("interet=3|technicite=5");
    EXPECT_EQ(cells(wreck, "interet technicite"), u"★★★|★★★★★");
    EXPECT_EQ(cell(wreck, "interet").words, u"3 of 5 stars");
    EXPECT_EQ(cell({}, "interet").text, u"☆");
}

TEST_F(EpavesTest, coloursNamesToVisitAndTheInterestByTheDifficulty) {
    EXPECT_EQ(colour({}, "nom"), "#000000");
    EXPECT_EQ(colour(filled<Epaves>("aVisiter=1"), "nom"), "#ff0000");
    EXPECT_EQ(colour(filled<Epaves>("interet=5"), "interet"), "#000000");
    EXPECT_EQ(colour(filled<Epaves>("technicite=1"), "interet"), "#996633");
    const char* colours[] = {"#000000", "#00ff00", "#0000ff", "#ff0000", "#800080", "#000000", "#000000"};
    Epaves wreck;
    for (const char* expected : colours) {
        EXPECT_EQ(colour(wreck, "technicite"), expected) << wreck.technicite;
        ++wreck.technicite;
    }
}

TEST_F(EpavesTest, writesTheCardInItsOrderWithThePropulsionNamedByMaterials) {
    const auto wreck = filled<Epaves>(
        "nom=Aline|type=cargo ship|immatriculation=R1|longueur=40.5|largeur=10|jauge=500|materiau=1|propulsion=2|"
        "typeMachine=two|puissance=600|pointHaut=12.5|pointBas=30|natureFond=sand|orientationSwitch=1|orientation=90|"
        "inclinaison=2|miseAJour=2024-05-03|gps=43N|gpsSystem=2|acces=1|accesBord=3|localisation=3|interet=4|"
        "relevement1=church|relevement2=mill|relevement3=pier|dateVisite=2023-12-31|nomsPrecedents=Ida|nationalite=UK|"
        "armateur=Lines|dateConstruction=1890|lieuConstruction=Clyde|ports=Brest|capitaine=Roux|equipage=21|"
        "chargement=coal|provenance=Bilbao|destination=Nantes|dateNaufrage=1917|causeNaufrage=mine|lieu=Bay|"
        "site=Reef|pays=France|notes=fine");
    const QString whole = card({wreck, {}});
    const QString first = QStringLiteral(
        "Wreck repertory/--------------------/Name: Aline//Characteristics/Type of ship: cargo ship/Registration: R1"
        "/Length (m): 40.5/Width (m): 10/Tonnage: 500/Material: Wood/Propulsion: Iron/Engine type: two/Power: 600"
        "/Shallowest point: 12.5 m/Deepest point: 30 m/Bottom: sand/Orientation: 90°/List: To port//History"
        "/Previous names: Ida/Nationality: UK/Owner: Lines/Built: 1890/Built at: Clyde/Home ports: Brest/Captain: Roux"
        "/Crew: 21/Cargo: coal/From: Bilbao/To: Nantes"
        "/Sunk on: 1917/Cause of sinking: mine/Updated on: 03/05/2024//Location/Place: Bay/Site: Reef/Country: France"
        "/GPS position: 43N (ED50)/Access: Easy/Finding it: Difficult/Interest: ★★★★/Difficulty: ☆//Landmarks"
        "/Landmark 1: church/Landmark 2: mill/Landmark 3: pier/First visit: 31/12/2023/Remarks: "
        "fine/--------------------/");
    EXPECT_EQ(whole.left(first.size()), first);
    const QString second = whole.mid(first.size());
    EXPECT_TRUE(second.startsWith(u"Name: //Characteristics") && second.endsWith(u"/Remarks: /--------------------/"));
    EXPECT_TRUE(second.contains(u"/Material: N/A/Propulsion: N/A/") && second.contains(u"/List: N/A/"));
    EXPECT_FALSE(second.contains(u"Orientation"));
}

}  // namespace

}  // namespace tavrel
