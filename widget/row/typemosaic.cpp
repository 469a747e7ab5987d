#include "widget/row/typemosaic.h"

#include "framework/engine/modes.h"
#include "framework/engine/paraprocess.h"
#include "framework/thread/handover.h"
#include "framework/ui/language.h"
#include "menu/itemindex.h"
#include "menu/menutypes.h"
#include "menu/objectindex.h"
#include "widget/look.h"

#include <QDebug>
#include <QHBoxLayout>
#include <QLabel>

namespace VASK
{
namespace
{
QString rowStyle()
{
    return look::sheet(
        "QLabel[sizeLable=true]{color:$disabled;}"
        "QLabel[source=true]:enabled{color:$text; background-color:$focus; border:none;}"
        "QLabel[source=true]{font-family: \"Arial\";font-size:16px;color:$text; "
        "background-color:#0b0b47; border:1px dashed $edited;}"
        "QTableView::item:disabled{color: $disabled;}"
        "QTableView::item{border:0px;padding-left:10px;}"
        "QTableView::item:selected{background:rgba(14,76,170,66%);}"
        "QTableView{border:1px solid rgba(1,25,63);border-bottom:0px;border-right:0px;border-top:none; "
        "margin:0px; padding:0px;color:$text;background-color:rgb(11,35,72);}");
}
} // namespace

void typemosaic::CreatEntry()
{
    constexpr QSize boxSize(60, 38); // pixels
    m_size = new QLabel(this);
    m_size->setProperty("sizeLable", true);
    m_size->setAlignment(Qt::AlignCenter);
    m_first = new QLabel(this);
    m_second = new QLabel(this);
    for (QLabel *box : {m_first, m_second}) {
        box->setProperty("source", true);
        box->setFixedSize(boxSize);
        box->setAlignment(Qt::AlignCenter);
    }
    m_second->setEnabled(false);
    setStyleSheet(rowStyle());

    m_outer = new QHBoxLayout(this);
    m_outer->addStretch();
    auto *sizeColumn = new QVBoxLayout;
    sizeColumn->addWidget(m_size);
    m_outer->addLayout(sizeColumn);
    m_outer->addStretch();
    const auto *engine = dynamic_cast<ParaProcess *>(GetObjectFromPool(ENUM_PARAPROCESS));
    arrange(engine && engine->GetParaFromIndex(MENU_Mosaic_Layout) == mosaicAbove);
}

void typemosaic::arrange(bool stacked)
{
    if (m_boxes) {
        m_outer->removeItem(m_boxes);
        delete m_boxes;
    }
    m_boxes = new QBoxLayout(stacked ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    m_boxes->setSpacing(0);
    m_boxes->addStretch();
    m_boxes->addWidget(m_first);
    m_boxes->addWidget(m_second);
    m_boxes->addStretch();
    m_outer->insertLayout(0, m_boxes);
}

void typemosaic::updateSplite(QString value)
{
    runOnGui(this, [=] {
        ensureBuilt();
        arrange(value == mosaicAbove);
    });
}

void typemosaic::showSize(const QString &text)
{
    m_size->setText(translated(QStringLiteral("TotalResolution")) + QStringLiteral("\r\n") + text);
}

void typemosaic::updatePixValue(QString text)
{
    runOnGui(this, [=] {
        ensureBuilt();
        showSize(text);
    });
}

void typemosaic::updateSource(ENUM_SOURCELABLEINDEX which, QString text)
{
    runOnGui(this, [=] {
        ensureBuilt();
        (which == SOURCELABLE_FIRST ? m_first : m_second)->setText(translated(text));
    });
}

void typemosaic::EnterEntry(ENUM_MenuIndex index, QWidget *page, unsigned char edit, unsigned char)
{
    if (edit == 0) {
        m_dropDown.open(std::make_unique<stringcomboxtable>(index, objectIndex(), m_item), page);
        return;
    }
    if (!m_dropDown.isOpen())
        return;
    const QString value = limited(m_dropDown.table()->chosenKey(), index);
    m_item.value = value;
    apply(value, index);
    m_dropDown.close();
    ensureBuilt();
    m_first->setText(translated(m_item.params.value(m_item.value)));
}

void typemosaic::draw()
{
    qDebug() << "sourceLable1->setText";
    m_first->setText(translated(m_item.params.value(m_item.value)));
    qDebug() << "sourceLable2->setText";
    m_second->setText(translated(m_item.params.value(m_item.perBase)));
    showSize(m_item.pixValue);
}

void typemosaic::takeValue(ENUM_MenuIndex index, const QString &value, ENUM_MODE_SET_XML mode)
{
    ensureBuilt(); // drawing is told in the log
    if (!value.isEmpty())
        takeOption(index, value, mode, m_dropDown.table());
    redraw();
}
} // namespace VASK
