// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/lightmarks.h"

#include <QByteArray>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QStringView pictureBegin(u"[picture ");
constexpr qsizetype mostDigits = 4;
constexpr qsizetype mostAsterisks = 3;
/// What an asterisk stands for, and two of them; three are both.
enum Style : char { Italic = 1, Bold = 2 };

/// The number in "[picture 2]"; 0 where the line is something else.
int pictureIn(QStringView line)
{
    const QStringView text = line.trimmed();
    if (!text.startsWith(pictureBegin) || !text.endsWith(u']'))
        return 0;
    const QStringView digits = text.sliced(pictureBegin.size()).chopped(1);
    if (digits.isEmpty() || digits.size() > mostDigits || digits.front() == u'0')
        return 0;
    const bool isNumber = std::ranges::all_of(digits, [](QChar c) { return c >= u'0' && c <= u'9'; });
    return isNumber ? digits.toInt() : 0;
}

/// What stands before the text of a line says what it is.
void readBegin(QStringView line, MarkedLine &marked)
{
    if (line.startsWith(u"# ")) {
        marked.kind = MarkedLine::Heading;
        marked.begin = 2;
        return;
    }
    qsizetype at = 0;
    int blanks = 0;
    for (; at < line.size() && (line[at] == u' ' || line[at] == u'\t'); ++at)
        blanks += line[at] == u'\t' ? 2 : 1;
    if (!line.sliced(at).startsWith(u"- "))
        return;
    marked.kind = MarkedLine::List;
    marked.indent = std::min(blanks / 2, LightMarks::mostIndent);
    marked.begin = at + 2;
}

/// Finds the pairs of asterisks in a line.
class Pairs
{
public:
    Pairs(QStringView line, MarkedLine &marked)
        : m_line(line)
        , m_marked(marked)
        , m_styles(line.size(), '\0')
    {}

    void find()
    {
        for (qsizetype at = m_line.indexOf(u'*', m_marked.begin); at >= 0; at = m_line.indexOf(u'*', at)) {
            qsizetype end = at;
            while (end < m_line.size() && m_line[end] == u'*')
                ++end;
            if (end - at <= mostAsterisks)
                readSigns(at, end);
            at = end;
        }
        std::ranges::sort(m_marked.signs);
        makeRuns();
    }

private:
    struct Open {
        qsizetype at; ///< of the first that is not closed yet
        qsizetype count;
    };

    bool isBlank(qsizetype at) const { return at < 0 || at >= m_line.size() || m_line[at].isSpace(); }
    bool isLetter(qsizetype at) const
    {
        return at >= 0 && at < m_line.size() && m_line[at].isLetterOrNumber();
    }

    /// Signs open in front of a word and close behind one, and do nothing inside of one: "2*3*4".
    void readSigns(qsizetype at, qsizetype end)
    {
        qsizetype left = end - at;
        if (!isBlank(at - 1) && !isLetter(end))
            left -= close(at, left);
        if (left > 0 && !isBlank(end) && !isLetter(at - 1))
            m_open.push_back({end - left, left});
    }

    /// Closes what is open with up to `count` signs, the last opened first; gives how many of them did so.
    qsizetype close(qsizetype at, qsizetype count)
    {
        const auto same = std::find_if(m_open.rbegin(), m_open.rend(),
                                       [count](const Open &open) { return open.count == count; });
        if (same != m_open.rend()) {
            // What was opened since has nothing to close it.
            m_open.erase(same.base(), m_open.end());
            closeLast(at, count);
            return count;
        }
        qsizetype used = 0;
        while (used < count && !m_open.empty()) {
            const qsizetype closed = std::min(m_open.back().count, count - used);
            if (closed < m_open.back().count && m_open.back().count < mostAsterisks)
                break;
            closeLast(at + used, closed);
            used += closed;
        }
        return used;
    }

    void closeLast(qsizetype at, qsizetype count)
    {
        Open &open = m_open.back();
        open.count -= count;
        const qsizetype begin = open.at + open.count;
        m_marked.signs.emplace_back(begin, count);
        m_marked.signs.emplace_back(at, count);
        for (qsizetype i = begin + count; i < at; ++i)
            m_styles[i] = char(m_styles[i] | count);
        if (open.count == 0)
            m_open.pop_back();
    }

    void makeRuns()
    {
        auto sign = m_marked.signs.cbegin();
        for (qsizetype at = m_marked.begin; at < m_line.size();) {
            if (sign != m_marked.signs.cend() && sign->first <= at) {
                at = std::max(at, sign->first + sign->second);
                ++sign;
                continue;
            }
            const qsizetype stop = sign != m_marked.signs.cend() ? sign->first : m_line.size();
            qsizetype end = at;
            while (end < stop && m_styles[end] == m_styles[at])
                ++end;
            m_marked.runs.push_back({at, end - at, (m_styles[at] & Bold) != 0, (m_styles[at] & Italic) != 0});
            at = end;
        }
    }

    QStringView m_line;
    MarkedLine &m_marked;
    QByteArray m_styles; ///< of each character
    std::vector<Open> m_open;
};

} // namespace

MarkedLine LightMarks::of(QStringView line)
{
    MarkedLine marked;
    marked.picture = pictureIn(line);
    if (marked.picture > 0) {
        marked.kind = MarkedLine::Picture;
        marked.begin = line.size();
        return marked;
    }
    readBegin(line, marked);
    Pairs(line, marked).find();
    return marked;
}

QString LightMarks::plain(QStringView line)
{
    QString text;
    for (const MarkedRun &run : of(line).runs)
        text += line.sliced(run.at, run.length);
    return text;
}

QString LightMarks::picture(int number)
{
    return u"[picture %1]"_s.arg(number);
}
