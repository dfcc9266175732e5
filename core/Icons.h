#pragma once

#include <QIcon>

namespace ql {

// The round question-mark picture of the help buttons.
QIcon helpIcon();
// The picture of the program's window.
QIcon programIcon();

}  // namespace ql
