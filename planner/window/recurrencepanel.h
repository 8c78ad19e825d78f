// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "planner/model/calendaroptions.h"
#include "planner/model/recurrencerun.h"
#include "shell/controls/taskpanel.h"

#include <memory>

class QBoxLayout;
class QCheckBox;
class QProgressBar;
class QStackedWidget;
class QTimer;
class RecurrenceForm;
class RecurrenceOutlook;
class RecurrenceRange;
class RemovalTrash;
class SlicedWork;
struct Program;

/// The "Recurrence Option" panel: repeats one appointment over many dates, or removes it from them. The walk
/// over the dates goes in slices: the window stays responsive, and the check box stops it.
class RecurrencePanel final : public TaskPanel
{
    Q_OBJECT
public:
    explicit RecurrencePanel(Program &program, QWidget *parent = nullptr);
    ~RecurrencePanel() override;

    /// Gets ready for an appointment of `date`.
    void open(const Appointment &appointment, QDate date, UntimedPlacement placement,
              const CalendarOptions &options);
    bool isRunning() const;
    void leave() override;

signals:
    /// A walk begins or is over: nothing else may be done meanwhile.
    void busyChanged(bool isBusy);
    /// A walk ended, whether it came to its end or not: days may have changed.
    void filesChanged();
    void said(const QString &line);
    /// Last, when all was said: what the walk wrote.
    void walked(const QString &title, const RecordChange &change);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    QWidget *makeProgressPanel();
    void makeFoot();

    /// What the boxes say, or the reason why it cannot be walked.
    std::optional<QString> read(Recurrence &recurrence) const;
    /// Brings the request within ten years, in the boxes too, and tells so.
    Recurrence limited(const Recurrence &recurrence);
    void checkLimit();
    void refreshOutlook();
    void refreshWords();

    QPushButton *defaultButton() const;
    void insert();
    void remove();
    void walk(RecurrenceAction action, const Recurrence &recurrence);
    void showProgress();
    void finish(bool wasStopped);
    void report(RecurrenceRun &run, bool wasStopped);
    void setRunning(bool isRunning);

    Program &m_program;
    Appointment m_appointment;
    UntimedPlacement m_placement = UntimedPlacement::Last;
    RecurrenceAction m_action = RecurrenceAction::Insert;
    std::unique_ptr<RecurrenceRun> m_run;
    std::unique_ptr<RemovalTrash> m_trash; ///< of a removal
    SlicedWork *m_work;

    bool m_isWide = true; ///< enough for the outlook beside the boxes
    QBoxLayout *m_columns;
    QBoxLayout *m_kinds; ///< with what they would do beside or below them
    RecurrenceRange *m_range;
    RecurrenceForm *m_form;
    RecurrenceOutlook *m_outlook;
    QTimer *m_outlookSoon;  ///< once for all changes of a moment
    QStackedWidget *m_body; ///< the boxes, or the progress while a walk is under way
    QProgressBar *m_progress = nullptr;
    QCheckBox *m_stop = nullptr;
    QPushButton *m_ok = nullptr;
    QPushButton *m_remove = nullptr;
    QPushButton *m_cancel = nullptr;
};
