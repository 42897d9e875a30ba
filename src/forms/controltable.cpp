#include "forms/controltable.h"

#include <algorithm>

namespace tavrel {

namespace {

std::string substituted(std::string_view pattern, std::string_view substitute) {
    std::string result(pattern);
    if (const auto place = result.find('%'); place != std::string::npos) {
        result.replace(place, 1, substitute);
    }
    return result;
}

}  // namespace

int ControlTableBase::group(Group group) {
    groups_.push_back(group);
    return static_cast<int>(groups_.size()) - 1;
}

int ControlTableBase::add(const Control& control, std::string_view substitute, int line, int place) {
    controls_.push_back({control, substituted(control.name, substitute), substituted(control.field, substitute),
                         static_cast<int>(groups_.size()) - 1, line, place});
    return static_cast<int>(controls_.size()) - 1;
}

int ControlTableBase::pageCount() const {
    int pages = 0;
    for (const auto& group : groups_) {
        pages = std::max(pages, group.page);
    }
    return pages;
}

int ControlTableBase::find(std::string_view nameOrField) const {
    const auto indexOf = [&](auto part) {
        const auto found = std::find_if(controls_.begin(), controls_.end(),
                                        [&](const PlacedControl& placed) { return placed.*part == nameOrField; });
        return found == controls_.end() ? -1 : static_cast<int>(found - controls_.begin());
    };
    const int byName = indexOf(&PlacedControl::name);
    return byName >= 0 || nameOrField.empty() ? byName : indexOf(&PlacedControl::field);
}

}  // namespace tavrel
