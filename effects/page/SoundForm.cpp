#include "effects/page/SoundForm.h"

#include "core/App.h"
#include "core/FormBuilder.h"
#include "core/Widgets.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace ql {

namespace {

enum Page { FormatPage = 0, WavPage = 1, AuPage = 2 };

const QString BrowseTip = QStringLiteral("Browse for sound...");

// A sound field wide enough for a file name, with its browse tip.
void dress(const FormBuilder::BrowseField& browse)
{
    browse.button->setToolTip(BrowseTip);
    browse.field->setMinimumWidth(browse.field->fontMetrics().averageCharWidth() * 26);
}

}  // namespace

SoundForm::SoundForm(App& app)
    : ModelForm(app)
{
    setWindowTitle(QStringLiteral("Sound Applet"));
    pages_ = new PageStack(this);
    pages_->addPage(buildFormatPage());
    pages_->addPage(buildWavPage());
    pages_->addPage(buildAuPage());
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(pages_);
    showPage(FormatPage, nullptr, "Command1");
}

QWidget* SoundForm::buildFormatPage()
{
    auto* page = named(new QWidget, QStringLiteral("Picture1"));
    FormBuilder b(page, 1, this);
    FormBuilder format = b.frame("Frame2", "Select the sound file format");
    format.note("Label3", "Select the format of the sound file(s) you wish to use in this special effect.");
    format.option("Option1", "WAV format (*.wav)");
    format.option("Option2", "AU format (*.au)");
    b.stretch();

    auto* row = new QHBoxLayout;
    row->addWidget(makeHelpButton("Command7"));
    row->addStretch();
    QPushButton* nextButton = makeButton("Command1", "&Next >>");
    QPushButton* cancel = makeButton("Command9", "&Cancel");
    row->addWidget(nextButton);
    row->addWidget(cancel);
    b.wide(row);
    connect(nextButton, &QPushButton::clicked, this, [this] { next(); });
    connect(cancel, &QPushButton::clicked, this, [this] { unload(); });
    return page;
}

QWidget* SoundForm::buildWavPage()
{
    auto* page = named(new QWidget, arrayName("Picture2", 1));
    FormBuilder b(page, 1, this);
    FormBuilder wav = b.frame("Frame3", "Sound Settings - WAV sound file");
    dress(wav.browse("Text4", "Command6", "Label4", "Play this sound file when Web page loads:", SoundModel::WavFilter, 0));
    wav.check("Check2", "Loop the sound (only available in Internet Explorer)");
    dress(wav.browse("Text3", "Command13", "Label5", "Play this sound file when Web page exits:", SoundModel::WavFilter, 1));
    b.stretch();
    b.wide(commandRow("Command12", "Command11", "Command10"));
    return page;
}

QWidget* SoundForm::buildAuPage()
{
    auto* page = named(new QWidget, arrayName("Picture2", 2));
    FormBuilder b(page, 1, this);
    FormBuilder au = b.frame("Frame1", "Sound Settings - AU sound files");
    dress(au.browse("Text1", "Command8", "Label1", "Play this sound file when the Web page loads:", SoundModel::AuFilter, 0));
    au.check("Check1", "Loop the sound");
    dress(au.browse("Text2", "Command5", "Label2", "Play this sound file when the user exits the Web page:",
              SoundModel::AuFilter, 1));
    b.stretch();
    b.wide(commandRow("Command2", "Command3", "Command4"));
    return page;
}

void SoundForm::showPage(int index, const char* focus, const char* defaultButton)
{
    pages_->bringToFront(index);
    if (auto* button = findChild<QPushButton*>(defaultButton))
        button->setDefault(true);
    if (focus) {
        if (auto* field = findChild<QWidget*>(focus))
            field->setFocus(Qt::OtherFocusReason);
    }
}

void SoundForm::next()
{
    if (findChild<QRadioButton*>("Option1")->isChecked())
        showPage(WavPage, "Text4", "Command12");
    else if (findChild<QRadioButton*>("Option2")->isChecked())
        showPage(AuPage, "Text1", "Command2");
    else
        app().msgBox("Please select a sound file format.");
}

SoundModel::Fields SoundForm::fields() const
{
    auto text = [this](const char* name) { return fieldText(findChild<QWidget*>(name)); };
    auto checked = [this](const char* name) { return findChild<QCheckBox*>(name)->isChecked(); };
    const int page = pages_->currentIndex();
    return {.format = page == WavPage  ? SoundModel::Format::Wav
                      : page == AuPage ? SoundModel::Format::Au
                                       : SoundModel::Format::Unchosen,
            .wavEnter = text("Text4"),
            .wavExit = text("Text3"),
            .wavLoop = checked("Check2"),
            .auEnter = text("Text1"),
            .auExit = text("Text2"),
            .auLoop = checked("Check1")};
}

void SoundForm::EditApplet()
{
    EffectForm::EditApplet();
    findChild<QCheckBox*>("Check1")->setChecked(extract("ENTERLOOP VALUE=") == QLatin1String("yes"));
}

}  // namespace ql
