// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/model/personcolumns.h"

namespace {

bool beginsWith(const QString &text, const QString &person)
{
    return !person.isEmpty() && text.size() > person.size() && text[person.size()] == u':' &&
           text.startsWith(person, Qt::CaseInsensitive);
}

bool isLetterAt(const QString &text, qsizetype at)
{
    return at >= 0 && at < text.size() && text[at].isLetterOrNumber();
}

bool holds(const QString &text, const QString &person)
{
    if (person.isEmpty())
        return false;
    for (qsizetype at = text.indexOf(person, 0, Qt::CaseInsensitive); at >= 0;
         at = text.indexOf(person, at + 1, Qt::CaseInsensitive)) {
        if (!isLetterAt(text, at - 1) && !isLetterAt(text, at + person.size()))
            return true;
    }
    return false;
}

} // namespace

int PersonColumns::columnOf(const QString &text, const QStringList &persons)
{
    int found = 0;
    int count = 0;
    for (int i = 0; i < int(persons.size()); ++i) {
        if (beginsWith(text, persons[i]))
            return i + 1;
        if (holds(text, persons[i])) {
            found = i + 1;
            ++count;
        }
    }
    return count == 1 ? found : 0;
}

QString PersonColumns::inColumn(const QString &text, const QStringList &persons, int column)
{
    if (column < 1 || column > persons.size() || !beginsWith(text, persons[column - 1]))
        return text;
    const QString rest = text.mid(persons[column - 1].size() + 1).trimmed();
    return rest.isEmpty() ? text : rest;
}
