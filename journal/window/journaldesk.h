// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>

#include <functional>

class ActivityBar;
class Commands;
class DayPage;
class FunctionWindow;
class Journal;
class JournalPane;
class OpenDay;
class PreviewPane;
class WorkViews;
class Writing;
struct Program;

/// What the parts of the journal work with.
struct JournalDesk {
    Program &program;
    FunctionWindow &window; ///< questions and pages stand over it
    Journal &journal;
    Commands &commands;
    ActivityBar &activity;
    WorkViews &views;
    Writing &writing;
    DayPage &page;
    OpenDay &day;
    std::function<void(QDate)> goTo;   ///< shows another day
    std::function<QString()> whyNone;  ///< why no day is shown; empty while one is
    std::function<void(bool)> setBusy; ///< slow work is under way: the window stays
    std::function<PreviewPane &()> preview;
};
