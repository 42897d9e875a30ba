#include "interchange/macroman.h"

#include "base/texts.h"

#include <QList>
#include <iconv.h>

#include <algorithm>
#include <bit>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <iterator>

namespace tavrel {

namespace {

bool isAscii(QStringView text) {
    return std::all_of(text.begin(), text.end(), [](QChar character) { return character.unicode() < 0x80; });
}

/// Places where converters differ from the character set: the increment sign, which they take for the Greek letter, and
/// the trademark in the private area.
constexpr std::pair<int, char32_t> corrections[] = {{0xC6, 0x2206}, {0xDB, 0x20AC}, {0xF0, 0xF8FF}};

constexpr int firstUpper = 0x80;

bool isOpen(iconv_t converter) {
    return reinterpret_cast<std::intptr_t>(converter) != -1;
}

}  // namespace

Expected<MacRoman> MacRoman::open() {
    const iconv_t converter =
        iconv_open(std::endian::native == std::endian::little ? "UCS-4LE" : "UCS-4BE", "MACINTOSH");
    MacRoman table;
    bool whole = isOpen(converter);
    for (int index = 0; whole && index < 128; ++index) {
        char byte = static_cast<char>(firstUpper + index);
        char* in = &byte;
        std::size_t inLeft = 1;
        char* out = reinterpret_cast<char*>(&table.upperHalf_[index]);
        std::size_t outLeft = sizeof(char32_t);
        whole = iconv(converter, &in, &inLeft, &out, &outLeft) != static_cast<std::size_t>(-1) && outLeft == 0;
    }
    if (isOpen(converter)) {
        iconv_close(converter);
    }
    if (!whole) {
        return failure(text("Main", "No Mac OS Roman"), QString::fromLocal8Bit(std::strerror(errno)));
    }
    for (const auto& [byte, character] : corrections) {
        table.upperHalf_[byte - firstUpper] = character;
    }
    return table;
}

char32_t MacRoman::append(std::string& bytes, QStringView text) const {
    const std::size_t start = bytes.size();
    if (isAscii(text)) {
        bytes.resize(start + static_cast<std::size_t>(text.size()));
        std::transform(text.begin(), text.end(), bytes.begin() + static_cast<std::ptrdiff_t>(start),
                       [](QChar character) { return static_cast<char>(character.unicode()); });
        return 0;
    }
    const QList<uint> composed = text.toString().normalized(QString::NormalizationForm_C).toUcs4();
    for (const uint character : composed) {
        if (character < firstUpper) {
            bytes += static_cast<char>(character);
            continue;
        }
        const auto* place = std::find(std::begin(upperHalf_), std::end(upperHalf_), character);
        if (place == std::end(upperHalf_)) {
            bytes.resize(start);
            return character;
        }
        bytes += static_cast<char>(firstUpper + (place - std::begin(upperHalf_)));
    }
    return 0;
}

}  // namespace tavrel
