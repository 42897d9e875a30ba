#pragma once

#include "desktop/desktop.h"
#include "desktop/picklists.h"

namespace tavrel {

/// What happens to a word that a form meets and its shared list lacks.
enum class NewWords { ask, always, never };

/// The user's choice for a list; asking, unless one was made.
NewWords newWordsOf(const Preferences& preferences, PickList list);
void setNewWords(Preferences& preferences, PickList list, NewWords choice);

/// At the end of editing a combo box: a text that its shared list lacks is offered to it with a question. Blanks (the
/// space character only) around the text decide whether it is empty, but the entry is the text as typed. Whatever the
/// answer, the list is then sorted and stored. A list whose user chose so takes it, or leaves it, without a question.
void offerToPickList(Desktop& desktop, PickList list, const QString& typed);
/// The same with a question that names another text than the entry.
void offerToPickList(Desktop& desktop, PickList list, const QString& typed, const QString& named);

}  // namespace tavrel
