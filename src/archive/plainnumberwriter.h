#pragma once

#include "archive/numberwriter.h"
#include "archive/typedstreamwriter.h"

#include <map>
#include <utility>

namespace tavrel {

/// Writes number after number as the stream writes any other object.
class PlainNumberWriter final : public NumberWriter {
public:
    PlainNumberWriter(TypedStreamWriter& stream, SeriesNumbers numbers) : stream_(stream), numbers_(numbers) {}

    void write(const Series& series) override;

private:
    void write(const Number& number);
    void writeValue(const Number& number);

    TypedStreamWriter& stream_;
    const SeriesNumbers numbers_;
    std::map<std::pair<char, std::uint64_t>, std::size_t> known_;  // objects by type and bits
};

}  // namespace tavrel
