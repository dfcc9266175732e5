#include "effects/text/SwirlyModel.h"

#include "core/Emission.h"
#include "core/Text.h"

namespace ql::swirly {

std::optional<Refusal> validate(const Fields& f)
{
    if (f.Text11.isEmpty() || f.Text10.isEmpty())
        return Refusal{"Applet width and height properties are required.  Please enter them.", 48, "Text10"};
    if (f.Text7.isEmpty())
        return Refusal{"You must type something in the text box.", 0, QString()};
    return std::nullopt;
}

QString emitCode(const Fields& f)
{
    // The location lines are worked out before the text is checked, the
    // vertical one first.
    const QString yloc = ParamLine("YLOC", f.Text2.isEmpty() ? wholeNumberText(numericValue(f.Text11) / 2) : f.Text2);
    const QString xloc = ParamLine("XLOC", f.Text3.isEmpty() ? QStringLiteral("5") : f.Text3);
    const QString height = " HEIGHT=" + QUOTE + (f.Text11.isEmpty() ? QStringLiteral("100") : f.Text11) + QUOTE;
    const QString width = " WIDTH=" + QUOTE + (f.Text10.isEmpty() ? QStringLiteral("100") : f.Text10) + QUOTE;

    QString code = "<APPLET CODE=" + QUOTE + ClassFile + QUOTE + height + width + ">" + CRLF;
    code += ParamLine("WIZARD", WizardValue());
    code += ParamLine("TEXT", f.Text7);
    if (!f.Combo1.isEmpty())
        code += ParamLine("FONT", f.Combo1);
    if (!f.Combo9.isEmpty())
        code += ParamLine("SIZE", f.Combo9);
    if (!f.Text1.isEmpty())
        code += ParamLine("BGCOLOR", f.Text1);
    code += xloc;
    code += yloc;
    code += AppletEnd;
    return code;
}

QString requiredFilesMessage()
{
    return RequiredFilesMessage({"- the ColorSwirl.class file"});
}

const QList<QPair<QString, QString>>& editKeys()
{
    static const QList<QPair<QString, QString>> keys = {
        {"TEXT VALUE=", "Text7"},    {"FONT VALUE=", "Combo1"}, {"SIZE VALUE=", "Combo9"},
        {"BGCOLOR VALUE=", "Text1"}, {"XLOC VALUE=", "Text3"},  {"YLOC VALUE=", "Text2"},
        {"HEIGHT=", "Text11"},       {"WIDTH=", "Text10"},
    };
    return keys;
}

}  // namespace ql::swirly
