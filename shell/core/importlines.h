// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// The quiet words about files that come in, the same in every preview.
namespace ImportLines {

using namespace Qt::Literals::StringLiterals;

inline QString cannotRead(const QString &file)
{
    return file + u" cannot be read"_s;
}

inline QString tooLong(const QString &file)
{
    return file + u" is too long for such a file"_s;
}

inline QString isBeingRead()
{
    return u"The file is still being read"_s;
}

inline QString noneTicked()
{
    return u"No line is ticked"_s;
}

/// "12 of 14 lines will be taken"
inline QString toBeTaken(int chosen, std::size_t lines)
{
    return QString::number(chosen) + u" of "_s + QString::number(lines) +
           (lines == 1 ? u" line will be taken"_s : u" lines will be taken"_s);
}

inline QString notInTheFile()
{
    return u"Not in the file"_s;
}

/// "Betrag (12,50)"
inline QString withExample(const QString &column, const QString &example)
{
    return example.isEmpty() ? column : QString(column + u" ("_s + example + u')');
}

/// "Mileage: km"
inline QString columnIs(const QString &heading, const QString &inFile)
{
    return heading + u": "_s + inFile;
}

} // namespace ImportLines
