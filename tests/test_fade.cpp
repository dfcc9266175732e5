#include "Browser.h"
#include "TestSupport.h"
#include "core/Text.h"
#include "effects/page/FadeModel.h"

#include <QApplication>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>

using namespace ql;

namespace {

const QString Unknown = "Quillet does not recognize this applet.  It cannot re-edit the Status bar scrolling text "
                        "applet or the Fading background color applet.";
const QString NoFiles = "This special effect requires no extra files.\r\n\r\n"
                        "Simply follow the instructions in the Preview Wizard to insert this special effect into your "
                        "Web page";

// The whole code of a fade, with its two functions and the BODY tag given.
QString fadeCode(const QString& functions, const QString& body)
{
    return "<!-- FOLLOW THESE TWO STEPS TO INSTALL THIS SPECIAL EFFECT\r\n\r\n"
           "   1.  Paste the script code into the HEAD section of your HTML document\r\n"
           "   2.  Paste the onLoad event handler into the <BODY> tag of your HTML document\r\n\r\n\r\n"
           "<!-- STEP ONE: Copy the following code into the HEAD of your HTML document  -->\r\n\r\n"
           "<HEAD>\r\n"
           "<script language=\"JavaScript\">\r\n\r\n"
           "<!-- Script written by Ostrel Software - http://www.quillet-fx.com/company/ -->\r\n"
           "<!-- Created by Quillet software - http://www.quillet-fx.com/ -->\r\n\r\n"
           "<!--\r\n"
           "function makearray(n) {\r\n"
           "    this.length = n;\r\n"
           "    for(var i = 1; i <= n; i++)\r\n"
           "        this[i] = 0;\r\n"
           "    return this;\r\n"
           "}\r\n"
           "hexa = new makearray(16);\r\n"
           "for(var i = 0; i < 10; i++)\r\n"
           "    hexa[i] = i;\r\n"
           "hexa[10]=\"a\"; hexa[11]=\"b\"; hexa[12]=\"c\";\r\n"
           "hexa[13]=\"d\"; hexa[14]=\"e\"; hexa[15]=\"f\";\r\n\r\n"
           "function hex(i) {\r\n"
           "    if (i < 0)\r\n"
           "    return \"00\";\r\n"
           "    else if (i > 255)\r\n"
           "    return \"ff\";\r\n"
           "    else\r\n"
           "    return \"\" + hexa[Math.floor(i/16)] + hexa[i%16];\r\n"
           "}\r\n\r\n"
           "function setbgColor(r, g, b) {\r\n"
           "    var hr = hex(r); var hg = hex(g); var hb = hex(b);\r\n"
           "    document.bgColor = \"#\"+hr+hg+hb;\r\n"
           "}\r\n\r\n"
           "function fade(sr, sg, sb, er, eg, eb, step) {\r\n"
           "    for(var i = 0; i <= step; i++) {\r\n"
           "    setbgColor(\r\n"
           "    Math.floor(sr * ((step-i)/step) + er * (i/step)),\r\n"
           "    Math.floor(sg * ((step-i)/step) + eg * (i/step)),\r\n"
           "    Math.floor(sb * ((step-i)/step) + eb * (i/step)));\r\n"
           "    }\r\n"
           "}\r\n" +
           functions +
           "//-->\r\n"
           "</script>\r\n"
           "</head>\r\n\r\n\r\n"
           "<!-- STEP TWO: Paste the following onLoad event handler into the <BODY> tag in your HTML document -->\r\n\r\n" +
           body;
}

const QString FadeIn = "function fadein() {\r\n        fade(255,255,255, 0,0,0, 125);\r\n}\r\n";

}  // namespace

class FadeTest : public QObject {
    Q_OBJECT

    TestDriver d;

    void openFade()
    {
        d.start();
        d.click("QLMain", "Command6");
        QVERIFY(d.shown("Fade"));
    }
    QString refusalOf(const FadeModel::Fields& f)
    {
        const auto r = FadeModel::validate(f);
        return r ? r->text : QString();
    }

private slots:
    // The model alone.
    void fadeInOnlyWhiteToBlack()
    {
        FadeModel::Fields f{.fadeInFrom = "255,255,255", .fadeInTo = "0,0,0"};
        QCOMPARE(FadeModel::emitCode(f), fadeCode(FadeIn + "\r\n\r\n", "<BODY onLoad=\"fadein()\">"));
        QVERIFY(!FadeModel::emitCode(f).contains("fadeout"));
    }
    void fadeOutOnly()
    {
        FadeModel::Fields f{.fadeOutFrom = "0,0,0", .fadeOutTo = "255,0,0", .fadeOutSteps = 40};
        QCOMPARE(FadeModel::emitCode(f),
                 fadeCode("\r\nfunction fadeout() {\r\n        fade(0,0,0, 255,0,0, 40);\r\n}\r\n\r\n",
                          "<BODY onUnLoad=\"fadeout()\">"));
    }
    void bothFadesLoadHandlerFirst()
    {
        FadeModel::Fields f{.fadeInFrom = "255,255,255", .fadeInTo = "0,0,0", .fadeInSteps = 125,
                            .fadeOutFrom = "1,2,3", .fadeOutTo = "4,5,6", .fadeOutSteps = 255};
        QCOMPARE(FadeModel::emitCode(f),
                 fadeCode(FadeIn + "\r\nfunction fadeout() {\r\n        fade(1,2,3, 4,5,6, 255);\r\n}\r\n\r\n",
                          "<BODY onLoad=\"fadein()\" onUnLoad=\"fadeout()\">"));
    }
    void noFadeLeavesTheHelpersAndAPlainBody()
    {
        const QString code = FadeModel::emitCode({});
        QCOMPARE(code, fadeCode("\r\n\r\n", "<BODY>"));
        QVERIFY(!code.endsWith("\r\n"));
    }
    void sliderAtOneAndValuesUnchecked()
    {
        FadeModel::Fields f{.fadeInFrom = "red", .fadeInTo = "0,0,\"x\"", .fadeInSteps = 1};
        QVERIFY(FadeModel::emitCode(f).contains("\r\n        fade(red, 0,0,\"x\", 1);\r\n"));
    }
    void validationOrder()
    {
        QCOMPARE(refusalOf({.fadeInFrom = "1,1,1"}), QString("Please provide a color to fade into."));
        QCOMPARE(refusalOf({.fadeInTo = "1,1,1"}), QString("Please provide a color to fade from."));
        QCOMPARE(refusalOf({.fadeOutTo = "1,1,1"}), QString("Please provide a color to fade from."));
        QCOMPARE(refusalOf({.fadeOutFrom = "1,1,1"}), QString("Please provide a color to fade out to."));
        // The fade-in is tested first.
        QCOMPARE(refusalOf({.fadeInFrom = "1,1,1", .fadeOutFrom = "1,1,1"}),
                 QString("Please provide a color to fade into."));
        QCOMPARE(refusalOf({.fadeInTo = "1,1,1", .fadeOutFrom = "1,1,1"}), QString("Please provide a color to fade from."));
        for (const FadeModel::Fields& f : {FadeModel::Fields{.fadeInFrom = "1,1,1"}, FadeModel::Fields{.fadeOutTo = "1"}})
            QCOMPARE(FadeModel::validate(f)->style, 48);
        QVERIFY(!FadeModel::validate({}));
        QVERIFY(!FadeModel::validate({.fadeInFrom = "a", .fadeInTo = "b", .fadeOutFrom = "c", .fadeOutTo = "d"}));
    }

    // The form.
    void formOpensWithItsCaptionsAndSliders()
    {
        openFade();
        QVERIFY(d.modal("Fade"));
        QCOMPARE(d.text("Fade", "Fade"), QString("Background Color Fading effect"));
        const QList<QPair<const char*, const char*>> captions = {
            {"Label1", "This Javascript creates a background color fade-in/fade-out effect when loading and exiting "
                       "your Web page."},
            {"Frame1", "Fade-in"},
            {"Frame2", "Fade-out"},
            {"Label2", "Fade from this color:"},
            {"Label3", "Fade into this color:"},
            {"Label4", "Speed of fade:"},
            {"Label6", "Fade from this color:"},
            {"Label12", "Fade out to this color:"},
            {"Label13", "Speed of fade:"},
            {"Label10", "Fast"},
            {"Label11", "Slow"},
            {"Label14", "Fast"},
            {"Label15", "Slow"},
            {"Command1", "&Done"},
            {"Command2", "&Cancel"},
        };
        for (const auto& [control, caption] : captions)
            QCOMPARE(d.text("Fade", control), QString(caption));
        for (const char* pick : {"Label5", "Label7", "Label8", "Label9"}) {
            QCOMPARE(d.text("Fade", pick), QString("Select"));
            QCOMPARE(d.on("Fade", pick, "tooltip").toString(), QString("Click here to select a color"));
        }
        QCOMPARE(d.on("Fade", "Command3", "tooltip").toString(), QString("Click here for help"));
        for (const char* slider : {"Slider1", "Slider2"}) {
            QCOMPARE(d.on("Fade", slider, "value").toInt(), 125);
            QCOMPARE(d.on("Fade", slider, "range").toObject(),
                     (QJsonObject{{"min", 1}, {"max", 255}, {"small", 1}, {"large", 5}, {"tick", 16}}));
        }
        for (const char* field : {"Text1", "Text2", "Text3", "Text4"})
            QCOMPARE(d.text("Fade", field), QString());
    }
    void refusalsStopDone()
    {
        openFade();
        d.setText("Fade", "Text1", "1,1,1");
        d.click("Fade", "Command1");
        d.setText("Fade", "Text2", "2,2,2");
        d.setText("Fade", "Text4", "2,2,2");
        d.click("Fade", "Command1");
        d.setText("Fade", "Text3", "3,3,3");
        d.setText("Fade", "Text4", "");
        d.click("Fade", "Command1");
        const QJsonArray m = d.messages();
        QCOMPARE(m.size(), 3);
        QCOMPARE(messageText(m[0]), QString("Please provide a color to fade into."));
        QCOMPARE(messageText(m[1]), QString("Please provide a color to fade from."));
        QCOMPARE(messageText(m[2]), QString("Please provide a color to fade out to."));
        for (const QJsonValue& message : m)
            QCOMPARE(messageStyle(message), 48);
        QCOMPARE(d.on("Fade", "Fade", "focus").toString(), QString("Text4"));
        QVERIFY(d.shown("Fade"));
        QVERIFY(!d.loaded("Preview"));
        QCOMPARE(d.session().value("GeneratedCode").toString(), QString());
    }
    void doneHandsOverSectionedCode()
    {
        openFade();
        d.setText("Fade", "Text1", "255,255,255");
        d.setText("Fade", "Text2", "0,0,0");
        d.on("Fade", "Slider1", "set_value", {{"value", 1}});
        d.setText("Fade", "Text3", "0,0,0");
        d.setText("Fade", "Text4", "255,255,255");
        d.on("Fade", "Slider2", "set_value", {{"value", 130}});
        d.click("Fade", "Command1");
        const QString expected =
            fadeCode("function fadein() {\r\n        fade(255,255,255, 0,0,0, 1);\r\n}\r\n\r\n"
                     "function fadeout() {\r\n        fade(0,0,0, 255,255,255, 130);\r\n}\r\n\r\n",
                     "<BODY onLoad=\"fadein()\" onUnLoad=\"fadeout()\">");
        const QJsonObject s = d.session();
        QCOMPARE(s.value("GeneratedCode").toString(), expected);
        QCOMPARE(s.value("EffectId").toInt(), 6);
        QCOMPARE(s.value("RequiredClasses").toArray(), (QJsonArray{"", "", ""}));
        QCOMPARE(s.value("RequiredFiles").toArray(), QJsonArray::fromStringList(QStringList(51, QString())));
        QCOMPARE(s.value("RequiredPaths").toArray(), QJsonArray::fromStringList(QStringList(51, QString())));
        const QJsonArray m = d.messages();
        QCOMPARE(m.size(), 1);
        QCOMPARE(messageText(m[0]), NoFiles);
        QCOMPARE(messageStyle(m[0]), 48);
        QVERIFY(!d.shown("Fade"));
        QVERIFY(d.modal("Preview"));
        QCOMPARE(d.text("Preview", "Text1"), expected);
        QCOMPARE(d.text("Preview", "Label3"), QString(" Required Java class files:  None"));
        // Sectioned code, and no files to copy: Step 2 goes straight to the end.
        d.click("Preview", "Command15");
        QCOMPARE(d.text("Preview", "Label8"),
                 QString("Select each section of code and click here to copy to the Windows Clipboard-->"));
        QVERIFY(!d.on("Preview", "Label1", "visible").toBool());
        d.click("Preview", "Command15");
        QVERIFY(d.on("Preview", "Picture1(4)", "on_top").toBool());
        d.click("Preview", "Command5");
        QVERIFY(!d.loaded("Fade"));
    }
    void previousFromStepOneKeepsTheFields()
    {
        openFade();
        d.setText("Fade", "Text3", "9,9,9");
        d.setText("Fade", "Text4", "8,8,8");
        d.on("Fade", "Slider2", "set_value", {{"value", 200}});
        d.click("Fade", "Command1");
        const QString first = d.session().value("GeneratedCode").toString();
        d.click("Preview", "Command14");
        QVERIFY(d.shown("Fade"));
        QCOMPARE(d.on("Fade", "Slider2", "value").toInt(), 200);
        d.click("Fade", "Command1");
        QCOMPARE(d.session().value("GeneratedCode").toString(), first);
    }
    void colourPicksFillTheirFields()
    {
        openFade();
        const QList<QPair<const char*, const char*>> picks = {
            {"Label5", "Text1"}, {"Label7", "Text2"}, {"Label8", "Text3"}, {"Label9", "Text4"}};
        quint32 colour = 1;
        for (const auto& [label, field] : picks) {
            d.ok({{"op", "answer_color"}, {"values", QJsonArray{double(colour)}}});
            d.click("Fade", label);
            QCOMPARE(d.text("Fade", field), colorTriple(colour));
            QCOMPARE(d.text("Fade", label), QString(""));
            colour = (colour * 256 + 7) & 0xFFFFFF;
        }
        d.ok({{"op", "answer_color"}, {"values", QJsonArray{QJsonValue::Null}}});
        d.click("Fade", "Label5");
        QCOMPARE(d.text("Fade", "Text1"), QString("1,0,0"));
    }
    void cancelHelpAndNoReEdit()
    {
        openFade();
        d.click("Fade", "Command3");
        QCOMPARE(d.help(), (QJsonArray{QJsonArray{"Fade", QJsonValue::Null}}));
        const QString help = QString::fromUtf8(d.app().platform().files().readFile(d.app().helpFile()).value_or(""));
        QVERIFY(help.contains("<a name=\"Fade\"></a>"));
        QVERIFY(help.contains("<a href=\"#Fade\">"));
        d.setText("Fade", "Text1", "1,2,3");
        d.click("Fade", "Command2");
        QVERIFY(!d.loaded("Fade"));
        d.click("QLMain", "mnuFade");
        QVERIFY(d.shown("Fade"));
        QCOMPARE(d.text("Fade", "Text1"), QString());
        d.click("Fade", "Command2");
        // Its code cannot come back into the form.
        d.click("QLMain", "mnuEditApplet");
        d.setText("EditAppletForm", "Text1", FadeModel::emitCode({.fadeInFrom = "1,1,1", .fadeInTo = "2,2,2"}));
        d.click("EditAppletForm", "Command1");
        const QJsonArray m = d.messages();
        QCOMPARE(m.size(), 1);
        QCOMPARE(messageText(m[0]), Unknown);
        QVERIFY(!d.loaded("Fade"));
    }

    // The emitted pieces in a real browser.
    void backgroundFadesInAChromiumPage()
    {
        if (!browser::chromium())
            QSKIP(qPrintable(browser::missingMessage()));
        const FadeModel::Fields f{.fadeInFrom = "255,0,0", .fadeInTo = "0,0,255", .fadeInSteps = 10,
                                  .fadeOutFrom = "0,255,0", .fadeOutTo = "255,255,0", .fadeOutSteps = 4};
        const QString code = FadeModel::emitCode(f);
        const QString head = code.mid(code.indexOf("<HEAD>"), code.indexOf("</head>") + 7 - code.indexOf("<HEAD>"));
        const QString body = code.mid(code.lastIndexOf("<BODY"));
        QCOMPARE(body, QString("<BODY onLoad=\"fadein()\" onUnLoad=\"fadeout()\">"));
        // The harness records each colour the script sets, the colour when
        // the page has loaded and a while later, then runs the fade-out.
        const QString harness = R"(
<pre id="out"></pre>
<script>
var seen = [];
var original = setbgColor;
setbgColor = function(r, g, b) { original(r, g, b); seen.push(document.bgColor); };
var report = [];
report.push("before=" + getComputedStyle(document.body).backgroundColor);
window.addEventListener("load", function() {
  report.push("load=" + getComputedStyle(document.body).backgroundColor);
  report.push("rounds=" + seen.length + " first=" + seen[0] + " last=" + seen[seen.length - 1]);
  report.push("unload=" + document.body.getAttribute("onunload"));
  setTimeout(function() {
    report.push("later=" + getComputedStyle(document.body).backgroundColor);
    seen = [];
    fadeout();
    report.push("out rounds=" + seen.length + " first=" + seen[0] + " last=" + seen[seen.length - 1]);
    report.push("after=" + getComputedStyle(document.body).backgroundColor);
    document.getElementById("out").textContent = report.join("\n");
  }, 1500);
});
</script>
</BODY>
</HTML>
)";
        QTemporaryDir dir;
        const QString page = dir.filePath("fade.html");
        QFile file(page);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(("<HTML>\r\n" + head + "\r\n" + body + harness).toUtf8());
        file.close();
        const browser::Run run = browser::dumpDom(page, 3000);
        QVERIFY2(run.ok, qPrintable(run.error));
        const QRegularExpression out("<pre id=\"out\">([^<]*)</pre>");
        const QRegularExpressionMatch match = out.match(run.dom);
        QVERIFY2(match.hasMatch(), qPrintable(run.dom.left(2000)));
        QCOMPARE(match.captured(1), QString("before=rgba(0, 0, 0, 0)\n"
                                            "load=rgb(0, 0, 255)\n"
                                            "rounds=11 first=#ff0000 last=#0000ff\n"
                                            "unload=fadeout()\n"
                                            "later=rgb(0, 0, 255)\n"
                                            "out rounds=5 first=#00ff00 last=#ffff00\n"
                                            "after=rgb(255, 255, 0)"));
    }
};

QL_TEST_MAIN(FadeTest)
#include "test_fade.moc"
