#pragma once

#include "core/EffectModel.h"

namespace ql {

// Typewriter Text: a text typed letter by letter by Typewriter4.class, which
// needs AppletSettings.class beside it. The text is typed in the form or
// read by the applet from a text file.
struct TyperModel {
    struct Fields {
        bool fromFile = false;  // the text comes from a file
        QString text;           // several lines, CRLF between them
        QString textFile;       // the bare name of the text file
        QString font;
        QString fontSize;
        QString textColor;  // a list row or "r,g,b"
        bool bold = false;
        bool italic = false;
        QString appletWidth;
        QString appletHeight;
        QString link;
        QString backgroundImage;  // bare file name
        QString backgroundColor;  // a list row or "r,g,b"
        QString loop = QStringLiteral("0 - Infinite");
        QString speed;
    };

    static inline const QString ClassFile = QStringLiteral("Typewriter4.class");
    static inline const QString SettingsClass = QStringLiteral("AppletSettings.class");
    // RequiredFiles slots of the background image and the text file.
    static constexpr int ImageSlot = 0;
    static constexpr int TextFileSlot = 1;

    static const QStringList& colorList();
    static const QStringList& loopList();

    // The checks of the forward button, made on every press: the text or
    // the text file of Step 1.
    static std::optional<Refusal> validateStep(const Fields& fields);
    // The checks of Done, in their order.
    static std::optional<Refusal> validate(const Fields& fields);
    // The TEXT value of a typed text: each CRLF becomes " \".
    static QString joinedLines(const QString& text);
    // A check while typing: false when the value is refused ("This must be
    // a positive value."). Sizes and speed may not be below 0; the font size
    // must be above 0.
    static bool positiveOrEmpty(const QString& value);
    static bool aboveZero(const QString& value);
    static inline const QString PositiveMessage = QStringLiteral("This must be a positive value.");

    static const EffectDescription& description();
    static QString emitCode(const Fields& fields);
    // The message names the text file when there is one; the file arrays
    // take the image and the text file.
    static HandOver handOver(const Fields& fields);
};

}  // namespace ql
