// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "budget/model/spending.h"
#include "shell/controls/taskpanel.h"

class DateBox;
class QComboBox;
class QLabel;
class QTableView;
class SpentYear;
struct Program;
template <typename Row>
class RowsModel;

/// The single amounts behind a cell of the worksheet, or those that belong to no row: they are added, changed
/// and deleted here.
class SpentPanel final : public TaskPanel
{
    Q_OBJECT
public:
    /// `window` is what the calendar floats over.
    SpentPanel(const Program &program, SpentYear &year, QWidget *window);

    /// Shows what was spent in `month` (from 0; -1: the whole year) on the item of `row`; -1 for what belongs
    /// to no row.
    void open(int row, int month);
    /// Chooses the amount of `date` with this note.
    void choose(QDate date);

signals:
    /// A quiet line for the status bar.
    void said(const QString &line);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    /// An amount, and where it stands among all.
    struct Line {
        qsizetype at;
        SpentAmount amount;
    };

    QWidget *makeForm(const Program &program, QWidget *window);
    void makeButtons();
    void refresh();
    void fill();
    void startNew();
    /// What stands in the boxes; nothing, with the reason said, where something is missing.
    std::optional<SpentAmount> typed();
    void take();
    void remove();
    qsizetype chosen() const;

    const Program &m_program;
    SpentYear &m_year;
    QString m_item; ///< empty: of no row
    int m_month = -1;
    RowsModel<Line> *m_model;
    QTableView *m_view;
    QLabel *m_sum;
    QLabel *m_empty;
    DateBox *m_date = nullptr;
    QLineEdit *m_amount = nullptr;
    QComboBox *m_items = nullptr;
    QLineEdit *m_note = nullptr;
    QPushButton *m_delete = nullptr;
    QPushButton *m_new = nullptr;
    QPushButton *m_take = nullptr;
};
