#pragma once

#include "book/tablepages.h"
#include "book/ui/booktablemodel.h"
#include "documents/ui/recordtable.h"

class QMenu;

namespace tavrel {

/// The table of a book: the columns that the settings show, sorted by a click on a column's header, chosen in the menu
/// of the header where there is a choice. Widths and order of the columns are remembered.
class BookTableView : public RecordTable {
    Q_OBJECT

public:
    explicit BookTableView(BookBase& book, QWidget* parent = nullptr);
    ~BookTableView() override;

    /// Shows and hides every column as its setting says.
    void displayColumnsInTableView();
    /// Shows or hides the column of a field. A column that comes back stands at its former place among those present.
    void setColumn(const QString& field, bool visible);
    /// The place of a column by its field; -1 when there is none.
    int columnOf(std::string_view field) const { return model_->table().columnOf(field); }

    /// What the window shows of the book, columns in their order and widths, for its way to paper.
    TablePart shownPart() const;

    /// The columns to show, as a menu; null where all columns always show.
    QMenu* columnsMenu() const { return columnsMenu_; }

    /// Lets rows be dropped, as data of that type, which puts the last record into the list once more.
    void acceptRows(const QString& dataType);

protected:
    void hideEvent(QHideEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    BookTableView(BookBase& book, BookTableModel* model, QWidget* parent);
    void fitColumns();
    /// What a day of the locale takes in a cell, pixels.
    int roomForDays() const;
    void buildColumnsMenu();
    void sortBy(int column);
    void rememberColumns();
    QString columnsState() const;
    const Column& column(int place) const { return *model_->table().columns()[static_cast<std::size_t>(place)].column; }

    BookBase& book_;
    BookTableModel* model_;
    QMenu* columnsMenu_ = nullptr;
    QString rowType_;
};

}  // namespace tavrel
