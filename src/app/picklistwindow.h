#pragma once

#include "app/picklisteditors.h"
#include "desktop/desktop.h"

#include <QAbstractListModel>
#include <QHash>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QWidget>

#include <functional>
#include <optional>

class QSortFilterProxyModel;

namespace tavrel {

/// How often the open documents use each entry of a list; nothing while none is open.
using PickListUsage = std::function<std::optional<QHash<QString, int>>(PickList)>;

/// Shows a shared list as it is at any time, whoever changes it.
class PickListModel : public QAbstractListModel {
    Q_OBJECT

public:
    PickListModel(PickLists& lists, PickList list, QObject* parent);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    /// An entry may be written anew.
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    /// How often each entry is used; asked by countUsage().
    void countUsage(const PickListUsage& usage);

Q_SIGNALS:
    void renamed();

private:
    PickLists& lists_;
    PickList list_;
    std::optional<QHash<QString, int>> usage_;  ///< nothing while no document is open
};

/// The controls of one list: an entry to add, the entries, how many they are, and the button that deletes the selected
/// ones.
class PickListEditor : public QWidget {
    Q_OBJECT

public:
    PickListEditor(Desktop& desktop, const EditedList& description, const PickListUsage& usage, QWidget* parent);

    /// Adds the text of the entry field as it is, empty or there already; the list is then sorted and stored.
    void add();
    /// Deletes the selected entries after a confirmation.
    void deleteSelection();

    QLineEdit& field() { return *field_; }
    QListView& tableView() { return *tableView_; }
    QLabel& totalField() { return *totalField_; }

protected:
    /// What is used may have changed in a document since.
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    QWidget* newWordsRow();
    void store();
    void showTotal();

    Desktop& desktop_;
    const EditedList& description_;
    const PickListUsage& usage_;
    PickListModel* model_;
    QSortFilterProxyModel* sorted_;
    QLineEdit* field_;
    QListView* tableView_;
    QLabel* totalField_;
};

/// The window of a pick-list editor; its one editor, or two side by side, are its children.
class PickListWindow : public QWidget {
    Q_OBJECT

public:
    PickListWindow(Desktop& desktop, const PickListEditorDescription& description, const PickListUsage& usage);
};

}  // namespace tavrel
