#include "automation/Controls.h"

#include "core/FileLists.h"
#include "core/Form.h"
#include "core/ListControls.h"
#include "core/Widgets.h"

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QEnterEvent>
#include <QGroupBox>
#include <QHash>
#include <QKeyEvent>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QRadioButton>
#include <QScrollBar>
#include <QSet>
#include <QSlider>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTabBar>
#include <QTableView>
#include <QTextEdit>
#include <QTreeView>
#include <algorithm>
#include <optional>

namespace ql {

namespace {

// ---- What a control is

// Kinds whose children are controls of their own; the children of any other
// kind (the list inside a combo box, the buttons of a tab strip, the
// viewport of a list) are parts of that control.
const QSet<QString>& containerKinds()
{
    static const QSet<QString> kinds = {"form", "frame", "picture", "page", "stack", "line", "menu", "widget"};
    return kinds;
}

bool isToolkitName(const QString& name)
{
    return name.isEmpty() || name.startsWith(QLatin1String("qt_")) || name.startsWith(QLatin1String("_q_"));
}

bool isAddressable(FormBase& form, const QObject* object)
{
    if (isToolkitName(object->objectName()))
        return false;
    if (!qobject_cast<const QWidget*>(object) && !qobject_cast<const QAction*>(object))
        return false;
    if (formOf(object) != &form)
        return false;
    for (const QObject* parent = object->parent(); parent && parent != form.widget(); parent = parent->parent()) {
        if (!containerKinds().contains(controlKind(form, parent)))
            return false;
    }
    return true;
}

// ---- The pieces of an action

[[noreturn]] void notFor(const QString& op, const QObject* control)
{
    valueError(QStringLiteral("\"%1\" does not apply to %2 (%3)")
                   .arg(op, controlName(control), control->metaObject()->className()));
}

QWidget* widgetOf(QObject* control, const QString& op)
{
    auto* w = qobject_cast<QWidget*>(control);
    if (!w)
        notFor(op, control);
    return w;
}

void sendMouse(QWidget* w, QEvent::Type type, Qt::MouseButton button, QPoint at)
{
    const QPointF local(at);
    const QPointF global(w->mapToGlobal(at));
    const Qt::MouseButtons held = type == QEvent::MouseButtonRelease || type == QEvent::MouseMove ? Qt::NoButton
                                                                                                  : Qt::MouseButtons(button);
    QMouseEvent event(type, local, local, global, button, held, Qt::NoModifier);
    QApplication::sendEvent(w, &event);
}

QPoint centerOf(const QWidget* w)
{
    return w->rect().isEmpty() ? QPoint(1, 1) : w->rect().center();
}

void clickWidget(QWidget* w, Qt::MouseButton button = Qt::LeftButton)
{
    const QPoint at = centerOf(w);
    sendMouse(w, QEvent::MouseButtonPress, button, at);
    sendMouse(w, QEvent::MouseButtonRelease, button, at);
    if (button == Qt::RightButton) {
        QContextMenuEvent menu(QContextMenuEvent::Mouse, at, w->mapToGlobal(at));
        QApplication::sendEvent(w, &menu);
    }
}

void doubleClickWidget(QWidget* w, QPoint at)
{
    sendMouse(w, QEvent::MouseButtonPress, Qt::LeftButton, at);
    sendMouse(w, QEvent::MouseButtonRelease, Qt::LeftButton, at);
    sendMouse(w, QEvent::MouseButtonDblClick, Qt::LeftButton, at);
    sendMouse(w, QEvent::MouseButtonRelease, Qt::LeftButton, at);
}

struct KeyName {
    const char* name;
    Qt::Key key;
};

const KeyName keyNames[] = {
    {"Enter", Qt::Key_Return}, {"Return", Qt::Key_Return}, {"Escape", Qt::Key_Escape}, {"Esc", Qt::Key_Escape},
    {"Tab", Qt::Key_Tab},      {"Backspace", Qt::Key_Backspace}, {"Delete", Qt::Key_Delete},
    {"Insert", Qt::Key_Insert}, {"Home", Qt::Key_Home},     {"End", Qt::Key_End},
    {"PageUp", Qt::Key_PageUp}, {"PageDown", Qt::Key_PageDown}, {"Up", Qt::Key_Up},
    {"Down", Qt::Key_Down},    {"Left", Qt::Key_Left},     {"Right", Qt::Key_Right},
    {"Space", Qt::Key_Space},
};

void sendKey(QWidget* w, int key, const QString& text, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    QKeyEvent press(QEvent::KeyPress, key, modifiers, text);
    QApplication::sendEvent(w, &press);
    QKeyEvent release(QEvent::KeyRelease, key, modifiers, text);
    QApplication::sendEvent(w, &release);
}

void pressKey(QWidget* w, const QString& name)
{
    for (const KeyName& k : keyNames) {
        if (name.compare(QLatin1String(k.name), Qt::CaseInsensitive) == 0) {
            const QString text = k.key == Qt::Key_Return ? QStringLiteral("\r")
                                 : k.key == Qt::Key_Space ? QStringLiteral(" ")
                                 : k.key == Qt::Key_Tab   ? QStringLiteral("\t")
                                                          : QString();
            sendKey(w, k.key, text);
            return;
        }
    }
    if (name.size() >= 2 && name.size() <= 3 && name[0].toUpper() == 'F') {
        bool ok = false;
        const int n = name.mid(1).toInt(&ok);
        if (ok && n >= 1 && n <= 24) {
            sendKey(w, Qt::Key_F1 + n - 1, QString());
            return;
        }
    }
    if (name.size() == 1) {
        const QChar c = name[0];
        sendKey(w, c.toUpper().unicode(), name);
        return;
    }
    valueError(QStringLiteral("unknown key \"%1\"").arg(name));
}

// Types one character (one or two UTF-16 units) into a text box as a key press.
void typeChar(QWidget* w, const QString& c)
{
    if (c == QLatin1String("\n") || c == QLatin1String("\r"))
        sendKey(w, Qt::Key_Return, QStringLiteral("\r"));
    else if (c == QLatin1String("\t"))
        sendKey(w, Qt::Key_Tab, QStringLiteral("\t"));
    else if (c.size() == 1)
        sendKey(w, c[0].toUpper().unicode(), c);
    else
        sendKey(w, Qt::Key_unknown, c);
}

int quint32Color(const QColor& c)
{
    return c.red() + c.green() * 256 + c.blue() * 65536;
}

// The row of a list-like control that an "item" names: a text or an index.
int rowOf(const QJsonValue& item, const QStringList& entries)
{
    if (item.isDouble())
        return int(wholeNumber(item, QStringLiteral("\"item\"")));
    if (item.isString()) {
        const int row = int(entries.indexOf(item.toString()));
        if (row < 0)
            lookupError(QStringLiteral("no item \"%1\"").arg(item.toString()));
        return row;
    }
    valueError(QStringLiteral("\"item\" must be a text or an index"));
}

QStringList listEntries(const QListWidget* list)
{
    QStringList out;
    for (int i = 0; i < list->count(); ++i)
        out << list->item(i)->text();
    return out;
}

QStringList comboEntries(const QComboBox* combo)
{
    QStringList out;
    for (int i = 0; i < combo->count(); ++i)
        out << combo->itemText(i);
    return out;
}

QStringList tabEntries(const QTabBar* tabs)
{
    QStringList out;
    for (int i = 0; i < tabs->count(); ++i)
        out << tabs->tabText(i);
    return out;
}

// The entries of a list-like control, as "items" reports them.
QStringList itemsOf(QObject* control, const QString& op)
{
    if (auto* paths = dynamic_cast<PathListControl*>(control))
        return paths->entries();
    if (auto* drives = dynamic_cast<DriveListControl*>(control))
        return drives->entries();
    if (auto* list = qobject_cast<QListWidget*>(control))
        return listEntries(list);
    if (auto* combo = qobject_cast<QComboBox*>(control))
        return comboEntries(combo);
    if (auto* tabs = qobject_cast<QTabBar*>(control))
        return tabEntries(tabs);
    notFor(op, control);
}

QLineEdit* lineEditOf(QObject* control)
{
    if (auto* line = qobject_cast<QLineEdit*>(control))
        return line;
    if (auto* combo = qobject_cast<QComboBox*>(control))
        return combo->lineEdit();
    return nullptr;
}

bool isMultiSelect(const QListWidget* list)
{
    return list->selectionMode() == QAbstractItemView::MultiSelection ||
           list->selectionMode() == QAbstractItemView::ExtendedSelection;
}

QMenu* menuOf(QObject* control)
{
    if (auto* menu = qobject_cast<QMenu*>(control))
        return menu;
    if (auto* action = qobject_cast<QAction*>(control))
        return action->menu();
    return nullptr;
}

// ---- One request on one control

struct Call {
    FormBase& form;
    QObject* control;
    const QString& op;
    const QJsonObject& request;

    QWidget* widget() const { return widgetOf(control, op); }
    [[noreturn]] void refuse() const { notFor(op, control); }
    // The control as a class of the toolkit or one of the program's control
    // interfaces; an op that does not apply to it answers ValueError.
    template <class T>
    T* as() const
    {
        auto* t = dynamic_cast<T*>(control);
        if (!t)
            refuse();
        return t;
    }
};

using Handler = QJsonValue (*)(const Call&);
const QJsonValue Done = QJsonValue::Undefined;

// ---- Texts

QJsonValue anyText(const Call& c)
{
    if (auto* action = qobject_cast<QAction*>(c.control))
        return action->text();
    const QWidget* w = c.widget();
    return w->isWindow() ? w->windowTitle() : QString();
}

QJsonValue boxText(const Call& c)
{
    if (auto* code = qobject_cast<CodeBox*>(c.control))
        return code->text();
    if (auto* line = qobject_cast<QLineEdit*>(c.control))
        return line->text();
    if (auto* plain = qobject_cast<QPlainTextEdit*>(c.control))
        return plain->toPlainText();
    return c.as<QTextEdit>()->toPlainText();
}

void refuseLocked(bool readOnly)
{
    if (readOnly)
        valueError(QStringLiteral("the text box is locked"));
}

QJsonValue setBoxText(const Call& c)
{
    const QString text = needText(c.request, QStringLiteral("text"));
    if (auto* code = qobject_cast<CodeBox*>(c.control)) {
        refuseLocked(code->isReadOnly());
        code->setText(text);
    } else if (auto* line = qobject_cast<QLineEdit*>(c.control)) {
        refuseLocked(line->isReadOnly());
        line->setText(text);
    } else {
        auto* plain = c.as<QPlainTextEdit>();
        refuseLocked(plain->isReadOnly());
        plain->setPlainText(text);
    }
    return Done;
}

QJsonValue setComboText(const Call& c)
{
    const QString text = needText(c.request, QStringLiteral("text"));
    auto* combo = c.as<QComboBox>();
    if (!combo->isEditable())
        valueError(QStringLiteral("the combo box takes no typed text"));
    combo->setEditText(text);
    return Done;
}

QJsonValue typeText(const Call& c)
{
    const QString text = needText(c.request, QStringLiteral("text"));
    QWidget* target = nullptr;
    if (auto* plain = qobject_cast<QPlainTextEdit*>(c.control)) {
        refuseLocked(plain->isReadOnly());
        plain->moveCursor(QTextCursor::End);
        target = plain;
    } else if (QLineEdit* line = lineEditOf(c.control)) {
        refuseLocked(line->isReadOnly());
        line->end(false);
        target = line;
    } else {
        c.refuse();
    }
    for (int i = 0; i < text.size(); ++i) {
        if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n')
            continue;
        const int units = text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate() ? 2 : 1;
        typeChar(target, text.mid(i, units));
        i += units - 1;
    }
    return Done;
}

// ---- The mouse

QJsonValue clickAny(const Call& c)
{
    QWidget* w = c.widget();
    if (w->isEnabled())
        clickWidget(w);
    return Done;
}

QJsonValue clickButton(const Call& c)
{
    auto* button = c.as<QAbstractButton>();
    if (button->isEnabled())
        button->click();
    return Done;
}

QJsonValue clickMenu(const Call& c)
{
    if (auto* action = qobject_cast<QAction*>(c.control)) {
        if (action->isEnabled() && !action->menu())
            action->trigger();
        return Done;
    }
    return clickAny(c);
}

QJsonValue doubleClickAny(const Call& c)
{
    QWidget* w = c.widget();
    doubleClickWidget(w, centerOf(w));
    return Done;
}

QJsonValue doubleClickList(const Call& c)
{
    auto* list = c.as<QListWidget>();
    if (QListWidgetItem* item = list->currentItem()) {
        list->scrollToItem(item);
        doubleClickWidget(list->viewport(), list->visualItemRect(item).center());
    }
    return Done;
}

QJsonValue rightClick(const Call& c)
{
    QWidget* w = c.widget();
    if (w->isEnabled())
        clickWidget(w, Qt::RightButton);
    return Done;
}

QJsonValue hover(const Call& c)
{
    QWidget* w = c.widget();
    const QPoint at(2, 2);
    QEnterEvent enter{QPointF(at), QPointF(at), QPointF(w->mapToGlobal(at))};
    QApplication::sendEvent(w, &enter);
    sendMouse(w, QEvent::MouseMove, Qt::NoButton, at);
    return Done;
}

QJsonValue dragDrop(const Call& c)
{
    auto* source = c.as<DragSourceControl>();
    const QString targetName = needText(c.request, QStringLiteral("target"));
    QObject* target = findControl(c.form, targetName);
    if (!target)
        lookupError(QStringLiteral("no control \"%1\"").arg(targetName));
    source->dropOn(widgetOf(target, c.op));
    return Done;
}

QJsonValue key(const Call& c)
{
    pressKey(c.widget(), needText(c.request, QStringLiteral("key")));
    return Done;
}

// ---- Lists

QJsonValue chooseInList(const Call& c)
{
    auto* list = c.as<QListWidget>();
    const int row = rowOf(need(c.request, QStringLiteral("item")), itemsOf(list, c.op));
    if (row == -1) {
        list->clearSelection();
        list->setCurrentRow(-1);
        return Done;
    }
    if (row < 0 || row >= list->count())
        lookupError(QStringLiteral("no item %1").arg(row));
    QListWidgetItem* entry = list->item(row);
    if (isMultiSelect(list))
        list->setCurrentItem(entry, QItemSelectionModel::ClearAndSelect);
    else
        list->setCurrentRow(row);
    emit list->itemClicked(entry);
    return Done;
}

QJsonValue chooseInCombo(const Call& c)
{
    auto* combo = c.as<QComboBox>();
    const int row = rowOf(need(c.request, QStringLiteral("item")), itemsOf(combo, c.op));
    if (row < -1 || row >= combo->count())
        lookupError(QStringLiteral("no item %1").arg(row));
    combo->setCurrentIndex(row);
    if (row >= 0)
        emit combo->activated(row);
    return Done;
}

int tabOf(const Call& c, const QTabBar* tabs)
{
    const int row = rowOf(c.request.value(QStringLiteral("item")), tabEntries(tabs));
    if (row < 0 || row >= tabs->count())
        lookupError(QStringLiteral("no tab %1").arg(row));
    return row;
}

QJsonValue chooseTab(const Call& c)
{
    auto* tabs = c.as<QTabBar>();
    need(c.request, QStringLiteral("item"));
    const int row = tabOf(c, tabs);
    emit tabs->tabBarClicked(row);
    tabs->setCurrentIndex(row);
    return Done;
}

QJsonValue selectRows(const Call& c)
{
    auto* list = c.as<QListWidget>();
    const QJsonArray indexes = needList(c.request, QStringLiteral("indexes"));
    QList<int> rows;
    for (const QJsonValue& v : indexes) {
        const int row = int(wholeNumber(v, QStringLiteral("an index")));
        if (row < 0 || row >= list->count())
            lookupError(QStringLiteral("no item %1").arg(row));
        rows << row;
    }
    list->clearSelection();
    for (int row : rows)
        list->item(row)->setSelected(true);
    return Done;
}

QJsonValue items(const Call& c)
{
    return stringArray(itemsOf(c.control, c.op));
}

QJsonValue selectedInList(const Call& c)
{
    auto* list = c.as<QListWidget>();
    if (isMultiSelect(list)) {
        QList<int> rows;
        for (QListWidgetItem* item : list->selectedItems())
            rows << list->row(item);
        std::sort(rows.begin(), rows.end());
        QJsonArray out;
        for (int r : rows)
            out.append(r);
        return out;
    }
    QListWidgetItem* current = list->currentItem();
    return current && current->isSelected() ? list->row(current) : -1;
}

QJsonValue listText(const Call& c)
{
    auto* list = c.as<QListWidget>();
    return list->currentItem() ? list->currentItem()->text() : QString();
}

// ---- Numbers

QJsonValue setNumber(const Call& c)
{
    const int value = needInt(c.request, QStringLiteral("value"));
    auto check = [&](int min, int max) {
        if (value < min || value > max)
            valueError(QStringLiteral("\"value\" must be from %1 to %2, not %3").arg(min).arg(max).arg(value));
    };
    if (auto* slider = qobject_cast<QAbstractSlider*>(c.control)) {
        check(slider->minimum(), slider->maximum());
        slider->setValue(value);
    } else {
        auto* spin = c.as<QSpinBox>();
        check(spin->minimum(), spin->maximum());
        spin->setValue(value);
    }
    return Done;
}

QJsonValue number(const Call& c)
{
    if (auto* slider = qobject_cast<QAbstractSlider*>(c.control))
        return slider->value();
    if (auto* progress = qobject_cast<QProgressBar*>(c.control))
        return progress->value();
    return c.as<QSpinBox>()->value();
}

QJsonValue range(const Call& c)
{
    const QJsonValue none(QJsonValue::Null);
    if (auto* slider = qobject_cast<QSlider*>(c.control)) {
        return QJsonObject{{"min", slider->minimum()},        {"max", slider->maximum()},
                           {"small", slider->singleStep()},   {"large", slider->pageStep()},
                           {"tick", slider->tickInterval()}};
    }
    if (auto* bar = qobject_cast<QAbstractSlider*>(c.control)) {
        return QJsonObject{{"min", bar->minimum()},      {"max", bar->maximum()}, {"small", bar->singleStep()},
                           {"large", bar->pageStep()},   {"tick", none}};
    }
    if (auto* progress = qobject_cast<QProgressBar*>(c.control)) {
        return QJsonObject{
            {"min", progress->minimum()}, {"max", progress->maximum()}, {"small", none}, {"large", none},
            {"tick", none}};
    }
    auto* spin = c.as<QSpinBox>();
    return QJsonObject{
        {"min", spin->minimum()}, {"max", spin->maximum()}, {"small", spin->singleStep()}, {"large", none},
        {"tick", none}};
}

// ---- Selections of text

int textLength(const Call& c)
{
    if (auto* code = qobject_cast<CodeBox*>(c.control))
        return int(code->text().size());
    if (auto* plain = qobject_cast<QPlainTextEdit*>(c.control))
        return int(plain->toPlainText().size());
    if (QLineEdit* line = lineEditOf(c.control))
        return int(line->text().size());
    c.refuse();
}

QJsonValue selection(const Call& c)
{
    if (auto* code = qobject_cast<CodeBox*>(c.control))
        return QJsonArray{code->selectionStart(), code->selectionLength()};
    if (auto* plain = qobject_cast<QPlainTextEdit*>(c.control)) {
        const QTextCursor cursor = plain->textCursor();
        return QJsonArray{cursor.selectionStart(), cursor.selectionEnd() - cursor.selectionStart()};
    }
    if (QLineEdit* line = lineEditOf(c.control)) {
        if (line->hasSelectedText())
            return QJsonArray{line->selectionStart(), int(line->selectedText().size())};
        return QJsonArray{line->cursorPosition(), 0};
    }
    c.refuse();
}

QJsonValue setSelection(const Call& c)
{
    const int start = needInt(c.request, QStringLiteral("start"));
    const int length = needInt(c.request, QStringLiteral("length"));
    const int size = textLength(c);
    if (start < 0 || start > size)
        valueError(QStringLiteral("\"start\" must be from 0 to %1, not %2").arg(size).arg(start));
    if (length < 0 || length > size - start)
        valueError(QStringLiteral("\"length\" must be from 0 to %1, not %2").arg(size - start).arg(length));
    if (auto* code = qobject_cast<CodeBox*>(c.control)) {
        code->setSelection(start, length);
    } else if (auto* plain = qobject_cast<QPlainTextEdit*>(c.control)) {
        QTextCursor cursor = plain->textCursor();
        cursor.setPosition(start);
        cursor.setPosition(start + length, QTextCursor::KeepAnchor);
        plain->setTextCursor(cursor);
    } else {
        lineEditOf(c.control)->setSelection(start, length);
    }
    return Done;
}

// ---- Flags and looks

QJsonValue visible(const Call& c)
{
    if (auto* action = qobject_cast<QAction*>(c.control))
        return action->isVisible();
    return ownVisibleFlag(c.widget());
}

QJsonValue enabled(const Call& c)
{
    if (auto* action = qobject_cast<QAction*>(c.control))
        return action->isEnabled();
    return !c.widget()->testAttribute(Qt::WA_ForceDisabled);
}

QJsonValue toolTip(const Call& c)
{
    if (c.request.contains(QStringLiteral("item")))
        return c.as<QTabBar>()->tabToolTip(tabOf(c, c.as<QTabBar>()));
    if (auto* action = qobject_cast<QAction*>(c.control))
        return action->toolTip();
    return c.widget()->toolTip();
}

QJsonValue font(const Call& c)
{
    QFont f;
    if (auto* action = qobject_cast<QAction*>(c.control))
        f = action->font();
    else
        f = c.widget()->font();
    return QJsonObject{{"name", f.family()},
                       {"size", f.pointSizeF()},
                       {"bold", f.bold()},
                       {"italic", f.italic()},
                       {"underline", f.underline()}};
}

QJsonValue focus(const Call& c)
{
    QWidget* root = c.form.widget();
    for (QWidget* w = root->focusWidget(); w && w != root; w = w->parentWidget()) {
        if (isAddressable(c.form, w) && findControl(c.form, w->objectName()) == w)
            return w->objectName();
    }
    return QJsonValue(QJsonValue::Null);
}

QJsonValue onTop(const Call& c)
{
    QWidget* w = c.widget();
    auto* stack = qobject_cast<QStackedWidget*>(w->parentWidget());
    if (!stack)
        c.refuse();
    return stack->currentWidget() == w;
}

QJsonValue backColor(const Call& c)
{
    QWidget* w = c.widget();
    return quint32Color(w->palette().color(w->backgroundRole()));
}

QJsonValue foreColor(const Call& c)
{
    QWidget* w = c.widget();
    return quint32Color(w->palette().color(w->foregroundRole()));
}

QJsonValue geometry(const Call& c)
{
    QWidget* w = c.widget();
    if (w == c.form.widget()) {
        const QRect g = w->geometry();
        return QJsonArray{g.x(), g.y(), g.width(), g.height()};
    }
    const QPoint at = w->mapTo(c.form.widget(), QPoint(0, 0));
    return QJsonArray{at.x(), at.y(), w->width(), w->height()};
}

QJsonValue grab(const Call& c)
{
    QWidget* w = c.widget();
    const QString path = needText(c.request, QStringLiteral("path"));
    if (QLayout* layout = w->window()->layout())
        layout->activate();
    if (!w->grab().save(path, "PNG"))
        valueError(QStringLiteral("could not write %1").arg(path));
    return Done;
}

// ---- The table: op, the kinds it has a handler for ("" for any control),
// the handler. A kind that an op has no row for answers ValueError.

struct Row {
    const char* op;
    const char* kinds;  // separated by blanks
    Handler run;
};

const Row rows[] = {
    {"text", "", anyText},
    {"text", "text", boxText},
    {"text", "combo drivelist", [](const Call& c) -> QJsonValue { return c.as<QComboBox>()->currentText(); }},
    {"text", "list dirlist filelist", listText},
    {"text", "label button check option", [](const Call& c) -> QJsonValue { return captionOf(c.control); }},
    {"text", "frame",
     [](const Call& c) -> QJsonValue {
         if (auto* group = qobject_cast<QGroupBox*>(c.control))
             return group->title();
         return anyText(c);
     }},
    {"text", "menu",
     [](const Call& c) -> QJsonValue {
         if (auto* menu = qobject_cast<QMenu*>(c.control))
             return menu->title();
         return anyText(c);
     }},
    {"text", "tabstrip",
     [](const Call& c) -> QJsonValue {
         auto* tabs = c.as<QTabBar>();
         return tabs->tabText(tabs->currentIndex());
     }},
    {"set_text", "text", setBoxText},
    {"set_text", "combo drivelist", setComboText},
    {"type_text", "text combo drivelist", typeText},

    {"click", "", clickAny},
    {"click", "button check option", clickButton},
    {"click", "menu", clickMenu},
    {"double_click", "", doubleClickAny},
    {"double_click", "list dirlist filelist", doubleClickList},
    {"right_click", "", rightClick},
    {"hover", "", hover},
    {"key", "", key},
    {"drag_drop", "", dragDrop},

    {"choose", "list dirlist filelist", chooseInList},
    {"choose", "combo drivelist", chooseInCombo},
    {"choose", "tabstrip", chooseTab},
    {"select", "list dirlist filelist", selectRows},
    {"items", "list dirlist filelist combo drivelist tabstrip", items},
    {"selected", "list dirlist filelist", selectedInList},
    {"selected", "combo drivelist", [](const Call& c) -> QJsonValue { return c.as<QComboBox>()->currentIndex(); }},
    {"selected", "tabstrip", [](const Call& c) -> QJsonValue { return c.as<QTabBar>()->currentIndex(); }},
    {"checked", "check",
     [](const Call& c) -> QJsonValue {
         const Qt::CheckState state = c.as<QCheckBox>()->checkState();
         return state == Qt::Checked ? 1 : state == Qt::PartiallyChecked ? 2 : 0;
     }},
    {"checked", "option", [](const Call& c) -> QJsonValue { return c.as<QRadioButton>()->isChecked(); }},
    {"checked", "menu", [](const Call& c) -> QJsonValue { return c.as<QAction>()->isChecked(); }},
    {"entries", "menu",
     [](const Call& c) -> QJsonValue {
         QMenu* menu = menuOf(c.control);
         if (!menu)
             c.refuse();
         QJsonArray out;
         for (QAction* action : menu->actions()) {
             if (action->menu())
                 out.append(action->menu()->objectName());
             else if (!action->isSeparator() || !action->objectName().isEmpty())
                 out.append(action->objectName());
         }
         return out;
     }},

    {"set_value", "slider scrollbar updown", setNumber},
    {"value", "slider scrollbar updown progress", number},
    {"range", "slider scrollbar updown progress", range},

    {"editable", "combo drivelist", [](const Call& c) -> QJsonValue { return c.as<QComboBox>()->isEditable(); }},
    {"read_only", "text",
     [](const Call& c) -> QJsonValue {
         if (auto* line = qobject_cast<QLineEdit*>(c.control))
             return line->isReadOnly();
         if (auto* plain = qobject_cast<QPlainTextEdit*>(c.control))
             return plain->isReadOnly();
         return c.as<QTextEdit>()->isReadOnly();
     }},
    {"password_char", "text",
     [](const Call& c) -> QJsonValue {
         auto* line = c.as<QLineEdit>();
         if (line->echoMode() == QLineEdit::Normal)
             return QString();
         const QVariant mask = line->property("qlPasswordChar");
         return mask.isValid() ? mask.toString() : QStringLiteral("*");
     }},
    {"selection", "text combo drivelist", selection},
    {"set_selection", "text combo drivelist", setSelection},

    {"path", "dirlist filelist",
     [](const Call& c) -> QJsonValue { return c.as<PathListControl>()->path(); }},
    {"set_path", "dirlist filelist",
     [](const Call& c) -> QJsonValue {
         c.as<PathListControl>()->setPath(needText(c.request, QStringLiteral("path")));
         return Done;
     }},
    {"set_drive", "drivelist",
     [](const Call& c) -> QJsonValue {
         c.as<DriveListControl>()->setDrive(needText(c.request, QStringLiteral("drive")));
         return Done;
     }},

    {"visible", "", visible},
    {"enabled", "", enabled},
    {"tooltip", "", toolTip},
    {"focus", "", focus},
    {"on_top", "", onTop},
    {"back_color", "", backColor},
    {"fore_color", "", foreColor},
    {"font", "", font},
    {"geometry", "", geometry},
    {"grab", "", grab},
    {"close", "form",
     [](const Call& c) -> QJsonValue {
         c.widget()->close();
         return Done;
     }},
};

// Handlers by op, then by kind.
const QHash<QString, QHash<QString, Handler>>& handlers()
{
    static const QHash<QString, QHash<QString, Handler>> table = [] {
        QHash<QString, QHash<QString, Handler>> out;
        for (const Row& row : rows) {
            QHash<QString, Handler>& byKind = out[QString::fromLatin1(row.op)];
            const QStringList kinds = QString::fromLatin1(row.kinds).split(' ', Qt::SkipEmptyParts);
            if (kinds.isEmpty())
                byKind.insert(QString(), row.run);
            for (const QString& kind : kinds)
                byKind.insert(kind, row.run);
        }
        return out;
    }();
    return table;
}

}  // namespace

QString controlName(const QObject* control)
{
    return control ? control->objectName() : QString();
}

QString controlKind(FormBase& form, const QObject* o)
{
    if (o == form.widget())
        return QStringLiteral("form");
    if (qobject_cast<const QAction*>(o) || qobject_cast<const QMenu*>(o))
        return QStringLiteral("menu");
    if (dynamic_cast<const DriveListControl*>(o))
        return QStringLiteral("drivelist");
    if (qobject_cast<const FileListBox*>(o))
        return QStringLiteral("filelist");
    if (dynamic_cast<const PathListControl*>(o))
        return QStringLiteral("dirlist");
    if (qobject_cast<const QLineEdit*>(o) || qobject_cast<const QPlainTextEdit*>(o) || qobject_cast<const QTextEdit*>(o))
        return QStringLiteral("text");
    if (qobject_cast<const QComboBox*>(o))
        return QStringLiteral("combo");
    if (qobject_cast<const QListView*>(o))
        return QStringLiteral("list");
    if (qobject_cast<const QTableView*>(o))
        return QStringLiteral("table");
    if (qobject_cast<const QTreeView*>(o))
        return QStringLiteral("tree");
    if (qobject_cast<const QTabBar*>(o))
        return QStringLiteral("tabstrip");
    if (qobject_cast<const QCheckBox*>(o))
        return QStringLiteral("check");
    if (qobject_cast<const QRadioButton*>(o))
        return QStringLiteral("option");
    if (qobject_cast<const QAbstractButton*>(o))
        return QStringLiteral("button");
    if (qobject_cast<const QScrollBar*>(o))
        return QStringLiteral("scrollbar");
    if (qobject_cast<const QAbstractSlider*>(o))
        return QStringLiteral("slider");
    if (qobject_cast<const QAbstractSpinBox*>(o))
        return QStringLiteral("updown");
    if (qobject_cast<const QProgressBar*>(o))
        return QStringLiteral("progress");
    if (qobject_cast<const QLabel*>(o))
        return QStringLiteral("label");
    if (qobject_cast<const QGroupBox*>(o))
        return QStringLiteral("frame");
    if (qobject_cast<const QMenuBar*>(o))
        return QStringLiteral("menubar");
    const auto* w = qobject_cast<const QWidget*>(o);
    if (!w)
        return QString();
    if (qobject_cast<const QStackedWidget*>(w->parentWidget()))
        return QStringLiteral("page");
    if (qobject_cast<const QStackedWidget*>(w))
        return QStringLiteral("stack");
    if (const auto* frame = qobject_cast<const QFrame*>(w)) {
        const QFrame::Shape shape = frame->frameShape();
        return shape == QFrame::HLine || shape == QFrame::VLine ? QStringLiteral("line") : QStringLiteral("frame");
    }
    if (w->metaObject() == &QWidget::staticMetaObject)
        return QStringLiteral("picture");
    return QStringLiteral("widget");
}

QObject* findControl(FormBase& form, const QString& name)
{
    QWidget* root = form.widget();
    if (name == form.formName())
        return root;
    if (isToolkitName(name))
        return nullptr;
    const QList<QObject*> candidates = root->findChildren<QObject*>(name);
    for (QObject* candidate : candidates) {
        if (isAddressable(form, candidate))
            return candidate;
    }
    return nullptr;
}

QList<ControlEntry> formControls(FormBase& form)
{
    QList<ControlEntry> out{{form.formName(), controlKind(form, form.widget())}};
    QSet<QString> names{form.formName()};
    for (QObject* object : form.widget()->findChildren<QObject*>()) {
        if (names.contains(object->objectName()) || !isAddressable(form, object))
            continue;
        names.insert(object->objectName());
        out.append({object->objectName(), controlKind(form, object)});
    }
    return out;
}

bool isControlOp(const QString& op)
{
    return handlers().contains(op);
}

QJsonValue controlOp(FormBase& form, QObject* control, const QString& op, const QJsonObject& request)
{
    const auto byKind = handlers().constFind(op);
    if (byKind == handlers().constEnd())
        valueError(QStringLiteral("unknown op \"%1\"").arg(op));
    Handler run = byKind->value(controlKind(form, control));
    if (!run)
        run = byKind->value(QString());
    if (!run)
        notFor(op, control);
    return run(Call{form, control, op, request});
}

}  // namespace ql
