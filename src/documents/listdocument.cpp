#include "documents/listdocument.h"

namespace tavrel {

void ListDocumentBase::selectRows(QList<int> rows) {
    rows.removeIf([this](int row) { return row < 0 || row >= count(); });
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    // Element by element: comparing two empty lists as such looks at a null pointer.
    if (std::equal(rows.begin(), rows.end(), selectedRows_.begin(), selectedRows_.end())) {
        return;
    }
    selectedRows_ = std::move(rows);
    Q_EMIT selectionChanged();
}

}  // namespace tavrel
