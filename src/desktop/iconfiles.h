#pragma once

#include <QString>

namespace tavrel {

/// The file of the icon of that name, for windows and drawings alike: ":/icons/<name>.svg". There may be none.
QString iconFile(const QString& name);

}  // namespace tavrel
