#include "menu/pages/pagerows.h"
#include "tables.h"

namespace VASK
{
/// All pages; each group of them is a file of its own.
QMap<ENUM_ConfigIndex, ST_MenuConfig> menuPages()
{
    using namespace pagerows;
    Pages pages;
    addMainPages(pages);
    addPicturePages(pages);
    addDevicePages(pages);
    addScreenPages(pages);
    addLayerPages(pages);
    addInputPages(pages);
    addTestPages(pages);
    addCustomPicturePages(pages);
    addMosaicPages(pages);
    addFunctionPages(pages);
    addStereoAndNetworkPages(pages);
    addSystemPages(pages);
    addLastPages(pages);
    return pages;
}
} // namespace VASK
