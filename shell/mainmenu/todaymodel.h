// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/programstate.h"
#include "shell/mainmenu/todaynotes.h"

#include <QAbstractListModel>

/// Today and the next seven days as lines of a list, no more of them than there is room for: what is cut off
/// is counted.
class TodayModel final : public QAbstractListModel
{
    Q_OBJECT
public:
    enum Role {
        DayRole = Qt::UserRole, ///< "Today", "Tomorrow", "Wed, Nov 25"
        TimeRole,               ///< "11:30 AM"; empty without one
        IconRole,               ///< name of its icon
        SourceRole,
        IsOverRole
    };

    /// A note, or how many more there are from `day` on; of what is over, how many of it there are.
    struct Line {
        QDate day;
        TodayNotes::Note note{};
        int more = 0; ///< above 0: no note
        QDate last{}; ///< the last of the days of those `more`
        bool operator==(const Line &) const = default;
    };

    using QAbstractListModel::QAbstractListModel;

    void show(const TodayNotes &notes, DateStyle style);
    /// The most lines that can be seen.
    void setRoom(int lines);

    /// How many lines there would be if there was room.
    int wanted() const { return int(m_notes.size()); }
    const Line &line(int row) const { return m_lines[row]; }
    /// Whether one of `count` lines from `first` on has a time.
    bool hasTimes(int first, int count) const;
    QString dayText(QDate day) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

    /// `notes` in `room` lines: half of them at least are today's, if it fills them, but what is over gives
    /// way to everything else; of the other days each is cut alike where that helps, else the last of them
    /// give way.
    static QList<Line> fit(const QList<TodayNotes::Note> &notes, QDate today, int room);

private:
    void build();
    QString text(const Line &line) const;

    QList<TodayNotes::Note> m_notes;
    QList<Line> m_lines;
    QDate m_today;
    DateStyle m_style = DateStyle::Usa;
    int m_room = 0;
};
