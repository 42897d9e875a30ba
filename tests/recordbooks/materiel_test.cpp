#include "recordbooks/materiel.h"

#include "recordbooks/bookfixture.h"
#include "recordbooks/recordbooks.h"

namespace tavrel {

namespace {

class MaterielTest : public BookFixture<Materiel> {
protected:
    MaterielTest() : BookFixture(invMateriel()) {}

    static Materiel withState(qint32 state) {
        Materiel item;
        item.equipState = state;
        return item;
    }
    static Materiel inspected(const Date& last, const Date& next) {
        Materiel item;
        item.lastRevision = last;
        item.nextRevision = next;
        return item;
    }
};

TEST_F(MaterielTest, readsVersion1WithItsDayAsTextAndEveryItemInService) {
    open(R"(
        04 "streamtyped" 81e803 84"@"
        8484 84"NSMutableArray"00 8484"NSArray"00 8484"NSObject"00 85 84"i"01
        92 8484 84"Materiel"01 95
        92 8484 84"NSString"01 95 84"+" "7" 86 92 84 99 99 "Regulator" 86 92 84 99 99 "Aqua" 86 92 84 99 99 "S1" 86
        92 84 99 99 "03/5/1999" 86 9602 92 84 99 99 "99,50" 86
        92 8484 84"NSDate"00 95 84"d"01 86 92 84 a0 9b 02 86
        92 84 99 99 "1998" 86 92 84 a0 9b 03 86
        9600 9601 9601 92 84 99 99 "T9" 86 92 84 99 99 "Luc" 86
        84"f"83 00004841 9681e600 96815901 92 84 99 99 "fine" 86
        86 86)");
    EXPECT_EQ(record().matosNo, u"7");
    EXPECT_EQ(record().serieMatos, u"S1");
    EXPECT_EQ(record().dateAchatMatos, u"03/5/1999");
    EXPECT_TRUE(record().dateAchat == day(1999, 5, 3));
    EXPECT_EQ(record().quantiteMatos, 2);
    EXPECT_EQ(record().prixMatos, u"99,50");
    EXPECT_TRUE(record().lastRevision == Date(1));
    EXPECT_TRUE(record().nextRevision == Date(2));
    EXPECT_EQ(record().firstRequalification, u"1998");
    EXPECT_TRUE(record().nextRequalification == Date(3));
    EXPECT_EQ(record().noInspection, 0);
    EXPECT_EQ(record().bloc, 1);
    EXPECT_EQ(record().tiv, 1);
    EXPECT_EQ(record().noTIV, u"T9");
    EXPECT_EQ(record().nomTIV, u"Luc");
    EXPECT_EQ(record().capaciteBloc, 12.5F);
    EXPECT_EQ(record().pressionService, 230);
    EXPECT_EQ(record().pressionEpreuve, 345);
    EXPECT_EQ(record().notesMatos, u"fine");
    EXPECT_EQ(record().equipState, 0);
    EXPECT_EQ(record().factureMatos, 0);
    EXPECT_EQ(record().lieuAchatMatos, u"");
    EXPECT_FALSE(record().lieuAchatMatos.isNull());
}

TEST_F(MaterielTest, readsVersion2WithItsStateInvoiceAndShop) {
    open(R"(
        04 "streamtyped" 81e803 84"@"
        8484 84"NSMutableArray"00 8484"NSArray"00 8484"NSObject"00 85 84"i"01
        92 8484 84"Materiel"02 95
        92 85 92 85 92 85 92 85 92 8484 84"NSString"01 95 84"+" "12/11/2003" 86 9601 92 85 92 85 92 85 92 85 92 85
        9600 9600 9600 92 85 92 85 84"f"00 9600 9600 92 85
        9605 9601 92 84 99 99 "Shop" 86
        86 86)");
    EXPECT_TRUE(record().dateAchat == day(2003, 11, 12));
    EXPECT_EQ(record().equipState, 5);
    EXPECT_EQ(record().factureMatos, 1);
    EXPECT_EQ(record().lieuAchatMatos, u"Shop");
    EXPECT_TRUE(record().matosNo.isNull());
}

TEST_F(MaterielTest, readsAPurchaseDayThatIsNoneAsNone) {
    open(R"(
        04 "streamtyped" 81e803 84"@"
        8484 84"NSMutableArray"00 8484"NSArray"00 8484"NSObject"00 85 84"i"01
        92 8484 84"Materiel"02 95
        92 85 92 85 92 85 92 85 92 8484 84"NSString"01 95 84"+" "long ago" 86 9601 92 85 92 85 92 85 92 85 92 85
        9600 9600 9600 92 85 92 85 84"f"00 9600 9600 92 85 9600 9600 92 85 86 86)");
    EXPECT_TRUE(record().dateAchat.isNull());
    EXPECT_EQ(record().dateAchatMatos, u"long ago");
}

TEST_F(MaterielTest, givesBackTheLastInspectionAsTheNextPressureTest) {
    Materiel item = inspected(day(2020, 1, 1), day(2021, 1, 1));
    item.nextRequalification = day(2025, 6, 1);
    hold({item});
    const auto bytes = book->dataRepresentationOfType(book->type());
    ASSERT_TRUE(book->loadDataRepresentation(*bytes, book->type()));
    EXPECT_TRUE(record().nextRequalification == day(2020, 1, 1));
    EXPECT_TRUE(record().nextRevision == day(2021, 1, 1));
}

TEST_F(MaterielTest, proposesTheNextNumberTodayAndOnePieceWithoutInspection) {
    hold({{}, {}});
    book->newRecord();
    const auto item = built();
    EXPECT_EQ(item->matosNo, u"3");
    EXPECT_TRUE(item->dateAchat == Date::fromDateTime(desktop.clock.moment));
    EXPECT_EQ(item->quantiteMatos, 1);
    EXPECT_EQ(item->noInspection, 1);
    EXPECT_EQ(item->equipState, 0);
    EXPECT_EQ(item->capaciteBloc, 0);
    EXPECT_TRUE(item->lastRevision == noDate());
    EXPECT_TRUE(item->nextRevision == noDate());
    EXPECT_TRUE(item->nextRequalification == noDate());
    EXPECT_EQ(at("tempsProgress").level, 0);
    EXPECT_EQ(book->editWindowTitle(), u"Equipment card no. 3");
}

TEST_F(MaterielTest, hidesWhatAnItemDoesNotHave) {
    const auto visible = [this] {
        std::string letters;
        for (const auto& [letter, control] :
             {std::pair("b", "blocSwitch"), std::pair("t", "tivSwitch"), std::pair("l", "lastRevisionField"),
              std::pair("n", "nextRevisionField"), std::pair("1", "firstRequalificationField"),
              std::pair("2", "nextRequalificationField"), std::pair("c", "capaciteField"),
              std::pair("s", "pressionServiceField"), std::pair("e", "pressionEpreuveField"),
              std::pair("#", "noTIVField"), std::pair("m", "nomTIVField")}) {
            letters += at(control).visible ? letter : ".";
        }
        return letters;
    };
    book->newRecord();
    EXPECT_EQ(visible(), "...........");
    enter("noInspectionSwitch", "0");
    EXPECT_EQ(visible(), "b.ln.......");
    enter("blocSwitch", "1");
    EXPECT_EQ(visible(), "btln12cse..");
    enter("tivSwitch", "1");
    EXPECT_EQ(visible(), "btln12cse#m");
    enter("blocSwitch", "0");
    EXPECT_EQ(visible(), "b.ln.......");
    enter("blocSwitch", "1");
    enter("lastRevisionField", "2020-01-01");
    enter("nextRequalificationField", "2022-01-01");
    enter("noInspectionSwitch", "1");
    EXPECT_EQ(visible(), "...........");
    EXPECT_EQ(at("blocSwitch").tag, 0);
    EXPECT_EQ(at("tivSwitch").tag, 0);
    EXPECT_TRUE(at("lastRevisionField").date == noDate());
    EXPECT_TRUE(at("nextRequalificationField").date == noDate());
}

TEST_F(MaterielTest, tellsHowFarTheTimeToTheNextInspectionHasRun) {
    desktop.clock.moment = QDate(2021, 7, 1).startOfDay();
    Materiel item = inspected(day(2020, 1, 1), day(2021, 1, 1));
    hold({item});
    book->userSelects({0});
    // 547 of 366 days.
    EXPECT_NEAR(at("tempsProgress").level, 149.45, 0.02);
    EXPECT_EQ(at("pourcentageRevField").text, u"149 %");
    EXPECT_EQ(at("delaiDepasseField").text, u"Inspection overdue");
    EXPECT_EQ(at("delaiDepasseField").colour, plaincolour::red);

    enter("nextRevisionField", "2030-01-01");
    EXPECT_EQ(at("pourcentageRevField").text, u"15 %");
    EXPECT_EQ(at("delaiDepasseField").text, u"Time elapsed");
    EXPECT_FALSE(at("delaiDepasseField").colour.isValid());
    enter("nextRevisionField", "2020-01-01");
    EXPECT_EQ(at("tempsProgress").level, 0);

    desktop.clock.moment = QDate(2021, 1, 1).startOfDay();
    enter("nextRevisionField", "2021-01-01");
    EXPECT_EQ(at("delaiDepasseField").text, u"Inspection overdue");

    // Both texts end before the colour would.
    for (const auto& language : {QStringLiteral("fr"), QStringLiteral("en")}) {
        setTextLanguage(language);
        EXPECT_LE(text("Materiel", "Out of date").size(), 27);
    }
}

TEST_F(MaterielTest, showsDashAndNoProgressForWhatNeedsNoInspectionWhileTheColumnGoesOn) {
    desktop.clock.moment = QDate(2021, 7, 1).startOfDay();
    Materiel item = inspected(day(2020, 1, 1), day(2021, 1, 1));
    EXPECT_EQ(cell(item, "progress").text.left(4), u"149.");
    EXPECT_EQ(cell(item, "progress").text.size(), 10);
    item.noInspection = 1;
    EXPECT_EQ(cell(item, "nextRevision").text, u"-");
    EXPECT_EQ(cell(item, "progress").text.left(4), u"149.");
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
    for (qint32 state = 0; state < 8; ++state) {
        EXPECT_EQ(cell(withState(state), "equipState").text, QString::fromUtf8(states[state].first));
        EXPECT_EQ(colour(withState(state), "equipState"), states[state].second);
    }
    EXPECT_EQ(cell(withState(-1), "equipState").text, u"-1");
    Materiel item;
    EXPECT_EQ(cell(item, "factureMatos").text, u"");
    item.factureMatos = 1;
    EXPECT_EQ(cell(item, "factureMatos").text, u"✓");
    EXPECT_EQ(colour(item, "factureMatos"), "#ff0000");
    EXPECT_EQ(colour(item, "matosNo"), "#996633");
    EXPECT_EQ(colour(item, "typeMatos"), "default");
    item.dateAchat = noDate();
    EXPECT_EQ(cell(item, "dateAchat").text, u"");
}

TEST_F(MaterielTest, writesTheCardOfATankInItsOrder) {
    Materiel item = inspected(day(2020, 1, 31), day(2021, 2, 1));
    item.matosNo = QStringLiteral("7");
    item.typeMatos = QStringLiteral("Tank");
    item.marqueMatos = QStringLiteral("Aqua");
    item.serieMatos = QStringLiteral("S1");
    item.dateAchat = day(2019, 12, 24);
    item.lieuAchatMatos = QStringLiteral("Shop");
    item.quantiteMatos = 2;
    item.prixMatos = QStringLiteral("99.50");
    item.factureMatos = 1;
    item.bloc = 1;
    item.tiv = 1;
    item.capaciteBloc = 12.5F;
    item.pressionService = 230;
    item.pressionEpreuve = 345;
    item.firstRequalification = QStringLiteral("1998");
    item.nextRequalification = day(2025, 6, 1);
    item.nomTIV = QStringLiteral("Luc");
    item.noTIV = QStringLiteral("T9");
    item.equipState = 1;
    item.notesMatos = QStringLiteral("fine");
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
    enter("typeMatosField", "Regulator");
    desktop.alerts.answerNext(0);
    book->form().endEditing(indexOf("marqueMatosField"), QStringLiteral("  Aqua "));
    ASSERT_EQ(desktop.alerts.questions.size(), 1U);
    EXPECT_TRUE(desktop.alerts.questions[0].message.startsWith(u"Add “Regulator” to the list?\n"));
    EXPECT_EQ(desktop.alerts.questions[0].buttons, QStringList({QStringLiteral("&Yes"), QStringLiteral("&No")}));
    EXPECT_EQ(desktop.alerts.beeps, 1);
    EXPECT_EQ(desktop.pickLists[PickList::tableauDesMarques],
              QStringList({QStringLiteral("Aqua"), QStringLiteral("Zeta")}));

    // Refused, blank and known texts leave the list as it is.
    desktop.alerts.answerNext(1);
    book->form().endEditing(indexOf("lieuAchatMatosField"), QStringLiteral("Shop"));
    book->form().endEditing(indexOf("marqueMatosField"), QStringLiteral("   "));
    book->form().endEditing(indexOf("marqueMatosField"), QStringLiteral(" Zeta"));
    EXPECT_EQ(desktop.alerts.questions.size(), 2U);
    EXPECT_TRUE(desktop.pickLists[PickList::tableauDesMagasins].isEmpty());
    EXPECT_EQ(desktop.preferences.strings(QStringLiteral("fabricants")).size(), 2);
}

}  // namespace

}  // namespace tavrel
