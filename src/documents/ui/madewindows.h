#pragma once

#include <QList>
#include <QWidget>

#include <initializer_list>

namespace tavrel {

/// Those of a window's further windows that were made already; null stands for one that was not.
inline QList<QWidget*> madeWindows(std::initializer_list<QWidget*> windows) {
    QList<QWidget*> made(windows);
    made.removeAll(nullptr);
    return made;
}

}  // namespace tavrel
