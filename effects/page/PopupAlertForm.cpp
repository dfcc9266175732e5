#include "effects/page/PopupAlertForm.h"

#include "core/FormBuilder.h"
#include "core/Widgets.h"

#include <QApplication>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QStyle>
#include <QVBoxLayout>

namespace ql {

namespace {

// The example picture: an alert box as a browser shows it, drawn with
// controls that take neither the mouse nor the focus.
QWidget* examplePicture(QWidget* parent)
{
    auto* picture = named(new QFrame(parent), QStringLiteral("Picture1"));
    picture->setFrameShape(QFrame::Box);
    picture->setAttribute(Qt::WA_TransparentForMouseEvents);
    picture->setFocusPolicy(Qt::NoFocus);
    picture->setAutoFillBackground(true);
    picture->setBackgroundRole(QPalette::Window);

    auto* titleBar = new QLabel(QStringLiteral("Alert"), picture);
    titleBar->setAutoFillBackground(true);
    QPalette titlePalette = titleBar->palette();
    titlePalette.setColor(QPalette::Window, titlePalette.color(QPalette::Highlight));
    titlePalette.setColor(QPalette::WindowText, titlePalette.color(QPalette::HighlightedText));
    titleBar->setPalette(titlePalette);
    titleBar->setContentsMargins(6, 2, 6, 2);
    QFont bold = titleBar->font();
    bold.setBold(true);
    titleBar->setFont(bold);

    auto* icon = new QLabel(picture);
    const int side = picture->style()->pixelMetric(QStyle::PM_MessageBoxIconSize);
    icon->setPixmap(picture->style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(side, side));
    auto* text = new QLabel(QStringLiteral("Welcome to my Web page!"), picture);

    auto* ok = new QLabel(QStringLiteral("OK"), picture);
    ok->setAlignment(Qt::AlignCenter);
    ok->setFrameStyle(QFrame::Panel | QFrame::Raised);
    ok->setLineWidth(2);
    ok->setMinimumWidth(ok->fontMetrics().horizontalAdvance(QStringLiteral("OK")) * 4);
    ok->setContentsMargins(4, 2, 4, 2);

    auto* message = new QHBoxLayout;
    message->setContentsMargins(12, 10, 12, 4);
    message->setSpacing(12);
    message->addWidget(icon);
    message->addWidget(text, 1);
    auto* buttons = new QHBoxLayout;
    buttons->setContentsMargins(0, 0, 0, 10);
    buttons->addStretch();
    buttons->addWidget(ok);
    buttons->addStretch();

    auto* layout = new QVBoxLayout(picture);
    layout->setContentsMargins(1, 1, 1, 1);
    layout->setSpacing(0);
    layout->addWidget(titleBar);
    layout->addLayout(message);
    layout->addLayout(buttons);
    return picture;
}

}  // namespace

PopupAlertForm::PopupAlertForm(App& app)
    : ModelForm(app)
{
    setWindowTitle(QStringLiteral("Popup Alert box"));

    auto* content = new QWidget(this);
    FormBuilder b(content, 1, this);
    b.note("Label1",
           "This effect creates a Popup Alert box when the user loads your Web page.  The user then clicks the OK "
           "button to close the box.");
    auto* text = named(new CodeBox(content), QStringLiteral("Text1"));
    text->setLineWrapMode(QPlainTextEdit::WidgetWidth);
    text->setFixedHeight(text->fontMetrics().lineSpacing() * 4 + 12);
    b.wideField("Label2", "Type the text to appear in the Popup Alert box:", text);

    FormBuilder example = b.frame("Frame1", "Example");
    auto* row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(examplePicture(example.widget()));
    row->addStretch();
    example.wide(row);
    b.stretch();

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(content);
    layout->addLayout(commandRow("Command1", "Command2", "Command3"));
    resize(qMax(sizeHint().width(), fontMetrics().averageCharWidth() * 60), sizeHint().height());
}

PopupAlertModel::Fields PopupAlertForm::fields() const
{
    return {.text = fieldText(findChild<QWidget*>("Text1"))};
}

}  // namespace ql
