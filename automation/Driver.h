#pragma once

#include "automation/NestedLoopGuard.h"

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
    struct ProgramOp;
    static const QHash<QString, ProgramOp>& programOps();

    QJsonValue dispatch(const QJsonObject& request);
    QJsonValue start(const QJsonObject& request);
    QJsonValue control(const QString& op, const QJsonObject& request);
    void settle();
    void stop();

    NestedLoopGuard guard_;
    std::unique_ptr<ScriptedPlatform> platform_;
    std::unique_ptr<App> app_;
    std::unique_ptr<QTemporaryDir> folder_;
};

// The temporary program folder of a program started without one:
// "Quillet-<process id>-XXXXXX" in the system's temporary folder. Folders of
// processes that are gone (killed before they could remove theirs) are
// removed first.
std::unique_ptr<QTemporaryDir> makeTemporaryProgramFolder();
void removeStaleProgramFolders();

// Reads requests from standard input, one per line, and writes one answer
// line each to standard output, until the input ends.
int runAutomation();

}  // namespace ql
