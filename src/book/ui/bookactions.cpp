#include "book/ui/bookactions.h"

#include "desktop/ui/customtoolbar.h"
#include "desktop/ui/icons.h"

#include <algorithm>
#include <utility>

namespace tavrel {

namespace {

bool isOffered(const CustomToolBar& toolBar, const QString& identifier) {
    const auto items = toolBar.description().items;
    return std::any_of(items.begin(), items.end(),
                       [&](const ToolItem& item) { return identifier == QLatin1StringView(item.identifier); });
}

}  // namespace

BookActions::BookActions(BookBase& book, QObject* parent) : QObject(parent), book_(book) {
    addBookCommands();
    connect(&book, &BookBase::stateChanged, this, &BookActions::update);
    connect(&book, &ListDocument::selectionChanged, this, &BookActions::update);
    update();
}

void BookActions::addBookCommands() {
    const BookWords& words = book_.description().words;
    const BookCommands& commands = book_.description().commands;
    addTool(
        QLatin1StringView(commands.newRecord), [this] { book_.newRecord(); }, words.newRecord,
        Qt::CTRL | Qt::SHIFT | Qt::Key_N);
    addTool(QLatin1StringView(commands.addRecord), [this] { book_.addRecord(); });
    addTool(
        QLatin1StringView(commands.insertRecord), [this] { book_.insertRecord(); }, words.insertRecord,
        Qt::CTRL | Qt::SHIFT | Qt::Key_I);
    addTool(QLatin1StringView(commands.updateRecord), [this] { book_.updateRecord(); });
    addTool(
        QLatin1StringView(commands.deleteRecord), [this] { book_.deleteRecords(); }, words.deleteRecords,
        QKeySequence::Delete);
    addTool(QLatin1StringView(commands.blank), [this] {
        // What was typed for a new record goes, that is what the command is for; a stored one is asked about.
        if (book_.shownRow() < 0 || book_.leaveForm(Leaving::elsewhere)) {
            book_.blankFields();
        }
    });
    add(QStringLiteral("editWindow"), words.editRecord.text(), "texte", Qt::CTRL | Qt::Key_E, withSelection,
        [this] { book_.editWindow(); });
    add(QStringLiteral("previousRecord"), words.previousRecord.text(), "precedent", Qt::ALT | Qt::Key_PageUp, backward,
        [this] { book_.previousRecord(); });
    add(QStringLiteral("nextRecord"), words.nextRecord.text(), "suivant", Qt::ALT | Qt::Key_PageDown, forward,
        [this] { book_.nextRecord(); });
}

const ToolItem* BookActions::tool(const QString& identifier) const {
    for (const auto& items : {book_.description().tableToolBar.items, book_.description().editToolBar.items}) {
        const auto found = std::find_if(items.begin(), items.end(), [&](const ToolItem& each) {
            return identifier == QLatin1StringView(each.identifier);
        });
        if (found != items.end()) {
            return &*found;
        }
    }
    return nullptr;
}

QAction* BookActions::take(QAction* action, Rule rule, std::function<void()> command) {
    connect(action, &QAction::triggered, this, [this, run = std::move(command)] {
        Q_EMIT aboutToRun();
        run();
    });
    all_.push_back(action);
    rules_.push_back(rule);
    updateAction(all_.size() - 1);
    Q_EMIT added(action);
    return action;
}

QAction* BookActions::add(const QString& name, const QString& title, const char* icon, const QKeySequence& keys,
                          Rule rule, std::function<void()> command) {
    auto* action = new QAction(iconNamed(QLatin1StringView(icon)), title, this);
    action->setObjectName(name);
    action->setShortcut(keys);
    return take(action, rule, std::move(command));
}

QAction* BookActions::addTool(const QString& identifier, std::function<void()> command, const Title& title,
                              const QKeySequence& keys) {
    const ToolItem* item = tool(identifier);
    if (!item) {
        return nullptr;
    }
    QAction* action = newToolAction(*item, this);
    if (!title.isEmpty()) {
        action->setText(title.text());
    }
    action->setShortcut(keys);
    return take(action, item->needsRecords ? withRecords : always, std::move(command));
}

QAction* BookActions::action(const QString& name) const {
    const auto found =
        std::find_if(all_.begin(), all_.end(), [&](const QAction* each) { return each->objectName() == name; });
    return found == all_.end() ? nullptr : *found;
}

void BookActions::fill(CustomToolBar& toolBar) const {
    for (QAction* each : all_) {
        if (isOffered(toolBar, each->objectName())) {
            toolBar.setAction(each->objectName(), each);
        }
    }
    toolBar.rebuild();
}

void BookActions::updateAction(std::size_t place) {
    const bool usable[] = {true, book_.count() > 0, book_.selectedRow() >= 0, book_.canGoBack(), book_.canGoForward()};
    all_[place]->setEnabled(usable[rules_[place]]);
}

void BookActions::update() {
    for (std::size_t place = 0; place < all_.size(); ++place) {
        updateAction(place);
    }
    if (QAction* add = action(QLatin1StringView(book_.description().commands.addRecord))) {
        const ToolItem& item = *tool(add->objectName());
        const bool addsSecond = book_.shownRow() >= 0;
        add->setIconText(addsSecond ? text("Main", "Add second") : item.label.text());
        add->setToolTip(addsSecond ? text("Main", "Tip add second") : item.tip.text());
    }
}

}  // namespace tavrel
