#pragma once

#include "book/book.h"

#include <QWidget>

class QLabel;
class QLineEdit;
class QMenu;

namespace tavrel {

/// The line above the table of a book in which its filter is typed, with how many of how many records are shown. Its
/// menu has the filters that are kept under a name, and the fields that can be asked for.
class BookFilterBar : public QWidget {
    Q_OBJECT

public:
    explicit BookFilterBar(BookBase& book, QWidget* parent = nullptr);

    QLineEdit& field() { return *field_; }
    /// The menu as it would open now.
    QMenu& menu();
    /// Puts the cursor into the field, its text selected.
    void edit();

    /// Keeps the present filter under a name, in place of the one that had it.
    void keep(const QString& name);
    void forget(const QString& name);

Q_SIGNALS:
    /// The user is done with the field and goes on in the table.
    void left();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void fillMenu();
    void askForName();
    void ask(const QString& fieldName);
    void showCount();
    QVariantMap keptFilters() const;
    void setKeptFilters(const QVariantMap& filters);
    QString keptState() const;

    BookBase& book_;
    QLineEdit* field_;
    QLabel* count_;
    QMenu* menu_;
};

}  // namespace tavrel
