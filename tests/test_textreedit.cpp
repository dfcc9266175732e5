#include "TestSupport.h"
#include "effects/text/FadeMsgModel.h"
#include "effects/text/NavTickerModel.h"
#include "effects/text/SmoothScrollModel.h"
#include "effects/text/TyperModel.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QRegularExpression>

using namespace ql;

namespace {

struct Applet {
    QString form;
    QString code;
};

QList<Applet> applets()
{
    TyperModel::Fields typer{.text = "one\r\ntwo", .font = "Arial", .fontSize = "12", .textColor = "0,0,0",
                             .bold = true, .italic = true, .appletWidth = "300", .appletHeight = "40",
                             .link = "http://x/", .backgroundImage = "b.gif", .backgroundColor = "1,2,3",
                             .loop = "3 times", .speed = "50"};
    SmoothScrollModel::Fields scroll{.text = "Scroll", .font = "Dialog", .fontSize = "10", .textColor = "255",
                                     .rightToLeft = true, .speed = 12, .appletWidth = "200", .appletHeight = "20",
                                     .backgroundColor = "0"};
    FadeMsgModel::Fields fade{.appletWidth = "250", .appletHeight = "30", .align = "Top", .font = "Arial",
                              .margin = "10", .count = 11};
    NavTickerModel::Fields nav{.appletWidth = "400", .appletHeight = "25", .align = "Middle", .border = false,
                               .speed = 5, .count = 11};
    for (int i = 0; i < 11; ++i) {
        fade.messages[i] = FadeMsgModel::stored({.text = "m" + QString::number(i), .link = "l.html"}, {});
        nav.messages[i] = NavTickerModel::stored("n" + QString::number(i), "", "_top");
    }
    SmoothScrollModel::Fields ltr = scroll;
    ltr.rightToLeft = false;
    return {{"Typer", TyperModel::emitCode(typer)},
            {"SmoothScroll", SmoothScrollModel::emitCode(scroll)},
            {"SmoothScroll", SmoothScrollModel::emitCode(ltr)},
            {"FadeMsg", FadeMsgModel::emitCode(fade)},
            {"NavTicker", NavTickerModel::emitCode(nav)}};
}

// One kind of damage done to pasted code, chosen by the generator.
QString damaged(const QString& code, QRandomGenerator& random, int kind)
{
    QString text = code;
    switch (kind) {
    case 0:  // cut anywhere
        return text.left(random.bounded(int(text.size()) + 1));
    case 1: {  // a line doubled, somewhere else
        const QStringList lines = text.split("\r\n");
        QStringList out = lines;
        const int from = random.bounded(int(lines.size()));
        out.insert(random.bounded(int(out.size()) + 1), lines[from]);
        return out.join("\r\n");
    }
    case 2: {  // quotes missing
        for (qsizetype i = text.size() - 1; i >= 0; --i) {
            if (text[i] == '"' && random.bounded(3) == 0)
                text.remove(i, 1);
        }
        return text;
    }
    case 3: {  // a megabyte of text inside
        const QString filler = QString(1024 * 1024, QChar('a' + random.bounded(26)));
        text.insert(random.bounded(int(text.size()) + 1), filler);
        return text;
    }
    case 4: {  // a megabyte of quotes, backslashes and breaks
        QString filler;
        filler.reserve(1024 * 1024);
        const QString pieces[] = {"\"", "\\\\", "\r\n", " VALUE=", "MSG1", "x", "\n"};
        while (filler.size() < 1024 * 1024)
            filler += pieces[random.bounded(7)];
        text.insert(random.bounded(int(text.size()) + 1), filler);
        return text;
    }
    case 5: {  // random characters overwritten
        for (int n = random.bounded(1, 40); n > 0 && !text.isEmpty(); --n)
            text[random.bounded(int(text.size()))] = QChar(ushort(random.bounded(1, 0xD7FF)));
        return text;
    }
    default: {  // keys without their values
        text.replace(QRegularExpression(" VALUE=\"[^\"]*\">"), " VALUE=");
        return text;
    }
    }
}

}  // namespace

class TextReEditTest : public QObject {
    Q_OBJECT

    TestDriver d;

private slots:
    void damagedCodeNeverHurts()
    {
        QRandomGenerator random(20261123);
        d.start();
        for (const Applet& applet : applets()) {
            for (int round = 0; round < 28; ++round) {
                const int kind = round % 7;
                const QString code = damaged(applet.code, random, kind);
                d.click("QLMain", "mnuEditApplet");
                d.setText("EditAppletForm", "Text1", code);
                QElapsedTimer t;
                t.start();
                d.click("EditAppletForm", "Command1");
                const qint64 took = t.elapsed();
                QVERIFY2(took < 1000, qPrintable(QStringLiteral("%1 damage %2 took %3 ms")
                                                     .arg(applet.form).arg(kind).arg(took)));
                QVERIFY(!d.loaded("EditAppletForm"));
                if (d.loaded(applet.form)) {
                    QCOMPARE(d.session().value("ReEditMode").toInt(), 0);
                    d.on(applet.form, applet.form, "close");
                }
                QVERIFY(d.shown("QLMain"));
            }
        }
    }
    void damagedCodeStillEmits()
    {
        // A form opened from damaged code goes on to Done as from any other.
        QRandomGenerator random(7);
        d.start();
        for (int round = 0; round < 6; ++round) {
            const QString code = damaged(applets()[1].code, random, round % 7);
            d.click("QLMain", "mnuEditApplet");
            d.setText("EditAppletForm", "Text1", code);
            d.click("EditAppletForm", "Command1");
            if (!d.loaded("SmoothScroll"))
                continue;
            d.setText("SmoothScroll", "Text1", "x");
            d.setText("SmoothScroll", "Text2", "1");
            d.setText("SmoothScroll", "Text3", "1");
            d.click("SmoothScroll", "Command1");
            QVERIFY(d.session().value("GeneratedCode").toString().startsWith("<APPLET CODE=\"LTRScroll.class\""));
            d.click("Preview", "Command14");
            d.on("SmoothScroll", "SmoothScroll", "close");
        }
    }
};

QL_TEST_MAIN(TextReEditTest)
#include "test_textreedit.moc"
