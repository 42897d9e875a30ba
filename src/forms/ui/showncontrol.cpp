#include "forms/ui/showncontrol.h"

#include "base/texts.h"
#include "desktop/ui/readablecolour.h"
#include "forms/ui/starrating.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>

#include <algorithm>
#include <cmath>

namespace tavrel {

namespace {

/// Gives a widget's part a colour that can be read there, or the usual one back where there is none.
void colour(QWidget* widget, QPalette::ColorRole role, const QColor& wanted) {
    QPalette colours;
    if (wanted.isValid()) {
        colours.setColor(role, readableOn(widget->palette().color(QPalette::Window), wanted));
    }
    widget->setPalette(colours);
}

class ReadOnlyControl : public FormControl {
public:
    ReadOnlyControl(FormStateBase& state, int index) : FormControl(state, index, new QLabel) {
        label()->setTextFormat(Qt::PlainText);
        if (!control().label.isEmpty()) {
            label()->setTextInteractionFlags(Qt::TextSelectableByMouse);
        }
    }

    QList<QWidget*> focusWidgets() const override { return {}; }

protected:
    void showState(const ControlState& held) override {
        label()->setText(held.text);
        // Black is the usual colour of text.
        colour(label(), QPalette::WindowText, held.colour == QColor(Qt::black) ? QColor() : held.colour);
    }

private:
    QLabel* label() const { return static_cast<QLabel*>(widget()); }
};

class GaugeControl : public FormControl {
public:
    GaugeControl(FormStateBase& state, int index) : FormControl(state, index, new QProgressBar) {
        bar()->setTextVisible(false);
    }

    QList<QWidget*> focusWidgets() const override { return {}; }

protected:
    void showState(const ControlState& held) override {
        bar()->setVisible(bar()->parentWidget() && held.visible && held.maximum > 0);
        bar()->setRange(0, std::max(held.maximum, 1));
        bar()->setValue(std::clamp(held.tag, 0, bar()->maximum()));
    }

private:
    QProgressBar* bar() const { return static_cast<QProgressBar*>(widget()); }
};

/// A percentage as a bar, its own number in it also where the bar can show no more than full or no less than empty.
class ProgressControl : public FormControl {
public:
    ProgressControl(FormStateBase& state, int index) : FormControl(state, index, new QProgressBar) {
        bar()->setRange(0, 100);
    }

    QList<QWidget*> focusWidgets() const override { return {}; }

protected:
    void showState(const ControlState& held) override {
        const double level = std::isfinite(held.level) ? std::round(held.level) : 0;
        bar()->setValue(static_cast<int>(std::clamp(level, 0.0, 100.0)));
        bar()->setFormat(QStringLiteral("%1\u00a0%").arg(level, 0, 'f', 0));
        colour(bar(), QPalette::Highlight, held.colour);
    }

private:
    QProgressBar* bar() const { return static_cast<QProgressBar*>(widget()); }
};

class RatingControl : public FormControl {
public:
    RatingControl(FormStateBase& state, int index)
        : FormControl(state, index, new QWidget), stars_(new StarRating), word_(new QLabel) {
        auto* layout = new QHBoxLayout(widget());
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(stars_);
        layout->addWidget(word_);
        stars_->setRange(control().minimum, control().maximum);
        widget()->setFocusProxy(stars_);
        word_->setVisible(!control().choices.empty());
        connect(stars_, &StarRating::chosen, this, [this](int value) {
            if (!isShowing()) {
                FormControl::state().choose(FormControl::index(), value);
            }
        });
    }

    QList<QWidget*> focusWidgets() const override { return {stars_}; }

protected:
    void showState(const ControlState& held) override {
        stars_->showValue(held.tag);
        QString word = textWith("Main", "Cotation in words", held.tag, control().maximum);
        for (const Choice& choice : control().choices) {
            if (choice.tag == held.tag) {
                word = choice.title.text();
            }
        }
        word_->setText(word);
        stars_->setToolTip(word);
        stars_->setAccessibleName(widget()->accessibleName() + QStringLiteral(": ") + word);
    }

private:
    StarRating* stars_;
    QLabel* word_;
};

}  // namespace

std::unique_ptr<FormControl> makeShownControl(FormStateBase& state, int index) {
    switch (state.table().controls()[static_cast<std::size_t>(index)].control.kind) {
        case ControlKind::gauge:
            return std::make_unique<GaugeControl>(state, index);
        case ControlKind::progress:
            return std::make_unique<ProgressControl>(state, index);
        case ControlKind::rating:
            return std::make_unique<RatingControl>(state, index);
        default:
            return std::make_unique<ReadOnlyControl>(state, index);
    }
}

}  // namespace tavrel
