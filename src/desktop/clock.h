#pragma once

#include <QDateTime>

namespace tavrel {

/// The time of day, a seam for tests.
class Clock {
public:
    virtual ~Clock() = default;
    virtual QDateTime now() const { return QDateTime::currentDateTime(); }
};

}  // namespace tavrel
