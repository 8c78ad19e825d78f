// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/window/timesuggestion.h"

#include "planner/model/usualtime.h"
#include "shell/look/theme.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int tagHeight = 28;
constexpr int inset = 10;

bool isTaking(const QKeyEvent &key)
{
    return (key.key() == Qt::Key_Tab || key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter) &&
           !(key.modifiers() & ~Qt::KeypadModifier);
}

} // namespace

TimeSuggestion::TimeSuggestion(QWidget *form)
    : QAbstractButton(form)
{
    setObjectName(u"timeSuggestion"_s);
    setFocusPolicy(Qt::NoFocus); // which stays in the box
    setCursor(Qt::PointingHandCursor);
    setAttribute(Qt::WA_Hover);
    setToolTip(u"Tab or Enter takes this form of the time"_s);
    connect(this, &QAbstractButton::clicked, this, &TimeSuggestion::take);
    hide();
}

void TimeSuggestion::watch(QLineEdit *box)
{
    box->installEventFilter(this);
    connect(box, &QLineEdit::textEdited, this, [this, box] { follow(box); });
}

void TimeSuggestion::follow(QLineEdit *box)
{
    const QString usual = UsualTime::of(box->text());
    if (usual.isEmpty()) {
        dismiss();
        return;
    }
    m_box = box;
    setText(usual);
    setAccessibleName(usual);
    box->setAccessibleDescription(u"Tab takes "_s + usual);
    const QRect place = box->geometry();
    setGeometry(place.left(), place.bottom() - 1, place.width(), tagHeight);
    if (geometry().bottom() > parentWidget()->rect().bottom()) // the last row
        move(place.left(), place.top() - tagHeight + 2);
    show();
    raise();
}

void TimeSuggestion::dismiss()
{
    if (m_box)
        m_box->setAccessibleDescription({});
    m_box = nullptr;
    hide();
}

/// As a person would type it, so that Ctrl+Z brings back what was typed.
void TimeSuggestion::take()
{
    auto *box = qobject_cast<QLineEdit *>(m_box);
    if (!box)
        return;
    dismiss();
    box->selectAll();
    box->insert(text());
    emit taken();
}

bool TimeSuggestion::eventFilter(QObject *watched, QEvent *event)
{
    if (!m_box || watched != m_box)
        return QAbstractButton::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        if (static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape)
            event->accept();
        break;
    case QEvent::KeyPress: {
        const auto &key = *static_cast<QKeyEvent *>(event);
        if (isTaking(key))
            take();
        else if (key.key() == Qt::Key_Escape)
            dismiss();
        else
            break;
        return true;
    }
    case QEvent::FocusOut:
        dismiss();
        break;
    default:
        break;
    }
    return QAbstractButton::eventFilter(watched, event);
}

void TimeSuggestion::paintEvent(QPaintEvent *)
{
    const Theme &theme = Theme::of(this);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(theme.edge);
    painter.setBrush(underMouse() ? theme.soft : theme.panel);
    painter.drawRoundedRect(QRectF(rect()).adjusted(.5, .5, -.5, -.5), 6, 6);
    const QRect words = rect().adjusted(inset, 0, -inset, 0);
    painter.setPen(theme.quiet);
    painter.setFont(TypeScale::label());
    painter.drawText(words, Qt::AlignLeft | Qt::AlignVCenter, u"Tab"_s);
    painter.setPen(theme.text);
    painter.setFont(TypeScale::body());
    painter.drawText(words, Qt::AlignRight | Qt::AlignVCenter, text());
}
