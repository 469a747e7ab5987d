// Draws the pictures of the panel at build time: every row of the table becomes a PNG of its size, and all of
// them together with the style files one resource list.
//
//   fpd-pictures TABLE DRAWINGS STYLES OUT
//
// writes OUT/image/*.png and OUT/pictures.qrc. The same input gives the same bytes; a fault of a drawing or
// of the table stops the build.

#include "picturetable.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <QTextStream>
#include <cstdio>

namespace
{
bool drawing = false;
bool drawingComplains = false;

/// The renderer only warns of what it does not understand; such a picture would be wrong on the LCD.
void onMessage(QtMsgType, const QMessageLogContext &, const QString &text)
{
    if (!drawing)
        return;
    drawingComplains = true;
    std::fprintf(stderr, "%s\n", qPrintable(text));
}

bool fail(const QString &what)
{
    std::fprintf(stderr, "fpd-pictures: %s\n", qPrintable(what));
    return false;
}

bool read(const QString &path, QString &text)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return fail(path + ": " + file.errorString());
    text = QString::fromUtf8(file.readAll());
    return true;
}

bool draw(const Picture &picture, const QString &drawings, const QString &png)
{
    const QString path = drawings + '/' + picture.drawing + ".svg";
    QString source;
    if (!read(path, source))
        return false;
    QString missing;
    source = filled(source, picture.values, missing);
    if (!missing.isEmpty())
        return fail(picture.name + ": " + path + ": " + missing);

    drawingComplains = false;
    QSvgRenderer renderer(source.toUtf8());
    if (!renderer.isValid())
        return fail(picture.name + ": " + path + " is not a drawing");
    if (renderer.defaultSize() != picture.size)
        return fail(picture.name + ": " + path + " is drawn for another size");
    QImage image(picture.size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter);
    painter.end();
    if (drawingComplains)
        return fail(picture.name + ": " + path + " is not understood");
    QDir().mkpath(QFileInfo(png).path());
    return image.save(png) || fail(png + " cannot be written");
}

bool write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size()) ||
           fail(path + ": " + file.errorString());
}

bool drawAll(const QString &table, const QString &drawings, const QString &styles, const QString &out)
{
    QString text;
    if (!read(table, text))
        return false;
    QString fault;
    const QList<Picture> pictures = readPictureTable(text, fault);
    if (!fault.isEmpty())
        return fail(table + " " + fault);

    QByteArray list("<RCC><qresource prefix=\"/resource\">\n");
    for (const Picture &picture : pictures) {
        const QString path = "image/" + picture.name + ".png";
        if (!draw(picture, drawings, out + '/' + path))
            return false;
        list += "<file>" + path.toUtf8() + "</file>\n";
    }
    const QDir styleFolder(styles);
    for (const QString &file : styleFolder.entryList({"*.qss"}, QDir::Files, QDir::Name))
        list += "<file alias=\"qss/" + file.toUtf8() + "\">" + styleFolder.absoluteFilePath(file).toUtf8() +
                "</file>\n";
    return write(out + "/pictures.qrc", list + "</qresource></RCC>\n");
}
} // namespace

int main(int argc, char **argv)
{
    // Drawings need no screen, and a build machine has none.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(onMessage);
    QGuiApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.size() != 5)
        return fail("usage: fpd-pictures TABLE DRAWINGS STYLES OUT") ? 0 : 2;
    drawing = true;
    return drawAll(arguments.at(1), arguments.at(2), arguments.at(3), arguments.at(4)) ? 0 : 1;
}
