// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHeaderView>

/// The headings of a car's grid, aligned as their columns; a heading of two words takes a second line where
/// the column is narrow. What the model groups has a common heading above its own. The first one stays in
/// sight where the others are scrolled sideways.
class CarHeadings final : public QHeaderView
{
    Q_OBJECT
public:
    /// What a heading keeps free on the side where the texts below it do not stand.
    static constexpr int freeInset = 2;

    explicit CarHeadings(QWidget *parent);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void paintSection(QPainter *painter, const QRect &rect, int section) const override;

private:
    bool isNarrow() const;
    bool hasGroups() const;
    QString groupOf(int section) const;
    QRect wordsPlace(const QRect &rect, int section) const;
    Qt::Alignment alignment(int section) const;
    void paintGroup(QPainter *painter, const QRect &rect, int section) const;
    void paintWords(QPainter *painter, const QRect &rect, int section) const;
};
