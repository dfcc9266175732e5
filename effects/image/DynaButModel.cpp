#include "effects/image/DynaButModel.h"

#include "core/Constants.h"
#include "core/Emission.h"
#include "core/FormNames.h"
#include "core/Text.h"

#include <QRegularExpression>

namespace ql {

namespace {

// Whether a text starts with a number (after blanks): the size fields
// convert only then.
bool hasLeadingNumber(const QString& text)
{
    static const QRegularExpression number(QStringLiteral("^[ \\t]*[+-]?(\\d|\\.\\d)"));
    return number.match(text).hasMatch();
}

QString sizeAttribute(const QString& name, const QString& field, const QString& earlier)
{
    if (field.isEmpty())
        return " " + name + "=" + QUOTE + "100" + QUOTE;
    if (!hasLeadingNumber(field))
        return earlier;
    return " " + name + "=" + QUOTE + wholeNumberText(numericValue(field)) + QUOTE;
}

}  // namespace

const EffectDescription& DynaButModel::description()
{
    static const EffectDescription d{
        .form = FormName::DynaBut,
        .effectId = 5,
        .classes = {ClassFile},
        .fileLines = {"- images", "- sound files", "- the ButtonPLUS3.class file"},
        // Read by the form's own fill routine: the three states of a value
        // come from one key, cut at its bars.
        .editKeys = {{"IMAGE VALUE=", "Text2"},
                     {"SOUND VALUE=", "Text28"},
                     {"TEXT VALUE=", "Text5"},
                     {"FONTNAME VALUE=", "Combo5"},
                     {"FONTSIZE VALUE=", "Combo7"},
                     {"BGCOLOR VALUE=", "Combo6"},
                     {"TEXTCOLOR VALUE=", "Combo2"},
                     {"VTEXTALIGN VALUE=", "Combo4"},
                     {"TEXTALIGN VALUE=", "Combo3"},
                     {"URL VALUE=", "Text27"},
                     {"WIDTH=", "Text26"},
                     {"HEIGHT=", "Text25"},
                     {"HIGHLIGHT VALUE=", "Combo8"}},
        .helpTopic = std::nullopt,
    };
    return d;
}

std::optional<Refusal> DynaButModel::validate(const Fields& f)
{
    if (f.baseImage.isEmpty() && f.baseText.isEmpty())
        return Refusal{"You must enter a button image and/or button text.", 48, QString()};
    return std::nullopt;
}

DynaButModel::SizeAttributes DynaButModel::sizeAttributes(const Fields& f, const SizeAttributes& earlier)
{
    return {.height = sizeAttribute(QStringLiteral("HEIGHT"), f.height, earlier.height),
            .width = sizeAttribute(QStringLiteral("WIDTH"), f.width, earlier.width)};
}

QString DynaButModel::emitCode(const Fields& f, const SizeAttributes& a)
{
    const AppletCredits credits = creditsOf(ClassFile);
    auto optional = [](const QString& name, const QString& value) {
        return value.isEmpty() ? QString() : ParamLine(name, value);
    };
    auto colour = [](const QString& name, const QString& field) {
        return field.isEmpty() ? QString() : ParamLine(name, colorListValue(field));
    };
    const QString target = f.target.isEmpty() ? QString() : " TARGET=" + QUOTE + f.target + QUOTE;

    QString code = "<APPLET CODE=" + QUOTE + ClassFile + QUOTE + a.height + a.width + ">" + CRLF;
    code += ParamLine("COPYRIGHT", credits.notice);
    code += ParamLine("DOCUMENTATION", "Documentation found at: " + credits.website);
    code += ParamLine("WIZARD", WizardValue());
    code += ParamLine("TEXT", f.baseText + "|" + f.enterText + "|" + f.clickText);
    if (!f.baseImage.isEmpty())
        code += ParamLine("IMAGE", f.baseImage + "|" + f.enterImage + "|" + f.clickImage);
    code += ParamLine("URL", f.url.isEmpty() ? QStringLiteral("null") : f.url);
    code += optional("TARGET", f.target);
    if (!f.enterSound.isEmpty())
        code += ParamLine("SOUND", f.enterSound + "|" + f.clickSound);
    code += optional("FONTNAME", f.font);
    code += optional("FONTSIZE", f.fontSize);
    code += colour("BGCOLOR", f.backgroundColor);
    code += colour("TEXTCOLOR", f.textColor);
    code += optional("TEXTALIGN", f.textAlign);
    code += optional("VTEXTALIGN", f.verticalAlign);
    code += optional("HIGHLIGHT", f.border);
    // Browsers without Java show the base image, linked.
    code += "<A HREF=" + QUOTE + f.url + QUOTE + " " + target + "><IMG SRC=" + QUOTE + f.baseImage + QUOTE +
            " border=0></A>" + CRLF;
    code += AppletEnd;
    return code;
}

std::array<QString, 5> DynaButModel::slotFiles(const Fields& f)
{
    return {f.baseImage, f.enterImage, f.enterSound, f.clickImage, f.clickSound};
}

HandOver DynaButModel::handOver(const Fields& f, const SizeAttributes& a)
{
    HandOver h = HandOver::of(description(), emitCode(f, a));
    const std::array<QString, 5> files = slotFiles(f);
    for (int slot = 0; slot < int(files.size()); ++slot)
        h.files.insert(slot, files[std::size_t(slot)]);
    return h;
}

std::array<QString, 6> DynaButModel::pipeParse(const QString& value)
{
    std::array<QString, 6> parts;
    const int length = int(value.size());
    const int p = inStr(value, QStringLiteral("|"));
    if (p == 0) {
        parts[0] = value;
        return parts;
    }
    parts[0] = mid(value, 1, p - 1);
    const int q = inStr(p + 1, value, QStringLiteral("|"));
    if (q == 0) {
        parts[1] = mid(value, p + 1, length - p - 1);
        return parts;
    }
    parts[1] = mid(value, p + 1, q - p - 1);
    if (q + 1 <= length)
        parts[2] = mid(value, q + 1, length - q - 1);
    return parts;
}

void DynaButModel::reEdit(Fields& f, const QString& classPrefix8,
                          const std::function<QString(const QString&)>& extract)
{
    if (classPrefix8 == QLatin1String("Button1.")) {
        // The older button applet names each state's value apart.
        f.baseImage = extract("BASE.IMAGE VALUE=");
        f.enterImage = extract("ENTER.IMAGE VALUE=");
        f.clickImage = extract("CLICK.IMAGE VALUE=");
        f.baseText = extract("BASE.TEXT VALUE=");
        f.enterText = extract("ENTER.TEXT VALUE=");
        f.clickText = extract("CLICK.TEXT VALUE=");
        f.url = extract("URL VALUE=");
        f.target = extract("TARGET VALUE=");
        f.enterSound = extract("ENTER.SOUND VALUE=");
        f.clickSound = extract("CLICK.SOUND VALUE=");
        f.font = extract("BASE.FONTNAME VALUE=");
        f.fontSize = extract("BASE.FONTSIZE VALUE=");
        f.backgroundColor = extract("BASE.BGCOLOR VALUE=");
        f.textColor = extract("BASE.FGCOLOR VALUE=");
        f.verticalAlign = extract("VTEXTALIGN VALUE=");
        f.textAlign = extract("TEXTALIGN VALUE=");
        f.width = extract("WIDTH=");
        f.height = extract("HEIGHT=");
        f.border = extract("HIGHLIGHT VALUE=");
        return;
    }
    const std::array<QString, 6> images = pipeParse(extract("IMAGE VALUE="));
    f.baseImage = images[0];
    f.enterImage = images[1];
    f.clickImage = images[2];
    const std::array<QString, 6> sounds = pipeParse(extract("SOUND VALUE="));
    f.enterSound = sounds[0];
    f.clickSound = sounds[1];
    const std::array<QString, 6> texts = pipeParse(extract("TEXT VALUE="));
    f.baseText = texts[0];
    f.enterText = texts[1];
    f.clickText = texts[2];
    f.font = extract("FONTNAME VALUE=");
    f.fontSize = extract("FONTSIZE VALUE=");
    f.backgroundColor = extract("BGCOLOR VALUE=");
    f.textColor = extract("TEXTCOLOR VALUE=");
    f.verticalAlign = extract("VTEXTALIGN VALUE=");
    f.textAlign = extract("TEXTALIGN VALUE=");
    f.url = extract("URL VALUE=");
    f.width = extract("WIDTH=");
    f.height = extract("HEIGHT=");
    f.border = extract("HIGHLIGHT VALUE=");
}

}  // namespace ql
