#pragma once

#include <QtGlobal>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <new>

namespace tavrel {

/// What stands under a number of a typed stream's object table.
enum class Holds : std::uint8_t {
    klass,        ///< payload: index of the class
    cString,      ///< payload: index of the shared string
    opaque,       ///< an object that is still being read, or that nobody decodes
    number,       ///< a number as it stands in the stream; payload: offset of its value
    smallNumber,  ///< an 'i' that fits a byte; payload: that byte
    realNumber,   ///< a 'd'; payload: index among the reader's doubles
    text,         ///< payload of this and the following: index in the reader's list of them
    date,
    series,
    color,
    bitmap,
    image,
    record,
    otherArray,  ///< an array of other things than numbers; payload: offset of the first one
};

/// Eight bytes per object, since a logbook holds tens of millions of numbers.
class ObjectEntry {
public:
    ObjectEntry() = default;
    ObjectEntry(Holds kind, std::uint64_t payload, char code = 0)
        : word_(payload << 16 | std::uint64_t{static_cast<unsigned char>(code)} << 8 |
                static_cast<std::uint8_t>(kind)) {}

    Holds kind() const { return static_cast<Holds>(word_ & 0xff); }
    char code() const { return static_cast<char>(word_ >> 8 & 0xff); }
    std::uint64_t payload() const { return word_ >> 16; }

private:
    std::uint64_t word_ = static_cast<std::uint8_t>(Holds::opaque);
};

/// The objects of a stream by number. Grows through realloc, which moves pages of a large table instead of copying
/// them.
class ObjectTable {
public:
    std::size_t size() const { return size_; }
    ObjectEntry& operator[](std::size_t number) { return entries_[number]; }
    const ObjectEntry& operator[](std::size_t number) const { return entries_[number]; }

    std::size_t push(ObjectEntry entry) {
        if (size_ == capacity_) {
            grow(size_ + 1);
        }
        entries_[size_] = entry;
        return size_++;
    }

    /// Room for so many more entries: writes at the pointer become objects through extend().
    ObjectEntry* room(std::size_t count) {
        if (capacity_ - size_ < count) {
            grow(size_ + count);
        }
        return entries_.get() + size_;
    }
    void extend(std::size_t count) { size_ += count; }

private:
    struct Free {
        void operator()(ObjectEntry* entries) const { std::free(entries); }
    };

    void grow(std::size_t needed) {
        std::size_t capacity = capacity_ + capacity_ / 2 + 64;
        capacity = capacity < needed ? needed : capacity;
        void* bytes = std::realloc(static_cast<void*>(entries_.get()), capacity * sizeof(ObjectEntry));
        if (!bytes) {
            throw std::bad_alloc();
        }
        static_cast<void>(entries_.release());
        entries_.reset(static_cast<ObjectEntry*>(bytes));
        capacity_ = capacity;
    }

    std::unique_ptr<ObjectEntry[], Free> entries_;
    std::size_t size_ = 0;
    std::size_t capacity_ = 0;
};

}  // namespace tavrel
