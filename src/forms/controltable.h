#pragma once

#include "forms/control.h"

#include <array>
#include <deque>
#include <string>
#include <vector>

namespace tavrel {

/// Names a control of the table Table; the compiler keeps forms apart.
template <class Table>
struct ControlId {
    int index = -1;
};

/// A control as it stands in a table: its declaration, its own name and field, its group, and its place in a row of
/// controls (0 for a single one).
struct PlacedControl {
    Control control;
    std::string name;
    std::string field;
    int group = 0;
    int line = 0;   ///< rows of controls of one group, counted; single controls count too
    int place = 0;  ///< position within the row of controls
};

/// What every form's table offers, whatever its record: groups and controls in the order in which they were declared.
class ControlTableBase {
public:
    const std::vector<Group>& groups() const { return groups_; }
    const std::vector<PlacedControl>& controls() const { return controls_; }
    int pageCount() const;
    /// The index of the control of that name or, failing that, of that record field; -1 when there is none.
    int find(std::string_view nameOrField) const;

protected:
    ControlTableBase() = default;
    int group(Group group);
    int add(const Control& control, std::string_view substitute, int line, int place);
    int nextLine() { return line_++; }

private:
    std::vector<Group> groups_;
    std::vector<PlacedControl> controls_;
    int line_ = 0;
};

/// A form's table derives from this and declares its controls as members, each initialised by add(): the member is the
/// control's identifier, and the order of the members is the order of the form.
///
///     struct DiveControls : ControlTable<DiveControls> {
///         const int identity = group({1, {"Carnet", "Dive"}});
///         const Id profondeurField = add({"profondeurField", ControlKind::decimal, "profondeur", …});
///         const std::array<Id, 6> stops = addEach<6>(levels, {"deco_Level_%_Switch", ControlKind::onOff, …});
///     };
template <class Self>
class ControlTable : public ControlTableBase {
public:
    using Id = ControlId<Self>;

protected:
    Id add(const Control& control) { return {ControlTableBase::add(control, {}, nextLine(), 0)}; }

    /// A row of like controls; % in name and field is replaced by each substitute in turn.
    template <std::size_t N>
    std::array<Id, N> addEach(const std::array<const char*, N>& substitutes, const Control& control) {
        std::array<Id, N> ids;
        const int line = nextLine();
        for (std::size_t i = 0; i < N; ++i) {
            ids[i] = {ControlTableBase::add(control, substitutes[i], line, static_cast<int>(i))};
        }
        return ids;
    }
};

}  // namespace tavrel
