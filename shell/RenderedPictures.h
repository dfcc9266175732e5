#pragma once

#include <QList>

namespace ql {

// A catalogue picture drawn at build time for one form at one device pixel
// ratio: premultiplied ARGB32 pixels, or PNG data.
struct RenderedPicture {
    const char* form;
    int ratio;
    bool pixels;
    int width;
    int height;
    const char* data;
    int size;
};

const QList<RenderedPicture>& renderedPictures();

}  // namespace ql
