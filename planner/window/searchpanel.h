// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "planner/model/plannersearch.h"
#include "shell/controls/taskpanel.h"
#include "shell/core/programstate.h"

class QLabel;
class QTableView;
template <typename Row>
class RowsModel;

/// The hits of a search over all years; a click or Enter opens the day.
class SearchPanel final : public TaskPanel
{
    Q_OBJECT
public:
    SearchPanel(const PlannerFiles &files, DateStyle style, QWidget *parent = nullptr);

    /// Shows what a search for `text` finds; the hit on or after `today` that is nearest is chosen. False
    /// when it finds nothing.
    bool search(const QString &text, QDate today);

signals:
    void hitOpened(QDate date, int row);

private:
    void open(int row);

    const PlannerFiles &m_files;
    RowsModel<PlannerHit> *m_model;
    QLabel *m_count;
    QTableView *m_view;
};
