#include "TestSupport.h"
#include "publish/PreviewPage.h"

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>
#include <memory>

using namespace ql;

namespace {

QByteArray readFile(const QString& path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("<missing>");
}

const QString Plain =
    "<FONT FACE=Arial SIZE=5><B>Made with Quillet <FONT SIZE=3><SUP>TM</SUP></FONT></B><BR CLEAR=ALL><FONT SIZE=1>"
    "This text &quot;Made with Quillet&quot; only appears in this preview.  It will not be included when you insert "
    "the special effect into your Web page</FONT></FONT><HR SIZE=1><BR><BR>";

}  // namespace

class PreviewPageTest : public QObject {
    Q_OBJECT

    TestDriver d;
    std::unique_ptr<QTemporaryDir> folderHolder = std::make_unique<QTemporaryDir>();

    void openWith(const QString& code, int effectId = 10, QJsonObject options = {})
    {
        folderHolder = std::make_unique<QTemporaryDir>();
        options.insert("program_folder", folderHolder->path());
        d.start(options);
        d.app().session().EffectId = qint16(effectId);
        d.app().session().GeneratedCode = code;
        d.app().forms().show("Preview", true);
    }
    void preview() { d.click("Preview", "Command11"); }
    QString setting(const QString& key)
    {
        for (const QJsonValue& row : d.ok({{"op", "settings"}}).toArray()) {
            const QJsonArray r = row.toArray();
            if (r[0].toString() == "Apps" && r[1].toString() == key)
                return r[2].toString();
        }
        return "<unset>";
    }
    QString page() { return folderHolder->filePath("ql-prvw.htm"); }

private slots:
    void pageShapes()
    {
        const QString crlf = "\r\n";
        QCOMPARE(previewPageText("<APPLET>x</APPLET>", 10),
                 "<HTML> <BODY> " + crlf + Plain + crlf + crlf + "<APPLET>x</APPLET>" + crlf + "</BODY></HTML>");
        QCOMPARE(previewPageText("<!DOCTYPE html><p>", 24), QString("<!DOCTYPE html><p>"));
        QCOMPARE(previewPageText("<!-- FOLLOW x -->", 6),
                 "<HTML>" + crlf + "<!-- FOLLOW x -->" + PreviewBannerSections + crlf + crlf + "</BODY></HTML>");
        QCOMPARE(previewPageText("<!-- FOLLOW x -->", 23),
                 "<HTML>" + crlf + "<!-- FOLLOW x -->" + PreviewBannerCredits + PreviewCreditsFiller + crlf + crlf +
                     "</FONT></BODY></HTML>");
        QVERIFY(previewPageText("<!-- FOLLOW --> password.cgi", 24).startsWith("<HTML> <BODY> \r\n" + PreviewBannerCgi));
        // Case matters in every test.
        QVERIFY(previewPageText("<!doctype html>", 10).startsWith("<HTML> <BODY> "));
        QVERIFY(previewPageText("<!-- follow -->", 6).startsWith("<HTML> <BODY> "));
        QVERIFY(previewPageText("PASSWORD.CGI", 6).startsWith("<HTML> <BODY> \r\n" + Plain));
    }
    void passwordScriptAnywhereTakesTheFirstShape()
    {
        const QString code = "<!DOCTYPE html><!-- posts to password.cgi -->";
        QCOMPARE(previewPageText(code, 24),
                 "<HTML> <BODY> \r\n" + PreviewBannerCgi + "\r\n\r\n" + code + "\r\n</BODY></HTML>");
    }
    void bannerTexts()
    {
        QVERIFY(PreviewBannerCgi.endsWith("finish this password protection effect.</FONT></FONT><BR><BR>"));
        QVERIFY(PreviewBannerCredits.endsWith("is not the same length as your Web page."));
        QVERIFY(PreviewCreditsFiller.startsWith("<BR><BR><BR>We've added a few lines of text to demonstrate the scrolling credit effect"));
        QVERIFY(PreviewCreditsFiller.endsWith("<BR>."));
        QVERIFY(PreviewBannerSections.endsWith("into your Web page</FONT></FONT><HR SIZE=1><BR><BR>"));
    }
    void pageIsWrittenWholeWithOneClosingLineBreakAndOpened()
    {
        openWith("<APPLET CODE=\"ColorSwirl.class\">\r\n</APPLET>\r\n", 10,
                 {{"settings", QJsonArray{QJsonArray{"Apps", "Browser", "/usr/bin/browser"}}}});
        preview();
        const QByteArray expected = ("<HTML> <BODY> \r\n" + Plain + "\r\n\r\n<APPLET CODE=\"ColorSwirl.class\">\r\n"
                                     "</APPLET>\r\n\r\n</BODY></HTML>\r\n").toUtf8();
        QCOMPARE(readFile(page()), expected);
        QCOMPARE(d.ok({{"op", "opened"}}).toArray(), QJsonArray{page()});
        QVERIFY(!d.ok({{"op", "busy"}}).toBool());
        QVERIFY(d.messages().isEmpty());
        // The user's edits in the code box are what the page shows.
        d.setText("Preview", "Text1", "<!DOCTYPE html>edited");
        preview();
        QCOMPARE(readFile(page()), QByteArray("<!DOCTYPE html>edited\r\n"));
    }
    void emptyCodeBoxLeavesTheHourglassOn()
    {
        openWith("", 10, {{"settings", QJsonArray{QJsonArray{"Apps", "Browser", "/usr/bin/browser"}}}});
        preview();
        QCOMPARE(d.messages().size(), 1);
        QCOMPARE(messageText(d.messages()[0]), QString("There is no code in the preview window.  Cannot preview applet."));
        QCOMPARE(messageStyle(d.messages()[0]), 0);
        QVERIFY(d.ok({{"op", "busy"}}).toBool());
        QCOMPARE(d.ok({{"op", "opened"}}).toArray(), QJsonArray());
        QVERIFY(!QFile::exists(page()));
    }
    void firstPreviewStoresTheRegistryBrowserWithoutQuotesAndArguments()
    {
        openWith("<APPLET>", 10,
                 {{"browser_command", "\"C:\\Program Files\\Web Browser\\browser.exe\" -nohome \"%1\""}});
        preview();
        QCOMPARE(setting("Browser"), QString("C:\\Program Files\\Web Browser\\browser.exe"));
        QCOMPARE(d.ok({{"op", "opened"}}).toArray(), QJsonArray{page()});
        // The second preview takes the setting and leaves the registry alone.
        d.platform().setBrowserCommand(QString("\"D:\\other.exe\""));
        preview();
        QCOMPARE(setting("Browser"), QString("C:\\Program Files\\Web Browser\\browser.exe"));
    }
    void registryCommandsOfOtherShapes()
    {
        openWith("<APPLET>", 10, {{"browser_command", "C:\\WEB\\BROWSER.EXE %1"}});
        preview();
        QCOMPARE(setting("Browser"), QString("C:\\"));
        openWith("<APPLET>", 10, {{"browser_command", "/usr/bin/firefox %u"}});
        preview();
        QCOMPARE(setting("Browser"), QString("/us"));
        openWith("<APPLET>", 10, {{"browser_command", "c:\\x.exe"}});
        preview();
        QCOMPARE(setting("Browser"), QString("c:\\x.exe"));
    }
    void defaultOrEmptySettingMeansNotConfigured()
    {
        for (const QString& stored : {QString("c:\\"), QString("")}) {
            openWith("<APPLET>", 10,
                     {{"settings", QJsonArray{QJsonArray{"Apps", "Browser", stored}}},
                      {"browser_command", "\"C:\\b.exe\" %1"}});
            preview();
            QCOMPARE(setting("Browser"), QString("C:\\b.exe"));
        }
    }
    void noBrowserAnywhereAsksForOne()
    {
        openWith("<APPLET>", 10, {{"browser_command", QJsonValue::Null}});
        d.ok({{"op", "answer_file"}, {"paths", QJsonArray{"/opt/my browser/run"}}});
        preview();
        const QJsonArray m = d.messages();
        QCOMPARE(m.size(), 1);
        QCOMPARE(messageText(m[0]), QString("Browser statement not found in Windows Registry.\r\nSelect the file/path of "
                                            "the browser you wish to use."));
        QCOMPARE(messageStyle(m[0]), 0);
        QCOMPARE(d.ok({{"op", "dialogs"}}).toArray(),
                 (QJsonArray{QJsonObject{{"kind", "open"},
                                         {"title", "Select Browser..."},
                                         {"filter", "All Files (*.*)|*.*|EXE Files (*.exe)|*.exe|BAT Files (*.bat)|*.bat"},
                                         {"filter_index", 2}}}));
        QCOMPARE(setting("Browser"), QString("/opt/my browser/run"));
        QCOMPARE(d.ok({{"op", "opened"}}).toArray(), QJsonArray{page()});
        QVERIFY(!d.ok({{"op", "busy"}}).toBool());
    }
    void cancelledBrowserPickOpensNothingAndLeavesTheHourglassOn()
    {
        openWith("<APPLET>", 10, {{"browser_command", QJsonValue::Null}});
        d.ok({{"op", "answer_file"}, {"paths", QJsonArray{QJsonValue::Null}}});
        preview();
        QCOMPARE(d.ok({{"op", "opened"}}).toArray(), QJsonArray());
        QVERIFY(d.ok({{"op", "busy"}}).toBool());
        QCOMPARE(setting("Browser"), QString("<unset>"));
        QCOMPARE(d.on("Preview", "Preview", "focus").toString(), QString("Text1"));
        // The page was written before the browser was looked for.
        QVERIFY(QFile::exists(page()));
    }
    void writeErrorOfThePageIsPassedOver()
    {
        openWith("<APPLET>new", 10, {{"settings", QJsonArray{QJsonArray{"Apps", "Browser", "/b"}}}});
        QFile old(page());
        QVERIFY(old.open(QIODevice::WriteOnly));
        old.write("old page");
        old.close();
        d.platform().scriptedFiles().injectFault(page(), 70);
        preview();
        QVERIFY(d.messages().isEmpty());
        QCOMPARE(readFile(page()), QByteArray("old page"));
        QCOMPARE(d.ok({{"op", "opened"}}).toArray(), QJsonArray{page()});
    }
    void editorNotSetIsAskedForStoredAndStarted()
    {
        openWith("<APPLET>");
        d.ok({{"op", "answer_file"}, {"paths", QJsonArray{"/usr/bin/my editor"}}});
        d.click("Preview", "mnuHTMLEditor");
        QCOMPARE(d.messages().size(), 1);
        QCOMPARE(messageText(d.messages()[0]),
                 QString("HTML Editor statement not found in Windows Registry.\r\nSelect the file/path of the HTML "
                         "Editor you wish to use."));
        QCOMPARE(d.ok({{"op", "dialogs"}}).toArray()[0].toObject().value("title").toString(),
                 QString("Select HTML Editor..."));
        QCOMPARE(setting("HTMLEditor"), QString("/usr/bin/my editor"));
        QCOMPARE(d.ok({{"op", "started"}}).toArray(), QJsonArray{"/usr/bin/my editor"});
        d.click("Preview", "mnuHTMLEditor");
        QCOMPARE(d.messages().size(), 1);
        QCOMPARE(d.ok({{"op", "started"}}).toArray().size(), 2);
    }
    void cancelledEditorPickStartsNothing()
    {
        openWith("<APPLET>", 10, {{"settings", QJsonArray{QJsonArray{"Apps", "HTMLEditor", "c:\\"}}}});
        d.ok({{"op", "answer_file"}, {"paths", QJsonArray{QJsonValue::Null}}});
        d.click("Preview", "mnuHTMLEditor");
        QCOMPARE(d.ok({{"op", "started"}}).toArray(), QJsonArray());
        QCOMPARE(setting("HTMLEditor"), QString("c:\\"));
        QVERIFY(d.shown("Preview"));
    }
    void editorThatFailsToStartSaysNothing()
    {
        openWith("<APPLET>", 10, {{"settings", QJsonArray{QJsonArray{"Apps", "HTMLEditor", "/nowhere/editor"}}}});
        d.platform().setProgramsThatFail({"/nowhere/editor"});
        d.click("Preview", "mnuHTMLEditor");
        QCOMPARE(d.ok({{"op", "started"}}).toArray(), QJsonArray{"/nowhere/editor"});
        QVERIFY(d.messages().isEmpty());
    }
};

QL_TEST_MAIN(PreviewPageTest)
#include "test_previewpage.moc"
