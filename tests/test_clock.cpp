#include "DamagedPaste.h"
#include "TestSupport.h"
#include "core/EffectSession.h"
#include "core/ExtractParam.h"
#include "effects/page/ClockModel.h"

#include <QApplication>

using namespace ql;

namespace {

const QString Head = "<PARAM NAME=COPYRIGHT value=\"Clock1 applet (c) Copyright 1998 Tessellate Software\">\r\n"
                     "<PARAM NAME=DOCUMENTATION value=\"Documentation found at: http://www.tessellate-sw.com/applets/\">\r\n"
                     "<PARAM NAME=WIZARD VALUE=\"Created with Quillet.  Quillet Web site at: http://www.quillet-fx.com/\">\r\n";
const QString RequiredFiles =
    "You will need the following files in order for this special effect to work correctly:\r\n\r\n"
    "- AppletSettings.class\r\n"
    "- Clock1.class\r\n"
    "- DetachFrame.class files\r\n"
    "- the HTML document (Web page) containing the special effect HTML code\r\n\r\n"
    "These files MUST reside in the same folder!";
const QString SizeMessage = "Applet width and height properties are required.  Please enter them.";
const QString ZoneMessage = "Enter a value for the Timezone.  For example, enter -5 for GMT -5.";

ClockModel::Fields sized()
{
    ClockModel::Fields f;
    f.appletWidth = "150";
    f.appletHeight = "20";
    return f;
}

// The value of a key of a code text, as re-edit reads it.
QString valueOf(const QString& code, const QString& key)
{
    EffectSession s;
    ExtractParam(s, code, key);
    return s.ExtractedValue;
}

}  // namespace

class ClockTest : public QObject {
    Q_OBJECT

    TestDriver d;

    void openClock()
    {
        d.start();
        d.click("QLMain", "Command8");
        QVERIFY(d.shown("Clock"));
    }
    bool checked(const QString& control)
    {
        const QJsonValue v = d.on("Clock", control, "checked");
        return v.isBool() ? v.toBool() : v.toInt() != 0;
    }
    bool visible(const QString& control) { return d.on("Clock", control, "visible").toBool(); }

private slots:
    // The model alone.
    void emissionWithEveryField()
    {
        ClockModel::Fields f = sized();
        f.backgroundColor = "Blue  -                0,0,255";
        f.font = "Helvetica";
        f.fontSize = "14";
        f.trailingText = "EST";
        f.twentyFourHour = true;
        f.showSeconds = f.showAmPm = f.showDate = true;
        f.fixedTimezone = true;
        f.timezone = "-5";
        QCOMPARE(ClockModel::emitCode(f),
                 "<APPLET CODE=\"Clock1.class\" HEIGHT=\"20\" WIDTH=\"150\">\r\n" + Head +
                     "<PARAM NAME=TIMEZONE VALUE=\"-5\">\r\n"
                     "<PARAM NAME=24HOUR VALUE=\"yes\">\r\n"
                     "<PARAM NAME=TIME.DISPLAY VALUE=\"%month;/%date;/%year;    %hour;:%minute;:%second;%AMPM;  EST\">\r\n"
                     "<PARAM NAME=FONTNAME VALUE=\"Helvetica\">\r\n"
                     "<PARAM NAME=FONTSIZE VALUE=\"14\">\r\n"
                     "<PARAM NAME=BGCOLOR VALUE=\"0,0,255\">\r\n"
                     "</APPLET>\r\n");
    }
    void defaultsGiveTheShortestTag()
    {
        QCOMPARE(ClockModel::emitCode(sized()),
                 "<APPLET CODE=\"Clock1.class\" HEIGHT=\"20\" WIDTH=\"150\">\r\n" + Head +
                     "<PARAM NAME=24HOUR VALUE=\"no\">\r\n"
                     "<PARAM NAME=TIME.DISPLAY VALUE=\"%hour;:%minute;  \">\r\n"
                     "</APPLET>\r\n");
    }
    void everyFormatCombination()
    {
        for (int bits = 0; bits < 16; ++bits) {
            ClockModel::Fields f = sized();
            f.showSeconds = bits & 1;
            f.showAmPm = bits & 2;
            f.showDate = bits & 4;
            f.twentyFourHour = bits & 8;
            const QString expected = QString(f.showDate ? "%month;/%date;/%year;    " : "") + "%hour;:%minute;" +
                                     (f.showSeconds ? ":%second;" : "") + (f.showAmPm ? "%AMPM;" : "") + "  ";
            QCOMPARE(ClockModel::displayFormat(f), expected);
            const QString code = ClockModel::emitCode(f);
            QVERIFY(code.contains("<PARAM NAME=TIME.DISPLAY VALUE=\"" + expected + "\">\r\n"));
            QVERIFY(code.contains(QString("<PARAM NAME=24HOUR VALUE=\"") + (f.twentyFourHour ? "yes" : "no") + "\">\r\n"));

            // Parsed back into fresh fields.
            ClockModel::Fields back;
            ClockModel::reEdit(back, [&code](const QString& key) { return valueOf(code, key); });
            QCOMPARE(back.showSeconds, f.showSeconds);
            QCOMPARE(back.showAmPm, f.showAmPm);
            QCOMPARE(back.showDate, f.showDate);
            QCOMPARE(back.twentyFourHour, f.twentyFourHour);
            QCOMPARE(back.appletWidth, QString("150"));
            QCOMPARE(back.appletHeight, QString("20"));
            QVERIFY(!back.fixedTimezone);
            QCOMPARE(back.trailingText, QString());
            QCOMPARE(ClockModel::emitCode(back), code);
        }
    }
    void allChecksWithATrailingWord()
    {
        ClockModel::Fields f = sized();
        f.showSeconds = f.showAmPm = f.showDate = true;
        f.trailingText = "EST";
        QCOMPARE(ClockModel::displayFormat(f), QString("%month;/%date;/%year;    %hour;:%minute;:%second;%AMPM;  EST"));
    }
    void fixedZoneStandsAheadOfTheClockType()
    {
        ClockModel::Fields f = sized();
        f.fixedTimezone = true;
        f.timezone = "-5";
        const QString code = ClockModel::emitCode(f);
        QVERIFY(code.contains("<PARAM NAME=TIMEZONE VALUE=\"-5\">\r\n<PARAM NAME=24HOUR VALUE=\"no\">\r\n"));
        // The reader's zone writes no zone line, whatever the field holds.
        f.fixedTimezone = false;
        QVERIFY(!ClockModel::emitCode(f).contains("TIMEZONE"));
    }
    void amPmOnATwentyFourHourClockIsKept()
    {
        ClockModel::Fields f = sized();
        f.twentyFourHour = true;
        f.showAmPm = true;
        const QString code = ClockModel::emitCode(f);
        QVERIFY(code.contains("<PARAM NAME=24HOUR VALUE=\"yes\">\r\n"
                              "<PARAM NAME=TIME.DISPLAY VALUE=\"%hour;:%minute;%AMPM;  \">\r\n"));
        QVERIFY(!ClockModel::validate(f));
    }
    void colourListRowsAndTypedColours()
    {
        ClockModel::Fields f = sized();
        f.backgroundColor = "White  -               255,255,255";
        QVERIFY(ClockModel::emitCode(f).contains("<PARAM NAME=BGCOLOR VALUE=\"255,255,255\">\r\n"));
        f.backgroundColor = "  1,2,3  ";
        QVERIFY(ClockModel::emitCode(f).contains("<PARAM NAME=BGCOLOR VALUE=\"1,2,3\">\r\n"));
        // Only the last 11 characters count.
        f.backgroundColor = "grey 128,128,128";
        QVERIFY(ClockModel::emitCode(f).contains("<PARAM NAME=BGCOLOR VALUE=\"128,128,128\">\r\n"));
        f.backgroundColor = "dark slate grey";
        QVERIFY(ClockModel::emitCode(f).contains("<PARAM NAME=BGCOLOR VALUE=\"slate grey\">\r\n"));
    }
    void validationOrder()
    {
        ClockModel::Fields f;
        f.fixedTimezone = true;
        auto r = ClockModel::validate(f);
        QVERIFY(r);
        QCOMPARE(r->text, SizeMessage);
        QCOMPARE(r->style, 48);
        QCOMPARE(r->focus, QString("Text1"));
        f.appletWidth = "10";
        QCOMPARE(ClockModel::validate(f)->text, SizeMessage);
        f.appletWidth.clear();
        f.appletHeight = "10";
        QCOMPARE(ClockModel::validate(f)->text, SizeMessage);
        f.appletWidth = "10";
        r = ClockModel::validate(f);
        QVERIFY(r);
        QCOMPARE(r->text, ZoneMessage);
        QCOMPARE(r->style, 48);
        f.timezone = "+1";
        QVERIFY(!ClockModel::validate(f));
        f.timezone.clear();
        f.fixedTimezone = false;
        QVERIFY(!ClockModel::validate(f));
    }
    void reEditKeepsChecksWhoseWordIsMissing()
    {
        ClockModel::Fields f;
        f.showSeconds = true;
        f.showDate = true;
        ClockModel::parseDisplay(f, "%hour;:%minute;%AMPM;");
        QVERIFY(f.showSeconds);
        QVERIFY(f.showDate);
        QVERIFY(f.showAmPm);
    }
    void reEditReadsTheClockTypeInAnyCase()
    {
        for (const char* yes : {"yes", "YES", "Yes"}) {
            ClockModel::Fields f;
            const QString code = QString("<PARAM NAME=24HOUR VALUE=\"") + yes + "\">";
            ClockModel::reEdit(f, [&code](const QString& key) { return valueOf(code, key); });
            QVERIFY(f.twentyFourHour);
        }
        ClockModel::Fields f;
        f.twentyFourHour = true;
        const QString code = "<PARAM NAME=24HOUR VALUE=\"y\">";
        ClockModel::reEdit(f, [&code](const QString& key) { return valueOf(code, key); });
        QVERIFY(!f.twentyFourHour);
    }
    void noticeLinesInLowerCaseAreNeverReadBack()
    {
        const QString code = ClockModel::emitCode(sized());
        QCOMPARE(valueOf(code, "COPYRIGHT VALUE="), QString());
        QCOMPARE(valueOf(code, "DOCUMENTATION VALUE="), QString());
        QCOMPARE(valueOf(code, "COPYRIGHT value="), QString("Clock1 applet (c) Copyright 1998 Tessellate Software"));
    }

    // The form.
    void formOpensWithItsCaptionsAndLists()
    {
        openClock();
        QVERIFY(d.modal("Clock"));
        QCOMPARE(d.text("Clock", "Clock"), QString("Clock Applet"));
        const QList<QPair<const char*, const char*>> captions = {
            {"Frame1", "Clock Properties"},
            {"Frame2", "Text Properties"},
            {"Frame3", "Clock type"},
            {"Frame4", "Timezone"},
            {"Label1", "Width (pixels):"},
            {"Label2", "Height (pixels):"},
            {"Label3", "Background Color:"},
            {"Label4", "Select"},
            {"Label7", "Font:"},
            {"Label8", "Font Size:"},
            {"Label9", "Text to follow clock:"},
            {"Option1", "24 hour clock"},
            {"Option2", "12 hour clock"},
            {"Check1", "Show seconds"},
            {"Check2", "Show am/pm"},
            {"Check3", "Show date"},
            {"Option3", "Time is displayed in your Timezone to all users viewing your page"},
            {"Option4", "Time is displayed in the user's Timezone"},
            {"Label6", "Your Timezone (for example, enter -5 for GMT-5):"},
            {"Label5", "CLOCK"},
            {"Command1", "&Done"},
            {"Command2", "&Cancel"},
        };
        for (const auto& [control, caption] : captions)
            QCOMPARE(d.text("Clock", control), QString(caption));
        QCOMPARE(d.on("Clock", "Label4", "tooltip").toString(), QString("Click here to select a color"));
        QCOMPARE(d.on("Clock", "Command5", "tooltip").toString(), QString("Click here for help"));
        QCOMPARE(d.on("Clock", "Combo4", "items").toArray(),
                 (QJsonArray{"Black  -               0,0,0", "Blue  -                0,0,255",
                             "Red  -                 255,0,0", "Green  -               0,255,0",
                             "Cyan  -                0,255,255", "Magenta  -             255,0,255",
                             "Yellow  -              255,255,0", "White  -               255,255,255"}));
        QCOMPARE(d.on("Clock", "Combo1", "items").toArray(),
                 (QJsonArray{"Arial", "Courier", "Dialog", "Helvetica", "TimesRoman"}));
        QCOMPARE(d.on("Clock", "Combo19", "items").toArray(),
                 (QJsonArray{"4", "6", "8", "9", "10", "11", "12", "14", "16", "18", "20", "22", "24", "28", "30",
                             "36", "48", "72"}));
        for (const char* combo : {"Combo4", "Combo1", "Combo19"})
            QVERIFY(d.on("Clock", combo, "editable").toBool());
        for (const char* field : {"Text1", "Text2", "Combo4", "Combo1", "Combo19", "Text3", "Text4"})
            QCOMPARE(d.text("Clock", field), QString());
        QVERIFY(!checked("Option1"));
        QVERIFY(checked("Option2"));
        QVERIFY(!checked("Check1"));
        QVERIFY(!checked("Check2"));
        QVERIFY(!checked("Check3"));
        QVERIFY(!checked("Option3"));
        QVERIFY(checked("Option4"));
        QVERIFY(!visible("Text4"));
        QVERIFY(!visible("Label6"));
        QCOMPARE(d.on("Clock", "Clock", "focus").toString(), QString("Text1"));
    }
    void theFixedZoneShowsItsField()
    {
        openClock();
        d.click("Clock", "Option3");
        QVERIFY(visible("Text4"));
        QVERIFY(visible("Label6"));
        d.click("Clock", "Option4");
        QVERIFY(!visible("Text4"));
        QVERIFY(!visible("Label6"));
        // The two pairs of options are apart: the clock type stays.
        QVERIFY(checked("Option2"));
    }
    void sizeMessageFocusesTheWidth()
    {
        openClock();
        d.setText("Clock", "Text1", "150");
        d.click("Clock", "Command1");
        const QJsonArray m = d.messages();
        QCOMPARE(m.size(), 1);
        QCOMPARE(messageText(m[0]), SizeMessage);
        QCOMPARE(messageStyle(m[0]), 48);
        QCOMPARE(d.on("Clock", "Clock", "focus").toString(), QString("Text1"));
        QCOMPARE(d.session().value("GeneratedCode").toString(), QString());
        QVERIFY(d.shown("Clock"));
        QVERIFY(!d.loaded("Preview"));
    }
    void fixedZoneWithoutAnOffsetIsRefused()
    {
        openClock();
        d.setText("Clock", "Text1", "150");
        d.setText("Clock", "Text2", "20");
        d.click("Clock", "Option3");
        d.click("Clock", "Command1");
        const QJsonArray m = d.messages();
        QCOMPARE(m.size(), 1);
        QCOMPARE(messageText(m[0]), ZoneMessage);
        QCOMPARE(messageStyle(m[0]), 48);
        QCOMPARE(d.on("Clock", "Clock", "focus").toString(), QString("Text4"));
        QVERIFY(!d.loaded("Preview"));
        // An offset typed and then hidden again does not count.
        d.setText("Clock", "Text4", "-5");
        d.click("Clock", "Option4");
        d.click("Clock", "Command1");
        QVERIFY(!d.session().value("GeneratedCode").toString().contains("TIMEZONE"));
    }
    void doneHandsOverToPreview()
    {
        openClock();
        d.setText("Clock", "Text1", "200");
        d.setText("Clock", "Text2", "24");
        d.on("Clock", "Combo4", "choose", {{"item", "Yellow  -              255,255,0"}});
        d.on("Clock", "Combo1", "choose", {{"item", "Courier"}});
        d.setText("Clock", "Combo19", "13");
        d.setText("Clock", "Text3", "local time");
        d.click("Clock", "Check3");
        d.click("Clock", "Check1");
        d.click("Clock", "Option3");
        d.setText("Clock", "Text4", "+2");
        d.click("Clock", "Command1");
        const QString expected = "<APPLET CODE=\"Clock1.class\" HEIGHT=\"24\" WIDTH=\"200\">\r\n" + Head +
                                 "<PARAM NAME=TIMEZONE VALUE=\"+2\">\r\n"
                                 "<PARAM NAME=24HOUR VALUE=\"no\">\r\n"
                                 "<PARAM NAME=TIME.DISPLAY VALUE=\"%month;/%date;/%year;    %hour;:%minute;:%second;  local time\">\r\n"
                                 "<PARAM NAME=FONTNAME VALUE=\"Courier\">\r\n"
                                 "<PARAM NAME=FONTSIZE VALUE=\"13\">\r\n"
                                 "<PARAM NAME=BGCOLOR VALUE=\"255,255,0\">\r\n"
                                 "</APPLET>\r\n";
        const QJsonObject s = d.session();
        QCOMPARE(s.value("GeneratedCode").toString(), expected);
        QCOMPARE(s.value("EffectId").toInt(), 4);
        QCOMPARE(s.value("RequiredClasses").toArray(),
                 (QJsonArray{"AppletSettings.class", "Clock1.class", "DetachFrame.class"}));
        QCOMPARE(s.value("RequiredFiles").toArray(), QJsonArray::fromStringList(QStringList(51, QString())));
        const QJsonArray m = d.messages();
        QCOMPARE(m.size(), 1);
        QCOMPARE(messageText(m[0]), RequiredFiles);
        QCOMPARE(messageStyle(m[0]), 48);
        QVERIFY(d.loaded("Clock"));
        QVERIFY(!d.shown("Clock"));
        QVERIFY(d.shown("Preview"));
        QVERIFY(d.modal("Preview"));
        QCOMPARE(d.text("Preview", "Text1"), expected);
        QCOMPARE(d.text("Preview", "Label3"),
                 QString(" Required Java class files:  AppletSettings.class, Clock1.class, and DetachFrame.class"));

        // Back from Step 1: the fields are as they were, and Done again gives
        // the same code.
        d.click("Preview", "Command14");
        QVERIFY(d.shown("Clock"));
        QCOMPARE(d.text("Clock", "Text3"), QString("local time"));
        d.click("Clock", "Command1");
        QCOMPARE(d.session().value("GeneratedCode").toString(), expected);
    }
    void finishUnloadsTheForm()
    {
        openClock();
        d.setText("Clock", "Text1", "200");
        d.setText("Clock", "Text2", "24");
        d.click("Clock", "Command1");
        for (int i = 0; i < 3; ++i)
            d.click("Preview", "Command15");
        d.click("Preview", "Command5");
        QVERIFY(!d.loaded("Clock"));
        QVERIFY(d.shown("QLMain"));
    }
    void colourPicks()
    {
        openClock();
        d.ok({{"op", "answer_color"}, {"values", QJsonArray{10 + 20 * 256 + 30 * 65536}}});
        d.click("Clock", "Label4");
        QCOMPARE(d.text("Clock", "Combo4"), QString("10,20,30"));
        QCOMPARE(d.text("Clock", "Label4"), QString(""));
        QCOMPARE(d.on("Clock", "Label4", "back_color").toInt(), 10 + 20 * 256 + 30 * 65536);
        // The sample word only takes the colour itself.
        d.ok({{"op", "answer_color"}, {"values", QJsonArray{255}}});
        d.click("Clock", "Label5");
        QCOMPARE(d.text("Clock", "Label5"), QString(""));
        QCOMPARE(d.on("Clock", "Label5", "back_color").toInt(), 255);
        QCOMPARE(d.text("Clock", "Combo4"), QString("10,20,30"));
        // Cancel changes nothing.
        d.ok({{"op", "answer_color"}, {"values", QJsonArray{QJsonValue::Null}}});
        d.click("Clock", "Label4");
        QCOMPARE(d.text("Clock", "Combo4"), QString("10,20,30"));
        d.setText("Clock", "Text1", "1");
        d.setText("Clock", "Text2", "1");
        d.click("Clock", "Command1");
        QVERIFY(d.session().value("GeneratedCode").toString().contains("<PARAM NAME=BGCOLOR VALUE=\"10,20,30\">\r\n"));
    }
    void cancelAndCloseUnload()
    {
        openClock();
        d.setText("Clock", "Text1", "gone");
        d.click("Clock", "Command2");
        QVERIFY(!d.loaded("Clock"));
        d.click("QLMain", "mnuClock");
        QCOMPARE(d.text("Clock", "Text1"), QString());
        d.on("Clock", "Clock", "close");
        QVERIFY(!d.loaded("Clock"));
    }
    void helpOpensTheFormsTopic()
    {
        openClock();
        d.click("Clock", "Command5");
        QCOMPARE(d.help(), (QJsonArray{QJsonArray{"Clock", QJsonValue::Null}}));
        const QString help = QString::fromUtf8(d.app().platform().files().readFile(d.app().helpFile()).value_or(""));
        QVERIFY(help.contains("<a name=\"Clock\"></a>"));
        QVERIFY(help.contains("<a href=\"#Clock\">"));
    }

    // Re-edit.
    void pastedClockComesBackIntoItsFields()
    {
        d.start();
        ClockModel::Fields f = sized();
        f.backgroundColor = "0,0,255";
        f.font = "Dialog";
        f.fontSize = "12";
        f.trailingText = "lost";
        f.twentyFourHour = true;
        f.showAmPm = true;
        f.fixedTimezone = true;
        f.timezone = "-8";
        const QString code = ClockModel::emitCode(f);
        pasteForReEdit(d, code);
        QVERIFY(!d.loaded("EditAppletForm"));
        QVERIFY(d.shown("Clock"));
        QVERIFY(!d.modal("Clock"));
        QCOMPARE(d.text("Clock", "Text1"), QString("150"));
        QCOMPARE(d.text("Clock", "Text2"), QString("20"));
        QCOMPARE(d.text("Clock", "Combo4"), QString("0,0,255"));
        QCOMPARE(d.text("Clock", "Combo1"), QString("Dialog"));
        QCOMPARE(d.text("Clock", "Combo19"), QString("12"));
        QCOMPARE(d.text("Clock", "Text3"), QString());
        QCOMPARE(d.text("Clock", "Text4"), QString("-8"));
        QVERIFY(checked("Option1"));
        QVERIFY(checked("Option3"));
        QVERIFY(visible("Text4"));
        QVERIFY(checked("Check2"));
        QVERIFY(!checked("Check1"));
        QVERIFY(!checked("Check3"));
        QCOMPARE(d.session().value("ReEditMode").toInt(), 0);
        QVERIFY(d.messages().isEmpty());
        // Done gives the same code but for the trailing text.
        d.click("Clock", "Command1");
        f.trailingText.clear();
        QCOMPARE(d.session().value("GeneratedCode").toString(), ClockModel::emitCode(f));
    }
    void unquotedClassAndSizesAreTakenAsTheReaderFindsThem()
    {
        d.start();
        pasteForReEdit(d, "<APPLET CODE=Clock1.class HEIGHT=20 WIDTH=\"150\">\r\n"
                          "<PARAM NAME=TIMEZONE VALUE=\"\">\r\n"
                          "<PARAM NAME=TIME.DISPLAY VALUE=\"%hour;:%minute;:%second;\">\r\n</APPLET>");
        QVERIFY(d.shown("Clock"));
        QCOMPARE(d.session().value("ClassPrefix5").toString(), QString("Clock"));
        QCOMPARE(d.text("Clock", "Text2"), QString("20 WIDTH="));
        QCOMPARE(d.text("Clock", "Text1"), QString("150"));
        QVERIFY(checked("Option4"));
        QVERIFY(!visible("Text4"));
        QVERIFY(checked("Option2"));
        QVERIFY(checked("Check1"));
    }
    void damagedPastesNeverHurt()
    {
        ClockModel::Fields f = sized();
        f.backgroundColor = "0,0,255";
        f.font = "Dialog";
        f.fontSize = "12";
        f.showDate = f.showSeconds = true;
        f.fixedTimezone = true;
        f.timezone = "-8";
        const QString code = ClockModel::emitCode(f);
        DamagedCode damage(20261123);
        QList<QString> pastes;
        for (int i = 0; i < 40; ++i)
            pastes << damage.any(code);
        pastes << damage.buried(code) << damage.buried(damage.quotesLost(code));
        for (const QString& paste : pastes) {
            d.start();
            const qint64 ms = pasteForReEdit(d, paste);
            QVERIFY2(ms < 1000, qPrintable(QString::number(ms)));
            QVERIFY(!d.loaded("EditAppletForm"));
            QVERIFY(d.shown("QLMain"));
            if (d.loaded("Clock")) {
                QCOMPARE(d.session().value("ReEditMode").toInt(), 0);
                // Whatever came back, Done answers: a refusal or the code.
                d.click("Clock", "Command1");
                QVERIFY(d.loaded("Preview") || !d.messages().isEmpty());
            }
        }
    }
};

QL_TEST_MAIN(ClockTest)
#include "test_clock.moc"
