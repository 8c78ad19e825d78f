// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/model/keepercsv.h"

#include "keeper/model/keeperkinds.h"
#include "keeper/model/keepertexts.h"
#include "storage/ansitext.h"

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int linesAStep = 200;
constexpr qsizetype mostColumns = 500;

/// The surest first: what one has found is not looked at for the next.
CsvColumns::Wanted wanted()
{
    using Import = KeeperImport;
    return {.count = Import::ColumnCount,
            .names = {{Import::OneTimeSecret, {u"totp"_s, u"otp"_s, u"one-time"_s, u"2fa"_s}},
                      {Import::Password, {u"password"_s, u"passwort"_s, u"kennwort"_s, u"pwd"_s}},
                      {Import::Address,
                       {u"url"_s, u"login_uri"_s, u"web address"_s, u"web site"_s, u"website"_s, u"address"_s,
                        u"adresse"_s, u"link"_s}},
                      {Import::UserName,
                       {u"user name"_s, u"username"_s, u"login name"_s, u"benutzer"_s, u"user"_s, u"e-mail"_s,
                        u"email"_s, u"login"_s}},
                      {Import::Notes, {u"note"_s, u"notiz"_s, u"comment"_s, u"extra"_s, u"bemerk"_s}},
                      {Import::Tags,
                       {u"tags"_s, u"group"_s, u"folder"_s, u"category"_s, u"gruppe"_s, u"ordner"_s,
                        u"kategorie"_s, u"vault"_s}},
                      {Import::Expires, {u"expires"_s, u"expiry"_s, u"ablauf"_s}},
                      {Import::Kind, {u"kind"_s, u"type"_s}},
                      {Import::Member, {u"member"_s}},
                      {Import::Favourite, {u"favourite"_s, u"favorite"_s, u"fav"_s}},
                      {Import::Title, {u"title"_s, u"titel"_s, u"name"_s, u"account"_s, u"konto"_s}}},
            .isOther =
                [](const QString &heading) {
                    // Addresses and people's names are no headings, and these have such words in them.
                    return heading.contains(u"://"_s) || heading.contains(u'@') ||
                           heading.contains(u"security"_s, Qt::CaseInsensitive) ||
                           heading.contains(u"action"_s, Qt::CaseInsensitive) || KeeperTexts::isOwn(heading);
                },
            .hasExamples = false};
}

bool isTrue(const QString &text)
{
    const QString word = text.trimmed().toLower();
    return !word.isEmpty() && word != u"0" && word != u"no" && word != u"false" && word != u"nein";
}

/// The kind that somebody has written down, or the one that the entry looks like.
EntryKind kindOf(const QString &written, const KeeperEntry &entry)
{
    for (const EntryKind kind : KeeperKinds::all) {
        if (written.compare(KeeperKinds::word(kind), Qt::CaseInsensitive) == 0 ||
            written.compare(KeeperKinds::name(kind), Qt::CaseInsensitive) == 0)
            return kind;
    }
    return KeeperTexts::likelyKind(entry);
}

bool hasControls(const QStringList &cells)
{
    return std::ranges::any_of(cells, [](const QString &cell) { return KeeperTexts::hasControls(cell); });
}

} // namespace

KeeperCsvImport::KeeperCsvImport(const QByteArray &bytes, There there, DateStyle style)
    : KeeperImport(std::move(there))
    , m_file(bytes.size() > mostBytes ? QByteArray() : bytes, CsvFile::Cells::AsWritten)
    , m_columns(m_file, wanted())
    , m_style(style)
{
    if (bytes.size() > mostBytes)
        refuse(u"Line 1 was not read: the file is longer than 64 MiB"_s);
    readHeading();
}

void KeeperCsvImport::readHeading()
{
    m_order = CsvCells::dateOrder(m_columns.sample(Expires), m_style);
    m_heading.clear();
    CsvFile::Line line;
    while (m_columns.headingNumber() > 0 && line.number < m_columns.headingNumber() && m_file.next(line))
        m_heading = line.cells;
    // Some programs end every line with a separator, the headings alone without.
    m_mostCells = m_heading.size();
    const bool hasLine = m_mostCells > 0 && m_file.next(line);
    if (hasLine && line.cells.size() == m_mostCells + 1 && line.cells.last().isEmpty())
        ++m_mostCells;
    m_file.rewind();
}

void KeeperCsvImport::setPlace(int column, int place)
{
    m_columns.setPlace(column, place);
    clear();
    readHeading();
}

QStringList KeeperCsvImport::notUsed() const
{
    QStringList left;
    for (const QString &name : m_columns.notUsed()) {
        if (!KeeperTexts::isCaption(name) && !KeeperTexts::isOwn(name))
            left << name;
    }
    return left;
}

bool KeeperCsvImport::step()
{
    CsvFile::Line line;
    for (int i = 0; i < linesAStep && refusal().isEmpty(); ++i) {
        if (!m_file.next(line))
            return false;
        if (line.hasMore || line.cells.size() > mostColumns) {
            refuse(u"Line %1 has more than %2 columns: this is no table of entries"_s.arg(line.number)
                       .arg(mostColumns));
        } else if (std::ranges::any_of(line.cells,
                                       [](const QString &cell) { return cell.contains(QChar::Null); })) {
            refuse(u"Line %1 is not text: this is no table of entries"_s.arg(line.number));
        } else if (line.number != m_columns.headingNumber()) {
            if (IncomingEntry entry = read(line); entry.problem.isEmpty())
                add(std::move(entry));
            else
                addUnread(line.number, entry.problem);
        }
    }
    return refusal().isEmpty();
}

IncomingEntry KeeperCsvImport::read(const CsvFile::Line &line) const
{
    IncomingEntry incoming{.number = line.number, .state = IncomingEntry::New};
    if (!line.isClosed) {
        incoming.problem = u"a quote has no end"_s;
    } else if (m_mostCells > 0 && line.cells.size() > m_mostCells) {
        // A separator without quotes has cut a text in two, and nobody knows which one.
        incoming.problem = u"it has %1 cells for %2 headings; a text lacks quotes"_s.arg(line.cells.size())
                               .arg(m_heading.size());
    } else if (hasControls(line.cells)) {
        incoming.problem = u"it has characters that are no text"_s;
    } else {
        incoming.entry = entryOf(line.cells);
        if (incoming.entry.fields.isEmpty())
            incoming.problem = u"there is nothing in its known columns"_s;
    }
    return incoming;
}

KeeperEntry KeeperCsvImport::entryOf(const QStringList &cells) const
{
    const auto line = [this, &cells](int column) { return m_columns.cell(cells, column).simplified(); };
    QString notes = m_columns.cell(cells, Notes).trimmed();
    const QDate expires = CsvCells::date(line(Expires), m_order);
    if (!expires.isValid() && !line(Expires).isEmpty()) // "never", say: kept where it can be read
        notes = QString(notes + u"\nExpires: "_s + line(Expires)).trimmed();
    KeeperEntry entry;
    entry.setText(KeeperField::Title, line(Title));
    entry.setText(KeeperField::UserName, line(UserName));
    entry.setText(KeeperField::Password, m_columns.cell(cells, Password));
    entry.setText(KeeperField::Address, line(Address));
    entry.setText(KeeperField::OneTimeSecret, line(OneTimeSecret));
    entry.setText(KeeperField::Notes, notes);
    entry.setTags(tagsOf(line(Tags)));
    entry.setText(KeeperField::Member, line(Member));
    entry.setText(KeeperField::Expires, expires.isValid() ? expires.toString(Qt::ISODate) : QString());
    entry.setText(KeeperField::Favourite, isTrue(line(Favourite)) ? u"1"_s : QString());
    const EntryKind kind = kindOf(line(Kind), entry);
    addExtra(entry, kind, cells);
    if (entry.fields.isEmpty())
        return {};
    entry.setKind(kind);
    if (entry.text(KeeperField::Title).isEmpty())
        entry.setText(KeeperField::Title, KeeperTexts::titleFor(entry));
    return entry;
}

/// Groups stand as paths: "Root/Internet/Shops".
QStringList KeeperCsvImport::tagsOf(const QString &text) const
{
    const QString heading = m_heading.value(m_columns.placeOf(Tags));
    QString parts = text;
    parts.replace(u';', u',');
    if (heading.contains(u"tag"_s, Qt::CaseInsensitive))
        return KeeperTexts::tags(parts);
    QStringList tags = KeeperTexts::tags(parts.replace(u'/', u',').replace(u'\\', u','));
    if (!tags.isEmpty() && tags.first() == u"Root")
        tags.removeFirst();
    return tags;
}

/// The boxes of the kind by their captions, and own fields.
void KeeperCsvImport::addExtra(KeeperEntry &entry, EntryKind kind, const QStringList &cells) const
{
    for (qsizetype place = 0; place < std::min(cells.size(), m_heading.size()); ++place) {
        const QString heading = m_heading[place].trimmed();
        if (cells[place].trimmed().isEmpty() || isTaken(place))
            continue;
        if (const auto own = KeeperTexts::ownField(heading))
            entry.fields.append({KeeperField::Own, own->isSecret, own->name, cells[place]});
        else if (const quint8 id = KeeperTexts::boxOf(kind, heading))
            entry.setText(id, cells[place].trimmed());
    }
}

/// Whether one of the columns of the preview is at that place.
bool KeeperCsvImport::isTaken(qsizetype place) const
{
    for (int column = 0; column < m_columns.count(); ++column) {
        if (m_columns.placeOf(column) == place)
            return true;
    }
    return false;
}
