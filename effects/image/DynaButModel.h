#pragma once

#include "core/EffectModel.h"

#include <array>
#include <functional>

namespace ql {

// Dynamic Button: a button drawn by ButtonPLUS3.class that changes its
// image and text, and plays a sound, as the mouse rests, enters and clicks.
// Each property carries its three states in one parameter, joined by "|".
struct DynaButModel {
    struct Fields {
        QString baseImage;    // bare file names, as the code names them
        QString baseText;
        QString enterImage;
        QString enterText;
        QString enterSound;
        QString clickImage;
        QString clickText;
        QString clickSound;
        QString url;
        QString target;
        QString width;
        QString height;
        QString backgroundColor;  // a row of the colour list, or "r,g,b"
        QString border;           // the 3D border size
        QString font;
        QString fontSize;
        QString textColor;
        QString textAlign;
        QString verticalAlign;
    };

    // The size attributes of the tag, " HEIGHT="..."" and " WIDTH="..."".
    // They are kept between two Dones: a size that is no number leaves the
    // attribute of the Done before.
    struct SizeAttributes {
        QString height;
        QString width;
    };

    // The slots of the file arrays that the five file fields fill.
    enum Slot { BaseImage = 0, EnterImage = 1, EnterSound = 2, ClickImage = 3, ClickSound = 4 };

    static inline const QString ClassFile = QStringLiteral("ButtonPLUS3.class");

    static const EffectDescription& description();
    // The check of Done; nothing when the fields pass.
    static std::optional<Refusal> validate(const Fields& fields);
    // The size attributes of this Done, from the fields and the attributes of
    // the Done before.
    static SizeAttributes sizeAttributes(const Fields& fields, const SizeAttributes& earlier = {});
    // The applet tag with the linked image inside it.
    static QString emitCode(const Fields& fields, const SizeAttributes& attributes);
    static QString emitCode(const Fields& fields) { return emitCode(fields, sizeAttributes(fields)); }
    static HandOver handOver(const Fields& fields, const SizeAttributes& attributes);
    static HandOver handOver(const Fields& fields) { return handOver(fields, sizeAttributes(fields)); }
    // The file name of each slot (BaseImage to ClickSound).
    static std::array<QString, 5> slotFiles(const Fields& fields);

    // Cuts a value at its bars into up to three parts. The last part loses
    // its final character: "a.au|b.au" gives "a.au" and "b.a".
    static std::array<QString, 6> pipeParse(const QString& value);

    // Fills the fields from pasted code, reading each key through `extract`.
    // `classPrefix8` tells the older Button1 applet from ButtonPLUS3.
    static void reEdit(Fields& fields, const QString& classPrefix8,
                       const std::function<QString(const QString&)>& extract);
};

}  // namespace ql
