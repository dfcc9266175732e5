#include "core/Icons.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

namespace ql {

namespace {

QPixmap helpPixmap(int size)
{
    QPixmap pm(size, size);
    pm.fill(Qt::transparent);
    QPainter p(&pm);
    p.setRenderHint(QPainter::Antialiasing);
    QRadialGradient g(size * 0.35, size * 0.3, size * 0.8);
    g.setColorAt(0, QColor(110, 170, 240));
    g.setColorAt(1, QColor(30, 90, 180));
    p.setBrush(g);
    p.setPen(QPen(QColor(20, 60, 130), size / 16.0));
    p.drawEllipse(QRectF(size * 0.06, size * 0.06, size * 0.88, size * 0.88));
    QFont f;
    f.setBold(true);
    f.setPixelSize(int(size * 0.62));
    p.setFont(f);
    p.setPen(Qt::white);
    p.drawText(QRect(0, 0, size, size), Qt::AlignCenter, QStringLiteral("?"));
    return pm;
}

QPixmap programPixmap(int size)
{
    QPixmap pm(size, size);
    pm.fill(Qt::transparent);
    QPainter p(&pm);
    p.setRenderHint(QPainter::Antialiasing);
    const qreal s = size;
    QLinearGradient g(0, 0, s, s);
    g.setColorAt(0, QColor(255, 196, 70));
    g.setColorAt(1, QColor(225, 90, 40));
    p.setBrush(g);
    p.setPen(Qt::NoPen);
    p.drawRoundedRect(QRectF(s * 0.04, s * 0.04, s * 0.92, s * 0.92), s * 0.2, s * 0.2);
    // A quill across the square.
    QPainterPath feather;
    feather.moveTo(s * 0.22, s * 0.8);
    feather.cubicTo(s * 0.35, s * 0.45, s * 0.6, s * 0.2, s * 0.84, s * 0.14);
    feather.cubicTo(s * 0.78, s * 0.42, s * 0.55, s * 0.66, s * 0.22, s * 0.8);
    p.setBrush(QColor(255, 255, 255, 235));
    p.drawPath(feather);
    p.setPen(QPen(QColor(120, 40, 10), s / 24.0, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(s * 0.16, s * 0.88), QPointF(s * 0.6, s * 0.42));
    return pm;
}

}  // namespace

QIcon helpIcon()
{
    QIcon icon;
    for (int size : {16, 20, 24, 32, 40})
        icon.addPixmap(helpPixmap(size));
    return icon;
}

QIcon programIcon()
{
    QIcon icon;
    for (int size : {16, 32, 48, 128})
        icon.addPixmap(programPixmap(size));
    return icon;
}

}  // namespace ql
