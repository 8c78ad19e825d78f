// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/mainmenu/menunews.h"
#include "shell/mainmenu/todaynotes.h"

#include <QObject>

class FirstLook;
class FunctionOpener;
class MenuPicture;
class QTimer;
class TodayPanel;

/// What the main menu shows of the day: date, sentence, the cards' news and the panel below them, and where a
/// press on them leads.
class DayBoard final : public QObject
{
    Q_OBJECT
public:
    DayBoard(Program &program, MenuPicture &picture, const FunctionOpener &opener, QObject *parent);

    /// Shows date and what is known. From the first time on, each new day is noticed.
    void show();
    /// Reads what is new, once the main menu has been painted; before, nothing.
    void refresh();

    FirstLook &firstLook() const { return *m_firstLook; }

private:
    void begin();
    void open(Function function, bool isByKey);
    void openToday();

    Program &m_program;
    MenuPicture &m_picture;
    const FunctionOpener &m_opener;
    MenuNews m_news;
    TodayNotes m_notes;
    TodayPanel *m_today;
    FirstLook *m_firstLook;
    QTimer *m_watch; ///< a new day has other news
    bool m_isPainted = false;
};
