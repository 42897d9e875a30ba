#pragma once

namespace tavrel {

class Series;

/// Writes the numbers of series, as elements of the arrays that a typed stream holds. There are two of them for the
/// same bytes: fast for the thousands of numbers in a dive, plain to hold the fast one against.
class NumberWriter {
public:
    NumberWriter() = default;
    NumberWriter(const NumberWriter&) = delete;
    NumberWriter& operator=(const NumberWriter&) = delete;
    virtual ~NumberWriter() = default;

    virtual void write(const Series& series) = 0;
};

}  // namespace tavrel
