#pragma once

#include "core/EffectModel.h"

namespace ql {

// Smooth Scrolling Text Ticker: a line of text scrolled right to left by
// RTLScroll.class or left to right by LTRScroll.class. The two applets take
// the same parameters; their colours are single decimal numbers.
struct SmoothScrollModel {
    struct Fields {
        QString text;
        QString font;
        QString fontSize;
        QString textColor;  // a list row or a decimal colour
        bool rightToLeft = false;
        int speed = 10;  // the slider, 1 (slow) to 40 (fast)
        QString appletWidth;
        QString appletHeight;
        QString backgroundColor;
    };

    static inline const QString RightToLeftClass = QStringLiteral("RTLScroll.class");
    static inline const QString LeftToRightClass = QStringLiteral("LTRScroll.class");

    // The rows of the colour lists: the names with their decimal values.
    static const QStringList& colorList();
    // A picked colour (red + green * 256 + blue * 65536) as the applet's
    // single number, red * 65536 + green * 256 + blue.
    static QString colorNumber(quint32 color);
    // The slider's position as the applet's speed: 41 less the position, so
    // that the low number is the fast one.
    static QString speedValue(int slider);

    static const EffectDescription& description();
    static std::optional<Refusal> validate(const Fields& fields);
    static QString emitCode(const Fields& fields);
    // The class, its file line and the code depend on the direction.
    static HandOver handOver(const Fields& fields);
};

}  // namespace ql
