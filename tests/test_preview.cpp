#include "TestSupport.h"
#include "publish/PreviewTable.h"

#include <QApplication>
#include <QTemporaryDir>

using namespace ql;

class PreviewTest : public QObject {
    Q_OBJECT

    TestDriver d;
    QTemporaryDir folder;

    // Swirly Text through Done: the wizard opens on Step 1.
    void swirlyToPreview()
    {
        d.start({{"program_folder", folder.path()}});
        d.click("QLMain", "Command4");
        d.setText("Swirly", "Text7", "Swirl");
        d.setText("Swirly", "Text10", "200");
        d.setText("Swirly", "Text11", "40");
        d.click("Swirly", "Command1");
        QVERIFY(d.shown("Preview"));
    }
    // The wizard opened for any effect number, as its form would leave it.
    void openFor(int effectId, const QString& code)
    {
        d.start({{"program_folder", folder.path()}});
        d.app().session().EffectId = qint16(effectId);
        d.app().session().GeneratedCode = code;
        d.app().forms().show("Preview", true);
        QVERIFY(d.shown("Preview"));
    }
    bool onTop(int page) { return d.on("Preview", QStringLiteral("Picture1(%1)").arg(page), "on_top").toBool(); }
    int frontPage()
    {
        for (int i = 0; i < 5; ++i)
            if (onTop(i))
                return i;
        return -1;
    }
    bool enabled(const QString& control) { return d.on("Preview", control, "enabled").toBool(); }
    bool visible(const QString& control) { return d.on("Preview", control, "visible").toBool(); }
    void next() { d.click("Preview", "Command15"); }
    void previous() { d.click("Preview", "Command14"); }

private slots:
    void tableOfEffects()
    {
        auto none = [](const QString&, const QString&) { return QString(); };
        const QString p = " Required Java class files:  ";
        struct Row { int id; QString caption; bool files; bool sections; };
        const QList<Row> rows = {
            {1, p + "Animate1.class and CoolTool3.class", true, false},
            {2, p + "Animate1.class and CoolTool3.class", true, false},
            {3, p + "Animate1.class and CoolTool3.class", true, false},
            {4, p + "AppletSettings.class, Clock1.class, and DetachFrame.class", true, false},
            {5, p + "ButtonPLUS3.class", true, false},
            {6, p + "None", false, true},
            {7, " Required Java class files:", true, false},
            {8, p + "None", false, true},
            {9, p + "None", false, true},
            {10, p + "ColorSwirl.Class", true, false},
            {11, p + "Typewriter4.class and AppletSettings.class", true, false},
            {12, p + "LTRScroll.class", true, false},
            {13, p + "FadeText.Class", true, false},
            {14, p + "NavigatorTicker20.Class", true, false},
            {15, p + "None", false, false},
            {16, p + "SimpleSound1.class", true, false},
            {17, p + "Animate1.class, CoolTool3.class and invisi.gif", true, false},
            {18, p + "None", false, false},
            {19, p + "Animate1.class and CoolTool3.class", true, false},
            {20, p + "None", true, true},
            {21, p + "None", true, true},
            {22, p + "ImageFade2ech.class and Pixelator3.class", true, false},
            {23, p + "None", false, true},
            {24, " Required files:  password.cgi", true, false},
        };
        for (const Row& row : rows) {
            const auto s = previewSettings(row.id, none);
            QVERIFY(s);
            QCOMPARE(s->requiredClassesCaption, row.caption);
            QCOMPARE(s->needsFiles, row.files);
            QCOMPARE(s->sectionedCode, row.sections);
        }
        QVERIFY(!previewSettings(0, none));
        QVERIFY(!previewSettings(25, none));
        QVERIFY(!previewSettings(-3, none));
    }
    void captionsThatDependOnTheEffectForm()
    {
        auto with = [](const QString& value) {
            return [value](const QString&, const QString&) { return value; };
        };
        const QString p = " Required Java class files:  ";
        QCOMPARE(previewSettings(7, with("Image Cube"))->requiredClassesCaption, p + "TmapCube.class and TmapCubeb.class");
        QCOMPARE(previewSettings(7, with("Lake Reflection"))->requiredClassesCaption, p + "Lake.class");
        QCOMPARE(previewSettings(7, with("Image Ripple"))->requiredClassesCaption, p + "ripple.class");
        QCOMPARE(previewSettings(7, with("Image Fade"))->requiredClassesCaption, QString(" Required Java class files:"));
        QCOMPARE(previewSettings(12, with("1"))->requiredClassesCaption, p + "RTLScroll.class");
        QCOMPARE(previewSettings(12, with("0"))->requiredClassesCaption, p + "LTRScroll.class");
    }
    void formsOfTheEffects()
    {
        const QStringList forms = {"Anim", "AnimWizard", "BBWizard", "Clock", "DynaBut", "Fade", "ImageEffects",
                                   "Password", "StatusBar", "Swirly", "Typer", "SmoothScroll", "FadeMsg", "NavTicker",
                                   "Pulldown", "Sound", "ImageEffects2", "PopupAlert", "AnimButton", "ImgRollover",
                                   "Sound", "ImageFade", "Credits", "Password"};
        for (int id = 1; id <= 24; ++id)
            QCOMPARE(formOfEffect(id), forms[id - 1]);
        QCOMPARE(formOfEffect(0), QString());
        QCOMPARE(formOfEffect(25), QString());
    }
    void openingShowsStepOneWithTheCode()
    {
        swirlyToPreview();
        QCOMPARE(d.text("Preview", "Preview"), QString("Preview Wizard"));
        QCOMPARE(d.text("Preview", "Text1"), d.session().value("GeneratedCode").toString());
        QCOMPARE(frontPage(), 0);
        QCOMPARE(d.text("Preview", "Label3"), QString(" Required Java class files:  ColorSwirl.Class"));
        QVERIFY(enabled("Command14"));
        QVERIFY(enabled("Command15"));
        QCOMPARE(d.text("Preview", "Command14"), QString("<< &Previous"));
        QCOMPARE(d.text("Preview", "Command15"), QString("&Next >>"));
        QCOMPARE(d.text("Preview", "Text3(0)"), QString());
        QCOMPARE(d.text("Preview", "Text3(1)"), QString());
        QCOMPARE(d.on("Preview", "Text3(1)", "password_char").toString(), QString("*"));
        QCOMPARE(d.text("Preview", "Label11"), QString("Step 1: Preview your special effect"));
        QCOMPARE(d.on("Preview", "Command11", "tooltip").toString(), QString("Preview your special effect applet"));
    }
    void pageTitlesAndTexts()
    {
        swirlyToPreview();
        QCOMPARE(d.text("Preview", "Label18"), QString("Step 2: Insert HTML code into your Web page"));
        QCOMPARE(d.text("Preview", "Label14"), QString("Step 3: Publish required files to local hard drive"));
        QCOMPARE(d.text("Preview", "Label17"), QString("Step 4: Publish required files to remote Web server"));
        QCOMPARE(d.text("Preview", "Label21"), QString("Finished!"));
        QCOMPARE(d.text("Preview", "Label20"),
                 QString("You have completed your Quillet special effect!  Click the button below to return to the "
                         "Main Menu to create a new special effect."));
        QCOMPARE(d.text("Preview", "Label22"), QString("Return to Main Menu to create new special effect"));
        QCOMPARE(d.text("Preview", "Command5"), QString("Return to Main Menu"));
        QCOMPARE(d.text("Preview", "Label13"),
                 QString("The text in the box below is the HTML code that controls this special effect.  You will "
                         "need to insert this code into your Web page (HTML document).  Follow the instructions "
                         "below:"));
        QCOMPARE(d.text("Preview", "Label9"),
                 QString("2. Open an HTML document in your Web page editor, and place your cursor in the location "
                         "where you want to insert this special effect."));
        QCOMPARE(d.text("Preview", "Label1"),
                 QString("3. In your Web page editor insert the code by clicking the Paste button or by selecting the "
                         "Edit/Paste menu item.  Then move on to Step 3 by clicking the \"Next >>\" button below."));
        QCOMPARE(d.text("Preview", "Label5"), QString("Click here if you use Microsoft FrontPage -->"));
        QCOMPARE(d.on("Preview", "Command3", "tooltip").toString(), QString("Click here to copy code to Clipboard"));
        QCOMPARE(d.on("Preview", "Command16", "tooltip").toString(), QString("Click here for help"));
    }
    void menus()
    {
        swirlyToPreview();
        QCOMPARE(d.on("Preview", "mnuFile", "entries").toArray(), (QJsonArray{"mnuHTMLEditor", "mnuReturn"}));
        QCOMPARE(d.on("Preview", "mnuEdit", "entries").toArray(),
                 (QJsonArray{"mnuCopy", "mnuPaste", "mnuSelectAll", "mnuEditApplet"}));
        QCOMPARE(d.on("Preview", "mnuSteps", "entries").toArray(), (QJsonArray{"mnuStep1", "mnuManualCopy", "mnuAutocopy"}));
        const QList<QPair<QString, QString>> captions = {
            {"mnuFile", "&File"},
            {"mnuHTMLEditor", "&Open HTML Editor..."},
            {"mnuReturn", "&Return to Main Menu"},
            {"mnuEdit", "&Edit"},
            {"mnuCopy", "&Copy"},
            {"mnuPaste", "&Paste"},
            {"mnuSelectAll", "Select &All"},
            {"mnuEditApplet", "&Edit applet..."},
            {"mnuSteps", "&Steps"},
            {"mnuStep1", "Step &1: Preview your special effect"},
            {"mnuManualCopy", "Step &2: Insert HTML code into your Web page"},
            {"mnuAutocopy", "Step &3: Copy required files"},
        };
        for (const auto& [control, caption] : captions)
            QCOMPARE(d.text("Preview", control), caption);
    }
    void nextToStepTwoPutsTheCodeOnTheClipboard()
    {
        swirlyToPreview();
        d.ok({{"op", "set_clipboard"}, {"text", "old"}});
        d.setText("Preview", "Text1", "edited code");
        next();
        QCOMPARE(frontPage(), 1);
        QCOMPARE(d.ok({{"op", "clipboard"}}).toString(), QString("edited code"));
        QVERIFY(enabled("Command14"));
        QVERIFY(visible("Label1"));
        QVERIFY(visible("Label9"));
        QCOMPARE(d.text("Preview", "Label8"), QString("1. Click here to copy this HTML code to the Windows Clipboard-->"));
    }
    void sectionLayoutForSectionedCode()
    {
        openFor(6, "<!-- FOLLOW THESE STEPS -->\r\nsection one\r\nsection two");
        next();
        QCOMPARE(frontPage(), 1);
        QVERIFY(!visible("Label1"));
        QVERIFY(!visible("Label9"));
        QCOMPARE(d.text("Preview", "Label8"),
                 QString("Select each section of code and click here to copy to the Windows Clipboard-->"));
        const int big = d.on("Preview", "Text1", "geometry").toArray()[3].toInt();
        openFor(10, "<APPLET>");
        next();
        const int small = d.on("Preview", "Text1", "geometry").toArray()[3].toInt();
        QVERIFY2(big > small, qPrintable(QStringLiteral("%1 %2").arg(big).arg(small)));
    }
    void stepThreeAndFinish()
    {
        swirlyToPreview();
        next();
        next();
        QCOMPARE(frontPage(), 2);
        QCOMPARE(d.text("Preview", "Label14"), QString("Step 3: Publish required files to local hard drive"));
        QVERIFY(enabled("Command15"));
        next();
        QCOMPARE(frontPage(), 4);
        QVERIFY(!enabled("Command15"));
        previous();
        QCOMPARE(frontPage(), 2);
        QVERIFY(enabled("Command15"));
        previous();
        QCOMPARE(frontPage(), 1);
        previous();
        QCOMPARE(frontPage(), 0);
    }
    void effectWithoutFilesSkipsStepThreeBothWays()
    {
        openFor(9, "<!-- FOLLOW --><SCRIPT>status</SCRIPT>");
        next();
        next();
        QCOMPARE(frontPage(), 4);
        QVERIFY(!enabled("Command15"));
        previous();
        QCOMPARE(frontPage(), 1);
        QVERIFY(enabled("Command15"));
        QVERIFY(!visible("Frame5"));
        QCOMPARE(d.text("Preview", "Label15"),
                 QString("This special effect does not require any extra files in order to work correctly.  Please "
                         "click the 'Next' button to move to Step 4."));
        // From Step 2 again, Next goes straight to the end.
        next();
        QCOMPARE(frontPage(), 4);
    }
    void rolloverAndWavSoundShowStepThreeThoughTheCaptionSaysNone()
    {
        for (int id : {20, 21}) {
            openFor(id, "<!-- FOLLOW -->");
            QCOMPARE(d.text("Preview", "Label3"), QString(" Required Java class files:  None"));
            next();
            next();
            QCOMPARE(frontPage(), 2);
        }
    }
    void onePieceScriptsUseTheNormalLayoutAndSkipStepThree()
    {
        for (int id : {15, 18}) {
            openFor(id, "<SCRIPT>alert('x')</SCRIPT>");
            next();
            QVERIFY(visible("Label1"));
            QVERIFY(visible("Label9"));
            next();
            QCOMPARE(frontPage(), 4);
        }
    }
    void effectNumberOutsideTheTableSelectsNothing()
    {
        openFor(0, "<APPLET>");
        QCOMPARE(d.text("Preview", "Label3"), QString());
        previous();
        QVERIFY(!d.loaded("Preview"));
        QVERIFY(d.shown("QLMain"));
        QCOMPARE(d.ok({{"op", "loaded"}, {"form", "Swirly"}}).toBool(), false);
    }
    void previousFromStepOneReturnsToTheFilledForm()
    {
        swirlyToPreview();
        const QString first = d.session().value("GeneratedCode").toString();
        d.setText("Preview", "Text1", "hand edited");
        previous();
        QVERIFY(!d.loaded("Preview"));
        QVERIFY(d.shown("Swirly"));
        QVERIFY(d.modal("Swirly"));
        QCOMPARE(d.text("Swirly", "Text7"), QString("Swirl"));
        QCOMPARE(d.session().value("GeneratedCode").toString(), first);
        d.click("Swirly", "Command1");
        QCOMPARE(d.text("Preview", "Text1"), first);
    }
    void stepOneFromTheMenuDisablesPrevious()
    {
        swirlyToPreview();
        next();
        d.click("Preview", "mnuStep1");
        QCOMPARE(frontPage(), 0);
        QVERIFY(!enabled("Command14"));
        QVERIFY(enabled("Command15"));
        next();
        QCOMPARE(frontPage(), 1);
        QVERIFY(enabled("Command14"));
    }
    void stepsMenuReachesStepThreeEvenWithoutFiles()
    {
        openFor(8, "<!-- FOLLOW -->password");
        d.ok({{"op", "set_clipboard"}, {"text", ""}});
        d.click("Preview", "mnuManualCopy");
        QCOMPARE(frontPage(), 1);
        QCOMPARE(d.ok({{"op", "clipboard"}}).toString(), QString("<!-- FOLLOW -->password"));
        QVERIFY(enabled("Command14") && enabled("Command15"));
        d.click("Preview", "mnuAutocopy");
        QCOMPARE(frontPage(), 2);
        QVERIFY(enabled("Command14") && enabled("Command15"));
        QCOMPARE(d.text("Preview", "Label14"), QString("Step 3: Publish required files to local hard drive"));
        QCOMPARE(d.on("Preview", "List1", "items").toArray(), QJsonArray());
        next();
        QCOMPARE(frontPage(), 4);
    }
    void copyButtonOfNormalCode()
    {
        swirlyToPreview();
        next();
        d.ok({{"op", "set_clipboard"}, {"text", "x"}});
        d.on("Preview", "Text1", "set_selection", {{"start", 0}, {"length", 3}});
        d.click("Preview", "Command3");
        QCOMPARE(d.ok({{"op", "clipboard"}}).toString(), d.text("Preview", "Text1"));
        const QJsonArray selection = d.on("Preview", "Text1", "selection").toArray();
        QCOMPARE(selection[1].toInt(), d.text("Preview", "Text1").size());
        QCOMPARE(d.on("Preview", "Preview", "focus").toString(), QString("Text1"));
    }
    void copyButtonOfSectionedCode()
    {
        openFor(23, "<!-- FOLLOW -->\r\nfirst\r\nsecond");
        next();
        d.ok({{"op", "set_clipboard"}, {"text", "before"}});
        d.on("Preview", "Text1", "set_selection", {{"start", 0}, {"length", 0}});
        d.click("Preview", "Command3");
        QCOMPARE(d.messages().size(), 1);
        QCOMPARE(messageText(d.messages()[0]), QString("Please select a section of HTML code from the text box below."));
        QCOMPARE(messageStyle(d.messages()[0]), 0);
        QCOMPARE(d.ok({{"op", "clipboard"}}).toString(), QString());
        d.on("Preview", "Text1", "set_selection", {{"start", 17}, {"length", 5}});
        d.click("Preview", "Command3");
        QCOMPARE(d.ok({{"op", "clipboard"}}).toString(), QString("first"));
        QCOMPARE(d.on("Preview", "Preview", "focus").toString(), QString("Text1"));
    }
    void frontPageHelp()
    {
        swirlyToPreview();
        next();
        d.ok({{"op", "set_clipboard"}, {"text", ""}});
        d.click("Preview", "Command4");
        QCOMPARE(d.ok({{"op", "clipboard"}}).toString(), d.text("Preview", "Text1"));
        openFor(6, "<!-- FOLLOW -->");
        next();
        d.ok({{"op", "set_clipboard"}, {"text", "kept"}});
        d.click("Preview", "Command4");
        QCOMPARE(d.ok({{"op", "clipboard"}}).toString(), QString("kept"));
        QCOMPARE(d.help(), (QJsonArray{QJsonArray{"Preview", 29}}));
    }
    void frontPageTopicForNormalCode()
    {
        swirlyToPreview();
        next();
        d.click("Preview", "Command4");
        QCOMPARE(d.help(), (QJsonArray{QJsonArray{"Preview", 21}}));
    }
    void helpButton()
    {
        swirlyToPreview();
        d.click("Preview", "Command16");
        QCOMPARE(d.help(), (QJsonArray{QJsonArray{"Preview", QJsonValue::Null}}));
    }
    void editMenu()
    {
        swirlyToPreview();
        next();
        d.setText("Preview", "Text1", "abc def");
        d.on("Preview", "Text1", "set_selection", {{"start", 4}, {"length", 3}});
        d.click("Preview", "mnuCopy");
        QCOMPARE(d.ok({{"op", "clipboard"}}).toString(), QString("def"));
        d.ok({{"op", "set_clipboard"}, {"text", "XYZ"}});
        d.on("Preview", "Text1", "set_selection", {{"start", 0}, {"length", 3}});
        d.click("Preview", "mnuPaste");
        QCOMPARE(d.text("Preview", "Text1"), QString("XYZ def"));
        d.click("Preview", "mnuSelectAll");
        QCOMPARE(d.on("Preview", "Text1", "selection").toArray(), (QJsonArray{0, 7}));
        QCOMPARE(d.on("Preview", "Preview", "focus").toString(), QString("Text1"));
    }
    void returnToMainMenuLeavesTheFormHidden()
    {
        swirlyToPreview();
        d.click("Preview", "mnuReturn");
        QVERIFY(!d.loaded("Preview"));
        QVERIFY(d.loaded("Swirly"));
        QVERIFY(!d.shown("Swirly"));
        QVERIFY(d.shown("QLMain"));
        d.click("QLMain", "mnuAppletSwirly");
        QCOMPARE(d.text("Swirly", "Text7"), QString("Swirl"));
    }
    void editAppletEntryShowsTheFormWithoutTheModalFlag()
    {
        swirlyToPreview();
        d.click("Preview", "mnuEditApplet");
        QVERIFY(!d.loaded("Preview"));
        QVERIFY(d.shown("Swirly"));
        QVERIFY(!d.modal("Swirly"));
        QCOMPARE(d.text("Swirly", "Text10"), QString("200"));
    }
    void editAppletEntryOfLaterEffectsOpensNothing()
    {
        for (int id : {17, 20, 24}) {
            openFor(id, "<x>");
            d.click("Preview", "mnuEditApplet");
            QVERIFY(!d.loaded("Preview"));
            QVERIFY(d.shown("QLMain"));
            QVERIFY(!d.loaded(formOfEffect(id)));
        }
    }
    void pulldownStepsItsMessageBack()
    {
        openFor(15, "<SELECT>");
        d.app().session().MessageIndex = 3;
        previous();
        QCOMPARE(d.session().value("MessageIndex").toInt(), 2);
        openFor(15, "<SELECT>");
        d.app().session().MessageIndex = 3;
        d.click("Preview", "mnuEditApplet");
        QCOMPARE(d.session().value("MessageIndex").toInt(), 2);
        openFor(13, "<APPLET>");
        d.app().session().MessageIndex = 3;
        previous();
        QCOMPARE(d.session().value("MessageIndex").toInt(), 3);
    }
    void finishUnloadsTheEffectForms()
    {
        swirlyToPreview();
        next();
        next();
        next();
        QCOMPARE(frontPage(), 4);
        d.click("Preview", "Command5");
        QVERIFY(!d.loaded("Preview"));
        QVERIFY(!d.loaded("Swirly"));
        QVERIFY(d.shown("QLMain"));
        QCOMPARE(d.session().value("EffectId").toInt(), 10);
    }
    void closeBoxUnloadsAndShowsTheMainWindow()
    {
        swirlyToPreview();
        d.app().mainWidget()->hide();
        d.on("Preview", "Preview", "close");
        QVERIFY(!d.loaded("Preview"));
        QVERIFY(d.shown("QLMain"));
        QVERIFY(d.loaded("Swirly"));
    }
    void fourthPageIsNeverReached()
    {
        swirlyToPreview();
        for (int i = 0; i < 6; ++i) {
            next();
            QVERIFY(!onTop(3));
        }
        for (int i = 0; i < 3; ++i) {
            previous();
            QVERIFY(!onTop(3));
        }
        QCOMPARE(d.text("Preview", "Command2"), QString("Upload Files..."));
    }
};

QL_TEST_MAIN(PreviewTest)
#include "test_preview.moc"
