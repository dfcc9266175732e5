#include "core/Style.h"

#include <QApplication>
#include <QProxyStyle>
#include <QWidget>
#include <cmath>

namespace ql {

namespace {

// At a scale such as 1.5 a list's or text box's inner area is rounded over
// the right line of its frame. One more pixel of frame keeps the line.
class ProgramStyle : public QProxyStyle {
public:
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override
    {
        const int value = QProxyStyle::pixelMetric(metric, option, widget);
        if (metric != PM_DefaultFrameWidth)
            return value;
        const qreal ratio = widget ? widget->devicePixelRatioF() : qApp->devicePixelRatio();
        return ratio != std::floor(ratio) ? value + 1 : value;
    }
};

}  // namespace

void useProgramStyle()
{
    if (qApp && !dynamic_cast<ProgramStyle*>(QApplication::style()))
        QApplication::setStyle(new ProgramStyle);
}

}  // namespace ql
