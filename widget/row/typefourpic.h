// Four pictures side by side, each on or off: the slots of the user's own test pictures. GUI thread.
#pragma once

#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "widget/row/partsrow.h"

#include <array>

class QLabel;

namespace VASK
{
class typefourpic : public PartsRow
{
    Q_OBJECT
public:
    using PartsRow::PartsRow;

    OkKind okKind() const override { return OkKind::Acts; }
    using VaskUiObject::EnterEntry;
    void EnterEntry(ENUM_MenuIndex index) override;

protected:
    void takeValue(ENUM_MenuIndex index, const QString &value, ENUM_MODE_SET_XML mode) override;
    void CreatEntry() override;
    void draw() override;
    const char *className() const override { return "typefourpic"; }

private:
    static constexpr int pictureCount = 4;
    std::array<QLabel *, pictureCount> m_pictures{};
};
} // namespace VASK
