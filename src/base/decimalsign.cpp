#include "base/decimalsign.h"

#include "base/texts.h"

namespace tavrel {

QString withDecimalSign(QString words) {
    if (textLanguage() != u"fr") {
        return words;
    }
    const auto isPoint = [&words](qsizetype place) {
        return place > 0 && place + 1 < words.size() && words[place] == u'.' && words[place - 1].isDigit() &&
               words[place + 1].isDigit();
    };
    for (qsizetype place = 0; place < words.size(); ++place) {
        if (!isPoint(place)) {
            continue;
        }
        qsizetype next = place + 1;
        while (next < words.size() && words[next].isDigit()) {
            ++next;
        }
        if (!isPoint(next)) {
            words[place] = u',';
            continue;
        }
        // Several points part the numbers of a day or of a version.
        while (isPoint(next) || (next < words.size() && words[next].isDigit())) {
            ++next;
        }
        place = next - 1;
    }
    return words;
}

}  // namespace tavrel
