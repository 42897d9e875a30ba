#pragma once

#include "desktop/desktop.h"
#include "forms/ui/formcontrol.h"

#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QStringListModel>

#include <functional>
#include <map>
#include <memory>
#include <vector>

namespace tavrel {

/// The widgets of a form, built from its table: one widget per page, with titled groups, labels, units and every
/// control once, bound to the form's state both ways. The lists of its combo boxes follow the shared pick lists at
/// once.
class FormPages : public QObject {
    Q_OBJECT

public:
    /// What is told beside a control; empty for nothing.
    using Hint = std::function<QString(int control)>;
    /// The entries of a list that the document owns, by its number in the table.
    using OwnList = std::function<QStringList(int list)>;

    /// The texts that the document holds already in the field of a combo, to be proposed with its list.
    using HeldTexts = std::function<QStringList(int control)>;

    FormPages(FormStateBase& state, Desktop& desktop, OwnList ownList = {}, Hint hint = {},
              const HeldTexts& heldTexts = {});
    ~FormPages() override;

    int pageCount() const { return static_cast<int>(pages_.size()); }
    /// A page, from 1. It belongs to the window that it is put into.
    QWidget* page(int number) const { return pages_[static_cast<std::size_t>(number) - 1]; }
    /// The widget of a control, as its index in the table.
    QWidget* widget(int control) const { return controls_[static_cast<std::size_t>(control)]->widget(); }
    /// The page that a control stands on, from 1.
    int pageOf(int control) const;
    /// Selects a control's text and gives it the focus; false where it is not in sight.
    bool takeFocus(int control) { return controls_[static_cast<std::size_t>(control)]->takeFocus(); }

    /// Gives the focus to the first control of a page that takes it.
    void takeFirstFocus(int page);

    /// Ends an entry under way as leaving its control would. Before an operation that takes or replaces the form.
    void finishEditing();

Q_SIGNALS:
    /// The user has finished what was typed into, or taken from the list of, a combo box.
    void editingFinished(int control, const QString& typed);

private:
    QStringListModel* listOf(const Control& control);
    QWidget* buildPage(int number);
    void showAll();
    void showHints();

    FormStateBase& state_;
    Desktop& desktop_;
    OwnList ownList_;
    Hint hint_;
    std::map<PickList, std::unique_ptr<QStringListModel>> pickLists_;
    std::map<int, std::unique_ptr<QStringListModel>> ownLists_;
    std::vector<std::unique_ptr<FormControl>> controls_;
    std::vector<QPointer<QWidget>> pages_;
};

}  // namespace tavrel
