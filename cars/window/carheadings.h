// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHeaderView>

/// The headings of a car's grid, aligned as their columns; a heading of two words takes a second line where
/// the column is narrow. What the model groups has a common heading above its own.
class CarHeadings final : public QHeaderView
{
    Q_OBJECT
public:
    explicit CarHeadings(QWidget *parent);

    QSize sizeHint() const override;

protected:
    void paintSection(QPainter *painter, const QRect &rect, int section) const override;

private:
    bool isNarrow() const;
    bool hasGroups() const;
    QString groupOf(int section) const;
    void paintGroup(QPainter *painter, const QRect &rect, int section) const;
};
