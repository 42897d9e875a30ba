#include "book/ui/booksearchfield.h"

#include "base/texts.h"
#include "desktop/preferences.h"
#include "desktop/ui/icons.h"

#include <QActionGroup>
#include <QMenu>

namespace tavrel {

BookSearchField::BookSearchField(BookBase& book, QWidget* parent) : QLineEdit(parent), book_(book) {
    setObjectName(QStringLiteral("rechercher"));
    setClearButtonEnabled(true);
    setFixedWidth(fontMetrics().averageCharWidth() * 34);
    connect(this, &QLineEdit::returnPressed, this, &BookSearchField::search);
    buildMenu();
}

QString BookSearchField::chosenState() const {
    return QLatin1StringView(book_.description().layoutName) + QStringLiteral(" search");
}

void BookSearchField::buildMenu() {
    const auto searches = book_.description().searches;
    const QByteArray remembered = book_.desktop().preferences.windowState(chosenState());
    menu_ = new QMenu(this);
    auto* group = new QActionGroup(this);
    chosen_ = static_cast<int>(searches.size()) - 1;
    for (int item = 0; item < static_cast<int>(searches.size()); ++item) {
        const BookSearch& each = searches[static_cast<std::size_t>(item)];
        QAction* action = menu_->addAction(each.title.text());
        action->setObjectName(QLatin1StringView(each.field));
        action->setCheckable(true);
        group->addAction(action);
        connect(action, &QAction::triggered, this, [this, item, field = each.field] {
            choose(item);
            book_.desktop().preferences.setWindowState(chosenState(), QByteArray(field));
            text().isEmpty() ? setFocus() : search();
        });
        if (remembered == each.field) {
            chosen_ = item;
        }
    }
    QAction* choice = addAction(iconNamed(QStringLiteral("chercher")), LeadingPosition);
    choice->setText(tavrel::text("Main", "Find where"));
    choice->setToolTip(choice->text());
    connect(choice, &QAction::triggered, this, [this] { menu_->popup(mapToGlobal(rect().bottomLeft())); });
    choose(chosen_);
}

void BookSearchField::choose(int item) {
    chosen_ = item;
    menu_->actions().at(item)->setChecked(true);
    const QString title = book_.description().searches[static_cast<std::size_t>(item)].title.text();
    setPlaceholderText(textWith("Main", "Find in", title));
    setAccessibleName(placeholderText());
}

void BookSearchField::search() {
    Q_EMIT aboutToSearch();
    // What is found is selected, which brings another record into the form.
    if (!book_.leaveForm(Leaving::elsewhere)) {
        return;
    }
    book_.find(QLatin1StringView(book_.description().searches[static_cast<std::size_t>(chosen_)].field), text());
}

}  // namespace tavrel
