#pragma once

#include "app/preferencetable.h"

#include <QWidget>

#include <functional>
#include <memory>

namespace tavrel {

/// The widget of a setting, whatever its kind: shows a value and gives it back as it now stands.
class PreferenceControl {
public:
    virtual ~PreferenceControl() = default;

    virtual QWidget* widget() = 0;
    virtual QVariant value() const = 0;
    /// Shows a value; not a change by the user.
    virtual void setValue(const QVariant& value) = 0;
    /// Called when the user changed the value: at once, or when a field is left.
    virtual void onEdited(std::function<void()> edited) = 0;
};

/// The control of a setting, its widget a child of the parent and named after the setting's control.
std::unique_ptr<PreferenceControl> makePreferenceControl(const PreferenceKey& key, QWidget* parent);

}  // namespace tavrel
