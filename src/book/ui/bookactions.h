#pragma once

#include "book/book.h"

#include <QAction>
#include <QKeySequence>
#include <QObject>

#include <functional>
#include <vector>

namespace tavrel {

class CustomToolBar;

/// The commands of a book's windows: each is one action, which the menus, the context menu and the toolbars of all its
/// windows show alike, and which can be used by one rule. Those that a toolbar offers are named by its identifier.
class BookActions : public QObject {
    Q_OBJECT

public:
    /// When a command can be used.
    enum Rule { always, withRecords, withSelection, backward, forward };

    /// Has the commands that work on the book alone. Its windows add theirs.
    explicit BookActions(BookBase& book, QObject* parent = nullptr);

    /// Adds a command that no toolbar offers.
    QAction* add(const QString& name, const QString& title, const char* icon, const QKeySequence& keys, Rule rule,
                 std::function<void()> command);
    /// Adds a command that one of the toolbars offers. Without a title it has the words of the toolbar in menus too.
    QAction* addTool(const QString& identifier, std::function<void()> command, const Title& title = {},
                     const QKeySequence& keys = {});
    /// Null when nobody provides it.
    QAction* action(const QString& name) const;
    const std::vector<QAction*>& all() const { return all_; }
    /// Gives a toolbar of the book those of its items that somebody provides.
    void fill(CustomToolBar& toolBar) const;

Q_SIGNALS:
    /// A command is about to be carried out; entries under way end.
    void aboutToRun();
    /// A further command is there.
    void added(QAction* action);

private:
    const ToolItem* tool(const QString& identifier) const;
    QAction* take(QAction* action, Rule rule, std::function<void()> command);
    void addBookCommands();
    void update();
    void updateAction(std::size_t place);

    BookBase& book_;
    std::vector<QAction*> all_;
    std::vector<Rule> rules_;
};

}  // namespace tavrel
