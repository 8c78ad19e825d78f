// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/window/daysmodel.h"

#include "planner/model/daylines.h"
#include "shell/core/dates.h"

#include <utility>

using namespace Qt::Literals::StringLiterals;

DaysModel::DaysModel(DateStyle style, QObject *parent)
    : QAbstractTableModel(parent)
    , m_style(style)
{}

void DaysModel::setDays(const Span &span, std::map<QDate, PlannerDay> days, QDate today)
{
    beginResetModel();
    m_span = span;
    m_days = std::move(days);
    m_notes.clear();
    m_today = today;
    endResetModel();
}

void DaysModel::setNotes(const QList<HouseholdNote> &notes)
{
    m_notes.clear();
    for (const HouseholdNote &note : notes)
        m_notes[note.note.date].append(note);
    emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

void DaysModel::setDayNames(QLocale::FormatType names)
{
    if (std::exchange(m_dayNames, names) != names)
        emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
}

QDate DaysModel::date(const QModelIndex &index) const
{
    return index.isValid() ? m_span.start.addDays(index.row() * m_span.columns + index.column()) : QDate();
}

QModelIndex DaysModel::indexOf(QDate date) const
{
    const qint64 days = m_span.start.daysTo(date);
    if (days < 0 || days >= qint64(m_span.rows) * m_span.columns)
        return {};
    return index(int(days) / m_span.columns, int(days) % m_span.columns);
}

int DaysModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_span.rows;
}

int DaysModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_span.columns;
}

/// The day in words: its date, its notes and its entries, a line each.
QString DaysModel::description(QDate date) const
{
    QString text = Dates::longText(date, m_style);
    for (const HouseholdNote &note : notes(date))
        text += u'\n' + note.note.text;
    const auto found = m_days.find(date);
    if (found == m_days.end())
        return text;
    const DayLines lines(found->second);
    for (int i = 0; i < lines.count(); ++i)
        text += u'\n' + lines.joined(i);
    return text;
}

QVariant DaysModel::data(const QModelIndex &index, int role) const
{
    const QDate day = date(index);
    if (!day.isValid())
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return day.day();
    case Qt::ToolTipRole:
    case Qt::AccessibleTextRole:
        return description(day);
    case DateRole:
        return day;
    case DayRole: {
        const auto found = m_days.find(day);
        return QVariant::fromValue(found == m_days.end() ? PlannerDay{} : found->second);
    }
    case NoteRole:
        return QVariant::fromValue(notes(day));
    case TodayRole:
        return day == m_today;
    case OutsideRole:
        return day < m_span.from || day > m_span.to;
    default:
        return {};
    }
}

QVariant DaysModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole)
        return {};
    if (orientation == Qt::Horizontal)
        return QLocale::c().dayName(m_span.start.addDays(section).dayOfWeek(), m_dayNames);
    return Dates::weekNumber(m_span.start.addDays(qint64(section) * m_span.columns));
}
