#pragma once

#include <QList>

namespace ql {

// A catalogue picture drawn at build time: PNG data for one form at one
// device pixel ratio.
struct RenderedPicture {
    const char* form;
    int ratio;
    const unsigned char* data;
    int size;
};

const QList<RenderedPicture>& renderedPictures();

}  // namespace ql
