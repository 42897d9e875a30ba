#include "recordbooks/diversdocs.h"

#include "forms/pictures.h"
#include "recordbooks/bookfixture.h"
#include "recordbooks/recordbooks.h"

#include <QImage>

namespace tavrel {

namespace {

using DiversDocsTest = BookFixture<DiversDocs, diversDocuments>;

TEST_F(DiversDocsTest, readsItsArchiveWithAPicture) {
    // The picture's file is the four bytes "II*?", of 3.5 by 2 points.
    open("01", R"(9602
        92 8484 84"NSString"01 95 84"+" "Fit" 86 92 85 92 8484 84"NSDate"00 95 84"d"04 86 9601 92 85
        92 8484 84"NSImage"2e 95 92 85
            84"c"00 9d00 9d01 9d00 9d00 9d00 9d00 9d00 9d01 9d01 9d00 9d00 9d00 9d00
            84"ff"8300006040 02 84"s"01 9d00
            92 8484 84"NSBitmapImageRep"11 8484"NSImageRep"11 95 9604 84"[4c]"49492a3f 86
            92 8484 84"NSColor"00 95 9d03 9e0000 86 92 85 86
        92 84 99 99 "note" 86)");
    EXPECT_TRUE(holds(record(), "type=2|titre=Fit|emetteur=nil|date=4|renouveler=1|notes=note"));
    EXPECT_EQ(record().photocopy, (Image{"II*?", 3.5F, 2, {}}));
}

TEST_F(DiversDocsTest, startsWithoutDaysAndPicture) {
    book->newRecord();
    EXPECT_TRUE(holds(*built(), "type=0"));
    EXPECT_TRUE(built()->date == noDate() && built()->dateRenouvellement == noDate());
    EXPECT_TRUE(built()->photocopy.isNull());
    EXPECT_FALSE(at("dateRenouvellementField").enabled);
    enter("renouvelerSwitch=1");
    EXPECT_TRUE(at("dateRenouvellementField").enabled);
}

TEST_F(DiversDocsTest, namesTheKindsOfPaper) {
    const char* kinds[] = {"Attestation", "Certification", "Medical certificate", "Invoice", "Licence", "Other", "6"};
    DiversDocs paper;
    for (qint32 kind = 0; kind < 7; ++kind) {
        paper.type = kind;
        EXPECT_EQ(cell(paper, "type").text, QString::fromUtf8(kinds[kind]));
        EXPECT_EQ(colour(paper, "type"), "default");
    }
    EXPECT_EQ(cell(paper, "renouveler").text, u"");
    paper.renouveler = 1;
    EXPECT_EQ(cell(paper, "renouveler").text, u"✓");
}

TEST_F(DiversDocsTest, takesPicturesByTheNameOfTheirFile) {
    QImage pixels(3, 2, QImage::Format_RGB32);
    pixels.fill(Qt::red);
    const QString path = desktop.path(QStringLiteral("é.png"));
    ASSERT_TRUE(pixels.save(path));
    book->newRecord();
    EXPECT_TRUE(enterValue(state(), indexOf("photocopy"), path) && book->hasEntries());
    book->addRecord();
    EXPECT_EQ(pixelsOf(record().photocopy).value_or(QImage()).size(), pixels.size());

    book->userSelects({0});
    EXPECT_FALSE(enterValue(state(), indexOf("photocopy"), desktop.path(QStringLiteral("none.png"))));
    EXPECT_EQ(at("photocopy").image, record().photocopy);
    enter("photocopy=");
    EXPECT_TRUE(built()->photocopy.isNull());
}

}  // namespace

}  // namespace tavrel
