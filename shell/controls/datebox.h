// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/controls/controls.h"
#include "shell/core/programstate.h"

#include <QDate>

#include <optional>

class Clock;
class DatePicker;

/// How typed dates are read: the order of day and month, and what day it is.
struct DateReading {
    const DateStyle &style;
    const Clock &clock;
};

/// A box for a date: typed in any usual form, tidied on leaving, with the calendar beside it.
class DateBox final : public FieldBox
{
    Q_OBJECT
public:
    /// Without a `picker` it has no calendar.
    DateBox(const DateReading &reading, DatePicker *picker, QWidget *parent);

    /// Makes it a box for a date of birth, which never lies after today.
    void takeNoFuture() { m_takesFuture = false; }
    /// Which day a month alone stands for, as cards bear it: "12/2026", "12/26". Refused at first.
    enum class MonthAlone { Refused, FirstDay, LastDay };
    void takeMonths(MonthAlone day) { m_monthAlone = day; }
    /// Gives its dates another form than that of the records' boxes.
    using Form = QString (*)(QDate date);
    void setForm(Form form) { m_form = form; }
    /// Nothing when the text is no date.
    std::optional<QDate> date() const;
    /// An invalid date empties the box.
    void setDate(QDate date);
    /// Puts a date that was typed since the box was last tidied into the form that the files keep; anything
    /// else stays as it was typed, and `refused` says that it is no date (and nothing once
    /// every date of the window is one). Leaving the box does the same: call it before a save that comes by
    /// its access key.
    void tidy();

signals:
    void dateChanged();
    /// The calendar opened beside the locked box, for reading only.
    void lockedDateShown();

private:
    bool holdsNoDate() const;

    DateReading m_reading;
    Form m_form = nullptr; ///< null: that of the records' boxes
    bool m_takesFuture = true;
    MonthAlone m_monthAlone = MonthAlone::Refused;
    bool m_isRefused = false;    ///< what it held when it was last tidied
    std::optional<QDate> m_date; ///< as it was told last
};
