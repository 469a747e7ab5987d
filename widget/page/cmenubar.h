// A picture with a text beside it. No screen of this model shows one.
#pragma once

#include <QWidget>

namespace VASK
{
class CMenuBar : public QWidget
{
    Q_OBJECT
public:
    /// The text is a translation key.
    CMenuBar(QString picture, QString text, QWidget *parent = nullptr);
};
} // namespace VASK
