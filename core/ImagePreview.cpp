#include "core/ImagePreview.h"

#include "platform/Platform.h"

#include <QBuffer>
#include <QImageReader>
#include <QLabel>
#include <QPixmap>
#include <QVBoxLayout>

namespace ql {

std::optional<QImage> readImage(FileSystem& files, const QString& path)
{
    const std::optional<QByteArray> bytes = files.readFile(path);
    if (!bytes || bytes->isEmpty())
        return std::nullopt;
    QBuffer buffer;
    buffer.setData(*bytes);
    if (!buffer.open(QIODevice::ReadOnly))
        return std::nullopt;
    QImageReader reader(&buffer);
    // Pictures far beyond any button are refused rather than decoded.
    const QSize announced = reader.size();
    if (announced.isValid() && qint64(announced.width()) * announced.height() > 64LL * 1024 * 1024)
        return std::nullopt;
    QImage image;
    if (!reader.read(&image) || image.isNull())
        return std::nullopt;
    return image;
}

std::optional<QSize> readImageSize(FileSystem& files, const QString& path)
{
    const std::optional<QImage> image = readImage(files, path);
    if (!image)
        return std::nullopt;
    return image->size();
}

ImagePreview::ImagePreview(QWidget* parent)
    : QFrame(parent)
    , picture_(new QLabel(this))
{
    setFrameShape(QFrame::StyledPanel);
    setFrameShadow(QFrame::Sunken);
    setMinimumSize(120, 90);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    picture_->setAlignment(Qt::AlignCenter);
    picture_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->addWidget(picture_);
}

std::optional<QSize> ImagePreview::showFile(FileSystem& files, const QString& path)
{
    const std::optional<QImage> image = readImage(files, path);
    if (!image) {
        clear();
        return std::nullopt;
    }
    showImage(*image);
    return image->size();
}

void ImagePreview::showImage(const QImage& image)
{
    image_ = image;
    refresh();
}

void ImagePreview::clear()
{
    image_ = QImage();
    refresh();
}

QSize ImagePreview::sizeHint() const
{
    return QSize(160, 120);
}

void ImagePreview::resizeEvent(QResizeEvent* event)
{
    QFrame::resizeEvent(event);
    refresh();
}

void ImagePreview::refresh()
{
    if (image_.isNull()) {
        picture_->setPixmap(QPixmap());
        return;
    }
    const QSize room = picture_->contentsRect().size();
    QImage shown = image_;
    if (room.width() > 0 && room.height() > 0 &&
        (image_.width() > room.width() || image_.height() > room.height()))
        shown = image_.scaled(room, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    QPixmap pixmap = QPixmap::fromImage(shown);
    pixmap.setDevicePixelRatio(1.0);
    picture_->setPixmap(pixmap);
}

}  // namespace ql
