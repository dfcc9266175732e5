#include "Browser.h"
#include "TestSupport.h"
#include "effects/text/StatusBarModel.h"

#include <QApplication>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QUrl>

using namespace ql;

namespace {

// The whole script with the text as its one variable part.
QString script(const QString& text)
{
    return QStringLiteral(
               "<!-- FOLLOW THESE TWO STEPS TO INSTALL THIS SPECIAL EFFECT\r\n\r\n"
               "   1.  Paste the script code into the HEAD section of your HTML document\r\n"
               "   2.  Paste the onLoad event handler into the <BODY> tag of your HTML document\r\n\r\n\r\n"
               "<!-- STEP ONE: Paste the following code into the HEAD section of your HTML document  -->\r\n\r\n"
               "<HEAD>\r\n"
               "<SCRIPT LANGUAGE=\"JavaScript\">\r\n\r\n"
               "<!-- Script written by Ostrel Software - http://www.quillet-fx.com/company/ -->\r\n"
               "<!-- Created by Quillet software - http://www.quillet-fx.com/ -->\r\n\r\n"
               "<!--\r\n"
               "function scrollit_r2l(seed)\r\n"
               "{\r\n"
               "        var msg  =\"") +
           text +
           QStringLiteral(
               "\";\r\n"
               "        var out = \" \";\r\n"
               "        var c   = 1;\r\n\r\n"
               "        if (seed > 100) {\r\n"
               "                seed--;\r\n"
               "                var cmd=\"scrollit_r2l(\" + seed + \")\";\r\n"
               "                timerTwo=window.setTimeout(cmd,100);\r\n"
               "        }\r\n"
               "        else if (seed <= 100 && seed > 0) {\r\n"
               "                for (c=0 ; c < seed ; c++) {\r\n"
               "                        out+=\" \";\r\n"
               "                }\r\n"
               "                out+=msg;\r\n"
               "                seed--;\r\n"
               "                var cmd=\"scrollit_r2l(\" + seed + \")\";\r\n"
               "                    window.status=out;\r\n"
               "                timerTwo=window.setTimeout(cmd,100);\r\n"
               "        }\r\n"
               "        else if (seed <= 0) {\r\n"
               "                if (-seed < msg.length) {\r\n"
               "                        out+=msg.substring(-seed,msg.length);\r\n"
               "                        seed--;\r\n"
               "                        var cmd=\"scrollit_r2l(\" + seed + \")\";\r\n"
               "                        window.status=out;\r\n"
               "                        timerTwo=window.setTimeout(cmd,100);\r\n"
               "                }\r\n"
               "                else {\r\n"
               "                        window.status=\" \";\r\n"
               "                        timerTwo=window.setTimeout(\"scrollit_r2l(100)\",75);\r\n"
               "                }\r\n"
               "        }\r\n"
               "}\r\n"
               "//-->\r\n\r\n"
               "</SCRIPT>\r\n"
               "</HEAD>\r\n\r\n\r\n"
               "<!-- STEP TWO: Paste the following onLoad event handler into the <BODY> tag in your HTML document -->\r\n\r\n"
               "<BODY onload=\"scrollit_r2l(99)\" >\r\n\r\n");
}

// A page made of the two sections of the code, as a user pastes them, with a
// harness that samples window.status every 25 ms and writes each new value,
// URI-encoded, into the page.
QString pageOf(const QString& code)
{
    const qsizetype headStart = code.indexOf("<HEAD>");
    const qsizetype headEnd = code.indexOf("</HEAD>") + 7;
    const qsizetype bodyStart = code.indexOf("<BODY onload=");
    const qsizetype bodyEnd = code.indexOf(">", bodyStart) + 1;
    return "<HTML>\r\n" + code.mid(headStart, headEnd - headStart) + "\r\n" + code.mid(bodyStart, bodyEnd - bodyStart) +
           "\r\n<pre id=\"out\"></pre>\r\n"
           "<script>\r\n"
           "var seen = [], last = null;\r\n"
           "setInterval(function () {\r\n"
           "  var now = String(window.status);\r\n"
           "  if (now !== last) { seen.push(encodeURIComponent(now)); last = now; }\r\n"
           "  document.getElementById('out').textContent = seen.join('\\n');\r\n"
           "}, 25);\r\n"
           "</script>\r\n</BODY>\r\n</HTML>\r\n";
}

// The values window.status took, in order, after `ms` of page time.
QStringList statusValues(const QString& code, int ms)
{
    QTemporaryDir dir;
    const QString path = dir.filePath("status.html");
    QFile f(path);
    if (!f.open(QIODevice::WriteOnly))
        return {"cannot write the page"};
    f.write(pageOf(code).toUtf8());
    f.close();
    const browser::Run run = browser::dumpDom(path, ms);
    if (!run.ok)
        return {"browser failed: " + run.error};
    const QRegularExpressionMatch m = QRegularExpression("<pre id=\"out\">([^<]*)</pre>").match(run.dom);
    QStringList values;
    for (const QString& encoded : m.captured(1).split('\n', Qt::SkipEmptyParts))
        values << QUrl::fromPercentEncoding(encoded.toUtf8());
    return values;
}

}  // namespace

class StatusBarTest : public QObject {
    Q_OBJECT

    TestDriver d;

    void openStatusBar()
    {
        d.start();
        d.click("QLMain", "Command5");
        QVERIFY(d.shown("StatusBar"));
    }

private slots:
    // The model alone.
    void scriptByteForByte()
    {
        QCOMPARE(StatusBarModel::emitCode({.text = "Welcome to my page!"}), script("Welcome to my page!"));
    }
    void emptyTextIsAccepted()
    {
        QVERIFY(!StatusBarModel::validate({}));
        const QString code = StatusBarModel::emitCode({});
        QCOMPARE(code, script(""));
        QVERIFY(code.contains("\r\n        var msg  =\"\";\r\n"));
    }
    void textIsCopiedUnescaped()
    {
        const QString text = "Say \"hi\" \\ back | ünïcødé € 日本\r\nline two";
        const QString code = StatusBarModel::emitCode({.text = text});
        QCOMPARE(code, script(text));
        QVERIFY(code.contains("        var msg  =\"Say \"hi\" \\ back | ünïcødé € 日本\r\nline two\";\r\n"));
    }
    void theTextIsTheOnlyVariablePart()
    {
        const QString a = StatusBarModel::emitCode({.text = "A"});
        const QString b = StatusBarModel::emitCode({.text = "B"});
        QCOMPARE(a.size(), b.size());
        int differences = 0;
        for (int i = 0; i < a.size(); ++i)
            differences += a[i] != b[i];
        QCOMPARE(differences, 1);
        QVERIFY(a.endsWith("<BODY onload=\"scrollit_r2l(99)\" >\r\n\r\n"));
    }
    void descriptionNamesNoFiles()
    {
        const EffectDescription& desc = StatusBarModel::description();
        QCOMPARE(desc.form, QString("StatusBar"));
        QCOMPARE(desc.effectId, qint16(9));
        QVERIFY(desc.classes.isEmpty());
        QVERIFY(desc.fileLines.isEmpty());
        QVERIFY(desc.editKeys.isEmpty());
    }

    // The form.
    void formOpensWithItsCaptions()
    {
        openStatusBar();
        QVERIFY(d.modal("StatusBar"));
        QCOMPARE(d.text("StatusBar", "StatusBar"), QString("Status Bar Text Ticker"));
        QCOMPARE(d.text("StatusBar", "Label1"),
                 QString("This special effect allows you to create scrolling text which appears in the status bar "
                         "of the Web browser."));
        QCOMPARE(d.text("StatusBar", "Label2"), QString("Type the text you wish to scroll in the status bar:"));
        QCOMPARE(d.text("StatusBar", "Frame1"), QString("Example"));
        QVERIFY(d.on("StatusBar", "Picture1", "visible").toBool());
        QCOMPARE(d.text("StatusBar", "Text1"), QString());
        QCOMPARE(d.text("StatusBar", "Command1"), QString("&Done"));
        QCOMPARE(d.text("StatusBar", "Command2"), QString("&Cancel"));
        QCOMPARE(d.on("StatusBar", "Command4", "tooltip").toString(), QString("Click here for help"));
    }
    void doneHandsOverTheScript()
    {
        openStatusBar();
        d.setText("StatusBar", "Text1", "Hello there");
        d.click("StatusBar", "Command1");
        const QJsonObject s = d.session();
        QCOMPARE(s.value("GeneratedCode").toString(), script("Hello there"));
        QCOMPARE(s.value("EffectId").toInt(), 9);
        QCOMPARE(s.value("RequiredClasses").toArray(), (QJsonArray{"", "", ""}));
        QCOMPARE(s.value("RequiredFiles").toArray(), QJsonArray::fromStringList(QStringList(51, QString())));
        const QJsonArray m = d.messages();
        QCOMPARE(m.size(), 1);
        QCOMPARE(messageText(m[0]),
                 QString("This special effect requires no extra files.\r\n\r\n"
                         "Simply follow the instructions in the Preview Wizard to insert this special effect into "
                         "your Web page"));
        QCOMPARE(messageStyle(m[0]), 48);
        QVERIFY(d.loaded("StatusBar"));
        QVERIFY(!d.shown("StatusBar"));
        QVERIFY(d.shown("Preview"));
        QCOMPARE(d.text("Preview", "Text1"), script("Hello there"));
        QCOMPARE(d.text("Preview", "Label3"), QString(" Required Java class files:  None"));
    }
    void previewShowsTheCodeInSectionsAndSkipsTheFiles()
    {
        openStatusBar();
        d.click("StatusBar", "Command1");
        d.click("Preview", "Command15");
        QCOMPARE(d.text("Preview", "Label8"),
                 QString("Select each section of code and click here to copy to the Windows Clipboard-->"));
        QVERIFY(!d.on("Preview", "Label1", "visible").toBool());
        d.click("Preview", "Command15");
        QCOMPARE(d.text("Preview", "Label21"), QString("Finished!"));
        d.click("Preview", "Command5");
        QVERIFY(!d.loaded("StatusBar"));
        QVERIFY(d.shown("QLMain"));
    }
    void emptyTextGoesStraightThrough()
    {
        openStatusBar();
        d.click("StatusBar", "Command1");
        QCOMPARE(d.session().value("GeneratedCode").toString(), script(""));
        QCOMPARE(d.messages().size(), 1);
    }
    void previousFromStepOneKeepsTheText()
    {
        openStatusBar();
        d.setText("StatusBar", "Text1", "kept");
        d.click("StatusBar", "Command1");
        d.click("Preview", "Command14");
        QVERIFY(d.shown("StatusBar"));
        QCOMPARE(d.text("StatusBar", "Text1"), QString("kept"));
        d.click("StatusBar", "Command1");
        QCOMPARE(d.session().value("GeneratedCode").toString(), script("kept"));
    }
    void cancelUnloadsAndHelpOpensTheTopic()
    {
        openStatusBar();
        d.click("StatusBar", "Command4");
        QCOMPARE(d.help(), (QJsonArray{QJsonArray{"StatusBar", QJsonValue::Null}}));
        d.setText("StatusBar", "Text1", "gone");
        d.click("StatusBar", "Command2");
        QVERIFY(!d.loaded("StatusBar"));
        QCOMPARE(d.session().value("GeneratedCode").toString(), QString());
    }
    void menuEntryOpensTheForm()
    {
        d.start();
        d.click("QLMain", "mnuStatusBar");
        QVERIFY(d.shown("StatusBar"));
    }
    void pastedScriptIsNotReEdited()
    {
        d.start();
        d.click("QLMain", "mnuEditApplet");
        d.setText("EditAppletForm", "Text1", script("x"));
        d.click("EditAppletForm", "Command1");
        const QJsonArray m = d.messages();
        QCOMPARE(m.size(), 1);
        QCOMPARE(messageText(m[0]),
                 QString("Quillet does not recognize this applet.  It cannot re-edit the Status bar scrolling text "
                         "applet or the Fading background color applet."));
        QVERIFY(!d.loaded("StatusBar"));
    }

    // The script in a browser.
    void scriptRunsTheTextFromRightToLeft()
    {
        if (!browser::chromium())
            QSKIP(qPrintable(browser::missingMessage()));
        const QString msg = "Hi there";
        const QStringList values = statusValues(StatusBarModel::emitCode({.text = msg}), 2000);
        QVERIFY2(values.size() >= 10, qPrintable(values.join(" | ")));
        // The line starts 99 blanks from the edge plus the one out starts
        // with, and moves one position a tick.
        for (int i = 0; i < 10; ++i)
            QCOMPARE(values[i], QString(100 - i, ' ') + msg);
    }
    void scriptRunsOffAndStartsAnew()
    {
        if (!browser::chromium())
            QSKIP(qPrintable(browser::missingMessage()));
        const QStringList values = statusValues(StatusBarModel::emitCode({.text = "abc"}), 10700);
        const qsizetype at = values.indexOf(" abc");
        QVERIFY2(at > 0, qPrintable(values.join(" | ")));
        QCOMPARE(values.mid(at, 5), (QStringList{" abc", " bc", " c", " ", QString(101, ' ') + "abc"}));
        QCOMPARE(values[at - 1], QString(2, ' ') + "abc");
    }
    void emptyTextShowsBlanks()
    {
        if (!browser::chromium())
            QSKIP(qPrintable(browser::missingMessage()));
        const QStringList values = statusValues(StatusBarModel::emitCode({}), 600);
        QVERIFY2(values.size() >= 3, qPrintable(values.join(" | ")));
        QCOMPARE(values[0], QString(100, ' '));
        QCOMPARE(values[1], QString(99, ' '));
    }
};

QL_TEST_MAIN(StatusBarTest)
#include "test_statusbar.moc"
