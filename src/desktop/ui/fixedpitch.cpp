#include "desktop/ui/fixedpitch.h"

#include <QFontDatabase>

namespace tavrel {

QFont fixedPitch(const QFont& sized) {
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPointSizeF(sized.pointSizeF());
    return font;
}

}  // namespace tavrel
