#include "core/Forms.h"

#include "core/App.h"
#include "core/Form.h"

#include <QGuiApplication>
#include <QWidget>

namespace ql {

FormRegistry::FormRegistry(App& app)
    : app_(app)
{
}

FormRegistry::~FormRegistry()
{
    unloadAll();
}

void FormRegistry::add(const QString& name, Factory factory)
{
    if (!factories_.contains(name))
        names_ << name;
    factories_.insert(name, std::move(factory));
}

FormBase* FormRegistry::find(const QString& name) const
{
    const auto it = loaded_.find(name);
    if (it == loaded_.end() || it->isNull())
        return nullptr;
    return bases_.value(name);
}

QWidget* FormRegistry::findWidget(const QString& name) const
{
    const auto it = loaded_.find(name);
    return it == loaded_.end() ? nullptr : it->data();
}

FormBase* FormRegistry::load(const QString& name)
{
    if (FormBase* form = find(name))
        return form;
    const auto factory = factories_.find(name);
    if (factory == factories_.end())
        return nullptr;
    FormBase* form = (*factory)(app_);
    if (!form)
        return nullptr;
    loaded_.insert(name, form->widget());
    bases_.insert(name, form);
    order_.removeAll(name);
    order_ << name;
    form->load();
    return find(name);
}

void FormRegistry::unload(const QString& name)
{
    FormBase* form = find(name);
    if (!form)
        return;
    QWidget* widget = form->widget();
    forget(name);
    form->unloading();
    widget->hide();
    widget->deleteLater();
}

void FormRegistry::forget(const QString& name)
{
    loaded_.remove(name);
    bases_.remove(name);
    order_.removeAll(name);
}

void FormRegistry::unloadAll()
{
    const QStringList names = order_;
    for (auto it = names.rbegin(); it != names.rend(); ++it) {
        if (FormBase* form = find(*it)) {
            QWidget* widget = form->widget();
            forget(*it);
            delete widget;
        }
    }
    loaded_.clear();
    bases_.clear();
    order_.clear();
}

QStringList FormRegistry::loadedNames() const
{
    QStringList names;
    for (const QString& name : order_) {
        if (find(name))
            names << name;
    }
    return names;
}

void FormRegistry::show(const QString& name, bool modal)
{
    FormBase* form = load(name);
    if (!form)
        return;
    QWidget* w = form->widget();
    // Loading may have unloaded the form again (a form that refuses to open).
    if (find(name) != form)
        return;
    const Qt::WindowModality wanted = modal ? Qt::ApplicationModal : Qt::NonModal;
    if (w->windowModality() != wanted) {
        if (w->isVisible())
            w->hide();
        w->setWindowModality(wanted);
    }
    w->show();
    // A headless screen has no stacking of windows to change.
    if (QGuiApplication::platformName() != QLatin1String("offscreen")) {
        w->raise();
        w->activateWindow();
    }
}

void FormRegistry::reopen(const QString& name, bool modal)
{
    if (!exists(name))
        return;
    unload(name);
    show(name, modal);
}

}  // namespace ql
