#include "TestSupport.h"
#include "core/EffectForm.h"
#include "core/FormBuilder.h"
#include "core/FormNames.h"
#include "core/StepWizard.h"
#include "core/Widgets.h"
#include "publish/PreviewTable.h"
#include "reedit/EditAppletForm.h"
#include "shell/Catalogue.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QTemporaryDir>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

using namespace ql;

namespace {

// The forms that the catalogue, the menus, the Preview wizard and re-edit
// name but that are not built yet. It shrinks to nothing as the effects come.
const QStringList NotBuiltYet = {
    FormName::Anim,          FormName::AnimWizard, FormName::BBWizard,    FormName::ImageEffects,
    FormName::ImageEffects2, FormName::AnimButton, FormName::ImgRollover, FormName::ImageFade,
    FormName::About,
};

// Every form name that another part of the program names.
QStringList namedForms()
{
    QStringList names;
    for (const CatalogueEntry& e : catalogue())
        names << e.form;
    for (const EffectSubmenu& sub : effectMenu()) {
        for (const EffectMenuEntry& e : sub.entries)
            names << e.form;
    }
    for (int id = 1; id <= 24; ++id)
        names << formOfEffect(id);
    names << finishUnloads() << EditAppletForm::routedForms();
    names << FormName::Main << FormName::EditApplet << FormName::Preview << FormName::MakeDir << FormName::Options
          << FormName::About;
    names.removeDuplicates();
    return names;
}

const EffectDescription& probeDescription()
{
    static const EffectDescription d{.form = "KitProbe", .effectId = 99};
    return d;
}

// A wizard of three pages, as the effect wizards are built.
class WizardProbe : public EffectForm {
public:
    explicit WizardProbe(App& app)
        : EffectForm(app, probeDescription())
        , wizard(this, "Label11", "Label5")
    {
        for (int i = 0; i < 3; ++i) {
            QWidget* page = wizard.addPage(arrayName("Picture1", i),
                                           {QStringLiteral("Step %1").arg(i + 1),
                                            i == 1 ? QString("A much longer instruction that takes more room than "
                                                             "the others do, so that the window must fit it.")
                                                   : QStringLiteral("Short %1").arg(i)});
            FormBuilder b(page, 1, this);
            b.text(QStringLiteral("Text%1").arg(i), QStringLiteral("Label%1").arg(20 + i),
                   QStringLiteral("Field %1:").arg(i));
        }
        wizard.makeBack("Command6");
        wizard.makeForward("Command7");
        auto* layout = new QVBoxLayout(this);
        layout->addWidget(wizard.body());
        layout->addLayout(wizard.navigationRow(makeHelpButton("Command4"), makeButton("Command2", "&Cancel")));
        connect(&wizard, &StepWizard::forwardClicked, this, [this] {
            if (wizard.onLastPage())
                done();
            else
                wizard.goTo(wizard.current() + 1);
        });
        connect(&wizard, &StepWizard::backClicked, this, [this] { wizard.goTo(wizard.current() - 1); });
        connect(findChild<QPushButton*>("Command2"), &QPushButton::clicked, this, [this] { unload(); });
    }
    void done() override { ++dones; }
    StepWizard wizard;
    int dones = 0;
};

// A form laid out by the builder, in the order of its control table.
class BuilderProbe : public EffectForm {
public:
    explicit BuilderProbe(App& app)
        : EffectForm(app, probeDescription())
    {
        FormBuilder b(this, 2, this);
        b.note("Label1", "A note");
        b.text("Text1", "Label2", "Width (pixels):", 6);
        b.text("Text2", "Label3", "Height (pixels):", 6);
        b.combo("Combo1", "Label4", "Font:");
        b.color("Text3", "Label5", "Label6", "Background Color:");
        FormBuilder inner = b.frame("Frame1", "Options");
        inner.check("Check1", "Bold");
        inner.browse("Text4", "Command3", "Label7", "Image:", "All Files (*.*)|*.*", 4);
        static_cast<QGridLayout*>(layout())->addLayout(commandRow("Command1", "Command2", "Command4"), 99, 0, 1, 4);
    }
    void done() override {}
};

QStringList tabChain(QWidget* window)
{
    QStringList names;
    QWidget* w = window->nextInFocusChain();
    for (int guard = 0; w && w != window && guard < 200; w = w->nextInFocusChain(), ++guard) {
        if ((w->focusPolicy() & Qt::TabFocus) && !w->objectName().isEmpty() && !w->objectName().startsWith("qt_"))
            names << w->objectName();
    }
    return names;
}

}  // namespace

class KitTest : public QObject {
    Q_OBJECT

    TestDriver d;

    // A fresh program with Swirly Text handed over to the Preview wizard.
    void swirlyInPreview()
    {
        d.start();
        d.click("QLMain", "Command4");
        d.setText("Swirly", "Text7", "x");
        d.setText("Swirly", "Text10", "10");
        d.setText("Swirly", "Text11", "10");
        d.click("Swirly", "Command1");
    }

private slots:
    void everyNamedFormIsRegisteredOrListedAsNotBuilt()
    {
        d.start();
        for (const QString& name : namedForms()) {
            const bool registered = d.app().forms().exists(name);
            if (NotBuiltYet.contains(name))
                QVERIFY2(!registered, qPrintable(name + " is built: take it off the list of forms not built yet"));
            else
                QVERIFY2(registered, qPrintable(name + " is named but neither registered nor listed as not built"));
        }
        for (const QString& name : NotBuiltYet)
            QVERIFY2(namedForms().contains(name), qPrintable(name));
    }
    void noEditableListBoxCompletesInlineOnAnyForm()
    {
        d.start();
        const QStringList forms = d.app().forms().names();
        QVERIFY(forms.size() >= 6);
        for (const QString& name : forms) {
            d.app().forms().show(name, false);
            QWidget* form = d.app().forms().findWidget(name);
            QVERIFY2(form, qPrintable(name));
            for (QComboBox* combo : form->findChildren<QComboBox*>()) {
                if (!combo->isEditable())
                    continue;
                QVERIFY2(!combo->completer(), qPrintable(name + "." + combo->objectName()));
                // Typed text stays as typed.
                combo->addItem("TimesRoman");
                combo->setEditText(QString());
                QTest::keyClicks(combo->lineEdit(), "Times");
                QCOMPARE(combo->currentText(), QString("Times"));
                combo->removeItem(combo->count() - 1);
            }
            d.app().forms().unload(name);
        }
    }
    void swirlyTypedValuesReachTheCodeAsTyped()
    {
        d.start();
        d.click("QLMain", "Command4");
        QWidget* form = d.app().forms().findWidget("Swirly");
        auto* font = form->findChild<QComboBox*>("Combo1");
        auto* size = form->findChild<QComboBox*>("Combo9");
        QTest::keyClicks(font->lineEdit(), "Times");
        QTest::keyClicks(size->lineEdit(), "7");
        d.setText("Swirly", "Text7", "x");
        d.setText("Swirly", "Text10", "10");
        d.setText("Swirly", "Text11", "10");
        d.click("Swirly", "Command1");
        const QString code = d.session().value("GeneratedCode").toString();
        QVERIFY(code.contains("<PARAM NAME=FONT VALUE=\"Times\">\r\n<PARAM NAME=SIZE VALUE=\"7\">\r\n"));
    }
    void builderTabOrderFollowsTheTableAndCaptionsAreBuddies()
    {
        d.start();
        d.app().forms().add("KitProbe", [](App& app) { return new BuilderProbe(app); });
        d.app().forms().show("KitProbe", true);
        QWidget* form = d.app().forms().findWidget("KitProbe");
        QCOMPARE(tabChain(form), (QStringList{"Text1", "Text2", "Combo1", "Text3", "Label5", "Check1", "Text4",
                                              "Command3", "Command4", "Command1", "Command2"}));
        QCOMPARE(form->findChild<QLabel*>("Label2")->buddy(), form->findChild<QWidget*>("Text1"));
        QCOMPARE(form->findChild<QLabel*>("Label6")->buddy(), form->findChild<QWidget*>("Text3"));
        QCOMPARE(form->findChild<QLabel*>("Label7")->buddy(), form->findChild<QWidget*>("Text4"));
        // Access keys: each caption has one of its own, and reads as written.
        QSet<QChar> keys;
        for (const char* name : {"Label2", "Label3", "Label4", "Label6", "Label7", "Check1", "Command1", "Command2"}) {
            const QString shown = form->findChild<QWidget*>(name)->property("text").toString();
            const qsizetype amp = shown.indexOf('&');
            QVERIFY2(amp >= 0 && amp + 1 < shown.size(), name);
            QVERIFY2(!keys.contains(shown[amp + 1].toLower()), name);
            keys.insert(shown[amp + 1].toLower());
        }
        QCOMPARE(d.text("KitProbe", "Label2"), QString("Width (pixels):"));
        QCOMPARE(d.text("KitProbe", "Check1"), QString("Bold"));
        QCOMPARE(d.text("KitProbe", "Command1"), QString("&Done"));
        // Done is the default button.
        QVERIFY(form->findChild<QPushButton*>("Command1")->isDefault());
        // The "Select" label is reached by Tab and picks with the keyboard.
        d.ok({{"op", "answer_color"}, {"values", QJsonArray{255}}});
        d.on("KitProbe", "Label5", "key", {{"key", "Space"}});
        QCOMPARE(d.text("KitProbe", "Text3"), QString("255,0,0"));
        // The browse button fills the field and the file arrays' slot.
        d.ok({{"op", "answer_file"}, {"paths", QJsonArray{"/tmp/pics/a.gif"}}});
        d.click("KitProbe", "Command3");
        QCOMPARE(d.text("KitProbe", "Text4"), QString("a.gif"));
        QCOMPARE(d.session().value("RequiredFiles").toArray()[4].toString(), QString("a.gif"));
        QCOMPARE(d.session().value("RequiredPaths").toArray()[4].toString(), QString("/tmp/pics/a.gif"));
    }
    void wizardNavigationAndItsForwardCaption()
    {
        d.start();
        d.app().forms().add("KitProbe", [](App& app) { return new WizardProbe(app); });
        d.app().forms().show("KitProbe", true);
        auto* form = static_cast<WizardProbe*>(d.app().forms().find("KitProbe"));
        QVERIFY(d.on("KitProbe", "Picture1(0)", "on_top").toBool());
        QCOMPARE(d.text("KitProbe", "Label11"), QString("Step 1"));
        QCOMPARE(d.text("KitProbe", "Label5"), QString("Short 0"));
        QVERIFY(!d.on("KitProbe", "Command6", "enabled").toBool());
        QCOMPARE(d.text("KitProbe", "Command7"), QString("&Next >>"));
        const QRect before = form->geometry();

        d.click("KitProbe", "Command7");
        QVERIFY(d.on("KitProbe", "Picture1(1)", "on_top").toBool());
        QCOMPARE(d.text("KitProbe", "Label11"), QString("Step 2"));
        QVERIFY(d.on("KitProbe", "Command6", "enabled").toBool());
        QCOMPARE(d.text("KitProbe", "Command7"), QString("&Next >>"));
        QCOMPARE(d.on("KitProbe", "KitProbe", "focus").toString(), QString("Text1"));

        // Enter in a field presses the default button: forward.
        d.on("KitProbe", "Text1", "key", {{"key", "Enter"}});
        QVERIFY(d.on("KitProbe", "Picture1(2)", "on_top").toBool());
        QCOMPARE(d.text("KitProbe", "Command7"), QString("&Done"));
        // One size for every page.
        QCOMPARE(form->geometry().size(), before.size());

        d.click("KitProbe", "Command7");
        QCOMPARE(form->dones, 1);
        d.click("KitProbe", "Command6");
        QVERIFY(d.on("KitProbe", "Picture1(1)", "on_top").toBool());
        QCOMPARE(d.text("KitProbe", "Command7"), QString("&Next >>"));
        d.click("KitProbe", "Command6");
        QVERIFY(!d.on("KitProbe", "Command6", "enabled").toBool());
        // The focus never stays on the disabled back button.
        QWidget* focus = form->focusWidget();
        QVERIFY(focus && focus->isVisible() && focus->isEnabled());

        // Escape is Cancel.
        d.on("KitProbe", "Text0", "key", {{"key", "Escape"}});
        QVERIFY(!d.loaded("KitProbe"));
    }
    void previewEditMenuNeverFocusesAHiddenControl()
    {
        swirlyInPreview();
        QWidget* preview = d.app().forms().findWidget("Preview");
        const QString code = d.text("Preview", "Text1");
        for (const char* entry : {"mnuSelectAll", "mnuCopy", "mnuPaste"}) {
            d.click("Preview", entry);
            QWidget* focus = preview->focusWidget();
            QVERIFY2(!focus || (focus->isVisible() && focus->isEnabled()), entry);
            QVERIFY2(d.on("Preview", "Preview", "focus").toString() != "Text1", entry);
        }
        // Typing on Step 1 does not reach the code of Step 2.
        if (QWidget* focus = preview->focusWidget())
            QTest::keyClicks(focus, "typed");
        d.click("Preview", "Command15");
        QCOMPARE(d.ok({{"op", "clipboard"}}).toString(), code);
        // On Step 2 the box is shown and takes the focus.
        d.click("Preview", "mnuSelectAll");
        QCOMPARE(d.on("Preview", "Preview", "focus").toString(), QString("Text1"));
    }
    void previewEnterMovesOnAndFinishFocusesTheWayBack()
    {
        swirlyInPreview();
        auto* preview = static_cast<QDialog*>(d.app().forms().findWidget("Preview"));
        QVERIFY(preview->findChild<QPushButton*>("Command15")->isDefault());
        d.on("Preview", "Command11", "key", {{"key", "Enter"}});
        QVERIFY(d.on("Preview", "Picture1(1)", "on_top").toBool());
        d.click("Preview", "Command15");
        d.click("Preview", "Command15");
        QVERIFY(d.on("Preview", "Picture1(4)", "on_top").toBool());
        QWidget* focus = preview->focusWidget();
        QVERIFY(focus && focus->isVisible() && focus->isEnabled());
        QCOMPARE(d.on("Preview", "Preview", "focus").toString(), QString("Command5"));
        QVERIFY(preview->findChild<QPushButton*>("Command5")->isDefault());
    }
    void step3FolderTreesSayWhatTheyAreAndShowTheirPath()
    {
        swirlyInPreview();
        d.click("Preview", "Command15");
        d.click("Preview", "Command15");
        QTemporaryDir dir;
        const QString deep = dir.path() + "/a/very/long/folder/name/for/the/page";
        QVERIFY(QDir().mkpath(deep));
        d.on("Preview", "Dir1", "set_path", {{"path", deep}});
        QWidget* frame = d.app().forms().findWidget("Preview")->findChild<QWidget*>("Frame5");
        QStringList shown;
        for (QLabel* label : frame->findChildren<QLabel*>()) {
            if (label->isVisibleTo(frame))
                shown << captionOf(label).remove(QChar(0x200B));
        }
        QVERIFY2(shown.contains("Copy the files to this folder:"), qPrintable(shown.join("|")));
        QVERIFY(!shown.contains("Look for the files in this folder:"));
        QVERIFY(shown.contains(deep));
    }
    void aSharedMessageIndexMovedElsewhereBreaksNoForm()
    {
        for (const char* form : {"NavTicker", "FadeMsg"}) {
            for (int moved : {-7, 11, 400}) {
                d.start();
                d.ok({{"op", "open"}, {"form", form}});
                d.app().session().MessageIndex = qint16(moved);
                const QJsonArray controls = d.ok({{"op", "controls"}, {"form", form}}).toArray();
                for (const QJsonValue& c : controls) {
                    const QJsonObject control = c.toObject();
                    if (control.value("kind").toString() != "button")
                        continue;
                    d.app().session().MessageIndex = qint16(moved);
                    d.send({{"op", "click"}, {"form", form}, {"control", control.value("name")}});
                    if (!d.loaded(form))
                        d.ok({{"op", "open"}, {"form", form}});
                }
            }
        }
    }
    void wizardTextsKeepTheirRoom()
    {
        StableLabel label;
        label.reserve("short");
        const int oneLine = label.heightForWidth(200);
        label.reserve("a long text that must wrap onto several lines when the label is only two hundred pixels wide");
        label.setText("short");
        QVERIFY(label.heightForWidth(200) > oneLine);
    }
};

QL_TEST_MAIN(KitTest)
#include "test_kit.moc"
