#include "TestSupport.h"

#include <QApplication>
#include <QImage>
#include <QPlainTextEdit>
#include <QPixmap>

// Runs at a scale factor of 1.5 (set by the test's environment).
class ScalingTest : public QObject {
    Q_OBJECT

    TestDriver d;

    // Whether the last columns of a framed control's picture hold its
    // frame's line: a pixel that is neither the window's background nor the
    // control's base.
    static bool rightLineDrawn(QWidget* control)
    {
        const QImage image = control->grab().toImage();
        const QRgb window = control->palette().color(QPalette::Window).rgb();
        const QRgb base = control->palette().color(QPalette::Base).rgb();
        const int y = image.height() / 2;
        for (int x = image.width() - 3; x < image.width(); ++x) {
            const QRgb c = image.pixel(x, y) | 0xff000000;
            if (c != (window | 0xff000000) && c != (base | 0xff000000))
                return true;
        }
        return false;
    }

private slots:
    void framedListsAndBoxesKeepTheirRightLine()
    {
        QCOMPARE(qApp->devicePixelRatio(), 1.5);
        d.start();
        d.click("QLMain", "Command4");
        d.setText("Swirly", "Text7", "x");
        d.setText("Swirly", "Text10", "10");
        d.setText("Swirly", "Text11", "10");
        d.click("Swirly", "Command1");
        QWidget* preview = d.app().forms().findWidget("Preview");
        d.click("Preview", "Command15");
        QVERIFY(rightLineDrawn(preview->findChild<QWidget*>("Text1")));
        d.click("Preview", "Command15");
        for (const char* name : {"Dir1", "File1"})
            QVERIFY2(rightLineDrawn(preview->findChild<QWidget*>(name)), name);
    }
};

QL_TEST_MAIN(ScalingTest)
#include "test_scaling.moc"
