// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/linkbutton.h"

#include "shell/controls/enterkey.h"
#include "shell/look/theme.h"

#include <QPainter>
#include <QShortcutEvent>
#include <QStyle>

namespace {
constexpr int sideGap = 3;
constexpr int rimGap = 1;
} // namespace

LinkButton::LinkButton(const QString &name, const QString &text, QWidget *parent)
    : QAbstractButton(parent)
{
    setObjectName(name);
    QFont font = TypeScale::label();
    font.setUnderline(true);
    setFont(font);
    setText(text);
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    letEnterPress(this);
}

QSize LinkButton::sizeHint() const
{
    const QSize words = fontMetrics().size(Qt::TextShowMnemonic, text());
    return words + QSize(2 * sideGap, 2 * rimGap);
}

/// Its access key acts at once: the tenth of a second that a button takes to be seen pressed is longer than
/// the way to the next key.
bool LinkButton::event(QEvent *event)
{
    if (event->type() == QEvent::Shortcut && !static_cast<QShortcutEvent *>(event)->isAmbiguous()) {
        click();
        return true;
    }
    return QAbstractButton::event(event);
}

void LinkButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (underMouse() || isDown()) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(Theme::of(this).soft);
        painter.drawRoundedRect(rect(), 4, 4);
    }
    if (hasFocus()) {
        painter.setPen(QPen(palette().color(ThemeRole::strong), 2));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 4, 4);
    }
    style()->drawItemText(&painter, rect(), Qt::AlignCenter | Qt::TextShowMnemonic, palette(), true, text(),
                          ThemeRole::strong);
}
