// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "journal/model/sealedyear.h"
#include "journal/window/sealpanel.h"
#include "shell/core/programstate.h"

#include <QString>

/// The quiet words of the journal's seal.
namespace SealLines {

QString passwordCaption();
QString newPassword();
QString newPasswordMissing();
QString passwordMissing();
QString weakPassword();

QString titleOf(SealPanel::Kind kind);
QString wordsOf(SealPanel::Kind kind);
/// What the seal does not do.
QString factsOf(SealPanel::Kind kind);
QString buttonOf(SealPanel::Kind kind);

QString codeWords();
QString typeTheCode();
QString codeNotTyped();

QString isLocked();
QString lockedWords();
QString usePassword();
QString working();
QString opening();
QString wrongPassword();
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

QString sealed();
QString sealOpened();
QString passwordChanged();
QString notChanged();
QString nothingChanged();
QString walkRefused(const QList<int> &years);
QString heldBack(const QList<int> &years);
QString codeMade();

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
