#include "framework/communication/http/4th/httpversion/httppackage.h"

namespace Communicator_New
{
namespace Vask4th_New
{
namespace
{
HttpPackage::StringMap toStringMap(const QMap<QString, QVariant> &values)
{
    HttpPackage::StringMap texts;
    for (auto entry = values.cbegin(); entry != values.cend(); ++entry)
        texts.insert(entry.key(), entry.value().toString());
    return texts;
}
} // namespace

void HttpPackage::addTexts(const QString &group, const StringMap &values)
{
    QMap<QString, QVariant> wide;
    for (auto entry = values.cbegin(); entry != values.cend(); ++entry)
        wide.insert(entry.key(), entry.value());
    addAttrib(group, wide);
}

HttpPackage::StringMap HttpPackage::texts(const QString &name) const
{
    return toStringMap(group(name));
}
} // namespace Vask4th_New
} // namespace Communicator_New
