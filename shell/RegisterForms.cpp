#include "core/App.h"
#include "core/FormNames.h"
#include "effects/image/DynaButForm.h"
#include "effects/page/ClockForm.h"
#include "effects/page/FadeForm.h"
#include "effects/page/CreditsForm.h"
#include "effects/page/PasswordForm.h"
#include "effects/page/PopupAlertForm.h"
#include "effects/page/PulldownForm.h"
#include "effects/page/SoundForm.h"
#include "effects/text/FadeMsgForm.h"
#include "effects/text/NavTickerForm.h"
#include "effects/text/SmoothScrollForm.h"
#include "effects/text/StatusBarForm.h"
#include "effects/text/SwirlyForm.h"
#include "effects/text/TyperForm.h"
#include "publish/MakeDirForm.h"
#include "publish/PreviewForm.h"
#include "reedit/EditAppletForm.h"
#include "shell/MainWindow.h"
#include "shell/OptionsForm.h"

namespace ql {

void registerForms(FormRegistry& forms)
{
    forms.add(FormName::Main, [](App& app) { return new MainWindow(app); });
    forms.add(FormName::EditApplet, [](App& app) { return new EditAppletForm(app); });
    forms.add(FormName::Preview, [](App& app) { return new PreviewForm(app); });
    forms.add(FormName::MakeDir, [](App& app) { return new MakeDirForm(app); });
    forms.add(FormName::Options, [](App& app) { return new OptionsForm(app); });
    forms.add(FormName::Swirly, [](App& app) { return new SwirlyForm(app); });
    forms.add(FormName::Clock, [](App& app) { return new ClockForm(app); });
    forms.add(FormName::Fade, [](App& app) { return new FadeForm(app); });
    forms.add(FormName::DynaBut, [](App& app) { return new DynaButForm(app); });
    forms.add(FormName::PopupAlert, [](App& app) { return new PopupAlertForm(app); });
    forms.add(FormName::Credits, [](App& app) { return new CreditsForm(app); });
    forms.add(FormName::Pulldown, [](App& app) { return new PulldownForm(app); });
    forms.add(FormName::PulldownURL, [](App& app) { return new PulldownURLForm(app); });
    forms.add(FormName::Password, [](App& app) { return new PasswordForm(app); });
    forms.add(FormName::Sound, [](App& app) { return new SoundForm(app); });
    forms.add(FormName::StatusBar, [](App& app) { return new StatusBarForm(app); });
    forms.add(FormName::SmoothScroll, [](App& app) { return new SmoothScrollForm(app); });
    forms.add(FormName::Typer, [](App& app) { return new TyperForm(app); });
    forms.add(FormName::NavTicker, [](App& app) { return new NavTickerForm(app); });
    forms.add(FormName::FadeMsg, [](App& app) { return new FadeMsgForm(app); });
}

}  // namespace ql
