// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/controls/taskpanel.h"
#include "shell/core/programstate.h"
#include "storage/trash.h"

class QLabel;
class QTableView;
template <typename Row>
class RowsModel;

/// "Bring Back Deleted": what a function deleted in the last 30 days, the newest first; a double click, Enter
/// or the button asks for one of them.
class TrashPanel final : public TaskPanel
{
    Q_OBJECT
public:
    explicit TrashPanel(const DateStyle &style, QWidget *parent = nullptr);

    void setItems(std::vector<Trash::Item> items);
    bool isEmpty() const;

signals:
    void chosen(const Trash::Item &item);

private:
    void choose();

    RowsModel<Trash::Item> *m_model;
    QLabel *m_words;
    QTableView *m_view;
    QPushButton *m_bringBack;
};
