#include "book/booktable.h"

#include "base/decimalsign.h"
#include "desktop/preferences.h"

namespace tavrel {

BookTable::BookTable(const BookBase& book) : book_(book) {
    for (const auto& column : book.description().columns) {
        columns_.push_back({&column, book.layout().field(std::string_view(column.field))});
    }
    reload();
}

int BookTable::columnOf(std::string_view field) const {
    for (std::size_t column = 0; column < columns_.size(); ++column) {
        if (columns_[column].column->field == field) {
            return static_cast<int>(column);
        }
    }
    return -1;
}

bool BookTable::isShown(int column) const {
    const Setting<bool>* shown = columns_[static_cast<std::size_t>(column)].column->shown;
    return !shown || book_.desktop().preferences.get(*shown);
}

Cell BookTable::cell(const RecordList& records, int row, int column) const {
    Cell cell = ownCell(*records[static_cast<std::size_t>(row)], column);
    bool keepsColour = cell.keepsColour;
    for (int above = row - 1; keepsColour && above >= 0; --above) {
        const Cell before = ownCell(*records[static_cast<std::size_t>(above)], column);
        cell.style.text = before.style.text;
        keepsColour = before.keepsColour;
    }
    return cell;
}

Cell BookTable::ownCell(const Record& record, int column) const {
    const Placed& placed = columns_[static_cast<std::size_t>(column)];
    Cell cell;
    if (!placed.field.isNull()) {
        cell.text = plainText(record, placed.field, *style_);
    }
    if (placed.column->cell) {
        placed.column->cell(record, *style_, cell);
    }
    return cell;
}

QString BookTable::onScreen(int column, const QString& words) const {
    const Placed& placed = columns_[static_cast<std::size_t>(column)];
    const FieldKind kind = placed.field.isNull() ? FieldKind::real : placed.field.kind();
    const bool isNumber = kind == FieldKind::integer || kind == FieldKind::real ||
                          (kind == FieldKind::text && placed.column->alignment == Qt::AlignRight);
    return isNumber ? withDecimalSign(words) : words;
}

void BookTable::reload() {
    style_ = book_.description().tableStyle(book_.desktop());
}

}  // namespace tavrel
