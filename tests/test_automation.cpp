#include "TestSupport.h"
#include "core/Form.h"
#include "core/Widgets.h"

#include <QApplication>
#include <QCheckBox>
#include <QFile>
#include <QImage>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressBar>
#include <QSlider>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QVBoxLayout>

using namespace ql;

namespace {

// A form with one control of every kind, and handlers that count what ran.
class ProbeForm : public Form {
public:
    explicit ProbeForm(App& app)
        : Form(app, QStringLiteral("Probe"))
    {
        setWindowTitle("Probe");
        auto* layout = new QVBoxLayout(this);
        check = named(new QCheckBox("&Loop", this), "Check1");
        list = named(new QListWidget(this), "List1");
        list->addItems({"one", "two", "three"});
        multi = named(new QListWidget(this), "List2");
        multi->addItems({"a.gif", "b.gif", "c.gif"});
        multi->setSelectionMode(QAbstractItemView::MultiSelection);
        slider = named(new QSlider(Qt::Horizontal, this), "Slider1");
        slider->setRange(1, 20);
        slider->setSingleStep(1);
        slider->setPageStep(5);
        slider->setTickInterval(2);
        spin = named(new QSpinBox(this), "UpDown1");
        spin->setRange(0, 50);
        progress = named(new QProgressBar(this), "ProgressBar1");
        progress->setRange(0, 100);
        progress->setValue(25);
        password = named(new QLineEdit(this), "Text3(1)");
        password->setEchoMode(QLineEdit::Password);
        locked = named(new QLineEdit("fixed", this), "Text9");
        locked->setReadOnly(true);
        plain = named(new QLineEdit(this), "Text1");
        plain->setMaxLength(5);
        label = named(new ClickLabel("Label1", this), "Label1");
        hidden = named(new QLineEdit(this), "Text2");
        hidden->hide();
        disabled = named(new QLineEdit(this), "Text4");
        disabled->setEnabled(false);
        for (QWidget* w : std::initializer_list<QWidget*>{check, list, multi, slider, spin, progress, password, locked,
                                                          plain, label, hidden, disabled})
            layout->addWidget(w);
        QObject::connect(list, &QListWidget::itemClicked, this, [this] { ++listClicks; });
        QObject::connect(list, &QListWidget::itemDoubleClicked, this, [this] { ++listDoubleClicks; });
        QObject::connect(slider, &QSlider::valueChanged, this, [this] { ++sliderChanges; });
        QObject::connect(plain, &QLineEdit::textChanged, this, [this] { ++textChanges; });
        QObject::connect(label, &ClickLabel::clicked, this, [this] { ++labelClicks; });
        QObject::connect(label, &ClickLabel::doubleClicked, this, [this] { ++labelDoubleClicks; });
        QObject::connect(label, &ClickLabel::rightClicked, this, [this] { ++labelRightClicks; });
    }
    QCheckBox* check;
    QListWidget* list;
    QListWidget* multi;
    QSlider* slider;
    QSpinBox* spin;
    QProgressBar* progress;
    QLineEdit* password;
    QLineEdit* locked;
    QLineEdit* plain;
    ClickLabel* label;
    QLineEdit* hidden;
    QLineEdit* disabled;
    int listClicks = 0, listDoubleClicks = 0, sliderChanges = 0, textChanges = 0, labelClicks = 0,
        labelDoubleClicks = 0, labelRightClicks = 0;
};

}  // namespace

class AutomationTest : public QObject {
    Q_OBJECT

    TestDriver d;
    ProbeForm* probe = nullptr;

    QString error(const QJsonObject& answer) { return answer.value("error").toString(); }

private slots:
    void init()
    {
        d.start();
        d.app().forms().add("Probe", [](App& app) { return new ProbeForm(app); });
        d.app().forms().show("Probe", true);
        probe = d.app().forms().get<ProbeForm>("Probe");
        QVERIFY(probe);
    }

    void unknownNamesAreLookupErrors()
    {
        QCOMPARE(error(d.sendOn("Nowhere", "Text1", "text")), QString("LookupError"));
        QCOMPARE(error(d.sendOn("Probe", "Text99", "text")), QString("LookupError"));
        QCOMPARE(error(d.sendOn("Probe", "text1", "text")), QString("LookupError"));
        // A control of another form is not this form's.
        QCOMPARE(error(d.sendOn("QLMain", "Check1", "text")), QString("LookupError"));
        QCOMPARE(error(d.sendOn("Probe", "List1", "choose", {{"item", "four"}})), QString("LookupError"));
    }
    void senselessRequestsAreValueErrors()
    {
        QCOMPARE(error(d.send({{"op", "frobnicate"}})), QString("ValueError"));
        QCOMPARE(error(d.send({{"nop", 1}})), QString("ValueError"));
        QCOMPARE(error(d.sendOn("Probe", "Slider1", "set_text", {{"text", "x"}})), QString("ValueError"));
        QCOMPARE(error(d.sendOn("Probe", "Text1", "set_text", {{"text", 5}})), QString("ValueError"));
        QCOMPARE(error(d.sendOn("Probe", "Text9", "set_text", {{"text", "x"}})), QString("ValueError"));
        QCOMPARE(error(d.sendOn("Probe", "Text1", "items")), QString("ValueError"));
        QCOMPARE(error(d.sendOn("Probe", "Text1", "key", {{"key", "NoSuchKey"}})), QString("ValueError"));
        QCOMPARE(d.driver.handleLine("not json").value("error").toString(), QString("ValueError"));
    }
    void textBoxes()
    {
        d.setText("Probe", "Text1", "abc");
        QCOMPARE(probe->textChanges, 1);
        d.on("Probe", "Text1", "type_text", {{"text", "def"}});
        QCOMPARE(probe->textChanges, 3);  // the box takes five characters
        QCOMPARE(d.text("Probe", "Text1"), QString("abcde"));
        QVERIFY(d.on("Probe", "Text9", "read_only").toBool());
        QVERIFY(!d.on("Probe", "Text1", "read_only").toBool());
        QCOMPARE(d.on("Probe", "Text3(1)", "password_char").toString(), QString("*"));
        QCOMPARE(d.on("Probe", "Text1", "password_char").toString(), QString(""));
        d.on("Probe", "Text1", "set_selection", {{"start", 1}, {"length", 2}});
        QCOMPARE(d.on("Probe", "Text1", "selection").toArray(), (QJsonArray{1, 2}));
        d.on("Probe", "Text1", "key", {{"key", "Backspace"}});
        QCOMPARE(d.text("Probe", "Text1"), QString("ade"));
    }
    void checkBoxToggles()
    {
        QCOMPARE(d.text("Probe", "Check1"), QString("&Loop"));
        QCOMPARE(d.on("Probe", "Check1", "checked").toInt(), 0);
        d.click("Probe", "Check1");
        QCOMPARE(d.on("Probe", "Check1", "checked").toInt(), 1);
        d.click("Probe", "Check1");
        QCOMPARE(d.on("Probe", "Check1", "checked").toInt(), 0);
    }
    void lists()
    {
        QCOMPARE(d.on("Probe", "List1", "items").toArray(), (QJsonArray{"one", "two", "three"}));
        QCOMPARE(d.on("Probe", "List1", "selected").toInt(), -1);
        d.on("Probe", "List1", "choose", {{"item", "two"}});
        QCOMPARE(d.on("Probe", "List1", "selected").toInt(), 1);
        QCOMPARE(probe->listClicks, 1);
        d.on("Probe", "List1", "choose", {{"item", 2}});
        QCOMPARE(d.on("Probe", "List1", "selected").toInt(), 2);
        d.on("Probe", "List1", "double_click");
        QCOMPARE(probe->listDoubleClicks, 1);
        d.on("Probe", "List1", "choose", {{"item", -1}});
        QCOMPARE(d.on("Probe", "List1", "selected").toInt(), -1);
        d.on("Probe", "List2", "select", {{"indexes", QJsonArray{2, 0}}});
        QCOMPARE(d.on("Probe", "List2", "selected").toArray(), (QJsonArray{0, 2}));
        QCOMPARE(error(d.sendOn("Probe", "List2", "select", {{"indexes", QJsonArray{7}}})), QString("LookupError"));
    }
    void slidersAndSpinsAndProgress()
    {
        d.on("Probe", "Slider1", "set_value", {{"value", 7}});
        QCOMPARE(d.on("Probe", "Slider1", "value").toInt(), 7);
        QCOMPARE(probe->sliderChanges, 1);
        QCOMPARE(d.on("Probe", "Slider1", "range").toObject(),
                 (QJsonObject{{"min", 1}, {"max", 20}, {"small", 1}, {"large", 5}, {"tick", 2}}));
        d.on("Probe", "UpDown1", "set_value", {{"value", 9}});
        QCOMPARE(d.on("Probe", "UpDown1", "value").toInt(), 9);
        QCOMPARE(d.on("Probe", "UpDown1", "range").toObject().value("large"), QJsonValue(QJsonValue::Null));
        QCOMPARE(d.on("Probe", "ProgressBar1", "value").toInt(), 25);
        QCOMPARE(d.on("Probe", "ProgressBar1", "range").toObject().value("max").toInt(), 100);
    }
    void labelsAnswerTheMouse()
    {
        d.click("Probe", "Label1");
        d.on("Probe", "Label1", "double_click");
        d.on("Probe", "Label1", "right_click");
        QCOMPARE(probe->labelClicks, 2);  // the double click begins with a click
        QCOMPARE(probe->labelDoubleClicks, 1);
        QCOMPARE(probe->labelRightClicks, 1);
    }
    void flagsAndLooks()
    {
        QVERIFY(!d.on("Probe", "Text2", "visible").toBool());
        QVERIFY(d.on("Probe", "Text1", "visible").toBool());
        QVERIFY(!d.on("Probe", "Text4", "enabled").toBool());
        QVERIFY(d.on("Probe", "Text1", "enabled").toBool());
        const QJsonObject font = d.on("Probe", "Text1", "font").toObject();
        QVERIFY(font.contains("name") && font.contains("size") && font.contains("bold"));
        const QJsonArray g = d.on("Probe", "Text1", "geometry").toArray();
        QCOMPARE(g.size(), 4);
        QVERIFY(g[2].toInt() > 0);
        QCOMPARE(d.ok({{"op", "busy"}}).toBool(), false);
        QCOMPARE(d.ok({{"op", "beeps"}}).toInt(), 0);
    }
    void focusFollowsTheProgram()
    {
        probe->plain->setFocus();
        QCOMPARE(d.on("Probe", "Probe", "focus").toString(), QString("Text1"));
    }
    void grabWritesAPicture()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath("probe.png");
        d.on("Probe", "Probe", "grab", {{"path", path}});
        QImage picture(path);
        QVERIFY(!picture.isNull());
        d.on("Probe", "Check1", "grab", {{"path", dir.filePath("check.png")}});
        QVERIFY(!QImage(dir.filePath("check.png")).isNull());
    }
    void questionWithoutAnAnswerIsAnAssertion()
    {
        QCOMPARE(d.app().msgBox("Overwrite?", 4), MsgAnswer::No);
        const QJsonObject failed = d.send({{"op", "messages"}});
        QCOMPARE(failed.value("error").toString(), QString("AssertionError"));
        d.ok({{"op", "answer", }, {"words", QJsonArray{"Yes"}}});
        QCOMPARE(d.app().msgBox("Overwrite?", 4), MsgAnswer::Yes);
        QCOMPARE(d.app().msgBox("Note", 48), MsgAnswer::Ok);
        const QJsonArray m = d.messages();
        QCOMPARE(m.size(), 3);
        QCOMPARE(m[2].toObject(), (QJsonObject{{"text", "Note"}, {"style", 48}, {"title", ""}}));
        QCOMPARE(d.app().msgBox("Save?", 3), MsgAnswer::Cancel);
    }
    void clipboardAndSettings()
    {
        QCOMPARE(d.ok({{"op", "clipboard"}}).toString(), QString());
        d.ok({{"op", "set_clipboard"}, {"text", "copied"}});
        QCOMPARE(d.ok({{"op", "clipboard"}}).toString(), QString("copied"));
        d.start({{"settings", QJsonArray{QJsonArray{"Apps", "Browser", "/usr/bin/web"}}}});
        QCOMPARE(d.ok({{"op", "settings"}}).toArray(), (QJsonArray{QJsonArray{"Apps", "Browser", "/usr/bin/web"}}));
        QCOMPARE(d.app().platform().setting("Apps", "Browser", "c:\\"), QString("/usr/bin/web"));
        QCOMPARE(d.app().platform().setting("Apps", "HTMLEditor", "c:\\"), QString("c:\\"));
    }
    void constants()
    {
        const QJsonObject c = d.ok({{"op", "constants"}}).toObject();
        for (const char* key : {"PRODUCT_URL", "VENDOR_URL", "DOWNLOAD_URL", "VERSION_URL", "WHATSNEW_URL"})
            QVERIFY2(c.value(key).toString().startsWith("http://"), key);
        const QJsonObject applets = c.value("APPLETS").toObject();
        for (const char* cls : {"Animate1.class", "ButtonPLUS3.class", "Clock1.class", "ColorSwirl.class",
                                "FadeText.class", "ImageFade2ech.class", "NavigatorTicker20.class", "SimpleSound1.class",
                                "Typewriter4.class", "RTLScroll.class", "LTRScroll.class", "AnFade.class",
                                "TmapCube.class", "Lake.class", "ripple.class"}) {
            const QJsonObject a = applets.value(cls).toObject();
            QVERIFY2(!a.value("notice").toString().isEmpty(), cls);
            QVERIFY2(!a.value("author").toString().isEmpty(), cls);
            QVERIFY2(a.value("website").toString().startsWith("http://"), cls);
        }
    }
    void programFolderIsGivenOrMadeWithTheShippedFiles()
    {
        QTemporaryDir dir;
        d.start({{"program_folder", dir.path()}});
        QCOMPARE(d.app().programFolder(), dir.path());
        QVERIFY(QFile::exists(dir.filePath("invisi.gif")));
        QVERIFY(QFile::exists(dir.filePath("quillet.hlp")));
        QVERIFY(!QFile::exists(dir.filePath("ColorSwirl.class")));
        d.start();
        QVERIFY(QFile::exists(d.app().programFile("invisi.gif")));
        QVERIFY(d.app().programFolder() != dir.path());
    }
    void modalAndShown()
    {
        QVERIFY(d.modal("Probe"));
        QVERIFY(d.shown("Probe"));
        d.on("Probe", "Probe", "close");
        QVERIFY(!d.loaded("Probe"));
        QCOMPARE(error(d.sendOn("Probe", "Text1", "text")), QString("LookupError"));
    }
};

QL_TEST_MAIN(AutomationTest)
#include "test_automation.moc"
