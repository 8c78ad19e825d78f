// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/model/addresssearch.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Read in one step: about two milliseconds.
constexpr int recordsPerStep = 1000;

// The lines of a text: the name, the thirteen fields but for the names, the digits of the numbers.
constexpr std::array searchedFields{BirthDate, Address1,    Address2, City,  State,          PostalCode,
                                    HomePhone, MobilePhone, Fax,      Email, AnniversaryDate};
constexpr std::array numberFields{HomePhone, MobilePhone, Fax};

QByteArrayView fieldOf(QByteArrayView record, AddressField field)
{
    const qsizetype at = std::min(field * addressTextWidth, record.size());
    const QByteArrayView bytes = record.sliced(at, std::min(addressTextWidth, record.size() - at));
    const qsizetype zero = bytes.indexOf('\0');
    return (zero < 0 ? bytes : bytes.first(zero)).trimmed();
}

/// The field that a line of a text comes from; nothing for the name.
std::optional<AddressField> fieldOfLine(int line)
{
    auto at = std::size_t(line);
    if (at == 0)
        return {};
    if (--at < searchedFields.size())
        return searchedFields[at];
    at -= searchedFields.size();
    return at < numberFields.size() ? std::optional(numberFields[at]) : std::nullopt;
}

QString addressOf(const AddressEntry &entry)
{
    QStringList parts;
    for (const AddressField field : {Address1, Address2, City, State, PostalCode}) {
        if (const QString part = entry[field].trimmed(); !part.isEmpty())
            parts << part;
    }
    return parts.join(u", "_s);
}

/// What tells this person from others of the name.
QString description(const AddressEntry &entry)
{
    QString text = addressOf(entry);
    for (const AddressField field : {HomePhone, MobilePhone, Email}) {
        if (text.isEmpty())
            text = entry[field].trimmed();
    }
    return text;
}

QString contextOf(const AddressEntry &entry, AddressField field)
{
    switch (field) {
    case Address1:
    case Address2:
    case City:
    case State:
    case PostalCode:
        return addressOf(entry);
    case Email:
        return entry[field].trimmed();
    default:
        return addressLabel(field) + u' ' + entry[field].trimmed();
    }
}

SearchHit hitOf(int record, const AddressEntry &entry, int line)
{
    const auto field = fieldOfLine(line);
    return {entry.fullName(), field ? contextOf(entry, *field) : description(entry), {.record = record}};
}

/// The digits of a text that is nothing but a number with separators: "555-0142", "(0117) 55"; empty for any
/// other and for one without separators.
QString digitsOf(QStringView text)
{
    QString digits;
    for (const QChar character : text) {
        if (character >= u'0' && character <= u'9')
            digits += character;
        else if (!u" -./()+"_s.contains(character))
            return {};
    }
    return digits.size() == text.size() ? QString() : digits;
}

} // namespace

AddressSearch::AddressSearch(const DataFolder &folder)
    : m_folder(folder)
    , m_files(folder)
{}

bool AddressSearch::prepare()
{
    if (m_next == 0) {
        FileStamp now = FileStamp::of(m_folder, AddressBook::fileNames());
        if (m_isAny && now == m_seen)
            return false;
        m_seen = std::move(now);
        m_next = AddressBook::firstRecord;
    }
    const int last = std::min(m_next + recordsPerStep - 1, AddressBook::overflowRecord);
    const bool isMore = m_files.visitLiveRecords(
        m_next, last, [this](int record, QByteArrayView bytes) { add(record, bytes); });
    m_next = last + 1;
    if (isMore && m_next <= AddressBook::overflowRecord)
        return true;
    m_next = 0;
    if (m_isAny)
        m_book = std::exchange(m_reading, {});
    m_isAny = true;
    m_book.texts.squeeze();
    m_book.records.shrink_to_fit();
    return true;
}

void AddressSearch::add(int record, QByteArrayView bytes)
{
    Book &book = m_isAny ? m_reading : m_book;
    TextIndex &texts = book.texts;
    book.records.push_back(record);
    texts.beginText();
    std::array<char, std::size_t(2 * addressTextWidth + 1)> name;
    char *end = std::ranges::copy(fieldOf(bytes, FirstName), name.data()).out;
    *end++ = ' ';
    end = std::ranges::copy(fieldOf(bytes, LastName), end).out;
    texts.addLine({name.data(), end});
    for (const AddressField field : searchedFields)
        texts.addLine(fieldOf(bytes, field));
    for (const AddressField field : numberFields)
        texts.addDigits(fieldOf(bytes, field));
}

QList<SearchHit> AddressSearch::matches(QStringView text, int most) const
{
    struct Found {
        int record;
        int line;
    };
    std::array<std::vector<Found>, TextIndex::rankCount> found;
    const auto look = [&](QStringView sought) {
        m_book.texts.find(TextIndex::Words(sought), [&](const TextIndex::Hit &hit) {
            std::vector<Found> &like = found[std::size_t(hit.rank)];
            if (int(like.size()) < most)
                like.push_back({m_book.records[std::size_t(hit.text)], hit.line});
            return int(found.front().size()) < most;
        });
    };
    look(text);
    if (const QString digits = digitsOf(text.trimmed()); digits.size() > 2)
        look(digits);

    QList<SearchHit> hits;
    if (m_files.entries().recordCount() == 0) // a reader would make the file
        return hits;
    AddressBook::Reader entries(m_files);
    std::vector<int> taken;
    for (const std::vector<Found> &like : found) {
        for (const auto &[record, line] : like) {
            if (int(hits.size()) == most)
                return hits;
            if (std::ranges::find(taken, record) != taken.end())
                continue;
            taken.push_back(record);
            const AddressEntry entry = entries.read(record);
            if (!entry.fullName().isEmpty())
                hits.append(hitOf(record, entry, line));
        }
    }
    return hits;
}

qsizetype AddressSearch::memoryUsed() const
{
    return m_book.texts.memoryUsed() + qsizetype(m_book.records.capacity() * sizeof(int));
}
