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
    {Visibility::exceptional, 40, 50},
    {Visibility::excellent, 25, 30},
    {Visibility::veryGood, 15, 20},
    {Visibility::good, 10, 12},
    {Visibility::medium, 5, 7},
    {Visibility::bad, 3, 4},
    {Visibility::veryBad, 1, 2},
    {Visibility::execrable, 0, 0.5},
}};

constexpr std::array<Word, 6> currents{{
    {Current::none, "no-current"},
    {Current::weak, "mild-current"},
    {Current::weak, "very-mild-current"},
    {Current::moderate, "moderate-current"},
    {Current::strong, "hard-current"},
    {Current::veryStrong, "very-hard-current"},
}};

constexpr std::array<Word, 9> purposes{{
    {DiveKind::recreational, "sightseeing"},
    {DiveKind::training, "learning"},
    {DiveKind::training, "teaching"},
    {DiveKind::training, "proficiency"},
    {DiveKind::biology, "research"},
    {DiveKind::photo, "photography-videography"},
    {DiveKind::work, "work"},
    {DiveKind::other, "other"},
    {DiveKind::other, "spearfishing"},
}};

constexpr std::array<Word, 2> environments{{{DiveKind::cave, "cave-cavern"}, {DiveKind::underIce, "under-ice"}}};

/// With the names that this program gives them and the kind that UDDF knows.
struct SuitWord {
    qint32 tag;
    const char* name;
    const char* kind;
};
constexpr std::array<SuitWord, 6> suits{{
    {Suit::wet, "Wet suit", "wet-suit"},
    {Suit::dry, "Dry suit", "dry-suit"},
    {Suit::shorty, "Shorty", "other"},
    {Suit::semiDry, "Semi-dry suit", "other"},
    {Suit::tShirt, "T-shirt", "other"},
    {Suit::tropical, "Tropical suit", "dive-skin"},
}};

constexpr std::array<Word, 4> apparatuses{{
    {Apparatus::manualClosed, "mCCR"},
    {Apparatus::electronicClosed, "eCCR"},
    {Apparatus::hybridClosed, "hCCR"},
    {Apparatus::semiClosed, "SCR"},
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
    // UDDF has no word beyond the very strong.
    return wordOf(currents, current == Current::violent ? qint32(Current::veryStrong) : current);
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
    return value >= 9   ? Rating::unforgettable
           : value >= 6 ? Rating::good
           : value >= 3 ? Rating::poor
           : value >= 1 ? Rating::neverAgain
                        : Rating::none;
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
    for (const SuitWord& suit : suits) {
        if (name.compare(QLatin1String(suit.name), Qt::CaseInsensitive) == 0) {
            return suit.tag;
        }
    }
    for (const SuitWord& suit : suits) {
        if (kind == QLatin1String(suit.kind) && kind != QLatin1String("other")) {
            return suit.tag;
        }
    }
    return std::nullopt;
}
QString suitName(qint32 tag) {
    for (const SuitWord& suit : suits) {
        if (suit.tag == tag) {
            return QString::fromLatin1(suit.name);
        }
    }
    return {};
}
QString suitKind(qint32 tag) {
    for (const SuitWord& suit : suits) {
        if (suit.tag == tag) {
            return QString::fromLatin1(suit.kind);
        }
    }
    return {};
}

qint32 setPointTag(double bar) {
    for (qint32 tag = 1; SetPoint::tenthsOfBar(tag) != 0; ++tag) {
        if (std::lround(bar * 10) == SetPoint::tenthsOfBar(tag)) {
            return tag;
        }
    }
    return 0;
}
double setPointBar(qint32 tag) {
    return SetPoint::tenthsOfBar(tag) / 10.0;
}

bool isCircuit(const QString& word) {
    const auto says = [&](const char* part) { return word.contains(QLatin1String(part), Qt::CaseInsensitive); };
    return says("scuba") || says("circuit") || says("rebreather");
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
