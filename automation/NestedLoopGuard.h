#pragma once

#include <QObject>
#include <QTimer>

class QWidget;

namespace ql {

// Keeps a driven program from waiting on a person. The toolkit's own windows
// that wait for a choice (a pop-up menu, a combo box's list, a context menu,
// a toolkit dialog) are closed as soon as they show, and a drag of the
// toolkit is cancelled, so that an action that would have opened a nested
// event loop comes back at once. The program's own forms are left alone.
class NestedLoopGuard : public QObject {
public:
    NestedLoopGuard();
    ~NestedLoopGuard() override;

    // Watches while a request runs: whatever event loop runs meanwhile closes
    // what waits on a person.
    void arm();
    void disarm();
    // Closes every such window that is still open.
    void closeAll();

    // Whether a window waits on a person's choice.
    static bool waitsOnAPerson(const QWidget* window);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QTimer watch_;
};

}  // namespace ql
