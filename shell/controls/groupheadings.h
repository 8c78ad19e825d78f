// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHeaderView>

/// The headings of a grid of many columns, aligned as they are; a heading of two words takes a second line
/// where the column is narrow. What the model groups has a common heading above its own. The first one stays
/// in sight where the others are scrolled sideways, unless told otherwise.
class GroupHeadings final : public QHeaderView
{
    Q_OBJECT
public:
    /// What a heading keeps free on the side where the texts below it do not stand.
    static constexpr int freeInset = 2;

    explicit GroupHeadings(QWidget *parent);

    /// Whether the first column stays in sight, and its heading with it.
    void setFirstStays(bool stays) { m_firstStays = stays; }

    /// What the heading of a column needs at least: in two lines, if it has several words.
    static int leastWidth(const QAbstractItemModel &model, int column);

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

    bool m_firstStays = true;
};
