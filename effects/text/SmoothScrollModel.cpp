#include "effects/text/SmoothScrollModel.h"

#include "core/Constants.h"
#include "core/Emission.h"
#include "core/FormNames.h"
#include "core/Text.h"

namespace ql {

const QStringList& SmoothScrollModel::colorList()
{
    static const QStringList rows = {
        "Black  -               0",        "Blue  -                255",
        "Red  -                 16711680", "Green  -               65280",
        "Cyan  -                65535",    "Magenta  -             16711935",
        "Yellow  -              16776960", "White  -               16777215",
    };
    return rows;
}

QString SmoothScrollModel::colorNumber(quint32 color)
{
    const quint32 red = color % 256;
    const quint32 green = (color / 256) % 256;
    const quint32 blue = (color / 65536) % 256;
    return QString::number(blue + green * 256 + red * 65536);
}

QString SmoothScrollModel::speedValue(int slider)
{
    return QString::number(41 - slider);
}

const EffectDescription& SmoothScrollModel::description()
{
    // The speed is read by the form: the slider takes the number as it stands.
    static const EffectDescription d{
        .form = FormName::SmoothScroll,
        .effectId = 12,
        .classes = {LeftToRightClass},
        .fileLines = {"- the LTRScroll.class file"},
        .editKeys = {{"MESSAGE VALUE=", "Text1"},
                     {"FONT VALUE=", "Combo1"},
                     {"SIZE VALUE=", "Combo19"},
                     {"BGCOLOR VALUE=", "Combo4"},
                     {"TEXTCOLOR VALUE=", "Combo6"},
                     {"WIDTH=", "Text2"},
                     {"HEIGHT=", "Text3"}},
        .helpTopic = std::nullopt,
    };
    return d;
}

std::optional<Refusal> SmoothScrollModel::validate(const Fields& f)
{
    if (f.appletWidth.isEmpty() || f.appletHeight.isEmpty())
        return Refusal{"Applet width and height properties are required.  Please enter them.", 48, "Text2"};
    if (f.text.isEmpty())
        return Refusal{"You must type something in the text box.", 48, "Text1"};
    return std::nullopt;
}

QString SmoothScrollModel::emitCode(const Fields& f)
{
    const QString classFile = f.rightToLeft ? RightToLeftClass : LeftToRightClass;
    QString code = AppletTag(classFile, f.appletHeight, f.appletWidth);
    code += ParamLine("Notice", creditsOf(classFile).notice);
    code += ParamLine("WIZARD", WizardValue());
    code += ParamLine("MESSAGE", f.text);
    if (!f.font.isEmpty())
        code += ParamLine("FONT", f.font);
    if (!f.fontSize.isEmpty())
        code += ParamLine("SIZE", f.fontSize);
    code += ParamLine("SPEED", speedValue(f.speed));
    code += ParamLine("JUMP", "1");
    if (!f.backgroundColor.isEmpty())
        code += ParamLine("BGCOLOR", colorListValue(f.backgroundColor));
    if (!f.textColor.isEmpty())
        code += ParamLine("TEXTCOLOR", colorListValue(f.textColor));
    code += AppletEnd;
    return code;
}

HandOver SmoothScrollModel::handOver(const Fields& f)
{
    const QString classFile = f.rightToLeft ? RightToLeftClass : LeftToRightClass;
    HandOver h = HandOver::of(description(), emitCode(f));
    h.classes = {classFile};
    h.fileLines = {"- the " + classFile + " file"};
    return h;
}

}  // namespace ql
