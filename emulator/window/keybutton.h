// A key of the panel with its LED above. Main thread.
#pragma once

#include "emulator/device/keynames.h"
#include "emulator/window/pushable.h"

class KeyButton : public Pushable
{
    Q_OBJECT
public:
    explicit KeyButton(const KeyName &key, QWidget *parent = nullptr);

    const KeyName &key() const { return m_key; }
    void setLit(bool lit);
    void setScale(double scale) override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void paintLed(QPainter &painter) const;

    KeyName m_key;
    bool m_lit = false;
    double m_scale = 1;
};
