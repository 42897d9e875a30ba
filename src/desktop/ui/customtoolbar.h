#pragma once

#include "desktop/toolbar.h"

#include <QAction>
#include <QString>
#include <QStringList>
#include <QToolBar>

#include <map>
#include <memory>
#include <vector>

class QWidgetAction;

namespace tavrel {

class Preferences;

/// An action that a toolbar shows as the item says. Its text, for menus, is the item's label until it gets another.
QAction* newToolAction(const ToolItem& item, QObject* parent);

/// A toolbar that its user arranges: items are added, removed and moved in a dialog, and the arrangement is remembered
/// under the toolbar's identifier. An item shows only when the program at hand can do it (it has an action or a
/// widget); one that it cannot do keeps its place all the same.
class CustomToolBar : public QToolBar {
    Q_OBJECT

public:
    CustomToolBar(const ToolBarDescription& description, Preferences& preferences, QWidget* parent);
    ~CustomToolBar() override;

    /// The command of an item, which menus may show too, or the widget it consists of. Call rebuild() after the last
    /// one. Whoever made the action says when it can be used, and keeps it as long as the toolbar.
    void setAction(const QString& identifier, QAction* action);
    void setWidget(const QString& identifier, QWidget* widget);

    /// The items in their present order, those that do not show included.
    const QStringList& arrangement() const { return arrangement_; }
    /// Items that the toolbar does not know, and second copies of one, are left out; the rest is remembered.
    void setArrangement(const QStringList& identifiers);
    /// Icons, words or both; remembered with the arrangement.
    void setStyle(Qt::ToolButtonStyle style);
    /// Shows the items that there are; before the toolbar itself shows there is nothing to do.
    void rebuild();

    const ToolBarDescription& description() const { return description_; }
    /// The action of an item, for menus; null when the program cannot do it.
    QAction* action(const QString& identifier) const;
    /// What an item or place is called.
    QString titleOf(const QString& identifier) const;
    /// Separators and spaces, of which a toolbar may hold several.
    static bool isPlace(const QString& identifier);
    /// Opens the dialog in which the toolbar is arranged.
    void runCustomisation();

protected:
    bool event(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    const ToolItem* item(const QString& identifier) const;
    QStringList initial() const;
    QStringList known(const QStringList& identifiers) const;
    void restore();
    void remember();
    void addSpace(bool flexible);

    const ToolBarDescription description_;
    Preferences& preferences_;
    QStringList arrangement_;
    std::map<QString, QAction*> actions_;
    bool isBuilt_ = false;
    std::vector<std::unique_ptr<QAction>> places_;
};

}  // namespace tavrel
