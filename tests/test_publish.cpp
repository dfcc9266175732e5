// Local publishing of the Preview wizard: the copy of media files into the
// program folder for the preview (Step 1), the copy of everything the effect
// needs into the folder of the user's page (Step 3) with the qltemp.html
// backup, the manual copies that find what could not be copied, the drive
// lists, and the new-folder dialog.

#include "TestSupport.h"
#include "core/FileLists.h"
#include "publish/PreviewForm.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <memory>

using namespace ql;

namespace {

const QString Step1Failed =
    "Quillet couldn't copy all the necessary files to the specified folder.  Use the file list on the left to find "
    "the missing files and click the 'Copy' button to copy them.";
const QString Step3Failed =
    "Quillet couldn't copy all the necessary files to the specified folder.\r\n"
    "Use the file list on the left to find the missing files and click the 'Copy' button to copy them.";
const QString BackupQuestion =
    "qltemp.html already exists in this folder.  This file contains HTML code that controls a Quillet special effect "
    "that you previously created.\r\n\r\n"
    "Do you wish to overwrite this with the new qltemp.html file that controls the current applet?";
const QString SelectFile = "Please select a file to copy.";
const QString EnterFolderName = "Please enter a new folder name for Quillet to create.";
const QString Step3Title = "Step 3: Publish required files to local hard drive";
const QByteArray ClassBytes = QByteArrayLiteral("\xCA\xFE\xBA\xBE swirl class");

QString overwriteQuestion(const QString& name)
{
    return name + " already exists in this folder.  Do you wish to overwrite?";
}

QString allCopied(const QString& folder)
{
    return "All files have been copied to the " + folder + "/" +
           " folder.  Now you can easily upload these files to the Internet.";
}

QString copiedMessage(const QString& names)
{
    return "Files successfully copied:  " + names;
}

void put(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    QVERIFY2(file.open(QIODevice::WriteOnly), qPrintable(path));
    file.write(bytes);
}

// The bytes of a file, or a marker when there is none.
QByteArray bytesOf(const QString& path)
{
    if (!QFileInfo(path).isFile())
        return QByteArrayLiteral("<no file>");
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return QByteArrayLiteral("<unreadable>");
    return file.readAll();
}

bool fileThere(const QString& path)
{
    return QFileInfo(path).isFile();
}

QStringList names(const QJsonValue& items)
{
    QStringList out;
    for (const QJsonValue& v : items.toArray())
        out << v.toString();
    return out;
}

// Every control whose visible flag a layout sets.
const QStringList LayoutControls = {"Drive1",   "Dir1",      "File1",     "Drive2",    "Dir2",      "File2",
                                    "List1",    "Command6",  "Command1",  "Command7",  "Command8",  "Command9",
                                    "Command10", "Label2",   "Label5",    "Label6",    "Label7",    "Label10",
                                    "Line1",    "Line2",     "Command14", "Command15", "Label4(0)", "Label4(1)",
                                    "Label4(2)", "Label4(3)", "Label4(4)"};

const QStringList Steps = {"Label4(0)", "Label4(1)", "Label4(2)", "Label4(3)", "Label4(4)"};

}  // namespace

class PublishTest : public QObject {
    Q_OBJECT

    TestDriver d;
    std::unique_ptr<QTemporaryDir> prog_;  // the program folder
    std::unique_ptr<QTemporaryDir> work_;  // where the user's images and sounds lie
    std::unique_ptr<QTemporaryDir> site_;  // the folder of the user's Web page
    std::unique_ptr<QTemporaryDir> other_;
    qsizetype seen_ = 0;

    QString prog() const { return prog_->path(); }
    QString work() const { return work_->path(); }
    QString site() const { return site_->path(); }
    QString other() const { return other_->path(); }
    QString inProg(const QString& name) const { return prog() + "/" + name; }
    QString inWork(const QString& name) const { return work() + "/" + name; }
    QString inSite(const QString& name) const { return site() + "/" + name; }
    QString inOther(const QString& name) const { return other() + "/" + name; }

    EffectSession& session() { return d.app().session(); }
    ScriptedFileSystem& files() { return d.platform().scriptedFiles(); }
    void media(int slot, const QString& name, const QString& path)
    {
        session().RequiredFiles.set(slot, name);
        session().RequiredPaths.set(slot, path);
    }

    // Swirly Text through Done: the wizard stands on Step 1. The browser is
    // configured, so that a preview opens the page without a question.
    void openPreview()
    {
        d.start({{"program_folder", prog()},
                 {"settings", QJsonArray{QJsonValue(QJsonArray{"Apps", "Browser", "/usr/bin/webbrowser"})}}});
        d.click("QLMain", "Command4");
        d.setText("Swirly", "Text7", "Swirl");
        d.setText("Swirly", "Text10", "200");
        d.setText("Swirly", "Text11", "40");
        d.click("Swirly", "Command1");
        QVERIFY(d.shown("Preview"));
        QCOMPARE(session().EffectId, qint16(10));
        seen_ = d.messages().size();
    }
    // On to Step 3, with the target folder set to the site folder.
    void toStep3()
    {
        openPreview();
        next();
        next();
        QVERIFY(onTop(2));
        d.on("Preview", "Dir1", "set_path", {{"path", site()}});
        QCOMPARE(d.on("Preview", "Dir1", "path").toString(), site());
    }
    void putClass() { put(inProg("ColorSwirl.class"), ClassBytes); }

    void next() { d.click("Preview", "Command15"); }
    void previous() { d.click("Preview", "Command14"); }
    void copyFiles() { d.click("Preview", "Command6"); }
    void answer(const QStringList& words) { d.ok({{"op", "answer"}, {"words", QJsonArray::fromStringList(words)}}); }

    bool onTop(int page) { return d.on("Preview", QStringLiteral("Picture1(%1)").arg(page), "on_top").toBool(); }
    bool visible(const QString& control, const QString& form = "Preview")
    {
        return d.on(form, control, "visible").toBool();
    }
    bool enabled(const QString& control) { return d.on("Preview", control, "enabled").toBool(); }
    QStringList items(const QString& control, const QString& form = "Preview")
    {
        return names(d.on(form, control, "items"));
    }
    QStringList list1() { return items("List1"); }
    QString pathOf(const QString& control, const QString& form = "Preview")
    {
        return d.on(form, control, "path").toString();
    }
    int beeps() { return d.ok({{"op", "beeps"}}).toInt(); }
    QStringList opened() { return names(d.ok({{"op", "opened"}})); }
    int stepIndex()
    {
        auto* preview = dynamic_cast<PreviewForm*>(d.app().forms().find("Preview"));
        return preview ? preview->StepIndex : -1;
    }

    // The message boxes shown since the last look, as [text, style] pairs.
    QList<QPair<QString, int>> fresh()
    {
        const QJsonArray all = d.messages();
        QList<QPair<QString, int>> out;
        for (qsizetype i = seen_; i < all.size(); ++i)
            out.append({messageText(all[i]), messageStyle(all[i])});
        seen_ = all.size();
        return out;
    }
    using Boxes = QList<QPair<QString, int>>;

    void expectVisible(const QStringList& controls, bool shown, const QString& form = "Preview")
    {
        for (const QString& c : controls)
            QVERIFY2(visible(c, form) == shown, qPrintable(c + (shown ? " should be shown" : " should be hidden")));
    }
    QMap<QString, bool> layoutFlags()
    {
        QMap<QString, bool> flags;
        for (const QString& c : LayoutControls)
            flags.insert(c, visible(c));
        return flags;
    }
    void expectDefaultLayout()
    {
        expectVisible({"Drive1", "Dir1", "Command6", "Command1", "Label2", "Label5", "Label6"}, true);
        expectVisible({"List1", "Drive2", "Dir2", "File2", "Command7", "Command8", "Command9", "Command10", "Label7",
                       "Label10", "Line1", "Line2"},
                      false);
    }
    void expectFailedLayout()
    {
        expectVisible({"List1", "Drive2", "Dir2", "File2", "Label7", "Line1", "Line2"}, true);
        expectVisible({"Command6", "Label2", "Label6", "Label10", "Command14", "Command15"}, false);
        expectVisible(Steps, false);
    }
    void expectStep3FailedLayout()
    {
        expectFailedLayout();
        expectVisible({"Command7", "Command8", "Drive1", "Dir1", "File1", "Command1"}, true);
        expectVisible({"Command9", "Command10"}, false);
    }
    void expectStep1FailedLayout()
    {
        expectFailedLayout();
        expectVisible({"Command9", "Command10"}, true);
        expectVisible({"Drive1", "Dir1", "File1", "Command1", "Command6", "Command7", "Command8"}, false);
    }

    // Another entry of a drive list than the one shown; `listed` tells
    // whether it is one of the list's own entries.
    QString otherDrive(const QString& form, const QString& control, bool& listed)
    {
        const QString current = d.text(form, control);
        for (const QString& entry : items(control, form)) {
            if (entry != current) {
                listed = true;
                return entry;
            }
        }
        listed = false;
        return other();
    }
    // A drive that can't be entered: a beep, then a box by error number; the
    // drive list and the folder list stay as they were.
    void refusedDrives(const QString& form, const QString& drive, const QString& folder)
    {
        struct Case {
            int error;
            QString text;
        };
        const QList<Case> cases = {{57, "Drive I/O error."},
                                   {70, "Permission denied."},
                                   {71, "Drive not ready."},
                                   {68, QString()},
                                   {76, QString()},
                                   {53, QString()}};
        bool listed = false;
        const QString bad = otherDrive(form, drive, listed);
        fresh();
        for (const Case& c : cases) {
            files().setDriveFault(bad, c.error);
            const QString driveBefore = d.text(form, drive);
            const QStringList entriesBefore = items(drive, form);
            const QString pathBefore = pathOf(folder, form);
            const QStringList foldersBefore = items(folder, form);
            const int beepsBefore = beeps();
            d.on(form, drive, "set_drive", {{"drive", bad}});
            QCOMPARE(beeps(), beepsBefore + 1);
            if (c.text.isEmpty())
                QCOMPARE(fresh(), Boxes());
            else
                QCOMPARE(fresh(), (Boxes{{c.text, 0}}));
            QCOMPARE(d.text(form, drive), driveBefore);
            if (listed)
                QCOMPARE(items(drive, form), entriesBefore);
            QCOMPARE(pathOf(folder, form), pathBefore);
            QCOMPARE(items(folder, form), foldersBefore);
        }
    }

private slots:
    void init()
    {
        prog_ = std::make_unique<QTemporaryDir>();
        work_ = std::make_unique<QTemporaryDir>();
        site_ = std::make_unique<QTemporaryDir>();
        other_ = std::make_unique<QTemporaryDir>();
        QVERIFY(prog_->isValid() && work_->isValid() && site_->isValid() && other_->isValid());
        seen_ = 0;
    }

    // ---- The page and its lists

    void stepThreeTextsAndDefaultLayout()
    {
        toStep3();
        QCOMPARE(d.text("Preview", "Label14"), Step3Title);
        QCOMPARE(d.text("Preview", "Label15"),
                 QString("This special effect requires extra files to work correctly.  These files must be placed in "
                         "the same folder as the Web page that contains the special effect HTML code."));
        QCOMPARE(d.text("Preview", "Label2"),
                 QString("In the box below, select and open the folder that holds the Web page containing the special "
                         "effect HTML code.  Then click the 'Copy Files' button to copy the required files to that "
                         "folder."));
        QCOMPARE(d.text("Preview", "Label6"),
                 QString("(A file named qltemp.html will be copied to this folder as a backup.  It contains the HTML "
                         "code for this special effect.)"));
        QCOMPARE(d.text("Preview", "Label7"),
                 QString("The following files could not be copied to the correct folder.  Using the file list box(es) "
                         "below, select the necessary files and click the COPY button."));
        QCOMPARE(d.text("Preview", "Label10"), QString("and then"));
        QCOMPARE(d.text("Preview", "Command6"), QString("&Copy Files"));
        QCOMPARE(d.on("Preview", "Command1", "tooltip").toString(), QString("Create new folder..."));
        QCOMPARE(d.text("Preview", "Command7"), QString("&Copy >>"));
        QCOMPARE(d.text("Preview", "Command8"), QString("&Done"));
        QCOMPARE(d.text("Preview", "Command9"), QString("&Copy >>"));
        QCOMPARE(d.text("Preview", "Command10"), QString("&Click to Preview"));
        QCOMPARE(d.on("Preview", "Command10", "tooltip").toString(),
                 QString("Click here to preview the special effect applet in your Web browser"));
        QCOMPARE(d.on("Preview", "Command11", "tooltip").toString(), QString("Preview your special effect applet"));
        expectDefaultLayout();
        QCOMPARE(list1(), QStringList());
        QVERIFY(visible("Command14"));
        QVERIFY(visible("Command15"));
    }
    void folderListsSetTheFileLists()
    {
        toStep3();
        put(inSite("b.gif"), "b");
        put(inSite("A.txt"), "a");
        QDir(site()).mkdir("sub");
        d.on("Preview", "Dir1", "set_path", {{"path", site()}});
        QCOMPARE(pathOf("File1"), site());
        QCOMPARE(items("File1"), (QStringList{"A.txt", "b.gif"}));
        QVERIFY(items("Dir1").contains(site() + "/sub"));
        put(inWork("pic.gif"), "p");
        d.on("Preview", "Dir2", "set_path", {{"path", work()}});
        QCOMPARE(pathOf("File2"), work());
        QCOMPARE(items("File2"), QStringList{"pic.gif"});
        // The target list did not follow the other folder list.
        QCOMPARE(pathOf("File1"), site());
    }
    void driveChangesSetTheFolderLists()
    {
        toStep3();
        put(inWork("w.gif"), "w");
        put(inOther("o.gif"), "o");
        fresh();
        d.on("Preview", "Drive1", "set_drive", {{"drive", work()}});
        QCOMPARE(d.text("Preview", "Drive1"), work());
        QCOMPARE(pathOf("Dir1"), work());
        QCOMPARE(items("File1"), QStringList{"w.gif"});
        d.on("Preview", "Drive2", "set_drive", {{"drive", other()}});
        QCOMPARE(d.text("Preview", "Drive2"), other());
        QCOMPARE(pathOf("Dir2"), other());
        QCOMPARE(items("File2"), QStringList{"o.gif"});
        QCOMPARE(pathOf("Dir1"), work());
        QCOMPARE(beeps(), 0);
        QCOMPARE(fresh(), Boxes());
    }
    void refusedTargetDrive()
    {
        toStep3();
        refusedDrives("Preview", "Drive1", "Dir1");
        QCOMPARE(pathOf("File1"), site());
    }
    void refusedSearchDrive()
    {
        toStep3();
        d.on("Preview", "Dir2", "set_path", {{"path", work()}});
        refusedDrives("Preview", "Drive2", "Dir2");
        QCOMPARE(pathOf("File2"), work());
    }
    void joinedPathsHaveOneSeparator()
    {
        QCOMPARE(joinPath("/data/site", "pic.gif"), QString("/data/site/pic.gif"));
        QCOMPARE(joinPath("/data/site/", "pic.gif"), QString("/data/site/pic.gif"));
        QCOMPARE(joinPath("/", "pic.gif"), QString("/pic.gif"));
    }

    // ---- Step 1: the copy for the preview

    void previewCopiesMediaIntoTheProgramFolder()
    {
        openPreview();
        put(inWork("pic.gif"), "GIF89a picture");
        put(inWork("Tune-original.mid"), "MThd tune");
        media(0, "pic.gif", inWork("pic.gif"));
        media(5, "tune.mid", inWork("Tune-original.mid"));
        d.click("Preview", "Command11");
        QCOMPARE(pathOf("Dir1"), prog());
        QCOMPARE(bytesOf(inProg("pic.gif")), QByteArray("GIF89a picture"));
        QCOMPARE(bytesOf(inProg("tune.mid")), QByteArray("MThd tune"));
        // The class files are not looked at: none lies in the program folder
        // and the preview opens all the same.
        QVERIFY(!fileThere(inProg("ColorSwirl.class")));
        QCOMPARE(fresh(), Boxes());
        QCOMPARE(list1(), QStringList());
        QCOMPARE(opened(), QStringList{inProg("ql-prvw.htm")});
        QVERIFY(bytesOf(inProg("ql-prvw.htm")).contains(d.text("Preview", "Text1").toUtf8()));
        QVERIFY(onTop(0));
        QVERIFY(!d.ok({{"op", "busy"}}).toBool());
    }
    void previewLeavesAFileInPlaceAlone()
    {
        openPreview();
        put(inProg("pic.gif"), "in place");
        put(inProg("Logo.gif"), "logo in place");
        media(0, "pic.gif", inProg("pic.gif"));
        // The paths are compared lower-cased.
        media(1, "Logo.gif", inProg("LOGO.GIF"));
        d.click("Preview", "Command11");
        QCOMPARE(fresh(), Boxes());
        QCOMPARE(list1(), QStringList());
        QCOMPARE(bytesOf(inProg("pic.gif")), QByteArray("in place"));
        QCOMPARE(bytesOf(inProg("Logo.gif")), QByteArray("logo in place"));
        QCOMPARE(opened(), QStringList{inProg("ql-prvw.htm")});
    }
    void previewReplacesAFileOfTheSameNameFromElsewhere()
    {
        openPreview();
        put(inProg("pic.gif"), "old");
        put(inWork("pic.gif"), "new");
        media(0, "pic.gif", inWork("pic.gif"));
        d.click("Preview", "Command11");
        QCOMPARE(fresh(), Boxes());
        QCOMPARE(bytesOf(inProg("pic.gif")), QByteArray("new"));
        QCOMPARE(opened(), QStringList{inProg("ql-prvw.htm")});
    }
    void previewMatchesNamesCaseSensitively()
    {
        openPreview();
        put(inProg("Pic.gif"), "capital");
        // "pic.gif" is not the listed "Pic.gif", so the copy is tried from a
        // file that does not exist.
        media(0, "pic.gif", inProg("pic.gif"));
        d.click("Preview", "Command11");
        QCOMPARE(list1(), QStringList{"pic.gif"});
        QCOMPARE(fresh(), (Boxes{{Step1Failed, 48}}));
        QCOMPARE(opened(), QStringList());
    }
    void previewSlotWithoutPathFails()
    {
        openPreview();
        // Even a file that lies in the program folder fails without a path.
        put(inProg("pic.gif"), "in place");
        media(0, "pic.gif", QString());
        media(2, "snd.au", QString());
        d.click("Preview", "Command11");
        QCOMPARE(fresh(), (Boxes{{Step1Failed, 48}}));
        QCOMPARE(list1(), (QStringList{"pic.gif", "snd.au"}));
        QCOMPARE(opened(), QStringList());
        QVERIFY(!fileThere(inProg("ql-prvw.htm")));
        QCOMPARE(bytesOf(inProg("pic.gif")), QByteArray("in place"));
        QVERIFY(onTop(2));
        QCOMPARE(d.text("Preview", "Label14"), QString("Copy necessary files to preview applet"));
        expectStep1FailedLayout();
        QCOMPARE(pathOf("Dir1"), prog());
        QCOMPARE(stepIndex(), 1);
    }
    void previewSlotWithoutPathInAnEmptyProgramFolderIsListedOnce()
    {
        openPreview();
        for (const QString& name : QDir(prog()).entryList(QDir::Files))
            QVERIFY(QFile::remove(inProg(name)));
        media(0, "pic.gif", QString());
        d.click("Preview", "Command11");
        QCOMPARE(list1(), QStringList{"pic.gif"});
        QCOMPARE(fresh(), (Boxes{{Step1Failed, 48}}));
        QCOMPARE(opened(), QStringList());
    }
    void previewRecordsNotFoundAndPermissionDenied()
    {
        openPreview();
        put(inWork("locked.gif"), "locked");
        put(inWork("blocked.gif"), "blocked");
        put(inWork("good.gif"), "good");
        files().injectFault(inWork("locked.gif"), FileError::PermissionDenied, ScriptedFileSystem::Read);
        files().injectFault(inProg("blocked.gif"), FileError::PermissionDenied, ScriptedFileSystem::Write);
        media(0, "missing.gif", inWork("missing.gif"));
        media(1, "locked.gif", inWork("locked.gif"));
        media(2, "good.gif", inWork("good.gif"));
        media(3, "blocked.gif", inWork("blocked.gif"));
        d.click("Preview", "Command11");
        QCOMPARE(list1(), (QStringList{"missing.gif", "locked.gif", "blocked.gif"}));
        QCOMPARE(fresh(), (Boxes{{Step1Failed, 48}}));
        // The loop went on after the failures.
        QCOMPARE(bytesOf(inProg("good.gif")), QByteArray("good"));
        QVERIFY(!fileThere(inProg("locked.gif")));
        QVERIFY(!fileThere(inProg("blocked.gif")));
        QCOMPARE(opened(), QStringList());
    }
    void previewPassesOverOtherErrors()
    {
        openPreview();
        put(inWork("odd.gif"), "odd");
        files().injectFault(inWork("odd.gif"), FileError::PathFileAccess, ScriptedFileSystem::Read);
        media(0, "odd.gif", inWork("odd.gif"));
        media(1, "far.gif", work() + "/nowhere/far.gif");
        d.click("Preview", "Command11");
        QCOMPARE(list1(), QStringList());
        QCOMPARE(fresh(), Boxes());
        QVERIFY(!fileThere(inProg("odd.gif")));
        QVERIFY(!fileThere(inProg("far.gif")));
        QCOMPARE(opened(), QStringList{inProg("ql-prvw.htm")});
    }
    void previewSkipsSlotsWithoutAName()
    {
        openPreview();
        put(inWork("stray.gif"), "stray");
        session().RequiredPaths.set(4, inWork("stray.gif"));
        d.click("Preview", "Command11");
        QVERIFY(!fileThere(inProg("stray.gif")));
        QCOMPARE(fresh(), Boxes());
        QCOMPARE(opened(), QStringList{inProg("ql-prvw.htm")});
    }
    void manualCopyForThePreview()
    {
        openPreview();
        media(0, "snd.au", QString());
        media(1, "pic.gif", QString());
        d.click("Preview", "Command11");
        fresh();
        put(inWork("pic.gif"), "picture bytes");
        put(inWork("snd.au"), "sound bytes");
        put(inWork("zz.txt"), "not wanted");
        d.on("Preview", "Dir2", "set_path", {{"path", work()}});
        QCOMPARE(items("File2"), (QStringList{"pic.gif", "snd.au", "zz.txt"}));
        d.on("Preview", "File2", "select", {{"indexes", QJsonArray{1, 0}}});
        d.click("Preview", "Command9");
        QCOMPARE(fresh(), (Boxes{{copiedMessage("pic.gif, snd.au, "), 0}}));
        QCOMPARE(bytesOf(inProg("pic.gif")), QByteArray("picture bytes"));
        QCOMPARE(bytesOf(inProg("snd.au")), QByteArray("sound bytes"));
        QVERIFY(!fileThere(inProg("zz.txt")));
        QVERIFY(!visible("Command6"));
        QVERIFY(visible("Command10"));
        QVERIFY(visible("Command9"));
        QCOMPARE(list1(), (QStringList{"snd.au", "pic.gif"}));
        QVERIFY(!d.ok({{"op", "busy"}}).toBool());
        QCOMPARE(opened(), QStringList());
    }
    void manualCopyForThePreviewWithoutSelection()
    {
        openPreview();
        media(0, "pic.gif", QString());
        d.click("Preview", "Command11");
        fresh();
        put(inWork("pic.gif"), "picture");
        d.on("Preview", "Dir2", "set_path", {{"path", work()}});
        const QMap<QString, bool> before = layoutFlags();
        d.click("Preview", "Command9");
        QCOMPARE(fresh(), (Boxes{{SelectFile, 0}}));
        QCOMPARE(layoutFlags(), before);
        QVERIFY(!fileThere(inProg("pic.gif")));
        QCOMPARE(list1(), QStringList{"pic.gif"});
    }
    void clickToPreviewEndsTheManualCopy()
    {
        openPreview();
        media(0, "pic.gif", QString());
        d.click("Preview", "Command11");
        put(inWork("pic.gif"), "picture");
        d.on("Preview", "Dir2", "set_path", {{"path", work()}});
        d.on("Preview", "File2", "select", {{"indexes", QJsonArray{0}}});
        d.click("Preview", "Command9");
        fresh();
        d.click("Preview", "Command10");
        QVERIFY(onTop(0));
        expectVisible(Steps, true);
        expectVisible({"Command14", "Command15"}, true);
        expectDefaultLayout();
        QCOMPARE(list1(), QStringList());
        QCOMPARE(opened(), QStringList{inProg("ql-prvw.htm")});
        QVERIFY(fileThere(inProg("ql-prvw.htm")));
        QCOMPARE(fresh(), Boxes());
    }

    // ---- Step 3: the copy to the folder of the page

    void copyFilesWritesBackupMediaAndClasses()
    {
        toStep3();
        putClass();
        put(inWork("pic.gif"), "GIF89a picture");
        put(inWork("Logo-big.gif"), "GIF89a logo");
        media(0, "pic.gif", inWork("pic.gif"));
        media(7, "logo.gif", inWork("Logo-big.gif"));
        const QString code = d.text("Preview", "Text1");
        QVERIFY(code.startsWith("<APPLET CODE=\"ColorSwirl.class\""));
        copyFiles();
        QCOMPARE(bytesOf(inSite("qltemp.html")), ("<HTML> <BODY> \r\n" + code + "\r\n</BODY></HTML>\r\n").toUtf8());
        QCOMPARE(bytesOf(inSite("pic.gif")), QByteArray("GIF89a picture"));
        QCOMPARE(bytesOf(inSite("logo.gif")), QByteArray("GIF89a logo"));
        QCOMPARE(bytesOf(inSite("ColorSwirl.class")), ClassBytes);
        QCOMPARE(fresh(), (Boxes{{allCopied(site()), 0}}));
        QCOMPARE(list1(), QStringList());
        expectDefaultLayout();
        QVERIFY(visible("Command14"));
        QVERIFY(visible("Command15"));
        QCOMPARE(items("File1"), (QStringList{"ColorSwirl.class", "logo.gif", "pic.gif", "qltemp.html"}));
        QVERIFY(!d.ok({{"op", "busy"}}).toBool());
        QCOMPARE(stepIndex(), 3);
    }
    void backupTakesTheEditedCode()
    {
        toStep3();
        putClass();
        d.setText("Preview", "Text1", "<B>edited</B>\r\nsecond line");
        copyFiles();
        QCOMPARE(bytesOf(inSite("qltemp.html")),
                 QByteArray("<HTML> <BODY> \r\n<B>edited</B>\r\nsecond line\r\n</BODY></HTML>\r\n"));
    }
    void backupOfTheEffectThatBringsItsOwnBody()
    {
        toStep3();
        putClass();
        session().EffectId = 21;
        d.setText("Preview", "Text1", "<BODY onLoad=\"x()\">\r\ncode");
        copyFiles();
        QCOMPARE(bytesOf(inSite("qltemp.html")), QByteArray("<HTML>\r\n<BODY onLoad=\"x()\">\r\ncode\r\n</BODY></HTML>\r\n"));
    }
    void existingBackupOverwrittenOnYes()
    {
        toStep3();
        putClass();
        put(inSite("qltemp.html"), "old backup");
        d.setText("Preview", "Text1", "new code");
        answer({"Yes"});
        copyFiles();
        QCOMPARE(fresh(), (Boxes{{BackupQuestion, 4}, {allCopied(site()), 0}}));
        QCOMPARE(bytesOf(inSite("qltemp.html")), QByteArray("<HTML> <BODY> \r\nnew code\r\n</BODY></HTML>\r\n"));
    }
    void existingBackupKeptOnNo()
    {
        toStep3();
        putClass();
        put(inSite("qltemp.html"), "old backup");
        put(inWork("pic.gif"), "picture");
        media(0, "pic.gif", inWork("pic.gif"));
        answer({"No"});
        copyFiles();
        QCOMPARE(fresh(), (Boxes{{BackupQuestion, 4}, {allCopied(site()), 0}}));
        QCOMPARE(bytesOf(inSite("qltemp.html")), QByteArray("old backup"));
        QCOMPARE(bytesOf(inSite("pic.gif")), QByteArray("picture"));
        QCOMPARE(bytesOf(inSite("ColorSwirl.class")), ClassBytes);
    }
    void backupWriteErrorIsPassedOver()
    {
        toStep3();
        putClass();
        put(inWork("pic.gif"), "picture");
        media(0, "pic.gif", inWork("pic.gif"));
        files().injectFault(inSite("qltemp.html"), FileError::PermissionDenied, ScriptedFileSystem::Write);
        copyFiles();
        QVERIFY(!fileThere(inSite("qltemp.html")));
        QCOMPARE(bytesOf(inSite("pic.gif")), QByteArray("picture"));
        QCOMPARE(bytesOf(inSite("ColorSwirl.class")), ClassBytes);
        QCOMPARE(fresh(), (Boxes{{allCopied(site()), 0}}));
        QCOMPARE(list1(), QStringList());
    }
    void existingMediaFilesAskBeforeOverwriting()
    {
        toStep3();
        putClass();
        put(inSite("pic.gif"), "old picture");
        put(inSite("snd.au"), "old sound");
        put(inWork("pic.gif"), "new picture");
        put(inWork("snd.au"), "new sound");
        put(inWork("fresh.gif"), "fresh");
        media(0, "pic.gif", inWork("pic.gif"));
        media(1, "fresh.gif", inWork("fresh.gif"));
        media(2, "snd.au", inWork("snd.au"));
        answer({"Yes", "No"});
        copyFiles();
        // A refused overwrite counts as done: the run still ends in success.
        QCOMPARE(fresh(), (Boxes{{overwriteQuestion("pic.gif"), 4},
                                 {overwriteQuestion("snd.au"), 4},
                                 {allCopied(site()), 0}}));
        QCOMPARE(bytesOf(inSite("pic.gif")), QByteArray("new picture"));
        QCOMPARE(bytesOf(inSite("fresh.gif")), QByteArray("fresh"));
        QCOMPARE(bytesOf(inSite("snd.au")), QByteArray("old sound"));
        QCOMPARE(list1(), QStringList());
        expectDefaultLayout();
    }
    void fileAlreadyInTheTargetIsNeitherAskedNorCopied()
    {
        toStep3();
        putClass();
        put(inSite("pic.gif"), "picture");
        put(inSite("snd.au"), "sound");
        media(0, "pic.gif", inSite("pic.gif"));
        // Compared lower-cased: the same file.
        media(1, "snd.au", inSite("SND.AU"));
        copyFiles();
        QCOMPARE(fresh(), (Boxes{{allCopied(site()), 0}}));
        QCOMPARE(list1(), QStringList());
        QCOMPARE(bytesOf(inSite("pic.gif")), QByteArray("picture"));
        QCOMPARE(bytesOf(inSite("snd.au")), QByteArray("sound"));
    }
    void classFilesAreOverwrittenWithoutAQuestion()
    {
        toStep3();
        putClass();
        put(inSite("ColorSwirl.class"), "an older class");
        copyFiles();
        QCOMPARE(fresh(), (Boxes{{allCopied(site()), 0}}));
        QCOMPARE(bytesOf(inSite("ColorSwirl.class")), ClassBytes);
    }
    void emptyClassSlotsDoNotFail()
    {
        // Swirly Text names one class file: two slots are empty.
        toStep3();
        putClass();
        QCOMPARE(session().RequiredClasses.toList(), (QStringList{"ColorSwirl.class", "", ""}));
        copyFiles();
        QCOMPARE(fresh(), (Boxes{{allCopied(site()), 0}}));
        QCOMPARE(list1(), QStringList());
        QCOMPARE(items("File1"), (QStringList{"ColorSwirl.class", "qltemp.html"}));
    }
    void effectWithoutClassFilesCopiesItsMedia()
    {
        toStep3();
        session().RequiredClasses.set(0, QString());
        put(inWork("pic.gif"), "picture");
        media(0, "pic.gif", inWork("pic.gif"));
        copyFiles();
        QCOMPARE(fresh(), (Boxes{{allCopied(site()), 0}}));
        QCOMPARE(list1(), QStringList());
        QCOMPARE(items("File1"), (QStringList{"pic.gif", "qltemp.html"}));
    }
    void missingClassFileIsListed()
    {
        toStep3();
        copyFiles();
        QCOMPARE(fresh(), (Boxes{{Step3Failed, 48}}));
        QCOMPARE(list1(), QStringList{"ColorSwirl.class"});
        expectStep3FailedLayout();
        QVERIFY(fileThere(inSite("qltemp.html")));
        QVERIFY(!fileThere(inSite("ColorSwirl.class")));
    }
    void filesNamedWithoutPathsFailAtOnce()
    {
        // As code re-edited in a form that names its files at Done leaves it.
        toStep3();
        putClass();
        put(inSite("b.gif"), "already there");
        media(0, "a.gif", QString());
        media(3, "b.gif", QString());
        copyFiles();
        QCOMPARE(fresh(), (Boxes{{Step3Failed, 48}}));
        QCOMPARE(list1(), (QStringList{"a.gif", "b.gif"}));
        expectStep3FailedLayout();
        QVERIFY(onTop(2));
        QCOMPARE(bytesOf(inSite("ColorSwirl.class")), ClassBytes);
        QCOMPARE(bytesOf(inSite("b.gif")), QByteArray("already there"));
    }
    void copyErrorsThatAreRecorded()
    {
        toStep3();
        put(inWork("locked.gif"), "locked");
        put(inWork("odd.gif"), "odd");
        put(inWork("good.gif"), "good");
        files().injectFault(inWork("locked.gif"), FileError::PermissionDenied, ScriptedFileSystem::Read);
        files().injectFault(inWork("odd.gif"), FileError::PathFileAccess, ScriptedFileSystem::Read);
        media(0, "missing.gif", inWork("missing.gif"));
        media(1, "locked.gif", inWork("locked.gif"));
        media(2, "good.gif", inWork("good.gif"));
        media(50, "odd.gif", inWork("odd.gif"));
        copyFiles();
        QCOMPARE(list1(), (QStringList{"missing.gif", "locked.gif", "odd.gif", "ColorSwirl.class"}));
        QCOMPARE(fresh(), (Boxes{{Step3Failed, 48}}));
        QCOMPARE(bytesOf(inSite("good.gif")), QByteArray("good"));
        expectStep3FailedLayout();
    }
    void copyErrorsThatPassSilently()
    {
        toStep3();
        putClass();
        put(inWork("full.gif"), "full");
        files().injectFault(inSite("full.gif"), FileError::DiskFull, ScriptedFileSystem::Copy);
        media(0, "full.gif", inWork("full.gif"));
        media(1, "far.gif", work() + "/nowhere/far.gif");
        copyFiles();
        QCOMPARE(list1(), QStringList());
        QCOMPARE(fresh(), (Boxes{{allCopied(site()), 0}}));
        QVERIFY(!fileThere(inSite("full.gif")));
        QVERIFY(!fileThere(inSite("far.gif")));
    }
    void readOnlyTarget()
    {
        toStep3();
        putClass();
        put(inWork("pic.gif"), "picture");
        media(0, "pic.gif", inWork("pic.gif"));
        files().injectFault(site(), FileError::PermissionDenied, ScriptedFileSystem::Write | ScriptedFileSystem::Copy);
        copyFiles();
        QCOMPARE(fresh(), (Boxes{{Step3Failed, 48}}));
        QCOMPARE(list1(), (QStringList{"pic.gif", "ColorSwirl.class"}));
        QCOMPARE(QDir(site()).entryList(QDir::Files), QStringList());
        expectStep3FailedLayout();
    }
    void publishingIntoTheProgramFolderItself()
    {
        toStep3();
        putClass();
        put(inProg("pic.gif"), "picture");
        media(0, "pic.gif", inProg("pic.gif"));
        d.on("Preview", "Dir1", "set_path", {{"path", prog()}});
        copyFiles();
        // The media file is found as the same file; the class file copied
        // onto itself fails and is recorded.
        QCOMPARE(fresh(), (Boxes{{Step3Failed, 48}}));
        QCOMPARE(list1(), QStringList{"ColorSwirl.class"});
        QCOMPARE(bytesOf(inProg("pic.gif")), QByteArray("picture"));
        QCOMPARE(bytesOf(inProg("ColorSwirl.class")), ClassBytes);
        QVERIFY(fileThere(inProg("qltemp.html")));
    }
    void copySkipsSlotsWithoutAName()
    {
        toStep3();
        putClass();
        put(inWork("stray.gif"), "stray");
        session().RequiredPaths.set(9, inWork("stray.gif"));
        copyFiles();
        QVERIFY(!fileThere(inSite("stray.gif")));
        QCOMPARE(fresh(), (Boxes{{allCopied(site()), 0}}));
    }

    // ---- Step 3: the manual copy

    void manualCopyFindsTheMissingFiles()
    {
        toStep3();
        putClass();
        media(0, "pic.gif", QString());
        media(1, "snd.au", QString());
        media(2, "pic.gif", QString());
        copyFiles();
        QCOMPARE(list1(), (QStringList{"pic.gif", "snd.au", "pic.gif"}));
        fresh();
        put(inWork("pic.gif"), "picture");
        put(inWork("snd.au"), "sound");
        put(inWork("zz.txt"), "not wanted");
        d.on("Preview", "Dir2", "set_path", {{"path", work()}});
        d.on("Preview", "File2", "select", {{"indexes", QJsonArray{0}}});
        d.click("Preview", "Command7");
        QCOMPARE(fresh(), (Boxes{{copiedMessage("pic.gif, "), 0}}));
        QCOMPARE(bytesOf(inSite("pic.gif")), QByteArray("picture"));
        // Every entry of that name leaves the list.
        QCOMPARE(list1(), QStringList{"snd.au"});
        QVERIFY(items("File1").contains("pic.gif"));
        QVERIFY(!visible("Command6"));
        QVERIFY(visible("Command8"));
        QVERIFY(visible("Command7"));
        QVERIFY(!d.ok({{"op", "busy"}}).toBool());
    }
    void manualCopyInListOrderAskingForFilesThatExist()
    {
        toStep3();
        putClass();
        media(0, "snd.au", QString());
        media(1, "pic.gif", QString());
        media(2, "anim.gif", QString());
        copyFiles();
        fresh();
        put(inWork("anim.gif"), "new anim");
        put(inWork("pic.gif"), "new picture");
        put(inWork("snd.au"), "new sound");
        // Put into the target after the failed run: File1 is refreshed first.
        put(inSite("snd.au"), "old sound");
        put(inSite("anim.gif"), "old anim");
        d.on("Preview", "Dir2", "set_path", {{"path", work()}});
        QCOMPARE(items("File2"), (QStringList{"anim.gif", "pic.gif", "snd.au"}));
        d.on("Preview", "File2", "select", {{"indexes", QJsonArray{2, 1, 0}}});
        answer({"Yes", "No"});
        d.click("Preview", "Command7");
        QCOMPARE(fresh(), (Boxes{{overwriteQuestion("anim.gif"), 4},
                                 {overwriteQuestion("snd.au"), 4},
                                 {copiedMessage("anim.gif, pic.gif, "), 0}}));
        QCOMPARE(bytesOf(inSite("anim.gif")), QByteArray("new anim"));
        QCOMPARE(bytesOf(inSite("pic.gif")), QByteArray("new picture"));
        QCOMPARE(bytesOf(inSite("snd.au")), QByteArray("old sound"));
        QCOMPARE(list1(), QStringList{"snd.au"});
    }
    void manualCopyAllRefusedShowsNoResult()
    {
        toStep3();
        putClass();
        media(0, "snd.au", QString());
        copyFiles();
        fresh();
        put(inWork("snd.au"), "new sound");
        put(inSite("snd.au"), "old sound");
        d.on("Preview", "Dir2", "set_path", {{"path", work()}});
        d.on("Preview", "File2", "select", {{"indexes", QJsonArray{0}}});
        answer({"No"});
        d.click("Preview", "Command7");
        QCOMPARE(fresh(), (Boxes{{overwriteQuestion("snd.au"), 4}}));
        QCOMPARE(bytesOf(inSite("snd.au")), QByteArray("old sound"));
        QCOMPARE(list1(), QStringList{"snd.au"});
    }
    void manualCopyComparesNamesCaseSensitively()
    {
        toStep3();
        putClass();
        media(0, "pic.gif", QString());
        copyFiles();
        fresh();
        put(inSite("PIC.GIF"), "capital");
        put(inWork("pic.gif"), "picture");
        d.on("Preview", "Dir2", "set_path", {{"path", work()}});
        d.on("Preview", "File2", "select", {{"indexes", QJsonArray{0}}});
        d.click("Preview", "Command7");
        QCOMPARE(fresh(), (Boxes{{copiedMessage("pic.gif, "), 0}}));
        QCOMPARE(bytesOf(inSite("pic.gif")), QByteArray("picture"));
        QCOMPARE(bytesOf(inSite("PIC.GIF")), QByteArray("capital"));
    }
    void manualCopyWithoutSelection()
    {
        toStep3();
        media(0, "pic.gif", QString());
        copyFiles();
        fresh();
        put(inWork("pic.gif"), "picture");
        d.on("Preview", "Dir2", "set_path", {{"path", work()}});
        const QMap<QString, bool> before = layoutFlags();
        d.click("Preview", "Command7");
        QCOMPARE(fresh(), (Boxes{{SelectFile, 0}}));
        QCOMPARE(layoutFlags(), before);
        QVERIFY(visible("Command7"));
        QCOMPARE(list1(), (QStringList{"pic.gif", "ColorSwirl.class"}));
        QVERIFY(!fileThere(inSite("pic.gif")));
    }
    void doneLeavesForTheFinishPage()
    {
        toStep3();
        media(0, "pic.gif", QString());
        copyFiles();
        fresh();
        QCOMPARE(stepIndex(), 3);
        // The names still missing do not hold the user back.
        d.click("Preview", "Command8");
        QCOMPARE(fresh(), Boxes());
        QVERIFY(onTop(4));
        QCOMPARE(stepIndex(), 4);
        QVERIFY(!enabled("Command15"));
        expectVisible({"Command14", "Command15"}, true);
        expectVisible(Steps, true);
        expectVisible({"List1", "Drive2", "Dir2", "File2", "Command7", "Command8", "Label7", "Line1", "Line2"}, false);
        // Back to Step 3: its default layout with an empty list.
        previous();
        QVERIFY(onTop(2));
        QCOMPARE(stepIndex(), 3);
        expectDefaultLayout();
        QCOMPARE(list1(), QStringList());
        QCOMPARE(d.text("Preview", "Label14"), Step3Title);
    }
    void stepsMenuRestoresTheDefaultLayout()
    {
        toStep3();
        media(0, "pic.gif", QString());
        copyFiles();
        QCOMPARE(list1().size(), 2);
        d.click("Preview", "mnuAutocopy");
        QVERIFY(onTop(2));
        expectDefaultLayout();
        QCOMPARE(list1(), QStringList());
        expectVisible({"Command14", "Command15"}, true);
    }
    void nextRestoresTheDefaultLayout()
    {
        openPreview();
        media(0, "pic.gif", QString());
        d.click("Preview", "Command11");
        QCOMPARE(d.text("Preview", "Label14"), QString("Copy necessary files to preview applet"));
        d.click("Preview", "mnuManualCopy");
        QVERIFY(onTop(1));
        next();
        QVERIFY(onTop(2));
        QCOMPARE(d.text("Preview", "Label14"), Step3Title);
        expectDefaultLayout();
        QCOMPARE(list1(), QStringList());
    }

    // ---- The new folder

    void newFolderDialogOpensOnTheTarget()
    {
        toStep3();
        d.click("Preview", "Command1");
        QVERIFY(d.shown("MakeDir"));
        QVERIFY(d.modal("MakeDir"));
        QCOMPARE(pathOf("Dir1", "MakeDir"), site());
        QCOMPARE(d.text("MakeDir", "Drive1"), d.text("Preview", "Drive1"));
        QCOMPARE(d.text("MakeDir", "Text1"), QString());
    }
    void newFolderDialogTakesThePreviewDriveAsItStands()
    {
        toStep3();
        // The drive list keeps its drive while the folder list moves on.
        d.on("Preview", "Drive1", "set_drive", {{"drive", work()}});
        d.on("Preview", "Dir1", "set_path", {{"path", site()}});
        QCOMPARE(d.text("Preview", "Drive1"), work());
        d.click("Preview", "Command1");
        QCOMPARE(d.text("MakeDir", "Drive1"), work());
        QCOMPARE(pathOf("Dir1", "MakeDir"), site());
        QCOMPARE(beeps(), 0);
    }
    void newFolderNeedsAName()
    {
        toStep3();
        d.click("Preview", "Command1");
        fresh();
        d.click("MakeDir", "Command1");
        QCOMPARE(fresh(), (Boxes{{EnterFolderName, 0}}));
        QVERIFY(d.shown("MakeDir"));
        d.on("MakeDir", "Text1", "key", {{"key", "Enter"}});
        QCOMPARE(fresh(), (Boxes{{EnterFolderName, 0}}));
        QVERIFY(d.shown("MakeDir"));
        QCOMPARE(QDir(site()).entryList(QDir::Dirs | QDir::NoDotAndDotDot), QStringList());
        QCOMPARE(pathOf("Dir1"), site());
    }
    void newFolderByTheButton()
    {
        toStep3();
        d.click("Preview", "Command1");
        d.setText("MakeDir", "Text1", "  New Pages  ");
        d.click("MakeDir", "Command1");
        QVERIFY(QFileInfo(site() + "/New Pages").isDir());
        QCOMPARE(QDir(site()).entryList(QDir::Dirs | QDir::NoDotAndDotDot), QStringList{"New Pages"});
        QVERIFY(!d.loaded("MakeDir"));
        QCOMPARE(pathOf("Dir1"), site() + "/New Pages");
        QCOMPARE(pathOf("File1"), site() + "/New Pages");
        QCOMPARE(fresh(), Boxes());
        QVERIFY(d.shown("Preview"));
    }
    void newFolderByTheEnterKey()
    {
        toStep3();
        d.click("Preview", "Command1");
        d.setText("MakeDir", "Text1", "fresh");
        d.on("MakeDir", "Text1", "key", {{"key", "Enter"}});
        QVERIFY(QFileInfo(site() + "/fresh").isDir());
        QVERIFY(!d.loaded("MakeDir"));
        QCOMPARE(pathOf("Dir1"), site() + "/fresh");
        QCOMPARE(fresh(), Boxes());
    }
    void newFolderInAFolderPickedInTheDialog()
    {
        toStep3();
        d.click("Preview", "Command1");
        d.on("MakeDir", "Dir1", "set_path", {{"path", other()}});
        d.setText("MakeDir", "Text1", "deeper");
        d.click("MakeDir", "Command1");
        QVERIFY(QFileInfo(other() + "/deeper").isDir());
        QCOMPARE(QDir(site()).entryList(QDir::Dirs | QDir::NoDotAndDotDot), QStringList());
        QCOMPARE(pathOf("Dir1"), other() + "/deeper");
    }
    void newFolderThatExistsIsOpened()
    {
        toStep3();
        QVERIFY(QDir(site()).mkdir("there"));
        put(site() + "/there/page.html", "page");
        d.click("Preview", "Command1");
        d.setText("MakeDir", "Text1", "there");
        d.click("MakeDir", "Command1");
        QCOMPARE(fresh(), Boxes());
        QVERIFY(!d.loaded("MakeDir"));
        QCOMPARE(pathOf("Dir1"), site() + "/there");
        QCOMPARE(items("File1"), QStringList{"page.html"});
    }
    void newFolderCancelled()
    {
        toStep3();
        d.click("Preview", "Command1");
        d.setText("MakeDir", "Text1", "never");
        d.click("MakeDir", "Command2");
        QVERIFY(!d.loaded("MakeDir"));
        QVERIFY(!QFileInfo(site() + "/never").exists());
        QCOMPARE(pathOf("Dir1"), site());
    }
    void newFolderDialogDriveChange()
    {
        toStep3();
        d.click("Preview", "Command1");
        d.on("MakeDir", "Drive1", "set_drive", {{"drive", other()}});
        QCOMPARE(pathOf("Dir1", "MakeDir"), other());
        QCOMPARE(beeps(), 0);
        refusedDrives("MakeDir", "Drive1", "Dir1");
        QVERIFY(d.shown("MakeDir"));
        // The wizard's lists are not touched.
        QCOMPARE(pathOf("Dir1"), site());
    }
};

QL_TEST_MAIN(PublishTest)
#include "test_publish.moc"
