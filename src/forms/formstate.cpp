#include "forms/formstate.h"

#include "base/numbers.h"

namespace tavrel {

FormStateBase::FormStateBase(const ControlTableBase& table) : table_(table), states_(table.controls().size()) {
    clear();
}

template <class Value>
void FormStateBase::change(int index, Value ControlState::*part, const Value& value) {
    Value& held = states_[static_cast<std::size_t>(index)].*part;
    if (held == value) {
        return;
    }
    held = value;
    announce(index);
}

void FormStateBase::announce(int index) {
    if (batches_ > 0) {
        changedInBatch_ = true;
    } else {
        Q_EMIT controlChanged(index);
    }
}

void FormStateBase::setText(int index, const QString& text) {
    // A form has no absent texts: an empty control reads as the empty text.
    change(index, &ControlState::text, text.isNull() ? QStringLiteral("") : text);
}

void FormStateBase::setTag(int index, int tag) {
    change(index, &ControlState::tag, tag);
}

void FormStateBase::setDate(int index, const Date& date) {
    change(index, &ControlState::date, date);
}

void FormStateBase::setEnabled(int index, bool enabled) {
    change(index, &ControlState::enabled, enabled);
}

void FormStateBase::setVisible(int index, bool visible) {
    change(index, &ControlState::visible, visible);
}

void FormStateBase::setGauge(int index, int level, int maximum, int ticks) {
    change(index, &ControlState::tag, level);
    change(index, &ControlState::maximum, maximum);
    change(index, &ControlState::ticks, ticks);
}

void FormStateBase::setExplanation(int index, const QString& explanation) {
    change(index, &ControlState::explanation, explanation);
}

void FormStateBase::setLevel(int index, double level) {
    change(index, &ControlState::level, level);
}

void FormStateBase::setColour(int index, const QColor& colour) {
    change(index, &ControlState::colour, colour);
}

void FormStateBase::setImage(int index, const Image& image) {
    change(index, &ControlState::image, image);
}

void FormStateBase::selectPosition(int index, int position) {
    const auto& choices = table_.controls()[static_cast<std::size_t>(index)].control.choices;
    const bool inside = position >= 0 && static_cast<std::size_t>(position) < choices.size();
    setTag(index, inside ? choices[static_cast<std::size_t>(position)].tag : 0);
}

void FormStateBase::type(int index, const QString& text) {
    setText(index, text);
    Q_EMIT edited(index);
}

void FormStateBase::choose(int index, int tag) {
    setTag(index, tag);
    Q_EMIT edited(index);
}

void FormStateBase::pick(int index, const Date& date) {
    setDate(index, date);
    Q_EMIT edited(index);
}

void FormStateBase::place(int index, const Image& image) {
    setImage(index, image);
    Q_EMIT edited(index);
}

void FormStateBase::clear() {
    const Batch batch(*this);
    const auto& controls = table_.controls();
    for (int index = 0; index < static_cast<int>(controls.size()); ++index) {
        const Control& control = controls[static_cast<std::size_t>(index)].control;
        setText(index, QString::fromUtf8(control.clearedText));
        setTag(index, control.clearedTag);
        setDate(index, {});
        setImage(index, {});
        setColour(index, {});
        setLevel(index, 0);
        setExplanation(index, {});
    }
}

FormStateBase::Batch::Batch(FormStateBase& state) : state_(state) {
    ++state_.batches_;
}

FormStateBase::Batch::~Batch() {
    if (--state_.batches_ == 0 && state_.changedInBatch_) {
        state_.changedInBatch_ = false;
        Q_EMIT state_.refreshed();
    }
}

qint32 integerOf(const ControlState& state) {
    return integerValue(state.text);
}

double realOf(const ControlState& state) {
    return doubleValue(state.text);
}

float singleOf(const ControlState& state) {
    return floatValue(state.text);
}

QString textOf(float value) {
    return shortestText(value);
}

}  // namespace tavrel
