// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>

#include <random>

/// The order in which a slide show goes through its pictures: round after round as they stand, or each round
/// shuffled anew. One that cannot be shown is left out.
class SlideOrder
{
public:
    enum class Kind { AsTheyStand, Shuffled };

    /// Begins with `first` where that is among the pictures, else with the first of them.
    SlideOrder(QList<int> pictures, Kind kind, int first = 0, quint32 seed = std::random_device{}());

    bool isEmpty() const { return m_pictures.isEmpty(); }
    /// 0 where there is none.
    int current() const;
    int next() const;
    /// The one before; of a shuffled show the first one at its beginning.
    int previous() const;

    void forward();
    void back();
    void toFirst();
    void toLast();

    void leaveOut(int picture);

private:
    int at(qsizetype position) const;
    void lengthen();

    QList<int> m_pictures;
    Kind m_kind;
    std::mt19937 m_random;
    QList<int> m_way; ///< the rounds that were begun, one behind the other
    qsizetype m_at = 0;
};
