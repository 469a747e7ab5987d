// A dotted quad, edited number by number: each OK goes on to the next one, the knob changes it, ESC leaves.
// Keeps each number legal by itself; whether address, mask and gateway go together is the engine's matter.
// GUI thread.
#pragma once

#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "widget/row/menurow.h"

#include <array>

class QBoxLayout;
class QLabel;

namespace VASK
{
class typeipadjust : public MenuRow
{
    Q_OBJECT
public:
    using MenuRow::MenuRow;

    OkKind okKind() const override { return OkKind::EditsAddress; }
    bool needsSheet() const override { return true; }
    using VaskUiObject::DownEntry;
    using VaskUiObject::EnterEntry;
    using VaskUiObject::EscEntry;
    using VaskUiObject::UpEntry;
    /// Takes the number under edit over and goes on to the next.
    void EnterEntry(ENUM_MenuIndex index) override;
    void EscEntry(ENUM_MenuIndex index, unsigned char entered) override;
    /// One unit a click, whatever the speed.
    void UpEntry(ENUM_MenuIndex index, unsigned char &speed) override;
    void DownEntry(ENUM_MenuIndex index, unsigned char &speed) override;
    void NumberEntry(ENUM_MenuIndex index, unsigned char digit) override;

    /// Is that a dotted quad with a legal first number?
    static bool isTextValid(const QString &text);

protected:
    void takeValue(ENUM_MenuIndex index, const QString &value, ENUM_MODE_SET_XML mode) override;
    void CreatEntry() override;
    void draw() override;

private:
    static constexpr int numberCount = 4;

    void addNumbers(QBoxLayout *layout);
    QString getIpText() const;
    void setIpText(const QString &text);
    void showParts(const QString &text);
    void setItemEdit(int number);
    void setModifyStatus(bool on);
    void setTypeStyleSheet();
    bool firstNumberLocked(ENUM_MenuIndex index) const;
    bool matches(const QString &number) const;
    void modifyIpAddress(bool up);
    void modifyIpAddress(int digit, bool up);
    void turn(ENUM_MenuIndex index, bool up);
    void repairAddress(ENUM_MenuIndex index);
    void commit(ENUM_MenuIndex index);

    QLabel *m_icon = nullptr;
    QLabel *m_name = nullptr;
    QLabel *m_rightIcon = nullptr;
    std::array<QLabel *, numberCount> m_numbers{};
    bool m_bModified = false;
    bool m_started = false;
    int m_currentItem = 0;
    bool m_styledEnabled = true;
};
} // namespace VASK
