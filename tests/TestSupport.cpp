#include "TestSupport.h"

#include <QJsonDocument>

QJsonValue TestDriver::ok(const QJsonObject& request, const char* file, int line)
{
    const QJsonObject answer = driver.handle(request);
    if (!answer.value("ok").toBool()) {
        const QByteArray why = "request " + QJsonDocument(request).toJson(QJsonDocument::Compact) + " answered " +
                               QJsonDocument(answer).toJson(QJsonDocument::Compact);
        QTest::qFail(why.constData(), file, line);
        return QJsonValue::Undefined;
    }
    return answer.value("value");
}

void TestDriver::start(QJsonObject options)
{
    options.insert("op", "start");
    ok(options);
}

QJsonValue TestDriver::on(const QString& form, const QString& control, const QString& op, QJsonObject extra,
                          const char* file, int line)
{
    extra.insert("op", op);
    extra.insert("form", form);
    extra.insert("control", control);
    return ok(extra, file, line);
}

QJsonObject TestDriver::sendOn(const QString& form, const QString& control, const QString& op, QJsonObject extra)
{
    extra.insert("op", op);
    extra.insert("form", form);
    extra.insert("control", control);
    return driver.handle(extra);
}
