#include "desktop/iconfiles.h"

/// The icons live in a static library, whose resources must be registered by hand; outside the namespace because the
/// macro declares a function.
static bool registerIcons() {
    Q_INIT_RESOURCE(icons);
    return true;
}

namespace tavrel {

QString iconFile(const QString& name) {
    static const bool registered = registerIcons();
    return registered ? QStringLiteral(":/icons/%1.svg").arg(name) : QString();
}

}  // namespace tavrel
