// The pictures of the home screen. GUI thread.
#pragma once

#include <QString>

class QLabel;

/// The path of a picture by its file name.
QString homePicturePath(const QString &file);
/// False, with the failure and the path in the log, if there is no such picture; the label keeps what it has.
bool showHomePicture(QLabel *label, const QString &file, const char *failure);
