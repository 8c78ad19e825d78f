// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/// A file of comma-separated values, as banks and spreadsheets write them, cut into lines of cells: separated
/// by commas, semicolons or tabs, in quotes where they hold such a character or a line end.
class CsvFile
{
public:
    /// A line of the file; one whose quotes hold line ends goes over several.
    struct Line {
        int number = 0; ///< from 1
        QStringList cells;
        bool isClosed = true; ///< false: a quote has no end, and what follows was not read as part of it
        bool hasMore = false; ///< there are more cells than any table has, which were left out
    };

    enum class Cells {
        Tidied,   ///< blanks and line ends in a row are one blank
        AsWritten ///< blanks and line ends count
    };

    explicit CsvFile(const QByteArray &bytes, Cells cells = Cells::Tidied);

    static constexpr qsizetype mostCells = 10'000; ///< of a line

    QChar separator() const { return m_separator; }
    /// The next line that holds anything; false at the end.
    bool next(Line &line);
    /// Begins again from the first line.
    void rewind();
    /// How much was read, from 0 to 1.
    double progress() const { return m_text.isEmpty() ? 1 : double(m_at) / double(m_text.size()); }

    /// The text of a file in UTF-8, UTF-16 or Windows-1252.
    static QString decode(const QByteArray &bytes);

private:
    QChar likelySeparator();
    QString takeCell(bool &isClosed);
    QString takeQuoted(bool &isClosed);
    bool isAtLineEnd() const { return m_at >= m_text.size() || m_text[m_at] == u'\n'; }

    QString m_text;
    Cells m_cells;
    QChar m_separator = u',';
    qsizetype m_at = 0;
    int m_line = 0;
};
