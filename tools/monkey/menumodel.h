// The menu as its tables have it: which screens there can be, and what OK, ESC and a step of the knob lead
// to. It follows what is seen; where it cannot know what comes, it says nothing. Any one thread.
#pragma once

#include "menu/itemindex.h"
#include "menu/pageindex.h"
#include "menuconfig_k2860.h"
#include "tools/monkey/sight.h"

#include <QTranslator>
#include <functional>

/// A row of a page, and what has been done to it.
struct RowVisit {
    enum Deed { Met = 1, LeftEnd = 2, RightEnd = 4, LeftByOk = 8, LeftByEsc = 16, All = 31 };
    VASK::ENUM_ConfigIndex page = VASK::CONFIG_END;
    int position = 0;
    bool operator<(const RowVisit &other) const
    {
        return std::tie(page, position) < std::tie(other.page, other.position);
    }
};

class MenuModel
{
public:
    /// The panel's own translations lie in the folder.
    explicit MenuModel(const QString &folder);

    /// Takes a sight as the present one; says why it is none of the model's.
    QString take(const Sight &sight);

    enum Key { Left, Right, Ok, Esc };
    /// A key is pressed now. A list of pictures tells no text: that one is open is known by the keys alone.
    void press(Key key);
    enum Pictures { NoPictures, PicturesOpen, PicturesMaybeOpen };
    Pictures pictures() const { return m_pictures; }
    /// What is to be seen after a key: a condition that holds then. None if the model cannot know.
    using Sequel = std::function<bool(const Sight &)>;
    Sequel after(Key key) const;

    /// The page that is open and the row under the cursor; no page if it is not known.
    RowVisit here() const;
    VASK::st_MenuItemInfo row() const;
    /// Rows of the page that is open on which the cursor can stand.
    QList<int> stops() const;
    /// Every row of every page that this model of the device shows.
    static QList<RowVisit> rows();
    static bool isEditable(const VASK::st_MenuItemInfo &row);

private:
    bool says(const QString &text, const QString &key) const;
    bool isPage(const Sight &sight, VASK::ENUM_ConfigIndex page) const;
    VASK::ENUM_ConfigIndex pageOf(const Sight &sight) const;
    int positionOf(const Sight &sight) const;
    Sequel afterKnob(int step) const;
    Sequel afterOk() const;
    Sequel afterEsc() const;

    QTranslator m_chinese, m_english;
    Sight m_sight;
    Pictures m_pictures = NoPictures;
    QList<VASK::ENUM_ConfigIndex> m_pages; ///< from the root to the one that is open, as far as known
};
