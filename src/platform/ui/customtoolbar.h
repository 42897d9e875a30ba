#pragma once

#include "platform/title.h"

#include <QAction>
#include <QString>
#include <QStringList>
#include <QToolBar>

#include <functional>
#include <map>
#include <span>

namespace tavrel {

class Preferences;

/// An item that a toolbar can hold.
struct ToolItem {
    const char* identifier;
    Title label;
    const char* image;  ///< name of the icon, ":/icons/<image>.svg"
    Title tip;
};

/// The places of a toolbar that are no items of their own.
inline constexpr const char* toolSeparator = "separator";
inline constexpr const char* toolSpace = "space";
inline constexpr const char* toolFlexibleSpace = "flexibleSpace";
inline constexpr const char* toolCustomise = "customise";

/// A toolbar as its document declares it: what it can hold, what its palette offers, what it holds at first.
struct ToolBarDescription {
    const char* identifier;
    std::span<const ToolItem> items;
    std::span<const char* const> allowed;
    std::span<const char* const> initial;
};

/// A toolbar that its user arranges: items are added, removed and moved in a dialog, and the arrangement is remembered
/// under the toolbar's identifier. An item shows only when the program at hand can do it (it has a command or a
/// widget).
class CustomToolBar : public QToolBar {
    Q_OBJECT

public:
    CustomToolBar(const ToolBarDescription& description, Preferences& preferences, QWidget* parent);

    /// What an item does, or the widget it consists of. Call rebuild() after the last one.
    void setCommand(const QString& identifier, std::function<void()> command);
    void setWidget(const QString& identifier, QWidget* widget);
    /// Which items can be used now; asked at every validate().
    void setValidation(std::function<bool(const QString& identifier)> isEnabled);
    void validate();

    /// The items in their present order.
    QStringList arrangement() const;
    void setArrangement(const QStringList& identifiers);
    void restoreInitial();
    void rebuild();
    /// The action of an item, for menus; null when the program cannot do it.
    QAction* action(const QString& identifier) const;

public Q_SLOTS:
    void runCustomisation();
};

}  // namespace tavrel
