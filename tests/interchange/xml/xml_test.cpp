#include "base/texts.h"
#include "interchange/xml/xmltree.h"
#include "interchange/xml/xmlwriter.h"
#include "support/printing.h"

namespace tavrel {

namespace {

QString textAt(const QByteArray& file, const char* name) {
    const auto tree = XmlTree::parse(file);
    return tree ? tree->root().last(name).text() : QStringLiteral("unreadable: ") + tree.error().message();
}

TEST(XmlTree, readsWholeTexts) {
    const std::pair<const char*, const char*> cases[] = {
        {"<p><a>x</a><a>y</a></p>", "y"},
        {"<p><a>1<!-- c -->2<![CDATA[<3>]]>&#233;&lt;&amp;</a></p>", "12<3>é<&"},
        {"<p><a>\n  <b>12.3</b>\n  <c>60</c>\n</a></p>", "12.360"},
        {"<p><a>\n 5 <b>6</b></a></p>", "\n 5 6"},
        {"<p><a> \n</a></p>", " \n"},
        {"<p xmlns='urn:x'><a>in a default namespace</a><x:a xmlns:x='urn:y'>no</x:a></p>", "in a default namespace"},
        {"<p><b><a>deeper</a></b></p>", ""},
        // Repaired.
        {"<p><a>truncated", "truncated"},
        {"<p><a>one<b>two</a></p>", "onetwo"},
        {"<p><a>M & N</a></p>", "M  N"},
        {"<p><a>first</a></p><p><a>second</a></p>", "first"},
    };
    for (const auto& [file, text] : cases) {
        EXPECT_EQ(textAt(file, "a"), QString::fromUtf8(text)) << file;
    }
    const auto tree = XmlTree::parse("<p><a/><b/><a/></p>");
    ASSERT_TRUE(tree);
    EXPECT_EQ(tree->root().children("a").count(), 2U);
    EXPECT_EQ(tree->root().first("b").parent().name(), "p");
    EXPECT_TRUE(tree->root().parent().isNull() && XmlElement().last("a").parent().isNull());
}

TEST(XmlTree, readsTheDeclaredEncoding) {
    QByteArray utf16("\xff\xfe", 2);
    const QString file = QStringLiteral("<?xml version='1.0' encoding='UTF-16'?><p><a>Épave €</a></p>");
    utf16.append(reinterpret_cast<const char*>(file.utf16()), file.size() * 2);
    const std::pair<QByteArray, const char*> cases[] = {
        {"<?xml version='1.0' encoding='ISO-8859-1'?><p><a>\xc9pave</a></p>", "Épave"},
        {"<?xml version='1.0' encoding='windows-1252'?><p><a>\x80</a></p>", "€"},
        {"\xef\xbb\xbf<p><a>Épave</a></p>", "Épave"},
        {utf16, "Épave €"},
        // No encoding and no UTF-8: taken as Latin-1.
        {"<p><a>\xc9pave</a></p>", "Épave"},
    };
    for (const auto& [bytes, text] : cases) {
        EXPECT_EQ(textAt(bytes, "a"), QString::fromUtf8(text)) << bytes.toStdString();
    }
}

/// The texts of the root's children in a file that is mended, with where it is damaged.
QString mended(const QByteArray& file) {
    static constexpr std::string_view single[] = {"d", "g"};
    static constexpr std::pair<std::string_view, std::string_view> places[] = {{"e", "p"}, {"f", "p"}, {"o", "d"}};
    const auto tree = XmlTree::parse(file, {}, {true, true, true, single, places});
    QString texts;
    for (XmlElement it = tree ? tree->root().firstElement() : XmlElement(); !it.isNull(); it = it.nextElement()) {
        texts += it.text() + u'|';
    }
    return tree ? texts + tree->damage() : tree.error().message();
}

TEST(XmlTree, mendsADamagedFileOnRequest) {
    const std::pair<const char*, const char16_t*> cases[] = {
        {"<p><d>1</d>\n<d>2</d></p>", u"1|2|"},
        {"<p><d>1<n><b>x</n>y</d>\n<d>2</d><d>3</d></p>", u"1xy|2|3|1:19"},
        {"<p><d>1\n<d>2<n>x\n<D>3</D></p>", u"1\n|2x\n|3|3:13"},
        {"<p><g><d>1</x>y</d><d>2</d></g></p>", u"1y2|1:15"},
        {"<p><d>1</d><d>2", u"1|2|1:16"},
        {"<u:p><u:d>1</u:d><v:d>2</v:d></u:p>", u"1|2|"},
        {"<p><n>1</n><N>2</n><n>3</N></p>", u"1|2|3|1:20"},
        // An end tag is missing before what stands in the root; in a sound file something may be meant.
        {"<p><e>1<n>2<f>3</f></p>", u"12|3|1:24"},
        {"<p><e>1<f>2</f></e></p>", u"1|2|"},
        {"<p><e>1<n>2<f>3</f></n></e><d><n><o>4</o></n></d></p>", u"123|4|"},
        {"<p><n>1<f>2</f></n></p>", u"12|"},
        {"<n><e>1<f>2</f></e></n>", u"12|"},
        {"<p><d><n>1<o>2<f>3</f></p>", u"12|3|1:27"},
    };
    for (const auto& [file, texts] : cases) {
        EXPECT_EQ(mended(file), QStringView(texts)) << file;
    }
    // End tags of nothing end nothing, however many and wherever they stand.
    const QByteArray strays = "<?xml version='1.0'?><!DOCTYPE p>\n<u:p xmlns:u='u'>\n<u:d>1</b></u:c></u:d></a>";
    const QByteArray file =
        strays + QByteArray("</b>").repeated(5000) + "<u:d>2<n>3</b></n></u:d><u:d>4</u:d></u:p><d/>";
    EXPECT_EQ(mended(file), u"1|23|4|3:11");
    EXPECT_EQ(XmlTree::parse(file, {}, {true, true, true})->root().children("d").count(), 3U) << "without prefixes";
    EXPECT_EQ(XmlTree::parse("<u:p><u:d/><v:d/></u:p>", {}, {true, true})->root().firstElement().name(), "d");
    // What is left open may nest without the parser's knowing.
    EXPECT_TRUE(
        mended("<p>" + QByteArray("<a></b>").repeated(100'000)).contains(text("Main", "XML file beyond limits")));
}

TEST(XmlTree, readsTextThatItsDeclaredEncodingDoesNotTell) {
    const auto declared = [](const char* encoding, const QByteArray& text) {
        return "<?xml version='1.0' encoding='" + QByteArray(encoding) + "'?><p><d>" + text + "</d><d>\xc9</d></p>";
    };
    QByteArray utf16("\xff\xfe", 2);
    const QString lone = QStringLiteral("<p><d>1") + QChar(0xD800) + QStringLiteral("</d><d>É</d></p>");
    utf16.append(reinterpret_cast<const char*>(lone.utf16()), lone.size() * 2);
    const std::pair<QByteArray, const char16_t*> cases[] = {
        {declared("windows-1252", "\x80\x81"), u"€\uFFFD|É|"},
        {declared("UTF-8", "\x80\x81"), u"€\uFFFD|É|"},
        {declared("us-ascii", "1"), u"1|É|"},
        {declared("us-ascii", "\xc3\xa9").replace('\xc9', "\xc3\x89"), u"é|É|"},
        {declared("Shift_JIS", "\x83\x41\xff").replace("\xc9", "I"), u"ア\u00ff|I|"},
        {declared("ANSI", "\x80"), u"€|É|"},
        {declared("unicode", "\xc3\xa9").replace('\xc9', "\xc3\x89"), u"é|É|"},
        {"\xef\xbb\xbf" + declared("iso-8859-1", "\xc3\xa9").replace('\xc9', "\xc3\x89"), u"é|É|"},
        {"\xef\xbb\xbf" + declared("iso-8859-1", "\x80\x80"), u"€€|É|"},
        {declared("ISO-8859-1", "\xc3\xa9").replace('\xc9', "\xc3\x89"), u"é|É|"},
        {"\n" + declared("UTF-8", "\xc3\xa9"), u"é|É|"},
        {"<p><d>\xc3\xa9</d><d>\xc9</d></p>", u"é|É|"},
        {"<p><d>\xc3\xa9\x80</d><d>\xc9</d></p>", u"Ã©€|É|"},
        {utf16, u"1?|É|"},
    };
    for (const auto& [file, texts] : cases) {
        EXPECT_EQ(mended(file), QStringView(texts)) << file.toStdString();
    }
}

QByteArray nested(int levels) {
    return QByteArray("<p>") + QByteArray("<a>").repeated(levels) + QByteArray("</a>").repeated(levels) + "</p>";
}

TEST(XmlTree, neverReachesBeyondTheBytes) {
    const char* const files[] = {
        R"(<!DOCTYPE p [<!ENTITY e "in">]><p><a>x&e;y</a></p>)",
        R"(<!DOCTYPE p [<!ENTITY e SYSTEM "file:///etc/passwd">]><p><a>x&e;y</a></p>)",
        R"(<!DOCTYPE p [<!ENTITY % e SYSTEM "file:///etc/passwd"> %e;]><p><a>xy</a></p>)",
        R"(<!DOCTYPE p SYSTEM "file:///etc/passwd"><p><a>x&e;y</a></p>)",
        R"(<p xmlns:xi="http://www.w3.org/2001/XInclude"><a>x<xi:include href="/etc/passwd" parse="text"/>y</a></p>)",
    };
    for (const char* file : files) {
        EXPECT_EQ(textAt(file, "a"), u"xy") << file;
    }
}

TEST(XmlTree, refusesWhatHasNoEndOrNoElement) {
    QByteArray bomb = "<!DOCTYPE p [<!ENTITY a0 \"aaaaaaaaaa\">";
    for (int level = 1; level < 10; ++level) {
        const QByteArray below = "&a" + QByteArray::number(level - 1) + ";";
        bomb += "<!ENTITY a" + QByteArray::number(level) + " \"" + below.repeated(10) + "\">";
    }
    // What the parser's own limits overlook: a long entity named often, and parameter entities.
    const QByteArray longEntity =
        "<!DOCTYPE p [<!ENTITY e '" + QByteArray(100'000, 'a') + "'>]><p><a>" + QByteArray("&e;").repeated(100'000);
    QByteArray parameters = "<!DOCTYPE p [<!ENTITY % a0 '<!--c-->'>";
    for (int level = 1; level < 12; ++level) {
        const QByteArray below = "&#37;a" + QByteArray::number(level - 1) + ";";
        parameters += "<!ENTITY % a" + QByteArray::number(level) + " \"" + below.repeated(10) + "\">";
    }
    const auto refusal = [](const QByteArray& file) {
        const auto tree = XmlTree::parse(file);
        return tree ? QString() : tree.error().message();
    };
    // Given up for what they ask for, not for what the parser made of it.
    for (const QByteArray& file : {bomb + "]><p><a>&a9;</a></p>", bomb + "]><p><a b='&a9;'>x</a></p>", longEntity,
                                   parameters + "%a11;]><p><a/></p>", nested(100'000)}) {
        EXPECT_TRUE(refusal(file).startsWith(text("Main", "XML file beyond limits"))) << file.left(60).toStdString();
        // Without the parser's own limits, which count what is only looked at once.
        const QByteArray damaged = QByteArray(file).replace("<p>", "<p></q>");
        const bool isRefused = mended(damaged).startsWith(text("Main", "XML file beyond limits"));
        EXPECT_EQ(isRefused, !damaged.contains("<a>&a9;")) << file.left(60).toStdString();
    }
    for (const QByteArray& file : {QByteArray(), QByteArray("no markup"), QByteArray("\x04\x0bstreamtyped", 13)}) {
        EXPECT_TRUE(refusal(file).startsWith(text("Main", "XML file without elements"))) << file.toStdString();
    }
    EXPECT_TRUE(XmlTree::parse(nested(200)));
}

QByteArray numbered(const char* before, const char* after, int count) {
    QByteArray all;
    for (int number = 0; number < count; ++number) {
        all += before + QByteArray::number(number) + after;
    }
    return all;
}

TEST(XmlTree, refusesWhatCostsTheSquareOfItsSize) {
    const QByteArray defaults = "<!ATTLIST a " + numbered("b", " CDATA 'c' ", 2000) + ">";
    for (const QByteArray& file : {
             "<p><a " + numbered("b", "='' ", 300'000) + "/></p>",
             "<p><a " + numbered("xmlns:b", "='c' ", 100'000) + "/></p>",
             "<!DOCTYPE p [" + numbered("<!ATTLIST a b", " CDATA #IMPLIED>", 20'000) + "]><p/>",
             "<!DOCTYPE p [" + defaults + "]><p>" + QByteArray("<a/>").repeated(2000) + "</p>",
             "<!DOCTYPE p [" + numbered("<!ENTITY b", " 'c'>", 500'000) + "]><p/>",
             "<!DOCTYPE p [" + numbered("<!ELEMENT b", " EMPTY>", 20'000) + "]><p/>",
             "<!DOCTYPE p [" + numbered("<!NOTATION b", " SYSTEM 'c'>", 20'000) + "]><p/>",
         }) {
        const auto tree = XmlTree::parse(file);
        ASSERT_FALSE(tree) << file.left(60).toStdString();
        EXPECT_EQ(tree.error().sentence, u"The XML file nests or grows beyond all reason and was not read.");
    }
    // What a well-meant file may hold.
    EXPECT_EQ(
        textAt("<!DOCTYPE p [<!ELEMENT p (a*)><!ELEMENT a (#PCDATA)><!ATTLIST a " + numbered("b", " CDATA 'c' ", 20) +
                   "><!ENTITY e 'x'>]><p><a " + numbered("d", "='e' ", 500) + ">1</a></p>",
               "a"),
        u"1");
}

TEST(XmlTree, canBeCancelledAlsoWithinAnElementsStart) {
    int calls = 0;
    EXPECT_FALSE(XmlTree::parse("<p><a b='" + QByteArray(1'000'000, 'x') + "'/></p>",
                                [&](std::size_t, std::size_t) { return ++calls < 3; }));
    EXPECT_EQ(calls, 3);
    const QByteArray file = "<p>" + QByteArray("<a>1</a>").repeated(100'000) + "</p>";
    std::vector<std::size_t> told;
    const auto tree = XmlTree::parse(file, [&](std::size_t done, std::size_t total) {
        EXPECT_EQ(total, static_cast<std::size_t>(file.size()));
        told.push_back(done);
        return told.size() < 3;
    });
    EXPECT_FALSE(tree);
    ASSERT_EQ(told.size(), 3U);
    EXPECT_LT(told[0], told[1]);
    EXPECT_LT(told[2], static_cast<std::size_t>(file.size()));
    // A damaged file is gone through twice, which is told as once.
    told.assign(1, 0);
    const auto goOn = [&](std::size_t done, std::size_t) { return told.emplace_back(done) > 0 || told.size() < 3; };
    EXPECT_TRUE(XmlTree::parse(file.chopped(4), goOn, {true, true, true}));
    EXPECT_TRUE(std::is_sorted(told.begin(), told.end()) && told.back() <= static_cast<std::size_t>(file.size() - 4));
}

TEST(XmlWriter, writesElementsAndEscapes) {
    XmlWriter xml;
    xml.begin("p", "q", "\"1\"\n");
    xml.comment(" c ");
    xml.begin("empty");
    xml.end();
    xml.element("none", QString());
    xml.element("a", QStringLiteral("<É & \"x\">\r\n\u0001\uFFFE\uFFE1"));
    xml.begin("b");
    xml.decimal("d", -0.25, 1);
    xml.integer("i", -7);
    const QByteArray written = xml.finish();
    EXPECT_EQ(written.toStdString(),
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<p q=\"&quot;1&quot;&#10;\">\n  <!-- c -->\n"
              "  <empty/>\n  <none/>\n  <a>&lt;É &amp; \"x\"&gt;&#13;\n\uFFE1</a>\n"
              "  <b>\n    <d>-0.2</d>\n    <i>-7</i>\n  </b>\n</p>\n");
    EXPECT_EQ(textAt(written, "a"), u"<É & \"x\">\r\n\uFFE1");
}

}  // namespace

}  // namespace tavrel
