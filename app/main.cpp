#include "automation/Driver.h"
#include "core/App.h"
#include "core/Icons.h"
#include "core/ProgramFolder.h"
#include "platform/QtPlatform.h"

#include <QApplication>
#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace {

const char* const Usage =
    "Usage: quillet [--automation | --version | --help]\n"
    "Quillet writes the HTML code of special effects for Web pages.\n"
    "\n"
    "  --automation  read one JSON request a line on standard input and answer each on\n"
    "                standard output, with every outside service scripted (needs no display)\n"
    "  --version     print the version and exit\n"
    "  -h, --help    print this help and exit\n"
    "\n"
    "Qt's own options (-platform, -style and the like) are passed on to Qt.\n";

// Qt's own options, which its application object takes off the command line.
constexpr std::string_view QtOptionsWithValue[] = {"-platform", "-platformpluginpath", "-platformtheme", "-plugin",
                                                   "-qwindowgeometry", "-qwindowicon", "-qwindowtitle", "-style",
                                                   "-stylesheet", "-display", "-geometry", "-session"};
constexpr std::string_view QtFlagOptions[] = {"-reverse", "-widgetcount", "-nograb", "-dograb", "-sync"};

template <std::size_t N>
bool isOneOf(std::string_view arg, const std::string_view (&list)[N])
{
    for (std::string_view option : list) {
        if (arg == option)
            return true;
    }
    return false;
}

QtMessageHandler startupHandler = nullptr;

// While the window system is being opened: a failure to open it ends the
// program with one line of its own instead of Qt's abort.
void startupMessage(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (type == QtFatalMsg) {
        std::fputs("quillet: cannot open a window: it needs a graphical session, or --automation to run without one\n",
                   stderr);
        std::fflush(stderr);
        std::_Exit(1);
    }
    // Qt's lines about the plugin only repeat what the line above says.
    if (context.category && std::string_view(context.category) == "qt.qpa.plugin")
        return;
    startupHandler(type, context, message);
}

}  // namespace

int main(int argc, char* argv[])
{
    bool automation = false;
    bool version = false;
    bool help = false;
    bool platformGiven = false;
    for (int i = 1; i < argc; ++i) {
        const std::string_view arg = argv[i];
        if (arg == "--automation") {
            automation = true;
        } else if (arg == "--version") {
            version = true;
        } else if (arg == "--help" || arg == "-h") {
            help = true;
        } else if (isOneOf(arg, QtOptionsWithValue)) {
            if (i + 1 >= argc) {
                std::fprintf(stderr, "quillet: option '%s' needs a value; see 'quillet --help'\n", argv[i]);
                return 2;
            }
            platformGiven = platformGiven || arg == "-platform";
            ++i;
        } else if (!isOneOf(arg, QtFlagOptions)) {
            std::fprintf(stderr, "quillet: unknown %s '%s'; see 'quillet --help'\n",
                         arg.starts_with('-') ? "option" : "argument", argv[i]);
            return 2;
        }
    }
    if (help) {
        std::fputs(Usage, stdout);
        return 0;
    }
    if (version) {
        std::printf("quillet %s\n", QUILLET_VERSION);
        return 0;
    }

    if (automation && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
    if (!automation && !platformGiven && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") &&
        qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")) {
        std::fputs("quillet: no graphical session (DISPLAY and WAYLAND_DISPLAY are not set): "
                   "start it from a desktop session, or with --automation\n",
                   stderr);
        return 1;
    }
#endif

    startupHandler = qInstallMessageHandler(startupMessage);
    QApplication application(argc, argv);
    qInstallMessageHandler(startupHandler);
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
