// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/model/keeperpages.h"
#include "keeper/model/wificode.h"
#include "tests/support/pageitems.h"
#include "tests/support/rows.h"

using namespace Qt::Literals::StringLiterals;

namespace {

using namespace KeeperField;
using KeeperPages::Options;

const PageContext context{
    .setup = {}, .style = DateStyle::Usa, .today = QDate(2026, 11, 23), .family = u"Miller"_s};
const QString dots = u"\u2022\u2022\u2022\u2022\u2022\u2022\u2022\u2022"_s;

KeeperEntry entry(EntryKind kind, const QList<std::pair<quint8, QString>> &texts)
{
    KeeperEntry entry;
    entry.setKind(kind);
    for (const auto &[field, text] : texts)
        entry.setText(field, text);
    return entry;
}

KeeperEntry power()
{
    KeeperEntry power = entry(EntryKind::LogIn, {{Notes, u"Ring twice.\nAsk for Olaf."_s},
                                                 {Title, u"Power company"_s},
                                                 {UserName, u"anne"_s},
                                                 {Password, u"plutoed-grill"_s},
                                                 {Expires, u"2027-05-01"_s}});
    power.fields.append({Own, true, u"PUK"_s, u"4711"_s});
    return power;
}

KeeperEntry passport()
{
    return entry(EntryKind::Document, {{Title, u"Passport"_s},
                                       {DocumentNumber, u"C01X"_s},
                                       {Expires, u"2030-01-31"_s},
                                       {DocumentPlace, u"Desk, left drawer"_s}});
}

KeeperEntry card()
{
    return entry(EntryKind::Card,
                 {{Title, u"Bank card"_s}, {CardPin, u"0042"_s}, {CardLostCall, u"116 116"_s}});
}

KeeperEntry network(const QString &name, const QString &password, const QString &protection = {})
{
    return entry(
        EntryKind::WiFi,
        {{Title, u"Wi-Fi"_s}, {NetworkName, name}, {Password, password}, {NetworkProtection, protection}});
}

const QStringList foot{{}, u"Quillery"_s, u"Printed on 11/23/2026"_s};

} // namespace

/// What is printed of the keeper on 23 November 2026.
class TestKeeperPages : public QObject
{
    Q_OBJECT
private slots:
    void printsThis_data()
    {
        const QStringList head{{}, u"Password Keeper\tNovember 23, 2026"_s, {}};
        const Options open{Options::List, true};
        const Options cards{Options::TwoToAPage, false};
        const Options openCards{Options::TwoToAPage, true};
        rows<QList<KeeperEntry>, Options, QStringList>({
            {"nothing", {}, {}, head + QStringList{u"There are no entries."_s} + foot},
            {"a list, secrets as dots",
             {passport(), power(), card()},
             {},
             head +
                 QStringList{u"Log-in"_s,
                             u"Title\tUser name\tPassword\tWeb address"_s,
                             u"Power company\tanne\t"_s + dots + u'\t',
                             {},
                             u"Card"_s,
                             u"Title\tCard number\tPIN\tIf lost, call"_s,
                             u"Bank card\t\t"_s + dots + u"\t116 116"_s,
                             {},
                             u"Document"_s,
                             u"Title\tNumber\tExpires\tWhere the paper lies"_s,
                             u"Passport\tC01X\tJanuary 31, 2030\tDesk, left drawer"_s} +
                 foot},
            {"a list with its secrets",
             {power()},
             open,
             head +
                 QStringList{u"Log-in"_s, u"Title\tUser name\tPassword\tWeb address"_s,
                             u"Power company\tanne\tplutoed-grill\t"_s} +
                 foot},
            {"the whole entry, secrets as dots",
             {power()},
             cards,
             head +
                 QStringList{u"Power company"_s, u"Kind\tLog-in"_s, u"User name\tanne"_s,
                             u"Password\t"_s + dots, u"PUK\t"_s + dots, u"Expires\tMay 1, 2027"_s,
                             u"Notes\tRing twice."_s, u"\tAsk for Olaf."_s} +
                 foot},
            {"the whole entry with its secrets",
             {card()},
             openCards,
             head +
                 QStringList{u"Bank card"_s, u"Kind\tCard"_s, u"PIN\t0042"_s, u"If lost, call\t116 116"_s} +
                 foot},
        });
    }

    void printsThis()
    {
        const auto [entries, options, expected] = row<QList<KeeperEntry>, Options, QStringList>();
        QCOMPARE(KeeperPages::printout(entries, options, context).toText().split(u'\n'), expected);
    }

    /// What is typed from paper is set so that l, I and 1 differ.
    void setsSecretsAsCode_data()
    {
        rows<Options, QStringList>({
            {"a list", {Options::List, true}, {u"plutoed-grill"_s, {}, u"0042"_s}},
            {"whole entries", {Options::TwoToAPage, true}, {u"plutoed-grill"_s, u"4711"_s, u"0042"_s}},
            {"dots", {Options::TwoToAPage, false}, {}},
        });
    }

    void setsSecretsAsCode()
    {
        const auto [options, expected] = row<Options, QStringList>();
        QStringList found;
        for (const PageItem::Row &line :
             itemsOf<PageItem::Row>(KeeperPages::printout({power(), card()}, options, context))) {
            for (const int cell : line.codeCells)
                found << line.cells[cell];
        }
        QCOMPARE(found, expected);
    }

    /// A sheet is cut in the middle; an entry that needs more than half of it has it alone.
    void putsTwoOnASheet_data()
    {
        KeeperEntry lengthy = passport();
        lengthy.setText(Notes, u"line\n"_s.repeated(40));
        rows<QList<KeeperEntry>, QString>({
            {"one", {power()}, u"E"_s},
            {"two", {power(), card()}, u"E-E"_s},
            {"three", {power(), card(), passport()}, u"E-E|E"_s},
            {"four", {power(), card(), passport(), card()}, u"E-E|E-E"_s},
            {"a long one between", {power(), lengthy, card()}, u"E|E|E"_s},
            {"a long one first", {lengthy, power(), card()}, u"E|E-E"_s},
        });
    }

    void putsTwoOnASheet()
    {
        const auto [entries, expected] = row<QList<KeeperEntry>, QString>();
        const Page page = KeeperPages::printout(entries, {Options::TwoToAPage, false}, context);
        QString found;
        for (const Page::Item &item : page.items()) {
            if (const auto *line = std::get_if<PageItem::Line>(&item))
                found += line->role == TextRole::Heading ? u"E"_s : QString();
            else if (std::holds_alternative<PageItem::PlacedRule>(item))
                found += u'-';
            else if (std::holds_alternative<PageItem::Break>(item))
                found += u'|';
        }
        QCOMPARE(found, expected);
    }

    void tellsThoseLeftBehind()
    {
        const QString text = KeeperPages::emergencySheet({.entries = {passport(), card()},
                                                          .papers = u"Will: notary Holm\n"_s,
                                                          .call = {},
                                                          .recoveryCode = u"ABCD-EFGH"_s},
                                                         context)
                                 .toText();
        QVERIFY(text.startsWith(u"\nEmergency Sheet\tMiller\n"_s));
        QVERIFY(text.contains(u"\nMaster password:\nRecovery code:\nABCD-EFGH\n"_s));
        QVERIFY(text.contains(u"\nWhere the papers lie\nWill: notary Holm\nPassport: Desk, left drawer\n"_s));
        QVERIFY(text.contains(u"\nWhom to call\nBank card: 116 116\n"_s));
        QVERIFY(text.contains(u"\nPIN\t0042\n"_s));
    }

    void leavesRoomForWhatIsNotKnown()
    {
        const Page page = KeeperPages::emergencySheet({}, context);
        QCOMPARE(itemsOf<PageItem::Blank>(page).size(), 2 + 3 + 3);
    }

    void writesWiFiCodes_data()
    {
        rows<KeeperEntry, QString>({
            {"usual", network(u"Home"_s, u"secret"_s), u"WIFI:T:WPA;S:Home;P:secret;;"_s},
            {"signs that mean something", network(u"a;b"_s, u"x\\y:\"z\",1"_s),
             u"WIFI:T:WPA;S:a\\;b;P:x\\\\y\\:\\\"z\\\"\\,1;;"_s},
            {"open", network(u"Guests"_s, {}), u"WIFI:T:nopass;S:Guests;;"_s},
            {"an old protection", network(u"Shed"_s, u"12345"_s, u"WEP 64"_s),
             u"WIFI:T:WEP;S:Shed;P:12345;;"_s},
            {"no name", network({}, u"secret"_s), {}},
            {"no Wi-Fi", power(), {}},
        });
    }

    void writesWiFiCodes()
    {
        const auto [entry, text] = row<KeeperEntry, QString>();
        QCOMPARE(WiFiCode::text(entry), text);
        const QStringList squares = WiFiCode::squares(entry);
        QCOMPARE(squares.isEmpty(), text.isEmpty() || !WiFiCode::canMake());
        for (const QString &row : squares)
            QCOMPARE(row.size(), squares.size());
        // The margin, and the first row of the mark in the corner.
        QCOMPARE(squares.value(3).count(u'#'), 0);
        QCOMPARE(squares.value(4).left(12), squares.isEmpty() ? QString() : u"    ####### "_s);
    }

    void printsCodesOnlyWithTheirSecrets()
    {
        const auto codes = [](bool hasSecrets, const QString &password) {
            return itemsOf<PageItem::Squares>(
                       KeeperPages::emergencySheet(
                           {.entries = {network(u"Home"_s, password)}, .hasSecrets = hasSecrets}, context))
                .size();
        };
        QCOMPARE(codes(true, u"secret"_s), WiFiCode::canMake() ? 1 : 0);
        QCOMPARE(codes(false, u"secret"_s), 0);
        QCOMPARE(codes(true, QString(5000, u'x')), 0); // no code holds that much
    }
};

QTEST_APPLESS_MAIN(TestKeeperPages)
#include "tst_keeperpages.moc"
