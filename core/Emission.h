#pragma once

#include <QString>
#include <QStringList>

namespace ql {

inline const QString QUOTE = QStringLiteral("\"");
inline const QString CRLF = QStringLiteral("\r\n");

// One applet parameter line: <PARAM NAME=NAME VALUE="value"> and CRLF.
QString ParamLine(const QString& name, const QString& value);

// The value of the WIZARD parameter that marks code as the program's own.
QString WizardValue();

// The opening applet tag, class name and sizes quoted, height before width.
QString AppletTag(const QString& classFile, const QString& height, const QString& width);
inline const QString AppletEnd = QStringLiteral("</APPLET>\r\n");

// The two comment lines that credit a script's author and the program, the
// first followed by one line break, the second by two.
QString ScriptCreditLines();

// The box text of the script effects that need no file and are pasted in
// one piece.
QString NoFilesOnePieceMessage();

// The box text that lists the files an effect needs, one "- " line per kind
// of file ("- the ColorSwirl.class file", "- images", ...).
QString RequiredFilesMessage(const QStringList& kindLines);
// The box text of an effect that needs no file.
QString NoFilesMessage();

}  // namespace ql
