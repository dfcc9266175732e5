#include "shell/OptionsForm.h"

#include "core/App.h"
#include "core/Icons.h"
#include "core/SharedRoutines.h"
#include "core/Widgets.h"
#include "publish/PreviewPage.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace ql {

OptionsForm::OptionsForm(App& app)
    : Form(app, QStringLiteral("Options"))
{
    setWindowTitle(QStringLiteral("Preferences"));
    Text4 = named(new QLineEdit(this), "Text4");
    Text1 = named(new QLineEdit(this), "Text1");
    auto browseButton = [this](const QString& name) {
        auto* b = named(new QToolButton(this), name);
        b->setIcon(programFileIcon());
        b->setToolTip(QStringLiteral("Browse..."));
        return b;
    };
    auto* browseBrowser = browseButton("Command5");
    auto* browseEditor = browseButton("Command6");
    auto* ok = commandButton(this, "Command1", QStringLiteral("&OK"));
    auto* cancel = commandButton(this, "Command3", QStringLiteral("&Cancel"));
    ok->setDefault(true);

    auto* browserCaption = named(new QLabel(QStringLiteral("Browser:"), this), "Label1");
    auto* editorCaption = named(new QLabel(QStringLiteral("HTML Editor:"), this), "Label2");
    browserCaption->setBuddy(Text4);
    editorCaption->setBuddy(Text1);
    auto* grid = new QGridLayout;
    grid->addWidget(browserCaption, 0, 0);
    grid->addWidget(Text4, 0, 1);
    grid->addWidget(browseBrowser, 0, 2);
    grid->addWidget(editorCaption, 1, 0);
    grid->addWidget(Text1, 1, 1);
    grid->addWidget(browseEditor, 1, 2);
    grid->setColumnStretch(1, 1);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(ok);
    buttons->addWidget(cancel);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(grid);
    layout->addSpacing(8);
    layout->addLayout(buttons);
    setMinimumWidth(460);

    connect(browseBrowser, &QToolButton::clicked, this,
            [this] { browse(Text4, QStringLiteral("Browse For Browser...")); });
    connect(browseEditor, &QToolButton::clicked, this,
            [this] { browse(Text1, QStringLiteral("Browse For HTML Editor...")); });
    connect(ok, &QPushButton::clicked, this, [this] { save(); });
    connect(cancel, &QPushButton::clicked, this, [this] { unload(); });
}

void OptionsForm::load()
{
    Platform& platform = app().platform();
    Text4->setText(platform.setting(QStringLiteral("Apps"), QStringLiteral("Browser"), QStringLiteral("c:\\")));
    Text1->setText(platform.setting(QStringLiteral("Apps"), QStringLiteral("HTMLEditor"), QStringLiteral("c:\\")));
}

void OptionsForm::browse(QLineEdit* box, const QString& title)
{
    EffectSession& session = app().session();
    session.PickedFile.clear();
    CommonDialog& dialog = app().commonDialog();
    dialog.Filter = ProgramFilter;
    dialog.FilterIndex = 2;
    dialog.DialogTitle = title;
    PickProgramFile(app());
    // A cancelled dialog empties the box.
    box->setText(session.PickedFile);
}

void OptionsForm::save()
{
    Platform& platform = app().platform();
    platform.saveSetting(QStringLiteral("Apps"), QStringLiteral("Browser"), Text4->text());
    platform.saveSetting(QStringLiteral("Apps"), QStringLiteral("HTMLEditor"), Text1->text());
    unload();
}

}  // namespace ql
