// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/model/keepercsv.h"
#include "keeper/model/keeperexport.h"
#include "keeper/model/keeperxml.h"
#include "tests/support/rows.h"

using namespace Qt::Literals::StringLiterals;

namespace {

using Beside = KeeperImport::Beside;

KeeperEntry entry(const QList<std::pair<quint8, QString>> &texts, const QByteArray &id = {})
{
    KeeperEntry entry;
    entry.id = id;
    for (const auto &[field, text] : texts)
        entry.setText(field, text);
    return entry;
}

/// A keeper that has these.
KeeperImport::There keeperOf(const QList<KeeperEntry> &entries)
{
    KeeperImport::There there;
    for (const KeeperEntry &entry : entries) {
        there.entries.append({.id = entry.id,
                              .kind = entry.kind(),
                              .title = entry.text(KeeperField::Title),
                              .userName = entry.text(KeeperField::UserName),
                              .address = entry.text(KeeperField::Address)});
    }
    there.open = [entries](const QByteArray &id) {
        const auto found = std::ranges::find(entries, id, &KeeperEntry::id);
        return found == entries.end() ? std::nullopt : std::optional(*found);
    };
    return there;
}

/// The lines with what becomes of them: "Power company|anne|secret|example.org||notes|tags|expires: New".
QStringList told(const KeeperImport &import)
{
    using namespace KeeperField;
    QStringList lines;
    for (std::size_t i = 0; i < import.lineCount(); ++i) {
        const KeeperEntry &entry = import.line(i).entry;
        QStringList texts;
        for (const quint8 id : {Title, UserName, Password, Address, OneTimeSecret, Notes, Tags, Expires})
            texts << entry.text(id);
        for (const KeeperText &field : entry.fields) {
            if (field.id == Own)
                texts << field.name + (field.isSecret ? u"*="_s : u"="_s) + field.text;
        }
        QString line = texts.join(u'|');
        while (line.endsWith(u'|'))
            line.chop(1);
        lines << QString::number(import.lineNumber(i)) + u' ' + line + u": "_s + import.whatBecomesOf(i);
    }
    return lines;
}

void readAll(KeeperImport &import)
{
    int steps = 0;
    while (import.step())
        QVERIFY(++steps < 100'000);
}

QByteArray utf16(const QString &text, bool hasMark)
{
    QByteArray bytes = hasMark ? "\xFF\xFE"_ba : QByteArray();
    for (const QChar character : text) {
        bytes += char(character.unicode() & 0xff);
        bytes += char(character.unicode() >> 8);
    }
    return bytes;
}

QByteArray xml(const QByteArray &entries)
{
    return "<?xml version=\"1.0\" "
           "encoding=\"utf-8\"?>\n<KeePassFile><Meta><RecycleBinUUID>AAE=</RecycleBinUUID>"
           "</Meta><Root><Group><UUID>AAA=</UUID><Name>Household</Name>\n" +
           entries + "\n</Group></Root></KeePassFile>";
}

QByteArray string(const QByteArray &key, const QByteArray &value)
{
    return "<String><Key>" + key + "</Key><Value>" + value + "</Value></String>";
}

const QString umlauts = u"title,username,password\nMüller,jürg,geheim\n"_s;

} // namespace

/// Entries of other programs on their way in.
class TestKeeperImport : public QObject
{
    Q_OBJECT
private slots:
    void readsTables_data()
    {
        const QStringList german{u"2 Müller|jürg|geheim: Will be taken"_s};
        rows<QByteArray, QStringList>({
            {"UTF-8", umlauts.toUtf8(), german},
            {"UTF-8 with a mark", "\xEF\xBB\xBF" + umlauts.toUtf8(), german},
            {"UTF-16", utf16(umlauts, true), german},
            {"UTF-16 without a mark", utf16(umlauts, false), german},
            {"Windows-1252", "title,username,password\nM\xFCller,j\xFCrg,geheim\n", german},
            {"semicolons, line ends of Windows",
             "Titel;Benutzername;Kennwort;Adresse\r\nBank;anne;x;bank.example\r\n",
             {u"2 Bank|anne|x|bank.example: Will be taken"_s}},
            {"a browser's file",
             "name,url,username,password,note\nexample.org,https://example.org/login,anne,\" a  b \",\n",
             {u"2 example.org|anne| a  b |https://example.org/login: Will be taken"_s}},
            {"another browser's, without titles",
             "\"url\",\"username\",\"password\",\"httpRealm\",\"formActionOrigin\",\"guid\"\n"
             "\"https://www.shop.example/\",\"anne\",\"p\"\"w\",,\"https://x.example\",\"{1}\"\n",
             {u"2 shop.example|anne|p\"w|https://www.shop.example/: Will be taken"_s}},
            {"groups, a one-time secret, notes of two lines",
             "Group,Title,Username,Password,URL,Notes,TOTP\n"
             "Root/Internet/Shops,Shop,anne,pw,,\"one\ntwo\",JBSWY3DP\n",
             {u"2 Shop|anne|pw||JBSWY3DP|one\ntwo|Internet, Shops: Will be taken"_s}},
            {"names that hold other names",
             "folder,favorite,type,name,notes,fields,login_uri,login_username,login_password,login_totp\n"
             "Home,1,login,Post,,,post.example,nils,pw,\nHome,,note,Safe,behind the clock,,,,,\n",
             {u"2 Post|nils|pw|post.example|||Home: Will be taken"_s,
              u"3 Safe|||||behind the clock|Home: Will be taken"_s}},
            {"dates",
             "title,password,expires\nA,x,31.12.2027\nB,x,2028-02-29T10:00:00\nC,x,never\n",
             {u"2 A||x|||||2027-12-31: Will be taken"_s, u"3 B||x|||||2028-02-29: Will be taken"_s,
              u"4 C||x|||Expires: never: Will be taken"_s}},
            {"bad lines among good ones",
             "title,username,password\nA,anne,x\n,,\nB,nils,\"y\nC,karin,z\x02\nA,anne,x\nD,olaf,w\n",
             {u"2 A|anne|x: Will be taken"_s, u"3 : Not read: there is nothing in its known columns"_s,
              u"4 : Not read: a quote has no end"_s, u"5 : Not read: it has characters that are no text"_s,
              u"6 A|anne|x: As line 2"_s, u"7 D|olaf|w: Will be taken"_s}},
            {"more cells than headings",
             "title,username,password\nA,anne,se,cret\nB,nils,pw\nC,ka,rin,\n",
             {u"2 : Not read: it has 4 cells for 3 headings; a text lacks quotes"_s,
              u"3 B|nils|pw: Will be taken"_s,
              u"4 : Not read: it has 4 cells for 3 headings; a text lacks quotes"_s}},
            {"a separator at the end of every line",
             "title,username\nA,anne,\nB,nils,\n",
             {u"2 A|anne: Will be taken"_s, u"3 B|nils: Will be taken"_s}},
            {"too long for an entry",
             "title,notes\nA," + QByteArray(64'000, 'n') + "\n",
             {u"2 : Not read: it is too long for an entry"_s}},
            {"nothing", "", {}},
        });
    }

    void readsTables()
    {
        const auto [bytes, expected] = row<QByteArray, QStringList>();
        KeeperCsvImport import(bytes, {}, DateStyle::Usa);
        readAll(import);
        QCOMPARE(import.refusal(), QString());
        QCOMPARE(told(import), expected);
    }

    void readsXml_data()
    {
        rows<QByteArray, QStringList>({
            {"an entry of the outermost group",
             "<Entry>" + string("Title", "Bank &amp; Co.") + string("UserName", "anne") +
                 "<String><Key>Password</Key><Value ProtectInMemory=\"True\"> a  b </Value></String>" +
                 string("URL", "bank.example") + string("Notes", "one&#10;two") +
                 "<Tags>money;family</Tags></Entry>",
             {u"3 Bank & Co.|anne| a  b |bank.example||one\ntwo|money, family: Will be taken"_s}},
            {"groups as tags",
             "<Group><Name>Internet</Name><Group><Name>Shops, large</Name><Entry>" + string("Title", "Shop") +
                 "</Entry></Group><Entry>" + string("Title", "Post") + "</Entry></Group>",
             {u"3 Shop||||||Internet, Shops  large: Will be taken"_s,
              u"3 Post||||||Internet: Will be taken"_s}},
            {"earlier versions stay behind",
             "<Entry>" + string("Title", "Now") + "<History><Entry>" + string("Title", "Before") +
                 "</Entry></History></Entry>",
             {u"3 Now: Will be taken"_s}},
            {"own fields, an attachment",
             "<Entry>" + string("Title", "Club") +
                 "<String><Key>PUK</Key><Value ProtectInMemory=\"True\">77</Value></String>" +
                 string("Number", "12") + "<Binary><Key>a.pdf</Key><Value Ref=\"0\"/></Binary></Entry>",
             {u"3 Club||||||||PUK*=77|Number=12: Will be taken; its attachment stays behind"_s}},
            {"when it expires",
             "<Entry>" + string("Title", "A") +
                 "<Times><ExpiryTime>2027-05-01T00:00:00Z</ExpiryTime><Expires>True</Expires></Times></Entry>"
                 "<Entry>" +
                 string("Title", "B") +
                 "<Times><ExpiryTime>2027-05-01T00:00:00Z</ExpiryTime><Expires>False</Expires></Times></"
                 "Entry>"
                 "<Entry>" +
                 string("Title", "C") +
                 "<Times><ExpiryTime>gHwG3w4AAAA=</ExpiryTime><Expires>True</Expires></Times></Entry>",
             {u"3 A|||||||2027-05-01: Will be taken"_s, u"3 B: Will be taken"_s,
              u"3 C|||||||2025-01-01: Will be taken"_s}},
            {"one-time secrets of several programs",
             "<Entry>" + string("Title", "A") + string("otp", "otpauth://totp/x?secret=JBSWY3DP") +
                 "</Entry><Entry>" + string("Title", "B") + string("TimeOtp-Secret-Base32", "jbsw y3dp") +
                 string("TimeOtp-Algorithm", "HMAC-SHA-256") + "</Entry><Entry>" + string("Title", "C") +
                 string("TOTP Seed", "JBSWY3DP") + string("TOTP Settings", "30;6") + "</Entry>",
             {u"3 A||||otpauth://totp/x?secret=JBSWY3DP: Will be taken"_s,
              u"3 B||||otpauth://totp/?secret=JBSWY3DP&algorithm=SHA256&digits=6&period=30: Will be taken"_s,
              u"3 C||||JBSWY3DP: Will be taken"_s}},
            {"the recycle bin",
             "<Group><UUID>AAE=</UUID><Name>Bin</Name><Entry>" + string("Title", "Old") + "</Entry></Group>",
             {u"3 Old||||||Bin: Left out: it lies in the recycle bin"_s}},
            {"enciphered and empty entries",
             "<Entry><String><Key>Password</Key><Value Protected=\"True\">x3==</Value></String></Entry>\n"
             "<Entry><UUID>x</UUID></Entry>",
             {u"3 ||x3==: Not read: its secrets are enciphered: export the file once more as plain XML"_s
                  .remove(u"||x3=="_s),
              u"4 : Not read: there is nothing in it"_s}},
        });
    }

    void readsXml()
    {
        const auto [entries, expected] = row<QByteArray, QStringList>();
        const QByteArray bytes = xml(entries);
        QVERIFY(KeeperXmlImport::isLikely(bytes));
        KeeperXmlImport import(bytes, {});
        readAll(import);
        QCOMPARE(import.refusal(), QString());
        QCOMPARE(told(import), expected);
    }

    void takesWhatIsReadableOfATornFile()
    {
        KeeperXmlImport import(xml("<Entry>" + string("Title", "A") + "</Entry>\n<Entry><Str"), {});
        readAll(import);
        QCOMPARE(told(import),
                 QStringList({u"3 A: Will be taken"_s,
                              u"5 : Not read: this is not well-formed XML; nothing behind it is known"_s}));
    }

    void refusesWhatIsNoFileOfEntries_data()
    {
        QByteArray noise;
        for (quint32 i = 1, x = 12345; i < 100'000; ++i, x = x * 1664525 + 1013904223)
            noise += char(x >> 24);
        QByteArray bomb = "<?xml version=\"1.0\"?>\n<!DOCTYPE x [<!ENTITY a0 \"aaaaaaaaaa\">";
        for (int i = 1; i < 30; ++i)
            bomb += "<!ENTITY a" + QByteArray::number(i) + " \"&a" + QByteArray::number(i - 1) + ";&a" +
                    QByteArray::number(i - 1) + ";\">";
        bomb += "]>\n<KeePassFile>&a29;</KeePassFile>";
        rows<bool, QByteArray, QString>({
            {"noise", false, noise, u"Line 1 is not text: this is no table of entries"_s},
            {"a million columns", false, "title,password\nA,x\n" + QByteArray(1'000'000, ',') + "\n",
             u"Line 3 has more than 500 columns: this is no table of entries"_s},
            {"a long file", false, QByteArray(100 * 1024 * 1024, 'a'),
             u"Line 1 was not read: the file is longer than 64 MiB"_s},
            {"noise as XML", true, noise, u"Line 1 cannot be read: this is not well-formed XML"_s},
            {"nested entities", true, bomb, u"Line 2 declares entities, which no file of entries needs"_s},
            {"another XML", true, "<?xml version=\"1.0\"?>\n<html><body/></html>",
             u"Line 2 begins something else than a KeePass 2 file"_s},
            {"groups without end", true, "<KeePassFile><Root>\n" + QByteArray("<Group>").repeated(100'000),
             u"Line 2 is in more than 64 groups"_s},
            {"elements without end", true, "<KeePassFile>" + QByteArray("<a>").repeated(1'000'000),
             u"Line 1 cannot be read: the file ends in the middle"_s},
            {"a long XML", true, "<KeePassFile>" + QByteArray(100 * 1024 * 1024, ' '),
             u"Line 1 was not read: the file is longer than 64 MiB"_s},
        });
    }

    void refusesWhatIsNoFileOfEntries()
    {
        const auto [isXml, bytes, refusal] = row<bool, QByteArray, QString>();
        if (isXml) {
            KeeperXmlImport import(bytes, {});
            readAll(import);
            QCOMPARE(import.refusal(), refusal);
            QCOMPARE(import.lineCount(), std::size_t(0));
        } else {
            KeeperCsvImport import(bytes, {}, DateStyle::Usa);
            readAll(import);
            QCOMPARE(import.refusal(), refusal);
            QCOMPARE(import.lineCount(), std::size_t(0));
        }
    }

    void putsWhatIsThereBesideIt()
    {
        using namespace KeeperField;
        const auto there = keeperOf({entry({{Kind, u"login"_s},
                                            {Title, u"Bank"_s},
                                            {UserName, u"anne"_s},
                                            {Password, u"old"_s},
                                            {Address, u"https://bank.example/in"_s},
                                            {Tags, u"money"_s},
                                            {Member, u"Anne"_s}},
                                           "1"),
                                     entry({{Kind, u"login"_s},
                                            {Title, u"Post"_s},
                                            {UserName, u"anne"_s},
                                            {Password, u"pw"_s},
                                            {Favourite, u"yes"_s}},
                                           "2")});
        KeeperCsvImport import(
            "title,username,password,url,tags,favourite\n"
            "bank.example,Anne,new,bank.example,family,\nPost,anne,pw,,,1\nPost,nils,pw,,,\n",
            there, DateStyle::Usa);
        readAll(import);
        QCOMPARE(import.whatBecomesOf(0), u"There already, but different: user name, password, tags"_s);
        QCOMPARE(import.whatBecomesOf(1), u"There already"_s);
        QCOMPARE(import.whatBecomesOf(2), u"Will be taken"_s);
        QCOMPARE(import.beside(0).value(2), Beside({u"Password"_s, u"old"_s, u"new"_s, true, true}));
        QCOMPARE(import.cell(0, KeeperImport::Password), import.cell(2, KeeperImport::Password));
        QVERIFY(!import.cell(0, KeeperImport::Password).contains(u"new"_s));
        QCOMPARE(import.chosenCount(), 1);

        import.setChosen(0, true);
        import.setChosen(1, true); // there is nothing to take
        QCOMPARE(import.chosenCount(), 2);
        QCOMPARE(import.whatBecomesOf(0), u"Will be the new version: user name, password, tags"_s);
        const QList<KeeperEntry> result = import.result();
        QCOMPARE(result.size(), 2);
        QCOMPARE(result[0], entry({{Kind, u"login"_s},
                                   {Title, u"Bank"_s},
                                   {UserName, u"Anne"_s},
                                   {Password, u"new"_s},
                                   {Address, u"https://bank.example/in"_s},
                                   {Tags, u"money, family"_s},
                                   {Member, u"Anne"_s}},
                                  "1"));
        QVERIFY(result[1].id.isEmpty());
    }

    void readsAgainWhereAColumnIsSaidToBeAnother()
    {
        KeeperCsvImport import("Wort,Wer,Geheimnis\nBank,anne,1234\n", {}, DateStyle::Usa);
        readAll(import);
        QVERIFY(!import.isReadable());
        QCOMPARE(import.columns()->example(2), QString()); // a menu of columns tells no secret
        import.setPlace(KeeperImport::Title, 0);
        import.setPlace(KeeperImport::UserName, 1);
        import.setPlace(KeeperImport::Password, 2);
        QCOMPARE(import.lineCount(), std::size_t(0));
        readAll(import);
        QCOMPARE(told(import), QStringList({u"2 Bank|anne|1234: Will be taken"_s}));
    }

    void exportsWhatItCanBringInAgain()
    {
        using namespace KeeperField;
        QList<KeeperEntry> entries{
            entry({{Title, u"Bank, \"home\""_s},
                   {UserName, u"anne"_s},
                   {Password, u" =1+1 \n"_s},
                   {Notes, u"one\ntwo"_s},
                   {Tags, u"money, A/V"_s},
                   {Member, u"Anne"_s},
                   {Expires, u"2027-12-31"_s},
                   {Favourite, u"1"_s},
                   {Kind, u"login"_s}}),
            entry({{Title, u"Card"_s}, {CardNumber, u"4000"_s}, {CardPin, u"0042"_s}, {Kind, u"card"_s}})};
        entries[1].fields.insert(3, {Own, true, u"PUK"_s, u"77"_s});
        const QByteArray bytes = KeeperExport::csv(entries);
        QCOMPARE(QByteArray(bytes).replace("\r\n", "|"),
                 "\xEF\xBB\xBFKind,Title,User name,Password,Web address,One-time secret,Notes,Tags,Member,"
                 "Expires,Favourite,Card number,PIN,Own secret: PUK|"
                 "Log-in,\"Bank, \"\"home\"\"\",anne,\" =1+1 \n\",,,\"one\ntwo\",\"money, A/V\",Anne,"
                 "2027-12-31,1,,,|"
                 "Card,Card,,,,,,,,,,4000,0042,77|"_ba);
        KeeperCsvImport import(bytes, {}, DateStyle::Other);
        readAll(import);
        QCOMPARE(import.notUsed(), QStringList());
        const QList<KeeperEntry> again = import.result();
        QCOMPARE(again.size(), 2);
        QCOMPARE(again[0], entries[0]);
        QCOMPARE(again[1].fields.size(), entries[1].fields.size());
        for (const KeeperText &field : std::as_const(entries[1].fields))
            QVERIFY2(again[1].fields.contains(field), qPrintable(field.text));
    }
};

QTEST_APPLESS_MAIN(TestKeeperImport)
#include "tst_keeperimport.moc"
