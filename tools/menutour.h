// The tour: every page of the three menus, every drop-down, every number under edit, every question, the self
// check and the production test, reached with keys alone and left with ESC step by step; a picture of each
// stop if a folder is given. GUI thread of its program.
#pragma once

#include "client/menuwalk.h"
#include "menu/itemindex.h"
#include "menu/pageindex.h"

#include <QSet>

class Tour
{
public:
    /// The panel is at home and speaks the language of that file, fpd_EN or fpd_ZH. No folder: pages only,
    /// and no pictures.
    Tour(Panel &panel, const QString &language, const QString &folder);

    /// Walks everything below a menu's root, back to the home screen.
    bool walk(VASK::ENUM_ConfigIndex root);
    void homeScreen() { picture("home"); }
    /// The production test from the home screen. The last stop: only its power ends it.
    void productionTest();

    /// What was not as it should be, one line each.
    const QStringList &faults() const { return m_faults; }
    /// The titles of pages below a root that were not seen, though no row that is off leads to them.
    QStringList missed(VASK::ENUM_ConfigIndex root) const;

private:
    void visitPage(const QString &name);
    void visitRows(const QString &name);
    /// The page that a choice on a page brings into its place, and back.
    void visitOther(VASK::ENUM_ConfigIndex page, VASK::ENUM_MenuIndex choice, const QString &name);
    void visitRow(const VASK::st_MenuItemInfo &row, const QString &name);
    void openPage(const VASK::st_MenuItemInfo &row, const QString &name);
    void lookAtEdit(VASK::ENUM_MenuIndex item, const QString &name);
    void lookAtQuestion(const QString &name);
    void lookAtSelfCheck(const QString &name);
    /// The dialog of a preset and, from one that is stored, the targets of a copy.
    void lookAtPreset(VASK::ENUM_MenuIndex item, const QString &name);
    void picture(const QString &name);
    /// Notes it and gives up this menu, as it is not known where the panel is now.
    void fault(const QString &where, const QString &what);

    Panel &m_panel;
    MenuWalk m_walk;
    QString m_folder;
    int m_number = 0;
    bool m_lost = false;
    QStringList m_faults;
    QSet<VASK::ENUM_ConfigIndex> m_seen;
    /// The pages whose row did not answer, and the row's item.
    QMap<VASK::ENUM_ConfigIndex, VASK::ENUM_MenuIndex> m_closed;
};
