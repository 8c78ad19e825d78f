// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "planner/model/appointment.h"
#include "planner/model/plannerfiles.h"
#include "planner/window/householdnotes.h"
#include "shell/core/editedtexts.h"
#include "shell/core/undostep.h"

#include <QWidget>

#include <optional>

class DayForm;
class NoteLine;
class QLabel;
class QScrollArea;
class RowHeads;
class StepTitle;
struct Program;

/// A day of the planner while it is edited: its title, its fourteen rows, and what is typed into them beside
/// what its file has.
class DayEditor final : public QWidget
{
    Q_OBJECT
public:
    DayEditor(Program &program, PlannerFiles &files, QWidget *parent = nullptr);

    /// Shows what the file has for `date`; what was typed is dropped.
    void load(QDate date);
    void reload() { load(m_date); }
    /// What other functions have for the day, read once more.
    void refreshNotes();
    QDate date() const { return m_date; }

    /// What the boxes hold. A text that nobody touched stays as the file has it, even where a box shows it
    /// otherwise.
    PlannerDay typed() const;
    bool isModified() const;
    /// The appointment of the row that has the focus, or had it last; when that row is empty, as it is after
    /// saving, the one that was typed last.
    Appointment currentAppointment() const;
    /// Whether one of the rows is `appointment`.
    bool has(const Appointment &appointment) const;
    UntimedPlacement placement() const;

    void focusRow(int row);
    void focusCurrentRow();
    void focusFirstEmptyRow();
    /// On another day, typing goes on in a row that is free.
    void leaveFilledRow();

    /// Writes the rows, in time order, into the day that was loaded, and says so; false when the disk
    /// refuses.
    [[nodiscard]] bool save();
    /// Saves on the user's command, after asking when there is nothing to save.
    void saveByCommand();
    void clear();
    void copy();
    /// Puts the rows of the copied day into the rows that are empty here.
    void paste();
    /// Asks which day the user wants to see.
    void askForDate();
    bool hasCopy() const { return m_copied.has_value(); }

signals:
    void loaded(QDate date);
    void saved();
    void written(QDate date, const RecordChange &change);
    void savedByCommand();
    /// The rows were filled or emptied by a command, and no file has it yet.
    void exchanged(const UndoStep &step);
    /// Another day is wanted in the place of this one.
    void dateRequested(QDate date);
    /// A quiet line for the status bar.
    void said(const QString &line);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    QWidget *makeFoot();
    Appointment appointmentOf(int row) const;
    void noteEdited();
    void refreshModified();
    void fitFootWords();
    QList<int> rowsSortedLast() const;
    void enterRow(int row);
    QString dayText() const;
    void noteExchange(const QString &title, const PlannerDay &before);
    /// Puts the rows of `wanted` in the place of those of `shown`, unless the boxes hold anything else.
    ChangeResult exchange(const PlannerDay &shown, const PlannerDay &wanted);

    Program &m_program;
    PlannerFiles &m_files;
    QDate m_date;
    EditedTexts<PlannerDay::rowCount> m_times;
    EditedTexts<PlannerDay::rowCount> m_texts;
    std::optional<PlannerDay> m_copied;
    Appointment m_lastTyped; ///< into this day
    HouseholdNotes m_householdNotes;

    StepTitle *m_title;
    RowHeads *m_heads;
    DayForm *m_form;
    QScrollArea *m_scroll;
    NoteLine *m_notes; ///< below the title
    QLabel *m_unsaved = nullptr;
    QLabel *m_sortedLast = nullptr;
};
