// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/window/calendardesk.h"
#include "shell/frame/functionwindow.h"

class BarCommands;
class CalendarCommands;
class CalendarPrint;
class CalendarSpelling;
class CalendarsPane;
class CellCommands;
class CellTyping;
class EmptyPage;
class FillCommands;
class PhotoCommands;
class QPushButton;
struct Place;

/// The calendar maker: the household's calendars at the left, and the month that is worked on as it will be
/// printed.
class Calendar final : public FunctionWindow
{
    Q_OBJECT
public:
    explicit Calendar(Program &program, QWidget *parent = nullptr);

    /// Only what the disk has refused is not saved.
    bool isModified() const override;

    /// Shows a date of the calendar whose number is the record of `place`.
    void showPlace(const Place &place);

protected:
    [[nodiscard]] bool save() override;
    void drop() override;
    Answer askToLeave() override;
    void filesChanged() override;
    void changeEvent(QEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    CalendarDesk desk();
    QWidget *makeWorkPanel();
    void makeCommands();
    void addOptions(QMenu *options);
    void makeView(QMenu *view);
    void makeButtons();
    void connectParts();
    void connectPage();
    bool leavePanel();
    void showCalendar();
    void follow();
    void saveByCommand();
    void watchCalendars();
    void setZoom(bool isWhole);
    void followZoom();

    OpenCalendars *m_calendars;
    Writing *m_writing;
    WorkViews *m_stack;
    MonthPage *m_page;
    EmptyPage *m_empty;
    QPushButton *m_create = nullptr;
    CalendarsPane *m_pane;
    CellTyping *m_typing;
    CellCommands *m_cells;
    BarCommands *m_bars;
    PhotoCommands *m_photos;
    FillCommands *m_filling;
    CalendarCommands *m_commands;
    CalendarSpelling *m_spelling;
    CalendarPrint *m_print;
    QAction *m_whole = nullptr;
    QStringList m_watched;
    QString m_leftOver; ///< what is said of lines without room in their days
};
