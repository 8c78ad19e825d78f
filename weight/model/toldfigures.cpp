// SPDX-License-Identifier: GPL-3.0-or-later
#include "weight/model/toldfigures.h"

#include "storage/saving.h"
#include "storage/valuefile.h"
#include "weight/model/personlist.h"

using namespace Qt::Literals::StringLiterals;

QString ToldFigures::fileName()
{
    return u"Quillery.weights"_s;
}

QStringList ToldFigures::names(const DataFolder &folder)
{
    return ValueFile::read(folder.filePath(fileName()));
}

bool ToldFigures::isTold(const DataFolder &folder, const QString &name)
{
    return PersonList::place(names(folder), name) > 0;
}

bool ToldFigures::setTold(const DataFolder &folder, const QString &name, bool isTold)
{
    QStringList told = names(folder);
    const int place = PersonList::place(told, name);
    if (isTold == (place > 0))
        return true;
    if (isTold)
        told.append(name);
    else
        told.removeAt(place - 1);
    return Saving::replaceFile(folder, fileName(), ValueFile::encode(told));
}
