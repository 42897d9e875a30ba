#include "drawing/styledtext.h"

namespace tavrel {

void StyledText::append(const QString& text, const QColor& colour) {
    if (text.isEmpty()) {
        return;
    }
    if (!runs_.empty() && runs_.back().colour == colour) {
        runs_.back().text += text;
    } else {
        runs_.push_back({text, colour});
    }
}

QString StyledText::text() const {
    QString whole;
    for (const auto& run : runs_) {
        whole += run.text;
    }
    return whole;
}

}  // namespace tavrel
