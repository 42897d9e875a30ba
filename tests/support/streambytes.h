#pragma once

#include <QByteArray>

#include <string_view>

namespace tavrel {

/// Bytes written down by hand: hexadecimal digits, "text" for a length byte and the text, blanks anywhere.
inline QByteArray streamBytes(std::string_view notation) {
    QByteArray bytes;
    int high = -1;
    for (std::size_t at = 0; at < notation.size(); ++at) {
        const char sign = notation[at];
        if (sign == '"') {
            const std::size_t end = notation.find('"', at + 1);
            const std::string_view text = notation.substr(at + 1, end - at - 1);
            bytes.append(static_cast<char>(text.size())).append(text.data(), static_cast<qsizetype>(text.size()));
            at = end;
        } else if (sign != ' ' && sign != '\n' && sign != '!') {
            const int digit = sign <= '9' ? sign - '0' : sign - 'a' + 10;
            if (high < 0) {
                high = digit;
            } else {
                bytes.append(static_cast<char>(high * 16 + digit));
                high = -1;
            }
        }
    }
    return bytes;
}

/// How many bytes stand before the mark.
inline std::size_t streamOffset(std::string_view notation) {
    return static_cast<std::size_t>(streamBytes(notation.substr(0, notation.find('!'))).size());
}

}  // namespace tavrel
