#include "platform/host/panellcd/integration.h"

#include "platform/host/panellcd/screen.h"
#include "platform/host/panellcd/screenservice.h"

#include <QtEventDispatcherSupport/private/qgenericunixeventdispatcher_p.h>
#include <QtFbSupport/private/qfbbackingstore_p.h>
#include <QtFbSupport/private/qfbwindow_p.h>
#include <QtFontDatabaseSupport/private/qgenericunixfontdatabase_p.h>
#include <qpa/qwindowsysteminterface.h>

PanelLcdIntegration::PanelLcdIntegration()
    : m_screen(new PanelLcdScreen), m_fonts(new QGenericUnixFontDatabase)
{
}

PanelLcdIntegration::~PanelLcdIntegration()
{
    m_service.reset();
    QWindowSystemInterface::handleScreenRemoved(m_screen);
}

void PanelLcdIntegration::initialize()
{
    m_screen->initialize();
    QWindowSystemInterface::handleScreenAdded(m_screen);
    m_service.reset(new ScreenService(*m_screen));
}

bool PanelLcdIntegration::hasCapability(Capability capability) const
{
    switch (capability) {
    case ThreadedPixmaps:
        return true;
    case WindowManagement:
        return false;
    default:
        return QPlatformIntegration::hasCapability(capability);
    }
}

QPlatformWindow *PanelLcdIntegration::createPlatformWindow(QWindow *window) const
{
    return new QFbWindow(window);
}

QPlatformBackingStore *PanelLcdIntegration::createPlatformBackingStore(QWindow *window) const
{
    return new QFbBackingStore(window);
}

QAbstractEventDispatcher *PanelLcdIntegration::createEventDispatcher() const
{
    return createUnixEventDispatcher();
}

QPlatformFontDatabase *PanelLcdIntegration::fontDatabase() const
{
    return m_fonts.data();
}
