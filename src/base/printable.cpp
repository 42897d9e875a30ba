#include "base/printable.h"

namespace tavrel {

QString printable(const QString& text) {
    constexpr char16_t pictures = 0x2400;
    QString shown = text;
    for (QChar& character : shown) {
        const char16_t code = character.unicode();
        if (code < 0x20 && code != u'\n') {
            character = QChar(static_cast<char16_t>(pictures + code));
        } else if (code == 0x7F) {
            character = QChar(static_cast<char16_t>(pictures + 0x21));
        } else if ((code >= 0x80 && code < 0xA0) || (code >= 0x202A && code <= 0x202E) ||
                   (code >= 0x2066 && code <= 0x2069)) {
            character = QChar::ReplacementCharacter;
        }
    }
    return shown;
}

}  // namespace tavrel
