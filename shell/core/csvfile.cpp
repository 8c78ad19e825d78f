// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/csvfile.h"

#include "storage/ansitext.h"

#include <QHash>
#include <QStringDecoder>

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

namespace {

constexpr std::array separators{u';', u'\t', u','};
constexpr int sampleLines = 40;
/// A quote that is not closed within so many characters is none: the file goes on behind its line.
constexpr qsizetype longestQuoted = 4000;
constexpr qsizetype longestAsWritten = 70'000;
constexpr qsizetype lookedAt = 64; ///< bytes

/// UTF-16 without its mark: of letters in Western languages every other byte is zero.
std::optional<QStringConverter::Encoding> wideEncoding(const QByteArray &bytes)
{
    const QByteArrayView begin =
        QByteArrayView(bytes).first(std::min(bytes.size(), lookedAt) & ~qsizetype(1));
    qsizetype zeros[2] = {0, 0};
    for (qsizetype i = 0; i < begin.size(); ++i)
        zeros[i % 2] += begin[i] == 0 ? 1 : 0;
    const qsizetype most = begin.size() / 2;
    if (most < 4 || zeros[0] + zeros[1] < most * 3 / 4 || (zeros[0] > 0 && zeros[1] > 0))
        return {};
    return zeros[1] > 0 ? QStringConverter::Utf16LE : QStringConverter::Utf16BE;
}

} // namespace

CsvFile::CsvFile(const QByteArray &bytes, Cells cells)
    : m_text(decode(bytes))
    , m_cells(cells)
{
    m_text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    m_text.replace(u'\r', u'\n');
    m_separator = likelySeparator();
    rewind();
}

QString CsvFile::decode(const QByteArray &bytes)
{
    if (const auto encoding = QStringConverter::encodingForData(bytes))
        return QStringDecoder(*encoding)(bytes);
    if (const auto encoding = wideEncoding(bytes))
        return QStringDecoder(*encoding)(bytes);
    return bytes.isValidUtf8() ? QString::fromUtf8(bytes) : AnsiText::decode(bytes);
}

void CsvFile::rewind()
{
    m_at = 0;
    m_line = 0;
}

/// The one that cuts most of the first lines into the same number of cells, the more the better.
QChar CsvFile::likelySeparator()
{
    QChar best = separators.back();
    int bestScore = 0;
    for (const char16_t candidate : separators) {
        m_separator = candidate;
        rewind();
        QHash<qsizetype, int> counts;
        Line line;
        for (int i = 0; i < sampleLines && next(line); ++i)
            ++counts[line.cells.size()];
        for (auto count = counts.cbegin(); count != counts.cend(); ++count) {
            const int score = count.key() > 1 ? int(count.key()) * count.value() : 0;
            if (score > bestScore) {
                bestScore = score;
                best = candidate;
            }
        }
    }
    return best;
}

bool CsvFile::next(Line &line)
{
    while (m_at < m_text.size()) {
        const qsizetype start = m_at;
        line = {m_line + 1, {}, true, false};
        for (;;) {
            QString cell = takeCell(line.isClosed);
            line.hasMore = line.cells.size() >= mostCells;
            if (!line.hasMore)
                line.cells.append(std::move(cell));
            if (isAtLineEnd())
                break;
            ++m_at; // the separator
        }
        ++m_at; // the line end
        m_line += int(QStringView(m_text).sliced(start, std::min(m_at, m_text.size()) - start).count(u'\n'));
        if (line.cells.size() > 1 || !line.cells.first().trimmed().isEmpty())
            return true;
    }
    return false;
}

QString CsvFile::takeCell(bool &isClosed)
{
    const qsizetype begin = m_at;
    while (!isAtLineEnd() && m_text[m_at] == u' ' && m_separator != u' ')
        ++m_at;
    QString cell;
    if (!isAtLineEnd() && m_text[m_at] == u'"')
        cell = takeQuoted(isClosed);
    else if (m_cells == Cells::AsWritten)
        m_at = begin;
    const qsizetype start = m_at;
    while (!isAtLineEnd() && m_text[m_at] != m_separator)
        ++m_at;
    cell += QStringView(m_text).sliced(start, m_at - start);
    return m_cells == Cells::AsWritten ? cell : cell.simplified();
}

/// What stands up to the closing quote, which goes with it; two quotes are one. Without one the cell ends
/// where it would without the first.
QString CsvFile::takeQuoted(bool &isClosed)
{
    const qsizetype start = ++m_at;
    QString cell;
    const qsizetype longest = m_cells == Cells::AsWritten ? longestAsWritten : longestQuoted;
    const qsizetype end = std::min(m_text.size(), start + longest);
    for (qsizetype at = start; at < end; ++at) {
        if (m_text[at] != u'"') {
            cell += m_text[at];
        } else if (at + 1 < m_text.size() && m_text[at + 1] == u'"') {
            cell += m_text[++at];
        } else {
            m_at = at + 1;
            return cell;
        }
    }
    isClosed = false;
    return {};
}
