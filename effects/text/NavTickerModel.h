#pragma once

#include "core/EffectModel.h"

namespace ql {

// Navigator Ticker: a scrolling line of messages drawn by
// NavigatorTicker20.class, each of which can open a page in a frame. Each
// message travels in one parameter that packs its text, link and frame
// between double backslashes.
struct NavTickerModel {
    struct Message {
        QString text;
        QString link;
        QString frame;
        friend bool operator==(const Message&, const Message&) = default;
    };
    static constexpr int Slots = 11;  // messages 0 to 10
    static constexpr int ReadBack = 10;  // re-edit reads messages 0 to 9

    struct Fields {
        QString appletWidth;
        QString appletHeight;
        QString align;
        QString backgroundColor;  // list rows or "r,g,b"
        QString textColor;
        QString linkColor;
        bool border = true;
        int speed = 3;
        int count = 1;  // how many messages are written
        QList<Message> messages = QList<Message>(Slots);
    };

    static inline const QString ClassFile = QStringLiteral("NavigatorTicker20.class");

    static const QStringList& colorList();
    static const QStringList& alignList();
    static const QStringList& frameList();

    // A message as it is stored from its page: an empty link or frame is the
    // word the applet takes for none, "NULL".
    static Message stored(const QString& text, const QString& link, const QString& frame);
    // One MSG value: text, four blanks and the separators.
    static QString packed(const Message& message);
    // A MSG value taken apart again at its double backslashes. Nothing is
    // trimmed; a value without separators gives three empty parts.
    static Message unpacked(const QString& value);

    static const EffectDescription& description();
    // The check of the properties page's Next.
    static std::optional<Refusal> validateProperties(const Fields& fields);
    // Done's one check belongs to the message on screen (the form makes it
    // before it stores the message); the stored table itself has none.
    static std::optional<Refusal> validate(const Fields&) { return std::nullopt; }
    static QString emitCode(const Fields& fields);
};

}  // namespace ql
