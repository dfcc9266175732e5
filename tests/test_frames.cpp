#include "effects/animation/FrameModel.h"

#include <QTest>

using namespace ql;

class FramesTest : public QObject {
    Q_OBJECT

private slots:
    void vocabulary()
    {
        QCOMPARE(TransitionModel::names(), (QStringList{"random", "expand", "overwrite", "scroll", "shrink",
                                                        "shutter", "slidein", "slideout", "squish"}));
        QCOMPARE(TransitionModel::directionLine("1"), QString("1-Northwest corner"));
        QCOMPARE(TransitionModel::directionLine("8"), QString("8-West edge"));
        QCOMPARE(TransitionModel::directionLine("r"), QString("r-Random location"));
        QCOMPARE(TransitionModel::directionLine("9"), QString());
        const auto scroll = TransitionModel::rowOf("scroll", false);
        QVERIFY(scroll);
        QCOMPARE(scroll->directions, (QStringList{"2", "4", "6", "8", "r"}));
        QCOMPARE(scroll->caption, QString("Scroll In from:"));
        const auto squish = TransitionModel::rowOf("squish", false);
        QCOMPARE(squish->directions, (QStringList{"2", "6"}));
        const auto overwrite = TransitionModel::rowOf("overwrite", false);
        QVERIFY(!overwrite->directionEnabled);
        QCOMPARE(int(overwrite->list), int(TransitionModel::DirectionList::LeaveAsItIs));
        QCOMPARE(int(TransitionModel::rowOf("random", false)->list), int(TransitionModel::DirectionList::Empty));
    }
    void shutterIsTestedWithACapitalAtOpening()
    {
        QVERIFY(TransitionModel::rowOf("shutter", false));
        QVERIFY(!TransitionModel::rowOf("shutter", true));
        QVERIFY(TransitionModel::rowOf("Shutter", true));
        QVERIFY(!TransitionModel::rowOf("Shutter", false));
    }
    void composeFirstMatchWins()
    {
        QCOMPARE(TransitionModel::compose("3", "slidein"), QString("slidein(3)"));
        QCOMPARE(TransitionModel::compose("5-Southeast corner", "expand"), QString("expand(5)"));
        QCOMPARE(TransitionModel::compose("r", "scroll"), QString("scroll(r)"));
        QCOMPARE(TransitionModel::compose("r-Random location", "scroll"), QString("scroll(r)"));
        QCOMPARE(TransitionModel::compose("", "overwrite"), QString("overwrite()"));
        QCOMPARE(TransitionModel::compose("", ""), QString());
        QCOMPARE(TransitionModel::compose("", "shutter"), QString("shutter(1)"));
        QCOMPARE(TransitionModel::compose("", "slidein"), QString("slidein(r)"));
        QCOMPARE(TransitionModel::compose("", "random"), QString("random(r)"));
        // A direction chosen before overwrite survives.
        QCOMPARE(TransitionModel::compose("4", "overwrite"), QString("overwrite(4)"));
        // Squish offers no random direction, and still gets it.
        QCOMPARE(TransitionModel::compose("", "squish"), QString("squish(r)"));
        // A typed name outside the list.
        QCOMPARE(TransitionModel::compose("", "wobble"), QString("wobble(r)"));
        QCOMPARE(TransitionModel::compose("7", "wobble"), QString("wobble(7)"));
        // A direction with a blank is no code.
        QCOMPARE(TransitionModel::compose(" 3", "slidein"), QString("slidein(r)"));
    }
    void openingCutsThreeCharacters()
    {
        auto shown = TransitionModel::open("slidein(3)");
        QCOMPARE(shown.transition, QString("slidein"));
        QCOMPARE(shown.direction.value_or("?"), QString("3"));
        // The fixed cut assumes a one-character direction.
        shown = TransitionModel::open("overwrite()");
        QCOMPARE(shown.transition, QString("overwrit"));
        QCOMPARE(shown.direction.value_or("?"), QString("("));
        QCOMPARE(TransitionModel::compose(*shown.direction, shown.transition), QString("overwrit(r)"));
        // A project file's "null".
        shown = TransitionModel::open("null");
        QCOMPARE(shown.transition, QString("null"));
        QVERIFY(!shown.direction);
        QCOMPARE(TransitionModel::compose("", shown.transition), QString("null(r)"));
        // shutter(1) comes back through the digit rule.
        shown = TransitionModel::open("shutter(1)");
        QCOMPARE(TransitionModel::compose(*shown.direction, shown.transition), QString("shutter(1)"));
        shown = TransitionModel::open("");
        QCOMPARE(shown.transition, QString());
        QVERIFY(!shown.direction);
        // Too short to cut: nothing breaks.
        shown = TransitionModel::open(")");
        QCOMPARE(shown.transition, QString());
    }
    void pauseWarning()
    {
        QVERIFY(TransitionModel::pauseNeedsWarning("-5"));
        QVERIFY(TransitionModel::pauseNeedsWarning("-3"));
        QVERIFY(!TransitionModel::pauseNeedsWarning("-2"));
        QVERIFY(!TransitionModel::pauseNeedsWarning("-1"));
        QVERIFY(!TransitionModel::pauseNeedsWarning("abc"));
        QVERIFY(!TransitionModel::pauseNeedsWarning(""));
        QCOMPARE(TransitionModel::pauseWarning(),
                 QString("Enter a number greater than -3 for Pauses.\r\nUse -1 to pause until user clicks mouse on "
                         "animation.\r\nUse -2 to pause until user moves mouse over animation."));
    }
};

QTEST_GUILESS_MAIN(FramesTest)
#include "test_frames.moc"
