#include "publish/PreviewForm.h"

#include "core/App.h"
#include "core/FileLists.h"
#include "core/Icons.h"
#include "core/Keyboard.h"
#include "core/StepWizard.h"
#include "core/Widgets.h"
#include "publish/PreviewPage.h"
#include "publish/PreviewTable.h"

#include <QComboBox>
#include <QDir>
#include <QFontDatabase>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

namespace ql {

namespace {

const QString Step3Title = QStringLiteral("Step 3: Publish required files to local hard drive");

QLabel* title(QWidget* parent, const QString& name, const QString& text)
{
    auto* label = named(new QLabel(text, parent), name);
    QFont f = label->font();
    f.setBold(true);
    f.setPointSizeF(f.pointSizeF() * 1.25);
    label->setFont(f);
    label->setWordWrap(true);
    return label;
}

QLabel* text(QWidget* parent, const QString& name, const QString& caption)
{
    auto* label = named(new QLabel(caption, parent), name);
    label->setWordWrap(true);
    return label;
}

// A path that a label may break after any separator.
QString breakablePath(const QString& path)
{
    QString shown = path;
    shown.replace(QLatin1Char('/'), QStringLiteral("/\u200B"));
    return shown;
}

QFrame* separator(QWidget* parent, const QString& name)
{
    auto* line = named(new QFrame(parent), name);
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Sunken);
    return line;
}

}  // namespace

PreviewForm::PreviewForm(App& app)
    : Form(app, QStringLiteral("Preview"))
{
    setWindowTitle(QStringLiteral("Preview Wizard"));
    buildMenus();

    // The steps, beside the pages.
    steps_ = new StepList(this, QStringLiteral("Label4"),
                          {"Step 1: Preview", "Step 2: Insert HTML code", "Step 3: Copy required files",
                           "Step 4: Upload to Web server", "Finished"});
    // The upload page is not a step the wizard walks through.
    steps_->label(3)->setEnabled(false);

    pages_ = new PageStack(this);
    const QList<QWidget*> built = {buildStep1(), buildStep2(), buildStep3(), buildStep4(), buildFinish()};
    for (int i = 0; i < built.size(); ++i) {
        built[i]->setObjectName(arrayName("Picture1", i));
        pages_->addPage(built[i]);
    }
    connect(pages_, &QStackedWidget::currentChanged, this, [this](int index) { markStep(index); });

    Label3 = named(new QLabel(this), "Label3");
    Command14 = commandButton(this, "Command14", QStringLiteral("<< &Previous"));
    Command15 = commandButton(this, "Command15", QStringLiteral("&Next >>"));
    auto* help = helpButton(this, "Command16");
    connect(Command14, &QPushButton::clicked, this, [this] { previous(); });
    connect(Command15, &QPushButton::clicked, this, [this] { next(); });
    // Enter moves the wizard on.
    Command15->setDefault(true);
    connect(help, &QToolButton::clicked, this, [this] { sendHelp(); });

    auto* body = new QHBoxLayout;
    body->addWidget(steps_);
    body->addWidget(pages_, 1);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(help);
    buttons->addStretch();
    buttons->addWidget(Command14);
    buttons->addWidget(Command15);
    auto* layout = new QVBoxLayout(this);
    layout->setMenuBar(menuBar_);
    layout->addLayout(body, 1);
    layout->addWidget(Label3);
    layout->addLayout(buttons);
    resize(760, 520);
}

void PreviewForm::buildMenus()
{
    menuBar_ = new QMenuBar(this);
    auto menu = [this](const QString& name, const QString& caption) {
        auto* m = named(new QMenu(caption, this), name);
        menuBar_->addMenu(m);
        return m;
    };
    auto entry = [this](QMenu* m, const QString& name, const QString& caption, auto handler) {
        QAction* a = m->addAction(caption);
        a->setObjectName(name);
        connect(a, &QAction::triggered, this, handler);
        return a;
    };
    // The code box answers these keys itself; the menu shows them, and takes
    // them only while it is open, so that no key of the box or of the file
    // lists is taken away from them.
    auto usualKey = [](QAction* a, QKeySequence::StandardKey key) {
        a->setShortcut(key);
        a->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    };
    QMenu* file = menu("mnuFile", "&File");
    entry(file, "mnuHTMLEditor", "&Open HTML Editor...", [this] { OpenHtmlEditor(app(), this); });
    entry(file, "mnuReturn", "&Return to Main Menu", [this] { unload(); });
    QMenu* edit = menu("mnuEdit", "&Edit");
    usualKey(entry(edit, "mnuCopy", "&Copy", [this] {
        app().platform().clearClipboard();
        app().platform().setClipboardText(Text1->selectedText());
        focusIfShown(Text1);
    }), QKeySequence::Copy);
    usualKey(entry(edit, "mnuPaste", "&Paste", [this] {
        Text1->replaceSelection(app().platform().clipboardText());
        focusIfShown(Text1);
    }), QKeySequence::Paste);
    usualKey(entry(edit, "mnuSelectAll", "Select &All", [this] {
        Text1->selectAll();
        focusIfShown(Text1);
    }), QKeySequence::SelectAll);
    entry(edit, "mnuEditApplet", "&Edit applet...", [this] { ReturnToEditApplet(false, 16); });
    QMenu* steps = menu("mnuSteps", "&Steps");
    // The menu reaches a step from anywhere; only Step 1 leaves Previous off.
    auto toStep = [this](qint16 step) {
        StepIndex = step;
        setNavigationShown(true);
        toFront(step - 1);
        Command14->setEnabled(step != 1);
        Command15->setEnabled(true);
    };
    entry(steps, "mnuStep1", "Step &1: Preview your special effect", [toStep] { toStep(1); });
    entry(steps, "mnuManualCopy", "Step &2: Insert HTML code into your Web page", [this, toStep] {
        toStep(2);
        app().platform().clearClipboard();
        app().platform().setClipboardText(Text1->text());
    });
    entry(steps, "mnuAutocopy", "Step &3: Copy required files", [this, toStep] {
        toStep(3);
        step3DefaultLayout();
    });
}

QWidget* PreviewForm::buildStep1()
{
    auto* page = new QWidget;
    Command11 = commandButton(page, "Command11", QStringLiteral("Pre&view"));
    Command11->setToolTip(QStringLiteral("Preview your special effect applet"));
    Command11->setIcon(style()->standardIcon(QStyle::SP_ComputerIcon));
    Command11->setIconSize(QSize(32, 32));
    Command11->setMinimumSize(160, 52);
    connect(Command11, &QPushButton::clicked, this, [this] { previewEffect(); });
    auto* layout = new QVBoxLayout(page);
    layout->addWidget(title(page, "Label11", QStringLiteral("Step 1: Preview your special effect")));
    layout->addWidget(text(page, "Label12",
                           QStringLiteral("Click the button below to see your special effect in your Web browser.  "
                                          "When you are happy with it, click the \"Next >>\" button.")));
    layout->addSpacing(16);
    layout->addWidget(Command11, 0, Qt::AlignHCenter);
    layout->addStretch();
    return page;
}

QWidget* PreviewForm::buildStep2()
{
    auto* page = new QWidget;
    auto* label13 = text(page, "Label13",
                         QStringLiteral("The text in the box below is the HTML code that controls this special effect.  "
                                        "You will need to insert this code into your Web page (HTML document).  Follow "
                                        "the instructions below:"));
    Label8 = text(page, "Label8", QString());
    auto* copy = named(new QToolButton(page), "Command3");
    copy->setIcon(copyIcon());
    copy->setIconSize(QSize(24, 24));
    copy->setToolTip(QStringLiteral("Click here to copy code to Clipboard"));
    connect(copy, &QToolButton::clicked, this, [this] { copyToClipboard(); });
    Text1 = named(new CodeBox(page), "Text1");
    Text1->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    Text1->setMinimumHeight(120);
    Label9 = text(page, "Label9",
                  QStringLiteral("2. Open an HTML document in your Web page editor, and place your cursor in the "
                                 "location where you want to insert this special effect."));
    Label1 = text(page, "Label1",
                  QStringLiteral("3. In your Web page editor insert the code by clicking the Paste button or by "
                                 "selecting the Edit/Paste menu item.  Then move on to Step 3 by clicking the \"Next "
                                 ">>\" button below."));
    Label5 = text(page, "Label5", QStringLiteral("Click here if you use Microsoft FrontPage -->"));
    auto* frontPageButton = named(new QToolButton(page), "Command4");
    frontPageButton->setIcon(webPageIcon());
    frontPageButton->setIconSize(QSize(20, 20));
    connect(frontPageButton, &QToolButton::clicked, this, [this] { frontPage(); });

    auto* copyRow = new QHBoxLayout;
    copyRow->addWidget(Label8, 1);
    copyRow->addWidget(copy);
    auto* frontRow = new QHBoxLayout;
    frontRow->addStretch();
    frontRow->addWidget(Label5);
    frontRow->addWidget(frontPageButton);
    auto* layout = new QVBoxLayout(page);
    layout->addWidget(title(page, "Label18", QStringLiteral("Step 2: Insert HTML code into your Web page")));
    layout->addWidget(label13);
    layout->addLayout(copyRow);
    layout->addWidget(Text1, 1);
    layout->addWidget(Label9);
    layout->addWidget(Label1);
    layout->addLayout(frontRow);
    return page;
}

QWidget* PreviewForm::buildStep3()
{
    FileSystem& files = app().platform().files();
    auto* page = new QWidget;
    Label14 = title(page, "Label14", Step3Title);
    Label15 = text(page, "Label15",
                   QStringLiteral("This special effect requires extra files to work correctly.  These files must be "
                                  "placed in the same folder as the Web page that contains the special effect HTML "
                                  "code."));
    Frame5 = named(new QFrame(page), "Frame5");
    Label2 = text(Frame5, "Label2",
                  QStringLiteral("In the box below, select and open the folder that holds the Web page containing the "
                                 "special effect HTML code.  Then click the 'Copy Files' button to copy the required "
                                 "files to that folder."));
    Label6 = text(Frame5, "Label6",
                  QStringLiteral("(A file named qltemp.html will be copied to this folder as a backup.  It contains "
                                 "the HTML code for this special effect.)"));
    Label7 = text(Frame5, "Label7",
                  QStringLiteral("The following files could not be copied to the correct folder.  Using the file list "
                                 "box(es) below, select the necessary files and click the COPY button."));
    Label10 = named(new QLabel(QStringLiteral("and then"), Frame5), "Label10");
    Drive1 = named(new DriveListBox(files, Frame5), "Drive1");
    Dir1 = named(new DirListBox(files, Frame5), "Dir1");
    File1 = named(new FileListBox(files, Frame5), "File1");
    File1->setSelectionMode(QAbstractItemView::SingleSelection);
    Drive2 = named(new DriveListBox(files, Frame5), "Drive2");
    Dir2 = named(new DirListBox(files, Frame5), "Dir2");
    File2 = named(new FileListBox(files, Frame5), "File2");
    File2->setSelectionMode(QAbstractItemView::MultiSelection);
    List1 = named(new QListWidget(Frame5), "List1");
    Command6 = commandButton(Frame5, "Command6", QStringLiteral("&Copy Files"));
    Command1 = named(new QToolButton(Frame5), "Command1");
    Command1->setIcon(style()->standardIcon(QStyle::SP_FileDialogNewFolder));
    Command1->setToolTip(QStringLiteral("Create new folder..."));
    Command7 = commandButton(Frame5, "Command7", QStringLiteral("&Copy >>"));
    Command8 = commandButton(Frame5, "Command8", QStringLiteral("&Done"));
    Command9 = commandButton(Frame5, "Command9", QStringLiteral("&Copy >>"));
    Command10 = commandButton(Frame5, "Command10", QStringLiteral("&Click to Preview"));
    Command10->setToolTip(QStringLiteral("Click here to preview the special effect applet in your Web browser"));
    Line1 = separator(Frame5, "Line1");
    Line2 = separator(Frame5, "Line2");

    connect(Dir1, &DirListBox::pathChanged, this, [this](const QString& path) {
        File1->setPath(path);
        targetPath_->setText(breakablePath(path));
    });
    connect(Dir2, &DirListBox::pathChanged, this, [this](const QString& path) {
        File2->setPath(path);
        sourcePath_->setText(breakablePath(path));
    });
    connect(Drive1, &DriveListBox::driveChanged, this,
            [this](const QString& d) { followDrive(app(), *Drive1, *Dir1, d); });
    connect(Drive2, &DriveListBox::driveChanged, this,
            [this](const QString& d) { followDrive(app(), *Drive2, *Dir2, d); });
    connect(Command6, &QPushButton::clicked, this, [this] { copyFiles(); });
    connect(Command1, &QToolButton::clicked, this, [this] { makeDir(); });
    connect(Command7, &QPushButton::clicked, this, [this] { manualCopy(); });
    connect(Command8, &QPushButton::clicked, this, [this] { manualCopyDone(); });
    connect(Command9, &QPushButton::clicked, this, [this] { manualCopyForPreview(); });
    connect(Command10, &QPushButton::clicked, this, [this] { clickToPreview(); });

    // Where to look for missing files on the left, the target on the right;
    // the names that could not be copied beside the instruction.
    List1->setMaximumHeight(84);
    auto* grid = new QGridLayout(Frame5);
    frame5Grid_ = grid;
    grid->setContentsMargins(0, 0, 0, 0);
    grid->addWidget(Label2, 0, 0, 1, 3);
    grid->addWidget(Label7, 1, 0, 1, 2);
    grid->addWidget(List1, 1, 2);
    grid->addWidget(Line1, 2, 0, 1, 3);
    auto* targetDrive = new QHBoxLayout;
    targetDrive->addWidget(Drive1, 1);
    targetDrive->addWidget(Command1);
    // Each folder tree says what it is for and shows its whole path.
    sourceCaption_ = new QLabel(QStringLiteral("Look for the files in this folder:"), Frame5);
    targetCaption_ = new QLabel(QStringLiteral("Copy the files to this folder:"), Frame5);
    sourcePath_ = new QLabel(Frame5);
    targetPath_ = new QLabel(Frame5);
    for (QLabel* path : {sourcePath_, targetPath_}) {
        path->setWordWrap(true);
        path->setTextInteractionFlags(Qt::TextSelectableByMouse);
        path->setForegroundRole(QPalette::PlaceholderText);
    }
    sourceCaption_->setBuddy(Dir2);
    targetCaption_->setBuddy(Dir1);
    auto* source = new QVBoxLayout;
    source->addWidget(sourceCaption_);
    source->addWidget(Drive2);
    auto* target = new QVBoxLayout;
    target->addWidget(targetCaption_);
    target->addLayout(targetDrive);
    grid->addLayout(source, 3, 0);
    grid->addLayout(target, 3, 2);
    auto* sourceTree = new QVBoxLayout;
    sourceTree->addWidget(Dir2, 1);
    sourceTree->addWidget(sourcePath_);
    auto* targetTree = new QVBoxLayout;
    targetTree->addWidget(Dir1, 1);
    targetTree->addWidget(targetPath_);
    grid->addLayout(sourceTree, 4, 0);
    grid->addLayout(targetTree, 4, 2);
    auto* middle = new QVBoxLayout;
    middle->addStretch();
    middle->addWidget(Label10, 0, Qt::AlignHCenter);
    middle->addWidget(Command7);
    middle->addWidget(Command9);
    middle->addStretch();
    grid->addWidget(File2, 5, 0);
    grid->addLayout(middle, 4, 1, 2, 1);
    grid->addWidget(File1, 5, 2);
    grid->addWidget(Line2, 6, 0, 1, 3);
    auto* bottom = new QHBoxLayout;
    bottom->addWidget(Label6, 1);
    bottom->addStretch();
    bottom->addWidget(Command6);
    bottom->addWidget(Command8);
    bottom->addWidget(Command10);
    grid->addLayout(bottom, 7, 0, 1, 3);
    grid->setColumnStretch(2, 1);

    auto* layout = new QVBoxLayout(page);
    layout->addWidget(Label14);
    layout->addWidget(Label15);
    layout->addWidget(Frame5, 1);
    return page;
}

QWidget* PreviewForm::buildStep4()
{
    auto* page = new QWidget;
    auto* form = new QGridLayout;
    Combo3 = named(new QComboBox(page), "Combo3");
    Combo3->setEditable(true);
    const QStringList captions = {"Username:", "Password:", "Initial Directory:"};
    form->addWidget(named(new QLabel(QStringLiteral("Server:"), page), "Label23"), 0, 0);
    form->addWidget(Combo3, 0, 1);
    for (int i = 0; i < 3; ++i) {
        auto* box = named(new QLineEdit(page), arrayName("Text3", i));
        Text3 << box;
        form->addWidget(named(new QLabel(captions[i], page), arrayName("Label24", i)), i + 1, 0);
        form->addWidget(box, i + 1, 1);
    }
    Text3[1]->setEchoMode(QLineEdit::Password);
    Text3[1]->setProperty("qlPasswordChar", QStringLiteral("*"));
    auto* upload = commandButton(page, "Command2", QStringLiteral("Upload Files..."));
    auto* progress = named(new QGroupBox(QStringLiteral("Progress"), page), "Frame6");
    auto* bar = named(new QProgressBar(progress), "ProgressBar1");
    auto* progressLayout = new QVBoxLayout(progress);
    progressLayout->addWidget(named(new QLabel(QStringLiteral("File being transferred:"), progress), "Label19"));
    progressLayout->addWidget(bar);
    auto* layout = new QVBoxLayout(page);
    layout->addWidget(title(page, "Label17", QStringLiteral("Step 4: Publish required files to remote Web server")));
    layout->addWidget(text(page, "Label16",
                           QStringLiteral("You can also upload the required files to your Web server.  Input the "
                                          "information below including server name, username, password and initial "
                                          "directory.  Then click the 'Upload' button to publish your files "
                                          "remotely.  Or you can simply click the 'Next' button to skip this step.")));
    layout->addLayout(form);
    layout->addWidget(upload, 0, Qt::AlignRight);
    layout->addWidget(progress);
    layout->addStretch();
    return page;
}

QWidget* PreviewForm::buildFinish()
{
    auto* page = new QWidget;
    auto* back = commandButton(page, "Command5", QStringLiteral("Return to Main Menu"));
    back->setMinimumHeight(36);
    connect(back, &QPushButton::clicked, this, [this] { returnToMainMenu(); });
    auto* row = new QHBoxLayout;
    row->addWidget(back);
    row->addWidget(text(page, "Label22", QStringLiteral("Return to Main Menu to create new special effect")), 1);
    auto* layout = new QVBoxLayout(page);
    layout->addWidget(title(page, "Label21", QStringLiteral("Finished!")));
    layout->addWidget(text(page, "Label20",
                           QStringLiteral("You have completed your Quillet special effect!  Click the button below to "
                                          "return to the Main Menu to create a new special effect.")));
    layout->addSpacing(16);
    layout->addLayout(row);
    layout->addStretch();
    return page;
}

void PreviewForm::load()
{
    EffectSession& session = app().session();
    Text1->setText(session.GeneratedCode);
    StepIndex = 1;
    toFront(0);
    Text3[0]->clear();
    Text3[1]->clear();
    const std::optional<PreviewSettings> settings =
        previewSettings(session.EffectId, [this](const QString& form, const QString& control) {
            FormBase* other = app().forms().load(form);
            QObject* c = other ? other->widget()->findChild<QObject*>(control) : nullptr;
            if (auto* option = qobject_cast<QRadioButton*>(c))
                return option->isChecked() ? QStringLiteral("1") : QStringLiteral("0");
            return c ? fieldText(qobject_cast<QWidget*>(c)) : QString();
        });
    if (settings) {
        Label3->setText(settings->requiredClassesCaption);
        NeedsFiles = settings->needsFiles ? 1 : 0;
        SectionedCode = settings->sectionedCode ? 1 : 0;
    }
    // The target folder starts at the user's home.
    const QString home = QDir::homePath();
    Drive1->showDriveOf(home);
    Dir1->setPath(home);
    Drive2->showDriveOf(home);
    Dir2->setPath(home);
    step3DefaultLayout();
}

void PreviewForm::unloading()
{
    ReturningToEditor = 0;
    if (QWidget* main = app().mainWidget())
        main->show();
}

QString PreviewForm::code() const
{
    return Text1->text();
}

QString PreviewForm::targetFolder() const
{
    return Dir1->path();
}

QString PreviewForm::targetDrive() const
{
    return Drive1->drive();
}

void PreviewForm::showTargetFolder(const QString& path)
{
    Dir1->setPath(path);
}

void PreviewForm::toFront(int page)
{
    if (page != 4)
        Command15->setDefault(true);
    pages_->bringToFront(page);
    markStep(page);
    settleFocus(this);
}

void PreviewForm::markStep(int page)
{
    steps_->mark(page);
}

void PreviewForm::setNavigationShown(bool shown)
{
    Command14->setVisible(shown);
    Command15->setVisible(shown);
    for (int i = 0; i < 5; ++i)
        steps_->label(i)->setVisible(shown);
    steps_->setVisible(shown);
    settleFocus(this);
}

void PreviewForm::next()
{
    ++StepIndex;
    switch (StepIndex) {
    case 2:
        step2Layout();
        toFront(1);
        app().platform().clearClipboard();
        app().platform().setClipboardText(Text1->text());
        Command14->setEnabled(true);
        break;
    case 3:
        step3DefaultLayout();
        toFront(2);
        if (NeedsFiles == 0) {
            StepIndex = 4;
            showFinish();
        }
        break;
    case 4:
        showFinish();
        break;
    default:
        break;
    }
}

void PreviewForm::showFinish()
{
    toFront(4);
    Command15->setEnabled(false);
    // Enter and the focus go to the way back to the main menu.
    auto* back = pages_->widget(4)->findChild<QPushButton*>(QStringLiteral("Command5"));
    back->setDefault(true);
    focusIfShown(back);
}

void PreviewForm::previous()
{
    --StepIndex;
    switch (StepIndex) {
    case 3:
        toFront(2);
        Command15->setEnabled(true);
        step3DefaultLayout();
        if (NeedsFiles == 0) {
            StepIndex = 2;
            toFront(1);
            Frame5->hide();
            Label15->setText(QStringLiteral("This special effect does not require any extra files in order to work "
                                            "correctly.  Please click the 'Next' button to move to Step 4."));
        }
        break;
    case 2:
        step2Layout();
        toFront(1);
        break;
    case 1:
        toFront(0);
        break;
    case 0:
        ReturnToEditApplet(true, 24);
        break;
    default:
        break;
    }
}

void PreviewForm::step2Layout()
{
    const bool sections = SectionedCode == 1;
    Label1->setVisible(!sections);
    Label9->setVisible(!sections);
    Label8->setText(sections
                        ? QStringLiteral("Select each section of code and click here to copy to the Windows Clipboard-->")
                        : QStringLiteral("1. Click here to copy this HTML code to the Windows Clipboard-->"));
    // The code box takes the room the hidden labels leave: it has the
    // page's stretch.
}

void PreviewForm::step3DefaultLayout()
{
    Label14->setText(Step3Title);
    // The target's files come back too, after a failed copy for the preview.
    for (QWidget* w : std::initializer_list<QWidget*>{Drive1, Dir1, File1, Command6, Command1, Label2, Label5, Label6})
        w->show();
    for (QWidget* w : std::initializer_list<QWidget*>{List1, Drive2, Dir2, File2, Command7, Command8, Command9,
                                                      Command10, Label7, Label10, Line1, Line2})
        w->hide();
    List1->clear();
    frame5Grid_->setColumnStretch(0, 0);
    showFolderCaptions();
}

void PreviewForm::showFolderCaptions()
{
    sourceCaption_->setVisible(ownVisibleFlag(Dir2));
    sourcePath_->setVisible(ownVisibleFlag(Dir2));
    targetCaption_->setVisible(ownVisibleFlag(Dir1));
    targetPath_->setVisible(ownVisibleFlag(Dir1));
}

void PreviewForm::failedCopyLayout()
{
    frame5Grid_->setColumnStretch(0, 1);
    for (QWidget* w : std::initializer_list<QWidget*>{List1, Drive2, Dir2, File2, Label7, Line1, Line2})
        w->show();
    for (QWidget* w : std::initializer_list<QWidget*>{Command6, Label2, Label6})
        w->hide();
    showFolderCaptions();
    setNavigationShown(false);
}

void PreviewForm::copyToClipboard()
{
    Platform& platform = app().platform();
    platform.clearClipboard();
    if (SectionedCode == 0) {
        Text1->selectAll();
        Text1->setFocus();
        platform.setClipboardText(Text1->selectedText());
        return;
    }
    if (Text1->selectionLength() == 0) {
        app().msgBox(QStringLiteral("Please select a section of HTML code from the text box below."), MsgStyle::OkOnly);
        Text1->setFocus();
        return;
    }
    platform.setClipboardText(Text1->selectedText());
    Text1->setFocus();
}

void PreviewForm::frontPage()
{
    if (SectionedCode == 0) {
        app().platform().clearClipboard();
        app().platform().setClipboardText(Text1->text());
        helpTopic = 21;
    } else {
        helpTopic = 29;
    }
    sendHelp();
}

void PreviewForm::ReturnToEditApplet(bool modal, int lastEffect)
{
    App& program = app();
    EffectSession& session = program.session();
    const int effect = session.EffectId;
    ReturningToEditor = 1;
    unload();
    if (effect < 1 || effect > lastEffect)
        return;
    if (effect == 15)
        --session.MessageIndex;
    program.forms().show(formOfEffect(effect), modal);
}

void PreviewForm::returnToMainMenu()
{
    FormRegistry& forms = app().forms();
    for (const QString& name : finishUnloads())
        forms.unload(name);
    unload();
}

}  // namespace ql
