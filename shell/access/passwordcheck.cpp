// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/access/passwordcheck.h"

#include "shell/access/passwordmemory.h"
#include "shell/core/settingskeys.h"
#include "storage/ansitext.h"
#include "storage/changeset.h"
#include "storage/log.h"
#include "storage/recordvalue.h"
#include "storage/sealing/recoverycode.h"
#include "storage/sealing/secretbytes.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QtEndian>

#include <sodium.h>

#include <algorithm>
#include <optional>
#include <tuple>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr SettingsFile passwordFile = SettingsKeys::passwordFile;
constexpr int verifierRecord = 1;
constexpr int firstFlagRecord = 2;
constexpr int lastFlagRecord = firstFlagRecord + ProtectedAreas::count - 1;
constexpr int wrongAnswersRecord = 23;
constexpr int recoveryRecord = 24;
constexpr int recordCount = recoveryRecord;
constexpr qsizetype countLength = 2;

QString flagSet()
{
    return u"YES"_s;
}

QString flagNotSet()
{
    return u"NO"_s;
}

QByteArrayView recordOf(QByteArrayView bytes, int number)
{
    const qsizetype start =
        std::min<qsizetype>(qsizetype(number - 1) * passwordFile.recordLength, bytes.size());
    return bytes.sliced(start, std::min<qsizetype>(passwordFile.recordLength, bytes.size() - start));
}

/// The counted text of a record; empty for a record that was never written, nothing for one that is cut
/// short.
std::optional<QByteArray> wholeText(QByteArrayView record)
{
    if (record.isEmpty())
        return QByteArray();
    if (record.size() < countLength)
        return std::nullopt;
    const qsizetype count = qFromLittleEndian<quint16>(record.data());
    if (count > record.size() - countLength)
        return std::nullopt;
    return record.sliced(countLength, count).toByteArray();
}

/// Missing, or emptied: no file of ours is empty once it was read.
bool isGone(const QFileInfo &file)
{
    return (!file.exists() && !file.isSymLink()) || (file.isFile() && file.size() == 0);
}

/// Whether `text` can be a verifier of ours. Costs far beyond what we ever ask for are noise: checking a
/// password against them would take hours.
bool isVerifier(const QByteArray &text)
{
    static const QRegularExpression form(u"^\\$argon2id\\$v=19\\$m=(\\d{1,7}),t=(\\d{1,2}),p=1\\$"_s);
    constexpr std::size_t kibibyte = 1024;
    const QRegularExpressionMatch match = form.match(QString::fromLatin1(text));
    if (!match.hasMatch() || match.captured(1).toUInt() > PasswordCost::mostMemory / kibibyte ||
        match.captured(2).toUInt() > PasswordCost::mostOperations)
        return false;
    if (text.contains('\0') || text.size() >= qsizetype(crypto_pwhash_STRBYTES))
        return false;
    // Answers 0 or 1 for every text that it can read.
    return crypto_pwhash_str_needs_rehash(text.constData(), crypto_pwhash_opslimit_min(),
                                          crypto_pwhash_memlimit_min()) != -1;
}

/// Whether `typed` is what `verifier` was made from; never with an empty one of either.
bool verifies(const QByteArray &verifier, const QString &typed)
{
    if (verifier.isEmpty() || typed.isEmpty())
        return false;
    const SecretBytes secret = SecretBytes::ofText(typed);
    return crypto_pwhash_str_verify(verifier.constData(), secret.data(), quint64(secret.size())) == 0;
}

std::optional<QByteArray> verifierOf(const QString &typed, const PasswordCost &cost)
{
    const SecretBytes secret = SecretBytes::ofText(typed);
    QByteArray verifier(crypto_pwhash_STRBYTES, '\0');
    if (secret.isEmpty())
        return std::nullopt;
    if (crypto_pwhash_str(verifier.data(), secret.data(), quint64(secret.size()), cost.operations,
                          cost.memory) != 0) {
        qCWarning(storageLog) << "Not enough memory to make a password's verifier";
        return std::nullopt;
    }
    verifier.truncate(qsizetype(qstrlen(verifier.constData())));
    return verifier;
}

/// What of a recovery code counts; nothing of one that is none.
QString keyOf(const QString &recoveryCode)
{
    return RecoveryCode::read(recoveryCode).value_or(QString());
}

} // namespace

PasswordCheck::PasswordCheck(const DataFolder &folder, PasswordCost cost, PasswordMemory *memory)
    : m_folder(folder)
    , m_cost(cost)
    , m_memory(memory)
{
    if (sodium_init() < 0)
        qCWarning(storageLog) << "Passwords cannot be checked: no source of random numbers";
}

PasswordCheck::State PasswordCheck::state() const
{
    return read().state;
}

ProtectedAreas PasswordCheck::areas() const
{
    return read().areas;
}

void PasswordCheck::load(ProgramState &state) const
{
    state.protectedAreas = areas();
}

bool PasswordCheck::matches(const QString &password) const
{
    const Content content = read();
    return content.state == State::Set && verifies(content.verifier, password);
}

bool PasswordCheck::hasRecoveryCode() const
{
    return !read().recovery.isEmpty();
}

bool PasswordCheck::matchesRecoveryCode(const QString &code) const
{
    const Content content = read();
    return content.state == State::Set && verifies(content.recovery, code);
}

bool PasswordCheck::setRecoveryCode(const QString &code)
{
    const Content content = read();
    const std::optional<QByteArray> recovery = verifierOf(keyOf(code), m_cost);
    if (content.state != State::Set || !recovery)
        return false;
    ChangeSet change = startChange();
    writeText(change, recoveryRecord, *recovery, content.recovery);
    return commitCode(change);
}

bool PasswordCheck::setPassword(const QString &password, const QString &recoveryCode)
{
    const Content content = read();
    if (content.state == State::Damaged || password.isEmpty())
        return false;

    const std::optional<QByteArray> verifier = verifierOf(password, m_cost);
    const std::optional<QByteArray> recovery =
        recoveryCode.isEmpty() ? content.recovery : verifierOf(keyOf(recoveryCode), m_cost);
    if (!verifier || !recovery)
        return false;

    // With a password every flag is written, so that a file that was cut short anywhere can be told from a
    // whole one.
    ChangeSet change = startChange();
    for (int area = 0; area < ProtectedAreas::count; ++area) {
        if (content.areas.flag(area).isEmpty())
            writeFlag(change, area, flagNotSet());
    }
    writeText(change, verifierRecord, *verifier, content.verifier);
    writeText(change, recoveryRecord, *recovery, content.recovery);
    return recoveryCode.isEmpty() ? commit(change) : commitCode(change);
}

bool PasswordCheck::removePassword()
{
    const Content content = read();
    if (content.state == State::Damaged)
        return false;
    ChangeSet change = startChange();
    for (int area = 0; area < ProtectedAreas::count; ++area)
        writeFlag(change, area, flagNotSet());
    writeText(change, verifierRecord, {}, content.verifier);
    writeText(change, wrongAnswersRecord, {}, content.wrong);
    writeText(change, recoveryRecord, {}, content.recovery);
    if (m_memory)
        m_memory->wrong.reset();
    return commitCode(change);
}

bool PasswordCheck::saveAreas(const ProtectedAreas &areas)
{
    const Content content = read();
    if (content.state == State::Damaged)
        return false;
    ChangeSet change = startChange();
    for (int area = 0; area < ProtectedAreas::count; ++area) {
        if (areas.flag(area) == content.areas.flag(area))
            continue;
        if (areas.isProtected(area) && content.state != State::Set)
            return false;
        writeFlag(change, area, areas.isProtected(area) ? flagSet() : flagNotSet());
    }
    return commit(change);
}

WrongAnswers PasswordCheck::wrongAnswers() const
{
    if (m_memory && m_memory->wrong)
        return *m_memory->wrong;
    return WrongAnswers::parsed(QString::fromLatin1(read().wrong));
}

WrongAnswers PasswordCheck::addWrongAnswer(const QDateTime &time)
{
    WrongAnswers wrong = wrongAnswers();
    wrong.add(time);
    keepWrongAnswers(wrong);
    return wrong;
}

WrongAnswers PasswordCheck::takeWrongAnswers()
{
    const WrongAnswers wrong = wrongAnswers();
    if (wrong.count > 0)
        keepWrongAnswers({});
    return wrong;
}

/// Where the disk refuses, the count holds until the program ends; nobody can be told to any avail.
void PasswordCheck::keepWrongAnswers(const WrongAnswers &wrong)
{
    if (m_memory)
        m_memory->wrong = wrong;
    const Content content = read();
    if (content.state != State::Set || m_folder.isReadOnly())
        return;
    ChangeSet change = startChange();
    writeText(change, wrongAnswersRecord, wrong.text().toLatin1(), content.wrong);
    std::ignore = commit(change);
}

PasswordCheck::Content PasswordCheck::damaged()
{
    Content content;
    content.state = State::Damaged;
    for (int area = 0; area < ProtectedAreas::count; ++area)
        content.areas.setFlag(area, flagSet());
    return content;
}

PasswordCheck::Content PasswordCheck::parsed(QByteArrayView bytes)
{
    const std::optional<QByteArray> verifier = wholeText(recordOf(bytes, verifierRecord));
    if (!verifier || (!verifier->isEmpty() && !isVerifier(*verifier)))
        return damaged();

    Content content;
    content.verifier = *verifier;
    content.state = verifier->isEmpty() ? State::NotSet : State::Set;
    for (int area = 0; area < ProtectedAreas::count; ++area) {
        const std::optional<QByteArray> text = wholeText(recordOf(bytes, firstFlagRecord + area));
        if (!text)
            return damaged();
        const QString flag = AnsiText::decode(*text);
        const QStringView word = AnsiText::trimmedBlanksRight(flag);
        const bool isSet = word == flagSet();
        if (!word.isEmpty() && !isSet && word != flagNotSet())
            return damaged();
        if (isSet && content.state == State::NotSet)
            return damaged();
        content.areas.setFlag(area, flag);
    }
    // A password was always written together with the last flag.
    const bool isWhole = !recordOf(bytes, lastFlagRecord).isEmpty();
    // What came to the file later says nothing of the rest.
    content.wrong = wholeText(recordOf(bytes, wrongAnswersRecord)).value_or(QByteArray());
    content.recovery = wholeText(recordOf(bytes, recoveryRecord)).value_or(QByteArray());
    if (!isVerifier(content.recovery))
        content.recovery.clear();
    return content.state == State::Set && !isWhole ? damaged() : content;
}

PasswordCheck::Content PasswordCheck::read() const
{
    const QFileInfo info(m_folder.filePath(QLatin1StringView(passwordFile.name)));
    if (isGone(info))
        return parsed(m_memory ? m_memory->file : QByteArray());
    QFile file(info.filePath());
    if (!info.isFile() || !file.open(QIODevice::ReadOnly)) {
        qCWarning(storageLog).noquote() << "Cannot read" << info.filePath();
        return damaged();
    }
    const QByteArray bytes = file.read(qint64(recordCount) * passwordFile.recordLength);
    if (file.error() != QFile::NoError)
        return damaged();
    Content content = parsed(bytes);
    if (m_memory && content.state != State::Damaged)
        m_memory->file = bytes;
    return content;
}

ChangeSet PasswordCheck::startChange() const
{
    ChangeSet change(m_folder);
    // A file that vanished comes back as it was, before anything in it changes.
    if (m_memory && isGone(QFileInfo(records().path()))) {
        for (int record = 1; record <= recordCount; ++record) {
            if (const QByteArrayView bytes = recordOf(m_memory->file, record); !bytes.isEmpty())
                change.write(records(), record, bytes);
        }
    }
    return change;
}

bool PasswordCheck::commit(ChangeSet &change) const
{
    const bool isDone = change.commit();
    std::ignore = read(); // remembers what holds now
    return isDone;
}

/// A code that was still to be shown is none any more.
bool PasswordCheck::commitCode(ChangeSet &change) const
{
    const bool isDone = commit(change);
    if (isDone && m_memory)
        SecretBytes::wipe(m_memory->newCode);
    return isDone;
}

RecordFile PasswordCheck::records() const
{
    return RecordFile(m_folder, QLatin1StringView(passwordFile.name), passwordFile.recordLength);
}

void PasswordCheck::writeFlag(ChangeSet &change, int area, const QString &flag) const
{
    change.write(records(), firstFlagRecord + area,
                 *RecordValue::encodeText(flag, passwordFile.recordLength));
}

void PasswordCheck::writeText(ChangeSet &change, int record, const QByteArray &text,
                              const QByteArray &old) const
{
    if (text == old)
        return;
    QByteArray bytes = *RecordValue::encodeText(QString::fromLatin1(text), passwordFile.recordLength);
    // Zeros over what an old verifier leaves behind the new one: nobody shall go on guessing from it.
    const qsizetype oldLength = countLength + old.size();
    if (bytes.size() < oldLength)
        bytes.resize(oldLength, '\0');
    change.write(records(), record, bytes);
}
