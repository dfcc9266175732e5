#include "shell/EffectPictures.h"

#include <QFont>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>
#include <QRadialGradient>
#include <QStringList>
#include <QTransform>
#include <QtMath>

#include <algorithm>
#include <cmath>
#include <utility>

namespace ql {
namespace {

// Every illustration is drawn in a design space of kStageW x kStageH units,
// which is scaled uniformly into the picture's illustration area.
constexpr qreal kStageW = 120.0;
constexpr qreal kStageH = 60.0;

// Text inside illustrations is laid out at this pixel size and scaled down,
// so that fractional sizes come out right.
constexpr int kFontBase = 40;

QColor rgb(unsigned v, int alpha = 255)
{
    return QColor(int((v >> 16) & 0xff), int((v >> 8) & 0xff), int(v & 0xff), alpha);
}

// The palette of the set.
const unsigned kInk = 0x1e293b;      // caption and dark outlines
const unsigned kSlate = 0x334155;    // dark shapes
const unsigned kMuted = 0x94a3b8;    // grey text bars
const unsigned kBlue = 0x3a6fd8;     // main accent
const unsigned kBlueDark = 0x24499a;
const unsigned kOrange = 0xf08a24;
const unsigned kGold = 0xf6c343;
const unsigned kGoldDark = 0xc98f1c;
const unsigned kGreen = 0x34a853;
const unsigned kPurple = 0x7c5cd6;
const unsigned kPink = 0xe2457a;
const unsigned kRed = 0xe04848;
const unsigned kTeal = 0x14a3a3;

// ---------------------------------------------------------------------------
// Small drawing helpers

QPointF lerp(const QPointF& a, const QPointF& b, qreal t)
{
    return a + (b - a) * t;
}

QFont scalableFont(bool bold, bool mono)
{
    QFont f = mono ? QFontDatabase::systemFont(QFontDatabase::FixedFont) : QGuiApplication::font();
    f.setPixelSize(kFontBase);
    f.setBold(bold);
    f.setItalic(false);
    f.setUnderline(false);
    return f;
}

qreal textWidth(const QString& s, qreal px, bool bold = false, bool mono = false)
{
    const QFontMetricsF fm(scalableFont(bold, mono));
    return fm.horizontalAdvance(s) * px / kFontBase;
}

// Draws s into r at a pixel size of px design units.
void label(QPainter& p, const QRectF& r, const QString& s, qreal px, const QColor& color,
           int flags = Qt::AlignCenter, bool bold = false, bool mono = false)
{
    const qreal k = px / kFontBase;
    p.save();
    p.translate(r.topLeft());
    p.scale(k, k);
    p.setFont(scalableFont(bold, mono));
    p.setPen(color);
    p.drawText(QRectF(0, 0, r.width() / k, r.height() / k), flags | Qt::TextDontClip, s);
    p.restore();
}

void fillRounded(QPainter& p, const QRectF& r, qreal radius, const QBrush& brush)
{
    p.save();
    p.setPen(Qt::NoPen);
    p.setBrush(brush);
    p.drawRoundedRect(r, radius, radius);
    p.restore();
}

void strokeRounded(QPainter& p, const QRectF& r, qreal radius, const QColor& color, qreal width)
{
    p.save();
    p.setPen(QPen(color, width));
    p.setBrush(Qt::NoBrush);
    p.drawRoundedRect(r, radius, radius);
    p.restore();
}

QLinearGradient vGradient(const QRectF& r, const QColor& top, const QColor& bottom)
{
    QLinearGradient g(r.topLeft(), r.bottomLeft());
    g.setColorAt(0, top);
    g.setColorAt(1, bottom);
    return g;
}

QLinearGradient hGradient(const QRectF& r, const QColor& left, const QColor& right)
{
    QLinearGradient g(r.topLeft(), r.topRight());
    g.setColorAt(0, left);
    g.setColorAt(1, right);
    return g;
}

// A soft drop shadow under a rounded rectangle.
void softShadow(QPainter& p, const QRectF& r, qreal radius, qreal strength = 1.0)
{
    p.save();
    p.setPen(Qt::NoPen);
    for (int i = 3; i >= 1; --i) {
        const qreal grow = i * 0.7;
        p.setBrush(QColor(15, 23, 42, int(22 * strength)));
        p.drawRoundedRect(r.translated(0, 1.2).adjusted(-grow, -grow * 0.6, grow, grow), radius + grow,
                          radius + grow);
    }
    p.restore();
}

// Paints what draw() paints through a mask brush: the mask's alpha becomes the
// alpha of the result. Used for fades and reflections.
template <typename Draw>
void drawMasked(QPainter& p, const QRectF& area, const QBrush& mask, Draw&& draw)
{
    const QTransform t = p.combinedTransform();
    const QRect dev = t.mapRect(area).toAlignedRect().adjusted(-1, -1, 1, 1);
    if (dev.isEmpty())
        return;
    QImage layer(dev.size(), QImage::Format_ARGB32_Premultiplied);
    layer.fill(Qt::transparent);
    {
        QPainter lp(&layer);
        lp.setRenderHints(p.renderHints());
        lp.setTransform(t * QTransform::fromTranslate(-dev.x(), -dev.y()));
        lp.setClipRect(area);
        std::forward<Draw>(draw)(lp);
        lp.setCompositionMode(QPainter::CompositionMode_DestinationIn);
        lp.fillRect(area, mask);
    }
    p.save();
    p.resetTransform();
    p.drawImage(dev.topLeft(), layer);
    p.restore();
}

QPainterPath starPath(const QPointF& c, qreal outer, qreal inner, int points, qreal rotationDeg = -90)
{
    QPainterPath path;
    for (int i = 0; i < points * 2; ++i) {
        const qreal r = (i % 2 == 0) ? outer : inner;
        const qreal a = qDegreesToRadians(rotationDeg + i * 180.0 / points);
        const QPointF pt(c.x() + r * std::cos(a), c.y() + r * std::sin(a));
        if (i == 0)
            path.moveTo(pt);
        else
            path.lineTo(pt);
    }
    path.closeSubpath();
    return path;
}

// A four-pointed glint.
void sparkle(QPainter& p, const QPointF& c, qreal size, const QColor& color)
{
    p.save();
    p.setPen(Qt::NoPen);
    p.setBrush(color);
    p.drawPath(starPath(c, size, size * 0.28, 4));
    p.restore();
}

void arrowHead(QPainter& p, const QPointF& tip, QPointF dir, qreal size, const QColor& color)
{
    const qreal len = std::hypot(dir.x(), dir.y());
    if (len <= 0)
        return;
    dir /= len;
    const QPointF n(-dir.y(), dir.x());
    const QPointF back = tip - dir * size;
    QPolygonF tri{tip, back + n * size * 0.6, back - n * size * 0.6};
    p.save();
    p.setPen(Qt::NoPen);
    p.setBrush(color);
    p.drawPolygon(tri);
    p.restore();
}

void arrowLine(QPainter& p, const QPointF& from, const QPointF& to, qreal width, const QColor& color,
               qreal head = 4.0)
{
    const QPointF dir = to - from;
    const qreal len = std::hypot(dir.x(), dir.y());
    if (len <= 0)
        return;
    p.save();
    p.setPen(QPen(color, width, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(from, to - dir / len * head * 0.8);
    p.restore();
    arrowHead(p, to, dir, head, color);
}

// The usual mouse pointer, tip at tip.
void arrowCursor(QPainter& p, const QPointF& tip, qreal scale = 1.0)
{
    const QPolygonF shape{{0, 0}, {0, 11.6}, {2.8, 9.0}, {4.7, 13.3}, {6.7, 12.4}, {4.8, 8.3}, {8.4, 8.3}};
    p.save();
    p.translate(tip);
    p.scale(scale, scale);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0, 0, 0, 55));
    p.drawPolygon(shape.translated(0.8, 1.0));
    p.setPen(QPen(rgb(0x111111), 0.8, Qt::SolidLine, Qt::RoundCap, Qt::MiterJoin));
    p.setBrush(Qt::white);
    p.drawPolygon(shape);
    p.restore();
}

// The pointing hand shown over links, finger tip at tip.
void handCursor(QPainter& p, const QPointF& tip, qreal scale = 1.0)
{
    QPainterPath finger;
    finger.addRoundedRect(QRectF(-1.5, 0, 3.0, 9.5), 1.5, 1.5);
    QPainterPath palm;
    palm.addRoundedRect(QRectF(-1.5, 6.0, 9.0, 8.0), 2.4, 2.4);
    QPainterPath knuckles;
    knuckles.addRoundedRect(QRectF(1.2, 4.8, 2.6, 5.0), 1.3, 1.3);
    knuckles.addRoundedRect(QRectF(3.5, 5.3, 2.6, 5.0), 1.3, 1.3);
    knuckles.addRoundedRect(QRectF(5.8, 6.0, 2.2, 5.0), 1.1, 1.1);
    QPainterPath thumb;
    thumb.addRoundedRect(QRectF(-5.2, 0, 5.2, 2.6), 1.3, 1.3);
    thumb = QTransform().translate(-0.2, 9.4).rotate(40).map(thumb);
    QPainterPath hand = finger.united(palm).united(knuckles).united(thumb).simplified();

    p.save();
    p.translate(tip);
    p.scale(scale, scale);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0, 0, 0, 55));
    p.drawPath(hand.translated(0.8, 1.0));
    p.setPen(QPen(rgb(0x111111), 0.75, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.setBrush(Qt::white);
    p.drawPath(hand);
    p.setPen(QPen(rgb(0x111111), 0.55, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(1.5, 7.8), QPointF(1.5, 10.0));
    p.drawLine(QPointF(3.7, 8.2), QPointF(3.7, 10.4));
    p.drawLine(QPointF(5.9, 8.8), QPointF(5.9, 10.8));
    p.restore();
}

// A magic wand with a star at its tip.
void wand(QPainter& p, const QPointF& base, const QPointF& tip)
{
    p.save();
    p.setPen(QPen(rgb(kSlate), 2.6, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(base, lerp(base, tip, 0.78));
    p.setPen(QPen(Qt::white, 2.6, Qt::SolidLine, Qt::FlatCap));
    p.drawLine(lerp(base, tip, 0.66), lerp(base, tip, 0.78));
    p.restore();
    const QPointF star = lerp(base, tip, 0.9);
    p.save();
    QRadialGradient glow(star, 9);
    glow.setColorAt(0, rgb(kGold, 140));
    glow.setColorAt(1, rgb(kGold, 0));
    p.setPen(Qt::NoPen);
    p.setBrush(glow);
    p.drawEllipse(star, 9, 9);
    p.setPen(QPen(rgb(kGoldDark), 0.7, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.setBrush(rgb(kGold));
    p.drawPath(starPath(star, 5.2, 2.2, 5));
    p.restore();
    sparkle(p, star + QPointF(-8, -3), 2.2, rgb(kGold));
    sparkle(p, star + QPointF(6, 7), 1.8, rgb(kGold));
    sparkle(p, star + QPointF(4, -7), 1.4, rgb(kGoldDark));
}

// ---------------------------------------------------------------------------
// A small landscape picture, used wherever an effect works on an image.

struct Scene {
    QColor skyTop, skyBottom, sun, mountain, snow, ground;
    bool night = false;
};

Scene dayScene()
{
    return {rgb(0x6eaef0), rgb(0xd4eaff), rgb(0xffc928), rgb(0x7189b3), rgb(0xffffff), rgb(0x5cb85c), false};
}

Scene nightScene()
{
    return {rgb(0x10183e), rgb(0x3b4788), rgb(0xf6f1c4), rgb(0x2a3363), rgb(0xb9c2e6), rgb(0x1d4a3a), true};
}

Scene sunsetScene()
{
    return {rgb(0xff7b54), rgb(0xffd479), rgb(0xfff3b8), rgb(0x86578c), rgb(0xffdcc8), rgb(0x5f7d32), false};
}

template <typename F>
Scene mapScene(Scene s, F f)
{
    s.skyTop = f(s.skyTop);
    s.skyBottom = f(s.skyBottom);
    s.sun = f(s.sun);
    s.mountain = f(s.mountain);
    s.snow = f(s.snow);
    s.ground = f(s.ground);
    return s;
}

QColor grayOf(const QColor& c)
{
    const int v = qGray(c.rgb());
    return QColor(v, v, v);
}

QColor invertOf(const QColor& c)
{
    return QColor(255 - c.red(), 255 - c.green(), 255 - c.blue());
}

QColor sepiaOf(const QColor& c)
{
    const qreal r = c.red(), g = c.green(), b = c.blue();
    return QColor(int(std::min(255.0, 0.393 * r + 0.769 * g + 0.189 * b)),
                  int(std::min(255.0, 0.349 * r + 0.686 * g + 0.168 * b)),
                  int(std::min(255.0, 0.272 * r + 0.534 * g + 0.131 * b)));
}

QColor duotoneOf(const QColor& c)
{
    const qreal t = qGray(c.rgb()) / 255.0;
    const QColor dark = rgb(0x4a1a6b), light = rgb(0xffb3d1);
    return QColor(int(dark.red() + (light.red() - dark.red()) * t),
                  int(dark.green() + (light.green() - dark.green()) * t),
                  int(dark.blue() + (light.blue() - dark.blue()) * t));
}

void drawScene(QPainter& p, const QRectF& r, const Scene& s)
{
    auto at = [&](qreal fx, qreal fy) { return QPointF(r.x() + fx * r.width(), r.y() + fy * r.height()); };
    p.save();
    p.setClipRect(r, Qt::IntersectClip);
    p.setPen(Qt::NoPen);
    p.fillRect(r, vGradient(r, s.skyTop, s.skyBottom));

    const qreal rad = r.height() * 0.13;
    const QPointF c = at(0.76, 0.26);
    if (s.night) {
        QPainterPath moon;
        moon.addEllipse(c, rad, rad);
        QPainterPath bite;
        bite.addEllipse(c + QPointF(rad * 0.6, -rad * 0.3), rad * 0.95, rad * 0.95);
        p.setBrush(s.sun);
        p.drawPath(moon.subtracted(bite));
        p.setBrush(QColor(255, 255, 255, 200));
        const qreal d = std::max<qreal>(0.35, r.height() * 0.022);
        for (const QPointF& f : {QPointF(0.12, 0.15), QPointF(0.3, 0.1), QPointF(0.5, 0.2), QPointF(0.93, 0.12),
                                 QPointF(0.4, 0.34)})
            p.drawEllipse(at(f.x(), f.y()), d, d);
    } else {
        QRadialGradient glow(c, rad * 2.2);
        QColor g0 = s.sun;
        g0.setAlpha(110);
        QColor g1 = s.sun;
        g1.setAlpha(0);
        glow.setColorAt(0, g0);
        glow.setColorAt(1, g1);
        p.setBrush(glow);
        p.drawEllipse(c, rad * 2.2, rad * 2.2);
        p.setBrush(s.sun);
        p.drawEllipse(c, rad, rad);
    }

    const QPointF peak = at(0.28, 0.3), leftFoot = at(-0.05, 0.74), saddle = at(0.5, 0.6);
    const QPolygonF mountains{leftFoot, peak, saddle, at(0.68, 0.42), at(1.05, 0.76), at(1.05, 1.0), at(-0.05, 1.0)};
    p.setBrush(s.mountain);
    p.drawPolygon(mountains);
    const QPointF l = lerp(peak, leftFoot, 0.3), rr = lerp(peak, saddle, 0.3);
    const QPolygonF snow{peak, rr, lerp(l, rr, 0.66) + QPointF(0, -r.height() * 0.03),
                         lerp(l, rr, 0.4) + QPointF(0, r.height() * 0.03), l};
    p.setBrush(s.snow);
    p.drawPolygon(snow);

    QPainterPath hill;
    hill.moveTo(at(0, 0.8));
    hill.cubicTo(at(0.3, 0.62), at(0.62, 0.94), at(1.0, 0.74));
    hill.lineTo(at(1, 1));
    hill.lineTo(at(0, 1));
    hill.closeSubpath();
    p.setBrush(s.ground);
    p.drawPath(hill);
    p.restore();
}

QImage sceneImage(const QSize& size, const Scene& s)
{
    QImage img(size, QImage::Format_ARGB32_Premultiplied);
    img.fill(Qt::white);
    QPainter ip(&img);
    ip.setRenderHint(QPainter::Antialiasing);
    drawScene(ip, QRectF(0, 0, size.width(), size.height()), s);
    return img;
}

// A photo print: white border, shadow. Answers the picture area inside it.
QRectF photo(QPainter& p, const QRectF& r, qreal border = 1.8)
{
    softShadow(p, r, 1.5);
    fillRounded(p, r, 1.5, Qt::white);
    strokeRounded(p, r, 1.5, rgb(0xb8c2d0), 0.5);
    return r.adjusted(border, border, -border, -border);
}

// A small browser-like window frame; answers the content area.
QRectF windowFrame(QPainter& p, const QRectF& r, const QColor& titleColor, bool dots = true)
{
    softShadow(p, r, 2.5);
    fillRounded(p, r, 2.5, Qt::white);
    const QRectF bar(r.x(), r.y(), r.width(), 8);
    p.save();
    QPainterPath clip;
    clip.addRoundedRect(r, 2.5, 2.5);
    p.setClipPath(clip, Qt::IntersectClip);
    p.fillRect(bar, vGradient(bar, titleColor.lighter(112), titleColor));
    p.restore();
    if (dots) {
        p.save();
        p.setPen(Qt::NoPen);
        const unsigned colors[] = {0xff5f57, 0xfebc2e, 0x28c840};
        for (int i = 0; i < 3; ++i) {
            p.setBrush(rgb(colors[i]));
            p.drawEllipse(QPointF(r.x() + 4.5 + i * 4.2, r.y() + 4), 1.4, 1.4);
        }
        p.restore();
    }
    strokeRounded(p, r, 2.5, rgb(0xa9b4c4), 0.6);
    return QRectF(r.x(), r.y() + 8, r.width(), r.height() - 8);
}

// A row of grey bars standing for text.
void textBars(QPainter& p, qreal x, qreal y, const QList<qreal>& widths, qreal gap, const QColor& color,
              qreal thickness = 2.0)
{
    p.save();
    p.setPen(Qt::NoPen);
    p.setBrush(color);
    for (qreal w : widths) {
        p.drawRoundedRect(QRectF(x, y, w, thickness), thickness / 2, thickness / 2);
        y += gap;
    }
    p.restore();
}

// A gradient push button.
void pushButton(QPainter& p, const QRectF& r, const QString& text, const QColor& top, const QColor& bottom,
                const QColor& border, const QColor& textColor, qreal px, qreal radius = 2.5)
{
    softShadow(p, r, radius, 0.7);
    fillRounded(p, r, radius, vGradient(r, top, bottom));
    strokeRounded(p, r, radius, border, 0.6);
    label(p, r, text, px, textColor, Qt::AlignCenter, true);
}

// ---------------------------------------------------------------------------
// The illustrations, one per effect, in design units (0,0)-(120,60). view is
// the whole visible illustration area in the same units (a little larger
// than the design area when the proportions differ).

void drawImageFade(QPainter& p, const QRectF&)
{
    const QRectF in = photo(p, QRectF(12, 3, 96, 45), 2.0);
    drawScene(p, in, dayScene());
    QLinearGradient mask(in.left() + in.width() * 0.28, 0, in.left() + in.width() * 0.74, 0);
    mask.setColorAt(0, QColor(0, 0, 0, 0));
    mask.setColorAt(1, QColor(0, 0, 0, 255));
    drawMasked(p, in, mask, [&](QPainter& lp) { drawScene(lp, in, nightScene()); });

    // The transition track: from the first picture to the second.
    const QRectF track(26, 52.5, 68, 3.4);
    fillRounded(p, track, 1.7, hGradient(track, rgb(0x8cc4ff), rgb(0x27306a)));
    strokeRounded(p, track, 1.7, rgb(0x8a97ab), 0.4);
    p.save();
    p.setPen(QPen(rgb(kBlueDark), 0.9));
    p.setBrush(Qt::white);
    p.drawEllipse(QPointF(track.left() + track.width() * 0.56, track.center().y()), 3.2, 3.2);
    p.restore();
    // A sun and a moon at the ends of the track.
    p.save();
    p.setPen(Qt::NoPen);
    p.setBrush(rgb(0xffb400));
    p.drawEllipse(QPointF(19, track.center().y()), 2.6, 2.6);
    QPainterPath moon;
    moon.addEllipse(QPointF(101, track.center().y()), 2.8, 2.8);
    QPainterPath bite;
    bite.addEllipse(QPointF(102.6, track.center().y() - 1.0), 2.5, 2.5);
    p.setBrush(rgb(0x27306a));
    p.drawPath(moon.subtracted(bite));
    p.restore();
}

void drawImgRollover(QPainter& p, const QRectF&)
{
    const QRectF a(5, 12, 44, 34), b(71, 12, 44, 34);
    drawScene(p, photo(p, a), mapScene(sunsetScene(), grayOf));

    // The second picture lights up under the mouse.
    p.save();
    p.setPen(Qt::NoPen);
    for (int i = 3; i >= 1; --i) {
        p.setBrush(rgb(kGold, 40 + 25 * (3 - i)));
        p.drawRoundedRect(b.adjusted(-i * 1.1, -i * 1.1, i * 1.1, i * 1.1), 2 + i, 2 + i);
    }
    p.restore();
    drawScene(p, photo(p, b), sunsetScene());

    arrowLine(p, QPointF(53, 29), QPointF(67, 29), 1.8, rgb(kBlue), 4.5);
    arrowCursor(p, QPointF(95, 31), 1.05);
}

void drawAnimButton(QPainter& p, const QRectF&)
{
    const QRectF btn(27, 19, 66, 22);
    // Rings spreading out from the button as it animates.
    p.save();
    p.setBrush(Qt::NoBrush);
    for (int i = 1; i <= 3; ++i) {
        p.setPen(QPen(rgb(kBlue, 170 - 45 * i), 1.3 - 0.2 * i));
        const qreal g = i * 3.6;
        p.drawRoundedRect(btn.adjusted(-g, -g, g, g), 11 + g, 11 + g);
    }
    p.restore();

    softShadow(p, btn, 11);
    fillRounded(p, btn, 11, vGradient(btn, rgb(0x6fa8ff), rgb(0x2a5bc2)));
    QRectF gloss = btn.adjusted(2, 1.5, -2, -btn.height() / 2);
    fillRounded(p, gloss, 8, vGradient(gloss, QColor(255, 255, 255, 120), QColor(255, 255, 255, 25)));
    strokeRounded(p, btn, 11, rgb(kBlueDark), 0.8);
    label(p, btn.translated(0, 0.3), QStringLiteral("Click me"), 9, Qt::white, Qt::AlignCenter, true);

    sparkle(p, QPointF(14, 9), 3.4, rgb(kGold));
    sparkle(p, QPointF(106, 10), 2.6, rgb(kOrange));
    sparkle(p, QPointF(104, 51), 3.0, rgb(kGold));
    sparkle(p, QPointF(17, 50), 2.0, rgb(kOrange));
    arrowCursor(p, QPointF(78, 33), 1.05);
}

void drawImageEffects2(QPainter& p, const QRectF&)
{
    const qreal w = 26, h = 24, gap = 3;
    const qreal x0 = (kStageW - (4 * w + 3 * gap)) / 2, y0 = 4;
    for (int i = 0; i < 8; ++i) {
        const QRectF cell(x0 + (i % 4) * (w + gap), y0 + (i / 4) * (h + 4), w, h);
        const QRectF in = photo(p, cell, 1.2);
        switch (i) {
        case 0:
            drawScene(p, in, dayScene());
            break;
        case 1:
            drawScene(p, in, mapScene(dayScene(), grayOf));
            break;
        case 2:
            drawScene(p, in, mapScene(dayScene(), sepiaOf));
            break;
        case 3:
            drawScene(p, in, mapScene(dayScene(), invertOf));
            break;
        case 4: { // mosaic
            p.save();
            p.setRenderHint(QPainter::SmoothPixmapTransform, false);
            p.drawImage(in, sceneImage(QSize(6, 5), dayScene()));
            p.restore();
            break;
        }
        case 5: { // blur
            p.save();
            p.setRenderHint(QPainter::SmoothPixmapTransform, true);
            p.drawImage(in, sceneImage(QSize(9, 8), dayScene()).scaled(QSize(48, 44), Qt::IgnoreAspectRatio,
                                                                      Qt::SmoothTransformation));
            p.restore();
            break;
        }
        case 6: { // flip
            p.save();
            p.translate(0, in.top() + in.bottom());
            p.scale(1, -1);
            drawScene(p, in, dayScene());
            p.restore();
            break;
        }
        default:
            drawScene(p, in, mapScene(dayScene(), duotoneOf));
            break;
        }
    }
}

void drawAnim(QPainter& p, const QRectF&)
{
    const QRectF strip(2, 7, 116, 46);
    softShadow(p, strip, 2);
    fillRounded(p, strip, 2, vGradient(strip, rgb(0x3a3f4b), rgb(0x22262e)));
    p.save();
    p.setPen(Qt::NoPen);
    p.setBrush(rgb(0xeef2f7));
    for (qreal x = 5; x < strip.right() - 3; x += 7) {
        p.drawRoundedRect(QRectF(x, strip.top() + 2.4, 3.6, 3.0), 0.8, 0.8);
        p.drawRoundedRect(QRectF(x, strip.bottom() - 5.4, 3.6, 3.0), 0.8, 0.8);
    }
    p.restore();

    // Four frames of a bouncing ball.
    const qreal heights[] = {0.18, 0.5, 0.8, 0.42};
    for (int i = 0; i < 4; ++i) {
        const QRectF f(6 + i * 28, 15, 25, 30);
        p.fillRect(f, vGradient(f, rgb(0xcfe6ff), rgb(0xf4f9ff)));
        const qreal groundY = f.bottom() - 5;
        p.fillRect(QRectF(f.left(), groundY, f.width(), 5), rgb(0x8fd18a));
        const qreal bx = f.left() + 8 + i * 3;
        const qreal r = 4.0;
        const qreal by = f.top() + 3 + r + heights[i] * (groundY - f.top() - 3 - 2 * r);
        const bool squash = i == 2;
        p.save();
        p.setPen(Qt::NoPen);
        p.setBrush(QColor(0, 0, 0, 40 + int(heights[i] * 60)));
        const qreal sw = 2.5 + heights[i] * 3.5;
        p.drawEllipse(QPointF(bx, groundY + 0.6), sw, 1.1);
        QRadialGradient ball(QPointF(bx - 1.4, by - 1.6), r * 1.6);
        ball.setColorAt(0, rgb(0xffd08a));
        ball.setColorAt(0.45, rgb(kOrange));
        ball.setColorAt(1, rgb(0xc4560c));
        p.setBrush(ball);
        if (squash)
            p.drawEllipse(QPointF(bx, groundY - r * 0.72), r * 1.25, r * 0.72);
        else
            p.drawEllipse(QPointF(bx, by), r, r);
        p.restore();
        // frame number
        label(p, QRectF(f.right() - 8, f.top() + 1, 7, 6), QString::number(i + 1), 5.5, rgb(0x5b6b82),
              Qt::AlignRight | Qt::AlignTop, true);
    }
}

void drawDynaBut(QPainter& p, const QRectF&)
{
    const qreal w = 32, h = 21, y = 11;
    const QString caption = QStringLiteral("Home");
    // up
    QRectF b1(6, y, w, h);
    pushButton(p, b1, caption, rgb(0xf6f8fb), rgb(0xd3dae4), rgb(0x98a4b6), rgb(kInk), 7.5);
    // over: bright, glowing
    QRectF b2(44, y, w, h);
    p.save();
    p.setPen(Qt::NoPen);
    for (int i = 3; i >= 1; --i) {
        p.setBrush(rgb(kGold, 45 + 20 * (3 - i)));
        p.drawRoundedRect(b2.adjusted(-i, -i, i, i), 2.5 + i, 2.5 + i);
    }
    p.restore();
    pushButton(p, b2, caption, rgb(0xffe28a), rgb(0xf7a928), rgb(0xc77d0e), rgb(0x4a2c00), 7.5);
    // down: dark and pressed in
    QRectF b3(82, y, w, h);
    fillRounded(p, b3, 2.5, vGradient(b3, rgb(0x1f3f86), rgb(0x3a6fd8)));
    p.save();
    p.setPen(QPen(QColor(0, 0, 0, 90), 1.2));
    p.setBrush(Qt::NoBrush);
    p.drawLine(QPointF(b3.left() + 1.5, b3.top() + 1), QPointF(b3.right() - 1.5, b3.top() + 1));
    p.restore();
    strokeRounded(p, b3, 2.5, rgb(0x17306a), 0.6);
    label(p, b3.translated(0.6, 0.8), caption, 7.5, Qt::white, Qt::AlignCenter, true);

    arrowCursor(p, QPointF(64, 27), 1.0);

    // the three states follow one another
    const QColor tag = rgb(0x475569);
    const qreal ly = 44;
    label(p, QRectF(b1.left() - 3, ly - 4.5, w + 6, 9), QStringLiteral("normal"), 6.8, tag);
    label(p, QRectF(b2.left() - 3, ly - 4.5, w + 6, 9), QStringLiteral("over"), 6.8, rgb(0xb86e00),
          Qt::AlignCenter, true);
    label(p, QRectF(b3.left() - 3, ly - 4.5, w + 6, 9), QStringLiteral("down"), 6.8, rgb(kBlueDark),
          Qt::AlignCenter, true);
    arrowLine(p, QPointF(b1.right() - 2, ly), QPointF(b2.left() + 5, ly), 0.9, rgb(kMuted), 2.8);
    arrowLine(p, QPointF(b2.right() - 5, ly), QPointF(b3.left() + 5, ly), 0.9, rgb(kMuted), 2.8);
}

void drawImageEffects(QPainter& p, const QRectF&)
{
    // Lake reflection: the picture and its mirror image in rippling water.
    const QRectF pic(4, 5, 54, 25), water(4, 30, 54, 25);
    softShadow(p, pic.united(water), 1.5);
    fillRounded(p, pic.united(water).adjusted(-1.2, -1.2, 1.2, 1.2), 1.5, Qt::white);
    drawScene(p, pic, dayScene());
    p.fillRect(water, rgb(0x2f5f9a));
    QLinearGradient fade(water.topLeft(), water.bottomLeft());
    fade.setColorAt(0, QColor(0, 0, 0, 210));
    fade.setColorAt(1, QColor(0, 0, 0, 70));
    drawMasked(p, water, fade, [&](QPainter& lp) {
        lp.translate(0, pic.bottom() + water.top());
        lp.scale(1, -1);
        drawScene(lp, pic, dayScene());
    });
    p.fillRect(water, QColor(40, 110, 190, 60));
    p.save();
    p.setPen(QPen(QColor(255, 255, 255, 150), 0.7, Qt::SolidLine, Qt::RoundCap));
    const qreal ripples[][3] = {{8, 34, 14}, {30, 37, 20}, {12, 42, 18}, {36, 45, 16}, {10, 50, 22}, {40, 52, 12}};
    for (const auto& r : ripples)
        p.drawLine(QPointF(r[0], r[1]), QPointF(r[0] + r[2], r[1]));
    p.restore();
    strokeRounded(p, pic.united(water).adjusted(-1.2, -1.2, 1.2, 1.2), 1.5, rgb(0xb8c2d0), 0.5);

    // A cube turning with a picture on each face.
    const QPointF tl(70, 18), tf(86, 24), tr(104, 17), tb(88, 11);
    const QPointF bl(70, 38), bf(86, 44), br(104, 37);
    auto face = [&](const QPolygonF& quad, const Scene& s, const QColor& shade) {
        const QPolygonF src{QPointF(0, 0), QPointF(30, 0), QPointF(30, 24), QPointF(0, 24)};
        QTransform t;
        if (!QTransform::quadToQuad(src, quad, t))
            return;
        p.save();
        p.setTransform(t, true);
        drawScene(p, QRectF(0, 0, 30, 24), s);
        p.fillRect(QRectF(0, 0, 30, 24), shade);
        p.restore();
    };
    softShadow(p, QRectF(72, 40, 30, 4), 2, 0.8);
    face(QPolygonF{tl, tf, bf, bl}, dayScene(), QColor(0, 0, 0, 0));
    face(QPolygonF{tf, tr, br, bf}, sunsetScene(), QColor(0, 0, 0, 45));
    face(QPolygonF{tl, tb, tr, tf}, nightScene(), QColor(255, 255, 255, 30));
    p.save();
    p.setPen(QPen(rgb(kSlate), 0.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.setBrush(Qt::NoBrush);
    p.drawPolygon(QPolygonF{tl, tb, tr, br, bf, bl});
    p.drawLine(tl, tf);
    p.drawLine(tf, tr);
    p.drawLine(tf, bf);
    p.restore();

    QPainterPath orbit;
    const QRectF ell(63, 40, 48, 14);
    orbit.arcMoveTo(ell, 200);
    orbit.arcTo(ell, 200, 135);
    p.save();
    p.setPen(QPen(rgb(kBlue), 1.5, Qt::SolidLine, Qt::RoundCap));
    p.setBrush(Qt::NoBrush);
    p.drawPath(orbit);
    p.restore();
    const qreal a = qDegreesToRadians(orbit.angleAtPercent(1));
    arrowHead(p, orbit.pointAtPercent(1) + QPointF(std::cos(a), -std::sin(a)) * 2.0,
              QPointF(std::cos(a), -std::sin(a)), 4.2, rgb(kBlue));
}

void drawBBWizard(QPainter& p, const QRectF&)
{
    // Legs and board.
    const QRectF board(8, 4, 86, 36);
    p.save();
    p.setPen(Qt::NoPen);
    for (qreal x : {26.0, 72.0}) {
        const QRectF leg(x, 38, 4, 19);
        p.fillRect(leg, hGradient(leg, rgb(0x8894a6), rgb(0x4b5567)));
    }
    p.restore();
    softShadow(p, board, 2);
    fillRounded(p, board, 2, vGradient(board, rgb(0x4b5565), rgb(0x2b313c)));
    const QRectF face = board.adjusted(2.2, 2.2, -2.2, -2.2);

    // A three-sided billboard caught mid-turn: each slat shows part of the
    // first advert and part of the next.
    const int slats = 10;
    const qreal sw = face.width() / slats;
    QPainterPath first, second;
    for (int i = 0; i < slats; ++i) {
        const qreal x = face.left() + i * sw;
        first.addRect(QRectF(x, face.top(), sw * 0.66, face.height()));
        second.addRect(QRectF(x + sw * 0.66, face.top(), sw * 0.34, face.height()));
    }
    p.save();
    p.setClipPath(first, Qt::IntersectClip);
    p.fillRect(face, vGradient(face, rgb(0xffa23a), rgb(0xe2457a)));
    label(p, face, QStringLiteral("SALE"), 16, Qt::white, Qt::AlignCenter, true);
    p.restore();
    p.save();
    p.setClipPath(second, Qt::IntersectClip);
    p.fillRect(face, vGradient(face, rgb(0x4c8dff), rgb(0x2a4fa8)));
    p.fillRect(face, QColor(0, 0, 0, 50));
    p.restore();
    p.save();
    p.setPen(QPen(QColor(0, 0, 0, 90), 0.5));
    for (int i = 1; i < slats; ++i) {
        const qreal x = face.left() + i * sw;
        p.drawLine(QPointF(x, face.top()), QPointF(x, face.bottom()));
    }
    p.restore();
    wand(p, QPointF(100, 57), QPointF(115, 26));
}

void drawAnimWizard(QPainter& p, const QRectF&)
{
    const QRectF win(4, 3, 86, 54);
    const QRectF body = windowFrame(p, win, rgb(kPurple), false);
    label(p, QRectF(win.left() + 4, win.top(), 60, 8), QStringLiteral("Wizard"), 5.5, Qt::white,
          Qt::AlignLeft | Qt::AlignVCenter, true);

    // step 1 done, step 2 current, step 3 to come
    const qreal sy = body.top() + 7;
    const qreal sx[] = {20, 47, 74};
    p.save();
    p.setPen(QPen(rgb(0xc3ccd8), 1.2));
    p.drawLine(QPointF(sx[0], sy), QPointF(sx[2], sy));
    p.setPen(QPen(rgb(kGreen), 1.2));
    p.drawLine(QPointF(sx[0], sy), QPointF(sx[1], sy));
    p.setPen(Qt::NoPen);
    p.setBrush(rgb(kGreen));
    p.drawEllipse(QPointF(sx[0], sy), 4.3, 4.3);
    p.setBrush(rgb(kPurple));
    p.drawEllipse(QPointF(sx[1], sy), 4.3, 4.3);
    p.setPen(QPen(rgb(0xb0bac8), 0.8));
    p.setBrush(Qt::white);
    p.drawEllipse(QPointF(sx[2], sy), 4.0, 4.0);
    QPainterPath check;
    check.moveTo(sx[0] - 2.0, sy + 0.1);
    check.lineTo(sx[0] - 0.5, sy + 1.7);
    check.lineTo(sx[0] + 2.2, sy - 1.6);
    p.setPen(QPen(Qt::white, 1.1, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.setBrush(Qt::NoBrush);
    p.drawPath(check);
    p.restore();
    label(p, QRectF(sx[1] - 4, sy - 4, 8, 8), QStringLiteral("2"), 6, Qt::white, Qt::AlignCenter, true);
    label(p, QRectF(sx[2] - 4, sy - 4, 8, 8), QStringLiteral("3"), 6, rgb(0x8190a5), Qt::AlignCenter, true);

    // the animation being made: a star moving along a path, onion-skinned
    const QRectF stage(10, body.top() + 14, 74, 17);
    fillRounded(p, stage, 1.5, vGradient(stage, rgb(0xeef3fb), rgb(0xdfe7f3)));
    strokeRounded(p, stage, 1.5, rgb(0xc3ccd8), 0.5);
    QPainterPath path;
    path.moveTo(16, stage.bottom() - 3);
    path.quadTo(46, stage.top() - 6, 76, stage.bottom() - 3);
    p.save();
    p.setPen(QPen(rgb(kPurple, 140), 0.7, Qt::DashLine));
    p.setBrush(Qt::NoBrush);
    p.drawPath(path);
    p.setPen(Qt::NoPen);
    const qreal ts[] = {0.12, 0.34, 0.56, 0.78};
    for (int i = 0; i < 4; ++i) {
        p.setBrush(rgb(kOrange, 60 + 65 * i));
        p.drawPath(starPath(path.pointAtPercent(ts[i]), 3.6, 1.6, 5));
    }
    p.restore();

    pushButton(p, QRectF(34, body.bottom() - 10, 23, 7.5), QStringLiteral("\u2039 Back"), rgb(0xf6f8fb),
               rgb(0xdbe1ea), rgb(0xa3adbd), rgb(kInk), 4.8, 1.5);
    pushButton(p, QRectF(61, body.bottom() - 10, 24, 7.5), QStringLiteral("Next \u203a"), rgb(0x9c82ee),
               rgb(kPurple), rgb(0x5a3fb0), Qt::white, 4.8, 1.5);

    wand(p, QPointF(96, 57), QPointF(114, 18));
}

void drawStatusBar(QPainter& p, const QRectF&)
{
    const QRectF win(4, 2, 112, 56);
    const QRectF body = windowFrame(p, win, rgb(0xcfd6e0));
    // address bar
    const QRectF addr(20, win.top() + 1.8, 90, 4.6);
    fillRounded(p, addr, 2.3, Qt::white);
    textBars(p, addr.left() + 3, addr.top() + 1.6, {30}, 0, rgb(0xb7c1cf), 1.4);
    // page content
    const QRectF img(10, body.top() + 5, 22, 17);
    fillRounded(p, img, 1, rgb(0xdbe6f5));
    drawScene(p, img, dayScene());
    textBars(p, 37, body.top() + 6, {60, 52, 66, 40}, 4.5, rgb(0xcbd3de), 2.0);

    // the status bar, text running through it
    const QRectF status(win.left(), win.bottom() - 12, win.width(), 12);
    p.save();
    QPainterPath clip;
    clip.addRoundedRect(win, 2.5, 2.5);
    p.setClipPath(clip, Qt::IntersectClip);
    p.fillRect(status, vGradient(status, rgb(0xeef1f6), rgb(0xdde2ea)));
    p.setPen(QPen(rgb(0xb3bdcb), 0.6));
    p.drawLine(status.topLeft(), status.topRight());
    p.restore();
    const QRectF textArea = status.adjusted(3, 0, -15, 0);
    QLinearGradient mask(textArea.topLeft(), textArea.topRight());
    mask.setColorAt(0, QColor(0, 0, 0, 0));
    mask.setColorAt(0.12, QColor(0, 0, 0, 255));
    mask.setColorAt(0.94, QColor(0, 0, 0, 255));
    mask.setColorAt(1, QColor(0, 0, 0, 0));
    drawMasked(p, textArea, mask, [&](QPainter& lp) {
        label(lp, QRectF(textArea.left() - 8, status.top(), 140, status.height()),
              QStringLiteral("Welcome to my home page!"), 7, rgb(kInk), Qt::AlignLeft | Qt::AlignVCenter, true);
    });
    strokeRounded(p, status.adjusted(0.8, 0.8, -0.8, -0.8), 1.5, rgb(kOrange), 1.2);
    arrowHead(p, QPointF(104.5, status.center().y()), QPointF(-1, 0), 3.4, rgb(kOrange));
    arrowHead(p, QPointF(109.5, status.center().y()), QPointF(-1, 0), 3.4, rgb(kOrange, 140));
}

void drawTyper(QPainter& p, const QRectF&)
{
    // paper coming out of the roller
    const QRectF paper(27, 2, 66, 36);
    softShadow(p, paper, 0.5);
    p.fillRect(paper, Qt::white);
    p.save();
    p.setPen(QPen(rgb(0xc5ccd6), 0.5));
    p.drawRect(paper);
    p.restore();
    const qreal px = 8;
    label(p, QRectF(paper.left() + 4, paper.top() + 4, 60, 9), QStringLiteral("Hello there,"), px, rgb(kInk),
          Qt::AlignLeft | Qt::AlignVCenter, true, true);
    const QString typed = QStringLiteral("Welcome t");
    const QRectF line2(paper.left() + 4, paper.top() + 14, 60, 9);
    label(p, line2, typed, px, rgb(kInk), Qt::AlignLeft | Qt::AlignVCenter, true, true);
    const qreal cx = line2.left() + textWidth(typed, px, true, true) + 0.6;
    p.fillRect(QRectF(cx, line2.top() + 0.8, 1.2, 7.6), rgb(kRed));

    // roller
    const QRectF roller(18, 35, 84, 6);
    fillRounded(p, roller, 3, vGradient(roller, rgb(0x5b6576), rgb(0x1f242d)));
    fillRounded(p, QRectF(12, 34, 7, 8), 2, vGradient(QRectF(12, 34, 7, 8), rgb(0x9aa5b5), rgb(0x4b5567)));
    fillRounded(p, QRectF(101, 34, 7, 8), 2, vGradient(QRectF(101, 34, 7, 8), rgb(0x9aa5b5), rgb(0x4b5567)));

    // body with round keys
    QPainterPath body;
    body.moveTo(14, 42);
    body.lineTo(106, 42);
    body.lineTo(114, 59);
    body.lineTo(6, 59);
    body.closeSubpath();
    p.save();
    p.setPen(Qt::NoPen);
    p.setBrush(vGradient(QRectF(6, 42, 108, 17), rgb(0x46505f), rgb(0x262b34)));
    p.drawPath(body);
    p.setBrush(rgb(0xf1f4f8));
    p.setPen(QPen(rgb(0x11151b), 0.5));
    for (int i = 0; i < 10; ++i)
        p.drawEllipse(QPointF(24 + i * 8.0, 47), 2.4, 2.4);
    for (int i = 0; i < 9; ++i)
        p.drawEllipse(QPointF(28 + i * 8.0, 53.2), 2.4, 2.4);
    // the key just struck
    p.setBrush(rgb(kRed));
    p.drawEllipse(QPointF(24 + 4 * 8.0, 47.5), 2.2, 2.2);
    p.restore();
}

void drawNavTicker(QPainter& p, const QRectF&)
{
    const QRectF box(5, 8, 110, 44);
    softShadow(p, box, 3);
    fillRounded(p, box, 3, Qt::white);
    const QRectF tab(box.left(), box.top(), 24, box.height());
    p.save();
    QPainterPath clip;
    clip.addRoundedRect(box, 3, 3);
    p.setClipPath(clip, Qt::IntersectClip);
    p.fillRect(tab, vGradient(tab, rgb(0xe8544b), rgb(0xb8322b)));
    p.restore();
    label(p, tab.adjusted(0, 0, 0, -8), QStringLiteral("NEWS"), 6.2, Qt::white, Qt::AlignCenter, true);
    arrowHead(p, QPointF(tab.center().x(), tab.bottom() - 12), QPointF(0, -1), 3.5, Qt::white);
    arrowHead(p, QPointF(tab.center().x(), tab.bottom() - 7.5), QPointF(0, -1), 3.5, QColor(255, 255, 255, 150));

    // linked headlines scrolling upwards
    const QRectF list(tab.right() + 3, box.top() + 1, box.right() - tab.right() - 5, box.height() - 2);
    QLinearGradient mask(list.topLeft(), list.bottomLeft());
    mask.setColorAt(0, QColor(0, 0, 0, 0));
    mask.setColorAt(0.22, QColor(0, 0, 0, 255));
    mask.setColorAt(0.8, QColor(0, 0, 0, 255));
    mask.setColorAt(1, QColor(0, 0, 0, 0));
    struct Item {
        const char* text;
        qreal y;
        bool hover;
    };
    const Item items[] = {{"Top stories today", 0.5, false},
                          {"Latest headlines", 13.5, false},
                          {"Visit our shop", 26.5, true},
                          {"Contact us", 39.5, false}};
    drawMasked(p, list, mask, [&](QPainter& lp) {
        for (const Item& it : items) {
            const QString s = QString::fromLatin1(it.text) + QStringLiteral(" \u00bb");
            const QColor c = it.hover ? rgb(kRed) : rgb(0x1d4ed8);
            const QRectF r(list.left() + 2, list.top() + it.y, list.width() - 4, 9);
            label(lp, r, s, 7, c, Qt::AlignLeft | Qt::AlignVCenter, true);
            const qreal w = textWidth(s, 7, true);
            lp.setPen(QPen(c, 0.6));
            lp.drawLine(QPointF(r.left(), r.bottom() - 0.2), QPointF(r.left() + w, r.bottom() - 0.2));
        }
    });
    strokeRounded(p, box, 3, rgb(0xa9b4c4), 0.6);
    handCursor(p, QPointF(74, 43), 0.95);
}

void drawSmoothScroll(QPainter& p, const QRectF& view)
{
    const QRectF band(view.left(), 14, view.width(), 26);
    p.fillRect(band, vGradient(band, rgb(0x1e2a5a), rgb(0x101733)));
    p.save();
    p.setPen(QPen(rgb(0x5b6fb5), 0.6));
    p.drawLine(band.topLeft(), band.topRight());
    p.drawLine(band.bottomLeft(), band.bottomRight());
    p.restore();

    QLinearGradient mask(band.topLeft(), band.topRight());
    mask.setColorAt(0, QColor(0, 0, 0, 0));
    mask.setColorAt(0.15, QColor(0, 0, 0, 255));
    mask.setColorAt(0.85, QColor(0, 0, 0, 255));
    mask.setColorAt(1, QColor(0, 0, 0, 0));
    const QString text = QStringLiteral("Smooth scrolling text");
    drawMasked(p, band, mask, [&](QPainter& lp) {
        const QRectF r(6, band.top(), 160, band.height());
        label(lp, r, text, 12, rgb(0xffd54a), Qt::AlignLeft | Qt::AlignVCenter, true);
    });

    // direction of travel
    arrowLine(p, QPointF(96, 49), QPointF(24, 49), 2.0, rgb(kBlue), 5.5);
    p.save();
    p.setPen(QPen(rgb(kBlue, 110), 1.2, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(100, 49), QPointF(104, 49));
    p.setPen(QPen(rgb(kBlue, 60), 1.2, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(107, 49), QPointF(109, 49));
    p.restore();
    arrowLine(p, QPointF(70, 7), QPointF(46, 7), 1.2, rgb(kBlue, 120), 3.5);
}

void drawFadeMsg(QPainter& p, const QRectF&)
{
    // The message, coming in from nothing and going out again.
    const QString text = QStringLiteral("Hello!");
    const QRectF r(2, 2, 116, 30);
    const qreal w = textWidth(text, 21, true);
    QLinearGradient mask(QPointF(60 - w / 2 - 4, 0), QPointF(60 + w / 2 + 4, 0));
    mask.setColorAt(0, QColor(0, 0, 0, 25));
    mask.setColorAt(0.38, QColor(0, 0, 0, 255));
    mask.setColorAt(0.62, QColor(0, 0, 0, 255));
    mask.setColorAt(1, QColor(0, 0, 0, 25));
    drawMasked(p, r, mask, [&](QPainter& lp) { label(lp, r, text, 21, rgb(kPurple), Qt::AlignCenter, true); });

    // The opacity over time: fade in, hold, fade out.
    const QRectF graph(12, 36, 96, 20);
    QPainterPath curve;
    curve.moveTo(graph.left(), graph.bottom());
    curve.cubicTo(graph.left() + 14, graph.bottom(), graph.left() + 16, graph.top(), graph.left() + 30,
                  graph.top());
    curve.lineTo(graph.right() - 30, graph.top());
    curve.cubicTo(graph.right() - 16, graph.top(), graph.right() - 14, graph.bottom(), graph.right(),
                  graph.bottom());
    QPainterPath area = curve;
    area.closeSubpath();
    p.save();
    p.setPen(Qt::NoPen);
    p.setBrush(vGradient(graph, rgb(kPurple, 110), rgb(kPurple, 10)));
    p.drawPath(area);
    p.setPen(QPen(rgb(kPurple), 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.setBrush(Qt::NoBrush);
    p.drawPath(curve);
    p.setPen(QPen(rgb(0x8b97aa), 0.7));
    p.drawLine(QPointF(graph.left() - 3, graph.bottom() + 0.5), QPointF(graph.right() + 3, graph.bottom() + 0.5));
    p.restore();
    label(p, QRectF(graph.left() - 4, graph.top() - 1, 16, 8), QStringLiteral("in"), 6, rgb(0x475569),
          Qt::AlignCenter, true);
    label(p, QRectF(graph.right() - 12, graph.top() - 1, 16, 8), QStringLiteral("out"), 6, rgb(0x475569),
          Qt::AlignCenter, true);
}

void drawSwirly(QPainter& p, const QRectF&)
{
    const QString word = QStringLiteral("Swirly!");
    const unsigned colors[] = {kRed, kOrange, 0xe0a800, kGreen, kTeal, kBlue, kPurple};
    const qreal px = 17;
    qreal total = 0;
    for (const QChar ch : word)
        total += textWidth(QString(ch), px, true) + 1.2;
    // a faint swirl behind the letters
    QPainterPath swirl;
    for (int i = 0; i <= 160; ++i) {
        const qreal t = i / 160.0;
        const qreal a = t * 4.2 * M_PI;
        const qreal rad = 3 + t * 24;
        const QPointF pt(60 + rad * std::cos(a) * 1.9, 30 + rad * std::sin(a) * 0.95);
        if (i == 0)
            swirl.moveTo(pt);
        else
            swirl.lineTo(pt);
    }
    p.save();
    QLinearGradient rainbow(QPointF(10, 0), QPointF(110, 0));
    rainbow.setColorAt(0, rgb(kPink, 70));
    rainbow.setColorAt(0.5, rgb(kTeal, 70));
    rainbow.setColorAt(1, rgb(kPurple, 70));
    p.setPen(QPen(QBrush(rainbow), 1.3, Qt::SolidLine, Qt::RoundCap));
    p.setBrush(Qt::NoBrush);
    p.drawPath(swirl);
    p.restore();

    qreal x = 60 - total / 2;
    int i = 0;
    for (const QChar ch : word) {
        const qreal w = textWidth(QString(ch), px, true);
        const qreal cx = x + w / 2;
        const qreal phase = (cx - 60) * 0.1;
        const qreal cy = 30 - 6.5 * std::sin(phase);
        const qreal slope = -6.5 * 0.1 * std::cos(phase);
        p.save();
        p.translate(cx, cy);
        p.rotate(qRadiansToDegrees(std::atan(slope)));
        const qreal size = px * (i % 2 == 0 ? 1.0 : 0.84);
        const QRectF r(-w, -size, 2 * w, 2 * size);
        label(p, r.translated(0.7, 0.9), QString(ch), size, QColor(0, 0, 0, 45), Qt::AlignCenter, true);
        label(p, r, QString(ch), size, rgb(colors[i % 7]), Qt::AlignCenter, true);
        p.restore();
        x += w + 1.2;
        ++i;
    }
}

void drawCredits(QPainter& p, const QRectF& view)
{
    p.fillRect(view, vGradient(view, rgb(0x1b1e29), rgb(0x07080c)));
    const QRectF area(view.left(), view.top(), view.width(), view.height());
    QLinearGradient mask(area.topLeft(), area.bottomLeft());
    mask.setColorAt(0, QColor(0, 0, 0, 0));
    mask.setColorAt(0.28, QColor(0, 0, 0, 255));
    mask.setColorAt(0.8, QColor(0, 0, 0, 255));
    mask.setColorAt(1, QColor(0, 0, 0, 90));
    struct Line {
        const char* text;
        bool name;
    };
    const Line lines[] = {{"Directed by", false}, {"JANE DOE", true},  {"Music", false},
                          {"JOHN SMITH", true},   {"Starring", false}, {"ALEX KIM", true}};
    const qreal cx = 52;
    drawMasked(p, area, mask, [&](QPainter& lp) {
        qreal y = 0.5;
        for (const Line& l : lines) {
            const qreal h = l.name ? 9.5 : 7.5;
            label(lp, QRectF(cx - 40, y, 80, h), QString::fromLatin1(l.text), l.name ? 7.2 : 5.8,
                  l.name ? rgb(0xf5f5f5) : rgb(0xe9c46a), Qt::AlignCenter, l.name);
            y += h + (l.name ? 1.5 : 0);
        }
    });
    arrowLine(p, QPointF(104, 50), QPointF(104, 10), 1.6, QColor(255, 255, 255, 190), 5);
    p.save();
    p.setPen(QPen(QColor(255, 255, 255, 70), 1.0, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(110, 44), QPointF(110, 22));
    p.drawLine(QPointF(98, 46), QPointF(98, 28));
    p.restore();
}

void drawPopupAlert(QPainter& p, const QRectF&)
{
    // the page underneath, dimmed
    const QRectF page(4, 3, 112, 54);
    const QRectF body = windowFrame(p, page, rgb(0xcfd6e0));
    textBars(p, 10, body.top() + 5, {70, 90, 60, 84, 48}, 8, rgb(0xcbd3de), 2.4);
    p.save();
    QPainterPath clip;
    clip.addRoundedRect(page, 2.5, 2.5);
    p.setClipPath(clip, Qt::IntersectClip);
    p.fillRect(page, QColor(15, 23, 42, 70));
    p.restore();

    // the alert box
    const QRectF box(24, 11, 72, 40);
    softShadow(p, box, 2.5, 2.0);
    fillRounded(p, box, 2.5, rgb(0xf8fafc));
    const QRectF title(box.left(), box.top(), box.width(), 9);
    p.save();
    QPainterPath bclip;
    bclip.addRoundedRect(box, 2.5, 2.5);
    p.setClipPath(bclip, Qt::IntersectClip);
    p.fillRect(title, vGradient(title, rgb(0x5b8cf0), rgb(kBlue)));
    p.restore();
    label(p, title.adjusted(4, 0, 0, 0), QStringLiteral("Alert"), 6, Qt::white, Qt::AlignLeft | Qt::AlignVCenter,
          true);
    label(p, QRectF(title.right() - 9, title.top(), 8, 9), QStringLiteral("\u00d7"), 7.5, Qt::white,
          Qt::AlignCenter, true);
    strokeRounded(p, box, 2.5, rgb(0x7d8ba0), 0.6);

    // warning sign
    QPainterPath tri;
    const QPointF top(37, 23), left(29.5, 36), right(44.5, 36);
    tri.moveTo(top);
    tri.lineTo(right);
    tri.lineTo(left);
    tri.closeSubpath();
    p.save();
    p.setPen(QPen(rgb(0xd89b00), 1.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.setBrush(rgb(0xffcc33));
    p.drawPath(tri);
    p.restore();
    label(p, QRectF(33, 25.5, 8, 11), QStringLiteral("!"), 9, rgb(0x3b2b00), Qt::AlignCenter, true);
    textBars(p, 50, 25, {38, 30}, 5, rgb(0x94a3b8), 2.2);
    pushButton(p, QRectF(68, 40, 22, 8), QStringLiteral("OK"), rgb(0x6f9cf5), rgb(kBlue), rgb(kBlueDark),
               Qt::white, 5.5, 1.5);

    // it has just popped up
    p.save();
    p.setPen(QPen(rgb(kOrange), 1.3, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(99, 9), QPointF(104, 5));
    p.drawLine(QPointF(100, 13), QPointF(107, 12));
    p.drawLine(QPointF(95, 7), QPointF(97, 2));
    p.restore();
}

// One digit of a seven-segment display.
void sevenSegment(QPainter& p, const QRectF& box, int digit, const QColor& on, const QColor& off)
{
    static const int masks[10] = {0x3f, 0x06, 0x5b, 0x4f, 0x66, 0x6d, 0x7d, 0x07, 0x7f, 0x6f};
    const qreal t = box.width() * 0.22;
    const qreal g = t * 0.18;
    const qreal x0 = box.left() + t / 2, x1 = box.right() - t / 2;
    const qreal y0 = box.top() + t / 2, ym = box.center().y(), y1 = box.bottom() - t / 2;
    auto hseg = [&](qreal a, qreal b, qreal y) {
        a += g;
        b -= g;
        return QPolygonF{{a, y}, {a + t / 2, y - t / 2}, {b - t / 2, y - t / 2}, {b, y}, {b - t / 2, y + t / 2},
                         {a + t / 2, y + t / 2}};
    };
    auto vseg = [&](qreal x, qreal a, qreal b) {
        a += g;
        b -= g;
        return QPolygonF{{x, a}, {x + t / 2, a + t / 2}, {x + t / 2, b - t / 2}, {x, b}, {x - t / 2, b - t / 2},
                         {x - t / 2, a + t / 2}};
    };
    const QPolygonF segs[7] = {hseg(x0, x1, y0), vseg(x1, y0, ym), vseg(x1, ym, y1), hseg(x0, x1, y1),
                               vseg(x0, ym, y1), vseg(x0, y0, ym), hseg(x0, x1, ym)};
    const int m = masks[qBound(0, digit, 9)];
    p.save();
    p.setPen(Qt::NoPen);
    for (int i = 0; i < 7; ++i) {
        p.setBrush((m >> i) & 1 ? on : off);
        p.drawPolygon(segs[i]);
    }
    p.restore();
}

void drawClock(QPainter& p, const QRectF&)
{
    const QRectF panel(9, 3, 102, 54);
    softShadow(p, panel, 5, 1.3);
    fillRounded(p, panel, 5, vGradient(panel, rgb(0x4a5263), rgb(0x262b35)));
    const QRectF screen = panel.adjusted(4, 4, -4, -4);
    fillRounded(p, screen, 3, vGradient(screen, rgb(0x0f1a1f), rgb(0x07100f)));
    strokeRounded(p, screen, 3, QColor(0, 0, 0, 160), 0.6);

    const QColor on = rgb(0x4cf2b5), off = rgb(0x4cf2b5, 22);
    const qreal dw = 13, dh = 25, top = screen.top() + 5;
    const qreal xs[] = {25, 41, 66, 82};
    const int digits[] = {1, 2, 4, 5};
    // glow
    p.save();
    QRadialGradient glow(QPointF(60, top + dh / 2), 50);
    glow.setColorAt(0, rgb(0x4cf2b5, 40));
    glow.setColorAt(1, rgb(0x4cf2b5, 0));
    p.setPen(Qt::NoPen);
    p.setBrush(glow);
    p.drawRoundedRect(screen, 3, 3);
    p.restore();
    for (int i = 0; i < 4; ++i) {
        p.save();
        p.translate(xs[i] + dw / 2, top + dh / 2);
        p.shear(-0.08, 0);
        sevenSegment(p, QRectF(-dw / 2, -dh / 2, dw, dh), digits[i], on, off);
        p.restore();
    }
    p.save();
    p.setPen(Qt::NoPen);
    p.setBrush(on);
    p.drawEllipse(QPointF(60.5, top + dh * 0.32), 1.6, 1.6);
    p.drawEllipse(QPointF(59.5, top + dh * 0.7), 1.6, 1.6);
    p.restore();
    label(p, QRectF(96, top, 12, 7), QStringLiteral("PM"), 5, on, Qt::AlignLeft | Qt::AlignVCenter, true);
    label(p, QRectF(screen.left(), top + dh + 2, screen.width(), 9), QStringLiteral("MON  14 JUNE"), 6.5, on,
          Qt::AlignCenter, true, true);
}

void musicNote(QPainter& p, const QPointF& head, qreal s, const QColor& color, bool pair)
{
    p.save();
    p.translate(head);
    p.scale(s, s);
    p.setPen(Qt::NoPen);
    p.setBrush(color);
    auto noteHead = [&](const QPointF& c) {
        p.save();
        p.translate(c);
        p.rotate(-22);
        p.drawEllipse(QPointF(0, 0), 2.6, 1.85);
        p.restore();
    };
    noteHead(QPointF(0, 0));
    p.setPen(QPen(color, 0.9, Qt::SolidLine, Qt::FlatCap));
    p.drawLine(QPointF(2.3, -0.6), QPointF(2.3, -10.5));
    if (pair) {
        p.setPen(Qt::NoPen);
        noteHead(QPointF(8, -2));
        p.setPen(QPen(color, 0.9, Qt::SolidLine, Qt::FlatCap));
        p.drawLine(QPointF(10.3, -2.6), QPointF(10.3, -12.5));
        p.setPen(Qt::NoPen);
        p.drawPolygon(QPolygonF{{1.85, -10.5}, {10.75, -12.5}, {10.75, -10.3}, {1.85, -8.3}});
    } else {
        QPainterPath flag;
        flag.moveTo(2.3, -10.5);
        flag.cubicTo(3.0, -7.5, 6.5, -7.0, 5.2, -3.5);
        flag.cubicTo(5.6, -6.0, 3.8, -7.0, 2.3, -7.6);
        p.setPen(Qt::NoPen);
        p.drawPath(flag);
    }
    p.restore();
}

void drawSound(QPainter& p, const QRectF&)
{
    // speaker
    const QRectF magnet(22, 22, 10, 16);
    QPainterPath cone;
    cone.moveTo(32, 22);
    cone.lineTo(45, 11);
    cone.lineTo(45, 49);
    cone.lineTo(32, 38);
    cone.closeSubpath();
    p.save();
    p.setPen(QPen(rgb(0x1e2530), 0.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.setBrush(vGradient(magnet, rgb(0x6b7688), rgb(0x2f3642)));
    p.drawRoundedRect(magnet, 1.5, 1.5);
    p.setBrush(hGradient(QRectF(32, 11, 13, 38), rgb(0x3c4452), rgb(0x7a879b)));
    p.drawPath(cone);
    p.restore();

    // sound waves
    const QPointF c(45, 30);
    p.save();
    p.setBrush(Qt::NoBrush);
    for (int i = 0; i < 3; ++i) {
        const qreal r = 8 + i * 7.5;
        p.setPen(QPen(rgb(kBlue, 255 - 60 * i), 2.6 - 0.3 * i, Qt::SolidLine, Qt::RoundCap));
        QPainterPath arc;
        const QRectF rr(c.x() - r, c.y() - r, 2 * r, 2 * r);
        arc.arcMoveTo(rr, -42);
        arc.arcTo(rr, -42, 84);
        p.drawPath(arc);
    }
    p.restore();

    musicNote(p, QPointF(86, 22), 1.1, rgb(kPurple), false);
    musicNote(p, QPointF(93, 46), 1.0, rgb(kPink), true);
}

void drawPulldown(QPainter& p, const QRectF&)
{
    const QRectF combo(6, 4, 74, 12);
    softShadow(p, combo, 1.5, 0.6);
    fillRounded(p, combo, 1.5, Qt::white);
    strokeRounded(p, combo, 1.5, rgb(0x8d9aae), 0.7);
    label(p, combo.adjusted(4, 0, -12, 0), QStringLiteral("Choose a page"), 6.8, rgb(kInk),
          Qt::AlignLeft | Qt::AlignVCenter);
    const QRectF drop(combo.right() - 11, combo.top(), 11, combo.height());
    p.save();
    QPainterPath clip;
    clip.addRoundedRect(combo, 1.5, 1.5);
    p.setClipPath(clip, Qt::IntersectClip);
    p.fillRect(drop, vGradient(drop, rgb(0xeef2f7), rgb(0xd5dce6)));
    p.setPen(QPen(rgb(0x8d9aae), 0.6));
    p.drawLine(drop.topLeft(), drop.bottomLeft());
    p.restore();
    arrowHead(p, QPointF(drop.center().x(), drop.center().y() + 2), QPointF(0, 1), 3.6, rgb(kSlate));

    // the open list
    const QRectF list(6, 16, 74, 40);
    softShadow(p, list, 1, 1.2);
    p.fillRect(list, Qt::white);
    const char* items[] = {"Home", "About us", "Gallery", "Contact us"};
    const qreal ih = 9.5;
    for (int i = 0; i < 4; ++i) {
        const QRectF row(list.left() + 1, list.top() + 1 + i * ih, list.width() - 2, ih);
        const bool hot = i == 2;
        if (hot)
            p.fillRect(row, vGradient(row, rgb(0x5b8cf0), rgb(kBlue)));
        label(p, row.adjusted(4, 0, 0, 0), QString::fromLatin1(items[i]), 6.8, hot ? QColor(Qt::white) : rgb(kInk),
              Qt::AlignLeft | Qt::AlignVCenter);
    }
    p.save();
    p.setPen(QPen(rgb(0x8d9aae), 0.6));
    p.setBrush(Qt::NoBrush);
    p.drawRect(list);
    p.restore();

    pushButton(p, QRectF(86, 4, 28, 12), QStringLiteral("Go"), rgb(0x5fd07e), rgb(0x269447), rgb(0x1b6e34),
               Qt::white, 7.5, 2);
    arrowCursor(p, QPointF(56, 38), 1.0);
}

void drawFade(QPainter& p, const QRectF&)
{
    const QRectF win(5, 3, 110, 54);
    const QRectF body = windowFrame(p, win, rgb(0xcfd6e0));
    p.save();
    QPainterPath clip;
    clip.addRoundedRect(win, 2.5, 2.5);
    p.setClipPath(clip, Qt::IntersectClip);
    QLinearGradient bg(body.topLeft(), body.topRight());
    bg.setColorAt(0, rgb(0xffd84d));
    bg.setColorAt(0.5, rgb(0xff7a7a));
    bg.setColorAt(1, rgb(0x6a4bd1));
    p.fillRect(body, bg);
    p.restore();
    strokeRounded(p, win, 2.5, rgb(0xa9b4c4), 0.6);
    textBars(p, 14, body.top() + 6, {52, 70, 40}, 5, QColor(255, 255, 255, 170), 2.2);

    // from one colour to the other
    const QPointF a(26, 45), b(94, 45);
    p.save();
    p.setPen(QPen(Qt::white, 1.4));
    p.setBrush(rgb(0xffd84d));
    p.drawEllipse(a, 6, 6);
    p.setBrush(rgb(0x6a4bd1));
    p.drawEllipse(b, 6, 6);
    p.restore();
    arrowLine(p, QPointF(36, 45), QPointF(84, 45), 2.0, Qt::white, 5.5);
}

void drawPassword(QPainter& p, const QRectF&)
{
    // padlock
    const QRectF body(10, 27, 28, 25);
    QPainterPath shackle;
    const QRectF arcRect(15, 10, 18, 22);
    shackle.moveTo(15, 29);
    shackle.lineTo(15, 21);
    shackle.arcTo(arcRect, 180, -180);
    shackle.lineTo(33, 29);
    p.save();
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(rgb(0x5f6b7c), 4.6, Qt::SolidLine, Qt::FlatCap));
    p.drawPath(shackle);
    p.setPen(QPen(rgb(0xc5ced9), 2.6, Qt::SolidLine, Qt::FlatCap));
    p.drawPath(shackle);
    p.restore();
    softShadow(p, body, 3.5);
    fillRounded(p, body, 3.5, vGradient(body, rgb(0xffd65c), rgb(0xe0a11b)));
    strokeRounded(p, body, 3.5, rgb(0xa8750d), 0.8);
    fillRounded(p, QRectF(body.left() + 2, body.top() + 1.5, body.width() - 4, 4), 2, QColor(255, 255, 255, 90));
    p.save();
    p.setPen(Qt::NoPen);
    p.setBrush(rgb(0x4a3608));
    p.drawEllipse(QPointF(24, 36.5), 3.0, 3.0);
    p.drawPolygon(QPolygonF{{22.6, 38}, {25.4, 38}, {26.3, 45.5}, {21.7, 45.5}});
    p.restore();

    // the password field and button
    label(p, QRectF(47, 9, 60, 8), QStringLiteral("Password:"), 6.8, rgb(kInk), Qt::AlignLeft | Qt::AlignVCenter,
          true);
    const QRectF field(47, 18, 67, 14);
    fillRounded(p, field, 2, Qt::white);
    strokeRounded(p, field, 2, rgb(kBlue), 1.1);
    p.save();
    p.setPen(Qt::NoPen);
    p.setBrush(rgb(kInk));
    for (int i = 0; i < 6; ++i)
        p.drawEllipse(QPointF(field.left() + 6 + i * 7, field.center().y()), 2.0, 2.0);
    p.restore();
    p.fillRect(QRectF(field.left() + 6 + 6 * 7 - 1.5, field.top() + 3, 1.0, field.height() - 6), rgb(kInk));
    pushButton(p, QRectF(78, 37, 36, 12), QStringLiteral("Log in"), rgb(0x6f9cf5), rgb(kBlue), rgb(kBlueDark),
               Qt::white, 6.5, 2);
}

using Painter = void (*)(QPainter&, const QRectF&);

struct Entry {
    const char* name;
    Painter paint;
};

const Entry kEntries[] = {
    {"ImageFade", drawImageFade},
    {"ImgRollover", drawImgRollover},
    {"AnimButton", drawAnimButton},
    {"ImageEffects2", drawImageEffects2},
    {"Anim", drawAnim},
    {"DynaBut", drawDynaBut},
    {"ImageEffects", drawImageEffects},
    {"BBWizard", drawBBWizard},
    {"AnimWizard", drawAnimWizard},
    {"StatusBar", drawStatusBar},
    {"Typer", drawTyper},
    {"NavTicker", drawNavTicker},
    {"SmoothScroll", drawSmoothScroll},
    {"FadeMsg", drawFadeMsg},
    {"Swirly", drawSwirly},
    {"Credits", drawCredits},
    {"PopupAlert", drawPopupAlert},
    {"Clock", drawClock},
    {"Sound", drawSound},
    {"Pulldown", drawPulldown},
    {"Fade", drawFade},
    {"Password", drawPassword},
};

Painter painterFor(const QString& formName)
{
    for (const Entry& e : kEntries) {
        if (formName.compare(QLatin1String(e.name), Qt::CaseInsensitive) == 0)
            return e.paint;
    }
    return nullptr;
}

// ---------------------------------------------------------------------------
// The caption

struct Caption {
    QFont font;
    QStringList lines;
    qreal lineHeight = 0;
};

// Splits text into one line, or two lines as even as possible, at the given
// font. fits tells whether the lines are no wider than width.
QStringList splitCaption(const QString& text, const QFontMetricsF& fm, qreal width, bool* fits)
{
    const QString simple = text.simplified();
    if (fm.horizontalAdvance(simple) <= width) {
        *fits = true;
        return {simple};
    }
    const QStringList words = simple.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    if (words.size() < 2) {
        *fits = false;
        return {simple};
    }
    QStringList best;
    qreal bestWidth = 0;
    for (qsizetype i = 1; i < words.size(); ++i) {
        const QString a = words.mid(0, i).join(QLatin1Char(' '));
        const QString b = words.mid(i).join(QLatin1Char(' '));
        const qreal w = std::max(fm.horizontalAdvance(a), fm.horizontalAdvance(b));
        if (best.isEmpty() || w < bestWidth) {
            best = {a, b};
            bestWidth = w;
        }
    }
    *fits = bestWidth <= width;
    return best;
}

Caption layoutCaption(const QString& title, qreal width, int pixelSize, int minPixelSize)
{
    Caption c;
    c.font = QGuiApplication::font();
    c.font.setBold(false);
    c.font.setItalic(false);
    for (int px = pixelSize; px >= minPixelSize; --px) {
        c.font.setPixelSize(px);
        const QFontMetricsF fm(c.font);
        bool fits = false;
        c.lines = splitCaption(title, fm, width, &fits);
        c.lineHeight = fm.height();
        if (fits)
            return c;
    }
    const QFontMetricsF fm(c.font);
    for (QString& line : c.lines)
        line = fm.elidedText(line, Qt::ElideRight, width);
    return c;
}

void drawCaption(QPainter& p, const Caption& c, const QRectF& area, const QColor& color)
{
    p.save();
    p.setFont(c.font);
    p.setPen(color);
    const qreal total = c.lineHeight * c.lines.size();
    qreal y = area.top() + (area.height() - total) / 2;
    for (const QString& line : c.lines) {
        p.drawText(QRectF(area.left(), y, area.width(), c.lineHeight), Qt::AlignHCenter | Qt::AlignVCenter, line);
        y += c.lineHeight;
    }
    p.restore();
}

void paintCard(QPainter& p, const QRectF& r, const QString& formName, const QString& title)
{
    const qreal k = std::min(r.width() / 132.0, r.height() / 96.0);
    const qreal radius = 7 * k;
    const qreal margin = std::max<qreal>(3, 5 * k);

    // the card
    const QRectF card = r.adjusted(0.5, 0.5, -0.5, -0.5);
    fillRounded(p, card, radius, vGradient(card, rgb(0xffffff), rgb(0xeef2f7)));
    strokeRounded(p, card, radius, rgb(0xbfc9d6), 1.0);

    const qreal textWidth = r.width() - 2 * margin - 2;
    const Caption caption =
        layoutCaption(title, textWidth, std::max(8, qRound(11 * k)), std::max(7, qRound(8.5 * k)));
    const QColor ink = rgb(kInk);

    const Painter paint = painterFor(formName);
    if (!paint) {
        drawCaption(p, caption, r.adjusted(margin, margin, -margin, -margin), ink);
        return;
    }

    const qreal captionHeight = 2 * caption.lineHeight;
    const qreal bottomPad = std::max<qreal>(2, 4 * k);
    const QRectF captionArea(r.left() + margin, r.bottom() - bottomPad - captionHeight, r.width() - 2 * margin,
                             captionHeight);
    const QRectF stage(r.left() + margin, r.top() + margin, r.width() - 2 * margin,
                       captionArea.top() - 3 * k - r.top() - margin);
    const qreal stageRadius = std::max<qreal>(2, 4.5 * k);

    if (stage.width() > 4 && stage.height() > 4) {
        fillRounded(p, stage, stageRadius, vGradient(stage, rgb(0xeaf1fb), rgb(0xd8e3f2)));

        p.save();
        QPainterPath clip;
        clip.addRoundedRect(stage, stageRadius, stageRadius);
        p.setClipPath(clip, Qt::IntersectClip);
        const qreal s = std::min(stage.width() / kStageW, stage.height() / kStageH);
        p.translate(stage.center());
        p.scale(s, s);
        p.translate(-kStageW / 2, -kStageH / 2);
        const QRectF view(kStageW / 2 - stage.width() / s / 2, kStageH / 2 - stage.height() / s / 2,
                          stage.width() / s, stage.height() / s);
        paint(p, view);
        p.restore();

        strokeRounded(p, stage.adjusted(0.25, 0.25, -0.25, -0.25), stageRadius, rgb(0xc4cfdd), 0.8);
    }
    drawCaption(p, caption, captionArea, ink);
}

} // namespace

QPixmap effectPicture(const QString& formName, const QString& title, const QSize& size, qreal devicePixelRatio)
{
    const QSize logical = size.isEmpty() ? QSize(132, 96) : size;
    const qreal dpr = devicePixelRatio > 0 ? devicePixelRatio : 1.0;
    QImage image(QSize(qCeil(logical.width() * dpr), qCeil(logical.height() * dpr)),
                 QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    {
        QPainter p(&image);
        p.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
        p.scale(dpr, dpr);
        paintCard(p, QRectF(QPointF(0, 0), QSizeF(logical)), formName, title);
    }
    image.setDevicePixelRatio(dpr);
    return QPixmap::fromImage(std::move(image));
}

} // namespace ql
