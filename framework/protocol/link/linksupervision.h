// Watches the cables: once a second it asks which are in, says what the home screen shows for them and when
// the panel may return home. GUI thread.
#pragma once

#include "framework/ui/homestates.h"

#include <QObject>
#include <QTimer>

namespace VASK
{
/// What the board said last, zero or non-zero.
struct LinkState {
    int usb_link = 0;  ///< a PC on the USB device port
    int loop_link = 0; ///< the USB loop connection
    int eth_link = 0;  ///< a PC on Ethernet
    int priority = 0;  ///< 0 prefers USB
};

/// What follows from a state of the cables.
struct LinkRule {
    ENUM_MainWindowConnectState shown;
    enum Follow { ShowOnly, LinkUp, LinkDown } follow;
    const char *log;
};
LinkRule linkRule(const LinkState &state);

class LinkSupervision : public QObject
{
    Q_OBJECT
public:
    explicit LinkSupervision(QObject *parent = nullptr);

    void start();
    bool isUnlinked() const { return m_noLink; }
    const LinkState &state() const { return m_state; }
    const QTimer &unlockTimer() const { return m_unlockTimer; }

public slots:
    /// Asks the board, once a second.
    void slot_ComLinkState();
    /// Without a cable no host holds the panel; repeated every five seconds.
    void slot_Unlock();

signals:
    void connectState(ENUM_MainWindowConnectState state);
    /// What every poll finds, changed or not.
    /// @{
    void usbPolled(int state);
    void ethernetPolled(int state);
    /// @}
    /// The last cable went out.
    void linkLost();
    /// The panel may return home, if the work mode lets it.
    void returnHome();

private:
    LinkState m_state;
    bool m_noLink = false;
    QTimer m_linkTimer;
    QTimer m_unlockTimer;
};
} // namespace VASK
