// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "journal/model/sealedyear.h"
#include "journal/window/sealpanel.h"
#include "shell/core/passwordstrength.h"
#include "shell/core/programstate.h"

#include <QStringList>

/// The quiet words of the journal's seal.
namespace SealLines {

QString passwordCaption();
QString newPassword();
QString newPasswordMissing();
QString passwordMissing();
/// "Fair: 20 characters, about 67 bits"
QString strength(const PasswordStrength &strength);

QString titleOf(SealPanel::Kind kind);
/// `unsealed` are the files that a seal leaves as they are.
QString wordsOf(SealPanel::Kind kind, const QStringList &unsealed);
/// What the seal does not do.
QString factsOf(SealPanel::Kind kind, const QStringList &unsealed);
QString buttonOf(SealPanel::Kind kind);

QString codeWords();
QString typeTheCode();
QString codeNotTyped();
QString codeIsAnother();

QString isLocked();
QString lockedWords();
QString usePassword();
QString working();
QString opening();
QString wrongPassword();
QString wrongCode();
QString tryAgainIn(int seconds);
QString answersSpent();
QString notEnoughMemory();
QString notSealed();
QString isSealed();
QString isPlain();
/// A copy of the key serves, as the key's own file does not.
QString keyFileLost(const QString &file);
/// What was written last stays sealed in memory.
QString heldBySeal();

/// But for those files.
QString sealed(const QStringList &unsealed);
QString sealOpened(const QStringList &sealed);
QString passwordChanged();
QString notChanged();
QString nothingChanged();
/// Years, or a file.
QString walkRefused(const QStringList &names);
QString heldBack(const QList<int> &years);
QString codeMade();
/// Lines that are said at once, one behind the other.
QString together(const QStringList &lines);
/// The years' names.
QStringList namesOf(const QList<int> &years);

/// "March 14, 2026: the entry is damaged and does not open"
QString damage(const SealedDamage &damage, int year, DateStyle style);
/// "2 records are damaged, the first of them ...", with the words of the first.
QString damaged(int count, const QString &first);
QString damageWords();
QString nothingDamaged();

QString alsoLocks();
QString lockKept();

QString nobodyCanOpen();
QString nobodyCanOpenWords(const QString &file, const QString &folder);
QString later();
QString laterWords();

} // namespace SealLines
