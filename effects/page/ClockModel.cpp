#include "effects/page/ClockModel.h"

#include "core/Constants.h"
#include "core/Emission.h"
#include "core/FormNames.h"
#include "core/Text.h"

namespace ql {

const EffectDescription& ClockModel::description()
{
    static const EffectDescription d{
        .form = FormName::Clock,
        .effectId = 4,
        .classes = {"AppletSettings.class", ClassFile, "DetachFrame.class"},
        .fileLines = {"- AppletSettings.class", "- Clock1.class", "- DetachFrame.class files"},
        // Read by the form's own fill routine: the time zone and the clock
        // type set options, the display format sets check boxes.
        .editKeys = {{"FONTNAME VALUE=", "Combo1"},
                     {"FONTSIZE VALUE=", "Combo19"},
                     {"BGCOLOR VALUE=", "Combo4"},
                     {"TIMEZONE VALUE=", "Text4"},
                     {"24HOUR VALUE=", "Option1"},
                     {"HEIGHT=", "Text2"},
                     {"WIDTH=", "Text1"},
                     {"TIME.DISPLAY VALUE=", "Check1"}},
        .helpTopic = std::nullopt,
    };
    return d;
}

std::optional<Refusal> ClockModel::validate(const Fields& f)
{
    if (f.appletWidth.isEmpty() || f.appletHeight.isEmpty())
        return Refusal{"Applet width and height properties are required.  Please enter them.", 48, "Text1"};
    if (f.fixedTimezone && f.timezone.isEmpty())
        return Refusal{"Enter a value for the Timezone.  For example, enter -5 for GMT -5.", 48, "Text4"};
    return std::nullopt;
}

QString ClockModel::displayFormat(const Fields& f)
{
    QString format;
    if (f.showDate)
        format += QStringLiteral("%month;/%date;/%year;    ");
    format += QStringLiteral("%hour;:%minute;");
    if (f.showSeconds)
        format += QStringLiteral(":%second;");
    if (f.showAmPm)
        format += QStringLiteral("%AMPM;");
    return format + QStringLiteral("  ") + f.trailingText;
}

QString ClockModel::emitCode(const Fields& f)
{
    const AppletCredits credits = creditsOf(ClassFile);
    QString code = AppletTag(ClassFile, f.appletHeight, f.appletWidth);
    // This applet's notice lines write their keyword in lower case.
    code += "<PARAM NAME=COPYRIGHT value=" + QUOTE + credits.notice + QUOTE + ">" + CRLF;
    code += "<PARAM NAME=DOCUMENTATION value=" + QUOTE + "Documentation found at: " + credits.website + QUOTE + ">" +
            CRLF;
    code += ParamLine("WIZARD", WizardValue());
    if (f.fixedTimezone)
        code += ParamLine("TIMEZONE", f.timezone);
    code += ParamLine("24HOUR", f.twentyFourHour ? QStringLiteral("yes") : QStringLiteral("no"));
    code += ParamLine("TIME.DISPLAY", displayFormat(f));
    if (!f.font.isEmpty())
        code += ParamLine("FONTNAME", f.font);
    if (!f.fontSize.isEmpty())
        code += ParamLine("FONTSIZE", f.fontSize);
    if (!f.backgroundColor.isEmpty())
        code += ParamLine("BGCOLOR", colorListValue(f.backgroundColor));
    code += AppletEnd;
    return code;
}

void ClockModel::reEdit(Fields& f, const std::function<QString(const QString&)>& extract)
{
    f.font = extract(QStringLiteral("FONTNAME VALUE="));
    f.fontSize = extract(QStringLiteral("FONTSIZE VALUE="));
    f.backgroundColor = extract(QStringLiteral("BGCOLOR VALUE="));
    f.timezone = extract(QStringLiteral("TIMEZONE VALUE="));
    f.fixedTimezone = !f.timezone.isEmpty();
    f.twentyFourHour = extract(QStringLiteral("24HOUR VALUE=")).toLower() == QLatin1String("yes");
    f.appletHeight = extract(QStringLiteral("HEIGHT="));
    f.appletWidth = extract(QStringLiteral("WIDTH="));
    parseDisplay(f, extract(QStringLiteral("TIME.DISPLAY VALUE=")));
}

void ClockModel::parseDisplay(Fields& f, const QString& format)
{
    if (format.contains(QLatin1String("%month")))
        f.showDate = true;
    if (format.contains(QLatin1String("%AMPM")))
        f.showAmPm = true;
    if (format.contains(QLatin1String("%second")))
        f.showSeconds = true;
}

}  // namespace ql
