// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "journal/model/journalentry.h"
#include "journal/model/journalseal.h"
#include "journal/model/journalsitting.h"
#include "journal/model/journalyear.h"
#include "shell/core/clock.h"
#include "storage/datafolder.h"

#include <QMap>
#include <QObject>

#include <map>
#include <optional>

/// The journal of a household: a file a year, each read when it is first needed and kept from then on. What
/// is put into it stays in memory until a save has brought it to the disk.
class Journal final : public QObject
{
    Q_OBJECT
public:
    /// `cost` goes into a seal that is made.
    Journal(const DataFolder &folder, const Clock &clock, QObject *parent = nullptr,
            PasswordCost cost = PasswordCost::moderate());

    const DataFolder &folder() const { return m_folder; }
    /// What the years are sealed with. Behind a walk over them, `reread` knows it.
    JournalSeal &seal() { return m_seal; }
    /// Whether nothing may be shown or written before the seal is opened.
    bool isLocked();
    static bool isPossible(QDate date);

    /// The years that have a file or something that is not saved yet, ascending; none of them is read.
    QList<int> years() const;
    JournalYear::State state(int year) { return yearOf(year).state; }
    /// A sentence for the user; empty where the year may be written to.
    QString whyReadOnly(int year) { return yearOf(year).whyReadOnly; }
    bool mayBeWritten(QDate date) { return isPossible(date) && yearOf(date.year()).mayBeWritten(); }

    /// Reads one more year, of those not read yet the nearest to `nearest`. False when all are read.
    bool readNext(int nearest);
    bool isRead(int year) const { return m_years.contains(year); }
    /// The year as it is in memory now: what searches go through.
    const JournalYear &year(int year) { return yearOf(year); }

    /// What was written for the date; nothing where nothing was.
    std::optional<JournalEntry> entry(QDate date);
    /// The day as it was before the last sitting that changed it.
    std::optional<JournalEntry> earlier(QDate date);
    QList<QDate> dates(int year) { return yearOf(year).dates(); }
    /// The nearest date before (behind) this one that has an entry; invalid where there is none.
    QDate previous(QDate date);
    QDate next(QDate date);

    /// The dates of other years that are this day, or at most `neighbours` days away from it, and have an
    /// entry: those of the years read so far, the latest first.
    QList<QDate> onThisDay(QDate date, int neighbours) const;
    /// How many entries have each tag, in the years read so far.
    QMap<QString, int> tags() const;
    /// The same by name alone, whatever the case of their letters; each as it is spelt most often.
    QStringList tagNames() const;

    /// Takes what was written for its date; an empty entry is a deleted one. What the day was like before
    /// this sitting becomes its earlier version; of one that is deleted, what it was like last. False where
    /// the year may not be written to.
    [[nodiscard]] bool put(const JournalEntry &entry);
    /// The same for what came in and is not wanted: it leaves no earlier version.
    [[nodiscard]] bool takeBack(const JournalEntry &entry);
    /// The day goes, and its earlier version too: there is no way back.
    [[nodiscard]] bool deleteForGood(QDate date);
    /// What comes is another sitting: days are compared with what they are now. Locking begins none.
    void beginSitting() { m_sitting.begin(); }

    /// Also while it is locked with something that the disk had refused.
    bool isModified() const;
    /// Brings what is not saved to the disk. False when not all of it is there: it is kept, to be tried
    /// again. Over the locking it is kept sealed.
    [[nodiscard]] bool save();
    /// Why `save` cannot write the year, where its file became one for reading while it was open; else empty.
    QString whyNotSaved(int year);
    /// The name that the file of a year for reading only was given; empty when that failed. What is not saved
    /// of a year that was open is written with the next saving.
    QString setAside(int year);
    /// Reads the years anew whose files somebody else has changed. False where there are none.
    bool reread();

signals:
    /// Of the date's entry or earlier version; an invalid date: of any.
    void changed(QDate date);

private:
    /// What the disk had refused before the journal was locked: changed dates, and their blocks, sealed.
    struct Held {
        QList<QDate> dates;
        QByteArray sealed;
    };

    JournalYear &yearOf(int year);
    JournalYear readYear(int number);
    /// The plain form of what the file holds; nothing where it does not open, and the year says why.
    std::optional<QByteArray> plainOf(int number, const QByteArray &bytes, JournalYear &year) const;
    void becomeLocked();
    void sealChanged();
    [[nodiscard]] bool saveYear(int number, JournalYear &year);

    const DataFolder &m_folder;
    JournalSeal m_seal;
    std::optional<bool> m_isLocked; ///< as the files said last
    std::map<int, Held> m_held;
    std::map<int, JournalYear> m_years;
    JournalSitting m_sitting;
    qint64 m_readings = 0; ///< so that no year has a revision twice
};
