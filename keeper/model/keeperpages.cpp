// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/model/keeperpages.h"

#include "keeper/model/keeperkinds.h"
#include "keeper/model/lines.h"
#include "keeper/model/messages.h"
#include "keeper/model/wificode.h"
#include "shell/core/dates.h"

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

using KeeperPages::EmergencySheet;
using KeeperPages::Options;

constexpr double captionWidth = 1.9; ///< in inches
constexpr double codeSize = 1.6;     ///< in inches

/// What a list shows of the kinds beside their titles.
struct ListColumns {
    EntryKind kind;
    std::array<quint8, 3> ids;
};

constexpr std::array listColumns{
    ListColumns{EntryKind::LogIn, {KeeperField::UserName, KeeperField::Password, KeeperField::Address}},
    ListColumns{EntryKind::BankAccount,
                {KeeperField::BankAccountNumber, KeeperField::BankPin, KeeperField::BankName}},
    ListColumns{EntryKind::Card, {KeeperField::CardNumber, KeeperField::CardPin, KeeperField::CardLostCall}},
    ListColumns{EntryKind::WiFi,
                {KeeperField::NetworkName, KeeperField::Password, KeeperField::RouterAddress}},
    ListColumns{EntryKind::Licence, {KeeperField::Product, KeeperField::LicenceKey, KeeperField::LicensedTo}},
    ListColumns{EntryKind::Document,
                {KeeperField::DocumentNumber, KeeperField::Expires, KeeperField::DocumentPlace}},
    ListColumns{EntryKind::Note, {KeeperField::Notes, 0, 0}},
};

/// Entries on their way to paper.
class Paper
{
public:
    Paper(Page &page, bool hasSecrets, const PageContext &context)
        : m_page(page)
        , m_hasSecrets(hasSecrets)
        , m_context(context)
    {}

    void addList(const QList<KeeperEntry> &entries);
    void addTwoToAPage(const QList<KeeperEntry> &entries);
    /// The whole entry under its title.
    void addEntry(const KeeperEntry &entry);

private:
    QString shown(const KeeperText &field) const;
    QList<KeeperText> inOrder(const KeeperEntry &entry) const;
    /// Secrets are copied sign by sign; dots are not.
    bool isCode(const KeeperText &field) const { return field.isSecret && m_hasSecrets; }
    bool fillsMoreThanHalf(const KeeperEntry &entry) const;
    double bodyWidth() const { return m_context.setup.sheet().width() - 2 * PageMetrics::margin; }

    Page &m_page;
    bool m_hasSecrets;
    const PageContext &m_context;
};

QString Paper::shown(const KeeperText &field) const
{
    if (field.isSecret && !m_hasSecrets)
        return KeeperLines::hidden();
    if (field.id == KeeperField::Kind)
        return KeeperKinds::name(KeeperKinds::kind(field.text));
    if (field.id != KeeperField::Notes) {
        if (const QDate date = QDate::fromString(field.text, Qt::ISODate); date.isValid())
            return Dates::monthDayYear(date, m_context.style);
    }
    return field.text;
}

/// The boxes as the screen has them, then own fields, then what all entries have. Title and kind stand above.
QList<KeeperText> Paper::inOrder(const KeeperEntry &entry) const
{
    QList<KeeperText> fields;
    const auto take = [&entry, &fields](auto isMeant) {
        for (const KeeperText &field : entry.fields) {
            if (isMeant(field.id) && !fields.contains(field))
                fields << field;
        }
    };
    for (const KeeperKinds::Box &box : KeeperKinds::boxes(entry.kind()))
        take([&box](quint8 id) { return id == box.id; });
    const auto isCommon = [](quint8 id) {
        return id == KeeperField::Member || id == KeeperField::Expires || id == KeeperField::Tags ||
               id == KeeperField::Notes;
    };
    const auto isAbove = [](quint8 id) {
        return id == KeeperField::Title || id == KeeperField::Kind || id == KeeperField::Favourite;
    };
    take([&](quint8 id) { return !isCommon(id) && !isAbove(id); });
    for (const quint8 id : {KeeperField::Member, KeeperField::Expires, KeeperField::Tags, KeeperField::Notes})
        take([id](quint8 other) { return other == id; });
    return fields;
}

void Paper::addEntry(const KeeperEntry &entry)
{
    m_page.line(entry.text(KeeperField::Title), TextRole::Heading);
    m_page.columns({captionWidth, bodyWidth() - captionWidth});
    // In the table, so that no sheet ends below the title.
    m_page.row({u"Kind"_s, KeeperKinds::name(entry.kind())});
    for (const KeeperText &field : inOrder(entry)) {
        QString caption = KeeperKinds::caption(field);
        for (const QString &line : shown(field).split(u'\n')) {
            QStringList cells{std::exchange(caption, {}), line};
            if (isCode(field))
                m_page.codeRow(std::move(cells), {1});
            else
                m_page.row(std::move(cells));
        }
    }
}

/// Roughly: the page font is not known here.
bool Paper::fillsMoreThanHalf(const KeeperEntry &entry) const
{
    const double perLine = (bodyWidth() - captionWidth) * PageMetrics::charactersPerInch(TextRole::Body);
    double inches = 1.4; // page title, title and kind
    for (const KeeperText &field : inOrder(entry)) {
        for (const QString &line : shown(field).split(u'\n'))
            inches += (1 + double(line.size()) / perLine) * PageMetrics::lineHeight(TextRole::Body) + 0.06;
    }
    return inches > m_context.setup.sheet().height() / 2;
}

void Paper::addTwoToAPage(const QList<KeeperEntry> &entries)
{
    const double half = m_context.setup.sheet().height() / 2;
    bool isUpperTaken = false;
    for (qsizetype i = 0; i < entries.size(); ++i) {
        if (isUpperTaken) {
            // Along this line the sheet is cut.
            m_page.placeRule({PageMetrics::margin, half, bodyWidth(), 0}).belowPlaced();
        } else if (i > 0) {
            m_page.breakPage();
        }
        addEntry(entries[i]);
        const bool hasRoom = !isUpperTaken && !fillsMoreThanHalf(entries[i]) && i + 1 < entries.size() &&
                             !fillsMoreThanHalf(entries[i + 1]);
        isUpperTaken = hasRoom;
    }
}

void Paper::addList(const QList<KeeperEntry> &entries)
{
    bool isFirst = true;
    for (const ListColumns &columns : listColumns) {
        QList<QStringList> rows;
        QStringList headings{u"Title"_s};
        std::vector<double> weights{2};
        std::vector<int> codeCells;
        for (const quint8 id : columns.ids) {
            if (id == 0)
                continue;
            if (m_hasSecrets && KeeperKinds::isSecret(id))
                codeCells.push_back(int(headings.size()));
            headings << KeeperKinds::caption({id, false, {}, {}});
            const bool isLong = id == KeeperField::Address || id == KeeperField::DocumentPlace;
            weights.push_back(columns.kind == EntryKind::Note ? 6 : isLong ? 3 : 2);
        }
        for (const KeeperEntry &entry : entries) {
            if (entry.kind() != columns.kind)
                continue;
            QStringList cells{entry.text(KeeperField::Title)};
            for (qsizetype i = 1; i < headings.size(); ++i) {
                const quint8 id = columns.ids[std::size_t(i - 1)];
                const QString text = entry.text(id);
                cells << (text.isEmpty() ? QString() : shown({id, KeeperKinds::isSecret(id), {}, text}));
            }
            rows << cells;
        }
        if (rows.isEmpty())
            continue;
        if (!std::exchange(isFirst, false))
            m_page.blankLine();
        m_page.line(KeeperKinds::name(columns.kind), TextRole::Heading);
        m_page.columns(weights, headings);
        for (const QStringList &row : std::as_const(rows))
            m_page.codeRow(row, codeCells);
    }
}

/// Typed lines under a heading, or blanks to write on.
void addWritten(Page &page, const QString &heading, const QString &text, int blanks)
{
    page.blankLine().line(heading, TextRole::Heading);
    if (text.trimmed().isEmpty()) {
        for (int i = 0; i < blanks; ++i)
            page.blank({});
        return;
    }
    for (const QString &line : text.trimmed().split(u'\n'))
        page.line(line);
}

/// What the documents and cards among the entries say of it themselves.
QString withFacts(const QString &text, const QList<KeeperEntry> &entries, quint8 id)
{
    QStringList lines;
    if (!text.trimmed().isEmpty())
        lines << text.trimmed();
    for (const KeeperEntry &entry : entries) {
        if (const QString fact = entry.text(id); !fact.isEmpty())
            lines << entry.text(KeeperField::Title) + u": "_s + fact;
    }
    return lines.join(u'\n');
}

} // namespace

Page KeeperPages::printout(const QList<KeeperEntry> &entries, const Options &options,
                           const PageContext &context)
{
    Page page(KeeperMessages::title(), Dates::monthDayYear(context.today, context.style));
    Paper paper(page, options.hasSecrets, context);
    if (entries.isEmpty())
        page.line(u"There are no entries."_s);
    else if (options.layout == Options::TwoToAPage)
        paper.addTwoToAPage(entries);
    else
        paper.addList(entries);
    return page.close(context.today, context.style);
}

Page KeeperPages::emergencySheet(const EmergencySheet &sheet, const PageContext &context)
{
    Page page(u"Emergency Sheet"_s,
              context.family.isEmpty() ? Dates::monthDayYear(context.today, context.style) : context.family);
    page.line(u"Keep this sheet where only those find it whom you trust. Shred it when a newer one is "
              u"printed."_s,
              TextRole::Small);
    page.blankLine().line(u"To open the Password Keeper"_s, TextRole::Heading);
    page.line(u"Start Quillery, open the Password Keeper and type the master password or, in its place, the "
              u"recovery code."_s);
    page.blank(u"Master password:"_s);
    if (sheet.recoveryCode.isEmpty())
        page.blank(u"Recovery code:"_s);
    else
        page.line(u"Recovery code:"_s).line(sheet.recoveryCode, TextRole::Code);
    addWritten(page, u"Where the papers lie"_s,
               withFacts(sheet.papers, sheet.entries, KeeperField::DocumentPlace), 3);
    addWritten(page, u"Whom to call"_s, withFacts(sheet.call, sheet.entries, KeeperField::CardLostCall), 3);
    Paper paper(page, sheet.hasSecrets, context);
    for (const KeeperEntry &entry : sheet.entries) {
        page.blankLine();
        paper.addEntry(entry);
        const QStringList squares =
            sheet.hasWiFiCodes && sheet.hasSecrets ? WiFiCode::squares(entry) : QStringList();
        if (!squares.isEmpty())
            page.line(u"A telephone's camera reads this and joins the network:"_s, TextRole::Small)
                .squares(squares, codeSize);
    }
    return page.close(context.today, context.style);
}
