// A second reference for bench/startup.sh: a window with what any program
// with words on it pays for at start (a menu bar, a tab bar and a label), so
// that the cost of text itself can be told apart from Quillet's own work.

#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QTabBar>
#include <QVBoxLayout>

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QMainWindow window;
    window.setWindowTitle(QStringLiteral("QuilletBenchTextWindow"));
    for (const char* menu : {"&File", "&Edit", "&Special Effects", "&View", "&Help"})
        window.menuBar()->addMenu(QString::fromLatin1(menu))->addAction(QStringLiteral("Entry..."));
    auto* central = new QWidget;
    auto* layout = new QVBoxLayout(central);
    auto* tabs = new QTabBar;
    tabs->addTab(QStringLiteral("Image Effects"));
    tabs->addTab(QStringLiteral("Text Effects"));
    tabs->addTab(QStringLiteral("Other Special Effects"));
    layout->addWidget(tabs);
    layout->addWidget(new QLabel(QStringLiteral("A description of an effect, a line or two of plain words.")));
    window.setCentralWidget(central);
    window.resize(740, 420);
    window.show();
    return application.exec();
}
