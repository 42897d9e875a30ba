#include "desktop/ui/icons.h"

#include "desktop/iconfiles.h"

#include <QFile>
#include <QHash>

namespace tavrel {

QIcon iconNamed(const QString& name) {
    static QHash<QString, QIcon> icons;
    const auto known = icons.constFind(name);
    if (known != icons.constEnd()) {
        return *known;
    }
    const QString path = iconFile(name);
    return *icons.insert(name, QFile::exists(path) ? QIcon(path) : QIcon());
}

}  // namespace tavrel
