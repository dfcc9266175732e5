#include "core/Form.h"

#include "core/App.h"
#include "core/Forms.h"

#include "core/Keyboard.h"
#include "core/Widgets.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QMenu>

namespace ql {

FormBase::FormBase(App& app, const QString& name)
    : app_(app)
    , name_(name)
{
}

void FormBase::sendHelp()
{
    app_.platform().showHelp(app_.helpFile(), name_, helpTopic);
}

Form::Form(App& app, const QString& name)
    : QDialog(app.mainWidget(), Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint)
    , FormBase(app, name)
{
    setObjectName(name);
    setSizeGripEnabled(false);
}

void Form::unload()
{
    app().forms().unload(formName());
}

void Form::showEvent(QShowEvent* event)
{
    // Every form keeps the keyboard rules of the program: captions give
    // access keys, and an editable list box keeps exactly what was typed.
    if (!shownBefore_) {
        shownBefore_ = true;
        giveAccessKeys(this);
    }
    for (QComboBox* combo : findChildren<QComboBox*>())
        noInlineCompletion(combo);
    QDialog::showEvent(event);
}

void Form::closeEvent(QCloseEvent* event)
{
    event->ignore();
    unload();
}

void Form::reject()
{
    // Escape closes a form like its close box.
    unload();
}

FormBase* formOf(const QObject* object)
{
    for (const QObject* o = object; o; o = o->parent()) {
        const auto* w = qobject_cast<const QWidget*>(o);
        if (!w || !w->isWindow() || qobject_cast<const QMenu*>(w))
            continue;
        return dynamic_cast<FormBase*>(const_cast<QWidget*>(w));
    }
    return nullptr;
}

}  // namespace ql
