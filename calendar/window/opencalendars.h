// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/model/calendarfiles.h"
#include "calendar/model/opencalendar.h"
#include "storage/trash.h"

#include <QObject>
#include <QSet>

#include <map>

struct Program;

/// The calendars of the household, of which one is shown. One that is deleted is gone from the list at once,
/// and from the disk when the window closes.
class OpenCalendars final : public QObject
{
    Q_OBJECT
public:
    explicit OpenCalendars(const Program &program, QObject *parent = nullptr);

    /// Without those that are deleted.
    const QList<CalendarHead> &heads() const { return m_heads; }
    /// Reads the list anew.
    void refresh();

    /// The one that is shown; null without any.
    OpenCalendar *current() const { return m_current; }
    /// Whether the list says something else of it than is so now.
    bool isListStale() const;
    /// What the list says of it; null without any.
    const CalendarHead *head() const;
    int number() const { return m_current ? m_current->number() : 0; }
    /// The one that is shown, or an empty one.
    const WallCalendar &calendar() const;
    /// Why it cannot be changed; empty where it can.
    QString whyLocked() const;
    /// Why no panel may take the place of what is shown: it holds something that is not kept yet. Empty where
    /// one may.
    const QString &whyHeld() const { return m_whyHeld; }
    void setHeld(const QString &reason) { m_whyHeld = reason; }
    bool change(const QString &title, const WallCalendar &after);

    /// Shows another one; 0: none.
    void show(int number);
    /// The one of today, else the next one, else the last.
    int nearest(QDate today) const;
    /// Makes a new one and shows it, in a step that can be taken back. False: the user was told.
    bool make(const WallCalendar &calendar, const QString &title);
    void remove(int number, const QString &title);
    /// Brings one back from the trash and shows it. False: the user was told.
    bool bringBack(const Trash::Item &item);
    /// Reads anew what has changed on the disk. False where something here is not saved.
    bool reread();

    bool isSaved() const;
    [[nodiscard]] bool save();
    /// What is deleted leaves the disk now. False where that refuses; then it stays.
    bool throwAway();
    QStringList fileNames() const;

signals:
    /// Another calendar is shown, or none.
    void shown();
    /// The calendar that is shown is another than before.
    void changed();
    void listChanged();
    void edited(const UndoStep &step);
    void fileTouched();
    void said(const QString &line);

private:
    OpenCalendar *opened(int number);
    void setRemoved(int number, bool isRemoved);

    const Program &m_program;
    QList<CalendarHead> m_heads;
    std::map<int, OpenCalendar *> m_opened;
    OpenCalendar *m_current = nullptr;
    QString m_whyHeld;
    QSet<int> m_removed;
};
