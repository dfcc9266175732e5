#include "TestSupport.h"
#include "core/ProgramFolder.h"
#include "platform/LocalFileSystem.h"
#include "platform/QtPlatform.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace ql;

namespace {

void writeFile(const QString& path, const QByteArray& bytes)
{
    QFile f(path);
    QVERIFY(f.open(QIODevice::WriteOnly));
    f.write(bytes);
}

QByteArray readFile(const QString& path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

}  // namespace

class PlatformTest : public QObject {
    Q_OBJECT
private slots:
    void copyReportsErrorNumbers()
    {
        QTemporaryDir dir;
        LocalFileSystem fs;
        writeFile(dir.filePath("a.gif"), "GIF");
        QCOMPARE(fs.copyFile(dir.filePath("a.gif"), dir.filePath("b.gif")), 0);
        QCOMPARE(readFile(dir.filePath("b.gif")), QByteArray("GIF"));
        QCOMPARE(fs.copyFile(dir.filePath("missing.gif"), dir.filePath("c.gif")), FileError::FileNotFound);
        QCOMPARE(fs.copyFile(dir.filePath("a.gif"), dir.filePath("nofolder/c.gif")), FileError::PathNotFound);
        QCOMPARE(fs.copyFile(dir.path(), dir.filePath("d.gif")), FileError::PathFileAccess);
        QCOMPARE(fs.copyFile(dir.filePath("a.gif"), dir.path()), FileError::PathFileAccess);
        QCOMPARE(fs.copyFile(QString(), dir.filePath("e.gif")), FileError::FileNotFound);
    }
    void writesAreWhole()
    {
        QTemporaryDir dir;
        LocalFileSystem fs;
        const QString path = dir.filePath("page.htm");
        QCOMPARE(fs.writeFile(path, "first version"), 0);
        QCOMPARE(fs.writeFile(path, "second"), 0);
        QCOMPARE(readFile(path), QByteArray("second"));
        QCOMPARE(fs.readFile(path).value(), QByteArray("second"));
        QVERIFY(!fs.readFile(dir.path()).has_value());
        QCOMPARE(fs.makeDir(dir.filePath("new")), 0);
        QVERIFY(fs.isDir(dir.filePath("new")));
        QCOMPARE(fs.makeDir(dir.filePath("new")), FileError::PathFileAccess);
        QVERIFY(fs.fileNames(dir.path()).contains("page.htm"));
        QVERIFY(fs.subfolderNames(dir.path()).contains("new"));
        QVERIFY(!fs.drives().isEmpty());
    }
    void injectedFaultsRefuse()
    {
        QTemporaryDir dir;
        ScriptedFileSystem fs;
        writeFile(dir.filePath("a.gif"), "GIF");
        fs.injectFault(dir.filePath("target"), FileError::PermissionDenied, ScriptedFileSystem::Write);
        QDir().mkdir(dir.filePath("target"));
        QCOMPARE(fs.copyFile(dir.filePath("a.gif"), dir.filePath("target/a.gif")), FileError::PermissionDenied);
        QVERIFY(!QFile::exists(dir.filePath("target/a.gif")));
        QCOMPARE(fs.writeFile(dir.filePath("target/qltemp.html"), "x"), FileError::PermissionDenied);
        QCOMPARE(fs.writeFile(dir.filePath("other.html"), "x"), 0);
        fs.injectFault(dir.filePath("a.gif"), FileError::PathFileAccess, ScriptedFileSystem::Read);
        QVERIFY(!fs.canOpenForReading(dir.filePath("a.gif")));
        QCOMPARE(fs.copyFile(dir.filePath("a.gif"), dir.filePath("b.gif")), FileError::PathFileAccess);
        fs.clearFaults();
        QVERIFY(fs.canOpenForReading(dir.filePath("a.gif")));
    }
    void scriptedQuestionsTakeQueuedWords()
    {
        ScriptedPlatform p;
        p.queueAnswers({"No", "yes", "Retry"});
        QCOMPARE(p.messageBox("q1", 4, ""), MsgAnswer::No);
        QCOMPARE(p.messageBox("q2", 3, ""), MsgAnswer::Yes);
        QCOMPARE(p.takeScriptFailures(), QStringList());
        // A word that is not a button of the box.
        QCOMPARE(p.messageBox("q3", 4, ""), MsgAnswer::No);
        QCOMPARE(p.takeScriptFailures().size(), 1);
        QCOMPARE(p.messageBox("plain", 0, ""), MsgAnswer::Ok);
        QCOMPARE(p.messageBox("q4", 36, "Title"), MsgAnswer::No);
        QCOMPARE(p.takeScriptFailures().size(), 1);
        QCOMPARE(p.messages().size(), 5);
        QCOMPARE(p.messages().last().title, QString("Title"));
    }
    void scriptedSettingsKeepTheirOrder()
    {
        ScriptedPlatform p;
        p.saveSetting("Apps", "Browser", "b");
        p.saveSetting("Apps", "HTMLEditor", "e");
        p.saveSetting("Apps", "Browser", "b2");
        QCOMPARE(p.settings().size(), 2);
        QCOMPARE(p.settings()[0].value, QString("b2"));
        QCOMPARE(p.setting("FTP", "Server1", ""), QString(""));
    }
    void filtersBecomeQtFilters()
    {
        QCOMPARE(QtPlatform::qtFilters("All Files (*.*)|*.*|GIF and JPG Files (*.gif, *.jpg, *.jpeg)|*.gif;*.jpg;*.jpeg"),
                 (QStringList{"All Files (*)", "GIF and JPG Files (*.gif *.jpg *.jpeg)"}));
        QCOMPARE(QtPlatform::qtFilters("All Files (*.*)|*.*|EXE Files (*.exe)|*.exe|BAT Files (*.bat)|*.bat"),
                 (QStringList{"All Files (*)", "EXE Files (*.exe)", "BAT Files (*.bat)"}));
    }
    void programFolderGetsTheShippedFilesOnce()
    {
        QTemporaryDir dir;
        const QString folder = dir.filePath("Quillet");
        prepareProgramFolder(folder);
        const QByteArray gif = readFile(folder + "/invisi.gif");
        QVERIFY(gif.startsWith("GIF89a"));
        QCOMPARE(gif.size(), 43);
        QVERIFY(readFile(folder + "/quillet.hlp").contains("name=\"Swirly\""));
        writeFile(folder + "/quillet.hlp", "mine");
        prepareProgramFolder(folder);
        QCOMPARE(readFile(folder + "/quillet.hlp"), QByteArray("mine"));
        QVERIFY(defaultProgramFolder().endsWith("/Quillet"));
    }
};

QL_TEST_MAIN(PlatformTest)
#include "test_platform.moc"
