#pragma once

#include "core/EffectModel.h"

namespace ql {

// Fading Message: a series of messages that fade into one another, drawn by
// FadeText.class. Every message has its own numbered parameters; a value
// left blank on a message takes the default of the properties page at the
// moment the message is stored.
struct FadeMsgModel {
    // A stored message: the resolved values.
    struct Message {
        QString description;
        QString size;
        QString backgroundColor;
        QString textColor;
        QString delay;
        QString link;
        friend bool operator==(const Message&, const Message&) = default;
    };
    // What a message page holds, before the defaults fill its blanks.
    struct MessagePage {
        QString text;
        QString backgroundColor;
        QString fontSize;
        QString textColor;
        QString delay;
        QString link;
    };
    // The defaults of the properties page.
    struct Defaults {
        QString fontSize;
        QString backgroundColor;
        QString textColor;
    };
    static constexpr int Slots = 11;    // messages 0 to 10
    static constexpr int ReadBack = 10;  // re-edit reads messages 0 to 9

    struct Fields {
        QString appletWidth;
        QString appletHeight;
        QString align;
        QString font;    // as resolved: the FONT value
        QString margin;  // as resolved: the XOFFSET value
        int count = 1;
        QList<Message> messages = QList<Message>(Slots);
    };

    static inline const QString ClassFile = QStringLiteral("FadeText.class");

    static const QStringList& colorList();
    static const QStringList& alignList();

    // A message page stored with the defaults filling its blanks.
    static Message stored(const MessagePage& page, const Defaults& defaults);
    // The FONT value: the font trimmed, "Arial" for an empty field.
    static QString resolvedFont(const QString& font);
    // The XOFFSET value: the margin, "10" for an empty field.
    static QString resolvedMargin(const QString& margin);

    static const EffectDescription& description();
    // The check of the properties page's Next.
    static std::optional<Refusal> validateProperties(const QString& width, const QString& height);
    // Done's one check belongs to the message on screen (the form makes it
    // before it stores the message); the stored table itself has none.
    static std::optional<Refusal> validate(const Fields&) { return std::nullopt; }
    static QString emitCode(const Fields& fields);
};

}  // namespace ql
