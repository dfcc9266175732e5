#pragma once

#include <QIcon>

namespace ql {

// The pictures of the program's buttons. Each is the desktop theme's icon of
// its freedesktop name where the theme has one, else a picture drawn here.

// Help: the help buttons of the forms.
QIcon helpIcon();
// Copy to the clipboard.
QIcon copyIcon();
// A Web page: the button of the FrontPage instructions.
QIcon webPageIcon();
// A program to run: the buttons that pick the browser or the HTML editor.
QIcon programFileIcon();
// The picture of the program's window.
QIcon programIcon();

}  // namespace ql
