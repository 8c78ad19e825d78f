// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>
#include <QWidget>

class Journal;
class QCheckBox;
class QLabel;
class QListView;
class WholeRows;
class QModelIndex;
class QStandardItemModel;
struct Program;

/// "On this day": what was written on the same date in other years, and by choice on the days around it.
class OnThisDay final : public QWidget
{
    Q_OBJECT
public:
    OnThisDay(const Program &program, Journal &journal, QWidget *parent);

    void setDate(QDate date);
    /// Looks again: another year was read, something was written.
    void refresh();
    /// Nothing of any entry is left.
    void forget();

    int count() const;
    /// Of everything above the list.
    int headHeight() const;
    int rowsHeight(int rows) const;
    /// The list has so many, and more by scrolling.
    void showRows(int rows);

signals:
    void dateChosen(QDate date);
    void refreshed();

private:
    void open(const QModelIndex &index);

    const Program &m_program;
    Journal &m_journal;
    QStandardItemModel *m_rows;
    QListView *m_list;
    WholeRows *m_whole;
    QLabel *m_nothing;
    QCheckBox *m_around;
    QDate m_date;
};
