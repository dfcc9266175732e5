#include "core/ProgramFolder.h"

#include "platform/LocalFileSystem.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

static void initShippedResources()
{
    Q_INIT_RESOURCE(quillet);
}

namespace ql {

QString defaultProgramFolder()
{
    QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    if (folder.isEmpty())
        folder = QDir::homePath() + QStringLiteral("/.local/share");
    return folder + QStringLiteral("/Quillet");
}

void prepareProgramFolder(const QString& folder)
{
    initShippedResources();
    QDir().mkpath(folder);
    const QDir shipped(QStringLiteral(":/shipped"));
    // Each file comes whole or not at all; one that fails is tried again at
    // the next start.
    LocalFileSystem disk;
    for (const QString& name : shipped.entryList(QDir::Files)) {
        const QString target = QDir(folder).filePath(name);
        if (!QFile::exists(target))
            disk.copyFile(shipped.filePath(name), target);
    }
}

}  // namespace ql
