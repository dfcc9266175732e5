#include "TestSupport.h"
#include "effects/page/SoundModel.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QRandomGenerator>
#include <QTemporaryDir>

using namespace ql;

namespace {

using Format = SoundModel::Format;

const QString Credit = "<!-- Script written by Ostrel Software - http://www.quillet-fx.com/company/ -->\r\n"
                       "<!-- Created by Quillet software - http://www.quillet-fx.com/ -->\r\n\r\n";

QString enterScript(const QString& file)
{
    return "    function playEnterSound(){\r\n"
           "          if (navigator.appName == \"Netscape\")\r\n"
           "              window.location = '" + file + "';\r\n"
           "         else\r\n"
           "              document.all.soundfile.src='" + file + "';\r\n"
           "   }\r\n";
}

QString exitScript(const QString& file)
{
    return "    function playExitSound(){\r\n"
           "         var w = window.open('" + file + "', 'temp', 'width=1,height=1');\r\n"
           "    }\r\n";
}

QString wavCode(const QString& scripts, const QString& handlers, const QString& loop)
{
    return "<!-- FOLLOW THESE THREE STEPS TO INSTALL THIS SPECIAL EFFECT\r\n\r\n"
           "   1.  Paste the script code into the HEAD section of your HTML document\r\n"
           "   2.  Paste the onLoad event handler into the <BODY> tag of your HTML document\r\n"
           "   3.  Paste the body code into the BODY section of your HTML document  -->\r\n\r\n\r\n"
           "<!-- STEP ONE: Paste the following code into the HEAD section of your HTML document  -->\r\n\r\n"
           "<HEAD>\r\n"
           "<SCRIPT Language=\"JavaScript\">\r\n" +
           Credit + "<!--\r\n" + scripts + "\r\n" +
           "//-->\r\n"
           "</SCRIPT>\r\n"
           "</HEAD>\r\n\r\n\r\n"
           "<!-- STEP TWO: Paste the onLoad event handler into the <BODY> tag of your HTML document -->\r\n\r\n"
           "<BODY" + handlers + ">\r\n\r\n\r\n"
           "<!-- STEP THREE: Paste the following code into the BODY section of your HTML document -->\r\n\r\n"
           "<BGSOUND SRC=\"\" ID=\"soundfile\"" + loop + ">\r\n\r\n";
}

QString auCode(const QString& enter, const QString& loop, const QString& exit)
{
    return "<APPLET CODE=\"SimpleSound1.class\" WIDTH=1 HEIGHT=1>\r\n"
           "<PARAM NAME=COPYRIGHT VALUE=\"SimpleSound1 applet (c) Copyright 1998 Tessellate Software\">\r\n"
           "<PARAM NAME=DOCUMENTATION VALUE=\"Documentation found at: http://www.tessellate-sw.com/applets/\">\r\n"
           "<PARAM NAME=WIZARD VALUE=\"Created with Quillet.  Quillet Web site at: http://www.quillet-fx.com/\">\r\n"
           "<PARAM NAME=ENTERSOUND VALUE=\"" + enter + "\">\r\n"
           "<PARAM NAME=ENTERLOOP VALUE=\"" + loop + "\">\r\n"
           "<PARAM NAME=EXITSOUND VALUE=\"" + exit + "\">\r\n"
           "</APPLET>\r\n";
}

QString wavMessage(const QString& enter, const QString& exit)
{
    return "You will need the following files in order for this special effect to work correctly:\r\n\r\n"
           "- the sound file(s): " + enter + ", " + exit + "\r\n\r\n"
           "- the HTML document (Web page) containing Quillet's special effect HTML code.\r\n\r\n"
           "These files MUST reside in the same folder!";
}

const QString AuMessage = "You will need the following files in order for this special effect to work correctly:\r\n\r\n"
                          "- sound file(s)\r\n"
                          "- the SimpleSound1.class file\r\n"
                          "- the HTML document (Web page) containing the special effect HTML code\r\n\r\n"
                          "These files MUST reside in the same folder!";

const QString Onload = " onLoad=\"playEnterSound()\"";
const QString Onunload = " onUnLoad=\"playExitSound()\"";

QJsonArray fileSlots(const QStringList& first)
{
    QStringList all = first;
    while (all.size() < 51)
        all << QString();
    return QJsonArray::fromStringList(all);
}

}  // namespace

class SoundTest : public QObject {
    Q_OBJECT

    TestDriver d;
    QTemporaryDir folder;

    void open()
    {
        d.start({{"program_folder", folder.path()}});
        d.click("QLMain", "Command16");
        QVERIFY(d.shown("Sound"));
        QVERIFY(d.modal("Sound"));
    }
    bool onTop(const QString& page) { return d.on("Sound", page, "on_top").toBool(); }
    void toPage(const QString& option)
    {
        open();
        d.click("Sound", option);
        d.click("Sound", "Command1");
    }
    void paste(const QString& code)
    {
        d.click("QLMain", "mnuEditApplet");
        d.setText("EditAppletForm", "Text1", code);
        d.click("EditAppletForm", "Command1");
    }

private slots:
    // The model.
    void wavWithBothSounds()
    {
        SoundModel::Fields f{.format = Format::Wav, .wavEnter = "hello.wav", .wavExit = "bye.wav", .wavLoop = false};
        QCOMPARE(SoundModel::wavCode(f), wavCode(enterScript("hello.wav") + exitScript("bye.wav"), Onload + Onunload, ""));
        const HandOver h = SoundModel::handOver(f);
        QCOMPARE(h.effectId, qint16(21));
        QVERIFY(h.classes.isEmpty());
        QCOMPARE(h.files, (QMap<int, QString>{{0, "hello.wav"}, {1, "bye.wav"}}));
        QCOMPARE(h.message, wavMessage("hello.wav", "bye.wav"));
    }
    void wavWithOnlyAnExitSound()
    {
        SoundModel::Fields f{.format = Format::Wav, .wavEnter = "", .wavExit = "bye.wav", .wavLoop = true};
        QCOMPARE(SoundModel::wavCode(f), wavCode(exitScript("bye.wav"), Onunload, " LOOP=Infinite"));
        QVERIFY(SoundModel::wavCode(f).contains("<BODY onUnLoad=\"playExitSound()\">\r\n"));
        QCOMPARE(SoundModel::wavMessage(f), wavMessage("", "bye.wav"));
    }
    void wavWithOnlyAnEnterSoundStillWritesTheExitSlot()
    {
        SoundModel::Fields f{.format = Format::Wav, .wavEnter = "hi.wav", .wavExit = "", .wavLoop = false};
        QCOMPARE(SoundModel::wavCode(f), wavCode(enterScript("hi.wav"), Onload, ""));
        QCOMPARE(SoundModel::handOver(f).files, (QMap<int, QString>{{0, "hi.wav"}, {1, ""}}));
    }
    void auAlwaysWritesEveryLine()
    {
        SoundModel::Fields f{.format = Format::Au, .auEnter = "  in.au ", .auExit = "", .auLoop = false};
        QCOMPARE(SoundModel::auCode(f), auCode("in.au", "no", ""));
        f.auLoop = true;
        f.auExit = " out.au";
        QCOMPARE(SoundModel::auCode(f), auCode("in.au", "yes", "out.au"));
        const HandOver h = SoundModel::handOver(f);
        QCOMPARE(h.effectId, qint16(16));
        QCOMPARE(h.classes, QStringList{"SimpleSound1.class"});
        QCOMPARE(h.files, (QMap<int, QString>{{0, "  in.au "}, {1, " out.au"}}));
        QVERIFY(h.message.isEmpty());
    }
    void oneSoundIsEnough()
    {
        auto r = SoundModel::validate({.format = Format::Wav});
        QCOMPARE(r->text, QString("You must enter a sound file."));
        QCOMPARE(r->style, 48);
        QCOMPARE(r->focus, QString("Text4"));
        r = SoundModel::validate({.format = Format::Au});
        QCOMPARE(r->focus, QString("Text1"));
        QVERIFY(!SoundModel::validate({.format = Format::Wav, .wavExit = "x.wav"}));
        QVERIFY(!SoundModel::validate({.format = Format::Au, .auExit = "x.au"}));
    }

    // The form.
    void formatPage()
    {
        open();
        QCOMPARE(d.text("Sound", "Sound"), QString("Sound Applet"));
        QVERIFY(onTop("Picture1"));
        QCOMPARE(d.text("Sound", "Frame2"), QString("Select the sound file format"));
        QCOMPARE(d.text("Sound", "Label3"),
                 QString("Select the format of the sound file(s) you wish to use in this special effect."));
        QCOMPARE(d.text("Sound", "Option1"), QString("WAV format (*.wav)"));
        QCOMPARE(d.text("Sound", "Option2"), QString("AU format (*.au)"));
        QVERIFY(!d.on("Sound", "Option1", "checked").toBool());
        QVERIFY(!d.on("Sound", "Option2", "checked").toBool());
        QCOMPARE(d.text("Sound", "Command1"), QString("&Next >>"));
        QCOMPARE(d.text("Sound", "Command9"), QString("&Cancel"));
        QCOMPARE(d.on("Sound", "Command7", "tooltip").toString(), QString("Click here for help"));
        d.click("Sound", "Command1");
        const QJsonArray m = d.messages();
        QCOMPARE(m.size(), 1);
        QCOMPARE(messageText(m[0]), QString("Please select a sound file format."));
        QCOMPARE(messageStyle(m[0]), 0);
        QVERIFY(onTop("Picture1"));
    }
    void wavPage()
    {
        toPage("Option1");
        QVERIFY(onTop("Picture2(1)"));
        QCOMPARE(d.on("Sound", "Sound", "focus").toString(), QString("Text4"));
        QCOMPARE(d.text("Sound", "Frame3"), QString("Sound Settings - WAV sound file"));
        QCOMPARE(d.text("Sound", "Label4"), QString("Play this sound file when Web page loads:"));
        QCOMPARE(d.text("Sound", "Label5"), QString("Play this sound file when Web page exits:"));
        QCOMPARE(d.text("Sound", "Check2"), QString("Loop the sound (only available in Internet Explorer)"));
        QCOMPARE(d.on("Sound", "Command6", "tooltip").toString(), QString("Browse for sound..."));
        QCOMPARE(d.on("Sound", "Command13", "tooltip").toString(), QString("Browse for sound..."));
        QCOMPARE(d.text("Sound", "Command12"), QString("&Done"));
        QCOMPARE(d.text("Sound", "Command11"), QString("&Cancel"));
        QCOMPARE(d.on("Sound", "Command10", "tooltip").toString(), QString("Click here for help"));
    }
    void auPage()
    {
        toPage("Option2");
        QVERIFY(onTop("Picture2(2)"));
        QCOMPARE(d.on("Sound", "Sound", "focus").toString(), QString("Text1"));
        QCOMPARE(d.text("Sound", "Frame1"), QString("Sound Settings - AU sound files"));
        QCOMPARE(d.text("Sound", "Label1"), QString("Play this sound file when the Web page loads:"));
        QCOMPARE(d.text("Sound", "Label2"), QString("Play this sound file when the user exits the Web page:"));
        QCOMPARE(d.text("Sound", "Check1"), QString("Loop the sound"));
        QCOMPARE(d.on("Sound", "Command8", "tooltip").toString(), QString("Browse for sound..."));
        QCOMPARE(d.on("Sound", "Command5", "tooltip").toString(), QString("Browse for sound..."));
        QCOMPARE(d.text("Sound", "Command2"), QString("&Done"));
        QCOMPARE(d.text("Sound", "Command3"), QString("&Cancel"));
        QCOMPARE(d.on("Sound", "Command4", "tooltip").toString(), QString("Click here for help"));
    }
    void browseFillsTheFieldAndTheSlot()
    {
        toPage("Option1");
        QTemporaryDir media;
        const QString bye = QDir(media.path()).filePath("bye.wav");
        d.ok({{"op", "answer_file"}, {"paths", QJsonArray{bye}}});
        d.click("Sound", "Command13");
        QCOMPARE(d.text("Sound", "Text3"), QString("bye.wav"));
        const QJsonArray dialogs = d.ok({{"op", "dialogs"}}).toArray();
        QCOMPARE(dialogs.size(), 1);
        QCOMPARE(dialogs[0].toObject().value("title").toString(), QString("Browse..."));
        QCOMPARE(dialogs[0].toObject().value("filter").toString(),
                 QString("All Files (*.*)|*.*|WAV Files (*.wav)|*.wav"));
        QCOMPARE(dialogs[0].toObject().value("filter_index").toInt(), 2);
        QCOMPARE(d.session().value("RequiredPaths").toArray()[1].toString(), bye);
        // A cancelled browse changes nothing.
        d.ok({{"op", "answer_file"}, {"paths", QJsonArray{QJsonValue::Null}}});
        d.click("Sound", "Command6");
        QCOMPARE(d.text("Sound", "Text4"), QString());
        QCOMPARE(d.session().value("RequiredPaths").toArray()[0].toString(), QString());
    }
    void wavDoneHandsOverWithItsOwnMessage()
    {
        toPage("Option1");
        d.click("Sound", "Command12");
        QCOMPARE(messageText(d.messages()[0]), QString("You must enter a sound file."));
        QCOMPARE(messageStyle(d.messages()[0]), 48);
        QCOMPARE(d.on("Sound", "Sound", "focus").toString(), QString("Text4"));
        d.setText("Sound", "Text3", "bye.wav");
        d.click("Sound", "Check2");
        d.click("Sound", "Command12");
        const QJsonObject s = d.session();
        QCOMPARE(s.value("GeneratedCode").toString(), wavCode(exitScript("bye.wav"), Onunload, " LOOP=Infinite"));
        QCOMPARE(s.value("EffectId").toInt(), 21);
        QCOMPARE(s.value("RequiredClasses").toArray(), (QJsonArray{"", "", ""}));
        QCOMPARE(s.value("RequiredFiles").toArray(), fileSlots({"", "bye.wav"}));
        const QJsonArray m = d.messages();
        QCOMPARE(m.size(), 2);
        QCOMPARE(messageText(m[1]), wavMessage("", "bye.wav"));
        QCOMPARE(messageStyle(m[1]), 48);
        QVERIFY(d.modal("Preview"));
        // No class file named, yet Step 3 is there for the sounds, and the code comes in sections.
        QCOMPARE(d.text("Preview", "Label3"), QString(" Required Java class files:  None"));
        d.click("Preview", "Command15");
        QVERIFY(!d.on("Preview", "Label1", "visible").toBool());
        d.click("Preview", "Command15");
        QVERIFY(d.on("Preview", "Picture1(2)", "on_top").toBool());
    }
    void wavBackupBringsItsOwnBodyTag()
    {
        QTemporaryDir media;
        QTemporaryDir site;
        const QString hello = QDir(media.path()).filePath("hello.wav");
        QFile sound(hello);
        QVERIFY(sound.open(QIODevice::WriteOnly));
        sound.write("RIFF");
        sound.close();
        toPage("Option1");
        d.ok({{"op", "answer_file"}, {"paths", QJsonArray{hello}}});
        d.click("Sound", "Command6");
        d.click("Sound", "Command12");
        const QString code = d.session().value("GeneratedCode").toString();
        d.click("Preview", "Command15");
        d.click("Preview", "Command15");
        d.on("Preview", "Dir1", "set_path", {{"path", site.path()}});
        d.click("Preview", "Command6");
        QFile backup(QDir(site.path()).filePath("qltemp.html"));
        QVERIFY(backup.open(QIODevice::ReadOnly));
        QCOMPARE(QString::fromUtf8(backup.readAll()), "<HTML>\r\n" + code + "\r\n</BODY></HTML>\r\n");
        QVERIFY(QFile::exists(QDir(site.path()).filePath("hello.wav")));
    }
    void auDoneHandsOverTheApplet()
    {
        toPage("Option2");
        d.click("Sound", "Command2");
        QCOMPARE(d.on("Sound", "Sound", "focus").toString(), QString("Text1"));
        d.setText("Sound", "Text1", " in.au ");
        d.click("Sound", "Check1");
        d.click("Sound", "Command2");
        const QJsonObject s = d.session();
        QCOMPARE(s.value("GeneratedCode").toString(), auCode("in.au", "yes", ""));
        QCOMPARE(s.value("EffectId").toInt(), 16);
        QCOMPARE(s.value("RequiredClasses").toArray(), (QJsonArray{"SimpleSound1.class", "", ""}));
        QCOMPARE(s.value("RequiredFiles").toArray(), fileSlots({" in.au ", ""}));
        const QJsonArray m = d.messages();
        QCOMPARE(m.size(), 2);
        QCOMPARE(messageText(m[0]), QString("You must enter a sound file."));
        QCOMPARE(messageText(m[1]), AuMessage);
        QCOMPARE(messageStyle(m[1]), 48);
        QCOMPARE(d.text("Preview", "Label3"), QString(" Required Java class files:  SimpleSound1.class"));
        d.click("Preview", "Command15");
        QVERIFY(d.on("Preview", "Label1", "visible").toBool());
        // Back to the form, on the page it was left on.
        d.click("Preview", "Command14");
        d.click("Preview", "Command14");
        QVERIFY(d.shown("Sound"));
        QVERIFY(onTop("Picture2(2)"));
        QCOMPARE(d.text("Sound", "Text1"), QString(" in.au "));
        // The wizard's Edit applet entry reaches the form for the applet.
        d.click("Sound", "Command2");
        d.click("Preview", "mnuEditApplet");
        QVERIFY(d.shown("Sound"));
        QVERIFY(!d.modal("Sound"));
    }
    void wavEditAppletEntryGoesToTheMainWindow()
    {
        toPage("Option1");
        d.setText("Sound", "Text4", "a.wav");
        d.click("Sound", "Command12");
        d.click("Preview", "mnuEditApplet");
        QVERIFY(!d.shown("Sound"));
        QVERIFY(!d.loaded("Preview"));
    }
    void finishUnloadsTheForm()
    {
        toPage("Option2");
        d.setText("Sound", "Text1", "a.au");
        d.click("Sound", "Command2");
        d.click("Preview", "mnuManualCopy");
        d.click("Preview", "Command15");
        d.click("Preview", "Command15");
        d.click("Preview", "Command5");
        QVERIFY(!d.loaded("Sound"));
    }
    void reEditFillsTheAuPage()
    {
        d.start({{"program_folder", folder.path()}});
        paste(auCode("enter.au", "yes", "leave.au"));
        QVERIFY(d.shown("Sound"));
        QVERIFY(!d.modal("Sound"));
        QVERIFY(!d.loaded("EditAppletForm"));
        QCOMPARE(d.session().value("ReEditMode").toInt(), 0);
        // The form opens on the format page with nothing chosen.
        QVERIFY(onTop("Picture1"));
        QVERIFY(!d.on("Sound", "Option2", "checked").toBool());
        QCOMPARE(d.text("Sound", "Text1"), QString("enter.au"));
        QCOMPARE(d.text("Sound", "Text2"), QString("leave.au"));
        QCOMPARE(d.on("Sound", "Check1", "checked").toInt(), 1);
        d.click("Sound", "Option2");
        d.click("Sound", "Command1");
        QVERIFY(onTop("Picture2(2)"));
        d.click("Sound", "Command2");
        QCOMPARE(d.session().value("GeneratedCode").toString(), auCode("enter.au", "yes", "leave.au"));
        // The names came from code: Step 3 knows them but not where they are.
        QCOMPARE(d.session().value("RequiredPaths").toArray(), fileSlots({}));
    }
    void reEditLoopIsOnOnlyForExactlyYes()
    {
        d.start({{"program_folder", folder.path()}});
        paste("<APPLET CODE=SimpleSound1.class WIDTH=1 HEIGHT=1>\r\n"
              "<PARAM NAME=ENTERLOOP VALUE=\"Yes\">\r\n</APPLET>");
        QVERIFY(d.shown("Sound"));
        QCOMPARE(d.on("Sound", "Check1", "checked").toInt(), 0);
        QCOMPARE(d.text("Sound", "Text1"), QString());
    }
    void damagedCodeOnTheSoundRouteNeverHangsOrCrashes()
    {
        const QString good = auCode("enter.au", "yes", "leave.au");
        QRandomGenerator random(20261123);
        d.start({{"program_folder", folder.path()}});
        for (int round = 0; round < 150; ++round) {
            QString code = good;
            const int damages = 1 + int(random.bounded(8));
            for (int i = 0; i < damages && !code.isEmpty(); ++i) {
                const int at = int(random.bounded(code.size()));
                switch (random.bounded(4)) {
                case 0:
                    code.remove(at, 1 + int(random.bounded(12)));
                    break;
                case 1:
                    code.insert(at, QChar(u"\"=<> \r\n\t\0xé"[random.bounded(10)]));
                    break;
                case 2:
                    code.insert(at, QString(int(random.bounded(200)), QChar('"')));
                    break;
                default:
                    code.truncate(at);
                    break;
                }
            }
            // Keep the route: the class name must still be recognised.
            if (!code.contains("CODE=\"Simpl") && !code.contains("CODE=\"Simp"))
                code.prepend("<APPLET CODE=\"SimpleSound1.class\">");
            QElapsedTimer clock;
            clock.start();
            paste(code);
            QVERIFY2(clock.elapsed() < 1000, qPrintable(code));
            QVERIFY(d.shown("Sound"));
            QCOMPARE(d.session().value("ReEditMode").toInt(), 0);
            // The form works on after the paste.
            d.click("Sound", "Option2");
            d.click("Sound", "Command1");
            d.setText("Sound", "Text1", "a.au");
            d.click("Sound", "Command2");
            QVERIFY(d.shown("Preview"));
            d.click("Preview", "mnuReturn");
            d.app().forms().unload("Sound");
            d.messages();
        }
    }
    void cancelAndHelpOnEveryPage()
    {
        const QJsonArray topic{QJsonArray{"Sound", QJsonValue::Null}};
        open();
        d.click("Sound", "Command7");
        QCOMPARE(d.help(), topic);
        d.click("Sound", "Command9");
        QVERIFY(!d.loaded("Sound"));
        toPage("Option1");
        d.click("Sound", "Command10");
        QCOMPARE(d.help(), topic);
        d.click("Sound", "Command11");
        QVERIFY(!d.loaded("Sound"));
        toPage("Option2");
        d.click("Sound", "Command4");
        QCOMPARE(d.help(), topic);
        d.click("Sound", "Command3");
        QVERIFY(!d.loaded("Sound"));
    }
};

QL_TEST_MAIN(SoundTest)
#include "test_sound.moc"
