#pragma once

#include <QString>
#include <QStringList>

class QWidget;

namespace ql {

// A control that lists the folders or files at a path (a folder list or a
// file list). Setting the path runs its change handler.
class PathListControl {
public:
    virtual ~PathListControl() = default;
    virtual QString path() const = 0;
    virtual void setPath(const QString& path) = 0;
    virtual QStringList entries() const = 0;
};

// A control that lists the drives (mounted volumes).
class DriveListControl {
public:
    virtual ~DriveListControl() = default;
    virtual QString drive() const = 0;
    virtual void setDrive(const QString& drive) = 0;
    virtual QStringList entries() const = 0;
};

// A control that can be dragged with the mouse and dropped on another one.
class DragSourceControl {
public:
    virtual ~DragSourceControl() = default;
    virtual void dropOn(QWidget* target) = 0;
};

}  // namespace ql
