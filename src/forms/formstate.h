#pragma once

#include "forms/controltable.h"
#include "records/date.h"
#include "records/image.h"

#include <QColor>
#include <QObject>
#include <QString>

#include <vector>

namespace tavrel {

/// What one control holds: its text as typed, its tag (pop-ups, radios, switches, sliders), its date, and whether it
/// can be used.
struct ControlState {
    QString text = QStringLiteral("");
    int tag = 0;
    Date date;
    bool enabled = true;
    bool visible = true;
    int maximum = 0;   ///< of a gauge, whose level is its tag
    int ticks = 0;     ///< of a gauge: marks that part it evenly
    double level = 0;  ///< of a progress bar, percent, as worked out: it may lie outside 0 to 100
    QColor colour;     ///< of a text that the program writes; invalid: the usual one
    Image image;       ///< of a picture
    /// How a figure that the program works out comes about; empty: there is nothing to tell.
    QString explanation = QStringLiteral("");

    bool operator==(const ControlState&) const = default;
};

/// The state of a form without its widgets. Windows, importers and the command line type into the same state.
class FormStateBase : public QObject {
    Q_OBJECT

public:
    explicit FormStateBase(const ControlTableBase& table);

    const ControlTableBase& table() const { return table_; }
    const ControlState& at(int index) const { return states_[static_cast<std::size_t>(index)]; }

    /// Writes of the program; controlChanged follows when something changed.
    void setText(int index, const QString& text);
    void setTag(int index, int tag);
    void setDate(int index, const Date& date);
    void setEnabled(int index, bool enabled);
    void setVisible(int index, bool visible);
    void setGauge(int index, int level, int maximum, int ticks = 0);
    void setExplanation(int index, const QString& explanation);
    void setLevel(int index, double percent);
    void setColour(int index, const QColor& colour);
    void setImage(int index, const Image& image);
    /// The tag of the menu's item at a position from 0; a position outside the menu leaves nothing chosen, which reads
    /// as 0.
    void selectPosition(int index, int position);

    /// What the user did with a control: written like the above, then edited follows.
    void type(int index, const QString& text);
    void choose(int index, int tag);
    void pick(int index, const Date& date);
    void place(int index, const Image& image);

    /// Puts every control to its cleared value.
    void clear();
    /// Asks the window for the keyboard focus of a control.
    void requestFocus(int index) { Q_EMIT focusRequested(index); }

    /// While one lives no signal is sent; at its end one refreshed() is, when something changed.
    class Batch {
    public:
        explicit Batch(FormStateBase& state);
        ~Batch();
        Batch(const Batch&) = delete;
        Batch& operator=(const Batch&) = delete;

    private:
        FormStateBase& state_;
    };

Q_SIGNALS:
    void controlChanged(int index);
    void refreshed();
    void edited(int index);
    void focusRequested(int index);

private:
    template <class Value>
    void change(int index, Value ControlState::*part, const Value& value);
    void announce(int index);

    const ControlTableBase& table_;
    std::vector<ControlState> states_;
    int batches_ = 0;
    bool changedInBatch_ = false;
};

/// The state of the form of one table; its controls are named by the table's members.
template <class Table>
class FormState : public FormStateBase {
public:
    using Id = ControlId<Table>;

    explicit FormState(const Table& table) : FormStateBase(table) {}

    using FormStateBase::selectPosition;
    using FormStateBase::setColour;
    using FormStateBase::setDate;
    using FormStateBase::setEnabled;
    using FormStateBase::setExplanation;
    using FormStateBase::setGauge;
    using FormStateBase::setImage;
    using FormStateBase::setLevel;
    using FormStateBase::setTag;
    using FormStateBase::setText;
    using FormStateBase::setVisible;

    const QString& text(Id id) const { return at(id.index).text; }
    int tag(Id id) const { return at(id.index).tag; }
    bool isOn(Id id) const { return at(id.index).tag != 0; }
    const Date& date(Id id) const { return at(id.index).date; }
    /// The control's text as a form reads numbers: the leading number, else 0.
    qint32 integer(Id id) const;
    double real(Id id) const;
    float single(Id id) const;

    void setText(Id id, const QString& text) { FormStateBase::setText(id.index, text); }
    void setInteger(Id id, qint64 value) { FormStateBase::setText(id.index, QString::number(value)); }
    void setTag(Id id, int tag) { FormStateBase::setTag(id.index, tag); }
    void setDate(Id id, const Date& date) { FormStateBase::setDate(id.index, date); }
    void setEnabled(Id id, bool enabled) { FormStateBase::setEnabled(id.index, enabled); }
    void setVisible(Id id, bool visible) { FormStateBase::setVisible(id.index, visible); }
    const Image& image(Id id) const { return at(id.index).image; }
    void setLevel(Id id, double percent) { FormStateBase::setLevel(id.index, percent); }
    void setColour(Id id, const QColor& colour) { FormStateBase::setColour(id.index, colour); }
    void setImage(Id id, const Image& image) { FormStateBase::setImage(id.index, image); }
    void setGauge(Id id, int level, int maximum, int ticks = 0) {
        FormStateBase::setGauge(id.index, level, maximum, ticks);
    }
    /// A derived text with how it comes about.
    void setDerived(Id id, const QString& text, const QString& explanation) {
        FormStateBase::setText(id.index, text);
        FormStateBase::setExplanation(id.index, explanation);
    }
    void selectPosition(Id id, int position) { FormStateBase::selectPosition(id.index, position); }
    void requestFocus(Id id) { FormStateBase::requestFocus(id.index); }
};

qint32 integerOf(const ControlState& state);
double realOf(const ControlState& state);
float singleOf(const ControlState& state);
/// How a decimal stands in a control: the shortest text that restores it.
QString textOf(float value);

template <class Table>
qint32 FormState<Table>::integer(Id id) const {
    return integerOf(at(id.index));
}

template <class Table>
double FormState<Table>::real(Id id) const {
    return realOf(at(id.index));
}

template <class Table>
float FormState<Table>::single(Id id) const {
    return singleOf(at(id.index));
}

}  // namespace tavrel
