#include "desktop/ui/customtoolbar.h"

#include "desktop/preferences.h"
#include "desktop/ui/icons.h"
#include "desktop/ui/toolbardialog.h"

#include <QContextMenuEvent>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMenu>
#include <QToolButton>
#include <QWidgetAction>

#include <algorithm>
#include <utility>

namespace tavrel {

namespace {

constexpr QLatin1StringView itemsKey("items");
constexpr QLatin1StringView styleKey("style");

QString stateName(const ToolBarDescription& description) {
    return QStringLiteral("toolbar ") + QLatin1StringView(description.identifier);
}

QStringList list(std::span<const char* const> identifiers) {
    QStringList result;
    for (const char* identifier : identifiers) {
        result.append(QLatin1StringView(identifier));
    }
    return result;
}

}  // namespace

QAction* newToolAction(const ToolItem& item, QObject* parent) {
    auto* action = new QAction(iconNamed(QLatin1StringView(item.image)), item.label.text(), parent);
    action->setObjectName(QLatin1StringView(item.identifier));
    action->setIconText(item.label.text());
    action->setToolTip(item.tip.text());
    return action;
}

CustomToolBar::CustomToolBar(const ToolBarDescription& description, Preferences& preferences, QWidget* parent)
    : QToolBar(parent), description_(description), preferences_(preferences) {
    setObjectName(QLatin1StringView(description.identifier));
    setMovable(false);
    setFloatable(false);
    setIconSize(QSize(24, 24));
    setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    toggleViewAction()->setVisible(false);

    auto* customise = new QAction(iconNamed(QLatin1StringView(toolCustomise)), text("Main", "Customise"), this);
    customise->setObjectName(QStringLiteral("customise"));
    customise->setToolTip(text("Main", "Tip customise"));
    connect(customise, &QAction::triggered, this, &CustomToolBar::runCustomisation);
    actions_[QLatin1StringView(toolCustomise)] = customise;
    restore();
}

CustomToolBar::~CustomToolBar() = default;

const ToolItem* CustomToolBar::item(const QString& identifier) const {
    const auto found = std::find_if(description_.items.begin(), description_.items.end(), [&](const ToolItem& each) {
        return identifier == QLatin1StringView(each.identifier);
    });
    return found == description_.items.end() ? nullptr : &*found;
}

void CustomToolBar::setAction(const QString& identifier, QAction* action) {
    if (!item(identifier)) {
        qFatal("The toolbar %s has no item %s", description_.identifier, qPrintable(identifier));
    }
    actions_[identifier] = action;
}

void CustomToolBar::setWidget(const QString& identifier, QWidget* widget) {
    auto* action = new QWidgetAction(this);
    action->setObjectName(identifier);
    action->setText(titleOf(identifier));
    action->setDefaultWidget(widget);
    actions_[identifier] = action;
}

bool CustomToolBar::isPlace(const QString& identifier) {
    return identifier == QLatin1StringView(toolSeparator) || identifier == QLatin1StringView(toolSpace) ||
           identifier == QLatin1StringView(toolFlexibleSpace);
}

QString CustomToolBar::titleOf(const QString& identifier) const {
    if (const ToolItem* described = item(identifier)) {
        return described->label.text();
    }
    if (identifier == QLatin1StringView(toolSeparator)) {
        return text("Main", "Separator");
    }
    if (identifier == QLatin1StringView(toolSpace)) {
        return text("Main", "Space");
    }
    return identifier == QLatin1StringView(toolFlexibleSpace) ? text("Main", "Flexible space")
                                                              : text("Main", "Customise");
}

QAction* CustomToolBar::action(const QString& identifier) const {
    const auto found = actions_.find(identifier);
    return found == actions_.end() ? nullptr : found->second;
}

QStringList CustomToolBar::initial() const {
    return list(description_.initial);
}

QStringList CustomToolBar::known(const QStringList& identifiers) const {
    QStringList result;
    for (const QString& identifier : identifiers) {
        const bool once = item(identifier) || identifier == QLatin1StringView(toolCustomise);
        if (isPlace(identifier) || (once && !result.contains(identifier))) {
            result.append(identifier);
        }
    }
    return result;
}

void CustomToolBar::restore() {
    arrangement_ = initial();
    const auto state = QJsonDocument::fromJson(preferences_.windowState(stateName(description_))).object();
    if (state[itemsKey].isArray()) {
        arrangement_ = known(state[itemsKey].toVariant().toStringList());
    }
    const int style = state[styleKey].toInt(Qt::ToolButtonTextUnderIcon);
    if (style >= Qt::ToolButtonIconOnly && style <= Qt::ToolButtonTextUnderIcon) {
        setToolButtonStyle(static_cast<Qt::ToolButtonStyle>(style));
    }
}

void CustomToolBar::remember() {
    const QJsonObject state{{itemsKey, QJsonArray::fromStringList(arrangement_)}, {styleKey, int(toolButtonStyle())}};
    preferences_.setWindowState(stateName(description_), QJsonDocument(state).toJson(QJsonDocument::Compact));
}

void CustomToolBar::setArrangement(const QStringList& identifiers) {
    arrangement_ = known(identifiers);
    remember();
    rebuild();
}

void CustomToolBar::setStyle(Qt::ToolButtonStyle style) {
    setToolButtonStyle(style);
    remember();
}

void CustomToolBar::addSpace(bool flexible) {
    auto* space = new QWidget;
    if (flexible) {
        space->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    } else {
        space->setFixedWidth(iconSize().width());
    }
    auto place = std::make_unique<QWidgetAction>(nullptr);
    place->setDefaultWidget(space);
    addAction(place.get());
    places_.push_back(std::move(place));
}

bool CustomToolBar::event(QEvent* event) {
    // It gets its style before it is measured and shown.
    if (event->type() == QEvent::Polish) {
        isBuilt_ = true;
        rebuild();
    }
    return QToolBar::event(event);
}

void CustomToolBar::rebuild() {
    if (!isBuilt_) {
        return;
    }
    for (QAction* shown : actions()) {
        removeAction(shown);
    }
    places_.clear();
    bool separated = true;  // no separator at the front, nor two in a row where an item between does not show
    for (const QString& identifier : std::as_const(arrangement_)) {
        if (identifier == QLatin1StringView(toolSeparator)) {
            if (!separated) {
                auto separator = std::make_unique<QAction>();
                separator->setSeparator(true);
                addAction(separator.get());
                places_.push_back(std::move(separator));
            }
            separated = true;
        } else if (isPlace(identifier)) {
            addSpace(identifier == QLatin1StringView(toolFlexibleSpace));
        } else if (QAction* shown = action(identifier)) {
            addAction(shown);
            separated = false;
            if (auto* button = qobject_cast<QToolButton*>(widgetForAction(shown))) {
                button->setFocusPolicy(Qt::TabFocus);
            }
        }
    }
}

void CustomToolBar::runCustomisation() {
    ToolBarDialog dialog(*this);
    if (dialog.exec() == QDialog::Accepted) {
        setStyle(dialog.style());
        setArrangement(dialog.arrangement());
    }
}

void CustomToolBar::contextMenuEvent(QContextMenuEvent* event) {
    QMenu menu(this);
    for (const auto& [style, title] : ToolBarDialog::styles()) {
        QAction* choice = menu.addAction(title, this, [this, chosen = style] { setStyle(chosen); });
        choice->setCheckable(true);
        choice->setChecked(style == toolButtonStyle());
    }
    menu.addSeparator();
    menu.addAction(action(QLatin1StringView(toolCustomise)));
    menu.exec(event->globalPos());
}

}  // namespace tavrel
