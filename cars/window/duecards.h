// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/window/duecard.h"

#include <QWidget>

#include <vector>

class QLabel;

/// The cards of what the open car needs, the most urgent first, in one row or two of equal widths, or as two
/// lines where there is little height. How many more there are is told behind them.
class DueCards final : public QWidget
{
    Q_OBJECT
public:
    explicit DueCards(QWidget *parent = nullptr);

    /// Tab comes to their buttons behind `before`.
    void setTabBehind(QWidget *before) { m_before = before; }
    void show(const QList<CarNeed> &needs, const DueCard::Words &words);
    /// At most so many rows.
    void setRows(int rows);
    /// Each card in one line, one below the other.
    void setFlat(bool isFlat);

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    /// The button of a card was clicked.
    void chosen(const CarNeed &need);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    int columnsIn(int width) const;
    int shownIn(int width) const;
    int cardHeight() const;
    int rowGap() const;
    void align();
    void place();

    std::vector<DueCard *> m_cards; ///< made when first needed, and kept
    QWidget *m_before = nullptr;
    bool m_isFlat = false;
    int m_mostRows = 2;
    int m_count = 0; ///< of those that stand for something
    QLabel *m_more;
};
