#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QStringView>

namespace tavrel {

/// The text as a search compares it: case and accents aside ("Épave" is "epave", "Cœur" is "coeur"), typographic
/// apostrophes, dashes and blanks as the plain ones, control characters as blanks.
QString folded(QStringView text);

/// A part of a text, in UTF-16 units.
struct TextRange {
    qsizetype start = 0;
    qsizetype length = 0;

    bool operator==(const TextRange&) const = default;
};

/// Where words, folded already, stand in a text, from its start on; what touches or overlaps is one range.
QList<TextRange> rangesOf(const QStringList& words, QStringView text);

}  // namespace tavrel
