#include "effects/text/FadeMsgForm.h"

#include "core/App.h"
#include "core/FormBuilder.h"
#include "core/Keyboard.h"
#include "core/Widgets.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace ql {

FadeMsgForm::FadeMsgForm(App& app)
    : ModelForm(app)
{
    setWindowTitle(QStringLiteral("Fading Message"));
    pages_ = new PageStack(this);

    // Page one: the applet and the defaults.
    auto* page1 = named(new QWidget, "Picture1");
    pages_->addPage(page1);
    FormBuilder one(page1, 1, this);
    one.note("Label3",
             "Enter the applet properties and default values in the boxes below.  You can specify applet values for "
             "each fading message later, but the values below will be used as defaults if you choose not to specify "
             "values for each fading message.");
    FormBuilder props = one.frame("Frame2", "Fading Message Properties and Default Values", 1);
    props.text("Text2", "Label4", "Message Width (pixels):", 7);
    props.text("Text3", "Label5", "Message Height (pixels):", 7);
    props.combo("Combo2", "Label7", "Alignment to neighboring text:", true, 16);
    props.combo("Combo1", "Label8", "Default Font:", true, 16);
    props.combo("Combo7", "Label9", "Default Font Size (points):", true, 6);
    props.color("Combo5", "Label17", "Label10", "Default Background Color:", true);
    props.color("Combo3", "Label14", "Label11", "Default Text Color:", true);
    props.text("Text1", "Label12", "Margins (pixels):", 7)
        ->setToolTip(QStringLiteral("This is the distance between the edge of the applet and the applet text"));
    one.stretch();
    auto* help1 = makeHelpButton("Command3");
    auto* next1 = makeButton("Command7", QStringLiteral("&Next >>"));
    auto* row1 = new QHBoxLayout;
    row1->addWidget(help1);
    row1->addStretch();
    row1->addWidget(next1);
    one.wide(row1);

    // Page two: one message.
    auto* page2 = named(new QWidget, "Picture2");
    pages_->addPage(page2);
    FormBuilder two(page2, 1, this);
    FormBuilder message = two.frame("Frame3", "Fading Message Properties", 2);
    message.note("Label13",
                 "Set these properties for each message that you create.  If you leave the input boxes blank then "
                 "the default values will be used.");
    auto* which = message.note("Label6", "Message  1");
    QFont bold = which->font();
    bold.setBold(true);
    which->setFont(bold);
    message.wideText("Text5", "Label15", "Type the text for this message into the box below:");
    message.color("Combo4", "Label2", "Label16", "Background Color:", true);
    message.combo("Combo19", "Label18", "Font Size (points):", true, 6);
    message.color("Combo6", "Label1", "Label19", "Text Color:", true);
    message.text("Text4", "Label20", "Pause (milliseconds):", 8);
    message.nextRow();
    message.note("Label21", "Default is 2000 (2 seconds)");
    message.wideText("Text6", "Label22", "URL to link to:");
    two.stretch();
    auto* help2 = makeHelpButton("Command2");
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

qint16& FadeMsgForm::index() const
{
    return app().session().MessageIndex;
}

FadeMsgModel::Fields FadeMsgForm::fields() const
{
    auto text = [this](const char* name) { return fieldText(findChild<QWidget*>(name)); };
    return {.appletWidth = text("Text2"),
            .appletHeight = text("Text3"),
            .align = text("Combo2"),
            .font = font_,
            .margin = margin_,
            .count = count_,
            .messages = messages_};
}

void FadeMsgForm::fillLists()
{
    fillList(findChild<QComboBox*>("Combo2"), FadeMsgModel::alignList());
    fillList(findChild<QComboBox*>("Combo1"), FontList());
    fillList(findChild<QComboBox*>("Combo7"), FontSizeList());
    fillList(findChild<QComboBox*>("Combo19"), FontSizeList());
    for (const char* colour : {"Combo3", "Combo4", "Combo5", "Combo6"})
        fillList(findChild<QComboBox*>(colour), FadeMsgModel::colorList());
}

void FadeMsgForm::EditApplet()
{
    EffectForm::EditApplet();
    for (int n = 0; n < FadeMsgModel::ReadBack; ++n) {
        const QString i = QString::number(n);
        FadeMsgModel::Message& m = messages_[n];
        m.description = extract("DESC" + i + " VALUE=");
        m.size = extract("SIZE" + i + " VALUE=");
        m.backgroundColor = extract("BGCOLOR" + i + " VALUE=");
        m.textColor = extract("TEXTCOLOR" + i + " VALUE=");
        m.delay = extract("DELAY" + i + " VALUE=");
        m.link = extract("DESTURL" + i + " VALUE=");
    }
    // Message 0 fills the message page; the count stays at 1, so a message
    // read back comes out again only when the user walks through it.
    const FadeMsgModel::Message& first = messages_[0];
    setFieldText(findChild<QWidget*>("Text5"), first.description);
    setFieldText(findChild<QWidget*>("Text6"), first.link);
    setFieldText(findChild<QWidget*>("Combo4"), first.backgroundColor);
    setFieldText(findChild<QWidget*>("Combo6"), first.textColor);
    setFieldText(findChild<QWidget*>("Text4"), first.delay);
    setFieldText(findChild<QWidget*>("Combo19"), first.size);
}

void FadeMsgForm::showPage(int page)
{
    pages_->bringToFront(page);
    findChild<QPushButton*>("Command7")->setDefault(page == 0);
    findChild<QPushButton*>("Command6")->setDefault(page == 1);
    settleFocus(this);
}

FadeMsgModel::Message FadeMsgForm::storedPage() const
{
    auto text = [this](const char* name) { return fieldText(findChild<QWidget*>(name)); };
    return FadeMsgModel::stored({.text = text("Text5"),
                                 .backgroundColor = text("Combo4"),
                                 .fontSize = text("Combo19"),
                                 .textColor = text("Combo6"),
                                 .delay = text("Text4"),
                                 .link = text("Text6")},
                                {.fontSize = text("Combo7"),
                                 .backgroundColor = text("Combo5"),
                                 .textColor = text("Combo3")});
}

void FadeMsgForm::showMessage()
{
    findChild<QLabel*>("Label6")->setText("Message " + QStringLiteral(" %1").arg(index() + 1));
    const FadeMsgModel::Message& m = messages_[slot()];
    setFieldText(findChild<QWidget*>("Combo4"), m.backgroundColor);
    setFieldText(findChild<QWidget*>("Combo6"), m.textColor);
    setFieldText(findChild<QWidget*>("Text5"), m.description);
    setFieldText(findChild<QWidget*>("Combo19"), m.size);
    setFieldText(findChild<QWidget*>("Text4"), m.delay);
    setFieldText(findChild<QWidget*>("Text6"), m.link);
}

void FadeMsgForm::nextFromProperties()
{
    auto text = [this](const char* name) { return fieldText(findChild<QWidget*>(name)); };
    if (const std::optional<Refusal> refusal = FadeMsgModel::validateProperties(text("Text2"), text("Text3"))) {
        refuse(*refusal);
        return;
    }
    font_ = FadeMsgModel::resolvedFont(text("Combo1"));
    margin_ = FadeMsgModel::resolvedMargin(text("Text1"));
    showPage(1);
    index() = 0;
    findChild<QLabel*>("Label6")->setText(QStringLiteral("Message  1"));
    focusIfShown(findChild<QWidget*>("Text5"));
}

void FadeMsgForm::nextMessage()
{
    // The count rises before the text is checked, and a refused press
    // leaves it risen.
    if (!(count_ > index() + 1))
        ++count_;
    if (fieldText(findChild<QWidget*>("Text5")).isEmpty()) {
        refuse({"You must enter text for your message.", 0, "Text5"});
        return;
    }
    messages_[slot()] = storedPage();
    ++index();
    if (index() >= FadeMsgModel::Slots - 1)
        findChild<QPushButton*>("Command6")->setEnabled(false);
    setFieldText(findChild<QWidget*>("Text5"), QString());
    focusIfShown(findChild<QWidget*>("Text5"));
    showMessage();
}

void FadeMsgForm::previousMessage()
{
    findChild<QPushButton*>("Command6")->setEnabled(true);
    // An empty text keeps the description stored before; the other values
    // are stored in any case.
    FadeMsgModel::Message kept = storedPage();
    if (kept.description.isEmpty())
        kept.description = messages_[slot()].description;
    messages_[slot()] = kept;
    --index();
    if (index() < 0) {
        index() = 0;
        showPage(0);
        return;
    }
    showMessage();
}

void FadeMsgForm::done()
{
    if (index() + 1 == count_) {
        if (fieldText(findChild<QWidget*>("Text5")).isEmpty()) {
            refuse({"You must enter text for your message.", 48, "Text5"});
            return;
        }
        messages_[slot()] = storedPage();
        font_ = FadeMsgModel::resolvedFont(fieldText(findChild<QWidget*>("Combo1")));
    }
    HandOverToPreview(HandOver::of(description(), FadeMsgModel::emitCode(fields())));
}

}  // namespace ql
