// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/buttonrow.h"

#include "shell/controls/controls.h"
#include "shell/controls/lowwindow.h"
#include "shell/controls/morebutton.h"

#include <QLabel>
#include <QMenu>
#include <QPushButton>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int gap = 8;
constexpr int groupGap = 16;

int widthOf(const QPushButton *button)
{
    return std::max(button->sizeHint().width(), button->minimumWidth());
}

} // namespace

ButtonRow::ButtonRow(QWidget *parent)
    : QWidget(parent)
    , m_words(named(makeQuietLabel({}, this), u"rowWords"_s))
    , m_low(new LowWindow(this))
    , m_more(makeButton(u"moreButtons"_s, MoreButton::word(), this))
{
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    m_more->hide();
    connect(m_more, &QPushButton::clicked, this, &ButtonRow::openMore);
    connect(m_low, &LowWindow::changed, this, &ButtonRow::rearrange);
}

void ButtonRow::add(QPushButton *button, QList<QPushButton *> &group)
{
    group.append(button);
    const QList<QPushButton *> all = m_left + QList<QPushButton *>{m_more} + m_right;
    for (qsizetype i = 1; i < all.size(); ++i)
        setTabOrder(all[i - 1], all[i]);
}

void ButtonRow::standBehind(QWidget *before)
{
    for (QPushButton *button : m_left + QList<QPushButton *>{m_more} + m_right)
        setTabOrder(std::exchange(before, button), button);
}

int ButtonRow::groupWidth(const QList<QPushButton *> &group) const
{
    int width = 0;
    for (const QPushButton *button : group) {
        if (!button->isHidden() && !m_held.contains(button))
            width += (width ? gap : 0) + widthOf(button);
    }
    return width;
}

void ButtonRow::setWords(const QString &words)
{
    m_text = words;
    rearrange();
}

int ButtonRow::leftWidth() const
{
    return groupWidth(m_left + QList<QPushButton *>{m_more});
}

/// Where what follows the left group begins.
int ButtonRow::behindLeft() const
{
    const int left = leftWidth();
    return left > 0 ? left + groupGap : 0;
}

bool ButtonRow::haveWordsRoom() const
{
    const int beside = behindLeft() + m_words->fontMetrics().horizontalAdvance(m_text);
    return (fitsOneRow(width()) ? beside + groupGap + groupWidth(m_right) : beside) <= width();
}

bool ButtonRow::fitsOneRow(int width) const
{
    return leftWidth() == 0 || behindLeft() + groupWidth(m_right) <= width;
}

/// In a low window "More" alone is enough at the left.
bool ButtonRow::takesOneRow(int width) const
{
    return fitsOneRow(width) || (m_low->isLow() && widthOf(m_more) + groupGap + groupWidth(m_right) <= width);
}

int ButtonRow::rowHeight() const
{
    int height = 34;
    for (const auto &group : {m_left, m_right}) {
        for (const QPushButton *button : group)
            height = std::max(height, button->sizeHint().height());
    }
    return height;
}

int ButtonRow::heightForWidth(int width) const
{
    return takesOneRow(width) ? rowHeight() : 2 * rowHeight() + gap;
}

QSize ButtonRow::sizeHint() const
{
    return {behindLeft() + groupWidth(m_right), rowHeight()};
}

QSize ButtonRow::minimumSizeHint() const
{
    const int left = m_low->isLow() ? widthOf(m_more) : groupWidth(m_left);
    const int right = groupWidth(m_right);
    return {std::max(left, right), rowHeight()};
}

void ButtonRow::place(const QList<QPushButton *> &group, int x, int y) const
{
    for (QPushButton *button : group) {
        if (button->isHidden())
            continue;
        const int width = widthOf(button);
        if (m_held.contains(button)) {
            // Out of sight, but not hidden: its access key goes on working.
            button->setGeometry(-2 * width, 0, width, rowHeight());
            continue;
        }
        button->setGeometry(x, y, width, rowHeight());
        x += width + gap;
    }
}

/// In a low window "More" has those of the left group that find no room.
void ButtonRow::holdWhatHasNoRoom()
{
    m_held.clear();
    m_more->hide();
    const bool isOneRow = takesOneRow(width());
    const auto fits = [this, isOneRow] { return isOneRow ? fitsOneRow(width()) : leftWidth() <= width(); };
    if (m_low->isLow() && !fits()) {
        m_more->show();
        for (qsizetype i = m_left.size() - 1; i >= 0 && !fits(); --i) {
            if (!m_left[i]->isHidden())
                m_held.prepend(m_left[i]);
        }
    }
    for (QPushButton *button : std::as_const(m_left))
        button->setFocusPolicy(m_held.contains(button) ? Qt::NoFocus : Qt::StrongFocus);
}

void ButtonRow::openMore()
{
    QList<QAction *> actions;
    for (QPushButton *button : std::as_const(m_held)) {
        QAction *action = makeAction(button->objectName() + u"_more"_s, button->text(), m_more);
        action->setEnabled(button->isEnabled());
        action->setToolTip(button->toolTip());
        connect(action, &QAction::triggered, button, &QPushButton::click);
        actions << action;
    }
    QMenu *menu = MoreButton::openMenu(m_more, actions);
    for (QAction *action : std::as_const(actions))
        action->setParent(menu);
}

void ButtonRow::rearrange()
{
    holdWhatHasNoRoom();
    const int height = rowHeight();
    const bool oneRow = takesOneRow(width());
    place(m_left + QList<QPushButton *>{m_more}, 0, 0);
    const bool haveRoom = haveWordsRoom();
    m_words->setText(haveRoom ? m_text : QString());
    m_words->setGeometry(behindLeft(), 0, m_words->sizeHint().width(), height);
    place(m_right, std::max(0, width() - groupWidth(m_right)), oneRow ? 0 : height + gap);
    updateGeometry();
    emit wordsLeftOut(haveRoom ? QString() : m_text);
}

void ButtonRow::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    rearrange();
}
