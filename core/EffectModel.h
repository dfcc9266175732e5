#pragma once

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>
#include <optional>

// What an effect model tells the shared code of the forms. Models are pure
// functions of field values: this library links QtCore alone, so a model
// cannot reach a widget.
namespace ql {

// A check that stopped Done: the box text and style, and the control that
// takes the focus ("" for none).
struct Refusal {
    QString text;
    int style = 0;
    QString focus;
};

// One key that re-edit reads from pasted code, and the control it fills.
struct EditKey {
    QString key;
    QString control;
};

// What the shared road of an effect form needs to know of the effect.
struct EffectDescription {
    QString form;                 // the form's name
    qint16 effectId = 0;          // EffectId written at Done
    QStringList classes;          // RequiredClasses from slot 0
    QStringList fileLines;        // "- the X.class file", "- images"; none: the no-file message
    QList<EditKey> editKeys;      // read in this order by EditApplet
    std::optional<int> helpTopic; // the topic F1 opens; nothing for the form's own topic
};

// Everything Done hands over to the Preview wizard.
struct HandOver {
    QString code;
    qint16 effectId = 0;
    QStringList classes;
    QStringList fileLines;
    // RequiredFiles slots the effect names at Done (slot, bare name).
    QMap<int, QString> files;
    // The box text where the effect words it itself; "" for the shared one.
    QString message;
    // RequiredPaths slots emptied at Done: a file the effect no longer names
    // leaves no source path behind.
    QList<int> emptiedPaths;

    // The hand-over of a description with the code it emitted.
    static HandOver of(const EffectDescription& description, const QString& code)
    {
        return HandOver{.code = code,
                        .effectId = description.effectId,
                        .classes = description.classes,
                        .fileLines = description.fileLines,
                        .files = {},
                        .message = {},
                        .emptiedPaths = {}};
    }
};

// The lists that the applet text forms offer.
const QStringList& FontList();
const QStringList& FontSizeList();
// The colour list of the applet forms: a name, a dash and the three numbers
// that colorListValue() reads from the row.
const QStringList& ColorList();

}  // namespace ql
