// Fuzzes the re-edit road as a user takes it: the input, read as UTF-8, is
// pasted into the Edit Applet form, Edit is clicked, and whatever form its
// route opens loads itself from the text through its EditApplet routine.
// When the text asks for the choice of animation wizard, the option picked
// follows from the input's length. Every form that gets a route is fuzzed
// through it, with nothing here to change.

#include "FuzzSupport.h"
#include "automation/Driver.h"
#include "core/App.h"
#include "core/ExtractParam.h"
#include "core/Forms.h"

#include <QApplication>
#include <QJsonObject>
#include <cstddef>
#include <cstdint>
#include <vector>

using namespace ql;

namespace {

Driver* driver = nullptr;

QJsonValue ask(const QJsonObject& request)
{
    return driver->handle(request).value("value");
}

QJsonValue on(const QString& form, const QString& control, const QString& op, QJsonObject extra = {})
{
    extra.insert("op", op);
    extra.insert("form", form);
    extra.insert("control", control);
    return ask(extra);
}

// Code box text keeps CRLF breaks only: no CR without its LF, no LF without
// its CR.
bool crlfOnly(const QString& text)
{
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == QLatin1Char('\r') && (i + 1 == text.size() || text[i + 1] != QLatin1Char('\n')))
            return false;
        if (text[i] == QLatin1Char('\n') && (i == 0 || text[i - 1] != QLatin1Char('\r')))
            return false;
    }
    return true;
}

// Back to the main window alone, as after a fresh start.
void unloadAllButTheMainWindow()
{
    App& app = *driver->app();
    for (const QString& name : app.forms().loadedNames()) {
        if (name != QLatin1String("QLMain"))
            app.forms().unload(name);
    }
    app.session() = EffectSession();
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    // Each input leaves the toolkit's caches (fonts, text layouts) a little
    // larger, which the fuzzer's leak check after every input takes for a
    // possible leak, scanning the whole heap each time and running four
    // times slower. Leaks are looked for once, when the run ends, instead.
    // Flags given on the command line come behind this one and win.
    static std::vector<char*> args(*argv, *argv + *argc);
    static char leaksAtTheEnd[] = "-detect_leaks=0";
    args.insert(args.begin() + 1, leaksAtTheEnd);
    args.push_back(nullptr);
    *argc = int(args.size()) - 1;
    *argv = args.data();

    qputenv("QT_QPA_PLATFORM", "offscreen");
    // The application and the program stay until the process ends: the
    // fuzzer leaves by exit(), where destroying windows would come too late.
    static int count = *argc;
    new QApplication(count, *argv);
    driver = new Driver;
    ask({{"op", "start"}});
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QString pasted = QString::fromUtf8(reinterpret_cast<const char*>(data), qsizetype(size));
    on("QLMain", "mnuEditApplet", "click");
    on("EditAppletForm", "Text1", "set_text", {{"text", pasted}});
    const QString text = on("EditAppletForm", "Text1", "text").toString();
    QL_FUZZ_CHECK(crlfOnly(text));
    on("EditAppletForm", "Command1", "click");

    const QJsonObject session = ask({{"op", "session"}}).toObject();
    QL_FUZZ_CHECK(session.value("ClassPrefix5").toString() == classPrefix(text, 5));
    QL_FUZZ_CHECK(session.value("ClassPrefix8").toString() == classPrefix(text, 8));

    // The choice of animation wizard, when the text asked for it.
    if (ask({{"op", "loaded"}, {"form", "EditAppletForm"}}).toBool() &&
        on("EditAppletForm", "Picture2", "visible").toBool()) {
        if (const int option = int(size % 4))
            on("EditAppletForm", QStringLiteral("Option%1").arg(option), "click");
        on("EditAppletForm", "Command3", "click");
    }
    unloadAllButTheMainWindow();
    return 0;
}
