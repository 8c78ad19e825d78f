// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "planner/model/calendaroptions.h"
#include "shell/controls/taskpanel.h"

class QButtonGroup;
class QPushButton;
class QVBoxLayout;

/// The panel that says how the planner's calendar is shown; OK writes all four choices.
class CalendarOptionsPanel final : public TaskPanel
{
    Q_OBJECT
public:
    explicit CalendarOptionsPanel(QWidget *parent = nullptr);

    void setOptions(const CalendarOptions &options);
    CalendarOptions options() const;

signals:
    void accepted();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    /// A heading with option buttons `name`_0, `name`_1, ... below it.
    QButtonGroup *addFrame(QVBoxLayout *column, const QString &name, const QString &caption,
                           const QStringList &choices);

    QButtonGroup *m_months;
    QButtonGroup *m_weekNumbers;
    QButtonGroup *m_weekStart;
    QButtonGroup *m_today;
    QPushButton *m_cancel;
};
