#pragma once

#include "core/EffectModel.h"

namespace ql {

// Pulldown Menu: a SELECT list of links with a "Go to" button and the small
// script JumpTo that follows the chosen link.
struct PulldownModel {
    // The text of a separator row; its URL is empty and it links to "#".
    static inline const QString Separator = QStringLiteral("--------------------");

    struct Fields {
        QStringList items;  // the rows' texts, in menu order
        QStringList urls;   // the rows' URLs, row for row
        bool showAll = false;  // all rows shown at once instead of a dropdown
        QString target;        // frame the link opens in; blank gives "self"
    };

    static const EffectDescription& description();
    // There is no check: an empty menu is taken.
    static std::optional<Refusal> validate(const Fields&) { return std::nullopt; }
    static QString emitCode(const Fields& fields);
    // The code with the box of a script pasted in one piece.
    static HandOver handOver(const Fields& fields);

    // Where a new row goes among `rows` rows with row `selected` selected (-1
    // for none): at the end with none or the last selected, else ahead of
    // the selected row.
    static int insertPosition(int rows, int selected);
};

}  // namespace ql
