#include "base/foldedtext.h"

#include <gtest/gtest.h>

namespace tavrel {

TEST(FoldedText, leavesCaseAccentsAndTypographyAside) {
    EXPECT_EQ(folded(u"Épave du CŒUR – L’Île"), u"epave du coeur - l'ile");
    EXPECT_EQ(folded(u"e\u0301té\u00a0!\n"), u"ete ! ");
    EXPECT_EQ(folded(u"Größe, Ærø, Łódź"), u"grosse, aero, łodz");
    EXPECT_EQ(folded(u"ŽUŽELKA Ωμέγα"), u"zuzelka ωμεγα");
}

TEST(FoldedText, findsWordsWhereTheyStandAsShown) {
    const auto ranges = [](const QStringList& words, QStringView text) { return rangesOf(words, text); };
    EXPECT_EQ(ranges({QStringLiteral("oeu")}, u"Le Cœur"), (QList<TextRange>{{4, 2}}));
    EXPECT_EQ(ranges({QStringLiteral("e")}, u"e\u0301té"), (QList<TextRange>{{0, 2}, {3, 1}}));
    EXPECT_EQ(ranges({QStringLiteral("ana")}, u"banana"), (QList<TextRange>{{1, 5}})) << "overlapping";
    EXPECT_EQ(ranges({QStringLiteral("du"), QStringLiteral("banc")}, u"Banc du Nord"),
              (QList<TextRange>{{0, 4}, {5, 2}}));
    EXPECT_TRUE(ranges({QStringLiteral("x"), QString()}, u"Banc").isEmpty());
}

}  // namespace tavrel
