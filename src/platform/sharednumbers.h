#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace tavrel {

/// The doubles that a stream already holds, each with what stands in an array for one more of them. Keys are bits, so
/// that 0.0 and -0.0 and every not-a-number differ. Open addressing with linear probing, at most half full.
class SharedNumbers {
public:
    /// The bytes of an array element, at most seven, in memory order from the lowest one; the highest byte counts them.
    using Element = std::uint64_t;

    SharedNumbers() : slots_(1024) {}

    /// The element of the double of these bits; 0 when the stream does not hold it yet: store() it then.
    Element find(std::uint64_t bits) const {
        const std::size_t mask = slots_.size() - 1;
        for (std::size_t at = mixed(bits) & mask;; at = (at + 1) & mask) {
            const Slot& slot = slots_[at];
            if (slot.bits == bits || slot.element == 0) {
                return slot.element;
            }
        }
    }

    void store(std::uint64_t bits, Element element) {
        if (used_ * 2 >= slots_.size()) {
            std::vector<Slot> old(slots_.size() * 2);
            old.swap(slots_);
            for (const Slot& slot : old) {
                if (slot.element != 0) {
                    place(slot);
                }
            }
        }
        place({bits, element});
        ++used_;
    }

private:
    struct Slot {
        std::uint64_t bits = 0;
        Element element = 0;
    };

    static std::size_t mixed(std::uint64_t bits) {
        bits ^= bits >> 32;
        bits *= 0x9e3779b97f4a7c15U;
        return bits ^ bits >> 29;
    }

    void place(const Slot& slot) {
        const std::size_t mask = slots_.size() - 1;
        std::size_t at = mixed(slot.bits) & mask;
        while (slots_[at].element != 0) {
            at = (at + 1) & mask;
        }
        slots_[at] = slot;
    }

    std::vector<Slot> slots_;
    std::size_t used_ = 0;
};

}  // namespace tavrel
