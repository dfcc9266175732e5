#include "effects/text/StatusBarForm.h"

#include "core/FormBuilder.h"
#include "core/Widgets.h"
#include "shell/EffectPictures.h"

#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

namespace ql {

StatusBarForm::StatusBarForm(App& app)
    : ModelForm(app)
{
    setWindowTitle(QStringLiteral("Status Bar Text Ticker"));

    auto* content = new QWidget(this);
    FormBuilder b(content, 1, this);
    b.note("Label1", "This special effect allows you to create scrolling text which appears in the status bar of "
                     "the Web browser.");
    b.wideText("Text1", "Label2", "Type the text you wish to scroll in the status bar:");

    FormBuilder example = b.frame("Frame1", "Example");
    auto* picture = named(new QLabel, "Picture1");
    const qreal ratio = devicePixelRatioF();
    picture->setPixmap(effectPicture(formName(), windowTitle(), QSize(264, 176), ratio));
    picture->setAlignment(Qt::AlignCenter);
    example.wide(picture);
    b.stretch();

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(content);
    layout->addLayout(commandRow("Command1", "Command2", "Command4"));
    findChild<QLineEdit*>("Text1")->setMinimumWidth(fontMetrics().averageCharWidth() * 60);
}

StatusBarModel::Fields StatusBarForm::fields() const
{
    return {.text = fieldText(findChild<QWidget*>("Text1"))};
}

}  // namespace ql
