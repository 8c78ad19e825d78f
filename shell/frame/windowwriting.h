// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/writing/spellingtools.h"

class Commands;
class FunctionWindow;
class ThesaurusTools;
class WorkViews;
class Writing;
struct Program;

/// What a window has for its texts: spelling, corrections and, by choice, a thesaurus, with their menu and
/// their panels, which stand among the views of the work.
class WindowWriting final : public QObject
{
    Q_OBJECT
public:
    /// What the boxes of a window are checked with. Names that functions know are right, where no password
    /// guards them.
    static Writing *make(Program &program, QObject *parent);

    struct Parts {
        FunctionWindow &window;
        Commands &commands;
        WorkViews &views;
        Writing &writing;
    };
    WindowWriting(const Parts &parts, SpellingTools::Texts texts, QObject *parent);

    /// The menu of a word offers other words as well from now on.
    void offerThesaurus();
    /// Fills the window's menu "Spelling". `unless` says why there is nothing to check, where that can be.
    void addCommands(QMenu *menu, const std::function<QString()> &unless = {});
    /// The panels let go of the texts.
    void forget();

signals:
    /// A sentence for the status bar.
    void said(const QString &line);

private:
    void open(QWidget *panel);

    Parts m_parts;
    SpellingTools *m_spelling;
    ThesaurusTools *m_thesaurus = nullptr;
};
