#include "automation/Controls.h"

#include "core/Form.h"
#include "core/ListControls.h"
#include "core/Widgets.h"

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QEnterEvent>
#include <QGroupBox>
#include <QJsonArray>
#include <QKeyEvent>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QRadioButton>
#include <QSlider>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTabBar>
#include <QTextEdit>
#include <algorithm>
#include <optional>

namespace ql {

namespace {

[[noreturn]] void notFor(const QString& op, const QObject* control)
{
    throw DriverError{"ValueError", QStringLiteral("\"%1\" does not apply to %2 (%3)")
                                        .arg(op, controlName(control), control->metaObject()->className())};
}

QJsonValue need(const QJsonObject& request, const QString& key)
{
    const QJsonValue v = request.value(key);
    if (v.isUndefined())
        throw DriverError{"ValueError", QStringLiteral("the request needs \"%1\"").arg(key)};
    return v;
}

QString needText(const QJsonObject& request, const QString& key)
{
    const QJsonValue v = need(request, key);
    if (!v.isString())
        throw DriverError{"ValueError", QStringLiteral("\"%1\" must be a text").arg(key)};
    return v.toString();
}

int needInt(const QJsonObject& request, const QString& key)
{
    const QJsonValue v = need(request, key);
    if (!v.isDouble())
        throw DriverError{"ValueError", QStringLiteral("\"%1\" must be a number").arg(key)};
    return v.toInt();
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
    throw DriverError{"ValueError", QStringLiteral("unknown key \"%1\"").arg(name)};
}

// Types one character into a text box as a key press.
void typeChar(QWidget* w, QChar c)
{
    if (c == '\n' || c == '\r')
        sendKey(w, Qt::Key_Return, QStringLiteral("\r"));
    else if (c == '\t')
        sendKey(w, Qt::Key_Tab, QStringLiteral("\t"));
    else
        sendKey(w, c.toUpper().unicode(), QString(c));
}

int quint32Color(const QColor& c)
{
    return c.red() + c.green() * 256 + c.blue() * 65536;
}

// The row of a list-like control that an "item" names: a text or an index.
int rowOf(const QJsonValue& item, const QStringList& entries)
{
    if (item.isDouble())
        return item.toInt();
    if (item.isString()) {
        const int row = int(entries.indexOf(item.toString()));
        if (row < 0)
            throw DriverError{"LookupError", QStringLiteral("no item \"%1\"").arg(item.toString())};
        return row;
    }
    throw DriverError{"ValueError", "\"item\" must be a text or an index"};
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
std::optional<QStringList> itemsOf(QObject* control)
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
    return std::nullopt;
}

QJsonArray toArray(const QStringList& list)
{
    QJsonArray out;
    for (const QString& s : list)
        out.append(s);
    return out;
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

QJsonValue textOf(QObject* control)
{
    if (auto* code = qobject_cast<CodeBox*>(control))
        return code->text();
    if (auto* line = qobject_cast<QLineEdit*>(control))
        return line->text();
    if (auto* plain = qobject_cast<QPlainTextEdit*>(control))
        return plain->toPlainText();
    if (auto* rich = qobject_cast<QTextEdit*>(control))
        return rich->toPlainText();
    if (auto* combo = qobject_cast<QComboBox*>(control))
        return combo->currentText();
    if (qobject_cast<QLabel*>(control) || qobject_cast<QAbstractButton*>(control))
        return captionOf(control);
    if (auto* group = qobject_cast<QGroupBox*>(control))
        return group->title();
    if (auto* menu = qobject_cast<QMenu*>(control))
        return menu->title();
    if (auto* action = qobject_cast<QAction*>(control))
        return action->text();
    if (auto* list = qobject_cast<QListWidget*>(control))
        return list->currentItem() ? list->currentItem()->text() : QString();
    if (auto* tabs = qobject_cast<QTabBar*>(control))
        return tabs->tabText(tabs->currentIndex());
    if (auto* w = qobject_cast<QWidget*>(control)) {
        if (w->isWindow())
            return w->windowTitle();
        return QString();
    }
    notFor("text", control);
}

void setTextOf(QObject* control, const QString& text)
{
    if (auto* code = qobject_cast<CodeBox*>(control)) {
        if (code->isReadOnly())
            throw DriverError{"ValueError", "the text box is locked"};
        code->setText(text);
        return;
    }
    if (auto* line = qobject_cast<QLineEdit*>(control)) {
        if (line->isReadOnly())
            throw DriverError{"ValueError", "the text box is locked"};
        line->setText(text);
        return;
    }
    if (auto* plain = qobject_cast<QPlainTextEdit*>(control)) {
        if (plain->isReadOnly())
            throw DriverError{"ValueError", "the text box is locked"};
        plain->setPlainText(text);
        return;
    }
    if (auto* combo = qobject_cast<QComboBox*>(control)) {
        if (!combo->isEditable())
            throw DriverError{"ValueError", "the combo box takes no typed text"};
        combo->setEditText(text);
        return;
    }
    notFor("set_text", control);
}

void typeTextInto(QObject* control, const QString& text)
{
    QWidget* target = nullptr;
    if (auto* plain = qobject_cast<QPlainTextEdit*>(control)) {
        if (plain->isReadOnly())
            throw DriverError{"ValueError", "the text box is locked"};
        plain->moveCursor(QTextCursor::End);
        target = plain;
    } else if (QLineEdit* line = lineEditOf(control)) {
        if (line->isReadOnly())
            throw DriverError{"ValueError", "the text box is locked"};
        line->end(false);
        target = line;
    } else {
        notFor("type_text", control);
    }
    for (int i = 0; i < text.size(); ++i) {
        if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n')
            continue;
        typeChar(target, text[i]);
    }
}

void click(QObject* control)
{
    if (auto* action = qobject_cast<QAction*>(control)) {
        if (action->isEnabled() && !action->menu())
            action->trigger();
        return;
    }
    QWidget* w = widgetOf(control, "click");
    if (!w->isEnabled())
        return;
    if (auto* button = qobject_cast<QAbstractButton*>(w)) {
        button->click();
        return;
    }
    clickWidget(w);
}

void doubleClick(QObject* control)
{
    QWidget* w = widgetOf(control, "double_click");
    if (auto* list = qobject_cast<QListWidget*>(w)) {
        QListWidgetItem* item = list->currentItem();
        if (!item)
            return;
        list->scrollToItem(item);
        doubleClickWidget(list->viewport(), list->visualItemRect(item).center());
        return;
    }
    doubleClickWidget(w, centerOf(w));
}

void choose(QObject* control, const QJsonValue& item)
{
    if (auto* list = qobject_cast<QListWidget*>(control)) {
        const int row = rowOf(item, *itemsOf(control));
        if (row == -1) {
            list->clearSelection();
            list->setCurrentRow(-1);
            return;
        }
        if (row < 0 || row >= list->count())
            throw DriverError{"LookupError", QStringLiteral("no item %1").arg(row)};
        QListWidgetItem* entry = list->item(row);
        if (isMultiSelect(list)) {
            list->setCurrentItem(entry, QItemSelectionModel::ClearAndSelect);
        } else {
            list->setCurrentRow(row);
        }
        emit list->itemClicked(entry);
        return;
    }
    if (auto* combo = qobject_cast<QComboBox*>(control)) {
        const int row = rowOf(item, *itemsOf(control));
        if (row < -1 || row >= combo->count())
            throw DriverError{"LookupError", QStringLiteral("no item %1").arg(row)};
        combo->setCurrentIndex(row);
        if (row >= 0)
            emit combo->activated(row);
        return;
    }
    if (auto* tabs = qobject_cast<QTabBar*>(control)) {
        const int row = rowOf(item, tabEntries(tabs));
        if (row < 0 || row >= tabs->count())
            throw DriverError{"LookupError", QStringLiteral("no tab %1").arg(row)};
        emit tabs->tabBarClicked(row);
        tabs->setCurrentIndex(row);
        return;
    }
    notFor("choose", control);
}

QJsonValue selectionOf(QObject* control)
{
    if (auto* code = qobject_cast<CodeBox*>(control))
        return QJsonArray{code->selectionStart(), code->selectionLength()};
    if (auto* plain = qobject_cast<QPlainTextEdit*>(control)) {
        const QTextCursor c = plain->textCursor();
        return QJsonArray{c.selectionStart(), c.selectionEnd() - c.selectionStart()};
    }
    if (QLineEdit* line = lineEditOf(control)) {
        if (line->hasSelectedText())
            return QJsonArray{line->selectionStart(), int(line->selectedText().size())};
        return QJsonArray{line->cursorPosition(), 0};
    }
    notFor("selection", control);
}

void setSelectionOf(QObject* control, int start, int length)
{
    if (auto* code = qobject_cast<CodeBox*>(control)) {
        code->setSelection(start, length);
        return;
    }
    if (auto* plain = qobject_cast<QPlainTextEdit*>(control)) {
        QTextCursor c = plain->textCursor();
        const int size = plain->toPlainText().size();
        c.setPosition(qBound(0, start, size));
        c.setPosition(qBound(0, start + length, size), QTextCursor::KeepAnchor);
        plain->setTextCursor(c);
        return;
    }
    if (QLineEdit* line = lineEditOf(control)) {
        line->setSelection(start, length);
        return;
    }
    notFor("set_selection", control);
}

QJsonValue rangeOf(QObject* control)
{
    const QJsonValue none(QJsonValue::Null);
    if (auto* slider = qobject_cast<QSlider*>(control)) {
        return QJsonObject{{"min", slider->minimum()},        {"max", slider->maximum()},
                           {"small", slider->singleStep()},   {"large", slider->pageStep()},
                           {"tick", slider->tickInterval()}};
    }
    if (auto* bar = qobject_cast<QAbstractSlider*>(control)) {
        return QJsonObject{{"min", bar->minimum()},      {"max", bar->maximum()}, {"small", bar->singleStep()},
                           {"large", bar->pageStep()},   {"tick", none}};
    }
    if (auto* spin = qobject_cast<QSpinBox*>(control)) {
        return QJsonObject{
            {"min", spin->minimum()}, {"max", spin->maximum()}, {"small", spin->singleStep()}, {"large", none},
            {"tick", none}};
    }
    if (auto* progress = qobject_cast<QProgressBar*>(control)) {
        return QJsonObject{
            {"min", progress->minimum()}, {"max", progress->maximum()}, {"small", none}, {"large", none},
            {"tick", none}};
    }
    notFor("range", control);
}

QJsonValue entriesOf(QObject* control)
{
    auto* menu = qobject_cast<QMenu*>(control);
    if (!menu) {
        if (auto* action = qobject_cast<QAction*>(control))
            menu = action->menu();
    }
    if (!menu)
        notFor("entries", control);
    QJsonArray out;
    for (QAction* action : menu->actions()) {
        if (action->menu())
            out.append(action->menu()->objectName());
        else if (!action->isSeparator() || !action->objectName().isEmpty())
            out.append(action->objectName());
    }
    return out;
}

}  // namespace

QString controlName(const QObject* control)
{
    return control ? control->objectName() : QString();
}

QObject* findControl(FormBase& form, const QString& name)
{
    QWidget* root = form.widget();
    if (name == form.formName())
        return root;
    if (name.isEmpty())
        return nullptr;
    const QList<QObject*> candidates = root->findChildren<QObject*>(name);
    for (QObject* candidate : candidates) {
        if (formOf(candidate) == &form)
            return candidate;
    }
    return nullptr;
}

QJsonValue controlOp(FormBase& form, QObject* control, const QString& op, const QJsonObject& request)
{
    if (op == "text")
        return textOf(control);
    if (op == "set_text") {
        setTextOf(control, needText(request, "text"));
        return QJsonValue::Undefined;
    }
    if (op == "type_text") {
        typeTextInto(control, needText(request, "text"));
        return QJsonValue::Undefined;
    }
    if (op == "click") {
        click(control);
        return QJsonValue::Undefined;
    }
    if (op == "double_click") {
        doubleClick(control);
        return QJsonValue::Undefined;
    }
    if (op == "right_click") {
        QWidget* w = widgetOf(control, op);
        if (w->isEnabled())
            clickWidget(w, Qt::RightButton);
        return QJsonValue::Undefined;
    }
    if (op == "choose") {
        choose(control, need(request, "item"));
        return QJsonValue::Undefined;
    }
    if (op == "select") {
        auto* list = qobject_cast<QListWidget*>(control);
        if (!list)
            notFor(op, control);
        const QJsonValue indexes = need(request, "indexes");
        if (!indexes.isArray())
            throw DriverError{"ValueError", "\"indexes\" must be a list"};
        list->clearSelection();
        for (const QJsonValue& v : indexes.toArray()) {
            const int row = v.toInt(-1);
            if (row < 0 || row >= list->count())
                throw DriverError{"LookupError", QStringLiteral("no item %1").arg(row)};
            list->item(row)->setSelected(true);
        }
        return QJsonValue::Undefined;
    }
    if (op == "items") {
        if (const std::optional<QStringList> items = itemsOf(control))
            return toArray(*items);
        notFor(op, control);
    }
    if (op == "selected") {
        if (auto* list = qobject_cast<QListWidget*>(control)) {
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
        if (auto* combo = qobject_cast<QComboBox*>(control))
            return combo->currentIndex();
        if (auto* tabs = qobject_cast<QTabBar*>(control))
            return tabs->currentIndex();
        notFor(op, control);
    }
    if (op == "checked") {
        if (auto* box = qobject_cast<QCheckBox*>(control))
            return box->checkState() == Qt::Checked ? 1 : box->checkState() == Qt::PartiallyChecked ? 2 : 0;
        if (auto* option = qobject_cast<QRadioButton*>(control))
            return option->isChecked();
        if (auto* action = qobject_cast<QAction*>(control))
            return action->isChecked();
        notFor(op, control);
    }
    if (op == "set_value") {
        const int value = needInt(request, "value");
        if (auto* slider = qobject_cast<QAbstractSlider*>(control))
            slider->setValue(value);
        else if (auto* spin = qobject_cast<QSpinBox*>(control))
            spin->setValue(value);
        else
            notFor(op, control);
        return QJsonValue::Undefined;
    }
    if (op == "value") {
        if (auto* slider = qobject_cast<QAbstractSlider*>(control))
            return slider->value();
        if (auto* spin = qobject_cast<QSpinBox*>(control))
            return spin->value();
        if (auto* progress = qobject_cast<QProgressBar*>(control))
            return progress->value();
        notFor(op, control);
    }
    if (op == "range")
        return rangeOf(control);
    if (op == "editable") {
        if (auto* combo = qobject_cast<QComboBox*>(control))
            return combo->isEditable();
        notFor(op, control);
    }
    if (op == "read_only") {
        if (auto* line = qobject_cast<QLineEdit*>(control))
            return line->isReadOnly();
        if (auto* plain = qobject_cast<QPlainTextEdit*>(control))
            return plain->isReadOnly();
        if (auto* rich = qobject_cast<QTextEdit*>(control))
            return rich->isReadOnly();
        notFor(op, control);
    }
    if (op == "set_path" || op == "path") {
        auto* paths = dynamic_cast<PathListControl*>(control);
        if (!paths)
            notFor(op, control);
        if (op == "path")
            return paths->path();
        paths->setPath(needText(request, "path"));
        return QJsonValue::Undefined;
    }
    if (op == "set_drive") {
        auto* drives = dynamic_cast<DriveListControl*>(control);
        if (!drives)
            notFor(op, control);
        drives->setDrive(needText(request, "drive"));
        return QJsonValue::Undefined;
    }
    if (op == "hover") {
        QWidget* w = widgetOf(control, op);
        const QPoint at(2, 2);
        QEnterEvent enter{QPointF(at), QPointF(at), QPointF(w->mapToGlobal(at))};
        QApplication::sendEvent(w, &enter);
        sendMouse(w, QEvent::MouseMove, Qt::NoButton, at);
        return QJsonValue::Undefined;
    }
    if (op == "key") {
        pressKey(widgetOf(control, op), needText(request, "key"));
        return QJsonValue::Undefined;
    }
    if (op == "drag_drop") {
        auto* source = dynamic_cast<DragSourceControl*>(control);
        if (!source)
            notFor(op, control);
        QObject* target = findControl(form, needText(request, "target"));
        if (!target)
            throw DriverError{"LookupError", QStringLiteral("no control \"%1\"").arg(request.value("target").toString())};
        source->dropOn(widgetOf(target, op));
        return QJsonValue::Undefined;
    }
    if (op == "visible") {
        if (auto* action = qobject_cast<QAction*>(control))
            return action->isVisible();
        return ownVisibleFlag(widgetOf(control, op));
    }
    if (op == "enabled") {
        if (auto* action = qobject_cast<QAction*>(control))
            return action->isEnabled();
        return !widgetOf(control, op)->testAttribute(Qt::WA_ForceDisabled);
    }
    if (op == "tooltip") {
        if (request.contains("item")) {
            auto* tabs = qobject_cast<QTabBar*>(control);
            if (!tabs)
                notFor(op, control);
            const int row = rowOf(request.value("item"), tabEntries(tabs));
            if (row < 0 || row >= tabs->count())
                throw DriverError{"LookupError", QStringLiteral("no tab %1").arg(row)};
            return tabs->tabToolTip(row);
        }
        if (auto* action = qobject_cast<QAction*>(control))
            return action->toolTip();
        return widgetOf(control, op)->toolTip();
    }
    if (op == "focus") {
        for (QWidget* w = form.widget()->focusWidget(); w && w != form.widget(); w = w->parentWidget()) {
            if (!w->objectName().isEmpty() && findControl(form, w->objectName()) == w)
                return w->objectName();
        }
        return QJsonValue(QJsonValue::Null);
    }
    if (op == "on_top") {
        QWidget* w = widgetOf(control, op);
        auto* stack = qobject_cast<QStackedWidget*>(w->parentWidget());
        if (!stack)
            notFor(op, control);
        return stack->currentWidget() == w;
    }
    if (op == "back_color") {
        QWidget* w = widgetOf(control, op);
        return quint32Color(w->palette().color(w->backgroundRole()));
    }
    if (op == "fore_color") {
        QWidget* w = widgetOf(control, op);
        return quint32Color(w->palette().color(w->foregroundRole()));
    }
    if (op == "font") {
        QFont f;
        if (auto* action = qobject_cast<QAction*>(control))
            f = action->font();
        else
            f = widgetOf(control, op)->font();
        return QJsonObject{{"name", f.family()},
                           {"size", f.pointSizeF()},
                           {"bold", f.bold()},
                           {"italic", f.italic()},
                           {"underline", f.underline()}};
    }
    if (op == "selection")
        return selectionOf(control);
    if (op == "set_selection") {
        setSelectionOf(control, needInt(request, "start"), needInt(request, "length"));
        return QJsonValue::Undefined;
    }
    if (op == "entries")
        return entriesOf(control);
    if (op == "password_char") {
        auto* line = qobject_cast<QLineEdit*>(control);
        if (!line)
            notFor(op, control);
        if (line->echoMode() == QLineEdit::Normal)
            return QString();
        const QVariant mask = line->property("qlPasswordChar");
        return mask.isValid() ? mask.toString() : QStringLiteral("*");
    }
    if (op == "geometry") {
        QWidget* w = widgetOf(control, op);
        if (w == form.widget()) {
            const QRect g = w->geometry();
            return QJsonArray{g.x(), g.y(), g.width(), g.height()};
        }
        const QPoint at = w->mapTo(form.widget(), QPoint(0, 0));
        return QJsonArray{at.x(), at.y(), w->width(), w->height()};
    }
    if (op == "close") {
        QWidget* w = widgetOf(control, op);
        if (w != form.widget())
            notFor(op, control);
        w->close();
        return QJsonValue::Undefined;
    }
    if (op == "grab") {
        QWidget* w = widgetOf(control, op);
        const QString path = needText(request, "path");
        if (QLayout* layout = w->window()->layout())
            layout->activate();
        if (!w->grab().save(path, "PNG"))
            throw DriverError{"ValueError", QStringLiteral("could not write %1").arg(path)};
        return QJsonValue::Undefined;
    }
    throw DriverError{"ValueError", QStringLiteral("unknown op \"%1\"").arg(op)};
}

}  // namespace ql
