// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "keeper/model/keeperimport.h"
#include "shell/core/csvcells.h"
#include "shell/core/csvcolumns.h"
#include "shell/core/csvfile.h"

/// Entries out of a file of comma-separated values, as browsers and other keepers write them. What its
/// columns hold is guessed from their names, and may be said otherwise.
class KeeperCsvImport final : public KeeperImport
{
public:
    KeeperCsvImport(const QByteArray &bytes, There there, DateStyle style);

    bool step() override;
    double progress() const override { return m_file.progress(); }

    const CsvColumns *columns() const override { return &m_columns; }
    void setPlace(int column, int place) override;
    /// Whether any column is known.
    bool isReadable() const { return m_columns.isComplete(); }
    /// The columns of the file that hold something and will not be taken.
    QStringList notUsed() const;

private:
    void readHeading();
    IncomingEntry read(const CsvFile::Line &line) const;
    KeeperEntry entryOf(const QStringList &cells) const;
    QStringList tagsOf(const QString &text) const;
    void addExtra(KeeperEntry &entry, EntryKind kind, const QStringList &cells) const;
    bool isTaken(qsizetype place) const;

    CsvFile m_file;
    CsvColumns m_columns;
    DateStyle m_style;
    CsvCells::DateOrder m_order = CsvCells::DateOrder::DayFirst;
    QStringList m_heading;     ///< the whole line, where there is one
    qsizetype m_mostCells = 0; ///< that a line may have; 0: any number
};
