#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>
#include <QStringList>
#include <limits>

namespace ql {

// A request that could not be carried out: kind is "LookupError",
// "AssertionError" or "ValueError".
struct DriverError {
    QString kind;
    QString message;
};

[[noreturn]] void valueError(const QString& message);
[[noreturn]] void lookupError(const QString& message);

// The value of a key that the request must carry.
QJsonValue need(const QJsonObject& request, const QString& key);
// The text of a key that the request must carry.
QString needText(const QJsonObject& request, const QString& key);

// A JSON number that must be a whole number from min to max; `what` names it
// in the message of the ValueError thrown otherwise.
qint64 wholeNumber(const QJsonValue& value, const QString& what, qint64 min = std::numeric_limits<int>::min(),
                   qint64 max = std::numeric_limits<int>::max());
// A key of the request that must be a whole number that fits an int.
int needInt(const QJsonObject& request, const QString& key);

// A key of the request that must hold a list.
QJsonArray needList(const QJsonObject& request, const QString& key);

QJsonArray stringArray(const QStringList& list);

}  // namespace ql
