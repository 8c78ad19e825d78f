// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/model/wallcalendar.h"

#include <QListWidget>
#include <QSet>
#include <QTimer>

class OpenCalendars;
class SheetMaker;
class SlicedWork;

/// The months of the calendar that is shown, as small pictures of their sheets. They are made one at a time,
/// when nothing else is to be done.
class MonthPictures final : public QListWidget
{
    Q_OBJECT
public:
    MonthPictures(const OpenCalendars &calendars, const SheetMaker &sheets, QWidget *parent = nullptr);

    /// Marks the month that is shown; tells nobody.
    void setMonth(QDate month);

signals:
    void chosen(QDate month);
    void entered();

protected:
    void showEvent(QShowEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void startOver();
    void follow();
    bool makeNext();
    void fit();
    QDate monthOf(int row) const;
    QString wordsOf(QDate month) const;

    const OpenCalendars &m_calendars;
    const SheetMaker &m_sheets;
    SlicedWork *m_work;
    QTimer m_soon; ///< until the changed ones are made anew
    WallCalendar m_seen;
    QSet<int> m_stale;
    bool m_isSetting = false;
};
