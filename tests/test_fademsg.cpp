#include "TestSupport.h"
#include "effects/text/FadeMsgModel.h"

#include <QApplication>

using namespace ql;

namespace {

const QString Head = "<PARAM NAME=\"Notice\" VALUE=\"FadeText applet (c) Copyright 1997 Marrow Lane Labs\">\r\n"
                     "<PARAM NAME=WIZARD VALUE=\"Created with Quillet.  Quillet Web site at: http://www.quillet-fx.com/\">\r\n";
const QString RequiredFiles =
    "You will need the following files in order for this special effect to work correctly:\r\n\r\n"
    "- the FadeText.class file\r\n"
    "- the HTML document (Web page) containing the special effect HTML code\r\n\r\n"
    "These files MUST reside in the same folder!";

QString p(const QString& name, int n, const QString& value)
{
    return "<PARAM NAME=" + name + QString::number(n) + " VALUE=\"" + value + "\">\r\n";
}

}  // namespace

class FadeMsgTest : public QObject {
    Q_OBJECT

    TestDriver d;

    void open()
    {
        d.start();
        d.click("QLMain", "Command12");
        QVERIFY(d.shown("FadeMsg"));
    }
    void toMessages(const QString& width = "300", const QString& height = "40")
    {
        open();
        d.setText("FadeMsg", "Text2", width);
        d.setText("FadeMsg", "Text3", height);
        d.click("FadeMsg", "Command7");
    }
    void reEdit(const QString& code)
    {
        d.start();
        d.click("QLMain", "mnuEditApplet");
        d.setText("EditAppletForm", "Text1", code);
        d.click("EditAppletForm", "Command1");
    }
    QString code() { return d.session().value("GeneratedCode").toString(); }

private slots:
    // The model alone.
    void blanksTakeTheDefaultsWhenStored()
    {
        const auto none = FadeMsgModel::stored({.text = "Hi"}, {});
        QCOMPARE(none, (FadeMsgModel::Message{"Hi", "12", "255,255,255", "0,0,0", "2000", ""}));
        const auto defaults = FadeMsgModel::stored(
            {.text = "Hi"}, {.fontSize = "20", .backgroundColor = "Blue                  0,0,255", .textColor = "1,2,3"});
        QCOMPARE(defaults, (FadeMsgModel::Message{"Hi", "20", "0,0,255", "1,2,3", "2000", ""}));
        const auto own = FadeMsgModel::stored({.text = "Hi", .backgroundColor = "Red                   255,0,0",
                                               .fontSize = "8", .textColor = "9,9,9", .delay = "500",
                                               .link = "x.html"},
                                              {.fontSize = "20", .backgroundColor = "0,0,255", .textColor = "1,2,3"});
        QCOMPARE(own, (FadeMsgModel::Message{"Hi", "8", "255,0,0", "9,9,9", "500", "x.html"}));
        QCOMPARE(FadeMsgModel::resolvedFont(""), QString("Arial"));
        QCOMPARE(FadeMsgModel::resolvedFont("  Courier "), QString("Courier"));
        QCOMPARE(FadeMsgModel::resolvedMargin(""), QString("10"));
        QCOMPARE(FadeMsgModel::resolvedMargin("4"), QString("4"));
    }
    void emissionOfTwoMessages()
    {
        FadeMsgModel::Fields f{.appletWidth = "300", .appletHeight = "40", .align = "Bottom(Default)",
                               .font = "Arial", .margin = "10", .count = 2};
        f.messages[0] = FadeMsgModel::stored({.text = "One \"q\" \\ | ü"}, {});
        f.messages[1] = FadeMsgModel::stored({.text = "Two", .link = "two.html"}, {.fontSize = "18"});
        QCOMPARE(FadeMsgModel::emitCode(f),
                 "<APPLET CODE=\"FadeText.class\" WIDTH=\"300\" HEIGHT=\"40\" ALIGN=\"Bottom(Default)\">\r\n" + Head +
                     p("DESC", 0, "One \"q\" \\ | ü") + p("DESC", 1, "Two") +
                     "<PARAM NAME=FONT VALUE=\"Arial\">\r\n" + p("SIZE", 0, "12") + p("SIZE", 1, "18") +
                     "<PARAM NAME=XOFFSET VALUE=\"10\">\r\n" + p("BGCOLOR", 0, "255,255,255") +
                     p("BGCOLOR", 1, "255,255,255") + p("TEXTCOLOR", 0, "0,0,0") + p("TEXTCOLOR", 1, "0,0,0") +
                     p("DELAY", 0, "2000") + p("DELAY", 1, "2000") + p("DESTURL", 0, "") + p("DESTURL", 1, "two.html") +
                     "</APPLET>\r\n");
    }
    void propertiesCheck()
    {
        auto r = FadeMsgModel::validateProperties("", "5");
        QCOMPARE(r->text, QString("Applet width and height properties are required.  Please enter them."));
        QCOMPARE(r->style, 0);
        QCOMPARE(r->focus, QString("Text2"));
        QVERIFY(FadeMsgModel::validateProperties("5", ""));
        QVERIFY(!FadeMsgModel::validateProperties("5", "5"));
    }

    // The form.
    void formOpensOnItsPropertiesPage()
    {
        open();
        QVERIFY(d.modal("FadeMsg"));
        QCOMPARE(d.text("FadeMsg", "FadeMsg"), QString("Fading Message"));
        QVERIFY(d.on("FadeMsg", "Picture1", "on_top").toBool());
        QCOMPARE(d.text("FadeMsg", "Frame2"), QString("Fading Message Properties and Default Values"));
        QCOMPARE(d.text("FadeMsg", "Label3"),
                 QString("Enter the applet properties and default values in the boxes below.  You can specify applet "
                         "values for each fading message later, but the values below will be used as defaults if "
                         "you choose not to specify values for each fading message."));
        QCOMPARE(d.text("FadeMsg", "Label4"), QString("Message Width (pixels):"));
        QCOMPARE(d.text("FadeMsg", "Label5"), QString("Message Height (pixels):"));
        QCOMPARE(d.text("FadeMsg", "Label7"), QString("Alignment to neighboring text:"));
        QCOMPARE(d.text("FadeMsg", "Label8"), QString("Default Font:"));
        QCOMPARE(d.text("FadeMsg", "Label9"), QString("Default Font Size (points):"));
        QCOMPARE(d.text("FadeMsg", "Label10"), QString("Default Background Color:"));
        QCOMPARE(d.text("FadeMsg", "Label11"), QString("Default Text Color:"));
        QCOMPARE(d.text("FadeMsg", "Label12"), QString("Margins (pixels):"));
        QCOMPARE(d.on("FadeMsg", "Text1", "tooltip").toString(),
                 QString("This is the distance between the edge of the applet and the applet text"));
        QCOMPARE(d.text("FadeMsg", "Command7"), QString("&Next >>"));
        QCOMPARE(d.on("FadeMsg", "Command3", "tooltip").toString(), QString("Click here for help"));
        QCOMPARE(d.text("FadeMsg", "Frame3"), QString("Fading Message Properties"));
        QCOMPARE(d.text("FadeMsg", "Label13"),
                 QString("Set these properties for each message that you create.  If you leave the input boxes "
                         "blank then the default values will be used."));
        QCOMPARE(d.text("FadeMsg", "Label15"), QString("Type the text for this message into the box below:"));
        QCOMPARE(d.text("FadeMsg", "Label16"), QString("Background Color:"));
        QCOMPARE(d.text("FadeMsg", "Label18"), QString("Font Size (points):"));
        QCOMPARE(d.text("FadeMsg", "Label19"), QString("Text Color:"));
        QCOMPARE(d.text("FadeMsg", "Label20"), QString("Pause (milliseconds):"));
        QCOMPARE(d.text("FadeMsg", "Label21"), QString("Default is 2000 (2 seconds)"));
        QCOMPARE(d.text("FadeMsg", "Label22"), QString("URL to link to:"));
        QCOMPARE(d.text("FadeMsg", "Command5"), QString("<< &Previous"));
        QCOMPARE(d.text("FadeMsg", "Command6"), QString("&Next >>"));
        QCOMPARE(d.text("FadeMsg", "Command1"), QString("&Done"));
        QCOMPARE(d.on("FadeMsg", "Command2", "tooltip").toString(), QString("Click here for help"));
        for (const char* swatch : {"Label1", "Label2", "Label14", "Label17"})
            QCOMPARE(d.text("FadeMsg", swatch), QString("Select"));
        const QJsonArray colours{"Black                 0,0,0",     "Blue                  0,0,255",
                                 "Red                   255,0,0",   "Green                 0,255,0",
                                 "Cyan                  0,255,255", "Magenta               255,0,255",
                                 "Yellow                255,255,0", "White                 255,255,255"};
        for (const char* combo : {"Combo3", "Combo4", "Combo5", "Combo6"})
            QCOMPARE(d.on("FadeMsg", combo, "items").toArray(), colours);
        QCOMPARE(d.on("FadeMsg", "Combo2", "items").toArray().size(), 9);
        QCOMPARE(d.on("FadeMsg", "Combo7", "items").toArray().size(), 18);
        QCOMPARE(d.on("FadeMsg", "Combo19", "items").toArray().size(), 18);
        QCOMPARE(d.on("FadeMsg", "Combo1", "items").toArray().size(), 5);
    }
    void propertiesNextRefusesWithoutSize()
    {
        open();
        d.setText("FadeMsg", "Text2", "10");
        d.click("FadeMsg", "Command7");
        const QJsonArray m = d.messages();
        QCOMPARE(m.size(), 1);
        QCOMPARE(messageText(m[0]), QString("Applet width and height properties are required.  Please enter them."));
        QCOMPARE(messageStyle(m[0]), 0);
        QCOMPARE(d.on("FadeMsg", "FadeMsg", "focus").toString(), QString("Text2"));
        QVERIFY(d.on("FadeMsg", "Picture1", "on_top").toBool());
    }
    void oneMessageAllDefaults()
    {
        toMessages();
        QVERIFY(d.on("FadeMsg", "Picture2", "on_top").toBool());
        QCOMPARE(d.text("FadeMsg", "Label6"), QString("Message  1"));
        d.setText("FadeMsg", "Text5", "Hello");
        d.click("FadeMsg", "Command1");
        const QString expected = "<APPLET CODE=\"FadeText.class\" WIDTH=\"300\" HEIGHT=\"40\">\r\n" + Head +
                                 p("DESC", 0, "Hello") + "<PARAM NAME=FONT VALUE=\"Arial\">\r\n" + p("SIZE", 0, "12") +
                                 "<PARAM NAME=XOFFSET VALUE=\"10\">\r\n" + p("BGCOLOR", 0, "255,255,255") +
                                 p("TEXTCOLOR", 0, "0,0,0") + p("DELAY", 0, "2000") + p("DESTURL", 0, "") +
                                 "</APPLET>\r\n";
        QCOMPARE(code(), expected);
        const QJsonObject s = d.session();
        QCOMPARE(s.value("EffectId").toInt(), 13);
        QCOMPARE(s.value("RequiredClasses").toArray(), (QJsonArray{"FadeText.class", "", ""}));
        const QJsonArray m = d.messages();
        QCOMPARE(m.size(), 1);
        QCOMPARE(messageText(m[0]), RequiredFiles);
        QCOMPARE(messageStyle(m[0]), 48);
        QVERIFY(!d.shown("FadeMsg"));
        QCOMPARE(d.text("Preview", "Label3"), QString(" Required Java class files:  FadeText.Class"));
        // Back and Done again: the same code.
        d.click("Preview", "Command14");
        d.click("FadeMsg", "Command1");
        QCOMPARE(code(), expected);
    }
    void defaultsApplyWhenTheMessageIsStored()
    {
        open();
        d.setText("FadeMsg", "Text2", "300");
        d.setText("FadeMsg", "Text3", "40");
        d.setText("FadeMsg", "Combo1", "Courier");
        d.setText("FadeMsg", "Combo7", "24");
        d.on("FadeMsg", "Combo5", "choose", {{"item", "Blue                  0,0,255"}});
        d.setText("FadeMsg", "Text1", "3");
        d.on("FadeMsg", "Combo2", "choose", {{"item", "Bottom(Default)"}});
        d.click("FadeMsg", "Command7");
        d.setText("FadeMsg", "Text5", "First");
        d.click("FadeMsg", "Command6");
        // The first message was stored with the defaults of the moment.
        d.click("FadeMsg", "Command5");
        QCOMPARE(d.text("FadeMsg", "Combo4"), QString("0,0,255"));
        QCOMPARE(d.text("FadeMsg", "Combo19"), QString("24"));
        QCOMPARE(d.text("FadeMsg", "Combo6"), QString("0,0,0"));
        QCOMPARE(d.text("FadeMsg", "Text4"), QString("2000"));
        // A default changed later does not reach it.
        d.click("FadeMsg", "Command5");
        d.setText("FadeMsg", "Combo7", "8");
        d.click("FadeMsg", "Command7");
        d.click("FadeMsg", "Command6");
        // The second page shows what it stored on the way back; emptied, its
        // size takes the default of now.
        QCOMPARE(d.text("FadeMsg", "Combo19"), QString("24"));
        d.setText("FadeMsg", "Combo19", "");
        d.setText("FadeMsg", "Text5", "Second");
        d.click("FadeMsg", "Command1");
        QVERIFY(code().startsWith(
            "<APPLET CODE=\"FadeText.class\" WIDTH=\"300\" HEIGHT=\"40\" ALIGN=\"Bottom(Default)\">\r\n"));
        QVERIFY(code().contains("<PARAM NAME=FONT VALUE=\"Courier\">\r\n" + p("SIZE", 0, "24") + p("SIZE", 1, "8") +
                                "<PARAM NAME=XOFFSET VALUE=\"3\">\r\n" + p("BGCOLOR", 0, "0,0,255") +
                                p("BGCOLOR", 1, "0,0,255")));
    }
    void emptyMessageRefusedButTheCountHasRisen()
    {
        toMessages();
        d.click("FadeMsg", "Command6");
        QJsonArray m = d.messages();
        QCOMPARE(m.size(), 1);
        QCOMPARE(messageText(m[0]), QString("You must enter text for your message."));
        QCOMPARE(messageStyle(m[0]), 0);
        QCOMPARE(d.on("FadeMsg", "FadeMsg", "focus").toString(), QString("Text5"));
        d.click("FadeMsg", "Command1");
        QCOMPARE(d.messages().size(), 2);  // only the file message: nothing is checked
        QVERIFY(code().contains(p("DESC", 0, "") + p("DESC", 1, "") + "<PARAM NAME=FONT VALUE=\"Arial\">\r\n" +
                                p("SIZE", 0, "") + p("SIZE", 1, "")));
        QVERIFY(code().contains(p("DESTURL", 0, "") + p("DESTURL", 1, "") + "</APPLET>\r\n"));
    }
    void changeOnAnEarlierPageIsLostAtDone()
    {
        toMessages();
        d.setText("FadeMsg", "Text5", "One");
        d.click("FadeMsg", "Command6");
        d.setText("FadeMsg", "Text5", "Two");
        d.click("FadeMsg", "Command5");
        d.setText("FadeMsg", "Text5", "One changed");
        d.click("FadeMsg", "Command1");
        QVERIFY(code().contains(p("DESC", 0, "One") + p("DESC", 1, "Two")));
    }
    void doneOnAnEmptyLastMessageIsRefused()
    {
        toMessages();
        d.click("FadeMsg", "Command1");
        const QJsonArray m = d.messages();
        QCOMPARE(messageText(m[0]), QString("You must enter text for your message."));
        QCOMPARE(messageStyle(m[0]), 48);
        QVERIFY(!d.loaded("Preview"));
    }
    void previousToPropertiesAndNextKeepsThePage()
    {
        toMessages();
        d.setText("FadeMsg", "Text5", "stays");
        d.click("FadeMsg", "Command5");
        QVERIFY(d.on("FadeMsg", "Picture1", "on_top").toBool());
        QCOMPARE(d.session().value("MessageIndex").toInt(), 0);
        d.click("FadeMsg", "Command7");
        QCOMPARE(d.text("FadeMsg", "Label6"), QString("Message  1"));
        QCOMPARE(d.text("FadeMsg", "Text5"), QString("stays"));
    }
    void elevenMessagesAtMost()
    {
        toMessages();
        for (int i = 0; i < 10; ++i) {
            d.setText("FadeMsg", "Text5", "m" + QString::number(i));
            d.click("FadeMsg", "Command6");
        }
        QCOMPARE(d.text("FadeMsg", "Label6"), QString("Message  11"));
        QVERIFY(!d.on("FadeMsg", "Command6", "enabled").toBool());
        d.setText("FadeMsg", "Text5", "m10");
        d.click("FadeMsg", "Command1");
        QVERIFY(code().contains(p("DESC", 10, "m10") + "<PARAM NAME=FONT"));
        QVERIFY(code().contains(p("DESTURL", 10, "") + "</APPLET>\r\n"));
    }
    void colourPicks()
    {
        open();
        const QList<std::pair<const char*, const char*>> picks = {
            {"Label1", "Combo6"}, {"Label2", "Combo4"}, {"Label14", "Combo3"}, {"Label17", "Combo5"}};
        for (const auto& [swatch, field] : picks) {
            d.ok({{"op", "answer_color"}, {"values", QJsonArray{4 + 5 * 256 + 6 * 65536}}});
            d.click("FadeMsg", swatch);
            QCOMPARE(d.text("FadeMsg", field), QString("4,5,6"));
        }
    }
    void helpAndMenu()
    {
        d.start();
        d.click("QLMain", "mnuFadeMsg");
        QVERIFY(d.shown("FadeMsg"));
        d.click("FadeMsg", "Command3");
        QCOMPARE(d.help(), (QJsonArray{QJsonArray{"FadeMsg", QJsonValue::Null}}));
    }

    // Re-edit.
    void reEditFillsEveryMessageButWritesTheFirst()
    {
        FadeMsgModel::Fields f{.appletWidth = "250", .appletHeight = "30", .align = "Top", .font = "Dialog",
                               .margin = "5", .count = 3};
        f.messages[0] = {"A \\ | ü", "10", "1,1,1", "2,2,2", "100", "a.html"};
        f.messages[1] = {"B", "11", "3,3,3", "4,4,4", "200", ""};
        f.messages[2] = {"C", "12", "5,5,5", "6,6,6", "300", "c.html"};
        const QString all = FadeMsgModel::emitCode(f);
        reEdit(all);
        QVERIFY(d.shown("FadeMsg"));
        QVERIFY(!d.modal("FadeMsg"));
        QCOMPARE(d.session().value("ReEditMode").toInt(), 0);
        QCOMPARE(d.text("FadeMsg", "Text2"), QString("250"));
        QCOMPARE(d.text("FadeMsg", "Text3"), QString("30"));
        QCOMPARE(d.text("FadeMsg", "Combo2"), QString("Top"));
        QCOMPARE(d.text("FadeMsg", "Combo1"), QString("Dialog"));
        QCOMPARE(d.text("FadeMsg", "Text1"), QString("5"));
        QCOMPARE(d.text("FadeMsg", "Text5"), QString("A \\ | ü"));
        QCOMPARE(d.text("FadeMsg", "Text6"), QString("a.html"));
        QCOMPARE(d.text("FadeMsg", "Combo4"), QString("1,1,1"));
        QCOMPARE(d.text("FadeMsg", "Combo6"), QString("2,2,2"));
        QCOMPARE(d.text("FadeMsg", "Text4"), QString("100"));
        QCOMPARE(d.text("FadeMsg", "Combo19"), QString("10"));
        // Done at once keeps message 0 alone.
        d.click("FadeMsg", "Command7");
        d.click("FadeMsg", "Command1");
        FadeMsgModel::Fields first = f;
        first.count = 1;
        QCOMPARE(code(), FadeMsgModel::emitCode(first));
        // Walking through every message writes them all again, the same.
        d.click("Preview", "Command14");
        d.click("FadeMsg", "Command6");
        QCOMPARE(d.text("FadeMsg", "Text5"), QString("B"));
        QCOMPARE(d.text("FadeMsg", "Text4"), QString("200"));
        d.click("FadeMsg", "Command6");
        QCOMPARE(d.text("FadeMsg", "Text5"), QString("C"));
        d.click("FadeMsg", "Command1");
        QCOMPARE(code(), all);
    }
};

QL_TEST_MAIN(FadeMsgTest)
#include "test_fademsg.moc"
