#include "core/EffectForm.h"

#include "core/App.h"
#include "core/Emission.h"
#include "core/ExtractParam.h"
#include "core/Text.h"
#include "core/Widgets.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QToolButton>

namespace ql {

EffectForm::EffectForm(App& app, const EffectDescription& description)
    : Form(app, description.form)
    , description_(description)
{
    helpTopic = description.helpTopic;
}

void EffectForm::load()
{
    EffectSession& session = app().session();
    session.eraseArrays();
    fillLists();
    if (session.ReEditMode == 1) {
        // The pasted code is read once for all the keys: a long paste is
        // not copied out of its box again for every field.
        pasted_ = app().pastedCode();
        reading_ = true;
        EditApplet();
        reading_ = false;
        pasted_.clear();
        session.ReEditMode = 0;
    }
}

void EffectForm::EditApplet()
{
    for (const EditKey& k : description_.editKeys)
        setFieldText(findChild<QWidget*>(k.control), extract(k.key));
}

QString EffectForm::extract(const QString& key)
{
    if (!reading_)
        return app().ExtractParam(key);
    EffectSession& session = app().session();
    ql::ExtractParam(session, pasted_, key);
    return session.ExtractedValue;
}

void EffectForm::refuse(const Refusal& refusal)
{
    app().msgBox(refusal.text, refusal.style);
    if (refusal.focus.isEmpty())
        return;
    if (auto* target = findChild<QWidget*>(refusal.focus))
        target->setFocus(Qt::OtherFocusReason);
}

void EffectForm::HandOverToPreview(const HandOver& h)
{
    EffectSession& session = app().session();
    session.GeneratedCode = h.code;
    const QString message = !h.message.isEmpty()     ? h.message
                            : h.fileLines.isEmpty() ? NoFilesMessage()
                                                    : RequiredFilesMessage(h.fileLines);
    app().msgBox(message, MsgStyle::Exclamation);
    for (int i = 0; i < h.classes.size(); ++i)
        session.RequiredClasses.set(i, h.classes[i]);
    for (auto it = h.files.begin(); it != h.files.end(); ++it)
        session.RequiredFiles.set(it.key(), it.value());
    for (int slot : h.emptiedPaths)
        session.RequiredPaths.set(slot, QString());
    session.EffectId = h.effectId;
    hide();
    app().forms().show(QStringLiteral("Preview"), true);
}

bool EffectForm::pickColor(ColorSwatch* swatch, const std::function<void(const QString&)>& write,
                           const std::function<QString(quint32)>& format)
{
    CommonDialog& dialog = app().commonDialog();
    dialog.CancelError = true;
    if (!dialog.ShowColor())
        return false;
    swatch->paintColor(dialog.Color);
    write(format ? format(dialog.Color) : colorTriple(dialog.Color));
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

QHBoxLayout* EffectForm::commandRow(const QString& doneName, const QString& cancelName, const QString& helpName,
                                    const QString& doneCaption)
{
    auto* row = new QHBoxLayout;
    // Made in reading order, so that Tab goes Help, Done, Cancel.
    QToolButton* help = helpName.isEmpty() ? nullptr : makeHelpButton(helpName);
    QPushButton* doneButton = makeButton(doneName, doneCaption);
    QPushButton* cancel = cancelName.isEmpty() ? nullptr : makeButton(cancelName, QStringLiteral("&Cancel"));
    doneButton->setDefault(true);
    connect(doneButton, &QPushButton::clicked, this, [this] { done(); });
    if (help)
        row->addWidget(help);
    row->addStretch();
    row->addWidget(doneButton);
    if (cancel) {
        row->addWidget(cancel);
        connect(cancel, &QPushButton::clicked, this, [this] { unload(); });
    }
    return row;
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
