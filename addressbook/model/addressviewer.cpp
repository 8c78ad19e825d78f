// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/model/addressviewer.h"

#include "addressbook/model/indexline.h"
#include "storage/ansitext.h"
#include "storage/bytecase.h"
#include "storage/openrecordfile.h"
#include "storage/recordvalue.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <numeric>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QByteArrayView separator(", ");
constexpr std::array addressParts{Address1, Address2, City, State, PostalCode};
static_assert(addressParts.size() * (addressTextWidth + separator.size()) < 256);
static_assert(addressPictureWidth < 256);
static_assert(IndexLine::maximumLength < 256);

/// A text field up to its first zero byte (never written) and without its trailing blanks, most of which go
/// eight at a time.
QByteArrayView trimmedField(QByteArrayView field)
{
    constexpr quint64 eightBlanks = 0x2020202020202020;
    const char *const begin = field.data();
    const void *const zero = field.isEmpty() ? nullptr : std::memchr(begin, 0, std::size_t(field.size()));
    const char *end = zero ? static_cast<const char *>(zero) : begin + field.size();
    for (quint64 last = 0; end - begin >= qsizetype(sizeof last); end -= sizeof last) {
        std::memcpy(&last, end - sizeof last, sizeof last);
        if (last != eightBlanks)
            break;
    }
    while (end > begin && end[-1] == ' ')
        --end;
    return {begin, end};
}

QByteArrayView bytesFrom(QByteArrayView record, qsizetype start, qsizetype width)
{
    start = std::min(start, record.size());
    return trimmedField(record.sliced(start, std::min(width, record.size() - start)));
}

QByteArrayView fieldBytes(QByteArrayView record, AddressField field)
{
    return bytesFrom(record, field * addressTextWidth, addressTextWidth);
}

QByteArrayView pictureBytes(QByteArrayView record)
{
    return bytesFrom(record, AddressFieldCount * addressTextWidth, addressPictureWidth);
}

AddressField fieldOf(Information information)
{
    switch (information) {
    case Information::State:
        return State;
    case Information::HomePhone:
        return HomePhone;
    case Information::MobilePhone:
        return MobilePhone;
    case Information::FaxNumber:
        return Fax;
    case Information::EmailAddress:
        return Email;
    case Information::BirthDate:
        return BirthDate;
    case Information::AnniversaryDate:
        return AnniversaryDate;
    case Information::Address:
    case Information::Pictures:
        break;
    }
    return Address1;
}

bool isEntryRecord(int record)
{
    return record >= AddressBook::firstRecord && record <= AddressBook::overflowRecord;
}

} // namespace

AddressViewer::AddressViewer(const DataFolder &folder, DateStyle style)
    : m_book(folder)
    , m_style(style)
{}

void AddressViewer::load(Information information, const DisplayRange &range, int mostRows)
{
    m_information = information;
    m_range = range;
    m_bytes.clear();
    m_rows.clear();
    readNames(mostRows);
    m_isBookEmpty = m_rows.empty();
    readInformation();
    m_bytes.squeeze();
    refresh();
}

void AddressViewer::reload()
{
    std::vector<RemovedLine> removed;
    for (const Row &row : m_rows) {
        if (row.isRemoved)
            removed.emplace_back(row.record, nameBytes(row).toByteArray());
    }
    load(m_information, m_range);
    if (removed.empty())
        return;
    for (const RemovedLine &line : removed)
        removeAgain(line);
    refresh();
}

/// The line that was removed, or the one of its record where that was renamed.
void AddressViewer::removeAgain(const RemovedLine &line)
{
    Row *renamed = nullptr;
    for (Row &row : m_rows) {
        if (row.record != line.first || row.isRemoved)
            continue;
        if (nameBytes(row) == line.second) {
            row.isRemoved = true;
            return;
        }
        if (!renamed && line.first > 0)
            renamed = &row;
    }
    if (renamed)
        renamed->isRemoved = true;
}

bool AddressViewer::isLongerThan(int mostRows) const
{
    return m_book.index().recordCount() > mostRows;
}

void AddressViewer::readNames(int mostRows)
{
    RecordFile lines = m_book.index();
    lines.create();
    const auto expected = std::size_t(std::min(lines.recordCount(), mostRows));
    m_rows.reserve(expected);
    m_bytes.reserve(qsizetype(expected) * 64);
    lines.forEach(1, [this, mostRows](int own, QByteArrayView bytes) {
        const QByteArrayView line = RecordValue::textBytes(bytes);
        if (line.isEmpty() || IndexLine::isDeleted(line))
            return true;
        const QByteArrayView name = IndexLine::name(line);
        Row row;
        row.nameAt = quint32(m_bytes.size());
        row.nameLength = quint8(name.size());
        row.record = IndexLine::record(line);
        row.line = own;
        m_bytes.append(name);
        m_rows.push_back(row);
        return int(m_rows.size()) < mostRows;
    });
}

/// Indexes of the rows in the order of their records: nearly always the order they are in.
std::vector<quint32> AddressViewer::rowsByRecord() const
{
    std::vector<quint32> rows(m_rows.size());
    std::iota(rows.begin(), rows.end(), 0U);
    const auto recordOf = [this](quint32 row) { return m_rows[row].record; };
    if (!std::ranges::is_sorted(rows, {}, recordOf))
        std::ranges::stable_sort(rows, {}, recordOf);
    std::erase_if(rows, [&](quint32 row) { return !isEntryRecord(recordOf(row)); });
    return rows;
}

void AddressViewer::readInformation()
{
    const std::vector<quint32> rows = rowsByRecord();
    const bool isNarrowed = m_range.kind != DisplayRange::All;
    std::size_t next = 0;
    RecordFile entries = m_book.entries();
    if (!m_isBookEmpty)
        entries.create();
    entries.forEach(AddressBook::firstRecord, [&](int record, QByteArrayView bytes) {
        for (; next < rows.size() && m_rows[rows[next]].record <= record; ++next) {
            Row &row = m_rows[rows[next]];
            row.isInRange = !isNarrowed || isInRange(bytes);
            if (row.isInRange)
                appendInformation(bytes, row);
        }
        return next < rows.size();
    });
    if (isNarrowed)
        std::erase_if(m_rows, [](const Row &row) { return !row.isInRange; });
}

void AddressViewer::appendInformation(QByteArrayView record, Row &row)
{
    row.informationAt = quint32(m_bytes.size());
    if (m_information == Information::Address) {
        std::array<char, 256> joined;
        char *end = joined.data();
        for (const AddressField field : addressParts) {
            const QByteArrayView part = fieldBytes(record, field);
            if (part.isEmpty())
                continue;
            if (end != joined.data())
                end = std::ranges::copy(separator, end).out;
            end = std::ranges::copy(part, end).out;
        }
        m_bytes.append(joined.data(), end - joined.data());
    } else {
        m_bytes.append(m_information == Information::Pictures ? pictureBytes(record)
                                                              : fieldBytes(record, fieldOf(m_information)));
    }
    row.informationLength = quint8(m_bytes.size() - row.informationAt);
}

bool AddressViewer::isInRange(QByteArrayView record) const
{
    const AddressField field = m_range.kind == DisplayRange::BirthMonth ? BirthDate : AnniversaryDate;
    return DayOfYear::of(fieldBytes(record, field), m_style).month == m_range.month;
}

QString AddressViewer::name(int row) const
{
    return AnsiText::decode(nameBytes(shownRow(row)));
}

QString AddressViewer::information(int row) const
{
    return AnsiText::decode(informationBytes(shownRow(row)));
}

int AddressViewer::record(int row) const
{
    return shownRow(row).record;
}

int AddressViewer::line(int row) const
{
    return shownRow(row).line;
}

int AddressViewer::rowOf(QStringView name, int record) const
{
    const QByteArray bytes = AnsiText::encode(name);
    int first = -1;
    for (int row = 0; row < count(); ++row) {
        if (this->record(row) != record)
            continue;
        if (nameBytes(shownRow(row)) == bytes)
            return row;
        if (first < 0 && record > 0)
            first = row;
    }
    return first;
}

int AddressViewer::nameCount() const
{
    return int(std::ranges::count(m_rows, false, &Row::isRemoved));
}

void AddressViewer::search(const QString &text)
{
    m_searchText = text.trimmed();
    refresh();
}

void AddressViewer::removeRow(int row)
{
    m_rows[m_shown[std::size_t(row)]].isRemoved = true;
    m_shown.erase(m_shown.begin() + row);
}

bool AddressViewer::bringBack(QStringView name, int record)
{
    const QByteArray bytes = AnsiText::encode(name);
    const auto removed = std::ranges::find_if(m_rows, [&](const Row &row) {
        return row.isRemoved && row.record == record && nameBytes(row) == bytes;
    });
    if (removed == m_rows.end())
        return false;
    removed->isRemoved = false;
    refresh();
    return true;
}

void AddressViewer::sort(std::optional<Order> order)
{
    m_order = order;
    refresh();
}

void AddressViewer::refresh()
{
    m_shown.clear();
    const std::optional<QByteArray> folded = ByteCase::folded(m_searchText);
    for (std::size_t row = 0; folded && row < m_rows.size(); ++row) {
        if (isShown(m_rows[row], *folded))
            m_shown.push_back(quint32(row));
    }
    // The path of a picture is nothing that anyone sees.
    const bool isUnseen =
        m_information == Information::Pictures && m_order && m_order->column != Column::Name;
    if (m_order && !isUnseen)
        sortShown();
}

bool AddressViewer::isShown(const Row &row, QByteArrayView foldedText) const
{
    if (row.isRemoved)
        return false;
    // The path of a picture is nothing that anyone sees.
    return ByteCase::contains(nameBytes(row), foldedText) ||
           (m_information != Information::Pictures && ByteCase::contains(informationBytes(row), foldedText));
}

bool AddressViewer::hasDates() const
{
    return m_information == Information::BirthDate || m_information == Information::AnniversaryDate;
}

void AddressViewer::sortShown()
{
    const bool isByName = m_order->column == Column::Name;
    const auto cell = [this, isByName](quint32 row) {
        return isByName ? nameBytes(m_rows[row]) : informationBytes(m_rows[row]);
    };
    const auto firstEmpty = std::stable_partition(m_shown.begin(), m_shown.end(),
                                                  [&](quint32 row) { return !cell(row).isEmpty(); });
    const auto sortBy = [&](auto isLess) {
        const bool isDescending = m_order->isDescending;
        std::stable_sort(m_shown.begin(), firstEmpty, [&](quint32 one, quint32 other) {
            return isDescending ? isLess(other, one) : isLess(one, other);
        });
    };
    if (isByName || !hasDates()) {
        sortBy([&](quint32 one, quint32 other) { return ByteCase::compare(cell(one), cell(other)) < 0; });
        return;
    }
    std::vector<int> days(m_rows.size());
    for (const quint32 row : m_shown) {
        const DayOfYear day = DayOfYear::of(cell(row), m_style);
        days[row] = day.month * 100 + day.day;
    }
    sortBy([&](quint32 one, quint32 other) { return days[one] < days[other]; });
}

void AddressViewer::forEachShown(const std::function<bool(int row, const AddressEntry &entry)> &visit) const
{
    const RecordFile entries = m_book.entries();
    // Opening for many reads makes a missing file; looking must not.
    std::optional<OpenRecordFile> open;
    if (entries.recordCount() > 0)
        open.emplace(entries);
    for (int row = 0; row < count(); ++row) {
        const int number = record(row);
        const bool isRead = open && isEntryRecord(number);
        if (!visit(row, isRead ? addressLayout.decode(open->read(number)) : AddressEntry()))
            return;
    }
}

qsizetype AddressViewer::memoryUsed() const
{
    return m_bytes.capacity() + qsizetype(m_rows.capacity() * sizeof(Row)) +
           qsizetype(m_shown.capacity() * sizeof(m_shown.front()));
}

QByteArrayView AddressViewer::nameBytes(const Row &row) const
{
    return QByteArrayView(m_bytes).sliced(row.nameAt, row.nameLength);
}

QByteArrayView AddressViewer::informationBytes(const Row &row) const
{
    return QByteArrayView(m_bytes).sliced(row.informationAt, row.informationLength);
}
