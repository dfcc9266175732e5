#pragma once

#include "platform/Platform.h"

#include <functional>

namespace ql {

// The file layer over the real disk.
//
// Every write is whole or nothing: the bytes go into a new file beside the
// target, which takes the target's place only once all of them are on the
// disk. A write that fails at any point leaves the target as it was and no
// new file behind.
class LocalFileSystem : public FileSystem {
public:
    // The steps of a write at which the disk can fail.
    enum class WriteStep { CreateFile, Write, Flush, Replace };
    // Stands in for the disk in tests: asked before each step of a write
    // with the target's path and the count of bytes written so far; a
    // non-zero answer is a system error number (errno) with which the step
    // fails, as the disk would have failed it.
    using DiskFaultHook = std::function<int(WriteStep step, const QString& target, qint64 written)>;
    void setDiskFaultHook(DiskFaultHook hook) { diskFault_ = std::move(hook); }

    // The size of the pieces in which a write goes to the disk and a copy
    // reads its source.
    static constexpr qint64 Piece = 64 * 1024;

    bool canOpenForReading(const QString& path) override;
    bool isFile(const QString& path) override;
    bool isDir(const QString& path) override;
    int copyFile(const QString& source, const QString& target) override;
    int writeFile(const QString& path, const QByteArray& bytes) override;
    std::optional<QByteArray> readFile(const QString& path) override;
    int makeDir(const QString& path) override;
    QStringList fileNames(const QString& folder) override;
    QStringList subfolderNames(const QString& folder) override;
    QStringList drives() override;
    int enterDrive(const QString& drive) override;

private:
    DiskFaultHook diskFault_;
};

}  // namespace ql
