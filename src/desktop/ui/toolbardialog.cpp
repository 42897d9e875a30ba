#include "desktop/ui/toolbardialog.h"

#include "desktop/ui/customtoolbar.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace tavrel {

namespace {

constexpr int identifierRole = Qt::UserRole;

QString identifierOf(const QListWidgetItem* item) {
    return item->data(identifierRole).toString();
}

}  // namespace

std::vector<std::pair<Qt::ToolButtonStyle, QString>> ToolBarDialog::styles() {
    return {{Qt::ToolButtonTextUnderIcon, text("Main", "Toolbar icons and words")},
            {Qt::ToolButtonTextBesideIcon, text("Main", "Toolbar words beside icons")},
            {Qt::ToolButtonIconOnly, text("Main", "Toolbar icons")},
            {Qt::ToolButtonTextOnly, text("Main", "Toolbar words")}};
}

ToolBarDialog::ToolBarDialog(CustomToolBar& toolBar)
    : QDialog(toolBar.window()),
      toolBar_(toolBar),
      offered_(new QListWidget),
      present_(new QListWidget),
      styles_(new QComboBox) {
    setWindowTitle(text("Main", "Customise toolbar"));
    offered_->setObjectName(QStringLiteral("offered"));
    present_->setObjectName(QStringLiteral("present"));
    for (QListWidget* list : {offered_, present_}) {
        list->setIconSize(toolBar.iconSize());
        connect(list, &QListWidget::itemSelectionChanged, this, &ToolBarDialog::updateButtons);
    }
    present_->setDragDropMode(QAbstractItemView::InternalMove);
    connect(present_->model(), &QAbstractItemModel::rowsMoved, this, &ToolBarDialog::updateButtons);
    connect(offered_, &QListWidget::itemDoubleClicked, this, &ToolBarDialog::addChosen);
    connect(present_, &QListWidget::itemDoubleClicked, this, &ToolBarDialog::removeChosen);

    add_ = button("→", text("Main", "Add to toolbar"), "add");
    remove_ = button("←", text("Main", "Remove from toolbar"), "remove");
    up_ = button("↑", text("Main", "Move up"), "up");
    down_ = button("↓", text("Main", "Move down"), "down");
    connect(add_, &QToolButton::clicked, this, &ToolBarDialog::addChosen);
    connect(remove_, &QToolButton::clicked, this, &ToolBarDialog::removeChosen);
    connect(up_, &QToolButton::clicked, this, [this] { moveChosen(-1); });
    connect(down_, &QToolButton::clicked, this, [this] { moveChosen(+1); });

    auto* offeredLabel = new QLabel(text("Main", "Toolbar available"));
    offeredLabel->setBuddy(offered_);
    auto* presentLabel = new QLabel(text("Main", "Toolbar present"));
    presentLabel->setBuddy(present_);
    auto* styleLabel = new QLabel(text("Main", "Toolbar shows"));
    styleLabel->setBuddy(styles_);
    for (const auto& [style, title] : styles()) {
        styles_->addItem(title, int(style));
    }
    styles_->setCurrentIndex(styles_->findData(int(toolBar.toolButtonStyle())));

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    auto* initial = buttons->addButton(text("Main", "Toolbar initial"), QDialogButtonBox::ResetRole);
    initial->setAutoDefault(false);
    connect(initial, &QPushButton::clicked, this, &ToolBarDialog::reset);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* arrows = new QVBoxLayout;
    arrows->addStretch();
    for (QToolButton* arrow : {add_, remove_, up_, down_}) {
        arrows->addWidget(arrow);
    }
    arrows->insertSpacing(3, 12);
    arrows->addStretch();
    auto* styleLine = new QHBoxLayout;
    styleLine->addWidget(styleLabel);
    styleLine->addWidget(styles_);
    styleLine->addStretch();
    auto* layout = new QGridLayout(this);
    layout->addWidget(offeredLabel, 0, 0);
    layout->addWidget(presentLabel, 0, 2);
    layout->addWidget(offered_, 1, 0);
    layout->addLayout(arrows, 1, 1);
    layout->addWidget(present_, 1, 2);
    layout->addLayout(styleLine, 2, 0, 1, 3);
    layout->addWidget(buttons, 3, 0, 1, 3);
    layout->setRowStretch(1, 1);
    resize(560, 460);

    fill(toolBar.arrangement());
}

QToolButton* ToolBarDialog::button(const char* symbol, const QString& name, const char* objectName) {
    auto* arrow = new QToolButton;
    arrow->setObjectName(QLatin1StringView(objectName));
    arrow->setText(QString::fromUtf8(symbol));
    arrow->setToolTip(name);
    arrow->setAccessibleName(name);
    arrow->setFocusPolicy(Qt::StrongFocus);
    return arrow;
}

QListWidgetItem* ToolBarDialog::makeItem(const QString& identifier) const {
    const QAction* action = toolBar_.action(identifier);
    auto* item = new QListWidgetItem(toolBar_.titleOf(identifier));
    if (action) {
        item->setIcon(action->icon());
        item->setToolTip(action->toolTip());
    }
    item->setData(identifierRole, identifier);
    item->setSizeHint(QSize(0, toolBar_.iconSize().height() + 4));
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled);
    return item;
}

void ToolBarDialog::fill(const QStringList& identifiers) {
    present_->clear();
    for (const QString& identifier : identifiers) {
        QListWidgetItem* item = makeItem(identifier);
        present_->addItem(item);
        item->setHidden(!CustomToolBar::isPlace(identifier) && !toolBar_.action(identifier));
    }
    offer(identifiers);
}

void ToolBarDialog::offer(const QStringList& present) {
    offered_->clear();
    QStringList met;  // a separator is allowed as often as the arrangement has one
    for (const char* allowed : toolBar_.description().allowed) {
        const QString identifier = QLatin1StringView(allowed);
        const bool place = CustomToolBar::isPlace(identifier);
        if (!met.contains(identifier) && (place || (toolBar_.action(identifier) && !present.contains(identifier)))) {
            offered_->addItem(makeItem(identifier));
            met.append(identifier);
        }
    }
    updateButtons();
}

QStringList ToolBarDialog::arrangement() const {
    QStringList identifiers;
    for (int row = 0; row < present_->count(); ++row) {
        identifiers.append(identifierOf(present_->item(row)));
    }
    return identifiers;
}

Qt::ToolButtonStyle ToolBarDialog::style() const {
    return static_cast<Qt::ToolButtonStyle>(styles_->currentData().toInt());
}

void ToolBarDialog::addChosen() {
    const auto chosen = offered_->selectedItems();
    if (chosen.isEmpty()) {
        return;
    }
    const auto places = present_->selectedItems();
    const int row = places.isEmpty() ? present_->count() : present_->row(places.back()) + 1;
    present_->insertItem(row, makeItem(identifierOf(chosen.front())));
    present_->setCurrentRow(row);
    offer(arrangement());
}

void ToolBarDialog::removeChosen() {
    for (const QListWidgetItem* item : present_->selectedItems()) {
        delete item;
    }
    offer(arrangement());
}

void ToolBarDialog::moveChosen(int direction) {
    const int row = present_->currentRow();
    int target = row + direction;
    while (target >= 0 && target < present_->count() && present_->item(target)->isHidden()) {
        target += direction;
    }
    if (row < 0 || target < 0 || target >= present_->count()) {
        return;
    }
    present_->insertItem(target, present_->takeItem(row));
    present_->setCurrentRow(target);
}

void ToolBarDialog::reset() {
    QStringList identifiers;
    for (const char* identifier : toolBar_.description().initial) {
        identifiers.append(QLatin1StringView(identifier));
    }
    fill(identifiers);
}

void ToolBarDialog::updateButtons() {
    const bool chosen = !present_->selectedItems().isEmpty();
    add_->setEnabled(!offered_->selectedItems().isEmpty());
    remove_->setEnabled(chosen);
    up_->setEnabled(chosen);
    down_->setEnabled(chosen);
}

}  // namespace tavrel
