// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/model/namesfound.h"

namespace {

/// A name of two letters is a word as well.
constexpr qsizetype shortest = 3;

bool isOfWord(const QString &text, qsizetype at)
{
    return at >= 0 && at < text.size() && (text[at].isLetterOrNumber() || text[at].isMark());
}

} // namespace

NamesFound::NamesFound(const QStringList &people)
{
    for (const QString &person : people) {
        const QString name = person.simplified();
        const QString first = name.section(u' ', 0, 0);
        if (first.size() >= shortest && !m_byFirst[first].contains(name))
            m_byFirst[first] += name;
    }
}

QStringList NamesFound::in(const QString &text) const
{
    QStringList found;
    for (qsizetype at = 0; at < text.size() && !m_byFirst.isEmpty();) {
        if (!isOfWord(text, at)) {
            ++at;
            continue;
        }
        qsizetype end = at;
        while (isOfWord(text, end))
            ++end;
        const auto names =
            text[at].isUpper() ? m_byFirst.constFind(text.mid(at, end - at)) : m_byFirst.cend();
        if (names != m_byFirst.cend()) {
            QString named = names->size() == 1 ? names->constFirst() : names.key();
            for (const QString &name : *names) {
                const bool isWhole = QStringView(text).sliced(at).startsWith(name);
                if (isWhole && !isOfWord(text, at + name.size()))
                    named = name;
            }
            if (!found.contains(named))
                found += named;
        }
        at = end;
    }
    return found;
}
