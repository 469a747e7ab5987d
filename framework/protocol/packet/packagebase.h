// One packet on its way to or from the device: what a caller wants to know about it besides its bytes, and
// the 16-bit sum that guards the bytes. A package has one owner at a time and no thread of its own.
#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>
#include <atomic>

namespace VASK
{
/// Outcome of an operation as the device tells it; other values than these are its own codes.
enum CommResults : int { COMM_Success = 0 };
enum AckResults : int { ACK_Success = 0 };
enum PackageType : int { PACKAGE_Plain = 0, PACKAGE_Marked = 1 };
enum enum_ProtoType : int { PROTO_Read = 0, PROTO_Write = 1 };
enum ReadTypes : int { READ_Plain = 0 };

class PackageBase : public QObject
{
public:
    /// An empty package, to be filled from a reply. Takes no serial number.
    PackageBase() = default;
    /// A package to be sent. Takes the next serial number.
    PackageBase(int timeOut, const QString &tag, CommResults commResult, enum_ProtoType protoType,
                ReadTypes readType);

    /// The bytes that are written or that a reply brought.
    virtual QByteArray data() const { return {}; }

    /// Both the operation and the answer went well.
    bool isPackageSuccess() const { return m_commResult == COMM_Success && m_ackCode == ACK_Success; }

    int getTimeOut() const { return m_timeOut; }
    void setTimeOut(int timeOut) { m_timeOut = timeOut; }
    CommResults getCommResult() const { return m_commResult; }
    void setCommResults(CommResults result) { m_commResult = result; }
    AckResults getAckCode() const { return m_ackCode; }
    void setAckCode(AckResults code) { m_ackCode = code; }
    PackageType getPackageType() const { return m_packageType; }
    void setPackageType(PackageType type) { m_packageType = type; }
    unsigned char getSerialNum() const { return m_serialNum; }
    void setSerialNum(unsigned char number) { m_serialNum = number; }
    const QString &getTag() const { return m_tag; }
    void setTag(const QString &tag) { m_tag = tag; }
    /// The finished frame.
    const QByteArray &getDataProto() const { return m_dataProto; }
    void setDataProto(const QByteArray &frame) { m_dataProto = frame; }
    enum_ProtoType getProtoType() const { return m_protoType; }
    void setProtoType(enum_ProtoType type) { m_protoType = type; }
    ReadTypes getReadType() const { return m_readType; }

    /// Sum of count bytes from start; bytes past the end of the array count as 0.
    static void CacuRevise(const QByteArray &array, int start, int count, unsigned short *result);
    /// Does the sum over size bytes, but for the header at start, stand in the last two bytes of the array?
    static bool ReviseOk(const QByteArray &array, int start, int size);

    /// Number of the next package that is built; wraps from 255 to 0.
    static std::atomic<unsigned char> serialNum;

private:
    CommResults m_commResult = COMM_Success;
    AckResults m_ackCode = ACK_Success;
    PackageType m_packageType = PACKAGE_Plain;
    unsigned char m_serialNum = 0;
    QString m_tag;
    QByteArray m_dataProto;
    int m_timeOut = 0;
    enum_ProtoType m_protoType = PROTO_Read;
    ReadTypes m_readType = READ_Plain;
};
} // namespace VASK
