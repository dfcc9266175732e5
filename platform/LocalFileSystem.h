#pragma once

#include "platform/Platform.h"

namespace ql {

// The file layer over the real disk.
class LocalFileSystem : public FileSystem {
public:
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
};

}  // namespace ql
