#pragma once

#include <QString>

namespace ql {

// The folder of the program's own files at start: the user's data folder of
// the program, made when it is missing.
QString defaultProgramFolder();

// Makes the folder when it is missing and puts there what the program ships
// (invisi.gif and the help), leaving files that are already there alone.
// The applet class files do not come with the program: they are dropped into
// this folder by the user.
void prepareProgramFolder(const QString& folder);

}  // namespace ql
