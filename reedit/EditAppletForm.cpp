#include "reedit/EditAppletForm.h"

#include "core/App.h"
#include "core/ExtractParam.h"
#include "core/FormNames.h"
#include "core/Keyboard.h"
#include "core/Widgets.h"

#include <QFontDatabase>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QToolButton>
#include <QVBoxLayout>

namespace ql {

const QString EditAppletForm::WizardChoice = QStringLiteral("*wizard*");

namespace {

struct Route {
    QStringList prefixes;  // bare and quoted
    QString form;
};

const QList<Route>& routes()
{
    static const QList<Route> table = {
        {{"Clock", "\"Cloc"}, FormName::Clock},
        {{"Anima", "\"Anim"}, EditAppletForm::WizardChoice},
        {{"AnFad", "\"AnFa"}, FormName::ImageEffects},
        {{"Lake.", "\"Lake"}, FormName::ImageEffects},
        {{"rippl", "\"ripp"}, FormName::ImageEffects},
        {{"TmapC", "\"Tmap"}, FormName::ImageEffects},
        {{"Butto", "\"Butt"}, FormName::DynaBut},
        {{"Navig", "\"Navi"}, FormName::NavTicker},
        {{"FadeT", "\"Fade"}, FormName::FadeMsg},
        {{"Color", "\"Colo"}, FormName::Swirly},
        {{"Simpl", "\"Simp"}, FormName::Sound},
        {{"Typew", "\"Type"}, FormName::Typer},
        {{"RTLSc", "LTRSc", "\"RTLS", "\"LTRS"}, FormName::SmoothScroll},
    };
    return table;
}

}  // namespace

QString EditAppletForm::routeOf(const QString& prefix5)
{
    for (const Route& route : routes()) {
        if (route.prefixes.contains(prefix5))
            return route.form;
    }
    return QString();
}

QStringList EditAppletForm::routedForms()
{
    QStringList forms = {FormName::Anim, FormName::AnimWizard, FormName::BBWizard};
    for (const Route& route : routes()) {
        if (route.form != WizardChoice && !forms.contains(route.form))
            forms << route.form;
    }
    return forms;
}

EditAppletForm::EditAppletForm(App& app)
    : Form(app, QStringLiteral("EditAppletForm"))
{
    setWindowTitle(QStringLiteral("Edit Applet"));

    // Page 1: the pasted code.
    Picture1 = named(new QWidget(this), "Picture1");
    auto* label1 = named(new QLabel(QStringLiteral(
        "Paste the HTML code of the applet into the text box below and click the \"Edit\" button to edit the "
        "applet.  The code must begin with the \"<APPLET>\" tag and end with the \"</APPLET>\" tag."), Picture1),
        "Label1");
    label1->setWordWrap(true);
    Text1 = named(new CodeBox(Picture1), "Text1");
    Text1->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    Text1->setMinimumSize(520, 240);
    auto* edit = commandButton(Picture1, "Command1", QStringLiteral("&Edit"));
    edit->setDefault(true);
    auto* cancel = commandButton(Picture1, "Command2", QStringLiteral("&Cancel"));
    auto* help = helpButton(Picture1, "Command5");
    auto* row1 = new QHBoxLayout;
    row1->addWidget(help);
    row1->addStretch();
    row1->addWidget(edit);
    row1->addWidget(cancel);
    auto* page1 = new QVBoxLayout(Picture1);
    page1->setContentsMargins(0, 0, 0, 0);
    page1->addWidget(label1);
    page1->addWidget(Text1, 1);
    page1->addLayout(row1);

    // Page 2: the choice of wizard for animation code.
    Picture2 = named(new QWidget(this), "Picture2");
    auto* label2 = named(new QLabel(
        QStringLiteral("Please pick the appropriate wizard that you wish to use to re-edit this applet."), Picture2),
        "Label2");
    label2->setWordWrap(true);
    Option1 = named(new QRadioButton(QStringLiteral("Advanced Animation applet Wizard"), Picture2), "Option1");
    Option2 = named(new QRadioButton(QStringLiteral("Animation Wizard"), Picture2), "Option2");
    Option3 = named(new QRadioButton(QStringLiteral("Billboard Wizard"), Picture2), "Option3");
    auto* edit2 = commandButton(Picture2, "Command3", QStringLiteral("&Edit"));
    edit2_ = edit2;
    auto* cancel2 = commandButton(Picture2, "Command4", QStringLiteral("&Cancel"));
    auto* row2 = new QHBoxLayout;
    row2->addStretch();
    row2->addWidget(edit2);
    row2->addWidget(cancel2);
    auto* page2 = new QVBoxLayout(Picture2);
    page2->setContentsMargins(0, 0, 0, 0);
    page2->addWidget(label2);
    page2->addSpacing(8);
    page2->addWidget(Option1);
    page2->addWidget(Option2);
    page2->addWidget(Option3);
    page2->addStretch(1);
    page2->addLayout(row2);
    Picture2->hide();

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(Picture1);
    layout->addWidget(Picture2);

    connect(edit, &QPushButton::clicked, this, [this] { this->edit(); });
    connect(cancel, &QPushButton::clicked, this, [this] { unload(); });
    connect(help, &QToolButton::clicked, this, [this] { sendHelp(); });
    connect(edit2, &QPushButton::clicked, this, [this] { editWithWizard(); });
    connect(cancel2, &QPushButton::clicked, this, [this] { unload(); });

    adjustSize();
    // Centred on the screen.
    if (const QScreen* screen = QGuiApplication::primaryScreen()) {
        const QRect area = screen->availableGeometry();
        move(area.center() - QPoint(width() / 2, height() / 2));
    }
}

void EditAppletForm::edit()
{
    EffectSession& session = app().session();
    session.ReEditMode = 1;
    const QString code = Text1->text();
    session.ClassPrefix5 = classPrefix(code, 5);
    session.ClassPrefix8 = classPrefix(code, 8);
    const QString form = routeOf(session.ClassPrefix5);
    if (form == WizardChoice) {
        showPage2();
        return;
    }
    if (form.isEmpty()) {
        app().msgBox(QStringLiteral("Quillet does not recognize this applet.  It cannot re-edit the Status bar "
                                    "scrolling text applet or the Fading background color applet."),
                     MsgStyle::OkOnly);
        unload();
        return;
    }
    // The form reads this form's text while it loads; only then does this
    // form go.
    app().forms().show(form, false);
    unload();
}

void EditAppletForm::showPage2()
{
    Picture1->hide();
    Picture2->show();
    // Enter edits with the wizard picked; the choice takes the focus.
    edit2_->setDefault(true);
    focusIfShown(Option1);
    settleFocus(this);
}

void EditAppletForm::editWithWizard()
{
    QString form;
    if (Option1->isChecked())
        form = FormName::Anim;
    else if (Option2->isChecked())
        form = FormName::AnimWizard;
    else if (Option3->isChecked())
        form = FormName::BBWizard;
    if (!form.isEmpty())
        app().forms().show(form, false);
    unload();
}

}  // namespace ql
