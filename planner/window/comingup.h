// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "planner/window/householdnotes.h"

#include <QAbstractListModel>
#include <QDate>
#include <QWidget>

class PlannerFiles;
class QLabel;
class QListView;
struct Program;

/// What other functions have for a day and the two weeks from it: birthdays, things that fall due. They are
/// shown beside the day and never take one of its rows. A click leads to where they come from. What was done,
/// and what stands among the appointments of its day already, is not coming up.
class ComingUpModel final : public QAbstractListModel
{
    Q_OBJECT
public:
    enum Role { SourceRole = Qt::UserRole, IconRole };

    ComingUpModel(const Program &program, const PlannerFiles &files, QObject *parent);

    /// Asks the functions that have notes; a guarded one is not asked.
    void load(QDate from, QDate to);

    const HouseholdNotes &source() const { return m_source; }
    /// Shows where the note comes from, behind that function's guard.
    void open(const QModelIndex &index) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    QString whenText(QDate date) const;

    const Program &m_program;
    const PlannerFiles &m_files;
    HouseholdNotes m_source;
    QList<HouseholdNote> m_notes;
};

/// The list of what is coming up, beside the day.
class ComingUp final : public QWidget
{
    Q_OBJECT
public:
    ComingUp(const Program &program, const PlannerFiles &files, QWidget *parent = nullptr);

    /// Shows the notes of the two weeks from `date`; they are read once the window has been painted.
    void setDate(QDate date);
    /// Reads the notes again.
    void refresh();

protected:
    /// Reads the notes again when the user comes back from another window, where they may have been changed.
    bool event(QEvent *event) override;

private:
    void load();

    ComingUpModel *m_model;
    QListView *m_list;
    QLabel *m_nothing;
    QDate m_date;
    bool m_isLoading = false;
};
