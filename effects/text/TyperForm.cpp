#include "effects/text/TyperForm.h"

#include "core/App.h"
#include "core/FormBuilder.h"
#include "core/Keyboard.h"
#include "core/StepWizard.h"
#include "core/Widgets.h"
#include "platform/Platform.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace ql {

namespace {

const StepWizard::Step Step1{
    "Step 1: Enter Typewriter Text",
    "In the box below, type the text you wish to display in the Typewriter Text effect.  You can also specify the "
    "name of a text file."};
const StepWizard::Step Step2{"Step 2: Text Properties", "Specify the font and text properties below."};
const StepWizard::Step Step3{"Step 3: Special effect properties", "Specify the special effect properties below."};

const QString TextFilter = QStringLiteral("All Files (*.*)|*.*|Text Files (*.txt)|*.txt");
const QString ImageFilter =
    QStringLiteral("All Files (*.*)|*.*|GIF and JPG Files (*.gif, *.jpg, *.jpeg)|*.gif;*.jpg;*.jpeg");

// How much of a text file the form shows: the beginning is enough to tell
// the right file from a wrong one.
constexpr int PreviewBytes = 4096;

}  // namespace

TyperForm::TyperForm(App& app)
    : ModelForm(app)
{
    setWindowTitle(QStringLiteral("Typewriter Text effect"));

    wizard_ = new StepWizard(this, "Label11", "Label5");

    // Step 1: the text, or the name of its file.
    QWidget* page1 = wizard_->addPage(arrayName("Picture1", 0), Step1);
    FormBuilder one(page1, 1, this);
    auto* fromFile = one.check("Check3", "Read Typewriter text from a text file");
    auto* text = named(new CodeBox, "Text16");
    text->setToolTip(QStringLiteral("The text to be displayed in the Typewriter applet"));
    text->setTabChangesFocus(true);
    one.wideField("Label30", "Typewriter text:", text);
    auto file = one.browse("Text2", "Command3", "Label4", "Text filename:", TextFilter, TyperModel::TextFileSlot,
                           QStringLiteral("Browse..."), QStringLiteral("Browse..."),
                           [this](const QString& path) { showFile(path); });
    file.button->setToolTip(QStringLiteral("Browse for text file..."));
    one.note("Label31", QString())->setWordWrap(true);
    auto* preview = named(new CodeBox, "Text19");
    preview->setReadOnly(true);
    preview->setFocusPolicy(Qt::NoFocus);
    preview->setToolTip(QStringLiteral("The beginning of the text file"));
    one.wide(preview);
    one.stretch();
    page1->layout()->setContentsMargins(0, 0, 0, 0);

    // Step 2: the font and the text's colour.
    QWidget* page2 = wizard_->addPage(arrayName("Picture1", 1), Step2);
    FormBuilder two(page2, 1, this);
    two.combo("Combo1", "Label6", "Font:");
    two.combo("Combo19", "Label7", "Font Size (points):", true, 6)
        ->setToolTip(QStringLiteral("This sets the size of the text"));
    two.color("Combo6", "Label1", "Label8", "Text Color:", true);
    two.check("Check1", "Bold");
    two.check("Check2", "Italic");
    two.stretch();

    // Step 3: the applet.
    QWidget* page3 = wizard_->addPage(arrayName("Picture1", 2), Step3);
    FormBuilder three(page3, 1, this);
    three.text("Text13", "Label9", "Width (pixels):", 7);
    three.text("Text12", "Label10", "Height (pixels):", 7);
    three.text("Text1", "Label12", "Link to this Web page URL:")
        ->setToolTip(QStringLiteral("Clicking the applet will link it to the specified URL"));
    auto image = three.browse("Text17", "Command5", "Label13", "Background Image:", ImageFilter,
                              TyperModel::ImageSlot);
    image.button->setToolTip(QStringLiteral("Browse for image..."));
    three.color("Combo4", "Label2", "Label14", "Background Color:", true);
    three.combo("Combo7", "Label15", "Loop the animation:", true, 12);
    three.text("Text18", "Label16", "Speed of Typing (1 to 2500):", 7)
        ->setToolTip(QStringLiteral("20 is a fast speed, 2000 is slower. Default speed is 100."));
    three.stretch();

    wizard_->makeBack("Command6");
    wizard_->makeForward("Command7");
    QPushButton* cancel = makeButton("Command2", QStringLiteral("&Cancel"));
    auto* help = makeHelpButton("Command4");
    connect(wizard_, &StepWizard::forwardClicked, this, [this] { forward(); });
    connect(wizard_, &StepWizard::backClicked, this, [this] { back(); });
    connect(cancel, &QPushButton::clicked, this, [this] { unload(); });
    connect(fromFile, &QCheckBox::toggled, this, [this](bool on) { fileOptionChanged(on); });
    connect(file.field, &QLineEdit::textChanged, this, [this](const QString& name) {
        // A name typed over the picked one is no longer the file shown.
        if (name != previewedName_)
            showFile(QString());
    });

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(wizard_->body(), 1);
    layout->addLayout(wizard_->navigationRow(help, cancel));

    // The window keeps one size whichever way the text comes: it is measured
    // with the file's fields and its preview shown, and with the text box.
    preview->setMaximumHeight(preview->fontMetrics().lineSpacing() * 7 + 12);
    fileOptionChanged(true);
    preview->setVisible(true);
    const QSize withFile = sizeHint();
    fileOptionChanged(false);
    const QFontMetrics metrics = fontMetrics();
    setMinimumSize(sizeHint().expandedTo(withFile).expandedTo(
        QSize(metrics.averageCharWidth() * 72, metrics.lineSpacing() * 24)));
    checkWhileTyping(findChild<QWidget*>("Text12"), TyperModel::positiveOrEmpty);
    checkWhileTyping(findChild<QWidget*>("Text13"), TyperModel::positiveOrEmpty);
    checkWhileTyping(findChild<QWidget*>("Text18"), TyperModel::positiveOrEmpty);
    checkWhileTyping(findChild<QWidget*>("Combo19"), TyperModel::aboveZero);
}

TyperModel::Fields TyperForm::fields() const
{
    auto text = [this](const char* name) { return fieldText(findChild<QWidget*>(name)); };
    auto checked = [this](const char* name) { return findChild<QCheckBox*>(name)->isChecked(); };
    return {.fromFile = checked("Check3"),
            .text = text("Text16"),
            .textFile = text("Text2"),
            .font = text("Combo1"),
            .fontSize = text("Combo19"),
            .textColor = text("Combo6"),
            .bold = checked("Check1"),
            .italic = checked("Check2"),
            .appletWidth = text("Text13"),
            .appletHeight = text("Text12"),
            .link = text("Text1"),
            .backgroundImage = text("Text17"),
            .backgroundColor = text("Combo4"),
            .loop = text("Combo7"),
            .speed = text("Text18")};
}

void TyperForm::fillLists()
{
    fillList(findChild<QComboBox*>("Combo1"), FontList());
    fillList(findChild<QComboBox*>("Combo19"), FontSizeList());
    fillList(findChild<QComboBox*>("Combo6"), TyperModel::colorList());
    fillList(findChild<QComboBox*>("Combo4"), TyperModel::colorList());
    auto* loop = findChild<QComboBox*>("Combo7");
    loop->addItems(TyperModel::loopList());
    loop->setCurrentIndex(0);
    listsFilled_ = true;
}

void TyperForm::EditApplet()
{
    EffectForm::EditApplet();
    const QString style = extract("FONTSTYLE VALUE=");
    // Each word counts only at the start of the value.
    if (style.startsWith(QLatin1String("bold")))
        findChild<QCheckBox*>("Check1")->setChecked(true);
    if (style.startsWith(QLatin1String("italic")))
        findChild<QCheckBox*>("Check2")->setChecked(true);
    setFieldText(findChild<QWidget*>("Text18"), extract("SPEED VALUE="));
    setFieldText(findChild<QWidget*>("Combo7"), extract("CYCLES VALUE="));
    setFieldText(findChild<QWidget*>("Combo4"), extract("BGCOLOR VALUE="));
    setFieldText(findChild<QWidget*>("Combo6"), extract("TEXTCOLOR VALUE="));
    setFieldText(findChild<QWidget*>("Text17"), extract("BACKGROUND VALUE="));
    // The height lands in the width field and the width in the height field.
    setFieldText(findChild<QWidget*>("Text13"), extract("HEIGHT="));
    setFieldText(findChild<QWidget*>("Text12"), extract("WIDTH="));
    setFieldText(findChild<QWidget*>("Text1"), extract("URL VALUE="));
}

void TyperForm::forward()
{
    if (const std::optional<Refusal> refusal = TyperModel::validateStep(fields())) {
        app().msgBox(refusal->text, refusal->style);
        focusIfShown(findChild<QWidget*>(refusal->focus));
        return;
    }
    ++step_;
    wizard_->back()->setEnabled(true);
    if (step_ == 2) {
        showStep(2, findChild<QWidget*>("Combo1"));
        return;
    }
    if (step_ == 3) {
        showStep(3, findChild<QWidget*>("Text13"));
        return;
    }
    step_ = 3;
    done();
}

void TyperForm::back()
{
    --step_;
    if (step_ < 1) {
        step_ = 1;
        return;
    }
    if (step_ == 2)
        showStep(2, findChild<QWidget*>("Combo1"));
    else
        // With the file option on, the text box is hidden and keeps out of the way.
        showStep(1, findChild<QWidget*>("Text16"));
}

void TyperForm::showStep(int step, QWidget* focus)
{
    wizard_->goTo(step - 1, focus);
}

void TyperForm::fileOptionChanged(bool fromFile)
{
    for (const char* name : {"Label4", "Text2", "Command3", "Label31", "Text19"})
        findChild<QWidget*>(name)->setVisible(fromFile);
    for (const char* name : {"Text16", "Label30"})
        findChild<QWidget*>(name)->setVisible(!fromFile);
    if (auto* preview = findChild<QWidget*>("Text19"))
        preview->setVisible(fromFile && !fieldText(preview).isEmpty());
    focusIfShown(findChild<QWidget*>(fromFile ? "Text2" : "Text16"));
}

TyperForm::FilePreview TyperForm::previewOf(const std::optional<QByteArray>& bytes)
{
    if (!bytes)
        return {QStringLiteral("The file could not be read."), QString()};
    if (bytes->isEmpty())
        return {QStringLiteral("The file is empty."), QString()};
    const QByteArray head = bytes->left(PreviewBytes);
    if (head.contains('\0'))
        return {QStringLiteral("This file does not look like text."), QString()};
    QString text = QString::fromUtf8(head);
    // A character cut at the end of the head is dropped, not shown broken.
    if (bytes->size() > PreviewBytes && text.endsWith(QChar::ReplacementCharacter))
        text.chop(1);
    const QString note = bytes->size() > PreviewBytes ? QStringLiteral("The beginning of the file:")
                                                      : QStringLiteral("The text of the file:");
    return {note, text};
}

void TyperForm::showFile(const QString& path)
{
    auto* note = findChild<QLabel*>("Label31");
    auto* preview = findChild<CodeBox*>("Text19");
    FilePreview shown;
    if (!path.isEmpty()) {
        shown = previewOf(app().platform().files().readFile(path));
        previewedName_ = fieldText(findChild<QWidget*>("Text2"));
    } else {
        previewedName_.clear();
    }
    note->setText(shown.note);
    preview->setText(shown.text);
    const bool fromFile = findChild<QCheckBox*>("Check3")->isChecked();
    note->setVisible(fromFile);
    preview->setVisible(fromFile && !shown.text.isEmpty());
}

void TyperForm::checkWhileTyping(QWidget* field, bool (*passes)(const QString&))
{
    auto check = [this, field, passes](const QString& value) {
        if (checking_ || !listsFilled_ || passes(value))
            return;
        // Emptying the field is a change of its own; one box is enough.
        checking_ = true;
        app().msgBox(TyperModel::PositiveMessage, 0);
        setFieldText(field, QString());
        checking_ = false;
    };
    if (auto* line = qobject_cast<QLineEdit*>(field)) {
        connect(line, &QLineEdit::textChanged, this, check);
    } else if (auto* combo = qobject_cast<QComboBox*>(field)) {
        // A list box is checked on every change the program or the list
        // makes, and on what the user typed when the typing is done: a
        // font size is typed letter by letter, and its first letters are not
        // yet a size.
        QLineEdit* edit = combo->lineEdit();
        connect(combo, &QComboBox::editTextChanged, this, [edit, check](const QString& value) {
            if (!edit->isModified())
                check(value);
        });
        connect(edit, &QLineEdit::editingFinished, this, [edit, check] {
            if (!edit->isModified())
                return;
            edit->setModified(false);
            check(edit->text());
        });
    }
}

}  // namespace ql
