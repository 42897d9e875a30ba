#pragma once

#include "desktop/alerts.h"

namespace tavrel {

/// Alerts as dialogs over the active window, or over nothing when there is none. The first button is the default one,
/// the last is what Escape means.
class DialogAlerts : public Alerts {
public:
    void beep() override;
    int ask(const QString& message, const QStringList& buttons) override;
    void tell(const QString& message) override;
    void fail(const Failure& failure) override;
};

}  // namespace tavrel
