#include "core/Widgets.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QGroupBox>
#include <QKeyEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>
#include <QTextDocument>
#include <QHash>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QToolButton>

#include "core/Icons.h"
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

namespace ql {

// ---- ClickLabel

ClickLabel::ClickLabel(const QString& text, QWidget* parent)
    : QLabel(text, parent)
{
}

void ClickLabel::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        pressed_ = true;
    else if (event->button() == Qt::RightButton)
        emit rightClicked();
    event->accept();
}

void ClickLabel::mouseReleaseEvent(QMouseEvent* event)
{
    const bool wasPressed = pressed_;
    pressed_ = false;
    if (event->button() == Qt::LeftButton && wasPressed && rect().contains(event->position().toPoint()))
        emit clicked();
    event->accept();
}

void ClickLabel::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        emit doubleClicked();
    event->accept();
}

// ---- ColorSwatch

ColorSwatch::ColorSwatch(QWidget* parent)
    : ClickLabel(QStringLiteral("Select"), parent)
{
    setToolTip(QStringLiteral("Click here to select a color"));
    setAlignment(Qt::AlignCenter);
    setFrameShape(QFrame::Panel);
    setFrameShadow(QFrame::Sunken);
    setCursor(Qt::PointingHandCursor);
    setMinimumSize(56, 22);
    setFocusPolicy(Qt::StrongFocus);
}

void ColorSwatch::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        event->accept();
        emit clicked();
        return;
    default:
        ClickLabel::keyPressEvent(event);
    }
}

void ColorSwatch::paintEvent(QPaintEvent* event)
{
    ClickLabel::paintEvent(event);
    if (!hasFocus())
        return;
    QPainter painter(this);
    QStyleOptionFocusRect option;
    option.initFrom(this);
    option.rect = rect().adjusted(3, 3, -3, -3);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
}

void ColorSwatch::paintColor(quint32 color)
{
    const QColor c(int(color % 256), int((color / 256) % 256), int((color / 65536) % 256));
    QPalette p = palette();
    p.setColor(QPalette::Window, c);
    setPalette(p);
    setAutoFillBackground(true);
    setText(QString());
}

// ---- CodeBox

namespace {

// The text with every LF break written as CRLF, in one pass.
QString withCrlfBreaks(const QString& inner)
{
    const qsizetype breaks = inner.count(QLatin1Char('\n'));
    if (breaks == 0)
        return inner;
    QString out(inner.size() + breaks, Qt::Uninitialized);
    QChar* o = out.data();
    for (const QChar c : inner) {
        if (c == QLatin1Char('\n'))
            *o++ = QLatin1Char('\r');
        *o++ = c;
    }
    return out;
}

// The text with its CRLF and lone CR breaks written as LF, in one pass.
QString withLfBreaks(const QString& text)
{
    if (!text.contains(QLatin1Char('\r')))
        return text;
    QString out(text.size(), Qt::Uninitialized);
    QChar* o = out.data();
    const QChar* p = text.constData();
    const QChar* const end = p + text.size();
    while (p < end) {
        if (*p == QLatin1Char('\r')) {
            *o++ = QLatin1Char('\n');
            ++p;
            if (p < end && *p == QLatin1Char('\n'))
                ++p;
        } else {
            *o++ = *p++;
        }
    }
    out.truncate(o - out.constData());
    return out;
}

}  // namespace

CodeBox::CodeBox(QWidget* parent)
    : QPlainTextEdit(parent)
{
    setLineWrapMode(QPlainTextEdit::NoWrap);
    setTabChangesFocus(true);
    // Any change of the document, typed, pasted or set, drops the kept text.
    connect(document(), &QTextDocument::contentsChanged, this, [this] { crlfTextValid_ = false; });
}

QString CodeBox::text() const
{
    if (!crlfTextValid_) {
        crlfText_ = withCrlfBreaks(toPlainText());
        crlfTextValid_ = true;
    }
    return crlfText_;
}

void CodeBox::setText(const QString& text)
{
    setPlainText(withLfBreaks(text));
}

int CodeBox::toCrlf(int innerPosition) const
{
    const QString inner = toPlainText();
    return innerPosition + int(inner.left(innerPosition).count(QLatin1Char('\n')));
}

int CodeBox::toInner(int crlfPosition) const
{
    const QString inner = toPlainText();
    int crlf = 0;
    int i = 0;
    for (; i < inner.size() && crlf < crlfPosition; ++i)
        crlf += inner[i] == QLatin1Char('\n') ? 2 : 1;
    return i;
}

int CodeBox::selectionStart() const
{
    return toCrlf(textCursor().selectionStart());
}

int CodeBox::selectionLength() const
{
    const QTextCursor c = textCursor();
    return toCrlf(c.selectionEnd()) - toCrlf(c.selectionStart());
}

QString CodeBox::selectedText() const
{
    return text().mid(selectionStart(), selectionLength());
}

void CodeBox::setSelection(int start, int length)
{
    const int size = int(text().size());
    start = qBound(0, start, size);
    length = qBound(0, length, size - start);
    QTextCursor c = textCursor();
    c.setPosition(toInner(start));
    c.setPosition(toInner(start + length), QTextCursor::KeepAnchor);
    setTextCursor(c);
}

void CodeBox::replaceSelection(const QString& replacement)
{
    textCursor().insertText(withLfBreaks(replacement));
}

// ---- PageStack

namespace {
const char* const OwnVisible = "qlOwnVisible";
}

PageStack::PageStack(QWidget* parent)
    : QStackedWidget(parent)
{
}

int PageStack::addPage(QWidget* page)
{
    page->setProperty(OwnVisible, true);
    return addWidget(page);
}

void PageStack::bringToFront(int index)
{
    setCurrentIndex(index);
}

QPushButton* commandButton(QWidget* parent, const QString& name, const QString& caption)
{
    auto* button = named(new QPushButton(caption, parent), name);
    button->setAutoDefault(false);
    button->setMinimumWidth(88);
    return button;
}

QToolButton* helpButton(QWidget* parent, const QString& name)
{
    auto* button = named(new QToolButton(parent), name);
    button->setIcon(helpIcon());
    button->setIconSize(QSize(20, 20));
    button->setToolTip(QStringLiteral("Click here for help"));
    return button;
}

namespace {
const char* const Caption = "qlCaption";
const char* const Marked = "qlMarked";
}

QString shownCaption(const QObject* control)
{
    if (const auto* label = qobject_cast<const QLabel*>(control))
        return label->text();
    if (const auto* button = qobject_cast<const QAbstractButton*>(control))
        return button->text();
    if (const auto* group = qobject_cast<const QGroupBox*>(control))
        return group->title();
    return QString();
}

QString captionOf(const QObject* control)
{
    const QString shown = shownCaption(control);
    // A caption the program changed since the keyboard pass reads as it is.
    if (control->property(Marked).toString() == shown && control->property(Caption).isValid())
        return control->property(Caption).toString();
    return shown;
}

void keepCaption(QObject* control, const QString& caption, const QString& marked)
{
    control->setProperty(Caption, caption);
    control->setProperty(Marked, marked);
}

void noInlineCompletion(QComboBox* combo)
{
    if (combo->isEditable())
        combo->setCompleter(nullptr);
}

QString fieldText(const QWidget* field)
{
    if (const auto* line = qobject_cast<const QLineEdit*>(field))
        return line->text();
    if (const auto* code = qobject_cast<const CodeBox*>(field))
        return code->text();
    if (const auto* combo = qobject_cast<const QComboBox*>(field))
        return combo->currentText();
    return QString();
}

void setFieldText(QWidget* field, const QString& text)
{
    if (auto* line = qobject_cast<QLineEdit*>(field))
        line->setText(text);
    else if (auto* code = qobject_cast<CodeBox*>(field))
        code->setText(text);
    else if (auto* combo = qobject_cast<QComboBox*>(field))
        combo->setEditText(text);
}

bool ownVisibleFlag(const QWidget* widget)
{
    const QVariant recorded = widget->property(OwnVisible);
    if (recorded.isValid())
        return recorded.toBool();
    if (widget->isWindow())
        return widget->isVisible();
    return !(widget->testAttribute(Qt::WA_WState_ExplicitShowHide) && widget->testAttribute(Qt::WA_WState_Hidden));
}

}  // namespace ql
