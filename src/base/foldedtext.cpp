#include "base/foldedtext.h"

#include <algorithm>
#include <array>

namespace tavrel {

namespace {

QString foldCharacter(QChar character) {
    switch (character.unicode()) {
        case u'\u2018':
        case u'\u2019':
        case u'\u02bc':
            return QStringLiteral("'");
        case u'\u2010':
        case u'\u2011':
        case u'\u2012':
        case u'\u2013':
        case u'\u2014':
            return QStringLiteral("-");
        case u'œ':
        case u'Œ':
            return QStringLiteral("oe");
        case u'æ':
        case u'Æ':
            return QStringLiteral("ae");
        case u'ø':
        case u'Ø':
            return QStringLiteral("o");
        case u'ß':
            return QStringLiteral("ss");
        default:
            break;
    }
    if (character.isSurrogate()) {
        return character;
    }
    if (character.isSpace() || character.category() == QChar::Other_Control) {
        return QStringLiteral(" ");
    }
    QString parts = QString(character).normalized(QString::NormalizationForm_KD).toCaseFolded();
    parts.removeIf([](QChar part) { return part.isMark(); });
    return parts;
}

/// The characters of the European languages are folded once.
constexpr std::size_t kept = 0x250;

const QString& foldedCharacter(QChar character, QString& own) {
    static const std::array<QString, kept> characters = [] {
        std::array<QString, kept> all;
        for (std::size_t each = 0; each < kept; ++each) {
            all[each] = foldCharacter(QChar(static_cast<char16_t>(each)));
        }
        return all;
    }();
    if (character.unicode() < kept) {
        return characters[character.unicode()];
    }
    own = foldCharacter(character);
    return own;
}

}  // namespace

QString folded(QStringView text) {
    QString result;
    result.reserve(text.size());
    QString own;
    for (const QChar character : text) {
        result += foldedCharacter(character, own);
    }
    return result;
}

QList<TextRange> rangesOf(const QStringList& words, QStringView text) {
    QString searched;
    QList<qsizetype> origins;  // of each folded unit, in the text
    QString own;
    for (qsizetype place = 0; place < text.size(); ++place) {
        const QString& parts = foldedCharacter(text[place], own);
        searched += parts;
        origins.insert(origins.size(), parts.size(), place);
    }
    origins.append(text.size());

    QList<TextRange> found;
    for (const QString& word : words) {
        if (word.isEmpty()) {
            continue;
        }
        for (qsizetype place = searched.indexOf(word); place >= 0; place = searched.indexOf(word, place + 1)) {
            // Marks behind the last character, which folding leaves out, belong to it.
            const qsizetype start = origins[place];
            const qsizetype last = origins[place + word.size() - 1];
            const qsizetype end = std::max(origins[place + word.size()], last + 1);
            found.append({start, end - start});
        }
    }
    std::sort(found.begin(), found.end(),
              [](const TextRange& left, const TextRange& right) { return left.start < right.start; });
    QList<TextRange> joined;
    for (const TextRange& range : found) {
        if (joined.isEmpty() || range.start > joined.back().start + joined.back().length) {
            joined.append(range);
        } else {
            TextRange& before = joined.back();
            before.length = std::max(before.length, range.start + range.length - before.start);
        }
    }
    return joined;
}

}  // namespace tavrel
