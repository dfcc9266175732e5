// Draws the catalogue pictures once, at build time, and writes them as PNG
// data into a C++ source file, so that the main window shows them without
// drawing them at every start.

#include "shell/Catalogue.h"
#include "shell/EffectPictures.h"

#include <QBuffer>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QSaveFile>
#include <cstdio>

int main(int argc, char* argv[])
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s OUTPUT.cpp\n", argv[0]);
        return 2;
    }
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);

    QByteArray source = "// Made by render_pictures at build time.\n#include \"shell/RenderedPictures.h\"\n\n"
                        "namespace ql {\n\nnamespace {\n\n";
    QByteArray table;
    int index = 0;
    for (const ql::CatalogueEntry& entry : ql::catalogue()) {
        for (int ratio : {1, 2}) {
            const QImage picture = ql::effectPicture(entry.form, entry.title, ql::CataloguePictureSize, ratio)
                                       .toImage()
                                       .convertToFormat(QImage::Format_ARGB32_Premultiplied);
            // The pictures of the usual screens are kept as pixels, ready to
            // show; the others as PNG, smaller.
            QByteArray data;
            if (ratio == 1) {
                data = QByteArray(reinterpret_cast<const char*>(picture.constBits()), picture.sizeInBytes());
            } else {
                QBuffer buffer(&data);
                buffer.open(QIODevice::WriteOnly);
                picture.save(&buffer, "PNG");
            }
            source += "const char picture" + QByteArray::number(index) + "[] =";
            for (int i = 0; i < data.size(); ++i) {
                if (i % 32 == 0)
                    source += "\n    \"";
                const auto byte = static_cast<unsigned char>(data[i]);
                source += '\\';
                source += char('0' + (byte >> 6));
                source += char('0' + ((byte >> 3) & 7));
                source += char('0' + (byte & 7));
                if (i % 32 == 31 || i + 1 == data.size())
                    source += '"';
            }
            source += ";\n\n";
            table += "        {\"" + entry.form.toLatin1() + "\", " + QByteArray::number(ratio) + ", " +
                     (ratio == 1 ? "true" : "false") + ", " + QByteArray::number(picture.width()) + ", " +
                     QByteArray::number(picture.height()) + ", picture" + QByteArray::number(index) + ", " +
                     QByteArray::number(data.size()) + "},\n";
            ++index;
        }
    }
    source += "}  // namespace\n\nconst QList<RenderedPicture>& renderedPictures()\n{\n"
              "    static const QList<RenderedPicture> pictures = {\n" + table +
              "    };\n    return pictures;\n}\n\n}  // namespace ql\n";

    QSaveFile out(QString::fromLocal8Bit(argv[1]));
    if (!out.open(QIODevice::WriteOnly) || out.write(source) != source.size() || !out.commit()) {
        std::fprintf(stderr, "render_pictures: cannot write %s\n", argv[1]);
        return 1;
    }
    return 0;
}
