// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/csvcells.h"
#include "shell/core/csvfile.h"
#include "shell/core/incomingfile.h"
#include "weight/model/weighttable.h"

#include <QDate>
#include <QSet>

#include <vector>

/// Weigh-ins as a file for spreadsheets: comma-separated values in UTF-8 under a heading.
namespace WeightCsv {

/// Days as "2026-01-05", which every program reads alike; what is no date or no weight as it was typed.
QByteArray text(const WeightTable &weighIns);

/// "Anne weight.csv": a name for such a file, without characters that no file name has.
QString fileName(const QString &person);

} // namespace WeightCsv

/// A line of a file that comes in, and what becomes of it.
struct WeightCsvLine {
    enum State {
        Ready,
        Duplicate, ///< there is such a weigh-in already, or one in a line before it
        NotRead    ///< `problem` says why
    };

    int number = 0; ///< from 1
    QString date;   ///< this and the weight as they will be stored; as they stand there where not read
    QString weight;
    QDate day{};
    State state = NotRead;
    QString problem{};
};

/// Brings the dates and weights of a file of comma-separated values into a table: reads it some lines at a
/// time, and recognises what is there already.
class WeightCsvImport final : public IncomingFile
{
public:
    WeightCsvImport(const QByteArray &bytes, const WeightTable &weighIns, DateStyle style, QDate today);

    /// Whether a column of dates and one of weights were found.
    bool isReadable() const { return m_dateColumn >= 0 && m_weightColumn >= 0; }

    bool step() override;
    double progress() const override { return m_file.progress(); }
    std::size_t lineCount() const override { return m_lines.size(); }
    QStringList headings() const override;
    bool isNumber(int column) const override { return column == 1; }
    int lineNumber(std::size_t line) const override { return m_lines[line].number; }
    QString cell(std::size_t line, int column) const override;
    QString whatBecomesOf(std::size_t line) const override;
    /// The filters after the first are the states.
    bool isIn(std::size_t line, int filter) const override;
    /// What is new is taken, all of it.
    bool mayBeTaken(std::size_t /*line*/) const override { return false; }
    bool isChosen(std::size_t line) const override { return m_lines[line].state == WeightCsvLine::Ready; }
    void setChosen(std::size_t /*line*/, bool /*isChosen*/) override {}
    int chosenCount() const override { return count(WeightCsvLine::Ready); }

    const std::vector<WeightCsvLine> &lines() const { return m_lines; }
    int count(WeightCsvLine::State state) const;

    /// The table with the lines that are ready: by day where it is in that order, else behind its rows.
    WeightTable result() const;

private:
    void look(DateStyle style);
    bool findByHeading(const QStringList &cells);
    void findByContent(const QList<QStringList> &lines);
    WeightCsvLine read(const CsvFile::Line &line) const;

    CsvFile m_file;
    const WeightTable m_weighIns;
    QDate m_today;
    CsvCells::DateOrder m_order = CsvCells::DateOrder::MonthFirst;
    int m_dateColumn = -1;
    int m_weightColumn = -1;
    int m_headingNumber = 0; ///< of the line that names the columns; 0: none does
    QSet<std::pair<qint64, QString>> m_there;
    std::vector<WeightCsvLine> m_lines;
};
