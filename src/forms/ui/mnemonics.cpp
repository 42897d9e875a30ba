#include "forms/ui/mnemonics.h"

namespace tavrel {

QString Mnemonics::mark(const QString& text) {
    qsizetype best = -1;
    for (qsizetype at = 0; at < text.size(); ++at) {
        const QChar letter = text[at].toLower();
        // Only letters that every keyboard types without a dead key.
        const bool usable = letter.unicode() >= u'a' && letter.unicode() <= u'z' && !taken_.contains(letter);
        const bool startsWord = at == 0 || text[at - 1].isSpace();
        if (usable && startsWord) {
            best = at;
            break;
        }
        if (usable && best < 0) {
            best = at;
        }
    }
    QString marked;
    for (qsizetype at = 0; at < text.size(); ++at) {
        if (at == best) {
            taken_.insert(text[at].toLower());
            marked += u'&';
        }
        marked += text[at];
        if (text[at] == u'&') {
            marked += u'&';
        }
    }
    return marked;
}

}  // namespace tavrel
