#pragma once

#include "platform/LocalFileSystem.h"
#include "platform/Platform.h"

#include <QPointer>

class QWidget;

namespace ql {

class HelpViewer;

// The platform of a person at the desktop: real dialogs, clipboard, settings
// store, browser and program launch.
class QtPlatform : public Platform {
public:
    QtPlatform();
    ~QtPlatform() override;

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

    // The command line that the desktop runs to open a Web address, or
    // nothing when no default browser is known.
    static std::optional<QString> defaultBrowserCommand();
    // Turns "All Files (*.*)|*.*|GIF Files (*.gif)|*.gif" into the filter
    // list of a Qt file dialog.
    static QStringList qtFilters(const QString& filter);

private:
    QWidget* dialogParent() const;
    LocalFileSystem files_;
    bool busy_ = false;
    QPointer<HelpViewer> help_;
};

}  // namespace ql
