#include "TestSupport.h"
#include "reedit/EditAppletForm.h"

#include <QApplication>

using namespace ql;

namespace {

const QString Unknown = "Quillet does not recognize this applet.  It cannot re-edit the Status bar scrolling text "
                        "applet or the Fading background color applet.";

const QString SwirlyCode =
    "<APPLET CODE=\"ColorSwirl.class\" HEIGHT=\"60\" WIDTH=\"300\">\r\n"
    "<PARAM NAME=WIZARD VALUE=\"Created with Quillet.  Quillet Web site at: http://www.quillet-fx.com/\">\r\n"
    "<PARAM NAME=TEXT VALUE=\"Hello world\">\r\n"
    "<PARAM NAME=FONT VALUE=\"Courier\">\r\n"
    "<PARAM NAME=SIZE VALUE=\"24\">\r\n"
    "<PARAM NAME=BGCOLOR VALUE=\"255,0,0\">\r\n"
    "<PARAM NAME=XLOC VALUE=\"10\">\r\n"
    "<PARAM NAME=YLOC VALUE=\"40\">\r\n"
    "</APPLET>\r\n";

}  // namespace

class ReEditTest : public QObject {
    Q_OBJECT

    TestDriver d;

    void paste(const QString& code)
    {
        d.click("QLMain", "mnuEditApplet");
        d.setText("EditAppletForm", "Text1", code);
        d.click("EditAppletForm", "Command1");
    }

private slots:
    void init() { d.start(); }

    void routesTakeTheNameWithAndWithoutItsQuote()
    {
        const QList<QPair<QStringList, QString>> table = {
            {{"Clock", "\"Cloc"}, "Clock"},
            {{"Anima", "\"Anim"}, EditAppletForm::WizardChoice},
            {{"AnFad", "\"AnFa"}, "ImageEffects"},
            {{"Lake.", "\"Lake"}, "ImageEffects"},
            {{"rippl", "\"ripp"}, "ImageEffects"},
            {{"TmapC", "\"Tmap"}, "ImageEffects"},
            {{"Butto", "\"Butt"}, "DynaBut"},
            {{"Navig", "\"Navi"}, "NavTicker"},
            {{"FadeT", "\"Fade"}, "FadeMsg"},
            {{"Color", "\"Colo"}, "Swirly"},
            {{"Simpl", "\"Simp"}, "Sound"},
            {{"Typew", "\"Type"}, "Typer"},
            {{"RTLSc", "LTRSc", "\"RTLS", "\"LTRS"}, "SmoothScroll"},
        };
        for (const auto& [prefixes, form] : table) {
            for (const QString& prefix : prefixes)
                QCOMPARE(EditAppletForm::routeOf(prefix), form);
        }
        QCOMPARE(EditAppletForm::routeOf("Image"), QString());
        QCOMPARE(EditAppletForm::routeOf("color"), QString());
        QCOMPARE(EditAppletForm::routeOf("\"Color"), QString());
    }
    void captionsOfBothPages()
    {
        d.click("QLMain", "mnuEditApplet");
        QCOMPARE(d.text("EditAppletForm", "EditAppletForm"), QString("Edit Applet"));
        QCOMPARE(d.text("EditAppletForm", "Label1"),
                 QString("Paste the HTML code of the applet into the text box below and click the \"Edit\" button to "
                         "edit the applet.  The code must begin with the \"<APPLET>\" tag and end with the "
                         "\"</APPLET>\" tag."));
        QCOMPARE(d.text("EditAppletForm", "Text1"), QString());
        QCOMPARE(d.text("EditAppletForm", "Command1"), QString("&Edit"));
        QCOMPARE(d.text("EditAppletForm", "Command2"), QString("&Cancel"));
        QCOMPARE(d.on("EditAppletForm", "Command5", "tooltip").toString(), QString("Click here for help"));
        QCOMPARE(d.text("EditAppletForm", "Label2"),
                 QString("Please pick the appropriate wizard that you wish to use to re-edit this applet."));
        QCOMPARE(d.text("EditAppletForm", "Option1"), QString("Advanced Animation applet Wizard"));
        QCOMPARE(d.text("EditAppletForm", "Option2"), QString("Animation Wizard"));
        QCOMPARE(d.text("EditAppletForm", "Option3"), QString("Billboard Wizard"));
        QCOMPARE(d.text("EditAppletForm", "Command3"), QString("&Edit"));
        QCOMPARE(d.text("EditAppletForm", "Command4"), QString("&Cancel"));
        QVERIFY(d.on("EditAppletForm", "Picture1", "visible").toBool());
        QVERIFY(!d.on("EditAppletForm", "Picture2", "visible").toBool());
    }
    void quotedSwirlyCodeComesBackIntoEveryField()
    {
        paste(SwirlyCode);
        QVERIFY(!d.loaded("EditAppletForm"));
        QVERIFY(d.shown("Swirly"));
        QVERIFY(!d.modal("Swirly"));
        QCOMPARE(d.text("Swirly", "Text7"), QString("Hello world"));
        QCOMPARE(d.text("Swirly", "Combo1"), QString("Courier"));
        QCOMPARE(d.text("Swirly", "Combo9"), QString("24"));
        QCOMPARE(d.text("Swirly", "Text1"), QString("255,0,0"));
        QCOMPARE(d.text("Swirly", "Text3"), QString("10"));
        QCOMPARE(d.text("Swirly", "Text2"), QString("40"));
        QCOMPARE(d.text("Swirly", "Text11"), QString("60"));
        QCOMPARE(d.text("Swirly", "Text10"), QString("300"));
        const QJsonObject s = d.session();
        QCOMPARE(s.value("ReEditMode").toInt(), 0);
        QCOMPARE(s.value("ClassPrefix5").toString(), QString("\"Colo"));
        QCOMPARE(s.value("ClassPrefix8").toString(), QString("\"ColorSw"));
        QVERIFY(d.messages().isEmpty());
        // Done gives back the same code.
        d.click("Swirly", "Command1");
        QCOMPARE(d.session().value("GeneratedCode").toString(), SwirlyCode);
    }
    void unquotedCodeIsRecognisedToo()
    {
        paste("<APPLET CODE=ColorSwirl.class HEIGHT=60 WIDTH=\"300\">\r\n<PARAM NAME=TEXT VALUE=\"Hi\">\r\n</APPLET>");
        QVERIFY(d.shown("Swirly"));
        QCOMPARE(d.session().value("ClassPrefix5").toString(), QString("Color"));
        QCOMPARE(d.text("Swirly", "Text7"), QString("Hi"));
        QCOMPARE(d.text("Swirly", "Text11"), QString("60 WIDTH="));
        QCOMPARE(d.text("Swirly", "Text10"), QString("300"));
        QCOMPARE(d.text("Swirly", "Combo1"), QString());
    }
    void routeToAFormStillToComeOpensNothing()
    {
        // The class of a routed form that is not built yet.
        const QList<QPair<QString, QString>> classes = {
            {"NavigatorTicker20.class", "NavTicker"}, {"SimpleSound1.class", "Sound"},
            {"Typewriter4.class", "Typer"},           {"FadeText.class", "FadeMsg"},
            {"RTLScroll.class", "SmoothScroll"},      {"Lake.class", "ImageEffects"},
        };
        QString classFile, form;
        for (const auto& [c, f] : classes) {
            if (!d.app().forms().exists(f)) {
                classFile = c;
                form = f;
                break;
            }
        }
        if (form.isEmpty())
            QSKIP("every routed form is built");
        paste("<APPLET CODE=\"" + classFile + "\" HEIGHT=\"20\" WIDTH=\"80\">\r\n</APPLET>");
        QVERIFY(!d.loaded(form));
        QVERIFY(!d.loaded("EditAppletForm"));
        QVERIFY(d.messages().isEmpty());
        QCOMPARE(d.session().value("ClassPrefix5").toString(), "\"" + classFile.left(4));
    }
    void unknownAppletGetsItsMessage()
    {
        paste("<APPLET CODE=\"ImageFade2ech.class\" HEIGHT=\"20\" WIDTH=\"80\">\r\n</APPLET>");
        const QJsonArray m = d.messages();
        QCOMPARE(m.size(), 1);
        QCOMPARE(messageText(m[0]), Unknown);
        QCOMPARE(messageStyle(m[0]), 0);
        QVERIFY(!d.loaded("EditAppletForm"));
        QCOMPARE(d.session().value("ReEditMode").toInt(), 1);
    }
    void scriptCodeAndEmptyTextGetTheMessage()
    {
        paste("<SCRIPT LANGUAGE=\"JavaScript\">\r\nvar msg  =\"Hi\";\r\n</SCRIPT>");
        paste("");
        paste("<applet code=\"ColorSwirl.class\" height=\"60\" width=\"300\"></applet>");
        const QJsonArray m = d.messages();
        QCOMPARE(m.size(), 3);
        for (const QJsonValue& message : m)
            QCOMPARE(messageText(message), Unknown);
        QCOMPARE(d.session().value("ClassPrefix5").toString(), QString("let c"));
    }
    void reEditModeLeftOnFillsTheNextFormFromAnEmptyPaste()
    {
        paste("nothing here");
        QCOMPARE(d.session().value("ReEditMode").toInt(), 1);
        d.click("QLMain", "Command4");
        QVERIFY(d.shown("Swirly"));
        QCOMPARE(d.session().value("ReEditMode").toInt(), 0);
        for (const char* field : {"Text7", "Combo1", "Combo9", "Text1", "Text10", "Text11", "Text3", "Text2"})
            QCOMPARE(d.text("Swirly", field), QString());
        // The re-edit form was loaded afresh, empty and hidden, to be read.
        QVERIFY(d.loaded("EditAppletForm"));
        QVERIFY(!d.shown("EditAppletForm"));
        QCOMPARE(d.text("EditAppletForm", "Text1"), QString());
        QCOMPARE(d.session().value("ExtractedValue").toString(), QString());
    }
    void animationCodeAsksForTheWizard()
    {
        paste("<APPLET CODE=\"Animate1.class\" WIDTH=\"100\" HEIGHT=\"50\">\r\n</APPLET>");
        QVERIFY(d.shown("EditAppletForm"));
        QVERIFY(!d.on("EditAppletForm", "Picture1", "visible").toBool());
        QVERIFY(d.on("EditAppletForm", "Picture2", "visible").toBool());
        QCOMPARE(d.session().value("ClassPrefix8").toString(), QString("\"Animate"));
        QCOMPARE(d.session().value("ReEditMode").toInt(), 1);
        QVERIFY(d.messages().isEmpty());
    }
    void wizardEditWithNoOptionOpensNothing()
    {
        paste("<APPLET CODE=Animate1.class WIDTH=100 HEIGHT=50>");
        QVERIFY(d.on("EditAppletForm", "Picture2", "visible").toBool());
        d.click("EditAppletForm", "Command3");
        QVERIFY(!d.loaded("EditAppletForm"));
        for (const char* form : {"Anim", "AnimWizard", "BBWizard"})
            QVERIFY(!d.loaded(form));
    }
    void wizardEditWithAnOptionUnloadsTheForm()
    {
        paste("<APPLET CODE=Animate1.class WIDTH=100 HEIGHT=50>");
        d.click("EditAppletForm", "Option2");
        QVERIFY(d.on("EditAppletForm", "Option2", "checked").toBool());
        QVERIFY(!d.on("EditAppletForm", "Option1", "checked").toBool());
        d.click("EditAppletForm", "Command3");
        QVERIFY(!d.loaded("EditAppletForm"));
        QVERIFY(!d.loaded("AnimWizard"));
    }
    void cancelOnThePagesLeavesReEditModeAsItIs()
    {
        d.click("QLMain", "mnuEditApplet");
        d.click("EditAppletForm", "Command2");
        QVERIFY(!d.loaded("EditAppletForm"));
        QCOMPARE(d.session().value("ReEditMode").toInt(), 0);
        paste("<APPLET CODE=\"Animate1.class\">");
        d.click("EditAppletForm", "Command4");
        QVERIFY(!d.loaded("EditAppletForm"));
        QCOMPARE(d.session().value("ReEditMode").toInt(), 1);
    }
    void helpOpensTheFormsTopic()
    {
        d.click("QLMain", "mnuEditApplet");
        d.click("EditAppletForm", "Command5");
        QCOMPARE(d.help(), (QJsonArray{QJsonArray{"EditAppletForm", QJsonValue::Null}}));
    }
    void pastedTextKeepsItsLineBreaks()
    {
        d.click("QLMain", "mnuEditApplet");
        d.setText("EditAppletForm", "Text1", "a\r\nb\nc");
        QCOMPARE(d.text("EditAppletForm", "Text1"), QString("a\r\nb\r\nc"));
        d.on("EditAppletForm", "Text1", "set_selection", {{"start", 3}, {"length", 1}});
        QCOMPARE(d.on("EditAppletForm", "Text1", "selection").toArray(), (QJsonArray{3, 1}));
    }
};

QL_TEST_MAIN(ReEditTest)
#include "test_reedit.moc"
