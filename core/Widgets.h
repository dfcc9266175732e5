#pragma once

#include <QLabel>
#include <QPlainTextEdit>
#include <QStackedWidget>

class QComboBox;
class QPushButton;
class QToolButton;

namespace ql {

// Gives a control its name, the name by which code and scripts address it.
template <class W>
W* named(W* widget, const QString& name)
{
    widget->setObjectName(name);
    return widget;
}

// The name of element `index` of a control array: "Picture1(2)".
inline QString arrayName(const QString& name, int index)
{
    return QStringLiteral("%1(%2)").arg(name).arg(index);
}

// A label that answers the mouse: click, double-click and right-click.
class ClickLabel : public QLabel {
    Q_OBJECT
public:
    explicit ClickLabel(const QString& text = QString(), QWidget* parent = nullptr);

signals:
    void clicked();
    void doubleClicked();
    void rightClicked();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    bool pressed_ = false;
};

// The "Select" label beside a colour field: a click picks a colour and the
// label turns into a swatch of it.
class ColorSwatch : public ClickLabel {
    Q_OBJECT
public:
    explicit ColorSwatch(QWidget* parent = nullptr);
    // Paints the swatch with a colour (red + green * 256 + blue * 65536) and
    // clears its caption.
    void paintColor(quint32 color);

protected:
    // Space and Enter pick a colour, as a click does.
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};

// A multi-line text box whose text uses CRLF line breaks, as the code it
// holds: a lone LF or CR given to it becomes a CRLF break, and positions are
// counted over the CRLF text.
class CodeBox : public QPlainTextEdit {
    Q_OBJECT
public:
    explicit CodeBox(QWidget* parent = nullptr);
    // The text with CRLF breaks. It is built once after each change of the
    // box and kept, so that readers asking many times in a row (re-edit asks
    // once per key) share one copy.
    QString text() const;
    void setText(const QString& text);
    // Selection over the CRLF text: start counted from 0.
    int selectionStart() const;
    int selectionLength() const;
    QString selectedText() const;
    void setSelection(int start, int length);
    void replaceSelection(const QString& text);

private:
    int toInner(int crlfPosition) const;
    int toCrlf(int innerPosition) const;

    mutable QString crlfText_;
    mutable bool crlfTextValid_ = false;
};

// Pages at one place, one in front at a time. A page keeps its own visible
// flag while it stands behind the page in front.
class PageStack : public QStackedWidget {
    Q_OBJECT
public:
    explicit PageStack(QWidget* parent = nullptr);
    int addPage(QWidget* page);
    void bringToFront(int index);
};

// A command button of a form; Enter in a text box does not press it.
QPushButton* commandButton(QWidget* parent, const QString& name, const QString& caption);
// The round help button, with its tool tip "Click here for help".
QToolButton* helpButton(QWidget* parent, const QString& name);

// The caption a control shows on screen: a label's or button's text, a
// frame's title.
QString shownCaption(const QObject* control);
// The caption a control shows, as the program wrote it: without the access
// key marker that the keyboard pass added ("&Font:" reads "Font:").
QString captionOf(const QObject* control);
// Keeps the caption that the keyboard pass marked with an access key.
void keepCaption(QObject* control, const QString& caption, const QString& marked);

// An editable list box keeps exactly what was typed: no inline completion.
void noInlineCompletion(QComboBox* combo);

// The text of a field: a text box, code box or combo box.
QString fieldText(const QWidget* field);
void setFieldText(QWidget* field, const QString& text);

// The own visible flag of a control: set unless the program hid it. A page
// of a PageStack reads its recorded flag.
bool ownVisibleFlag(const QWidget* widget);

}  // namespace ql
