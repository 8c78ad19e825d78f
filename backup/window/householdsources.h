// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/model/holdings.h"
#include "shell/program/functions.h"

#include <QList>
#include <QString>

#include <optional>

class DiskWork;
struct BackupCount;
struct Program;

/// What the functions of the program have for a backup, by the names that its records use.
namespace HouseholdSources {

/// "AddressBook"; the function of such a name, none for another.
QString key(Function function);
std::optional<Function> function(const QString &key);

/// What their cards call them; the name itself for what is no function.
QString title(const QString &key);

/// What each function says that it has now.
QList<BackupSource> all(const Program &program);
/// The user's desk, written out.
QByteArray desk(const Program &program);

/// How a copy of a function's files is kept from others.
enum class Copy {
    Readable,
    Guarded, ///< by this program alone
    Sealed,  ///< with a password of its own
    Verifier ///< of the password: it tells a right one, and holds none
};
Copy copyOf(const Program &program, const QString &key);

/// "Anybody can read it", "Guarded by this program only", "Sealed", "The password is not in it".
QString words(Copy copy);

/// Whether what is known of the function may be shown: it is not guarded, or its password was given.
bool mayTell(const Program &program, const QString &key);

/// "40 addresses"; empty where the function cannot tell.
QString counted(const Program &program, const BackupCount &count);

/// Counts the records of these functions in the copy at `folder`; for the thread of `work`, which shares
/// nothing with the program but what is made for it there.
QList<BackupCount> count(const Program &program, DiskWork &work, const QString &folder,
                         const QStringList &keys);

/// The same for what is in the household's folder now; on this thread.
QList<BackupCount> countHere(const Program &program, const QStringList &keys);

} // namespace HouseholdSources
