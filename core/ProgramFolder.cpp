#include "core/ProgramFolder.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>
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
    for (const QString& name : shipped.entryList(QDir::Files)) {
        const QString target = QDir(folder).filePath(name);
        if (QFile::exists(target))
            continue;
        QFile source(shipped.filePath(name));
        if (!source.open(QIODevice::ReadOnly))
            continue;
        QSaveFile out(target);
        if (out.open(QIODevice::WriteOnly)) {
            out.write(source.readAll());
            out.commit();
        }
    }
}

}  // namespace ql
