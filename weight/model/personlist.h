// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/datafolder.h"

#include <QByteArray>
#include <QStringList>

/// The list of persons, `WeightTrker.Fil`: a name in quotes on each line, in the order of the list on the
/// screen. The place of a person in it, from 1, is what a `Place` calls their record.
class PersonList
{
public:
    explicit PersonList(const DataFolder &folder)
        : m_folder(folder)
    {}

    static QString fileName();

    /// The names without blanks around them; empty ones and repeated ones are left out.
    QStringList names() const;
    /// The name at `place`, from 1; empty where there is none.
    QString name(int place) const;
    /// From 1, upper and lower case alike; 0: not in the list.
    static int place(const QStringList &names, const QString &name);

    static QStringList decode(QByteArrayView bytes);
    static QByteArray encode(const QStringList &names);

private:
    const DataFolder &m_folder;
};
