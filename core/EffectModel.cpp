#include "core/EffectModel.h"

namespace ql {

const QStringList& FontList()
{
    static const QStringList list = {"Arial", "Courier", "Dialog", "Helvetica", "TimesRoman"};
    return list;
}

const QStringList& FontSizeList()
{
    static const QStringList list = {"4",  "6",  "8",  "9",  "10", "11", "12", "14", "16",
                                     "18", "20", "22", "24", "28", "30", "36", "48", "72"};
    return list;
}

const QStringList& ColorList()
{
    static const QStringList list = {
        "Black  -               0,0,0",     "Blue  -                0,0,255",
        "Red  -                 255,0,0",   "Green  -               0,255,0",
        "Cyan  -                0,255,255", "Magenta  -             255,0,255",
        "Yellow  -              255,255,0", "White  -               255,255,255",
    };
    return list;
}

}  // namespace ql
