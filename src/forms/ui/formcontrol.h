#pragma once

#include "forms/formstate.h"

#include <QLabel>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QUrl>
#include <QWidget>

#include <memory>

class QStringListModel;

namespace tavrel {

/// One control of a form and its widget, bound both ways: what the user does goes into the state as the user's doing,
/// and show() brings the state into the widget without any echo. The widget belongs to the page it is placed on.
class FormControl : public QObject {
    Q_OBJECT

public:
    FormControl(FormStateBase& state, int index, QWidget* widget);

    QWidget* widget() const { return widget_; }
    const Control& control() const;
    /// The widgets that the tabulator key visits, in order.
    virtual QList<QWidget*> focusWidgets() const;
    /// A label or unit that is shown and usable along with the widget.
    void addCompanion(QWidget* companion) { companions_.append(companion); }
    void show();
    /// A label beside the widget, out of sight while there is no hint.
    QLabel* makeHint();
    void showHint(const QString& words);
    /// Gives the keyboard focus, with all text selected; false where the widget is not in sight.
    bool takeFocus();
    /// Ends an entry that is under way as leaving the widget would.
    virtual void finishEditing() {}

Q_SIGNALS:
    /// An entry that may be new to the list of the control has come to its end.
    void editingFinished(int index, const QString& typed);

protected:
    virtual void showState(const ControlState& held) = 0;
    /// Whether the widget is being written by the program.
    bool isShowing() const { return showing_; }
    FormStateBase& state() const { return state_; }
    const ControlState& held() const { return state_.at(index_); }
    int index() const { return index_; }

private:
    FormStateBase& state_;
    int index_;
    QPointer<QWidget> widget_;
    QList<QPointer<QWidget>> companions_;
    QPointer<QLabel> hint_;
    bool showing_ = false;
};

/// The widget of a control, bound to the state. A combo takes its choices from the list, which other combos may share.
std::unique_ptr<FormControl> makeFormControl(FormStateBase& state, int index, QStringListModel* list);

/// What a click on a text leads to; invalid where there is nothing to open.
QUrl addressOf(Opens opens, const QString& text);

/// The width of so many digits in the widget's font.
int widthOfCharacters(const QWidget* widget, int characters);

}  // namespace tavrel
