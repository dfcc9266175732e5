#include "platform/LocalFileSystem.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QStorageInfo>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ql {

namespace {

int errorForOpen(const QFileInfo& info)
{
    if (!info.exists())
        return info.dir().exists() ? FileError::FileNotFound : FileError::PathNotFound;
    if (info.isDir())
        return FileError::PathFileAccess;
    return FileError::PermissionDenied;
}

// The program's error number for a system error of a write.
int errorOfSystem(int error)
{
    switch (error) {
    case ENOENT:
    case ENOTDIR:
        return FileError::PathNotFound;
    case EACCES:
    case EPERM:
    case EROFS:
    case ETXTBSY:
        return FileError::PermissionDenied;
    case ENOSPC:
    case EFBIG:
    case EDQUOT:
        return FileError::DiskFull;
    case EIO:
        return FileError::DeviceIO;
    default:
        return FileError::PathFileAccess;
    }
}

// One whole-file write. open() makes a new file in the target's folder,
// write() fills it, commit() puts it on the disk and in the target's place.
// Until commit() has succeeded the target is untouched; a write that ends
// any other way removes its new file.
class WholeFileWrite {
public:
    using Step = LocalFileSystem::WriteStep;

    WholeFileWrite(const QString& target, const LocalFileSystem::DiskFaultHook& fault)
        : target_(target)
        , fault_(fault)
    {
        // A link is written through: the file it points at gets the bytes.
        const QFileInfo info(target);
        if (info.isSymLink())
            target_ = info.symLinkTarget();
    }
    ~WholeFileWrite()
    {
        if (fd_ >= 0)
            ::close(fd_);
        if (!temporary_.isEmpty())
            ::unlink(temporary_.constData());
    }
    WholeFileWrite(const WholeFileWrite&) = delete;
    WholeFileWrite& operator=(const WholeFileWrite&) = delete;

    int open()
    {
        if (const int e = fault(Step::CreateFile))
            return errorOfSystem(e);
        const QByteArray folder = QFile::encodeName(QFileInfo(target_).absolutePath());
        struct stat old {};
        const bool replacing = ::stat(QFile::encodeName(target_).constData(), &old) == 0 && S_ISREG(old.st_mode);
        // A short fixed-shape name: it fits where the target's own name is
        // already as long as the system allows.
        for (int attempt = 0; attempt < 100; ++attempt) {
            const QByteArray name = folder + "/.quillet-" +
                                    QByteArray::number(QRandomGenerator::global()->generate64(), 36);
            const int fd = ::open(name.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
            if (fd >= 0) {
                fd_ = fd;
                temporary_ = name;
                // The replacement keeps the access rights of the file it replaces.
                if (replacing)
                    ::fchmod(fd_, old.st_mode & 07777);
                return FileError::None;
            }
            if (errno != EEXIST)
                return errorOfSystem(errno);
        }
        return FileError::PathFileAccess;
    }

    int write(const char* data, qint64 size)
    {
        while (size > 0) {
            if (const int e = fault(Step::Write))
                return errorOfSystem(e);
            const ssize_t n = ::write(fd_, data, size_t(std::min(size, LocalFileSystem::Piece)));
            if (n < 0) {
                if (errno == EINTR)
                    continue;
                return errorOfSystem(errno);
            }
            if (n == 0)
                return FileError::DiskFull;
            data += n;
            size -= n;
            written_ += n;
        }
        return FileError::None;
    }

    int commit()
    {
        if (const int e = fault(Step::Flush))
            return errorOfSystem(e);
        if (::fsync(fd_) != 0)
            return errorOfSystem(errno);
        const int fd = fd_;
        fd_ = -1;
        if (::close(fd) != 0)
            return errorOfSystem(errno);
        if (const int e = fault(Step::Replace))
            return errorOfSystem(e);
        if (::rename(temporary_.constData(), QFile::encodeName(target_).constData()) != 0)
            return errorOfSystem(errno);
        temporary_.clear();
        return FileError::None;
    }

private:
    int fault(Step step) const { return fault_ ? fault_(step, target_, written_) : 0; }

    QString target_;
    const LocalFileSystem::DiskFaultHook& fault_;
    QByteArray temporary_;
    int fd_ = -1;
    qint64 written_ = 0;
};

}  // namespace

bool LocalFileSystem::canOpenForReading(const QString& path)
{
    if (path.isEmpty() || QFileInfo(path).isDir())
        return false;
    QFile file(path);
    return file.open(QIODevice::ReadOnly);
}

bool LocalFileSystem::isFile(const QString& path)
{
    return !path.isEmpty() && QFileInfo(path).isFile();
}

bool LocalFileSystem::isDir(const QString& path)
{
    return !path.isEmpty() && QFileInfo(path).isDir();
}

int LocalFileSystem::copyFile(const QString& source, const QString& target)
{
    QFile in(source);
    const QFileInfo sourceInfo(source);
    if (source.isEmpty() || sourceInfo.isDir() || !in.open(QIODevice::ReadOnly))
        return source.isEmpty() ? FileError::FileNotFound : errorForOpen(sourceInfo);
    // A file cannot be copied onto itself: it is in use as the source.
    const QFileInfo targetInfo(target);
    if (targetInfo.exists() && targetInfo.canonicalFilePath() == sourceInfo.canonicalFilePath())
        return FileError::PermissionDenied;
    if (target.isEmpty() || targetInfo.isDir())
        return FileError::PathFileAccess;
    WholeFileWrite out(target, diskFault_);
    if (const int e = out.open())
        return e;
    // The source passes in pieces, never whole through memory.
    QByteArray piece(Piece, Qt::Uninitialized);
    while (true) {
        const qint64 n = in.read(piece.data(), Piece);
        if (n < 0)
            return FileError::DeviceIO;
        if (n == 0)
            break;
        if (const int e = out.write(piece.constData(), n))
            return e;
    }
    return out.commit();
}

int LocalFileSystem::writeFile(const QString& path, const QByteArray& bytes)
{
    if (path.isEmpty() || QFileInfo(path).isDir())
        return FileError::PathFileAccess;
    WholeFileWrite out(path, diskFault_);
    if (const int e = out.open())
        return e;
    if (const int e = out.write(bytes.constData(), bytes.size()))
        return e;
    return out.commit();
}

std::optional<QByteArray> LocalFileSystem::readFile(const QString& path)
{
    QFile in(path);
    if (QFileInfo(path).isDir() || !in.open(QIODevice::ReadOnly))
        return std::nullopt;
    return in.readAll();
}

int LocalFileSystem::makeDir(const QString& path)
{
    const QFileInfo info(path);
    if (info.exists())
        return FileError::PathFileAccess;
    if (!info.dir().exists())
        return FileError::PathNotFound;
    return QDir().mkdir(path) ? FileError::None : FileError::PermissionDenied;
}

QStringList LocalFileSystem::fileNames(const QString& folder)
{
    return QDir(folder).entryList(QDir::Files | QDir::Hidden | QDir::System, QDir::Name | QDir::IgnoreCase);
}

QStringList LocalFileSystem::subfolderNames(const QString& folder)
{
    return QDir(folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::IgnoreCase);
}

QStringList LocalFileSystem::drives()
{
    QStringList roots;
    for (const QStorageInfo& volume : QStorageInfo::mountedVolumes()) {
        if (volume.isValid() && volume.isReady() && !roots.contains(volume.rootPath()))
            roots << volume.rootPath();
    }
    roots.sort();
    return roots;
}

int LocalFileSystem::enterDrive(const QString& drive)
{
    const QFileInfo info(drive);
    if (!info.isDir())
        return FileError::DiskNotReady;
    return info.isReadable() ? FileError::None : FileError::PermissionDenied;
}

}  // namespace ql
