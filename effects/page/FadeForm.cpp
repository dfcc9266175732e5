#include "effects/page/FadeForm.h"

#include "core/FormBuilder.h"
#include "core/Widgets.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QSlider>
#include <QVBoxLayout>

namespace ql {

FadeForm::FadeForm(App& app)
    : ModelForm(app)
{
    setWindowTitle(QStringLiteral("Background Color Fading effect"));

    auto* content = new QWidget(this);
    FormBuilder b(content, 1, this);
    b.note("Label1", "This Javascript creates a background color fade-in/fade-out effect when loading and exiting "
                     "your Web page.");

    FormBuilder in = b.frame("Frame1", "Fade-in");
    in.color("Text1", "Label5", "Label2", "Fade from this color:", false, 12);
    in.color("Text2", "Label7", "Label3", "Fade into this color:", false, 12);
    speedRow(in, "Slider1", "Label4", "Label10", "Label11");

    FormBuilder out = b.frame("Frame2", "Fade-out");
    out.color("Text3", "Label8", "Label6", "Fade from this color:", false, 12);
    out.color("Text4", "Label9", "Label12", "Fade out to this color:", false, 12);
    speedRow(out, "Slider2", "Label13", "Label14", "Label15");
    // The captions of both frames take one width, so that their fields line up.
    const int captionWidth = fontMetrics().horizontalAdvance(QStringLiteral("Fade out to this color:")) + 12;
    in.grid()->setColumnMinimumWidth(0, captionWidth);
    out.grid()->setColumnMinimumWidth(0, captionWidth);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(content);
    layout->addStretch();
    layout->addLayout(commandRow("Command1", "Command2", "Command3"));
}

QSlider* FadeForm::speedRow(FormBuilder& frame, const QString& sliderName, const QString& captionName,
                            const QString& fastName, const QString& slowName)
{
    auto* row = new QWidget;
    auto* slider = named(new QSlider(Qt::Horizontal, row), sliderName);
    slider->setRange(1, 255);
    slider->setSingleStep(1);
    slider->setPageStep(5);
    slider->setTickInterval(16);
    slider->setTickPosition(QSlider::TicksBelow);
    slider->setValue(125);
    slider->setMinimumWidth(200);
    auto* fast = named(new QLabel(QStringLiteral("Fast"), row), fastName);
    auto* slow = named(new QLabel(QStringLiteral("Slow"), row), slowName);
    auto* line = new QHBoxLayout(row);
    line->setContentsMargins(0, 0, 0, 0);
    line->addWidget(fast);
    line->addWidget(slider, 1);
    line->addWidget(slow);
    frame.field(captionName, QStringLiteral("Speed of fade:"), row);
    if (auto* caption = findChild<QLabel*>(captionName))
        caption->setBuddy(slider);
    return slider;
}

FadeModel::Fields FadeForm::fields() const
{
    auto text = [this](const char* name) { return fieldText(findChild<QWidget*>(name)); };
    auto steps = [this](const char* name) { return findChild<QSlider*>(name)->value(); };
    return {.fadeInFrom = text("Text1"),
            .fadeInTo = text("Text2"),
            .fadeInSteps = steps("Slider1"),
            .fadeOutFrom = text("Text3"),
            .fadeOutTo = text("Text4"),
            .fadeOutSteps = steps("Slider2")};
}

}  // namespace ql
