#include "book/ui/bookfilterbar.h"

#include "base/texts.h"
#include "book/bookfilter.h"
#include "desktop/preferences.h"
#include "desktop/ui/icons.h"
#include "desktop/ui/menuwords.h"

#include <QAction>
#include <QHBoxLayout>
#include <QInputDialog>
#include <QJsonDocument>
#include <QJsonObject>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QToolButton>

namespace tavrel {

namespace {

/// A name as it is typed into the filter: "Purchase date" is "Purchasedate".
QString typedName(QString title) {
    title.removeIf([](QChar each) { return !each.isLetterOrNumber(); });
    return title;
}

}  // namespace

BookFilterBar::BookFilterBar(BookBase& book, QWidget* parent)
    : QWidget(parent), book_(book), field_(new QLineEdit), count_(new QLabel), menu_(new QMenu(this)) {
    setObjectName(QStringLiteral("filterBar"));
    field_->setObjectName(QStringLiteral("filter"));
    field_->setClearButtonEnabled(true);
    field_->setPlaceholderText(text("Main", "Filter hint"));
    field_->setAccessibleName(text("Main", "Filter"));
    field_->setToolTip(text("Main", "Filter tip"));
    field_->setText(book.filter().text());
    field_->installEventFilter(this);
    field_->setMaximumWidth(fontMetrics().averageCharWidth() * 90);
    count_->setObjectName(QStringLiteral("filterCount"));
    count_->setMinimumWidth(fontMetrics().horizontalAdvance(textWith("Main", "Shown of all", 100000, 100000)));

    auto* menuButton = new QToolButton;
    menuButton->setIcon(iconNamed(QStringLiteral("chercher")));
    menuButton->setText(text("Main", "Filter menu"));
    menuButton->setToolTip(menuButton->text());
    menuButton->setAccessibleName(menuButton->text());
    menuButton->setAutoRaise(true);
    menuButton->setPopupMode(QToolButton::InstantPopup);
    menuButton->setMenu(menu_);

    auto* line = new QHBoxLayout(this);
    line->setContentsMargins(6, 3, 6, 4);
    line->addWidget(menuButton);
    line->addWidget(field_, 1);
    line->addWidget(count_);
    line->addStretch();

    connect(menu_, &QMenu::aboutToShow, this, &BookFilterBar::fillMenu);
    connect(field_, &QLineEdit::textChanged, this, [this](const QString& typed) { book_.filter().setText(typed); });
    connect(&book.filter(), &BookFilter::changed, this, &BookFilterBar::showCount);
    connect(&book.filter(), &BookFilter::busyChanged, this, &BookFilterBar::showCount);
    connect(&book, &ListDocument::listChanged, this, &BookFilterBar::showCount);
    showCount();
}

QMenu& BookFilterBar::menu() {
    fillMenu();
    return *menu_;
}

void BookFilterBar::edit() {
    field_->setFocus(Qt::ShortcutFocusReason);
    field_->selectAll();
}

void BookFilterBar::showCount() {
    const BookFilter& filter = book_.filter();
    count_->setText(filter.isBusy()     ? text("Main", "Filtering")
                    : filter.isActive() ? textWith("Main", "Shown of all", filter.shownCount(), book_.count())
                                        : QString());
}

bool BookFilterBar::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn) {
        book_.filter().prepare();
    } else if (event->type() == QEvent::ShortcutOverride && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        event->accept();
        return true;
    } else if (event->type() == QEvent::KeyPress) {
        switch (static_cast<QKeyEvent*>(event)->key()) {
            case Qt::Key_Escape:
                if (field_->text().isEmpty()) {
                    Q_EMIT left();
                } else {
                    field_->clear();
                }
                return true;
            case Qt::Key_Return:
            case Qt::Key_Enter:
            case Qt::Key_Down:
                Q_EMIT left();
                return true;
            default:
                break;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void BookFilterBar::fillMenu() {
    menu_->clear();
    const QVariantMap kept = keptFilters();
    for (auto each = kept.begin(); each != kept.end(); ++each) {
        QAction* action = menu_->addAction(menuWords(each.key()));
        action->setToolTip(each.value().toString());
        action->setCheckable(true);
        action->setChecked(each.value().toString() == field_->text());
        connect(action, &QAction::triggered, this, [this, filter = each.value().toString()] {
            field_->setText(filter);
            edit();
        });
    }
    menu_->addSeparator();
    QAction* keepFilter = menu_->addAction(text("Main", "Keep filter"), this, &BookFilterBar::askForName);
    keepFilter->setObjectName(QStringLiteral("keepFilter"));
    keepFilter->setEnabled(!field_->text().trimmed().isEmpty());
    QMenu* forgotten = menu_->addMenu(text("Main", "Remove filter"));
    forgotten->setEnabled(!kept.isEmpty());
    for (const QString& name : kept.keys()) {
        forgotten->addAction(menuWords(name), this, [this, name] { forget(name); });
    }
    QMenu* fields = menu_->addMenu(text("Main", "Filter one field"));
    for (const FilterField& each : book_.filter().fields()) {
        if (each.column) {
            fields->addAction(menuWords(each.title), this, [this, name = typedName(each.title)] { ask(name); });
        }
    }
}

void BookFilterBar::ask(const QString& fieldName) {
    const QString before = field_->text();
    field_->setText(before + (before.isEmpty() || before.back().isSpace() ? QString() : QStringLiteral(" ")) +
                    fieldName + u':');
    field_->setFocus(Qt::OtherFocusReason);
    field_->end(false);
}

void BookFilterBar::askForName() {
    bool isGiven = false;
    const QString name = QInputDialog::getText(this, text("Main", "Keep filter title"), text("Main", "Filter name"),
                                               QLineEdit::Normal, field_->text(), &isGiven);
    if (isGiven && !name.trimmed().isEmpty()) {
        keep(name.trimmed());
    }
}

void BookFilterBar::keep(const QString& name) {
    QVariantMap filters = keptFilters();
    filters.insert(name, field_->text());
    setKeptFilters(filters);
}

void BookFilterBar::forget(const QString& name) {
    QVariantMap filters = keptFilters();
    filters.remove(name);
    setKeptFilters(filters);
}

QString BookFilterBar::keptState() const {
    return QLatin1StringView(book_.description().layoutName) + QStringLiteral(" filters");
}

QVariantMap BookFilterBar::keptFilters() const {
    const QByteArray stored = book_.desktop().preferences.windowState(keptState());
    return QJsonDocument::fromJson(stored).object().toVariantMap();
}

void BookFilterBar::setKeptFilters(const QVariantMap& filters) {
    const QJsonDocument stored(QJsonObject::fromVariantMap(filters));
    book_.desktop().preferences.setWindowState(keptState(), stored.toJson(QJsonDocument::Compact));
}

}  // namespace tavrel
