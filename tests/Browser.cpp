#include "Browser.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QUrl>

namespace browser {

std::optional<QString> chromium()
{
    const QString given = qEnvironmentVariable("QUILLET_CHROMIUM");
    if (!given.isEmpty())
        return QFileInfo(given).isExecutable() ? std::optional<QString>(given) : std::nullopt;
    for (const char* name : {"chromium", "chromium-browser", "google-chrome"}) {
        const QString path = QStandardPaths::findExecutable(QString::fromLatin1(name));
        if (!path.isEmpty())
            return path;
    }
    return std::nullopt;
}

QString missingMessage()
{
    return QStringLiteral("Chromium is not installed (apt-get install chromium): the browser check is skipped");
}

Run dumpDom(const QString& pagePath, int virtualMs)
{
    Run run;
    const std::optional<QString> program = chromium();
    if (!program) {
        run.error = missingMessage();
        return run;
    }
    QTemporaryDir profile;
    QProcess process;
    process.setProgram(*program);
    process.setArguments({"--headless", "--no-sandbox", "--disable-gpu", "--disable-quic", "--no-first-run",
                          "--disable-background-networking", "--disable-component-update", "--disable-sync",
                          "--disable-dev-shm-usage", "--user-data-dir=" + profile.path(),
                          QStringLiteral("--virtual-time-budget=%1").arg(virtualMs), "--dump-dom",
                          QUrl::fromLocalFile(QFileInfo(pagePath).absoluteFilePath()).toString()});
    process.setProcessChannelMode(QProcess::SeparateChannels);
    process.start();
    if (!process.waitForFinished(60000)) {
        process.kill();
        process.waitForFinished();
        run.error = QStringLiteral("Chromium did not finish within a minute");
        return run;
    }
    run.dom = QString::fromUtf8(process.readAllStandardOutput());
    run.ok = process.exitStatus() == QProcess::NormalExit && !run.dom.isEmpty();
    if (!run.ok)
        run.error = QString::fromUtf8(process.readAllStandardError()).left(2000);
    return run;
}

}  // namespace browser
