// The object family: every long-lived part of the program is one object with a number, found through the
// pool. Objects are made and used on the GUI thread unless their own header says otherwise.
#pragma once

#include "framework/object/objectpool.h"
#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"

#include <QMap>
#include <QString>
#include <QWidget>

namespace VASK
{
/// Root of the family: holds the object's number and gives access to the pool.
class VaskObject : public QWidget
{
    Q_OBJECT
public:
    explicit VaskObject(ENUM_ObjectIndex index, QWidget *parent = nullptr);

    /// Enters an object into the pool; false for a null object or a number of no object.
    bool CreateObjectToPool(ENUM_ObjectIndex index, VaskObject *object);
    /// Destroys the object under the number. The caller must insert a new one before the next look-up.
    bool DeleteObjectFromPool(ENUM_ObjectIndex index);
    VaskObject *GetObjectFromPool(ENUM_ObjectIndex index) const;
    ENUM_ObjectIndex GetObjectIndexFromPool(VaskObject *object) const;
    /// Writes the object's own number; false if it has none.
    bool GetObectIndex(ENUM_ObjectIndex &index) const;
    bool IsExistFromPool(ENUM_ObjectIndex index) const;

    /// Connects signals of the peer (keys) to slots of this object (values), both as QObject::connect takes
    /// them.
    virtual int BuildHandshake(VaskObject const *peer, QMap<QString, QString> connections) = 0;

private:
    ENUM_ObjectIndex m_objectIndex;
};

/// Root of the services that draw nothing.
class VaskGeneralObject : public VaskObject
{
    Q_OBJECT
public:
    explicit VaskGeneralObject(ENUM_ObjectIndex index) : VaskObject(index) {}
    int BuildHandshake(VaskObject const *, QMap<QString, QString>) override { return 0; }
};

/// Root of everything that reacts to keys. The virtual operations are empty here; pages and rows override
/// what their kind needs. All of them run on the GUI thread, apart from SetParaEntry, UpdateALLUI and
/// UpdateTagName, which may be called from the report thread too.
class VaskUiObject : public VaskObject
{
    Q_OBJECT
public:
    explicit VaskUiObject(ENUM_ObjectIndex index) : VaskObject(index) {}
    int BuildHandshake(VaskObject const *, QMap<QString, QString>) override { return 0; }

    /// With a drop-down open: may the option under the cursor be taken?
    virtual bool CurrentItemEnabled() { return false; }
    /// OK on a row of a list kind; edit 0 opens the drop-down, 1 closes it and takes the option.
    virtual void EnterEntry(ENUM_MenuIndex, QWidget * /*page*/, unsigned char /*edit*/, unsigned char) {}
    /// OK on a number row; edit 0 starts editing, 1 ends it.
    virtual void EnterEntry(ENUM_MenuIndex, unsigned char /*edit*/, unsigned char /*entered*/) {}
    /// OK on any other row.
    virtual void EnterEntry(ENUM_MenuIndex) {}
    virtual void EnterEntry(ENUM_MenuIndex, QString) {}
    /// New label text (a translation key).
    virtual void UpdateTagName(ENUM_MenuIndex, QString) {}
    /// Reloads the row from the store and redraws all of it.
    virtual void UpdateALLUI(ENUM_MenuIndex) {}
    virtual void setTwoArrow(bool) {}
    virtual void updateSplite(QString) {}
    virtual void updatePixValue(QString) {}
    virtual void updateSource(ENUM_SOURCELABLEINDEX, QString) {}
    virtual void EnterDialog(ENUM_MenuIndex) {}
    /// ESC while editing; the second form is for number rows.
    virtual void EscEntry(ENUM_MenuIndex) {}
    virtual void EscEntry(ENUM_MenuIndex, unsigned char /*entered*/) {}
    /// Knob left: in a drop-down, in a number, among inner parts. The last form lowers speed by what it used
    /// inside.
    virtual void UpEntry(ENUM_MenuIndex) {}
    virtual void UpEntry(ENUM_MenuIndex, unsigned char & /*speed*/) {}
    virtual void UpEntry(ENUM_MenuIndex, unsigned char & /*speed*/, bool /*firstRow*/) {}
    /// Knob right, in the same three forms.
    virtual void DownEntry(ENUM_MenuIndex) {}
    virtual void DownEntry(ENUM_MenuIndex, unsigned char & /*speed*/) {}
    virtual void DownEntry(ENUM_MenuIndex, unsigned char & /*speed*/, bool /*lastRow*/) {}
    /// A digit typed in edit mode.
    virtual void NumberEntry(ENUM_MenuIndex, unsigned char /*digit*/) {}
    /// Selected (non-zero) or unselected look.
    virtual void ChangeStyleEntry(ENUM_MenuIndex, unsigned char /*on*/) {}
    /// A value arrives from outside; index -1 or -2 stands for the row's own.
    virtual void SetParaEntry(ENUM_MenuIndex, QString, ENUM_MODE_SET_XML) {}
    virtual void SetRightTextEnable(bool) {}
    virtual void GetButtonChooseEntry(ENUM_MenuIndex) {}

    /// Makes a store under that number and enters it into the pool.
    bool CreateMenuAnalysisObject(ENUM_ObjectIndex index);
    /// Makes sure that the item stands in the store: an unknown one is added from its table row.
    bool CreateMenuXml(ENUM_MenuIndex index);
    /// Hands a value to the protocol object that serves the item. Any thread that may call SetParaToXml.
    void CallProtocol(QString value, ENUM_MenuIndex index);
    /// Asks the protocol object of the item for its value, synchronously.
    void CallProtocolSynGet(QString &value, ENUM_MenuIndex index);
};
} // namespace VASK
