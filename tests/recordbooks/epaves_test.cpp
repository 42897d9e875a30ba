#include "recordbooks/epaves.h"

#include "recordbooks/bookfixture.h"
#include "recordbooks/recordbooks.h"

namespace tavrel {

namespace {

class EpavesTest : public BookFixture<Epaves> {
protected:
    EpavesTest() : BookFixture(repEpaves()) {}

    /// A file of one wreck: what comes before its length, what between width and orientation, what between list and
    /// place, and what stands at its end.
    static std::string file(const char* version, const char* sizes, const char* orientationSwitch, const char* toVisit,
                            const char* end) {
        return std::string(R"(
            04 "streamtyped" 81e803 84"@"
            8484 84"NSMutableArray"00 8484"NSArray"00 8484"NSObject"00 85 84"i"01
            92 8484 84"Epaves")") +
               version + R"( 95
            92 8484 84"NSString"01 95 84"+" "Aline" 86 92 85 92 85 92 85 )" +
               sizes + R"( 9602 9681f401 9602 92 85 92 85 92 85 92 85 )" + "84\"f\"" + R"( 83 00004841 9a 1e )" +
               orientationSwitch + R"( 965a 9603 92 8484 84"NSDate"00 95 84"d"05 86 )" + toVisit +
               R"( 92 85 92 84 99 99 "Reef" 86 92 85 92 85
               9601 9602 9603 9601 9604 9605
               92 84 99 99 "church" 86 92 84 99 99 "mill" 86 92 84 99 99 "church" 86 92 85 92 84 99 99 "note" 86 )" +
               end + " 86 86";
    }
    void expectCommonFields() {
        EXPECT_EQ(record().nom, u"Aline");
        EXPECT_EQ(record().materiau, 2);
        EXPECT_EQ(record().jauge, 500);
        EXPECT_EQ(record().pointHaut, 12.5F);
        EXPECT_EQ(record().pointBas, 30);
        EXPECT_EQ(record().orientation, 90);
        EXPECT_EQ(record().inclinaison, 3);
        EXPECT_TRUE(record().dateVisite == Date(5));
        EXPECT_EQ(record().site, u"Reef");
        EXPECT_EQ(record().gpsSystem, 1);
        EXPECT_EQ(record().technicite, 5);
        EXPECT_EQ(record().relevement2, u"mill");
        EXPECT_EQ(record().relevement3, u"church");
        EXPECT_EQ(record().notes, u"note");
    }
    void expectNoHistory() {
        const Epaves& wreck = record();
        for (const QString* text : {&wreck.typeMachine, &wreck.puissance, &wreck.natureFond, &wreck.nomsPrecedents,
                                    &wreck.armateur, &wreck.ports, &wreck.capitaine, &wreck.equipage, &wreck.chargement,
                                    &wreck.provenance, &wreck.destination}) {
            EXPECT_EQ(*text, u"");
            EXPECT_FALSE(text->isNull());
        }
        EXPECT_TRUE(wreck.miseAJour.isNull());
    }

    static Epaves rated(qint32 interest, qint32 difficulty) {
        Epaves wreck;
        wreck.interet = interest;
        wreck.technicite = difficulty;
        return wreck;
    }
};

TEST_F(EpavesTest, readsVersion1WithWholeMetresAndWithoutSwitches) {
    open(file("01", "9628 960a", "", "", ""));
    expectCommonFields();
    expectNoHistory();
    EXPECT_EQ(record().longueur, 40);
    EXPECT_EQ(record().largeur, 10);
    EXPECT_EQ(record().orientationSwitch, 0);
    EXPECT_EQ(record().aVisiter, 0);
}

TEST_F(EpavesTest, readsVersion2WithWhatIsToBeVisited) {
    open(file("02", "9628 960a", "", "9601", ""));
    expectCommonFields();
    expectNoHistory();
    EXPECT_EQ(record().orientationSwitch, 0);
    EXPECT_EQ(record().aVisiter, 1);
}

TEST_F(EpavesTest, readsVersion3WithTheOrientationSwitch) {
    open(file("03", "9628 960a", "9601", "9601", ""));
    expectCommonFields();
    expectNoHistory();
    EXPECT_EQ(record().longueur, 40);
    EXPECT_EQ(record().orientationSwitch, 1);
    EXPECT_EQ(record().aVisiter, 1);
}

TEST_F(EpavesTest, readsVersion4WithDecimalMetres) {
    const std::string sizes = R"(84"f" 83 00002242 98 83 00002841)";
    std::string bytes = file("04", sizes.c_str(), "9601", "9600", "");
    // The code of decimals is met with the length already, and is called by its place from then on.
    bytes.replace(bytes.find(sizes), sizes.size(), R"(84"f" 83 00002242 9a 83 00002841)");
    const std::string second = "84\"f\" 83 00004841";
    bytes.replace(bytes.rfind(second), second.size(), "9a 83 00004841");
    open(bytes);
    expectCommonFields();
    expectNoHistory();
    EXPECT_EQ(record().longueur, 40.5F);
    EXPECT_EQ(record().largeur, 10.5F);
    EXPECT_EQ(record().aVisiter, 0);
}

TEST_F(EpavesTest, givesBackTheFirstLandmarkAsTheThird) {
    Epaves wreck;
    wreck.relevement1 = QStringLiteral("church");
    wreck.relevement2 = QStringLiteral("mill");
    wreck.relevement3 = QStringLiteral("tower");
    hold({wreck});
    const auto bytes = book->dataRepresentationOfType(book->type());
    ASSERT_TRUE(book->loadDataRepresentation(*bytes, book->type()));
    EXPECT_EQ(record().relevement1, u"church");
    EXPECT_EQ(record().relevement2, u"mill");
    EXPECT_EQ(record().relevement3, u"church");
}

TEST_F(EpavesTest, writesMetresAndNamesInItsColumns) {
    Epaves wreck;
    wreck.longueur = 40.25F;
    wreck.pointHaut = 12.5F;
    wreck.pointBas = 30;
    EXPECT_EQ(cell(wreck, "longueur").text, u"40.2 m");
    EXPECT_EQ(cell(wreck, "pointHaut").text, u"12.5 m");
    EXPECT_EQ(cell(wreck, "pointBas").text, u"30 m");
    const char* propulsions[] = {"",      "Petrol", "Diesel", "Kerosene",        "Nuclear", "Oars",
                                 "Steam", "Sail",   "Towed",  "Diesel-electric", ""};
    for (qint32 propulsion = 0; propulsion < 11; ++propulsion) {
        wreck.propulsion = propulsion;
        EXPECT_EQ(cell(wreck, "propulsion").text, QString::fromUtf8(propulsions[propulsion])) << propulsion;
    }
    EXPECT_EQ(cell(rated(3, 0), "interet").text, u"★★★");
    EXPECT_EQ(cell(rated(3, 0), "interet").words, u"3 of 5 stars");
    EXPECT_EQ(cell(rated(3, 5), "technicite").text, u"★★★★★");
    EXPECT_EQ(cell(rated(0, 0), "interet").text, u"☆");
}

TEST_F(EpavesTest, coloursNamesToVisitAndTheInterestByTheDifficulty) {
    Epaves wreck;
    EXPECT_EQ(colour(wreck, "nom"), "#000000");
    wreck.aVisiter = 1;
    EXPECT_EQ(colour(wreck, "nom"), "#ff0000");
    EXPECT_EQ(colour(rated(5, 0), "interet"), "#000000");
    EXPECT_EQ(colour(rated(0, 1), "interet"), "#996633");
    const char* colours[] = {"#000000", "#00ff00", "#0000ff", "#ff0000", "#800080", "#000000", "#000000"};
    for (qint32 difficulty = 0; difficulty < 7; ++difficulty) {
        EXPECT_EQ(colour(rated(0, difficulty), "technicite"), colours[difficulty]) << difficulty;
    }
    EXPECT_EQ(colour(wreck, "type"), "default");
}

TEST_F(EpavesTest, writesTheCardInItsOrderWithThePropulsionNamedByMaterials) {
    Epaves wreck;
    wreck.nom = QStringLiteral("Aline");
    wreck.type = QStringLiteral("cargo ship");
    wreck.immatriculation = QStringLiteral("R1");
    wreck.longueur = 40.5F;
    wreck.largeur = 10;
    wreck.jauge = 500;
    wreck.materiau = 1;
    wreck.propulsion = 2;
    wreck.typeMachine = QStringLiteral("two");
    wreck.puissance = QStringLiteral("600");
    wreck.pointHaut = 12.5F;
    wreck.pointBas = 30;
    wreck.natureFond = QStringLiteral("sand");
    wreck.orientationSwitch = 1;
    wreck.orientation = 90;
    wreck.inclinaison = 2;
    wreck.miseAJour = day(2024, 5, 3);
    wreck.gps = QStringLiteral("43N");
    wreck.gpsSystem = 2;
    wreck.acces = 1;
    wreck.localisation = 3;
    wreck.interet = 4;
    wreck.relevement1 = QStringLiteral("church");
    wreck.dateVisite = day(2023, 12, 31);
    const QString whole = card({wreck, {}});
    const QString first = QStringLiteral(
        "Wreck repertory/--------------------/Name: Aline//Characteristics/Type of ship: cargo ship/Registration: R1"
        "/Length (m): 40.5/Width (m): 10/Tonnage: 500/Material: Wood/Propulsion: Iron/Engine type: two/Power: 600"
        "/Shallowest point: 12.5 m/Deepest point: 30 m/Bottom: sand/Orientation: 90°/List: To port//History"
        "/Previous names: /Nationality: /Owner: /Built: /Built at: /Home ports: /Captain: /Crew: /Cargo: /From: /To: "
        "/Sunk on: /Cause of sinking: /Updated on: 03/05/2024//Location/Place: /Site: /Country: "
        "/GPS position: 43N (ED50)/Access: Easy/Finding it: Difficult/Interest: ★★★★/Difficulty: ☆//Landmarks"
        "/Landmark 1: church/Landmark 2: /Landmark 3: /First visit: 31/12/2023/Remarks: /--------------------/");
    EXPECT_EQ(whole.left(first.size()), first);
    const QString second = whole.mid(first.size());
    EXPECT_TRUE(second.startsWith(u"Name: //Characteristics")) << second.toStdString();
    EXPECT_TRUE(second.contains(u"/Material: N/A/Propulsion: N/A/"));
    EXPECT_FALSE(second.contains(u"Orientation"));
    EXPECT_TRUE(second.contains(u"/List: N/A/"));
    EXPECT_TRUE(second.endsWith(u"/Remarks: /--------------------/"));
}

TEST_F(EpavesTest, storesNoAccessOnBoardOnItsCard) {
    Epaves wreck;
    wreck.accesBord = 3;
    EXPECT_FALSE(card({wreck}).contains(u"Difficult/"));
}

}  // namespace

}  // namespace tavrel
