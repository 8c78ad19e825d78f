// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/model/journalquestion.h"

#include "journal/model/journalfold.h"

#include <QString>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QLatin1StringView tagName = "tag:"_L1;
constexpr QLatin1StringView yearName = "year:"_L1;

bool isQuote(QChar character)
{
    return character == u'"' || character == u'\u201c' || character == u'\u201d' || character == u'\u201e';
}

/// Where what begins at `at` ends: at its quote, or at a blank.
qsizetype endOf(QStringView text, qsizetype at, bool isQuoted)
{
    while (at < text.size() && !(isQuoted ? isQuote(text[at]) : text[at].isSpace()))
        ++at;
    return at;
}

} // namespace

JournalQuestion::JournalQuestion(QStringView text)
{
    for (qsizetype at = 0; at < text.size();) {
        if (text[at].isSpace()) {
            ++at;
            continue;
        }
        qsizetype begin = at;
        for (const QLatin1StringView name : {tagName, yearName}) {
            if (text.sliced(at).startsWith(name, Qt::CaseInsensitive))
                begin = at + name.size();
        }
        const bool isQuoted = begin < text.size() && isQuote(text[begin]);
        begin += isQuoted ? 1 : 0;
        const qsizetype end = endOf(text, begin, isQuoted);
        const QStringView what = text.sliced(begin, end - begin);
        if (text.sliced(at).startsWith(tagName, Qt::CaseInsensitive))
            m_tags.push_back({JournalFold::of(what.trimmed()), end < text.size()});
        else if (text.sliced(at).startsWith(yearName, Qt::CaseInsensitive))
            m_years.push_back({what.trimmed().toUtf8(), end < text.size()});
        else if (const QByteArray word = JournalFold::of(what); !word.trimmed().isEmpty())
            m_words.push_back(isQuoted ? word.trimmed() : word);
        at = end + (isQuoted ? 1 : 0);
    }
    std::ranges::stable_sort(m_words, std::ranges::greater(), &QByteArray::size);
    std::vector<QByteArray> words;
    for (const QByteArray &word : m_words) {
        if (std::ranges::none_of(words, [&word](const QByteArray &longer) { return longer.contains(word); }))
            words.push_back(word);
    }
    m_words = words;
}

bool JournalQuestion::mayBeIn(int year) const
{
    const QByteArray number = QByteArray::number(year);
    return std::ranges::all_of(m_years, [&number](const Named &asked) {
        return asked.isWhole ? number == asked.name : number.startsWith(asked.name);
    });
}

bool JournalQuestion::areThere(QByteArrayView tags) const
{
    const QByteArray all = ',' + tags.toByteArray();
    return std::ranges::all_of(m_tags, [&all](const Named &asked) {
        QByteArray sought = ',' + asked.name;
        if (asked.isWhole)
            sought += ',';
        return asked.name.isEmpty() ? all.size() > 1 : all.contains(sought);
    });
}

bool JournalQuestion::isNarrower(const std::vector<Named> &narrow, const std::vector<Named> &wide)
{
    return std::ranges::all_of(wide, [&narrow](const Named &asked) {
        return std::ranges::any_of(narrow, [&asked](const Named &now) {
            return now == asked || (!asked.isWhole && now.name.startsWith(asked.name));
        });
    });
}

bool JournalQuestion::isNarrowerThan(const JournalQuestion &other) const
{
    const auto isInOneOfOurs = [this](const QByteArray &word) {
        return std::ranges::any_of(m_words, [&word](const QByteArray &ours) { return ours.contains(word); });
    };
    return std::ranges::all_of(other.m_words, isInOneOfOurs) && isNarrower(m_tags, other.m_tags) &&
           isNarrower(m_years, other.m_years);
}
