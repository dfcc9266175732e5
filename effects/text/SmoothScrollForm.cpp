#include "effects/text/SmoothScrollForm.h"

#include "core/FormBuilder.h"
#include "core/Text.h"
#include "core/Widgets.h"

#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QSlider>
#include <QVBoxLayout>

namespace ql {

SmoothScrollForm::SmoothScrollForm(App& app)
    : ModelForm(app)
{
    setWindowTitle(QStringLiteral("Smooth Scrolling Text Ticker"));

    auto* content = new QWidget(this);
    FormBuilder b(content, 1, this);
    b.wideText("Text1", "Label3", "Enter the text you wish to scroll (text should not be longer than the Ticker width):");

    FormBuilder text = b.frame("Frame3", "Text Properties", 2);
    text.combo("Combo1", "Label4", "Font:");
    text.combo("Combo19", "Label5", "Font Size (points):", true, 6);
    text.color("Combo6", "Label1", "Label6", "Text Color:", true, 0, SmoothScrollModel::colorNumber);

    FormBuilder scrolling = b.frame("Frame1", "Scrolling Properties", 2);
    scrolling.option("Option1", "Right to Left");
    scrolling.option("Option2", "Left to Right")->setChecked(true);
    FormBuilder speed = scrolling.area(1);
    speed.slider("Slider1", "Label7", "Scrolling speed:",
                     {.minimum = 1, .maximum = 40, .small = 1, .large = 4, .tick = 3, .value = 10}, "Label8", "Slow",
                     "Label9", "Fast");

    FormBuilder ticker = b.frame("Frame2", "Text Ticker Properties", 2);
    ticker.text("Text2", "Label10", "Width (pixels):", 7);
    ticker.text("Text3", "Label11", "Height (pixels):", 7);
    ticker.color("Combo4", "Label2", "Label12", "Background Color:", true, 0, SmoothScrollModel::colorNumber);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(content);
    layout->addLayout(commandRow("Command1", "Command2", "Command4"));
}

SmoothScrollModel::Fields SmoothScrollForm::fields() const
{
    auto text = [this](const char* name) { return fieldText(findChild<QWidget*>(name)); };
    return {.text = text("Text1"),
            .font = text("Combo1"),
            .fontSize = text("Combo19"),
            .textColor = text("Combo6"),
            .rightToLeft = findChild<QRadioButton*>("Option1")->isChecked(),
            .speed = findChild<QSlider*>("Slider1")->value(),
            .appletWidth = text("Text2"),
            .appletHeight = text("Text3"),
            .backgroundColor = text("Combo4")};
}

void SmoothScrollForm::fillLists()
{
    fillList(findChild<QComboBox*>("Combo1"), FontList());
    fillList(findChild<QComboBox*>("Combo19"), FontSizeList());
    fillList(findChild<QComboBox*>("Combo6"), SmoothScrollModel::colorList());
    fillList(findChild<QComboBox*>("Combo4"), SmoothScrollModel::colorList());
}

void SmoothScrollForm::EditApplet()
{
    // The direction is not read back: the form keeps its left to right.
    EffectForm::EditApplet();
    // The speed comes back as it stands, not turned over again; a number the
    // slider cannot show leaves it where it was.
    const double speed = numericValue(extract("SPEED VALUE="));
    auto* slider = findChild<QSlider*>("Slider1");
    if (speed >= slider->minimum() && speed <= slider->maximum())
        slider->setValue(int(speed));
}

}  // namespace ql
