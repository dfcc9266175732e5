#include "effects/text/NavTickerModel.h"

#include "core/Constants.h"
#include "core/Emission.h"
#include "core/FormNames.h"
#include "core/Text.h"

namespace ql {

namespace {

const QString Separator = QStringLiteral("\\\\");

}  // namespace

const QStringList& NavTickerModel::colorList()
{
    static const QStringList rows = {
        "Black                 0,0,0",     "Blue                  0,0,255",
        "Red                   255,0,0",   "Green                 0,255,0",
        "Cyan                  0,255,255", "Magenta               255,0,255",
        "Yellow                255,255,0", "White                 255,255,255",
    };
    return rows;
}

const QStringList& NavTickerModel::alignList()
{
    static const QStringList rows = {"Top",     "Middle",    "Bottom(Default)", "Left",     "Right",
                                     "Texttop", "Absmiddle", "Baseline",        "Absbottom"};
    return rows;
}

const QStringList& NavTickerModel::frameList()
{
    static const QStringList rows = {"_blank", "_parent", "_self", "_top"};
    return rows;
}

NavTickerModel::Message NavTickerModel::stored(const QString& text, const QString& link, const QString& frame)
{
    return {text, link.isEmpty() ? QStringLiteral("NULL") : link, frame.isEmpty() ? QStringLiteral("NULL") : frame};
}

QString NavTickerModel::packed(const Message& m)
{
    return m.text + "    " + Separator + m.link + Separator + m.frame + Separator + ".";
}

NavTickerModel::Message NavTickerModel::unpacked(const QString& value)
{
    const int p1 = inStr(value, Separator);
    const int p2 = inStr(p1 + 1, value, Separator);
    const int p3 = inStr(p2 + 1, value, Separator);
    // A cut that cannot be made leaves its part empty.
    Message m;
    m.text = p1 >= 1 ? value.left(p1 - 1) : QString();
    m.link = mid(value, p1 + 2, p2 - p1 - 2);
    m.frame = mid(value, p2 + 2, p3 - p2 - 2);
    return m;
}

const EffectDescription& NavTickerModel::description()
{
    // The messages and the speed are read by the form.
    static const EffectDescription d{
        .form = FormName::NavTicker,
        .effectId = 14,
        .classes = {ClassFile},
        .fileLines = {"- the NavigatorTicker20.class file"},
        .editKeys = {{"WIDTH=", "Text5"},
                     {"HEIGHT=", "Text4"},
                     {"ALIGN=", "Combo2"}},
        .helpTopic = std::nullopt,
    };
    return d;
}

std::optional<Refusal> NavTickerModel::validateProperties(const Fields& f)
{
    if (f.appletWidth.isEmpty() || f.appletHeight.isEmpty())
        return Refusal{"Applet width and height properties are required.  Please enter them.", 0, "Text5"};
    return std::nullopt;
}

QString NavTickerModel::emitCode(const Fields& f)
{
    auto colour = [](const QString& field, const QString& fallback) {
        return field.isEmpty() ? fallback : colorListValue(field);
    };
    const QString align = f.align.isEmpty() ? QString() : " ALIGN=" + QUOTE + f.align + QUOTE;
    QString code = "<APPLET CODE=" + QUOTE + ClassFile + QUOTE + " WIDTH=" + QUOTE + f.appletWidth + QUOTE +
                   " HEIGHT=" + QUOTE + f.appletHeight + QUOTE + align + ">" + CRLF;
    code += "<PARAM NAME=" + QUOTE + "Courtesy" + QUOTE + " VALUE=" + QUOTE + creditsOf(ClassFile).notice + QUOTE +
            ">" + CRLF;
    code += ParamLine("WIZARD", WizardValue());
    code += ParamLine("SPEED", QString::number(f.speed));
    code += ParamLine("BGCO", colour(f.backgroundColor, "255,255,255"));
    code += ParamLine("TXTCO", colour(f.textColor, "0,0,0"));
    code += ParamLine("LINKCO", colour(f.linkColor, "0,0,255"));
    if (!f.border)
        code += ParamLine("BORDER", "NO");
    code += ParamLine("COUNT", QString::number(f.count));
    for (int n = 0; n < f.count; ++n)
        code += ParamLine("MSG" + QString::number(n), packed(f.messages.value(n)));
    code += AppletEnd;
    return code;
}

}  // namespace ql
