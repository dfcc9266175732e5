#include "effects/page/PulldownForm.h"

#include "core/App.h"
#include "core/FormBuilder.h"
#include "core/FormNames.h"
#include "core/Widgets.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QVBoxLayout>

namespace ql {

PulldownForm::PulldownForm(App& app)
    : ModelForm(app)
{
    setWindowTitle(QStringLiteral("Pulldown menu"));

    auto* content = new QWidget(this);
    FormBuilder b(content, 1, this);
    b.note("Label4",
           "  Create pulldown menus with menu items that link to other Web pages.  Insert menu items in the order "
           "you want them to appear.");

    // The two lists side by side, the row buttons beside them.
    auto* lists = new QGridLayout;
    auto* itemsCaption = named(new QLabel(QStringLiteral("Menu items:"), content), QStringLiteral("Label1"));
    auto* urlsCaption = named(new QLabel(QStringLiteral("Link to this URL:"), content), QStringLiteral("Label2"));
    List1 = named(new QListWidget(content), QStringLiteral("List1"));
    List2 = named(new QListWidget(content), QStringLiteral("List2"));
    itemsCaption->setBuddy(List1);
    urlsCaption->setBuddy(List2);
    const int listHeight = List1->fontMetrics().lineSpacing() * 10 + 8;
    for (QListWidget* list : {List1, List2}) {
        list->setMinimumHeight(listHeight);
        list->setMinimumWidth(List1->fontMetrics().averageCharWidth() * 24);
        // Rows stand side by side: neither list scrolls sideways, a long
        // text is cut short with an ellipsis instead.
        list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        list->setTextElideMode(Qt::ElideRight);
        list->setUniformItemSizes(true);
    }
    // The two lists scroll together.
    connect(List1->verticalScrollBar(), &QScrollBar::valueChanged, List2->verticalScrollBar(), &QScrollBar::setValue);
    connect(List2->verticalScrollBar(), &QScrollBar::valueChanged, List1->verticalScrollBar(), &QScrollBar::setValue);
    auto* buttons = new QVBoxLayout;
    QPushButton* insert = commandButton(content, QStringLiteral("Command1"), QStringLiteral("&Insert Menu item..."));
    QPushButton* separator = commandButton(content, QStringLiteral("Command3"), QStringLiteral("Insert &separator"));
    QPushButton* edit = commandButton(content, QStringLiteral("Command7"), QStringLiteral("&Edit Menu item..."));
    QPushButton* remove = commandButton(content, QStringLiteral("Command2"), QStringLiteral("&Remove Menu item"));
    for (QPushButton* button : {insert, separator, edit, remove})
        buttons->addWidget(button);
    buttons->addStretch();
    lists->addWidget(itemsCaption, 0, 0);
    lists->addWidget(urlsCaption, 0, 1);
    lists->addWidget(List1, 1, 0);
    lists->addWidget(List2, 1, 1);
    lists->addLayout(buttons, 1, 2);
    lists->setColumnStretch(0, 1);
    lists->setColumnStretch(1, 1);
    b.wide(lists);

    FormBuilder shape = b.area(2);
    QRadioButton* dropdown = shape.option(arrayName("Option1", 0), "Display as a dropdown menu");
    shape.option(arrayName("Option1", 1), "Display all menu items");
    dropdown->setChecked(true);
    FormBuilder frames = b.area();
    auto* target = frames.combo("Combo1", "Label3", "Target frame (optional, only if using Frames):", true, 16);
    Q_UNUSED(target);
    b.stretch();

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(content);
    layout->addLayout(commandRow("Command4", "Command5", "Command6", QStringLiteral("&OK")));

    connect(insert, &QPushButton::clicked, this, [this] { insertItem(); });
    connect(separator, &QPushButton::clicked, this, [this] { insertSeparator(); });
    connect(edit, &QPushButton::clicked, this, [this] { editItem(); });
    connect(remove, &QPushButton::clicked, this, [this] { removeItem(); });
    connect(List1, &QListWidget::itemDoubleClicked, this, [this] { editItem(); });
    // A row selected in one list is selected in the other.
    connect(List1, &QListWidget::currentRowChanged, this, [this](int row) { selectRow(row); });
    connect(List2, &QListWidget::currentRowChanged, this, [this](int row) { selectRow(row); });
    connect(List1, &QListWidget::itemSelectionChanged, this, [this] { selectRow(selectedRow()); });
    connect(List2, &QListWidget::itemSelectionChanged, this, [this] {
        const QList<QListWidgetItem*> chosen = List2->selectedItems();
        selectRow(chosen.isEmpty() ? -1 : List2->row(chosen.first()));
    });
}

void PulldownForm::fillLists()
{
    fillList(findChild<QComboBox*>("Combo1"), {"parent", "self", "top"});
}

PulldownModel::Fields PulldownForm::fields() const
{
    PulldownModel::Fields f;
    for (int row = 0; row < List1->count(); ++row) {
        f.items << List1->item(row)->text();
        f.urls << itemUrl(row);
    }
    f.showAll = findChild<QRadioButton*>(arrayName("Option1", 1))->isChecked();
    f.target = fieldText(findChild<QWidget*>("Combo1"));
    return f;
}

int PulldownForm::selectedRow() const
{
    const QList<QListWidgetItem*> chosen = List1->selectedItems();
    return chosen.isEmpty() ? -1 : List1->row(chosen.first());
}

QString PulldownForm::itemText(int row) const
{
    QListWidgetItem* item = List1->item(row);
    return item ? item->text() : QString();
}

QString PulldownForm::itemUrl(int row) const
{
    QListWidgetItem* item = List2->item(row);
    return item ? item->text() : QString();
}

void PulldownForm::selectRow(int row)
{
    for (QListWidget* list : {List1, List2}) {
        const QSignalBlocker quiet(list);
        if (row < 0 || row >= list->count()) {
            list->clearSelection();
            list->setCurrentRow(-1);
            continue;
        }
        list->setCurrentRow(row);
        list->item(row)->setSelected(true);
    }
}

void PulldownForm::insertRow(const QString& text, const QString& url)
{
    const int selected = selectedRow();
    const int at = PulldownModel::insertPosition(List1->count(), selected);
    List1->insertItem(at, text);
    List2->insertItem(at, url);
    // The selected row keeps its selection as it moves down.
    selectRow(selected < 0 ? -1 : (at <= selected ? selected + 1 : selected));
}

void PulldownForm::replaceRow(int row, const QString& text, const QString& url)
{
    if (row < 0 || row >= List1->count())
        return;
    List1->item(row)->setText(text);
    List2->item(row)->setText(url);
    selectRow(row);
}

void PulldownForm::insertItem()
{
    app().session().PulldownItemMode = 0;
    app().forms().show(FormName::PulldownURL, true);
}

void PulldownForm::insertSeparator()
{
    insertRow(PulldownModel::Separator, QString());
}

void PulldownForm::editItem()
{
    if (itemText(selectedRow()) == PulldownModel::Separator) {
        app().msgBox("The separator can't be edited.  It can only be added or removed.");
        return;
    }
    app().session().PulldownItemMode = 1;
    app().forms().show(FormName::PulldownURL, true);
}

void PulldownForm::removeItem()
{
    if (List1->count() == 0) {
        app().msgBox("The list of Menu items is empty.  Please add a menu item before removing it.");
        return;
    }
    const int row = selectedRow();
    if (row < 0) {
        app().msgBox("Select a menu item from the list in order to remove it.");
        return;
    }
    delete List1->takeItem(row);
    delete List2->takeItem(row);
    selectRow(-1);
}

PulldownURLForm::PulldownURLForm(App& app)
    : Form(app, FormName::PulldownURL)
{
    setWindowTitle(QStringLiteral("Specify Menu item and URL"));
    FormBuilder b(this);
    b.text("Text1", "Label1", "Menu item text:", 32);
    b.text("Text2", "Label2", "Link menu item to this URL:", 32);
    auto* ok = commandButton(this, QStringLiteral("Command1"), QStringLiteral("&OK"));
    auto* cancel = commandButton(this, QStringLiteral("Command2"), QStringLiteral("&Cancel"));
    ok->setDefault(true);
    auto* row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(ok);
    row->addWidget(cancel);
    b.wide(row);
    connect(ok, &QPushButton::clicked, this, [this] { acceptRow(); });
    connect(cancel, &QPushButton::clicked, this, [this] { unload(); });
}

PulldownForm* PulldownURLForm::menu() const
{
    return dynamic_cast<PulldownForm*>(app().forms().find(FormName::Pulldown));
}

void PulldownURLForm::load()
{
    PulldownForm* form = menu();
    if (app().session().PulldownItemMode != 1 || !form)
        return;
    const int row = form->selectedRow();
    findChild<QLineEdit*>("Text1")->setText(form->itemText(row));
    findChild<QLineEdit*>("Text2")->setText(form->itemUrl(row));
}

void PulldownURLForm::acceptRow()
{
    const QString text = findChild<QLineEdit*>("Text1")->text();
    const QString url = findChild<QLineEdit*>("Text2")->text();
    if (text.isEmpty()) {
        app().msgBox("Enter menu item text in the text input box or click Cancel.");
        return;
    }
    if (url.isEmpty()) {
        app().msgBox("Enter a Web page URL in the text input box or click Cancel.");
        return;
    }
    if (PulldownForm* form = menu()) {
        if (app().session().PulldownItemMode == 1)
            form->replaceRow(form->selectedRow(), text, url);
        else
            form->insertRow(text, url);
    }
    unload();
}

}  // namespace ql
