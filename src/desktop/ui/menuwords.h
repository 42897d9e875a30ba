#pragma once

#include <QString>

namespace tavrel {

/// Words that are no title of the program's, such as a file's name, for a menu to show as they are: an ampersand of
/// theirs marks no access key.
inline QString menuWords(QString words) {
    return words.replace(u'&', QStringLiteral("&&"));
}

}  // namespace tavrel
