// The publishing work of the Preview wizard: the copy of media files into
// the program folder for the preview (Step 1), the copy of everything the
// effect needs into the folder of the user's page (Step 3), and the manual
// copies that find what could not be copied.

#include "core/App.h"
#include "core/Emission.h"
#include "core/FileLists.h"
#include "core/SharedRoutines.h"
#include "core/Widgets.h"
#include "publish/PreviewForm.h"
#include "publish/PreviewPage.h"

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QToolButton>

namespace ql {

namespace {

const QString SelectFile = QStringLiteral("Please select a file to copy.");

QString overwriteQuestion(const QString& name)
{
    return name + " already exists in this folder.  Do you wish to overwrite?";
}

bool samePath(const QString& a, const QString& b)
{
    return a.toLower() == b.toLower();
}

}  // namespace

void PreviewForm::recordFailure(const QString& name, bool& failed)
{
    List1->addItem(name);
    failed = true;
}

void PreviewForm::previewEffect()
{
    App& program = app();
    EffectSession& session = program.session();
    FileSystem& files = program.platform().files();
    const QString folder = program.programFolder();
    Dir1->setPath(folder);

    bool failed = false;
    for (const auto& [name, source] : session.requiredMedia()) {
        bool done = false;
        for (const QString& present : File1->entries()) {
            // This test stands inside the walk: an empty folder never makes it.
            if (source.isEmpty()) {
                recordFailure(name, failed);
                done = true;
                break;
            }
            if (name == present) {
                done = samePath(source, joinPath(folder, present));
                break;
            }
        }
        if (done)
            continue;
        const int error = files.copyFile(source, joinPath(folder, name));
        if (error == FileError::FileNotFound || error == FileError::PermissionDenied)
            recordFailure(name, failed);
    }
    if (!failed) {
        ShowPreviewPage(program, Text1->text(), this, Text1);
        return;
    }
    program.msgBox(QStringLiteral("Quillet couldn't copy all the necessary files to the specified folder.  Use the "
                                  "file list on the left to find the missing files and click the 'Copy' button to "
                                  "copy them."),
                   MsgStyle::Exclamation);
    failedCopyLayout();
    Command9->show();
    Command10->show();
    for (QWidget* w : std::initializer_list<QWidget*>{Drive1, Dir1, File1, Command1, Command6, Command7, Command8})
        w->hide();
    showFolderCaptions();
    Label14->setText(QStringLiteral("Copy necessary files to preview applet"));
    toFront(2);
}

void PreviewForm::manualCopyForPreview()
{
    App& program = app();
    Platform& platform = program.platform();
    QString copied;
    for (const QString& name : File2->selectedNames()) {
        platform.setBusy(true);
        platform.files().copyFile(joinPath(Dir2->path(), name), program.programFile(name));
        copied += name + ", ";
        platform.setBusy(false);
    }
    if (copied.isEmpty()) {
        program.msgBox(SelectFile, MsgStyle::OkOnly);
        return;
    }
    program.msgBox("Files successfully copied:  " + copied, MsgStyle::OkOnly);
    Command6->hide();
    Command10->show();
}

void PreviewForm::clickToPreview()
{
    step3DefaultLayout();
    setNavigationShown(true);
    toFront(0);
    ShowPreviewPage(app(), Text1->text(), this, Text1);
}

void PreviewForm::writeBackup(const QString& target)
{
    App& program = app();
    Platform& platform = program.platform();
    const QString path = target + QStringLiteral("qltemp.html");
    if (FileExists(program, path)) {
        const MsgAnswer answer = program.msgBox(
            "qltemp.html already exists in this folder.  This file contains HTML code that controls a Quillet special "
            "effect that you previously created." + CRLF + CRLF +
                "Do you wish to overwrite this with the new qltemp.html file that controls the current applet?",
            MsgStyle::YesNo);
        if (answer != MsgAnswer::Yes)
            return;
    }
    const QString head = program.session().EffectId == 21 ? "<HTML>" + CRLF : "<HTML> <BODY> " + CRLF;
    const QString page = head + Text1->text() + CRLF + "</BODY></HTML>" + CRLF;
    platform.setBusy(true);
    // A failed write is passed over; the copies go on.
    platform.files().writeFile(path, page.toUtf8());
    platform.setBusy(false);
}

void PreviewForm::copyFiles()
{
    App& program = app();
    EffectSession& session = program.session();
    FileSystem& files = program.platform().files();
    const QString folder = Dir1->path();
    const QString target = folder.endsWith('/') ? folder : folder + '/';

    writeBackup(target);

    auto failedCopy = [](int error) {
        return error == FileError::FileNotFound || error == FileError::PermissionDenied ||
               error == FileError::PathFileAccess;
    };
    bool failed = false;
    for (const auto& [name, source] : session.requiredMedia()) {
        if (source.isEmpty()) {
            recordFailure(name, failed);
            continue;
        }
        if (FileExists(program, target + name)) {
            if (samePath(source, joinPath(folder, name)))
                continue;
            if (program.msgBox(overwriteQuestion(name), MsgStyle::YesNo) != MsgAnswer::Yes)
                continue;
        }
        if (failedCopy(files.copyFile(source, joinPath(folder, name))))
            recordFailure(name, failed);
    }
    for (int i = 0; i < SlotArray<3>::Size; ++i) {
        const QString name = session.RequiredClasses.at(i);
        const int error = files.copyFile(program.programFile(name), joinPath(folder, name));
        // An empty slot names no file: its copy is between two folders and
        // counts for nothing.
        if (!name.isEmpty() && failedCopy(error))
            recordFailure(name, failed);
    }
    File1->refresh();

    if (failed) {
        program.msgBox("Quillet couldn't copy all the necessary files to the specified folder." + CRLF +
                           "Use the file list on the left to find the missing files and click the 'Copy' button to "
                           "copy them.",
                       MsgStyle::Exclamation);
        failedCopyLayout();
        Command7->show();
        Command8->show();
        return;
    }
    program.msgBox("All files have been copied to the " + joinPath(folder, QString()) +
                       " folder.  Now you can easily upload these files to the Internet.",
                   MsgStyle::OkOnly);
}

void PreviewForm::manualCopy()
{
    App& program = app();
    Platform& platform = program.platform();
    const QStringList selected = File2->selectedNames();
    if (selected.isEmpty()) {
        program.msgBox(SelectFile, MsgStyle::OkOnly);
        return;
    }
    File1->refresh();
    QString copied;
    for (const QString& name : selected) {
        if (File1->entries().contains(name) &&
            program.msgBox(overwriteQuestion(name), MsgStyle::YesNo) != MsgAnswer::Yes)
            continue;
        platform.setBusy(true);
        platform.files().copyFile(joinPath(Dir2->path(), name), joinPath(Dir1->path(), name));
        File1->refresh();
        copied += name + ", ";
        platform.setBusy(false);
        for (int row = List1->count() - 1; row >= 0; --row) {
            if (List1->item(row)->text() == name)
                delete List1->takeItem(row);
        }
    }
    if (copied.isEmpty())
        return;
    program.msgBox("Files successfully copied:  " + copied, MsgStyle::OkOnly);
    Command6->hide();
    Command8->show();
}

void PreviewForm::manualCopyDone()
{
    const QStringList missing = [this] {
        QStringList names;
        for (int row = 0; row < List1->count(); ++row)
            names << List1->item(row)->text();
        return names;
    }();
    step3DefaultLayout();
    // The names that are still missing do not hold the user back.
    List1->addItems(missing);
    setNavigationShown(true);
    ++StepIndex;
    toFront(4);
    Command15->setEnabled(false);
}

void PreviewForm::makeDir()
{
    app().forms().show(QStringLiteral("MakeDir"), true);
}

}  // namespace ql
