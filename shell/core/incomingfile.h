// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

#include <cstddef>

class CsvColumns;

/// A file that is to come in, as its preview shows it: read a few lines at a time, each of them with its
/// cells and with what will become of it. Lines that may be taken have a tick.
class IncomingFile
{
public:
    virtual ~IncomingFile() = default;

    /// Reads some lines. False when nothing is left to do.
    virtual bool step() = 0;
    /// From 0 to 1.
    virtual double progress() const = 0;
    /// Those that were read so far.
    virtual std::size_t lineCount() const = 0;

    /// Of the cells, which stand between the number of a line and what becomes of it.
    virtual QStringList headings() const = 0;
    virtual bool isNumber(int column) const = 0;
    /// In the file, from 1.
    virtual int lineNumber(std::size_t line) const = 0;
    virtual QString cell(std::size_t line, int column) const = 0;
    /// "Will be taken", "Not read: no date"
    virtual QString whatBecomesOf(std::size_t line) const = 0;
    /// Whether it is among those that the `filter`-th of the preview's filters shows; 0 shows all.
    virtual bool isIn(std::size_t line, int filter) const = 0;

    /// Whether it has a tick.
    virtual bool mayBeTaken(std::size_t line) const = 0;
    virtual bool isChosen(std::size_t line) const = 0;
    virtual void setChosen(std::size_t line, bool isChosen) = 0;
    virtual int chosenCount() const = 0;

    /// Where in the file the columns are, if that can be said otherwise; else null.
    virtual const CsvColumns *columns() const { return nullptr; }
    /// Says where a column is, and begins to read again.
    virtual void setPlace(int /*column*/, int /*place*/) {}
};
