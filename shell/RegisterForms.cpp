#include "core/App.h"
#include "core/FormNames.h"
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
    forms.add(FormName::StatusBar, [](App& app) { return new StatusBarForm(app); });
    forms.add(FormName::SmoothScroll, [](App& app) { return new SmoothScrollForm(app); });
    forms.add(FormName::Typer, [](App& app) { return new TyperForm(app); });
    forms.add(FormName::NavTicker, [](App& app) { return new NavTickerForm(app); });
    forms.add(FormName::FadeMsg, [](App& app) { return new FadeMsgForm(app); });
}

}  // namespace ql
