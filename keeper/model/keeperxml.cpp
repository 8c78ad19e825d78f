// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/model/keeperxml.h"

#include "keeper/model/keepertexts.h"
#include "keeper/model/onetimecode.h"

#include <QDate>
#include <QHash>
#include <QtEndian>

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int tokensAStep = 2000;
constexpr qsizetype deepestGroup = 64;
constexpr qsizetype lookedAt = 1000; ///< bytes
constexpr int mostFields = 1000;     ///< of an entry

struct KnownText {
    QStringView key;
    quint8 id;
};

constexpr std::array knownTexts{
    KnownText{u"Title", KeeperField::Title}, KnownText{u"UserName", KeeperField::UserName},
    KnownText{u"Password", KeeperField::Password}, KnownText{u"URL", KeeperField::Address},
    KnownText{u"Notes", KeeperField::Notes}};

bool isTrue(QStringView text)
{
    return text.compare(u"True", Qt::CaseInsensitive) == 0;
}

/// "2027-05-01T00:00:00Z", or the seconds since the year 1 as eight bytes in Base64.
QDate dayOf(const QString &text)
{
    if (const QDate day = QDate::fromString(text.left(10), Qt::ISODate); day.isValid())
        return day;
    const QByteArray bytes = QByteArray::fromBase64(text.toLatin1());
    if (bytes.size() != qsizetype(sizeof(qint64)))
        return {};
    const qint64 days = qFromLittleEndian<qint64>(bytes.constData()) / (24 * 60 * 60);
    constexpr qint64 mostDays = 3'652'059; // to the end of the year 9999
    return days >= 0 && days < mostDays ? QDate(1, 1, 1).addDays(days) : QDate();
}

/// The one-time secret that the fields of several programs stand for, taken out of them; empty for none.
QString takeOneTimeSecret(QHash<QString, QString> &own)
{
    if (const QString address = own.take(u"otp"_s); !address.isEmpty())
        return address;
    OneTimeSecret secret;
    QString key;
    if (own.contains(u"TimeOtp-Secret-Base32"_s)) {
        key = own.take(u"TimeOtp-Secret-Base32"_s);
        const QString algorithm = own.take(u"TimeOtp-Algorithm"_s);
        secret.algorithm = algorithm.contains(u"512"_s)   ? QCryptographicHash::Sha512
                           : algorithm.contains(u"256"_s) ? QCryptographicHash::Sha256
                                                          : QCryptographicHash::Sha1;
        if (const int digits = own.take(u"TimeOtp-Length"_s).toInt(); digits > 0)
            secret.digits = digits;
        if (const int period = own.take(u"TimeOtp-Period"_s).toInt(); period > 0)
            secret.period = period;
    } else if (own.contains(u"TOTP Seed"_s)) {
        key = own.take(u"TOTP Seed"_s);
        const QStringList settings = own.take(u"TOTP Settings"_s).split(u';'); // "30;6"
        if (const int period = settings.value(0).toInt(); period > 0)
            secret.period = period;
        if (const int digits = settings.value(1).toInt(); digits > 0)
            secret.digits = digits;
    }
    const auto bare = OneTimeSecret::read(key);
    if (!bare)
        return key;
    secret.key = bare->key;
    return secret.text();
}

} // namespace

/// An entry while it is read.
struct KeeperXmlImport::Entry {
    KeeperEntry entry{};
    QList<KeeperText> own{};
    QString tags{};
    QDate expires{};
    bool doesExpire = false;
    bool isEnciphered = false;
    int attachments = 0;
};

KeeperXmlImport::KeeperXmlImport(const QByteArray &bytes, There there)
    : KeeperImport(std::move(there))
    , m_bytes(bytes)
    , m_xml(bytes.size() > mostBytes ? QByteArray() : bytes)
{
    m_xml.setNamespaceProcessing(false);
    m_xml.setEntityExpansionLimit(0);
    if (bytes.size() > mostBytes)
        refuse(u"Line 1 was not read: the file is longer than 64 MiB"_s);
}

bool KeeperXmlImport::isLikely(const QByteArray &bytes)
{
    // In UTF-16 there are zeros between.
    const QByteArray begin = bytes.left(lookedAt).replace('\0', "").trimmed();
    return begin.startsWith('<') || begin.contains("<?xml");
}

double KeeperXmlImport::progress() const
{
    return m_bytes.isEmpty() ? 1 : std::min(1.0, double(m_xml.characterOffset()) / double(m_bytes.size()));
}

bool KeeperXmlImport::step()
{
    for (int i = 0; i < tokensAStep && refusal().isEmpty() && !m_xml.atEnd(); ++i)
        readToken();
    if (!refusal().isEmpty())
        return false;
    if (!m_xml.hasError())
        return !m_xml.atEnd();
    const QString why = m_xml.error() == QXmlStreamReader::PrematureEndOfDocumentError
                            ? u"the file ends in the middle"_s
                            : u"this is not well-formed XML"_s;
    if (lineCount() == 0)
        refuse(u"Line %1 cannot be read: %2"_s.arg(m_xml.lineNumber()).arg(why));
    else
        addUnread(int(m_xml.lineNumber()), why + u"; nothing behind it is known"_s);
    return false;
}

void KeeperXmlImport::readToken()
{
    switch (m_xml.readNext()) {
    case QXmlStreamReader::DTD:
    case QXmlStreamReader::EntityReference:
        // Entities within entities can make gigabytes of a short file, and such a file needs none.
        refuse(u"Line %1 declares entities, which no file of entries needs"_s.arg(m_xml.lineNumber()));
        break;
    case QXmlStreamReader::StartElement:
        if (!m_isKnown) {
            m_isKnown = m_xml.qualifiedName() == u"KeePassFile";
            if (!m_isKnown)
                refuse(u"Line %1 begins something else than a KeePass 2 file"_s.arg(m_xml.lineNumber()));
        } else {
            readGroupPart();
        }
        break;
    case QXmlStreamReader::EndElement:
        if (m_xml.qualifiedName() == u"Group" && !m_groups.isEmpty())
            m_groups.removeLast();
        break;
    default:
        break;
    }
}

/// An element among groups.
void KeeperXmlImport::readGroupPart()
{
    const QStringView name = m_xml.qualifiedName();
    if (name == u"Meta") {
        readMeta();
    } else if (name == u"Group") {
        m_groups.append(Group{});
        if (m_groups.size() > deepestGroup)
            refuse(u"Line %1 is in more than %2 groups"_s.arg(m_xml.lineNumber()).arg(deepestGroup));
    } else if (name == u"Name" && !m_groups.isEmpty()) {
        m_groups.last().name = m_xml.readElementText(QXmlStreamReader::SkipChildElements).simplified();
    } else if (name == u"UUID" && !m_groups.isEmpty()) {
        m_groups.last().id = m_xml.readElementText(QXmlStreamReader::SkipChildElements).trimmed();
    } else if (name == u"Entry") {
        readEntry();
    } else if (name != u"Root") {
        m_xml.skipCurrentElement();
    }
}

void KeeperXmlImport::readMeta()
{
    while (m_xml.readNextStartElement()) {
        if (m_xml.qualifiedName() == u"RecycleBinUUID")
            m_recycleBin = m_xml.readElementText(QXmlStreamReader::SkipChildElements).trimmed();
        else
            m_xml.skipCurrentElement();
    }
}

void KeeperXmlImport::readEntry()
{
    Entry entry;
    const int number = int(m_xml.lineNumber());
    while (m_xml.readNextStartElement()) {
        const QStringView name = m_xml.qualifiedName();
        if (name == u"String") {
            readString(entry);
        } else if (name == u"Times") {
            readTimes(entry);
        } else if (name == u"Tags") {
            entry.tags = m_xml.readElementText(QXmlStreamReader::SkipChildElements).replace(u';', u',');
        } else {
            entry.attachments += name == u"Binary" ? 1 : 0;
            m_xml.skipCurrentElement();
        }
    }
    if (!m_xml.hasError())
        finish(entry, number);
}

void KeeperXmlImport::readString(Entry &entry)
{
    QString key;
    QString text;
    bool isSecret = false;
    while (m_xml.readNextStartElement()) {
        const bool isKey = m_xml.qualifiedName() == u"Key";
        if (m_xml.qualifiedName() == u"Value") {
            const QXmlStreamAttributes attributes = m_xml.attributes();
            entry.isEnciphered = entry.isEnciphered || isTrue(attributes.value("Protected"_L1));
            isSecret = isTrue(attributes.value("ProtectInMemory"_L1));
        }
        (isKey ? key : text) = m_xml.readElementText(QXmlStreamReader::SkipChildElements);
    }
    if (text.isEmpty())
        return;
    const auto *known = std::ranges::find(knownTexts, QStringView(key), &KnownText::key);
    if (known == knownTexts.end())
        entry.own.append({KeeperField::Own, isSecret, key.simplified(), text});
    else
        entry.entry.setText(known->id, known->id == KeeperField::Password || known->id == KeeperField::Notes
                                           ? text
                                           : text.simplified());
}

void KeeperXmlImport::readTimes(Entry &entry)
{
    while (m_xml.readNextStartElement()) {
        if (m_xml.qualifiedName() == u"ExpiryTime")
            entry.expires = dayOf(m_xml.readElementText(QXmlStreamReader::SkipChildElements).trimmed());
        else if (m_xml.qualifiedName() == u"Expires")
            entry.doesExpire = isTrue(m_xml.readElementText(QXmlStreamReader::SkipChildElements).trimmed());
        else
            m_xml.skipCurrentElement();
    }
}

bool KeeperXmlImport::isInRecycleBin() const
{
    return !m_recycleBin.isEmpty() &&
           std::ranges::any_of(m_groups, [this](const Group &group) { return group.id == m_recycleBin; });
}

/// Adds the entry that was read at `number`.
void KeeperXmlImport::finish(Entry &read, int number)
{
    KeeperEntry &entry = read.entry;
    addOwn(entry, read.own);
    QString problem;
    if (read.isEnciphered)
        problem = u"its secrets are enciphered: export the file once more as plain XML"_s;
    else if (entry.fields.isEmpty())
        problem = u"there is nothing in it"_s;
    else if (entry.fields.size() > mostFields)
        problem = u"it has more than %1 fields"_s.arg(mostFields);
    if (!problem.isEmpty()) {
        addUnread(number, problem);
        return;
    }
    entry.setKind(KeeperTexts::likelyKind(entry));
    if (entry.text(KeeperField::Title).isEmpty())
        entry.setText(KeeperField::Title, KeeperTexts::titleFor(entry));
    entry.setTags(KeeperTexts::tags(read.tags + u',' + groupNames().join(u',')));
    if (read.doesExpire && read.expires.isValid())
        entry.setText(KeeperField::Expires, read.expires.toString(Qt::ISODate));
    IncomingEntry incoming{.number = number, .entry = entry, .state = IncomingEntry::New};
    if (read.attachments > 0)
        incoming.remark = read.attachments == 1 ? u"its attachment stays behind"_s
                                                : u"its %1 attachments stay behind"_s.arg(read.attachments);
    if (isInRecycleBin()) {
        incoming.state = IncomingEntry::LeftOut;
        incoming.problem = u"it lies in the recycle bin"_s;
    }
    add(std::move(incoming));
}

/// What has no box, but for what makes up a one-time secret.
void KeeperXmlImport::addOwn(KeeperEntry &entry, const QList<KeeperText> &own)
{
    QHash<QString, QString> texts;
    for (const KeeperText &field : own)
        texts.insert(field.name, field.text);
    entry.setText(KeeperField::OneTimeSecret, takeOneTimeSecret(texts));
    for (const KeeperText &field : own) {
        if (texts.contains(field.name))
            entry.fields.append(field);
    }
}

/// Without the outermost, which is the file itself.
QStringList KeeperXmlImport::groupNames() const
{
    QStringList names;
    for (qsizetype i = 1; i < m_groups.size(); ++i)
        names << QString(m_groups[i].name).replace(u',', u' ');
    return names;
}
