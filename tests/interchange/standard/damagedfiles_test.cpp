#include "interchange/standard/sourcereading.h"
#include "support/printing.h"
#include "support/records.h"

namespace tavrel {

namespace {

FoundDives read(const QByteArray& bytes) {
    const auto source = readSource(bytes);
    EXPECT_TRUE(source) << bytes.toStdString();
    return source ? source->found : FoundDives();
}

QByteArray dive(const QByteArray& before, const QByteArray& rest) {
    return "<uddf version='3.2.3'><profiledata><repetitiongroup id='g'><dive id='d'><informationbeforedive>" + before +
           "</informationbeforedive>" + rest + "</dive></repetitiongroup></profiledata></uddf>";
}

constexpr const char* samples =
    "<samples><waypoint><depth>9</depth></waypoint><waypoint><depth>5</depth></waypoint></samples>";

TEST(Sources, loseNoDiveThatStandsBehindDamage) {
    const QByteArray whole = dive("<divenumber>1</divenumber>", "<notes><para>n</para></notes>");
    const QByteArray broken = dive("<divenumber>1</divenumber>",
                                   "<notes><b>n</notes><samples><waypoint><depth>9</depth>"
                                   "<waypoint><depth>5</depth></waypoint></samples>");
    const qsizetype first = whole.indexOf("<dive ");
    const qsizetype end = whole.indexOf("</repetitiongroup>");
    for (const QByteArray& damaged : {broken, QByteArray(broken).replace("</dive>", "")}) {
        QByteArray file = damaged;
        file.insert(file.indexOf("</repetitiongroup>"), whole.mid(first, end - first).repeated(2));
        const FoundDives found = read(file);
        ASSERT_EQ(found.dives.size(), 3U);
        EXPECT_FALSE(found.damage.isEmpty());
        EXPECT_EQ(found.dives[0].dive.profilProfondeur, Series::ofReals({9, 5}));
        EXPECT_EQ(fieldsOf(found.dives[2].dive, "noPlongee notes"), u"1; n");
    }
    EXPECT_EQ(read(whole).damage, u"");
    // Without one of the end tags before it, too.
    const QByteArray file =
        "<uddf version='3.2.3'><diver><owner><personal/></owner></diver><gasdefinitions><mix id='m'>"
        "<o2>0.32</o2></mix></gasdefinitions>" +
        dive("<divenumber>1</divenumber>", samples)
            .mid(22)
            .replace("</repetitiongroup>", whole.mid(first, end - first) + "</repetitiongroup>");
    for (const char* tags : {"</diver>", "</owner></diver>", "</gasdefinitions>", "</mix></gasdefinitions>",
                             "</informationbeforedive>", "</divenumber></informationbeforedive>", "</samples>"}) {
        const FoundDives found = read(QByteArray(file).replace(file.indexOf(tags), qstrlen(tags), ""));
        ASSERT_EQ(found.dives.size(), 2U) << tags;
        EXPECT_FALSE(found.damage.isEmpty()) << tags;
        EXPECT_EQ(found.dives[0].dive.profilProfondeur, Series::ofReals({9, 5})) << tags;
        EXPECT_EQ(fieldsOf(found.dives[0].dive, "noPlongee o2Mix"), u"1; 32") << tags;
    }
    // Nothing but the places of things is wrong.
    const FoundDives moved = read(QByteArray(file)
                                      .replace("</informationbeforedive><samples>", "<samples>")
                                      .replace("</samples>", "</samples></informationbeforedive>")
                                      .replace("</dive><dive", "</dive><profiledata><dive")
                                      .replace("</repetitiongroup>", "</profiledata></repetitiongroup>"));
    ASSERT_EQ(moved.dives.size(), 2U);
    EXPECT_EQ(moved.dives[0].dive.profilProfondeur, Series::ofReals({9, 5}));
    EXPECT_EQ(moved.damage, u"");
}

}  // namespace

}  // namespace tavrel
