#pragma once

#include <QJsonObject>
#include <QTemporaryDir>
#include <memory>

namespace ql {

class App;
class ScriptedPlatform;

// Drives the program by requests: each request is a JSON object with an
// "op", each answer {"ok": true, "value": ...} or {"ok": false, "error",
// "message"}. Every outside service is scripted.
class Driver {
public:
    Driver();
    ~Driver();

    QJsonObject handle(const QJsonObject& request);
    // A request given as one line of JSON text.
    QJsonObject handleLine(const QByteArray& line);

    App* app() const { return app_.get(); }
    ScriptedPlatform* platform() const { return platform_.get(); }

private:
    QJsonValue dispatch(const QJsonObject& request);
    QJsonValue start(const QJsonObject& request);
    QJsonValue control(const QString& op, const QJsonObject& request);
    void settle();
    void stop();

    std::unique_ptr<ScriptedPlatform> platform_;
    std::unique_ptr<App> app_;
    std::unique_ptr<QTemporaryDir> folder_;
};

// Reads requests from standard input, one per line, and writes one answer
// line each to standard output, until the input ends.
int runAutomation();

}  // namespace ql
