#include "effects/page/FadeModel.h"

#include "core/Constants.h"
#include "core/Emission.h"
#include "core/FormNames.h"

namespace ql {

namespace {

// A number as the script call takes it: a positive one with a leading blank.
QString signedText(int value)
{
    return (value >= 0 ? QStringLiteral(" ") : QString()) + QString::number(value);
}

// One of the two small functions that call fade(): "fadein" or "fadeout".
QString fadeFunction(const QString& name, const QString& from, const QString& to, int steps)
{
    return "function " + name + "() {" + CRLF + "        fade(" + from + ", " + to + "," + signedText(steps) + ");" +
           CRLF + "}" + CRLF;
}

}  // namespace

const EffectDescription& FadeModel::description()
{
    static const EffectDescription d{
        .form = FormName::Fade,
        .effectId = 6,
        .classes = {},
        .fileLines = {},
        .editKeys = {},
        .helpTopic = std::nullopt,
    };
    return d;
}

std::optional<Refusal> FadeModel::validate(const Fields& f)
{
    if (f.fadeInTo.isEmpty() && !f.fadeInFrom.isEmpty())
        return Refusal{"Please provide a color to fade into.", 48, "Text2"};
    if (!f.fadeInTo.isEmpty() && f.fadeInFrom.isEmpty())
        return Refusal{"Please provide a color to fade from.", 48, "Text1"};
    if (!f.fadeOutTo.isEmpty() && f.fadeOutFrom.isEmpty())
        return Refusal{"Please provide a color to fade from.", 48, "Text3"};
    if (f.fadeOutTo.isEmpty() && !f.fadeOutFrom.isEmpty())
        return Refusal{"Please provide a color to fade out to.", 48, "Text4"};
    return std::nullopt;
}

QString FadeModel::emitCode(const Fields& f)
{
    QString fadeIn;
    QString onLoad;
    if (!f.fadeInFrom.isEmpty()) {
        fadeIn = fadeFunction(QStringLiteral("fadein"), f.fadeInFrom, f.fadeInTo, f.fadeInSteps);
        onLoad = " onLoad=" + QUOTE + "fadein()" + QUOTE;
    }
    QString fadeOut;
    QString onUnload;
    if (!f.fadeOutFrom.isEmpty()) {
        fadeOut = fadeFunction(QStringLiteral("fadeout"), f.fadeOutFrom, f.fadeOutTo, f.fadeOutSteps);
        onUnload = " onUnLoad=" + QUOTE + "fadeout()" + QUOTE;
    }

    // Each line with the count of line breaks that follow it.
    const QList<QPair<QString, int>> lines = {
        {"<!-- FOLLOW THESE TWO STEPS TO INSTALL THIS SPECIAL EFFECT", 2},
        {"   1.  Paste the script code into the HEAD section of your HTML document", 1},
        {"   2.  Paste the onLoad event handler into the <BODY> tag of your HTML document", 3},
        {"<!-- STEP ONE: Copy the following code into the HEAD of your HTML document  -->", 2},
        {"<HEAD>", 1},
        {"<script language=" + QUOTE + "JavaScript" + QUOTE + ">", 2},
        {"<!-- Script written by Ostrel Software - " + Addresses::VendorUrl + " -->", 1},
        {"<!-- Created by Quillet software - " + Addresses::ProductUrl + " -->", 2},
        {"<!--", 1},
        {"function makearray(n) {", 1},
        {"    this.length = n;", 1},
        {"    for(var i = 1; i <= n; i++)", 1},
        {"        this[i] = 0;", 1},
        {"    return this;", 1},
        {"}", 1},
        {"hexa = new makearray(16);", 1},
        {"for(var i = 0; i < 10; i++)", 1},
        {"    hexa[i] = i;", 1},
        {"hexa[10]=" + QUOTE + "a" + QUOTE + "; hexa[11]=" + QUOTE + "b" + QUOTE + "; hexa[12]=" + QUOTE + "c" +
             QUOTE + ";",
         1},
        {"hexa[13]=" + QUOTE + "d" + QUOTE + "; hexa[14]=" + QUOTE + "e" + QUOTE + "; hexa[15]=" + QUOTE + "f" +
             QUOTE + ";",
         2},
        {"function hex(i) {", 1},
        {"    if (i < 0)", 1},
        {"    return " + QUOTE + "00" + QUOTE + ";", 1},
        {"    else if (i > 255)", 1},
        {"    return " + QUOTE + "ff" + QUOTE + ";", 1},
        {"    else", 1},
        {"    return " + QUOTE + QUOTE + " + hexa[Math.floor(i/16)] + hexa[i%16];", 1},
        {"}", 2},
        {"function setbgColor(r, g, b) {", 1},
        {"    var hr = hex(r); var hg = hex(g); var hb = hex(b);", 1},
        {"    document.bgColor = " + QUOTE + "#" + QUOTE + "+hr+hg+hb;", 1},
        {"}", 2},
        {"function fade(sr, sg, sb, er, eg, eb, step) {", 1},
        {"    for(var i = 0; i <= step; i++) {", 1},
        {"    setbgColor(", 1},
        {"    Math.floor(sr * ((step-i)/step) + er * (i/step)),", 1},
        {"    Math.floor(sg * ((step-i)/step) + eg * (i/step)),", 1},
        {"    Math.floor(sb * ((step-i)/step) + eb * (i/step)));", 1},
        {"    }", 1},
        {"}", 1},
        // The two small functions end in their own line break; an absent
        // one still leaves its line.
        {fadeIn, 1},
        {fadeOut, 1},
        {"//-->", 1},
        {"</script>", 1},
        {"</head>", 3},
        {"<!-- STEP TWO: Paste the following onLoad event handler into the <BODY> tag in your HTML document -->", 2},
        {"<BODY" + onLoad + onUnload + ">", 0},
    };
    QString code;
    for (const auto& [line, breaks] : lines)
        code += line + CRLF.repeated(breaks);
    return code;
}

}  // namespace ql
