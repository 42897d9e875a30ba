#include "drawing/datatable.h"

namespace tavrel {

QString DataTable::text() const {
    QString all = columns.join(u'\t') + u'\n';
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns.size(); ++column) {
            if (column > 0) {
                all += u'\t';
            }
            all += cell(row, column);
        }
        all += u'\n';
    }
    return all;
}

}  // namespace tavrel
