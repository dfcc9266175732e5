#pragma once

#include "core/EffectModel.h"

namespace ql {

// Background Colour Fade: a script that runs the page's background from one
// colour to another when the page loads, when it is left, or both.
struct FadeModel {
    struct Fields {
        QString fadeInFrom;   // "r,g,b"; empty: no fade-in
        QString fadeInTo;
        int fadeInSteps = 125;  // rounds of the loop: low is fast
        QString fadeOutFrom;  // empty: no fade-out
        QString fadeOutTo;
        int fadeOutSteps = 125;
    };

    static const EffectDescription& description();
    // The checks of Done, in their order; nothing when the fields pass.
    static std::optional<Refusal> validate(const Fields& fields);
    // The script for the HEAD and the BODY tag that calls it.
    static QString emitCode(const Fields& fields);
};

}  // namespace ql
