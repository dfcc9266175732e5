#include "core/WrapOption.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionButton>

namespace ql {

namespace {

constexpr int TextFlags = Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap | Qt::TextShowMnemonic;
// The width a wrapped caption asks for before the layout gives it less.
constexpr int PreferredChars = 60;

}  // namespace

WrapOption::WrapOption(const QString& text, QWidget* parent)
    : QRadioButton(text, parent)
{
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

int WrapOption::indicatorRoom() const
{
    return style()->pixelMetric(QStyle::PM_ExclusiveIndicatorWidth, nullptr, this) +
           style()->pixelMetric(QStyle::PM_RadioButtonLabelSpacing, nullptr, this) + 2;
}

QRect WrapOption::textRect(const QRect& area) const
{
    return area.adjusted(indicatorRoom(), 1, -1, -1);
}

int WrapOption::heightForWidth(int width) const
{
    const QRect bounds = fontMetrics().boundingRect(QRect(0, 0, qMax(1, width - indicatorRoom() - 1), 10000),
                                                    TextFlags, text());
    const int indicator = style()->pixelMetric(QStyle::PM_ExclusiveIndicatorHeight, nullptr, this);
    return qMax(indicator, bounds.height()) + 2;
}

QSize WrapOption::sizeHint() const
{
    const int full = fontMetrics().horizontalAdvance(text()) + indicatorRoom() + 2;
    const int width = qMin(full, fontMetrics().averageCharWidth() * PreferredChars + indicatorRoom());
    return {width, heightForWidth(width)};
}

QSize WrapOption::minimumSizeHint() const
{
    const int width = fontMetrics().averageCharWidth() * 20 + indicatorRoom();
    return {width, heightForWidth(width)};
}

void WrapOption::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    const int indicatorWidth = style()->pixelMetric(QStyle::PM_ExclusiveIndicatorWidth, nullptr, this);
    const int indicatorHeight = style()->pixelMetric(QStyle::PM_ExclusiveIndicatorHeight, nullptr, this);
    const int lineHeight = fontMetrics().height();
    QStyleOptionButton indicator = option;
    indicator.rect = QRect(1, 1 + qMax(0, (lineHeight - indicatorHeight) / 2), indicatorWidth, indicatorHeight);
    style()->drawPrimitive(QStyle::PE_IndicatorRadioButton, &indicator, &painter, this);
    const QRect text = textRect(rect());
    style()->drawItemText(&painter, text, TextFlags, palette(), isEnabled(), this->text(), QPalette::WindowText);
    if (hasFocus()) {
        QStyleOptionFocusRect focus;
        focus.initFrom(this);
        focus.rect = fontMetrics().boundingRect(text, TextFlags, this->text()).adjusted(-1, 0, 1, 1);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
    }
}

bool WrapOption::hitButton(const QPoint& pos) const
{
    return rect().contains(pos);
}

}  // namespace ql
