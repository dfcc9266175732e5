#include "core/EffectForm.h"

#include "core/App.h"
#include "core/Text.h"
#include "core/Widgets.h"

#include <QComboBox>
#include <QPushButton>
#include <QToolButton>

namespace ql {

const QStringList& FontList()
{
    static const QStringList list = {"Arial", "Courier", "Dialog", "Helvetica", "TimesRoman"};
    return list;
}

const QStringList& FontSizeList()
{
    static const QStringList list = {"4",  "6",  "8",  "9",  "10", "11", "12", "14", "16",
                                     "18", "20", "22", "24", "28", "30", "36", "48", "72"};
    return list;
}

EffectForm::EffectForm(App& app, const QString& name)
    : Form(app, name)
{
}

void EffectForm::load()
{
    EffectSession& session = app().session();
    session.eraseArrays();
    fillLists();
    if (session.ReEditMode == 1) {
        EditApplet();
        session.ReEditMode = 0;
    }
}

QString EffectForm::extract(const QString& key)
{
    return app().ExtractParam(key);
}

void EffectForm::refuse(const Refusal& refusal)
{
    app().msgBox(refusal.text, refusal.style);
    if (refusal.focus.isEmpty())
        return;
    if (auto* target = findChild<QWidget*>(refusal.focus))
        target->setFocus(Qt::OtherFocusReason);
}

void EffectForm::HandOverToPreview(const QString& code, const QString& requiredFilesMessage,
                                   const QStringList& classes, qint16 effectId)
{
    EffectSession& session = app().session();
    session.GeneratedCode = code;
    app().msgBox(requiredFilesMessage, MsgStyle::Exclamation);
    for (int i = 0; i < classes.size(); ++i)
        session.RequiredClasses.set(i, classes[i]);
    session.EffectId = effectId;
    hide();
    app().forms().show(QStringLiteral("Preview"), true);
}

bool EffectForm::pickColor(ColorSwatch* swatch, const std::function<void(const QString&)>& write)
{
    CommonDialog& dialog = app().commonDialog();
    dialog.CancelError = true;
    if (!dialog.ShowColor())
        return false;
    swatch->paintColor(dialog.Color);
    write(colorTriple(dialog.Color));
    return true;
}

bool EffectForm::browseFile(const QString& filter, const QString& title, int slot,
                            const std::function<void(const QString&)>& write)
{
    CommonDialog& dialog = app().commonDialog();
    dialog.Filter = filter;
    dialog.FilterIndex = 2;
    dialog.CancelError = true;
    dialog.DialogTitle = title;
    dialog.FileName.clear();
    if (!dialog.ShowOpen())
        return false;
    write(dialog.FileTitle);
    EffectSession& session = app().session();
    session.RequiredFiles.set(slot, dialog.FileTitle);
    session.RequiredPaths.set(slot, dialog.FileName);
    return true;
}

QPushButton* EffectForm::makeButton(const QString& name, const QString& caption)
{
    return commandButton(this, name, caption);
}

QToolButton* EffectForm::makeHelpButton(const QString& name)
{
    auto* button = helpButton(this, name);
    connect(button, &QToolButton::clicked, this, [this] { sendHelp(); });
    return button;
}

void EffectForm::fillList(QComboBox* combo, const QStringList& values)
{
    combo->addItems(values);
    combo->setCurrentIndex(-1);
}

}  // namespace ql
