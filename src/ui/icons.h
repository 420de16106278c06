#pragma once

#include <QIcon>
#include <QString>

namespace zeb {

// The program's icon of that name, drawn in the text colour of the palette in force at any size.
[[nodiscard]] QIcon ProgramIcon(const QString& name, qreal turned_degrees = 0.0);

}  // namespace zeb
