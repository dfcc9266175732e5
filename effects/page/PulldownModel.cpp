#include "effects/page/PulldownModel.h"

#include "core/Emission.h"
#include "core/FormNames.h"

namespace ql {

const EffectDescription& PulldownModel::description()
{
    static const EffectDescription d{
        .form = FormName::Pulldown,
        .effectId = 15,
        .classes = {},
        .fileLines = {},
        .editKeys = {},
        .helpTopic = std::nullopt,
    };
    return d;
}

QString PulldownModel::emitCode(const Fields& f)
{
    const QString target = f.target.trimmed().isEmpty() ? QStringLiteral("self") : f.target;
    const QString size = f.showAll ? " SIZE=" + QUOTE + QString::number(f.items.size()) + QUOTE : QString();
    QString options;
    for (int row = 0; row < f.items.size(); ++row) {
        const QString& text = f.items[row];
        const QString url = text == Separator ? QStringLiteral("#") : f.urls.value(row);
        options += "          <OPTION VALUE=" + QUOTE + url + QUOTE + ">" + text + CRLF;
    }
    return "<SCRIPT LANGUAGE=" + QUOTE + "JavaScript" + QUOTE + ">" + CRLF + CRLF + ScriptCreditLines() + "<!--" +
           CRLF + "function JumpTo(form) {" + CRLF + "     i = form.elements[0].selectedIndex;" + CRLF +
           "     window.parent.frames['" + target + "'].location = form.elements[0].options[i].value;" + CRLF +
           "     }" + CRLF + "//-->" + CRLF + "</SCRIPT>" + CRLF + CRLF + "<FORM METHOD=POST ACTION=" + QUOTE + "#" +
           QUOTE + " onSubmit=" + QUOTE + "return false" + QUOTE + ">" + CRLF + "    <SELECT" + size + ">" + CRLF +
           options + "    </SELECT>" + CRLF + "  <INPUT TYPE=Submit NAME=" + QUOTE + "Submit" + QUOTE +
           " VALUE=" + QUOTE + "Go to" + QUOTE + " onClick=" + QUOTE + "JumpTo(this.form)" + QUOTE + ">" + CRLF +
           "</FORM>";
}

int PulldownModel::insertPosition(int rows, int selected)
{
    if (selected < 0 || selected >= rows - 1)
        return rows;
    return selected;
}

}  // namespace ql

namespace ql {

HandOver PulldownModel::handOver(const Fields& f)
{
    HandOver h = HandOver::of(description(), emitCode(f));
    h.message = NoFilesOnePieceMessage();
    return h;
}

}  // namespace ql
