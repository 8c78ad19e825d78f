// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/model/carcsv.h"
#include "cars/model/carrecord.h"
#include "shell/core/csvcells.h"
#include "shell/core/csvfile.h"

#include <QDate>
#include <QSet>

#include <array>
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
class CarCsvImport
{
public:
    /// `part` of `car` is where the rows come; its histories are what is there already.
    CarCsvImport(const QByteArray &bytes, CarPart part, const CarRecord &car, DateStyle style, QDate today);

    /// Reads some lines. False when nothing is left to do.
    bool step();
    /// From 0 to 1.
    double progress() const { return m_file.progress(); }

    /// Whether the column of the date is known.
    bool isReadable() const { return m_columns.isComplete(); }
    /// What the columns of the file are called: by its heading, else "Column 1".
    QStringList fileColumns() const;
    /// What stands first in such a column; empty where nothing does.
    QString example(int place) const;
    /// Where in the file a column of the grid is; -1: nowhere.
    int placeOf(int column) const { return m_columns.places[column]; }
    /// Says where it is, and begins to read again. What another column had there, is nowhere then.
    void setPlace(int column, int place);
    /// The columns of the file that hold something and will not be taken.
    QStringList notUsed() const;

    const std::vector<CarCsvLine> &lines() const { return m_lines; }
    /// Takes a line or leaves it out; what was not read and what has no room cannot be taken.
    void setChosen(std::size_t line, bool isChosen);
    int count(CarCsvLine::State state) const;
    int chosenCount() const { return m_chosen; }

    /// The car with the chosen lines behind its rows, oldest first. A fill-up without a previous reading has
    /// that of the one before it.
    CarRecord result() const;

private:
    void look();
    void guessForms();
    void startOver();
    bool isBare(const QStringList &cells) const;
    void addFillUps(FuelLog &fuel, const std::vector<const CarCsvLine *> &chosen) const;
    CarCsvLine read(const CsvFile::Line &line) const;
    QString readCell(CarCsvLine &line, std::size_t column, const QString &text) const;
    QString number(const QString &text) const;
    bool isNumber(std::size_t column) const;
    bool isReading(std::size_t column) const;
    QString keyOf(const QStringList &cells) const;
    void sort(CarCsvLine &line);
    qsizetype room() const;

    CsvFile m_file;
    CarPart m_part;
    CarRecord m_car;
    DateStyle m_style;
    QDate m_today;
    QList<QStringList> m_sample; ///< the first lines, with the heading
    CarCsv::Columns m_columns;
    int m_headingNumber = 0; ///< of the line that names the columns
    QChar m_decimal = u'.';
    CsvCells::DateOrder m_order = CsvCells::DateOrder::DayFirst;
    QSet<QString> m_there; ///< what stands for the rows that are there and those read before
    std::vector<CarCsvLine> m_lines;
    int m_chosen = 0;
};
