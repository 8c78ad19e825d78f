// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/buttonrow.h"

#include "shell/controls/controls.h"

#include <QLabel>
#include <QPushButton>

#include <algorithm>

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
    , m_words(named(makeQuietLabel({}, this), QStringLiteral("rowWords")))
{
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

void ButtonRow::add(QPushButton *button, QVector<QPushButton *> &group)
{
    group.append(button);
    const QVector<QPushButton *> all = m_left + m_right;
    for (qsizetype i = 1; i < all.size(); ++i)
        setTabOrder(all[i - 1], all[i]);
}

int ButtonRow::groupWidth(const QVector<QPushButton *> &group) const
{
    int width = 0;
    for (const QPushButton *button : group) {
        if (!button->isHidden())
            width += (width ? gap : 0) + widthOf(button);
    }
    return width;
}

void ButtonRow::setWords(const QString &words)
{
    m_text = words;
    rearrange();
}

/// Where what follows the left group begins.
int ButtonRow::behindLeft() const
{
    const int left = groupWidth(m_left);
    return left > 0 ? left + groupGap : 0;
}

bool ButtonRow::haveWordsRoom() const
{
    const int beside = behindLeft() + m_words->fontMetrics().horizontalAdvance(m_text);
    return (fitsOneRow(width()) ? beside + groupGap + groupWidth(m_right) : beside) <= width();
}

bool ButtonRow::fitsOneRow(int width) const
{
    return groupWidth(m_left) == 0 || behindLeft() + groupWidth(m_right) <= width;
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
    return fitsOneRow(width) ? rowHeight() : 2 * rowHeight() + gap;
}

QSize ButtonRow::sizeHint() const
{
    return {behindLeft() + groupWidth(m_right), rowHeight()};
}

QSize ButtonRow::minimumSizeHint() const
{
    return {std::max(groupWidth(m_left), groupWidth(m_right)), rowHeight()};
}

void ButtonRow::place(const QVector<QPushButton *> &group, int x, int y) const
{
    for (QPushButton *button : group) {
        if (button->isHidden())
            continue;
        const int width = widthOf(button);
        button->setGeometry(x, y, width, rowHeight());
        x += width + gap;
    }
}

void ButtonRow::rearrange()
{
    const int height = rowHeight();
    const bool oneRow = fitsOneRow(width());
    place(m_left, 0, 0);
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
