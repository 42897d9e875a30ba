#include "profile/sampling.h"

namespace tavrel {

QString samplingTitle(qint32 code) {
    const int seconds = samplingInterval(code);
    return seconds % 60 == 0 ? QStringLiteral("%1 min").arg(seconds / 60) : QStringLiteral("%1 s").arg(seconds);
}

}  // namespace tavrel
