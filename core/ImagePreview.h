#pragma once

#include <QFrame>
#include <QImage>
#include <QSize>
#include <optional>

class QLabel;

namespace ql {

class FileSystem;

// Reads a picture file through the program's file layer and decodes it
// whole: nothing when the file cannot be read or does not decode.
std::optional<QImage> readImage(FileSystem& files, const QString& path);

// The size in pixels of a GIF or JPEG (or any picture the decoder knows);
// nothing for a file that does not decode.
std::optional<QSize> readImageSize(FileSystem& files, const QString& path);

// A box that shows a picture at its own size in pixels, centred; a picture
// larger than the box is shown scaled down to fit, so the window keeps its
// size. Empty, it shows nothing.
class ImagePreview : public QFrame {
    Q_OBJECT
public:
    explicit ImagePreview(QWidget* parent = nullptr);

    // Shows the picture of a file; answers its size in pixels, or nothing
    // (and an empty box) when the file does not decode.
    std::optional<QSize> showFile(FileSystem& files, const QString& path);
    void showImage(const QImage& image);
    void clear();

    // The picture shown, at its own size; null when the box is empty.
    const QImage& image() const { return image_; }

    QSize sizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void refresh();

    QLabel* picture_;
    QImage image_;
};

}  // namespace ql
