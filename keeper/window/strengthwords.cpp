// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/window/strengthwords.h"

#include "keeper/model/keeper.h"
#include "keeper/window/windowlines.h"
#include "shell/core/passwordstrength.h"
#include "shell/writing/writing.h"

using namespace Qt::Literals::StringLiterals;

bool StrengthWords::isWord(const QString &text) const
{
    if (!m_writing.isLoaded())
        m_writing.load();
    return m_writing.spelling().isInDictionary(text);
}

QString StrengthWords::ofMaster(const QString &password) const
{
    const auto strength = PasswordStrength::of(
        password, {.isWord = [this](const QString &text) { return isWord(text); },
                   .isUsedBefore = [this](const QString &text) { return m_keeper.isUsedBefore(text, {}); }});
    return strength.isWeak() ? QString(strength.words() + u". "_s + KeeperWindowLines::weakMaster())
                             : strength.words();
}

QString StrengthWords::ofPassword(const QString &password, const QByteArray &id,
                                  const QStringList &known) const
{
    return PasswordStrength::of(
               password,
               {.isWord = [this](const QString &text) { return isWord(text); },
                .isUsedBefore = [this, id](const QString &text) { return m_keeper.isUsedBefore(text, id); },
                .alsoGuessed = known})
        .words();
}
