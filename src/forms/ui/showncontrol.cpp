#include "forms/ui/showncontrol.h"

#include "base/decimalsign.h"
#include "base/texts.h"
#include "desktop/ui/readablecolour.h"
#include "forms/ui/starrating.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QProgressBar>
#include <QVBoxLayout>

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

/// Tells how a derived figure comes about, on the widget and to screen readers.
void explain(QWidget* widget, const Control& control, const ControlState& held) {
    const QString explanation = withDecimalSign(held.explanation);
    widget->setToolTip(explanation.isEmpty() ? control.tip.text() : explanation);
    widget->setAccessibleDescription(explanation.isEmpty() ? control.unit.text() : explanation);
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
        label()->setText(withDecimalSign(held.text).replace(u'\r', u'\n'));
        explain(label(), control(), held);
        // Black is the usual colour of text.
        colour(label(), QPalette::WindowText, held.colour == QColor(Qt::black) ? QColor() : held.colour);
    }

private:
    QLabel* label() const { return static_cast<QLabel*>(widget()); }
};

/// A level with marks above it that part it evenly.
class Gauge : public QProgressBar {
public:
    Gauge() { setTextVisible(false); }

    void setTicks(int ticks) {
        ticks_ = ticks;
        update();
    }

protected:
    void paintEvent(QPaintEvent* event) override {
        QProgressBar::paintEvent(event);
        // Marks that would run into each other tell nothing.
        constexpr int closest = 3;
        if (ticks_ < 1 || width() / ticks_ < closest) {
            return;
        }
        QPainter painter(this);
        painter.setPen(palette().color(QPalette::WindowText));
        const double step = double(width() - 1) / ticks_;
        for (int tick = 1; tick < ticks_; ++tick) {
            painter.drawLine(QPointF(tick * step, height() * 0.7), QPointF(tick * step, height() - 1));
        }
    }

private:
    int ticks_ = 0;
};

class GaugeControl : public FormControl {
public:
    GaugeControl(FormStateBase& state, int index) : FormControl(state, index, new Gauge) {}

    QList<QWidget*> focusWidgets() const override { return {}; }

protected:
    void showState(const ControlState& held) override {
        bar()->setVisible(bar()->parentWidget() && held.visible && held.maximum > 0);
        bar()->setRange(0, std::max(held.maximum, 1));
        bar()->setValue(std::clamp(held.tag, 0, bar()->maximum()));
        bar()->setTicks(held.ticks);
        explain(bar(), control(), held);
    }

private:
    Gauge* bar() const { return static_cast<Gauge*>(widget()); }
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

/// Room for a view that the document's window puts into it.
class ViewControl : public FormControl {
public:
    ViewControl(FormStateBase& state, int index) : FormControl(state, index, new QWidget) {
        auto* layout = new QVBoxLayout(widget());
        layout->setContentsMargins(0, 0, 0, 0);
        widget()->setMinimumSize(widthOfCharacters(widget(), 40), 12 * widget()->fontMetrics().lineSpacing());
    }

    QList<QWidget*> focusWidgets() const override { return {}; }

protected:
    void showState(const ControlState&) override {}
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
        case ControlKind::view:
            return std::make_unique<ViewControl>(state, index);
        default:
            return std::make_unique<ReadOnlyControl>(state, index);
    }
}

}  // namespace tavrel
