#include "publish/PreviewForm.h"

#include "core/App.h"
#include "core/Widgets.h"

#include <QFontDatabase>
#include <QLabel>
#include <QVBoxLayout>

namespace ql {

PreviewForm::PreviewForm(App& app)
    : Form(app, QStringLiteral("Preview"))
{
    setWindowTitle(QStringLiteral("Preview Wizard"));
    auto* title = named(new QLabel(QStringLiteral("Step 2: Insert HTML code into your Web page"), this), "Label11");
    QFont bold = title->font();
    bold.setBold(true);
    title->setFont(bold);
    Text1 = named(new CodeBox(this), "Text1");
    Text1->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    Text1->setMinimumSize(560, 260);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(title);
    layout->addWidget(Text1, 1);
}

void PreviewForm::load()
{
    Text1->setText(app().session().GeneratedCode);
}

void PreviewForm::unloading()
{
    if (QWidget* main = app().mainWidget())
        main->show();
}

}  // namespace ql
