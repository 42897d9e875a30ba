#include "recordbooks/rebreather.h"

#include "recordbooks/bookfixture.h"
#include "recordbooks/recordbooks.h"

namespace tavrel {

namespace {

using RebreatherTest = BookFixture<Rebreather, rebreatherServ>;

TEST_F(RebreatherTest, readsOldVersionsWithoutAndWithTheOxygenCheck) {
    open("01", R"(
        92 8484 84"NSDate"00 95 84"d"01 86 92 8484 84"NSString"01 95 84"+" "120 h" 86 92 84 99 99 02 86
        9601 9602 9603 9604 9605 9606 9607 9608 9609 960a 92 84 9b 9b "note" 86)");
    EXPECT_TRUE(holds(record(),
                      "date=1|rebreatherTime=120 h|sofnoTime=2|sofnolime=1|cells=4|nbCells=5|scrubber=10|mpO2=0|"
                      "mpO2Value=0|cell1=0|cell5_in=nil|notes=note"));
    open("02", R"(92 85 92 85 92 85 9601 9600 9600 9600 9600 9600 9600 9600 9600 9601 9601 84"f"83 0000a03f
        92 8484 84"NSString"01 95 84"+" "note" 86)");
    EXPECT_TRUE(holds(record(), "scrubber=1|mpO2=1|mpO2Value=1.25|cell3=0|notes=note"));
}

TEST_F(RebreatherTest, countsMonthsOfACellIn32Bits) {
    const Date fitted = Date::fromDateTime(QDateTime(QDate(2024, 1, 1), QTime(0, 0), Qt::UTC));
    EXPECT_EQ(endOfCellLife(fitted, 12).toIso(), u"2024-12-31T06:00:00Z");
    EXPECT_EQ(endOfCellLife(fitted, 0).toIso(), fitted.toIso());
    EXPECT_EQ(endOfCellLife(Date(0), 816).secondsSince2001(), 2145916800.0);
    // 817 months are 2148546600 seconds, which a 32-bit number holds as -2146420696.
    EXPECT_EQ(endOfCellLife(Date(0), 817).secondsSince2001(), -2146420696.0);
    EXPECT_TRUE(endOfCellLife(Date(), 12).isNull());
}

TEST_F(RebreatherTest, showsTheLifeOfTheCellsThatAreFitted) {
    desktop.preferences.set(QStringLiteral("cell life"), QStringLiteral("12"));
    desktop.clock.moment = QDateTime(QDate(2024, 7, 1), QTime(15, 0));
    book->newRecord();
    EXPECT_EQ(at("cell1Progress").level, 0);
    const auto first = filled<Rebreather>("cell1=1|cell1_in=2024-01-01|cell2_in=2024-01-01");
    Rebreather second = first;
    second.cell2 = 1;
    second.cell1 = 0;
    hold({first, second});
    book->userSelects({0});
    EXPECT_EQ(at("cell1_outField").date.toDateTime(), QDateTime(QDate(2024, 12, 31), QTime(6, 0)));
    EXPECT_FALSE(at("cell1_outField").enabled);
    // 182 days and 15 hours of 365 days and 6 hours.
    EXPECT_NEAR(at("cell1Progress").level, 50.0, 0.05);
    EXPECT_TRUE(at("cell2_outField").date.isNull());

    // The end stays with the stored day until the entry is stored; the share follows the entry.
    enter("cell1_inField=2024-07-01");
    EXPECT_EQ(at("cell1_outField").date.toDateTime(), QDateTime(QDate(2024, 12, 31), QTime(6, 0)));
    EXPECT_LT(at("cell1Progress").level, 1);
    book->updateRecord();
    EXPECT_EQ(at("cell1_outField").date.toDateTime(), QDateTime(QDate(2025, 7, 1), QTime(6, 0)));

    // What the first record's cell showed stays for one that is not fitted.
    book->userSelects({1});
    EXPECT_EQ(at("cell1_outField").date.toDateTime(), QDateTime(QDate(2025, 7, 1), QTime(6, 0)));
    EXPECT_EQ(at("cell2_outField").date.toDateTime(), QDateTime(QDate(2024, 12, 31), QTime(6, 0)));
}

TEST_F(RebreatherTest, offersTheNumberOfCellsOnlyWhenTheyAreReplaced) {
    book->newRecord();
    EXPECT_FALSE(at("nbCellsPopUp").enabled);
    enter("cellsSwitch=1");
    EXPECT_TRUE(at("nbCellsPopUp").enabled);
}

TEST_F(RebreatherTest, ticksOperationsInGreenAndLeavesZerosOut) {
    const Rebreather none;
    const auto all = filled<Rebreather>(
        "sofnolime=1|disinfection=1|battery=1|injector=1|valve=1|oRing=1|electronicHead=1|scrubber=1|nbCells=3|"
        "mpO2Value=1.25|sofnoTime=2001-01-01T03:30");
    for (const char* field :
         {"sofnolime", "disinfection", "battery", "injector", "valve", "oRing", "electronicHead", "scrubber"}) {
        EXPECT_EQ(cell(none, field).text, u"") << field;
        EXPECT_EQ(cell(all, field).text, u"✓") << field;
        EXPECT_EQ(colour(all, field), "#00ff00") << field;
    }
    EXPECT_EQ(cells(none, "nbCells mpO2Value"), u"|");
    EXPECT_EQ(cells(all, "nbCells mpO2Value sofnoTime"), u"3|1.25|03:30");
    for (const char* field : {"date", "rebreatherTime", "sofnoTime", "nbCells", "mpO2Value"}) {
        EXPECT_EQ(colour(all, field), "#000000") << field;
    }
}

TEST_F(RebreatherTest, writesACardWithTheCellsOfTheLastIntervention) {
    const auto first = filled<Rebreather>(
        "date=2024-05-03|rebreatherTime=120|sofnoTime=2001-01-01T03:30|sofnolime=1|disinfection=1|battery=1|cells=1|"
        "injector=1|valve=1|oRing=1|electronicHead=1|scrubber=1|mpO2=1|cell2=1|mpO2Value=1.25|notes=fine");
    auto last = filled<Rebreather>(
        "date=2024-06-04|disinfection=1|cells=1|valve=1|electronicHead=1|cell1=1|cell3=1|cell1_in=2024-01-02|cell2_in="
        "2024-01-03|cell3_in=2024-01-04");
    last.sofnoTime = noDate();
    EXPECT_EQ(card({first, last}),
              QStringLiteral(
                  "Rebreather interventions//Oxygen cells/Cell 1: 02/01/2024/Cell 2: -/Cell 3: 04/01/2024/Cell 4: -"
                  "/Cell 5: -/----------------------------------------/Date: 03/05/2024//History/Running time: 120"
                  "/Absorbent time: 03:30 h/- Absorbent replaced/- Disinfection/- Battery replaced/- Cells replaced"
                  "/- Oxygen partial pressure : 1.25 bar/- Injector/- Valve/- O-rings/- Electronic head/- Scrubber"
                  "//Remarks: fine/----------------------------------------/Date: 04/06/2024//History/Running time: "
                  "/Absorbent time: 00:00 h/- Disinfection/- Cells replaced/- Valve/- Electronic head//Remarks: "
                  "/----------------------------------------/"));
    const RecordList list = listOf<Rebreather>({first, last});
    EXPECT_TRUE(description.card({list, {0}}, desktop.desktop(), QString())
                    .text()
                    .contains(u"Oxygen cells\rCell 1: 02/01/2024"));
}

}  // namespace

}  // namespace tavrel
