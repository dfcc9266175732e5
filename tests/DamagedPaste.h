#pragma once

#include "TestSupport.h"

#include <QElapsedTimer>
#include <QStringList>

// Damaged copies of applet code, as a person may paste them: cut short, with
// lines doubled, with quotes lost, or buried in a megabyte of other text.
// The generator is seeded, so that a failure can be replayed.
class DamagedCode {
public:
    explicit DamagedCode(quint32 seed)
        : seed_(seed)
    {
    }

    int below(int n) { return n <= 0 ? 0 : int(next() % quint32(n)); }

    QString truncated(const QString& code) { return code.left(below(int(code.size()) + 1)); }

    QString linesDoubled(const QString& code)
    {
        QStringList lines = code.split("\r\n");
        for (int i = 0, n = 1 + below(4); i < n && !lines.isEmpty(); ++i) {
            const int at = below(int(lines.size()));
            lines.insert(below(int(lines.size()) + 1), lines[at]);
        }
        return lines.join("\r\n");
    }

    QString quotesLost(const QString& code)
    {
        QString out = code;
        for (int i = 0, n = 1 + below(6); i < n; ++i) {
            const qsizetype at = out.indexOf('"', below(int(out.size())));
            if (at >= 0)
                out.remove(at, 1);
        }
        return out;
    }

    // About a megabyte of text with the code somewhere inside it.
    QString buried(const QString& code)
    {
        static const QString alphabet = QStringLiteral("abc XYZ=\"<>|%;:\r\n0123456789 VALUE=");
        QString noise;
        noise.reserve(1 << 20);
        while (noise.size() < (1 << 20)) {
            for (int i = 0; i < 90; ++i)
                noise += alphabet[below(int(alphabet.size()))];
            noise += "\r\n";
        }
        noise.insert(below(int(noise.size())), code);
        return noise;
    }

    // One damaged copy of the code, of a kind chosen at random.
    QString any(const QString& code)
    {
        switch (below(5)) {
        case 0: return truncated(code);
        case 1: return linesDoubled(code);
        case 2: return quotesLost(code);
        case 3: return quotesLost(linesDoubled(truncated(code)));
        default: return code.left(below(int(code.size()) + 1)) + code;
        }
    }

private:
    quint32 next()
    {
        seed_ = seed_ * 1103515245u + 12345u;
        return (seed_ >> 8) & 0xffffff;
    }
    quint32 seed_;
};

// Pastes text into the re-edit form and presses Edit; answers the time the
// program took, in milliseconds.
inline qint64 pasteForReEdit(TestDriver& d, const QString& code)
{
    d.click("QLMain", "mnuEditApplet");
    d.setText("EditAppletForm", "Text1", code);
    QElapsedTimer timer;
    timer.start();
    d.click("EditAppletForm", "Command1");
    return timer.elapsed();
}
