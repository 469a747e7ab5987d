// Files of a fixed size that are mapped into memory. Main thread.
#pragma once

#include <QFile>

/// Makes an open file so long and has the disk keep room for all of it: a page of a mapped file that finds no
/// room when it is first written to ends the process. Empty, or what went wrong.
QString reserve(QFile &file, qint64 size);
