// The table of pictures, read for the build tool: one row a picture or a family of pictures, with its size,
// its drawing and the values that fill the drawing's placeholders. Used in one thread, at build time only.
#pragma once

#include <QList>
#include <QMap>
#include <QSize>
#include <QString>

/// One picture to be drawn.
struct Picture {
    QString name;                  ///< resource path below image/, without the ending
    QSize size;                    ///< pixels
    QString drawing;               ///< path of the drawing below the drawings' folder, without the ending
    QMap<QString, QString> values; ///< what replaces {key} in the drawing
};

/// All pictures of a table, families spread out. On a fault the list is empty and fault says line and reason.
QList<Picture> readPictureTable(const QString &text, QString &fault);

/// The text with every {key} replaced; what has no value is told in missing.
QString filled(const QString &text, const QMap<QString, QString> &values, QString &missing);
