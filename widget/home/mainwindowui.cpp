#include "widget/home/mainwindowui.h"

#include "framework/ui/language.h"
#include "widget/elidinglabel.h"

#include <QStyle>
#include <QVariant>

namespace
{
const char captionStyle[] = "font-family: \"Arial\";font-size: 15px;color: #2d91aa; font-weight:bold";
const char headStyle[] = "font-family: \"Arial\";font-size: 13px; lineHeight: 8; color: #83818c;";
const char sourceStyle[] =
    "font-family: \"Arial\";font-size: 14px;color: #050a2d; lineHeight: 8; font-weight:bold";
const char valueStyle[] = "*{font-family: \"Arial\";font-size: 16px;lineHeight:8px; color: #a7a4b2;}";
const char windowStyle[] = "*{font-family: \"Arial\";font-size: 15px; font-weight:bold;color:#2d91aa;}"
                           "#WinState[switch=true]{color:#2d91aa;}#WinState[switch=false]{color:#1c4a55;}";
const char syncStyle[] = "*{font-family: \"Arial\";font-size: 12px; font-weight:bold;color:#888796;}"
                         "#SyncState[switch=true]{color:#888796;}#SyncState[switch=false]{color:#525252;}"
                         "#labSynName[switch=false]{color:#525252;}";

/// What the device is; the maker's sign.
const char deviceModel[] = "K2860";

const char switchProperty[] = "switch";
const char keyProperty[] = "textKey";

/// A label, where it stands and what it shows at first. Several labels have names that their style asks for.
struct Place {
    QLabel **label;
    const char *name;
    QRect at;
    const char *text;
    Qt::Alignment alignment;
};
} // namespace

void Ui_MainWindow::setupUi(QWidget *window)
{
    constexpr auto left = Qt::AlignLeft | Qt::AlignVCenter;
    constexpr auto centre = Qt::AlignCenter;
    const Place places[] = {
        {&labDeviceName, "labDeviceName", {25, 6, 118, 16}, deviceModel, left},
        {&labLock, "labLock", {147, 4, 26, 20}, "", centre},
        {&labIp, "labIp", {187, 6, 126, 16}, "", left},
        {&labWindow[0], "WinState", {0, 30, 55, 31}, "Main", centre},
        {&labWindow[1], "WinState", {0, 64, 55, 31}, "PIP1", centre},
        {&labWindow[2], "WinState", {0, 97, 55, 31}, "PIP2", centre},
        {&labLayerSrc_Name[0], "labLayerSrc1_Name", {62, 36, 66, 20}, "", centre},
        {&labLayerSrc_Name[1], "labLayerSrc2_Name", {62, 69, 66, 20}, "", centre},
        {&labLayerSrc_Name[2], "labLayerSrc3_Name", {62, 102, 66, 20}, "", centre},
        {&labLayerSrc_Res[0], "labLayerSrc1_Res", {136, 37, 180, 19}, "", left},
        {&labLayerSrc_Res[1], "labLayerSrc2_Res", {136, 69, 180, 19}, "", left},
        {&labLayerSrc_Res[2], "labLayerSrc3_Res", {136, 102, 180, 19}, "", left},
        {&labWindowOffDisplay[0], "labWindowOffDisplay_1", {64, 36, 180, 19}, "Inactive", left},
        {&labWindowOffDisplay[1], "labWindowOffDisplay_2", {64, 68, 180, 19}, "Inactive", left},
        {&labWindowOffDisplay[2], "labWindowOffDisplay_3", {64, 101, 180, 19}, "Inactive", left},
        {&labScreen, "labScreen", {6, 143, 54, 12}, "Screen", left},
        {&labScreenRes, "labScreenRes", {63, 141, 160, 19}, "", left},
        {&labBright, "labBright", {268, 140, 50, 19}, "", left},
        {&labPort, "labPort", {7, 195, 54, 12}, "Port", left},
        {&labNet[0], "labNet1", {63, 180, 24, 21}, "", centre},
        {&labNet[1], "labNet2", {103, 180, 24, 21}, "", centre},
        {&labNet[2], "labNet3", {143, 180, 24, 21}, "", centre},
        {&labNet[3], "labNet4", {63, 208, 24, 21}, "", centre},
        {&labNet[4], "labNet5", {103, 208, 24, 21}, "", centre},
        {&labNet[5], "labNet6", {143, 208, 24, 21}, "", centre},
        {&labSyn, "SyncState", {216, 175, 70, 24}, "", centre},
        {&labSynName, "labSynName", {216, 177, 69, 20}, "", centre},
        {&labTestMode, "labTestMode", {194, 208, 46, 30}, "", centre},
        {&labConnectState, "labConnectState", {268, 208, 46, 30}, "", centre},
    };

    centralWidget = new QWidget(window);
    centralWidget->setObjectName("centralWidget");
    centralWidget->setGeometry(0, 0, width, height);
    for (const Place &place : places) {
        auto *label = new ElidingLabel(QString::fromUtf8(place.text), centralWidget);
        label->setObjectName(place.name);
        label->setGeometry(place.at);
        label->setAlignment(place.alignment);
        *place.label = label;
    }
}

void Ui_MainWindow::setStyles()
{
    for (QLabel *label : {labScreen, labPort})
        label->setStyleSheet(captionStyle);
    for (QLabel *label : {labDeviceName, labIp})
        label->setStyleSheet(headStyle);
    for (QLabel *label : {labScreenRes, labBright})
        label->setStyleSheet(valueStyle);
    for (int layer = 0; layer < layerCount; ++layer) {
        labWindow[layer]->setStyleSheet(windowStyle);
        // With the picture of its state, unless that is missing.
        if (labLayerSrc_Name[layer]->styleSheet().isEmpty())
            labLayerSrc_Name[layer]->setStyleSheet(sourceStyle);
        labLayerSrc_Res[layer]->setStyleSheet(valueStyle);
        labWindowOffDisplay[layer]->setStyleSheet(valueStyle);
    }
    labSynName->setStyleSheet(syncStyle);
}

QString Ui_MainWindow::sourceNameStyle(const QString &picture)
{
    return QString::fromUtf8(sourceStyle) + ";border-image:url(" + picture + ") 0 0 0 0 stretch stretch;";
}

void Ui_MainWindow::setSwitch(QLabel *label, bool on)
{
    if (label->property(switchProperty) == QVariant(on))
        return;
    label->setProperty(switchProperty, on);
    label->style()->unpolish(label);
    label->style()->polish(label);
}

void Ui_MainWindow::showKey(QLabel *label, const QString &key)
{
    label->setProperty(keyProperty, key);
    label->setText(VASK::translated(key));
}

void Ui_MainWindow::showText(QLabel *label, const QString &text)
{
    label->setProperty(keyProperty, QVariant());
    label->setText(text);
}

void Ui_MainWindow::translateAgain()
{
    if (!centralWidget)
        return;
    const auto labels = centralWidget->findChildren<QLabel *>();
    for (QLabel *label : labels) {
        const QVariant key = label->property(keyProperty);
        if (key.isValid())
            label->setText(VASK::translated(key.toString()));
    }
}
