#include "effects/animation/FrameModel.h"

#include "core/Emission.h"
#include "core/Text.h"

namespace ql {

namespace {

const QStringList AllDirections = {"1", "2", "3", "4", "5", "6", "7", "8", "r"};

}  // namespace

const QStringList& TransitionModel::names()
{
    static const QStringList list = {"random", "expand",  "overwrite", "scroll", "shrink",
                                     "shutter", "slidein", "slideout", "squish"};
    return list;
}

QString TransitionModel::directionLine(const QString& code)
{
    static const QStringList lines = {"1-Northwest corner", "2-North edge",       "3-Northeast corner",
                                      "4-East edge",        "5-Southeast corner", "6-South edge",
                                      "7-Southwest corner", "8-West edge",        "r-Random location"};
    const qsizetype at = AllDirections.indexOf(code);
    return at < 0 ? QString() : lines[at];
}

std::optional<TransitionModel::Row> TransitionModel::rowOf(const QString& name, bool atOpening)
{
    static const QList<Row> rows = {
        {"slidein", AllDirections, "Slide In from:",
         "Causes the new image to slide in slowly from a particular direction and cover the existing image."},
        {"slideout", AllDirections, "Slide Out to:",
         "Causes the existing image to slide out slowly in a particular direction uncovering the new image."},
        {"scroll", {"2", "4", "6", "8", "r"}, "Scroll In from:",
         "Causes the new image to slide in slowly from a particular direction pushing the existing picture out of "
         "the frame."},
        {"expand", AllDirections, "Expand from:",
         "Causes the new image to start at a point and slowly 'grow' so that it covers the old frame."},
        {"shrink", AllDirections, "Shrink down to:",
         "Causes the existing image to collapse to a point, revealing the new image."},
        {"squish", {"2", "6"}, "Squish to:", "Causes the new image to 'squish' out the old image."},
        {"shutter", {}, "Direction:",
         "Causes the border of the image frame to close over the old image completely then open up, revealing the "
         "next image.",
         false, DirectionList::Empty},
        {"random", {}, "Direction:", "This causes the applet to randomly pick a transition.", false,
         DirectionList::Empty},
        {"overwrite", {}, "Direction:",
         "This is the default transition which simply writes the new image right overtop the old image.", false,
         DirectionList::LeaveAsItIs},
    };
    for (const Row& row : rows) {
        const QString tested = atOpening && row.name == QLatin1String("shutter") ? QStringLiteral("Shutter") : row.name;
        if (name == tested)
            return row;
    }
    return std::nullopt;
}

QString TransitionModel::compose(const QString& direction, const QString& transition)
{
    for (int code = 1; code <= 8; ++code) {
        const QString digit = QString::number(code);
        if (direction == digit || direction == directionLine(digit))
            return transition + "(" + digit + ")";
    }
    if (direction == QLatin1String("r") || direction == directionLine(QStringLiteral("r")))
        return transition + "(r)";
    if (transition == QLatin1String("overwrite"))
        return transition + "()";
    if (transition.isEmpty())
        return QString();
    if (transition == QLatin1String("shutter"))
        return transition + "(1)";
    return transition + "(r)";
}

TransitionModel::Shown TransitionModel::open(const QString& cell)
{
    Shown shown;
    if (cell.isEmpty())
        return shown;
    if (cell.endsWith(QLatin1Char(')'))) {
        shown.transition = cell.left(std::max<qsizetype>(0, cell.size() - 3));
        shown.direction = mid(cell, int(cell.size()) - 1, 1);
    } else {
        shown.transition = cell;
    }
    return shown;
}

bool TransitionModel::pauseNeedsWarning(const QString& pause)
{
    return numericValue(pause) < -2;
}

QString TransitionModel::pauseWarning()
{
    return "Enter a number greater than -3 for Pauses." + CRLF +
           "Use -1 to pause until user clicks mouse on animation." + CRLF +
           "Use -2 to pause until user moves mouse over animation.";
}

}  // namespace ql
