// What the device reports, turned into values of items: finds the handler of a register and lets it tell the
// engine, item by item. Keeps the tables of the device's inputs, which the send path and the engine look up.
// Made on the GUI thread; everything else runs on the report thread.
#pragma once

#include "framework/object/vaskobject.h"
#include "framework/protocol/inputtable.h"
#include "framework/protocol/receive/report.h"
#include "menu/itemindex.h"
#include "menu/objectindex.h"

#include <QMutex>
#include <atomic>

namespace VASK
{
class MenuAnalysis;
class Page;
class ParaProcess;

class Proto3rdReceiveParse : public VaskObject
{
    Q_OBJECT
public:
    /// The singleton, entered into the pool when it is made. The first call must be on the GUI thread, when
    /// engine, store and main menu are in the pool: without them no report has a handler.
    static Proto3rdReceiveParse *getInstance();
    static void deleteInstance();
    int BuildHandshake(VaskObject const *, QMap<QString, QString>) override { return 0; }

    /// Handles one report: 1 if its register has no handler, else what the handler gives.
    int Parse3rdToDisplay(const stMessageHandle *message);
    /// Tells the engine a value of the device. 1.
    int ReportMsgToParaProcess(ENUM_MenuIndex index, const QString &value);
    int report(ENUM_MenuIndex index, int value)
    {
        return ReportMsgToParaProcess(index, QString::number(value));
    }

    /// Enters an input into the tables, in the order of the reports, until the device has listed all of them:
    /// the record of the synchronisation reference closes the tables for good.
    void BuildMap(ENUM_MenuIndex index, unsigned char code);

    ParaProcess &engine() { return *pParaProcess; }
    MenuAnalysis &store() { return *pMenu; }

    /// Every input, numbered in the order in which the device lists them.
    static InputTable inputSourceCode;
    /// The inputs that take an EDID, numbered from 0.
    static InputTable EDIDSourceCode;
    /// The inputs that can take part in a mosaic, by the rows of its arrangement; the index of an entry is
    /// that row again, so that an arrangement reads the same on its way out and back.
    static InputTable MosaicSourceCode;

private:
    explicit Proto3rdReceiveParse(ENUM_ObjectIndex index);

    bool findPeers();
    void closeInputTables();

    static std::atomic<Proto3rdReceiveParse *> m_pInstance;
    static QMutex m_lock;

    /// Stays empty without the peers.
    TableIndex<RegisterAddress, ReportRow> m_mapMenuIndexAndHander;
    ParaProcess *pParaProcess = nullptr;
    MenuAnalysis *pMenu = nullptr;
    Page *pMenuDir = nullptr;

    bool BuildOverFlag = false;
    unsigned char inputSourceNum = 0;
    unsigned char EDIDNum = 0;
    bool bHaveSDI = false;
};

/// How the lines of this path begin in the log.
constexpr const char *receiveLogOrigin = "framework/protocol/link/proto3rdreceiveparse.cpp";
} // namespace VASK
