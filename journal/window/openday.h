// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "journal/model/journalentry.h"

#include <QObject>
#include <QPointer>
#include <QTimer>

#include <map>

class Journal;
class JournalText;
class PagePictures;
class QLineEdit;
class QTextDocument;

/// The day that is open: what its entry says, what is typed, and when that reaches the disk. Each day keeps
/// what can be undone in it for as long as the window is open.
class OpenDay final : public QObject
{
    Q_OBJECT
public:
    /// Between the last key and the saving, and between a failed one and the next.
    static constexpr int savesAfter = 2000;
    static constexpr int triesAgainAfter = 10000;

    /// What the day is shown in.
    struct Page {
        JournalText &text;
        QLineEdit &tags;
        PagePictures &pictures;
    };

    OpenDay(Journal &journal, const Page &page, QObject *parent);

    QDate date() const { return m_date; }
    /// Takes what was typed, and shows another day.
    void open(QDate date);
    /// What the window shows.
    JournalEntry typed() const;
    /// Why nothing can be written here; empty where it can.
    QString whyLocked() const;

    /// Puts what was typed into the journal.
    void take();
    /// The same, and brings it to the disk. False where that refuses: then it is tried again.
    bool save();
    bool isSaved() const;
    /// Whether the last saving left something behind.
    bool hasFailed() const { return m_hasFailed; }

    void addPicture(const JournalPicture &picture);
    void setCaption(int number, const QString &caption);
    /// Empties the page, which can be undone.
    void clear();
    /// The day goes with its earlier version and all that could be undone. False where the disk refuses.
    [[nodiscard]] bool deleteForGood();
    /// Shows what the day was like before in the place of what is there; both can be undone.
    void bringBack(const JournalEntry &entry);
    /// Nothing of any day is left in the window.
    void forget();

signals:
    void opened(QDate date);
    void edited();
    /// It is on the disk, or not any more.
    void savedChanged();
    /// A sentence for the status bar.
    void said(const QString &line);

private:
    /// A day that was open before.
    struct Sheet {
        QTextDocument *document = nullptr;
        QList<JournalPicture> pictures{};
        JournalEntry entry{}; ///< as the journal had it then
        int cursor = 0;
    };

    JournalEntry entryOf(QDate date) const;
    void leave();
    void load();
    void show(const JournalEntry &entry);
    void follow(QDate date);
    void noteTyping();
    void noteEdit();
    void showLock();

    Journal &m_journal;
    Page m_page;
    QTimer m_waiting;
    QDate m_date;
    JournalEntry m_entry; ///< as the journal has it
    std::map<QDate, Sheet> m_sheets;
    bool m_isEdited = false;
    bool m_isShowing = false; ///< what changes now was not typed
    bool m_hasFailed = false;
};
