#include "addressbook/namelist.h"

#include "addressbook/bytecase.h"
#include "addressbook/indexline.h"
#include "storage/ansitext.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

QString NameList::line(int position) const
{
    return AnsiText::decode(bytesAt(position));
}

QString NameList::name(int position) const
{
    const QString whole = line(position);
    return IndexLine::name(whole).toString();
}

int NameList::recordAt(int position) const
{
    return IndexLine::record(bytesAt(position));
}

int NameList::positionOf(int record) const
{
    for (int position = 0; record > 0 && position < count(); ++position) {
        if (recordAt(position) == record)
            return position;
    }
    return -1;
}

int NameList::find(QStringView text) const
{
    const std::optional<QByteArray> folded = ByteCase::folded(text);
    if (!folded)
        return -1;
    const int first = firstMatch(*folded, 0);
    if (first < 0 || first >= searchResumesAt)
        return first;
    // A further match would send the search back to where it resumed, and to itself again: it ends there.
    const int resumed = firstMatch(*folded, searchResumesAt);
    return resumed < 0 ? first : resumed;
}

int NameList::firstMatch(QByteArrayView foldedText, int from) const
{
    for (int position = from; position < count(); ++position) {
        if (ByteCase::contains(bytesAt(position), foldedText))
            return position;
    }
    return -1;
}

void NameList::append(QStringView line)
{
    append(QByteArrayView(AnsiText::encode(line)));
}

void NameList::append(QByteArrayView line)
{
    m_bytes.append(line);
    m_ends.push_back(quint32(m_bytes.size()));
}

void NameList::removeAt(int position)
{
    if (position < 0 || position >= count())
        return;
    const QByteArrayView removed = bytesAt(position);
    const auto length = quint32(removed.size());
    m_bytes.remove(removed.data() - m_bytes.constData(), removed.size());
    m_ends.erase(m_ends.begin() + position);
    std::for_each(m_ends.begin() + position, m_ends.end(), [length](quint32 &end) { end -= length; });
}

void NameList::reserve(int lines, qsizetype bytes)
{
    m_ends.reserve(std::size_t(std::max(lines, 0)));
    m_bytes.reserve(bytes);
}

void NameList::squeeze()
{
    m_bytes.squeeze();
    m_ends.shrink_to_fit();
}

QString NameList::countCaption() const
{
    return u" %1 - Entries "_s.arg(count());
}

qsizetype NameList::memoryUsed() const
{
    return m_bytes.capacity() + qsizetype(m_ends.capacity() * sizeof(m_ends.front()));
}

QByteArrayView NameList::bytesAt(int position) const
{
    if (position < 0 || position >= count())
        return {};
    const quint32 start = position == 0 ? 0 : m_ends[std::size_t(position) - 1];
    return QByteArrayView(m_bytes).sliced(start, m_ends[std::size_t(position)] - start);
}
