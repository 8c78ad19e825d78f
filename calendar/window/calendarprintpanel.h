// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/model/wallcalendar.h"
#include "shell/preview/printpanel.h"

class QComboBox;

/// "Print": which months of a calendar come onto paper, or into a PDF.
class CalendarPrintPanel final : public PrintPanel
{
    Q_OBJECT
public:
    explicit CalendarPrintPanel(QWidget *parent = nullptr);

    /// Offers the months of the calendar; `month` is the one that is shown.
    void start(const WallCalendar &calendar, QDate month, bool isForPdf);
    /// The sheets that are to be printed, counted from 0.
    QList<int> sheets() const;

signals:
    void pdfWanted();

protected:
    void accept() override;

private:
    enum What { All, ThisMonth, Range };

    QWidget *makeRange();

    WallCalendar m_calendar;
    bool m_isForPdf = false;
    int m_shown = 0; ///< the month that is shown, from 0
    QComboBox *m_from = nullptr;
    QComboBox *m_to = nullptr;
    QPushButton *m_pages = nullptr;
    QPushButton *m_pdf = nullptr;
};
