#include "forms/tiffstrips.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace tavrel::tiff {

bool unpackPlain(QByteArrayView strip, std::span<uchar> rows) {
    if (static_cast<std::size_t>(strip.size()) < rows.size()) {
        return false;
    }
    std::memcpy(rows.data(), strip.data(), rows.size());
    return true;
}

bool unpackBits(QByteArrayView strip, std::span<uchar> rows) {
    std::size_t filled = 0;
    qsizetype at = 0;
    while (filled < rows.size() && at < strip.size()) {
        const auto byte = static_cast<uchar>(strip[at++]);
        const int head = byte < 128 ? byte : byte - 256;
        const auto count = static_cast<std::size_t>(head >= 0 ? head + 1 : 1 - head);
        if (head == -128) {
            continue;  // stands for nothing
        }
        const qsizetype taken = head >= 0 ? head + 1 : 1;
        if (taken > strip.size() - at || count > rows.size() - filled) {
            return false;
        }
        if (head >= 0) {
            std::memcpy(&rows[filled], strip.data() + at, count);
        } else {
            std::memset(&rows[filled], static_cast<uchar>(strip[at]), count);
        }
        filled += count;
        at += taken;
    }
    return filled == rows.size();
}

namespace {

constexpr int clearCode = 256;
constexpr int endCode = 257;
constexpr int firstString = 258;
constexpr int mostCodes = 4096;

/// A string is that of another code and one byte behind.
struct LzwTable {
    std::array<quint16, mostCodes> before{};
    std::array<uchar, mostCodes> last{};
    std::array<uchar, mostCodes> first{};
    std::array<quint16, mostCodes> length{};
    int next = firstString;

    LzwTable() {
        for (int code = 0; code < clearCode; ++code) {
            const auto index = static_cast<std::size_t>(code);
            last[index] = first[index] = static_cast<uchar>(code);
            length[index] = 1;
        }
    }

    void add(int code, uchar byte) {
        const auto from = static_cast<std::size_t>(code);
        const auto to = static_cast<std::size_t>(next++);
        before[to] = static_cast<quint16>(code);
        last[to] = byte;
        first[to] = first[from];
        length[to] = static_cast<quint16>(length[from] + 1);
    }

    /// Codes grow one step before the table would need it.
    int width() const { return next >= 2047 ? 12 : next >= 1023 ? 11 : next >= 511 ? 10 : 9; }
};

class BitReader {
public:
    explicit BitReader(QByteArrayView bytes) : bytes_(bytes) {}

    /// The next code; the end's where the bytes end.
    int take(int width) {
        while (held_ < width) {
            if (at_ == bytes_.size()) {
                return endCode;
            }
            bits_ = bits_ << 8 | static_cast<uchar>(bytes_[at_++]);
            held_ += 8;
        }
        held_ -= width;
        return static_cast<int>(bits_ >> held_ & ((1U << width) - 1));
    }

private:
    QByteArrayView bytes_;
    qsizetype at_ = 0;
    quint32 bits_ = 0;
    int held_ = 0;
};

}  // namespace

bool unpackLzw(QByteArrayView strip, std::span<uchar> rows) {
    BitReader bits(strip);
    LzwTable table;
    std::size_t filled = 0;
    int previous = -1;
    while (filled < rows.size()) {
        const int code = bits.take(table.width());
        if (code == endCode) {
            break;
        }
        if (code == clearCode) {
            table.next = firstString;
            previous = -1;
            continue;
        }
        if (previous < 0 ? code >= clearCode : code > table.next) {
            return false;
        }
        if (previous >= 0 && table.next < mostCodes) {
            // A code that is only being defined names the string before it and that string's first byte.
            const int source = code == table.next ? previous : code;
            table.add(previous, table.first[static_cast<std::size_t>(source)]);
        }
        const std::size_t length = table.length[static_cast<std::size_t>(code)];
        const std::size_t shown = std::min(length, rows.size() - filled);
        auto from = static_cast<std::size_t>(code);
        for (std::size_t place = length; place-- > 0; from = table.before[from]) {
            if (place < shown) {
                rows[filled + place] = table.last[from];
            }
        }
        filled += shown;
        previous = code;
    }
    return filled == rows.size();
}

}  // namespace tavrel::tiff
