#include "TestSupport.h"
#include "core/ExtractParam.h"
#include "core/SharedRoutines.h"

#include <QApplication>
#include <QTemporaryDir>

using namespace ql;

namespace {

QString extract(const QString& code, const QString& key)
{
    EffectSession s;
    s.ExtractedValue = QStringLiteral("left over");
    ExtractParam(s, code, key);
    return s.ExtractedValue;
}

}  // namespace

class SessionTest : public QObject {
    Q_OBJECT
private slots:
    void fieldsStartEmpty()
    {
        EffectSession s;
        QCOMPARE(s.GeneratedCode, QString());
        QCOMPARE(s.EffectId, qint16(0));
        QCOMPARE(s.RequiredClasses.toList(), QStringList(3, QString()));
        QCOMPARE(s.RequiredFiles.toList(), QStringList(51, QString()));
        QCOMPARE(s.RequiredPaths.toList(), QStringList(51, QString()));
        QCOMPARE(s.ImageSlot, qint16(0));
        QCOMPARE(s.ReEditMode, qint16(0));
        QCOMPARE(s.MessageIndex, qint16(0));
        QCOMPARE(s.PulldownItemMode, qint16(0));
        QCOMPARE(s.RegistryValue.toString(), QString());
    }
    void arraysRefuseAnIndexOutsideTheirSlots()
    {
        EffectSession s;
        QVERIFY(s.RequiredFiles.set(50, "last.gif"));
        QVERIFY(!s.RequiredFiles.set(51, "over.gif"));
        QVERIFY(!s.RequiredFiles.set(-1, "under.gif"));
        QVERIFY(!s.RequiredClasses.set(3, "x.class"));
        QVERIFY(s.RequiredClasses.set(2, "x.class"));
        QCOMPARE(s.RequiredFiles.at(51), QString());
        QCOMPARE(s.RequiredFiles.at(50), QString("last.gif"));
        QCOMPARE(s.RequiredFiles.toList().size(), 51);
        s.eraseArrays();
        QCOMPARE(s.RequiredFiles.at(50), QString());
        QCOMPARE(s.RequiredClasses.at(2), QString());
    }

    // ExtractParam
    void quotedValueYieldsTheTextBetweenTheQuotes()
    {
        QCOMPARE(extract("<PARAM NAME=TEXT VALUE=\"Hello there\">", "TEXT VALUE="), QString("Hello there"));
    }
    void twoQuotesInARowYieldAnEmptyValue()
    {
        QCOMPARE(extract("<PARAM NAME=TEXT VALUE=\"\">", "TEXT VALUE="), QString(""));
    }
    void absentKeyYieldsEmpty()
    {
        QCOMPARE(extract("<PARAM NAME=FONT VALUE=\"Arial\">", "TEXT VALUE="), QString(""));
    }
    void unquotedHeightRunsUpToTheNextQuote()
    {
        QCOMPARE(extract("<APPLET CODE=\"ColorSwirl.class\" HEIGHT=99 WIDTH=\"300\">", "HEIGHT="),
                 QString("99 WIDTH="));
    }
    void noQuoteBehindTheKeyYieldsEmpty()
    {
        QCOMPARE(extract("<APPLET HEIGHT=99 WIDTH=300>", "WIDTH="), QString(""));
    }
    void firstHitWinsAndTheKeyIsNotAnchored()
    {
        const QString code = "<PARAM NAME=BASE.TEXT VALUE=\"base\">\r\n<PARAM NAME=TEXT VALUE=\"text\">";
        QCOMPARE(extract(code, "TEXT VALUE="), QString("base"));
        const QString sizes = "<PARAM NAME=FONTSIZE VALUE=\"12\">\r\n<PARAM NAME=SIZE VALUE=\"20\">";
        QCOMPARE(extract(sizes, "SIZE VALUE="), QString("12"));
        QCOMPARE(extract("<APPLET CODE=\"a\" HEIGHT=\"1\" WIDTH=\"2\">\r\n<PARAM NAME=MAXWIDTH VALUE=\"9\">", "WIDTH="),
                 QString("2"));
        // "WIDTH=" finds the first attribute that ends in those letters.
        QCOMPARE(extract("<APPLET CODE=\"a\" MAXWIDTH=\"7\" WIDTH=\"2\">", "WIDTH="), QString("7"));
    }
    void searchIsCaseSensitive()
    {
        QCOMPARE(extract("<PARAM NAME=COPYRIGHT value=\"(c) me\">", "COPYRIGHT VALUE="), QString(""));
    }
    void lineBreakInsideAValueIsKept()
    {
        QCOMPARE(extract("<PARAM NAME=TEXT VALUE=\"one\r\ntwo\">", "TEXT VALUE="), QString("one\r\ntwo"));
    }
    void blankBetweenNameAndValueIsPartOfTheKey()
    {
        QCOMPARE(extract("<PARAM NAME=TEXT  VALUE=\"x\">", "TEXT VALUE="), QString(""));
    }
    void valueIsNotTrimmed()
    {
        QCOMPARE(extract("<PARAM NAME=TEXT VALUE=\"  x  \">", "TEXT VALUE="), QString("  x  "));
    }
    void characterBehindTheKeyIsSteppedOverEvenWhenItIsNoQuote()
    {
        // The first character behind the key is taken to be the opening quote.
        QCOMPARE(extract("KEY=ab\"cd\"", "KEY="), QString("ab"));
        QCOMPARE(extract("KEY=\"", "KEY="), QString(""));
    }
    void scriptFragmentsServeAsKeys()
    {
        QCOMPARE(extract("var msg  =\"Hi there\";", "var msg  ="), QString("Hi there"));
        // A blank behind the key is stepped over as if it were the quote.
        QCOMPARE(extract("var msg  = \"Hi there\";", "var msg  ="), QString(" "));
    }

    void anyTextAndKeyIsReadWithoutHarm()
    {
        // Random code and keys built from the characters that matter.
        const QString alphabet = QStringLiteral("\"= VALUEHIGTWDCO<>\r\nab");
        quint32 seed = 12345;
        auto next = [&seed] {
            seed = seed * 1103515245u + 12345u;
            return (seed >> 16) & 0x7fff;
        };
        for (int round = 0; round < 2000; ++round) {
            QString code, key;
            const int codeLength = int(next() % 40);
            const int keyLength = int(next() % 6);
            for (int i = 0; i < codeLength; ++i)
                code += alphabet[int(next() % alphabet.size())];
            for (int i = 0; i < keyLength; ++i)
                key += alphabet[int(next() % alphabet.size())];
            const QString value = extract(code, key);
            QVERIFY(!value.contains('"'));
            QVERIFY(value.size() <= code.size());
            QVERIFY(classPrefix(code, 8).size() <= 8);
        }
    }

    // Class prefixes
    void prefixesFollowTheFirstCode()
    {
        QCOMPARE(classPrefix("<APPLET CODE=\"ColorSwirl.class\">", 5), QString("\"Colo"));
        QCOMPARE(classPrefix("<APPLET CODE=ColorSwirl.class>", 5), QString("Color"));
        QCOMPARE(classPrefix("<APPLET CODE=\"ColorSwirl.class\">", 8), QString("\"ColorSw"));
    }
    void withoutCodeThePrefixesComeFromPositionFive()
    {
        const QString text = "0123456789ABCDEF";
        QCOMPARE(classPrefix(text, 5), QString("45678"));
        QCOMPARE(classPrefix(text, 8), QString("456789AB"));
        QCOMPARE(classPrefix("<applet code=\"Clock1.class\">", 5), QString("let c"));
    }

    // Shared routines
    void fileExistsAnswersForReadableFilesOnly()
    {
        TestDriver d;
        d.start();
        QTemporaryDir dir;
        const QString file = dir.filePath("page.htm");
        QFile f(file);
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.write("x");
        f.close();
        QVERIFY(FileExists(d.app(), file));
        QVERIFY(!FileExists(d.app(), dir.path()));
        QVERIFY(!FileExists(d.app(), dir.filePath("missing.htm")));
        QVERIFY(!FileExists(d.app(), QString()));
        // A locked file cannot be opened and counts as missing.
        d.platform().scriptedFiles().injectFault(file, 70);
        QVERIFY(!FileExists(d.app(), file));
        QVERIFY(d.messages().isEmpty());
    }
    void registryStringKeepsItsTerminatingZero()
    {
        TestDriver d;
        d.start({{"browser_command", "\"/usr/bin/firefox\" %u"}});
        QCOMPARE(ReadRegistryValue(d.app(), "http\\shell\\open\\command", ""), 0);
        QCOMPARE(d.app().session().RegistryValue.toString(), QString("\"/usr/bin/firefox\" %u") + QChar(0));
        QCOMPARE(d.session().value("RegistryValue").toString(), QString("\"/usr/bin/firefox\" %u") + QChar(0));
    }
    void registryDoubleWordIsANumber()
    {
        TestDriver d;
        d.start();
        RegistryData data;
        data.type = RegistryData::DWord;
        data.number = 1234;
        d.platform().setRegistryValue("Some\\Key", "Count", data);
        QCOMPARE(ReadRegistryValue(d.app(), "Some\\Key", "Count"), 0);
        QCOMPARE(d.app().session().RegistryValue.toLongLong(), 1234);
        QCOMPARE(d.session().value("RegistryValue").toInt(), 1234);
    }
    void registryOtherTypeLeavesTheValueUnchanged()
    {
        TestDriver d;
        d.start({{"browser_command", "/usr/bin/browser"}});
        ReadRegistryValue(d.app(), "http\\shell\\open\\command", "");
        const QVariant before = d.app().session().RegistryValue;
        RegistryData binary;
        binary.type = RegistryData::Binary;
        binary.text = "bytes";
        d.platform().setRegistryValue("Other", "", binary);
        ReadRegistryValue(d.app(), "Other", "");
        QCOMPARE(d.app().session().RegistryValue, before);
    }
    void failedRegistryReadLeavesTheValueUnchanged()
    {
        TestDriver d;
        d.start({{"browser_command", QJsonValue::Null}});
        d.app().session().RegistryValue = QStringLiteral("kept");
        QVERIFY(ReadRegistryValue(d.app(), "http\\shell\\open\\command", "") != 0);
        QCOMPARE(d.app().session().RegistryValue.toString(), QString("kept"));
    }
    void failedSecondReadStoresEmpty()
    {
        TestDriver d;
        d.start();
        RegistryData data;
        data.text = "x";
        data.secondReadFails = true;
        d.platform().setRegistryValue("K", "", data);
        d.app().session().RegistryValue = QStringLiteral("before");
        ReadRegistryValue(d.app(), "K", "");
        QCOMPARE(d.app().session().RegistryValue.toString(), QString(""));
    }
    void shellOpenHandsTheDocumentToTheSystem()
    {
        TestDriver d;
        d.start();
        ShellOpen(d.app(), d.app().mainWidget(), "/tmp/page.htm");
        QCOMPARE(d.ok({{"op", "opened"}}).toArray(), QJsonArray{"/tmp/page.htm"});
    }
    void pickProgramFileTakesTheChosenPathOrStays()
    {
        TestDriver d;
        d.start();
        CommonDialog& dialog = d.app().commonDialog();
        dialog.Filter = "All Files (*.*)|*.*|EXE Files (*.exe)|*.exe|BAT Files (*.bat)|*.bat";
        dialog.FilterIndex = 2;
        dialog.DialogTitle = "Browse For Browser...";
        d.ok({{"op", "answer_file"}, {"paths", QJsonArray{QJsonValue::Null, "/opt/web/browser"}}});
        d.app().session().PickedFile = QString();
        PickProgramFile(d.app());
        QCOMPARE(d.app().session().PickedFile, QString());
        PickProgramFile(d.app());
        QCOMPARE(d.app().session().PickedFile, QString("/opt/web/browser"));
        const QJsonArray dialogs = d.ok({{"op", "dialogs"}}).toArray();
        QCOMPARE(dialogs.size(), 2);
        QCOMPARE(dialogs[0].toObject(),
                 (QJsonObject{{"kind", "open"},
                              {"title", "Browse For Browser..."},
                              {"filter", "All Files (*.*)|*.*|EXE Files (*.exe)|*.exe|BAT Files (*.bat)|*.bat"},
                              {"filter_index", 2}}));
    }
};

QL_TEST_MAIN(SessionTest)
#include "test_session.moc"
