#pragma once

#include "core/CommonDialog.h"
#include "core/EffectSession.h"
#include "core/Forms.h"
#include "platform/Platform.h"

#include <QObject>
#include <memory>

namespace ql {

// One running program: its session record, its forms, its program folder,
// and the platform it asks for everything outside.
class App : public QObject {
    Q_OBJECT
public:
    App(Platform& platform, const QString& programFolder);
    ~App() override;

    Platform& platform() { return platform_; }
    EffectSession& session() { return session_; }
    FormRegistry& forms() { return *forms_; }
    CommonDialog& commonDialog() { return commonDialog_; }

    // The folder of the program's own files, and a file in it.
    const QString& programFolder() const { return programFolder_; }
    QString programFile(const QString& name) const;
    QString helpFile() const { return programFile(QStringLiteral("quillet.hlp")); }

    // The main window, once the program has started.
    QWidget* mainWidget() const;

    MsgAnswer msgBox(const QString& text, int style = MsgStyle::OkOnly, const QString& title = QString());

    // Reads one value of the code pasted into the re-edit form into
    // ExtractedValue, and answers it. The re-edit form is loaded for it when
    // it is not.
    QString ExtractParam(const QString& key);
    QString pastedCode();

    // Shows the main window.
    void start();
    // Ends the program: every form is unloaded.
    void end();
    bool ended() const { return ended_; }

signals:
    void programEnded();

private:
    Platform& platform_;
    EffectSession session_;
    QString programFolder_;
    CommonDialog commonDialog_;
    std::unique_ptr<FormRegistry> forms_;
    bool ended_ = false;
};

// Registers every form of the program.
void registerForms(FormRegistry& forms);

}  // namespace ql
