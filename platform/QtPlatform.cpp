#include "platform/QtPlatform.h"

#include "platform/HelpViewer.h"

#include <QApplication>
#include <QClipboard>
#include <QColorDialog>
#include <QDesktopServices>
#include <QDir>
#include <QEventLoop>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QProcess>
#include <QPushButton>
#include <QRegularExpression>
#include <QSettings>
#include <QStandardPaths>
#include <QTimer>
#include <QUrl>

namespace ql {

QtPlatform::QtPlatform() = default;

QtPlatform::~QtPlatform()
{
    delete help_.data();
}

QWidget* QtPlatform::dialogParent() const
{
    if (QWidget* w = QApplication::activeModalWidget())
        return w;
    return QApplication::activeWindow();
}

MsgAnswer QtPlatform::messageBox(const QString& text, int style, const QString& title)
{
    QMessageBox box(dialogParent());
    box.setWindowTitle(title.isEmpty() ? QStringLiteral("Quillet") : title);
    box.setText(text);
    switch (style & 0x70) {
    case MsgStyle::Critical: box.setIcon(QMessageBox::Critical); break;
    case MsgStyle::Question: box.setIcon(QMessageBox::Question); break;
    case MsgStyle::Exclamation: box.setIcon(QMessageBox::Warning); break;
    case MsgStyle::Information: box.setIcon(QMessageBox::Information); break;
    default: box.setIcon(QMessageBox::NoIcon); break;
    }
    struct Button { QMessageBox::StandardButton qt; MsgAnswer answer; };
    QList<Button> buttons;
    switch (style & 7) {
    case 1: buttons = {{QMessageBox::Ok, MsgAnswer::Ok}, {QMessageBox::Cancel, MsgAnswer::Cancel}}; break;
    case 2: buttons = {{QMessageBox::Abort, MsgAnswer::Abort}, {QMessageBox::Retry, MsgAnswer::Retry},
                       {QMessageBox::Ignore, MsgAnswer::Ignore}}; break;
    case 3: buttons = {{QMessageBox::Yes, MsgAnswer::Yes}, {QMessageBox::No, MsgAnswer::No},
                       {QMessageBox::Cancel, MsgAnswer::Cancel}}; break;
    case 4: buttons = {{QMessageBox::Yes, MsgAnswer::Yes}, {QMessageBox::No, MsgAnswer::No}}; break;
    case 5: buttons = {{QMessageBox::Retry, MsgAnswer::Retry}, {QMessageBox::Cancel, MsgAnswer::Cancel}}; break;
    default: buttons = {{QMessageBox::Ok, MsgAnswer::Ok}}; break;
    }
    QMessageBox::StandardButtons set;
    for (const Button& b : buttons)
        set |= b.qt;
    box.setStandardButtons(set);
    box.setDefaultButton(buttons.first().qt);
    box.setEscapeButton(buttons.last().qt);
    const auto pressed = static_cast<QMessageBox::StandardButton>(box.exec());
    for (const Button& b : buttons) {
        if (b.qt == pressed)
            return b.answer;
    }
    return buttons.last().answer;
}

QStringList QtPlatform::qtFilters(const QString& filter)
{
    const QStringList parts = filter.split('|');
    QStringList out;
    for (int i = 0; i + 1 < parts.size(); i += 2) {
        QString description = parts[i];
        const int paren = description.indexOf('(');
        if (paren > 0)
            description = description.left(paren).trimmed();
        QStringList patterns = parts[i + 1].split(';', Qt::SkipEmptyParts);
        for (QString& p : patterns) {
            p = p.trimmed();
            if (p == QLatin1String("*.*"))
                p = QStringLiteral("*");
        }
        out << QStringLiteral("%1 (%2)").arg(description, patterns.join(' '));
    }
    return out;
}

std::optional<QString> QtPlatform::fileDialog(const FileDialogRequest& request)
{
    QFileDialog dialog(dialogParent(), request.title);
    dialog.setAcceptMode(request.kind == FileDialogRequest::Kind::Save ? QFileDialog::AcceptSave
                                                                         : QFileDialog::AcceptOpen);
    dialog.setFileMode(request.kind == FileDialogRequest::Kind::Save ? QFileDialog::AnyFile
                                                                       : QFileDialog::ExistingFile);
    const QStringList filters = qtFilters(request.filter);
    if (!filters.isEmpty()) {
        dialog.setNameFilters(filters);
        const int index = request.filterIndex - 1;
        if (index >= 0 && index < filters.size())
            dialog.selectNameFilter(filters[index]);
    }
    if (!request.fileName.isEmpty())
        dialog.selectFile(request.fileName);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    return QDir::toNativeSeparators(dialog.selectedFiles().first());
}

std::optional<quint32> QtPlatform::colorDialog(const QString& title)
{
    const QColor c = QColorDialog::getColor(Qt::white, dialogParent(), title.isEmpty() ? QStringLiteral("Color") : title);
    if (!c.isValid())
        return std::nullopt;
    return quint32(c.red()) + quint32(c.green()) * 256u + quint32(c.blue()) * 65536u;
}

QString QtPlatform::clipboardText()
{
    return QGuiApplication::clipboard()->text();
}

void QtPlatform::setClipboardText(const QString& text)
{
    QGuiApplication::clipboard()->setText(text);
}

void QtPlatform::clearClipboard()
{
    QGuiApplication::clipboard()->clear();
}

QString QtPlatform::setting(const QString& section, const QString& key, const QString& fallback)
{
    QSettings store(QStringLiteral("Quillet"), QStringLiteral("Quillet"));
    return store.value(section + '/' + key, fallback).toString();
}

void QtPlatform::saveSetting(const QString& section, const QString& key, const QString& value)
{
    QSettings store(QStringLiteral("Quillet"), QStringLiteral("Quillet"));
    store.setValue(section + '/' + key, value);
    store.sync();
}

bool QtPlatform::shellOpen(const QString& document)
{
    const QUrl url = QFileInfo::exists(document) ? QUrl::fromLocalFile(document) : QUrl::fromUserInput(document);
    return QDesktopServices::openUrl(url);
}

bool QtPlatform::startProgram(const QString& command)
{
    QStringList args = QProcess::splitCommand(command);
    if (args.isEmpty())
        return false;
    // A path with blanks and no quotes names one program.
    if (QFileInfo(command).isFile())
        args = QStringList{command};
    const QString program = args.takeFirst();
    return QProcess::startDetached(program, args);
}

void QtPlatform::showHelp(const QString& helpFile, const QString& form, std::optional<int> topic)
{
    // Under a modal form the help must belong to that form, or the form
    // would block it.
    QWidget* owner = QApplication::activeModalWidget();
    if (!help_)
        help_ = new HelpViewer();
    if (help_->parentWidget() != owner)
        help_->setParent(owner, Qt::Window);
    // It opens over the form that asked for it.
    const QWidget* over = nullptr;
    for (const QWidget* w : QApplication::topLevelWidgets()) {
        if (w->isVisible() && w->objectName() == form) {
            over = w;
            break;
        }
    }
    if (!over)
        over = owner ? owner : QApplication::activeWindow();
    help_->showTopic(helpFile, form, topic, over);
}

void QtPlatform::beep()
{
    QApplication::beep();
}

void QtPlatform::setBusy(bool busy)
{
    if (busy == busy_)
        return;
    busy_ = busy;
    if (busy)
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QGuiApplication::restoreOverrideCursor();
}

bool QtPlatform::busy() const
{
    return busy_;
}

std::optional<QString> QtPlatform::httpGet(const QString& url)
{
    QNetworkAccessManager manager;
    QNetworkRequest request{QUrl(url)};
    request.setTransferTimeout(30000);
    QNetworkReply* reply = manager.get(request);
    QEventLoop loop;
    QObject::connect(reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
    loop.exec(QEventLoop::ExcludeUserInputEvents);
    std::optional<QString> text;
    if (reply->error() == QNetworkReply::NoError)
        text = QString::fromUtf8(reply->readAll());
    reply->deleteLater();
    return text;
}

bool QtPlatform::ftpCommand(const QString&, const QString&, const QString&, const QString&)
{
    // No FTP client is built in yet: every command fails.
    return false;
}

std::optional<QString> QtPlatform::defaultBrowserCommand()
{
    // The desktop's choice first, then the system's alternative.
    QProcess xdg;
    xdg.start(QStringLiteral("xdg-settings"), {QStringLiteral("get"), QStringLiteral("default-web-browser")});
    if (xdg.waitForFinished(3000) && xdg.exitCode() == 0) {
        const QString desktopFile = QString::fromLocal8Bit(xdg.readAllStandardOutput()).trimmed();
        if (!desktopFile.isEmpty()) {
            const QString path = QStandardPaths::locate(QStandardPaths::ApplicationsLocation, desktopFile);
            QFile file(path);
            if (!path.isEmpty() && file.open(QIODevice::ReadOnly | QIODevice::Text)) {
                bool inEntry = false;
                while (!file.atEnd()) {
                    const QString line = QString::fromUtf8(file.readLine()).trimmed();
                    if (line.startsWith('['))
                        inEntry = line == QLatin1String("[Desktop Entry]");
                    else if (inEntry && line.startsWith(QLatin1String("Exec=")))
                        return line.mid(5);
                }
            }
        }
    }
    for (const char* candidate : {"/usr/bin/x-www-browser", "/usr/bin/sensible-browser"}) {
        const QFileInfo info(QString::fromLatin1(candidate));
        if (info.exists())
            return info.canonicalFilePath() + QStringLiteral(" %1");
    }
    return std::nullopt;
}

std::optional<RegistryData> QtPlatform::readRegistry(const QString& key, const QString& valueName)
{
    if (key.compare(QLatin1String("http\\shell\\open\\command"), Qt::CaseInsensitive) != 0 || !valueName.isEmpty())
        return std::nullopt;
    const std::optional<QString> command = defaultBrowserCommand();
    if (!command)
        return std::nullopt;
    RegistryData data;
    data.type = RegistryData::String;
    data.text = *command;
    return data;
}

FileSystem& QtPlatform::files()
{
    return files_;
}

}  // namespace ql
