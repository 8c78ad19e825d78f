// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/sealing/keyslots.h"

#include "storage/sealing/sealedrecords.h"

#include <QtEndian>

#include <sodium.h>

#include <algorithm>
#include <limits>
#include <utility>

namespace {

constexpr char formVersion = 1;
constexpr qsizetype checksumLength = 32;

// Where things stand in a copy.
constexpr qsizetype versionAt = KeySlots::magicLength;
constexpr qsizetype numberAt = 8;
constexpr qsizetype idAt = 12;
constexpr qsizetype operationsAt = 28;
constexpr qsizetype memoryAt = 32;
constexpr qsizetype slotsAt = 40;
constexpr qsizetype wrongAt = 304;
constexpr qsizetype firstWrongAt = 308;
constexpr qsizetype lastWrongAt = 316;
constexpr qsizetype checksumAt = 480;

constexpr qsizetype slotLength = KeyDerivation::saltLength + SealedRecords::nonceLength +
                                 SealedRecords::keyLength + SealedRecords::tagLength;
static_assert(slotLength == 88 && slotsAt + 3 * slotLength == wrongAt);
static_assert(checksumAt + checksumLength == KeySlots::recordLength);

constexpr int openRecordNumber = 3;
constexpr quint32 lastNumber = std::numeric_limits<quint32>::max() - 1;

QByteArray checksum(QByteArrayView bytes)
{
    QByteArray hash(checksumLength, '\0');
    crypto_generichash(reinterpret_cast<unsigned char *>(hash.data()), checksumLength,
                       reinterpret_cast<const unsigned char *>(bytes.data()), std::size_t(bytes.size()),
                       nullptr, 0);
    return hash;
}

QByteArrayView recordOf(QByteArrayView bytes, int number)
{
    const qsizetype start = std::min<qsizetype>((number - 1) * KeySlots::recordLength, bytes.size());
    return bytes.sliced(start, std::min<qsizetype>(KeySlots::recordLength, bytes.size() - start));
}

QDateTime timeOf(qint64 seconds)
{
    return seconds == 0 ? QDateTime() : QDateTime::fromSecsSinceEpoch(seconds).toUTC();
}

qint64 secondsOf(const QDateTime &time)
{
    return time.isValid() ? time.toSecsSinceEpoch() : 0;
}

bool isWhole(QByteArrayView record)
{
    return record.size() == KeySlots::recordLength &&
           record.sliced(checksumAt) == checksum(record.first(checksumAt));
}

bool isUsed(QByteArrayView slot)
{
    return !std::ranges::all_of(slot, [](char byte) { return byte == 0; });
}

} // namespace

KeySlots::KeySlots(const DataFolder &folder, const QString &name, QByteArray magic)
    : m_file(folder, name, recordLength)
    , m_magic(std::move(magic))
{
    Q_ASSERT(m_magic.size() == magicLength);
    if (sodium_init() < 0)
        qFatal("No source of random numbers");
}

QByteArray KeySlots::read() const
{
    return m_file.read(1, 2);
}

KeySlots::State KeySlots::state() const
{
    std::optional<Content> content;
    return parse(read(), content);
}

std::optional<KeySlots::Content> KeySlots::content() const
{
    std::optional<Content> content;
    parse(read(), content);
    return content;
}

KeySlots::State KeySlots::parse(QByteArrayView bytes, std::optional<Content> &content) const
{
    if (bytes.isEmpty())
        return State::Missing;
    const Copies found = copies(bytes);
    content = found.whole[std::size_t(found.current)];
    if (content)
        return found.whole[0] && found.whole[1] ? State::Whole : State::OneCopyDamaged;
    if (!recordOf(bytes, 1).startsWith(m_magic) && !recordOf(bytes, 2).startsWith(m_magic))
        return State::Foreign;
    return found.isNewer ? State::Newer : State::Damaged;
}

KeySlots::Copies KeySlots::copies(QByteArrayView bytes) const
{
    const QByteArrayView first = recordOf(bytes, 1);
    const QByteArrayView second = recordOf(bytes, 2);
    Copies copies;
    // One that was interrupted half-way counts as later, too; where none is whole, both must say so.
    copies.isNewer = (isLater(first) && isWhole(first)) || (isLater(second) && isWhole(second)) ||
                     (isLater(first) && isLater(second));
    if (copies.isNewer)
        return copies;
    copies.whole = {parsedCopy(first), parsedCopy(second)};
    if (copies.whole[1] && (!copies.whole[0] || copies.whole[1]->number > copies.whole[0]->number))
        copies.current = 1;
    return copies;
}

bool KeySlots::isLater(QByteArrayView record) const
{
    return record.startsWith(m_magic) && record.size() > versionAt &&
           uchar(record[versionAt]) > uchar(formVersion);
}

std::optional<KeySlots::Content> KeySlots::parsedCopy(QByteArrayView record) const
{
    if (!isWhole(record) || !record.startsWith(m_magic) || record[versionAt] != formVersion)
        return std::nullopt;
    const auto whole = [&record]<typename T>(qsizetype at, T) {
        return qFromLittleEndian<T>(record.data() + at);
    };
    Content content;
    content.number = whole(numberAt, quint32());
    content.id = record.sliced(idAt, idLength).toByteArray();
    const auto memory = whole(memoryAt, quint64());
    // Before it becomes a length of this machine, which may be shorter.
    if (memory > PasswordCost::mostMemory || content.number > lastNumber)
        return std::nullopt;
    content.cost = {whole(operationsAt, quint32()), std::size_t(memory)};
    if (!content.cost.isBearable())
        return std::nullopt;
    for (std::size_t slot = 0; slot < content.sealedKeys.size(); ++slot)
        content.sealedKeys[slot] =
            record.sliced(slotsAt + qsizetype(slot) * slotLength, slotLength).toByteArray();
    content.wrongAnswers = {whole(wrongAt, quint32()), timeOf(whole(firstWrongAt, qint64())),
                            timeOf(whole(lastWrongAt, qint64()))};
    return content;
}

QByteArray KeySlots::encoded(const Content &content) const
{
    QByteArray record(recordLength, '\0');
    const auto put = [&record](qsizetype at, QByteArrayView bytes) {
        std::ranges::copy(bytes, record.begin() + at);
    };
    const auto putWhole = [&record]<typename T>(qsizetype at, T value) {
        qToLittleEndian<T>(value, record.data() + at);
    };
    put(0, m_magic);
    record[versionAt] = formVersion;
    putWhole(numberAt, content.number);
    put(idAt, content.id);
    putWhole(operationsAt, quint32(content.cost.operations));
    putWhole(memoryAt, quint64(content.cost.memory));
    for (std::size_t slot = 0; slot < content.sealedKeys.size(); ++slot)
        put(slotsAt + qsizetype(slot) * slotLength, content.sealedKeys[slot]);
    putWhole(wrongAt, content.wrongAnswers.count);
    putWhole(firstWrongAt, secondsOf(content.wrongAnswers.first));
    putWhole(lastWrongAt, secondsOf(content.wrongAnswers.last));
    put(checksumAt, checksum(QByteArrayView(record).first(checksumAt)));
    return record;
}

QByteArray KeySlots::context(const Content &content, Slot slot) const
{
    const QByteArray record = encoded(content);
    return record.first(numberAt) + content.id + record.sliced(operationsAt, slotsAt - operationsAt) +
           char(slot);
}

void KeySlots::seal(Content &content, Slot slot, const KeyDerivation &derived, const SecretBytes &key) const
{
    content.sealedKeys[std::size_t(slot - 1)] =
        derived.salt() + SealedRecords::seal(key.view(), context(content, slot), derived.key());
}

QByteArray KeySlots::made(const KeyDerivation &password, const KeyDerivation &recovery, SecretBytes &key,
                          QByteArray &id) const
{
    Q_ASSERT(password.isDone() && recovery.isDone() && password.cost() == recovery.cost());
    key = SecretBytes::random(SealedRecords::keyLength);
    id = QByteArray(idLength, '\0');
    randombytes_buf(id.data(), std::size_t(id.size()));
    Content content;
    content.number = 1;
    content.id = id;
    content.cost = password.cost();
    content.sealedKeys.fill(QByteArray(slotLength, '\0'));
    seal(content, Password, password, key);
    seal(content, Recovery, recovery, key);
    return bothCopies(content);
}

QByteArray KeySlots::bothCopies(Content content) const
{
    const QByteArray first = encoded(content);
    content.number += content.number < lastNumber ? 1 : 0;
    return first + encoded(content);
}

std::optional<KeyDerivation> KeySlots::opening(Slot slot, SecretBytes typed) const
{
    const std::optional<Content> content = this->content();
    return content ? opening(*content, slot, std::move(typed)) : std::nullopt;
}

std::optional<KeyDerivation> KeySlots::opening(const Content &content, Slot slot, SecretBytes typed) const
{
    const QByteArray &sealed = content.sealedKeys[std::size_t(slot - 1)];
    if (!isUsed(sealed))
        return std::nullopt;
    return KeyDerivation(std::move(typed), sealed.first(KeyDerivation::saltLength), content.cost);
}

std::optional<SecretBytes> KeySlots::open(Slot slot, const KeyDerivation &derived) const
{
    const std::optional<Content> content = this->content();
    return content ? open(*content, slot, derived) : std::nullopt;
}

std::optional<SecretBytes> KeySlots::open(const Content &content, Slot slot,
                                          const KeyDerivation &derived) const
{
    if (!derived.isDone())
        return std::nullopt;
    const QByteArrayView sealed =
        QByteArrayView(content.sealedKeys[std::size_t(slot - 1)]).sliced(KeyDerivation::saltLength);
    SecretBytes key(SealedRecords::keyLength);
    if (!SealedRecords::open(sealed, context(content, slot), derived.key(), key))
        return std::nullopt;
    return key;
}

bool KeySlots::write(const Content &content)
{
    const Copies found = copies(read());
    const std::optional<Content> &current = found.whole[std::size_t(found.current)];
    if (!current || current->number >= lastNumber)
        return false;
    Content next = content;
    next.number = current->number + 1;
    return m_file.write(found.current == 0 ? 2 : 1, encoded(next));
}

bool KeySlots::setSlot(Slot slot, const KeyDerivation &derived, const SecretBytes &key)
{
    const QByteArray before = read();
    std::optional<Content> content = copies(before).whole[std::size_t(copies(before).current)];
    if (!content || !derived.isDone() || derived.cost() != content->cost)
        return false;
    seal(*content, slot, derived, key);
    if (!write(*content))
        return false;
    if (write(*content))
        return true;
    // The one copy says the new, the other the old: back to the old one, where the disk takes that.
    const int written = copies(before).current == 0 ? 2 : 1;
    QByteArray former = recordOf(before, written).toByteArray();
    former.resize(recordLength, '\0'); // over all of the new one, where there was none
    return !m_file.write(written, former);
}

bool KeySlots::countWrongAnswer(const QDateTime &now)
{
    std::optional<Content> content = this->content();
    if (!content)
        return false;
    WrongAnswers &wrong = content->wrongAnswers;
    wrong.count += wrong.count < std::numeric_limits<quint32>::max() ? 1 : 0;
    if (!wrong.first.isValid())
        wrong.first = now.toUTC();
    wrong.last = now.toUTC();
    return write(*content);
}

bool KeySlots::forgetWrongAnswers()
{
    const Copies found = copies(read());
    std::optional<Content> content = found.whole[std::size_t(found.current)];
    if (!content)
        return false;
    const std::optional<Content> &other = found.whole[std::size_t(1 - found.current)];
    if (content->wrongAnswers.count == 0 && (!other || other->sealedKeys == content->sealedKeys))
        return true;
    content->wrongAnswers = {};
    return write(*content);
}

bool KeySlots::setOpenRecord(QByteArrayView bytes)
{
    if (!content())
        return false;
    QByteArray record = bytes.toByteArray();
    if (record.isEmpty() && m_file.read(openRecordNumber).isEmpty())
        return true;
    record.resize(recordLength, '\0');
    return m_file.write(openRecordNumber, record);
}

QByteArray KeySlots::openRecord() const
{
    return m_file.read(openRecordNumber);
}
