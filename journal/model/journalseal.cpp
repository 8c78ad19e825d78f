// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/model/journalseal.h"

#include "journal/model/journalfiles.h"
#include "storage/disk.h"
#include "storage/saving.h"
#include "storage/sealing/recoverycode.h"
#include "storage/sealing/sealedrecords.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <tuple>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

const QByteArray magic = QByteArrayLiteral("QJOURNL");
const QByteArray directionContext = QByteArrayLiteral("Quillery journal 1 walk");
constexpr QByteArrayView beingOpened("open");

bool isMissingOrEmpty(const QString &path)
{
    const QFileInfo file(path);
    return !file.exists() || (file.isFile() && file.size() == 0);
}

bool isSameSeal(const KeySlots::Content &one, const KeySlots::Content &other)
{
    return one.id == other.id && one.cost == other.cost && one.sealedKeys == other.sealedKeys;
}

} // namespace

JournalSeal::JournalSeal(const DataFolder &folder, const Clock &clock, PasswordCost cost)
    : m_folder(folder)
    , m_clock(clock)
    , m_cost(cost)
{}

JournalSeal::~JournalSeal() = default;

bool JournalSeal::isSealed(const DataFolder &folder)
{
    const SystemClock clock;
    return JournalSeal(folder, clock).state() != State::None;
}

QByteArray JournalSeal::beginningOf(int year) const
{
    QFile file(m_folder.filePath(JournalFiles::name(year)));
    return file.open(QIODevice::ReadOnly | QIODevice::Unbuffered) ? file.read(SealedYear::recordsAt)
                                                                  : QByteArray();
}

KeySlots JournalSeal::keys() const
{
    return {m_folder, keyFile, magic};
}

/// The key file counts; without a whole copy there, or where no year is of its seal, the newest that a year
/// has.
JournalSeal::Found JournalSeal::find() const
{
    Found found;
    const KeySlots keys = this->keys();
    found.file = keys.state();
    std::optional<KeySlots::Content> newest;
    const std::optional<KeySlots::Content> ofFile = keys.content();
    bool isOfFile = false;
    for (const int year : JournalFiles::years(m_folder)) {
        const QByteArray bytes = beginningOf(year);
        if (!SealedYear::isSealed(bytes))
            continue;
        found.hasSealedYears = true;
        std::optional<KeySlots::Content> head;
        keys.parse(SealedYear::head(bytes), head);
        isOfFile = isOfFile || (head && ofFile && head->id == ofFile->id);
        if (head && (!newest || head->number >= newest->number))
            newest = head;
    }
    const bool isLost = newest && found.file != KeySlots::State::Newer && (!ofFile || !isOfFile);
    found.content = isLost ? newest : ofFile;
    found.isFileLost = isLost;
    return found;
}

JournalSeal::State JournalSeal::state() const
{
    if (isOpen())
        return State::Open;
    const Found found = find();
    if (found.file == KeySlots::State::Newer)
        return State::Newer;
    if (found.content)
        return State::Locked;
    return found.hasSealedYears ? State::NoKey : State::None;
}

bool JournalSeal::isLocked() const
{
    const State state = this->state();
    return state == State::Locked || state == State::Newer;
}

bool JournalSeal::isKeyFileLost() const
{
    return find().isFileLost;
}

KeyDerivation JournalSeal::newKey(const QString &password) const
{
    const std::optional<KeySlots::Content> content = find().content;
    return KeyDerivation::fresh(SecretBytes::ofText(password), content ? content->cost : m_cost);
}

KeyDerivation JournalSeal::newCodeKey(const QString &code) const
{
    return newKey(RecoveryCode::read(code).value_or(QString()));
}

std::optional<JournalOpening> JournalSeal::opening(const QString &typed, KeySlots::Slot slot) const
{
    const std::optional<QString> text =
        slot == KeySlots::Recovery ? RecoveryCode::read(typed) : std::optional(typed);
    const std::optional<KeySlots::Content> content = find().content;
    if (!text || text->isEmpty() || !content)
        return std::nullopt;
    std::optional<KeyDerivation> derivation = keys().opening(*content, slot, SecretBytes::ofText(*text));
    if (!derivation)
        return std::nullopt;
    return JournalOpening(keys(), *content, slot, std::move(*derivation));
}

bool JournalSeal::create(const KeyDerivation &password, const KeyDerivation &code)
{
    if (state() != State::None || !password.isDone() || !code.isDone() || !setKeyFileAside())
        return false;
    SecretBytes key;
    QByteArray id;
    const QByteArray bothCopies = keys().made(password, code, key, id);
    std::optional<KeySlots::Content> content;
    keys().parse(bothCopies, content);
    if (!content || !Saving::replaceFile(m_folder, keyFile, bothCopies))
        return false;
    m_key = std::move(key);
    m_content = *content;
    m_isBeingOpened = false;
    emit changed();
    return true;
}

bool JournalSeal::judge(const JournalOpening &opening)
{
    // Opens all the same where nothing can be written. The file of another journal is none of our business.
    if (find().isFileLost)
        return opening.isRight();
    if (opening.isRight())
        std::ignore = keys().forgetWrongAnswers();
    else if (opening.isJudged())
        std::ignore = keys().countWrongAnswer(m_clock.now());
    return opening.isRight();
}

bool JournalSeal::unlock(JournalOpening opening)
{
    if (!judge(opening))
        return false;
    m_key = std::move(opening.m_key);
    m_content = opening.m_content;
    if (find().isFileLost)
        restoreKeyFile();
    readDirection();
    emit changed();
    return true;
}

bool JournalSeal::isRight(const JournalOpening &opening)
{
    return judge(opening);
}

KeySlots::WrongAnswers JournalSeal::wrongAnswers() const
{
    const std::optional<KeySlots::Content> content = keys().content();
    return content ? content->wrongAnswers : KeySlots::WrongAnswers();
}

void JournalSeal::lock()
{
    if (!isOpen())
        return;
    forgetStored();
    emit locking();
    forgetKey();
}

void JournalSeal::forgetStored()
{
    if (m_stored)
        m_stored->wipe();
    m_stored.reset();
}

void JournalSeal::forgetKey()
{
    forgetStored();
    m_key.clear();
    m_content = {};
    m_isBeingOpened = false;
    emit changed();
}

/// A file of that name that is not the key of this journal is kept under another one.
bool JournalSeal::setKeyFileAside()
{
    const QString path = m_folder.filePath(keyFile);
    if (m_folder.isReadOnly())
        return false;
    if (isMissingOrEmpty(path))
        return true;
    QString aside = u"DJourKey set aside.Fil"_s;
    for (int number = 2; m_folder.exists(aside); ++number)
        aside = u"DJourKey set aside %1.Fil"_s.arg(number);
    return Disk::renameOver(path, m_folder.path() + u'/' + aside);
}

void JournalSeal::restoreKeyFile()
{
    if (setKeyFileAside())
        std::ignore =
            Saving::replaceFile(m_folder, keyFile, keys().bothCopies(m_content)); // else the next time
}

bool JournalSeal::changeSlot(KeySlots::Slot slot, const KeyDerivation &derived)
{
    if (!isOpen() || !keys().setSlot(slot, derived, m_key))
        return false;
    m_content = keys().content().value_or(m_content);
    return true;
}

bool JournalSeal::changePassword(const KeyDerivation &password)
{
    return changeSlot(KeySlots::Password, password);
}

bool JournalSeal::changeCode(const KeyDerivation &code)
{
    return changeSlot(KeySlots::Recovery, code);
}

/// Which way the walk leads is sealed: nobody can have the journal opened who has not its key.
void JournalSeal::readDirection()
{
    constexpr qsizetype length = SealedRecords::nonceLength + beingOpened.size() + SealedRecords::tagLength;
    SecretBytes said(beingOpened.size());
    m_isBeingOpened = SealedRecords::open(keys().openRecord().left(length), directionContext, m_key, said) &&
                      said.view() == beingOpened;
}

bool JournalSeal::setBeingOpened(bool isBeingOpened)
{
    if (!isOpen())
        return false;
    const QByteArray record =
        isBeingOpened ? SealedRecords::seal(beingOpened, directionContext, m_key) : QByteArray();
    if (!keys().setOpenRecord(record))
        return false;
    m_isBeingOpened = isBeingOpened;
    return true;
}

bool JournalSeal::removeSeal()
{
    const QList<int> years = JournalFiles::years(m_folder);
    const bool isNeeded = std::ranges::any_of(years, [this](int year) {
        const QByteArray bytes = beginningOf(year);
        return SealedYear::isSealed(bytes) && !isOfAnotherSeal(bytes);
    });
    if (!isOpen() || isNeeded || m_folder.isReadOnly() || !Disk::remove(m_folder.filePath(keyFile)))
        return false;
    Disk::flushNames(m_folder.path());
    forgetKey();
    return true;
}

QByteArray JournalSeal::head() const
{
    return keys().encoded(m_content);
}

bool JournalSeal::isHeadInForce(QByteArrayView bytes) const
{
    std::optional<KeySlots::Content> head;
    keys().parse(SealedYear::head(bytes), head);
    return bytes.startsWith(SealedYear::firstLine) && head && isSameSeal(*head, m_content);
}

bool JournalSeal::isOfAnotherSeal(QByteArrayView bytes) const
{
    std::optional<KeySlots::Content> head;
    keys().parse(SealedYear::head(bytes), head);
    return head && head->id != m_content.id;
}

std::optional<QByteArray> JournalSeal::toStore(int year, const QByteArray &plain, const QByteArray &former)
{
    const bool wasSealed = SealedYear::isSealed(former);
    if (!isOpen())
        return !wasSealed && !isLocked() ? std::optional(plain) : std::nullopt;
    if (m_isBeingOpened && !wasSealed)
        return plain;
    // What was given last and is there still, byte for byte, need not be opened again.
    if (!m_stored || m_stored->number() != year || m_stored->bytes() != former)
        m_stored.emplace(year, wasSealed ? former : QByteArray(), m_key);
    m_stored->change(plain, head());
    return m_stored->bytes();
}
