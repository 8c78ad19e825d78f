// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/model/holidaysets.h"
#include "calendar/model/wallcalendar.h"

#include <QWidget>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QSpinBox;
class QVBoxLayout;

/// The choices of what a calendar is called, which months it has and how its sheets look.
class CalendarForm final : public QWidget
{
    Q_OBJECT
public:
    explicit CalendarForm(QWidget *parent = nullptr);

    /// Shows the choices of `calendar`, with these holidays to choose from. `isNew`: the title follows the
    /// months until it is typed.
    void setCalendar(const WallCalendar &calendar, const HolidaySets &sets, bool isNew);
    /// The calendar that was set, with what is chosen now.
    WallCalendar calendar() const;

    QLineEdit *title() const { return m_title; }
    /// The last in the order of the Tab key.
    QWidget *lastInTab() const;

signals:
    void changed();

private:
    void addCalendar(QVBoxLayout &column);
    void addSheets(QVBoxLayout &column);
    void addWeeks(QVBoxLayout &column);
    void addHolidays(QVBoxLayout &column);
    void offerFonts(const CalendarLook &look);
    void offerHolidays(const QStringList &chosen, const HolidaySets &sets);
    void follow();

    WallCalendar m_calendar;
    bool m_isTitled = false; ///< by the person, not after the months
    bool m_isSetting = false;
    QLineEdit *m_title;
    QComboBox *m_month;
    QSpinBox *m_year;
    QSpinBox *m_months;
    QComboBox *m_layout;
    QComboBox *m_style;
    QComboBox *m_paper;
    QComboBox *m_orientation;
    QComboBox *m_font;
    QComboBox *m_points;
    QComboBox *m_firstDay;
    QCheckBox *m_weekNumbers;
    QCheckBox *m_smallMonths;
    QCheckBox *m_neighbourLines;
    QListWidget *m_holidays;
    QLineEdit *m_persons;
};
