// Writes of the real file layer are whole or nothing: whatever stops a write
// half way (a file size limit, a full disk, a folder that takes no new
// files, a failing flush or rename), the file it was to replace keeps its old
// bytes, no half-written file is left behind, and the answer is the error
// number of the cause.

#include "TestSupport.h"
#include "core/ProgramFolder.h"
#include "platform/LocalFileSystem.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <cerrno>
#include <csignal>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace ql;
using Step = LocalFileSystem::WriteStep;

namespace {

void put(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    QVERIFY2(file.open(QIODevice::WriteOnly), qPrintable(path));
    QCOMPARE(file.write(bytes), bytes.size());
}

QByteArray bytesOf(const QString& path)
{
    if (!QFileInfo(path).isFile())
        return QByteArrayLiteral("<no file>");
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArrayLiteral("<unreadable>");
}

// Everything in a folder, hidden files included.
QStringList listing(const QString& folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
}

// A text of `size` bytes that differs from one position to the next.
QByteArray pattern(qsizetype size, char seed)
{
    QByteArray out(size, Qt::Uninitialized);
    for (qsizetype i = 0; i < size; ++i)
        out[i] = char('a' + (i * 7 + seed) % 26);
    return out;
}

// Runs `work` in a child process whose files may grow to `limit` bytes at
// most, a write past the limit failing (EFBIG) instead of ending the
// process; answers what `work` answered.
int underFileSizeLimit(rlim_t limit, const std::function<int()>& work)
{
    const pid_t child = fork();
    if (child == 0) {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit cap{limit, limit};
        if (setrlimit(RLIMIT_FSIZE, &cap) != 0)
            _exit(200);
        _exit(work());
    }
    int status = 0;
    if (child < 0 || waitpid(child, &status, 0) != child || !WIFEXITED(status))
        return -1;
    return WEXITSTATUS(status);
}

// A hook that fails one step with a system error: at the first call of that
// step with at least `after` bytes written.
LocalFileSystem::DiskFaultHook failAt(Step failing, int error, qint64 after = 0)
{
    return [=](Step step, const QString&, qint64 written) { return step == failing && written >= after ? error : 0; };
}

}  // namespace

class WholeWritesTest : public QObject {
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> dir_;
    QString in(const QString& name) const { return dir_->filePath(name); }

private slots:
    void init() { dir_ = std::make_unique<QTemporaryDir>(); }

    // ---- the real disk, under a file size limit

    void limitReachedMidWriteKeepsTheOldFile()
    {
        const QByteArray old = pattern(5000, 1);
        put(in("qltemp.html"), old);
        const int answer = underFileSizeLimit(8192, [&] {
            LocalFileSystem disk;
            return disk.writeFile(in("qltemp.html"), pattern(100000, 2));
        });
        QCOMPARE(answer, FileError::DiskFull);
        QCOMPARE(bytesOf(in("qltemp.html")), old);
        QCOMPARE(listing(dir_->path()), QStringList{"qltemp.html"});
    }
    void limitReachedMidCopyKeepsTheOldFile()
    {
        QDir().mkdir(in("site"));
        const QByteArray old = pattern(5000, 3);
        put(in("site/ColorSwirl.class"), old);
        put(in("ColorSwirl.class"), pattern(100000, 4));
        const int answer = underFileSizeLimit(8192, [&] {
            LocalFileSystem disk;
            return disk.copyFile(in("ColorSwirl.class"), in("site/ColorSwirl.class"));
        });
        QCOMPARE(answer, FileError::DiskFull);
        QCOMPARE(bytesOf(in("site/ColorSwirl.class")), old);
        QCOMPARE(listing(in("site")), QStringList{"ColorSwirl.class"});
    }
    void limitReachedOnANewFileLeavesNoFile()
    {
        put(in("pic.gif"), pattern(30000, 5));
        const int answer = underFileSizeLimit(8192, [&] {
            LocalFileSystem disk;
            return disk.copyFile(in("pic.gif"), in("copy.gif"));
        });
        QCOMPARE(answer, FileError::DiskFull);
        QCOMPARE(listing(dir_->path()), QStringList{"pic.gif"});
    }
    void writesWithinTheLimitAreWhole()
    {
        put(in("ql-prvw.htm"), pattern(5000, 6));
        put(in("big.gif"), pattern(150000, 7));
        const int answer = underFileSizeLimit(200000, [&] {
            LocalFileSystem disk;
            if (const int e = disk.writeFile(in("ql-prvw.htm"), pattern(100000, 8)))
                return e;
            return disk.copyFile(in("big.gif"), in("copy.gif"));
        });
        QCOMPARE(answer, FileError::None);
        QCOMPARE(bytesOf(in("ql-prvw.htm")), pattern(100000, 8));
        QCOMPARE(bytesOf(in("copy.gif")), pattern(150000, 7));
        QCOMPARE(listing(dir_->path()), (QStringList{"big.gif", "copy.gif", "ql-prvw.htm"}));
    }
    void programFolderGetsWholeFilesOrNone()
    {
        const QString folder = in("Quillet");
        const int answer = underFileSizeLimit(20, [&] {
            prepareProgramFolder(folder);
            return 0;
        });
        QCOMPARE(answer, 0);
        // invisi.gif (43 bytes) and the help do not fit: neither is there,
        // not even in part.
        QCOMPARE(listing(folder), QStringList());
        prepareProgramFolder(folder);
        QCOMPARE(listing(folder), (QStringList{"invisi.gif", "quillet.hlp"}));
        QCOMPARE(bytesOf(folder + "/invisi.gif").size(), 43);
    }

    // ---- faults of the disk at each step of a write

    void faultsAtEveryStepKeepTheOldFile_data()
    {
        QTest::addColumn<int>("step");
        QTest::addColumn<int>("error");
        QTest::addColumn<qint64>("after");
        QTest::addColumn<int>("answer");
        // A folder where the file may be written but no file may be made:
        // the write must not fall back to writing the file in place.
        QTest::newRow("folder takes no new file") << int(Step::CreateFile) << EACCES << qint64(0)
                                                  << FileError::PermissionDenied;
        QTest::newRow("read-only disk") << int(Step::CreateFile) << EROFS << qint64(0) << FileError::PermissionDenied;
        QTest::newRow("disk full at the start") << int(Step::Write) << ENOSPC << qint64(0) << FileError::DiskFull;
        QTest::newRow("disk full half way") << int(Step::Write) << ENOSPC << LocalFileSystem::Piece
                                            << FileError::DiskFull;
        QTest::newRow("quota reached half way") << int(Step::Write) << EDQUOT << LocalFileSystem::Piece
                                                << FileError::DiskFull;
        QTest::newRow("device error half way") << int(Step::Write) << EIO << LocalFileSystem::Piece
                                               << FileError::DeviceIO;
        QTest::newRow("flush fails") << int(Step::Flush) << EIO << qint64(0) << FileError::DeviceIO;
        QTest::newRow("flush finds the disk full") << int(Step::Flush) << ENOSPC << qint64(0) << FileError::DiskFull;
        QTest::newRow("replace refused") << int(Step::Replace) << EACCES << qint64(0) << FileError::PermissionDenied;
        QTest::newRow("replace by a busy file") << int(Step::Replace) << EBUSY << qint64(0)
                                                << FileError::PathFileAccess;
    }
    void faultsAtEveryStepKeepTheOldFile()
    {
        QFETCH(int, step);
        QFETCH(int, error);
        QFETCH(qint64, after);
        QFETCH(int, answer);
        const QByteArray old = pattern(5000, 9);
        put(in("qltemp.html"), old);
        put(in("ColorSwirl.class"), old);
        put(in("source.class"), pattern(200000, 10));
        LocalFileSystem disk;
        disk.setDiskFaultHook(failAt(Step(step), error, after));
        QCOMPARE(disk.writeFile(in("qltemp.html"), pattern(200000, 11)), answer);
        QCOMPARE(disk.copyFile(in("source.class"), in("ColorSwirl.class")), answer);
        QCOMPARE(disk.copyFile(in("source.class"), in("new.class")), answer);
        QCOMPARE(bytesOf(in("qltemp.html")), old);
        QCOMPARE(bytesOf(in("ColorSwirl.class")), old);
        QCOMPARE(listing(dir_->path()), (QStringList{"ColorSwirl.class", "qltemp.html", "source.class"}));
        // The same disk without the fault writes as usual.
        disk.setDiskFaultHook({});
        QCOMPARE(disk.writeFile(in("qltemp.html"), "new"), FileError::None);
        QCOMPARE(bytesOf(in("qltemp.html")), QByteArray("new"));
    }
    void aMissingFolderIsAPathNotFound()
    {
        LocalFileSystem disk;
        QCOMPARE(disk.writeFile(in("nofolder/qltemp.html"), "x"), FileError::PathNotFound);
        QCOMPARE(disk.writeFile(dir_->path(), "x"), FileError::PathFileAccess);
        QCOMPARE(disk.writeFile(QString(), "x"), FileError::PathFileAccess);
        QCOMPARE(listing(dir_->path()), QStringList());
    }

    // ---- what a successful write keeps and how a copy reads

    void copyReadsItsSourceInPieces()
    {
        const QByteArray source = pattern(16 * LocalFileSystem::Piece + 5, 12);
        put(in("movie.gif"), source);
        QList<qint64> offsets;
        LocalFileSystem disk;
        disk.setDiskFaultHook([&](Step step, const QString& target, qint64 written) {
            if (step == Step::Write && target == in("copy.gif"))
                offsets << written;
            return 0;
        });
        QCOMPARE(disk.copyFile(in("movie.gif"), in("copy.gif")), FileError::None);
        QCOMPARE(bytesOf(in("copy.gif")), source);
        QList<qint64> expected;
        for (qint64 at = 0; at < source.size(); at += LocalFileSystem::Piece)
            expected << at;
        QCOMPARE(offsets, expected);
    }
    void aReplacedFileKeepsItsAccessRights()
    {
        put(in("password.cgi"), "#!/usr/bin/perl\n");
        const auto rights = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadUser |
                            QFile::WriteUser | QFile::ExeUser | QFile::ReadGroup | QFile::ExeGroup;
        QVERIFY(QFile::setPermissions(in("password.cgi"), rights));
        LocalFileSystem disk;
        QCOMPARE(disk.writeFile(in("password.cgi"), "#!/usr/bin/perl\nprint 1;\n"), FileError::None);
        QCOMPARE(QFile::permissions(in("password.cgi")), rights);
        QCOMPARE(bytesOf(in("password.cgi")), QByteArray("#!/usr/bin/perl\nprint 1;\n"));
    }
    void aLinkIsWrittenThrough()
    {
        QDir().mkdir(in("real"));
        put(in("real/qltemp.html"), "old");
        QVERIFY(QFile::link(in("real/qltemp.html"), in("qltemp.html")));
        LocalFileSystem disk;
        QCOMPARE(disk.writeFile(in("qltemp.html"), "new"), FileError::None);
        QVERIFY(QFileInfo(in("qltemp.html")).isSymLink());
        QCOMPARE(bytesOf(in("real/qltemp.html")), QByteArray("new"));
        QCOMPARE(listing(in("real")), QStringList{"qltemp.html"});
    }

    // ---- the publishing copies over a failing disk

    void step3KeepsTheOldBackupAndMediaOfAFailingDisk()
    {
        QTemporaryDir prog, site, work;
        TestDriver d;
        d.start({{"program_folder", prog.path()},
                 {"settings", QJsonArray{QJsonValue(QJsonArray{"Apps", "Browser", "/usr/bin/webbrowser"})}}});
        put(prog.filePath("ColorSwirl.class"), "class");
        put(site.filePath("qltemp.html"), "old backup");
        put(site.filePath("pic.gif"), "old picture");
        put(work.filePath("pic.gif"), pattern(3 * LocalFileSystem::Piece, 13));
        d.click("QLMain", "Command4");
        d.setText("Swirly", "Text7", "Swirl");
        d.setText("Swirly", "Text10", "200");
        d.setText("Swirly", "Text11", "40");
        d.click("Swirly", "Command1");
        d.app().session().RequiredFiles.set(0, "pic.gif");
        d.app().session().RequiredPaths.set(0, work.filePath("pic.gif"));
        d.click("Preview", "Command15");
        d.click("Preview", "Command15");
        d.on("Preview", "Dir1", "set_path", {{"path", site.path()}});
        // The site's folder takes no new file for the backup, and the disk
        // fills half way through the picture.
        d.platform().scriptedFiles().setDiskFaultHook([&](Step step, const QString& target, qint64 written) {
            if (target == site.filePath("qltemp.html") && step == Step::CreateFile)
                return EACCES;
            if (target == site.filePath("pic.gif") && step == Step::Write && written > 0)
                return ENOSPC;
            return 0;
        });
        d.ok({{"op", "answer"}, {"words", QJsonArray{"Yes", "Yes"}}});
        d.click("Preview", "Command6");
        QCOMPARE(bytesOf(site.filePath("qltemp.html")), QByteArray("old backup"));
        QCOMPARE(bytesOf(site.filePath("pic.gif")), QByteArray("old picture"));
        QCOMPARE(bytesOf(site.filePath("ColorSwirl.class")), QByteArray("class"));
        QCOMPARE(listing(site.path()), (QStringList{"ColorSwirl.class", "pic.gif", "qltemp.html"}));
    }
};

QL_TEST_MAIN(WholeWritesTest)
#include "test_whole_writes.moc"
