#pragma once

#include <QPixmap>
#include <QString>

namespace ql {

// A picture for the catalogue button of one effect, drawn in code.
// formName is the form name of the effect (ImageFade, Clock, ...); title is
// the effect's title that the picture carries as its caption text. The
// illustration fills the upper area of a light rounded card and the title is
// written under it, centred, in at most two lines. An unknown form name gives
// a plain card with the title only.
QPixmap effectPicture(const QString& formName, const QString& title, const QSize& size = QSize(132, 96),
                      qreal devicePixelRatio = 1.0);

} // namespace ql
