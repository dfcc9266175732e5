#pragma once

#include "platform/LocalFileSystem.h"
#include "platform/Platform.h"

#include <QHash>
#include <QList>
#include <QMap>
#include <deque>

namespace ql {

// The disk, with faults that a test can inject by path: an operation that
// touches a faulted path answers the injected error number instead.
class ScriptedFileSystem : public LocalFileSystem {
public:
    enum Op { Read = 1, Write = 2, Copy = 4, MakeDir = 8, AllOps = 15 };
    void injectFault(const QString& path, int error, int ops = AllOps);
    void clearFaults();
    // Drives that refuse to be entered, with their error number.
    void setDriveFault(const QString& drive, int error);

    bool canOpenForReading(const QString& path) override;
    int copyFile(const QString& source, const QString& target) override;
    int writeFile(const QString& path, const QByteArray& bytes) override;
    std::optional<QByteArray> readFile(const QString& path) override;
    int makeDir(const QString& path) override;
    int enterDrive(const QString& drive) override;

private:
    int fault(const QString& path, Op op) const;
    struct Fault { int error; int ops; };
    QHash<QString, Fault> faults_;
    QHash<QString, int> driveFaults_;
};

// A platform that records what the program asks and answers from queues.
// A question met with an empty queue is answered with its last button and
// noted as a failure of the script.
class ScriptedPlatform : public Platform {
public:
    struct Message { QString text; int style; QString title; };
    struct Dialog { QString kind; QString title; QString filter; int filterIndex; };
    struct HelpRequest { QString form; std::optional<int> topic; };
    struct FtpRequest { QString url, user, password, command; };
    struct Setting { QString section, key, value; };

    ScriptedPlatform();

    MsgAnswer messageBox(const QString& text, int style, const QString& title) override;
    std::optional<QString> fileDialog(const FileDialogRequest& request) override;
    std::optional<quint32> colorDialog(const QString& title) override;
    QString clipboardText() override;
    void setClipboardText(const QString& text) override;
    void clearClipboard() override;
    QString setting(const QString& section, const QString& key, const QString& fallback) override;
    void saveSetting(const QString& section, const QString& key, const QString& value) override;
    bool shellOpen(const QString& document) override;
    bool startProgram(const QString& command) override;
    void showHelp(const QString& helpFile, const QString& form, std::optional<int> topic) override;
    void beep() override;
    void setBusy(bool busy) override;
    bool busy() const override;
    std::optional<QString> httpGet(const QString& url) override;
    bool ftpCommand(const QString& url, const QString& user, const QString& password,
                    const QString& command) override;
    std::optional<RegistryData> readRegistry(const QString& key, const QString& valueName) override;
    FileSystem& files() override;

    // Script side.
    void queueAnswers(const QStringList& words);
    void queueFiles(const QList<std::optional<QString>>& paths);
    void queueColors(const QList<std::optional<quint32>>& values);
    void setBrowserCommand(const std::optional<QString>& command);
    void setRegistryValue(const QString& key, const QString& valueName, const RegistryData& data);
    void setHttpAnswers(const QMap<QString, QString>& answers);
    void setProgramsThatFail(const QStringList& commands);
    ScriptedFileSystem& scriptedFiles() { return files_; }

    const QList<Message>& messages() const { return messages_; }
    const QList<Dialog>& dialogs() const { return dialogs_; }
    const QStringList& opened() const { return opened_; }
    const QStringList& started() const { return started_; }
    const QList<HelpRequest>& helpRequests() const { return help_; }
    int beeps() const { return beeps_; }
    const QList<FtpRequest>& ftpRequests() const { return ftp_; }
    const QStringList& httpRequests() const { return httpRequests_; }
    const QList<Setting>& settings() const { return settings_; }

    // Failures of the script since the last call, emptied by the call.
    QStringList takeScriptFailures();

private:
    std::deque<QString> answers_;
    std::deque<std::optional<QString>> fileAnswers_;
    std::deque<std::optional<quint32>> colorAnswers_;
    QList<Message> messages_;
    QList<Dialog> dialogs_;
    QStringList opened_;
    QStringList started_;
    QStringList failingPrograms_;
    QList<HelpRequest> help_;
    int beeps_ = 0;
    QList<FtpRequest> ftp_;
    QStringList httpRequests_;
    QMap<QString, QString> http_;
    QList<Setting> settings_;
    QMap<QString, RegistryData> registry_;
    QString clipboard_;
    bool busy_ = false;
    QStringList failures_;
    ScriptedFileSystem files_;
};

}  // namespace ql
