// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/window/signline.h"

#include "shell/look/theme.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int signSize = 18;
constexpr int gap = 6;
} // namespace

SignLine::SignLine(QWidget *parent)
    : QWidget(parent)
{
    setFont(TypeScale::body());
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

QLatin1StringView SignLine::sign(CarNeed::State state)
{
    switch (state) {
    case CarNeed::State::Overdue:
        return "overdue"_L1;
    case CarNeed::State::Due:
        return "due"_L1;
    default:
        return {};
    }
}

bool SignLine::isOnUserColor(const QWidget &part)
{
    // The colour of the ground itself does not come through to what is scrolled.
    return part.palette().color(QPalette::WindowText) != Theme::of(&part).text;
}

void SignLine::setWords(CarNeed::State state, const QString &words)
{
    m_state = state;
    m_words = words;
    setFont(isUrgent() ? TypeScale::strong() : TypeScale::body());
    setAccessibleName(words);
    updateGeometry();
    update();
}

QSize SignLine::sizeHint() const
{
    const int before = isUrgent() ? signSize + gap : 0;
    // An advance is rounded, and half a pixel too few would cut the words.
    return {before + fontMetrics().horizontalAdvance(m_words) + 1,
            std::max(QFontMetrics(TypeScale::strong()).height(), signSize)};
}

QSize SignLine::minimumSizeHint() const
{
    return {40, sizeHint().height()};
}

int SignLine::wordsWidth() const
{
    return width() - (isUrgent() ? signSize + gap : 0);
}

bool SignLine::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip) {
        const bool isCut = fontMetrics().horizontalAdvance(m_words) > wordsWidth();
        QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), isCut ? m_words : QString(), this);
        return true;
    }
    return QWidget::event(event);
}

void SignLine::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const Theme &theme = Theme::of(this);
    QRect place = rect();
    const bool hasUserColor = isOnUserColor(*this);
    const QColor ink = palette().color(QPalette::WindowText);
    if (isUrgent()) {
        // A dark ink tells that the ground is light, whatever the desktop is.
        const auto scheme = !hasUserColor             ? theme.scheme
                            : ink.lightnessF() < 0.5F ? Icons::Scheme::Light
                                                      : Icons::Scheme::Dark;
        painter.drawPixmap(0, (height() - signSize) / 2,
                           Icons::pixmap(sign(m_state), scheme, signSize, devicePixelRatioF()));
        place.setLeft(signSize + gap);
    }
    const QColor urgent = m_state == CarNeed::State::Overdue ? theme.negative : theme.due;
    painter.setPen(!isUrgent() ? palette().color(ThemeRole::quiet) : hasUserColor ? ink : urgent);
    painter.setFont(font());
    painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     fontMetrics().elidedText(m_words, Qt::ElideRight, place.width()));
}
