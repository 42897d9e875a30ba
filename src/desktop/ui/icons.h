#pragma once

#include <QIcon>
#include <QString>

namespace tavrel {

/// The icon ":/icons/<name>.svg", sharp at every size; made once. A null icon when there is none of that name.
QIcon iconNamed(const QString& name);

}  // namespace tavrel
