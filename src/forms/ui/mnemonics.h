#pragma once

#include <QSet>
#include <QString>

namespace tavrel {

/// Gives the labels of one page their underlined letters, each letter once: the first letter of a word where it is
/// free, else any letter, else none.
class Mnemonics {
public:
    /// The text with "&" before its letter; an ampersand of the text's own stays one.
    QString mark(const QString& text);

private:
    QSet<QChar> taken_;
};

}  // namespace tavrel
