#include "desktop/ui/icons.h"

#include <QFile>
#include <QHash>

/// The drawings live in a static library, whose resources must be registered by hand; outside the namespace because the
/// macro declares a function.
static void registerIcons() {
    Q_INIT_RESOURCE(icons);
}

namespace tavrel {

QIcon iconNamed(const QString& name) {
    static QHash<QString, QIcon> icons;
    const auto known = icons.constFind(name);
    if (known != icons.constEnd()) {
        return *known;
    }
    if (icons.isEmpty()) {
        registerIcons();
    }
    const QString path = QStringLiteral(":/icons/%1.svg").arg(name);
    return *icons.insert(name, QFile::exists(path) ? QIcon(path) : QIcon());
}

}  // namespace tavrel
