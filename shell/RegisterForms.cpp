#include "core/App.h"
#include "effects/text/SwirlyForm.h"
#include "publish/MakeDirForm.h"
#include "publish/PreviewForm.h"
#include "reedit/EditAppletForm.h"
#include "shell/MainWindow.h"
#include "shell/OptionsForm.h"

namespace ql {

void registerForms(FormRegistry& forms)
{
    forms.add(QStringLiteral("QLMain"), [](App& app) { return new MainWindow(app); });
    forms.add(QStringLiteral("EditAppletForm"), [](App& app) { return new EditAppletForm(app); });
    forms.add(QStringLiteral("Preview"), [](App& app) { return new PreviewForm(app); });
    forms.add(QStringLiteral("MakeDir"), [](App& app) { return new MakeDirForm(app); });
    forms.add(QStringLiteral("Options"), [](App& app) { return new OptionsForm(app); });
    forms.add(QStringLiteral("Swirly"), [](App& app) { return new SwirlyForm(app); });
}

}  // namespace ql
