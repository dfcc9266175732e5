#include "TestSupport.h"
#include "core/EffectForm.h"
#include "core/Emission.h"
#include "core/Widgets.h"

#include <QApplication>
#include <QLineEdit>

using namespace ql;

namespace {

// A form with a browse button, as the effects with media files have.
const EffectDescription& probeDescription()
{
    static const EffectDescription d{.form = "BrowseProbe"};
    return d;
}

class BrowseForm : public EffectForm {
public:
    explicit BrowseForm(App& app)
        : EffectForm(app, probeDescription())
    {
        field = named(new QLineEdit(this), "Text1");
    }
    void done() override {}
    bool browse(int slot)
    {
        return browseFile("All Files (*.*)|*.*|GIF and JPG Files (*.gif, *.jpg, *.jpeg)|*.gif;*.jpg;*.jpeg",
                          "Browse...", slot, [this](const QString& name) { field->setText(name); });
    }
    QLineEdit* field;
};

}  // namespace

class ContractTest : public QObject {
    Q_OBJECT

    TestDriver d;

    void fillSwirly()
    {
        d.setText("Swirly", "Text7", "Again");
        d.setText("Swirly", "Text10", "100");
        d.setText("Swirly", "Text11", "40");
    }

private slots:
    void paramLineShape()
    {
        QCOMPARE(ParamLine("TEXT", "Hi"), QString("<PARAM NAME=TEXT VALUE=\"Hi\">\r\n"));
        QCOMPARE(ParamLine("BGCOLOR", ""), QString("<PARAM NAME=BGCOLOR VALUE=\"\">\r\n"));
    }
    void appletTagShape()
    {
        QCOMPARE(AppletTag("ColorSwirl.class", "60", "300"),
                 QString("<APPLET CODE=\"ColorSwirl.class\" HEIGHT=\"60\" WIDTH=\"300\">\r\n"));
        QCOMPARE(AppletEnd, QString("</APPLET>\r\n"));
    }
    void wizardValue()
    {
        QCOMPARE(WizardValue(), QString("Created with Quillet.  Quillet Web site at: http://www.quillet-fx.com/"));
        d.start();
        const QJsonObject constants = d.ok({{"op", "constants"}}).toObject();
        QCOMPARE(WizardValue(), "Created with Quillet.  Quillet Web site at: " + constants.value("PRODUCT_URL").toString());
    }
    void requiredFileMessages()
    {
        QCOMPARE(RequiredFilesMessage({"- images", "- sound files"}),
                 QString("You will need the following files in order for this special effect to work correctly:\r\n\r\n"
                         "- images\r\n- sound files\r\n"
                         "- the HTML document (Web page) containing the special effect HTML code\r\n\r\n"
                         "These files MUST reside in the same folder!"));
        QCOMPARE(NoFilesMessage(),
                 QString("This special effect requires no extra files.\r\n\r\n"
                         "Simply follow the instructions in the Preview Wizard to insert this special effect into "
                         "your Web page"));
    }
    void openingErasesTheArrays()
    {
        d.start();
        EffectSession& s = d.app().session();
        s.RequiredFiles.set(3, "old.gif");
        s.RequiredPaths.set(3, "/old/old.gif");
        s.RequiredClasses.set(1, "Old.class");
        d.click("QLMain", "Command4");
        QCOMPARE(s.RequiredFiles.toList(), QStringList(51, QString()));
        QCOMPARE(s.RequiredPaths.toList(), QStringList(51, QString()));
        QCOMPARE(s.RequiredClasses.toList(), QStringList(3, QString()));
    }
    void cancelledColourDialogChangesNothing()
    {
        d.start();
        d.click("QLMain", "Command4");
        d.setText("Swirly", "Text1", "1,2,3");
        d.ok({{"op", "answer_color"}, {"values", QJsonArray{QJsonValue::Null}}});
        d.click("Swirly", "Label5");
        QCOMPARE(d.text("Swirly", "Label5"), QString("Select"));
        QCOMPARE(d.text("Swirly", "Text1"), QString("1,2,3"));
    }
    void twoColourPicksRepaintAndOverwrite()
    {
        d.start();
        d.click("QLMain", "Command4");
        d.ok({{"op", "answer_color"}, {"values", QJsonArray{255, 65536 * 200 + 256 * 10 + 5}}});
        d.click("Swirly", "Label5");
        QCOMPARE(d.text("Swirly", "Text1"), QString("255,0,0"));
        QCOMPARE(d.on("Swirly", "Label5", "back_color").toInt(), 255);
        d.click("Swirly", "Label5");
        QCOMPARE(d.text("Swirly", "Text1"), QString("5,10,200"));
        QCOMPARE(d.on("Swirly", "Label5", "back_color").toInt(), 65536 * 200 + 256 * 10 + 5);
        QCOMPARE(d.text("Swirly", "Label5"), QString(""));
    }
    void colourDialogWithoutAnAnswerIsAScriptFailure()
    {
        d.start();
        d.click("QLMain", "Command4");
        const QJsonObject answer = d.sendOn("Swirly", "Label5", "click");
        QCOMPARE(answer.value("error").toString(), QString("AssertionError"));
        QCOMPARE(d.text("Swirly", "Label5"), QString("Select"));
    }
    void fileBrowseFillsTheFieldAndTheSlot()
    {
        d.start();
        d.app().forms().add("BrowseProbe", [](App& app) { return new BrowseForm(app); });
        auto* form = d.app().forms().get<BrowseForm>("BrowseProbe");
        QVERIFY(form);
        d.ok({{"op", "answer_file"}, {"paths", QJsonArray{QJsonValue::Null, "/home/me/pics/sun.gif"}}});
        QVERIFY(!form->browse(4));
        QCOMPARE(form->field->text(), QString());
        QCOMPARE(d.app().session().RequiredFiles.at(4), QString());
        QVERIFY(form->browse(4));
        QCOMPARE(form->field->text(), QString("sun.gif"));
        QCOMPARE(d.app().session().RequiredFiles.at(4), QString("sun.gif"));
        QCOMPARE(d.app().session().RequiredPaths.at(4), QString("/home/me/pics/sun.gif"));
        const QJsonArray dialogs = d.ok({{"op", "dialogs"}}).toArray();
        QCOMPARE(dialogs.size(), 2);
        QCOMPARE(dialogs[1].toObject(),
                 (QJsonObject{{"kind", "open"},
                              {"title", "Browse..."},
                              {"filter", "All Files (*.*)|*.*|GIF and JPG Files (*.gif, *.jpg, *.jpeg)|*.gif;*.jpg;*.jpeg"},
                              {"filter_index", 2}}));
        // A slot outside the arrays is not written.
        d.ok({{"op", "answer_file"}, {"paths", QJsonArray{"/x/y.gif"}}});
        QVERIFY(form->browse(51));
        QCOMPARE(d.app().session().RequiredFiles.toList().size(), 51);
    }
    void doneAgainAfterPreviewGivesTheSameCode()
    {
        d.start();
        d.click("QLMain", "Command4");
        fillSwirly();
        d.click("Swirly", "Command1");
        const QString first = d.session().value("GeneratedCode").toString();
        QVERIFY(!first.isEmpty());
        // Back from the wizard: the hidden form comes back as it was.
        d.on("Preview", "Preview", "close");
        QVERIFY(!d.loaded("Preview"));
        d.app().session().GeneratedCode.clear();
        d.app().forms().show("Swirly", true);
        QCOMPARE(d.text("Swirly", "Text7"), QString("Again"));
        d.click("Swirly", "Command1");
        QCOMPARE(d.session().value("GeneratedCode").toString(), first);
        QCOMPARE(d.session().value("RequiredClasses").toArray(), (QJsonArray{"ColorSwirl.class", "", ""}));
    }
    void hiddenFormShownAgainRunsNoOpeningSteps()
    {
        d.start();
        d.click("QLMain", "Command4");
        fillSwirly();
        d.click("Swirly", "Command1");
        d.on("Preview", "Preview", "close");
        d.app().session().RequiredFiles.set(0, "kept.gif");
        d.app().forms().show("Swirly", true);
        QCOMPARE(d.app().session().RequiredFiles.at(0), QString("kept.gif"));
        QCOMPARE(d.on("Swirly", "Combo1", "items").toArray().size(), 5);
    }
};

QL_TEST_MAIN(ContractTest)
#include "test_contract.moc"
