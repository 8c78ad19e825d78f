// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/model/carneeds.h"

#include <QWidget>

/// A line of words in the colour of what is due or overdue, with its sign before them; anything else is quiet
/// and has none. Words that are cut stand whole in the tool tip.
class SignLine final : public QWidget
{
    Q_OBJECT
public:
    explicit SignLine(QWidget *parent = nullptr);

    void setWords(CarNeed::State state, const QString &words);
    QString words() const { return m_words; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    /// The sign of a state; empty for none.
    static QLatin1StringView sign(CarNeed::State state);
    /// Whether `part` stands on a panel of the user's colour, whose ink is neither the designed one.
    static bool isOnUserColor(const QWidget &part);

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    int wordsWidth() const;
    bool isUrgent() const { return m_state >= CarNeed::State::Due; }

    CarNeed::State m_state = CarNeed::State::NoInterval;
    QString m_words;
};
