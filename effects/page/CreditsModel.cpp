#include "effects/page/CreditsModel.h"

#include "core/Emission.h"
#include "core/FormNames.h"

namespace ql {

namespace {

// A number as text with the leading blank of a positive number.
QString signedText(int n)
{
    return n < 0 ? QString::number(n) : " " + QString::number(n);
}

}  // namespace

const EffectDescription& CreditsModel::description()
{
    static const EffectDescription d{
        .form = FormName::Credits,
        .effectId = 23,
        .classes = {},
        .fileLines = {},
        .editKeys = {},
        .helpTopic = std::nullopt,
    };
    return d;
}

QString CreditsModel::emitCode(const Fields& f)
{
    const QString length = f.pageLength.isEmpty() ? QStringLiteral("1000") : f.pageLength;
    // The time between two scroll steps in milliseconds.
    const QString delay = signedText(100 - f.speed);
    const QString crlf2 = CRLF + CRLF;
    const QString crlf3 = crlf2 + CRLF;
    return "<!-- FOLLOW THESE TWO STEPS TO INSTALL THIS SPECIAL EFFECT" + crlf2 +
           "   1.  Paste the script code into the HEAD section of your HTML document" + CRLF +
           "   2.  Paste the onLoad event handler into the <BODY> tag of your HTML document" + crlf3 +
           "<!-- STEP ONE: Paste the following code into the HEAD of your HTML document  -->" + crlf2 +
           "<HEAD>" + CRLF +
           "<SCRIPT Language=" + QUOTE + "JavaScript" + QUOTE + ">" + crlf2 +
           ScriptCreditLines() +
           "<!--" + CRLF +
           "    scrollID=0;" + CRLF +
           "    vPos=0;" + crlf2 +
           "    function CreditScroll() {" + CRLF +
           "        vPos+=2;" + CRLF +
           "        window.scroll(0,vPos);" + CRLF +
           "        vPos%=" + length + ";" + CRLF +
           "        scrollID=setTimeout(" + QUOTE + "CreditScroll()" + QUOTE + "," + delay + ");" + CRLF +
           "    }" + CRLF +
           "//-->" + CRLF +
           "</SCRIPT>" + CRLF +
           "</HEAD>" + crlf3 +
           "<!-- STEP TWO: Paste the following onLoad event handler into the <BODY> tag in your HTML document -->" +
           crlf2 + "<BODY onLoad=" + QUOTE + "if(window.scroll)CreditScroll()" + QUOTE + ">" + crlf2 + crlf2;
}

}  // namespace ql
