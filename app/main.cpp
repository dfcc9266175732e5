#include "automation/Driver.h"
#include "core/App.h"
#include "core/Icons.h"
#include "core/ProgramFolder.h"
#include "platform/QtPlatform.h"

#include <QApplication>
#include <cstring>

int main(int argc, char* argv[])
{
    bool automation = false;
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--automation") == 0)
            automation = true;
    }
    if (automation && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");

    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Quillet"));
    QApplication::setOrganizationName(QStringLiteral("Quillet"));
    QApplication::setWindowIcon(ql::programIcon());

    if (automation)
        return ql::runAutomation();

    ql::QtPlatform platform;
    const QString folder = ql::defaultProgramFolder();
    ql::prepareProgramFolder(folder);
    ql::App app(platform, folder);
    QObject::connect(&app, &ql::App::programEnded, &application, &QApplication::quit, Qt::QueuedConnection);
    app.start();
    return application.exec();
}
