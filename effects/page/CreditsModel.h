#pragma once

#include "core/EffectModel.h"

namespace ql {

// Scrolling Credits: a script that scrolls the whole page upward in a loop.
struct CreditsModel {
    struct Fields {
        QString pageLength;  // pixels; "" gives 1000
        int speed = 50;      // 1 (slow) to 100 (fast)
    };

    static const EffectDescription& description();
    // There is no check.
    static std::optional<Refusal> validate(const Fields&) { return std::nullopt; }
    static QString emitCode(const Fields& fields);
};

}  // namespace ql
