// The LCD: composes the windows and copies what changed into the mapped file of the state folder, where the
// emulator and the tests look at it. GUI thread.
#pragma once

#include <QFile>
#include <QImage>
#include <QList>
#include <QtFbSupport/private/qfbscreen_p.h>

class PanelLcdScreen : public QFbScreen
{
public:
    bool initialize() override;

    /// All windows as they are stacked, the one in front first.
    QList<QWindow *> windows() const;

protected:
    QRegion doRedraw() override;

private:
    /// The mapped file; null when it cannot be made, and the panel then draws for nobody.
    uchar *mapFile();
    void copyToFile(const QRegion &touched);

    QFile m_file;
    uchar *m_memory = nullptr;
};
