#include "effects/text/SwirlyForm.h"

#include "core/App.h"
#include "core/Widgets.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace ql {

namespace {

QLineEdit* numberBox(QWidget* parent, const QString& name)
{
    auto* box = named(new QLineEdit(parent), name);
    box->setFixedWidth(80);
    return box;
}

QComboBox* openCombo(QWidget* parent, const QString& name)
{
    auto* combo = named(new QComboBox(parent), name);
    combo->setEditable(true);
    combo->setInsertPolicy(QComboBox::NoInsert);
    combo->setMaxVisibleItems(12);
    return combo;
}

}  // namespace

SwirlyForm::SwirlyForm(App& app)
    : EffectForm(app, QStringLiteral("Swirly"))
{
    setWindowTitle(QStringLiteral("Swirly Text"));

    auto* hint = named(new QLabel(
        QStringLiteral("This creates a swirling color effect on the text that you specify in the box below."), this),
        "Label1");
    hint->setWordWrap(true);

    auto* textCaption = named(new QLabel(QStringLiteral("Input the text you wish to color swirl:"), this), "Label2");
    Text7 = named(new QLineEdit(this), "Text7");
    textCaption->setBuddy(Text7);

    // Applet properties.
    auto* frame1 = named(new QGroupBox(QStringLiteral("Applet Properties"), this), "Frame1");
    Combo1 = openCombo(frame1, "Combo1");
    Combo1->setMinimumWidth(160);
    Combo9 = openCombo(frame1, "Combo9");
    Combo9->setFixedWidth(80);
    Text1 = named(new QLineEdit(frame1), "Text1");
    Text1->setMaximumWidth(110);
    Label5 = named(new ColorSwatch(frame1), "Label5");
    Text10 = numberBox(frame1, "Text10");
    Text11 = numberBox(frame1, "Text11");

    auto* grid = new QGridLayout(frame1);
    grid->setHorizontalSpacing(10);
    grid->addWidget(named(new QLabel(QStringLiteral("Font:"), frame1), "Label3"), 0, 0);
    grid->addWidget(Combo1, 0, 1);
    grid->addWidget(named(new QLabel(QStringLiteral("Font Size:"), frame1), "Label4"), 0, 2);
    grid->addWidget(Combo9, 0, 3);
    grid->addWidget(named(new QLabel(QStringLiteral("Background Color:"), frame1), "Label6"), 1, 0);
    auto* colorRow = new QHBoxLayout;
    colorRow->addWidget(Text1);
    colorRow->addWidget(Label5);
    colorRow->addStretch();
    grid->addLayout(colorRow, 1, 1, 1, 3);
    grid->addWidget(named(new QLabel(QStringLiteral("Width (pixels):"), frame1), "Label7"), 2, 0);
    grid->addWidget(Text10, 2, 1, Qt::AlignLeft);
    grid->addWidget(named(new QLabel(QStringLiteral("Height (pixels):"), frame1), "Label8"), 2, 2);
    grid->addWidget(Text11, 2, 3);
    grid->setColumnStretch(1, 1);
    grid->setColumnMinimumWidth(2, 110);

    // Text location.
    auto* frame2 = named(new QGroupBox(QStringLiteral("Text Location"), this), "Frame2");
    Text3 = numberBox(frame2, "Text3");
    Text2 = numberBox(frame2, "Text2");
    auto* where = new QGridLayout(frame2);
    where->addWidget(
        named(new QLabel(QStringLiteral("Horizontal location of text (in pixels from left side of applet):"), frame2),
              "Label9"),
        0, 0);
    where->addWidget(Text3, 0, 1);
    where->addWidget(
        named(new QLabel(QStringLiteral("Vertical location of text (in pixels from top of applet):"), frame2),
              "Label10"),
        1, 0);
    where->addWidget(Text2, 1, 1);
    where->setColumnStretch(0, 1);

    auto* done = makeButton("Command1", QStringLiteral("&Done"));
    auto* cancel = makeButton("Command2", QStringLiteral("&Cancel"));
    auto* help = makeHelpButton("Command4");
    done->setDefault(true);

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(help);
    buttons->addStretch();
    buttons->addWidget(done);
    buttons->addWidget(cancel);

    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(10);
    layout->addWidget(hint);
    layout->addSpacing(4);
    layout->addWidget(textCaption);
    layout->addWidget(Text7);
    layout->addWidget(frame1);
    layout->addWidget(frame2);
    layout->addSpacing(4);
    layout->addLayout(buttons);

    setTabOrder(Text7, Combo1);
    setTabOrder(Combo1, Combo9);
    setTabOrder(Combo9, Text1);
    setTabOrder(Text1, Text10);
    setTabOrder(Text10, Text11);
    setTabOrder(Text11, Text3);
    setTabOrder(Text3, Text2);
    setTabOrder(Text2, done);
    setTabOrder(done, cancel);
    setTabOrder(cancel, help);

    connect(done, &QPushButton::clicked, this, [this] { this->done(); });
    connect(cancel, &QPushButton::clicked, this, [this] { unload(); });
    connect(Label5, &ColorSwatch::clicked, this,
            [this] { pickColor(Label5, [this](const QString& color) { Text1->setText(color); }); });

    setMinimumWidth(520);
}

swirly::Fields SwirlyForm::fields() const
{
    return swirly::Fields{Text7->text(),  Combo1->currentText(), Combo9->currentText(), Text1->text(),
                          Text10->text(), Text11->text(),        Text3->text(),         Text2->text()};
}

void SwirlyForm::fillLists()
{
    fillList(Combo1, FontList());
    fillList(Combo9, FontSizeList());
}

void SwirlyForm::EditApplet()
{
    for (const auto& [key, control] : swirly::editKeys())
        setFieldText(findChild<QWidget*>(control), extract(key));
}

void SwirlyForm::done()
{
    const swirly::Fields f = fields();
    if (const std::optional<Refusal> refusal = swirly::validate(f)) {
        refuse(*refusal);
        return;
    }
    HandOverToPreview(swirly::emitCode(f), swirly::requiredFilesMessage(), {swirly::ClassFile}, swirly::EffectId);
}

}  // namespace ql
