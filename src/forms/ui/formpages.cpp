#include "forms/ui/formpages.h"

#include "desktop/picklists.h"
#include "forms/ui/grouplayout.h"
#include "forms/ui/listcombo.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace tavrel {

namespace {

/// The width that a column of a grid needs; what spans several columns does not count.
int neededWidth(const QGridLayout& grid, int column) {
    int width = 0;
    for (int row = 0; row < grid.rowCount(); ++row) {
        const QLayoutItem* item = grid.itemAtPosition(row, column);
        if (item && (column == 0 || item != grid.itemAtPosition(row, column - 1)) &&
            item != grid.itemAtPosition(row, column + 1)) {
            width = std::max(width, item->sizeHint().width());
        }
    }
    return width;
}

/// Puts the pairs of labels and controls of groups that stand under one another under one another too. Groups without
/// labels go their own way.
void alignPairs(const std::vector<LaidOutGroup>& groups) {
    std::map<std::pair<int, int>, int> widest;  // by the number of pairs side by side and the column
    const auto eachColumn = [&](auto visit) {
        for (const LaidOutGroup& group : groups) {
            bool labelled = false;
            for (int pair = 0; pair < group.pairs; ++pair) {
                labelled = labelled || neededWidth(*group.grid, labelColumn(pair)) > 0;
            }
            for (int pair = 0; labelled && pair < group.pairs; ++pair) {
                for (const int column : {labelColumn(pair), controlColumn(pair)}) {
                    visit(*group.grid, column, widest[{group.pairs, column}]);
                }
            }
        }
    };
    eachColumn([](QGridLayout& grid, int column, int& width) { width = std::max(width, neededWidth(grid, column)); });
    eachColumn([](QGridLayout& grid, int column, int width) { grid.setColumnMinimumWidth(column, width); });
}

}  // namespace

FormPages::FormPages(FormStateBase& state, Desktop& desktop, OwnList ownList, Hint hint, const HeldTexts& heldTexts)
    : state_(state), desktop_(desktop), ownList_(std::move(ownList)), hint_(std::move(hint)) {
    const auto& controls = state.table().controls();
    for (int index = 0; index < static_cast<int>(controls.size()); ++index) {
        const Control& control = controls[static_cast<std::size_t>(index)].control;
        controls_.push_back(makeFormControl(state, index, listOf(control)));
        connect(controls_.back().get(), &FormControl::editingFinished, this, [this](int ended, const QString& typed) {
            Q_EMIT editingFinished(ended, typed);
            showHints();  // of what the form fills for itself then
        });
        if (auto* combo = qobject_cast<ListCombo*>(controls_.back()->widget()); combo && heldTexts) {
            combo->proposeAlso([heldTexts, index] { return heldTexts(index); });
        }
    }
    showAll();  // before the layout measures the captions that the state holds
    for (int number = 1; number <= state.table().pageCount(); ++number) {
        pages_.emplace_back(buildPage(number));
    }
    showAll();
    connect(&state, &FormStateBase::controlChanged, this,
            [this](int index) { controls_[static_cast<std::size_t>(index)]->show(); });
    connect(&state, &FormStateBase::edited, this, &FormPages::showHints);
    connect(&state, &FormStateBase::refreshed, this, &FormPages::showAll);
    connect(&state, &FormStateBase::focusRequested, this, &FormPages::takeFocus);
    connect(&desktop.pickLists, &PickLists::changed, this, [this](PickList list) {
        if (const auto shown = pickLists_.find(list); shown != pickLists_.end()) {
            shown->second->setStringList(desktop_.pickLists[list]);
        }
    });
}

FormPages::~FormPages() {
    for (const QPointer<QWidget>& page : pages_) {
        if (page && !page->parent()) {
            delete page;
        }
    }
}

QStringListModel* FormPages::listOf(const Control& control) {
    if (control.kind != ControlKind::combo) {
        return nullptr;
    }
    auto& list = control.pickList ? pickLists_[*control.pickList] : ownLists_[control.ownList];
    if (!list) {
        list = std::make_unique<QStringListModel>(control.pickList ? desktop_.pickLists[*control.pickList]
                                                  : ownList_       ? ownList_(control.ownList)
                                                                   : QStringList());
    }
    return list.get();
}

QWidget* FormPages::buildPage(int number) {
    auto* page = new QWidget;
    page->setObjectName(QStringLiteral("page%1").arg(number));
    auto* bands = new QVBoxLayout(page);
    Mnemonics mnemonics;
    std::vector<LaidOutGroup> groups;
    std::vector<QWidget*> tabOrder;
    std::vector<QVBoxLayout*> columns;  // those of the band that is being filled
    std::vector<bool> filled;           // whether a column holds what takes all its height
    bool pageFilled = false;

    const auto endBand = [&] {
        for (std::size_t column = 0; column < columns.size(); ++column) {
            if (!filled[column]) {
                columns[column]->addStretch();
            }
        }
        columns.clear();
        filled.clear();
    };
    for (int index = 0; index < static_cast<int>(state_.table().groups().size()); ++index) {
        const Group& group = state_.table().groups()[static_cast<std::size_t>(index)];
        if (group.page != number) {
            continue;
        }
        LaidOutGroup laidOut = layOutGroup(state_.table(), index, controls_, mnemonics);
        tabOrder.insert(tabOrder.end(), laidOut.tabOrder.begin(), laidOut.tabOrder.end());
        if (group.placeColumn == wholeWidth) {
            endBand();
            bands->addWidget(laidOut.box, laidOut.stretches ? 1 : 0);
        } else {
            const auto column = static_cast<std::size_t>(group.placeColumn);
            if (columns.empty()) {
                bands->addLayout(new QHBoxLayout);
            }
            auto* band = static_cast<QHBoxLayout*>(bands->itemAt(bands->count() - 1)->layout());
            while (columns.size() <= column) {
                columns.push_back(new QVBoxLayout);
                band->addLayout(columns.back());
                filled.push_back(false);
            }
            columns[column]->addWidget(laidOut.box, laidOut.stretches ? 1 : 0);
            filled[column] = filled[column] || laidOut.stretches;
            if (laidOut.stretches) {
                bands->setStretch(bands->count() - 1, 1);
            }
        }
        pageFilled = pageFilled || laidOut.stretches;
        groups.push_back(std::move(laidOut));
    }
    endBand();
    if (!pageFilled) {
        bands->addStretch();
    }
    alignPairs(groups);
    for (std::size_t each = 1; each < tabOrder.size(); ++each) {
        QWidget::setTabOrder(tabOrder[each - 1], tabOrder[each]);
    }
    return page;
}

int FormPages::pageOf(int control) const {
    const auto& table = state_.table();
    return table.groups()[static_cast<std::size_t>(table.controls()[static_cast<std::size_t>(control)].group)].page;
}

void FormPages::takeFirstFocus(int page) {
    for (int control = 0; control < static_cast<int>(controls_.size()); ++control) {
        const auto& form = controls_[static_cast<std::size_t>(control)];
        if (pageOf(control) == page && !form->focusWidgets().isEmpty() && form->takeFocus()) {
            return;
        }
    }
}

void FormPages::showAll() {
    for (const auto& control : controls_) {
        control->show();
    }
    showHints();
}

void FormPages::showHints() {
    for (int index = 0; hint_ && index < static_cast<int>(controls_.size()); ++index) {
        controls_[static_cast<std::size_t>(index)]->showHint(hint_(index));
    }
}

void FormPages::finishEditing() {
    for (const auto& control : controls_) {
        control->finishEditing();
    }
}

}  // namespace tavrel
