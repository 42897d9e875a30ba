#include "recordbooks/entreprises.h"

#include "recordbooks/bookfixture.h"
#include "recordbooks/recordbooks.h"

namespace tavrel {

namespace {

struct EntreprisesTest : BookFixture<Entreprises, adressesEts> {
    /// A file of one company, whose postal code and what follows the remarks are written as its version does.
    void openVersion(const char* version, const std::string& postalCode, const std::string& behind) {
        std::string hours;
        for (int hour = 2; hour < 27; ++hour) {
            hours += "92 85 ";
        }
        open(version, R"(92 8484 84"NSString"01 95 84"+" "Aqua" 86 92 84 99 99 "Quay 3" 86 )" + postalCode +
                          R"( 92 84 99 99 "Nice" 86 92 85 92 85 92 85 92 85 92 85 92 84 99 99 "shop" 86 92 85
                             92 84 99 99 "9:00" 86 92 84 99 99 "12:00" 86 )" +
                          hours + R"(92 84 99 99 "late" 86 92 84 99 99 "fine" 86 )" + behind);
        EXPECT_TRUE(holds(record(),
                          "entreprise=Aqua|adresse=Quay 3|ville=Nice|url=nil|activite=shop|horaireLundi_2=12:00|"
                          "horaireDimanche_4=late|remarques=fine"));
    }
    Entreprises aged(qint64 seconds, double fraction = 0) const {
        Entreprises company;
        company.miseAJour =
            Date(Date::fromDateTime(desktop.clock.moment).secondsSince2001() - static_cast<double>(seconds) - fraction);
        return company;
    }
};

TEST_F(EntreprisesTest, readsEveryVersion) {
    for (const char* version : {"00", "01"}) {
        openVersion(version, "9682f9240100", "");
        EXPECT_TRUE(holds(record(), "codePostal=75001|cotation=0"));
    }
    openVersion("02", R"(92 84 99 99 "06000" 86)", "");
    EXPECT_TRUE(holds(record(), "codePostal=06000|cotation=0"));
    openVersion("03", R"(92 84 99 99 "06000" 86)", "9604");
    EXPECT_TRUE(holds(record(), "codePostal=06000|cotation=4"));
}

TEST_F(EntreprisesTest, isClosedOnSundaysAtFirst) {
    for (const auto& [language, closed] : {std::pair("fr", "Fermé"), std::pair("en", "Closed")}) {
        setTextLanguage(QString::fromUtf8(language));
        book->newRecord();
        EXPECT_EQ(texts("horaireLundi_1Field horaireSamedi_4Field horaireDimanche_1Field"),
                  QStringLiteral("-|-|") + QString::fromUtf8(closed));
        EXPECT_EQ(built()->horaireDimanche_4, QString::fromUtf8(closed));
        EXPECT_EQ(built()->entreprise, u"");
        EXPECT_TRUE(built()->miseAJour == Date::fromDateTime(desktop.clock.moment));
    }
}

TEST_F(EntreprisesTest, bringsItsDateUpToNow) {
    hold({aged(5000)});
    book->userSelects({0});
    EXPECT_TRUE(at("miseAJourField").date == aged(5000).miseAJour);
    state().choose(indexOf("resetDateToNowButton"), 0);
    EXPECT_TRUE(at("miseAJourField").date == Date::fromDateTime(desktop.clock.moment));
    EXPECT_TRUE(book->hasEntries());
}

TEST_F(EntreprisesTest, coloursCardsByTheirAge) {
    const std::tuple<qint64, double, const char*> cases[] = {
        {-100, 0, "#000000"},       {0, 0, "#000000"},          {31557599, 0.9, "#000000"}, {31557600, 0, "default"},
        {31557600, 0.9, "default"}, {31557601, 0, "#ff8000"},   {63115199, 0.9, "#ff8000"}, {63115200, 0, "default"},
        {63115201, 0, "#ff0000"},   {4000000000, 0, "#ff0000"},
    };
    for (const auto& [seconds, fraction, colour] : cases) {
        EXPECT_EQ(this->colour(aged(seconds, fraction), "miseAJour"), colour) << seconds;
    }
    // What keeps its colour has that of the row above it.
    hold({aged(80000000), aged(31557600), aged(63115200), aged(1), aged(63115200)});
    const BookTable table(*book);
    EXPECT_EQ(eachOf(numbers(book->count() - 5, book->count()),
                     [&](int row) { return table.cell(row, table.columnOf("miseAJour")).style.text->name(); }),
              u"#ff0000|#ff0000|#ff0000|#000000|#000000");
    EXPECT_EQ(colour({}, "miseAJour"), "#000000");
    EXPECT_EQ(colour(filled<Entreprises>("miseAJour=-inf"), "miseAJour"), "#ff0000");
    EXPECT_EQ(colour({}, "entreprise"), "default");
}

TEST_F(EntreprisesTest, showsRatingsAsStars) {
    const Cell rated = cell(filled<Entreprises>("cotation=4"), "cotation");
    EXPECT_EQ(rated.text, u"★★★★");
    EXPECT_EQ(rated.words, u"4 of 5 stars");
}

TEST_F(EntreprisesTest, offersActivitiesToTheirList) {
    book->newRecord();
    desktop.alerts.answerNext(0);
    book->form().endEditing(indexOf("activiteField"), QStringLiteral(" Shop "));
    EXPECT_TRUE(desktop.pickLists[PickList::tableauDesActivites].contains(QStringLiteral("Shop")));
    EXPECT_EQ(desktop.preferences.strings(QStringLiteral("activite")), QStringList(QStringLiteral("Shop")));
}

TEST_F(EntreprisesTest, writesBlocksBetweenSeparators) {
    const auto company = filled<Entreprises>(
        "entreprise=Aqua|adresse=Quay 3|codePostal=06000|ville=Nice|pays=France|telephone=1|fax=2|email=a@b|url=w|"
        "activite=shop|horaireLundi_1=9:00|horaireLundi_2=12:00|horaireLundi_3=14:00|horaireLundi_4=19:00|"
        "horaireDimanche_1=Closed|remarques=fine|miseAJour=2024-05-03");
    const QString week = QStringLiteral(
        "/   Tuesday:  -  /  - /   Wednesday:  -  /  - /   Thursday:  -  /  - "
        "/   Friday:  -  /  - /   Saturday:  -  /  - ");
    EXPECT_EQ(
        card({company, {}}),
        QStringLiteral("Company address book/Name: Aqua/Address: Quay 3 06000 Nice France/Telephone: 1/Fax: 2"
                       "/E-mail: a@b/Web: w/Activity: shop/Opening hours:/   Monday: 9:00 - 12:00 / 14:00 - 19:00") +
            week +
            QStringLiteral("/   Sunday: Closed -  /  - /Remarks: fine/Updated on: 03/05/2024"
                           "/------------------------------//Name: /Address:    /Telephone: /Fax: /E-mail: "
                           "/Web: /Activity: /Opening hours:/   Monday:  -  /  - ") +
            week + QStringLiteral("/   Sunday:  -  /  - /Remarks: /Updated on: "));
}

}  // namespace

}  // namespace tavrel
