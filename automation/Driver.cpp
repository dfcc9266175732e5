#include "automation/Driver.h"

#include "automation/Controls.h"
#include "core/App.h"
#include "core/Constants.h"
#include "core/Form.h"
#include "core/ProgramFolder.h"
#include "platform/ScriptedPlatform.h"

#include <QApplication>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QWidget>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <iostream>
#include <string>
#include <unistd.h>

namespace ql {

namespace {

const QJsonValue Done = QJsonValue::Undefined;

// The form that is the program's main window: opened as the program starts
// it, never modally.
const QString MainForm = QStringLiteral("QLMain");

bool processAlive(qint64 pid)
{
    if (pid <= 0 || pid > std::numeric_limits<pid_t>::max())
        return false;
    return ::kill(pid_t(pid), 0) == 0 || errno == EPERM;
}

QString formName(const QJsonObject& request)
{
    return needText(request, QStringLiteral("form"));
}

}  // namespace

std::unique_ptr<QTemporaryDir> makeTemporaryProgramFolder()
{
    removeStaleProgramFolders();
    return std::make_unique<QTemporaryDir>(
        QDir::temp().filePath(QStringLiteral("Quillet-%1-XXXXXX").arg(QCoreApplication::applicationPid())));
}

void removeStaleProgramFolders()
{
    static const QRegularExpression pattern(QStringLiteral("^Quillet-(\\d+)-[^/]{6}$"));
    const QDir temp = QDir::temp();
    const uint me = ::getuid();
    for (const QFileInfo& entry : temp.entryInfoList({QStringLiteral("Quillet-*")}, QDir::Dirs | QDir::NoDotAndDotDot)) {
        const QRegularExpressionMatch match = pattern.match(entry.fileName());
        if (!match.hasMatch() || entry.isSymLink() || entry.ownerId() != me)
            continue;
        if (!processAlive(match.captured(1).toLongLong()))
            QDir(entry.filePath()).removeRecursively();
    }
}

struct Driver::ProgramOp {
    // Whether the op needs a started program.
    bool needsProgram;
    QJsonValue (*run)(Driver&, const QJsonObject&);
};

Driver::Driver() = default;

Driver::~Driver()
{
    stop();
}

void Driver::stop()
{
    app_.reset();
    settle();
    platform_.reset();
    folder_.reset();
}

void Driver::settle()
{
    QCoreApplication::processEvents(QEventLoop::AllEvents);
    guard_.closeAll();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QJsonObject Driver::handleLine(const QByteArray& line)
{
    if (line.trimmed().isEmpty()) {
        return QJsonObject{
            {"ok", false}, {"error", "ValueError"}, {"message", "a blank line is not a request"}};
    }
    QJsonParseError error;
    const QJsonDocument doc = QJsonDocument::fromJson(line, &error);
    if (error.error != QJsonParseError::NoError || !doc.isObject()) {
        const QString why = error.error != QJsonParseError::NoError ? error.errorString()
                                                                     : QStringLiteral("not an object");
        return QJsonObject{{"ok", false},
                           {"error", "ValueError"},
                           {"message", QStringLiteral("a request is one JSON object: %1").arg(why)}};
    }
    return handle(doc.object());
}

QJsonObject Driver::handle(const QJsonObject& request)
{
    QJsonObject answer;
    guard_.arm();
    try {
        const QJsonValue value = dispatch(request);
        settle();
        answer.insert("ok", true);
        if (!value.isUndefined())
            answer.insert("value", value);
    } catch (const DriverError& e) {
        settle();
        answer = QJsonObject{{"ok", false}, {"error", e.kind}, {"message", e.message}};
    }
    guard_.disarm();
    if (platform_) {
        const QStringList failures = platform_->takeScriptFailures();
        if (!failures.isEmpty() && answer.value("ok").toBool())
            answer = QJsonObject{{"ok", false}, {"error", "AssertionError"}, {"message", failures.join("; ")}};
    }
    return answer;
}

QJsonValue Driver::start(const QJsonObject& request)
{
    // The whole request is read before the running program goes.
    QList<ScriptedPlatform::Setting> settings;
    const QJsonValue settingsValue = request.value("settings");
    if (!settingsValue.isUndefined() && !settingsValue.isNull()) {
        if (!settingsValue.isArray())
            valueError("\"settings\" must be a list of [section, key, value]");
        for (const QJsonValue& row : settingsValue.toArray()) {
            const QJsonArray triple = row.toArray();
            if (!row.isArray() || triple.size() != 3 || !triple[0].isString() || !triple[1].isString() ||
                triple[2].isArray() || triple[2].isObject())
                valueError("a setting is [section, key, value], section and key texts");
            settings.append({triple[0].toString(), triple[1].toString(), triple[2].toVariant().toString()});
        }
    }
    const QJsonValue browser = request.value("browser_command");
    if (!browser.isString() && !browser.isUndefined() && !browser.isNull())
        valueError("\"browser_command\" must be a text or null");
    QMap<QString, QString> http;
    const QJsonValue httpValue = request.value("http");
    if (httpValue.isObject()) {
        const QJsonObject map = httpValue.toObject();
        for (auto it = map.begin(); it != map.end(); ++it) {
            if (!it.value().isString())
                valueError("the answers of \"http\" must be texts");
            http.insert(it.key(), it.value().toString());
        }
    } else if (!httpValue.isUndefined() && !httpValue.isNull()) {
        valueError("\"http\" must be an object of {url: text}");
    }
    const QJsonValue given = request.value("program_folder");
    if (!given.isString() && !given.isUndefined() && !given.isNull())
        valueError("\"program_folder\" must be a text or null");

    stop();
    platform_ = std::make_unique<ScriptedPlatform>();
    for (const ScriptedPlatform::Setting& s : settings)
        platform_->saveSetting(s.section, s.key, s.value);
    if (browser.isString())
        platform_->setBrowserCommand(browser.toString());
    if (!http.isEmpty())
        platform_->setHttpAnswers(http);

    QString folder = given.toString();
    if (folder.isEmpty()) {
        folder_ = makeTemporaryProgramFolder();
        if (!folder_->isValid())
            valueError(QStringLiteral("no temporary program folder could be made: %1").arg(folder_->errorString()));
        folder = folder_->path();
    }
    prepareProgramFolder(folder);
    app_ = std::make_unique<App>(*platform_, folder);
    app_->start();
    return Done;
}

const QHash<QString, Driver::ProgramOp>& Driver::programOps()
{
    static const QHash<QString, ProgramOp> table = {
        {"start", {false, [](Driver& d, const QJsonObject& r) { return d.start(r); }}},
        {"constants", {false, [](Driver&, const QJsonObject&) -> QJsonValue {
             QJsonObject applets;
             for (const AppletCredits& c : appletCredits()) {
                 applets.insert(c.classFile,
                                QJsonObject{{"notice", c.notice}, {"author", c.author}, {"website", c.website}});
             }
             return QJsonObject{{"PRODUCT_URL", Addresses::ProductUrl},
                                {"VENDOR_URL", Addresses::VendorUrl},
                                {"DOWNLOAD_URL", Addresses::DownloadUrl},
                                {"VERSION_URL", Addresses::VersionUrl},
                                {"WHATSNEW_URL", Addresses::WhatsNewUrl},
                                {"APPLETS", applets}};
         }}},
        {"session", {true, [](Driver& d, const QJsonObject&) -> QJsonValue {
             const EffectSession& s = d.app_->session();
             QJsonValue registry;
             if (s.RegistryValue.typeId() == QMetaType::QString)
                 registry = s.RegistryValue.toString();
             else
                 registry = s.RegistryValue.toLongLong();
             return QJsonObject{{"GeneratedCode", s.GeneratedCode},
                                {"EffectId", s.EffectId},
                                {"RequiredClasses", stringArray(s.RequiredClasses.toList())},
                                {"RequiredFiles", stringArray(s.RequiredFiles.toList())},
                                {"RequiredPaths", stringArray(s.RequiredPaths.toList())},
                                {"ImageSlot", s.ImageSlot},
                                {"ReEditMode", s.ReEditMode},
                                {"ExtractedValue", s.ExtractedValue},
                                {"ClassPrefix5", s.ClassPrefix5},
                                {"ClassPrefix8", s.ClassPrefix8},
                                {"MessageIndex", s.MessageIndex},
                                {"PickedFile", s.PickedFile},
                                {"RegistryValue", registry},
                                {"PulldownItemMode", s.PulldownItemMode}};
         }}},
        {"loaded", {true, [](Driver& d, const QJsonObject& r) -> QJsonValue {
             return d.app_->forms().findWidget(formName(r)) != nullptr;
         }}},
        {"shown", {true, [](Driver& d, const QJsonObject& r) -> QJsonValue {
             const QWidget* form = d.app_->forms().findWidget(formName(r));
             return form && form->isVisible();
         }}},
        {"modal", {true, [](Driver& d, const QJsonObject& r) -> QJsonValue {
             const QWidget* form = d.app_->forms().findWidget(formName(r));
             return form && form->isVisible() && form->windowModality() != Qt::NonModal;
         }}},
        {"ended", {true, [](Driver& d, const QJsonObject&) -> QJsonValue { return d.app_->ended(); }}},
        {"settings", {true, [](Driver& d, const QJsonObject&) -> QJsonValue {
             QJsonArray rows;
             for (const ScriptedPlatform::Setting& setting : d.platform_->settings())
                 rows.append(QJsonArray{setting.section, setting.key, setting.value});
             return rows;
         }}},
        {"clipboard", {true, [](Driver& d, const QJsonObject&) -> QJsonValue { return d.platform_->clipboardText(); }}},
        {"set_clipboard", {true, [](Driver& d, const QJsonObject& r) -> QJsonValue {
             d.platform_->setClipboardText(needText(r, "text"));
             return Done;
         }}},
        {"busy", {true, [](Driver& d, const QJsonObject&) -> QJsonValue { return d.platform_->busy(); }}},
        {"messages", {true, [](Driver& d, const QJsonObject&) -> QJsonValue {
             QJsonArray out;
             for (const auto& m : d.platform_->messages())
                 out.append(QJsonObject{{"text", m.text}, {"style", m.style}, {"title", m.title}});
             return out;
         }}},
        {"answer", {true, [](Driver& d, const QJsonObject& r) -> QJsonValue {
             QStringList list;
             for (const QJsonValue& w : needList(r, "words")) {
                 if (!w.isString())
                     valueError("\"words\" must be texts");
                 list << w.toString();
             }
             d.platform_->queueAnswers(list);
             return Done;
         }}},
        {"answer_file", {true, [](Driver& d, const QJsonObject& r) -> QJsonValue {
             QList<std::optional<QString>> list;
             for (const QJsonValue& v : needList(r, "paths")) {
                 if (!v.isString() && !v.isNull())
                     valueError("\"paths\" must be texts or null");
                 list << (v.isString() ? std::optional<QString>(v.toString()) : std::nullopt);
             }
             d.platform_->queueFiles(list);
             return Done;
         }}},
        {"answer_color", {true, [](Driver& d, const QJsonObject& r) -> QJsonValue {
             QList<std::optional<quint32>> list;
             for (const QJsonValue& v : needList(r, "values")) {
                 if (v.isNull())
                     list << std::nullopt;
                 else
                     list << quint32(wholeNumber(v, "a colour", 0, 0xFFFFFF));
             }
             d.platform_->queueColors(list);
             return Done;
         }}},
        {"dialogs", {true, [](Driver& d, const QJsonObject&) -> QJsonValue {
             QJsonArray out;
             for (const auto& g : d.platform_->dialogs()) {
                 out.append(QJsonObject{
                     {"kind", g.kind}, {"title", g.title}, {"filter", g.filter}, {"filter_index", g.filterIndex}});
             }
             return out;
         }}},
        {"opened", {true, [](Driver& d, const QJsonObject&) -> QJsonValue { return stringArray(d.platform_->opened()); }}},
        {"started", {true, [](Driver& d, const QJsonObject&) -> QJsonValue { return stringArray(d.platform_->started()); }}},
        {"help", {true, [](Driver& d, const QJsonObject&) -> QJsonValue {
             QJsonArray out;
             for (const auto& h : d.platform_->helpRequests())
                 out.append(QJsonArray{h.form, h.topic ? QJsonValue(*h.topic) : QJsonValue(QJsonValue::Null)});
             return out;
         }}},
        {"beeps", {true, [](Driver& d, const QJsonObject&) -> QJsonValue { return d.platform_->beeps(); }}},
        {"ftp", {true, [](Driver& d, const QJsonObject&) -> QJsonValue {
             QJsonArray out;
             for (const auto& f : d.platform_->ftpRequests())
                 out.append(QJsonArray{f.url, f.user, f.password, f.command});
             return out;
         }}},
        {"http_requests", {true, [](Driver& d, const QJsonObject&) -> QJsonValue {
             return stringArray(d.platform_->httpRequests());
         }}},
        {"forms", {true, [](Driver& d, const QJsonObject&) -> QJsonValue {
             return stringArray(d.app_->forms().names());
         }}},
        {"controls", {true, [](Driver& d, const QJsonObject& r) -> QJsonValue {
             const QString name = formName(r);
             FormBase* form = d.app_->forms().find(name);
             if (!form)
                 lookupError(QStringLiteral("no form \"%1\" is loaded").arg(name));
             QJsonArray out;
             for (const ControlEntry& c : formControls(*form))
                 out.append(QJsonObject{{"name", c.name}, {"kind", c.kind}});
             return out;
         }}},
        {"open", {true, [](Driver& d, const QJsonObject& r) -> QJsonValue {
             const QString name = formName(r);
             FormRegistry& forms = d.app_->forms();
             if (!forms.exists(name))
                 lookupError(QStringLiteral("the program has no form \"%1\"").arg(name));
             if (name == MainForm)
                 d.app_->start();
             else
                 forms.reopen(name, true);
             return Done;
         }}},
        {"file_fault", {true, [](Driver& d, const QJsonObject& r) -> QJsonValue {
             const QString path = needText(r, "path");
             const int error = int(wholeNumber(need(r, "error"), "\"error\"", 0, 32767));
             d.platform_->scriptedFiles().injectFault(path, error);
             return Done;
         }}},
    };
    return table;
}

QJsonValue Driver::dispatch(const QJsonObject& request)
{
    const QJsonValue opValue = request.value("op");
    if (!opValue.isString())
        valueError("a request needs an \"op\"");
    const QString op = opValue.toString();
    const auto program = programOps().constFind(op);
    if (program == programOps().constEnd() && !isControlOp(op))
        valueError(QStringLiteral("unknown op \"%1\"").arg(op));
    if (!app_ && (program == programOps().constEnd() || program->needsProgram))
        valueError("no program is running: send \"start\" first");
    if (program != programOps().constEnd())
        return program->run(*this, request);
    return control(op, request);
}

QJsonValue Driver::control(const QString& op, const QJsonObject& request)
{
    const QString form = formName(request);
    const QString controlName = needText(request, "control");
    FormBase* loaded = app_->forms().find(form);
    if (!loaded)
        lookupError(QStringLiteral("no form \"%1\" is loaded").arg(form));
    QObject* target = findControl(*loaded, controlName);
    if (!target)
        lookupError(QStringLiteral("form \"%1\" has no control \"%2\"").arg(form, controlName));
    return controlOp(*loaded, target, op, request);
}

int runAutomation()
{
    Driver driver;
    std::string line;
    while (std::getline(std::cin, line)) {
        const QJsonObject answer = driver.handleLine(QByteArray::fromStdString(line));
        const QByteArray out = QJsonDocument(answer).toJson(QJsonDocument::Compact);
        std::fwrite(out.constData(), 1, size_t(out.size()), stdout);
        std::fputc('\n', stdout);
        std::fflush(stdout);
    }
    return 0;
}

}  // namespace ql
