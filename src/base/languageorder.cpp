#include "base/languageorder.h"

#include "base/texts.h"

namespace tavrel {

QCollator languageOrder() {
    return QCollator(QLocale(textLanguage()));
}

}  // namespace tavrel
