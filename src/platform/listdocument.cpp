#include "platform/listdocument.h"

namespace tavrel {

void ListDocumentBase::selectRows(QList<int> rows) {
    rows.removeIf([this](int row) { return row < 0 || row >= count(); });
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    if (rows == selectedRows_) {
        return;
    }
    selectedRows_ = std::move(rows);
    Q_EMIT selectionChanged();
}

}  // namespace tavrel
