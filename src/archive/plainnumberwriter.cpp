#include "archive/plainnumberwriter.h"

#include "records/floatbits.h"

#include <bit>

namespace tavrel {

void PlainNumberWriter::write(const Series& series) {
    for (std::size_t index = 0; index < series.size(); ++index) {
        write(series.at(index));
    }
}

void PlainNumberWriter::write(const Number& number) {
    stream_.beginGroup("@");
    if (numbers_ == SeriesNumbers::shared) {
        const auto bits = number.code == 'd'   ? std::bit_cast<std::uint64_t>(number.real)
                          : number.code == 'f' ? std::bit_cast<std::uint32_t>(narrowed(number.real))
                                               : std::bit_cast<std::uint64_t>(number.integer);
        const auto [known, isNew] = known_.try_emplace({number.code, bits}, stream_.nextObject_);
        if (!isNew) {
            stream_.putReference(known->second);
            return;
        }
    }
    const std::string_view code(&number.code, 1);
    stream_.beginLiteral(TypedStreamWriter::numberClass);
    stream_.beginGroup("*");
    stream_.putCString(code);
    stream_.beginGroup(code);
    writeValue(number);
    stream_.endObject();
}

void PlainNumberWriter::writeValue(const Number& number) {
    switch (number.code) {
        case 'd':
            return stream_.putDouble(number.real);
        case 'f':
            return stream_.putFloat(narrowed(number.real));
        case 'c':
        case 'C':
        case 'B':
            return stream_.put(static_cast<unsigned char>(number.integer));
        case 'I':
        case 'L':
        case 'Q':
            return stream_.putUnsigned(std::bit_cast<std::uint64_t>(number.integer));
        default:
            return stream_.putSigned(number.integer);
    }
}

}  // namespace tavrel
