#pragma once

#include "core/EffectModel.h"

#include <functional>

namespace ql {

// Digital Clock: a line of date and time drawn by Clock1.class from a
// format of placeholders that the check boxes put together.
struct ClockModel {
    struct Fields {
        QString appletWidth;
        QString appletHeight;
        QString backgroundColor;  // a row of the colour list, or "r,g,b"
        QString font;
        QString fontSize;
        QString trailingText;     // the text behind the time
        bool twentyFourHour = false;
        bool showSeconds = false;
        bool showAmPm = false;
        bool showDate = false;
        bool fixedTimezone = false;  // the page's own zone rather than the reader's
        QString timezone;            // the offset from GMT
    };

    static inline const QString ClassFile = QStringLiteral("Clock1.class");

    static const EffectDescription& description();
    // The checks of Done, in their order; nothing when the fields pass.
    static std::optional<Refusal> validate(const Fields& fields);
    // The display format of the applet: date, hour and minute, seconds,
    // am/pm, two blanks and the trailing text.
    static QString displayFormat(const Fields& fields);
    // The applet tag.
    static QString emitCode(const Fields& fields);

    // Fills the fields from pasted code, reading each key through `extract`
    // in the order of the description's keys. The trailing text is not read
    // back, and a check box whose placeholder is missing keeps its state.
    static void reEdit(Fields& fields, const std::function<QString(const QString&)>& extract);
    // Sets the check boxes whose placeholders a display format holds.
    static void parseDisplay(Fields& fields, const QString& format);
};

}  // namespace ql
