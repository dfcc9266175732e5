#pragma once

#include "core/EffectModel.h"

namespace ql {

// Status Bar Text Ticker: a fixed script that runs one line of text from
// right to left through the browser's status bar. The text is the script's
// only variable part.
struct StatusBarModel {
    struct Fields {
        QString text;
    };

    static const EffectDescription& description();
    // Done has no check: an empty text is accepted.
    static std::optional<Refusal> validate(const Fields& fields);
    // The script in its two sections, HEAD and BODY, with their instructions.
    static QString emitCode(const Fields& fields);
};

}  // namespace ql
