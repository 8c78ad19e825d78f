// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "album/model/photo.h"
#include "shell/core/knownperson.h"

#include <QList>
#include <QString>

/// The people in pictures, and the persons that the household's address book knows.
namespace PhotoPeople {

/// Who of a picture's people is whom: those whose entry bears another name by now, or is gone, are names
/// only.
QList<PhotoPerson> linked(const Photo &photo, const QList<KnownPerson> &persons);

/// The person of this name: with the record where exactly one person bears it.
PhotoPerson ofName(const QString &name, const QList<KnownPerson> &persons);

/// Whom to offer for what is typed, at most `most`: names of persons first, then names that stand under other
/// pictures, those that begin so before those with a word that does.
QList<PhotoPerson> offered(const QString &typed, const QList<KnownPerson> &persons,
                           const QStringList &otherNames, int most);

/// How old somebody was who was born then: "4 years old", "3 months old", "2 or 3 years old" where the date
/// is vague; empty where either is unknown, and before the birth.
QString age(QDate born, const PhotoDate &date);

/// "Anne Lind (4 years old), Karin"; ages stand where they are known.
QString words(const Photo &photo, const QList<KnownPerson> &persons);

} // namespace PhotoPeople
