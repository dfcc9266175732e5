#include "automation/Driver.h"

#include "automation/Controls.h"
#include "core/App.h"
#include "core/Constants.h"
#include "core/Form.h"
#include "core/ProgramFolder.h"
#include "platform/ScriptedPlatform.h"

#include <QApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QWidget>
#include <cstdio>
#include <iostream>
#include <string>

namespace ql {

namespace {

QJsonArray stringArray(const QStringList& list)
{
    QJsonArray out;
    for (const QString& s : list)
        out.append(s);
    return out;
}

QString requireString(const QJsonObject& request, const QString& key)
{
    const QJsonValue v = request.value(key);
    if (!v.isString())
        throw DriverError{"ValueError", QStringLiteral("\"%1\" must be a text").arg(key)};
    return v.toString();
}

}  // namespace

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
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QJsonObject Driver::handleLine(const QByteArray& line)
{
    QJsonParseError error;
    const QJsonDocument doc = QJsonDocument::fromJson(line, &error);
    if (error.error != QJsonParseError::NoError || !doc.isObject()) {
        return QJsonObject{{"ok", false},
                           {"error", "ValueError"},
                           {"message", QStringLiteral("a request is one JSON object: %1").arg(error.errorString())}};
    }
    return handle(doc.object());
}

QJsonObject Driver::handle(const QJsonObject& request)
{
    QJsonObject answer;
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
    if (platform_) {
        const QStringList failures = platform_->takeScriptFailures();
        if (!failures.isEmpty() && answer.value("ok").toBool())
            answer = QJsonObject{{"ok", false}, {"error", "AssertionError"}, {"message", failures.join("; ")}};
    }
    return answer;
}

QJsonValue Driver::start(const QJsonObject& request)
{
    stop();
    platform_ = std::make_unique<ScriptedPlatform>();

    const QJsonValue settings = request.value("settings");
    if (!settings.isUndefined() && !settings.isNull()) {
        if (!settings.isArray())
            throw DriverError{"ValueError", "\"settings\" must be a list of [section, key, value]"};
        for (const QJsonValue& row : settings.toArray()) {
            const QJsonArray triple = row.toArray();
            if (triple.size() != 3)
                throw DriverError{"ValueError", "a setting is [section, key, value]"};
            platform_->saveSetting(triple[0].toString(), triple[1].toString(), triple[2].toVariant().toString());
        }
    }
    const QJsonValue browser = request.value("browser_command");
    if (browser.isString())
        platform_->setBrowserCommand(browser.toString());
    else if (!browser.isUndefined() && !browser.isNull())
        throw DriverError{"ValueError", "\"browser_command\" must be a text or null"};
    const QJsonValue http = request.value("http");
    if (http.isObject()) {
        QMap<QString, QString> answers;
        const QJsonObject map = http.toObject();
        for (auto it = map.begin(); it != map.end(); ++it)
            answers.insert(it.key(), it.value().toString());
        platform_->setHttpAnswers(answers);
    }

    QString folder;
    const QJsonValue given = request.value("program_folder");
    if (given.isString() && !given.toString().isEmpty()) {
        folder = given.toString();
        prepareProgramFolder(folder);
    } else {
        folder_ = std::make_unique<QTemporaryDir>();
        folder = folder_->path();
        prepareProgramFolder(folder);
    }
    app_ = std::make_unique<App>(*platform_, folder);
    app_->start();
    return QJsonValue::Undefined;
}

QJsonValue Driver::dispatch(const QJsonObject& request)
{
    const QJsonValue opValue = request.value("op");
    if (!opValue.isString())
        throw DriverError{"ValueError", "a request needs an \"op\""};
    const QString op = opValue.toString();

    if (op == "start")
        return start(request);
    if (op == "constants") {
        QJsonObject applets;
        for (const AppletCredits& c : appletCredits())
            applets.insert(c.classFile, QJsonObject{{"notice", c.notice}, {"author", c.author}, {"website", c.website}});
        return QJsonObject{{"PRODUCT_URL", Addresses::ProductUrl},
                           {"VENDOR_URL", Addresses::VendorUrl},
                           {"DOWNLOAD_URL", Addresses::DownloadUrl},
                           {"VERSION_URL", Addresses::VersionUrl},
                           {"WHATSNEW_URL", Addresses::WhatsNewUrl},
                           {"APPLETS", applets}};
    }
    if (!app_)
        throw DriverError{"ValueError", "no program is running: send \"start\" first"};
    ScriptedPlatform& p = *platform_;
    EffectSession& s = app_->session();

    if (op == "session") {
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
    }
    if (op == "loaded" || op == "shown" || op == "modal") {
        const QString name = requireString(request, "form");
        QWidget* form = app_->forms().findWidget(name);
        if (op == "loaded")
            return form != nullptr;
        if (op == "shown")
            return form && form->isVisible();
        return form && form->isVisible() && form->windowModality() != Qt::NonModal;
    }
    if (op == "ended")
        return app_->ended();
    if (op == "settings") {
        QJsonArray rows;
        for (const ScriptedPlatform::Setting& setting : p.settings())
            rows.append(QJsonArray{setting.section, setting.key, setting.value});
        return rows;
    }
    if (op == "clipboard")
        return p.clipboardText();
    if (op == "set_clipboard") {
        p.setClipboardText(requireString(request, "text"));
        return QJsonValue::Undefined;
    }
    if (op == "busy")
        return p.busy();
    if (op == "messages") {
        QJsonArray out;
        for (const auto& m : p.messages())
            out.append(QJsonObject{{"text", m.text}, {"style", m.style}, {"title", m.title}});
        return out;
    }
    if (op == "answer") {
        const QJsonValue words = request.value("words");
        if (!words.isArray())
            throw DriverError{"ValueError", "\"words\" must be a list"};
        QStringList list;
        for (const QJsonValue& w : words.toArray())
            list << w.toString();
        p.queueAnswers(list);
        return QJsonValue::Undefined;
    }
    if (op == "answer_file") {
        const QJsonValue paths = request.value("paths");
        if (!paths.isArray())
            throw DriverError{"ValueError", "\"paths\" must be a list"};
        QList<std::optional<QString>> list;
        for (const QJsonValue& v : paths.toArray())
            list << (v.isString() ? std::optional<QString>(v.toString()) : std::nullopt);
        p.queueFiles(list);
        return QJsonValue::Undefined;
    }
    if (op == "answer_color") {
        const QJsonValue values = request.value("values");
        if (!values.isArray())
            throw DriverError{"ValueError", "\"values\" must be a list"};
        QList<std::optional<quint32>> list;
        for (const QJsonValue& v : values.toArray())
            list << (v.isDouble() ? std::optional<quint32>(quint32(v.toDouble())) : std::nullopt);
        p.queueColors(list);
        return QJsonValue::Undefined;
    }
    if (op == "dialogs") {
        QJsonArray out;
        for (const auto& d : p.dialogs()) {
            out.append(QJsonObject{
                {"kind", d.kind}, {"title", d.title}, {"filter", d.filter}, {"filter_index", d.filterIndex}});
        }
        return out;
    }
    if (op == "opened")
        return stringArray(p.opened());
    if (op == "started")
        return stringArray(p.started());
    if (op == "help") {
        QJsonArray out;
        for (const auto& h : p.helpRequests())
            out.append(QJsonArray{h.form, h.topic ? QJsonValue(*h.topic) : QJsonValue(QJsonValue::Null)});
        return out;
    }
    if (op == "beeps")
        return p.beeps();
    if (op == "ftp") {
        QJsonArray out;
        for (const auto& f : p.ftpRequests())
            out.append(QJsonArray{f.url, f.user, f.password, f.command});
        return out;
    }
    if (op == "http_requests")
        return stringArray(p.httpRequests());
    if (request.contains("control") || request.contains("form"))
        return control(op, request);
    throw DriverError{"ValueError", QStringLiteral("unknown op \"%1\"").arg(op)};
}

QJsonValue Driver::control(const QString& op, const QJsonObject& request)
{
    const QString formName = requireString(request, "form");
    const QString controlName = requireString(request, "control");
    FormBase* form = app_->forms().find(formName);
    if (!form)
        throw DriverError{"LookupError", QStringLiteral("no form \"%1\" is loaded").arg(formName)};
    QObject* target = findControl(*form, controlName);
    if (!target) {
        throw DriverError{"LookupError",
                          QStringLiteral("form \"%1\" has no control \"%2\"").arg(formName, controlName)};
    }
    return controlOp(*form, target, op, request);
}

int runAutomation()
{
    Driver driver;
    std::string line;
    while (std::getline(std::cin, line)) {
        if (line.find_first_not_of(" \t\r") == std::string::npos)
            continue;
        const QJsonObject answer = driver.handleLine(QByteArray::fromStdString(line));
        const QByteArray out = QJsonDocument(answer).toJson(QJsonDocument::Compact);
        std::fwrite(out.constData(), 1, size_t(out.size()), stdout);
        std::fputc('\n', stdout);
        std::fflush(stdout);
    }
    return 0;
}

}  // namespace ql
