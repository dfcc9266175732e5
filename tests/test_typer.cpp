#include "TestSupport.h"
#include "effects/text/TyperForm.h"
#include "effects/text/TyperModel.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QJsonDocument>
#include <QTemporaryDir>

using namespace ql;

namespace {

const QString Head = "<PARAM NAME=COPYRIGHT VALUE=\"Typewriter4 applet (c) Copyright 1998 Tessellate Software\">\r\n"
                     "<PARAM NAME=DOCUMENTATION VALUE=\"Documentation found at: http://www.tessellate-sw.com/applets/\">\r\n"
                     "<PARAM NAME=WIZARD VALUE=\"Created with Quillet.  Quillet Web site at: http://www.quillet-fx.com/\">\r\n";

QString tag(const QString& height, const QString& width)
{
    return "<APPLET CODE=\"Typewriter4.class\" HEIGHT=\"" + height + "\" WIDTH=\"" + width + "\">\r\n";
}

QString requiredFiles(const QString& fileLine = QString())
{
    return "You will need the following files in order for this special effect to work correctly:\r\n\r\n"
           "- images\r\n" + fileLine +
           "- the Typewriter4.class and AppletSettings.class files\r\n"
           "- the HTML document (Web page) containing the special effect HTML code\r\n\r\n"
           "These files MUST reside in the same folder!";
}

TyperModel::Fields minimal()
{
    return {.text = "Hello", .appletWidth = "300", .appletHeight = "50"};
}

}  // namespace

class TyperTest : public QObject {
    Q_OBJECT

    TestDriver d;
    QTemporaryDir dir;

    void open()
    {
        d.start();
        d.click("QLMain", "Command3");
        QVERIFY(d.shown("Typer"));
    }
    void reEdit(const QString& code)
    {
        d.start();
        d.click("QLMain", "mnuEditApplet");
        d.setText("EditAppletForm", "Text1", code);
        d.click("EditAppletForm", "Command1");
    }
    // Steps 1 and 2 passed with a text; the form on Step 3.
    void toStepThree(const QString& text = "Hello")
    {
        open();
        d.setText("Typer", "Text16", text);
        d.click("Typer", "Command7");
        d.click("Typer", "Command7");
    }
    QString writeFile(const QString& name, const QByteArray& bytes)
    {
        const QString path = dir.filePath(name);
        QFile f(path);
        f.open(QIODevice::WriteOnly);
        f.write(bytes);
        return path;
    }

private slots:
    // The model alone.
    void emissionWithDefaults()
    {
        QCOMPARE(TyperModel::emitCode(minimal()),
                 tag("50", "300") + Head +
                     "<PARAM NAME=TEXT VALUE=\"Hello\">\r\n"
                     "<PARAM NAME=URL VALUE=\"#\">\r\n"
                     "</APPLET>\r\n");
    }
    void emissionWithEveryField()
    {
        TyperModel::Fields f{.text = "one\r\ntwo", .font = "Courier", .fontSize = "18",
                             .textColor = "Red  -                 255,0,0", .bold = true, .italic = true,
                             .appletWidth = "400", .appletHeight = "120", .link = "http://example.com/",
                             .backgroundImage = "paper.gif", .backgroundColor = "0,0,128", .loop = "10 times",
                             .speed = "250"};
        QCOMPARE(TyperModel::emitCode(f),
                 tag("120", "400") + Head +
                     "<PARAM NAME=TEXT VALUE=\"one \\two\">\r\n"
                     "<PARAM NAME=FONTNAME VALUE=\"Courier\">\r\n"
                     "<PARAM NAME=FONTSIZE VALUE=\"18\">\r\n"
                     "<PARAM NAME=FONTSTYLE VALUE=\"bold, italic\">\r\n"
                     "<PARAM NAME=URL VALUE=\"http://example.com/\">\r\n"
                     "<PARAM NAME=SPEED VALUE=\"250\">\r\n"
                     "<PARAM NAME=CYCLES VALUE=\"10\">\r\n"
                     "<PARAM NAME=BGCOLOR VALUE=\"0,0,128\">\r\n"
                     "<PARAM NAME=TEXTCOLOR VALUE=\"255,0,0\">\r\n"
                     "<PARAM NAME=BACKGROUND VALUE=\"paper.gif\">\r\n"
                     "</APPLET>\r\n");
    }
    void styleLines()
    {
        auto f = minimal();
        f.bold = true;
        QVERIFY(TyperModel::emitCode(f).contains("<PARAM NAME=FONTSTYLE VALUE=\"bold\">\r\n"));
        f.bold = false;
        f.italic = true;
        QVERIFY(TyperModel::emitCode(f).contains("<PARAM NAME=FONTSTYLE VALUE=\"italic\">\r\n"));
        f.italic = false;
        QVERIFY(!TyperModel::emitCode(f).contains("FONTSTYLE"));
    }
    void lineBreaks()
    {
        QCOMPARE(TyperModel::joinedLines("abc\r\n"), QString("abc \\"));
        QCOMPARE(TyperModel::joinedLines("one\r\ntwo"), QString("one \\two"));
        QCOMPARE(TyperModel::joinedLines("a\nb\rc"), QString("a\nb\rc"));
        QCOMPARE(TyperModel::joinedLines("\r\n\r\n"), QString(" \\ \\"));
        QCOMPARE(TyperModel::joinedLines("a\r\r\nb"), QString("a\r \\b"));
    }
    void textIsCopiedUnescaped()
    {
        auto f = minimal();
        f.text = "He said \"hi\" \\ | ünïcødé 日本";
        QVERIFY(TyperModel::emitCode(f).contains("<PARAM NAME=TEXT VALUE=\"He said \"hi\" \\ | ünïcødé 日本\">\r\n"));
    }
    void loopValues()
    {
        auto f = minimal();
        const QList<std::pair<QString, QString>> cases = {
            {"10 times", "10"}, {"1 time", "1"}, {"9 times", "9"}, {"3", "3"}, {"0 - Infinite", ""}, {"", ""},
            {"0", ""}};
        for (const auto& [loop, cycles] : cases) {
            f.loop = loop;
            const QString code = TyperModel::emitCode(f);
            if (cycles.isEmpty())
                QVERIFY2(!code.contains("CYCLES"), qPrintable(loop));
            else
                QVERIFY2(code.contains("<PARAM NAME=CYCLES VALUE=\"" + cycles + "\">\r\n"), qPrintable(loop));
        }
    }
    void linkOfBlanksIsHash()
    {
        auto f = minimal();
        f.link = "   ";
        QVERIFY(TyperModel::emitCode(f).contains("<PARAM NAME=URL VALUE=\"#\">\r\n"));
        f.link = " a ";
        QVERIFY(TyperModel::emitCode(f).contains("<PARAM NAME=URL VALUE=\" a \">\r\n"));
    }
    void coloursFromListAndBack()
    {
        auto f = minimal();
        f.textColor = "0,0,0";
        const QString typed = TyperModel::emitCode(f);
        f.textColor = "Black  -               0,0,0";
        QCOMPARE(TyperModel::emitCode(f), typed);
        QVERIFY(typed.contains("<PARAM NAME=TEXTCOLOR VALUE=\"0,0,0\">\r\n"));
    }
    void textFileLine()
    {
        auto f = minimal();
        f.fromFile = true;
        f.textFile = "words.txt";
        const QString code = TyperModel::emitCode(f);
        QVERIFY(code.contains(Head + "<PARAM NAME=TEXTFILE VALUE=\"words.txt\">\r\n<PARAM NAME=URL"));
        QVERIFY(!code.contains("NAME=TEXT VALUE"));
    }
    void validationOrder()
    {
        TyperModel::Fields f;
        auto r = TyperModel::validate(f);
        QCOMPARE(r->text, QString("Applet width and height properties are required.  Please enter them."));
        QCOMPARE(r->style, 48);
        QCOMPARE(r->focus, QString("Text13"));
        f.appletWidth = "1";
        f.appletHeight = "1";
        r = TyperModel::validate(f);
        QCOMPARE(r->text, QString("You must type something in the text box or enter the filename of a text file."));
        QCOMPARE(r->style, 48);
        QCOMPARE(r->focus, QString());
        f.textFile = "x.txt";
        QCOMPARE(TyperModel::validate(f)->text, QString("You must type something in the text box."));
        f.textFile.clear();
        f.fromFile = true;
        f.text = "typed";
        QCOMPARE(TyperModel::validate(f)->text, QString("You must enter the filename of a text file."));
        f.textFile = "x.txt";
        QVERIFY(!TyperModel::validate(f));
    }
    void stepChecks()
    {
        TyperModel::Fields f;
        auto r = TyperModel::validateStep(f);
        QCOMPARE(r->text, QString("Please enter Typewriter text for this special effect."));
        QCOMPARE(r->style, 0);
        QCOMPARE(r->focus, QString("Text16"));
        f.fromFile = true;
        r = TyperModel::validateStep(f);
        QCOMPARE(r->text, QString("Please enter a Typewriter text file for this special effect."));
        QCOMPARE(r->style, 0);
        QCOMPARE(r->focus, QString("Text2"));
    }
    void handOverNamesTheFiles()
    {
        auto f = minimal();
        HandOver h = TyperModel::handOver(f);
        QCOMPARE(h.effectId, qint16(11));
        QCOMPARE(h.classes, (QStringList{"Typewriter4.class", "AppletSettings.class"}));
        QCOMPARE(h.fileLines, (QStringList{"- images", "- the Typewriter4.class and AppletSettings.class files"}));
        QCOMPARE(h.files, (QMap<int, QString>{{0, ""}, {1, ""}}));
        QCOMPARE(h.emptiedPaths, (QList<int>{0, 1}));
        f.fromFile = true;
        f.textFile = "t.txt";
        f.backgroundImage = "b.gif";
        h = TyperModel::handOver(f);
        QCOMPARE(h.fileLines, (QStringList{"- images", "- the \"t.txt\" file",
                                           "- the Typewriter4.class and AppletSettings.class files"}));
        QCOMPARE(h.files, (QMap<int, QString>{{0, "b.gif"}, {1, "t.txt"}}));
        QVERIFY(h.emptiedPaths.isEmpty());
        // The file stays listed with the option off: the name decides.
        f.fromFile = false;
        h = TyperModel::handOver(f);
        QCOMPARE(h.files.value(1), QString("t.txt"));
        QCOMPARE(h.fileLines.size(), 2);
    }
    void positiveChecks()
    {
        QVERIFY(TyperModel::positiveOrEmpty(""));
        QVERIFY(TyperModel::positiveOrEmpty("0"));
        QVERIFY(TyperModel::positiveOrEmpty("abc"));
        QVERIFY(!TyperModel::positiveOrEmpty("-1"));
        QVERIFY(!TyperModel::aboveZero(""));
        QVERIFY(!TyperModel::aboveZero("0"));
        QVERIFY(!TyperModel::aboveZero("big"));
        QVERIFY(TyperModel::aboveZero("12"));
    }
    void filePreviews()
    {
        QCOMPARE(TyperForm::previewOf(std::nullopt).note, QString("The file could not be read."));
        QCOMPARE(TyperForm::previewOf(QByteArray()).note, QString("The file is empty."));
        QCOMPARE(TyperForm::previewOf(QByteArray("ab\0cd", 5)).note, QString("This file does not look like text."));
        auto p = TyperForm::previewOf(QByteArray("line one\r\nline two"));
        QCOMPARE(p.note, QString("The text of the file:"));
        QCOMPARE(p.text, QString("line one\r\nline two"));
        QByteArray big(10 * 1024 * 1024, 'x');
        QElapsedTimer t;
        t.start();
        p = TyperForm::previewOf(big);
        QVERIFY(t.elapsed() < 1000);
        QCOMPARE(p.note, QString("The beginning of the file:"));
        QCOMPARE(p.text.size(), 4096);
        // A character cut in two at the end of the head is left out.
        QByteArray cut(4095, 'y');
        cut += "\xc3\xa9 and more";
        p = TyperForm::previewOf(cut);
        QCOMPARE(p.text, QString(4095, 'y'));
    }

    // The form.
    void formOpensOnStepOne()
    {
        open();
        QVERIFY(d.modal("Typer"));
        QCOMPARE(d.text("Typer", "Typer"), QString("Typewriter Text effect"));
        QCOMPARE(d.text("Typer", "Label11"), QString("Step 1: Enter Typewriter Text"));
        QCOMPARE(d.text("Typer", "Label5"),
                 QString("In the box below, type the text you wish to display in the Typewriter Text effect.  You "
                         "can also specify the name of a text file."));
        QCOMPARE(d.text("Typer", "Check3"), QString("Read Typewriter text from a text file"));
        QCOMPARE(d.on("Typer", "Check3", "checked").toInt(), 0);
        QCOMPARE(d.text("Typer", "Label30"), QString("Typewriter text:"));
        QCOMPARE(d.on("Typer", "Text16", "tooltip").toString(),
                 QString("The text to be displayed in the Typewriter applet"));
        QCOMPARE(d.text("Typer", "Label4"), QString("Text filename:"));
        QCOMPARE(d.on("Typer", "Command3", "tooltip").toString(), QString("Browse for text file..."));
        QVERIFY(d.on("Typer", "Text16", "visible").toBool());
        QVERIFY(!d.on("Typer", "Text2", "visible").toBool());
        QVERIFY(!d.on("Typer", "Command3", "visible").toBool());
        QVERIFY(!d.on("Typer", "Label4", "visible").toBool());
        QCOMPARE(d.text("Typer", "Command7"), QString("&Next >>"));
        QCOMPARE(d.text("Typer", "Command6"), QString("<< &Previous"));
        QVERIFY(!d.on("Typer", "Command6", "enabled").toBool());
        QCOMPARE(d.text("Typer", "Command2"), QString("&Cancel"));
        QCOMPARE(d.on("Typer", "Command4", "tooltip").toString(), QString("Click here for help"));
        // Step 2 and 3 controls.
        QCOMPARE(d.text("Typer", "Label6"), QString("Font:"));
        QCOMPARE(d.text("Typer", "Label7"), QString("Font Size (points):"));
        QCOMPARE(d.on("Typer", "Combo19", "tooltip").toString(), QString("This sets the size of the text"));
        QCOMPARE(d.text("Typer", "Label8"), QString("Text Color:"));
        QCOMPARE(d.text("Typer", "Label1"), QString("Select"));
        QCOMPARE(d.text("Typer", "Check1"), QString("Bold"));
        QCOMPARE(d.text("Typer", "Check2"), QString("Italic"));
        QCOMPARE(d.text("Typer", "Label9"), QString("Width (pixels):"));
        QCOMPARE(d.text("Typer", "Label10"), QString("Height (pixels):"));
        QCOMPARE(d.text("Typer", "Label12"), QString("Link to this Web page URL:"));
        QCOMPARE(d.on("Typer", "Text1", "tooltip").toString(),
                 QString("Clicking the applet will link it to the specified URL"));
        QCOMPARE(d.text("Typer", "Label13"), QString("Background Image:"));
        QCOMPARE(d.on("Typer", "Command5", "tooltip").toString(), QString("Browse for image..."));
        QCOMPARE(d.text("Typer", "Label14"), QString("Background Color:"));
        QCOMPARE(d.text("Typer", "Label2"), QString("Select"));
        QCOMPARE(d.text("Typer", "Label15"), QString("Loop the animation:"));
        QCOMPARE(d.text("Typer", "Combo7"), QString("0 - Infinite"));
        QCOMPARE(d.on("Typer", "Combo7", "items").toArray(),
                 (QJsonArray{"0 - Infinite", "1 time", "2 times", "3 times", "4 times", "5 times", "6 times",
                             "7 times", "8 times", "9 times", "10 times"}));
        QCOMPARE(d.text("Typer", "Label16"), QString("Speed of Typing (1 to 2500):"));
        QCOMPARE(d.on("Typer", "Text18", "tooltip").toString(),
                 QString("20 is a fast speed, 2000 is slower. Default speed is 100."));
        const QJsonArray colours{"Black  -               0,0,0",     "Blue  -                0,0,255",
                                 "Red  -                 255,0,0",   "Green  -               0,255,0",
                                 "Cyan  -                0,255,255", "Magenta  -             255,0,255",
                                 "Yellow  -              255,255,0", "White  -               255,255,255"};
        QCOMPARE(d.on("Typer", "Combo4", "items").toArray(), colours);
        QCOMPARE(d.on("Typer", "Combo6", "items").toArray(), colours);
        for (const char* field : {"Text16", "Text2", "Combo1", "Combo19", "Combo6", "Text13", "Text12", "Text1",
                                  "Text17", "Combo4", "Text18"})
            QCOMPARE(d.text("Typer", field), QString());
    }
    void fileOptionSwapsTheFields()
    {
        open();
        d.click("Typer", "Check3");
        QVERIFY(!d.on("Typer", "Text16", "visible").toBool());
        QVERIFY(!d.on("Typer", "Label30", "visible").toBool());
        QVERIFY(d.on("Typer", "Text2", "visible").toBool());
        QVERIFY(d.on("Typer", "Label4", "visible").toBool());
        QVERIFY(d.on("Typer", "Command3", "visible").toBool());
        QCOMPARE(d.on("Typer", "Typer", "focus").toString(), QString("Text2"));
        d.click("Typer", "Check3");
        QVERIFY(d.on("Typer", "Text16", "visible").toBool());
        QVERIFY(!d.on("Typer", "Text2", "visible").toBool());
        QCOMPARE(d.on("Typer", "Typer", "focus").toString(), QString("Text16"));
    }
    void forwardChecksTheTextOnEveryPress()
    {
        open();
        d.click("Typer", "Command7");
        QJsonArray m = d.messages();
        QCOMPARE(m.size(), 1);
        QCOMPARE(messageText(m[0]), QString("Please enter Typewriter text for this special effect."));
        QCOMPARE(messageStyle(m[0]), 0);
        QCOMPARE(d.text("Typer", "Label11"), QString("Step 1: Enter Typewriter Text"));
        d.click("Typer", "Check3");
        d.click("Typer", "Command7");
        m = d.messages();
        QCOMPARE(messageText(m[1]), QString("Please enter a Typewriter text file for this special effect."));
        QCOMPARE(messageStyle(m[1]), 0);
        QCOMPARE(d.on("Typer", "Typer", "focus").toString(), QString("Text2"));
    }
    void stepsForwardAndBack()
    {
        open();
        d.setText("Typer", "Text16", "abc");
        d.click("Typer", "Command7");
        QCOMPARE(d.text("Typer", "Label11"), QString("Step 2: Text Properties"));
        QCOMPARE(d.text("Typer", "Label5"), QString("Specify the font and text properties below."));
        QVERIFY(d.on("Typer", "Command6", "enabled").toBool());
        QCOMPARE(d.on("Typer", "Typer", "focus").toString(), QString("Combo1"));
        QCOMPARE(d.text("Typer", "Command7"), QString("&Next >>"));
        d.click("Typer", "Command7");
        QCOMPARE(d.text("Typer", "Label11"), QString("Step 3: Special effect properties"));
        QCOMPARE(d.text("Typer", "Label5"), QString("Specify the special effect properties below."));
        QCOMPARE(d.text("Typer", "Command7"), QString("&Done"));
        QCOMPARE(d.on("Typer", "Typer", "focus").toString(), QString("Text13"));
        d.click("Typer", "Command6");
        QCOMPARE(d.text("Typer", "Label11"), QString("Step 2: Text Properties"));
        QCOMPARE(d.text("Typer", "Command7"), QString("&Next >>"));
        QCOMPARE(d.on("Typer", "Typer", "focus").toString(), QString("Combo1"));
        d.click("Typer", "Command6");
        QCOMPARE(d.text("Typer", "Label11"), QString("Step 1: Enter Typewriter Text"));
        QVERIFY(!d.on("Typer", "Command6", "enabled").toBool());
        QCOMPARE(d.on("Typer", "Typer", "focus").toString(), QString("Text16"));
        QCOMPARE(d.messages().size(), 0);
    }
    void backToStepOneWithTheFileOptionKeepsTheTextBoxHidden()
    {
        open();
        d.click("Typer", "Check3");
        d.setText("Typer", "Text2", "t.txt");
        d.click("Typer", "Command7");
        d.click("Typer", "Command6");
        QVERIFY(!d.on("Typer", "Text16", "visible").toBool());
        QVERIFY(d.on("Typer", "Text2", "visible").toBool());
        QVERIFY(d.on("Typer", "Typer", "focus").toString() != QString("Text16"));
    }
    void doneOnStepThreeRefusesInOrder()
    {
        toStepThree();
        d.setText("Typer", "Text12", "40");
        d.click("Typer", "Command7");
        const QJsonArray m = d.messages();
        QCOMPARE(m.size(), 1);
        QCOMPARE(messageText(m[0]), QString("Applet width and height properties are required.  Please enter them."));
        QCOMPARE(messageStyle(m[0]), 48);
        QCOMPARE(d.on("Typer", "Typer", "focus").toString(), QString("Text13"));
        QCOMPARE(d.text("Typer", "Label11"), QString("Step 3: Special effect properties"));
        QCOMPARE(d.text("Typer", "Command7"), QString("&Done"));
        QVERIFY(!d.loaded("Preview"));
    }
    void doneHandsOver()
    {
        toStepThree("line one\nline \"two\"");
        d.setText("Typer", "Text13", "320");
        d.setText("Typer", "Text12", "60");
        d.on("Typer", "Combo7", "choose", {{"item", "3 times"}});
        d.click("Typer", "Command7");
        const QString expected = tag("60", "320") + Head +
                                 "<PARAM NAME=TEXT VALUE=\"line one \\line \"two\"\">\r\n"
                                 "<PARAM NAME=URL VALUE=\"#\">\r\n"
                                 "<PARAM NAME=CYCLES VALUE=\"3\">\r\n"
                                 "</APPLET>\r\n";
        const QJsonObject s = d.session();
        QCOMPARE(s.value("GeneratedCode").toString(), expected);
        QCOMPARE(s.value("EffectId").toInt(), 11);
        QCOMPARE(s.value("RequiredClasses").toArray(), (QJsonArray{"Typewriter4.class", "AppletSettings.class", ""}));
        const QJsonArray m = d.messages();
        QCOMPARE(m.size(), 1);
        QCOMPARE(messageText(m[0]), requiredFiles());
        QCOMPARE(messageStyle(m[0]), 48);
        QVERIFY(!d.shown("Typer"));
        QVERIFY(d.shown("Preview"));
        QCOMPARE(d.text("Preview", "Label3"),
                 QString(" Required Java class files:  Typewriter4.class and AppletSettings.class"));
        // Back from the wizard: the form on Step 3 as it was, and Done again the same.
        d.click("Preview", "Command14");
        QVERIFY(d.shown("Typer"));
        QCOMPARE(d.text("Typer", "Command7"), QString("&Done"));
        d.click("Typer", "Command7");
        QCOMPARE(d.session().value("GeneratedCode").toString(), expected);
    }
    void textFileChosenReadAndListed()
    {
        const QString path = writeFile("words.txt", "First line\r\nSecond line\r\n");
        open();
        d.click("Typer", "Check3");
        d.ok({{"op", "answer_file"}, {"paths", QJsonArray{path}}});
        d.click("Typer", "Command3");
        QCOMPARE(d.text("Typer", "Text2"), QString("words.txt"));
        QCOMPARE(d.text("Typer", "Label31"), QString("The text of the file:"));
        QCOMPARE(d.text("Typer", "Text19"), QString("First line\r\nSecond line\r\n"));
        QVERIFY(d.on("Typer", "Text19", "visible").toBool());
        const QJsonArray dialogs = d.ok({{"op", "dialogs"}}).toArray();
        QCOMPARE(dialogs.size(), 1);
        QCOMPARE(dialogs[0].toObject().value("title").toString(), QString("Browse..."));
        QCOMPARE(dialogs[0].toObject().value("filter").toString(),
                 QString("All Files (*.*)|*.*|Text Files (*.txt)|*.txt"));
        QCOMPARE(dialogs[0].toObject().value("filter_index").toInt(), 2);
        d.click("Typer", "Command7");
        d.click("Typer", "Command7");
        d.setText("Typer", "Text13", "100");
        d.setText("Typer", "Text12", "100");
        d.click("Typer", "Command7");
        const QJsonObject s = d.session();
        QVERIFY(s.value("GeneratedCode").toString().contains(Head + "<PARAM NAME=TEXTFILE VALUE=\"words.txt\">\r\n"));
        QCOMPARE(messageText(d.messages()[0]), requiredFiles("- the \"words.txt\" file\r\n"));
        QCOMPARE(s.value("RequiredFiles").toArray()[1].toString(), QString("words.txt"));
        QCOMPARE(s.value("RequiredPaths").toArray()[1].toString(), path);
        QCOMPARE(s.value("RequiredFiles").toArray()[0].toString(), QString());
    }
    void textFilesThatCannotBeShown()
    {
        const QString empty = writeFile("empty.txt", "");
        const QString binary = writeFile("picture.txt", QByteArray("GIF89a\0\0\x01\x02", 10));
        const QString large = writeFile("large.txt", QByteArray(30 * 1024 * 1024, 'z'));
        const QString locked = writeFile("locked.txt", "secret");
        const QString missing = dir.filePath("gone.txt");
        open();
        d.platform().scriptedFiles().injectFault(locked, 70, ScriptedFileSystem::Read);
        d.click("Typer", "Check3");
        const QList<std::pair<QString, QString>> cases = {
            {empty, "The file is empty."},
            {binary, "This file does not look like text."},
            {large, "The beginning of the file:"},
            {locked, "The file could not be read."},
            {missing, "The file could not be read."},
        };
        for (const auto& [path, note] : cases) {
            d.ok({{"op", "answer_file"}, {"paths", QJsonArray{path}}});
            QElapsedTimer t;
            t.start();
            d.click("Typer", "Command3");
            QVERIFY2(t.elapsed() < 2000, qPrintable(path));
            QCOMPARE(d.text("Typer", "Label31"), note);
            QCOMPARE(d.text("Typer", "Text2"), QFileInfo(path).fileName());
        }
        QCOMPARE(d.text("Typer", "Text19"), QString());
        QCOMPARE(d.messages().size(), 0);
        // Typing another name lets go of the file shown.
        d.ok({{"op", "answer_file"}, {"paths", QJsonArray{writeFile("a.txt", "abc")}}});
        d.click("Typer", "Command3");
        QCOMPARE(d.text("Typer", "Text19"), QString("abc"));
        d.setText("Typer", "Text2", "other.txt");
        QCOMPARE(d.text("Typer", "Text19"), QString());
        QCOMPARE(d.text("Typer", "Label31"), QString());
    }
    void cancelledBrowseChangesNothing()
    {
        open();
        d.click("Typer", "Check3");
        d.setText("Typer", "Text2", "mine.txt");
        d.ok({{"op", "answer_file"}, {"paths", QJsonArray{QJsonValue::Null}}});
        d.click("Typer", "Command3");
        QCOMPARE(d.text("Typer", "Text2"), QString("mine.txt"));
    }
    void imageBrowseFillsSlotZero()
    {
        const QString path = writeFile("back.gif", "GIF89a");
        toStepThree();
        d.ok({{"op", "answer_file"}, {"paths", QJsonArray{path}}});
        d.click("Typer", "Command5");
        QCOMPARE(d.text("Typer", "Text17"), QString("back.gif"));
        const QJsonArray dialogs = d.ok({{"op", "dialogs"}}).toArray();
        QCOMPARE(dialogs[0].toObject().value("filter").toString(),
                 QString("All Files (*.*)|*.*|GIF and JPG Files (*.gif, *.jpg, *.jpeg)|*.gif;*.jpg;*.jpeg"));
        d.setText("Typer", "Text13", "10");
        d.setText("Typer", "Text12", "10");
        d.click("Typer", "Command7");
        const QJsonObject s = d.session();
        QVERIFY(s.value("GeneratedCode").toString().contains("<PARAM NAME=BACKGROUND VALUE=\"back.gif\">\r\n</APPLET>"));
        QCOMPARE(s.value("RequiredFiles").toArray()[0].toString(), QString("back.gif"));
        QCOMPARE(s.value("RequiredPaths").toArray()[0].toString(), path);
    }
    void emptiedImageFieldEmptiesItsPath()
    {
        const QString path = writeFile("back.gif", "GIF89a");
        toStepThree();
        d.ok({{"op", "answer_file"}, {"paths", QJsonArray{path}}});
        d.click("Typer", "Command5");
        d.setText("Typer", "Text17", "");
        d.setText("Typer", "Text13", "10");
        d.setText("Typer", "Text12", "10");
        d.click("Typer", "Command7");
        QVERIFY(!d.session().value("GeneratedCode").toString().contains("BACKGROUND"));
        QCOMPARE(d.session().value("RequiredFiles").toArray()[0].toString(), QString());
        QCOMPARE(d.session().value("RequiredPaths").toArray()[0].toString(), QString());
    }
    void colourPicks()
    {
        open();
        d.ok({{"op", "answer_color"}, {"values", QJsonArray{255 + 128 * 256}}});
        d.click("Typer", "Label1");
        QCOMPARE(d.text("Typer", "Combo6"), QString("255,128,0"));
        QCOMPARE(d.text("Typer", "Label1"), QString(""));
        d.ok({{"op", "answer_color"}, {"values", QJsonArray{QJsonValue::Null}}});
        d.click("Typer", "Label2");
        QCOMPARE(d.text("Typer", "Combo4"), QString());
        QCOMPARE(d.text("Typer", "Label2"), QString("Select"));
    }
    void positiveValueChecksWhileTyping()
    {
        open();
        d.setText("Typer", "Text12", "-5");
        QJsonArray m = d.messages();
        QCOMPARE(m.size(), 1);
        QCOMPARE(messageText(m[0]), QString("This must be a positive value."));
        QCOMPARE(messageStyle(m[0]), 0);
        QCOMPARE(d.text("Typer", "Text12"), QString());
        d.setText("Typer", "Text13", "0");
        d.setText("Typer", "Text18", "abc");
        QCOMPARE(d.messages().size(), 1);
        d.setText("Typer", "Text18", "-1");
        QCOMPARE(d.messages().size(), 2);
        QCOMPARE(d.text("Typer", "Text18"), QString());
        d.setText("Typer", "Combo19", "12");
        QCOMPARE(d.messages().size(), 2);
        d.setText("Typer", "Combo19", "");
        QCOMPARE(d.messages().size(), 3);
        d.setText("Typer", "Combo19", "big");
        QCOMPARE(d.messages().size(), 4);
        QCOMPARE(d.text("Typer", "Combo19"), QString());
    }
    void typedFontSizeIsCheckedWhenTheTypingIsDone()
    {
        open();
        d.setText("Typer", "Text16", "x");
        d.click("Typer", "Command7");
        QWidget* form = d.app().forms().findWidget("Typer");
        auto leave = [form] { form->findChild<QWidget*>("Combo1")->setFocus(); };
        form->findChild<QWidget*>("Combo19")->setFocus();
        d.on("Typer", "Combo19", "type_text", {{"text", "Big"}});
        QCOMPARE(d.text("Typer", "Combo19"), QString("Big"));
        QCOMPARE(d.messages().size(), 0);
        leave();
        const QJsonArray m = d.messages();
        QCOMPARE(m.size(), 1);
        QCOMPARE(messageText(m[0]), QString("This must be a positive value."));
        QCOMPARE(d.text("Typer", "Combo19"), QString());
        form->findChild<QWidget*>("Combo19")->setFocus();
        d.on("Typer", "Combo19", "type_text", {{"text", "16"}});
        leave();
        QVERIFY2(d.messages().size() == 1, qPrintable(QJsonDocument(d.messages()).toJson()));
        QCOMPARE(d.text("Typer", "Combo19"), QString("16"));
    }
    void cancelAndHelp()
    {
        open();
        d.click("Typer", "Command4");
        QCOMPARE(d.help(), (QJsonArray{QJsonArray{"Typer", QJsonValue::Null}}));
        d.click("Typer", "Command2");
        QVERIFY(!d.loaded("Typer"));
        QCOMPARE(d.session().value("GeneratedCode").toString(), QString());
        d.click("QLMain", "mnuAppletsTyper");
        QVERIFY(d.shown("Typer"));
    }

    // Re-edit.
    void reEditSwapsTheSizesAndKeepsTheRest()
    {
        TyperModel::Fields f{.text = "one\r\ntwo \\ | \"q\" ü", .font = "Dialog", .fontSize = "14",
                             .textColor = "0,0,0", .bold = true, .italic = false, .appletWidth = "400",
                             .appletHeight = "80", .link = "http://x.org/", .backgroundImage = "bg.gif",
                             .backgroundColor = "255,255,255", .loop = "2 times", .speed = "90"};
        const QString code = TyperModel::emitCode(f);
        reEdit(code);
        QVERIFY(d.shown("Typer"));
        QVERIFY(!d.modal("Typer"));
        QCOMPARE(d.session().value("ReEditMode").toInt(), 0);
        // The quotes in the text are dropped by the reader; the separators stay.
        // The reader stops at the first quote in the text.
        QCOMPARE(d.text("Typer", "Text16"), QString("one \\two \\ | "));
        QCOMPARE(d.text("Typer", "Combo1"), QString("Dialog"));
        QCOMPARE(d.text("Typer", "Combo19"), QString("14"));
        QCOMPARE(d.on("Typer", "Check1", "checked").toInt(), 1);
        QCOMPARE(d.on("Typer", "Check2", "checked").toInt(), 0);
        QCOMPARE(d.text("Typer", "Text18"), QString("90"));
        QCOMPARE(d.text("Typer", "Combo7"), QString("2"));
        QCOMPARE(d.text("Typer", "Combo4"), QString("255,255,255"));
        QCOMPARE(d.text("Typer", "Combo6"), QString("0,0,0"));
        QCOMPARE(d.text("Typer", "Text17"), QString("bg.gif"));
        QCOMPARE(d.text("Typer", "Text13"), QString("80"));  // the height, in the width field
        QCOMPARE(d.text("Typer", "Text12"), QString("400"));
        QCOMPARE(d.text("Typer", "Text1"), QString("http://x.org/"));
        d.click("Typer", "Command7");
        d.click("Typer", "Command7");
        d.click("Typer", "Command7");
        const QString again = d.session().value("GeneratedCode").toString();
        QString expected = code;
        expected.replace("HEIGHT=\"80\" WIDTH=\"400\"", "HEIGHT=\"400\" WIDTH=\"80\"")
            .replace("one \\two \\ | \"q\" ü", "one \\two \\ | ");
        QCOMPARE(again, expected);
    }
    void reEditOfBoldItalicComesBackBold()
    {
        auto f = minimal();
        f.bold = f.italic = true;
        reEdit(TyperModel::emitCode(f));
        QCOMPARE(d.on("Typer", "Check1", "checked").toInt(), 1);
        QCOMPARE(d.on("Typer", "Check2", "checked").toInt(), 0);
        f.bold = false;
        reEdit(TyperModel::emitCode(f));
        QCOMPARE(d.on("Typer", "Check1", "checked").toInt(), 0);
        QCOMPARE(d.on("Typer", "Check2", "checked").toInt(), 1);
    }
    void reEditOfSquareAppletIsTheSameCode()
    {
        TyperModel::Fields f{.text = "same", .font = "Arial", .appletWidth = "90", .appletHeight = "90",
                             .loop = "0 - Infinite"};
        const QString code = TyperModel::emitCode(f);
        reEdit(code);
        QCOMPARE(d.text("Typer", "Combo7"), QString());
        d.click("Typer", "Command7");
        d.click("Typer", "Command7");
        d.click("Typer", "Command7");
        QCOMPARE(d.session().value("GeneratedCode").toString(), code);
    }
    void reEditDoesNotReadTheTextFile()
    {
        auto f = minimal();
        f.fromFile = true;
        f.textFile = "words.txt";
        reEdit(TyperModel::emitCode(f));
        QVERIFY(d.shown("Typer"));
        QCOMPARE(d.text("Typer", "Text16"), QString());
        QCOMPARE(d.text("Typer", "Text2"), QString());
        QCOMPARE(d.on("Typer", "Check3", "checked").toInt(), 0);
    }
};

QL_TEST_MAIN(TyperTest)
#include "test_typer.moc"
