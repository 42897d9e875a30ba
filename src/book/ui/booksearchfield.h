#pragma once

#include "book/book.h"

#include <QLineEdit>

class QMenu;

namespace tavrel {

/// The search field of a book whose description names searches: Return selects the records that hold the text in the
/// field chosen in its menu. The choice is remembered.
class BookSearchField : public QLineEdit {
    Q_OBJECT

public:
    explicit BookSearchField(BookBase& book, QWidget* parent = nullptr);

    /// The searches by their place in the description.
    QMenu* menu() const { return menu_; }

Q_SIGNALS:
    /// The selection is about to change.
    void aboutToSearch();

private:
    void buildMenu();
    void choose(int item);
    void search();
    QString chosenState() const;

    BookBase& book_;
    QMenu* menu_ = nullptr;
    int chosen_ = 0;
};

}  // namespace tavrel
