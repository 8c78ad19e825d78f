// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/programstate.h"

#include <QDate>
#include <QLocale>
#include <QString>

/// The words on printed pages of the journal.
namespace PageLines {

using namespace Qt::Literals::StringLiterals;

inline QString journal()
{
    return u"Journal"_s;
}

inline QString nothingWritten()
{
    return u"Nothing was written."_s;
}

inline QString entries(qsizetype count)
{
    return count == 1 ? u"1 entry"_s : QString::number(count) + u" entries"_s;
}

/// "March 14", or "14 March" under `Other`.
inline QString monthDay(QDate date, DateStyle style)
{
    return QLocale::c().toString(date, style == DateStyle::Usa ? u"MMMM d" : u"d MMMM");
}

inline QString writtenOn(const QString &date)
{
    return u"Written on "_s + date;
}

inline QString contents()
{
    return u"Contents"_s;
}

inline QString tags()
{
    return u"Tags"_s;
}

inline QString people()
{
    return u"People"_s;
}

/// What the index is called that has these.
inline QString index(bool hasTags, bool hasPeople)
{
    if (hasTags && hasPeople)
        return tags() + u" and "_s + people();
    return hasTags ? tags() : people();
}

} // namespace PageLines
