#include "effects/page/PasswordForm.h"

#include "core/App.h"
#include "core/Constants.h"
#include "core/FormBuilder.h"
#include "core/Widgets.h"
#include "core/WrapOption.h"

#include <QCheckBox>
#include <QEvent>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace ql {

namespace {

enum Page { SchemePage = 0, JavaScriptPage = 1, CgiPage = 2 };

const QString SchemeHelp[] = {
    QStringLiteral("Provides less security than the CGI password, but is easier to implement in your Web page.  It "
                   "allows you to specify one password for a Web page or different passwords for multiple Web "
                   "pages."),
    QStringLiteral("Provides higher security than the JavaScript password, but is more difficult to implement in "
                   "your Web page.  Your Internet service provider must allow custom CGI scripts to be installed on "
                   "their Web server in order for this to work correctly."),
};

// The maker's site as an example address shows it, without a closing "/".
QString site()
{
    QString url = Addresses::VendorUrl;
    while (url.endsWith('/'))
        url.chop(1);
    return url;
}

QString targetCaptionOpening() { return QStringLiteral("Display this Web page when user enters correct password:"); }
QString targetCaptionOne() { return QStringLiteral("URL of Web page to display when user types in correct password:"); }
QString targetCaptionMany() { return QStringLiteral("URL of Web page to display when user types in password:"); }
QString exampleOpening()
{
    return "Example:  Type " + site() +
           "/secret.html if that's the Web page to be password protected (or type secret.html if the HTML document "
           "resides in the same directory as secret.html).";
}
QString exampleOne()
{
    return "Example:  Type " + site() +
           "/secret.html if that's the Web page to be accessed by the password (or just secret.html if the HTML "
           "document containing this JavaScript code is in the same folder as secret.html).";
}
QString exampleMany()
{
    return "Example:  If you want the user typing \"bob\" to access bob.html at the address " + site() +
           "/bob.html then type " + site() + "/ into the input box above.";
}

}  // namespace

PasswordForm::PasswordForm(App& app)
    : ModelForm(app)
{
    setWindowTitle(QStringLiteral("Password Protection"));
    pages_ = new PageStack(this);
    pages_->addPage(buildSchemePage());
    pages_->addPage(buildJavaScriptPage());
    pages_->addPage(buildCgiPage());
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(pages_);
    showPage(SchemePage, nullptr, findChild<QPushButton*>("Command5"));
    // As wide as the examples' room, as high as the tallest page needs at
    // that width.
    // The stack does not pass the height-for-width of its wrapped texts on,
    // so its room is worked out page by page here.
    int width = fontMetrics().averageCharWidth() * 80;
    for (int i = 0; i < pages_->count(); ++i)
        width = qMax(width, pages_->widget(i)->minimumSizeHint().width());
    int height = 0;
    for (int i = 0; i < pages_->count(); ++i) {
        QLayout* pageLayout = pages_->widget(i)->layout();
        height = qMax(height, pageLayout->hasHeightForWidth() ? pageLayout->totalHeightForWidth(width)
                                                               : pageLayout->totalSizeHint().height());
    }
    pages_->setMinimumSize(width, height);
    resize(layout->totalMinimumSize());
}

QWidget* PasswordForm::buildSchemePage()
{
    auto* page = named(new QWidget, QStringLiteral("Picture3"));
    page->installEventFilter(this);
    page->setMouseTracking(true);
    FormBuilder b(page, 1, this);
    FormBuilder scheme = b.frame("Frame1", "Select a password protection scheme");
    QWidget* frame = scheme.widget();
    frame->installEventFilter(this);
    frame->setMouseTracking(true);
    for (int i = 0; i < 2; ++i) {
        QRadioButton* option = scheme.option(arrayName("Option3", i), i == 0
                                                                           ? "JavaScript Password (medium security)"
                                                                           : "CGI Password (high security)");
        option->installEventFilter(this);
        option->setMouseTracking(true);
    }
    Label4 = b.note("Label4", QString());
    Label4->installEventFilter(this);
    Label4->setMouseTracking(true);
    Label4->setFrameShape(QFrame::StyledPanel);
    Label4->setMargin(6);
    // The description's room is kept while it is hidden, so that the page
    // does not move under the mouse.
    const int room = qMax(fontMetrics().boundingRect(QRect(0, 0, fontMetrics().averageCharWidth() * 58, 1000),
                                                     Qt::TextWordWrap, SchemeHelp[1])
                              .height(),
                          fontMetrics().boundingRect(QRect(0, 0, fontMetrics().averageCharWidth() * 58, 1000),
                                                     Qt::TextWordWrap, SchemeHelp[0])
                              .height());
    Label4->setMinimumHeight(room + 16);
    QSizePolicy keep = Label4->sizePolicy();
    keep.setRetainSizeWhenHidden(true);
    Label4->setSizePolicy(keep);
    Label4->hide();
    b.stretch();

    auto* row = new QHBoxLayout;
    row->addStretch();
    QPushButton* nextButton = makeButton("Command5", "&Next >>");
    QPushButton* cancel = makeButton("Command8", "&Cancel");
    row->addWidget(nextButton);
    row->addWidget(cancel);
    b.wide(row);
    connect(nextButton, &QPushButton::clicked, this, [this] { next(); });
    connect(cancel, &QPushButton::clicked, this, [this] { unload(); });
    return page;
}

QWidget* PasswordForm::buildJavaScriptPage()
{
    auto* page = named(new QWidget, arrayName("Picture2", 0));
    FormBuilder b(page, 1, this);
    FormBuilder type = b.frame("Frame2", "Password type");
    Option1 = named(new WrapOption("Use one password to gain access to a specific Web page."), "Option1");
    type.wide(Option1);
    Option2 = named(new WrapOption("Use different passwords that allow access to different Web pages.  For "
                                   "example, typing the password \"bob\" accesses the bob.html Web page, and typing "
                                   "\"sam\" will access the sam.html Web page."),
                    "Option2");
    type.wide(Option2);

    FormBuilder fields = b.area();
    Text1 = fields.text("Text1", "Label1", "Password:", 24);
    Label1 = page->findChild<QLabel*>("Label1");
    for (QWidget* w : std::initializer_list<QWidget*>{Text1, Label1}) {
        QSizePolicy keep = w->sizePolicy();
        keep.setRetainSizeWhenHidden(true);
        w->setSizePolicy(keep);
        w->hide();
    }
    Label2 = named(new QLabel(targetCaptionOpening()), QStringLiteral("Label2"));
    b.wide(Label2);
    QLineEdit* target = named(new QLineEdit, QStringLiteral("Text2"));
    b.wide(target);
    Label2->setBuddy(target);
    Label3 = named(new QLabel(exampleOpening()), QStringLiteral("Label3"));
    Label3->setWordWrap(true);
    // Room for the longest of the examples, so that the page does not move
    // as the options change them.
    const QRect room(0, 0, fontMetrics().averageCharWidth() * 70, 1000);
    int height = 0;
    for (const QString& text : {exampleOpening(), exampleOne(), exampleMany()})
        height = qMax(height, fontMetrics().boundingRect(room, Qt::TextWordWrap, text).height());
    Label3->setMinimumHeight(height + 4);
    Label3->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    b.wide(Label3);
    b.stretch();
    b.wide(commandRow("Command2", "Command1", "Command4"));

    connect(Option1, &QRadioButton::toggled, this, [this](bool on) {
        if (on)
            chooseOnePassword();
    });
    connect(Option2, &QRadioButton::toggled, this, [this](bool on) {
        if (on)
            choosePagePerPassword();
    });
    return page;
}

QWidget* PasswordForm::buildCgiPage()
{
    auto* page = named(new QWidget, arrayName("Picture2", 1));
    FormBuilder b(page, 1, this);
    FormBuilder required = b.frame("Frame3", "Required settings");
    required.text("Text3", "Label5", "Specify username:", 24);
    required.text("Text4", "Label6", "Specify password:", 24);
    required.text("Text5", "Label7", "Display this Web page (URL) when user logs in:");

    FormBuilder optional = b.frame("Frame4", "Optional settings");
    optional.note("Label8",
                  "These settings may need to be specified if your Internet service provider's Web server requires "
                  "them.  Click on the help button for more information.");
    QCheckBox* change = optional.check("Check1", "Change settings");
    QLineEdit* perl = optional.text("Text7", "Label9", "Path to PERL compiler:", 24);
    perl->setText(PasswordModel::DefaultPerl);
    QLineEdit* folder = optional.text("Text6", "Label10", "Directory containing password.cgi file:", 24);
    optional.note("Label11", "(if different from default directory)");
    perl->setEnabled(false);
    folder->setEnabled(false);
    connect(change, &QCheckBox::toggled, this, [perl, folder](bool on) {
        perl->setEnabled(on);
        folder->setEnabled(on);
    });
    b.stretch();
    b.wide(commandRow("Command3", "Command6", "Command7", QStringLiteral("Done")));
    return page;
}

void PasswordForm::showPage(int index, QWidget* focus, QPushButton* defaultButton)
{
    pages_->bringToFront(index);
    if (defaultButton)
        defaultButton->setDefault(true);
    if (focus)
        focus->setFocus(Qt::OtherFocusReason);
}

bool PasswordForm::eventFilter(QObject* watched, QEvent* event)
{
    const QEvent::Type type = event->type();
    if (type == QEvent::Enter || type == QEvent::MouseMove || type == QEvent::HoverMove) {
        const QString name = watched->objectName();
        if (name == arrayName("Option3", 0) || name == arrayName("Option3", 1)) {
            Label4->setText(SchemeHelp[name == arrayName("Option3", 0) ? 0 : 1]);
            Label4->show();
        } else if (name == QLatin1String("Frame1") || name == QLatin1String("Label4") ||
                   name == QLatin1String("Picture3")) {
            Label4->hide();
        }
    }
    return ModelForm::eventFilter(watched, event);
}

void PasswordForm::next()
{
    if (findChild<QRadioButton*>(arrayName("Option3", 0))->isChecked())
        showPage(JavaScriptPage, Option1, findChild<QPushButton*>("Command2"));
    else if (findChild<QRadioButton*>(arrayName("Option3", 1))->isChecked())
        showPage(CgiPage, findChild<QWidget*>("Text3"), findChild<QPushButton*>("Command3"));
    else
        app().msgBox("Please select a password protection scheme.");
}

void PasswordForm::chooseOnePassword()
{
    Text1->show();
    Label1->show();
    Label2->setText(targetCaptionOne());
    Label3->setText(exampleOne());
}

void PasswordForm::choosePagePerPassword()
{
    Text1->hide();
    Label1->hide();
    Label2->setText(targetCaptionMany());
    Label3->setText(exampleMany());
}

PasswordModel::Fields PasswordForm::fields() const
{
    auto text = [this](const char* name) { return fieldText(findChild<QWidget*>(name)); };
    using Kind = PasswordModel::Kind;
    return {.scheme = pages_->currentIndex() == CgiPage ? PasswordModel::Scheme::Cgi
                                                        : PasswordModel::Scheme::JavaScript,
            .kind = Option2->isChecked()   ? Kind::PagePerPassword
                    : Option1->isChecked() ? Kind::OnePassword
                                           : Kind::Unchosen,
            .password = text("Text1"),
            .target = text("Text2"),
            .username = text("Text3"),
            .loginPassword = text("Text4"),
            .loginPage = text("Text5"),
            .scriptFolder = text("Text6"),
            .perlPath = text("Text7")};
}

void PasswordForm::done()
{
    if (pages_->currentIndex() == JavaScriptPage)
        doneJavaScript();
    else if (pages_->currentIndex() == CgiPage)
        doneCgi();
}

void PasswordForm::doneJavaScript()
{
    const PasswordModel::Fields f = PasswordModel::normalized(fields());
    setFieldText(findChild<QWidget*>("Text2"), f.target);
    HandOverToPreview(PasswordModel::handOver(f));
}

void PasswordForm::doneCgi()
{
    PasswordModel::Fields f = fields();
    if (const std::optional<Refusal> refusal = PasswordModel::validate(f)) {
        refuse(*refusal);
        return;
    }
    f = PasswordModel::normalized(f);
    setFieldText(findChild<QWidget*>("Text5"), f.loginPage);
    setFieldText(findChild<QWidget*>("Text6"), f.scriptFolder);
    setFieldText(findChild<QWidget*>("Text7"), f.perlPath);
    // A folder that refuses the script is not reported: the login form goes
    // on to the wizard without it.
    app().platform().files().writeFile(app().programFile(PasswordModel::ScriptFile), PasswordModel::cgiScript(f));
    HandOverToPreview(PasswordModel::handOver(f));
}

void PasswordForm::EditApplet()
{
    // A value found behind "passtext ==" chooses the page-per-password option.
    const QString password = extract("passtext ==");
    if (password.isEmpty()) {
        Option1->setChecked(true);
    } else {
        Option2->setChecked(true);
        Text1->setText(password);
    }
    setFieldText(findChild<QWidget*>("Text2"), extract("window.location = "));
}

}  // namespace ql
