// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/enterkey.h"

#include <QAbstractButton>
#include <QKeyEvent>

namespace {

class EnterKey final : public QObject
{
public:
    explicit EnterKey(QAbstractButton *button)
        : QObject(button)
        , m_button(button)
    {
        button->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != QEvent::KeyPress)
            return QObject::eventFilter(watched, event);
        const auto *key = static_cast<QKeyEvent *>(event);
        const bool isEnter = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
        if (isEnter && !key->isAutoRepeat())
            m_button->click();
        return isEnter;
    }

private:
    QAbstractButton *m_button;
};

} // namespace

void letEnterPress(QAbstractButton *button)
{
    new EnterKey(button);
}
