#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <optional>

namespace ql {

// One frame of an animation: a row across the five columns of the frame
// table. An empty cell and "null" both mean "no value".
struct AnimationFrame {
    QString image;       // bare file name of the picture
    QString pause;       // milliseconds as text; "-1" waits for a click, "-2" for the mouse
    QString transition;  // a TransitionSpec: "slidein(3)", "overwrite()", "" for none
    QString url;
    QString sound;       // bare file name of the sound played when the image loads
};

// The transitions and directions of the frame table, and how a transition
// TransitionSpec is made from the Image Properties dialog and read back into it.
struct TransitionModel {
    // What the dialog shows for a transition.
    enum class DirectionList { Refill, Empty, LeaveAsItIs };
    struct Row {
        QString name;
        QStringList directions;  // codes offered, "1" to "8" and "r"
        QString caption;         // the direction box's caption
        QString description;
        bool directionEnabled = true;
        DirectionList list = DirectionList::Refill;
    };

    // The transitions in the order of their list.
    static const QStringList& names();
    // The list line of a direction code: "3" gives "3-Northeast corner".
    static QString directionLine(const QString& code);
    // The row of a transition name, compared exactly. At opening the dialog
    // tests "Shutter" with a capital letter, so a stored "shutter" matches
    // nothing there; a choice in the list tests "shutter".
    static std::optional<Row> rowOf(const QString& name, bool atOpening);

    // The TransitionSpec that OK composes from the direction box's text and the
    // transition box's text, first match wins.
    static QString compose(const QString& direction, const QString& transition);

    // What the dialog shows at opening for a stored TransitionSpec: the transition box
    // takes the cell less its last three characters when it ends in ")", and
    // the direction box the middle one of those three.
    struct Shown {
        QString transition;
        std::optional<QString> direction;
    };
    static Shown open(const QString& cell);

    // Whether a pause text calls for the warning: its leading number is
    // below -2.
    static bool pauseNeedsWarning(const QString& pause);
    static QString pauseWarning();
};

}  // namespace ql
