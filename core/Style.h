#pragma once

namespace ql {

// Puts the program's style on the application: the desktop's style, with
// frames that keep their lines at fractional scale factors.
void useProgramStyle();

}  // namespace ql
