#include "TestSupport.h"
#include "core/ProgramFolder.h"
#include "platform/HelpViewer.h"
#include "platform/QtPlatform.h"

#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QScreen>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTextBrowser>
#include <QTreeWidget>

using namespace ql;

namespace {

// A document of three levels: a first page, two topics under it, one with a
// numbered anchor and a place inside it, and a topic of the third level.
const char* const Document = R"(<html>
<head><title>Test Help</title></head>
<body>
<a name="topic-0"></a><a name="QLMain"></a>
<h1>Contents page</h1>
<p>Start here.</p>
<ul><li><a href="#Alpha">Alpha</a></li><li><a href="#deep">Deep place</a></li></ul>

<hr><a name="Alpha"></a>
<h2>Alpha &amp; more</h2>
<p>Alpha text.</p>
<h3>A sub-heading with no anchor</h3>
<p>Still alpha.</p>

<hr><a name="topic-7"></a><a name='Beta'></a>
<h2>Beta</h2>
<p>Beta text.</p>
<p><a name="deep"></a>A deep place.</p>

<hr><a name=Gamma></a>
<h3>Gamma</h3>
<p>Gamma text.</p>
</body>
</html>
)";

QString writeDocument(const QTemporaryDir& dir, const QByteArray& text)
{
    const QString path = dir.filePath("quillet.hlp");
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write(text);
    return path;
}

QStringList headingsOf(const QList<HelpTopic>& topics)
{
    QStringList out;
    for (const HelpTopic& t : topics)
        out << t.heading;
    return out;
}

}  // namespace

class HelpTest : public QObject {
    Q_OBJECT

    QTemporaryDir dir;
    QString file;
    QString shipped;

private slots:
    void initTestCase()
    {
        file = writeDocument(dir, Document);
        prepareProgramFolder(dir.filePath("program"));
        shipped = dir.filePath("program/quillet.hlp");
        QVERIFY(QFile::exists(shipped));
    }

    void aDocumentSplitsIntoItsTopics()
    {
        const QList<HelpTopic> topics = helpTopics(Document);
        QCOMPARE(headingsOf(topics), (QStringList{"Contents page", "Alpha & more", "Beta", "Gamma"}));
        QCOMPARE(topics[0].anchors, (QStringList{"topic-0", "QLMain"}));
        QCOMPARE(topics[1].anchors, QStringList{"Alpha"});
        QCOMPARE(topics[2].anchors, (QStringList{"topic-7", "Beta"}));
        QCOMPARE(topics[2].innerAnchors, QStringList{"deep"});
        QCOMPARE(topics[3].anchors, QStringList{"Gamma"});
        QCOMPARE(topics[1].level, 2);
        QCOMPARE(topics[3].level, 3);
        // A topic runs from its anchors to the next topic, without the rule
        // between them; a heading without an anchor stays inside it.
        QVERIFY(topics[1].html.startsWith("<a name=\"Alpha\"></a>"));
        QVERIFY(topics[1].html.endsWith("<p>Still alpha.</p>"));
        QVERIFY(!topics[0].html.contains("<hr>"));
    }
    void aDocumentWithoutTopicsIsOnePage()
    {
        const QList<HelpTopic> topics =
            helpTopics("<html><head><title>Plain</title></head><body><p>Just <a name=\"x\"></a>text.</p></body></html>");
        QCOMPARE(topics.size(), 1);
        QCOMPARE(topics[0].heading, QString("Plain"));
        QCOMPARE(topics[0].innerAnchors, QStringList{"x"});
    }
    void theShippedDocumentHasTheTopicsTheProgramAddresses()
    {
        QFile f(shipped);
        QVERIFY(f.open(QIODevice::ReadOnly));
        const QList<HelpTopic> topics = helpTopics(QString::fromUtf8(f.readAll()));
        QCOMPARE(topics.first().heading, QString("Quillet Help"));
        const QList<QPair<QString, QString>> addressed = {
            {"topic-0", "Quillet Help"},
            {"QLMain", "Quillet Help"},
            {"Swirly", "Swirly Text"},
            {"EditAppletForm", "Editing an applet again"},
            {"Preview", "The Preview Wizard"},
            {"topic-21", "Using the code with Microsoft FrontPage"},
            {"topic-29", "Using sectioned code with Microsoft FrontPage"},
            {"Options", "Preferences"},
        };
        for (const auto& [anchor, heading] : addressed) {
            bool found = false;
            for (const HelpTopic& t : topics) {
                if (t.anchors.contains(anchor)) {
                    QCOMPARE(t.heading, heading);
                    found = true;
                }
            }
            QVERIFY2(found, qPrintable(anchor));
        }
    }

    void theContentsListTheDocumentsTopics()
    {
        HelpViewer viewer;
        viewer.showTopic(file, "QLMain", 0);
        QCOMPARE(viewer.contents(), (QStringList{"Contents page", "Alpha & more", "Beta", "Gamma"}));
        // Each topic stands under the last topic of a higher level.
        auto* tree = viewer.findChild<QTreeWidget*>("HelpContents");
        QVERIFY(tree);
        QCOMPARE(tree->topLevelItemCount(), 1);
        QTreeWidgetItem* top = tree->topLevelItem(0);
        QCOMPARE(top->childCount(), 2);
        QCOMPARE(top->child(1)->text(0), QString("Beta"));
        QCOMPARE(top->child(1)->child(0)->text(0), QString("Gamma"));

        QFile f(shipped);
        QVERIFY(f.open(QIODevice::ReadOnly));
        const QStringList shippedHeadings = headingsOf(helpTopics(QString::fromUtf8(f.readAll())));
        viewer.showTopic(shipped, "QLMain", 0);
        QCOMPARE(viewer.contents(), shippedHeadings);
        QVERIFY(viewer.contents().contains("Swirly Text"));
        QVERIFY(viewer.contents().contains("Preferences"));
    }
    void aFormsTopicShowsAloneWithItsHeadingOnTop()
    {
        HelpViewer viewer;
        viewer.showTopic(shipped, "Swirly", std::nullopt);
        QVERIFY(viewer.isVisible());
        QCOMPARE(viewer.heading(), QString("Swirly Text"));
        QVERIFY(viewer.topicText().startsWith("Swirly Text\n"));
        QVERIFY(viewer.topicText().contains("ColorSwirl.class"));
        QVERIFY(!viewer.topicText().contains("Editing an applet again"));
        auto* text = viewer.findChild<QTextBrowser*>("HelpText");
        QCOMPARE(text->verticalScrollBar()->value(), 0);
        QCOMPARE(viewer.findChild<QTreeWidget*>("HelpContents")->currentItem()->text(0), QString("Swirly Text"));
    }
    void aNumberedTopicShowsAloneWithItsHeadingOnTop()
    {
        HelpViewer viewer;
        viewer.showTopic(shipped, "Preview", 29);
        QCOMPARE(viewer.heading(), QString("Using sectioned code with Microsoft FrontPage"));
        QVERIFY(viewer.topicText().startsWith("Using sectioned code with Microsoft FrontPage\n"));
        QVERIFY(!viewer.topicText().contains("Preferences"));
        viewer.showTopic(shipped, "Preview", 21);
        QCOMPARE(viewer.heading(), QString("Using the code with Microsoft FrontPage"));
        viewer.showTopic(shipped, "QLMain", 0);
        QCOMPARE(viewer.heading(), QString("Quillet Help"));
        QVERIFY(viewer.topicText().startsWith("Quillet Help\n"));
    }
    void eachAddressFindsItsTopic()
    {
        struct Row {
            const char* form;
            std::optional<int> topic;
            const char* heading;
        };
        const Row rows[] = {
            // A form without a topic of its own, or an unknown number: the
            // first page.
            {"About", std::nullopt, "Contents page"},
            {"Preview", 99, "Contents page"},
            // An anchor inside a topic: that topic.
            {"deep", std::nullopt, "Beta"},
            {"Beta", 7, "Beta"},
        };
        HelpViewer viewer;
        for (const Row& row : rows) {
            viewer.showTopic(file, row.form, row.topic);
            QCOMPARE(viewer.heading(), QString(row.heading));
        }
    }
    void aMissingDocumentSaysSo()
    {
        HelpViewer viewer;
        viewer.showTopic(dir.filePath("none.hlp"), "Swirly", std::nullopt);
        QCOMPARE(viewer.heading(), QString("Quillet Help"));
        QVERIFY(viewer.topicText().contains("could not be opened"));
        QCOMPARE(viewer.contents(), QStringList{"Quillet Help"});
    }
    void backAndForward()
    {
        HelpViewer viewer;
        QVERIFY(!viewer.canGoBack());
        viewer.showTopic(file, "Alpha", std::nullopt);
        viewer.showTopic(file, "Beta", std::nullopt);
        viewer.showTopic(file, "Beta", std::nullopt);
        QVERIFY(viewer.canGoBack());
        QVERIFY(!viewer.canGoForward());
        viewer.back();
        QCOMPARE(viewer.heading(), QString("Alpha & more"));
        QVERIFY(!viewer.canGoBack());
        QVERIFY(viewer.canGoForward());
        viewer.forward();
        QCOMPARE(viewer.heading(), QString("Beta"));
        viewer.back();
        // A new topic drops what lay ahead.
        auto* tree = viewer.findChild<QTreeWidget*>("HelpContents");
        tree->setCurrentItem(tree->topLevelItem(0)->child(1)->child(0));
        QCOMPARE(viewer.heading(), QString("Gamma"));
        QVERIFY(!viewer.canGoForward());
        viewer.back();
        QCOMPARE(viewer.heading(), QString("Alpha & more"));
        QCOMPARE(tree->currentItem()->text(0), QString("Alpha & more"));
    }
    void linksOfTheDocumentLeadToTopics()
    {
        HelpViewer viewer;
        viewer.showTopic(file, "QLMain", 0);
        auto* text = viewer.findChild<QTextBrowser*>("HelpText");
        emit text->anchorClicked(QUrl("#Alpha"));
        QCOMPARE(viewer.heading(), QString("Alpha & more"));
        emit text->anchorClicked(QUrl("#deep"));
        QCOMPARE(viewer.heading(), QString("Beta"));
        emit text->anchorClicked(QUrl("#nowhere"));
        QCOMPARE(viewer.heading(), QString("Beta"));
        viewer.back();
        QCOMPARE(viewer.heading(), QString("Alpha & more"));
    }
    void escapeClosesIt()
    {
        HelpViewer viewer;
        viewer.showTopic(file, "Alpha", std::nullopt);
        QVERIFY(QTest::qWaitForWindowActive(&viewer));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        QVERIFY(!viewer.isVisible());
        // Opened again, it shows the topic asked for.
        viewer.showTopic(file, "Beta", std::nullopt);
        QVERIFY(viewer.isVisible());
        QCOMPARE(viewer.heading(), QString("Beta"));
    }
    void itOpensCentredOverTheFormThatAsked()
    {
        QWidget form;
        form.setGeometry(60, 80, 400, 300);
        form.show();
        HelpViewer viewer;
        viewer.resize(300, 200);
        viewer.showTopic(file, "Alpha", std::nullopt, &form);
        QVERIFY((viewer.frameGeometry().center() - form.frameGeometry().center()).manhattanLength() <= 4);
        // Moved by the user, it stays where it is for the next topic.
        viewer.move(10, 10);
        viewer.showTopic(file, "Beta", std::nullopt, &form);
        QCOMPARE(viewer.pos(), QPoint(10, 10));
        // Near the edge of the screen it stays on the screen.
        viewer.close();
        const QRect area = form.screen()->availableGeometry();
        form.move(area.right() - 120, area.bottom() - 100);
        viewer.showTopic(file, "Beta", std::nullopt, &form);
        QVERIFY(area.contains(viewer.frameGeometry()));
    }
    void itHasASensibleSize()
    {
        HelpViewer viewer;
        viewer.showTopic(file, "Alpha", std::nullopt);
        const QRect area = viewer.screen()->availableGeometry();
        QVERIFY(viewer.width() >= qMin(600, area.width()));
        QVERIFY(viewer.height() >= qMin(450, area.height()));
        QVERIFY(area.contains(viewer.frameGeometry()));
    }
    void underAModalFormTheHelpBelongsToThatForm()
    {
        QtPlatform platform;
        QDialog form;
        form.setObjectName("Swirly");
        form.setWindowModality(Qt::ApplicationModal);
        form.setGeometry(100, 100, 300, 200);
        form.show();
        QCOMPARE(QApplication::activeModalWidget(), &form);
        platform.showHelp(shipped, "Swirly", std::nullopt);
        HelpViewer* viewer = form.findChild<HelpViewer*>();
        QVERIFY(viewer);
        QVERIFY(viewer->isVisible());
        QVERIFY(viewer->isWindow());
        QCOMPARE(viewer->heading(), QString("Swirly Text"));
        const QRect area = form.screen()->availableGeometry();
        QVERIFY(area.contains(viewer->frameGeometry()));
        platform.showHelp(shipped, "Preview", 21);
        QCOMPARE(viewer->heading(), QString("Using the code with Microsoft FrontPage"));
    }
};

QL_TEST_MAIN(HelpTest)
#include "test_help.moc"
