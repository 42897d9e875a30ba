#pragma once

#include <memory>
#include <vector>

namespace tavrel {

/// What every record derives from, so that whoever stores, lists or shows records need not know their class.
struct Record {
    friend bool operator==(const Record&, const Record&) = default;
};

/// A record in a list: shared, and never edited in place.
using RecordPointer = std::shared_ptr<const Record>;
using RecordList = std::vector<RecordPointer>;

}  // namespace tavrel
