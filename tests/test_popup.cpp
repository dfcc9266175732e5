#include "Browser.h"
#include "TestSupport.h"
#include "effects/page/CreditsModel.h"
#include "effects/page/PopupAlertModel.h"

#include <QApplication>
#include <QFile>
#include <QSlider>
#include <QTemporaryDir>

using namespace ql;

namespace {

const QString Credit = "<!-- Script written by Ostrel Software - http://www.quillet-fx.com/company/ -->\r\n"
                       "<!-- Created by Quillet software - http://www.quillet-fx.com/ -->\r\n\r\n";
const QString OnePieceMessage =
    "This effect does not require any extra files in order to work correctly.  Simply copy and paste the code "
    "from the Preview Wizard to your HTML document to insert this special effect.";
const QString NoFiles = "This special effect requires no extra files.\r\n\r\n"
                        "Simply follow the instructions in the Preview Wizard to insert this special effect into "
                        "your Web page";

QString popupCode(const QString& text)
{
    return "<SCRIPT LANGUAGE=\"JAVASCRIPT\">\r\n" + Credit + "<!--\r\nwindow.alert(\"" + text +
           "\")\r\n//-->\r\n</SCRIPT>\r\n";
}

QString creditsCode(const QString& length, const QString& delay)
{
    return "<!-- FOLLOW THESE TWO STEPS TO INSTALL THIS SPECIAL EFFECT\r\n\r\n"
           "   1.  Paste the script code into the HEAD section of your HTML document\r\n"
           "   2.  Paste the onLoad event handler into the <BODY> tag of your HTML document\r\n\r\n\r\n"
           "<!-- STEP ONE: Paste the following code into the HEAD of your HTML document  -->\r\n\r\n"
           "<HEAD>\r\n"
           "<SCRIPT Language=\"JavaScript\">\r\n\r\n" +
           Credit +
           "<!--\r\n"
           "    scrollID=0;\r\n"
           "    vPos=0;\r\n\r\n"
           "    function CreditScroll() {\r\n"
           "        vPos+=2;\r\n"
           "        window.scroll(0,vPos);\r\n"
           "        vPos%=" + length + ";\r\n"
           "        scrollID=setTimeout(\"CreditScroll()\"," + delay + ");\r\n"
           "    }\r\n"
           "//-->\r\n"
           "</SCRIPT>\r\n"
           "</HEAD>\r\n\r\n\r\n"
           "<!-- STEP TWO: Paste the following onLoad event handler into the <BODY> tag in your HTML document -->\r\n\r\n"
           "<BODY onLoad=\"if(window.scroll)CreditScroll()\">\r\n\r\n\r\n\r\n";
}

}  // namespace

class PopupCreditsTest : public QObject {
    Q_OBJECT

    TestDriver d;
    QTemporaryDir folder;

    void open(const QString& button, const QString& form)
    {
        d.start({{"program_folder", folder.path()},
                 {"settings", QJsonArray{QJsonArray{"Apps", "Browser", "/usr/bin/browser"}}}});
        d.click("QLMain", button);
        QVERIFY(d.shown(form));
        QVERIFY(d.modal(form));
    }
    bool onTop(int page) { return d.on("Preview", QStringLiteral("Picture1(%1)").arg(page), "on_top").toBool(); }

private slots:
    // Popup Alert, the model.
    void popupScriptByteForByte()
    {
        QCOMPARE(PopupAlertModel::emitCode({.text = "Welcome!"}), popupCode("Welcome!"));
    }
    void popupTextGoesInUnescapedWithItsLineBreaks()
    {
        QCOMPARE(PopupAlertModel::emitCode({.text = "say \"hi\"\r\nbye"}), popupCode("say \"hi\"\r\nbye"));
    }
    void popupRefusesOnlyTheEmptyText()
    {
        const auto r = PopupAlertModel::validate({.text = ""});
        QVERIFY(r);
        QCOMPARE(r->text, QString("Enter the text you wish to appear in the PopUp Alert box."));
        QCOMPARE(r->style, 0);
        QCOMPARE(r->focus, QString());
        QVERIFY(!PopupAlertModel::validate({.text = "   "}));
    }

    // Popup Alert, the form.
    void popupFormCaptions()
    {
        open("Command19", "PopupAlert");
        QCOMPARE(d.text("PopupAlert", "PopupAlert"), QString("Popup Alert box"));
        QCOMPARE(d.text("PopupAlert", "Label1"),
                 QString("This effect creates a Popup Alert box when the user loads your Web page.  The user then "
                         "clicks the OK button to close the box."));
        QCOMPARE(d.text("PopupAlert", "Label2"), QString("Type the text to appear in the Popup Alert box:"));
        QCOMPARE(d.text("PopupAlert", "Frame1"), QString("Example"));
        QVERIFY(d.on("PopupAlert", "Picture1", "visible").toBool());
        QCOMPARE(d.text("PopupAlert", "Text1"), QString());
        QCOMPARE(d.text("PopupAlert", "Command1"), QString("&Done"));
        QCOMPARE(d.text("PopupAlert", "Command2"), QString("&Cancel"));
        QCOMPARE(d.on("PopupAlert", "Command3", "tooltip").toString(), QString("Click here for help"));
    }
    void popupEmptyTextIsRefusedWithAPlainBox()
    {
        open("Command19", "PopupAlert");
        d.click("PopupAlert", "Command1");
        const QJsonArray m = d.messages();
        QCOMPARE(m.size(), 1);
        QCOMPARE(messageText(m[0]), QString("Enter the text you wish to appear in the PopUp Alert box."));
        QCOMPARE(messageStyle(m[0]), 0);
        QVERIFY(d.shown("PopupAlert"));
        QVERIFY(!d.loaded("Preview"));
        QCOMPARE(d.session().value("EffectId").toInt(), 0);
    }
    void popupDoneHandsOverAsOnePieceWithoutFiles()
    {
        open("Command19", "PopupAlert");
        d.setText("PopupAlert", "Text1", "Hello\nthere ");
        d.click("PopupAlert", "Command1");
        const QJsonObject s = d.session();
        QCOMPARE(s.value("GeneratedCode").toString(), popupCode("Hello\r\nthere "));
        QCOMPARE(s.value("EffectId").toInt(), 18);
        QCOMPARE(s.value("RequiredClasses").toArray(), (QJsonArray{"", "", ""}));
        QCOMPARE(s.value("RequiredFiles").toArray(), QJsonArray::fromStringList(QStringList(51, QString())));
        const QJsonArray m = d.messages();
        QCOMPARE(m.size(), 1);
        QCOMPARE(messageText(m[0]), OnePieceMessage);
        QCOMPARE(messageStyle(m[0]), 48);
        QVERIFY(!d.shown("PopupAlert"));
        QVERIFY(d.modal("Preview"));
        QCOMPARE(d.text("Preview", "Label3"), QString(" Required Java class files:  None"));
        // One piece: the normal layout of Step 2, and no Step 3.
        d.click("Preview", "Command15");
        QVERIFY(onTop(1));
        QVERIFY(d.on("Preview", "Label1", "visible").toBool());
        QCOMPARE(d.text("Preview", "Label8"),
                 QString("1. Click here to copy this HTML code to the Windows Clipboard-->"));
        d.click("Preview", "Command15");
        QVERIFY(onTop(4));
        d.click("Preview", "Command14");
        QVERIFY(onTop(1));
    }
    void popupStaysLoadedAfterTheFinishAndTheMenuBringsItBack()
    {
        open("Command19", "PopupAlert");
        d.setText("PopupAlert", "Text1", "kept");
        d.click("PopupAlert", "Command1");
        d.click("Preview", "Command15");
        d.click("Preview", "Command15");
        d.click("Preview", "Command5");
        QVERIFY(!d.loaded("Preview"));
        QVERIFY(d.loaded("PopupAlert"));
        QVERIFY(!d.shown("PopupAlert"));
        d.click("QLMain", "mnuPopupAlert");
        QVERIFY(d.shown("PopupAlert"));
        QCOMPARE(d.text("PopupAlert", "Text1"), QString("kept"));
        d.click("PopupAlert", "Command2");
        // The button unloads first: the form starts blank.
        d.click("QLMain", "Command19");
        QCOMPARE(d.text("PopupAlert", "Text1"), QString());
    }
    void popupPreviousFromStepOneReturnsWithTheText()
    {
        open("Command19", "PopupAlert");
        d.setText("PopupAlert", "Text1", "again");
        d.click("PopupAlert", "Command1");
        d.click("Preview", "Command14");
        QVERIFY(!d.loaded("Preview"));
        QVERIFY(d.shown("PopupAlert"));
        QCOMPARE(d.text("PopupAlert", "Text1"), QString("again"));
    }
    void popupEditAppletEntryOfTheWizardLeavesForTheMainWindow()
    {
        open("Command19", "PopupAlert");
        d.setText("PopupAlert", "Text1", "x");
        d.click("PopupAlert", "Command1");
        d.click("Preview", "mnuEditApplet");
        QVERIFY(!d.loaded("Preview"));
        QVERIFY(!d.shown("PopupAlert"));
        QVERIFY(d.shown("QLMain"));
    }
    void popupCancelAndHelp()
    {
        open("Command19", "PopupAlert");
        d.click("PopupAlert", "Command3");
        QCOMPARE(d.help(), (QJsonArray{QJsonArray{"PopupAlert", QJsonValue::Null}}));
        d.click("PopupAlert", "Command2");
        QVERIFY(!d.loaded("PopupAlert"));
        QCOMPARE(d.session().value("GeneratedCode").toString(), QString());
    }
    void popupAlertSeenInABrowser()
    {
        if (!browser::chromium())
            QSKIP(qPrintable(browser::missingMessage()));
        QTemporaryDir pages;
        const QString harness =
            "<SCRIPT>window.alert = function (text) {"
            " var seen = document.documentElement.getAttribute('data-alerts') || '';"
            " document.documentElement.setAttribute('data-alerts', seen + '[' + text + ']'); };</SCRIPT>\r\n";
        QFile page(pages.filePath("popup.html"));
        QVERIFY(page.open(QIODevice::WriteOnly));
        page.write(("<HTML><HEAD>" + harness + "</HEAD><BODY>\r\n" +
                    PopupAlertModel::emitCode({.text = "Welcome to my page"}) + "</BODY></HTML>\r\n")
                       .toUtf8());
        page.close();
        const browser::Run run = browser::dumpDom(page.fileName(), 1000);
        QVERIFY2(run.ok, qPrintable(run.error));
        QVERIFY2(run.dom.contains("data-alerts=\"[Welcome to my page]\""), qPrintable(run.dom));
    }

    // Scrolling Credits, the model.
    void creditsDefaultsGiveLength1000AndDelay50()
    {
        QCOMPARE(CreditsModel::emitCode({}), creditsCode("1000", " 50"));
    }
    void creditsSpeedEnds()
    {
        QCOMPARE(CreditsModel::emitCode({.pageLength = "", .speed = 100}), creditsCode("1000", " 0"));
        QCOMPARE(CreditsModel::emitCode({.pageLength = "2500", .speed = 1}), creditsCode("2500", " 99"));
    }
    void creditsLengthThatIsNoNumberGoesInAsItStands()
    {
        QCOMPARE(CreditsModel::emitCode({.pageLength = "long page", .speed = 50}), creditsCode("long page", " 50"));
        QVERIFY(!CreditsModel::validate({.pageLength = "x", .speed = 3}));
    }

    // Scrolling Credits, the form.
    void creditsFormCaptionsAndSlider()
    {
        open("Command23", "Credits");
        QCOMPARE(d.text("Credits", "Credits"), QString("Scrolling Credits"));
        QCOMPARE(d.text("Credits", "Label1"),
                 QString("This special effect will scroll your Web page like movie credits.  Only version 4.0 "
                         "browsers support this effect."));
        QCOMPARE(d.text("Credits", "Frame1"), QString("Properties"));
        QCOMPARE(d.text("Credits", "Label2"), QString("Length of Web page:"));
        QCOMPARE(d.text("Credits", "Label3"),
                 QString("This number will depend on the vertical length of your Web page.  Try '1000' at first "
                         "and then adjust this number after previewing."));
        QCOMPARE(d.text("Credits", "Label4"), QString("Scrolling speed:"));
        QCOMPARE(d.text("Credits", "Label5"), QString("Slow"));
        QCOMPARE(d.text("Credits", "Label6"), QString("Fast"));
        QCOMPARE(d.on("Credits", "Slider2", "value").toInt(), 50);
        auto* slider = d.app().forms().findWidget("Credits")->findChild<QSlider*>("Slider2");
        QCOMPARE(slider->minimum(), 1);
        QCOMPARE(slider->maximum(), 100);
        QCOMPARE(slider->singleStep(), 1);
        QCOMPARE(slider->pageStep(), 5);
        QCOMPARE(slider->tickInterval(), 10);
        QCOMPARE(d.text("Credits", "Text2"), QString());
        QCOMPARE(d.text("Credits", "Command3"), QString("&OK"));
        QCOMPARE(d.text("Credits", "Command2"), QString("&Cancel"));
        QCOMPARE(d.on("Credits", "Command5", "tooltip").toString(), QString("Click here for help"));
    }
    void creditsOkHandsOverSectionedCode()
    {
        open("Command23", "Credits");
        d.on("Credits", "Slider2", "set_value", {{"value", 100}});
        d.setText("Credits", "Text2", "1500");
        d.click("Credits", "Command3");
        const QJsonObject s = d.session();
        QCOMPARE(s.value("GeneratedCode").toString(), creditsCode("1500", " 0"));
        QCOMPARE(s.value("EffectId").toInt(), 23);
        QCOMPARE(s.value("RequiredClasses").toArray(), (QJsonArray{"", "", ""}));
        const QJsonArray m = d.messages();
        QCOMPARE(m.size(), 1);
        QCOMPARE(messageText(m[0]), NoFiles);
        QCOMPARE(messageStyle(m[0]), 48);
        QVERIFY(d.modal("Preview"));
        QCOMPARE(d.text("Preview", "Label3"), QString(" Required Java class files:  None"));
        d.click("Preview", "Command15");
        QVERIFY(!d.on("Preview", "Label1", "visible").toBool());
        QCOMPARE(d.text("Preview", "Label8"),
                 QString("Select each section of code and click here to copy to the Windows Clipboard-->"));
        d.click("Preview", "Command15");
        QVERIFY(onTop(4));
    }
    void creditsPreviewPageCarriesTheFiller()
    {
        open("Command23", "Credits");
        d.click("Credits", "Command3");
        d.click("Preview", "Command11");
        QFile page(folder.filePath("ql-prvw.htm"));
        QVERIFY(page.open(QIODevice::ReadOnly));
        const QString text = QString::fromUtf8(page.readAll());
        QVERIFY(text.startsWith("<HTML>\r\n" + creditsCode("1000", " 50") + "<FONT FACE=Arial SIZE=5>"));
        QVERIFY(text.contains("We've added a few lines of text to demonstrate the scrolling credit effect"));
        QVERIFY(text.endsWith("\r\n\r\n</FONT></BODY></HTML>\r\n"));
    }
    void creditsStayLoadedAfterTheFinish()
    {
        open("Command23", "Credits");
        d.setText("Credits", "Text2", "777");
        d.click("Credits", "Command3");
        d.click("Preview", "Command15");
        d.click("Preview", "Command15");
        d.click("Preview", "Command5");
        QVERIFY(d.loaded("Credits"));
        QVERIFY(!d.shown("Credits"));
        d.click("QLMain", "mnuScrollingCredits");
        QCOMPARE(d.text("Credits", "Text2"), QString("777"));
    }
    void creditsCancelAndHelp()
    {
        open("Command23", "Credits");
        d.click("Credits", "Command5");
        QCOMPARE(d.help(), (QJsonArray{QJsonArray{"Credits", QJsonValue::Null}}));
        d.click("Credits", "Command2");
        QVERIFY(!d.loaded("Credits"));
    }
};

QL_TEST_MAIN(PopupCreditsTest)
#include "test_popup.moc"
