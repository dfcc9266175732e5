// Re-edit of large pastes: the time of Edit grows with the size of the pasted
// text, not with its square.
//
// QUILLET_REEDIT_SIZES (megabytes, comma separated, default "1,8") sets the
// sizes measured; bench/reedit.sh runs this suite with more of them and reads
// the figures it prints.

#include "TestSupport.h"
#include "core/Widgets.h"

#include <QApplication>
#include <QElapsedTimer>
#include <algorithm>
#include <ctime>

using namespace ql;

namespace {

constexpr qsizetype Megabyte = 1 << 20;

// Swirly Text code with `breaks` bare carriage returns between its tag and its
// parameters, as a paste from an editor that writes old Mac line ends.
QString swirlyPaste(qsizetype breaks)
{
    return "<APPLET CODE=\"ColorSwirl.class\" HEIGHT=\"60\" WIDTH=\"300\">" + QString(breaks, QChar('\r')) +
           "<PARAM NAME=TEXT VALUE=\"Hello world\">\r"
           "<PARAM NAME=FONT VALUE=\"Courier\">\r"
           "<PARAM NAME=SIZE VALUE=\"24\">\r"
           "<PARAM NAME=BGCOLOR VALUE=\"255,0,0\">\r"
           "<PARAM NAME=XLOC VALUE=\"10\">\r"
           "<PARAM NAME=YLOC VALUE=\"40\">\r"
           "</APPLET>\r";
}

// Processor seconds used by the process so far: unlike the wall clock, they
// do not grow when other programs share the machine.
double cpuSeconds()
{
    timespec t{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &t);
    return double(t.tv_sec) + t.tv_nsec / 1e9;
}

// Wall and processor time of a stretch of work.
class Stopwatch {
public:
    Stopwatch() { restart(); }
    void restart()
    {
        wall_.start();
        cpu_ = cpuSeconds();
    }
    double wall() const { return wall_.nsecsElapsed() / 1e9; }
    double cpu() const { return cpuSeconds() - cpu_; }

private:
    QElapsedTimer wall_;
    double cpu_ = 0;
};

struct Figures {
    double paste = 0;     // wall seconds to put the text into the box
    double edit = 0;      // wall seconds from the click on Edit to the form filled
    double editCpu = 0;   // processor seconds of the same
    double plain = 0;     // wall seconds for the box to hand back its plain text once
};

QList<int> measuredSizes()
{
    QList<int> sizes;
    const QString given = qEnvironmentVariable("QUILLET_REEDIT_SIZES", QStringLiteral("1,8"));
    for (const QString& part : given.split(',', Qt::SkipEmptyParts)) {
        bool ok = false;
        const int mb = part.trimmed().toInt(&ok);
        if (ok && mb > 0)
            sizes << mb;
    }
    return sizes;
}

}  // namespace

class ReEditScaleTest : public QObject {
    Q_OBJECT

    // One Edit of a paste of `megabytes`, on a fresh program.
    Figures measure(int megabytes)
    {
        TestDriver d;
        d.start();
        const QString code = swirlyPaste(megabytes * Megabyte);
        d.click("QLMain", "mnuEditApplet");
        Stopwatch clock;
        d.setText("EditAppletForm", "Text1", code);
        Figures f;
        f.paste = clock.wall();

        const auto* box = d.app().forms().findWidget("EditAppletForm")->findChild<CodeBox*>("Text1");
        clock.restart();
        const QString plain = box->toPlainText();
        f.plain = clock.wall();
        if (plain.size() != code.size())
            qFatal("the box holds %lld characters instead of %lld", qlonglong(plain.size()), qlonglong(code.size()));

        clock.restart();
        d.click("EditAppletForm", "Command1");
        f.edit = clock.wall();
        f.editCpu = clock.cpu();

        // The form was filled from the text behind the line breaks.
        if (!d.shown("Swirly") || d.text("Swirly", "Text7") != "Hello world" || d.text("Swirly", "Text2") != "40" ||
            d.text("Swirly", "Text10") != "300")
            qFatal("the Swirly Text form was not filled from a paste of %d MB", megabytes);
        return f;
    }

    // The best of a few runs, since the machine is shared.
    Figures best(int megabytes, int runs)
    {
        Figures b{1e9, 1e9, 1e9, 1e9};
        for (int i = 0; i < runs; ++i) {
            const Figures f = measure(megabytes);
            b.paste = std::min(b.paste, f.paste);
            b.edit = std::min(b.edit, f.edit);
            b.editCpu = std::min(b.editCpu, f.editCpu);
            b.plain = std::min(b.plain, f.plain);
        }
        return b;
    }

private slots:
    void editGrowsLinearlyWithThePaste()
    {
        const QList<int> sizes = measuredSizes();
        QVERIFY(!sizes.isEmpty());
        const int runs = std::max(1, qEnvironmentVariableIntValue("QUILLET_REEDIT_RUNS"));
        QList<Figures> figures;
        for (int mb : sizes) {
            figures << best(mb, runs);
            const Figures& f = figures.last();
            qInfo("reedit %d MB: paste %.3f s, edit %.3f s (processor %.3f s), plain text %.3f s", mb, f.paste,
                  f.edit, f.editCpu, f.plain);
        }
        // Between the smallest and the largest size, in processor time: eight
        // times the text may take up to three times eight the time (memory
        // growth and noise), far below the sixty-four times of a square; a
        // floor of 50 ms keeps tiny timings out of it.
        const double growth = double(sizes.last()) / sizes.first();
        const double first = figures.first().editCpu;
        const double last = figures.last().editCpu;
        const double allowed = std::max(3 * growth * first, 0.05);
        qInfo("reedit growth: %.1f times the text took %.1f times the processor time (allowed %.1f)", growth,
              last / first, allowed / first);
        QVERIFY2(last <= allowed, qPrintable(QStringLiteral("Edit of %1 MB took %2 s against %3 s for %4 MB")
                                                 .arg(sizes.last())
                                                 .arg(last)
                                                 .arg(first)
                                                 .arg(sizes.first())));
    }
};

QL_TEST_MAIN(ReEditScaleTest)
#include "test_reedit_scale.moc"
