#include "framework/protocol/link/proto4rd.h"

#include "framework/engine/paraprocess.h"
#include "framework/protocol/link/communicationclientinterface.h"
#include "framework/thread/handover.h"

#include <QDebug>

namespace VASK
{
namespace
{
constexpr char nameSeparator = '+';

/// The panel keeps the user's value whatever comes of the request: its end is only logged.
void tellEnd(ST_Protocol4rdMsg &message, ENUM_MenuIndex index, const char *failure)
{
    const auto success = [index](const auto &, const std::string &key) {
        qDebug() << "succeed, index:" << int(index) << "str:" << key.c_str();
    };
    const auto successWithId = [index](const auto &, unsigned long long id, const std::string &key) {
        qDebug() << "succeed, index:" << int(index) << "uid:" << id << "str:" << key.c_str();
    };
    message.onSuccess = success;
    message.onListSuccess = success;
    message.onIdSuccess = successWithId;
    message.onListIdSuccess = successWithId;
    message.onFailure = [failure] { qDebug() << failure; };
}
} // namespace

Proto4rd::Proto4rd(ENUM_ObjectIndex index) : ProtocolInterface(index), m_testPattern(testPatterns()) {}

int Proto4rd::initialize()
{
    m_pHttp = dynamic_cast<CommunicationClientInterface *>(GetObjectFromPool(ENUM_COMMUNICATION_HTTP));
    if (!m_pHttp) {
        qDebug() << "get http socket fail!";
        return 0;
    }
    m_pParaProcess = dynamic_cast<ParaProcess *>(GetObjectFromPool(ENUM_PARAPROCESS));
    if (!m_pParaProcess)
        qDebug() << "4rd get ENUM_PARAPROCESS faild!";
    return 1;
}

void Proto4rd::slot_ValueChanged(QString strValue, ENUM_MenuIndex enMenuIndex)
{
    qDebug() << "4rd Send" << strValue << ",index:" << int(enMenuIndex);
    runOnGui(this, [this, strValue, enMenuIndex] { HandleMenuValueChanged(enMenuIndex, strValue); });
}

int Proto4rd::HandleMenuValueChanged(ENUM_MenuIndex index, const QString &strValue)
{
    if (index >= MENU_Test_Brightness && index <= MENU_Test_Speed)
        return sendShownPattern();
    const RestRow *row = restRow(index);
    if (!row) {
        qDebug() << "Protocol4rd no handle!";
        return 1;
    }
    const auto item = [this](ENUM_MenuIndex menuIndex) {
        return m_pParaProcess ? m_pParaProcess->GetParaFromIndex(menuIndex) : QString();
    };
    ST_Protocol4rdMsg message;
    message.key = row->key;
    message.type = row->type;
    message.id = row->id;
    if (!m_pHttp || !row->fill({index, strValue, m_testPattern, item}, message))
        return 0;
    tellEnd(message, index, row->failure);
    return m_pHttp->SendMsg(&message);
}

/// Brightness, spacing and speed belong to the pattern that is on show: it goes out again, with the new
/// value.
int Proto4rd::sendShownPattern()
{
    static const QMap<QString, ENUM_MenuIndex> shown{
        {"0", MENU_Test_PureColor}, {"1", MENU_Test_Gradient}, {"2", MENU_Test_Grid}};
    if (!m_pParaProcess)
        return 0;
    const QString family = m_pParaProcess->GetParaFromIndex(PARA_TestPatternFamily);
    const auto pattern = shown.constFind(family);
    if (pattern == shown.cend()) {
        qDebug() << "type is fail!" << family;
        return 0;
    }
    return HandleMenuValueChanged(*pattern, m_pParaProcess->GetParaFromIndex(*pattern));
}

int Proto4rd::GetValueByIndexSYN(ENUM_MenuIndex index, QString *strValue)
{
    if (strValue)
        qDebug() << "Proto4rd::GetValueByIndexSYN pstrValue:" << *strValue;
    m_pstrCabFile = strValue;
    if (index != MENU_LoadCabFiles) {
        qDebug() << "No handle! index:" << int(index);
        return 0;
    }
    if (!m_pHttp || !strValue)
        return 0;
    ST_Protocol4rdMsg message;
    message.key = "Device_cfgfile";
    message.type = METHOD_GetTree;
    message.onSuccessTree = [this](const Parameters &, const std::string &, const PResultSet &answer) {
        cabFilesArrived(answer);
    };
    message.onFailure = [] { qDebug() << "http return : LOAD_CABFILE get faild error"; };
    m_pHttp->SendMsg(&message);
    qDebug() << "pstrValue:" << *strValue;
    return 1;
}

void Proto4rd::cabFilesArrived(const PResultSet &answer)
{
    qDebug() << "succeed GetValueByIndexSYN!";
    const ResultSet::List names = answer->findPath("Device_cfgfile", "data")->getList();
    qDebug() << "rgbSet.size():" << names.size();
    if (names.empty() || !m_pstrCabFile)
        return;
    for (const PResultSet &name : names) {
        qDebug() << "m_pstrCabFile" << m_pstrCabFile;
        *m_pstrCabFile += QString::fromStdString(name->getString()) + nameSeparator;
    }
    *m_pstrCabFile = m_pstrCabFile->left(m_pstrCabFile->size() - 1);
}
} // namespace VASK
