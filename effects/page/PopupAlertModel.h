#pragma once

#include "core/EffectModel.h"

namespace ql {

// Popup Alert: a script that shows an alert box as the page loads.
struct PopupAlertModel {
    struct Fields {
        QString text;  // the alert's text, line breaks and all
    };

    static const EffectDescription& description();
    // Only an empty text is refused: blanks alone are text.
    static std::optional<Refusal> validate(const Fields& fields);
    // The script, one piece. The text goes in unescaped.
    static QString emitCode(const Fields& fields);
    // The code with the box of a script pasted in one piece.
    static HandOver handOver(const Fields& fields);
};

}  // namespace ql
