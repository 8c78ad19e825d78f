// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "budget/model/layaside.h"
#include "budget/model/yearcomparison.h"
#include "shell/controls/taskpanel.h"

class ComparisonModel;
class QBoxLayout;
class QComboBox;
class QTableView;
class SumRow;
class WholeRows;
template <typename Row>
class RowsModel;

/// A year beside the year before, and what to lay aside each month.
class YearsView final : public TaskPanel
{
    Q_OBJECT
public:
    explicit YearsView(QWidget *parent = nullptr);

    void show(int year, const YearComparison &comparison, const LayAside &aside);
    Compared compared() const;

signals:
    void printWanted();

protected:
    bool event(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void makeChoice();
    QWidget *makeComparison();
    QWidget *makeAside();
    void showComparison();
    void refreshColors();

    int m_year = 0;
    YearComparison m_comparison;
    ComparisonModel *m_model;
    RowsModel<LayAside::Item> *m_asideModel;
    QBoxLayout *m_sides = nullptr;
    QComboBox *m_compared = nullptr;
    QLabel *m_missing = nullptr;
    QTableView *m_table = nullptr;
    SumRow *m_sum = nullptr;
    QLabel *m_asideWords = nullptr;
    WholeRows *m_tableRows = nullptr;
    WholeRows *m_asideRows = nullptr;
    SumRow *m_asideSum = nullptr;
};
