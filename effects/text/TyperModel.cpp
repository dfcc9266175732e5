#include "effects/text/TyperModel.h"

#include "core/Constants.h"
#include "core/Emission.h"
#include "core/FormNames.h"
#include "core/Text.h"

namespace ql {

const QStringList& TyperModel::colorList()
{
    static const QStringList rows = {
        "Black  -               0,0,0",       "Blue  -                0,0,255",
        "Red  -                 255,0,0",     "Green  -               0,255,0",
        "Cyan  -                0,255,255",   "Magenta  -             255,0,255",
        "Yellow  -              255,255,0",   "White  -               255,255,255",
    };
    return rows;
}

const QStringList& TyperModel::loopList()
{
    static const QStringList rows = {"0 - Infinite", "1 time",  "2 times", "3 times", "4 times", "5 times",
                                     "6 times",      "7 times", "8 times", "9 times", "10 times"};
    return rows;
}

const EffectDescription& TyperModel::description()
{
    // The style, and the height and width that re-edit puts into each other's
    // field, are read by the form.
    static const EffectDescription d{
        .form = FormName::Typer,
        .effectId = 11,
        .classes = {ClassFile, SettingsClass},
        .fileLines = {"- images", "- the Typewriter4.class and AppletSettings.class files"},
        .editKeys = {{"TEXT VALUE=", "Text16"},
                     {"FONTNAME VALUE=", "Combo1"},
                     {"FONTSIZE VALUE=", "Combo19"}},
        .helpTopic = std::nullopt,
    };
    return d;
}

std::optional<Refusal> TyperModel::validateStep(const Fields& f)
{
    if (!f.fromFile && f.text.isEmpty())
        return Refusal{"Please enter Typewriter text for this special effect.", 0, "Text16"};
    if (f.fromFile && f.textFile.isEmpty())
        return Refusal{"Please enter a Typewriter text file for this special effect.", 0, "Text2"};
    return std::nullopt;
}

std::optional<Refusal> TyperModel::validate(const Fields& f)
{
    if (f.appletHeight.isEmpty() || f.appletWidth.isEmpty())
        return Refusal{"Applet width and height properties are required.  Please enter them.", 48, "Text13"};
    if (f.text.isEmpty() && f.textFile.isEmpty())
        return Refusal{"You must type something in the text box or enter the filename of a text file.", 48, {}};
    if (!f.fromFile && f.text.isEmpty())
        return Refusal{"You must type something in the text box.", 48, {}};
    if (f.fromFile && f.textFile.isEmpty())
        return Refusal{"You must enter the filename of a text file.", 48, {}};
    return std::nullopt;
}

QString TyperModel::joinedLines(const QString& text)
{
    // Only a CR followed by an LF separates lines; a lone one is copied.
    QString out;
    out.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') {
            out += QStringLiteral(" \\");
            ++i;
        } else {
            out += text[i];
        }
    }
    return out;
}

bool TyperModel::positiveOrEmpty(const QString& value)
{
    return numericValue(value) >= 0;
}

bool TyperModel::aboveZero(const QString& value)
{
    return numericValue(value) > 0;
}

QString TyperModel::emitCode(const Fields& f)
{
    const AppletCredits credits = creditsOf(ClassFile);
    QString code = AppletTag(ClassFile, f.appletHeight, f.appletWidth);
    code += ParamLine("COPYRIGHT", credits.notice);
    code += ParamLine("DOCUMENTATION", "Documentation found at: " + credits.website);
    code += ParamLine("WIZARD", WizardValue());
    code += f.fromFile ? ParamLine("TEXTFILE", f.textFile) : ParamLine("TEXT", joinedLines(f.text));
    if (!f.font.isEmpty())
        code += ParamLine("FONTNAME", f.font);
    if (!f.fontSize.isEmpty())
        code += ParamLine("FONTSIZE", f.fontSize);
    if (f.bold || f.italic)
        code += ParamLine("FONTSTYLE", f.bold && f.italic ? "bold, italic" : f.bold ? "bold" : "italic");
    code += ParamLine("URL", trimBlanks(f.link).isEmpty() ? QStringLiteral("#") : f.link);
    if (!f.speed.isEmpty())
        code += ParamLine("SPEED", f.speed);
    const QString cycles = trimBlanks(f.loop.left(2));
    if (!f.loop.isEmpty() && cycles != QLatin1String("0"))
        code += ParamLine("CYCLES", cycles);
    if (!f.backgroundColor.isEmpty())
        code += ParamLine("BGCOLOR", colorListValue(f.backgroundColor));
    if (!f.textColor.isEmpty())
        code += ParamLine("TEXTCOLOR", colorListValue(f.textColor));
    if (!f.backgroundImage.isEmpty())
        code += ParamLine("BACKGROUND", f.backgroundImage);
    code += AppletEnd;
    return code;
}

HandOver TyperModel::handOver(const Fields& f)
{
    HandOver h = HandOver::of(description(), emitCode(f));
    if (f.fromFile)
        h.fileLines.insert(1, "- the " + QUOTE + f.textFile + QUOTE + " file");
    // The name in the file field decides, not the check box.
    h.files = {{ImageSlot, f.backgroundImage}, {TextFileSlot, f.textFile}};
    if (f.backgroundImage.isEmpty())
        h.emptiedPaths << ImageSlot;
    if (f.textFile.isEmpty())
        h.emptiedPaths << TextFileSlot;
    return h;
}

}  // namespace ql
