#pragma once

#include <cstddef>
#include <functional>

namespace tavrel {

/// Told now and then how many of how many steps are done; answering false cancels the work.
using Progress = std::function<bool(std::size_t done, std::size_t total)>;

}  // namespace tavrel
