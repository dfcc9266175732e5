#pragma once

#include "core/ListControls.h"

#include <QComboBox>
#include <QListWidget>

namespace ql {

class FileSystem;

// The drives: the mounted volumes, by their root paths. Choosing one runs
// driveChanged; a handler that refuses the drive puts the old one back with
// revert().
class DriveListBox : public QComboBox, public DriveListControl {
    Q_OBJECT
public:
    DriveListBox(FileSystem& files, QWidget* parent = nullptr);
    QString drive() const override { return drive_; }
    void setDrive(const QString& drive) override;
    QStringList entries() const override;
    // Shows the drive that holds a path, without running the handler.
    void showDriveOf(const QString& path);
    // Shows a drive as it is named, without running the handler.
    void showDrive(const QString& drive);
    void revert();

signals:
    void driveChanged(const QString& drive);

private:
    FileSystem& files_;
    QString drive_;
    QString previous_;
};

// The folders: the path's ancestors from the root down, then its subfolders.
// A double-click opens a folder; a change of path runs pathChanged.
class DirListBox : public QListWidget, public PathListControl {
    Q_OBJECT
public:
    DirListBox(FileSystem& files, QWidget* parent = nullptr);
    QString path() const override { return path_; }
    void setPath(const QString& path) override;
    // Full paths of the listed folders, in list order.
    QStringList entries() const override;
    void refresh();

signals:
    void pathChanged(const QString& path);

private:
    FileSystem& files_;
    QString path_;
};

// The files of a folder.
class FileListBox : public QListWidget, public PathListControl {
    Q_OBJECT
public:
    FileListBox(FileSystem& files, QWidget* parent = nullptr);
    QString path() const override { return path_; }
    void setPath(const QString& path) override;
    QStringList entries() const override;
    void refresh();
    // The selected names, in list order.
    QStringList selectedNames() const;

private:
    FileSystem& files_;
    QString path_;
};

class App;

// Whether a drive can be entered. When it cannot, the program beeps and says
// why ("Drive I/O error.", "Permission denied.", "Drive not ready."; other
// errors say nothing).
bool canEnterDrive(App& app, const QString& drive);

// The folder list follows a drive chosen in the drive list; a drive that
// cannot be entered is refused and the drive list shows the old one again.
void followDrive(App& app, DriveListBox& drives, DirListBox& folders, const QString& drive);

// A path and a name joined with one separator.
QString joinPath(const QString& folder, const QString& name);

}  // namespace ql
