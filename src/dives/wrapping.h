#pragma once

#include <QtGlobal>

namespace tavrel {

// 32-bit arithmetic that wraps around instead of being undefined: pressures and volumes are whatever was typed.

constexpr qint32 wrappedDifference(qint32 left, qint32 right) {
    return static_cast<qint32>(static_cast<quint32>(left) - static_cast<quint32>(right));
}

constexpr qint32 wrappedProduct(qint32 left, qint32 right) {
    return static_cast<qint32>(static_cast<quint32>(left) * static_cast<quint32>(right));
}

}  // namespace tavrel
