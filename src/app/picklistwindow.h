#pragma once

#include "app/picklisteditors.h"
#include "desktop/desktop.h"

#include <QAbstractListModel>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QWidget>

namespace tavrel {

/// Shows a shared list as it is at any time, whoever changes it.
class PickListModel : public QAbstractListModel {
    Q_OBJECT

public:
    PickListModel(PickLists& lists, PickList list, QObject* parent);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

private:
    PickLists& lists_;
    PickList list_;
};

/// The controls of one list: an entry to add, the entries, how many they are, and the button that deletes the selected
/// ones.
class PickListEditor : public QWidget {
    Q_OBJECT

public:
    PickListEditor(Desktop& desktop, const EditedList& description, QWidget* parent);

    /// Adds the text of the entry field as it is, empty or there already; the list is then sorted and stored.
    void add();
    /// Deletes the selected entries after a confirmation.
    void deleteSelection();

    QLineEdit& field() { return *field_; }
    QListView& tableView() { return *tableView_; }
    QLabel& totalField() { return *totalField_; }

private:
    void store();
    void showTotal();

    Desktop& desktop_;
    const EditedList& description_;
    QLineEdit* field_;
    QListView* tableView_;
    QLabel* totalField_;
};

/// The window of a pick-list editor; its one editor, or two side by side, are its children.
class PickListWindow : public QWidget {
    Q_OBJECT

public:
    PickListWindow(Desktop& desktop, const PickListEditorDescription& description);
};

}  // namespace tavrel
