#pragma once

#include <QString>

class QWidget;

namespace ql {

class App;

// True when a file can be opened for reading; a folder or an unreadable file
// counts as missing. Nothing is reported to the user.
bool FileExists(App& app, const QString& path);

// Opens a document with the program the system associates with it. The
// outcome is not looked at.
void ShellOpen(App& app, QWidget* window, const QString& document);

// Reads a value of the association store into RegistryValue: a text keeps
// its terminating zero character, a double word becomes a whole number, any
// other type stores nothing; a failed read leaves RegistryValue as it was.
// Answers the status of the read (0 for success).
int ReadRegistryValue(App& app, const QString& key, const QString& valueName);

// Shows the shared file dialog as the caller set it up; on OK PickedFile
// takes the chosen path, on Cancel it stays as it was.
void PickProgramFile(App& app);

}  // namespace ql
