// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/passwordstrength.h"

#ifdef QUILLERY_HAS_ZXCVBN
#include <zxcvbn.h>
#endif

#include <cmath>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace {

#ifdef QUILLERY_HAS_ZXCVBN
/// The library takes longer than a keystroke for more; what is left away makes no password weaker.
constexpr qsizetype mostJudged = 100;

std::optional<double> judged(const QString &password, const QStringList &alsoGuessed)
{
    QList<QByteArray> texts;
    for (const QString &text : alsoGuessed) {
        if (!text.isEmpty())
            texts << text.left(mostJudged).toLower().toUtf8();
    }
    std::vector<const char *> pointers;
    pointers.reserve(std::size_t(texts.size()) + 1);
    for (const QByteArray &text : std::as_const(texts))
        pointers.push_back(text.constData());
    pointers.push_back(nullptr);
    QByteArray begin = password.left(mostJudged).toUtf8();
    const double bits = ZxcvbnMatch(begin.constData(), pointers.data(), nullptr);
    begin.fill('\0');
    return std::isfinite(bits) ? std::max(0.0, bits) : 0.0;
}
#else
std::optional<double> judged(const QString &, const QStringList &)
{
    return {};
}
#endif

} // namespace

PasswordStrength PasswordStrength::of(const QString &password, const Knowledge &knowledge)
{
    PasswordStrength strength;
    if (password.isEmpty())
        return strength;
    strength.length = int(password.toUcs4().size());
    strength.isWord =
        knowledge.isWord && (knowledge.isWord(password) || knowledge.isWord(password.toLower()));
    strength.isUsedBefore = knowledge.isUsedBefore && knowledge.isUsedBefore(password);
    strength.bits = judged(password, knowledge.alsoGuessed);
    return strength;
}

bool PasswordStrength::canEstimate()
{
#ifdef QUILLERY_HAS_ZXCVBN
    return true;
#else
    return false;
#endif
}

QString PasswordStrength::words() const
{
    if (length == 0)
        return {};
    QString words = length == 1 ? u"1 character"_s : u"%1 characters"_s.arg(length);
    if (bits)
        words += u", about %1 bits"_s.arg(std::floor(*bits));
    if (isWord)
        words += u", a word in the dictionary"_s;
    if (isUsedBefore)
        words += u", used before"_s;
    return words;
}
