#include "TestSupport.h"
#include "core/Emission.h"
#include "effects/text/SmoothScrollModel.h"

#include <QApplication>

using namespace ql;

namespace {

const QString Wizard = "<PARAM NAME=WIZARD VALUE=\"Created with Quillet.  Quillet Web site at: http://www.quillet-fx.com/\">\r\n";
const QString LtrNotice = "<PARAM NAME=Notice VALUE=\"LTRScroll applet (c) Copyright 1998 Kestrel Applets\">\r\n";
const QString RtlNotice = "<PARAM NAME=Notice VALUE=\"RTLScroll applet (c) Copyright 1998 Kestrel Applets\">\r\n";

QString requiredFiles(const QString& classFile)
{
    return "You will need the following files in order for this special effect to work correctly:\r\n\r\n"
           "- the " + classFile + " file\r\n"
           "- the HTML document (Web page) containing the special effect HTML code\r\n\r\n"
           "These files MUST reside in the same folder!";
}

SmoothScrollModel::Fields minimal()
{
    return {.text = "Scroll", .appletWidth = "400", .appletHeight = "30"};
}

}  // namespace

class SmoothScrollTest : public QObject {
    Q_OBJECT

    TestDriver d;

    void open()
    {
        d.start();
        d.click("QLMain", "Command13");
        QVERIFY(d.shown("SmoothScroll"));
    }
    void reEdit(const QString& code)
    {
        d.start();
        d.click("QLMain", "mnuEditApplet");
        d.setText("EditAppletForm", "Text1", code);
        d.click("EditAppletForm", "Command1");
    }

private slots:
    // The model alone.
    void emissionWithDefaults()
    {
        QCOMPARE(SmoothScrollModel::emitCode(minimal()),
                 "<APPLET CODE=\"LTRScroll.class\" HEIGHT=\"30\" WIDTH=\"400\">\r\n" + LtrNotice + Wizard +
                     "<PARAM NAME=MESSAGE VALUE=\"Scroll\">\r\n"
                     "<PARAM NAME=SPEED VALUE=\"31\">\r\n"
                     "<PARAM NAME=JUMP VALUE=\"1\">\r\n"
                     "</APPLET>\r\n");
    }
    void emissionWithEveryField()
    {
        SmoothScrollModel::Fields f{.text = "News of the day", .font = "Helvetica", .fontSize = "14",
                                    .textColor = "Red  -                 16711680", .rightToLeft = true, .speed = 30,
                                    .appletWidth = "468", .appletHeight = "24", .backgroundColor = "65535"};
        QCOMPARE(SmoothScrollModel::emitCode(f),
                 "<APPLET CODE=\"RTLScroll.class\" HEIGHT=\"24\" WIDTH=\"468\">\r\n" + RtlNotice + Wizard +
                     "<PARAM NAME=MESSAGE VALUE=\"News of the day\">\r\n"
                     "<PARAM NAME=FONT VALUE=\"Helvetica\">\r\n"
                     "<PARAM NAME=SIZE VALUE=\"14\">\r\n"
                     "<PARAM NAME=SPEED VALUE=\"11\">\r\n"
                     "<PARAM NAME=JUMP VALUE=\"1\">\r\n"
                     "<PARAM NAME=BGCOLOR VALUE=\"65535\">\r\n"
                     "<PARAM NAME=TEXTCOLOR VALUE=\"16711680\">\r\n"
                     "</APPLET>\r\n");
    }
    void speedIsTurnedOver()
    {
        QCOMPARE(SmoothScrollModel::speedValue(40), QString("1"));
        QCOMPARE(SmoothScrollModel::speedValue(1), QString("40"));
        QCOMPARE(SmoothScrollModel::speedValue(10), QString("31"));
        for (int s : {1, 10, 40}) {
            auto f = minimal();
            f.speed = s;
            QVERIFY(SmoothScrollModel::emitCode(f).contains(
                ParamLine("SPEED", QString::number(41 - s)) + "<PARAM NAME=JUMP VALUE=\"1\">\r\n"));
        }
    }
    void colourValueIsTheLastElevenCharactersTrimmed()
    {
        auto f = minimal();
        f.backgroundColor = "White  -               16777215";
        f.textColor = "Black  -               0";
        const QString code = SmoothScrollModel::emitCode(f);
        QVERIFY(code.contains("<PARAM NAME=BGCOLOR VALUE=\"16777215\">\r\n<PARAM NAME=TEXTCOLOR VALUE=\"0\">\r\n"));
        f.textColor = "a long typed colour 123";  // the last 11 characters
        QVERIFY(SmoothScrollModel::emitCode(f).contains("<PARAM NAME=TEXTCOLOR VALUE=\"colour 123\">\r\n"));
    }
    void valuesAreCopiedUnescaped()
    {
        auto f = minimal();
        f.text = "a \"quote\" \\ back | ünï\r\nline";
        QVERIFY(SmoothScrollModel::emitCode(f).contains(
            "<PARAM NAME=MESSAGE VALUE=\"a \"quote\" \\ back | ünï\r\nline\">\r\n"));
    }
    void pickedColoursAreOneNumber()
    {
        QCOMPARE(SmoothScrollModel::colorNumber(255), QString("16711680"));  // pure red
        QCOMPARE(SmoothScrollModel::colorNumber(255u * 65536), QString("255"));
        QCOMPARE(SmoothScrollModel::colorNumber(0x00FF00), QString("65280"));
        QCOMPARE(SmoothScrollModel::colorNumber(0), QString("0"));
    }
    void validationOrder()
    {
        SmoothScrollModel::Fields f;
        auto r = SmoothScrollModel::validate(f);
        QCOMPARE(r->text, QString("Applet width and height properties are required.  Please enter them."));
        QCOMPARE(r->style, 48);
        QCOMPARE(r->focus, QString("Text2"));
        f.appletWidth = "1";
        QCOMPARE(SmoothScrollModel::validate(f)->focus, QString("Text2"));
        f.appletHeight = "1";
        r = SmoothScrollModel::validate(f);
        QCOMPARE(r->text, QString("You must type something in the text box."));
        QCOMPARE(r->style, 48);
        QCOMPARE(r->focus, QString("Text1"));
        f.text = std::string(5000, 'x').c_str();  // longer than any ticker: not refused
        QVERIFY(!SmoothScrollModel::validate(f));
    }
    void handOverFollowsTheDirection()
    {
        auto f = minimal();
        HandOver h = SmoothScrollModel::handOver(f);
        QCOMPARE(h.classes, QStringList{"LTRScroll.class"});
        QCOMPARE(h.fileLines, QStringList{"- the LTRScroll.class file"});
        QCOMPARE(h.effectId, qint16(12));
        f.rightToLeft = true;
        h = SmoothScrollModel::handOver(f);
        QCOMPARE(h.classes, QStringList{"RTLScroll.class"});
        QCOMPARE(h.fileLines, QStringList{"- the RTLScroll.class file"});
        QVERIFY(h.code.startsWith("<APPLET CODE=\"RTLScroll.class\""));
    }

    // The form.
    void formOpensWithItsCaptionsAndDefaults()
    {
        open();
        QVERIFY(d.modal("SmoothScroll"));
        QCOMPARE(d.text("SmoothScroll", "SmoothScroll"), QString("Smooth Scrolling Text Ticker"));
        QCOMPARE(d.text("SmoothScroll", "Label3"),
                 QString("Enter the text you wish to scroll (text should not be longer than the Ticker width):"));
        QCOMPARE(d.text("SmoothScroll", "Frame3"), QString("Text Properties"));
        QCOMPARE(d.text("SmoothScroll", "Frame1"), QString("Scrolling Properties"));
        QCOMPARE(d.text("SmoothScroll", "Frame2"), QString("Text Ticker Properties"));
        QCOMPARE(d.text("SmoothScroll", "Label4"), QString("Font:"));
        QCOMPARE(d.text("SmoothScroll", "Label5"), QString("Font Size (points):"));
        QCOMPARE(d.text("SmoothScroll", "Label6"), QString("Text Color:"));
        QCOMPARE(d.text("SmoothScroll", "Label7"), QString("Scrolling speed:"));
        QCOMPARE(d.text("SmoothScroll", "Label8"), QString("Slow"));
        QCOMPARE(d.text("SmoothScroll", "Label9"), QString("Fast"));
        QCOMPARE(d.text("SmoothScroll", "Label10"), QString("Width (pixels):"));
        QCOMPARE(d.text("SmoothScroll", "Label11"), QString("Height (pixels):"));
        QCOMPARE(d.text("SmoothScroll", "Label12"), QString("Background Color:"));
        QCOMPARE(d.text("SmoothScroll", "Option1"), QString("Right to Left"));
        QCOMPARE(d.text("SmoothScroll", "Option2"), QString("Left to Right"));
        QVERIFY(!d.on("SmoothScroll", "Option1", "checked").toBool());
        QVERIFY(d.on("SmoothScroll", "Option2", "checked").toBool());
        QCOMPARE(d.on("SmoothScroll", "Slider1", "value").toInt(), 10);
        const QJsonObject range = d.on("SmoothScroll", "Slider1", "range").toObject();
        QCOMPARE(range.value("min").toInt(), 1);
        QCOMPARE(range.value("max").toInt(), 40);
        QCOMPARE(range.value("small").toInt(), 1);
        QCOMPARE(range.value("large").toInt(), 4);
        QCOMPARE(range.value("tick").toInt(), 3);
        for (const char* swatch : {"Label1", "Label2"}) {
            QCOMPARE(d.text("SmoothScroll", swatch), QString("Select"));
            QCOMPARE(d.on("SmoothScroll", swatch, "tooltip").toString(), QString("Click here to select a color"));
        }
        const QJsonArray colours{"Black  -               0",        "Blue  -                255",
                                 "Red  -                 16711680", "Green  -               65280",
                                 "Cyan  -                65535",    "Magenta  -             16711935",
                                 "Yellow  -              16776960", "White  -               16777215"};
        QCOMPARE(d.on("SmoothScroll", "Combo4", "items").toArray(), colours);
        QCOMPARE(d.on("SmoothScroll", "Combo6", "items").toArray(), colours);
        QCOMPARE(d.on("SmoothScroll", "Combo1", "items").toArray(),
                 (QJsonArray{"Arial", "Courier", "Dialog", "Helvetica", "TimesRoman"}));
        QCOMPARE(d.on("SmoothScroll", "Combo19", "items").toArray().size(), 18);
        for (const char* field : {"Text1", "Combo1", "Combo19", "Combo6", "Text2", "Text3", "Combo4"})
            QCOMPARE(d.text("SmoothScroll", field), QString());
        QCOMPARE(d.text("SmoothScroll", "Command1"), QString("&Done"));
        QCOMPARE(d.text("SmoothScroll", "Command2"), QString("&Cancel"));
        QCOMPARE(d.on("SmoothScroll", "Command4", "tooltip").toString(), QString("Click here for help"));
    }
    void refusalsInTheirOrderWithFocus()
    {
        open();
        d.setText("SmoothScroll", "Text1", "x");
        d.setText("SmoothScroll", "Text3", "20");
        d.click("SmoothScroll", "Command1");
        QJsonArray m = d.messages();
        QCOMPARE(m.size(), 1);
        QCOMPARE(messageText(m[0]), QString("Applet width and height properties are required.  Please enter them."));
        QCOMPARE(messageStyle(m[0]), 48);
        QCOMPARE(d.on("SmoothScroll", "SmoothScroll", "focus").toString(), QString("Text2"));
        d.setText("SmoothScroll", "Text2", "200");
        d.setText("SmoothScroll", "Text1", "");
        d.click("SmoothScroll", "Command1");
        m = d.messages();
        QCOMPARE(m.size(), 2);
        QCOMPARE(messageText(m[1]), QString("You must type something in the text box."));
        QCOMPARE(messageStyle(m[1]), 48);
        QCOMPARE(d.on("SmoothScroll", "SmoothScroll", "focus").toString(), QString("Text1"));
        QVERIFY(!d.loaded("Preview"));
        QCOMPARE(d.session().value("EffectId").toInt(), 0);
    }
    void doneLeftToRight()
    {
        open();
        d.setText("SmoothScroll", "Text1", "Hello");
        d.setText("SmoothScroll", "Text2", "300");
        d.setText("SmoothScroll", "Text3", "40");
        d.on("SmoothScroll", "Combo6", "choose", {{"item", "Blue  -                255"}});
        d.click("SmoothScroll", "Command1");
        const QString expected = "<APPLET CODE=\"LTRScroll.class\" HEIGHT=\"40\" WIDTH=\"300\">\r\n" + LtrNotice +
                                 Wizard +
                                 "<PARAM NAME=MESSAGE VALUE=\"Hello\">\r\n"
                                 "<PARAM NAME=SPEED VALUE=\"31\">\r\n"
                                 "<PARAM NAME=JUMP VALUE=\"1\">\r\n"
                                 "<PARAM NAME=TEXTCOLOR VALUE=\"255\">\r\n"
                                 "</APPLET>\r\n";
        const QJsonObject s = d.session();
        QCOMPARE(s.value("GeneratedCode").toString(), expected);
        QCOMPARE(s.value("EffectId").toInt(), 12);
        QCOMPARE(s.value("RequiredClasses").toArray(), (QJsonArray{"LTRScroll.class", "", ""}));
        const QJsonArray m = d.messages();
        QCOMPARE(m.size(), 1);
        QCOMPARE(messageText(m[0]), requiredFiles("LTRScroll.class"));
        QCOMPARE(messageStyle(m[0]), 48);
        QVERIFY(!d.shown("SmoothScroll"));
        QVERIFY(d.shown("Preview"));
        QCOMPARE(d.text("Preview", "Label3"), QString(" Required Java class files:  LTRScroll.class"));
    }
    void doneRightToLeftWithTheSliderAtItsEnds()
    {
        open();
        d.setText("SmoothScroll", "Text1", "Hello");
        d.setText("SmoothScroll", "Text2", "300");
        d.setText("SmoothScroll", "Text3", "40");
        d.click("SmoothScroll", "Option1");
        d.on("SmoothScroll", "Slider1", "set_value", {{"value", 40}});
        d.click("SmoothScroll", "Command1");
        QString code = d.session().value("GeneratedCode").toString();
        QVERIFY(code.startsWith("<APPLET CODE=\"RTLScroll.class\" HEIGHT=\"40\" WIDTH=\"300\">\r\n" + RtlNotice));
        QVERIFY(code.contains("<PARAM NAME=SPEED VALUE=\"1\">\r\n<PARAM NAME=JUMP VALUE=\"1\">\r\n"));
        QCOMPARE(d.session().value("RequiredClasses").toArray(), (QJsonArray{"RTLScroll.class", "", ""}));
        QCOMPARE(messageText(d.messages()[0]), requiredFiles("RTLScroll.class"));
        QCOMPARE(d.text("Preview", "Label3"), QString(" Required Java class files:  RTLScroll.class"));
        // Back to the form, the slider to its low end.
        d.click("Preview", "Command14");
        QVERIFY(d.shown("SmoothScroll"));
        d.on("SmoothScroll", "Slider1", "set_value", {{"value", 1}});
        d.click("SmoothScroll", "Option2");
        d.click("SmoothScroll", "Command1");
        code = d.session().value("GeneratedCode").toString();
        QVERIFY(code.startsWith("<APPLET CODE=\"LTRScroll.class\""));
        QVERIFY(code.contains("<PARAM NAME=SPEED VALUE=\"40\">\r\n<PARAM NAME=JUMP VALUE=\"1\">\r\n"));
        QCOMPARE(d.text("Preview", "Label3"), QString(" Required Java class files:  LTRScroll.class"));
    }
    void pickedColourIsOneNumber()
    {
        open();
        d.ok({{"op", "answer_color"}, {"values", QJsonArray{255}}});
        d.click("SmoothScroll", "Label1");
        QCOMPARE(d.text("SmoothScroll", "Combo6"), QString("16711680"));
        QCOMPARE(d.text("SmoothScroll", "Label1"), QString(""));
        QCOMPARE(d.on("SmoothScroll", "Label1", "back_color").toInt(), 255);
        d.ok({{"op", "answer_color"}, {"values", QJsonArray{0x102030}}});
        d.click("SmoothScroll", "Label2");
        QCOMPARE(d.text("SmoothScroll", "Combo4"), QString::number(0x30 * 65536 + 0x20 * 256 + 0x10));
        d.ok({{"op", "answer_color"}, {"values", QJsonArray{QJsonValue::Null}}});
        d.click("SmoothScroll", "Label2");
        QCOMPARE(d.text("SmoothScroll", "Combo4"), QString::number(0x30 * 65536 + 0x20 * 256 + 0x10));
    }
    void cancelUnloadsAndHelpOpensTheTopic()
    {
        open();
        d.click("SmoothScroll", "Command4");
        QCOMPARE(d.help(), (QJsonArray{QJsonArray{"SmoothScroll", QJsonValue::Null}}));
        d.click("SmoothScroll", "Command2");
        QVERIFY(!d.loaded("SmoothScroll"));
        d.click("QLMain", "mnuSmoothScroll");
        QVERIFY(d.shown("SmoothScroll"));
    }

    // Re-edit.
    void reEditRoundTripOfLeftToRight()
    {
        SmoothScrollModel::Fields f{.text = "Round \\ trip | ü", .font = "Dialog", .fontSize = "12",
                                    .textColor = "65280", .speed = 21, .appletWidth = "250",
                                    .appletHeight = "20", .backgroundColor = "0"};
        const QString code = SmoothScrollModel::emitCode(f);
        reEdit(code);
        QVERIFY(d.shown("SmoothScroll"));
        QVERIFY(!d.modal("SmoothScroll"));
        QCOMPARE(d.text("SmoothScroll", "Text1"), f.text);
        QCOMPARE(d.text("SmoothScroll", "Combo1"), QString("Dialog"));
        QCOMPARE(d.text("SmoothScroll", "Combo19"), QString("12"));
        QCOMPARE(d.text("SmoothScroll", "Combo6"), QString("65280"));
        QCOMPARE(d.text("SmoothScroll", "Combo4"), QString("0"));
        QCOMPARE(d.text("SmoothScroll", "Text2"), QString("250"));
        QCOMPARE(d.text("SmoothScroll", "Text3"), QString("20"));
        // SPEED 20 comes back at 20 and goes out as 21: at 21 the value is its own turn.
        QCOMPARE(d.on("SmoothScroll", "Slider1", "value").toInt(), 20);
        QCOMPARE(d.session().value("ReEditMode").toInt(), 0);
        d.on("SmoothScroll", "Slider1", "set_value", {{"value", 21}});
        d.click("SmoothScroll", "Command1");
        QCOMPARE(d.session().value("GeneratedCode").toString(), code);
    }
    void reEditTurnsTheSpeedOverAndLosesTheDirection()
    {
        SmoothScrollModel::Fields f = minimal();
        f.rightToLeft = true;
        f.speed = 30;  // SPEED "11"
        reEdit(SmoothScrollModel::emitCode(f));
        QVERIFY(d.shown("SmoothScroll"));
        QCOMPARE(d.on("SmoothScroll", "Slider1", "value").toInt(), 11);
        QVERIFY(!d.on("SmoothScroll", "Option1", "checked").toBool());
        QVERIFY(d.on("SmoothScroll", "Option2", "checked").toBool());
        d.click("SmoothScroll", "Command1");
        const QString again = d.session().value("GeneratedCode").toString();
        QVERIFY(again.startsWith("<APPLET CODE=\"LTRScroll.class\""));
        QVERIFY(again.contains("<PARAM NAME=SPEED VALUE=\"30\">\r\n"));
        QCOMPARE(again, QString(SmoothScrollModel::emitCode(f))
                            .replace("RTLScroll", "LTRScroll")
                            .replace("SPEED VALUE=\"11\"", "SPEED VALUE=\"30\""));
    }
    void reEditOfQuotedAndBareClassNames()
    {
        for (const QString& code : {QString("<APPLET CODE=RTLScroll.class HEIGHT=\"5\" WIDTH=\"6\">"),
                                    QString("<APPLET CODE=\"LTRScroll.class\" HEIGHT=\"5\" WIDTH=\"6\">"),
                                    QString("<APPLET CODE=LTRScroll.class HEIGHT=\"5\" WIDTH=\"6\">")}) {
            reEdit(code);
            QVERIFY2(d.shown("SmoothScroll"), qPrintable(code));
            QCOMPARE(d.text("SmoothScroll", "Text2"), QString("6"));
            QCOMPARE(d.text("SmoothScroll", "Text3"), QString("5"));
            QCOMPARE(d.on("SmoothScroll", "Slider1", "value").toInt(), 10);
            QCOMPARE(d.text("SmoothScroll", "Text1"), QString());
        }
    }
    void reEditOfASpeedTheSliderCannotShowKeepsTheDefault()
    {
        reEdit("<APPLET CODE=\"RTLScroll.class\"><PARAM NAME=SPEED VALUE=\"99\">");
        QCOMPARE(d.on("SmoothScroll", "Slider1", "value").toInt(), 10);
        reEdit("<APPLET CODE=\"RTLScroll.class\"><PARAM NAME=SPEED VALUE=\"fast\">");
        QCOMPARE(d.on("SmoothScroll", "Slider1", "value").toInt(), 10);
        reEdit("<APPLET CODE=\"RTLScroll.class\"><PARAM NAME=SPEED VALUE=\"7 or so\">");
        QCOMPARE(d.on("SmoothScroll", "Slider1", "value").toInt(), 7);
    }
};

QL_TEST_MAIN(SmoothScrollTest)
#include "test_smoothscroll.moc"
