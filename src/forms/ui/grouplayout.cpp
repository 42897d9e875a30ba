#include "forms/ui/grouplayout.h"

#include "forms/formentry.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

#include <algorithm>

namespace tavrel {

namespace {

/// Between a pair and the next, in pixels.
constexpr int pairSpacing = 18;

/// The controls that stand side by side in one place: one, and those that stand beside it.
struct Cell {
    std::vector<int> controls;
    int line = 0;
    int place = 0;
};

class GroupBuilder {
public:
    GroupBuilder(const ControlTableBase& table, int group, const std::vector<std::unique_ptr<FormControl>>& controls,
                 Mnemonics& mnemonics)
        : table_(table),
          group_(table.groups()[static_cast<std::size_t>(group)]),
          controls_(controls),
          mnemonics_(mnemonics) {
        collectCells(group);
    }

    LaidOutGroup build() {
        result_.box = new QGroupBox(group_.title.text());
        result_.grid = new QGridLayout(result_.box);
        result_.grid->setVerticalSpacing(6);
        if (group_.layout == GroupLayout::pairs) {
            layOutPairs();
        } else {
            layOutGrid(group_.layout == GroupLayout::rows);
        }
        return std::move(result_);
    }

private:
    const PlacedControl& placed(int index) const { return table_.controls()[static_cast<std::size_t>(index)]; }
    const Control& control(int index) const { return placed(index).control; }
    FormControl& form(int index) const { return *controls_[static_cast<std::size_t>(index)]; }

    void collectCells(int group) {
        for (int index = 0; index < static_cast<int>(table_.controls().size()); ++index) {
            if (placed(index).group != group) {
                continue;
            }
            const auto before = std::find_if(cells_.rbegin(), cells_.rend(),
                                             [&](const Cell& cell) { return cell.place == placed(index).place; });
            if (control(index).beside && before != cells_.rend()) {
                before->controls.push_back(index);
            } else {
                cells_.push_back({{index}, placed(index).line, placed(index).place});
            }
        }
    }

    static bool takesWholeWidth(ControlKind kind) {
        return kind == ControlKind::longText || kind == ControlKind::picture || kind == ControlKind::view;
    }

    static bool expands(const Control& control) {
        switch (control.kind) {
            case ControlKind::text:
            case ControlKind::combo:
                return control.width == 0;
            case ControlKind::longText:
            case ControlKind::gauge:
            case ControlKind::progress:
            case ControlKind::picture:
            case ControlKind::radio:
            case ControlKind::view:
                return true;
            default:
                return false;
        }
    }

    /// What is measured in a unit is a number, whatever control holds it.
    static bool isNumber(const Control& control) { return !control.unit.isEmpty(); }

    static int fieldWidth(const QWidget* widget, const Control& control) {
        const int usual = control.kind == ControlKind::text ? 14 : control.kind == ControlKind::decimal ? 7 : 6;
        return widthOfCharacters(widget, (control.width > 0 ? control.width : usual) + 2);
    }

    void setWidth(int index) const {
        const Control& declared = control(index);
        QWidget* widget = form(index).widget();
        if (auto* line = qobject_cast<QLineEdit*>(widget)) {
            const int width = fieldWidth(line, declared);
            if (expands(declared)) {
                line->setMinimumWidth(width);
            } else {
                line->setFixedWidth(width);
            }
        } else if (auto* combo = qobject_cast<QComboBox*>(widget)) {
            combo->setMinimumContentsLength(declared.width > 0 ? declared.width : expands(declared) ? 14 : 9);
            if (combo->lineEdit() && isNumber(declared)) {
                combo->lineEdit()->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
            }
            combo->setSizePolicy(expands(declared) ? QSizePolicy::Expanding : QSizePolicy::Fixed, QSizePolicy::Fixed);
        } else if (auto* shown = qobject_cast<QLabel*>(widget); shown && isNumber(declared)) {
            shown->setFixedWidth(fieldWidth(shown, declared));
            shown->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
            shown->setContentsMargins(0, 0, widthOfCharacters(shown, 1) / 2, 0);
        } else if (declared.width > 0) {
            widget->setMinimumWidth(widthOfCharacters(widget, declared.width));
        }
    }

    QLabel* label(const QString& text) const {
        auto* label = new QLabel(text);
        label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        return label;
    }

    /// The label of a control, which its letter leads to.
    QLabel* labelFor(int index) {
        const QString words = control(index).label.text();
        const bool leads = !form(index).focusWidgets().isEmpty();
        QLabel* made = label(leads ? mnemonics_.mark(words) : words);
        if (leads) {
            made->setContentsMargins(2, 0, 0, 0);  // an underlined letter sets its word wider than it is measured
            made->setBuddy(form(index).widget());
        }
        form(index).addCompanion(made);
        return made;
    }

    void name(int index, const QString& words) const {
        QWidget* widget = form(index).widget();
        widget->setAccessibleName(words);
        widget->setAccessibleDescription(control(index).unit.text());
        for (QWidget* part : form(index).focusWidgets()) {
            if (part != widget) {
                part->setAccessibleDescription(words);
            }
        }
    }

    /// The controls of a cell with their units, in one line.
    QHBoxLayout* line(const std::vector<int>& indexes) {
        auto* layout = new QHBoxLayout;
        layout->setSpacing(5);
        bool filled = false;
        for (const int index : indexes) {
            setWidth(index);
            layout->addWidget(form(index).widget(), expands(control(index)) ? 1 : 0);
            filled = filled || expands(control(index));
            if (!control(index).unit.isEmpty()) {
                auto* unit = new QLabel(control(index).unit.text());
                form(index).addCompanion(unit);
                layout->addWidget(unit);
            }
        }
        // Behind all of them: some have their unit from another control.
        for (const int index : indexes) {
            if (takesEntries(control(index).kind)) {
                layout->addWidget(form(index).makeHint());
            }
        }
        if (!filled) {
            layout->addStretch();
        }
        return layout;
    }

    void visit(const std::vector<int>& indexes) {
        for (const int index : indexes) {
            for (QWidget* widget : form(index).focusWidgets()) {
                result_.tabOrder.push_back(widget);
            }
        }
    }

    void layOutPairs() {
        const int pairs = std::max(group_.columns, 1);
        result_.pairs = pairs;
        int row = 0;
        int pair = 0;
        for (Cell& cell : cells_) {
            const int first = cell.controls.front();
            nameOfCell(cell);
            if (takesWholeWidth(control(first).kind)) {
                row += pair > 0 ? 1 : 0;
                setWidth(first);
                result_.grid->addWidget(form(first).widget(), row, 0, 1, controlColumn(pairs - 1) + 1);
                result_.grid->setRowStretch(row, 1);
                result_.stretches = true;
                ++row;
                pair = 0;
            } else {
                addPair(cell, row, pair);
                pair = (pair + 1) % pairs;
                row += pair == 0 ? 1 : 0;
            }
            visit(cell.controls);
        }
        for (int each = 0; each < pairs; ++each) {
            result_.grid->setColumnStretch(controlColumn(each), 1);
            if (each > 0) {
                result_.grid->setColumnMinimumWidth(labelColumn(each) - 1, pairSpacing);
            }
        }
    }

    void addPair(const Cell& cell, int row, int pair) {
        std::vector<int> indexes = cell.controls;
        const int first = indexes.front();
        if (auto* box = qobject_cast<QCheckBox*>(form(first).widget())) {
            box->setText(mnemonics_.mark(control(first).label.text()));
        } else if (control(first).kind == ControlKind::readOnly && control(first).label.isEmpty() &&
                   indexes.size() > 1) {
            // A caption that the program writes is the label of what stands beside it.
            auto* caption = static_cast<QLabel*>(form(first).widget());
            caption->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
            caption->setBuddy(form(indexes[1]).widget());
            for (const Title& words : control(first).captions) {  // nothing moves when the words change
                caption->setMinimumWidth(
                    std::max(caption->minimumWidth(), caption->fontMetrics().horizontalAdvance(words.text())));
            }
            result_.grid->addWidget(caption, row, labelColumn(pair));
            indexes.erase(indexes.begin());
        } else if (control(first).kind != ControlKind::button && !control(first).label.isEmpty()) {
            result_.grid->addWidget(labelFor(first), row, labelColumn(pair));
        }
        result_.grid->addLayout(line(indexes), row, controlColumn(pair));
    }

    void nameOfCell(const Cell& cell) const {
        for (const int index : cell.controls) {
            QString words = control(index).label.text();
            if (words.isEmpty()) {
                words = group_.title.text();
                if (control(cell.controls.front()).beside || cell.controls.front() != index) {
                    words = control(cell.controls.front()).label.text();
                } else if (std::any_of(cells_.begin(), cells_.end(), [](const Cell& each) { return each.place > 0; })) {
                    words += QStringLiteral(" %1").arg(cell.place + 1);
                }
            }
            name(index, words);
        }
    }

    /// Rows of controls as the lines or the columns of a grid.
    void layOutGrid(bool rows) {
        std::vector<int> lines;
        int places = 0;
        for (const Cell& cell : cells_) {
            if (std::find(lines.begin(), lines.end(), cell.line) == lines.end()) {
                lines.push_back(cell.line);
            }
            places = std::max(places, cell.place + 1);
        }
        QGridLayout& grid = *result_.grid;
        grid.setHorizontalSpacing(rows ? 14 : 18);
        // A row of captions that the program writes names the lines; else their numbers do.
        const Control& front = control(cells_.front().controls.front());
        const bool captioned = front.kind == ControlKind::readOnly && front.label.isEmpty();
        for (int place = 0; place < places && !rows && !captioned; ++place) {
            grid.addWidget(label(QString::number(place + 1)), place + 1, 0);
        }
        for (const Cell& cell : cells_) {
            const int first = cell.controls.front();
            const int position = static_cast<int>(std::find(lines.begin(), lines.end(), cell.line) - lines.begin());
            if (cell.place == 0 && !control(first).label.isEmpty()) {
                QLabel* heading = labelFor(first);
                heading->setAlignment(rows ? Qt::AlignRight | Qt::AlignVCenter : Qt::AlignLeft | Qt::AlignBottom);
                grid.addWidget(heading, rows ? position : 0, rows ? 0 : position + 1);
            }
            for (const int index : cell.controls) {
                const Title& own = control(index).label;
                name(index, QStringLiteral("%1 %2")
                                .arg((own.isEmpty() ? control(first).label : own).text())
                                .arg(cell.place + 1));
            }
            grid.addLayout(line(cell.controls), rows ? position : cell.place + 1, rows ? cell.place + 1 : position + 1);
        }
        if (rows) {
            levelComboBoxes();
        }
        // What follows the last column keeps the columns together.
        grid.setColumnStretch((rows ? places : static_cast<int>(lines.size())) + 1, 1);
        for (int place = 0; place < places; ++place) {
            for (const Cell& cell : cells_) {
                if (cell.place == place) {
                    visit(cell.controls);
                }
            }
        }
    }

    /// Menus and lists that stand under one another get one width.
    void levelComboBoxes() const {
        int widest = 0;
        const auto boxes = result_.box->findChildren<QComboBox*>();
        for (const QComboBox* box : boxes) {
            widest = std::max(widest, box->sizeHint().width());
        }
        for (QComboBox* box : boxes) {
            box->setMinimumWidth(widest);
        }
    }

    const ControlTableBase& table_;
    const Group& group_;
    const std::vector<std::unique_ptr<FormControl>>& controls_;
    Mnemonics& mnemonics_;
    std::vector<Cell> cells_;
    LaidOutGroup result_;
};

}  // namespace

LaidOutGroup layOutGroup(const ControlTableBase& table, int group,
                         const std::vector<std::unique_ptr<FormControl>>& controls, Mnemonics& mnemonics) {
    return GroupBuilder(table, group, controls, mnemonics).build();
}

}  // namespace tavrel
