#include "TestSupport.h"
#include "core/Form.h"
#include "core/Widgets.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QProcess>
#include <QProgressBar>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTimer>
#include <QToolButton>
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

// A form whose controls open the toolkit's own windows that wait on a person:
// a tool button's menu, a dialog run by exec(), a context menu run by exec(),
// a combo box's list, a text box's context menu.
class TrapForm : public Form {
public:
    explicit TrapForm(App& app)
        : Form(app, QStringLiteral("Trap"))
    {
        auto* layout = new QVBoxLayout(this);
        auto* menuButton = named(new QToolButton(this), "Command1");
        auto* menu = new QMenu(menuButton);
        menu->addAction("One");
        menuButton->setMenu(menu);
        menuButton->setPopupMode(QToolButton::InstantPopup);
        auto* ask = commandButton(this, "Command2", "Ask");
        connect(ask, &QPushButton::clicked, this, [this] {
            QDialog dialog(this);
            results << dialog.exec();
        });
        auto* label = named(new ClickLabel("Menu", this), "Label1");
        connect(label, &ClickLabel::clicked, this, [this] {
            QMenu popup(this);
            popup.addAction("Two");
            results << (popup.exec(mapToGlobal(QPoint(5, 5))) == nullptr ? 0 : 1);
        });
        auto* combo = named(new QComboBox(this), "Combo1");
        combo->addItems({"a", "b"});
        auto* text = named(new QLineEdit(this), "Text1");
        for (QWidget* w : std::initializer_list<QWidget*>{menuButton, ask, label, combo, text})
            layout->addWidget(w);
    }
    QList<int> results;
};

// Whether a window of the toolkit that waits on a person is open.
bool toolkitWindowOpen()
{
    for (QWidget* w : QApplication::topLevelWidgets()) {
        if (w->isVisible() && !dynamic_cast<FormBase*>(w) &&
            (w->windowType() == Qt::Popup || qobject_cast<QDialog*>(w)))
            return true;
    }
    return false;
}

}  // namespace

class AutomationTest : public QObject {
    Q_OBJECT

    TestDriver d;
    ProbeForm* probe = nullptr;

    QString error(const QJsonObject& answer) { return answer.value("error").toString(); }
    // The kinds of a form's controls by name; a name listed twice fails.
    QMap<QString, QString> kindsOf(const QString& form)
    {
        QMap<QString, QString> kinds;
        for (const QJsonValue& c : d.ok({{"op", "controls"}, {"form", form}}).toArray()) {
            const QString name = c.toObject().value("name").toString();
            if (kinds.contains(name))
                QTest::qFail(qPrintable("listed twice: " + name), __FILE__, __LINE__);
            kinds.insert(name, c.toObject().value("kind").toString());
        }
        return kinds;
    }

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
    void toolkitPartsAreNotAddressable()
    {
        for (const char* op : {"text", "click", "double_click"})
            QCOMPARE(error(d.sendOn("QLMain", "qt_menubar_ext_button", op)), QString("LookupError"));
        QCOMPARE(error(d.sendOn("QLMain", "qt_menubar_ext_button", "key", {{"key", "Space"}})), QString("LookupError"));
        d.app().forms().show("Preview", true);
        QCOMPARE(error(d.sendOn("Preview", "qt_menubar_ext_button", "text")), QString("LookupError"));
        QCOMPARE(error(d.sendOn("Preview", "qt_menubar_ext_button", "click")), QString("LookupError"));
        // The scroll buttons of a tab strip are parts of it, whatever their names.
        QCOMPARE(error(d.sendOn("QLMain", "ScrollLeftButton", "click")), QString("LookupError"));
        QCOMPARE(error(d.sendOn("QLMain", "", "click")), QString("LookupError"));
        QCOMPARE(error(d.sendOn("Probe", "qt_scrollarea_viewport", "click")), QString("LookupError"));
    }
    void actionsNeverWaitOnAPerson()
    {
        d.app().forms().add("Trap", [](App& app) { return new TrapForm(app); });
        d.ok({{"op", "open"}, {"form", "Trap"}});
        auto* trap = d.app().forms().get<TrapForm>("Trap");
        QVERIFY(trap);
        // Should the toolkit's window stay open, this closes it from inside
        // the loop that waits for it, and the test fails instead of hanging.
        bool rescued = false;
        QTimer rescue;
        rescue.setInterval(3000);
        QObject::connect(&rescue, &QTimer::timeout, [&] {
            rescued = true;
            for (QWidget* w : QApplication::topLevelWidgets()) {
                if (!w->isVisible() || dynamic_cast<FormBase*>(w))
                    continue;
                if (auto* dialog = qobject_cast<QDialog*>(w))
                    dialog->reject();
                else if (w->windowType() == Qt::Popup)
                    w->close();
            }
        });
        const QList<QPair<QString, QJsonObject>> actions = {
            {"Command1", {{"op", "click"}}},
            {"Command1", {{"op", "key"}, {"key", "Space"}}},
            {"Command2", {{"op", "click"}}},
            {"Label1", {{"op", "click"}}},
            {"Combo1", {{"op", "click"}}},
            {"Combo1", {{"op", "key"}, {"key", "Space"}}},
            {"Text1", {{"op", "right_click"}}},
        };
        for (const auto& [control, action] : actions) {
            QJsonObject request = action;
            request.insert("form", "Trap");
            request.insert("control", control);
            rescue.start();
            QElapsedTimer clock;
            clock.start();
            const QJsonObject answer = d.send(request);
            rescue.stop();
            const QByteArray what = control.toUtf8() + " " + action.value("op").toString().toUtf8();
            QVERIFY2(!rescued, what);
            QVERIFY2(clock.elapsed() < 2000, what);
            QVERIFY2(answer.value("ok").toBool(), what);
            QVERIFY2(!toolkitWindowOpen(), what);
        }
        // The dialog and the context menu came back as cancelled.
        QCOMPARE(trap->results, (QList<int>{0, 0}));
        QVERIFY(d.ok({{"op", "shown"}, {"form", "Trap"}}).toBool());
    }
    void badNumbersAreValueErrors()
    {
        for (const double bad : {2.5, 1e10, -1e10}) {
            QCOMPARE(error(d.sendOn("Probe", "List1", "choose", {{"item", bad}})), QString("ValueError"));
            QCOMPARE(error(d.sendOn("Probe", "List2", "select", {{"indexes", QJsonArray{0, bad}}})),
                     QString("ValueError"));
            QCOMPARE(error(d.sendOn("Probe", "Slider1", "set_value", {{"value", bad}})), QString("ValueError"));
            QCOMPARE(error(d.sendOn("Probe", "UpDown1", "set_value", {{"value", bad}})), QString("ValueError"));
            QCOMPARE(error(d.sendOn("QLMain", "TabStrip1", "choose", {{"item", bad}})), QString("ValueError"));
            QCOMPARE(error(d.sendOn("QLMain", "TabStrip1", "tooltip", {{"item", bad}})), QString("ValueError"));
        }
        QCOMPARE(d.on("Probe", "List1", "selected").toInt(), -1);
        QCOMPARE(probe->listClicks, 0);
        QCOMPARE(d.on("Probe", "List2", "selected").toArray(), QJsonArray());
        QCOMPARE(error(d.sendOn("Probe", "List2", "select", {{"indexes", QJsonArray{"0"}}})), QString("ValueError"));
        QCOMPARE(error(d.sendOn("Probe", "List2", "select", {{"indexes", 0}})), QString("ValueError"));
        // Outside the range of the control.
        QCOMPARE(error(d.sendOn("Probe", "Slider1", "set_value", {{"value", 21}})), QString("ValueError"));
        QCOMPARE(error(d.sendOn("Probe", "UpDown1", "set_value", {{"value", -1}})), QString("ValueError"));
        QCOMPARE(probe->sliderChanges, 0);
        QCOMPARE(error(d.sendOn("Probe", "Slider1", "set_value", {{"value", "7"}})), QString("ValueError"));
        // A whole number that names no entry is no such item.
        QCOMPARE(error(d.sendOn("Probe", "List1", "choose", {{"item", 3}})), QString("LookupError"));
        QCOMPARE(error(d.sendOn("Probe", "List1", "choose", {{"item", -2}})), QString("LookupError"));
        d.on("Probe", "List1", "choose", {{"item", 2.0}});
        QCOMPARE(d.on("Probe", "List1", "selected").toInt(), 2);
    }
    void coloursOutsideTheirRangeAreValueErrors()
    {
        for (const QJsonValue& bad : {QJsonValue(-1), QJsonValue(4294967296.0 + 5), QJsonValue(16777216),
                                      QJsonValue(1.5), QJsonValue("red"), QJsonValue(true)}) {
            const QJsonObject answer = d.send({{"op", "answer_color"}, {"values", QJsonArray{0, bad}}});
            QCOMPARE(answer.value("error").toString(), QString("ValueError"));
        }
        // Nothing of a refused list was queued.
        QCOMPARE(d.app().platform().colorDialog("Color"), std::optional<quint32>());
        d.platform().takeScriptFailures();
        d.ok({{"op", "answer_color"}, {"values", QJsonArray{0, 16777215, QJsonValue::Null}}});
        QCOMPARE(d.app().platform().colorDialog("Color"), std::optional<quint32>(0));
        QCOMPARE(d.app().platform().colorDialog("Color"), std::optional<quint32>(16777215));
        QCOMPARE(d.app().platform().colorDialog("Color"), std::optional<quint32>());
        QCOMPARE(error(d.send({{"op", "answer_file"}, {"paths", QJsonArray{"/a.gif", 5}}})), QString("ValueError"));
        QCOMPARE(error(d.send({{"op", "answer"}, {"words", QJsonArray{"Yes", 1}}})), QString("ValueError"));
        QCOMPARE(error(d.send({{"op", "answer"}, {"words", "Yes"}})), QString("ValueError"));
    }
    void selectionsOutsideTheTextAreValueErrors()
    {
        d.setText("Probe", "Text1", "abc");
        // The form's first focus comes after its first request.
        d.ok({{"op", "busy"}});
        d.on("Probe", "Text1", "set_selection", {{"start", 1}, {"length", 1}});
        QCOMPARE(d.on("Probe", "Text1", "selection").toArray(), (QJsonArray{1, 1}));
        const QList<QPair<double, double>> bad = {{4, 0}, {-1, 1}, {0, 4}, {2, 2}, {1, -1}, {1.5, 1}, {0, 1e10}};
        for (const auto& [start, length] : bad) {
            QCOMPARE(error(d.sendOn("Probe", "Text1", "set_selection", {{"start", start}, {"length", length}})),
                     QString("ValueError"));
        }
        QCOMPARE(d.on("Probe", "Text1", "selection").toArray(), (QJsonArray{1, 1}));
        d.on("Probe", "Text1", "set_selection", {{"start", 3}, {"length", 0}});
        QCOMPARE(d.on("Probe", "Text1", "selection").toArray(), (QJsonArray{3, 0}));
        d.on("QLMain", "mnuEditApplet", "click");
        d.setText("EditAppletForm", "Text1", "a\nb");
        QCOMPARE(error(d.sendOn("EditAppletForm", "Text1", "set_selection", {{"start", 0}, {"length", 5}})),
                 QString("ValueError"));
        d.on("EditAppletForm", "Text1", "set_selection", {{"start", 0}, {"length", 4}});
    }
    void everyLineIsAnswered()
    {
        for (const char* line : {"", "   ", "\t \r", "[1, 2]", "42", "\"op\"", "{\"op\": \"busy\"} x", "null"}) {
            const QJsonObject answer = d.driver.handleLine(line);
            QCOMPARE(answer.value("ok").toBool(), false);
            QCOMPARE(answer.value("error").toString(), QString("ValueError"));
        }
        QCOMPARE(d.driver.handleLine(" {\"op\": \"busy\"} \r").value("ok").toBool(), true);
    }
    void formsAndTheirControls()
    {
        const QJsonArray forms = d.ok({{"op", "forms"}}).toArray();
        QCOMPARE(forms.first().toString(), QString("QLMain"));
        QCOMPARE(forms.last().toString(), QString("Probe"));
        for (const char* name : {"EditAppletForm", "Preview", "Options", "Swirly"})
            QVERIFY2(forms.contains(QString(name)), name);
        QVERIFY(!d.loaded("Options"));

        const QJsonArray controls = d.ok({{"op", "controls"}, {"form", "Probe"}}).toArray();
        QCOMPARE(controls.first().toObject(), (QJsonObject{{"name", "Probe"}, {"kind", "form"}}));
        const QMap<QString, QString> expected = {
            {"Probe", "form"},    {"Check1", "check"},       {"List1", "list"},     {"List2", "list"},
            {"Slider1", "slider"}, {"UpDown1", "updown"},    {"ProgressBar1", "progress"},
            {"Text3(1)", "text"}, {"Text9", "text"},         {"Text1", "text"},     {"Label1", "label"},
            {"Text2", "text"},    {"Text4", "text"}};
        QCOMPARE(kindsOf("Probe"), expected);

        const QMap<QString, QString> main = kindsOf("QLMain");
        for (auto it = main.begin(); it != main.end(); ++it)
            QVERIFY2(!it.key().isEmpty() && !it.key().startsWith("qt_"), qPrintable(it.key()));
        QVERIFY(!main.contains("ScrollLeftButton"));
        QVERIFY(!main.contains("Check1"));  // Probe's, not the main window's
        const QMap<QString, QString> someOfMain = {
            {"QLMain", "form"},  {"TabStrip1", "tabstrip"}, {"Picture1(0)", "page"}, {"Frame1", "frame"},
            {"Label3", "label"}, {"Command4", "button"},    {"mnuFile", "menu"},     {"mnuFileExit", "menu"}};
        for (auto it = someOfMain.begin(); it != someOfMain.end(); ++it)
            QCOMPARE(main.value(it.key()), it.value());

        d.ok({{"op", "open"}, {"form", "Preview"}});
        const QMap<QString, QString> preview = kindsOf("Preview");
        const QMap<QString, QString> someOfPreview = {
            {"Drive1", "drivelist"}, {"Dir1", "dirlist"},     {"File2", "filelist"},
            {"Text3(1)", "text"},    {"Picture1(4)", "page"}, {"Combo3", "combo"}};
        for (auto it = someOfPreview.begin(); it != someOfPreview.end(); ++it)
            QCOMPARE(preview.value(it.key()), it.value());

        QCOMPARE(error(d.send({{"op", "controls"}, {"form", "Options"}})), QString("LookupError"));
        QCOMPARE(error(d.send({{"op", "controls"}, {"form", "Nowhere"}})), QString("LookupError"));
        QCOMPARE(error(d.send({{"op", "controls"}, {"form", 5}})), QString("ValueError"));
    }
    void openShowsAFormFromItsDefaults()
    {
        d.ok({{"op", "open"}, {"form", "Swirly"}});
        QVERIFY(d.modal("Swirly"));
        d.setText("Swirly", "Text7", "changed");
        d.ok({{"op", "open"}, {"form", "Swirly"}});
        QCOMPARE(d.text("Swirly", "Text7"), QString());
        d.ok({{"op", "open"}, {"form", "QLMain"}});
        QVERIFY(d.shown("QLMain"));
        QVERIFY(!d.modal("QLMain"));
        QCOMPARE(error(d.send({{"op", "open"}, {"form", "Nowhere"}})), QString("LookupError"));
        QCOMPARE(error(d.send({{"op", "open"}})), QString("ValueError"));
    }
    void temporaryProgramFoldersOfGoneProcessesAreRemoved()
    {
        // A process that has ended leaves its process id free.
        QProcess gone;
        gone.start("true", QStringList());
        QVERIFY(gone.waitForStarted());
        const qint64 deadPid = gone.processId();
        QVERIFY(gone.waitForFinished());
        const QDir temp = QDir::temp();
        const QString stale = temp.filePath(QStringLiteral("Quillet-%1-abcdef").arg(deadPid));
        const QString living = temp.filePath(QStringLiteral("Quillet-%1-ghijkl").arg(QCoreApplication::applicationPid()));
        QVERIFY(QDir().mkpath(stale + "/sub"));
        QVERIFY(QDir().mkpath(living));
        QFile(stale + "/sub/invisi.gif").open(QIODevice::WriteOnly);

        d.start();
        const QString folder = d.app().programFolder();
        QVERIFY(!QFile::exists(stale));
        QVERIFY(QFile::exists(living));
        QVERIFY(QDir(living).removeRecursively());
        QCOMPARE(QFileInfo(folder).fileName().section('-', 0, 1),
                 QStringLiteral("Quillet-%1").arg(QCoreApplication::applicationPid()));
        // The next program's folder replaces it; the last goes with the driver.
        d.start();
        QVERIFY(!QFile::exists(folder));
        {
            Driver driver;
            driver.handle({{"op", "start"}});
            const QString own = driver.app()->programFolder();
            QVERIFY(QFile::exists(own + "/invisi.gif"));
            driver.handle({{"op", "start"}, {"program_folder", QJsonValue::Null}});
            QVERIFY(!QFile::exists(own));
        }
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
