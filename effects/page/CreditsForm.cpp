#include "effects/page/CreditsForm.h"

#include "core/FormBuilder.h"
#include "core/Widgets.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QSlider>
#include <QVBoxLayout>

namespace ql {

CreditsForm::CreditsForm(App& app)
    : ModelForm(app)
{
    setWindowTitle(QStringLiteral("Scrolling Credits"));

    auto* content = new QWidget(this);
    FormBuilder b(content, 1, this);
    b.note("Label1",
           "This special effect will scroll your Web page like movie credits.  Only version 4.0 browsers support "
           "this effect.");

    FormBuilder props = b.frame("Frame1", "Properties");
    props.text("Text2", "Label2", "Length of Web page:", 8);
    props.note("Label3",
               "This number will depend on the vertical length of your Web page.  Try '1000' at first and then "
               "adjust this number after previewing.");

    auto* speed = new QWidget;
    auto* slider = named(new QSlider(Qt::Horizontal, speed), QStringLiteral("Slider2"));
    slider->setRange(1, 100);
    slider->setSingleStep(1);
    slider->setPageStep(5);
    slider->setTickInterval(10);
    slider->setTickPosition(QSlider::TicksBelow);
    slider->setValue(50);
    slider->setMinimumWidth(fontMetrics().averageCharWidth() * 30);
    auto* slow = named(new QLabel(QStringLiteral("Slow"), speed), QStringLiteral("Label5"));
    auto* fast = named(new QLabel(QStringLiteral("Fast"), speed), QStringLiteral("Label6"));
    auto* row = new QHBoxLayout(speed);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(slow);
    row->addWidget(slider, 1);
    row->addWidget(fast);
    props.field("Label4", "Scrolling speed:", speed);
    if (auto* caption = findChild<QLabel*>("Label4"))
        caption->setBuddy(slider);
    b.stretch();

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(content);
    layout->addLayout(commandRow("Command3", "Command2", "Command5", QStringLiteral("&OK")));
}

CreditsModel::Fields CreditsForm::fields() const
{
    return {.pageLength = fieldText(findChild<QWidget*>("Text2")),
            .speed = findChild<QSlider*>("Slider2")->value()};
}

}  // namespace ql
