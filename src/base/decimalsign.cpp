#include "base/decimalsign.h"

#include "base/texts.h"

namespace tavrel {

QString withDecimalSign(QString words) {
    if (textLanguage() != u"fr") {
        return words;
    }
    for (qsizetype place = 1; place + 1 < words.size(); ++place) {
        if (words[place] == u'.' && words[place - 1].isDigit() && words[place + 1].isDigit()) {
            words[place] = u',';
        }
    }
    return words;
}

}  // namespace tavrel
