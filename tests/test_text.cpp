#include "TestSupport.h"
#include "core/Text.h"

#include <QApplication>

using namespace ql;

class TextTest : public QObject {
    Q_OBJECT
private slots:
    void inStrIsOneBasedAndCaseSensitive()
    {
        QCOMPARE(inStr("abcabc", "c"), 3);
        QCOMPARE(inStr(4, "abcabc", "c"), 6);
        QCOMPARE(inStr("abc", "C"), 0);
        QCOMPARE(inStr("abc", "x"), 0);
        QCOMPARE(inStr(5, "abc", "a"), 0);
        QCOMPARE(inStr(0, "abc", "a"), 0);
    }
    void midRefusesANegativeLength()
    {
        QCOMPARE(mid("abcdef", 2, 3), QString("bcd"));
        QCOMPARE(mid("abc", 5, 2), QString(""));
        QCOMPARE(mid("abc", 2, 10), QString("bc"));
        QVERIFY(!midChecked("abc", 1, -1).has_value());
        QVERIFY(!midChecked("abc", 0, 1).has_value());
    }
    void numericValueTakesTheLeadingNumber()
    {
        QCOMPARE(numericValue("99"), 99.0);
        QCOMPARE(numericValue("  42px"), 42.0);
        QCOMPARE(numericValue("abc"), 0.0);
        QCOMPARE(numericValue(""), 0.0);
        QCOMPARE(numericValue("-7.5x"), -7.5);
        QCOMPARE(numericValue("1e2"), 100.0);
        QCOMPARE(numericValue("3e"), 3.0);
        QCOMPARE(numericValue("."), 0.0);
    }
    void wholeNumbersAreCutAndTrimmed()
    {
        QCOMPARE(wholeNumberText(49.5), QString("49"));
        QCOMPARE(wholeNumberText(0), QString("0"));
        QCOMPARE(wholeNumberText(-49.5), QString("-49"));
    }
    void coloursAreRedGreenBlue()
    {
        QCOMPARE(colorTriple(0), QString("0,0,0"));
        QCOMPARE(colorTriple(255), QString("255,0,0"));
        QCOMPARE(colorTriple(1 + 2 * 256 + 3 * 65536), QString("1,2,3"));
        QCOMPARE(colorTriple(0xFFFFFF), QString("255,255,255"));
    }
};

QL_TEST_MAIN(TextTest)
#include "test_text.moc"
