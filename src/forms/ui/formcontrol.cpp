#include "forms/ui/formcontrol.h"

#include "base/decimalsign.h"
#include "base/texts.h"
#include "desktop/ui/fixedpitch.h"
#include "desktop/ui/readablecolour.h"
#include "forms/ui/datepicker.h"
#include "forms/ui/listcombo.h"
#include "forms/ui/picturebox.h"
#include "forms/ui/showncontrol.h"
#include "forms/ui/wheelguard.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDesktopServices>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QSlider>
#include <QTextDocument>
#include <QUrl>

#include <algorithm>
#include <iterator>
#include <optional>
#include <utility>

namespace tavrel {

namespace {

/// Long enough for any text that a record may bring; the widget's own bound would cut it off.
constexpr int lineBound = 1 << 24;

class LineControl : public FormControl {
public:
    LineControl(FormStateBase& state, int index) : FormControl(state, index, new QLineEdit) {
        auto* edit = line();
        edit->setMaxLength(lineBound);
        if (isNumber()) {
            edit->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        }
        connect(edit, &QLineEdit::textEdited, this,
                [this](const QString& typed) { FormControl::state().type(FormControl::index(), typed); });
        if (control().opens != Opens::nothing) {
            edit->installEventFilter(this);
            const QString tip = text("Main", "Tip opens");
            edit->setToolTip(edit->toolTip().isEmpty() ? tip : edit->toolTip() + u'\n' + tip);
        }
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched == widget() && event->type() == QEvent::MouseButtonRelease) {
            const auto& click = static_cast<const QMouseEvent&>(*event);
            const QUrl address = addressOf(control().opens, held().text);
            if (click.button() == Qt::LeftButton && click.modifiers() == Qt::ControlModifier && address.isValid()) {
                QDesktopServices::openUrl(address);
            }
        }
        return FormControl::eventFilter(watched, event);
    }

protected:
    void showState(const ControlState& held) override {
        auto* edit = line();
        // What is being typed stays as it is typed.
        const QString shown = isNumber() ? withDecimalSign(held.text) : held.text;
        if (edit->text() != held.text && edit->text() != shown) {
            const int cursor = edit->cursorPosition();
            edit->setText(shown);
            edit->setCursorPosition(edit->hasFocus() ? cursor : 0);
        }
    }

private:
    QLineEdit* line() const { return static_cast<QLineEdit*>(widget()); }
    bool isNumber() const { return control().kind != ControlKind::text || control().alignRight; }
};

class ComboControl : public FormControl {
public:
    ComboControl(FormStateBase& state, int index, QStringListModel* list)
        : FormControl(state, index, new ListCombo(list)) {
        combo()->lineEdit()->setMaxLength(lineBound);
        connect(combo(), &ListCombo::entered, this, [this](const QString& text) {
            if (!typed_ && text == held().text) {
                return;  // a proposal is taken after the field was left with it
            }
            typed_ = text;
            FormControl::state().type(FormControl::index(), text);
        });
        // A question may follow, which must not open while the focus is on its way from one widget to the next.
        connect(combo(), &ListCombo::finished, this, [this] {
            if (takeTyped()) {
                QMetaObject::invokeMethod(
                    this, [this, typed = held().text] { Q_EMIT editingFinished(FormControl::index(), typed); },
                    Qt::QueuedConnection);
            }
        });
        connect(combo(), &ListCombo::listReset, this, &FormControl::show);
    }

    void finishEditing() override {
        if (takeTyped()) {
            Q_EMIT editingFinished(index(), held().text);
        }
    }

protected:
    void showState(const ControlState& held) override { combo()->showText(held.text); }

private:
    ListCombo* combo() const { return static_cast<ListCombo*>(widget()); }

    /// Whether the user wrote what the control holds and has not been asked about it; once.
    bool takeTyped() { return std::exchange(typed_, std::nullopt) == held().text; }

    std::optional<QString> typed_;
};

class PopUpControl : public FormControl {
public:
    PopUpControl(FormStateBase& state, int index) : FormControl(state, index, new QComboBox) {
        for (const Choice& choice : control().choices) {
            menu()->addItem(choice.title.text(), choice.tag);
        }
        menu()->setMaxVisibleItems(std::max(menu()->count(), 1));
        guardAgainstWheel(menu());
        connect(menu(), &QComboBox::activated, this,
                [this](int row) { FormControl::state().choose(FormControl::index(), menu()->itemData(row).toInt()); });
    }

protected:
    void showState(const ControlState& held) override { menu()->setCurrentIndex(menu()->findData(held.tag)); }

private:
    QComboBox* menu() const { return static_cast<QComboBox*>(widget()); }
};

class RadioControl : public FormControl {
public:
    RadioControl(FormStateBase& state, int index) : FormControl(state, index, new QWidget) {
        auto* layout = new QHBoxLayout(widget());
        layout->setContentsMargins(0, 0, 0, 0);
        for (const Choice& choice : control().choices) {
            auto* button = new QRadioButton(choice.title.text());
            group_.addButton(button, choice.tag);
            layout->addWidget(button);
        }
        layout->addStretch();
        connect(&group_, &QButtonGroup::idClicked, this,
                [this](int tag) { FormControl::state().choose(FormControl::index(), tag); });
    }

    QList<QWidget*> focusWidgets() const override {
        QList<QWidget*> buttons;
        for (auto* button : group_.buttons()) {
            buttons.append(button);
        }
        return buttons;
    }

protected:
    void showState(const ControlState& held) override {
        QAbstractButton* chosen = group_.button(held.tag);
        // An exclusive group would not let go of its last choice for a tag that it does not have.
        group_.setExclusive(false);
        for (auto* button : group_.buttons()) {
            button->setChecked(button == chosen);
        }
        group_.setExclusive(true);
        if (!group_.buttons().isEmpty()) {
            widget()->setFocusProxy(chosen ? chosen : group_.buttons().front());
        }
    }

private:
    QButtonGroup group_;
};

class SwitchControl : public FormControl {
public:
    SwitchControl(FormStateBase& state, int index) : FormControl(state, index, new QCheckBox) {
        connect(box(), &QCheckBox::clicked, this,
                [this](bool on) { FormControl::state().choose(FormControl::index(), on ? 1 : 0); });
    }

protected:
    void showState(const ControlState& held) override { box()->setChecked(held.tag != 0); }

private:
    QCheckBox* box() const { return static_cast<QCheckBox*>(widget()); }
};

class SliderControl : public FormControl {
public:
    SliderControl(FormStateBase& state, int index) : FormControl(state, index, new QSlider(Qt::Horizontal)) {
        slider()->setRange(control().minimum, control().maximum);
        slider()->setPageStep(1);
        slider()->setTickInterval(1);
        slider()->setTickPosition(QSlider::TicksBelow);
        slider()->setMinimumWidth(widthOfCharacters(slider(), 18));
        guardAgainstWheel(slider());
        connect(slider(), &QSlider::valueChanged, this, [this](int value) {
            if (!isShowing()) {
                FormControl::state().choose(FormControl::index(), value);
            }
        });
    }

protected:
    void showState(const ControlState& held) override { slider()->setValue(held.tag); }

private:
    QSlider* slider() const { return static_cast<QSlider*>(widget()); }
};

class DateControl : public FormControl {
public:
    DateControl(FormStateBase& state, int index, DatePicker::Part part)
        : FormControl(state, index, new DatePicker(part)) {
        picker()->setEmptyAt1900(control().emptyAt1900);
        connect(picker(), &DatePicker::picked, this,
                [this](const Date& date) { FormControl::state().pick(FormControl::index(), date); });
    }

protected:
    void showState(const ControlState& held) override { picker()->showDate(held.date); }

private:
    DatePicker* picker() const { return static_cast<DatePicker*>(widget()); }
};

class LongTextControl : public FormControl {
public:
    LongTextControl(FormStateBase& state, int index) : FormControl(state, index, new QPlainTextEdit) {
        if (control().fixedPitch) {
            constexpr int columnWidth = 6;  // characters; four columns are in sight
            edit()->setFont(fixedPitch(edit()->font()));
            edit()->setLineWrapMode(QPlainTextEdit::NoWrap);
            edit()->setTabStopDistance(columnWidth * edit()->fontMetrics().horizontalAdvance(u' '));
        }
        edit()->setTabChangesFocus(true);
        edit()->setMinimumHeight(6 * edit()->fontMetrics().lineSpacing());
        edit()->setMinimumWidth(widthOfCharacters(edit(), 24));
        connect(edit(), &QPlainTextEdit::textChanged, this, [this] {
            if (!isShowing()) {
                shown_ = typedText();
                FormControl::state().type(FormControl::index(), shown_);
            }
        });
    }

protected:
    void showState(const ControlState& held) override {
        if (shown_ != held.text) {
            shown_ = held.text;
            edit()->setPlainText(held.text);
        }
    }

private:
    QPlainTextEdit* edit() const { return static_cast<QPlainTextEdit*>(widget()); }

    /// What stands in the widget, with its no-break spaces, which the plain text would lose.
    QString typedText() const {
        QString text = edit()->document()->toRawText();
        std::replace_if(
            text.begin(), text.end(),
            [](QChar letter) { return letter == QChar::ParagraphSeparator || letter == QChar::LineSeparator; }, u'\n');
        return text;
    }

    QString shown_ = QStringLiteral("");
};

class ButtonControl : public FormControl {
public:
    ButtonControl(FormStateBase& state, int index)
        : FormControl(state, index,
                      new QPushButton(state.table().controls()[std::size_t(index)].control.label.text())) {
        auto* button = static_cast<QPushButton*>(widget());
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this,
                [this] { FormControl::state().choose(FormControl::index(), held().tag); });
    }

protected:
    void showState(const ControlState&) override {}
};

}  // namespace

FormControl::FormControl(FormStateBase& state, int index, QWidget* widget)
    : state_(state), index_(index), widget_(widget) {
    const auto& placed = state.table().controls()[static_cast<std::size_t>(index)];
    widget->setObjectName(QString::fromStdString(placed.name));
    widget->setToolTip(placed.control.tip.text());
}

const Control& FormControl::control() const {
    return state_.table().controls()[static_cast<std::size_t>(index_)].control;
}

QList<QWidget*> FormControl::focusWidgets() const {
    return {widget_};
}

void FormControl::show() {
    if (!widget_) {
        return;
    }
    const bool nested = std::exchange(showing_, true);
    const ControlState& held = this->held();
    for (const QPointer<QWidget>& each : companions_) {
        if (each) {
            each->setVisible(held.visible);
            each->setEnabled(held.enabled);
        }
    }
    // On its own a widget would open as a window.
    if (widget_->parentWidget() && control().kind != ControlKind::gauge) {
        widget_->setVisible(held.visible);
    }
    widget_->setEnabled(held.enabled);
    showState(held);
    showing_ = nested;
}

void FormControl::showHint(const QString& words) {
    const QString hint = withDecimalSign(words);
    if (!hint_ || hint_->text() == hint) {
        return;
    }
    hint_->setText(hint);
    hint_->setVisible(!hint.isEmpty());
    QPalette colours = hint_->palette();
    colours.setColor(QPalette::WindowText, readableOn(colours.color(QPalette::Window), QColor(0xff, 0x80, 0x00)));
    hint_->setPalette(colours);
    if (widget_) {
        widget_->setAccessibleDescription(hint.isEmpty() ? control().unit.text() : hint);
    }
}

QLabel* FormControl::makeHint() {
    hint_ = new QLabel;
    hint_->setObjectName(widget_->objectName() + QStringLiteral("Hint"));
    hint_->setTextFormat(Qt::PlainText);
    hint_->hide();
    return hint_;
}

bool FormControl::takeFocus() {
    if (!widget_ || !widget_->isVisible()) {
        return false;
    }
    widget_->setFocus(Qt::OtherFocusReason);
    auto* line = qobject_cast<QLineEdit*>(widget_.data());
    if (const auto* combo = qobject_cast<QComboBox*>(widget_.data())) {
        line = combo->lineEdit();
    }
    if (line) {
        line->selectAll();
    }
    return true;
}

std::unique_ptr<FormControl> makeFormControl(FormStateBase& state, int index, QStringListModel* list) {
    switch (state.table().controls()[static_cast<std::size_t>(index)].control.kind) {
        case ControlKind::text:
        case ControlKind::wholeNumber:
        case ControlKind::decimal:
            return std::make_unique<LineControl>(state, index);
        case ControlKind::combo:
            return std::make_unique<ComboControl>(state, index, list);
        case ControlKind::popUp:
            return std::make_unique<PopUpControl>(state, index);
        case ControlKind::radio:
            return std::make_unique<RadioControl>(state, index);
        case ControlKind::onOff:
            return std::make_unique<SwitchControl>(state, index);
        case ControlKind::slider:
            return std::make_unique<SliderControl>(state, index);
        case ControlKind::date:
            return std::make_unique<DateControl>(state, index, DatePicker::day);
        case ControlKind::time:
            return std::make_unique<DateControl>(state, index, DatePicker::timeOfDay);
        case ControlKind::longText:
            return std::make_unique<LongTextControl>(state, index);
        case ControlKind::button:
            return std::make_unique<ButtonControl>(state, index);
        case ControlKind::rating:
        case ControlKind::readOnly:
        case ControlKind::gauge:
        case ControlKind::progress:
        case ControlKind::view:
            return makeShownControl(state, index);
        case ControlKind::picture:
            return makePictureControl(state, index);
    }
    return nullptr;
}

QUrl addressOf(Opens opens, const QString& text) {
    const QString words = text.trimmed();
    if (words.isEmpty()) {
        return {};
    }
    switch (opens) {
        case Opens::mail:
            return words.contains(u'@') ? QUrl(QStringLiteral("mailto:") + words, QUrl::StrictMode) : QUrl();
        case Opens::phone: {
            // The first of several; a zero in brackets is for callers in the country.
            QString dialled = words.left(words.indexOf(QRegularExpression(QStringLiteral("[/,;]"))));
            if (dialled.startsWith(u'+')) {
                dialled.remove(QStringLiteral("(0)"));
            }
            QString number;
            std::copy_if(dialled.begin(), dialled.end(), std::back_inserter(number),
                         [](QChar letter) { return letter.isDigit() || letter == u'+'; });
            return number.isEmpty() ? QUrl() : QUrl(QStringLiteral("tel:") + number);
        }
        case Opens::web: {
            // Only what a browser shows: no files, no other programs.
            const QUrl address = QUrl::fromUserInput(words);
            return address.scheme() == u"http" || address.scheme() == u"https" ? address : QUrl();
        }
        case Opens::nothing:
            break;
    }
    return {};
}

int widthOfCharacters(const QWidget* widget, int characters) {
    return widget->fontMetrics().horizontalAdvance(QString(characters, u'0'));
}

}  // namespace tavrel
