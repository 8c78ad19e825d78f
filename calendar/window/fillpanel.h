// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/window/fillrows.h"
#include "shell/controls/taskpanel.h"

class QCheckBox;
class QGridLayout;
class QLabel;
struct Program;

/// "Fill": what of the household comes into the calendar, and what that would change.
class FillPanel final : public TaskPanel
{
    Q_OBJECT
public:
    explicit FillPanel(Program &program, QWidget *parent = nullptr);

    /// Begins anew, with these sources ticked.
    void start(const WallCalendar &calendar, const QList<LineSource> &sources);
    /// The calendar as it is filled, and what has changed.
    FillPlan plan() const;

signals:
    void accepted();
    /// A quiet line for the status bar.
    void said(const QString &line);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    QWidget *makeContent();
    void showRows();
    void addRow(int number);
    void showLock(QCheckBox &box) const;
    void tick(int number, bool isOn);
    void showPlan();

    Program &m_program;
    FillRows m_rows;
    QWidget *m_list = nullptr;
    QGridLayout *m_grid = nullptr;
    QLabel *m_none = nullptr;
    QLabel *m_summary = nullptr;
    QLabel *m_guarded = nullptr;
    QPushButton *m_fill = nullptr;
};
