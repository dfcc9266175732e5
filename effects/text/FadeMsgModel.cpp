#include "effects/text/FadeMsgModel.h"

#include "core/Constants.h"
#include "core/Emission.h"
#include "core/FormNames.h"
#include "core/Text.h"

namespace ql {

const QStringList& FadeMsgModel::colorList()
{
    static const QStringList rows = {
        "Black                 0,0,0",     "Blue                  0,0,255",
        "Red                   255,0,0",   "Green                 0,255,0",
        "Cyan                  0,255,255", "Magenta               255,0,255",
        "Yellow                255,255,0", "White                 255,255,255",
    };
    return rows;
}

const QStringList& FadeMsgModel::alignList()
{
    static const QStringList rows = {"Top",     "Middle",    "Bottom(Default)", "Left",     "Right",
                                     "Texttop", "Absmiddle", "Baseline",        "Absbottom"};
    return rows;
}

FadeMsgModel::Message FadeMsgModel::stored(const MessagePage& page, const Defaults& defaults)
{
    auto pick = [](const QString& own, const QString& fallback, const QString& none, bool colour) {
        if (own.isEmpty() && fallback.isEmpty())
            return none;
        const QString& value = own.isEmpty() ? fallback : own;
        return colour ? colorListValue(value) : value;
    };
    return {.description = page.text,
            .size = pick(page.fontSize, defaults.fontSize, "12", false),
            .backgroundColor = pick(page.backgroundColor, defaults.backgroundColor, "255,255,255", true),
            .textColor = pick(page.textColor, defaults.textColor, "0,0,0", true),
            .delay = page.delay.isEmpty() ? QStringLiteral("2000") : page.delay,
            .link = page.link};
}

QString FadeMsgModel::resolvedFont(const QString& font)
{
    return font.isEmpty() ? QStringLiteral("Arial") : trimBlanks(font);
}

QString FadeMsgModel::resolvedMargin(const QString& margin)
{
    return margin.isEmpty() ? QStringLiteral("10") : margin;
}

const EffectDescription& FadeMsgModel::description()
{
    // The messages are read by the form.
    static const EffectDescription d{
        .form = FormName::FadeMsg,
        .effectId = 13,
        .classes = {ClassFile},
        .fileLines = {"- the FadeText.class file"},
        .editKeys = {{"WIDTH=", "Text2"},
                     {"HEIGHT=", "Text3"},
                     {"ALIGN=", "Combo2"},
                     {"FONT VALUE=", "Combo1"},
                     {"XOFFSET VALUE=", "Text1"}},
        .helpTopic = std::nullopt,
    };
    return d;
}

std::optional<Refusal> FadeMsgModel::validateProperties(const QString& width, const QString& height)
{
    if (width.isEmpty() || height.isEmpty())
        return Refusal{"Applet width and height properties are required.  Please enter them.", 0, "Text2"};
    return std::nullopt;
}

QString FadeMsgModel::emitCode(const Fields& f)
{
    QString desc, link, background, text, delay, size;
    for (int n = 0; n < f.count; ++n) {
        const QString i = QString::number(n);
        const Message m = f.messages.value(n);
        desc += ParamLine("DESC" + i, m.description);
        link += ParamLine("DESTURL" + i, m.link);
        background += ParamLine("BGCOLOR" + i, m.backgroundColor);
        text += ParamLine("TEXTCOLOR" + i, m.textColor);
        delay += ParamLine("DELAY" + i, m.delay);
        size += ParamLine("SIZE" + i, m.size);
    }
    const QString align = f.align.isEmpty() ? QString() : " ALIGN=" + QUOTE + f.align + QUOTE;
    QString code = "<APPLET CODE=" + QUOTE + ClassFile + QUOTE + " WIDTH=" + QUOTE + f.appletWidth + QUOTE +
                   " HEIGHT=" + QUOTE + f.appletHeight + QUOTE + align + ">" + CRLF;
    code += "<PARAM NAME=" + QUOTE + "Notice" + QUOTE + " VALUE=" + QUOTE + creditsOf(ClassFile).notice + QUOTE +
            ">" + CRLF;
    code += ParamLine("WIZARD", WizardValue());
    code += desc;
    code += ParamLine("FONT", f.font);
    code += size;
    code += ParamLine("XOFFSET", f.margin);
    code += background;
    code += text;
    code += delay;
    code += link;
    code += AppletEnd;
    return code;
}

}  // namespace ql
