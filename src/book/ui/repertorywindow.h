#pragma once

#include "book/book.h"

#include <QMainWindow>

class QListWidget;

namespace tavrel {

/// The pictures of a book's records side by side, each over what names its record: the window of a book that has
/// pictures and no card. What is chosen there is selected in the table; opened, it shows in the form.
class RepertoryWindow : public QMainWindow {
    Q_OBJECT

public:
    explicit RepertoryWindow(BookBase& book, QWidget* parent = nullptr);

    QListWidget& pictures() { return *pictures_; }
    void bringToFront();

protected:
    void showEvent(QShowEvent* event) override;

private:
    void fill();
    void showNext();

    BookBase& book_;
    QListWidget* pictures_;
    Field picture_;
    Field name_;
    int shown_ = 0;  ///< so many records have their picture
};

}  // namespace tavrel
