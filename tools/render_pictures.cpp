// Draws the catalogue pictures once, at build time, and writes them as PNG
// data into a C++ source file, so that the main window shows them without
// drawing them at every start.

#include "shell/Catalogue.h"
#include "shell/EffectPictures.h"

#include <QBuffer>
#include <QFile>
#include <QGuiApplication>
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
            const QPixmap picture = ql::effectPicture(entry.form, entry.title, ql::CataloguePictureSize, ratio);
            QByteArray png;
            QBuffer buffer(&png);
            buffer.open(QIODevice::WriteOnly);
            // Stored without compression: it loads faster than it would from a smaller file.
            picture.toImage().save(&buffer, "PNG", 100);
            source += "const unsigned char picture" + QByteArray::number(index) + "[] = {";
            for (int i = 0; i < png.size(); ++i) {
                if (i % 24 == 0)
                    source += "\n    ";
                source += QByteArray::number(static_cast<unsigned char>(png[i])) + ",";
            }
            source += "\n};\n\n";
            table += "        {\"" + entry.form.toLatin1() + "\", " + QByteArray::number(ratio) + ", picture" +
                     QByteArray::number(index) + ", " + QByteArray::number(png.size()) + "},\n";
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
