#pragma once

#include "forms/ui/formcontrol.h"
#include "forms/ui/mnemonics.h"

#include <QGroupBox>

#include <memory>
#include <vector>

class QGridLayout;

namespace tavrel {

/// The titled box of a group, its controls laid out as the group says.
struct LaidOutGroup {
    QGroupBox* box = nullptr;
    QGridLayout* grid = nullptr;
    int pairs = 0;           ///< columns of labels and controls; 0 for a grid of rows of controls
    bool stretches = false;  ///< holds a text of many lines, which takes all the height there is
    /// The widgets in the order in which the tabulator key visits them: as they are read, a grid place by place.
    std::vector<QWidget*> tabOrder;
};

LaidOutGroup layOutGroup(const ControlTableBase& table, int group,
                         const std::vector<std::unique_ptr<FormControl>>& controls, Mnemonics& mnemonics);

/// Where the label and the control of a pair stand in the grid of a group.
constexpr int labelColumn(int pair) {
    return 3 * pair;
}
constexpr int controlColumn(int pair) {
    return 3 * pair + 1;
}

}  // namespace tavrel
