#include "forms/entryhint.h"
#include "forms/formentry.h"
#include "forms/recordbinding.h"
#include "support/records.h"
#include "support/testdesktop.h"

namespace tavrel {

namespace {

struct Loan : Record {
    QString item, note = QStringLiteral("-");
    qint32 pieces = 0, state = 2, returned = 0, grade = 0;
    float price = 0;
    Date day;
    Image receipt;
    Series wear;
};

constexpr Item loanItems[] = {{"item", member<&Loan::item>},         {"note", member<&Loan::note>},
                              {"pieces", member<&Loan::pieces>},     {"state", member<&Loan::state>},
                              {"returned", member<&Loan::returned>}, {"grade", member<&Loan::grade>},
                              {"price", member<&Loan::price>},       {"day", member<&Loan::day>},
                              {"receipt", member<&Loan::receipt>},   {"wear", member<&Loan::wear>}};
constexpr RecordLayout loanLayout = recordLayout<Loan>("Loan", 1, loanItems);

constexpr Choice states[] = {{7, literal("good")}, {2, literal("worn")}, {4, literal("lost")}};

struct LoanControls : ControlTable<LoanControls> {
    const int all = group({1, literal("Loan")});
    const Id item = add({.name = "itemField", .field = "item"});
    const Id note = add({.name = "noteView", .kind = ControlKind::longText, .field = "note"});
    const Id pieces = add({.name = "piecesField",
                           .kind = ControlKind::wholeNumber,
                           .field = "pieces",
                           .usualMinimum = 1,
                           .usualMaximum = 20});
    const Id state =
        add({.name = "statePopUp", .kind = ControlKind::popUp, .field = "state", .clearedTag = 7, .choices = states});
    const Id returned = add({.name = "returnedSwitch", .kind = ControlKind::onOff, .field = "returned"});
    const Id grade =
        add({.name = "gradeSlider", .kind = ControlKind::slider, .field = "grade", .minimum = -2, .maximum = 5});
    const Id price =
        add({.name = "priceField", .kind = ControlKind::decimal, .field = "price", .usualMaximum = 1000.0});
    const Id day = add({.name = "dayPicker", .kind = ControlKind::date, .field = "day"});
    const Id hour = add({.name = "hourPicker", .kind = ControlKind::time, .field = "day"});
    const Id receipt = add({.name = "receiptView", .kind = ControlKind::picture, .field = "receipt"});
    const Id total = add({.name = "totalField", .kind = ControlKind::readOnly});
    const std::array<Id, 2> lines = addEach<2>({"1", "2"}, {.name = "line_%_Field"});
};

struct FormStateTest : testing::Test {
    bool enters(const char* name, const char* value) {
        return enterValue(state_, controls_.find(name), QString::fromUtf8(value)).has_value();
    }
    QString hint(LoanControls::Id id) const {
        const RecordBinding binding(controls_, loanLayout);
        return entryHint(controls_.controls()[static_cast<std::size_t>(id.index)].control, state_.at(id.index),
                         binding.fieldKind(id.index));
    }

    TestDesktop desktop_;
    LoanControls controls_;
    FormState<LoanControls> state_{controls_};
};

TEST_F(FormStateTest, carriesEveryKindOfFieldBothWays) {
    const RecordBinding binding(controls_, loanLayout);
    const char* values = "item=Lamp|note=two\nlines|pieces=-7|state=4|returned=3|grade=5|price=0.1|day=12345.5";
    Loan given;
    fill(given, loanLayout, values);  // a switch keeps what an old file says
    given.receipt.tiff = QByteArray("II*");
    binding.load(state_, given);
    EXPECT_EQ(state_.text(controls_.pieces), u"-7");
    EXPECT_EQ(state_.text(controls_.price), u"0.1");
    EXPECT_EQ(state_.tag(controls_.state), 4);

    Loan taken;
    binding.build(state_, taken);
    EXPECT_TRUE(holds(taken, loanLayout, values));
    EXPECT_EQ(taken.receipt, given.receipt);
    EXPECT_FALSE(binding.fieldKind(controls_.total.index));
}

struct SeriesControls : ControlTable<SeriesControls> {
    const int all = group({1, literal("Loan")});
    const Id wear = add({.name = "wearField", .field = "wear"});
};
struct UnknownControls : ControlTable<UnknownControls> {
    const int all = group({1, literal("Loan")});
    const Id none = add({.name = "noneField", .field = "none"});
};

TEST_F(FormStateTest, refusesControlsThatCannotCarryTheirField) {
    EXPECT_DEATH(RecordBinding(SeriesControls(), loanLayout), "wearField cannot carry the field wear");
    EXPECT_DEATH(RecordBinding(UnknownControls(), loanLayout), "noneField cannot carry the field none");
}

TEST_F(FormStateTest, entersWhatAUserCouldAndNothingElse) {
    EXPECT_EQ(state_.tag(controls_.state), 7);
    // The tag behind each entry; what is refused leaves it as it was.
    const std::tuple<const char*, LoanControls::Id, const char*, bool, int> cases[] = {
        {"statePopUp", controls_.state, "2", true, 2},    {"state", controls_.state, "LOST", true, 4},
        {"state", controls_.state, "3", false, 4},        {"state", controls_.state, "gone", false, 4},
        {"returned", controls_.returned, "Yes", true, 1}, {"returned", controls_.returned, "0", true, 0},
        {"returned", controls_.returned, "2", false, 0},  {"grade", controls_.grade, "-2", true, -2},
        {"grade", controls_.grade, "6", false, -2},       {"grade", controls_.grade, "-3", false, -2}};
    for (const auto& [name, id, value, taken, tag] : cases) {
        EXPECT_EQ(enters(name, value), taken) << name << ' ' << value;
        EXPECT_EQ(state_.tag(id), tag) << name << ' ' << value;
    }
    EXPECT_TRUE(enters("dayPicker", "2024-02-29") && enters("hourPicker", "18:45"));
    EXPECT_EQ(state_.date(controls_.hour).toDateTime().time(), QTime(18, 45));
    for (const char* wrong : {"2023-02-29", "2024-02-29 at noon"}) {
        EXPECT_FALSE(enters("dayPicker", wrong)) << wrong;
    }
    EXPECT_FALSE(enters("hourPicker", "25:00"));
    EXPECT_TRUE(enters("line_2_Field", "second"));
    EXPECT_EQ(state_.text(controls_.lines[1]), u"second");
    EXPECT_FALSE(takesEntries(ControlKind::readOnly) || takesEntries(ControlKind::button));
}

TEST_F(FormStateTest, tellsOfWritesOnceAndOfEntriesAlways) {
    int changes = 0, edits = 0, refreshes = 0;
    QObject::connect(&state_, &FormStateBase::controlChanged, [&] { ++changes; });
    QObject::connect(&state_, &FormStateBase::edited, [&] { ++edits; });
    QObject::connect(&state_, &FormStateBase::refreshed, [&] { ++refreshes; });
    state_.setText(controls_.item, QStringLiteral("Fins"));
    state_.setText(controls_.item, QStringLiteral("Fins"));
    EXPECT_EQ(changes, 1);
    state_.type(controls_.item.index, QStringLiteral("Fins"));
    EXPECT_EQ(edits, 1);
    {
        const FormStateBase::Batch outer(state_);
        const FormStateBase::Batch inner(state_);
        state_.setTag(controls_.grade, 3);
        state_.setText(controls_.item, QStringLiteral("Mask"));
    }
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(refreshes, 1);
    { const FormStateBase::Batch nothing(state_); }
    EXPECT_EQ(refreshes, 1);

    state_.selectPosition(controls_.state, 2);
    EXPECT_EQ(state_.tag(controls_.state), 4);
    state_.selectPosition(controls_.state, 3);
    EXPECT_EQ(state_.tag(controls_.state), 0);
}

TEST_F(FormStateTest, hintsAtNumbersThatAreReadOtherwiseOrUnusual) {
    const std::pair<LoanControls::Id, const char*> cases[] = {
        {controls_.pieces, "20=|21=usually 1 to 20|0=usually 1 to 20|12.5=read as 12|abc=read as 0|--="},
        {controls_.price, "1000=|33,5=|=|1000.5=usually at most 1000|12.50 euros=read as 12.5"},
        {controls_.item, "12x="}};  // a text is what was typed
    for (const auto& [id, rows] : cases) {
        for (const auto& [typed, expected] : namedValues(rows)) {
            state_.setText(id, QString::fromStdString(typed));
            EXPECT_EQ(hint(id), expected) << typed;
        }
    }
    state_.setText(controls_.pieces, QStringLiteral(" -- "));
    EXPECT_EQ(hint(controls_.pieces), u"");
    state_.setText(controls_.pieces, QStringLiteral("abc"));
    state_.setEnabled(controls_.pieces, false);
    EXPECT_EQ(hint(controls_.pieces), u"");
}

}  // namespace

}  // namespace tavrel
