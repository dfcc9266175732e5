#include "platform/ScriptedPlatform.h"

#include <QDir>

namespace ql {

namespace {

QString registryKey(const QString& key, const QString& valueName)
{
    return key + QChar(0) + valueName;
}

// The buttons of a box style, in order.
QList<MsgAnswer> buttonsOf(int style)
{
    switch (style & 7) {
    case 1: return {MsgAnswer::Ok, MsgAnswer::Cancel};
    case 2: return {MsgAnswer::Abort, MsgAnswer::Retry, MsgAnswer::Ignore};
    case 3: return {MsgAnswer::Yes, MsgAnswer::No, MsgAnswer::Cancel};
    case 4: return {MsgAnswer::Yes, MsgAnswer::No};
    case 5: return {MsgAnswer::Retry, MsgAnswer::Cancel};
    default: return {MsgAnswer::Ok};
    }
}

std::optional<MsgAnswer> answerOfWord(const QString& word)
{
    static const QHash<QString, MsgAnswer> words = {
        {"ok", MsgAnswer::Ok}, {"cancel", MsgAnswer::Cancel}, {"abort", MsgAnswer::Abort},
        {"retry", MsgAnswer::Retry}, {"ignore", MsgAnswer::Ignore}, {"yes", MsgAnswer::Yes},
        {"no", MsgAnswer::No}};
    const auto it = words.find(word.trimmed().toLower());
    if (it == words.end())
        return std::nullopt;
    return *it;
}

QString clean(const QString& path)
{
    return QDir::cleanPath(path);
}

}  // namespace

// ---- ScriptedFileSystem

void ScriptedFileSystem::injectFault(const QString& path, int error, int ops)
{
    faults_.insert(clean(path), Fault{error, ops});
}

void ScriptedFileSystem::clearFaults()
{
    faults_.clear();
    driveFaults_.clear();
}

void ScriptedFileSystem::setDriveFault(const QString& drive, int error)
{
    driveFaults_.insert(drive, error);
}

int ScriptedFileSystem::enterDrive(const QString& drive)
{
    if (const int e = driveFaults_.value(drive, FileError::None))
        return e;
    return LocalFileSystem::enterDrive(drive);
}

int ScriptedFileSystem::fault(const QString& path, Op op) const
{
    if (path.isEmpty())
        return FileError::None;
    // A fault on a folder covers everything below it.
    QString probe = clean(path);
    while (true) {
        const auto it = faults_.find(probe);
        if (it != faults_.end() && (it->ops & op))
            return it->error;
        const int slash = probe.lastIndexOf('/');
        if (slash <= 0)
            break;
        probe.truncate(slash);
    }
    return FileError::None;
}

bool ScriptedFileSystem::canOpenForReading(const QString& path)
{
    return !fault(path, Read) && LocalFileSystem::canOpenForReading(path);
}

int ScriptedFileSystem::copyFile(const QString& source, const QString& target)
{
    if (const int e = fault(source, Read))
        return e;
    if (const int e = fault(target, Copy))
        return e;
    if (const int e = fault(target, Write))
        return e;
    return LocalFileSystem::copyFile(source, target);
}

int ScriptedFileSystem::writeFile(const QString& path, const QByteArray& bytes)
{
    if (const int e = fault(path, Write))
        return e;
    return LocalFileSystem::writeFile(path, bytes);
}

std::optional<QByteArray> ScriptedFileSystem::readFile(const QString& path)
{
    if (fault(path, Read))
        return std::nullopt;
    return LocalFileSystem::readFile(path);
}

int ScriptedFileSystem::makeDir(const QString& path)
{
    if (const int e = fault(path, MakeDir))
        return e;
    return LocalFileSystem::makeDir(path);
}

// ---- ScriptedPlatform

ScriptedPlatform::ScriptedPlatform() = default;

MsgAnswer ScriptedPlatform::messageBox(const QString& text, int style, const QString& title)
{
    messages_.append(Message{text, style, title});
    const QList<MsgAnswer> buttons = buttonsOf(style);
    if (buttons.size() == 1)
        return MsgAnswer::Ok;
    if (answers_.empty()) {
        failures_ << QStringLiteral("a question box had no queued answer: %1").arg(text);
        return buttons.last();
    }
    const QString word = answers_.front();
    answers_.pop_front();
    const std::optional<MsgAnswer> answer = answerOfWord(word);
    if (!answer || !buttons.contains(*answer)) {
        failures_ << QStringLiteral("the answer \"%1\" is not a button of the box: %2").arg(word, text);
        return buttons.last();
    }
    return *answer;
}

std::optional<QString> ScriptedPlatform::fileDialog(const FileDialogRequest& request)
{
    dialogs_.append(Dialog{request.kind == FileDialogRequest::Kind::Save ? "save" : "open", request.title,
                           request.filter, request.filterIndex});
    if (fileAnswers_.empty()) {
        failures_ << QStringLiteral("a file dialog had no queued answer: %1").arg(request.title);
        return std::nullopt;
    }
    const std::optional<QString> answer = fileAnswers_.front();
    fileAnswers_.pop_front();
    return answer;
}

std::optional<quint32> ScriptedPlatform::colorDialog(const QString& title)
{
    dialogs_.append(Dialog{"color", title, QString(), 0});
    if (colorAnswers_.empty()) {
        failures_ << QStringLiteral("a colour dialog had no queued answer");
        return std::nullopt;
    }
    const std::optional<quint32> answer = colorAnswers_.front();
    colorAnswers_.pop_front();
    return answer;
}

QString ScriptedPlatform::clipboardText() { return clipboard_; }
void ScriptedPlatform::setClipboardText(const QString& text) { clipboard_ = text; }
void ScriptedPlatform::clearClipboard() { clipboard_.clear(); }

QString ScriptedPlatform::setting(const QString& section, const QString& key, const QString& fallback)
{
    for (const Setting& s : settings_) {
        if (s.section == section && s.key == key)
            return s.value;
    }
    return fallback;
}

void ScriptedPlatform::saveSetting(const QString& section, const QString& key, const QString& value)
{
    for (Setting& s : settings_) {
        if (s.section == section && s.key == key) {
            s.value = value;
            return;
        }
    }
    settings_.append(Setting{section, key, value});
}

bool ScriptedPlatform::shellOpen(const QString& document)
{
    opened_ << document;
    return true;
}

bool ScriptedPlatform::startProgram(const QString& command)
{
    started_ << command;
    return !failingPrograms_.contains(command);
}

void ScriptedPlatform::showHelp(const QString&, const QString& form, std::optional<int> topic)
{
    help_.append(HelpRequest{form, topic});
}

void ScriptedPlatform::beep() { ++beeps_; }
void ScriptedPlatform::setBusy(bool busy) { busy_ = busy; }
bool ScriptedPlatform::busy() const { return busy_; }

std::optional<QString> ScriptedPlatform::httpGet(const QString& url)
{
    httpRequests_ << url;
    const auto it = http_.find(url);
    if (it == http_.end())
        return std::nullopt;
    return *it;
}

bool ScriptedPlatform::ftpCommand(const QString& url, const QString& user, const QString& password,
                                  const QString& command)
{
    ftp_.append(FtpRequest{url, user, password, command});
    return true;
}

std::optional<RegistryData> ScriptedPlatform::readRegistry(const QString& key, const QString& valueName)
{
    const auto it = registry_.find(registryKey(key, valueName));
    if (it == registry_.end())
        return std::nullopt;
    return *it;
}

FileSystem& ScriptedPlatform::files() { return files_; }

void ScriptedPlatform::queueAnswers(const QStringList& words)
{
    for (const QString& w : words)
        answers_.push_back(w);
}

void ScriptedPlatform::queueFiles(const QList<std::optional<QString>>& paths)
{
    for (const auto& p : paths)
        fileAnswers_.push_back(p);
}

void ScriptedPlatform::queueColors(const QList<std::optional<quint32>>& values)
{
    for (const auto& v : values)
        colorAnswers_.push_back(v);
}

void ScriptedPlatform::setBrowserCommand(const std::optional<QString>& command)
{
    const QString k = registryKey(QStringLiteral("http\\shell\\open\\command"), QString());
    if (!command) {
        registry_.remove(k);
        return;
    }
    RegistryData data;
    data.type = RegistryData::String;
    data.text = *command;
    registry_.insert(k, data);
}

void ScriptedPlatform::setRegistryValue(const QString& key, const QString& valueName, const RegistryData& data)
{
    registry_.insert(registryKey(key, valueName), data);
}

void ScriptedPlatform::setHttpAnswers(const QMap<QString, QString>& answers) { http_ = answers; }

void ScriptedPlatform::setProgramsThatFail(const QStringList& commands) { failingPrograms_ = commands; }

QStringList ScriptedPlatform::takeScriptFailures()
{
    QStringList out;
    out.swap(failures_);
    return out;
}

}  // namespace ql
