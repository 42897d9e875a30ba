#include "base/localzone.h"

#include <QByteArray>

namespace tavrel {

void readLocalZoneOnce() {
    if (!qEnvironmentVariableIsSet("TZ")) {
        qputenv("TZ", QByteArrayLiteral(":/etc/localtime"));
    }
}

}  // namespace tavrel
