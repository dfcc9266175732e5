#include "TestSupport.h"

#include <QApplication>
#include <QJsonDocument>
#include <QProcess>
#include <QTemporaryDir>

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
    QJsonObject send(const QJsonObject& request)
    {
        process.write(QJsonDocument(request).toJson(QJsonDocument::Compact) + "\n");
        while (!process.canReadLine()) {
            if (!process.waitForReadyRead(15000))
                return QJsonObject{{"ok", false}, {"error", "Timeout"}};
        }
        const QByteArray line = process.readLine();
        return QJsonDocument::fromJson(line).object();
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
};

QL_TEST_MAIN(ProtocolTest)
#include "test_protocol.moc"
