// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/model/keeperimport.h"

#include "keeper/model/keeperkinds.h"
#include "keeper/model/keeperpayload.h"
#include "keeper/model/keepertexts.h"
#include "keeper/model/lines.h"

#include <QSet>

#include <sodium.h>

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype longestCell = 200;
/// Of one account there are rarely two entries; no more are opened than so many.
constexpr int mostCompared = 8;

struct ColumnRow {
    KeeperImport::Column column;
    quint8 id;
    QStringView heading;
};

constexpr std::array<ColumnRow, KeeperImport::ColumnCount> columnRows{{
    {KeeperImport::Title, KeeperField::Title, u"Title"},
    {KeeperImport::UserName, KeeperField::UserName, u"User name"},
    {KeeperImport::Password, KeeperField::Password, u"Password"},
    {KeeperImport::Address, KeeperField::Address, u"Web address"},
    {KeeperImport::OneTimeSecret, KeeperField::OneTimeSecret, u"One-time secret"},
    {KeeperImport::Notes, KeeperField::Notes, u"Notes"},
    {KeeperImport::Tags, KeeperField::Tags, u"Tags"},
    {KeeperImport::Expires, KeeperField::Expires, u"Expires"},
    {KeeperImport::Kind, KeeperField::Kind, u"Kind"},
    {KeeperImport::Member, KeeperField::Member, u"Member"},
    {KeeperImport::Favourite, KeeperField::Favourite, u"Favourite"},
}};

/// By what an entry is found again: its site or its title, and who logs in there.
QStringList accounts(EntryKind kind, const QString &title, const QString &userName, const QString &address)
{
    const QString user = u'\n' + userName.trimmed().toCaseFolded();
    QStringList accounts{KeeperKinds::word(kind) + u'\n' + title.simplified().toCaseFolded() + user};
    if (const QString host = KeeperTexts::site(address); !host.isEmpty())
        accounts << host + user;
    return accounts;
}

/// Whether the texts of two fields mean the same. Entries of one account are not told apart by title and
/// kind, which are often made up when a file is written or read.
bool isSame(quint8 id, const QString &there, const QString &incoming)
{
    if (id == KeeperField::Title || id == KeeperField::Kind)
        return true;
    if (id == KeeperField::Favourite)
        return there.isEmpty() == incoming.isEmpty();
    if (id == KeeperField::Address && !there.isEmpty())
        return there == incoming || KeeperTexts::site(there) == KeeperTexts::site(incoming);
    if (id == KeeperField::Tags) {
        const QStringList has = KeeperTexts::tags(there);
        return std::ranges::all_of(KeeperTexts::tags(incoming),
                                   [&has](const QString &tag) { return has.contains(tag); });
    }
    return there == incoming;
}

QString textThere(const KeeperEntry &there, const KeeperText &incoming)
{
    const auto found = std::ranges::find_if(there.fields, [&incoming](const KeeperText &field) {
        return field.id == incoming.id && field.name == incoming.name;
    });
    return found == there.fields.end() ? QString() : found->text;
}

/// What the file says otherwise than the entry that is there; what only one of them has, it does not.
QStringList differences(const KeeperEntry &there, const KeeperEntry &incoming)
{
    QStringList captions;
    for (const KeeperText &field : incoming.fields) {
        if (!isSame(field.id, textThere(there, field), field.text))
            captions << KeeperKinds::caption(field);
    }
    return captions;
}

/// A hash of all that a line holds, to find it again.
QByteArray hashOf(const KeeperEntry &entry)
{
    const SecretBytes whole = KeeperPayload::encoded(entry);
    QByteArray hash(crypto_generichash_BYTES, '\0');
    crypto_generichash(reinterpret_cast<unsigned char *>(hash.data()), crypto_generichash_BYTES,
                       whole.bytes(), std::size_t(whole.size()), nullptr, 0);
    return hash;
}

} // namespace

KeeperImport::KeeperImport(There there)
    : m_there(std::move(there))
{
    for (qsizetype i = 0; i < m_there.entries.size(); ++i) {
        const KeeperSummary &entry = m_there.entries[i];
        for (const QString &account : accounts(entry.kind, entry.title, entry.userName, entry.address)) {
            if (!entry.isTrashed)
                m_byAccount.insert(account, i);
        }
    }
}

QStringList KeeperImport::filters()
{
    return {u"All entries"_s, u"New"_s, u"There already, but different"_s, u"There already"_s,
            u"Cannot be read"_s};
}

QStringList KeeperImport::headings() const
{
    QStringList headings;
    for (const ColumnRow &column : columnRows)
        headings << column.heading.toString();
    return headings;
}

QString KeeperImport::cell(std::size_t line, int column) const
{
    const KeeperEntry &entry = m_lines[line].entry;
    const quint8 id = columnRows[std::size_t(column)].id;
    const QString text = entry.text(id);
    if (text.isEmpty() || KeeperKinds::isSecret(id))
        return text.isEmpty() ? QString() : KeeperLines::hidden();
    if (column == Kind)
        return KeeperKinds::name(entry.kind());
    return text.left(longestCell).simplified();
}

QString KeeperImport::whatBecomesOf(std::size_t line) const
{
    const IncomingEntry &incoming = m_lines[line];
    const QString remark = incoming.remark.isEmpty() ? QString() : u"; "_s + incoming.remark;
    switch (incoming.state) {
    case IncomingEntry::New:
        return (incoming.isChosen ? u"Will be taken"_s : u"Left out"_s) + remark;
    case IncomingEntry::Differs:
        return (incoming.isChosen ? u"Will be the new version: "_s : u"There already, but different: "_s) +
               incoming.problem + remark;
    case IncomingEntry::Same:
        return u"There already"_s;
    case IncomingEntry::Twice:
        return incoming.isChosen ? u"Will be taken, though line %1 is the same"_s.arg(incoming.twin)
                                 : u"As line %1"_s.arg(incoming.twin);
    case IncomingEntry::LeftOut:
        return (incoming.isChosen ? u"Will be taken, though "_s : u"Left out: "_s) + incoming.problem +
               remark;
    case IncomingEntry::NotRead:
        return u"Not read: "_s + incoming.problem;
    }
    return {};
}

bool KeeperImport::isIn(std::size_t line, int filter) const
{
    using enum IncomingEntry::State;
    const IncomingEntry::State state = m_lines[line].state;
    switch (filter) {
    case 1:
        return state == New || state == LeftOut;
    case 2:
        return state == Differs;
    case 3:
        return state == Same || state == Twice;
    case 4:
        return state == NotRead;
    default:
        return true;
    }
}

bool KeeperImport::mayBeTaken(std::size_t line) const
{
    const IncomingEntry::State state = m_lines[line].state;
    return state != IncomingEntry::NotRead && state != IncomingEntry::Same;
}

void KeeperImport::setChosen(std::size_t line, bool isChosen)
{
    IncomingEntry &incoming = m_lines[line];
    if (!mayBeTaken(line) || incoming.isChosen == isChosen)
        return;
    incoming.isChosen = isChosen;
    m_chosen += isChosen ? 1 : -1;
}

QList<KeeperImport::Beside> KeeperImport::beside(std::size_t line) const
{
    const IncomingEntry &incoming = m_lines[line];
    const auto there = incoming.there.isEmpty() ? std::nullopt : m_there.open(incoming.there);
    QList<Beside> rows;
    for (const KeeperText &field : incoming.entry.fields) {
        const QString text = there ? textThere(*there, field) : QString();
        rows.append({.caption = KeeperKinds::caption(field),
                     .there = text,
                     .inFile = field.text,
                     .isSecret = field.isSecret,
                     .differs = there && !isSame(field.id, text, field.text)});
    }
    return rows;
}

QList<KeeperEntry> KeeperImport::result() const
{
    QList<KeeperEntry> entries;
    QHash<QByteArray, qsizetype> places; // of those that are there: two lines may be of one
    for (const IncomingEntry &line : m_lines) {
        if (!line.isChosen)
            continue;
        if (line.state != IncomingEntry::Differs) {
            entries.append(line.entry);
        } else if (const auto place = places.constFind(line.there); place != places.cend()) {
            entries[*place] = merged(entries[*place], line.entry);
        } else if (auto there = m_there.open(line.there)) {
            places.insert(line.there, entries.size());
            entries.append(merged(std::move(*there), line.entry));
        }
    }
    return entries;
}

KeeperEntry KeeperImport::merged(KeeperEntry there, const KeeperEntry &incoming)
{
    for (const KeeperText &field : incoming.fields) {
        if (field.id == KeeperField::Tags) {
            QStringList tags = there.tags();
            for (const QString &tag : incoming.tags()) {
                if (!tags.contains(tag))
                    tags << tag;
            }
            there.setTags(tags);
            continue;
        }
        if (isSame(field.id, textThere(there, field), field.text))
            continue;
        const auto found = std::ranges::find_if(there.fields, [&field](const KeeperText &own) {
            return own.id == field.id && own.name == field.name;
        });
        if (found != there.fields.end())
            found->setText(field.text);
        else
            there.fields.append(field);
    }
    return there;
}

void KeeperImport::add(IncomingEntry line)
{
    if (!KeeperPayload::fits(line.entry)) {
        addUnread(line.number, u"it is too long for an entry"_s);
        return;
    }
    if (line.state == IncomingEntry::New) {
        const QByteArray hash = hashOf(line.entry);
        if (const auto twin = m_read.constFind(hash); twin != m_read.cend()) {
            line.state = IncomingEntry::Twice;
            line.twin = *twin;
        } else {
            m_read.insert(hash, line.number);
            findThere(line);
        }
    }
    line.isChosen = line.state == IncomingEntry::New;
    m_chosen += line.isChosen ? 1 : 0;
    m_lines.push_back(std::move(line));
}

void KeeperImport::findThere(IncomingEntry &line) const
{
    if (!m_there.open)
        return;
    int compared = 0;
    QSet<qsizetype> seen;
    for (const QString &account :
         accounts(line.entry.kind(), line.entry.text(KeeperField::Title),
                  line.entry.text(KeeperField::UserName), line.entry.text(KeeperField::Address))) {
        for (const qsizetype place : m_byAccount.values(account)) {
            if (seen.contains(place) || ++compared > mostCompared)
                continue;
            seen.insert(place);
            const QByteArray &id = m_there.entries[place].id;
            const auto entry = m_there.open(id);
            if (!entry)
                continue;
            const QStringList captions = differences(*entry, line.entry);
            if (captions.isEmpty()) {
                line.state = IncomingEntry::Same;
                line.there = id;
                line.problem.clear();
                return;
            }
            if (line.state == IncomingEntry::New) {
                line.state = IncomingEntry::Differs;
                line.there = id;
                line.problem = captions.join(u", "_s).toLower();
            }
        }
    }
}

void KeeperImport::addUnread(int number, const QString &problem)
{
    m_lines.push_back({.number = number, .problem = problem});
}

void KeeperImport::refuse(const QString &why)
{
    clear();
    m_refusal = why;
}

void KeeperImport::clear()
{
    m_lines.clear();
    m_read.clear();
    m_refusal.clear();
    m_chosen = 0;
}
