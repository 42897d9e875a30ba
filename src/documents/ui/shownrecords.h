#pragma once

namespace tavrel {

/// Which records of a list document the rows of a table show: all of them, or some of them in their order.
class ShownRecords {
public:
    virtual ~ShownRecords() = default;

    /// The place in the document's list of the record that a row shows.
    virtual int recordOf(int row) const { return row; }
    /// The row that shows a record, by its place in the list; -1 when none does.
    virtual int rowOf(int record) const { return record; }
};

}  // namespace tavrel
