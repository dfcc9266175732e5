#pragma once

#include "core/Form.h"

#include <QMainWindow>

class QFocusFrame;
class QLabel;
class QTabBar;
class QToolButton;

namespace ql {

class PageStack;

// The program's home: the catalogue of effects on three tabbed pages, the
// Description frame, and the menus. Closing it ends the program.
class MainWindow : public QMainWindow, public FormBase {
    Q_OBJECT
public:
    explicit MainWindow(App& app);
    QWidget* widget() override { return this; }
    void load() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void buildMenus();
    QWidget* buildPage(int page);
    void paintPictures(int page);
    void describe(const QString& title, const QString& description);
    void openEffect(const QString& form, bool unloadFirst);

    QTabBar* TabStrip1;
    PageStack* pages_;
    QLabel* Label3;
    QLabel* Label2;
    QFocusFrame* focusFrame_;
};

}  // namespace ql
