#include "effects/page/SoundModel.h"

#include "core/Constants.h"
#include "core/Emission.h"
#include "core/FormNames.h"

namespace ql {

namespace {

// The text without its leading and trailing blanks.
QString trimBlanks(const QString& text)
{
    qsizetype start = 0;
    qsizetype end = text.size();
    while (start < end && text[start] == QLatin1Char(' '))
        ++start;
    while (end > start && text[end - 1] == QLatin1Char(' '))
        --end;
    return text.mid(start, end - start);
}

}  // namespace

const EffectDescription& SoundModel::description()
{
    static const EffectDescription d{
        .form = FormName::Sound,
        .effectId = 16,
        .classes = {ClassFile},
        .fileLines = {"- sound file(s)", "- the SimpleSound1.class file"},
        .editKeys = {{"ENTERSOUND VALUE=", "Text1"}, {"EXITSOUND VALUE=", "Text2"}},
        .helpTopic = std::nullopt,
    };
    return d;
}

std::optional<Refusal> SoundModel::validate(const Fields& f)
{
    if (f.format == Format::Wav && f.wavEnter.isEmpty() && f.wavExit.isEmpty())
        return Refusal{"You must enter a sound file.", 48, "Text4"};
    if (f.format == Format::Au && f.auEnter.isEmpty() && f.auExit.isEmpty())
        return Refusal{"You must enter a sound file.", 48, "Text1"};
    return std::nullopt;
}

QString SoundModel::wavCode(const Fields& f)
{
    const QString loop = f.wavLoop ? QStringLiteral(" LOOP=Infinite") : QString();
    QString onLoad;
    QString enterScript;
    if (!f.wavEnter.isEmpty()) {
        onLoad = " onLoad=" + QUOTE + "playEnterSound()" + QUOTE;
        enterScript = "    function playEnterSound(){" + CRLF + "          if (navigator.appName == " + QUOTE +
                      "Netscape" + QUOTE + ")" + CRLF + "              window.location = '" + f.wavEnter + "';" +
                      CRLF + "         else" + CRLF + "              document.all.soundfile.src='" + f.wavEnter +
                      "';" + CRLF + "   }" + CRLF;
    }
    QString onUnload;
    QString exitScript;
    if (!f.wavExit.isEmpty()) {
        onUnload = " onUnLoad=" + QUOTE + "playExitSound()" + QUOTE;
        exitScript = "    function playExitSound(){" + CRLF + "         var w = window.open('" + f.wavExit +
                     "', 'temp', 'width=1,height=1');" + CRLF + "    }" + CRLF;
    }
    const QString crlf2 = CRLF + CRLF;
    const QString crlf3 = crlf2 + CRLF;
    return "<!-- FOLLOW THESE THREE STEPS TO INSTALL THIS SPECIAL EFFECT" + crlf2 +
           "   1.  Paste the script code into the HEAD section of your HTML document" + CRLF +
           "   2.  Paste the onLoad event handler into the <BODY> tag of your HTML document" + CRLF +
           "   3.  Paste the body code into the BODY section of your HTML document  -->" + crlf3 +
           "<!-- STEP ONE: Paste the following code into the HEAD section of your HTML document  -->" + crlf2 +
           "<HEAD>" + CRLF + "<SCRIPT Language=" + QUOTE + "JavaScript" + QUOTE + ">" + CRLF + ScriptCreditLines() +
           "<!--" + CRLF + enterScript + exitScript + CRLF + "//-->" + CRLF + "</SCRIPT>" + CRLF + "</HEAD>" +
           crlf3 + "<!-- STEP TWO: Paste the onLoad event handler into the <BODY> tag of your HTML document -->" +
           crlf2 + "<BODY" + onLoad + onUnload + ">" + crlf3 +
           "<!-- STEP THREE: Paste the following code into the BODY section of your HTML document -->" + crlf2 +
           "<BGSOUND SRC=" + QUOTE + QUOTE + " ID=" + QUOTE + "soundfile" + QUOTE + loop + ">" + crlf2;
}

QString SoundModel::auCode(const Fields& f)
{
    const AppletCredits credits = creditsOf(ClassFile);
    return "<APPLET CODE=" + QUOTE + ClassFile + QUOTE + " WIDTH=1 HEIGHT=1>" + CRLF +
           ParamLine("COPYRIGHT", credits.notice) +
           ParamLine("DOCUMENTATION", "Documentation found at: " + credits.website) +
           ParamLine("WIZARD", WizardValue()) + ParamLine("ENTERSOUND", trimBlanks(f.auEnter)) +
           ParamLine("ENTERLOOP", f.auLoop ? QStringLiteral("yes") : QStringLiteral("no")) +
           ParamLine("EXITSOUND", trimBlanks(f.auExit)) + AppletEnd;
}

QString SoundModel::wavMessage(const Fields& f)
{
    // The ", " stands there even when one of the names is empty.
    return "You will need the following files in order for this special effect to work correctly:" + CRLF + CRLF +
           "- the sound file(s): " + f.wavEnter + ", " + f.wavExit + CRLF + CRLF +
           "- the HTML document (Web page) containing Quillet's special effect HTML code." + CRLF + CRLF +
           "These files MUST reside in the same folder!";
}

HandOver SoundModel::handOver(const Fields& f)
{
    if (f.format == Format::Wav) {
        return HandOver{.code = wavCode(f),
                        .effectId = 21,
                        .classes = {},
                        .fileLines = {},
                        .files = {{0, f.wavEnter}, {1, f.wavExit}},
                        .message = wavMessage(f)};
    }
    HandOver h = HandOver::of(description(), auCode(f));
    h.files = {{0, f.auEnter}, {1, f.auExit}};
    return h;
}

}  // namespace ql
