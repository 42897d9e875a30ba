#include "interchange/standard/uddfwords.h"

#include <array>
#include <cmath>
#include <utility>

namespace tavrel {

namespace {

using Word = std::pair<qint32, const char*>;

template <std::size_t N>
std::optional<qint32> tagOf(const std::array<Word, N>& words, const QString& word) {
    for (const auto& [tag, its] : words) {
        if (word.compare(QLatin1String(its), Qt::CaseInsensitive) == 0) {
            return tag;
        }
    }
    return std::nullopt;
}

/// The first word of a tag.
template <std::size_t N>
QString wordOf(const std::array<Word, N>& words, qint32 tag) {
    for (const auto& [its, word] : words) {
        if (its == tag) {
            return QString::fromLatin1(word);
        }
    }
    return {};
}

/// A rating with the least metres that it begins at and those that stand for it, from the best on.
struct Sight {
    qint32 rating;
    double from;
    double metres;
};
constexpr std::array<Sight, 8> sights{{
    {8, 40, 50},
    {0, 25, 30},
    {1, 15, 20},
    {2, 10, 12},
    {3, 5, 7},
    {4, 3, 4},
    {5, 1, 2},
    {6, 0, 0.5},
}};

constexpr std::array<Word, 6> currents{{
    {0, "no-current"},
    {1, "mild-current"},
    {1, "very-mild-current"},
    {2, "moderate-current"},
    {3, "hard-current"},
    {4, "very-hard-current"},
}};

constexpr std::array<Word, 9> purposes{{
    {1, "sightseeing"},
    {11, "learning"},
    {11, "teaching"},
    {11, "proficiency"},
    {12, "research"},
    {3, "photography-videography"},
    {7, "work"},
    {8, "other"},
    {8, "spearfishing"},
}};

constexpr std::array<Word, 2> environments{{{5, "cave-cavern"}, {10, "under-ice"}}};

/// With the names that this program gives them and the kind that UDDF knows.
struct Suit {
    qint32 tag;
    const char* name;
    const char* kind;
};
constexpr std::array<Suit, 6> suits{{
    {0, "Wet suit", "wet-suit"},
    {1, "Dry suit", "dry-suit"},
    {2, "Shorty", "other"},
    {4, "Semi-dry suit", "other"},
    {5, "T-shirt", "other"},
    {6, "Tropical suit", "dive-skin"},
}};

/// Tenths of a bar of the set points' tags.
constexpr std::array<std::pair<qint32, int>, 10> setPoints{{
    {10, 7},
    {9, 8},
    {8, 9},
    {7, 10},
    {6, 11},
    {1, 12},
    {2, 13},
    {3, 14},
    {4, 15},
    {5, 16},
}};

constexpr std::array<Word, 4> apparatuses{{
    {manualClosed, "mCCR"},
    {electronicClosed, "eCCR"},
    {hybridClosed, "hCCR"},
    {semiClosed, "SCR"},
}};

}  // namespace

qint32 visibilityRating(double metres) {
    for (const Sight& sight : sights) {
        if (metres >= sight.from) {
            return sight.rating;
        }
    }
    return sights.back().rating;
}

double visibilityMetres(qint32 rating) {
    for (const Sight& sight : sights) {
        if (sight.rating == rating) {
            return sight.metres;
        }
    }
    return 0;
}

std::optional<qint32> currentOf(const QString& word) {
    return tagOf(currents, word);
}
QString currentWord(qint32 current) {
    constexpr qint32 violent = 5;  // beyond UDDF's words
    return wordOf(currents, current == violent ? 4 : current);
}

std::optional<qint32> purposeOf(const QString& word) {
    return tagOf(purposes, word);
}
QString purposeWord(qint32 kind) {
    const QString word = wordOf(purposes, kind);
    return word.isEmpty() && environmentWord(kind).isEmpty() ? QStringLiteral("other") : word;
}
std::optional<qint32> environmentKind(const QString& word) {
    return tagOf(environments, word);
}
QString environmentWord(qint32 kind) {
    return wordOf(environments, kind);
}

qint32 ratingOf(double value) {
    return value >= 9 ? 1 : value >= 6 ? 2 : value >= 3 ? 3 : value >= 1 ? 4 : 0;
}
int ratingValue(qint32 rating) {
    constexpr std::array<int, 5> values{0, 10, 7, 4, 1};
    return rating >= 0 && rating < static_cast<qint32>(values.size()) ? values[static_cast<std::size_t>(rating)] : 0;
}

qint32 difficultyOf(double value) {
    return value > 0 && value <= 10 ? static_cast<qint32>(std::lround(value / 2)) : 0;
}
int difficultyValue(qint32 difficulty) {
    return difficulty > 0 && difficulty <= 5 ? 2 * difficulty : 0;
}

std::optional<qint32> suitOf(const QString& name, const QString& kind) {
    for (const Suit& suit : suits) {
        if (name.compare(QLatin1String(suit.name), Qt::CaseInsensitive) == 0) {
            return suit.tag;
        }
    }
    for (const Suit& suit : suits) {
        if (kind == QLatin1String(suit.kind) && kind != QLatin1String("other")) {
            return suit.tag;
        }
    }
    return std::nullopt;
}
QString suitName(qint32 tag) {
    for (const Suit& suit : suits) {
        if (suit.tag == tag) {
            return QString::fromLatin1(suit.name);
        }
    }
    return {};
}
QString suitKind(qint32 tag) {
    for (const Suit& suit : suits) {
        if (suit.tag == tag) {
            return QString::fromLatin1(suit.kind);
        }
    }
    return {};
}

qint32 setPointTag(double bar) {
    for (const auto& [tag, tenths] : setPoints) {
        if (std::lround(bar * 10) == tenths) {
            return tag;
        }
    }
    return 0;
}
double setPointBar(qint32 tag) {
    for (const auto& [its, tenths] : setPoints) {
        if (its == tag) {
            return tenths / 10.0;
        }
    }
    return 0;
}

std::optional<qint32> apparatusOf(const QString& name) {
    for (const auto& [tag, word] : apparatuses) {
        if (name.contains(QLatin1String(word), Qt::CaseInsensitive)) {
            return tag;
        }
    }
    return std::nullopt;
}
QString apparatusName(qint32 apparatus) {
    return wordOf(apparatuses, apparatus);
}

}  // namespace tavrel
