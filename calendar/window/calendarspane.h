// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>
#include <QWidget>

class MonthPictures;
class OpenCalendars;
class QLabel;
class QListView;
class QPushButton;
class QStackedWidget;
class QStandardItemModel;
class QVBoxLayout;
class SearchBox;
class SheetMaker;

/// The side pane: the search, the calendars, and the months of the one that is shown.
class CalendarsPane final : public QWidget
{
    Q_OBJECT
public:
    CalendarsPane(OpenCalendars &calendars, const SheetMaker &sheets, QWidget *parent = nullptr);

    /// Puts a button under the months.
    void addButton(QPushButton *button);
    /// The month that is shown.
    void setMonth(QDate month);
    void startSearch();
    QWidget &list() const;

signals:
    void calendarChosen(int number);
    void monthChosen(QDate month);
    /// A line that was found is to be shown.
    void hitOpened(QDate date, int line);
    /// The work goes on in what is shown.
    void entered();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void shareHeight();
    QWidget *makeLists(const SheetMaker &sheets);
    QWidget *makeHits();
    QListView *makeRows(QStandardItemModel *rows, const QString &name, const QString &spoken);
    void refresh();
    void follow();
    void search();

    OpenCalendars &m_calendars;
    SearchBox *m_search;
    QStackedWidget *m_stack;
    QStandardItemModel *m_rows;
    QStandardItemModel *m_hitRows;
    QListView *m_list = nullptr;
    QListView *m_hits = nullptr;
    QLabel *m_count = nullptr;
    QLabel *m_hitCount = nullptr;
    MonthPictures *m_months = nullptr;
    QVBoxLayout *m_layout;
    bool m_isSetting = false;
};
