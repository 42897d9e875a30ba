#include "recordbooks/structures.h"

#include "recordbooks/bookfixture.h"
#include "recordbooks/recordbooks.h"

namespace tavrel {

namespace {

using StructuresTest = BookFixture<Structures, adressesStruct>;

TEST_F(StructuresTest, readsItsArchive) {
    std::string items = R"(
        92 8484 84"NSString"01 95 84"+" "Club" 86 9602 92 84 99 99 "FF" 86 92 85 92 85 9681e803
        92 85 92 85 92 85 92 84 99 99 "06" 86 92 85 92 85 92 85 9605 92 8484 84"NSDate"00 95 84"d"04 86
        92 85 92 84 99 99 "boat" 86 92 85 92 85 92 85
        84"f"28 9c00 9c8300000842 9c00 9c00 9c00
        92 85 92 85 92 85 92 85 92 85 92 84 99 99 "wreck" 86
        9c00 9c00 9c00 9c00 9c00 9c64 )";
    for (int hour = 0; hour < 28; ++hour) {
        items += hour == 27 ? R"(92 84 99 99 "late" 86 )" : "92 85 ";
    }
    open("00", items + R"(960c 92 84 99 99 "fine" 86)");
    EXPECT_TRUE(holds(record(),
                      "nom=Club|type=2|affiliation=FF|codePostal=1000|portable=06|cotation=5|miseAJour=4|"
                      "plongee_2=boat|bapteme=40|prix_2=34|formation_6=wreck|prixForm_6=100|horaireDimanche_4=late|"
                      "nbPlongees=12|remarques=fine"));
}

TEST_F(StructuresTest, startsAsACommercialClubThatIsOpenAnyDay) {
    book->newRecord();
    const auto blank = built();
    EXPECT_TRUE(holds(*blank, "type=1|cotation=0|horaireLundi_1=-|horaireDimanche_4=-"));
    EXPECT_TRUE(blank->miseAJour == Date::fromDateTime(desktop.clock.moment));
    // Postal codes are numbers here.
    enter("codePostalField=01000");
    const auto club = built();
    EXPECT_EQ(club->codePostal, 1000);
    book->form().editFields(*club);
    EXPECT_EQ(at("codePostalField").text, u"1000");
    EXPECT_TRUE(card({*club}).contains(u"/Address:  1000  /"));
}

TEST_F(StructuresTest, coloursRatingsAndNothingByAge) {
    EXPECT_EQ(colour({}, "cotation"), "#000000");
    for (const char* unknown : {"cotation=6", "cotation=-1"}) {
        EXPECT_EQ(colour(filled<Structures>(unknown), "cotation"), "#996633");
        EXPECT_EQ(cell(filled<Structures>(unknown), "cotation").text, u"☆");
    }
    EXPECT_EQ(colour(filled<Structures>("miseAJour=0"), "miseAJour"), "default");
}

TEST_F(StructuresTest, listsPricesOfWhatHasAName) {
    auto club = filled<Structures>(
        "nom=Club|affiliation=FF|gerant=Chair|adresse=Quay 3|ville=Nice|pays=France|telephone=1|portable=2|fax=3|"
        "email=a@b|url=w|remarques=fine|cotation=7|bapteme=45|prix_1=99|plongee_2=Boat dive|prix_2=32.5|"
        "formation_6=Nitrox|prixForm_6=120.999|nbPlongees=12");
    const QString text = card({club});
    EXPECT_TRUE(text.startsWith(
        u"Club address book/Name: Club/Type: Non-profit/Affiliation: FF/Manager: Chair/Address: Quay 3 0 Nice France"
        u"/Telephone: 1/Mobile: 2/Fax: 3/E-mail: a@b/Web: w/Rating: 7/Updated on: /Prices:/Bapteme : 45.00 €"
        u"/Boat dive : 32.50 €/Nitrox : 121.00 €//Opening hours:/   Monday:  -  /  - "))
        << text.toStdString();
    EXPECT_TRUE(text.endsWith(u"/   Sunday:  -  /  - /Dives made: 12/Remarks: fine")) << text.toStdString();
    for (const auto* kind : {u"/Type: Commercial/", u"/Type: Unknown/", u"/Type: /"}) {
        ++club.type;
        EXPECT_TRUE(card({club}).contains(kind)) << club.type;
    }
    EXPECT_TRUE(card({{}}).contains(u"/Prices:/Bapteme : 0.00 €//Opening hours:"));
}

}  // namespace

}  // namespace tavrel
