#include "recordbooks/structures.h"

#include "recordbooks/bookfixture.h"
#include "recordbooks/recordbooks.h"

namespace tavrel {

namespace {

class StructuresTest : public BookFixture<Structures> {
protected:
    StructuresTest() : BookFixture(adressesStruct()) {}
};

TEST_F(StructuresTest, readsItsArchive) {
    std::string notation = R"(
        04 "streamtyped" 81e803 84"@"
        8484 84"NSMutableArray"00 8484"NSArray"00 8484"NSObject"00 85 84"i"01
        92 8484 84"Structures"00 95
        92 8484 84"NSString"01 95 84"+" "Club" 86 9602 92 84 99 99 "FF" 86 92 85 92 85 9681e803
        92 85 92 85 92 85 92 84 99 99 "06" 86 92 85 92 85 92 85 9605 92 8484 84"NSDate"00 95 84"d"04 86
        92 85 92 84 99 99 "boat" 86 92 85 92 85 92 85
        84"f"28 9c00 9c8300000842 9c00 9c00 9c00
        92 85 92 85 92 85 92 85 92 85 92 84 99 99 "wreck" 86
        9c00 9c00 9c00 9c00 9c00 9c64 )";
    for (int hour = 0; hour < 28; ++hour) {
        notation += hour == 27 ? R"(92 84 99 99 "late" 86 )" : "92 85 ";
    }
    open(notation + R"(960c 92 84 99 99 "fine" 86 86 86)");
    EXPECT_EQ(record().nom, u"Club");
    EXPECT_EQ(record().type, 2);
    EXPECT_EQ(record().affiliation, u"FF");
    EXPECT_EQ(record().codePostal, 1000);
    EXPECT_EQ(record().portable, u"06");
    EXPECT_EQ(record().cotation, 5);
    EXPECT_TRUE(record().miseAJour == Date(4));
    EXPECT_EQ(record().plongee_2, u"boat");
    EXPECT_EQ(record().bapteme, 40);
    EXPECT_EQ(record().prix_2, 34);
    EXPECT_EQ(record().formation_6, u"wreck");
    EXPECT_EQ(record().prixForm_6, 100);
    EXPECT_EQ(record().horaireDimanche_4, u"late");
    EXPECT_EQ(record().nbPlongees, 12);
    EXPECT_EQ(record().remarques, u"fine");
}

TEST_F(StructuresTest, startsAsACommercialClubThatIsOpenAnyDay) {
    book->newRecord();
    const auto blank = built();
    EXPECT_EQ(blank->type, 1);
    EXPECT_EQ(blank->cotation, 0);
    EXPECT_EQ(blank->horaireLundi_1, u"-");
    EXPECT_EQ(blank->horaireDimanche_4, u"-");
    EXPECT_TRUE(blank->miseAJour == Date::fromDateTime(desktop.clock.moment));
}

TEST_F(StructuresTest, holdsPostalCodesAsNumbers) {
    book->newRecord();
    enter("codePostalField", "01000");
    const auto club = built();
    EXPECT_EQ(club->codePostal, 1000);
    book->form().editFields(*club);
    EXPECT_EQ(at("codePostalField").text, u"1000");
    EXPECT_TRUE(card({*club}).contains(u"/Address:  1000  /"));
}

TEST_F(StructuresTest, coloursRatingsAndNothingByAge) {
    Structures club;
    EXPECT_EQ(colour(club, "cotation"), "#000000");
    club.cotation = 6;
    EXPECT_EQ(colour(club, "cotation"), "#996633");
    EXPECT_EQ(cell(club, "cotation").text, u"☆");
    club.miseAJour = Date(0);
    EXPECT_EQ(colour(club, "miseAJour"), "default");
}

TEST_F(StructuresTest, listsPricesOfWhatHasAName) {
    Structures club;
    club.nom = QStringLiteral("Club");
    club.gerant = QStringLiteral("Anne");
    club.cotation = 7;
    club.bapteme = 45;
    club.prix_1 = 99;
    club.plongee_2 = QStringLiteral("Boat dive");
    club.prix_2 = 32.5F;
    club.formation_6 = QStringLiteral("Nitrox");
    club.prixForm_6 = 120.999F;
    club.nbPlongees = 12;
    const QString text = card({club});
    EXPECT_TRUE(text.startsWith(
        u"Club address book/Name: Club/Type: Non-profit/Affiliation: /Manager: Anne/Address:  0  /Telephone: /Mobile: "
        u"/Fax: /E-mail: /Web: /Rating: 7/Updated on: /Prices:/Bapteme : 45.00 €/Boat dive : 32.50 €/Nitrox : 121.00 €/"
        u"/Opening hours:/   Monday:  -  /  - "))
        << text.toStdString();
    EXPECT_TRUE(text.endsWith(u"/   Sunday:  -  /  - /Dives made: 12/Remarks: ")) << text.toStdString();
    club.type = 1;
    EXPECT_TRUE(card({club}).contains(u"/Type: Commercial/"));
    club.type = 2;
    EXPECT_TRUE(card({club}).contains(u"/Type: Unknown/"));
    club.type = 3;
    EXPECT_TRUE(card({club}).contains(u"/Type: /"));
    EXPECT_TRUE(card({{}}).contains(u"/Prices:/Bapteme : 0.00 €//Opening hours:"));
}

}  // namespace

}  // namespace tavrel
