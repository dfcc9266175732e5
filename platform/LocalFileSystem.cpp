#include "platform/LocalFileSystem.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStorageInfo>

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

int errorForWrite(const QString& path)
{
    const QFileInfo info(path);
    if (info.isDir())
        return FileError::PathFileAccess;
    if (!info.dir().exists())
        return FileError::PathNotFound;
    return FileError::PermissionDenied;
}

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
    const QByteArray bytes = in.readAll();
    if (in.error() != QFileDevice::NoError)
        return FileError::DeviceIO;
    in.close();
    return writeFile(target, bytes);
}

int LocalFileSystem::writeFile(const QString& path, const QByteArray& bytes)
{
    if (path.isEmpty() || QFileInfo(path).isDir())
        return FileError::PathFileAccess;
    QSaveFile out(path);
    out.setDirectWriteFallback(true);
    if (!out.open(QIODevice::WriteOnly))
        return errorForWrite(path);
    if (out.write(bytes) != bytes.size()) {
        out.cancelWriting();
        return FileError::DiskFull;
    }
    if (!out.commit())
        return errorForWrite(path);
    return FileError::None;
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
