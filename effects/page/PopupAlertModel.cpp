#include "effects/page/PopupAlertModel.h"

#include "core/Emission.h"
#include "core/FormNames.h"

namespace ql {

const EffectDescription& PopupAlertModel::description()
{
    static const EffectDescription d{
        .form = FormName::PopupAlert,
        .effectId = 18,
        .classes = {},
        .fileLines = {},
        .editKeys = {},
        .helpTopic = std::nullopt,
    };
    return d;
}

std::optional<Refusal> PopupAlertModel::validate(const Fields& f)
{
    if (f.text.isEmpty())
        return Refusal{"Enter the text you wish to appear in the PopUp Alert box.", 0, QString()};
    return std::nullopt;
}

QString PopupAlertModel::emitCode(const Fields& f)
{
    return "<SCRIPT LANGUAGE=" + QUOTE + "JAVASCRIPT" + QUOTE + ">" + CRLF + ScriptCreditLines() + "<!--" + CRLF +
           "window.alert(" + QUOTE + f.text + QUOTE + ")" + CRLF + "//-->" + CRLF + "</SCRIPT>" + CRLF;
}

}  // namespace ql

namespace ql {

HandOver PopupAlertModel::handOver(const Fields& f)
{
    HandOver h = HandOver::of(description(), emitCode(f));
    h.message = NoFilesOnePieceMessage();
    return h;
}

}  // namespace ql
