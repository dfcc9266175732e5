#pragma once

#include "core/EffectModel.h"

namespace ql {

// Swirly Text: a text drawn in swirling colours by ColorSwirl.class.
struct SwirlyModel {
    struct Fields {
        QString text;
        QString font;
        QString fontSize;
        QString backgroundColor;
        QString appletWidth;
        QString appletHeight;
        QString textLeft;  // horizontal location of the text
        QString textTop;   // vertical location of the text
    };

    static inline const QString ClassFile = QStringLiteral("ColorSwirl.class");

    static const EffectDescription& description();
    // The checks of Done, in their order; nothing when the fields pass.
    static std::optional<Refusal> validate(const Fields& fields);
    // The applet tag.
    static QString emitCode(const Fields& fields);
};

}  // namespace ql
