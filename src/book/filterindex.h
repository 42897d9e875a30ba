#pragma once

#include "book/recordfilter.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace tavrel {

/// The texts, numbers and dates of many records, folded once, so that a filter finds its words at the speed of memory.
/// It holds its records and never changes; another thread may build and ask it.
class FilterIndex {
public:
    using Fields = std::shared_ptr<const std::vector<FilterField>>;
    /// Asked now and then; answering true ends the work early, and what it was to give is then not complete.
    using Cancelled = std::function<bool()>;

    /// The words of cells are those of the style.
    FilterIndex(RecordList records, Fields fields, const TableStyle& style, const Cancelled& cancelled = {});

    const RecordList& records() const { return records_; }
    const std::vector<FilterField>& fields() const { return *fields_; }
    /// The bytes that a search goes through.
    std::size_t size() const { return words_.size(); }

    /// The places of the records that all words of the filter are found in, ascending.
    std::vector<int> matches(const RecordFilter& filter, const Cancelled& cancelled = {}) const;

private:
    void add(const Record& record, const TableStyle& style);
    std::string_view wordsOf(std::size_t record) const;
    std::string_view wordsOf(std::size_t record, int field) const;
    bool matches(std::size_t record, const RecordFilter::Word& word, std::string_view text) const;
    std::vector<int> recordsWith(std::string_view text, const Cancelled& cancelled) const;

    RecordList records_;
    Fields fields_;
    std::string words_;                ///< UTF-8; fields of a record parted, each with all the words it is shown as
    std::vector<std::size_t> starts_;  ///< of each record in words_, and the end
};

}  // namespace tavrel
