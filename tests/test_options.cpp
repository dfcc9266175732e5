#include "TestSupport.h"

#include <QApplication>

using namespace ql;

class OptionsTest : public QObject {
    Q_OBJECT

    TestDriver d;

    QJsonArray settings() { return d.ok({{"op", "settings"}}).toArray(); }
    void open(QJsonArray stored = {})
    {
        d.start({{"settings", stored}});
        d.click("QLMain", "mnuPreferences");
        QVERIFY(d.shown("Options"));
        QVERIFY(d.modal("Options"));
    }

private slots:
    void freshInstallationShowsTheDefaults()
    {
        open();
        QCOMPARE(d.text("Options", "Options"), QString("Preferences"));
        QCOMPARE(d.text("Options", "Label1"), QString("Browser:"));
        QCOMPARE(d.text("Options", "Label2"), QString("HTML Editor:"));
        QCOMPARE(d.text("Options", "Text4"), QString("c:\\"));
        QCOMPARE(d.text("Options", "Text1"), QString("c:\\"));
        QCOMPARE(d.on("Options", "Command5", "tooltip").toString(), QString("Browse..."));
        QCOMPARE(d.on("Options", "Command6", "tooltip").toString(), QString("Browse..."));
        QCOMPARE(d.text("Options", "Command1"), QString("&OK"));
        QCOMPARE(d.text("Options", "Command3"), QString("&Cancel"));
    }
    void storedPathsAreShown()
    {
        open({QJsonArray{"Apps", "Browser", "/usr/bin/web"}, QJsonArray{"Apps", "HTMLEditor", "/usr/bin/ed"}});
        QCOMPARE(d.text("Options", "Text4"), QString("/usr/bin/web"));
        QCOMPARE(d.text("Options", "Text1"), QString("/usr/bin/ed"));
    }
    void browseFillsTheBoxAndCancelEmptiesIt()
    {
        open();
        d.ok({{"op", "answer_file"}, {"paths", QJsonArray{"/opt/web/browser", QJsonValue::Null, "/opt/ed"}}});
        d.click("Options", "Command5");
        QCOMPARE(d.text("Options", "Text4"), QString("/opt/web/browser"));
        d.setText("Options", "Text4", "/typed/path");
        d.click("Options", "Command5");
        QCOMPARE(d.text("Options", "Text4"), QString(""));
        d.click("Options", "Command6");
        QCOMPARE(d.text("Options", "Text1"), QString("/opt/ed"));
        const QJsonArray dialogs = d.ok({{"op", "dialogs"}}).toArray();
        QCOMPARE(dialogs.size(), 3);
        QCOMPARE(dialogs[0].toObject(),
                 (QJsonObject{{"kind", "open"},
                              {"title", "Browse For Browser..."},
                              {"filter", "All Files (*.*)|*.*|EXE Files (*.exe)|*.exe|BAT Files (*.bat)|*.bat"},
                              {"filter_index", 2}}));
        QCOMPARE(dialogs[2].toObject().value("title").toString(), QString("Browse For HTML Editor..."));
        QCOMPARE(d.session().value("PickedFile").toString(), QString("/opt/ed"));
    }
    void okSavesBothAsTheyStandBrowserFirst()
    {
        open();
        d.setText("Options", "Text4", "/opt/My Browser/browse");
        d.setText("Options", "Text1", "");
        d.click("Options", "Command1");
        QVERIFY(!d.loaded("Options"));
        QCOMPARE(settings(), (QJsonArray{QJsonArray{"Apps", "Browser", "/opt/My Browser/browse"},
                                         QJsonArray{"Apps", "HTMLEditor", ""}}));
    }
    void okWithTheDefaultStoresItAndThePreviewStillAsksTheRegistry()
    {
        d.start({{"browser_command", "\"C:\\web.exe\" %1"}});
        d.click("QLMain", "mnuPreferences");
        d.click("Options", "Command1");
        QCOMPARE(settings(), (QJsonArray{QJsonArray{"Apps", "Browser", "c:\\"}, QJsonArray{"Apps", "HTMLEditor", "c:\\"}}));
        d.click("QLMain", "Command4");
        d.setText("Swirly", "Text7", "x");
        d.setText("Swirly", "Text10", "1");
        d.setText("Swirly", "Text11", "1");
        d.click("Swirly", "Command1");
        d.click("Preview", "Command11");
        QCOMPARE(settings()[0].toArray()[2].toString(), QString("C:\\web.exe"));
    }
    void cancelSavesNothing()
    {
        open();
        d.setText("Options", "Text4", "/changed");
        d.click("Options", "Command3");
        QVERIFY(!d.loaded("Options"));
        QCOMPARE(settings(), QJsonArray());
    }
};

QL_TEST_MAIN(OptionsTest)
#include "test_options.moc"
