#include "automation/Requests.h"

#include <cmath>

namespace ql {

void valueError(const QString& message)
{
    throw DriverError{QStringLiteral("ValueError"), message};
}

void lookupError(const QString& message)
{
    throw DriverError{QStringLiteral("LookupError"), message};
}

QJsonValue need(const QJsonObject& request, const QString& key)
{
    const QJsonValue v = request.value(key);
    if (v.isUndefined())
        valueError(QStringLiteral("the request needs \"%1\"").arg(key));
    return v;
}

QString needText(const QJsonObject& request, const QString& key)
{
    const QJsonValue v = need(request, key);
    if (!v.isString())
        valueError(QStringLiteral("\"%1\" must be a text").arg(key));
    return v.toString();
}

qint64 wholeNumber(const QJsonValue& value, const QString& what, qint64 min, qint64 max)
{
    if (!value.isDouble())
        valueError(QStringLiteral("%1 must be a number").arg(what));
    const double d = value.toDouble();
    if (!std::isfinite(d) || d != std::floor(d))
        valueError(QStringLiteral("%1 must be a whole number, not %2").arg(what).arg(d, 0, 'g', 17));
    if (d < double(min) || d > double(max))
        valueError(QStringLiteral("%1 must be from %2 to %3, not %4").arg(what).arg(min).arg(max).arg(d, 0, 'g', 17));
    return qint64(d);
}

int needInt(const QJsonObject& request, const QString& key)
{
    return int(wholeNumber(need(request, key), QStringLiteral("\"%1\"").arg(key)));
}

QJsonArray needList(const QJsonObject& request, const QString& key)
{
    const QJsonValue v = need(request, key);
    if (!v.isArray())
        valueError(QStringLiteral("\"%1\" must be a list").arg(key));
    return v.toArray();
}

QJsonArray stringArray(const QStringList& list)
{
    QJsonArray out;
    for (const QString& s : list)
        out.append(s);
    return out;
}

}  // namespace ql
