#pragma once

#include "base/failure.h"

#include <QString>
#include <QStringList>

namespace tavrel {

/// How the program speaks to its user: dialogs in the application, standard error in the command line, a recorder in
/// tests.
class Alerts {
public:
    virtual ~Alerts() = default;

    virtual void beep() = 0;
    /// Asks, the first button being the affirmative one; returns the index of the button chosen.
    virtual int ask(const QString& message, const QStringList& buttons) = 0;
    /// Tells something that needs no answer.
    virtual void tell(const QString& message) = 0;
    /// Tells why something could not be done.
    virtual void fail(const Failure& failure) = 0;
};

}  // namespace tavrel
