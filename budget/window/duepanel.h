// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/controls/taskpanel.h"

class DueModel;
class QComboBox;
class QTableView;
class SpentYear;
struct Program;

/// "What Is Due": the day of each item, and a tick for what is paid, month by month.
class DuePanel final : public TaskPanel
{
    Q_OBJECT
public:
    DuePanel(const Program &program, SpentYear &year, QWidget *parent = nullptr);

    /// Shows `month` (from 0), with the item of `row` chosen.
    void open(int month, int row);

signals:
    /// A quiet line for the status bar.
    void said(const QString &line);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    SpentYear &m_year;
    DueModel *m_model;
    QComboBox *m_months;
    QTableView *m_view;
};
