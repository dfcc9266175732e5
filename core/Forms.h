#pragma once

#include <QHash>
#include <QPointer>
#include <QStringList>
#include <functional>

class QWidget;

namespace ql {

class App;
class FormBase;

// The forms of the program by name. Each is a single instance, made on first
// use (loaded) and destroyed when unloaded.
class FormRegistry {
public:
    using Factory = std::function<FormBase*(App&)>;

    explicit FormRegistry(App& app);
    ~FormRegistry();

    void add(const QString& name, Factory factory);
    bool exists(const QString& name) const { return factories_.contains(name); }
    // The names of every form the program can load, in the order they were
    // added.
    const QStringList& names() const { return names_; }

    // The loaded form of that name, or nullptr.
    FormBase* find(const QString& name) const;
    QWidget* findWidget(const QString& name) const;
    template <class T>
    T* get(const QString& name)
    {
        return dynamic_cast<T*>(load(name));
    }
    // The form of that name, loaded first when it is not: nullptr for a form
    // that the program does not have.
    FormBase* load(const QString& name);
    void unload(const QString& name);
    void unloadAll();
    QStringList loadedNames() const;

    // Shows a form over the main window, modal or not; a hidden form comes
    // back as it was left.
    void show(const QString& name, bool modal);
    // Unloads a form and shows it anew, so that it opens from its defaults.
    void reopen(const QString& name, bool modal);

    // Turns a loaded form's widget into its registry entry (for the unload
    // of a form by its own close box).
    void forget(const QString& name);

private:
    App& app_;
    QHash<QString, Factory> factories_;
    QStringList names_;
    QHash<QString, QPointer<QWidget>> loaded_;
    QHash<QString, FormBase*> bases_;
    QStringList order_;
};

}  // namespace ql
