#include "publish/MakeDirForm.h"

#include "core/App.h"
#include "core/FileLists.h"
#include "core/Widgets.h"
#include "publish/PreviewForm.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace ql {

MakeDirForm::MakeDirForm(App& app)
    : Form(app, QStringLiteral("MakeDir"))
{
    setWindowTitle(QStringLiteral("Create New Folder"));
    FileSystem& files = app.platform().files();
    Drive1 = named(new DriveListBox(files, this), "Drive1");
    Dir1 = named(new DirListBox(files, this), "Dir1");
    Dir1->setMinimumHeight(180);
    Text1 = named(new QLineEdit(this), "Text1");
    Text1->installEventFilter(this);
    auto* create = commandButton(this, "Command1", QStringLiteral("C&reate"));
    auto* cancel = commandButton(this, "Command2", QStringLiteral("&Cancel"));
    connect(create, &QPushButton::clicked, this, [this] { MakeDirEnter(); });
    connect(cancel, &QPushButton::clicked, this, [this] { unload(); });
    connect(Drive1, &DriveListBox::driveChanged, this,
            [this](const QString& drive) { followDrive(this->app(), *Drive1, *Dir1, drive); });

    auto* caption = named(new QLabel(QStringLiteral("Create a new folder in:"), this), "Label1");
    auto* nameCaption = named(new QLabel(QStringLiteral("New folder &name:"), this), "Label2");
    nameCaption->setBuddy(Text1);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(create);
    buttons->addWidget(cancel);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(caption);
    layout->addWidget(Drive1);
    layout->addWidget(Dir1, 1);
    layout->addWidget(nameCaption);
    layout->addWidget(Text1);
    layout->addLayout(buttons);
    resize(360, 380);
}

void MakeDirForm::load()
{
    if (auto* preview = dynamic_cast<PreviewForm*>(app().forms().find(QStringLiteral("Preview")))) {
        // The drive as the wizard's drive list shows it, which need not be
        // the drive of its folder.
        if (!preview->targetDrive().isEmpty())
            Drive1->showDrive(preview->targetDrive());
        Dir1->setPath(preview->targetFolder());
    }
    // The dialog asks for a name: the typing goes there first.
    Text1->setFocus();
}

bool MakeDirForm::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == Text1 && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            MakeDirEnter();
            return true;
        }
    }
    return Form::eventFilter(watched, event);
}

void MakeDirForm::MakeDirEnter()
{
    if (Text1->text().isEmpty()) {
        app().msgBox(QStringLiteral("Please enter a new folder name for Quillet to create."), MsgStyle::OkOnly);
        return;
    }
    const QString folder = joinPath(Dir1->path(), Text1->text().trimmed());
    app().platform().files().makeDir(folder);
    if (auto* preview = dynamic_cast<PreviewForm*>(app().forms().find(QStringLiteral("Preview"))))
        preview->showTargetFolder(folder);
    unload();
}

}  // namespace ql
