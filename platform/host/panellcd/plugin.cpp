#include "platform/host/panellcd/integration.h"

#include <qpa/qplatformintegrationplugin.h>

class PanelLcdPlugin : public QPlatformIntegrationPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QPlatformIntegrationFactoryInterface_iid FILE "panellcd.json")
public:
    QPlatformIntegration *create(const QString &, const QStringList &) override
    {
        return new PanelLcdIntegration;
    }
};

#include "plugin.moc"
