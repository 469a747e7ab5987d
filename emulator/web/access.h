// Who may look at the panel, and who may drive it. On the loopback address everybody who reaches it may;
// anywhere else a token says so, one for looking and one for driving. Pages of other origins may nothing: a
// browser tells whose page asks, and by which name the machine was called.
#pragma once

#include "emulator/web/httprequest.h"

#include <QHostAddress>

class Access
{
public:
    enum Right { nothing, look, drive };

    explicit Access(const QHostAddress &bound);

    /// By its token, in the query or in the header Authorization; one that asks to look only gets no more.
    Right rightOf(const http::Request &request) const;
    Right rightOf(const QUrlQuery &query, const QByteArray &authorization = QByteArray()) const;
    /// The machine was called by an address or a name of its own: any other name could be another's, who lets
    /// it lead here.
    static bool isOwnHost(const http::Request &request);
    /// No page asks, or one that came from here.
    static bool isOwnOrigin(const http::Request &request);

    bool needsToken() const { return !m_driveToken.isEmpty(); }
    QString driveToken() const { return m_driveToken; }
    QString lookToken() const { return m_lookToken; }

private:
    QString m_driveToken, m_lookToken; ///< empty: none is needed
};
