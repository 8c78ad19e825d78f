// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "journal/window/journaldesk.h"

#include <QObject>

class EarlierPanel;
class QAction;
class QMenu;
class QPushButton;

/// What is done to the page that is open.
class PageCommands final : public QObject
{
    Q_OBJECT
public:
    PageCommands(const JournalDesk &desk, QObject *parent);

    void addUndo(QMenu *edit);
    void addCommands(QMenu *edit);
    void addFormat(QMenu *format);
    /// "Set Aside" of a year that is for reading only.
    void addAside(QMenu *utilities);
    void makeButtons();
    /// Another day is shown, or its year may be written to now.
    void follow();
    /// Puts words at the cursor, apart from what stands there.
    void insert(const QString &words);
    /// Nothing of any entry is left.
    void forget();

signals:
    void said(const QString &line);

private:
    void insertTime();
    void remove();
    void openEarlier();
    void bringBack();
    void deleteForGood();
    void setAside();
    QString whyLocked() const;
    QString shownDay() const;

    JournalDesk m_desk;
    EarlierPanel *m_panel = nullptr;
    QAction *m_remove = nullptr;
    QAction *m_earlier = nullptr;
    QAction *m_aside = nullptr;
    QPushButton *m_asideButton = nullptr;
};
