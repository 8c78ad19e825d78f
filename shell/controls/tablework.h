// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QLabel;
class QTableView;

/// The work of a panel that offers rows to choose from: quiet words above a table of whole rows, where Enter
/// chooses.
class TableWork final : public QWidget
{
    Q_OBJECT
public:
    TableWork(QLabel *words, QTableView *view, const QString &accessibleName, QWidget *parent);

signals:
    /// Enter was pressed in the table.
    void entered();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QTableView *m_view;
};
