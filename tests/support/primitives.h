#pragma once

#include "drawing/drawing.h"

#include <vector>

namespace tavrel {

/// The lines, areas, icons … of a drawing, in order.
template <class Primitive>
std::vector<Primitive> all(const Drawing& drawing) {
    std::vector<Primitive> found;
    for (const auto& primitive : drawing.primitives()) {
        if (const auto* it = std::get_if<Primitive>(&primitive)) {
            found.push_back(*it);
        }
    }
    return found;
}

}  // namespace tavrel
