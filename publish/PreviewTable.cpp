#include "publish/PreviewTable.h"

#include "core/FormNames.h"

namespace ql {

namespace {

const QString Prefix = QStringLiteral(" Required Java class files:");

}  // namespace

std::optional<PreviewSettings> previewSettings(int effectId,
                                               const std::function<QString(const QString&, const QString&)>& controlText)
{
    auto classes = [](const QString& names) { return Prefix + "  " + names; };
    switch (effectId) {
    case 1: case 2: case 3: case 19:
        return PreviewSettings{classes("Animate1.class and CoolTool3.class"), true, false};
    case 4:
        return PreviewSettings{classes("AppletSettings.class, Clock1.class, and DetachFrame.class"), true, false};
    case 5:
        return PreviewSettings{classes("ButtonPLUS3.class"), true, false};
    case 6: case 8: case 9: case 23:
        return PreviewSettings{classes("None"), false, true};
    case 7: {
        const QString effect = controlText(FormName::ImageEffects, "Combo1");
        QString caption = Prefix;
        if (effect == QLatin1String("Image Cube"))
            caption = classes("TmapCube.class and TmapCubeb.class");
        else if (effect == QLatin1String("Lake Reflection"))
            caption = classes("Lake.class");
        else if (effect == QLatin1String("Image Ripple"))
            caption = classes("ripple.class");
        return PreviewSettings{caption, true, false};
    }
    case 10:
        return PreviewSettings{classes("ColorSwirl.Class"), true, false};
    case 11:
        return PreviewSettings{classes("Typewriter4.class and AppletSettings.class"), true, false};
    case 12: {
        const bool rightToLeft = controlText(FormName::SmoothScroll, "Option1") == QLatin1String("1");
        return PreviewSettings{classes(rightToLeft ? "RTLScroll.class" : "LTRScroll.class"), true, false};
    }
    case 13:
        return PreviewSettings{classes("FadeText.Class"), true, false};
    case 14:
        return PreviewSettings{classes("NavigatorTicker20.Class"), true, false};
    case 15: case 18:
        return PreviewSettings{classes("None"), false, false};
    case 16:
        return PreviewSettings{classes("SimpleSound1.class"), true, false};
    case 17:
        return PreviewSettings{classes("Animate1.class, CoolTool3.class and invisi.gif"), true, false};
    case 20: case 21:
        return PreviewSettings{classes("None"), true, true};
    case 22:
        return PreviewSettings{classes("ImageFade2ech.class and Pixelator3.class"), true, false};
    case 24:
        return PreviewSettings{QStringLiteral(" Required files:  password.cgi"), true, false};
    default:
        return std::nullopt;
    }
}

QString formOfEffect(int effectId)
{
    static const QString* const forms[] = {
        &FormName::Anim, &FormName::AnimWizard, &FormName::BBWizard, &FormName::Clock, &FormName::DynaBut, &FormName::Fade,
        &FormName::ImageEffects, &FormName::Password, &FormName::StatusBar, &FormName::Swirly, &FormName::Typer, &FormName::SmoothScroll,
        &FormName::FadeMsg, &FormName::NavTicker, &FormName::Pulldown, &FormName::Sound, &FormName::ImageEffects2, &FormName::PopupAlert,
        &FormName::AnimButton, &FormName::ImgRollover, &FormName::Sound, &FormName::ImageFade, &FormName::Credits, &FormName::Password,
    };
    if (effectId < 1 || effectId > 24)
        return QString();
    return *forms[effectId - 1];
}

const QStringList& finishUnloads()
{
    static const QStringList forms = {
        FormName::Anim,         FormName::AnimWizard, FormName::BBWizard,  FormName::Anim,      FormName::Clock,
        FormName::DynaBut,      FormName::Fade,       FormName::Password,  FormName::ImageEffects,
        FormName::StatusBar,    FormName::Swirly,     FormName::Typer,     FormName::SmoothScroll,
        FormName::FadeMsg,      FormName::NavTicker,  FormName::Sound,     FormName::Pulldown,
    };
    return forms;
}

}  // namespace ql
