// The dialogs as framework/ knows them: the messages of the menu table, and the actions of a preset. GUI
// thread.
#pragma once

#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menuconfig_k2860.h"

#include <QDialog>
#include <optional>

namespace VASK
{
/// What the widgets do of it. They enter the one object that there is with use().
class Dialogs
{
public:
    virtual ~Dialogs() = default;
    static void use(Dialogs *dialogs) { m_dialogs = dialogs; }
    /// Null while there are no widgets.
    static Dialogs *instance() { return m_dialogs; }

    /// A message as its row tells it, with a text behind its own. The caller runs and deletes it.
    virtual QDialog *message(QWidget *parent, const ST_DialogInfo &row, const QString &extra) = 0;
    /// What shall become of a preset: 1 save, 2 load, 3 clear, 4 copy, 0 nothing. Of an empty one only the
    /// first can be chosen.
    virtual int presetAction(QWidget *parent, const QString &name, bool empty) = 0;

private:
    inline static Dialogs *m_dialogs = nullptr;
};

/// The message of an item, null if it has none that may be shown now. The caller runs and deletes it.
QDialog *createMessage(QWidget *parent, ENUM_MenuIndex index, const QString &extra = {});

/// Shows the message of an item until it ends, and gives its result; nothing, with a log line, if it has
/// none.
std::optional<int> runMessage(QWidget *parent, ENUM_MenuIndex index, const QString &extra = {});
} // namespace VASK
