#pragma once

#include "core/EffectModel.h"

namespace ql {

// Sound Effect: a sound when the page loads and another when the visitor
// leaves it. AU sounds play through the SimpleSound1.class applet, WAV
// sounds through a script pair with a BGSOUND tag and a fallback.
struct SoundModel {
    enum class Format { Unchosen, Wav, Au };

    struct Fields {
        Format format = Format::Unchosen;
        QString wavEnter;  // bare file names of the WAV page
        QString wavExit;
        bool wavLoop = false;
        QString auEnter;  // bare file names of the AU page
        QString auExit;
        bool auLoop = false;
    };

    static inline const QString ClassFile = QStringLiteral("SimpleSound1.class");
    static inline const QString AuFilter = QStringLiteral("All Files (*.*)|*.*|AU Files (*.au)|*.au");
    static inline const QString WavFilter = QStringLiteral("All Files (*.*)|*.*|WAV Files (*.wav)|*.wav");

    // The applet branch, the one that re-edit reaches.
    static const EffectDescription& description();
    // One of the two sounds is enough.
    static std::optional<Refusal> validate(const Fields& fields);
    static QString wavCode(const Fields& fields);
    static QString auCode(const Fields& fields);
    static QString wavMessage(const Fields& fields);
    // The hand-over of the branch of the page in front.
    static HandOver handOver(const Fields& fields);
};

}  // namespace ql
