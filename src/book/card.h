#pragma once

#include "base/texts.h"
#include "drawing/styledtext.h"

#include <QDateTime>

namespace tavrel {

class Date;

/// The plain colours that books and their cards name.
namespace plaincolour {
inline const QColor black(0x00, 0x00, 0x00);
inline const QColor red(0xff, 0x00, 0x00);
inline const QColor orange(0xff, 0x80, 0x00);
inline const QColor green(0x00, 0xff, 0x00);
inline const QColor blue(0x00, 0x00, 0xff);
inline const QColor brown(0x99, 0x66, 0x33);
inline const QColor purple(0x80, 0x00, 0x80);
}  // namespace plaincolour

/// Builds the text card of a record book: a green title; for each record a separator and its labels in black with their
/// values in blue; two closing lines in green. Labels carry their own line breaks and colons.
class CardBuilder {
public:
    explicit CardBuilder(const Title& title);

    void beginRecord();
    void entry(const Title& label, const QString& value);
    void entry(const Title& label, int value);
    /// "dd/MM/yyyy", also of the day that stands for none in a form; nothing for a null date.
    void entry(const Title& label, const Date& value);
    /// A label that stands alone.
    void heading(const Title& label) { add(label.text(), plaincolour::black); }
    /// A text of one colour as it is.
    void add(const QString& text, const QColor& colour);
    /// Closes with the file's name and the moment of the edition.
    StyledText finish(const QString& file, const QDateTime& now);

private:
    StyledText card_;
};

}  // namespace tavrel
