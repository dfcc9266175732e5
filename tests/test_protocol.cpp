#include "TestSupport.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QJsonDocument>
#include <QProcess>
#include <QTemporaryDir>
#include <csignal>

// Drives a child "quillet --automation" over its standard input and output.
class Child {
public:
    Child()
    {
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.remove("QT_QPA_PLATFORM");  // the program sets it itself
        process.setProcessEnvironment(env);
        process.start(qEnvironmentVariable("QUILLET_BINARY"), {"--automation"});
    }
    ~Child()
    {
        if (process.state() != QProcess::NotRunning) {
            process.kill();
            process.waitForFinished(5000);
        }
    }
    QJsonObject send(const QJsonObject& request, int waitMs = 15000)
    {
        return sendLine(QJsonDocument(request).toJson(QJsonDocument::Compact), waitMs);
    }
    // Writes one line and reads the one answer line, waiting at most waitMs.
    QJsonObject sendLine(const QByteArray& line, int waitMs = 15000)
    {
        process.write(line + "\n");
        return answer(waitMs);
    }
    QJsonObject answer(int waitMs = 15000)
    {
        QElapsedTimer clock;
        clock.start();
        while (!process.canReadLine()) {
            const int left = waitMs - int(clock.elapsed());
            if (left <= 0 || !process.waitForReadyRead(left))
                return QJsonObject{{"ok", false}, {"error", "Timeout"}};
        }
        const QByteArray line = process.readLine();
        QJsonParseError error;
        const QJsonDocument doc = QJsonDocument::fromJson(line, &error);
        if (error.error != QJsonParseError::NoError || !doc.isObject())
            return QJsonObject{{"ok", false}, {"error", "NotAnAnswer"}, {"message", QString::fromUtf8(line)}};
        return doc.object();
    }
    QJsonValue value(const QJsonObject& request)
    {
        const QJsonObject answer = send(request);
        if (!answer.value("ok").toBool())
            qWarning("request %s failed: %s", QJsonDocument(request).toJson().constData(),
                     QJsonDocument(answer).toJson().constData());
        return answer.value("value");
    }
    QJsonValue on(const QString& form, const QString& control, const QString& op, QJsonObject extra = {})
    {
        extra.insert("op", op);
        extra.insert("form", form);
        extra.insert("control", control);
        return value(extra);
    }
    QProcess process;
};

namespace {

// The temporary program folders of a process.
QStringList programFoldersOf(qint64 pid)
{
    return QDir::temp().entryList({QStringLiteral("Quillet-%1-*").arg(pid)}, QDir::Dirs | QDir::NoDotAndDotDot);
}

// Requests that make no sense, each to be answered with one line.
QList<QByteArray> malformedRequests()
{
    QList<QByteArray> lines = {
        "", " ", "\t", "   \t  ", "{", "}", "[", "]", "{}", "[]", "null", "true", "false", "0", "-1", "1e999",
        "\"start\"", "{\"op\"}", "{\"op\": }", "{op: \"start\"}", "{'op': 'start'}", "{\"op\": \"start\",}",
        "{\"op\": \"busy\"} {\"op\": \"busy\"}", "{\"op\": \"busy\"} trailing", "\xff\xfe{}", "{\"op\": \"\xff\"}",
        "{\"op\": 5, \"op\": \"\"}", "{\"op\": null}", "{\"op\": 5}", "{\"op\": [\"busy\"]}", "{\"op\": {}}",
        "{\"op\": \"\"}", "{\"op\": \"BUSY\"}", "{\"op\": \" busy\"}", "{\"nop\": \"busy\"}",
        QByteArray("{\"op\": \"bu\0sy\"}", 15), QByteArray(5000, '['), QByteArray(100000, ' ') + "x",
        "{\"op\": \"text\", \"form\": \"QLMain\"}", "{\"op\": \"text\", \"control\": \"Label3\"}",
    };
    const QList<QJsonObject> requests = {
        {{"op", "frobnicate"}},
        {{"op", "frobnicate"}, {"form", "QLMain"}, {"control", "Label3"}},
        {{"op", "loaded"}},
        {{"op", "loaded"}, {"form", 5}},
        {{"op", "shown"}, {"form", QJsonArray{}}},
        {{"op", "modal"}, {"form", QJsonValue::Null}},
        {{"op", "controls"}},
        {{"op", "controls"}, {"form", "Nowhere"}},
        {{"op", "controls"}, {"form", "Options"}},
        {{"op", "controls"}, {"form", true}},
        {{"op", "open"}},
        {{"op", "open"}, {"form", "Nowhere"}},
        {{"op", "open"}, {"form", 1}},
        {{"op", "set_clipboard"}},
        {{"op", "set_clipboard"}, {"text", 5}},
        {{"op", "answer"}},
        {{"op", "answer"}, {"words", "Yes"}},
        {{"op", "answer"}, {"words", QJsonArray{1}}},
        {{"op", "answer"}, {"words", QJsonArray{QJsonValue::Null}}},
        {{"op", "answer_file"}, {"paths", "/a"}},
        {{"op", "answer_file"}, {"paths", QJsonArray{5}}},
        {{"op", "answer_file"}, {"paths", QJsonArray{QJsonArray{}}}},
        {{"op", "answer_color"}},
        {{"op", "answer_color"}, {"values", 5}},
        {{"op", "answer_color"}, {"values", QJsonArray{-1}}},
        {{"op", "answer_color"}, {"values", QJsonArray{16777216}}},
        {{"op", "answer_color"}, {"values", QJsonArray{4294967301.0}}},
        {{"op", "answer_color"}, {"values", QJsonArray{0.5}}},
        {{"op", "answer_color"}, {"values", QJsonArray{1e300}}},
        {{"op", "answer_color"}, {"values", QJsonArray{"255"}}},
        {{"op", "file_fault"}},
        {{"op", "file_fault"}, {"path", "/x"}, {"error", -1}},
        {{"op", "file_fault"}, {"path", "/x"}, {"error", 2.5}},
        {{"op", "start"}, {"settings", 5}},
        {{"op", "start"}, {"settings", QJsonArray{5}}},
        {{"op", "start"}, {"settings", QJsonArray{QJsonArray{"a", "b"}}}},
        {{"op", "start"}, {"settings", QJsonArray{QJsonArray{1, "b", "c"}}}},
        {{"op", "start"}, {"browser_command", 5}},
        {{"op", "start"}, {"http", "x"}},
        {{"op", "start"}, {"http", QJsonObject{{"http://x/", 5}}}},
        {{"op", "start"}, {"program_folder", 5}},
    };
    for (const QJsonObject& r : requests)
        lines << QJsonDocument(r).toJson(QJsonDocument::Compact);

    // Control requests: unknown forms and controls, wrong types, numbers out of range.
    const QList<QPair<QString, QString>> targets = {
        {"QLMain", "Label3"}, {"QLMain", "TabStrip1"}, {"QLMain", "mnuFile"}, {"QLMain", "mnuFileExit"},
        {"QLMain", "QLMain"}, {"QLMain", "Nothing"},   {"Nowhere", "Text1"},  {"QLMain", "qt_menubar_ext_button"},
        {"QLMain", ""},       {"QLMain", "Picture1(0)"},
    };
    const QList<QJsonObject> bodies = {
        {{"op", "set_text"}, {"text", 5}},
        {{"op", "set_text"}},
        {{"op", "type_text"}, {"text", QJsonValue::Null}},
        {{"op", "choose"}, {"item", 2.5}},
        {{"op", "choose"}, {"item", 1e10}},
        {{"op", "choose"}, {"item", -1e10}},
        {{"op", "choose"}, {"item", QJsonArray{}}},
        {{"op", "choose"}, {"item", 99}},
        {{"op", "select"}, {"indexes", QJsonArray{0.5}}},
        {{"op", "set_value"}, {"value", "x"}},
        {{"op", "set_value"}, {"value", 1e300}},
        {{"op", "set_selection"}, {"start", -1}, {"length", 0}},
        {{"op", "set_selection"}, {"start", 0}, {"length", 1e10}},
        {{"op", "key"}, {"key", "NoSuchKey"}},
        {{"op", "key"}, {"key", ""}},
        {{"op", "key"}, {"key", 13}},
        {{"op", "tooltip"}, {"item", 7.5}},
        {{"op", "drag_drop"}, {"target", "Nothing"}},
        {{"op", "set_path"}, {"path", 5}},
        {{"op", "set_drive"}, {"drive", QJsonValue::Null}},
        {{"op", "grab"}},
    };
    for (const auto& [form, control] : targets) {
        for (QJsonObject body : bodies) {
            body.insert("form", form);
            body.insert("control", control);
            lines << QJsonDocument(body).toJson(QJsonDocument::Compact);
        }
    }
    // The requests as they are, with the form or the control of a wrong type.
    lines << R"({"op": "text", "form": 5, "control": "Label3"})" << R"({"op": "text", "form": "QLMain", "control": 5})"
          << R"({"op": "click", "form": ["QLMain"], "control": "Label3"})"
          << R"({"op": "click", "form": "QLMain", "control": null})";
    return lines;
}

}  // namespace

class ProtocolTest : public QObject {
    Q_OBJECT
private slots:
    void wholeSwirlyRoadOverStandardStreams()
    {
        QVERIFY(!qEnvironmentVariable("QUILLET_BINARY").isEmpty());
        Child child;
        QVERIFY(child.process.waitForStarted(10000));
        QTemporaryDir folder;
        QCOMPARE(child.send({{"op", "start"}, {"program_folder", folder.path()}}), (QJsonObject{{"ok", true}}));
        QCOMPARE(child.value({{"op", "shown"}, {"form", "QLMain"}}).toBool(), true);
        child.on("QLMain", "TabStrip1", "choose", {{"item", "Text Effects"}});
        child.on("QLMain", "Command4", "hover");
        QCOMPARE(child.on("QLMain", "Label3", "text").toString(), QString("Swirly Text effect"));
        child.on("QLMain", "Command4", "click");
        QCOMPARE(child.value({{"op", "modal"}, {"form", "Swirly"}}).toBool(), true);
        child.on("Swirly", "Text7", "type_text", {{"text", "Hi!"}});
        child.on("Swirly", "Combo1", "choose", {{"item", "Arial"}});
        child.on("Swirly", "Text10", "set_text", {{"text", "200"}});
        child.on("Swirly", "Text11", "set_text", {{"text", "41"}});
        child.value({{"op", "answer_color"}, {"values", QJsonArray{65536 * 255}}});
        child.on("Swirly", "Label5", "click");
        child.on("Swirly", "Command1", "click");
        const QJsonObject session = child.value({{"op", "session"}}).toObject();
        const QString code =
            "<APPLET CODE=\"ColorSwirl.class\" HEIGHT=\"41\" WIDTH=\"200\">\r\n"
            "<PARAM NAME=WIZARD VALUE=\"Created with Quillet.  Quillet Web site at: http://www.quillet-fx.com/\">\r\n"
            "<PARAM NAME=TEXT VALUE=\"Hi!\">\r\n"
            "<PARAM NAME=FONT VALUE=\"Arial\">\r\n"
            "<PARAM NAME=BGCOLOR VALUE=\"0,0,255\">\r\n"
            "<PARAM NAME=XLOC VALUE=\"5\">\r\n"
            "<PARAM NAME=YLOC VALUE=\"20\">\r\n"
            "</APPLET>\r\n";
        QCOMPARE(session.value("GeneratedCode").toString(), code);
        QCOMPARE(session.value("EffectId").toInt(), 10);
        QCOMPARE(child.on("Preview", "Text1", "text").toString(), code);
        QCOMPARE(child.value({{"op", "messages"}}).toArray().size(), 1);

        // The code comes back through re-edit.
        child.on("Preview", "Preview", "close");
        child.on("QLMain", "mnuEditApplet", "click");
        child.on("EditAppletForm", "Text1", "set_text", {{"text", code}});
        child.on("EditAppletForm", "Command1", "click");
        QCOMPARE(child.on("Swirly", "Text1", "text").toString(), QString("0,0,255"));
        QCOMPARE(child.on("Swirly", "Combo1", "text").toString(), QString("Arial"));

        // Errors come back as answers.
        QCOMPARE(child.send({{"op", "text"}, {"form", "Swirly"}, {"control", "Text99"}}).value("error").toString(),
                 QString("LookupError"));
        child.process.write("this is not json\n");
        QVERIFY(child.process.waitForReadyRead(10000) || child.process.canReadLine());
        QCOMPARE(QJsonDocument::fromJson(child.process.readLine()).object().value("error").toString(),
                 QString("ValueError"));

        // A second program in the same process starts clean.
        child.send({{"op", "start"}});
        QCOMPARE(child.value({{"op", "session"}}).toObject().value("EffectId").toInt(), 0);
        QCOMPARE(child.value({{"op", "loaded"}, {"form", "Swirly"}}).toBool(), false);

        child.on("QLMain", "mnuFileExit", "click");
        QCOMPARE(child.value({{"op", "ended"}}).toBool(), true);

        // End of input ends the process; nothing else came out on stdout.
        child.process.closeWriteChannel();
        QVERIFY(child.process.waitForFinished(10000));
        QCOMPARE(child.process.exitCode(), 0);
        QCOMPARE(child.process.readAllStandardOutput(), QByteArray());
    }

    void everyMalformedLineGetsExactlyOneAnswer()
    {
        Child child;
        QVERIFY(child.process.waitForStarted(10000));
        // Before any program runs, and while one runs.
        for (const bool started : {false, true}) {
            if (started)
                QCOMPARE(child.send({{"op", "start"}}), (QJsonObject{{"ok", true}}));
            const QList<QByteArray> lines = malformedRequests();
            QVERIFY(lines.size() >= 200);
            for (const QByteArray& line : lines) {
                const QJsonObject answer = child.sendLine(line, 10000);
                const QByteArray shown = line.left(120);
                QVERIFY2(answer.value("ok") == QJsonValue(false), shown.constData());
                const QString kind = answer.value("error").toString();
                QVERIFY2(kind == "ValueError" || kind == "LookupError", (shown + " answered " + kind.toUtf8()).constData());
                QVERIFY2(answer.value("message").isString(), shown.constData());
            }
            // No line was answered twice: the next answer is this request's.
            QCOMPARE(child.send({{"op", "constants"}}).value("ok").toBool(), true);
            QVERIFY(!child.process.canReadLine());
        }
        QCOMPARE(child.send({{"op", "shown"}, {"form", "QLMain"}}).value("value").toBool(), true);
    }

    void toolkitMenusNeverWait()
    {
        Child child;
        QVERIFY(child.process.waitForStarted(10000));
        QCOMPARE(child.send({{"op", "start"}}), (QJsonObject{{"ok", true}}));
        const QList<QJsonObject> traps = {
            {{"op", "click"}, {"form", "QLMain"}, {"control", "qt_menubar_ext_button"}},
            {{"op", "key"}, {"form", "QLMain"}, {"control", "qt_menubar_ext_button"}, {"key", "Space"}},
            {{"op", "double_click"}, {"form", "QLMain"}, {"control", "qt_menubar_ext_button"}},
            {{"op", "open"}, {"form", "Preview"}},
            {{"op", "click"}, {"form", "Preview"}, {"control", "qt_menubar_ext_button"}},
            {{"op", "open"}, {"form", "Swirly"}},
            {{"op", "right_click"}, {"form", "Swirly"}, {"control", "Text7"}},
            {{"op", "click"}, {"form", "Swirly"}, {"control", "Combo1"}},
            {{"op", "key"}, {"form", "Swirly"}, {"control", "Combo1"}, {"key", "F4"}},
            {{"op", "key"}, {"form", "Swirly"}, {"control", "Combo9"}, {"key", "Space"}},
        };
        for (const QJsonObject& request : traps) {
            const QByteArray shown = QJsonDocument(request).toJson(QJsonDocument::Compact);
            const QJsonObject answer = child.send(request, 10000);
            QVERIFY2(answer.value("error").toString() != "Timeout", shown.constData());
            if (request.value("control").toString().startsWith("qt_"))
                QCOMPARE(answer.value("error").toString(), QString("LookupError"));
            else
                QVERIFY2(answer.value("ok").toBool(), shown.constData());
        }
        child.on("Swirly", "Text7", "type_text", {{"text", "still typing"}});
        QCOMPARE(child.on("Swirly", "Text7", "text").toString(), QString("still typing"));
    }

    void blankLinesAreAnswered()
    {
        Child child;
        QVERIFY(child.process.waitForStarted(10000));
        child.process.write("\n   \n{\"op\": \"constants\"}\n\t\r\n");
        for (const char* kind : {"ValueError", "ValueError", "", "ValueError"}) {
            const QJsonObject answer = child.answer(10000);
            QCOMPARE(answer.value("error").toString(), QString(kind));
        }
    }

    void temporaryProgramFoldersGoWithTheirProcess()
    {
        qint64 killedPid = 0;
        {
            Child child;
            QVERIFY(child.process.waitForStarted(10000));
            const qint64 pid = child.process.processId();
            QCOMPARE(child.send({{"op", "start"}}), (QJsonObject{{"ok", true}}));
            QCOMPARE(programFoldersOf(pid).size(), 1);
            // A normal end removes it.
            child.process.closeWriteChannel();
            QVERIFY(child.process.waitForFinished(10000));
            QCOMPARE(programFoldersOf(pid), QStringList());
        }
        {
            Child child;
            QVERIFY(child.process.waitForStarted(10000));
            killedPid = child.process.processId();
            QCOMPARE(child.send({{"op", "start"}}), (QJsonObject{{"ok", true}}));
            ::kill(pid_t(killedPid), SIGKILL);
            QVERIFY(child.process.waitForFinished(10000));
            QCOMPARE(programFoldersOf(killedPid).size(), 1);
        }
        // The next program removes what the killed one left.
        Child child;
        QVERIFY(child.process.waitForStarted(10000));
        QCOMPARE(child.send({{"op", "start"}}), (QJsonObject{{"ok", true}}));
        QCOMPARE(programFoldersOf(killedPid), QStringList());
        QCOMPARE(programFoldersOf(child.process.processId()).size(), 1);
    }
};


QL_TEST_MAIN(ProtocolTest)
#include "test_protocol.moc"
