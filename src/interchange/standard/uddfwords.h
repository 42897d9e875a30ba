#pragma once

#include "dives/divecodes.h"

#include <QString>

#include <optional>

namespace tavrel {

// The words and scales of UDDF beside the tags of a dive. Each pair of functions is one table read both ways.

/// Metres of sight and their rating, Plongee::visibilite; a rating's metres stand in the middle of what it covers, and
/// are 0 for none.
qint32 visibilityRating(double metres);
double visibilityMetres(qint32 rating);

/// "no-current" to "very-hard-current" and Plongee::courant; empty for none.
std::optional<qint32> currentOf(const QString& word);
QString currentWord(qint32 current);

/// Purposes of a dive and Plongee::typePlongee; a kind that UDDF does not know is "other".
std::optional<qint32> purposeOf(const QString& word);
QString purposeWord(qint32 kind);
/// The kinds of dive that UDDF tells by the site; an empty word for the others.
std::optional<qint32> environmentKind(const QString& word);
QString environmentWord(qint32 kind);

/// Ratings from 1 to 10 and Plongee::inoubliable; 0 is none in both.
qint32 ratingOf(double value);
int ratingValue(qint32 rating);

/// A site's difficulty from 0 to 10 and Plongee::difficulte.
qint32 difficultyOf(double value);
int difficultyValue(qint32 difficulty);

/// Suits by their name, or by the kind that UDDF gives them, and Plongee::combinaison.
std::optional<qint32> suitOf(const QString& name, const QString& kind);
QString suitName(qint32 suit);
QString suitKind(qint32 suit);

/// Set points in bar, to a tenth, and the tags of Plongee::ppO2; tag and pressure 0 are none.
qint32 setPointTag(double bar);
double setPointBar(qint32 tag);

/// Whether a word for a way to breathe tells one that a dive knows: open-scuba, rebreather, opencircuit and the like.
bool isCircuit(const QString& word);
/// The rebreather that a name holds: "mCCR", "eCCR", "hCCR", "SCR".
std::optional<qint32> apparatusOf(const QString& name);
QString apparatusName(qint32 apparatus);

}  // namespace tavrel
