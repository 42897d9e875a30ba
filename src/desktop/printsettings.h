#pragma once

namespace tavrel {

/// How a view goes to paper: margins in points, the scale of its contents, and the orientation.
struct PrintSettings {
    double top = 0;
    double bottom = 0;
    double left = 0;
    double right = 0;
    double scale = 1;
    bool landscape = false;
};

}  // namespace tavrel
