// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractItemView>

/// For lists whose buttons act on the current row: it stays highlighted when one clicks beside the rows.
inline void keepSelection(QAbstractItemView *view)
{
    QItemSelectionModel *selection = view->selectionModel();
    QObject::connect(selection, &QItemSelectionModel::selectionChanged, view, [selection] {
        if (!selection->hasSelection() && selection->currentIndex().isValid())
            selection->select(selection->currentIndex(),
                              QItemSelectionModel::Select | QItemSelectionModel::Rows);
    });
}
