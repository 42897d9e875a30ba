#pragma once

#include "base/texts.h"

#include <span>

namespace tavrel {

/// An item that a toolbar can hold.
struct ToolItem {
    const char* identifier;
    Title label;
    const char* image;  ///< name of the icon, ":/icons/<image>.svg"
    Title tip;
    bool needsRecords = false;  ///< usable only while the document holds records
};

/// The places of a toolbar that are no items of their own.
inline constexpr const char* toolSeparator = "separator";
inline constexpr const char* toolSpace = "space";
inline constexpr const char* toolFlexibleSpace = "flexibleSpace";
inline constexpr const char* toolCustomise = "customise";

/// A toolbar as its document declares it: what it can hold, what its palette offers, what it holds at first.
struct ToolBarDescription {
    const char* identifier;
    std::span<const ToolItem> items;
    std::span<const char* const> allowed;
    std::span<const char* const> initial;
};

}  // namespace tavrel
