#include "effects/page/ClockForm.h"

#include "core/FormBuilder.h"
#include "core/Widgets.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QVBoxLayout>

namespace ql {

ClockForm::ClockForm(App& app)
    : ModelForm(app)
{
    setWindowTitle(QStringLiteral("Clock Applet"));

    auto* content = new QWidget(this);
    auto* grid = new QGridLayout(content);
    grid->setContentsMargins(0, 0, 0, 0);

    auto* frame1 = named(new QGroupBox(QStringLiteral("Clock Properties"), content), "Frame1");
    FormBuilder props(frame1, 1, this);
    props.text("Text1", "Label1", "Width (pixels):", 7);
    props.text("Text2", "Label2", "Height (pixels):", 7);
    props.color("Combo4", "Label4", "Label3", "Background Color:", true, 24);
    props.stretch();

    auto* frame2 = named(new QGroupBox(QStringLiteral("Text Properties"), content), "Frame2");
    FormBuilder text(frame2, 1, this);
    text.combo("Combo1", "Label7", "Font:", true, 16);
    text.combo("Combo19", "Label8", "Font Size:", true, 6);
    text.text("Text3", "Label9", "Text to follow clock:");
    text.stretch();
    // The longest caption keeps its room beside the stretching field.
    text.grid()->setColumnMinimumWidth(
        0, fontMetrics().horizontalAdvance(QStringLiteral("Text to follow clock:")) + 12);

    auto* frame3 = named(new QGroupBox(QStringLiteral("Clock type"), content), "Frame3");
    FormBuilder type(frame3, 1, this);
    type.option("Option1", "24 hour clock");
    type.option("Option2", "12 hour clock")->setChecked(true);
    type.check("Check1", "Show seconds");
    type.check("Check2", "Show am/pm");
    type.check("Check3", "Show date");
    type.stretch();

    auto* frame4 = named(new QGroupBox(QStringLiteral("Timezone"), content), "Frame4");
    FormBuilder zone(frame4, 1, this);
    auto* fixed = zone.option("Option3", "Time is displayed in your Timezone to all users viewing your page");
    zone.option("Option4", "Time is displayed in the user's Timezone")->setChecked(true);
    zone.caption("Label6", "Your Timezone (for example, enter -5 for GMT-5):");
    auto* offset = zone.text("Text4", QString(), QString(), 7);
    findChild<QLabel*>("Label6")->setBuddy(offset);
    zone.stretch();
    connect(fixed, &QRadioButton::toggled, this, [this](bool on) { showTimezoneField(on); });

    grid->addWidget(frame1, 0, 0);
    grid->addWidget(frame2, 0, 1);
    grid->addWidget(frame3, 1, 0);
    grid->addWidget(frame4, 1, 1);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);

    // The sample word: its colour pick only recolours the sample.
    auto* sample = named(new ColorSwatch(this), "Label5");
    sample->setText(QStringLiteral("CLOCK"));
    QFont sampleFont = sample->font();
    sampleFont.setBold(true);
    sample->setFont(sampleFont);
    sample->setMinimumWidth(sample->fontMetrics().horizontalAdvance(QStringLiteral("CLOCK")) + 24);
    connect(sample, &ColorSwatch::clicked, this, [this, sample] { pickColor(sample, [](const QString&) {}); });

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(content);
    QHBoxLayout* commands = commandRow("Command1", "Command2", "Command5");
    commands->insertWidget(1, sample);
    layout->addLayout(commands);

    showTimezoneField(false);
}

void ClockForm::showTimezoneField(bool shown)
{
    findChild<QLabel*>("Label6")->setVisible(shown);
    findChild<QLineEdit*>("Text4")->setVisible(shown);
}

ClockModel::Fields ClockForm::fields() const
{
    auto text = [this](const char* name) { return fieldText(findChild<QWidget*>(name)); };
    auto on = [this](const char* name) { return findChild<QAbstractButton*>(name)->isChecked(); };
    return {.appletWidth = text("Text1"),
            .appletHeight = text("Text2"),
            .backgroundColor = text("Combo4"),
            .font = text("Combo1"),
            .fontSize = text("Combo19"),
            .trailingText = text("Text3"),
            .twentyFourHour = on("Option1"),
            .showSeconds = on("Check1"),
            .showAmPm = on("Check2"),
            .showDate = on("Check3"),
            .fixedTimezone = on("Option3"),
            .timezone = text("Text4")};
}

void ClockForm::setFields(const ClockModel::Fields& f)
{
    auto setText = [this](const char* name, const QString& value) { setFieldText(findChild<QWidget*>(name), value); };
    auto setOn = [this](const char* name, bool on) { findChild<QAbstractButton*>(name)->setChecked(on); };
    setText("Text1", f.appletWidth);
    setText("Text2", f.appletHeight);
    setText("Combo4", f.backgroundColor);
    setText("Combo1", f.font);
    setText("Combo19", f.fontSize);
    setText("Text3", f.trailingText);
    setOn(f.twentyFourHour ? "Option1" : "Option2", true);
    setOn("Check1", f.showSeconds);
    setOn("Check2", f.showAmPm);
    setOn("Check3", f.showDate);
    setOn(f.fixedTimezone ? "Option3" : "Option4", true);
    setText("Text4", f.timezone);
}

void ClockForm::fillLists()
{
    fillList(findChild<QComboBox*>("Combo4"), ColorList());
    fillList(findChild<QComboBox*>("Combo1"), FontList());
    fillList(findChild<QComboBox*>("Combo19"), FontSizeList());
}

void ClockForm::EditApplet()
{
    ClockModel::Fields f = fields();
    ClockModel::reEdit(f, [this](const QString& key) { return extract(key); });
    setFields(f);
}

}  // namespace ql
