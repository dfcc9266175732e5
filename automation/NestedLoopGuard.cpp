#include "automation/NestedLoopGuard.h"

#include "core/Form.h"

#include <QApplication>
#include <QDialog>
#include <QDrag>
#include <QEvent>
#include <QPointer>
#include <QWidget>

namespace ql {

namespace {

void closeWindow(QWidget* window)
{
    // A dialog's exec() and a menu's exec() both end when the window goes.
    if (auto* dialog = qobject_cast<QDialog*>(window))
        dialog->reject();
    else
        window->close();
}

}  // namespace

NestedLoopGuard::NestedLoopGuard()
{
    qApp->installEventFilter(this);
    // A nested event loop runs the timer; the plain run of requests does not.
    watch_.setInterval(0);
    connect(&watch_, &QTimer::timeout, this, [this] { closeAll(); });
}

NestedLoopGuard::~NestedLoopGuard()
{
    if (qApp)
        qApp->removeEventFilter(this);
}

void NestedLoopGuard::arm()
{
    watch_.start();
}

void NestedLoopGuard::disarm()
{
    watch_.stop();
}

bool NestedLoopGuard::waitsOnAPerson(const QWidget* window)
{
    if (!window || !window->isWindow() || dynamic_cast<const FormBase*>(window))
        return false;
    return window->windowType() == Qt::Popup || qobject_cast<const QDialog*>(window);
}

void NestedLoopGuard::closeAll()
{
    QDrag::cancel();
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && waitsOnAPerson(window))
            closeWindow(window);
    }
}

bool NestedLoopGuard::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Show && watched->isWidgetType()) {
        auto* window = static_cast<QWidget*>(watched);
        if (waitsOnAPerson(window)) {
            // Closed from the event loop that shows it: a window closed while
            // it is still being shown would leave that loop running.
            QMetaObject::invokeMethod(
                this,
                [window = QPointer<QWidget>(window)] {
                    if (window && window->isVisible())
                        closeWindow(window);
                },
                Qt::QueuedConnection);
        }
    }
    return QObject::eventFilter(watched, event);
}

}  // namespace ql
