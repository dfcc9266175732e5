#include "core/Icons.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

namespace ql {

namespace {

void paintHelp(QPainter& p, qreal s)
{
    QRadialGradient g(s * 0.35, s * 0.3, s * 0.8);
    g.setColorAt(0, QColor(110, 170, 240));
    g.setColorAt(1, QColor(30, 90, 180));
    p.setBrush(g);
    p.setPen(QPen(QColor(20, 60, 130), s / 16.0));
    p.drawEllipse(QRectF(s * 0.06, s * 0.06, s * 0.88, s * 0.88));
    QFont f;
    f.setBold(true);
    f.setPixelSize(int(s * 0.62));
    p.setFont(f);
    p.setPen(Qt::white);
    p.drawText(QRectF(0, 0, s, s), Qt::AlignCenter, QStringLiteral("?"));
}

// A sheet of paper with a folded corner, its outline in the given colour.
void drawSheet(QPainter& p, const QRectF& r, const QColor& outline)
{
    const qreal fold = r.width() * 0.3;
    QPainterPath sheet;
    sheet.moveTo(r.topLeft());
    sheet.lineTo(r.right() - fold, r.top());
    sheet.lineTo(r.right(), r.top() + fold);
    sheet.lineTo(r.bottomRight());
    sheet.lineTo(r.bottomLeft());
    sheet.closeSubpath();
    p.setBrush(Qt::white);
    p.setPen(QPen(outline, qMax(1.0, r.width() / 14.0), Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    p.drawPath(sheet);
    QPainterPath corner;
    corner.moveTo(r.right() - fold, r.top());
    corner.lineTo(r.right() - fold, r.top() + fold);
    corner.lineTo(r.right(), r.top() + fold);
    p.setBrush(QColor(220, 226, 236));
    p.drawPath(corner);
}

void paintCopy(QPainter& p, qreal s)
{
    const QColor outline(70, 90, 120);
    // Two sheets, the copy in front of the original.
    drawSheet(p, QRectF(s * 0.1, s * 0.06, s * 0.5, s * 0.62), outline);
    const QRectF front(s * 0.38, s * 0.32, s * 0.5, s * 0.62);
    drawSheet(p, front, outline);
    p.setPen(QPen(QColor(60, 110, 190), qMax(1.0, s / 16.0)));
    for (int line = 0; line < 3; ++line) {
        const qreal y = front.top() + front.height() * (0.42 + line * 0.18);
        p.drawLine(QPointF(front.left() + front.width() * 0.2, y), QPointF(front.right() - front.width() * 0.2, y));
    }
}

void paintWebPage(QPainter& p, qreal s)
{
    drawSheet(p, QRectF(s * 0.16, s * 0.05, s * 0.68, s * 0.9), QColor(70, 90, 120));
    // A globe on the page.
    const QRectF globe(s * 0.27, s * 0.34, s * 0.46, s * 0.46);
    QRadialGradient g(globe.center() - QPointF(s * 0.08, s * 0.08), globe.width() * 0.7);
    g.setColorAt(0, QColor(120, 185, 245));
    g.setColorAt(1, QColor(30, 100, 190));
    p.setBrush(g);
    p.setPen(QPen(QColor(20, 70, 140), qMax(1.0, s / 20.0)));
    p.drawEllipse(globe);
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(QColor(225, 240, 255), qMax(1.0, s / 24.0)));
    p.drawEllipse(QRectF(globe.center().x() - globe.width() * 0.2, globe.top(), globe.width() * 0.4, globe.height()));
    p.drawLine(QPointF(globe.left(), globe.center().y()), QPointF(globe.right(), globe.center().y()));
}

void paintProgramFile(QPainter& p, qreal s)
{
    // A program's window: title bar and body.
    const QRectF window(s * 0.06, s * 0.12, s * 0.88, s * 0.76);
    p.setPen(QPen(QColor(40, 60, 100), qMax(1.0, s / 16.0)));
    p.setBrush(QColor(245, 247, 250));
    p.drawRoundedRect(window, s * 0.08, s * 0.08);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(50, 100, 180));
    p.drawRoundedRect(QRectF(window.left(), window.top(), window.width(), s * 0.2), s * 0.08, s * 0.08);
    p.drawRect(QRectF(window.left(), window.top() + s * 0.1, window.width(), s * 0.1));
    // A gear in the body: the program runs.
    const QPointF centre(s * 0.5, s * 0.58);
    const qreal outer = s * 0.22;
    p.setBrush(QColor(60, 120, 200));
    for (int tooth = 0; tooth < 8; ++tooth) {
        p.save();
        p.translate(centre);
        p.rotate(tooth * 45.0);
        p.drawRect(QRectF(-s * 0.05, -outer, s * 0.1, outer * 2));
        p.restore();
    }
    p.drawEllipse(centre, outer * 0.78, outer * 0.78);
    p.setBrush(QColor(245, 247, 250));
    p.drawEllipse(centre, outer * 0.32, outer * 0.32);
}

using Paint = void (*)(QPainter&, qreal);

// A picture painted at each of the sizes.
QIcon drawnIcon(Paint paint, std::initializer_list<int> sizes)
{
    QIcon icon;
    for (int size : sizes) {
        QPixmap pm(size, size);
        pm.fill(Qt::transparent);
        QPainter p(&pm);
        p.setRenderHint(QPainter::Antialiasing);
        paint(p, size);
        p.end();
        icon.addPixmap(pm);
    }
    return icon;
}

// An icon of the theme by its name, or else the picture drawn at the usual
// button sizes.
QIcon themeIcon(const char* name, Paint paint, const char* alternative = nullptr)
{
    const QIcon drawn = drawnIcon(paint, {16, 20, 24, 32, 40, 48});
    const QIcon fallback = alternative ? QIcon::fromTheme(QString::fromLatin1(alternative), drawn) : drawn;
    return QIcon::fromTheme(QString::fromLatin1(name), fallback);
}

void paintProgram(QPainter& p, qreal s)
{
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
}

}  // namespace

QIcon helpIcon()
{
    return themeIcon("help-browser", paintHelp, "help-contents");
}

QIcon copyIcon()
{
    return themeIcon("edit-copy", paintCopy);
}

QIcon webPageIcon()
{
    return themeIcon("text-html", paintWebPage);
}

QIcon programFileIcon()
{
    return themeIcon("application-x-executable", paintProgramFile);
}

QIcon programIcon()
{
    return drawnIcon(paintProgram, {16, 32, 48, 128});
}

}  // namespace ql
