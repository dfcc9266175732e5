#include "core/FileLists.h"

#include "core/App.h"
#include "platform/Platform.h"

#include <QApplication>
#include <QDir>
#include <QStyle>

namespace ql {

QString joinPath(const QString& folder, const QString& name)
{
    if (folder.endsWith('/'))
        return folder + name;
    return folder + '/' + name;
}

bool canEnterDrive(App& app, const QString& drive)
{
    const int error = app.platform().files().enterDrive(drive);
    if (error == FileError::None)
        return true;
    app.platform().beep();
    switch (error) {
    case FileError::DeviceIO: app.msgBox(QStringLiteral("Drive I/O error."), MsgStyle::OkOnly); break;
    case FileError::PermissionDenied: app.msgBox(QStringLiteral("Permission denied."), MsgStyle::OkOnly); break;
    case FileError::DiskNotReady: app.msgBox(QStringLiteral("Drive not ready."), MsgStyle::OkOnly); break;
    default: break;
    }
    return false;
}

void followDrive(App& app, DriveListBox& drives, DirListBox& folders, const QString& drive)
{
    if (canEnterDrive(app, drive))
        folders.setPath(drive);
    else
        drives.revert();
}

// ---- DriveListBox

DriveListBox::DriveListBox(FileSystem& files, QWidget* parent)
    : QComboBox(parent)
    , files_(files)
{
    addItems(files_.drives());
    connect(this, &QComboBox::activated, this, [this](int index) { setDrive(itemText(index)); });
}

QStringList DriveListBox::entries() const
{
    QStringList out;
    for (int i = 0; i < count(); ++i)
        out << itemText(i);
    return out;
}

void DriveListBox::setDrive(const QString& drive)
{
    previous_ = drive_;
    showDrive(drive);
    if (drive != previous_)
        emit driveChanged(drive);
}

void DriveListBox::showDriveOf(const QString& path)
{
    QString best;
    for (const QString& root : entries()) {
        const QString prefix = root.endsWith('/') ? root : root + '/';
        if ((path == root || path.startsWith(prefix)) && root.size() > best.size())
            best = root;
    }
    if (!best.isEmpty())
        showDrive(best);
}

void DriveListBox::showDrive(const QString& drive)
{
    int index = findText(drive);
    if (index < 0) {
        addItem(drive);
        index = count() - 1;
    }
    drive_ = drive;
    setCurrentIndex(index);
}

void DriveListBox::revert()
{
    // Called from the change handler: the previous drive is shown again.
    drive_ = previous_;
    setCurrentIndex(findText(drive_));
}

// ---- DirListBox

DirListBox::DirListBox(FileSystem& files, QWidget* parent)
    : QListWidget(parent)
    , files_(files)
{
    connect(this, &QListWidget::itemDoubleClicked, this, [this](QListWidgetItem* item) {
        setPath(item->data(Qt::UserRole).toString());
    });
}

void DirListBox::setPath(const QString& path)
{
    QString clean = QDir::cleanPath(path);
    if (clean.isEmpty())
        return;
    path_ = clean;
    refresh();
    emit pathChanged(path_);
}

void DirListBox::refresh()
{
    clear();
    if (path_.isEmpty())
        return;
    const QIcon open = style()->standardIcon(QStyle::SP_DirOpenIcon);
    const QIcon closed = style()->standardIcon(QStyle::SP_DirClosedIcon);
    // The chain of folders from the root down to the path.
    QStringList chain;
    for (QString p = path_;;) {
        chain.prepend(p);
        if (p == QLatin1String("/") || p.isEmpty())
            break;
        const int slash = int(p.lastIndexOf('/'));
        p = slash <= 0 ? QStringLiteral("/") : p.left(slash);
    }
    int depth = 0;
    for (const QString& folder : chain) {
        const QString name = folder == QLatin1String("/") ? folder : folder.mid(folder.lastIndexOf('/') + 1);
        auto* item = new QListWidgetItem(open, QString(depth * 2, ' ') + name, this);
        item->setData(Qt::UserRole, folder);
        ++depth;
    }
    if (!chain.isEmpty())
        setCurrentRow(count() - 1);
    for (const QString& sub : files_.subfolderNames(path_)) {
        auto* item = new QListWidgetItem(closed, QString(depth * 2, ' ') + sub, this);
        item->setData(Qt::UserRole, joinPath(path_, sub));
    }
}

QStringList DirListBox::entries() const
{
    QStringList out;
    for (int i = 0; i < count(); ++i)
        out << item(i)->data(Qt::UserRole).toString();
    return out;
}

// ---- FileListBox

FileListBox::FileListBox(FileSystem& files, QWidget* parent)
    : QListWidget(parent)
    , files_(files)
{
}

void FileListBox::setPath(const QString& path)
{
    path_ = QDir::cleanPath(path);
    refresh();
}

void FileListBox::refresh()
{
    const QStringList before = selectedNames();
    clear();
    if (path_.isEmpty())
        return;
    addItems(files_.fileNames(path_));
    for (int i = 0; i < count(); ++i) {
        if (before.contains(item(i)->text()))
            item(i)->setSelected(true);
    }
}

QStringList FileListBox::entries() const
{
    QStringList out;
    for (int i = 0; i < count(); ++i)
        out << item(i)->text();
    return out;
}

QStringList FileListBox::selectedNames() const
{
    QStringList out;
    for (int i = 0; i < count(); ++i) {
        if (item(i)->isSelected())
            out << item(i)->text();
    }
    return out;
}

}  // namespace ql
