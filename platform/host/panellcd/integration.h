// The window system of the panel on a PC: windows stacked on the virtual LCD with the activation rules of the
// board's frame buffer. It has no pointer and no keyboard; keys come from the keypad device. GUI thread.
#pragma once

#include <QScopedPointer>
#include <qpa/qplatformintegration.h>

class PanelLcdScreen;
class ScreenService;

class PanelLcdIntegration : public QPlatformIntegration
{
public:
    PanelLcdIntegration();
    ~PanelLcdIntegration() override;

    void initialize() override;
    bool hasCapability(Capability capability) const override;
    QPlatformWindow *createPlatformWindow(QWindow *window) const override;
    QPlatformBackingStore *createPlatformBackingStore(QWindow *window) const override;
    QAbstractEventDispatcher *createEventDispatcher() const override;
    QPlatformFontDatabase *fontDatabase() const override;

private:
    PanelLcdScreen *m_screen; ///< the window system interface deletes it
    QScopedPointer<QPlatformFontDatabase> m_fonts;
    QScopedPointer<ScreenService> m_service;
};
