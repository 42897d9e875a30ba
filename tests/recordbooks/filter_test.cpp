// The filter, over books as they are.

#include "book/bookfilter.h"
#include "book/booktable.h"
#include "forms/formentry.h"
#include "recordbooks/compresseur.h"
#include "recordbooks/epaves.h"
#include "recordbooks/materiel.h"
#include "recordbooks/recordbooks.h"
#include "records/nodate.h"
#include "support/records.h"
#include "support/testdesktop.h"

#include <QSignalSpy>

namespace tavrel {
namespace {

struct FilterTest : testing::Test {
    FilterTest() { QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom)); }
    ~FilterTest() override { QLocale::setDefault(QLocale::c()); }

    static std::vector<int> shown(BookBase& book, const char* typed) {
        book.filter().setText(QString::fromUtf8(typed));
        return book.filter().shownRows();
    }

    TestDesktop desktop;
};

struct EquipmentFilterTest : FilterTest {
    EquipmentFilterTest() {
        std::vector<Materiel> items{
            filled<Materiel>("typeMatos=Tank|notesMatos=Peinte à l’école\nen jaune|prixMatos=265.00|quantiteMatos=1|"
                             "dateAchat=2016-06-30|capaciteBloc=12.2|equipState=1"),
            filled<Materiel>("typeMatos=Lamp|notesMatos=the 2016 model, x < y|prixMatos=9,5|quantiteMatos=2|"
                             "dateAchat=2018-12-31|factureMatos=1"),
            filled<Materiel>("typeMatos=Fins|notesMatos=Tank room, shelf 12|prixMatos=as new|quantiteMatos=30")};
        items[2].dateAchat = noDate();
        for (Materiel& item : items) {
            item.lastRevision = item.nextRevision = item.nextRequalification = noDate();
        }
        book->replaceList(listOf(items));
    }

    std::vector<int> shown(const char* typed) { return FilterTest::shown(*book, typed); }
    /// What is typed, and the rows that are shown then: "tank→0 2|nothing→".
    void expectShown(const char* cases) {
        for (const QString& each : QString::fromUtf8(cases).split(u'|')) {
            const auto rows = shown(each.section(u'→', 0, 0).toUtf8());
            EXPECT_EQ(eachOf(
                          rows, [](int row) { return QString::number(row); }, u' '),
                      each.section(u'→', 1))
                << each.toStdString();
        }
    }
    std::unique_ptr<BookBase> book = invMateriel().make(desktop.desktop());
    const std::vector<int> none;
};

TEST_F(EquipmentFilterTest, findsAllWordsInAnyFieldAsTheUserSeesIt) {
    // Over a line end, whatever the apostrophe; a year in a date and in a text; a choice by its word; no date is empty.
    expectShown(
        "TANK→0 2|tank ecole→0|l'école en→0|\"ecole en\"→0|\"en ecole\"→|2016→0 1|30/06→0|12.2→0|repair→0|1900→|x < y "
        "model→1|\"x<y\"→");
}

TEST_F(EquipmentFilterTest, asksOneFieldByItsKeyOrItsWordsCutShort) {
    // The remarks go by the words of the group that they fill.
    expectShown(
        "notesMatos:tank→2|Remarks:12→2|type:tank→0|purchasedate:2016→0|purch:2016 type:t→0|type:\"ta nk\"→|"
        "state:repair→0");
    EXPECT_EQ(shown("type:"), none) << "nothing asked yet, nothing filtered";
    EXPECT_FALSE(book->filter().isActive());
    EXPECT_EQ(shown("room,:x"), none) << "no field of that name: a text";
    EXPECT_TRUE(book->filter().isActive());
}

TEST_F(EquipmentFilterTest, comparesNumbersDaysAndSwitches) {
    expectShown("quantity>1→1 2|quantity>=2 quantity<30→1|quantity≤2→0 1|quantity=30→2|tank quantity > 1→2");
    // Decimal comma or point; a number kept as typed, and texts without one never; no texts are compared.
    expectShown("capacity=12,2→0|price<10→1|type>m→");
    // No date is before nothing.
    expectShown(
        "purchasedate>2016→1|purchasedate>=2016-06 purchasedate<2018-12→0|purchasedate<=2018-12-31→0 1|"
        "purchasedate=30/06/2016→0");
    expectShown("invoice:yes→1|invoice:no→0 2");
}

TEST_F(FilterTest, comparesTimesOfDay) {
    const auto book = maintComp().make(desktop.desktop());
    std::vector<Compresseur> services{
        filled<Compresseur>("temps=2020-05-01T06:40"), filled<Compresseur>("temps=2020-05-01T11:15"), {}};
    services[2].temps = noDate();
    book->replaceList(listOf(services));
    EXPECT_EQ(shown(*book, "temps>6:40"), (std::vector{1}));
    EXPECT_EQ(shown(*book, "temps<=11h15"), (std::vector{0, 1}));
    EXPECT_EQ(shown(*book, "06:40"), (std::vector{0}));
}

TEST_F(EquipmentFilterTest, marksWhatMatchesInTheFieldsAskedFor) {
    const BookTable table(*book);
    const auto marks = [&](const char* field, QStringView text) {
        return book->filter().marksIn(*table.columns()[static_cast<std::size_t>(table.columnOf(field))].column,
                                      text.toString());
    };
    static_cast<void>(shown("tank state:repair quantity>0"));
    EXPECT_EQ(marks("typeMatos", u"Tank, tank"), (QList<TextRange>{{0, 4}, {6, 4}}));
    EXPECT_EQ(marks("equipState", u"To repair"), (QList<TextRange>{{3, 6}}));
    EXPECT_TRUE(marks("lieuAchatMatos", u"repair shop").isEmpty() && marks("quantiteMatos", u"0").isEmpty());
    static_cast<void>(shown(""));
    EXPECT_TRUE(marks("typeMatos", u"Tank").isEmpty());
}

TEST_F(EquipmentFilterTest, selectsOnlyWhatIsShown) {
    book->selectRows({0, 1});
    static_cast<void>(shown("tank"));
    EXPECT_EQ(book->selectedRows(), QList<int>({0}));
    EXPECT_FALSE(book->canGoBack());
    EXPECT_TRUE(book->canGoForward());
    book->nextRecord();
    EXPECT_EQ(book->selectedRow(), 2);
    EXPECT_FALSE(book->canGoForward());
    EXPECT_EQ(book->findTextWithField(QStringLiteral("notesMatos"), QStringLiteral("model")), 0);
    static_cast<void>(shown(""));
    EXPECT_EQ(book->findTextWithField(QStringLiteral("notesMatos"), QStringLiteral("model")), 1);
}

TEST_F(EquipmentFilterTest, keepsInSightWhatIsEditedAddedOrBroughtBack) {
    book->selectRows({1});
    FormStateBase& form = book->form().state();
    ASSERT_TRUE(enterValue(form, form.table().find("typeMatosField"), QStringLiteral("Torch")));
    EXPECT_EQ(shown("tank"), (std::vector{0, 1, 2})) << "the form holds entries";
    book->updateRecord();
    EXPECT_EQ(book->filter().shownRows(), (std::vector{0, 1, 2})) << "until something else is typed";
    EXPECT_EQ(shown("tank "), (std::vector{0, 2}));
    book->addRecord();
    EXPECT_EQ(book->filter().shownRows(), (std::vector{0, 2, 3}));
    EXPECT_EQ(shown("torch"), (std::vector{1, 3}));
    book->sortBy(QStringLiteral("quantiteMatos"));
    for (const int row : book->filter().shownRows()) {
        EXPECT_EQ(as<Materiel>(book->recordAt(row)).typeMatos, u"Torch");
    }
    EXPECT_EQ(book->filter().shownCount(), 2);
    RecordList all;
    for (const RecordPointer& each : book->records()) {
        all.push_back(std::make_shared<Materiel>(as<Materiel>(each)));
    }
    book->changeList(QStringLiteral("All"), std::move(all));
    EXPECT_EQ(book->filter().shownCount(), 2) << "many at once are filtered again";
    EXPECT_EQ(shown(""), none);
    EXPECT_EQ(book->filter().shownCount(), 4);
}

TEST_F(FilterTest, searchesLongBooksOnAnotherThreadForTheLatestText) {
    const auto book = repEpaves().make(desktop.desktop());
    RecordList list;
    for (int place = 0; place < 5000; ++place) {
        auto wreck = std::make_shared<Epaves>();
        wreck->nom = QStringLiteral("Wreck %1").arg(place);
        wreck->propulsion = place % 2;
        list.push_back(std::move(wreck));
    }
    book->replaceList(std::move(list));
    QSignalSpy changed(&book->filter(), &BookFilter::changed);
    book->filter().setText(QStringLiteral("wreck"));
    EXPECT_TRUE(book->filter().isBusy());
    EXPECT_FALSE(book->filter().isActive());
    book->filter().setText(QStringLiteral("wreck 49 petrol"));
    ASSERT_TRUE(changed.wait(60000)) << "however busy the machine is";
    EXPECT_EQ(changed.count(), 1) << "what was typed over is not shown";
    EXPECT_EQ(std::count_if(book->filter().shownRows().begin(), book->filter().shownRows().end(),
                            [](int row) { return row % 2 == 1 && QString::number(row).contains(u"49"); }),
              static_cast<std::ptrdiff_t>(book->filter().shownRows().size()));
    EXPECT_EQ(book->filter().shownRows().size(), 124U);
    book->filter().setText(QStringLiteral("wreck"));  // closing the book in the middle of it does no harm
}

}  // namespace
}  // namespace tavrel
