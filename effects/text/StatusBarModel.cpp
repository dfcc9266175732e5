#include "effects/text/StatusBarModel.h"

#include "core/Constants.h"
#include "core/Emission.h"
#include "core/FormNames.h"

namespace ql {

const EffectDescription& StatusBarModel::description()
{
    static const EffectDescription d{
        .form = FormName::StatusBar,
        .effectId = 9,
        .classes = {},
        .fileLines = {},
        .editKeys = {},
        .helpTopic = std::nullopt,
    };
    return d;
}

std::optional<Refusal> StatusBarModel::validate(const Fields&)
{
    return std::nullopt;
}

QString StatusBarModel::emitCode(const Fields& f)
{
    // Each line with the count of line breaks behind it. The timings and
    // the seeds work together: the BODY tag starts at 99, the restart at
    // 100, so the branch above 100 only ever counts down.
    const QString cmd = "var cmd=" + QUOTE + "scrollit_r2l(" + QUOTE + " + seed + " + QUOTE + ")" + QUOTE + ";";
    const QList<std::pair<QString, int>> lines = {
        {"<!-- FOLLOW THESE TWO STEPS TO INSTALL THIS SPECIAL EFFECT", 2},
        {"   1.  Paste the script code into the HEAD section of your HTML document", 1},
        {"   2.  Paste the onLoad event handler into the <BODY> tag of your HTML document", 3},
        {"<!-- STEP ONE: Paste the following code into the HEAD section of your HTML document  -->", 2},
        {"<HEAD>", 1},
        {"<SCRIPT LANGUAGE=" + QUOTE + "JavaScript" + QUOTE + ">", 2},
        {"<!-- Script written by Ostrel Software - " + Addresses::VendorUrl + " -->", 1},
        {"<!-- Created by Quillet software - " + Addresses::ProductUrl + " -->", 2},
        {"<!--", 1},
        {"function scrollit_r2l(seed)", 1},
        {"{", 1},
        {"        var msg  =" + QUOTE + f.text + QUOTE + ";", 1},
        {"        var out = " + QUOTE + " " + QUOTE + ";", 1},
        {"        var c   = 1;", 2},
        {"        if (seed > 100) {", 1},
        {"                seed--;", 1},
        {"                " + cmd, 1},
        {"                timerTwo=window.setTimeout(cmd,100);", 1},
        {"        }", 1},
        {"        else if (seed <= 100 && seed > 0) {", 1},
        {"                for (c=0 ; c < seed ; c++) {", 1},
        {"                        out+=" + QUOTE + " " + QUOTE + ";", 1},
        {"                }", 1},
        {"                out+=msg;", 1},
        {"                seed--;", 1},
        {"                " + cmd, 1},
        {"                    window.status=out;", 1},
        {"                timerTwo=window.setTimeout(cmd,100);", 1},
        {"        }", 1},
        {"        else if (seed <= 0) {", 1},
        {"                if (-seed < msg.length) {", 1},
        {"                        out+=msg.substring(-seed,msg.length);", 1},
        {"                        seed--;", 1},
        {"                        " + cmd, 1},
        {"                        window.status=out;", 1},
        {"                        timerTwo=window.setTimeout(cmd,100);", 1},
        {"                }", 1},
        {"                else {", 1},
        {"                        window.status=" + QUOTE + " " + QUOTE + ";", 1},
        {"                        timerTwo=window.setTimeout(" + QUOTE + "scrollit_r2l(100)" + QUOTE + ",75);", 1},
        {"                }", 1},
        {"        }", 1},
        {"}", 1},
        {"//-->", 2},
        {"</SCRIPT>", 1},
        {"</HEAD>", 3},
        {"<!-- STEP TWO: Paste the following onLoad event handler into the <BODY> tag in your HTML document -->", 2},
        {"<BODY onload=" + QUOTE + "scrollit_r2l(99)" + QUOTE + " >", 2},
    };
    QString code;
    for (const auto& [line, breaks] : lines)
        code += line + CRLF.repeated(breaks);
    return code;
}

}  // namespace ql
