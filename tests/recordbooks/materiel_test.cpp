#include "recordbooks/materiel.h"

#include "recordbooks/bookfixture.h"
#include "recordbooks/recordbooks.h"

namespace tavrel {

namespace {

using MaterielTest = BookFixture<Materiel, invMateriel>;

TEST_F(MaterielTest, readsVersion1WithItsDayAsTextAndEveryItemInService) {
    open("01", R"(
        92 8484 84"NSString"01 95 84"+" "7" 86 92 84 99 99 "Regulator" 86 92 84 99 99 "Aqua" 86 92 84 99 99 "S1" 86
        92 84 99 99 "03/5/1999" 86 9602 92 84 99 99 "99,50" 86
        92 8484 84"NSDate"00 95 84"d"01 86 92 84 a0 9b 02 86
        92 84 99 99 "1998" 86 92 84 a0 9b 03 86
        9600 9601 9601 92 84 99 99 "T9" 86 92 84 99 99 "Luc" 86
        84"f"83 00004841 9681e600 96815901 92 84 99 99 "fine" 86)");
    EXPECT_TRUE(holds(record(),
                      "matosNo=7|serieMatos=S1|dateAchatMatos=03/5/1999|dateAchat=1999-05-03|quantiteMatos=2|"
                      "prixMatos=99,50|lastRevision=1|nextRevision=2|firstRequalification=1998|nextRequalification=3|"
                      "noInspection=0|bloc=1|tiv=1|noTIV=T9|nomTIV=Luc|capaciteBloc=12.5|pressionService=230|"
                      "pressionEpreuve=345|notesMatos=fine|equipState=0|factureMatos=0|lieuAchatMatos="));
}

TEST_F(MaterielTest, readsVersion2WithItsStateInvoiceAndShop) {
    const auto openBought = [this](const std::string& day, const std::string& end) {
        open("02", R"(92 85 92 85 92 85 92 85 92 8484 84"NSString"01 95 84"+" )" + day +
                       R"( 86 9601 92 85 92 85 92 85 92 85 92 85
                       9600 9600 9600 92 85 92 85 84"f"00 9600 9600 92 85 )" +
                       end);
    };
    openBought(R"("12/11/2003")", R"(9605 9601 92 84 99 99 "Shop" 86)");
    EXPECT_TRUE(holds(record(), "dateAchat=2003-11-12|equipState=5|factureMatos=1|lieuAchatMatos=Shop|matosNo=nil"));
    // A day that is none is kept as it was written.
    openBought(R"("long ago")", "9600 9600 92 85");
    EXPECT_TRUE(holds(record(), "dateAchat=nil|dateAchatMatos=long ago|notesMatos=Purchase date: long ago"));
}

TEST_F(MaterielTest, proposesTheNextNumberTodayAndOnePieceWithoutInspection) {
    hold({{}, {}});
    book->newRecord();
    const auto item = built();
    EXPECT_TRUE(holds(*item, "matosNo=3|quantiteMatos=1|noInspection=1|equipState=0|capaciteBloc=0"));
    EXPECT_TRUE(item->dateAchat == Date::fromDateTime(desktop.clock.moment));
    for (const Date& day : {item->lastRevision, item->nextRevision, item->nextRequalification}) {
        EXPECT_TRUE(day == noDate());
    }
    EXPECT_EQ(at("tempsProgress").level, 0);
    EXPECT_EQ(book->editWindowTitle(), u"Equipment card no. 3");
}

TEST_F(MaterielTest, hidesWhatAnItemDoesNotHave) {
    // Of the item, of its tank, of the technician.
    const auto visible = [this] {
        return eachOf(
                   "blocSwitch tivSwitch lastRevisionField nextRevisionField firstRequalificationField "
                   "nextRequalificationField capaciteField pressionServiceField pressionEpreuveField noTIVField "
                   "nomTIVField",
                   [this](const char* control) { return QString::number(at(control).visible); })
            .remove(u'|');
    };
    book->newRecord();
    EXPECT_EQ(visible(), u"00000000000");
    enter("noInspectionSwitch=0");
    EXPECT_EQ(visible(), u"10110000000");
    enter("blocSwitch=1");
    EXPECT_EQ(visible(), u"11111111100");
    enter("tivSwitch=1");
    EXPECT_EQ(visible(), u"11111111111");
    enter("blocSwitch=0");
    EXPECT_EQ(visible(), u"10110000000");
    enter("blocSwitch=1|lastRevisionField=2020-01-01|nextRequalificationField=2022-01-01|noInspectionSwitch=1");
    EXPECT_EQ(visible(), u"00000000000");
    EXPECT_EQ(at("blocSwitch").tag, 0);
    EXPECT_EQ(at("tivSwitch").tag, 0);
    EXPECT_TRUE(at("lastRevisionField").date == noDate() && at("nextRequalificationField").date == noDate());
}

TEST_F(MaterielTest, keepsWhatTheSwitchForNoInspectionHides) {
    const char* values = "bloc=1|tiv=1|lastRevision=2020-01-01|nextRevision=2021-01-01|nextRequalification=2022-01-01";
    const char* nothing = "noInspection=1|bloc=0|tiv=0";
    auto item = filled<Materiel>(values);
    hold({item});
    book->userSelects({0});
    enter("noInspectionSwitch=1|notesMatosField=x");
    EXPECT_TRUE(holds(*built(), nothing) && built()->lastRevision == noDate());
    enter("noInspectionSwitch=0");
    EXPECT_TRUE(holds(*built(), values));

    item.noInspection = 1;
    book->form().editFields(item);
    EXPECT_TRUE(at("blocSwitch").tag == 0 && at("nextRevisionField").date == noDate());
    enter("notesMatosField=x");
    EXPECT_TRUE(holds(*built(), values));
    enter("noInspectionSwitch=0|noInspectionSwitch=1");
    EXPECT_TRUE(holds(*built(), values));
    enter("noInspectionSwitch=0|nextRevisionField=2030-01-01|noInspectionSwitch=1");
    EXPECT_TRUE(holds(*built(), nothing) && built()->nextRevision == noDate());

    // The order of entries does not matter, and nothing comes from the record before.
    book->form().blankFields(1);
    enter("lastRevisionField=2020-01-01|blocSwitch=1|noInspectionSwitch=0");
    EXPECT_TRUE(holds(*built(), "noInspection=0|bloc=1|tiv=0|lastRevision=2020-01-01"));
    EXPECT_TRUE(built()->nextRevision == noDate());
}

TEST_F(MaterielTest, tellsHowFarTheTimeToTheNextInspectionHasRun) {
    desktop.clock.moment = QDate(2021, 7, 1).startOfDay();
    hold({filled<Materiel>("lastRevision=2020-01-01|nextRevision=2021-01-01")});
    book->userSelects({0});
    // 547 of 366 days.
    EXPECT_NEAR(at("tempsProgress").level, 149.45, 0.02);
    EXPECT_EQ(texts("pourcentageRevField delaiDepasseField"), u"149 %|Inspection overdue");
    EXPECT_EQ(at("delaiDepasseField").colour, plaincolour::red);

    enter("nextRevisionField=2030-01-01");
    EXPECT_EQ(texts("pourcentageRevField delaiDepasseField"), u"15 %|Time elapsed");
    EXPECT_FALSE(at("delaiDepasseField").colour.isValid());
    enter("nextRevisionField=2020-01-01");
    EXPECT_EQ(at("tempsProgress").level, 0);

    desktop.clock.moment = QDate(2021, 1, 1).startOfDay();
    enter("nextRevisionField=2021-01-01");
    EXPECT_EQ(at("delaiDepasseField").text, u"Inspection overdue");
    // Both texts end before the colour would.
    for (const auto& language : {QStringLiteral("fr"), QStringLiteral("en")}) {
        setTextLanguage(language);
        EXPECT_LE(text("Materiel", "Out of date").size(), 27);
    }
}

TEST_F(MaterielTest, showsDashAndNoProgressForWhatNeedsNoInspectionWhileTheColumnGoesOn) {
    desktop.clock.moment = QDate(2021, 7, 1).startOfDay();
    auto item = filled<Materiel>("lastRevision=2020-01-01|nextRevision=2021-01-01");
    EXPECT_EQ(cell(item, "progress").text.left(4), u"149.");
    EXPECT_EQ(cell(item, "progress").text.size(), 10);
    item.noInspection = 1;
    EXPECT_EQ(cells(item, "nextRevision progress").left(6), u"-|149.");
    EXPECT_EQ(cell(Materiel(), "progress").text, u"0.000000");
    hold({item});
    book->userSelects({1});
    EXPECT_EQ(at("pourcentageRevField").text, u"0 %");
}

TEST_F(MaterielTest, namesAndColoursTheStates) {
    const std::pair<const char*, const char*> states[] = {
        {"In service", "#1f8703"}, {"To repair", "#ff8000"}, {"Scrapped", "#ff0000"},   {"Given away", "#0000ff"},
        {"Sold", "#0000ff"},       {"Lost", "#ff0000"},      {"To replace", "#ff8000"}, {"7", "default"},
    };
    Materiel item;
    for (const auto& [words, its] : states) {
        EXPECT_EQ(cell(item, "equipState").text, QString::fromUtf8(words));
        EXPECT_EQ(colour(item, "equipState"), its);
        ++item.equipState;
    }
    EXPECT_EQ(cell(item, "factureMatos").text, u"");
    item = filled<Materiel>("equipState=-1|factureMatos=1");
    item.dateAchat = noDate();
    EXPECT_EQ(cells(item, "equipState factureMatos dateAchat"), u"-1|✓|");
    EXPECT_EQ(colour(item, "factureMatos"), "#ff0000");
    EXPECT_EQ(colour(item, "matosNo"), "#996633");
    EXPECT_EQ(colour(item, "typeMatos"), "default");
}

TEST_F(MaterielTest, writesTheCardOfATankInItsOrder) {
    auto item = filled<Materiel>(
        "lastRevision=2020-01-31|nextRevision=2021-02-01|matosNo=7|typeMatos=Tank|marqueMatos=Aqua|serieMatos=S1|"
        "dateAchat=2019-12-24|lieuAchatMatos=Shop|quantiteMatos=2|prixMatos=99.50|factureMatos=1|bloc=1|tiv=1|"
        "capaciteBloc=12.5|pressionService=230|pressionEpreuve=345|firstRequalification=1998|"
        "nextRequalification=2025-06-01|nomTIV=Luc|noTIV=T9|equipState=1|notesMatos=fine");
    const QString head = QStringLiteral(
        "Equipment inventory//--------------------/Card no.: 7/Equipment type: Tank/Brand: Aqua/Serial no.: S1"
        "/Purchase date: 24/12/2019/Place of purchase: Shop/Quantity: 2/Price: 99.50/Invoice: Yes");
    const QString dates = QStringLiteral("/Last inspection: 31/01/2020/Next inspection: 01/02/2021");
    const QString tank = QStringLiteral(
        "/bloc/Capacity (l): 12/Service pressure (bar): 230/Test pressure (bar): 345/First pressure test: 1998"
        "/Next pressure test: 01/06/2025");
    const QString technician = QStringLiteral("/Inspection technician: Luc/Technician no.: T9");
    const QString tail = QStringLiteral("/State: To repair/Remarks: fine");
    EXPECT_EQ(card({item}), head + dates + tank + technician + tail);
    item.tiv = 0;
    EXPECT_EQ(card({item}), head + dates + tank + tail);
    item.bloc = 0;
    item.tiv = 1;
    EXPECT_EQ(card({item}), head + dates + tail);
    item.noInspection = 1;
    item.bloc = 1;
    item.factureMatos = 0;
    EXPECT_EQ(card({item}), QString(head).replace(QStringLiteral("Yes"), QStringLiteral("No")) + tail);
}

TEST_F(MaterielTest, asksWithTheTypeWhicheverListIsAddedTo) {
    desktop.preferences.set(QStringLiteral("fabricants"), QStringList{QStringLiteral("Zeta")});
    desktop.pickLists.fill();
    book->newRecord();
    enter("typeMatosField=Regulator");
    desktop.alerts.answerNext(0);
    book->form().endEditing(indexOf("marqueMatosField"), QStringLiteral("  Aqua "));
    ASSERT_EQ(desktop.alerts.questions.size(), 1U);
    EXPECT_TRUE(desktop.alerts.questions[0].message.startsWith(u"Add “Regulator” to the list?\n"));
    EXPECT_EQ(desktop.alerts.questions[0].buttons, QStringList({QStringLiteral("&Yes"), QStringLiteral("&No")}));
    EXPECT_EQ(desktop.alerts.beeps, 1);
    EXPECT_EQ(desktop.pickLists[PickList::tableauDesMarques],
              QStringList({QStringLiteral("Aqua"), QStringLiteral("Zeta")}));
}

}  // namespace

}  // namespace tavrel
