#include "TestSupport.h"
#include "core/Icons.h"
#include "shell/Catalogue.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFocusFrame>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QToolButton>

using namespace ql;

namespace {

// The desktop's key to quit a program, Ctrl+Q where it names none.
QKeySequence quitKey()
{
    const QKeySequence standard(QKeySequence::Quit);
    return standard.isEmpty() ? QKeySequence(Qt::CTRL | Qt::Key_Q) : standard;
}

QImage pictureOf(const QIcon& icon)
{
    return icon.pixmap(QSize(24, 24), 1.0).toImage();
}

}  // namespace

// The keyboard in the main window and the wizard, and the pictures of their
// buttons.
class KeyboardTest : public QObject {
    Q_OBJECT

    TestDriver d;
    QTemporaryDir folder;

    QWidget* main() { return d.app().mainWidget(); }
    template <class W = QWidget>
    W* control(const QString& form, const QString& name)
    {
        QWidget* w = d.app().forms().findWidget(form);
        return w ? w->findChild<W*>(name) : nullptr;
    }
    QAction* action(const QString& form, const QString& name) { return control<QAction>(form, name); }
    bool activate(QWidget* window)
    {
        window->activateWindow();
        return QTest::qWaitForWindowActive(window);
    }
    QStringList buttonsOfPage(int page)
    {
        QStringList out;
        for (const CatalogueEntry& entry : catalogue())
            if (entry.page == page)
                out << entry.button;
        return out;
    }
    // The wizard as an effect with files leaves it.
    void openPreview()
    {
        d.start({{"program_folder", folder.path()}});
        d.app().session().EffectId = 10;
        d.app().session().GeneratedCode = "<APPLET CODE=\"ColorSwirl.class\" HEIGHT=\"40\" WIDTH=\"200\">\r\n</APPLET>\r\n";
        d.app().forms().show("Preview", true);
        QVERIFY(d.shown("Preview"));
    }

private slots:
    void enterAndSpaceOnACatalogueButtonOpenItsForm()
    {
        d.start();
        d.on("QLMain", "TabStrip1", "choose", {{"item", "Text Effects"}});
        d.on("QLMain", "Command4", "key", {{"key", "Enter"}});
        QVERIFY(d.shown("Swirly"));
        QVERIFY(d.modal("Swirly"));
        d.click("Swirly", "Command2");
        QVERIFY(!d.loaded("Swirly"));
        d.on("QLMain", "Command4", "key", {{"key", "Space"}});
        QVERIFY(d.shown("Swirly"));
        d.click("Swirly", "Command2");
        // The keypad's Enter as well.
        QTest::keyClick(control("QLMain", "Command4"), Qt::Key_Enter, Qt::KeypadModifier);
        QVERIFY(d.shown("Swirly"));
    }
    void theDescriptionFollowsTheFocus()
    {
        d.start();
        QVERIFY(activate(main()));
        d.on("QLMain", "TabStrip1", "choose", {{"item", "Text Effects"}});
        control("QLMain", "Command13")->setFocus(Qt::TabFocusReason);
        QCOMPARE(d.text("QLMain", "Label3"), QString("Smooth Scrolling Text Ticker"));
        QCOMPARE(d.text("QLMain", "Label2"), QString("Create text that scrolls accross the screen."));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget()->objectName(), QString("Command12"));
        QCOMPARE(d.text("QLMain", "Label3"), QString("Fading Message effect"));
        QCOMPARE(d.text("QLMain", "Label2"), QString("Create text messages that fade in and out to other text messages."));
        // The mouse still has its say.
        d.on("QLMain", "Command4", "hover");
        QCOMPARE(d.text("QLMain", "Label3"), QString("Swirly Text effect"));
    }
    void theButtonWithTheFocusIsFramed()
    {
        d.start();
        QVERIFY(activate(main()));
        auto* frame = main()->findChild<QFocusFrame*>();
        QVERIFY(frame);
        control("QLMain", "TabStrip1")->setFocus(Qt::TabFocusReason);
        QVERIFY(!frame->isVisible());
        QWidget* button = control("QLMain", "Command20");
        button->setFocus(Qt::TabFocusReason);
        QVERIFY(frame->isVisible());
        QCOMPARE(frame->parentWidget(), button->parentWidget());
        QVERIFY(frame->geometry().contains(button->geometry()));
        // Focus gone back to the tabs takes the frame and the description
        // with it.
        QTest::keyClick(button, Qt::Key_Tab, Qt::ShiftModifier);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab, Qt::ShiftModifier);
        QCOMPARE(QApplication::focusWidget()->objectName(), QString("TabStrip1"));
        QVERIFY(!frame->isVisible());
        QCOMPARE(d.text("QLMain", "Label3"), QString());
        QCOMPARE(d.text("QLMain", "Label2"), QString());
    }
    void aFormInFrontLeavesTheDescription()
    {
        d.start();
        QVERIFY(activate(main()));
        d.on("QLMain", "TabStrip1", "choose", {{"item", "Text Effects"}});
        control("QLMain", "Command4")->setFocus(Qt::TabFocusReason);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QVERIFY(d.shown("Swirly"));
        QVERIFY(activate(d.app().forms().findWidget("Swirly")));
        QCOMPARE(d.text("QLMain", "Label3"), QString("Swirly Text effect"));
    }
    void tabWalksTheButtonsOfThePageInFrontInReadingOrder()
    {
        d.start();
        QVERIFY(activate(main()));
        for (int page = 0; page < 3; ++page) {
            d.on("QLMain", "TabStrip1", "choose", {{"item", page}});
            control("QLMain", "TabStrip1")->setFocus(Qt::TabFocusReason);
            QStringList reached;
            for (int i = 0; i < 30; ++i) {
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
                const QString name = QApplication::focusWidget()->objectName();
                if (name == "TabStrip1")
                    break;
                reached << name;
            }
            QCOMPARE(reached, buttonsOfPage(page));
        }
    }
    void arrowKeysMoveBetweenTheButtonsAsTheyStand()
    {
        d.start();
        QVERIFY(activate(main()));
        const QStringList buttons = buttonsOfPage(0);
        control("QLMain", buttons[0])->setFocus(Qt::TabFocusReason);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
        QCOMPARE(QApplication::focusWidget()->objectName(), buttons[1]);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
        QCOMPARE(QApplication::focusWidget()->objectName(), buttons[4]);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Left);
        QCOMPARE(QApplication::focusWidget()->objectName(), buttons[3]);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Up);
        QCOMPARE(QApplication::focusWidget()->objectName(), buttons[0]);
        QVERIFY(!d.loaded("ImageFade"));
    }
    void theMenusShowTheirKeys()
    {
        d.start();
        QCOMPARE(action("QLMain", "mnuHelpContents")->shortcut(), QKeySequence(Qt::Key_F1));
        QCOMPARE(action("QLMain", "mnuFileExit")->shortcut(), quitKey());
        QCOMPARE(action("QLMain", "mnuHelpContents")->text(), QString("&Contents..."));
        QCOMPARE(action("QLMain", "mnuFileExit")->text(), QString("E&xit"));
    }
    void f1InTheMainWindowOpensTheContentsOnce()
    {
        d.start();
        QVERIFY(activate(main()));
        QTest::keyClick(main(), Qt::Key_F1);
        QCOMPARE(d.help(), (QJsonArray{QJsonArray{"QLMain", 0}}));
    }
    void theQuitKeyEndsTheProgram()
    {
        d.start();
        QVERIFY(activate(main()));
        QTest::keySequence(main(), quitKey());
        QVERIFY(d.ok({{"op", "ended"}}).toBool());
    }
    void theWizardsEditMenuShowsTheUsualKeys()
    {
        openPreview();
        QCOMPARE(action("Preview", "mnuCopy")->shortcut(), QKeySequence(QKeySequence::Copy));
        QCOMPARE(action("Preview", "mnuPaste")->shortcut(), QKeySequence(QKeySequence::Paste));
        QCOMPARE(action("Preview", "mnuSelectAll")->shortcut(), QKeySequence(QKeySequence::SelectAll));
        QCOMPARE(action("Preview", "mnuCopy")->text(), QString("&Copy"));
        QCOMPARE(action("Preview", "mnuPaste")->text(), QString("&Paste"));
        QCOMPARE(action("Preview", "mnuSelectAll")->text(), QString("Select &All"));
    }
    void theWizardsKeysStayWithTheBoxesThatHaveThem()
    {
        QTest::failOnWarning(QRegularExpression("Ambiguous"));
        openPreview();
        QWidget* preview = d.app().forms().findWidget("Preview");
        QVERIFY(activate(preview));
        QSignalSpy selectAll(action("Preview", "mnuSelectAll"), &QAction::triggered);
        QSignalSpy copy(action("Preview", "mnuCopy"), &QAction::triggered);
        // The code box selects all of its text itself.
        d.click("Preview", "Command15");
        auto* code = control<QPlainTextEdit>("Preview", "Text1");
        code->setFocus();
        code->moveCursor(QTextCursor::Start);
        QTest::keyClick(code, Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(code->textCursor().selectedText().size(), code->toPlainText().size());
        QVERIFY(!code->toPlainText().isEmpty());
        // A file list of Step 3 keeps its own Ctrl+A.
        d.click("Preview", "mnuAutocopy");
        auto* files = control<QListWidget>("Preview", "File1");
        QVERIFY(files);
        files->setFocus();
        QTest::keyClick(files, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(files, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(selectAll.count(), 0);
        QCOMPARE(copy.count(), 0);
    }
    void newFolderDialogOpensOnTheNameField()
    {
        openPreview();
        d.click("Preview", "mnuAutocopy");
        d.click("Preview", "Command1");
        QVERIFY(d.shown("MakeDir"));
        QCOMPARE(d.on("MakeDir", "MakeDir", "focus").toString(), QString("Text1"));
    }

    void buttonsShowThePicturesOfWhatTheyDo()
    {
        openPreview();
        const QImage copyPicture = pictureOf(copyIcon());
        QCOMPARE(pictureOf(control<QToolButton>("Preview", "Command3")->icon()), copyPicture);
        QCOMPARE(pictureOf(control<QToolButton>("Preview", "Command4")->icon()), pictureOf(webPageIcon()));
        QVERIFY(pictureOf(webPageIcon()) != pictureOf(helpIcon()));
        QCOMPARE(pictureOf(control<QToolButton>("Preview", "Command16")->icon()), pictureOf(helpIcon()));
        d.click("Preview", "mnuReturn");
        d.click("QLMain", "mnuPreferences");
        for (const char* browse : {"Command5", "Command6"})
            QCOMPARE(pictureOf(control<QToolButton>("Options", browse)->icon()), pictureOf(programFileIcon()));
    }
    void withoutAThemeIconTheDrawnPicturesServe()
    {
        const QString theme = QIcon::themeName();
        QIcon::setThemeName("no-such-theme");
        for (const QIcon& icon : {helpIcon(), copyIcon(), webPageIcon(), programFileIcon()}) {
            QVERIFY(!icon.isNull());
            QCOMPARE(icon.name(), QString());
            QVERIFY(icon.availableSizes().contains(QSize(16, 16)));
            QVERIFY(icon.availableSizes().contains(QSize(48, 48)));
        }
        QVERIFY(pictureOf(copyIcon()) != pictureOf(webPageIcon()));
        QVERIFY(pictureOf(programFileIcon()) != pictureOf(helpIcon()));
        QIcon::setThemeName(theme);
    }
    void aDesktopThemeGivesItsIconsByTheirNames()
    {
        if (!QDir("/usr/share/icons/Adwaita").exists())
            QSKIP("no Adwaita icon theme here");
        const QString theme = QIcon::themeName();
        QIcon::setThemeSearchPaths(QIcon::themeSearchPaths() << "/usr/share/icons");
        QIcon::setThemeName("Adwaita");
        QCOMPARE(copyIcon().name(), QString("edit-copy"));
        QCOMPARE(webPageIcon().name(), QString("text-html"));
        QCOMPARE(programFileIcon().name(), QString("application-x-executable"));
        QCOMPARE(helpIcon().name(), QString("help-browser"));
        QIcon::setThemeName(theme);
    }
};

QL_TEST_MAIN(KeyboardTest)
#include "test_keyboard.moc"
