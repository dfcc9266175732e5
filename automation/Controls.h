#pragma once

#include "automation/Requests.h"

#include <QJsonObject>
#include <QJsonValue>
#include <QList>
#include <QString>

class QObject;

namespace ql {

class FormBase;

// The control of that name on a form (its widget, menu, menu entry); the
// form itself for the form's own name. Only the program's own named controls
// are found: the toolkit's parts (names beginning "qt_", unnamed widgets,
// the pieces inside a control) are not. nullptr when the form has none.
QObject* findControl(FormBase& form, const QString& name);

// The name by which a control is addressed, or "" for an unnamed part.
QString controlName(const QObject* control);

// The kind word of a control: "text", "combo", "list", "button", "label",
// "option", "check", "frame", "picture", "menu", "tabstrip", "slider",
// "updown", "progress", "drivelist", "dirlist", "filelist", "table", "page",
// "form", or another word for a kind without operations of its own.
QString controlKind(FormBase& form, const QObject* control);

struct ControlEntry {
    QString name;
    QString kind;
};
// Every addressable control of a form, the form itself first.
QList<ControlEntry> formControls(FormBase& form);

// Whether an op is one of the control operations.
bool isControlOp(const QString& op);

// Carries out one control operation as a person would, running the
// program's own handlers; throws DriverError.
QJsonValue controlOp(FormBase& form, QObject* control, const QString& op, const QJsonObject& request);

}  // namespace ql
