#pragma once

#include "base/failure.h"
#include "desktop/desktop.h"
#include "documents/unsaved.h"
#include "forms/formstate.h"
#include "forms/recordbinding.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QObject>
#include <QStringList>

#include <functional>
#include <memory>
#include <vector>

namespace tavrel {

/// The edit form of one type of document without its window: how it is cleared, how a record is shown in it, how one is
/// built from it with all corrections, and what follows from an entry. Whoever makes records (the window, the
/// importers, the command line) types into it. What the table of controls cannot say is said by the hooks of a derived
/// class.
class BookForm : public QObject {
    Q_OBJECT

public:
    BookForm(Desktop& desktop, const RecordLayout& layout, std::unique_ptr<FormStateBase> state);
    ~BookForm() override;

    FormStateBase& state() { return *state_; }
    const FormStateBase& state() const { return *state_; }
    const RecordLayout& layout() const { return layout_; }
    Desktop& desktop() const { return desktop_; }

    /// Clears the form for a new record of a list that holds so many, then refreshes it.
    void blankFields(int count);
    /// Shows a record, then refreshes what follows from it.
    void editFields(const Record& record);
    /// Builds a record from the form. Values out of range are replaced, in the form too where it shows them; nothing is
    /// asked.
    RecordPointer buildRecord();
    /// Refreshes what follows from the entries: derived displays, captions, enabling.
    void updateUI();

    /// Takes what the form shows now as what is stored, or as what a new record starts from.
    void remember();
    /// Whether the user entered something since, that is still there.
    bool hasEntries() const;
    /// What the controls hold that the user enters into, by name; what is held beside them and differs from what was
    /// remembered; and entering it all once more, in the same form or in that of another run of the program, which may
    /// know other controls.
    std::vector<UnstoredForm::Control> entries() const;
    virtual std::function<QByteArray()> entriesBeside() const;
    void enterAgain(const UnstoredForm& entries);

    /// At the end of editing a combo box: offers what was typed, or what it holds, to the control's shared list.
    virtual void endEditing(int control, const QString& typed);
    void endEditing(int control) { endEditing(control, state_->at(control).text); }
    /// What is told beside a control whose entry is not read as it was typed or is unlikely; empty for nothing.
    virtual QString hint(int control) const;
    /// The choices of a combo whose list the document owns, by its number in the table.
    virtual QStringList ownList(int list) const;
    /// Values that the form holds beside its controls, by the record's field: whether it does, and entering one.
    virtual bool holdsBeside(const QString& field) const;
    virtual Expected<void> enterBeside(const QString& field, const QString& value);

Q_SIGNALS:
    /// The form was refreshed because of an entry of the user's.
    void userEdited();

protected:
    /// After the table's cleared values: the defaults of a new record of a list that holds count records.
    virtual void clear(int count);
    /// After the record's fields are in their controls: what is shown otherwise than it is stored.
    virtual void show(const Record& record);
    /// Before a record is built: corrections of values out of range.
    virtual void correct();
    /// After the form's controls are in the record: what the controls do not hold.
    virtual void complete(Record& record);
    /// What follows from the entries.
    virtual void refresh();
    /// The user entered something into a control, or pressed a button; refreshes by itself.
    virtual void entered(int control);
    /// Whether something beside the controls differs from what was remembered, and remembering it.
    virtual bool differsBeside() const;
    virtual void rememberBeside();
    /// Enters again what entriesBeside() worked out; bytes that are none of these are left alone.
    virtual void enterBesideAgain(QByteArrayView entries);

private:
    Desktop& desktop_;
    const RecordLayout& layout_;
    std::unique_ptr<FormStateBase> state_;
    RecordBinding binding_;
    std::vector<ControlState> remembered_;
    bool entered_ = false;
};

/// The form of a table of controls and a record class. Table::table() is the one table; its members name the controls.
template <class Table, class Class>
class RecordForm : public BookForm {
public:
    explicit RecordForm(Desktop& desktop)
        : BookForm(desktop, Class::layout(), std::make_unique<FormState<Table>>(Table::table())) {}

    const Table& controls() const { return Table::table(); }
    FormState<Table>& state() { return static_cast<FormState<Table>&>(BookForm::state()); }
    const FormState<Table>& state() const { return static_cast<const FormState<Table>&>(BookForm::state()); }
    /// The record that the form holds, corrected.
    std::shared_ptr<const Class> builtRecord() { return std::static_pointer_cast<const Class>(buildRecord()); }

protected:
    virtual void show(const Class& record) { static_cast<void>(record); }
    virtual void complete(Class& record) { static_cast<void>(record); }

private:
    void show(const Record& record) final { show(static_cast<const Class&>(record)); }
    void complete(Record& record) final { complete(static_cast<Class&>(record)); }
};

}  // namespace tavrel
