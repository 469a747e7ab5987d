// Reports about the layers: their windows, what they cut out of their source, and the area of the wall.
#include "framework/engine/paraprocess.h"
#include "framework/protocol/link/proto3rdreceiveparse.h"
#include "framework/protocol/snapshot/snapshotmap.h"
#include "framework/store/menuanalysis.h"
#include "menu/itemfamilies.h"
#include "menu/objectindex.h"

#include <QDebug>
#include <iterator>

namespace VASK
{
namespace
{
int ParseLayerInfo(const Report &report)
{
    struct Field {
        ENUM_MenuIndex item;
        int value;
    };
    const Field fields[] = {
        {MENU_MainLayer_Status, report.u8(WINDOW_Status)},
        {MENU_MainLayer_InputSource, report.u8(WINDOW_Input)},
        {MENU_MainLayer_InitialX, report.i32(WINDOW_X)},
        {MENU_MainLayer_InitialY, report.i32(WINDOW_Y)},
        {MENU_MainLayer_HorWidth, report.i32(WINDOW_Width)},
        {MENU_MainLayer_VerHeight, report.i32(WINDOW_Height)},
        {MENU_MainLayer_Priority, report.u8(WINDOW_Priority)},
        {MENU_MainLayer_Opacity, report.u8(WINDOW_Opacity)},
    };
    for (const Field &field : fields)
        report.parse.report(nth(field.item, report.member, STRIDE_Layer), field.value);
    return 0;
}

/// The crop of any source of a layer: the last one that is told counts.
int ParseInterceptReceiveParse(const Report &report)
{
    const int layer =
        static_cast<int>(report.message.address - REG_Set_SenderInterception) / STEP_Set_SenderInterception;
    qDebug() << "winNum:" << layer << ", sourceNum:" << report.member;
    const ENUM_MenuIndex first = nth(MENU_MainLayerCrop_Status, layer, STRIDE_Crop);
    const QString values[] = {
        QString::number(report.u8(CROP_Status)),  QString::number(report.u16(CROP_Width)),
        QString::number(report.u16(CROP_Height)), QString::number(report.u16(CROP_X)),
        QString::number(report.u16(CROP_Y)),
    };
    qDebug() << "strStable:" << values[0] << "strWidth:" << values[1] << "strHeight" << values[2]
             << "strXStart" << values[3] << "strYStart" << values[4];
    // All of it stands in the store before any of it is worked out: a layer follows its crop as a whole.
    for (int i = 0; i < static_cast<int>(std::size(values)); ++i)
        report.parse.store().UpdataItemCurValue(nth(first, i), values[i]);
    for (int i = 0; i < static_cast<int>(std::size(values)); ++i)
        report.parse.ReportMsgToParaProcess(nth(first, i), values[i]);
    return 0;
}

/// The area that this device loads of a bigger wall; it counts while splicing is on.
int ParseScreenInfo(const Report &report)
{
    if (report.parse.engine().GetParaFromIndex(MENU_ImageMosaic_Status) != SELECTED)
        return 1;
    report.parse.report(MENU_ImageMosaic_TotalHPixels, 2 * report.u16(LOADAREA_Width));
    report.parse.report(MENU_ImageMosaic_TotalVPixels, 2 * report.u16(LOADAREA_Height));
    report.parse.report(MENU_ImageMosaic_LoadAreaWidth, report.u16(LOADAREA_Width));
    report.parse.report(MENU_ImageMosaic_LoadAreaHeight, report.u16(LOADAREA_Height));
    report.parse.report(MENU_ImageMosaic_LoadAreaInitialX, report.i32(LOADAREA_X));
    report.parse.report(MENU_ImageMosaic_LoadAreaInitialY, report.i32(LOADAREA_Y));
    return 0;
}

/// Start of a picture that moves as a whole.
enum StartOffset { START_X = 0, START_Y = 4, START_End = 8 };

void echo(const Report &report, ENUM_ObjectIndex row, ENUM_MenuIndex index, int value)
{
    if (auto *widget = dynamic_cast<VaskUiObject *>(report.parse.GetObjectFromPool(row)))
        widget->CallProtocol(QString::number(value), index);
}

/// The device has moved its picture: the main layer follows, and its window is written back.
int Prase_VerHerStart_Video(const Report &report)
{
    const int x = report.i32(START_X);
    const int y = report.i32(START_Y);
    report.parse.report(MENU_MainLayer_InitialX, x);
    report.parse.report(MENU_MainLayer_InitialY, y);
    if (!report.parse.GetObjectFromPool(ENUM_TRANSPORT)) {
        qDebug() << "transport init fail!";
        return 3;
    }
    echo(report, ENUM_ROW_MainLayer_InitialX, MENU_MainLayer_InitialX, x);
    echo(report, ENUM_ROW_MainLayer_InitialY, MENU_MainLayer_InitialY, y);
    return 0;
}

constexpr Family windows{STEP_Set_SenderFormsStatusData, FAMILY_Layer.count};

/// The crops of the inputs in one layer.
constexpr ReportRow cropsOf(int layer, int inputs)
{
    const RegisterAddress first = nth(REG_Set_SenderInterception, layer, STEP_Set_SenderInterception);
    return report(each({STEP2_Set_SenderInterception, inputs}, first), ParseInterceptReceiveParse)
        .needs(CROP_End);
}

constexpr ReportRow rows[] = {
    report(each(windows, REG_Set_SenderFormsStatusData), ParseLayerInfo),
    cropsOf(0, 9),
    cropsOf(1, 6),
    cropsOf(2, 6),
    report(REG_ScreenRecord, ParseScreenInfo),
    report(REG_Set_HorStartDataToSend, Prase_VerHerStart_Video).needs(START_End),
};
} // namespace

Table<ReportRow> layerReports()
{
    return rows;
}
} // namespace VASK
