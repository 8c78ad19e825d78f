// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/controls/cellgrid.h"

#include <optional>

class WeighInModel;

/// The table of the weigh-ins, shown in the order of the file or by weight.
class WeighInTable final : public CellGrid
{
    Q_OBJECT
public:
    WeighInTable(WeighInModel *model, QWidget *parent);

    /// Brings a row of the file to sight and chooses it; of the last one, for -1, only the former.
    void showRow(int row);
    /// The row of the file that is chosen; -1 where none is.
    qsizetype chosenRow() const;
    /// Shows the lightest first; the next time the heaviest, then the rows in the order of the file again.
    void turnByWeight();
    /// Another person's rows are shown.
    void refresh();

signals:
    /// The heading of the dates was clicked while the rows stand in the order of the file.
    void sortWanted();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void shareWidth();
    void fitHeadings();
    void keepEndInSight();
    void sortBy(int column);
    void showByWeight(std::optional<Qt::SortOrder> order);

    WeighInModel *m_weighIns;
    bool m_isAtEnd = true; ///< scrolled to its last row
};
