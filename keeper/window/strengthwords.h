// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

class Keeper;
class Writing;

/// What is said of a password while somebody types it: its length, how hard it is to guess where that can be
/// told, whether the spelling dictionary has it and whether it was used before.
class StrengthWords
{
public:
    StrengthWords(const Keeper &keeper, Writing &writing)
        : m_keeper(keeper)
        , m_writing(writing)
    {}

    /// Of a master password, with what is to be said of a weak one.
    QString ofMaster(const QString &password) const;
    /// Of the password of entry `id`, of which `known` tells, too: title and user name.
    QString ofPassword(const QString &password, const QByteArray &id, const QStringList &known) const;

private:
    bool isWord(const QString &text) const;

    const Keeper &m_keeper;
    Writing &m_writing; ///< its languages are loaded when the first password is typed
};
