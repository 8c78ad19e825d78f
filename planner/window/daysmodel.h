// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "planner/model/plannerday.h"
#include "planner/window/householdnotes.h"
#include "shell/core/programstate.h"

#include <QAbstractTableModel>
#include <QDate>
#include <QLocale>
#include <QMap>

#include <map>

/// A run of days as a table, for the views of a week and of a month.
class DaysModel final : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum Role {
        DateRole = Qt::UserRole,
        DayRole,    ///< the entries, a `PlannerDay`
        NoteRole,   ///< birthdays and what is due, a list of `HouseholdNote`
        TodayRole,  ///< whether the day is today
        OutsideRole ///< whether the day is beside the month that is shown
    };

    DaysModel(DateStyle style, QObject *parent);

    /// `rows` times `columns` days from `start`; those from `from` to `to` are what is shown, others stand
    /// beside it.
    struct Span {
        QDate start;
        int rows = 0;
        int columns = 1;
        QDate from;
        QDate to;
    };
    void setDays(const Span &span, std::map<QDate, PlannerDay> days, QDate today);
    /// What other functions have for the days; new days have none at first.
    void setNotes(const QList<HouseholdNote> &notes);
    QList<HouseholdNote> notes(QDate date) const { return m_notes.value(date); }
    static QList<HouseholdNote> notesOf(const QModelIndex &index)
    {
        return index.data(NoteRole).value<QList<HouseholdNote>>();
    }
    /// How long the names of the days are in the head of the columns.
    void setDayNames(QLocale::FormatType names);
    /// The first and the last day of the table.
    QDate first() const { return m_span.start; }
    QDate last() const { return m_span.start.addDays(qint64(m_span.rows) * m_span.columns - 1); }

    QDate date(const QModelIndex &index) const;
    /// The cell of `date`; none when it is not in the table.
    QModelIndex indexOf(QDate date) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QString description(QDate date) const;

    DateStyle m_style;
    Span m_span;
    std::map<QDate, PlannerDay> m_days;
    QMap<QDate, QList<HouseholdNote>> m_notes;
    QDate m_today;
    QLocale::FormatType m_dayNames = QLocale::LongFormat;
};

Q_DECLARE_METATYPE(PlannerDay)
