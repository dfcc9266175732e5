#include "core/App.h"

#include "core/ExtractParam.h"
#include "core/Form.h"
#include "core/Style.h"
#include "core/Widgets.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

namespace ql {

namespace {

// F1 anywhere in a form of the program opens that form's help.
class HelpKey : public QObject {
public:
    explicit HelpKey(App& app)
        : QObject(&app)
        , app_(app)
    {
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() != QEvent::KeyPress || static_cast<QKeyEvent*>(event)->key() != Qt::Key_F1)
            return false;
        FormBase* form = formOf(watched);
        if (!form || &form->app() != &app_)
            return false;
        form->sendHelp();
        return true;
    }

private:
    App& app_;
};

}  // namespace

App::App(Platform& platform, const QString& programFolder)
    : platform_(platform)
    , programFolder_(programFolder)
    , commonDialog_(platform)
    , forms_(std::make_unique<FormRegistry>(*this))
{
    useProgramStyle();
    registerForms(*forms_);
    if (qApp)
        qApp->installEventFilter(new HelpKey(*this));
}

App::~App()
{
    forms_->unloadAll();
}

QString App::programFile(const QString& name) const
{
    if (programFolder_.endsWith('/'))
        return programFolder_ + name;
    return programFolder_ + '/' + name;
}

QWidget* App::mainWidget() const
{
    return forms_->findWidget(QStringLiteral("QLMain"));
}

MsgAnswer App::msgBox(const QString& text, int style, const QString& title)
{
    return platform_.messageBox(text, style, title);
}

QString App::pastedCode()
{
    FormBase* form = forms_->load(QStringLiteral("EditAppletForm"));
    if (!form)
        return QString();
    const auto* box = form->widget()->findChild<CodeBox*>(QStringLiteral("Text1"));
    return box ? box->text() : QString();
}

QString App::ExtractParam(const QString& key)
{
    ql::ExtractParam(session_, pastedCode(), key);
    return session_.ExtractedValue;
}

void App::start()
{
    forms_->show(QStringLiteral("QLMain"), false);
}

void App::end()
{
    if (ended_)
        return;
    ended_ = true;
    const QStringList names = forms_->loadedNames();
    for (auto it = names.rbegin(); it != names.rend(); ++it)
        forms_->unload(*it);
    emit programEnded();
}

}  // namespace ql
