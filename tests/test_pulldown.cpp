#include "Browser.h"
#include "TestSupport.h"
#include "effects/page/PulldownModel.h"

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QUrl>

using namespace ql;

namespace {

const QString Separator = "--------------------";
const QString OnePieceMessage =
    "This effect does not require any extra files in order to work correctly.  Simply copy and paste the code "
    "from the Preview Wizard to your HTML document to insert this special effect.";

QString menuCode(const QString& target, const QString& size, const QString& options)
{
    return "<SCRIPT LANGUAGE=\"JavaScript\">\r\n\r\n"
           "<!-- Script written by Ostrel Software - http://www.quillet-fx.com/company/ -->\r\n"
           "<!-- Created by Quillet software - http://www.quillet-fx.com/ -->\r\n\r\n"
           "<!--\r\n"
           "function JumpTo(form) {\r\n"
           "     i = form.elements[0].selectedIndex;\r\n"
           "     window.parent.frames['" + target + "'].location = form.elements[0].options[i].value;\r\n"
           "     }\r\n"
           "//-->\r\n"
           "</SCRIPT>\r\n\r\n"
           "<FORM METHOD=POST ACTION=\"#\" onSubmit=\"return false\">\r\n"
           "    <SELECT" + size + ">\r\n" + options +
           "    </SELECT>\r\n"
           "  <INPUT TYPE=Submit NAME=\"Submit\" VALUE=\"Go to\" onClick=\"JumpTo(this.form)\">\r\n"
           "</FORM>";
}

QString option(const QString& url, const QString& text)
{
    return "          <OPTION VALUE=\"" + url + "\">" + text + "\r\n";
}

}  // namespace

class PulldownTest : public QObject {
    Q_OBJECT

    TestDriver d;

    void open()
    {
        d.start();
        d.click("QLMain", "Command15");
        QVERIFY(d.shown("Pulldown"));
        QVERIFY(d.modal("Pulldown"));
    }
    QJsonArray items() { return d.on("Pulldown", "List1", "items").toArray(); }
    QJsonArray urls() { return d.on("Pulldown", "List2", "items").toArray(); }
    int selected(const QString& list = "List1") { return d.on("Pulldown", list, "selected").toInt(); }
    void select(int row) { d.on("Pulldown", "List1", "select", {{"indexes", QJsonArray{row}}}); }
    // A row entered through the dialog.
    void addRow(const QString& text, const QString& url)
    {
        d.click("Pulldown", "Command1");
        QVERIFY(d.shown("PulldownURL"));
        d.setText("PulldownURL", "Text1", text);
        d.setText("PulldownURL", "Text2", url);
        d.click("PulldownURL", "Command1");
        QVERIFY(!d.loaded("PulldownURL"));
    }

private slots:
    // The model.
    void emissionOfADropdownWithASeparator()
    {
        PulldownModel::Fields f{.items = {"Home", Separator, "News"},
                                .urls = {"index.html", "", "http://example.com/news.html"},
                                .showAll = false,
                                .target = ""};
        QCOMPARE(PulldownModel::emitCode(f),
                 menuCode("self", "",
                          option("index.html", "Home") + option("#", Separator) +
                              option("http://example.com/news.html", "News")));
    }
    void allRowsShownGiveTheSize()
    {
        PulldownModel::Fields f{.items = {"A", "B"}, .urls = {"a.html", "b.html"}, .showAll = true, .target = "top"};
        QCOMPARE(PulldownModel::emitCode(f),
                 menuCode("top", " SIZE=\"2\"", option("a.html", "A") + option("b.html", "B")));
    }
    void emptyMenuWithAllRowsShown()
    {
        PulldownModel::Fields f{.items = {}, .urls = {}, .showAll = true, .target = "  "};
        QCOMPARE(PulldownModel::emitCode(f), menuCode("self", " SIZE=\"0\"", ""));
        QVERIFY(!PulldownModel::validate(f));
    }
    void targetAsItStandsWhenNotBlank()
    {
        PulldownModel::Fields f{.items = {}, .urls = {}, .showAll = false, .target = " main "};
        QVERIFY(PulldownModel::emitCode(f).contains("window.parent.frames[' main '].location"));
    }
    void aRowWhoseTextIsTheSeparatorLinksToHash()
    {
        PulldownModel::Fields f{.items = {Separator}, .urls = {"typed.html"}, .showAll = false, .target = ""};
        QVERIFY(PulldownModel::emitCode(f).contains(option("#", Separator)));
    }
    void insertPosition()
    {
        QCOMPARE(PulldownModel::insertPosition(0, -1), 0);
        QCOMPARE(PulldownModel::insertPosition(3, -1), 3);
        QCOMPARE(PulldownModel::insertPosition(3, 0), 0);
        QCOMPARE(PulldownModel::insertPosition(3, 1), 1);
        QCOMPARE(PulldownModel::insertPosition(3, 2), 3);
    }

    // The form.
    void formOpensWithItsCaptionsAndDefaults()
    {
        open();
        QCOMPARE(d.text("Pulldown", "Pulldown"), QString("Pulldown menu"));
        QCOMPARE(d.text("Pulldown", "Label4"),
                 QString("  Create pulldown menus with menu items that link to other Web pages.  Insert menu items "
                         "in the order you want them to appear."));
        QCOMPARE(d.text("Pulldown", "Label1"), QString("Menu items:"));
        QCOMPARE(d.text("Pulldown", "Label2"), QString("Link to this URL:"));
        QCOMPARE(d.text("Pulldown", "Command1"), QString("&Insert Menu item..."));
        QCOMPARE(d.text("Pulldown", "Command3"), QString("Insert &separator"));
        QCOMPARE(d.text("Pulldown", "Command7"), QString("&Edit Menu item..."));
        QCOMPARE(d.text("Pulldown", "Command2"), QString("&Remove Menu item"));
        QCOMPARE(d.text("Pulldown", "Option1(0)"), QString("Display as a dropdown menu"));
        QCOMPARE(d.text("Pulldown", "Option1(1)"), QString("Display all menu items"));
        QVERIFY(d.on("Pulldown", "Option1(0)", "checked").toBool());
        QVERIFY(!d.on("Pulldown", "Option1(1)", "checked").toBool());
        QCOMPARE(d.text("Pulldown", "Label3"), QString("Target frame (optional, only if using Frames):"));
        QCOMPARE(d.on("Pulldown", "Combo1", "items").toArray(), (QJsonArray{"parent", "self", "top"}));
        QCOMPARE(d.text("Pulldown", "Combo1"), QString());
        QVERIFY(d.on("Pulldown", "Combo1", "editable").toBool());
        QCOMPARE(d.text("Pulldown", "Command4"), QString("&OK"));
        QCOMPARE(d.text("Pulldown", "Command5"), QString("&Cancel"));
        QCOMPARE(d.on("Pulldown", "Command6", "tooltip").toString(), QString("Click here for help"));
        QCOMPARE(items(), QJsonArray());
        QCOMPARE(urls(), QJsonArray());
    }
    void theDialogAddsRowsAtTheInsertPosition()
    {
        open();
        d.click("Pulldown", "Command1");
        QVERIFY(d.modal("PulldownURL"));
        QCOMPARE(d.text("PulldownURL", "PulldownURL"), QString("Specify Menu item and URL"));
        QCOMPARE(d.text("PulldownURL", "Label1"), QString("Menu item text:"));
        QCOMPARE(d.text("PulldownURL", "Label2"), QString("Link menu item to this URL:"));
        QCOMPARE(d.text("PulldownURL", "Command1"), QString("&OK"));
        QCOMPARE(d.text("PulldownURL", "Command2"), QString("&Cancel"));
        QCOMPARE(d.text("PulldownURL", "Text1"), QString());
        QCOMPARE(d.session().value("PulldownItemMode").toInt(), 0);
        d.click("PulldownURL", "Command2");
        QVERIFY(!d.loaded("PulldownURL"));
        QCOMPARE(items(), QJsonArray());

        addRow("One", "one.html");
        addRow("Two", "two.html");
        addRow("Three", "three.html");
        QCOMPARE(items(), (QJsonArray{"One", "Two", "Three"}));
        QCOMPARE(urls(), (QJsonArray{"one.html", "two.html", "three.html"}));
        // The first of three selected: the new row goes first.
        select(0);
        QCOMPARE(selected("List2"), 0);
        addRow("Zero", "zero.html");
        QCOMPARE(items(), (QJsonArray{"Zero", "One", "Two", "Three"}));
        QCOMPARE(urls(), (QJsonArray{"zero.html", "one.html", "two.html", "three.html"}));
        // The last selected: at the end.
        select(3);
        addRow("Four", "four.html");
        QCOMPARE(items(), (QJsonArray{"Zero", "One", "Two", "Three", "Four"}));
        // A separator goes ahead of a selected middle row.
        select(2);
        d.click("Pulldown", "Command3");
        QCOMPARE(items(), (QJsonArray{"Zero", "One", Separator, "Two", "Three", "Four"}));
        QCOMPARE(urls(), (QJsonArray{"zero.html", "one.html", "", "two.html", "three.html", "four.html"}));
    }
    void selectingARowInOneListSelectsItInTheOther()
    {
        open();
        addRow("A", "a.html");
        addRow("B", "b.html");
        d.on("Pulldown", "List2", "select", {{"indexes", QJsonArray{1}}});
        QCOMPARE(selected("List1"), 1);
        select(0);
        QCOMPARE(selected("List2"), 0);
    }
    void theDialogRefusesEmptyFields()
    {
        open();
        d.click("Pulldown", "Command1");
        d.click("PulldownURL", "Command1");
        d.setText("PulldownURL", "Text1", "Item");
        d.click("PulldownURL", "Command1");
        const QJsonArray m = d.messages();
        QCOMPARE(m.size(), 2);
        QCOMPARE(messageText(m[0]), QString("Enter menu item text in the text input box or click Cancel."));
        QCOMPARE(messageStyle(m[0]), 0);
        QCOMPARE(messageText(m[1]), QString("Enter a Web page URL in the text input box or click Cancel."));
        QCOMPARE(messageStyle(m[1]), 0);
        QVERIFY(d.shown("PulldownURL"));
        QCOMPARE(items(), QJsonArray());
    }
    void editChangesTheSelectedRowInPlace()
    {
        open();
        addRow("A", "a.html");
        addRow("B", "b.html");
        addRow("C", "c.html");
        select(1);
        d.click("Pulldown", "Command7");
        QCOMPARE(d.session().value("PulldownItemMode").toInt(), 1);
        QCOMPARE(d.text("PulldownURL", "Text1"), QString("B"));
        QCOMPARE(d.text("PulldownURL", "Text2"), QString("b.html"));
        d.setText("PulldownURL", "Text1", "Bee");
        d.setText("PulldownURL", "Text2", "bee.html");
        d.click("PulldownURL", "Command1");
        QCOMPARE(items(), (QJsonArray{"A", "Bee", "C"}));
        QCOMPARE(urls(), (QJsonArray{"a.html", "bee.html", "c.html"}));
        // A double click on a row edits it too.
        select(2);
        d.on("Pulldown", "List1", "double_click");
        QCOMPARE(d.text("PulldownURL", "Text1"), QString("C"));
        d.click("PulldownURL", "Command2");
        QCOMPARE(items(), (QJsonArray{"A", "Bee", "C"}));
    }
    void editWithNoRowSelectedChangesNothing()
    {
        open();
        addRow("A", "a.html");
        d.on("Pulldown", "List1", "select", {{"indexes", QJsonArray{}}});
        QCOMPARE(selected(), -1);
        d.click("Pulldown", "Command7");
        QCOMPARE(d.text("PulldownURL", "Text1"), QString());
        QCOMPARE(d.text("PulldownURL", "Text2"), QString());
        d.setText("PulldownURL", "Text1", "New");
        d.setText("PulldownURL", "Text2", "new.html");
        d.click("PulldownURL", "Command1");
        QVERIFY(!d.loaded("PulldownURL"));
        QCOMPARE(items(), (QJsonArray{"A"}));
        QCOMPARE(urls(), (QJsonArray{"a.html"}));
    }
    void aSeparatorCannotBeEdited()
    {
        open();
        d.click("Pulldown", "Command3");
        select(0);
        d.click("Pulldown", "Command7");
        QVERIFY(!d.loaded("PulldownURL"));
        const QJsonArray m = d.messages();
        QCOMPARE(m.size(), 1);
        QCOMPARE(messageText(m[0]), QString("The separator can't be edited.  It can only be added or removed."));
        QCOMPARE(messageStyle(m[0]), 0);
        // Nor a row whose text is the separator's, typed in the dialog.
        addRow(Separator, "typed.html");
        select(1);
        d.click("Pulldown", "Command7");
        QVERIFY(!d.loaded("PulldownURL"));
        QCOMPARE(d.messages().size(), 2);
    }
    void removeRefusesAnEmptyListAndNoSelection()
    {
        open();
        d.click("Pulldown", "Command2");
        addRow("A", "a.html");
        addRow("B", "b.html");
        d.on("Pulldown", "List1", "select", {{"indexes", QJsonArray{}}});
        d.click("Pulldown", "Command2");
        const QJsonArray m = d.messages();
        QCOMPARE(m.size(), 2);
        QCOMPARE(messageText(m[0]),
                 QString("The list of Menu items is empty.  Please add a menu item before removing it."));
        QCOMPARE(messageText(m[1]), QString("Select a menu item from the list in order to remove it."));
        QCOMPARE(messageStyle(m[1]), 0);
        select(0);
        d.click("Pulldown", "Command2");
        QCOMPARE(items(), (QJsonArray{"B"}));
        QCOMPARE(urls(), (QJsonArray{"b.html"}));
    }
    void okHandsOverAndTheRowsSurviveTheWayBack()
    {
        open();
        addRow("Home", "index.html");
        d.click("Pulldown", "Command3");
        addRow("News", "news.html");
        d.click("Pulldown", "Option1(1)");
        d.setText("Pulldown", "Combo1", "main");
        d.click("Pulldown", "Command4");
        const QString expected =
            menuCode("main", " SIZE=\"3\"",
                     option("index.html", "Home") + option("#", Separator) + option("news.html", "News"));
        const QJsonObject s = d.session();
        QCOMPARE(s.value("GeneratedCode").toString(), expected);
        QCOMPARE(s.value("EffectId").toInt(), 15);
        QCOMPARE(s.value("RequiredClasses").toArray(), (QJsonArray{"", "", ""}));
        const QJsonArray m = d.messages();
        QCOMPARE(m.size(), 1);
        QCOMPARE(messageText(m[0]), OnePieceMessage);
        QCOMPARE(messageStyle(m[0]), 48);
        QVERIFY(!d.shown("Pulldown"));
        QVERIFY(d.modal("Preview"));
        QCOMPARE(d.text("Preview", "Label3"), QString(" Required Java class files:  None"));
        // One piece and no files: normal Step 2, then the Finish page.
        d.click("Preview", "Command15");
        QVERIFY(d.on("Preview", "Label9", "visible").toBool());
        d.click("Preview", "Command15");
        QVERIFY(d.on("Preview", "Picture1(4)", "on_top").toBool());
        d.click("Preview", "Command14");
        d.click("Preview", "Command14");
        // Back from Step 1: the form with its rows, and MessageIndex one step back.
        QCOMPARE(d.session().value("MessageIndex").toInt(), 0);
        d.click("Preview", "Command14");
        QCOMPARE(d.session().value("MessageIndex").toInt(), -1);
        QVERIFY(d.shown("Pulldown"));
        QVERIFY(d.modal("Pulldown"));
        QCOMPARE(items(), (QJsonArray{"Home", Separator, "News"}));
        d.click("Pulldown", "Command4");
        QCOMPARE(d.session().value("GeneratedCode").toString(), expected);
        // The wizard's Edit applet entry steps back too, and shows the form without the modal flag.
        d.click("Preview", "mnuEditApplet");
        QCOMPARE(d.session().value("MessageIndex").toInt(), -2);
        QVERIFY(d.shown("Pulldown"));
        QVERIFY(!d.modal("Pulldown"));
    }
    void finishUnloadsTheForm()
    {
        open();
        addRow("Home", "index.html");
        d.click("Pulldown", "Command4");
        d.click("Preview", "Command15");
        d.click("Preview", "Command15");
        d.click("Preview", "Command5");
        QVERIFY(!d.loaded("Pulldown"));
        d.click("QLMain", "mnuPulldown");
        QCOMPARE(items(), QJsonArray());
    }
    void cancelAndHelp()
    {
        open();
        d.click("Pulldown", "Command6");
        QCOMPARE(d.help(), (QJsonArray{QJsonArray{"Pulldown", QJsonValue::Null}}));
        d.click("Pulldown", "Command5");
        QVERIFY(!d.loaded("Pulldown"));
    }
    void goToFollowsTheChosenItemInABrowser()
    {
        if (!browser::chromium())
            QSKIP(qPrintable(browser::missingMessage()));
        QTemporaryDir pages;
        QFile target(pages.filePath("second.html"));
        QVERIFY(target.open(QIODevice::WriteOnly));
        target.write("<HTML><BODY><P id=\"arrived\">Second page reached</P></BODY></HTML>\r\n");
        target.close();
        PulldownModel::Fields f{.items = {"First", Separator, "Second"},
                                .urls = {"first.html", "", "second.html"},
                                .showAll = false,
                                .target = ""};
        // The visitor chooses the third row and presses "Go to".
        const QString visitor = "<SCRIPT>window.onload = function () {"
                                " var form = document.forms[0];"
                                " form.elements[0].selectedIndex = 2;"
                                " form.elements[1].click(); };</SCRIPT>\r\n";
        QFile page(pages.filePath("menu.html"));
        QVERIFY(page.open(QIODevice::WriteOnly));
        page.write(("<HTML><BODY>\r\n" + PulldownModel::emitCode(f) + "\r\n" + visitor + "</BODY></HTML>\r\n")
                       .toUtf8());
        page.close();
        const browser::Run run = browser::dumpDom(page.fileName(), 2000);
        QVERIFY2(run.ok, qPrintable(run.error));
        QVERIFY2(run.dom.contains("Second page reached"), qPrintable(run.dom));
        QVERIFY(!run.dom.contains("JumpTo"));
    }
    void aSeparatorGoesNowhereInABrowser()
    {
        if (!browser::chromium())
            QSKIP(qPrintable(browser::missingMessage()));
        QTemporaryDir pages;
        PulldownModel::Fields f{.items = {"First", Separator}, .urls = {"first.html", ""}, .showAll = true,
                                .target = "self"};
        const QString visitor = "<SCRIPT>window.onload = function () {"
                                " var form = document.forms[0];"
                                " form.elements[0].selectedIndex = 1;"
                                " form.elements[1].click();"
                                " document.body.setAttribute('data-rows', form.elements[0].size); };</SCRIPT>\r\n";
        QFile page(pages.filePath("menu.html"));
        QVERIFY(page.open(QIODevice::WriteOnly));
        page.write(("<HTML><BODY>\r\n" + PulldownModel::emitCode(f) + "\r\n" + visitor + "</BODY></HTML>\r\n")
                       .toUtf8());
        page.close();
        const browser::Run run = browser::dumpDom(page.fileName(), 2000);
        QVERIFY2(run.ok, qPrintable(run.error));
        QVERIFY2(run.dom.contains("data-rows=\"2\""), qPrintable(run.dom));
        QVERIFY(run.dom.contains("JumpTo"));
    }
};

QL_TEST_MAIN(PulldownTest)
#include "test_pulldown.moc"
