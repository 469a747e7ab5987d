#include "framework/protocol/link/linksupervision.h"

#include "netstatus.h"

#include <QDebug>

namespace VASK
{
namespace
{
constexpr int linkPeriodMs = 1000;
constexpr int unlockPeriodMs = 5000;

/// What a row asks of a value.
enum Wanted : char { OUT, IN, ANY };
bool fits(Wanted wanted, int value)
{
    return wanted == ANY || (wanted == IN) == (value != 0);
}

struct Row {
    Wanted usb, ethernet, loop, priority;
    LinkRule rule;
};
const Row rows[] = {
    {OUT, OUT, ANY, ANY, {CONNECT_NONE, LinkRule::LinkDown, "eth_unlink &&  usb unlink"}},
    {OUT, IN, OUT, ANY, {CONNECT_NETWORK, LinkRule::LinkUp, "eth_link &&  usb unlink"}},
    {OUT, IN, IN, ANY, {CONNECT_USB_LOOP, LinkRule::LinkUp, "eth_link &&  usb unlink"}},
    {IN, OUT, OUT, ANY, {CONNECT_USB, LinkRule::LinkUp, "usb link eth_unlink"}},
    {IN, OUT, IN, ANY, {CONNECT_USB_LOOP, LinkRule::LinkUp, "usb link eth_unlink"}},
    {IN, IN, OUT, OUT, {CONNECT_USB, LinkRule::ShowOnly, ""}},
    {IN, IN, OUT, IN, {CONNECT_NETWORK, LinkRule::ShowOnly, ""}},
    {IN, IN, IN, ANY, {CONNECT_USB_LOOP, LinkRule::ShowOnly, ""}},
};

/// Takes over a value that differs. True on a change.
bool follow(int &last, int now, const char *name)
{
    if (now == last)
        return false;
    last = now;
    qDebug() << name << now;
    return true;
}
} // namespace

LinkRule linkRule(const LinkState &state)
{
    for (const Row &row : rows) {
        if (fits(row.usb, state.usb_link) && fits(row.ethernet, state.eth_link) &&
            fits(row.loop, state.loop_link) && fits(row.priority, state.priority))
            return row.rule;
    }
    return rows[0].rule;
}

LinkSupervision::LinkSupervision(QObject *parent) : QObject(parent)
{
    m_linkTimer.setObjectName("link poll");
    m_unlockTimer.setObjectName("unlock");
    connect(&m_linkTimer, &QTimer::timeout, this, &LinkSupervision::slot_ComLinkState);
    connect(&m_unlockTimer, &QTimer::timeout, this, &LinkSupervision::slot_Unlock);
}

void LinkSupervision::start()
{
    m_linkTimer.start(linkPeriodMs);
    m_unlockTimer.start(unlockPeriodMs);
}

void LinkSupervision::slot_ComLinkState()
{
    const bool usb = follow(m_state.usb_link, get_usb_otg_status(), "usb_link == ");
    emit usbPolled(m_state.usb_link);
    const bool loop = follow(m_state.loop_link, get_usb_host_status(), "loop_link == ");
    const bool ethernet = follow(m_state.eth_link, get_eth1_status(), "eth_link == ");
    emit ethernetPolled(m_state.eth_link);
    const bool priority = follow(m_state.priority, get_pc_connect_priority(), "priority == ");
    if (!usb && !loop && !ethernet && !priority)
        return;

    const LinkRule rule = linkRule(m_state);
    emit connectState(rule.shown);
    if (rule.follow == LinkRule::ShowOnly)
        return;
    m_noLink = rule.follow == LinkRule::LinkDown;
    m_unlockTimer.start(unlockPeriodMs);
    if (m_noLink)
        emit linkLost();
    qDebug() << rule.log;
    emit returnHome();
}

void LinkSupervision::slot_Unlock()
{
    if (m_noLink)
        emit returnHome();
}
} // namespace VASK
