#include "TestSupport.h"
#include "effects/text/NavTickerModel.h"

#include <QApplication>

using namespace ql;

namespace {

const QString Head = "<PARAM NAME=\"Courtesy\" VALUE=\"NavigatorTicker applet (c) Copyright 1997 Harbour Point Media\">\r\n"
                     "<PARAM NAME=WIZARD VALUE=\"Created with Quillet.  Quillet Web site at: http://www.quillet-fx.com/\">\r\n";
const QString RequiredFiles =
    "You will need the following files in order for this special effect to work correctly:\r\n\r\n"
    "- the NavigatorTicker20.class file\r\n"
    "- the HTML document (Web page) containing the special effect HTML code\r\n\r\n"
    "These files MUST reside in the same folder!";

QString msg(int n, const QString& value)
{
    return "<PARAM NAME=MSG" + QString::number(n) + " VALUE=\"" + value + "\">\r\n";
}

}  // namespace

class NavTickerTest : public QObject {
    Q_OBJECT

    TestDriver d;

    void open()
    {
        d.start();
        d.click("QLMain", "Command14");
        QVERIFY(d.shown("NavTicker"));
    }
    void toMessages(const QString& width = "400", const QString& height = "30")
    {
        open();
        d.setText("NavTicker", "Text5", width);
        d.setText("NavTicker", "Text4", height);
        d.click("NavTicker", "Command2");
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
    void packingAndUnpacking()
    {
        const auto m = NavTickerModel::stored("Hello", "", "");
        QCOMPARE(m.link, QString("NULL"));
        QCOMPARE(m.frame, QString("NULL"));
        QCOMPARE(NavTickerModel::packed(m), QString("Hello    \\\\NULL\\\\NULL\\\\."));
        const auto back = NavTickerModel::unpacked(NavTickerModel::packed(m));
        QCOMPARE(back.text, QString("Hello    "));  // the four blanks stay
        QCOMPARE(back.link, QString("NULL"));
        QCOMPARE(back.frame, QString("NULL"));
        const auto none = NavTickerModel::unpacked("no separators");
        QCOMPARE(none, NavTickerModel::Message{});
        QCOMPARE(NavTickerModel::unpacked(""), NavTickerModel::Message{});
        const auto linked = NavTickerModel::unpacked("News    \\\\http://a.b/\\\\_top\\\\.");
        QCOMPARE(linked, (NavTickerModel::Message{"News    ", "http://a.b/", "_top"}));
        // Two backslashes in the text break the unpacking.
        const auto broken = NavTickerModel::unpacked(NavTickerModel::packed({"a\\\\b", "L", "F"}));
        QCOMPARE(broken.text, QString("a"));
        QCOMPARE(broken.link, QString("b    "));
        QCOMPARE(broken.frame, QString("L"));
    }
    void emissionWithDefaults()
    {
        NavTickerModel::Fields f{.appletWidth = "400", .appletHeight = "30"};
        f.messages[0] = NavTickerModel::stored("Hello", "", "");
        QCOMPARE(NavTickerModel::emitCode(f),
                 "<APPLET CODE=\"NavigatorTicker20.class\" WIDTH=\"400\" HEIGHT=\"30\">\r\n" + Head +
                     "<PARAM NAME=SPEED VALUE=\"3\">\r\n"
                     "<PARAM NAME=BGCO VALUE=\"255,255,255\">\r\n"
                     "<PARAM NAME=TXTCO VALUE=\"0,0,0\">\r\n"
                     "<PARAM NAME=LINKCO VALUE=\"0,0,255\">\r\n"
                     "<PARAM NAME=COUNT VALUE=\"1\">\r\n" +
                     msg(0, "Hello    \\\\NULL\\\\NULL\\\\.") + "</APPLET>\r\n");
    }
    void emissionWithEveryField()
    {
        NavTickerModel::Fields f{.appletWidth = "468", .appletHeight = "22", .align = "Bottom(Default)",
                                 .backgroundColor = "Yellow                255,255,0", .textColor = "10,20,30",
                                 .linkColor = "Red                   255,0,0", .border = false, .speed = 10,
                                 .count = 2};
        f.messages[0] = NavTickerModel::stored("A \"q\" | ü", "http://x/", "_blank");
        f.messages[1] = NavTickerModel::stored("B", "b.html", "");
        QCOMPARE(NavTickerModel::emitCode(f),
                 "<APPLET CODE=\"NavigatorTicker20.class\" WIDTH=\"468\" HEIGHT=\"22\" ALIGN=\"Bottom(Default)\">\r\n" +
                     Head +
                     "<PARAM NAME=SPEED VALUE=\"10\">\r\n"
                     "<PARAM NAME=BGCO VALUE=\"255,255,0\">\r\n"
                     "<PARAM NAME=TXTCO VALUE=\"10,20,30\">\r\n"
                     "<PARAM NAME=LINKCO VALUE=\"255,0,0\">\r\n"
                     "<PARAM NAME=BORDER VALUE=\"NO\">\r\n"
                     "<PARAM NAME=COUNT VALUE=\"2\">\r\n" +
                     msg(0, "A \"q\" | ü    \\\\http://x/\\\\_blank\\\\.") + msg(1, "B    \\\\b.html\\\\NULL\\\\.") +
                     "</APPLET>\r\n");
    }
    void propertiesCheck()
    {
        auto r = NavTickerModel::validateProperties({.appletWidth = "1"});
        QCOMPARE(r->text, QString("Applet width and height properties are required.  Please enter them."));
        QCOMPARE(r->style, 0);
        QCOMPARE(r->focus, QString("Text5"));
        QVERIFY(!NavTickerModel::validateProperties({.appletWidth = "1", .appletHeight = "1"}));
    }

    // The form.
    void formOpensOnItsPropertiesPage()
    {
        open();
        QVERIFY(d.modal("NavTicker"));
        QCOMPARE(d.text("NavTicker", "NavTicker"), QString("Navigator Ticker"));
        QVERIFY(d.on("NavTicker", "Picture1", "on_top").toBool());
        QCOMPARE(d.text("NavTicker", "Frame2"), QString("Applet Properties"));
        QCOMPARE(d.text("NavTicker", "Label18"), QString("Enter the Navigator Ticker properties in the boxes below.  "));
        QCOMPARE(d.text("NavTicker", "Label2"), QString("Applet Width (pixels):"));
        QCOMPARE(d.text("NavTicker", "Label3"), QString("Applet Height (pixels):"));
        QCOMPARE(d.text("NavTicker", "Label5"), QString("Alignment to neighboring text:"));
        QCOMPARE(d.text("NavTicker", "Label7"), QString("Background Color:"));
        QCOMPARE(d.text("NavTicker", "Label8"), QString("Text Color:"));
        QCOMPARE(d.text("NavTicker", "Label9"), QString("Link Color (when user passes mouse over text):"));
        for (const char* swatch : {"Label1", "Label14", "Label17"})
            QCOMPARE(d.text("NavTicker", swatch), QString("Select"));
        QCOMPARE(d.text("NavTicker", "Check1"), QString("3D Border around Ticker?"));
        QCOMPARE(d.on("NavTicker", "Check1", "checked").toInt(), 1);
        QCOMPARE(d.text("NavTicker", "Label11"), QString("Scrolling speed:"));
        QCOMPARE(d.text("NavTicker", "Label12"), QString("Slow"));
        QCOMPARE(d.text("NavTicker", "Label13"), QString("Fast"));
        QCOMPARE(d.on("NavTicker", "Slider1", "value").toInt(), 3);
        const QJsonObject range = d.on("NavTicker", "Slider1", "range").toObject();
        QCOMPARE(range, (QJsonObject{{"min", 1}, {"max", 10}, {"small", 1}, {"large", 4}, {"tick", 1}}));
        QCOMPARE(d.text("NavTicker", "Command2"), QString("&Next >>"));
        QCOMPARE(d.on("NavTicker", "Command4", "tooltip").toString(), QString("Click here for help"));
        QCOMPARE(d.on("NavTicker", "Combo2", "items").toArray(),
                 (QJsonArray{"Top", "Middle", "Bottom(Default)", "Left", "Right", "Texttop", "Absmiddle", "Baseline",
                             "Absbottom"}));
        const QJsonArray colours{"Black                 0,0,0",     "Blue                  0,0,255",
                                 "Red                   255,0,0",   "Green                 0,255,0",
                                 "Cyan                  0,255,255", "Magenta               255,0,255",
                                 "Yellow                255,255,0", "White                 255,255,255"};
        for (const char* combo : {"Combo3", "Combo4", "Combo5"})
            QCOMPARE(d.on("NavTicker", combo, "items").toArray(), colours);
        QCOMPARE(d.on("NavTicker", "Combo1", "items").toArray(), (QJsonArray{"_blank", "_parent", "_self", "_top"}));
        // Page two.
        QCOMPARE(d.text("NavTicker", "Label10"), QString("Example:"));
        QCOMPARE(d.text("NavTicker", "Frame1"), QString("Ticker Text and Link Settings"));
        QCOMPARE(d.text("NavTicker", "Label15"), QString("Type text message to scroll in ticker:"));
        QCOMPARE(d.text("NavTicker", "Label16"), QString("When user clicks on ticker text load this Web page (URL):"));
        QCOMPARE(d.text("NavTicker", "Label19"), QString("Frame to Target (optional):"));
        QCOMPARE(d.text("NavTicker", "Command5"), QString("<< &Previous"));
        QCOMPARE(d.text("NavTicker", "Command6"), QString("&Next >>"));
        QCOMPARE(d.text("NavTicker", "Command1"), QString("&Done"));
        QCOMPARE(d.on("NavTicker", "Command3", "tooltip").toString(), QString("Click here for help"));
    }
    void propertiesNextRefusesWithoutSize()
    {
        open();
        d.setText("NavTicker", "Text4", "30");
        d.click("NavTicker", "Command2");
        const QJsonArray m = d.messages();
        QCOMPARE(m.size(), 1);
        QCOMPARE(messageText(m[0]), QString("Applet width and height properties are required.  Please enter them."));
        QCOMPARE(messageStyle(m[0]), 0);
        QCOMPARE(d.on("NavTicker", "NavTicker", "focus").toString(), QString("Text5"));
        QVERIFY(d.on("NavTicker", "Picture1", "on_top").toBool());
    }
    void oneMessageHelloWithDefaults()
    {
        toMessages();
        QVERIFY(d.on("NavTicker", "Picture2", "on_top").toBool());
        QCOMPARE(d.text("NavTicker", "Label6"), QString("Message  1"));
        QCOMPARE(d.session().value("MessageIndex").toInt(), 0);
        d.setText("NavTicker", "Text1", "Hello");
        d.click("NavTicker", "Command1");
        const QString expected = "<APPLET CODE=\"NavigatorTicker20.class\" WIDTH=\"400\" HEIGHT=\"30\">\r\n" + Head +
                                 "<PARAM NAME=SPEED VALUE=\"3\">\r\n"
                                 "<PARAM NAME=BGCO VALUE=\"255,255,255\">\r\n"
                                 "<PARAM NAME=TXTCO VALUE=\"0,0,0\">\r\n"
                                 "<PARAM NAME=LINKCO VALUE=\"0,0,255\">\r\n"
                                 "<PARAM NAME=COUNT VALUE=\"1\">\r\n" +
                                 msg(0, "Hello    \\\\NULL\\\\NULL\\\\.") + "</APPLET>\r\n";
        QCOMPARE(code(), expected);
        const QJsonObject s = d.session();
        QCOMPARE(s.value("EffectId").toInt(), 14);
        QCOMPARE(s.value("RequiredClasses").toArray(), (QJsonArray{"NavigatorTicker20.class", "", ""}));
        const QJsonArray m = d.messages();
        QCOMPARE(m.size(), 1);
        QCOMPARE(messageText(m[0]), RequiredFiles);
        QCOMPARE(messageStyle(m[0]), 48);
        QVERIFY(!d.shown("NavTicker"));
        QVERIFY(d.shown("Preview"));
        QCOMPARE(d.text("Preview", "Label3"), QString(" Required Java class files:  NavigatorTicker20.Class"));
    }
    void borderOffStandsBetweenLinkColourAndCount()
    {
        open();
        d.setText("NavTicker", "Text5", "1");
        d.setText("NavTicker", "Text4", "2");
        d.click("NavTicker", "Check1");
        d.on("NavTicker", "Slider1", "set_value", {{"value", 7}});
        d.on("NavTicker", "Combo2", "choose", {{"item", "Middle"}});
        d.click("NavTicker", "Command2");
        d.setText("NavTicker", "Text1", "x");
        d.click("NavTicker", "Command1");
        QVERIFY(code().startsWith("<APPLET CODE=\"NavigatorTicker20.class\" WIDTH=\"1\" HEIGHT=\"2\" ALIGN=\"Middle\">\r\n"));
        QVERIFY(code().contains("<PARAM NAME=SPEED VALUE=\"7\">\r\n"));
        QVERIFY(code().contains("<PARAM NAME=LINKCO VALUE=\"0,0,255\">\r\n<PARAM NAME=BORDER VALUE=\"NO\">\r\n"
                                "<PARAM NAME=COUNT VALUE=\"1\">\r\n"));
    }
    void walkingThroughMessages()
    {
        toMessages();
        d.setText("NavTicker", "Text1", "One");
        d.setText("NavTicker", "Text2", "one.html");
        d.setText("NavTicker", "Combo1", "_top");
        d.click("NavTicker", "Command6");
        QCOMPARE(d.text("NavTicker", "Label6"), QString("Message  2"));
        QCOMPARE(d.text("NavTicker", "Text1"), QString());
        QCOMPARE(d.text("NavTicker", "Text2"), QString());
        QCOMPARE(d.text("NavTicker", "Combo1"), QString());
        QCOMPARE(d.on("NavTicker", "NavTicker", "focus").toString(), QString("Text1"));
        d.setText("NavTicker", "Text1", "Two");
        d.click("NavTicker", "Command5");  // back to the first
        QCOMPARE(d.text("NavTicker", "Label6"), QString("Message  1"));
        QCOMPARE(d.text("NavTicker", "Text1"), QString("One"));
        QCOMPARE(d.text("NavTicker", "Text2"), QString("one.html"));
        QCOMPARE(d.text("NavTicker", "Combo1"), QString("_top"));
        d.click("NavTicker", "Command6");
        QCOMPARE(d.text("NavTicker", "Text1"), QString("Two"));
        QCOMPARE(d.text("NavTicker", "Text2"), QString("NULL"));  // what the page shows of a missing link
        QCOMPARE(d.text("NavTicker", "Combo1"), QString("NULL"));
        d.click("NavTicker", "Command1");
        QVERIFY(code().contains("<PARAM NAME=COUNT VALUE=\"2\">\r\n" + msg(0, "One    \\\\one.html\\\\_top\\\\.") +
                                msg(1, "Two    \\\\NULL\\\\NULL\\\\.") + "</APPLET>\r\n"));
    }
    void emptyMessageRefusedButTheCountHasRisen()
    {
        toMessages();
        d.click("NavTicker", "Command6");
        QJsonArray m = d.messages();
        QCOMPARE(m.size(), 1);
        QCOMPARE(messageText(m[0]), QString("You must enter text for your message."));
        QCOMPARE(messageStyle(m[0]), 0);
        QCOMPARE(d.on("NavTicker", "NavTicker", "focus").toString(), QString("Text1"));
        // Done now stands on a page that is not the last by the test: nothing
        // is stored, and two messages are written, both never stored.
        d.click("NavTicker", "Command1");
        QCOMPARE(d.messages().size(), 2);
        QVERIFY(code().contains("<PARAM NAME=COUNT VALUE=\"2\">\r\n" + msg(0, "    \\\\\\\\\\\\.") +
                                msg(1, "    \\\\\\\\\\\\.") + "</APPLET>\r\n"));
    }
    void doneOnAnEmptyLastMessageIsRefused()
    {
        toMessages();
        d.click("NavTicker", "Command1");
        const QJsonArray m = d.messages();
        QCOMPARE(m.size(), 1);
        QCOMPARE(messageText(m[0]), QString("You must enter text for your message."));
        QCOMPARE(messageStyle(m[0]), 48);
        QVERIFY(d.shown("NavTicker"));
        QVERIFY(!d.loaded("Preview"));
    }
    void elevenMessagesAtMost()
    {
        toMessages();
        for (int i = 0; i < 10; ++i) {
            QVERIFY(d.on("NavTicker", "Command6", "enabled").toBool());
            d.setText("NavTicker", "Text1", "m" + QString::number(i));
            d.click("NavTicker", "Command6");
        }
        QCOMPARE(d.text("NavTicker", "Label6"), QString("Message  11"));
        QCOMPARE(d.session().value("MessageIndex").toInt(), 10);
        QVERIFY(!d.on("NavTicker", "Command6", "enabled").toBool());
        d.setText("NavTicker", "Text1", "m10");
        d.click("NavTicker", "Command1");
        QVERIFY(code().contains("<PARAM NAME=COUNT VALUE=\"11\">\r\n"));
        QVERIFY(code().contains(msg(10, "m10    \\\\NULL\\\\NULL\\\\.") + "</APPLET>\r\n"));
        d.click("Preview", "Command14");
        d.click("NavTicker", "Command5");
        QVERIFY(d.on("NavTicker", "Command6", "enabled").toBool());
    }
    void previousFromTheFirstMessageGoesBackToProperties()
    {
        toMessages();
        d.setText("NavTicker", "Text1", "kept");
        d.click("NavTicker", "Command5");
        QVERIFY(d.on("NavTicker", "Picture1", "on_top").toBool());
        QCOMPARE(d.session().value("MessageIndex").toInt(), 0);
        d.click("NavTicker", "Command2");
        QCOMPARE(d.text("NavTicker", "Label6"), QString("Message  1"));
        QCOMPARE(d.text("NavTicker", "Text1"), QString("kept"));
    }
    void colourPicks()
    {
        open();
        const QList<std::pair<const char*, const char*>> picks = {
            {"Label1", "Combo4"}, {"Label14", "Combo3"}, {"Label17", "Combo5"}};
        for (const auto& [swatch, field] : picks) {
            d.ok({{"op", "answer_color"}, {"values", QJsonArray{1 + 2 * 256 + 3 * 65536}}});
            d.click("NavTicker", swatch);
            QCOMPARE(d.text("NavTicker", field), QString("1,2,3"));
        }
    }
    void helpAndCloseBox()
    {
        open();
        d.click("NavTicker", "Command4");
        QCOMPARE(d.help(), (QJsonArray{QJsonArray{"NavTicker", QJsonValue::Null}}));
        d.on("NavTicker", "NavTicker", "close");
        QVERIFY(!d.loaded("NavTicker"));
        d.click("QLMain", "mnuNavTicker");
        QVERIFY(d.shown("NavTicker"));
    }

    // Re-edit.
    void reEditRoundTripOfOneMessageAddsFourBlanks()
    {
        NavTickerModel::Fields f{.appletWidth = "300", .appletHeight = "20", .align = "Top",
                                 .backgroundColor = "0,0,0", .textColor = "255,255,255", .linkColor = "255,0,0",
                                 .speed = 8};
        f.messages[0] = NavTickerModel::stored("Hi \\ | ü", "a.html", "_self");
        const QString first = NavTickerModel::emitCode(f);
        reEdit(first);
        QVERIFY(d.shown("NavTicker"));
        QVERIFY(!d.modal("NavTicker"));
        QCOMPARE(d.session().value("ReEditMode").toInt(), 0);
        QCOMPARE(d.text("NavTicker", "Text5"), QString("300"));
        QCOMPARE(d.text("NavTicker", "Text4"), QString("20"));
        QCOMPARE(d.text("NavTicker", "Combo2"), QString("Top"));
        QCOMPARE(d.on("NavTicker", "Slider1", "value").toInt(), 8);
        QCOMPARE(d.text("NavTicker", "Combo5"), QString("0,0,0"));
        QCOMPARE(d.text("NavTicker", "Combo3"), QString("255,255,255"));
        QCOMPARE(d.text("NavTicker", "Combo4"), QString("255,0,0"));
        QCOMPARE(d.text("NavTicker", "Text1"), QString("Hi \\ | ü    "));
        QCOMPARE(d.text("NavTicker", "Text2"), QString("a.html"));
        QCOMPARE(d.text("NavTicker", "Combo1"), QString("_self"));
        d.click("NavTicker", "Command2");
        d.click("NavTicker", "Command1");
        QCOMPARE(code(), QString(first).replace("Hi \\ | ü    ", "Hi \\ | ü        "));
    }
    void reEditKeepsTheBorderOnAndTheCountAtOne()
    {
        NavTickerModel::Fields f{.appletWidth = "300", .appletHeight = "20", .border = false, .count = 3};
        for (int i = 0; i < 3; ++i)
            f.messages[i] = NavTickerModel::stored("m" + QString::number(i), "", "");
        reEdit(NavTickerModel::emitCode(f));
        QCOMPARE(d.on("NavTicker", "Check1", "checked").toInt(), 1);
        d.click("NavTicker", "Command2");
        d.click("NavTicker", "Command1");
        QVERIFY(!code().contains("BORDER"));
        QVERIFY(code().contains("<PARAM NAME=COUNT VALUE=\"1\">\r\n" + msg(0, "m0        \\\\NULL\\\\NULL\\\\.") +
                                "</APPLET>"));
        // Walking through brings the second one back.
        d.click("Preview", "Command14");
        d.click("NavTicker", "Command6");
        QCOMPARE(d.text("NavTicker", "Text1"), QString("m1    "));
        d.click("NavTicker", "Command1");
        QVERIFY(code().contains("<PARAM NAME=COUNT VALUE=\"2\">\r\n"));
        QVERIFY(code().contains(msg(1, "m1        \\\\NULL\\\\NULL\\\\.")));
    }
};

QL_TEST_MAIN(NavTickerTest)
#include "test_navticker.moc"
