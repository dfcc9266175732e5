#pragma once

#include "automation/Driver.h"
#include "core/App.h"
#include "platform/ScriptedPlatform.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>
#include <QTest>

// Drives the program in process, as a script would over the protocol.
class TestDriver {
public:
    // Sends a request; a failed answer fails the running test.
    QJsonValue ok(const QJsonObject& request, const char* file = __builtin_FILE(), int line = __builtin_LINE());
    // Sends a request and hands back the whole answer.
    QJsonObject send(const QJsonObject& request) { return driver.handle(request); }

    void start(QJsonObject options = {});
    // A control request: {"op": op, "form": form, "control": control, ...extra}.
    QJsonValue on(const QString& form, const QString& control, const QString& op, QJsonObject extra = {},
                  const char* file = __builtin_FILE(), int line = __builtin_LINE());
    QJsonObject sendOn(const QString& form, const QString& control, const QString& op, QJsonObject extra = {});

    QString text(const QString& form, const QString& control) { return on(form, control, "text").toString(); }
    void setText(const QString& form, const QString& control, const QString& text)
    {
        on(form, control, "set_text", {{"text", text}});
    }
    void click(const QString& form, const QString& control) { on(form, control, "click"); }
    bool loaded(const QString& form) { return ok({{"op", "loaded"}, {"form", form}}).toBool(); }
    bool shown(const QString& form) { return ok({{"op", "shown"}, {"form", form}}).toBool(); }
    bool modal(const QString& form) { return ok({{"op", "modal"}, {"form", form}}).toBool(); }
    QJsonObject session() { return ok({{"op", "session"}}).toObject(); }
    QJsonArray messages() { return ok({{"op", "messages"}}).toArray(); }
    QJsonArray help() { return ok({{"op", "help"}}).toArray(); }

    ql::App& app() { return *driver.app(); }
    ql::ScriptedPlatform& platform() { return *driver.platform(); }

    ql::Driver driver;
};

// The text of a message box record.
inline QString messageText(const QJsonValue& message) { return message.toObject().value("text").toString(); }
inline int messageStyle(const QJsonValue& message) { return message.toObject().value("style").toInt(); }

#define QL_TEST_MAIN(TestClass)                                                                                 \
    int main(int argc, char** argv)                                                                             \
    {                                                                                                           \
        if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))                                                      \
            qputenv("QT_QPA_PLATFORM", "offscreen");                                                             \
        QApplication app(argc, argv);                                                                           \
        TestClass test;                                                                                         \
        return QTest::qExec(&test, argc, argv);                                                                 \
    }
