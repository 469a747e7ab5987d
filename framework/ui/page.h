// A page of the menu as framework/ knows it; the widgets that implement it stand in the pool by their own
// numbers. GUI thread.
#pragma once

#include "framework/object/vaskobject.h"

namespace VASK
{
class KeypadEvent;

class Page : public VaskUiObject
{
    Q_OBJECT
public:
    explicit Page(ENUM_ObjectIndex index) : VaskUiObject(index) {}

    /// Ends the edit of the row, or leaves the page for the screen that it leads back to.
    virtual void keypadEScEvent(KeypadEvent *event) = 0;
    /// The screen that ESC leads back to.
    virtual void setParentScreen(QWidget *screen) = 0;
    /// Puts the cursor on a row; a row outside the page changes nothing.
    virtual void setCurrentRow(int row) = 0;
    /// The list of cabinet files is read again; for the page that shows it.
    virtual void reloadFiles() = 0;
};
} // namespace VASK
