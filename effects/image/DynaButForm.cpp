#include "effects/image/DynaButForm.h"

#include "core/App.h"
#include "core/FormBuilder.h"
#include "core/ImagePreview.h"
#include "core/StepWizard.h"
#include "core/Text.h"
#include "core/Widgets.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

namespace ql {

namespace {

const QString ImageFilter =
    QStringLiteral("All Files (*.*)|*.*|GIF and JPG Files (*.gif, *.jpg, *.jpeg)|*.gif;*.jpg;*.jpeg");
const QString SoundFilter = QStringLiteral("All Files (*.*)|*.*|AU Files (*.au)|*.au");

// The pick-only lists take a value only when they offer it.
void pickIfListed(QComboBox* combo, const QString& value)
{
    const int row = combo->findText(value, Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (row >= 0)
        combo->setCurrentIndex(row);
}

// A browse button as the form builder makes them, with the tip this form
// gives all of its browse buttons.
QPushButton* browseButton(QWidget* parent, const QString& name)
{
    auto* button = named(new QPushButton(QStringLiteral("Browse..."), parent), name);
    button->setAutoDefault(false);
    button->setIcon(QIcon::fromTheme(QStringLiteral("document-open"),
                                     button->style()->standardIcon(QStyle::SP_DirOpenIcon)));
    button->setToolTip(QStringLiteral("Browse for image..."));
    return button;
}

QLabel* optionalNote(QWidget* parent, const QString& name)
{
    auto* note = named(new QLabel(QStringLiteral("(Optional)"), parent), name);
    QFont f = note->font();
    f.setItalic(true);
    note->setFont(f);
    return note;
}

}  // namespace

DynaButForm::DynaButForm(App& app)
    : ModelForm(app)
    , wizard_(new StepWizard(this, QString(), QString()))
{
    setWindowTitle(QStringLiteral("Dynamic Button"));

    auto* intro = named(new QLabel(QStringLiteral(
                            "The Dynamic Button applet allows you to create buttons for your Web page which change "
                            "and make sounds when the user moves the mouse pointer over them or clicks on them."),
                            this),
                        "Label1");
    intro->setWordWrap(true);

    struct StatePage {
        const char* frame;
        const char* title;
        const char* image;
        const char* browse;
        const char* imageCaption;
        const char* text;
        const char* textCaption;
        const char* textNote;
        const char* sound;
        const char* soundBrowse;
        const char* soundCaption;
        const char* soundNote;
        int imageSlot;
        int soundSlot;
    };
    const StatePage states[3] = {
        {"Frame1", "Button properties when mouse pointer is not interacting with the button:", "Text2", "Command9",
         "Label2", "Text5", "Label4", "Label5", nullptr, nullptr, nullptr, nullptr, DynaButModel::BaseImage, -1},
        {"Frame2", "Button properties when mouse pointer is moved over the button:", "Text6", "Command6", "Label6",
         "Text22", "Label7", "Label8", "Text28", "Command7", "Label9", "Label11", DynaButModel::EnterImage,
         DynaButModel::EnterSound},
        {"Frame3", "Button properties when mouse pointer is clicked on the button:", "Text23", "Command8", "Label12",
         "Text24", "Label13", "Label14", "Text29", "Command4", "Label15", "Label16", DynaButModel::ClickImage,
         DynaButModel::ClickSound},
    };

    for (int i = 0; i < 3; ++i) {
        const StatePage& s = states[i];
        QWidget* page = wizard_->addPage(arrayName("Picture1", i));
        auto* column = new QVBoxLayout(page);
        column->setContentsMargins(0, 0, 0, 0);
        auto* frame = named(new QGroupBox(QString::fromLatin1(s.title), page), s.frame);
        column->addWidget(frame);
        // Caption, field, browse button and note in four columns, so that the
        // fields and notes of the rows line up.
        auto* grid = new QGridLayout(frame);
        grid->setHorizontalSpacing(10);
        grid->setColumnStretch(1, 1);
        int row = 0;
        auto caption = [&](const char* name, const QString& text, QWidget* field) {
            auto* label = named(new QLabel(text, frame), name);
            label->setBuddy(field);
            grid->addWidget(label, row, 0);
        };

        auto* imageField = named(new QLineEdit(frame), s.image);
        imageField->setReadOnly(true);
        caption(s.imageCaption, QStringLiteral("Button Image:"), imageField);
        grid->addWidget(imageField, row, 1);
        QPushButton* imageBrowse = browseButton(frame, s.browse);
        grid->addWidget(imageBrowse, row++, 2);

        auto* text = named(new QLineEdit(frame), s.text);
        caption(s.textCaption, QStringLiteral("Text you wish to be on the button:"), text);
        grid->addWidget(text, row, 1, 1, 2);
        grid->addWidget(optionalNote(frame, s.textNote), row++, 3);

        if (s.sound) {
            auto* soundField = named(new QLineEdit(frame), s.sound);
            soundField->setReadOnly(true);
            caption(s.soundCaption, QStringLiteral("Play this sound:"), soundField);
            grid->addWidget(soundField, row, 1);
            QPushButton* soundBrowse = browseButton(frame, s.soundBrowse);
            grid->addWidget(soundBrowse, row, 2);
            grid->addWidget(optionalNote(frame, s.soundNote), row++, 3);
            const int slot = s.soundSlot;
            connect(soundBrowse, &QPushButton::clicked, this, [this, soundField, slot] { browseSound(soundField, slot); });
        }
        if (i == 2) {
            auto* url = named(new QLineEdit(frame), "Text27");
            caption("Label17", QStringLiteral("Go to this URL when button is clicked:"), url);
            grid->addWidget(url, row++, 1, 1, 2);
            auto* target = named(new QComboBox(frame), "Combo1");
            target->setEditable(true);
            target->setInsertPolicy(QComboBox::NoInsert);
            noInlineCompletion(target);
            target->setMinimumContentsLength(12);
            caption("Label18", QStringLiteral("Name of Frame to target:"), target);
            grid->addWidget(target, row++, 1, Qt::AlignLeft);
        }
        grid->setRowStretch(row, 1);

        auto* previewFrame = named(new QGroupBox(QStringLiteral("Preview image"), page), arrayName("Frame8", i));
        auto* previewLayout = new QVBoxLayout(previewFrame);
        auto* preview = named(new ImagePreview(previewFrame), arrayName("Picture5", i));
        previewLayout->addWidget(preview);
        column->addWidget(previewFrame, 1);

        const int slot = s.imageSlot;
        connect(imageBrowse, &QPushButton::clicked, this,
                [this, imageField, preview, slot] { browseImage(imageField, preview, slot); });
    }

    // Page 4: the size and look of the button.
    QWidget* last = wizard_->addPage(arrayName("Picture1", 3));
    FormBuilder b(last, 1, this);
    b.grid()->setContentsMargins(0, 0, 0, 0);
    FormBuilder size = b.frame("Frame4", "Button Size", 2);
    size.text("Text26", "Label19", "Width (pixels):", 7);
    size.text("Text25", "Label20", "Height (pixels):", 7);
    FormBuilder look = b.frame("Frame5", "Button Properties", 2);
    look.color("Combo6", "Label10", "Label21", "Background Color:", true, 24);
    look.combo("Combo8", "Label22", "3D border size:", true, 4);
    FormBuilder text = b.frame("Frame6", "Text Properties", 2);
    text.note("Label23", "If you also want text to appear on your button, enter the following properties:");
    text.combo("Combo5", "Label24", "Font:", false, 14);
    text.combo("Combo7", "Label25", "Font Size:", true, 5);
    text.color("Combo2", "Label3", "Label26", "Text Color:", true, 24);
    text.nextRow();
    text.combo("Combo3", "Label27", "Horizontal Alignment:", false, 9)
        ->setToolTip(QStringLiteral("Sets the horizontal alignment of the text"));
    text.combo("Combo4", "Label28", "Vertical Alignment:", false, 9)
        ->setToolTip(QStringLiteral("Sets the vertical alignment of the text"));
    b.stretch();

    // Made in reading order, so that Tab goes Help, Previous, Next, Cancel.
    QToolButton* help = makeHelpButton("Command3");
    wizard_->makeBack("Command2");
    wizard_->makeForward("Command18");
    connect(wizard_, &StepWizard::forwardClicked, this, [this] { next(); });
    connect(wizard_, &StepWizard::backClicked, this, [this] { previous(); });
    QPushButton* cancel = makeButton("Command1", QStringLiteral("&Cancel"));
    connect(cancel, &QPushButton::clicked, this, [this] { unload(); });

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(intro);
    layout->addWidget(wizard_->body(), 1);
    layout->addLayout(wizard_->navigationRow(help, cancel));
}

void DynaButForm::showPage(int index, const char* focus)
{
    wizard_->goTo(index, findChild<QWidget*>(focus));
}

void DynaButForm::next()
{
    ++buttonStep_;
    wizard_->back()->setEnabled(true);
    switch (buttonStep_) {
    case 2:
        showPage(1, "Text6");
        break;
    case 3:
        showPage(2, "Text23");
        break;
    case 4:
        showPage(3, "Text26");
        break;
    default:
        buttonStep_ = 4;
        done();
        break;
    }
}

void DynaButForm::previous()
{
    buttonStep_ = std::max(1, buttonStep_ - 1);
    switch (buttonStep_) {
    case 3:
        showPage(2, "Text23");
        break;
    case 2:
        showPage(1, "Text6");
        break;
    default:
        showPage(0, "Text2");
        break;
    }
}

void DynaButForm::done()
{
    const DynaButModel::Fields f = fields();
    attributes_ = DynaButModel::sizeAttributes(f, attributes_);
    // A size that is no number keeps the attribute of the Done before; on
    // the first Done there is none, and the user is told.
    if (attributes_.height.isEmpty() || attributes_.width.isEmpty()) {
        app().msgBox(QStringLiteral("Be sure to set the applet height and width in the applet properties."),
                     MsgStyle::Exclamation);
        --buttonStep_;
    }
    if (const std::optional<Refusal> refusal = DynaButModel::validate(f)) {
        refuse(*refusal);
        --buttonStep_;
        return;
    }
    const std::array<QString, 5> files = DynaButModel::slotFiles(f);
    for (int slot = 0; slot < int(files.size()); ++slot) {
        if (files[std::size_t(slot)].isEmpty())
            app().session().RequiredPaths.set(slot, QString());
    }
    HandOverToPreview(DynaButModel::handOver(f, attributes_));
}

std::optional<QString> DynaButForm::askFile(const QString& filter)
{
    CommonDialog& dialog = app().commonDialog();
    dialog.Filter = filter;
    dialog.FilterIndex = 2;
    dialog.CancelError = true;
    dialog.DialogTitle = QStringLiteral("Browse...");
    dialog.FileName.clear();
    if (!dialog.ShowOpen())
        return std::nullopt;
    return dialog.FileName;
}

void DynaButForm::browseImage(QLineEdit* field, ImagePreview* preview, int slot)
{
    const std::optional<QString> path = askFile(ImageFilter);
    if (!path)
        return;
    field->setText(bareFileName(*path));
    const std::optional<QSize> size = preview->showFile(app().platform().files(), *path);
    // A file that does not show keeps its name but no path.
    if (!size)
        return;
    auto* width = findChild<QLineEdit*>("Text26");
    auto* height = findChild<QLineEdit*>("Text25");
    if (numericValue(width->text()) < size->width())
        width->setText(QString::number(size->width()));
    if (numericValue(height->text()) < size->height())
        height->setText(QString::number(size->height()));
    app().session().RequiredPaths.set(slot, *path);
}

void DynaButForm::browseSound(QLineEdit* field, int slot)
{
    const std::optional<QString> path = askFile(SoundFilter);
    if (!path)
        return;
    field->setText(bareFileName(*path));
    app().session().RequiredPaths.set(slot, *path);
}

DynaButModel::Fields DynaButForm::fields() const
{
    auto text = [this](const char* name) { return fieldText(findChild<QWidget*>(name)); };
    return {.baseImage = text("Text2"),
            .baseText = text("Text5"),
            .enterImage = text("Text6"),
            .enterText = text("Text22"),
            .enterSound = text("Text28"),
            .clickImage = text("Text23"),
            .clickText = text("Text24"),
            .clickSound = text("Text29"),
            .url = text("Text27"),
            .target = text("Combo1"),
            .width = text("Text26"),
            .height = text("Text25"),
            .backgroundColor = text("Combo6"),
            .border = text("Combo8"),
            .font = text("Combo5"),
            .fontSize = text("Combo7"),
            .textColor = text("Combo2"),
            .textAlign = text("Combo3"),
            .verticalAlign = text("Combo4")};
}

void DynaButForm::setFields(const DynaButModel::Fields& f)
{
    auto set = [this](const char* name, const QString& value) { setFieldText(findChild<QWidget*>(name), value); };
    auto pick = [this](const char* name, const QString& value) { pickIfListed(findChild<QComboBox*>(name), value); };
    set("Text2", f.baseImage);
    set("Text5", f.baseText);
    set("Text6", f.enterImage);
    set("Text22", f.enterText);
    set("Text28", f.enterSound);
    set("Text23", f.clickImage);
    set("Text24", f.clickText);
    set("Text29", f.clickSound);
    set("Text27", f.url);
    set("Combo1", f.target);
    set("Text26", f.width);
    set("Text25", f.height);
    set("Combo6", f.backgroundColor);
    set("Combo8", f.border);
    pick("Combo5", f.font);
    set("Combo7", f.fontSize);
    set("Combo2", f.textColor);
    pick("Combo3", f.textAlign);
    pick("Combo4", f.verticalAlign);
}

void DynaButForm::fillLists()
{
    fillList(findChild<QComboBox*>("Combo1"), {"_blank", "_parent", "_self", "_top"});
    fillList(findChild<QComboBox*>("Combo6"), ColorList());
    QStringList borders;
    for (int i = 0; i <= 10; ++i)
        borders << QString::number(i);
    fillList(findChild<QComboBox*>("Combo8"), borders);
    fillList(findChild<QComboBox*>("Combo5"), FontList());
    fillList(findChild<QComboBox*>("Combo7"), FontSizeList());
    fillList(findChild<QComboBox*>("Combo2"), ColorList());
    fillList(findChild<QComboBox*>("Combo3"), {"left", "center", "right"});
    fillList(findChild<QComboBox*>("Combo4"), {"top", "center", "bottom"});
}

void DynaButForm::EditApplet()
{
    DynaButModel::Fields f = fields();
    DynaButModel::reEdit(f, app().session().ClassPrefix8, [this](const QString& key) { return extract(key); });
    setFields(f);
}

}  // namespace ql
