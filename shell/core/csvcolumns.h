// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QStringList>

#include <functional>

class CsvFile;

/// What the columns of a file of comma-separated values are taken for: guessed from its first lines, and said
/// otherwise by somebody who knows.
class CsvColumns
{
public:
    /// The words by which the heading of a file names one of the columns that come in.
    struct Names {
        int column;
        QStringList words;
    };

    /// The columns that come in.
    struct Wanted {
        int count = 0;
        /// The surest first: a column of the file that one of them has found is not looked at for the next.
        QList<Names> names{};
        int needed = -1; ///< the one without which no line can be read; -1: any will do
        /// Whether a heading means something else, though it has one of the words.
        std::function<bool(const QString &heading)> isOther{};
        bool hasExamples = true; ///< else no cell of the file is shown, which may be a secret
    };

    /// Looks at the first lines of `file`, which is at its beginning again afterwards. They are named by a
    /// heading among them, or a first one without a digit; without one there must be as many as are wanted.
    CsvColumns(CsvFile &file, Wanted wanted);

    /// Whether a line can be read at all.
    bool isComplete() const;
    /// The number of the line that names the columns; 0: none does.
    int headingNumber() const { return m_headingNumber; }

    int count() const { return int(m_places.size()); }
    /// Where in the file a column is; -1: nowhere.
    int placeOf(int column) const { return m_places[column]; }
    /// Says where it is. What another column had there, is nowhere then.
    void setPlace(int column, int place);
    /// What a line of the file has for a column; empty where it is nowhere.
    QString cell(const QStringList &line, int column) const;
    /// What the first lines have for it, the heading too.
    QStringList sample(int column) const;

    /// What the columns of the file are called: by its heading, else "Column 1".
    QStringList fileNames() const;
    /// What stands first in such a column; empty where nothing does, or nothing may be shown.
    QString example(int place) const;
    /// The columns of the file that hold something and will not be taken.
    QStringList notUsed() const;

private:
    void guess();
    QList<int> namedBy(const QStringList &heading) const;
    bool suffices(const QList<int> &places) const;
    QString firstCell(int place) const;

    Wanted m_wanted;
    QList<QStringList> m_sample; ///< the first lines, with the heading
    QList<int> m_places;
    int m_heading = -1; ///< in the sample
    int m_headingNumber = 0;
};
