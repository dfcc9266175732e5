#include "effects/text/NavTickerForm.h"

#include "core/App.h"
#include "core/FormBuilder.h"
#include "core/Keyboard.h"
#include "core/Text.h"
#include "core/Widgets.h"
#include "shell/EffectPictures.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QToolButton>
#include <QVBoxLayout>

namespace ql {

NavTickerForm::NavTickerForm(App& app)
    : ModelForm(app)
{
    setWindowTitle(QStringLiteral("Navigator Ticker"));
    pages_ = new PageStack(this);

    // Page one: the applet.
    auto* page1 = named(new QWidget, "Picture1");
    pages_->addPage(page1);
    FormBuilder one(page1, 1, this);
    FormBuilder props = one.frame("Frame2", "Applet Properties", 1);
    props.note("Label18", "Enter the Navigator Ticker properties in the boxes below.  ");
    props.text("Text5", "Label2", "Applet Width (pixels):", 7);
    props.text("Text4", "Label3", "Applet Height (pixels):", 7);
    props.combo("Combo2", "Label5", "Alignment to neighboring text:", true, 16);
    props.color("Combo5", "Label17", "Label7", "Background Color:", true);
    props.color("Combo3", "Label14", "Label8", "Text Color:", true);
    props.color("Combo4", "Label1", "Label9", "Link Color (when user passes mouse over text):", true);
    props.check("Check1", "3D Border around Ticker?")->setChecked(true);
    props.slider("Slider1", "Label11", "Scrolling speed:",
                 {.minimum = 1, .maximum = 10, .small = 1, .large = 4, .tick = 1, .value = 3}, "Label12", "Slow",
                 "Label13", "Fast");
    one.stretch();
    auto* next1 = makeButton("Command2", QStringLiteral("&Next >>"));
    auto* help1 = makeHelpButton("Command4");
    auto* row1 = new QHBoxLayout;
    row1->addWidget(help1);
    row1->addStretch();
    row1->addWidget(next1);
    one.wide(row1);

    // Page two: one message.
    auto* page2 = named(new QWidget, "Picture2");
    pages_->addPage(page2);
    FormBuilder two(page2, 1, this);
    two.caption("Label10", "Example:");
    auto* example = named(new QLabel, "Picture3");
    example->setPixmap(effectPicture(formName(), windowTitle(), QSize(220, 160), devicePixelRatioF()));
    example->setAlignment(Qt::AlignCenter);
    two.wide(example);
    FormBuilder message = two.frame("Frame1", "Ticker Text and Link Settings", 1);
    auto* which = message.note("Label6", "Message  1");
    QFont bold = which->font();
    bold.setBold(true);
    which->setFont(bold);
    message.wideText("Text1", "Label15", "Type text message to scroll in ticker:");
    message.wideText("Text2", "Label16", "When user clicks on ticker text load this Web page (URL):");
    message.combo("Combo1", "Label19", "Frame to Target (optional):", true, 16);
    two.stretch();
    auto* help2 = makeHelpButton("Command3");
    auto* previous = makeButton("Command5", QStringLiteral("<< &Previous"));
    auto* next2 = makeButton("Command6", QStringLiteral("&Next >>"));
    auto* doneButton = makeButton("Command1", QStringLiteral("&Done"));
    auto* row2 = new QHBoxLayout;
    row2->addWidget(help2);
    row2->addStretch();
    row2->addWidget(previous);
    row2->addWidget(next2);
    row2->addWidget(doneButton);
    two.wide(row2);

    connect(next1, &QPushButton::clicked, this, [this] { nextFromProperties(); });
    connect(next2, &QPushButton::clicked, this, [this] { nextMessage(); });
    connect(previous, &QPushButton::clicked, this, [this] { previousMessage(); });
    connect(doneButton, &QPushButton::clicked, this, [this] { done(); });

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(pages_);
    showPage(0);
}

qint16& NavTickerForm::index() const
{
    return app().session().MessageIndex;
}

NavTickerModel::Fields NavTickerForm::fields() const
{
    auto text = [this](const char* name) { return fieldText(findChild<QWidget*>(name)); };
    return {.appletWidth = text("Text5"),
            .appletHeight = text("Text4"),
            .align = text("Combo2"),
            .backgroundColor = text("Combo5"),
            .textColor = text("Combo3"),
            .linkColor = text("Combo4"),
            .border = findChild<QCheckBox*>("Check1")->isChecked(),
            .speed = findChild<QSlider*>("Slider1")->value(),
            .count = count_,
            .messages = messages_};
}

void NavTickerForm::fillLists()
{
    fillList(findChild<QComboBox*>("Combo2"), NavTickerModel::alignList());
    for (const char* colour : {"Combo5", "Combo3", "Combo4"})
        fillList(findChild<QComboBox*>(colour), NavTickerModel::colorList());
    fillList(findChild<QComboBox*>("Combo1"), NavTickerModel::frameList());
}

void NavTickerForm::EditApplet()
{
    EffectForm::EditApplet();
    const double speed = numericValue(extract("SPEED VALUE="));
    auto* slider = findChild<QSlider*>("Slider1");
    if (speed >= slider->minimum() && speed <= slider->maximum())
        slider->setValue(int(speed));
    setFieldText(findChild<QWidget*>("Combo5"), extract("BGCO VALUE="));
    setFieldText(findChild<QWidget*>("Combo3"), extract("TXTCO VALUE="));
    setFieldText(findChild<QWidget*>("Combo4"), extract("LINKCO VALUE="));
    for (int n = 0; n < NavTickerModel::ReadBack; ++n)
        messages_[n] = NavTickerModel::unpacked(extract("MSG" + QString::number(n) + " VALUE="));
    // The border and the count are not read back: a message comes out again
    // only when the user walks through it.
    setFieldText(findChild<QWidget*>("Text1"), messages_[0].text);
    setFieldText(findChild<QWidget*>("Text2"), messages_[0].link);
    setFieldText(findChild<QWidget*>("Combo1"), messages_[0].frame);
}

void NavTickerForm::showPage(int page)
{
    pages_->bringToFront(page);
    findChild<QPushButton*>("Command2")->setDefault(page == 0);
    findChild<QPushButton*>("Command6")->setDefault(page == 1);
    settleFocus(this);
}

void NavTickerForm::storeMessage()
{
    auto text = [this](const char* name) { return fieldText(findChild<QWidget*>(name)); };
    messages_[slot()] = NavTickerModel::stored(text("Text1"), text("Text2"), text("Combo1"));
}

void NavTickerForm::showMessage()
{
    findChild<QLabel*>("Label6")->setText("Message " + QStringLiteral(" %1").arg(index() + 1));
    const NavTickerModel::Message& m = messages_[slot()];
    setFieldText(findChild<QWidget*>("Text1"), m.text);
    setFieldText(findChild<QWidget*>("Text2"), m.link);
    setFieldText(findChild<QWidget*>("Combo1"), m.frame);
}

void NavTickerForm::nextFromProperties()
{
    if (const std::optional<Refusal> refusal = NavTickerModel::validateProperties(fields())) {
        refuse(*refusal);
        return;
    }
    showPage(1);
    index() = 0;
    findChild<QLabel*>("Label6")->setText(QStringLiteral("Message  1"));
    focusIfShown(findChild<QWidget*>("Text1"));
}

void NavTickerForm::nextMessage()
{
    // The count rises before the text is checked, and a refused press
    // leaves it risen.
    if (!(count_ > index() + 1))
        ++count_;
    if (fieldText(findChild<QWidget*>("Text1")).isEmpty()) {
        refuse({"You must enter text for your message.", 0, "Text1"});
        return;
    }
    storeMessage();
    ++index();
    if (index() >= NavTickerModel::Slots - 1)
        findChild<QPushButton*>("Command6")->setEnabled(false);
    setFieldText(findChild<QWidget*>("Text1"), QString());
    setFieldText(findChild<QWidget*>("Text2"), QString());
    focusIfShown(findChild<QWidget*>("Text1"));
    showMessage();
}

void NavTickerForm::previousMessage()
{
    findChild<QPushButton*>("Command6")->setEnabled(true);
    auto text = [this](const char* name) { return fieldText(findChild<QWidget*>(name)); };
    NavTickerModel::Message kept = NavTickerModel::stored(text("Text1"), text("Text2"), text("Combo1"));
    if (kept.text.isEmpty())
        kept.text = messages_[slot()].text;
    messages_[slot()] = kept;
    --index();
    if (index() < 0) {
        index() = 0;
        showPage(0);
        return;
    }
    focusIfShown(findChild<QWidget*>("Text1"));
    showMessage();
}

void NavTickerForm::done()
{
    if (index() + 1 == count_) {
        if (fieldText(findChild<QWidget*>("Text1")).isEmpty()) {
            refuse({"You must enter text for your message.", 48, "Text1"});
            return;
        }
        storeMessage();
    }
    HandOverToPreview(HandOver::of(description(), NavTickerModel::emitCode(fields())));
}

}  // namespace ql
