#pragma once

#include "base/largememory.h"

#include <QtGlobal>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>

namespace tavrel {

/// What stands under a number of a typed stream's object table.
enum class Holds : std::uint8_t {
    klass,    ///< payload: index of the class
    cString,  ///< payload: index of the shared string
    opaque,   ///< an object that is still being read, or that nobody decodes
    number,   ///< a number as it stands in the stream; payload: offset of its value
    text,     ///< payload of this and the following: index in the reader's list of them
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

/// The objects of a stream by number.
class ObjectTable {
public:
    std::size_t size() const { return size_; }
    ObjectEntry& operator[](std::size_t number) { return entries()[number]; }
    const ObjectEntry& operator[](std::size_t number) const { return entries()[number]; }

    /// Sets memory aside for so many entries, when none are there yet. Until they are made they take none.
    void reserve(std::size_t count) {
        if (size_ == 0) {
            resize(count);
        }
    }

    std::size_t push(ObjectEntry entry) {
        *room(1) = entry;
        return size_++;
    }

    /// Room for so many more entries: writes at the pointer become objects through extend().
    ObjectEntry* room(std::size_t count) {
        if (capacity_ - size_ < count) {
            resize(capacity_ + capacity_ / 2 + count + 64);
        }
        return entries() + size_;
    }
    void extend(std::size_t count) { size_ += count; }
    void truncate(std::size_t size) { size_ = size; }

private:
    ObjectEntry* entries() const { return reinterpret_cast<ObjectEntry*>(memory_.get()); }

    void resize(std::size_t capacity) {
        auto memory = allocateLarge(capacity * sizeof(ObjectEntry));
        if (size_ > 0) {
            std::memcpy(memory.get(), memory_.get(), size_ * sizeof(ObjectEntry));
        }
        memory_ = std::move(memory);
        capacity_ = capacity;
    }

    std::unique_ptr<std::byte[], FreeMemory> memory_;
    std::size_t size_ = 0;
    std::size_t capacity_ = 0;
};

}  // namespace tavrel
