#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <optional>

namespace ql {

// Message box styles, as style numbers: buttons + icon.
namespace MsgStyle {
constexpr int OkOnly = 0;
constexpr int OkCancel = 1;
constexpr int YesNoCancel = 3;
constexpr int YesNo = 4;
constexpr int Critical = 16;
constexpr int Question = 32;
constexpr int Exclamation = 48;
constexpr int Information = 64;
}  // namespace MsgStyle

// The answer of a message box: the button that closed it.
enum class MsgAnswer { Ok = 1, Cancel = 2, Abort = 3, Retry = 4, Ignore = 5, Yes = 6, No = 7 };

struct FileDialogRequest {
    enum class Kind { Open, Save };
    Kind kind = Kind::Open;
    QString title;
    // Pairs of description and pattern separated by '|':
    // "All Files (*.*)|*.*|GIF Files (*.gif)|*.gif"
    QString filter;
    int filterIndex = 1;  // 1-based pair index
    QString fileName;
};

// A value read from the system's association store (the default-browser
// command and the like).
struct RegistryData {
    enum Type { None = 0, String = 1, ExpandString = 2, Binary = 3, DWord = 4 };
    int type = String;
    QString text;         // for String: the text, without terminating zero
    quint32 number = 0;   // for DWord
    bool secondReadFails = false;  // the data read after the size query fails
};

// Error numbers of the file layer, as the program reports them.
namespace FileError {
constexpr int None = 0;
constexpr int FileNotFound = 53;
constexpr int DiskFull = 61;
constexpr int BadFileMode = 54;
constexpr int PermissionDenied = 70;
constexpr int PathFileAccess = 75;
constexpr int PathNotFound = 76;
constexpr int DeviceIO = 57;
constexpr int DeviceUnavailable = 68;
constexpr int DiskNotReady = 71;
}  // namespace FileError

// Every file operation of the program passes here, so that refusals and
// disk errors can be injected in tests.
class FileSystem {
public:
    virtual ~FileSystem() = default;
    // True when the file can be opened for reading (a folder cannot).
    virtual bool canOpenForReading(const QString& path) = 0;
    virtual bool isFile(const QString& path) = 0;
    virtual bool isDir(const QString& path) = 0;
    // Copies source over target (replacing it); answers a FileError number.
    virtual int copyFile(const QString& source, const QString& target) = 0;
    // Writes the whole file or nothing; answers a FileError number.
    virtual int writeFile(const QString& path, const QByteArray& bytes) = 0;
    virtual std::optional<QByteArray> readFile(const QString& path) = 0;
    virtual int makeDir(const QString& path) = 0;
    // Plain file names in a folder, sorted as the system lists them.
    virtual QStringList fileNames(const QString& folder) = 0;
    virtual QStringList subfolderNames(const QString& folder) = 0;
    // The mounted volumes, as their root paths.
    virtual QStringList drives() = 0;
    // Whether a drive can be entered: a FileError number, 0 when it can.
    virtual int enterDrive(const QString& drive) = 0;
};

// What the program asks of the outside world. The real implementation talks
// to the desktop; the scripted one records the questions and answers them
// from queues.
class Platform {
public:
    virtual ~Platform() = default;

    // Shows a message box of the given style and answers the button pressed.
    virtual MsgAnswer messageBox(const QString& text, int style, const QString& title) = 0;
    // An open or save dialog: the chosen full path, nothing for Cancel.
    virtual std::optional<QString> fileDialog(const FileDialogRequest& request) = 0;
    // The colour dialog: red + green * 256 + blue * 65536, nothing for Cancel.
    virtual std::optional<quint32> colorDialog(const QString& title) = 0;

    virtual QString clipboardText() = 0;
    virtual void setClipboardText(const QString& text) = 0;
    virtual void clearClipboard() = 0;

    virtual QString setting(const QString& section, const QString& key, const QString& fallback) = 0;
    virtual void saveSetting(const QString& section, const QString& key, const QString& value) = 0;

    // Opens a document or address with its associated program.
    virtual bool shellOpen(const QString& document) = 0;
    // Starts a program; answers false when it could not be started.
    virtual bool startProgram(const QString& command) = 0;
    // Opens the help of a form at a topic, or at the form's own topic.
    virtual void showHelp(const QString& helpFile, const QString& form, std::optional<int> topic) = 0;
    virtual void beep() = 0;
    virtual void setBusy(bool busy) = 0;
    virtual bool busy() const = 0;

    // A blocking HTTP GET of a text; nothing when it fails.
    virtual std::optional<QString> httpGet(const QString& url) = 0;
    // One FTP command against a server; answers false on failure.
    virtual bool ftpCommand(const QString& url, const QString& user, const QString& password,
                            const QString& command) = 0;

    // Reads a value of the association store; nothing when the key or value
    // is absent.
    virtual std::optional<RegistryData> readRegistry(const QString& key, const QString& valueName) = 0;

    virtual FileSystem& files() = 0;
};

}  // namespace ql
