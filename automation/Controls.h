#pragma once

#include <QJsonObject>
#include <QJsonValue>
#include <QString>

class QObject;

namespace ql {

class FormBase;

// A request that could not be carried out: kind is "LookupError",
// "AssertionError" or "ValueError".
struct DriverError {
    QString kind;
    QString message;
};

// The control of that name on a form (its widget, menu, menu entry); the
// form itself for the form's own name. nullptr when the form has none.
QObject* findControl(FormBase& form, const QString& name);

// The name by which a control is addressed, or "" for an unnamed part.
QString controlName(const QObject* control);

// Carries out one control operation as a person would, running the
// program's own handlers; throws DriverError.
QJsonValue controlOp(FormBase& form, QObject* control, const QString& op, const QJsonObject& request);

}  // namespace ql
