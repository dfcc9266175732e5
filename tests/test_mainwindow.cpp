#include "TestSupport.h"
#include "shell/Catalogue.h"

#include <QApplication>
#include <QToolButton>

using namespace ql;

class MainWindowTest : public QObject {
    Q_OBJECT

    TestDriver d;

private slots:
    void init() { d.start(); }

    void startsAloneWithItsCaption()
    {
        QVERIFY(d.shown("QLMain"));
        QVERIFY(!d.modal("QLMain"));
        QCOMPARE(d.text("QLMain", "QLMain"), QString("Quillet"));
        for (const char* form : {"Swirly", "Preview", "EditAppletForm"})
            QVERIFY(!d.loaded(form));
        QVERIFY(!d.ok({{"op", "ended"}}).toBool());
    }
    void tabsAndPages()
    {
        QCOMPARE(d.on("QLMain", "TabStrip1", "items").toArray(),
                 (QJsonArray{"Image Effects", "Text Effects", "Other Special Effects"}));
        QCOMPARE(d.on("QLMain", "TabStrip1", "tooltip", {{"item", 0}}).toString(), QString("Animations, billboards, etc."));
        QCOMPARE(d.on("QLMain", "TabStrip1", "tooltip", {{"item", "Text Effects"}}).toString(),
                 QString("Scrolling Text, Fading Text"));
        QCOMPARE(d.on("QLMain", "TabStrip1", "tooltip", {{"item", 2}}).toString(), QString("Special Effects"));
        QVERIFY(d.on("QLMain", "Picture1(0)", "on_top").toBool());
        QVERIFY(!d.on("QLMain", "Picture1(1)", "on_top").toBool());
        d.on("QLMain", "TabStrip1", "choose", {{"item", "Text Effects"}});
        QVERIFY(d.on("QLMain", "Picture1(1)", "on_top").toBool());
        QVERIFY(!d.on("QLMain", "Picture1(0)", "on_top").toBool());
        // A page behind keeps its own visible flag.
        QVERIFY(d.on("QLMain", "Picture1(0)", "visible").toBool());
        QVERIFY(d.on("QLMain", "Command22", "visible").toBool());
        d.on("QLMain", "TabStrip1", "choose", {{"item", 2}});
        QVERIFY(d.on("QLMain", "Picture1(2)", "on_top").toBool());
        QCOMPARE(d.on("QLMain", "TabStrip1", "selected").toInt(), 2);
    }
    void everyButtonHasAPictureAndDescribesItsEffect()
    {
        QCOMPARE(catalogue().size(), 22);
        QCOMPARE(d.text("QLMain", "Frame1"), QString("Description"));
        for (const CatalogueEntry& entry : catalogue()) {
            auto* button = d.app().mainWidget()->findChild<QToolButton*>(entry.button);
            QVERIFY2(button, qPrintable(entry.button));
            d.on("QLMain", "TabStrip1", "choose", {{"item", entry.page}});
            QVERIFY(!button->icon().isNull());
            QCOMPARE(button->text(), QString());
            QCOMPARE(d.on("QLMain", entry.button, "hover"), QJsonValue::Undefined);
            QCOMPARE(d.text("QLMain", "Label3"), entry.title);
            QCOMPARE(d.text("QLMain", "Label2"), entry.description);
        }
        QCOMPARE(d.text("QLMain", "Label3"), QString("Password Protection"));
    }
    void catalogueTexts()
    {
        d.on("QLMain", "Command4", "hover");
        QCOMPARE(d.text("QLMain", "Label3"), QString("Swirly Text effect"));
        QCOMPARE(d.text("QLMain", "Label2"), QString("Create text that swirls in different colors."));
        d.on("QLMain", "Command13", "hover");
        QCOMPARE(d.text("QLMain", "Label2"), QString("Create text that scrolls accross the screen."));
        d.on("QLMain", "Command22", "hover");
        QCOMPARE(d.text("QLMain", "Label2"),
                 QString("Create an effect that fades from one image to the next.  The images can be linked to Web pages."));
    }
    void movingOffAButtonClearsTheDescription()
    {
        d.on("QLMain", "Command17", "hover");
        QCOMPARE(d.text("QLMain", "Label3"), QString("Advanced Animator"));
        d.on("QLMain", "Picture1(0)", "hover");
        QCOMPARE(d.text("QLMain", "Label3"), QString(""));
        QCOMPARE(d.text("QLMain", "Label2"), QString(""));
        d.on("QLMain", "Command17", "hover");
        d.on("QLMain", "QLMain", "hover");
        QCOMPARE(d.text("QLMain", "Label3"), QString(""));
        QCOMPARE(d.text("QLMain", "Label2"), QString(""));
    }
    void buttonsOfEffectsStillToComeOpenNothing()
    {
        for (const CatalogueEntry& entry : catalogue()) {
            if (d.app().forms().exists(entry.form))
                continue;
            d.click("QLMain", entry.button);
            QVERIFY(!d.loaded(entry.form));
        }
        QVERIFY(d.messages().isEmpty());
    }
    void swirlyButtonOpensAFreshModalForm()
    {
        d.click("QLMain", "Command4");
        QVERIFY(d.shown("Swirly"));
        QVERIFY(d.modal("Swirly"));
        d.setText("Swirly", "Text7", "typed");
        d.app().forms().findWidget("Swirly")->hide();
        d.click("QLMain", "Command4");
        QCOMPARE(d.text("Swirly", "Text7"), QString());
    }
    void menuEntryShowsAHiddenFormWithItsValues()
    {
        d.click("QLMain", "Command4");
        d.setText("Swirly", "Text7", "kept");
        d.app().forms().findWidget("Swirly")->hide();
        d.click("QLMain", "mnuAppletSwirly");
        QVERIFY(d.shown("Swirly"));
        QVERIFY(d.modal("Swirly"));
        QCOMPARE(d.text("Swirly", "Text7"), QString("kept"));
    }
    void menus()
    {
        QCOMPARE(d.text("QLMain", "mnuFile"), QString("&File"));
        QCOMPARE(d.on("QLMain", "mnuFile", "entries").toArray(), QJsonArray{"mnuFileExit"});
        QCOMPARE(d.text("QLMain", "mnuFileExit"), QString("E&xit"));
        QCOMPARE(d.text("QLMain", "mnuEdit"), QString("&Edit"));
        QCOMPARE(d.text("QLMain", "mnuEditApplet"), QString("Edit Applet..."));
        QCOMPARE(d.text("QLMain", "mnuSpecialEffects"), QString("&Special Effects"));
        QCOMPARE(d.on("QLMain", "mnuSpecialEffects", "entries").toArray(),
                 (QJsonArray{"mnuImageEffectsMenu", "mnuTextEffectsMenu", "mnuOtherEffectsMenu"}));
        QCOMPARE(d.text("QLMain", "mnuImageEffectsMenu"), QString("&Image Effects"));
        QCOMPARE(d.text("QLMain", "mnuTextEffectsMenu"), QString("&Text Effects"));
        QCOMPARE(d.text("QLMain", "mnuOtherEffectsMenu"), QString("&Other Special Effects"));
        QCOMPARE(d.on("QLMain", "mnuImageEffectsMenu", "entries").toArray(),
                 (QJsonArray{"mnuAppletsAnimations", "mnuAnimWiz", "mnuBBWiz", "mnuAnimButton", "mnuAppletsDynaBut",
                             "mnuImageEffects", "mnuImageFade", "mnuImgRollover", "mnuMoreImageEffects"}));
        QCOMPARE(d.on("QLMain", "mnuTextEffectsMenu", "entries").toArray(),
                 (QJsonArray{"mnuFadeMsg", "mnuNavTicker", "mnuSmoothScroll", "mnuStatusBar", "mnuAppletSwirly",
                             "mnuAppletsTyper"}));
        QCOMPARE(d.on("QLMain", "mnuOtherEffectsMenu", "entries").toArray(),
                 (QJsonArray{"mnuClock", "mnuFade", "mnuPassword", "mnuPopupAlert", "mnuPulldown", "mnuSoundFX",
                             "mnuScrollingCredits"}));
        const QList<QPair<QString, QString>> captions = {
            {"mnuAppletsAnimations", "&Advanced Animator..."},
            {"mnuAnimWiz", "A&nimation Wizard..."},
            {"mnuBBWiz", "&Banner/Billboard Wizard..."},
            {"mnuAnimButton", "Animated Bu&tton..."},
            {"mnuAppletsDynaBut", "&Dynamic Button..."},
            {"mnuImageEffects", "&Image Effects..."},
            {"mnuImageFade", "Image &Fade..."},
            {"mnuImgRollover", "Image &Rollover..."},
            {"mnuMoreImageEffects", "&More Image Effects..."},
            {"mnuFadeMsg", "Fading &Message..."},
            {"mnuNavTicker", "&Navigator Ticker..."},
            {"mnuSmoothScroll", "Sm&ooth Scrolling Text Ticker..."},
            {"mnuStatusBar", "Status &Bar Text Ticker..."},
            {"mnuAppletSwirly", "&Swirly Text..."},
            {"mnuAppletsTyper", "&Typewriter Text..."},
            {"mnuClock", "Digital &Clock..."},
            {"mnuFade", "Background Color &Fade-in/Fade-out..."},
            {"mnuPassword", "&Password Protection..."},
            {"mnuPopupAlert", "Popup &Alert box..."},
            {"mnuPulldown", "Pu&lldown Menu..."},
            {"mnuSoundFX", "So&und Effect..."},
            {"mnuScrollingCredits", "Sc&rolling Credits..."},
            {"mnuView", "&View"},
            {"mnuPreferences", "&Preferences..."},
            {"mnuHelp", "&Help"},
            {"mnuHelpContents", "&Contents..."},
            {"mnuHelpAbout", "&About..."},
        };
        for (const auto& [control, caption] : captions)
            QCOMPARE(d.text("QLMain", control), caption);
        QCOMPARE(d.on("QLMain", "mnuHelp", "entries").toArray(), (QJsonArray{"mnuHelpContents", "mnuHelpAbout"}));
    }
    void effectMenuEntriesOfEffectsStillToComeOpenNothing()
    {
        for (const EffectSubmenu& sub : effectMenu()) {
            for (const EffectMenuEntry& entry : sub.entries) {
                if (d.app().forms().exists(entry.form))
                    continue;
                d.click("QLMain", entry.control);
                QVERIFY(!d.loaded(entry.form));
            }
        }
        d.click("QLMain", "mnuPreferences");
        d.click("QLMain", "mnuHelpAbout");
        QVERIFY(d.shown("QLMain"));
    }
    void editAppletEntryOpensTheReEditForm()
    {
        d.click("QLMain", "mnuEditApplet");
        QVERIFY(d.shown("EditAppletForm"));
        QVERIFY(d.modal("EditAppletForm"));
    }
    void helpContentsOpensTopicZero()
    {
        d.click("QLMain", "mnuHelpContents");
        d.on("QLMain", "TabStrip1", "key", {{"key", "F1"}});
        QCOMPARE(d.help(), (QJsonArray{QJsonArray{"QLMain", 0}, QJsonArray{"QLMain", 0}}));
    }
    void exitEndsTheProgram()
    {
        d.click("QLMain", "Command4");
        d.click("QLMain", "mnuFileExit");
        QVERIFY(d.ok({{"op", "ended"}}).toBool());
        QVERIFY(!d.loaded("QLMain"));
        QVERIFY(!d.loaded("Swirly"));
    }
    void closingTheWindowEndsTheProgram()
    {
        d.on("QLMain", "QLMain", "close");
        QVERIFY(d.ok({{"op", "ended"}}).toBool());
        QVERIFY(!d.loaded("QLMain"));
        QVERIFY(d.messages().isEmpty());
    }
    void aFreshStartLeavesNothingBehind()
    {
        d.click("QLMain", "Command4");
        d.setText("Swirly", "Text7", "x");
        d.setText("Swirly", "Text10", "1");
        d.setText("Swirly", "Text11", "1");
        d.click("Swirly", "Command1");
        d.ok({{"op", "set_clipboard"}, {"text", "clip"}});
        d.start();
        QCOMPARE(d.session().value("EffectId").toInt(), 0);
        QCOMPARE(d.session().value("GeneratedCode").toString(), QString());
        QVERIFY(d.messages().isEmpty());
        QCOMPARE(d.ok({{"op", "clipboard"}}).toString(), QString());
        QVERIFY(!d.loaded("Swirly"));
        QVERIFY(!d.loaded("Preview"));
    }
};

QL_TEST_MAIN(MainWindowTest)
#include "test_mainwindow.moc"
