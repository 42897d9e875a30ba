#include "archive/recordarchive.h"

#include "archive/colorarchive.h"
#include "archive/typedstreamfault.h"
#include "archive/typedstreamtree.h"
#include "support/files.h"
#include "support/printing.h"
#include "support/records.h"
#include "support/streambytes.h"

#include <QDir>

#include <algorithm>
#include <bit>
#include <limits>
#include <string>

namespace tavrel {
namespace {

struct Sample : Record {
    Series numbers;
    qint32 first = 0, second = 0, third = 0;
    float depth = 0, warm = 0, cold = 0;
    QString place, note;
    Date when;

    bool operator==(const Sample&) const = default;
};

constexpr Item sampleItems[] = {
    {"numbers", member<&Sample::numbers>},
    {"first", member<&Sample::first>},
    {"second", member<&Sample::second>},
    {"third", member<&Sample::third>},
    {"depth", member<&Sample::depth>, Travel::bitsAsInt},
    {"warm", member<&Sample::warm>},
    {"cold", member<&Sample::cold>},
    {"place", member<&Sample::place>},
    {"note", member<&Sample::note>},
    {"when", member<&Sample::when>},
};
constexpr RecordLayout sampleLayout = recordLayout<Sample>("Sample", 3, sampleItems);

RecordList exampleSamples() {
    Sample one{{},    Series::ofReals({0.0, 5.5, 0.0}), 12, -50,      300, 3.0F, 18.0F,
               18.5F, QStringLiteral("Étang"),          {}, Date(0.5)};
    Sample two{
        {},        Series::ofIntegers({7}), 0, 127, -128, 0, 0.1F, -2.0F, QStringLiteral("Étang"), QStringLiteral(""),
        Date(3600)};
    two.depth = std::bit_cast<float>(qint32{-111});
    return {std::make_shared<Sample>(one), std::make_shared<Sample>(two)};
}

constexpr std::string_view exampleBytes = R"(
    04 "streamtyped" 81e803 84"@"
    8484 84"NSMutableArray"00 8484"NSArray"00 8484"NSObject"00 85 84"i"02
    92 8484 84"Sample"03 95
    92 84 93 9603 92 84 8484"NSNumber"00 8484"NSValue"00 95 84"*" 8484"d" 9b 00 86
    92 84 9a 9a 9c 9b 83 0000000000001640 86 92 99 86
    960c 96ce 96812c01 968200004040 84"f"12 9c8300009441
    92 8484 84"NSString"01 95 84"+" 06 c38974616e67 86 92 85
    92 8484 84"NSDate"00 95 9b 83 000000000000e03f 86 86
    92 84 97 92 84 93 9601 92 84 9a 9a 84 96 96 07 86 86
    9600 967f 968180ff 968191ff 9c83cdcccc3d 9cfe 92 9e 92 84 9f 9e 00 86 92 84 a1 9b 81100e 86 86 86)";

// The same records as an old big-endian machine would write them, where texts can be of the mutable class and dates of
// a subclass with more in it: the zone, here of a class that no reader knows, and a format.
constexpr std::string_view bigEndianBytes = R"(
    04 "typedstream" 8103e8 84"@"
    8484 84"NSMutableArray"00 8484"NSArray"00 8484"NSObject"00 85 84"i"02
    92 8484 84"Sample"03 95
    92 84 93 9603 92 84 8484"NSNumber"00 8484"NSValue"00 95 84"*" 8484"d" 9b 00 86
    92 84 9a 9a 9c 9b 83 4016000000000000 86 92 99 86
    960c 96ce 9681012c 968240400000 84"f"12 9c8341940000
    92 8484 84"NSMutableString"01 8484"NSString"01 95 84"+" 06 c38974616e67 86 92 85
    92 8484 84"NSCalendarDate"00 8484"NSDate"00 95 9b 83 3fe0000000000000
        92 8484 84"NSTimeZone"01 95 92 84 a0 9f "UTC" 86 92 85 86 92 85 86 86
    92 84 97 92 84 93 9601 92 84 9a 9a 84 96 96 07 86 86
    9600 967f 9681ff80 9681ff91 9c833dcccccd 9cfe 92 9e 92 84 9f 9f 00 86 92 84 a3 9b 810e10 86 86 86)";

TEST(RecordArchive, WritesTheExampleAndReadsItInBothByteOrders) {
    EXPECT_EQ(writeRecords(exampleSamples(), sampleLayout).toHex(' '), streamBytes(exampleBytes).toHex(' '));
    for (const std::string_view notation : {exampleBytes, bigEndianBytes}) {
        const auto file = readRecords(streamBytes(notation), sampleLayout);
        ASSERT_TRUE(file) << file.error().message().toStdString();
        EXPECT_EQ(file->version, 3);
        ASSERT_EQ(file->records.size(), 2U);
        EXPECT_EQ(as<Sample>(file->records[0]), as<Sample>(exampleSamples()[0]));
        EXPECT_EQ(writeRecords(file->records, sampleLayout).toHex(' '), streamBytes(exampleBytes).toHex(' '));
    }
    EXPECT_EQ(recordClassOf(streamBytes(exampleBytes)), QStringLiteral("Sample"));
    const QByteArray none = writeRecords(RecordList(), sampleLayout);
    EXPECT_TRUE(recordClassOf(none)->isNull());
    EXPECT_TRUE(readRecords(none, sampleLayout)->records.empty());
}

TEST(RecordArchive, FailsWhereverTheDataEnd) {
    for (const std::string_view notation : {exampleBytes, bigEndianBytes}) {
        const QByteArray whole = streamBytes(notation);
        for (qsizetype size = 0; size < whole.size(); ++size) {
            EXPECT_FALSE(readRecords(whole.left(size), sampleLayout)) << size;
        }
    }
}

/// What comes back of the records when they are written and read, by either path of their series to the same.
RecordList thereAndBack(const RecordList& samples, SeriesNumbers how) {
    const QByteArray bytes = writeRecords(samples, sampleLayout, how);
    EXPECT_EQ(writeRecords(samples, sampleLayout, how, SeriesPath::plain), bytes);
    const auto plain = readRecords(bytes, sampleLayout, {}, SeriesPath::plain);
    const auto file = readRecords(bytes, sampleLayout);
    EXPECT_TRUE(file && plain);
    if (!file || !plain || file->records.size() != samples.size()) {
        ADD_FAILURE() << "not the records that were written";
        return samples;
    }
    for (const auto& records : {plain->records, file->records}) {
        EXPECT_EQ(writeRecords(records, sampleLayout, how), bytes);
    }
    return file->records;
}

TEST(RecordArchive, RestoresEveryNumberBitForBit) {
    const double quietNan = std::bit_cast<double>(0x7ff8000000001234U);
    const double signallingNan = std::bit_cast<double>(0xfff0000000000001U);
    Series numbers = Series::ofReals({0.0, -0.0, quietNan, signallingNan, -128, -111, -110, 127, 128, 1e10, 0.1, 32768,
                                      std::numeric_limits<double>::infinity(), 2147483648.0, -2147483648.0, 0.1, -0.0});
    for (const std::int64_t value : {0LL, -1LL, 127LL, -128LL, -111LL, 40000LL, 3000000000LL, -9000000000LL}) {
        for (const char code : std::string_view("cCsSiIlLqQB")) {
            const bool isByte = code == 'c' || code == 'C' || code == 'B';
            const bool fits =
                (code == 'l' || code == 'q') || (value >= 0 && (code == 'L' || code == 'Q')) ||
                (isByte && value >= 0 && value <= 127) || (code == 'I' && value >= 0 && value <= 4294967295) ||
                (code == 'i' && value == static_cast<qint32>(value)) ||
                (code == 's' && value == static_cast<qint16>(value)) || (code == 'S' && value >= 0 && value <= 65535);
            if (fits) {
                numbers.append(Number::ofInteger(value, code));
                numbers.append(Number::ofInteger(value, code));
            }
        }
    }
    numbers.append(Number::ofInteger(-1, 'Q'));  // the largest of the unsigned numbers
    numbers.append(Number::ofReal(0.5, 'f'));
    numbers.append(Number::ofReal(-0.0, 'f'));
    RecordList samples;
    for (const std::uint32_t bits : {0x7fa00001U, 0xffc00001U, 0x80000000U, 0x00000001U, 0x7f800000U, 0x4f000000U}) {
        Sample sample;
        sample.numbers = numbers;
        sample.depth = sample.warm = std::bit_cast<float>(bits);
        sample.first = std::bit_cast<qint32>(bits);
        sample.when = Date(-static_cast<double>(bits) / 7);
        samples.push_back(std::make_shared<Sample>(sample));
    }
    for (const auto how : {SeriesNumbers::shared, SeriesNumbers::literal}) {
        const RecordList back = thereAndBack(samples, how);
        for (std::size_t index = 0; index < samples.size(); ++index) {
            const Sample& written = as<Sample>(samples[index]);
            const Sample& read = as<Sample>(back[index]);
            EXPECT_EQ(read.numbers, written.numbers);
            EXPECT_EQ(std::bit_cast<quint32>(read.depth), std::bit_cast<quint32>(written.depth));
            EXPECT_EQ(std::bit_cast<quint32>(read.warm), std::bit_cast<quint32>(written.warm));
            EXPECT_EQ(read.first, written.first);
            EXPECT_EQ(read.when, written.when);
        }
    }
}

/// Series long enough for every length of reference, in runs and out of them.
RecordList longSeries() {
    std::vector<double> depths(70000);
    for (std::size_t index = 0; index < depths.size(); ++index) {
        depths[index] = index % 7 == 0 ? 12.5 : static_cast<double>(index) / 10;
    }
    Series flags;
    for (int index = 0; index < 3000; ++index) {
        flags.appendInteger(index % 251 == 0 ? index % 5 : 0);
    }
    Series mixed = flags;
    mixed.append(std::span<const double>(depths).first(500));
    mixed.appendInteger(1000);
    mixed.append(flags.block<std::int8_t>().first(300));
    Series pressures;  // falling through the bytes
    Series singles;
    Series booleans;
    Series wide;
    Series longs;
    for (int index = 0; index < 900; ++index) {
        pressures.appendInteger(230 - index / 4);
        singles.append(Number::ofReal(static_cast<double>(static_cast<float>(index % 40) / 10), 'f'));
        booleans.append(Number::ofInteger(index % 3 == 0 ? 1 : 0, 'c'));
        wide.append(Number::ofInteger(index % 2 == 0 ? 40000 : 200, 'S'));
        longs.append(Number::ofInteger(index % 5 == 0 ? std::int64_t{-5000000000} - index % 2 : index, 'q'));
    }
    EXPECT_EQ(pressures.block<std::int32_t>().size(), 900U);
    EXPECT_EQ(booleans.block<std::int8_t>().size(), 900U);
    Series growing = pressures;  // its copy stays as it is
    growing.append(Number::ofInteger(5000000000, 'q'));
    RecordList samples;
    for (const Series& numbers :
         {flags, Series::ofReals(depths), mixed, pressures, flags, singles, booleans, wide, longs, growing, pressures,
          singles, Series::ofReals(depths), Series::empty(), Series()}) {
        Sample sample;
        sample.numbers = numbers;
        samples.push_back(std::make_shared<Sample>(sample));
    }
    samples.push_back(samples.front());
    return samples;
}

TEST(RecordArchive, ReadsLongSeriesWhateverTheMixOfReferencesAndLiterals) {
    const RecordList samples = longSeries();
    for (const auto how : {SeriesNumbers::shared, SeriesNumbers::literal}) {
        const RecordList back = thereAndBack(samples, how);
        for (std::size_t index = 0; index < samples.size(); ++index) {
            EXPECT_EQ(as<Sample>(back[index]), as<Sample>(samples[index])) << index;
        }
        EXPECT_EQ(back.front(), back.back());
    }
}

TEST(RecordArchive, RefusesTheSameByBothPathsOfSeries) {
    const QByteArray whole = writeRecords(longSeries(), sampleLayout);
    const auto refusal = [](const QByteArray& bytes, SeriesPath path) {
        const auto file = readRecords(bytes, sampleLayout, {}, path);
        return file ? QString() : file.error().message();
    };
    constexpr qsizetype places = 40;
    int refused = 0;
    for (qsizetype place = 1; place <= places; ++place) {
        const qsizetype at = whole.size() * place / (places + 1);
        QByteArray damaged = whole;
        damaged[at] = static_cast<char>(damaged[at] ^ 0x10);
        for (const QByteArray& bytes : {damaged, whole.left(at)}) {
            const QString reason = refusal(bytes, SeriesPath::fast);
            ASSERT_EQ(reason, refusal(bytes, SeriesPath::plain)) << at;
            refused += reason.isEmpty() ? 0 : 1;
        }
    }
    EXPECT_GE(refused, places) << "at least what is cut off";
}

// A record class through three versions of its layout, with slots of every exception.
struct Card : Record {
    qint32 number = 0, later = 0, kept = 7;
    float length = 0;
    QString code, mark, thirdMark;
    Series numbers;
    Image picture;
};

constexpr Item cardItems[] = {
    {"number", member<&Card::number>},
    {"kept", member<&Card::kept>, Travel::memoryOnly},
    {"later", member<&Card::later>, Travel::plain, 2},
    {"length", member<&Card::length>, Travel::plain, 3},
    {"length", member<&Card::length>, Travel::integer, 0, 2},
    {"code", member<&Card::code>, Travel::integer, 0, 1},
    {"code", member<&Card::code>, Travel::plain, 2},
    Item("thirdMark", member<&Card::thirdMark>).writtenFrom(member<&Card::mark>),
    {"numbers", member<&Card::numbers>},
    {"picture", member<&Card::picture>, Travel::plain, 3},
};
void keepOld(Card& card, int version) {
    card.kept = version < 2 ? 100 : card.kept;
}
constexpr RecordLayout cardLayout = recordLayout<Card, keepOld>("Card", 3, cardItems);

// Root array (objects 0 to 2, strings @ 92, NSArray 93, NSObject 94, i 95) of so many elements, up to the class of the
// first one, which follows the array's class as object 3 of class 4.
std::string cardFile(std::string_view version, std::string_view rest, std::string_view count = "01") {
    return R"(04 "streamtyped" 81e803 84"@" 8484 84"NSArray"00 8484"NSObject"00 85 84"i")" + std::string(count) +
           R"( 92 84 8484"Card")" + std::string(version) + " 94 " + std::string(rest);
}

TEST(RecordArchive, ReadsTheLayoutOfEveryVersion) {
    const auto read = [](const std::string& notation) {
        const auto file = readRecords(streamBytes(notation), cardLayout);
        EXPECT_TRUE(file) << file.error().message().toStdString();
        return file ? as<Card>(file->records.at(0)) : Card();
    };
    const Card oldest = read(cardFile("01", "9505 9512 9581db01 9285 9285 86 86"));
    EXPECT_EQ(fieldsOf(oldest, cardLayout, "number later kept length code"), u"5; 0; 100; 18; 475");

    // The name of a wreck's third mark is read where its first one is written.
    const Card middle =
        read(cardFile("02", R"(9505 9506 9512 9285 92 8484 84"NSString"01 94 84"+" "x" 86 9285 86 86)"));
    EXPECT_EQ(fieldsOf(middle, cardLayout, "later kept"), u"6; 7");
    EXPECT_EQ(middle.mark, QString());
    EXPECT_EQ(fieldsOf(middle, cardLayout, "thirdMark"), u"x");

    // A later version adds groups that this one does not know; integers come in other widths; objects of unknown
    // classes stand for nothing, yet count: the text within the first one is object 7.
    const Card newest = read(cardFile("09", R"(84"q"05 84"s"06 84"d"12
        92 84 8484"Odd"00 94 84"{S=[2c]f}" 0102 03 84"+" 85 92 84 8484"NSString"01 94 9c "deep" 86 86
        92 99 92 84 98 86 92 85 95 00 86 86)"));
    EXPECT_EQ(fieldsOf(newest, cardLayout, "number later length thirdMark"), u"5; 6; 18; deep");
    EXPECT_TRUE(newest.code.isNull() && newest.numbers.isNull());
}

TEST(RecordArchive, KeepsVersionsThroughTheFileAndNothingOfMemory) {
    Card card;
    fill(card, cardLayout, "number=1|kept=3|length=2.5");
    card.mark = QStringLiteral("m");
    const auto file = readRecords(writeRecords({std::make_shared<Card>(card)}, cardLayout), cardLayout);
    ASSERT_TRUE(file) << file.error().message().toStdString();
    EXPECT_EQ(file->version, 3);
    EXPECT_EQ(fieldsOf(*file->records[0], cardLayout, "length thirdMark kept"), u"2.5; m; 7");
}

TEST(RecordArchive, RefusesWhatItCannotReadAndSaysWhere) {
    // Behind the first three numbers of a card, and in its numbers an object of an unknown class.
    const auto items = [](const std::string& rest) { return cardFile("01", "9505 9506 9507 " + rest); };
    const auto odd = [&](const std::string& rest) { return items(R"(92 84 8484"Odd"00 94 )" + rest); };
    const std::string header = R"(04 "streamtyped" 81e803 )";
    const std::string root = header + R"(84"@" 8484 84"NSArray"00 8484"NSObject"00 85 84"i")";
    const std::tuple<const char*, StreamFault, std::string> refusals[] = {
        // the mark stands where the fault is
        {"no typed stream", StreamFault::notTypedStream, "!89504e470d0a1a0a"},
        {"empty file", StreamFault::notTypedStream, "!"},
        {"streamer version", StreamFault::unknownVersion, R"(!03 "streamtyped" 81e803 84"@" 85)"},
        {"nil root", StreamFault::rootNotArray, header + R"(84"@" !85)"},
        {"root of another type", StreamFault::rootNotArray, header + R"(!84"i" 05)"},
        {"root of another class", StreamFault::rootNotArray, header + R"(84"@" !84 8484"NSSet"00 85 86)"},
        {"nil type", StreamFault::nilName, header + "!85 85"},
        {"nil class name", StreamFault::nilName, header + R"(84"@" 84 84 !85 00 85)"},
        {"nil class of an object", StreamFault::nilName, header + R"(84"@" !84 85 86)"},
        {"own superclass", StreamFault::classLoop, header + R"(84"@" 84 8484"A"00 !93)"},
        {"ancestor in a loop", StreamFault::classLoop, header + R"(84"@" 84 8484"A"00 8484"B"00 !93)"},
        {"string longer than the file", StreamFault::countTooLarge, header + "84 !82ffffff7f 40"},
        {"undefined string", StreamFault::undefinedReference, header + "!95"},
        {"undefined class", StreamFault::undefinedReference, header + R"(84"@" 84 !99)"},
        {"object as a class", StreamFault::wrongReference, header + R"(84"@" 84 !92)"},
        {"negative count", StreamFault::countTooLarge, root + "!ff 86"},
        {"count of one too many", StreamFault::countTooLarge, root + "!02 86 86 86"},
        {"huge count", StreamFault::countTooLarge, root + "!82ffffff7f 86"},
        {"count of another type", StreamFault::wrongItemType,
         header + R"(84"@" 8484 84"NSArray"00 8484"NSObject"00 85 !84"f"01)"},
        {"undefined element", StreamFault::undefinedReference, root + "01 92 !99 86"},
        {"class as an element", StreamFault::wrongReference, root + "01 92 !93 86"},
        {"root as its own element", StreamFault::wrongClass, root + "01 !92 92 86"},
        {"nil element", StreamFault::wrongClass, root + "01 !92 85 86"},
        {"element of another class", StreamFault::wrongClass, root + R"(01 !92 84 8484"Else"00 94 86 86)"},
        {"tag instead of a number", StreamFault::unexpectedTag, cardFile("01", "95 !84 86 86")},
        {"missing items", StreamFault::missingItem, cardFile("01", "9505 !86 86")},
        {"float for an integer", StreamFault::wrongItemType, cardFile("01", R"(!84"f"05 86 86)")},
        {"integer for an object", StreamFault::wrongItemType, items("!95 00 86 86")},
        {"number wider than its type", StreamFault::valueOutOfRange, cardFile("01", "95 !87ffffffffffffff7f 86 86")},
        {"number wider than its field", StreamFault::valueOutOfRange, cardFile("01", R"(!84"q"87ffffffffffffff7f 86)")},
        {"class as an item", StreamFault::wrongReference, items("92 !93 86 86")},
        {"text for a series", StreamFault::wrongItemObject,
         items(R"(9285 !92 84 8484"NSString"01 94 84"+"00 86 86 86)")},
        {"series of other things", StreamFault::notNumber, items("9285 92 84 93 9501 !9285 86 86 86")},
        {"unknown type", StreamFault::unknownType, odd(R"(84"^" !05 86)")},
        {"array of more than there is", StreamFault::countTooLarge, odd(R"(84"[9999c]" !05 86)")},
        {"array of empty structures", StreamFault::countTooLarge, odd(R"(84"[3{A=}]" !05 86)")},
    };
    for (const auto& [what, fault, notation] : refusals) {
        SCOPED_TRACE(what);
        const auto file = readRecords(streamBytes(notation), cardLayout);
        ASSERT_FALSE(file);
        const Failure expected = streamFailure(fault, streamOffset(notation));
        EXPECT_EQ(file.error().sentence, expected.sentence);
        EXPECT_TRUE(file.error().detail.endsWith(expected.detail)) << file.error().detail.toStdString();
    }
}

TEST(RecordArchive, BoundsNestingAndMemory) {
    // Objects within objects, structures within a type, classes above a class.
    std::string nested = cardFile("01", R"(9505 9506 9507 92 84 8484"Odd"00 94)");
    std::string chain = R"(04 "streamtyped" 81e803 84"@" 84 )";
    for (int level = 0; level < 100000; ++level) {
        nested += "928498";
        chain += R"(8484"A"00)";
    }
    std::string braces = cardFile("01", R"(9505 9506 9507 92 84 8484"Odd"00 94 84 78)");
    for (int level = 0; level < 40; ++level) {
        braces += "7b613d";  // {a=
    }
    for (const std::string& notation : {nested, chain, braces}) {
        const auto file = readRecords(streamBytes(notation), cardLayout);
        ASSERT_FALSE(file);
        EXPECT_EQ(file.error().sentence, streamFailure(StreamFault::tooDeep, 0).sentence);
    }

    // A series that two records refer to is held once. Its number is object 6, of NSNumber, object 7.
    const auto file = readRecords(streamBytes(cardFile("01", R"(9505 9506 9507 9285
        92 84 93 9501 92 84 8484"NSNumber"00 94 84"*" 8484"d" 99 83000000000000e03f 86 86 9285 86
        92 84 96 9505 9506 9507 9285 9297 9285 86 86)",
                                                       "02")),
                                  cardLayout);
    ASSERT_TRUE(file) << file.error().message().toStdString();
    EXPECT_EQ(as<Card>(file->records[1]).numbers, Series::ofReals({0.5}));
    EXPECT_EQ(as<Card>(file->records[0]).numbers.block<double>().data(),
              as<Card>(file->records[1]).numbers.block<double>().data());
}

TEST(RecordArchive, WritesASharedSeriesOnceAndRefusesWhatUnfoldsWithoutEnd) {
    Sample first;
    first.numbers = Series::ofReals(std::vector<double>(100'000, 0.5));
    first.place = QString(100'000, u'a');
    const auto copies = [&](int count) {
        RecordList list;
        std::generate_n(std::back_inserter(list), count, [&] { return std::make_shared<Sample>(first); });
        return list;
    };
    const QByteArray bytes = writeRecords(copies(20), sampleLayout);
    EXPECT_LT(bytes.size(), 2 * writeRecords(copies(1), sampleLayout).size());
    const auto read = readRecords(bytes, sampleLayout);
    ASSERT_TRUE(read) << read.error().message().toStdString();
    EXPECT_EQ(as<Sample>(read->records[19]), first);
    EXPECT_EQ(writeRecords(read->records, sampleLayout), bytes);

    const auto refused = readRecords(writeRecords(copies(300), sampleLayout), sampleLayout);
    ASSERT_FALSE(refused);
    EXPECT_EQ(refused.error().sentence, u"The file unfolds to far more than it could mean.");
}

// Each once made a reader fall.
TEST(RecordArchive, SurvivesHostileFiles) {
    const QDir folder(QStringLiteral(TAVREL_TEST_DATA "/hostile"));
    const QStringList names = folder.entryList({QStringLiteral("stream-*")}, QDir::Files);
    ASSERT_FALSE(names.isEmpty());
    for (const QString& name : names) {
        const QByteArray bytes = contentsOf(folder.filePath(name));
        EXPECT_FALSE(unarchivedColor(bytes).isValid()) << name.toStdString();  // walks all objects
        EXPECT_FALSE(readRecords(bytes, sampleLayout)) << name.toStdString();
        static_cast<void>(inspectStream(bytes));
    }
}

}  // namespace
}  // namespace tavrel
