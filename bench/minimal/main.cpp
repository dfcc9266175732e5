// The smallest useful Qt Widgets program: one empty top-level window with a
// title that nothing else uses, so the start-up benchmark can find it.

#include <QApplication>
#include <QWidget>

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QWidget window;
    window.setWindowTitle(QStringLiteral("QuilletBenchMinimal"));
    window.resize(800, 600);
    window.show();
    return application.exec();
}
