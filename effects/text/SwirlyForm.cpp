#include "effects/text/SwirlyForm.h"

#include "core/FormBuilder.h"
#include "core/Widgets.h"

#include <QComboBox>
#include <QLineEdit>
#include <QVBoxLayout>

namespace ql {

SwirlyForm::SwirlyForm(App& app)
    : ModelForm(app)
{
    setWindowTitle(QStringLiteral("Swirly Text"));

    auto* content = new QWidget(this);
    FormBuilder b(content, 1, this);
    b.note("Label1", "This creates a swirling color effect on the text that you specify in the box below.");
    b.wideText("Text7", "Label2", "Input the text you wish to color swirl:");

    FormBuilder props = b.frame("Frame1", "Applet Properties", 2);
    props.combo("Combo1", "Label3", "Font:");
    props.combo("Combo9", "Label4", "Font Size:", true, 6);
    props.color("Text1", "Label5", "Label6", "Background Color:", false, 12);
    props.nextRow();
    props.text("Text10", "Label7", "Width (pixels):", 7);
    props.text("Text11", "Label8", "Height (pixels):", 7);

    FormBuilder where = b.frame("Frame2", "Text Location");
    where.text("Text3", "Label9", "Horizontal location of text (in pixels from left side of applet):", 7);
    where.text("Text2", "Label10", "Vertical location of text (in pixels from top of applet):", 7);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(content);
    layout->addLayout(commandRow("Command1", "Command2", "Command4"));
}

SwirlyModel::Fields SwirlyForm::fields() const
{
    auto text = [this](const char* name) { return fieldText(findChild<QWidget*>(name)); };
    return {.text = text("Text7"),
            .font = text("Combo1"),
            .fontSize = text("Combo9"),
            .backgroundColor = text("Text1"),
            .appletWidth = text("Text10"),
            .appletHeight = text("Text11"),
            .textLeft = text("Text3"),
            .textTop = text("Text2")};
}

void SwirlyForm::fillLists()
{
    fillList(findChild<QComboBox*>("Combo1"), FontList());
    fillList(findChild<QComboBox*>("Combo9"), FontSizeList());
}

}  // namespace ql
