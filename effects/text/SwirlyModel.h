#pragma once

#include "core/EffectForm.h"

#include <QList>
#include <QPair>
#include <QString>

namespace ql::swirly {

// The fields of the Swirly Text form, by control.
struct Fields {
    QString Text7;   // text to swirl
    QString Combo1;  // font
    QString Combo9;  // font size
    QString Text1;   // background colour
    QString Text10;  // applet width
    QString Text11;  // applet height
    QString Text3;   // horizontal location of the text
    QString Text2;   // vertical location of the text
};

constexpr qint16 EffectId = 10;
inline const QString ClassFile = QStringLiteral("ColorSwirl.class");

// The checks of Done, in their order; nothing when the fields pass.
std::optional<Refusal> validate(const Fields& fields);
// The applet tag.
QString emitCode(const Fields& fields);
// The box that lists the files the effect needs.
QString requiredFilesMessage();
// The keys that re-edit reads, in order, with the control each one fills.
const QList<QPair<QString, QString>>& editKeys();

}  // namespace ql::swirly
