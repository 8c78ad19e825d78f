// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/model/carcsv.h"
#include "cars/model/carrecord.h"
#include "shell/core/csvcells.h"
#include "shell/core/csvfile.h"
#include "shell/core/incomingfile.h"

#include <QDate>
#include <QSet>

#include <vector>

/// A line of a file that comes in, and what will become of it.
struct CarCsvLine {
    enum State {
        Ready,
        Duplicate, ///< there is such a row already, or one in a line before it
        Full,      ///< there is no room for it
        NotRead    ///< `problem` says why
    };

    int number = 0;    ///< from 1
    QStringList cells; ///< in the columns of the grid, as they will be stored
    QDate date;
    State state = NotRead;
    QString problem;
    bool isBare = false;   ///< it says when, but nothing that was done
    bool isChosen = false; ///< whether it will be taken
};

/// Brings a file of comma-separated values into a history or the fuel tracker: reads it a few lines at a
/// time, and recognises what is there already. What its columns hold is guessed from their names, and may be
/// said otherwise.
class CarCsvImport final : public IncomingFile
{
public:
    /// `part` of `car` is where the rows come; its histories are what is there already.
    CarCsvImport(const QByteArray &bytes, CarPart part, const CarRecord &car, DateStyle style, QDate today);

    /// Whether the column of the date is known.
    bool isReadable() const { return m_columns.isComplete(); }

    bool step() override;
    double progress() const override { return m_file.progress(); }
    std::size_t lineCount() const override { return m_lines.size(); }
    QStringList headings() const override;
    bool isNumber(int column) const override;
    int lineNumber(std::size_t line) const override { return m_lines[line].number; }
    QString cell(std::size_t line, int column) const override { return m_lines[line].cells.value(column); }
    QString whatBecomesOf(std::size_t line) const override;
    bool isIn(std::size_t /*line*/, int /*filter*/) const override { return true; }

    /// Not one that was not read, or has no room.
    bool mayBeTaken(std::size_t line) const override;
    bool isChosen(std::size_t line) const override { return m_lines[line].isChosen; }
    void setChosen(std::size_t line, bool isChosen) override;
    int chosenCount() const override { return m_chosen; }

    const CsvColumns *columns() const override { return &m_columns; }
    void setPlace(int column, int place) override;
    /// The columns of the file that hold something and will not be taken.
    QStringList notUsed() const;

    const std::vector<CarCsvLine> &lines() const { return m_lines; }
    int count(CarCsvLine::State state) const;

    /// The car with the chosen lines behind its rows, oldest first. A fill-up without a previous reading has
    /// that of the one before it.
    CarRecord result() const;

private:
    void guessForms();
    void startOver();
    bool isBare(const QStringList &cells) const;
    void addFillUps(FuelLog &fuel, const std::vector<const CarCsvLine *> &chosen) const;
    CarCsvLine read(const CsvFile::Line &line) const;
    QString readCell(CarCsvLine &line, int column, const QString &text) const;
    QString number(const QString &text) const;
    bool isReading(int column) const;
    QString keyOf(const QStringList &cells) const;
    void sort(CarCsvLine &line);
    qsizetype room() const;

    CsvFile m_file;
    CarPart m_part;
    CarRecord m_car;
    DateStyle m_style;
    QDate m_today;
    CsvColumns m_columns;
    QChar m_decimal = u'.';
    CsvCells::DateOrder m_order = CsvCells::DateOrder::DayFirst;
    QSet<QString> m_there; ///< what stands for the rows that are there and those read before
    std::vector<CarCsvLine> m_lines;
    int m_chosen = 0;
};
