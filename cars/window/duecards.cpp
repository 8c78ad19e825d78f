// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/window/duecards.h"

#include "cars/model/lines.h"
#include "shell/controls/controls.h"

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int gap = 12;
constexpr int mostColumns = 4;
constexpr int greatestWidth = 380;
constexpr int greatestFlatWidth = 640;
constexpr int flatGap = 4;
constexpr int moreGap = 6;

} // namespace

DueCards::DueCards(QWidget *parent)
    : QWidget(parent)
    , m_more(named(makeQuietLabel({}, this), u"moreDue"_s))
{
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

void DueCards::show(const QList<CarNeed> &needs, const DueCard::Words &words)
{
    m_count = int(needs.size());
    while (m_cards.size() < std::size_t(m_count)) {
        auto *card = new DueCard(int(m_cards.size()), this);
        if (QWidget *before = m_cards.empty() ? m_before : m_cards.back()->button())
            setTabOrder(before, card->button());
        connect(card, &DueCard::clicked, this, [this, card] { emit chosen(card->need()); });
        card->setFlat(m_isFlat);
        m_cards.push_back(card);
    }
    for (int i = 0; i < m_count; ++i)
        m_cards[std::size_t(i)]->show(needs[i], words);
    align();
    updateGeometry();
    place();
}

void DueCards::setRows(int rows)
{
    if (std::exchange(m_mostRows, rows) == rows)
        return;
    updateGeometry();
    place();
}

void DueCards::setFlat(bool isFlat)
{
    if (std::exchange(m_isFlat, isFlat) == isFlat)
        return;
    for (DueCard *card : m_cards)
        card->setFlat(isFlat);
    align();
    updateGeometry();
    place();
}

void DueCards::align()
{
    int width = 0;
    for (int i = 0; m_isFlat && i < m_count; ++i)
        width = std::max(width, m_cards[std::size_t(i)]->whenWidth());
    for (DueCard *card : m_cards)
        card->setWhenWidth(width);
}

int DueCards::columnsIn(int width) const
{
    if (m_isFlat)
        return 1;
    int room = std::clamp((width + gap) / (DueCard::leastWidth() + gap), 1, mostColumns);
    if (room == 1 && width >= 2 * DueCard::narrowWidth() + gap)
        room = 2;
    return std::max(1, std::min(room, m_count));
}

int DueCards::shownIn(int width) const
{
    return std::min(m_count, columnsIn(width) * m_mostRows);
}

int DueCards::cardHeight() const
{
    return m_cards.empty() ? 0 : m_cards.front()->sizeHint().height();
}

int DueCards::rowGap() const
{
    return m_isFlat ? flatGap : gap;
}

int DueCards::heightForWidth(int width) const
{
    if (m_count == 0)
        return 0;
    const int shown = shownIn(width);
    const int rows = (shown + columnsIn(width) - 1) / columnsIn(width);
    const int more = shown < m_count ? moreGap + m_more->sizeHint().height() : 0;
    return rows * cardHeight() + (rows - 1) * rowGap() + more;
}

QSize DueCards::sizeHint() const
{
    const int width = std::max(this->width(), DueCard::leastWidth());
    return {width, heightForWidth(width)};
}

QSize DueCards::minimumSizeHint() const
{
    return {DueCard::leastWidth(), heightForWidth(std::max(width(), DueCard::leastWidth()))};
}

void DueCards::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    place();
}

void DueCards::place()
{
    const int columns = columnsIn(width());
    const int shown = shownIn(width());
    const int wide =
        std::min((width() - (columns - 1) * gap) / columns, m_isFlat ? greatestFlatWidth : greatestWidth);
    const int high = cardHeight();
    for (int i = 0; i < int(m_cards.size()); ++i) {
        DueCard *card = m_cards[std::size_t(i)];
        card->setVisible(i < shown);
        card->setGeometry(i % columns * (wide + gap), i / columns * (high + rowGap()), wide, high);
    }
    m_more->setVisible(shown < m_count);
    m_more->setText(CarLines::moreBelow(m_count - shown));
    m_more->adjustSize();
    m_more->move(0, height() - m_more->height());
}
