#include "effects/text/SwirlyModel.h"

#include "core/Emission.h"
#include "core/FormNames.h"
#include "core/Text.h"

namespace ql {

const EffectDescription& SwirlyModel::description()
{
    static const EffectDescription d{
        .form = FormName::Swirly,
        .effectId = 10,
        .classes = {ClassFile},
        .fileLines = {"- the ColorSwirl.class file"},
        .editKeys = {{"TEXT VALUE=", "Text7"},
                     {"FONT VALUE=", "Combo1"},
                     {"SIZE VALUE=", "Combo9"},
                     {"BGCOLOR VALUE=", "Text1"},
                     {"XLOC VALUE=", "Text3"},
                     {"YLOC VALUE=", "Text2"},
                     {"HEIGHT=", "Text11"},
                     {"WIDTH=", "Text10"}},
        .helpTopic = std::nullopt,
    };
    return d;
}

std::optional<Refusal> SwirlyModel::validate(const Fields& f)
{
    if (f.appletHeight.isEmpty() || f.appletWidth.isEmpty())
        return Refusal{"Applet width and height properties are required.  Please enter them.", 48, "Text10"};
    if (f.text.isEmpty())
        return Refusal{"You must type something in the text box.", 0, QString()};
    return std::nullopt;
}

QString SwirlyModel::emitCode(const Fields& f)
{
    // The location lines are worked out before the text is checked, the
    // vertical one first.
    const QString yloc =
        ParamLine("YLOC", f.textTop.isEmpty() ? wholeNumberText(numericValue(f.appletHeight) / 2) : f.textTop);
    const QString xloc = ParamLine("XLOC", f.textLeft.isEmpty() ? QStringLiteral("5") : f.textLeft);
    const QString height = f.appletHeight.isEmpty() ? QStringLiteral("100") : f.appletHeight;
    const QString width = f.appletWidth.isEmpty() ? QStringLiteral("100") : f.appletWidth;

    QString code = AppletTag(ClassFile, height, width);
    code += ParamLine("WIZARD", WizardValue());
    code += ParamLine("TEXT", f.text);
    if (!f.font.isEmpty())
        code += ParamLine("FONT", f.font);
    if (!f.fontSize.isEmpty())
        code += ParamLine("SIZE", f.fontSize);
    if (!f.backgroundColor.isEmpty())
        code += ParamLine("BGCOLOR", f.backgroundColor);
    code += xloc;
    code += yloc;
    code += AppletEnd;
    return code;
}

}  // namespace ql
