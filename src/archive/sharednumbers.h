#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace tavrel {

/// The numbers that a stream already holds, each with what stands in an array for one more of them. Keys tell numbers
/// apart by their bits, so that 0.0 and -0.0 and every not-a-number differ. Open addressing with linear probing; sparse
/// as long as that costs little, which makes the first probe hit nearly always.
class SharedNumbers {
public:
    /// The bytes of an array element, at most seven, in memory order from the lowest one; the highest byte counts them.
    using Element = std::uint64_t;

    SharedNumbers() : slots_(1024) {}

    /// The element of the number of that key; 0 when the stream does not hold it yet, or it is not remembered.
    Element find(std::uint64_t key) const {
        const std::size_t mask = slots_.size() - 1;
        for (std::size_t at = mixed(key) & mask;; at = (at + 1) & mask) {
            const Slot& slot = slots_[at];
            if (slot.key == key || slot.element == 0) {
                return slot.element;
            }
        }
    }

    /// Remembers a number that find() did not know. Of numbers that hardly repeat only so many are remembered.
    void store(std::uint64_t key, Element element) {
        constexpr std::size_t sparseSlots = 65536;
        constexpr std::size_t maximumSlots = std::size_t{1} << 22;
        if (used_ * (slots_.size() < sparseSlots ? 8 : 2) >= slots_.size()) {
            if (slots_.size() == maximumSlots) {
                return;
            }
            std::vector<Slot> old(slots_.size() * 2);
            old.swap(slots_);
            for (const Slot& slot : old) {
                if (slot.element != 0) {
                    place(slot);
                }
            }
        }
        place({key, element});
        ++used_;
    }

private:
    struct Slot {
        std::uint64_t key = 0;
        Element element = 0;
    };

    static std::size_t mixed(std::uint64_t key) {
        key ^= key >> 32;
        key *= 0x9e3779b97f4a7c15U;
        return key ^ key >> 29;
    }

    void place(const Slot& slot) {
        const std::size_t mask = slots_.size() - 1;
        std::size_t at = mixed(slot.key) & mask;
        while (slots_[at].element != 0) {
            at = (at + 1) & mask;
        }
        slots_[at] = slot;
    }

    std::vector<Slot> slots_;
    std::size_t used_ = 0;
};

}  // namespace tavrel
