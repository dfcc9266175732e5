#include "core/Keyboard.h"

#include "core/Widgets.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSet>

namespace ql {

namespace {

// The access key of a caption: the letter behind a lone "&", or 0.
QChar accessKeyOf(const QString& caption)
{
    for (qsizetype i = 0; i + 1 < caption.size(); ++i) {
        if (caption[i] != QLatin1Char('&'))
            continue;
        if (caption[i + 1] == QLatin1Char('&')) {
            ++i;
            continue;
        }
        return caption[i + 1].toLower();
    }
    return QChar();
}

// The caption with "&" put before the first free letter, preferring word
// starts; the caption as it was when every letter is taken.
QString markFreeLetter(const QString& caption, QSet<QChar>& used)
{
    QString escaped = caption;
    escaped.replace(QLatin1Char('&'), QStringLiteral("&&"));
    auto tryAt = [&](bool wordStartsOnly) -> qsizetype {
        for (qsizetype i = 0; i < escaped.size(); ++i) {
            const QChar c = escaped[i];
            if (!c.isLetterOrNumber() || c.unicode() > 127)
                continue;
            if (wordStartsOnly && i > 0 && escaped[i - 1].isLetterOrNumber())
                continue;
            if (!used.contains(c.toLower()))
                return i;
        }
        return -1;
    };
    qsizetype at = tryAt(true);
    if (at < 0)
        at = tryAt(false);
    if (at < 0)
        return caption;
    used.insert(escaped[at].toLower());
    return escaped.left(at) + QLatin1Char('&') + escaped.mid(at);
}

bool wantsAccessKey(QWidget* w)
{
    if (auto* label = qobject_cast<QLabel*>(w))
        return label->buddy() != nullptr && label->textFormat() != Qt::RichText;
    return qobject_cast<QCheckBox*>(w) || qobject_cast<QRadioButton*>(w) || qobject_cast<QPushButton*>(w);
}

void setShownCaption(QWidget* w, const QString& caption)
{
    if (auto* label = qobject_cast<QLabel*>(w))
        label->setText(caption);
    else if (auto* button = qobject_cast<QAbstractButton*>(w))
        button->setText(caption);
}

}  // namespace

void giveAccessKeys(QWidget* window)
{
    QSet<QChar> used;
    const QList<QWidget*> widgets = window->findChildren<QWidget*>();
    for (QWidget* w : widgets) {
        if (const QChar key = accessKeyOf(shownCaption(w)); !key.isNull())
            used.insert(key);
    }
    for (QMenuBar* bar : window->findChildren<QMenuBar*>()) {
        for (QAction* a : bar->actions()) {
            if (const QChar key = accessKeyOf(a->text()); !key.isNull())
                used.insert(key);
        }
    }
    for (QWidget* w : widgets) {
        if (!wantsAccessKey(w) || w->objectName().startsWith(QLatin1String("qt_")))
            continue;
        const QString caption = shownCaption(w);
        if (caption.trimmed().isEmpty() || !accessKeyOf(caption).isNull() || caption.contains(QLatin1Char('&')))
            continue;
        const QString marked = markFreeLetter(caption, used);
        if (marked == caption)
            continue;
        keepCaption(w, caption, marked);
        setShownCaption(w, marked);
    }
}

void focusIfShown(QWidget* control)
{
    if (control && control->isVisible() && control->isEnabled() && control->focusPolicy() != Qt::NoFocus)
        control->setFocus(Qt::OtherFocusReason);
}

void settleFocus(QWidget* window)
{
    QWidget* focus = window->focusWidget();
    if (focus && focus->isVisible() && focus->isEnabled())
        return;
    for (QPushButton* button : window->findChildren<QPushButton*>()) {
        if (button->isDefault() && button->isVisible() && button->isEnabled()) {
            button->setFocus(Qt::OtherFocusReason);
            return;
        }
    }
    QWidget* w = window->nextInFocusChain();
    for (; w && w != window; w = w->nextInFocusChain()) {
        if (w->isVisible() && w->isEnabled() && (w->focusPolicy() & Qt::TabFocus) && w->window() == window) {
            w->setFocus(Qt::OtherFocusReason);
            return;
        }
    }
    if (focus)
        focus->clearFocus();
}

}  // namespace ql
