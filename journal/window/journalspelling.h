// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "journal/window/journaldesk.h"

#include <QObject>

class QMenu;
class SpellingTools;

/// The spelling of the journal: the text is checked as one types, and walked through on demand.
class JournalSpelling final : public QObject
{
    Q_OBJECT
public:
    /// What the page of a window is checked with. Names that other functions know are right, where no
    /// password guards them.
    static Writing *makeWriting(Program &program, QObject *parent);

    JournalSpelling(const JournalDesk &desk, QObject *parent);

    void addCommands(QMenu *menu);
    /// Nothing of any entry is left.
    void forget();

signals:
    void said(const QString &line);

private:
    JournalDesk m_desk;
    SpellingTools *m_tools;
};
