// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "planner/model/calendaroptions.h"
#include "planner/window/householdnotes.h"
#include "shell/core/pagecontext.h"

#include <QDate>
#include <QWidget>

#include <functional>

class DaysModel;
class QAbstractItemView;

/// What the views of several days share: a day can be opened, the view steps on by its own measure and is
/// left for the view of a day. Birthdays, anniversaries and what is to be paid stand in the days; a click on
/// them leads to where they come from.
class DaysView : public QWidget
{
    Q_OBJECT
public:
    DaysView(const HouseholdNotes &notes, QWidget *parent);

    /// Reads the days around `date` and puts the focus on that day.
    virtual void show(QDate date, const CalendarOptions &options, QDate today) = 0;
    /// The day that has the focus.
    virtual QDate date() const = 0;
    /// The day that is as many weeks or months on from `date`.
    virtual QDate after(QDate date, int steps) const = 0;

    /// The days around `date` on paper, as the files have them.
    virtual Page page(QDate date, const CalendarOptions &options, const PageContext &context) const = 0;
    virtual QString printName(QDate date) const = 0;

signals:
    void dayOpened(QDate date);
    /// Steps of a week or a month.
    void stepped(int steps);
    void todayRequested();
    void left();

protected:
    /// `view` shows the days of `model`: the page keys step, Enter or a click opens a day; a click on its
    /// note, which stands there in the day's cell, opens that.
    using NotePlace = std::function<QRect(const QRect &cell)>;
    void setView(QAbstractItemView *view, DaysModel *model, NotePlace notePlace);
    /// Call when the model has other days: their notes are read once the window has been painted.
    void readNotes();
    const HouseholdNotes &notes() const { return m_notes; }
    /// Notes have come: rows may be higher now.
    virtual void notesShown() {}
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void open(const QModelIndex &day);

    const HouseholdNotes &m_notes;
    QAbstractItemView *m_view = nullptr;
    DaysModel *m_model = nullptr;
    NotePlace m_notePlace;
    QPoint m_clicked; ///< in the view
    bool m_isReading = false;
};
