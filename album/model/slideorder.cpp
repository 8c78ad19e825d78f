// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/model/slideorder.h"

#include <algorithm>
#include <utility>

SlideOrder::SlideOrder(QList<int> pictures, Kind kind, int first, quint32 seed)
    : m_pictures(std::move(pictures))
    , m_kind(kind)
    , m_random(seed)
{
    lengthen();
    const qsizetype begin = m_way.indexOf(first);
    if (begin > 0 && m_kind == Kind::Shuffled)
        m_way.swapItemsAt(0, begin);
    else if (begin > 0)
        m_at = begin;
    lengthen();
}

int SlideOrder::at(qsizetype position) const
{
    if (m_way.isEmpty())
        return 0;
    if (position < 0)
        return m_kind == Kind::AsTheyStand ? m_pictures.last() : m_way.first();
    return m_way.at(position);
}

int SlideOrder::current() const
{
    return at(m_at);
}

int SlideOrder::next() const
{
    return isEmpty() ? 0 : at(m_at + 1);
}

int SlideOrder::previous() const
{
    return at(m_at - 1);
}

void SlideOrder::forward()
{
    if (isEmpty())
        return;
    ++m_at;
    lengthen();
}

void SlideOrder::back()
{
    if (m_at > 0)
        --m_at;
    else if (m_kind == Kind::AsTheyStand)
        toLast();
}

void SlideOrder::toFirst()
{
    m_at = 0;
}

void SlideOrder::toLast()
{
    m_at = std::max<qsizetype>(0, m_pictures.size() - 1);
    lengthen();
}

void SlideOrder::leaveOut(int picture)
{
    m_pictures.removeAll(picture);
    const qsizetype before = std::count(m_way.cbegin(), m_way.cbegin() + m_at, picture);
    m_way.removeAll(picture);
    m_at -= before;
    lengthen();
}

/// Keeps at least one picture behind the current one. No round begins with the picture that the last one
/// ended with.
void SlideOrder::lengthen()
{
    while (!isEmpty() && m_way.size() <= m_at + 1) {
        QList<int> round = m_pictures;
        if (m_kind == Kind::Shuffled)
            std::shuffle(round.begin(), round.end(), m_random);
        if (m_kind == Kind::Shuffled && round.size() > 1 && !m_way.isEmpty() && round.first() == m_way.last())
            round.swapItemsAt(0, round.size() - 1);
        m_way += round;
    }
}
