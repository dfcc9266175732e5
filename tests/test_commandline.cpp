#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTest>

// Runs the built program with its options, as from a shell.
class CommandLineTest : public QObject {
    Q_OBJECT

    struct Run {
        int exitCode = -1;
        QProcess::ExitStatus status = QProcess::CrashExit;
        QString out;
        QString err;
    };

    // The program run without any display: no X or Wayland session and no
    // platform chosen.
    static Run run(const QStringList& arguments, const QStringList& environment = {})
    {
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
            env.remove(name);
        for (const QString& setting : environment)
            env.insert(setting.section('=', 0, 0), setting.section('=', 1));
        QProcess process;
        process.setProcessEnvironment(env);
        process.start(qEnvironmentVariable("QUILLET_BINARY"), arguments);
        process.closeWriteChannel();
        Run r;
        if (!process.waitForFinished(20000)) {
            process.kill();
            process.waitForFinished();
            return r;
        }
        r.exitCode = process.exitCode();
        r.status = process.exitStatus();
        r.out = QString::fromLocal8Bit(process.readAllStandardOutput());
        r.err = QString::fromLocal8Bit(process.readAllStandardError());
        return r;
    }

private slots:
    void initTestCase() { QVERIFY(!qEnvironmentVariable("QUILLET_BINARY").isEmpty()); }

    void versionNeedsNoDisplay()
    {
        const Run r = run({"--version"});
        QCOMPARE(r.status, QProcess::NormalExit);
        QCOMPARE(r.exitCode, 0);
        QCOMPARE(r.out, QString("quillet " QUILLET_VERSION "\n"));
        QCOMPARE(r.err, QString());
    }
    void helpListsTheOptions()
    {
        for (const char* option : {"--help", "-h"}) {
            const Run r = run({option});
            QCOMPARE(r.status, QProcess::NormalExit);
            QCOMPARE(r.exitCode, 0);
            QVERIFY(r.out.startsWith("Usage: quillet [--automation | --version | --help]\n"));
            for (const char* listed : {"\n  --automation  ", "\n  --version     ", "\n  -h, --help    "})
                QVERIFY2(r.out.contains(listed), listed);
            QCOMPARE(r.err, QString());
        }
    }
    void anUnknownOptionIsOneLineAndExitTwo()
    {
        Run r = run({"--frobnicate"});
        QCOMPARE(r.status, QProcess::NormalExit);
        QCOMPARE(r.exitCode, 2);
        QCOMPARE(r.err, QString("quillet: unknown option '--frobnicate'; see 'quillet --help'\n"));
        QCOMPARE(r.out, QString());
        r = run({"page.html"});
        QCOMPARE(r.exitCode, 2);
        QCOMPARE(r.err, QString("quillet: unknown argument 'page.html'; see 'quillet --help'\n"));
        // Checked before anything else is done.
        r = run({"--version", "--frobnicate"});
        QCOMPARE(r.exitCode, 2);
        QCOMPARE(r.out, QString());
        r = run({"-style"});
        QCOMPARE(r.exitCode, 2);
        QCOMPARE(r.err, QString("quillet: option '-style' needs a value; see 'quillet --help'\n"));
    }
    void withoutADisplayItSaysSoInOneLine()
    {
        const Run r = run({});
        QCOMPARE(r.status, QProcess::NormalExit);
        QCOMPARE(r.exitCode, 1);
        QCOMPARE(r.err, QString("quillet: no graphical session (DISPLAY and WAYLAND_DISPLAY are not set): start it "
                                "from a desktop session, or with --automation\n"));
        QCOMPARE(r.out, QString());
    }
    void aDisplayThatCannotBeOpenedEndsWithoutAnAbort()
    {
        const Run r = run({}, {"QT_QPA_PLATFORM=no-such-platform"});
        QCOMPARE(r.status, QProcess::NormalExit);
        QCOMPARE(r.exitCode, 1);
        QVERIFY(r.err.endsWith("quillet: cannot open a window: it needs a graphical session, or --automation to run "
                               "without one\n"));
    }
    void automationNeedsNoDisplay()
    {
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
            env.remove(name);
        QProcess process;
        process.setProcessEnvironment(env);
        process.start(qEnvironmentVariable("QUILLET_BINARY"), {"--automation"});
        QVERIFY(process.waitForStarted(10000));
        process.write("{\"op\": \"ended\"}\n");
        process.closeWriteChannel();
        QVERIFY(process.waitForFinished(20000));
        QCOMPARE(process.exitStatus(), QProcess::NormalExit);
        const QJsonObject answer = QJsonDocument::fromJson(process.readAllStandardOutput()).object();
        QVERIFY(answer.contains("ok"));
    }
};

QTEST_GUILESS_MAIN(CommandLineTest)
#include "test_commandline.moc"
