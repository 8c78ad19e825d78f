// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "journal/model/journal.h"
#include "shell/core/incomingfile.h"

#include <QSet>

#include <vector>

/// Entries from a text on their way into the journal: in the form of its own files, or in lines like
/// "[2026-03-14 08:12] ...". What the file has for a day comes under what the day has; nothing is replaced.
class JournalImport final : public IncomingFile
{
public:
    /// The columns of the preview.
    enum Column { Date, Text, ColumnCount };
    /// The filters that `isIn()` counts through.
    enum Filter { All, NewDays, Added, NotTaken };

    static constexpr qsizetype mostBytes = qsizetype(64) * 1024 * 1024;

    /// Of the journal it reads the years that the file has something for.
    JournalImport(const QByteArray &bytes, Journal &journal);

    static QStringList filters();

    bool step() override;
    double progress() const override;
    std::size_t lineCount() const override { return m_pieces.size(); }
    QStringList headings() const override;
    bool isNumber(int /*column*/) const override { return false; }
    int lineNumber(std::size_t line) const override { return m_pieces[line].number; }
    QString cell(std::size_t line, int column) const override;
    QString whatBecomesOf(std::size_t line) const override;
    bool isIn(std::size_t line, int filter) const override;
    bool mayBeTaken(std::size_t line) const override { return m_pieces[line].problem.isEmpty(); }
    bool isChosen(std::size_t line) const override { return m_pieces[line].isChosen; }
    void setChosen(std::size_t line, bool isChosen) override;
    int chosenCount() const override { return m_chosen; }

    /// Puts the ticked ones into the journal; it is to be saved behind that. The days that they went into, as
    /// they were before: to be put back by whoever takes the import back.
    QList<JournalEntry> take();

private:
    /// What a date of the file has, or a line without one.
    struct Piece {
        int number = 0; ///< of its line, from 1
        QString date{}; ///< as it stands there; empty where the line has none
        JournalEntry entry{};
        QString title{};   ///< the line, where it has no date
        QString problem{}; ///< why it cannot be taken; empty where it can
        bool isNewDay = false;
        bool isChosen = false;
    };
    struct Begin;

    Begin beginOf(QByteArrayView line) const;
    void begin(const Begin &begin);
    void close();
    void add(Piece piece);

    QByteArray m_bytes;
    Journal &m_journal;
    bool m_isOwnForm = false;
    QByteArrayView m_rest;
    int m_line = 0;
    QByteArray m_block; ///< of the piece that is being read, in the form of our files
    QString m_date;     ///< of it, as it stands there
    QString m_problem;
    int m_begin = 0; ///< its line; 0: there is none
    std::vector<Piece> m_pieces;
    QSet<QDate> m_days; ///< that have an entry, or get one
    int m_chosen = 0;
};
