#include "widget/page/menudirectoty.h"

#include "framework/engine/keyleds.h"
#include "framework/engine/presets.h"
#include "framework/thread/handover.h"
#include "framework/ui/dialogs.h"
#include "widget/menulook.h"
#include "widget/page/cabinetfiles.h"
#include "widget/page/openpage.h"
#include "widget/page/pagekeys.h"
#include "widget/page/testwindows.h"

#include <QPainter>

namespace VASK
{
MenuDirectory::MenuDirectory(ENUM_ObjectIndex index)
    : Page(index), m_table(std::make_unique<PageTable>(this)),
      m_cursor(std::make_unique<PageCursor>(*m_table)), m_keys(std::make_unique<PageKeys>(*this, *m_cursor))
{
    setWindowFlags(Qt::FramelessWindowHint);
    setFixedSize(menulook::width, menulook::height);
}

MenuDirectory::~MenuDirectory() = default;

int MenuDirectory::BuildHandshake(VaskObject const *peer, QMap<QString, QString> connections)
{
    if (!peer)
        return 0;
    for (auto it = connections.cbegin(); it != connections.cend(); ++it)
        QObject::connect(peer, it.key().toLatin1().constData(), this, it.value().toLatin1().constData());
    return 0;
}

bool MenuDirectory::SetTitleInfo(short width, signed char rowCount, QString title, QString style,
                                 QString englishStyle)
{
    return m_table->setTitle(width, rowCount, title, style, englishStyle);
}

void MenuDirectory::initialize()
{
    m_table->build();
}

void MenuDirectory::InsertMenuItem(QMap<int, st_MenuItemInfo> rows)
{
    m_table->setRows(rows);
}

bool MenuDirectory::BuildMenuDirectory(ENUM_ConfigIndex config)
{
    if (!m_table->placeRows(config))
        return false;
    m_cursor->show();
    return true;
}

void MenuDirectory::SetParaEntry(ENUM_MenuIndex, QString, ENUM_MODE_SET_XML)
{
    runOnGui(this, [this] { m_table->followLanguage(); });
}

QDialog *MenuDirectory::CreateDialog(ENUM_MenuIndex index)
{
    return createMessage(this, index);
}

bool MenuDirectory::confirms(ENUM_MenuIndex index)
{
    const std::unique_ptr<QDialog> question(CreateDialog(index));
    if (!question)
        return true;
    const bool accepted = question->exec() == QDialog::Accepted;
    qDebug() << (accepted ? "Accept" : "no Accept");
    return accepted;
}

void MenuDirectory::keypadRotateLeftEvent(KeypadEvent *event)
{
    if (event)
        m_keys->turn(event->KeySpeed(), true);
}

void MenuDirectory::keypadRotateRightEvent(KeypadEvent *event)
{
    if (event)
        m_keys->turn(event->KeySpeed(), false);
}

void MenuDirectory::keypadOkEvent(KeypadEvent *)
{
    m_keys->ok();
}

void MenuDirectory::keypadEScEvent(KeypadEvent *)
{
    m_keys->esc();
}

void MenuDirectory::ReturnToMainWindows(KeypadEvent *)
{
    Presets::giveBackCopied();
    OpenPage::goHome();
}

int MenuDirectory::rowCount() const
{
    return m_table->rowCount();
}

void MenuDirectory::setRowCount(int count)
{
    m_table->setRowCount(count);
    m_cursor->stayInside();
}

int MenuDirectory::currentRow() const
{
    return m_cursor->row();
}

void MenuDirectory::setCurrentRow(int row)
{
    m_cursor->put(row);
}

int MenuDirectory::rowOfPage(ENUM_ObjectIndex page) const
{
    return m_table->rowOfPage(page);
}

bool MenuDirectory::isEditing() const
{
    return m_keys->isEditing();
}

void MenuDirectory::setRowHidden(int row, bool hidden)
{
    m_table->setHidden(row, hidden);
}

void MenuDirectory::reloadFiles()
{
    reloadCabinetFiles(*this);
}

bool MenuDirectory::GetCabCfgFileName(QStringList &names)
{
    return cabinetFileNames(names);
}

void MenuDirectory::UpdateLayerLedStatus(unsigned char layer)
{
    showLayerLeds(layer);
}

void MenuDirectory::UpdateSourceLedStatus()
{
    showSourceLeds();
}

bool MenuDirectory::event(QEvent *event)
{
    if (!event)
        return false;
    // Polished once, before the page is shown or drawn in any other way; not when the event loop begins.
    if (event->type() == QEvent::PolishRequest)
        return true;
    if (event->type() == QEvent::Polish)
        initialize();
    auto *key = dynamic_cast<KeypadEvent *>(event);
    if (!key)
        return QWidget::event(event);
    m_keys->handle(*key);
    return true;
}

void MenuDirectory::slot_devchk_end()
{
    m_keys->skipNextEsc();
    show();
    TestWindows::endSelfCheck();
}

void MenuDirectory::paintEvent(QPaintEvent *)
{
    QPainter(this).drawPixmap(0, 0, menuBackground());
}
} // namespace VASK
