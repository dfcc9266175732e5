#pragma once

#include <QDialog>
#include <optional>

namespace ql {

class App;

// What every top-level form of the program has: its name, the program it
// belongs to, its help, and its load and unload steps.
class FormBase {
public:
    FormBase(App& app, const QString& name);
    virtual ~FormBase() = default;

    App& app() const { return app_; }
    const QString& formName() const { return name_; }

    // Opens the help at this form's topic: the key F1 pressed on the form.
    void sendHelp();
    // The topic F1 opens; nothing means the form's own topic.
    std::optional<int> helpTopic;

    // Runs once, right after the form is made: the form's load steps.
    virtual void load() {}
    // Runs when the form is unloaded, whatever the reason.
    virtual void unloading() {}

    virtual QWidget* widget() = 0;

private:
    App& app_;
    QString name_;
};

// The form of an effect or dialog: a window over the main window. Its close
// box unloads it.
class Form : public QDialog, public FormBase {
    Q_OBJECT
public:
    Form(App& app, const QString& name);
    QWidget* widget() override { return this; }

    // Unloads this form: it closes and its field values are gone.
    void unload();

protected:
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void reject() override;

private:
    bool shownBefore_ = false;
};

// The form a widget belongs to, or nullptr.
FormBase* formOf(const QObject* object);

}  // namespace ql
