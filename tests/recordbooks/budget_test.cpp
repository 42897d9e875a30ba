#include "recordbooks/budget.h"

#include "recordbooks/bookfixture.h"
#include "recordbooks/recordbooks.h"

namespace tavrel {

namespace {

using BudgetTest = BookFixture<Budget, previBudget>;

TEST_F(BudgetTest, readsItsArchive) {
    open("01", R"(
        92 8484 84"NSString"01 95 84"+" "Air" 86
        9602 9601 9600 9600 9600 9603
        84"f"19 9a8300000040 9a00 9a00 9a00 9a64
        92 84 99 99 "lamp" 86 92 85 92 85 92 85
        9601 960a 9614 9600 9600 9a81b400 9a00 9a00 9a00
        9601 92 84 99 99 "Club" 86 9604 9605 92 85 92 84 99 99 "soon" 86)");
    EXPECT_TRUE(holds(record(),
                      "prestation=Air|quantite_0=2|quantite_5=3|prixUnitaire_0=25|prixUnitaire_1=2|prixUnitaire_5=100|"
                      "supplement_1=lamp|supplement_4=nil|prixDegressif=1|unitesCarte_2=20|prixCarte_1=180|"
                      "prevDepense=1|entreprise=Club|qualitePrix=4|delai=5|miseAJour=nil|notes=soon"));
}

TEST_F(BudgetTest, addsUpAllLinesButTheFifthSupplement) {
    book->newRecord();
    EXPECT_EQ(at("totalField").text, u"0");
    enter(
        "quantite_0Field=2|prixUnitaire_0Field=25|quantite_1Field=1|prixUnitaire_1Field=5|quantite_5Field=3|"
        "prixUnitaire_5Field=100");
    EXPECT_EQ(at("totalField").text, u"55");
    enter("quantite_4Field=3|prixUnitaire_4Field=0,25");
    EXPECT_EQ(at("totalField").text, u"55.75");
    EXPECT_TRUE(holds(*built(), "quantite_5=3|prixUnitaire_5=100"));
    // Quantities are whole, whatever is typed.
    enter("quantite_4Field=3.9");
    EXPECT_EQ(at("totalField").text, u"55.75");
}

TEST_F(BudgetTest, saysThatTheFifthLabelIsNotStoredAndDropsItWithItsCard) {
    book->newRecord();
    EXPECT_EQ(book->form().hint(indexOf("supplement_5Field")), u"");
    enter("supplement_4Field=lamp|supplement_5Field=suit");
    EXPECT_EQ(book->form().hint(indexOf("supplement_4Field")), u"");
    EXPECT_TRUE(book->form().hint(indexOf("supplement_5Field")).contains(u"not stored"));
    book->form().editFields(Budget());
    EXPECT_EQ(at("supplement_5Field").text, u"");
}

TEST_F(BudgetTest, worksOutTheUnitPriceOfCards) {
    book->newRecord();
    EXPECT_FALSE(at("unitesCarte_1Field").enabled || at("prixCarte_4Field").enabled);
    enter("prixDegressifSwitch=1");
    EXPECT_TRUE(at("unitesCarte_1Field").enabled && at("prixCarte_4Field").enabled);
    enter("unitesCarte_1Field=10|prixCarte_1Field=180|unitesCarte_4Field=4|prixCarte_4Field=90|prixCarte_2Field=50");
    EXPECT_EQ(texts("prixUnite_1Field prixUnite_2Field prixUnite_4Field"), u"18.00 € per unit||22.50 € per unit");
    for (const char* none : {"unitesCarte_1Field=0", "unitesCarte_1Field=-3"}) {
        enter(none);
        EXPECT_EQ(at("prixUnite_1Field").text, u"") << none;
    }
}

TEST_F(BudgetTest, namesItsRatings) {
    const std::tuple<qint32, const char*, const char*, const char*> cases[] = {
        {0, "Not rated", "Not rated", "☆"},
        {1, "Very bad", "Very slow", "★"},
        {2, "Bad", "Slow", "★★"},
        {3, "Medium", "Medium", "★★★"},
        {4, "Good", "Satisfying", "★★★★"},
        {5, "Very good", "Very satisfying", "★★★★★"},
        {7, "Very good", "Very satisfying", "☆"},
    };
    for (const auto& [rating, value, delay, stars] : cases) {
        Budget service;
        service.qualitePrix = service.delai = rating;
        book->form().editFields(service);
        EXPECT_EQ(texts("qualitePrixField delaiField"), QString::fromUtf8(value) + u'|' + QString::fromUtf8(delay));
        EXPECT_EQ(cells(service, "qualitePrix delai"), QStringLiteral("%1|%1").arg(QString::fromUtf8(stars)));
        EXPECT_EQ(built()->delai, rating);
    }
}

TEST_F(BudgetTest, writesPlannedExpensesInRedButRatings) {
    Budget service;
    EXPECT_EQ(colour(service, "prestation"), "#000000");
    service.prevDepense = 1;
    service.delai = 3;
    for (const char* field : {"prestation", "quantite_0", "prixUnitaire_0", "entreprise", "miseAJour"}) {
        EXPECT_EQ(colour(service, field), "#ff0000") << field;
    }
    EXPECT_EQ(colour(service, "qualitePrix"), "#000000");
    EXPECT_EQ(colour(service, "delai"), "#996633");
    service.prevDepense = 2;
    EXPECT_EQ(colour(service, "prestation"), "#000000");
}

TEST_F(BudgetTest, listsTheThirdCardTwice) {
    EXPECT_EQ(card({filled<Budget>("prestation=Air|prixUnitaire_0=25.9|quantite_0=2|supplement_1=lamp|prixUnitaire_1=5|"
                                   "quantite_1=1|quantite_5=99|unitesCarte_1=10|prixCarte_1=180|unitesCarte_3=30|"
                                   "prixCarte_3=480.5|entreprise=Club|qualitePrix=4|notes=soon")}),
              QStringLiteral("Budget forecast//--------------------//Service: Air/Price per unit (€): 25   Quantity: 2"
                             "/Supplement: lamp 5   Quantity: 1/Supplement:  0   Quantity: 0"
                             "/Supplement:  0   Quantity: 0/Supplement:  0   Quantity: 0"
                             "/Card of 10 units at 180 €/Card of 0 units at 0 €/Card of 30 units at 480 €"
                             "/Card of 30 units at 480 €/Card of 0 units at 0 €"
                             "/Company: Club/Value for money: Good/Responsiveness: Not rated/Remarks: soon/"));
}

QByteArray propertyList(const char* services) {
    return QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\"?><plist version=\"1.0\"><array>") + services +
           "</array></plist>";
}

TEST_F(BudgetTest, readsPropertyListsOfEarlierTimes) {
    const QByteArray earlier = propertyList(
        "<dict><key>prestation</key><string>Été &amp; air</string><key>quantite_0</key><integer>2</integer>"
        "<key>prixUnitaire_0</key><real>25.5</real><key>prixUnitaire_1</key><integer>5</integer>"
        "<key>prevDepense</key><true/><key>total</key><array><string>x</string></array>"
        "<key>miseAJour</key><date>2003-05-04T12:00:00Z</date><key>notes</key><string/></dict><dict/>");
    ASSERT_TRUE(book->loadDataRepresentation(earlier, book->type()));
    ASSERT_EQ(book->count(), 2);
    EXPECT_TRUE(holds(record(),
                      "prestation=Été & air|quantite_0=2|prixUnitaire_0=25.5|prixUnitaire_1=5|prevDepense=1|"
                      "miseAJour=2003-05-04T12:00:00Z|notes="));
    // They are told by their name.
    const std::array kinds{invConso().kind, previBudget().kind};
    const auto found = documentKindOf(kinds, QStringLiteral("/home/a.BUDGET"), earlier);
    ASSERT_TRUE(found);
    EXPECT_EQ(*found, &kinds[1]);
    EXPECT_FALSE(documentKindOf(kinds, QStringLiteral("/home/a.consommables"), earlier));
    EXPECT_FALSE(documentKindOf(kinds, QStringLiteral("/home/a.txt"), earlier));
}

TEST_F(BudgetTest, logsWhatIsNoBudgetAtAll) {
    hold({Budget()});
    const QByteArray wrong[] = {
        "x",
        "<plist><dict/></plist>",
        propertyList("<dict><key>quantite_0</key><string>2</string></dict>"),
        propertyList("<dict><key>quantite_0</key><integer>3000000000</integer></dict>"),
        propertyList("<string>Air</string>"),
        propertyList("<dict/>").chopped(4),
    };
    for (const QByteArray& file : wrong) {
        testing::internal::CaptureStderr();
        EXPECT_FALSE(book->loadDataRepresentation(file, book->type())) << file.toStdString();
        EXPECT_NE(testing::internal::GetCapturedStderr().find("Format non reconnu"), std::string::npos);
        EXPECT_EQ(book->count(), 1);
    }
    // Of another type nothing earlier is tried.
    EXPECT_FALSE(book->loadDataRepresentation(propertyList("<dict/>"), QStringLiteral("Materiel")));
    EXPECT_EQ(book->count(), 1);
}

}  // namespace

}  // namespace tavrel
