// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "journal/model/journal.h"
#include "journal/window/journaldesk.h"
#include "shell/frame/functionwindow.h"

#include <QTimer>

#include <chrono>

class DayCommands;
class JournalDamage;
class JournalExchange;
class JournalFront;
class JournalPrint;
class PageCommands;
class PictureCommands;
class SlicedWork;
class WindowWriting;

/// The daily journal: the page of a day, and beside it the ways to all others. What is typed is saved by
/// itself. A sealed journal has the question for its password in front of both, and locks itself.
class DJournal final : public FunctionWindow
{
    Q_OBJECT
public:
    explicit DJournal(Program &program, QWidget *parent = nullptr,
                      PasswordCost cost = PasswordCost::moderate(),
                      std::chrono::milliseconds step = std::chrono::seconds(1));
    ~DJournal() override;

    bool isModified() const override;
    /// Shows the day that a place means.
    void showPlace(const Place &place);

    Journal &journal() { return m_journal; }

protected:
    [[nodiscard]] bool save() override;
    Answer askToLeave() override;
    void filesChanged() override;
    void changeEvent(QEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    JournalDesk desk();
    QWidget *makeWorkPanel();
    void makeCommands();
    void addOptions(QMenu *options);
    void connectParts();
    void connectFront();
    void begin();
    void forget();
    void goTo(QDate date);
    void endMessage();
    void followDay();
    void readOn();
    void sayDamage();
    void watchYears();
    void copy();
    QString whyNone() const;

    Journal m_journal;
    Writing *m_writing;
    WorkViews *m_stack;
    DayPage *m_page;
    OpenDay *m_day;
    JournalPane *m_pane;
    JournalFront *m_front;
    JournalDamage *m_damage;
    DayCommands *m_days;
    PageCommands *m_edit;
    PictureCommands *m_pictures;
    WindowWriting *m_spelling;
    JournalExchange *m_exchange;
    JournalPrint *m_print;
    SlicedWork *m_reading; ///< the other years, once the window is seen
    QTimer m_following;    ///< shows what is known of the page once the keys rest
    QDate m_before;        ///< the day from which a search was begun
    QString m_saidOfSeal;  ///< what was said last of the seal
    QDate m_left;          ///< the day that was open before the journal was locked, where it was not today
};
