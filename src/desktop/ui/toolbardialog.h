#pragma once

#include <QDialog>
#include <QStringList>

#include <utility>
#include <vector>

class QComboBox;
class QListWidget;
class QListWidgetItem;
class QToolButton;

namespace tavrel {

class CustomToolBar;

/// The dialog in which a toolbar is arranged: what can be added on the left, what the toolbar holds on the right, moved
/// by buttons, by dragging or by a double click.
class ToolBarDialog : public QDialog {
    Q_OBJECT

public:
    explicit ToolBarDialog(CustomToolBar& toolBar);

    /// What was chosen. Items that the program cannot do keep their places without being shown.
    QStringList arrangement() const;
    Qt::ToolButtonStyle style() const;

    static std::vector<std::pair<Qt::ToolButtonStyle, QString>> styles();

    void addChosen();
    void removeChosen();
    /// Moves the chosen item past its visible neighbour; direction -1 or +1.
    void moveChosen(int direction);
    void reset();

private:
    void fill(const QStringList& identifiers);
    void offer(const QStringList& present);
    QListWidgetItem* makeItem(const QString& identifier) const;
    QToolButton* button(const char* symbol, const QString& name, const char* objectName);
    void updateButtons();

    CustomToolBar& toolBar_;
    QListWidget* offered_;
    QListWidget* present_;
    QComboBox* styles_;
    QToolButton* add_;
    QToolButton* remove_;
    QToolButton* up_;
    QToolButton* down_;
};

}  // namespace tavrel
