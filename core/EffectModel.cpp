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

}  // namespace ql
