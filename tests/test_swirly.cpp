#include "TestSupport.h"
#include "effects/text/SwirlyModel.h"

#include <QApplication>

using namespace ql;

namespace {

const QString Wizard = "<PARAM NAME=WIZARD VALUE=\"Created with Quillet.  Quillet Web site at: http://www.quillet-fx.com/\">\r\n";
const QString RequiredFiles =
    "You will need the following files in order for this special effect to work correctly:\r\n\r\n"
    "- the ColorSwirl.class file\r\n"
    "- the HTML document (Web page) containing the special effect HTML code\r\n\r\n"
    "These files MUST reside in the same folder!";

}  // namespace

class SwirlyTest : public QObject {
    Q_OBJECT

    TestDriver d;

    void openSwirly()
    {
        d.start();
        d.click("QLMain", "Command4");
        QVERIFY(d.shown("Swirly"));
    }
    void fill(const QJsonObject& fields)
    {
        for (auto it = fields.begin(); it != fields.end(); ++it)
            d.setText("Swirly", it.key(), it.value().toString());
    }

private slots:
    // The model alone.
    void emissionWithEveryField()
    {
        SwirlyModel::Fields f{.text = "Hello world", .font = "Courier", .fontSize = "24", .backgroundColor = "255,0,0",
                              .appletWidth = "300", .appletHeight = "60", .textLeft = "10", .textTop = "40"};
        QCOMPARE(SwirlyModel::emitCode(f),
                 "<APPLET CODE=\"ColorSwirl.class\" HEIGHT=\"60\" WIDTH=\"300\">\r\n" + Wizard +
                     "<PARAM NAME=TEXT VALUE=\"Hello world\">\r\n"
                     "<PARAM NAME=FONT VALUE=\"Courier\">\r\n"
                     "<PARAM NAME=SIZE VALUE=\"24\">\r\n"
                     "<PARAM NAME=BGCOLOR VALUE=\"255,0,0\">\r\n"
                     "<PARAM NAME=XLOC VALUE=\"10\">\r\n"
                     "<PARAM NAME=YLOC VALUE=\"40\">\r\n"
                     "</APPLET>\r\n");
    }
    void emptyOptionalFieldsEmitNoLineAndLocationsTheirDefaults()
    {
        SwirlyModel::Fields f;
        f.text = "Hi";
        f.appletWidth = "200";
        f.appletHeight = "99";
        QCOMPARE(SwirlyModel::emitCode(f),
                 "<APPLET CODE=\"ColorSwirl.class\" HEIGHT=\"99\" WIDTH=\"200\">\r\n" + Wizard +
                     "<PARAM NAME=TEXT VALUE=\"Hi\">\r\n"
                     "<PARAM NAME=XLOC VALUE=\"5\">\r\n"
                     "<PARAM NAME=YLOC VALUE=\"49\">\r\n"
                     "</APPLET>\r\n");
    }
    void heightThatIsNoNumberGivesYlocZero()
    {
        SwirlyModel::Fields f;
        f.text = "Hi";
        f.appletWidth = "200";
        f.appletHeight = "tall";
        QVERIFY(SwirlyModel::emitCode(f).contains("<PARAM NAME=YLOC VALUE=\"0\">\r\n"));
        f.appletHeight = "81px";
        QVERIFY(SwirlyModel::emitCode(f).contains("<PARAM NAME=YLOC VALUE=\"40\">\r\n"));
    }
    void valuesAreCopiedUnescaped()
    {
        SwirlyModel::Fields f{.text = "a \"quoted\" <b>", .appletWidth = "1", .appletHeight = "2"};
        QVERIFY(SwirlyModel::emitCode(f).contains("<PARAM NAME=TEXT VALUE=\"a \"quoted\" <b>\">\r\n"));
    }
    void validationOrder()
    {
        SwirlyModel::Fields f;
        auto r = SwirlyModel::validate(f);
        QVERIFY(r);
        QCOMPARE(r->text, QString("Applet width and height properties are required.  Please enter them."));
        QCOMPARE(r->style, 48);
        QCOMPARE(r->focus, QString("Text10"));
        f.appletWidth = "1";
        QCOMPARE(SwirlyModel::validate(f)->style, 48);
        f.appletHeight = "1";
        r = SwirlyModel::validate(f);
        QCOMPARE(r->text, QString("You must type something in the text box."));
        QCOMPARE(r->style, 0);
        QCOMPARE(r->focus, QString());
        f.text = " ";
        QVERIFY(!SwirlyModel::validate(f));
    }

    // The form.
    void formOpensWithItsCaptionsAndLists()
    {
        openSwirly();
        QVERIFY(d.modal("Swirly"));
        QCOMPARE(d.text("Swirly", "Swirly"), QString("Swirly Text"));
        QCOMPARE(d.text("Swirly", "Label1"),
                 QString("This creates a swirling color effect on the text that you specify in the box below."));
        QCOMPARE(d.text("Swirly", "Label2"), QString("Input the text you wish to color swirl:"));
        QCOMPARE(d.text("Swirly", "Label3"), QString("Font:"));
        QCOMPARE(d.text("Swirly", "Label4"), QString("Font Size:"));
        QCOMPARE(d.text("Swirly", "Label6"), QString("Background Color:"));
        QCOMPARE(d.text("Swirly", "Label7"), QString("Width (pixels):"));
        QCOMPARE(d.text("Swirly", "Label8"), QString("Height (pixels):"));
        QCOMPARE(d.text("Swirly", "Label9"),
                 QString("Horizontal location of text (in pixels from left side of applet):"));
        QCOMPARE(d.text("Swirly", "Label10"), QString("Vertical location of text (in pixels from top of applet):"));
        QCOMPARE(d.text("Swirly", "Frame1"), QString("Applet Properties"));
        QCOMPARE(d.text("Swirly", "Frame2"), QString("Text Location"));
        QCOMPARE(d.text("Swirly", "Label5"), QString("Select"));
        QCOMPARE(d.on("Swirly", "Label5", "tooltip").toString(), QString("Click here to select a color"));
        QCOMPARE(d.text("Swirly", "Command1"), QString("&Done"));
        QCOMPARE(d.text("Swirly", "Command2"), QString("&Cancel"));
        QCOMPARE(d.on("Swirly", "Command4", "tooltip").toString(), QString("Click here for help"));
        QCOMPARE(d.on("Swirly", "Combo1", "items").toArray(),
                 (QJsonArray{"Arial", "Courier", "Dialog", "Helvetica", "TimesRoman"}));
        QCOMPARE(d.on("Swirly", "Combo9", "items").toArray(),
                 (QJsonArray{"4", "6", "8", "9", "10", "11", "12", "14", "16", "18", "20", "22", "24", "28", "30",
                             "36", "48", "72"}));
        QVERIFY(d.on("Swirly", "Combo1", "editable").toBool());
        QVERIFY(d.on("Swirly", "Combo9", "editable").toBool());
        for (const char* field : {"Text7", "Combo1", "Combo9", "Text1", "Text10", "Text11", "Text3", "Text2"})
            QCOMPARE(d.text("Swirly", field), QString());
    }
    void typedFontAndSizeOutsideTheListsAreTaken()
    {
        openSwirly();
        fill({{"Text7", "x"}, {"Text10", "10"}, {"Text11", "10"}, {"Combo1", "Comic"}, {"Combo9", "13"}});
        d.click("Swirly", "Command1");
        const QString code = d.session().value("GeneratedCode").toString();
        QVERIFY(code.contains("<PARAM NAME=FONT VALUE=\"Comic\">\r\n<PARAM NAME=SIZE VALUE=\"13\">\r\n"));
    }
    void listChoiceFillsTheCombo()
    {
        openSwirly();
        d.on("Swirly", "Combo1", "choose", {{"item", "Helvetica"}});
        d.on("Swirly", "Combo9", "choose", {{"item", 2}});
        QCOMPARE(d.text("Swirly", "Combo1"), QString("Helvetica"));
        QCOMPARE(d.text("Swirly", "Combo9"), QString("8"));
    }
    void emptyWidthAndTextShowOnlyTheSizeMessage()
    {
        openSwirly();
        d.setText("Swirly", "Text11", "50");
        d.click("Swirly", "Command1");
        const QJsonArray m = d.messages();
        QCOMPARE(m.size(), 1);
        QCOMPARE(messageText(m[0]), QString("Applet width and height properties are required.  Please enter them."));
        QCOMPARE(messageStyle(m[0]), 48);
        QCOMPARE(d.on("Swirly", "Swirly", "focus").toString(), QString("Text10"));
        QCOMPARE(d.session().value("GeneratedCode").toString(), QString());
        QCOMPARE(d.session().value("EffectId").toInt(), 0);
        QVERIFY(d.shown("Swirly"));
        QVERIFY(!d.loaded("Preview"));
    }
    void emptyTextIsTheSecondMessageWithoutFocusChange()
    {
        openSwirly();
        fill({{"Text10", "300"}, {"Text11", "50"}});
        d.on("Swirly", "Text3", "key", {{"key", "Tab"}});  // no effect on the check
        d.app().forms().findWidget("Swirly")->findChild<QWidget*>("Text11")->setFocus();
        d.click("Swirly", "Command1");
        const QJsonArray m = d.messages();
        QCOMPARE(m.size(), 1);
        QCOMPARE(messageText(m[0]), QString("You must type something in the text box."));
        QCOMPARE(messageStyle(m[0]), 0);
        QCOMPARE(d.on("Swirly", "Swirly", "focus").toString(), QString("Text11"));
        QVERIFY(!d.loaded("Preview"));
    }
    void doneHandsOverToPreview()
    {
        openSwirly();
        fill({{"Text7", "Swirl me"}, {"Text10", "320"}, {"Text11", "99"}, {"Text1", "0,0,128"}});
        d.on("Swirly", "Combo1", "choose", {{"item", "TimesRoman"}});
        d.click("Swirly", "Command1");
        const QString expected = "<APPLET CODE=\"ColorSwirl.class\" HEIGHT=\"99\" WIDTH=\"320\">\r\n" + Wizard +
                                 "<PARAM NAME=TEXT VALUE=\"Swirl me\">\r\n"
                                 "<PARAM NAME=FONT VALUE=\"TimesRoman\">\r\n"
                                 "<PARAM NAME=BGCOLOR VALUE=\"0,0,128\">\r\n"
                                 "<PARAM NAME=XLOC VALUE=\"5\">\r\n"
                                 "<PARAM NAME=YLOC VALUE=\"49\">\r\n"
                                 "</APPLET>\r\n";
        const QJsonObject s = d.session();
        QCOMPARE(s.value("GeneratedCode").toString(), expected);
        QCOMPARE(s.value("EffectId").toInt(), 10);
        QCOMPARE(s.value("RequiredClasses").toArray(), (QJsonArray{"ColorSwirl.class", "", ""}));
        QCOMPARE(s.value("RequiredFiles").toArray(), QJsonArray::fromStringList(QStringList(51, QString())));
        const QJsonArray m = d.messages();
        QCOMPARE(m.size(), 1);
        QCOMPARE(messageText(m[0]), RequiredFiles);
        QCOMPARE(messageStyle(m[0]), 48);
        QVERIFY(d.loaded("Swirly"));
        QVERIFY(!d.shown("Swirly"));
        QVERIFY(d.shown("Preview"));
        QVERIFY(d.modal("Preview"));
        QCOMPARE(d.text("Preview", "Text1"), expected);
    }
    void cancelUnloadsTheForm()
    {
        openSwirly();
        d.setText("Swirly", "Text7", "gone");
        d.click("Swirly", "Command2");
        QVERIFY(!d.loaded("Swirly"));
        QVERIFY(d.shown("QLMain"));
        QCOMPARE(d.session().value("GeneratedCode").toString(), QString());
        d.click("QLMain", "Command4");
        QCOMPARE(d.text("Swirly", "Text7"), QString());
    }
    void closeBoxUnloadsTheForm()
    {
        openSwirly();
        d.on("Swirly", "Swirly", "close");
        QVERIFY(!d.loaded("Swirly"));
    }
    void helpOpensTheFormsTopic()
    {
        openSwirly();
        d.click("Swirly", "Command4");
        d.on("Swirly", "Text7", "key", {{"key", "F1"}});
        QCOMPARE(d.help(), (QJsonArray{QJsonArray{"Swirly", QJsonValue::Null}, QJsonArray{"Swirly", QJsonValue::Null}}));
    }
    void colourPickFillsTheFieldAndPaintsTheSwatch()
    {
        openSwirly();
        d.ok({{"op", "answer_color"}, {"values", QJsonArray{255 + 128 * 256 + 0 * 65536}}});
        d.click("Swirly", "Label5");
        QCOMPARE(d.text("Swirly", "Text1"), QString("255,128,0"));
        QCOMPARE(d.text("Swirly", "Label5"), QString(""));
        QCOMPARE(d.on("Swirly", "Label5", "back_color").toInt(), 255 + 128 * 256);
        const QJsonArray dialogs = d.ok({{"op", "dialogs"}}).toArray();
        QCOMPARE(dialogs.size(), 1);
        QCOMPARE(dialogs[0].toObject().value("kind").toString(), QString("color"));
        QCOMPARE(dialogs[0].toObject().value("title").toString(), QString(""));
    }
};

QL_TEST_MAIN(SwirlyTest)
#include "test_swirly.moc"
