// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>
#include <QWidget>

class QTableView;

/// The line of sums under a table, each figure under its column.
class SumRow final : public QWidget
{
    Q_OBJECT
public:
    explicit SumRow(const QTableView *table, QWidget *parent = nullptr);

    /// One text a column; the last one in red where `isRed`.
    void setCells(const QStringList &cells, bool isRed = false);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    const QTableView *m_table;
    QStringList m_cells;
    bool m_isRed = false;
};
