#pragma once

#include "base/failure.h"

#include <QString>

#include <string>

namespace tavrel {

/// Text in the Mac OS Roman character set, one byte for each character, nothing substituted. Letters typed as a base
/// and an accent are composed first ("e" and U+0301 are one é). The euro sign is 0xDB, the increment sign 0xC6 and the
/// character U+F8FF 0xF0, as the set has them since its revision with the euro.
class MacRoman {
public:
    /// Fails where the system's converter does not know the character set.
    static Expected<MacRoman> open();

    /// Appends the text's bytes and gives 0, or appends nothing and gives the first character that does not fit
    /// (U+FFFD for half a surrogate pair).
    char32_t append(std::string& bytes, QStringView text) const;

private:
    MacRoman() = default;

    char32_t upperHalf_[128] = {};  // the characters of the bytes 0x80 to 0xFF
};

}  // namespace tavrel
