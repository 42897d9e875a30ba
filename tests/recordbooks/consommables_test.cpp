#include "recordbooks/consommables.h"

#include "recordbooks/bookfixture.h"
#include "recordbooks/recordbooks.h"

#include <limits>

namespace tavrel {

namespace {

using ConsommablesTest = BookFixture<Consommables, invConso>;

TEST_F(ConsommablesTest, readsVersion1WithWholeNumbers) {
    open("01", R"(
        92 8484 84"NSString"01 95 84"+" "R1" 86 92 84 99 99 "Aqua" 86 92 84 99 99 "hose" 86
        9603 9681c800 92 84 99 99 "box" 86 9601 92 8484 84"NSDate"00 95 84"d"04 86 92 84 99 99 "note" 86)");
    EXPECT_TRUE(holds(record(),
                      "reference=R1|marque=Aqua|utilisation=hose|stock=3|reserve=200|rangement=box|noInventaire=1|"
                      "dateInventaire=4|notes=note"));
}

TEST_F(ConsommablesTest, coloursWhatIsBelowItsReserve) {
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const std::tuple<float, float, const char*, const char*> cases[] = {
        {2, 5, "#ff0000", "#ff0000"},   {5, 5, "#ff8000", "#000000"},     {6, 5, "#000000", "#000000"},
        {nan, 5, "#000000", "#000000"}, {nan, nan, "#000000", "#000000"}, {5, nan, "#000000", "#000000"},
    };
    Consommables part;
    for (const auto& [stock, reserve, reference, quantity] : cases) {
        part.stock = stock;
        part.reserve = reserve;
        EXPECT_EQ(colour(part, "reference"), reference) << stock << ' ' << reserve;
        EXPECT_EQ(colour(part, "stock"), quantity) << stock << ' ' << reserve;
    }
    EXPECT_EQ(colour(part, "reserve"), "default");
}

TEST_F(ConsommablesTest, measuresTheStockInTenthsOfTheReserve) {
    // In single precision the last product is 167772144, and a tenth of it 16777214.
    const std::pair<const char*, const char16_t*> cases[] = {{"stock=2|reserve=5", u"4.000000"},
                                                             {"stock=5|reserve=5", u"10.000000"},
                                                             {"stock=2.5|reserve=0", u"25.000000"},
                                                             {"stock=1|reserve=3", u"3.333333"},
                                                             {"stock=16777215|reserve=10", u"16777214.000000"}};
    for (const auto& [held, tenths] : cases) {
        EXPECT_EQ(cell(filled<Consommables>(held), "progress").text, tenths);
    }
}

TEST_F(ConsommablesTest, marksWhatItBuildsAndHidesTheDayOfWhatIsNotCounted) {
    book->newRecord();
    enter("stockField=2,5|reserveField=4");
    const auto part = built();
    EXPECT_TRUE(holds(*part, "stock=2.5|reserve=4|progress=7.4"));
    EXPECT_TRUE(part->dateInventaire == noDate());

    auto counted = filled<Consommables>("dateInventaire=2024-05-03");
    EXPECT_TRUE(cell(counted, "dateInventaire").text.contains(u"2024"));
    counted.noInventaire = 1;
    EXPECT_EQ(cell(counted, "dateInventaire").text, u"");
}

TEST_F(ConsommablesTest, writesACardOfEachPart) {
    const auto part =
        filled<Consommables>("stock=2.5|reserve=4|reference=R1|marque=Aqua|utilisation=hose|rangement=box|notes=fine");
    EXPECT_EQ(card({part, {}}),
              QStringLiteral("Consumables inventory//--------------------/Reference: R1/Brand: Aqua/Use: hose"
                             "/Quantity: 2.5/Storage place: box/Remarks: fine//--------------------/Reference: /Brand: "
                             "/Use: /Quantity: 0/Storage place: /Remarks: "));
}

}  // namespace

}  // namespace tavrel
