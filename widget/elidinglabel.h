// A label that shortens a text that does not fit, instead of pushing its neighbours out of the row. Where a
// list covers the right part of the page, its text ends in front of the list. GUI thread.
#pragma once

#include <QLabel>

class ElidingLabel : public QLabel
{
    Q_OBJECT
public:
    using QLabel::QLabel;

    QSize minimumSizeHint() const override;
    /// A text that is shortened last: it gives way to its neighbours only above that width in pixels.
    void setKept(int width);

    /// Something lies over the page from this pixel on, for all labels of the page.
    static void cover(const QWidget &page, int from);
    /// Nothing does any more.
    static void uncover(const QWidget &page);

protected:
    void paintEvent(QPaintEvent *event) override;
    /// Where the text is drawn.
    QRect room() const;

private:
    int m_kept = 0;
    int m_coveredFrom = QWIDGETSIZE_MAX; ///< in pixels of the label
};
