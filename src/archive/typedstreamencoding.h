#pragma once

#include "archive/typedstreamscanner.h"

#include <algorithm>
#include <cstdint>
#include <string_view>

namespace tavrel {

inline bool isIntegerCode(char code) {
    switch (code) {
        case 'c':
        case 'C':
        case 's':
        case 'S':
        case 'i':
        case 'I':
        case 'l':
        case 'L':
        case 'q':
        case 'Q':
        case 'B':
            return true;
        default:
            return false;
    }
}

/// Where the type code that begins there ends, brackets included; the size of the text when it does not.
inline std::size_t encodingEnd(std::string_view types, std::size_t at) {
    int open = 0;
    for (; at < types.size(); ++at) {
        open += types[at] == '[' || types[at] == '{' ? 1 : 0;
        open -= types[at] == ']' || types[at] == '}' ? 1 : 0;
        if (open <= 0) {
            return open < 0 ? types.size() : at + 1;
        }
    }
    return types.size();
}

/// Walks the values of a group along its type encoding and hands each to the handler:
///
///     void integer(char code, std::int64_t value);    // c C s S i I l L q Q B
///     void real(char code, double value);             // f d
///     void text(char code, std::string_view text);    // * + : %, null data for nil
///     void classValue(std::int32_t index);            // #, -1 for nil
///     void object();                                  // @: the handler reads it from the scanner
///     void bytes(std::string_view raw);               // [n c], [n C]
///     void beginList(); void endList();               // other arrays, structures
///
/// Refuses encodings that are unknown, malformed, nested too deeply or longer than any that a program writes; the
/// length matters because a group by reference costs a byte and makes the whole encoding be walked. The steps count as
/// the scanner's effort.
template <class Handler>
class EncodingWalk {
public:
    static constexpr std::size_t maximumLength = 1024;
    static constexpr int maximumNesting = 32;

    EncodingWalk(TypedStreamScanner& scanner, Handler& handler) : scanner_(scanner), handler_(handler) {}

    /// All values of a group whose type encoding was just read.
    void group(std::string_view types) {
        start_ = scanner_.offset();
        if (types.size() > maximumLength) {
            refuse(StreamFault::unknownType);
        }
        for (std::size_t at = 0; at < types.size() && scanner_.ok();) {
            at = value(types, at, 0);
        }
    }

private:
    void refuse(StreamFault fault) { scanner_.fail(fault, std::min(start_, scanner_.offset())); }

    // Reads the value whose encoding begins there; where the next one begins.
    std::size_t value(std::string_view types, std::size_t at, int nesting) {
        if (nesting > maximumNesting) {
            refuse(StreamFault::tooDeep);
            return types.size();
        }
        scanner_.spend(1);
        const char code = types[at];
        if (isIntegerCode(code)) {
            handler_.integer(code, scanner_.readInteger(code));
            return at + 1;
        }
        switch (code) {
            case 'f':
                handler_.real(code, static_cast<double>(scanner_.readFloat()));
                return at + 1;
            case 'd':
                handler_.real(code, scanner_.readDouble());
                return at + 1;
            case '*':
                handler_.text(code, scanner_.readCString());
                return at + 1;
            case '+':
                handler_.text(code, scanner_.readUnsharedString());
                return at + 1;
            case ':':
            case '%':
                handler_.text(code, scanner_.sharedString(scanner_.readSharedString()));
                return at + 1;
            case '#':
                handler_.classValue(scanner_.readClass());
                return at + 1;
            case '@':
                handler_.object();
                return at + 1;
            case '[':
                return array(types, at + 1, nesting);
            case '{':
                return structure(types, at + 1, nesting);
            default:
                refuse(StreamFault::unknownType);
                return types.size();
        }
    }

    std::size_t array(std::string_view types, std::size_t at, int nesting) {
        std::size_t count = 0;
        const std::size_t digits = at;
        for (; at < types.size() && types[at] >= '0' && types[at] <= '9'; ++at) {
            count =
                std::min<std::size_t>(count * 10 + static_cast<std::size_t>(types[at] - '0'), scanner_.bytesLeft() + 1);
        }
        const std::size_t end = encodingEnd(types, at);
        scanner_.spend(end - digits);
        if (at == digits || end >= types.size() || types[end] != ']') {
            refuse(StreamFault::unknownType);
            return types.size();
        }
        if (count > scanner_.bytesLeft()) {
            refuse(StreamFault::countTooLarge);
            return types.size();
        }
        if (end == at + 1 && (types[at] == 'c' || types[at] == 'C')) {
            handler_.bytes(scanner_.readRaw(count));
            return end + 1;
        }
        handler_.beginList();
        for (std::size_t index = 0; index < count && scanner_.ok(); ++index) {
            const std::size_t before = scanner_.offset();
            value(types, at, nesting + 1);
            if (scanner_.ok() && scanner_.offset() == before) {
                // Elements that take no bytes would make any count pass.
                refuse(StreamFault::countTooLarge);
            }
        }
        handler_.endList();
        return end + 1;
    }

    std::size_t structure(std::string_view types, std::size_t at, int nesting) {
        const std::size_t name = at;
        at = types.find('=', at);
        scanner_.spend(std::min(at, types.size()) - name);
        if (at == std::string_view::npos) {
            refuse(StreamFault::unknownType);
            return types.size();
        }
        handler_.beginList();
        for (++at; at < types.size() && types[at] != '}' && scanner_.ok();) {
            at = value(types, at, nesting + 1);
        }
        handler_.endList();
        if (at >= types.size()) {
            refuse(StreamFault::unknownType);
            return types.size();
        }
        return at + 1;
    }

    TypedStreamScanner& scanner_;
    Handler& handler_;
    std::size_t start_ = 0;
};

}  // namespace tavrel
