// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/failingdisk.h"
#include "tests/support/household.h"
#include "tests/support/rows.h"
#include "tests/support/testfiles.h"
#include "weight/model/messages.h"
#include "weight/model/personfiles.h"
#include "weight/model/personlist.h"
#include "weight/model/toldfigures.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QLoggingCategory>

using namespace Qt::Literals::StringLiterals;

namespace {

using Files = QMap<QString, QByteArray>;
using Refusal = std::optional<Message>;
using State = PersonFiles::State;

const QDateTime now(QDate(2026, 11, 22), QTime(12, 0));
const QString karin = u"Karin Holm"_s;
const QString zoe = u"Zoë Marsh"_s;

/// The lines of a file before the weigh-ins.
const QByteArray head =
    "\"January 05, 2026\"\r\n\"152.\"\r\n\"140.\"\r\n\"4\"\r\n\"45 minutes\"\r\n\"Walking\"\r\n"
    "\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n";
const QByteArray rowsOfTwo = "\"01/05/2026\"\r\n\"152.\"\r\n\"01/12/2026\"\r\n\"151.4\"\r\n";
const QByteArray listOfHousehold =
    "\"Karin Holm\"\r\n\"Nils Holm 2026\"\r\n\"Zo\xeb Marsh\"\r\n\"Jos\xe9 Ortega\"\r\n";

WeightSheet sheetOf(const QString &name)
{
    WeightSheet sheet;
    sheet.field(WeightSheet::Name) = name;
    return sheet;
}

QStringList textsOf(const WeightTable &table)
{
    QStringList texts;
    for (qsizetype row = 0; row < table.rowCount(); ++row)
        texts << table.date(row) << table.weight(row);
    return texts;
}

} // namespace

/// Persons are made, saved, renamed, deleted and brought back: the bytes of the folder.
class TestPersonFiles : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        QDir folder(m_test.folder().path());
        QVERIFY(folder.removeRecursively() && folder.mkpath(u"."_s));
        const QStringList names{u"WeightTrker.Fil"_s, u"Karin Holm.Fil"_s,  u"Nils Holm 2026.Fil"_s,
                                u"Zoë Marsh.Fil"_s,   u"José Ortega.Fil"_s, u"2026.Fil"_s};
        for (const QString &name : names)
            m_test.put(name, contentOf(householdPath(name)));
    }

    void readsTheHousehold()
    {
        const QJsonObject expected = expectedOf(u"weights"_s);
        QCOMPARE(m_persons.names(), expected[u"selector"].toVariant().toStringList());
        static constexpr std::array keys{"beginning_date",       "beginning_weight",  "goal_weight",
                                         "days_per_week",        "time_per_period",   "types_of_exercise",
                                         "beginning_photo_date", "current_photo_date"};
        for (const QString &name : m_persons.names()) {
            const QJsonObject person = expected[u"persons"][name].toObject();
            const QJsonObject fields = person[u"fields"].toObject();
            const PersonFiles::Found found = m_persons.read(name);
            QCOMPARE(found.state, State::Whole);
            QCOMPARE(found.sheet.field(WeightSheet::Name), name);
            for (std::size_t field = 0; field < keys.size(); ++field)
                QCOMPARE(found.sheet.fields[field + 1], fields[QLatin1StringView(keys[field])].toString());
            QCOMPARE(found.sheet.comments, fields[u"comments"].toString());
            QCOMPARE(found.sheet.beginningPicture, fields[u"beginning_picture"].toString());
            QCOMPARE(found.sheet.currentPicture, fields[u"current_picture"].toString());
            QStringList table;
            for (const QJsonValue &row : person[u"table"].toArray())
                table << row[0].toString() << row[1].toString();
            QCOMPARE(textsOf(found.sheet.weighIns), table);
            QCOMPARE(PersonFiles::encode(found.sheet), m_test.bytes(PersonFiles::fileName(name)));
        }
        QVERIFY(m_persons.unlisted().isEmpty());
    }

    void trustsOnlyWhatIsThere_data()
    {
        const QStringList two{u"01/05/2026"_s, u"152."_s, u"01/12/2026"_s, u"151.4"_s};
        rows<QByteArray, State, QStringList, QStringList>({
            {"as it is written", "\"3\"\r\n" + head + rowsOfTwo, State::Whole, two, {}},
            {"the heading alone", "\"1\"\r\n" + head, State::Whole, {}, {}},
            {"one row counted", "\"2\"\r\n" + head + rowsOfTwo, State::Whole, two.first(2), two.last(2)},
            {"none counted", "\"0\"\r\n" + head + rowsOfTwo, State::Whole, {}, two},
            {"too many counted", "\"2000000000\"\r\n" + head + rowsOfTwo, State::Cut, two, {}},
            {"cut before a weight",
             "\"3\"\r\n" + head + rowsOfTwo.chopped(9),
             State::Cut,
             QStringList(two.first(3) + QStringList(QString())),
             {}},
            {"cut in a weight",
             "\"3\"\r\n" + head + rowsOfTwo.chopped(5),
             State::Cut,
             QStringList(two.first(3) + QStringList(u"151"_s)),
             {}},
            {"cut in the head", "\"3\"\r\n" + head.first(24), State::Cut, {}, {}},
            {"blanks and zero bytes",
             "\"2\"\r\n" + head + "\" 01/05/2026 \"\r\n\"15\0002.\"\r\n"_ba,
             State::Whole,
             two.first(2),
             {}},
            {"bare line ends and an end mark",
             QByteArray("\"3\"\r\n" + head + rowsOfTwo).replace("\r\n", "\n").append('\x1a'),
             State::Whole,
             two,
             {}},
            {"nothing", {}, State::Empty, {}, {}},
            {"a budget", contentOf(householdPath(u"2026.Fil"_s)), State::Foreign, {}, {}},
            {"noise", noiseOf(5000), State::Foreign, {}, {}},
        });
    }

    void trustsOnlyWhatIsThere()
    {
        const auto [bytes, state, counted, uncounted] = row<QByteArray, State, QStringList, QStringList>();
        const PersonFiles::Found found = PersonFiles::decode(bytes);
        QCOMPARE(found.state, state);
        QCOMPARE(textsOf(found.sheet.weighIns), counted);
        QCOMPARE(textsOf(found.uncounted), uncounted);
        QCOMPARE(found.mayBeWritten(), state != State::Foreign);
    }

    void keepsCommentsOfSeveralLines()
    {
        WeightSheet sheet = m_persons.read(u"Nils Holm 2026"_s).sheet;
        const QString shown = sheet.shownComments();
        QCOMPARE(
            shown,
            u"Knee is still weak, no running.\nSays the doctor: \"Swim\" instead.\nNext check in May."_s);
        const WeightSheet before = sheet;
        sheet.setShownComments(shown);
        QCOMPARE(sheet, before);
        sheet.setShownComments(u"\"Swim\",\nhe says \"soon\""_s);
        QVERIFY(PersonFiles::encode(sheet).contains("\r\n\"\"Swim'',\r\nhe says \"soon\"\"\r\n\"\"\r\n"));
        QCOMPARE(PersonFiles::decode(PersonFiles::encode(sheet)).sheet.comments,
                 u"\"Swim'',\r\nhe says \"soon\""_s);
    }

    void editsAndSorts()
    {
        WeightTable table;
        const QList<WeighIn> entered{{u"03/02/2026"_s, u"179.5"_s},
                                     {u"soon"_s, u"180."_s},
                                     {u"01/05/2026"_s, {}},
                                     {u"01/05/2026"_s, u"181.2"_s}};
        for (const WeighIn &weighIn : entered)
            table.append(weighIn);
        QCOMPARE(table.day(0), QDate(2026, 3, 2));
        QVERIFY(!table.day(1).isValid());
        QCOMPARE(table.number(1), std::optional(180.0F));
        QVERIFY(!table.number(2));
        const auto order = [&table] {
            QList<qsizetype> rows;
            for (qsizetype row = 0; row < table.rowCount(); ++row)
                rows << table.weight(row).size();
            return rows;
        };
        table.sort(WeightTable::Column::Date, Qt::AscendingOrder);
        QCOMPARE(textsOf(table), (QStringList{u"01/05/2026"_s,
                                              {},
                                              u"01/05/2026"_s,
                                              u"181.2"_s,
                                              u"03/02/2026"_s,
                                              u"179.5"_s,
                                              u"soon"_s,
                                              u"180."_s}));
        table.sort(WeightTable::Column::Weight, Qt::DescendingOrder);
        QCOMPARE(order(), (QList<qsizetype>{5, 4, 5, 0}));
        table.setWeight(3, u" 178. "_s);
        table.setDate(3, u"02/01/2026"_s);
        table.remove(0);
        table.insert(0, {u"02/02/2026"_s, u"177.9"_s});
        QCOMPARE(table.at(3), (WeighIn{u"02/01/2026"_s, u"178."_s}));
        QCOMPARE(table.number(3), std::optional(178.0F));
        QCOMPARE(table.weight(0), u"177.9"_s);
    }

    void makesANewPerson()
    {
        WeightSheet sheet = sheetOf(u" Anne 2027 "_s);
        sheet.field(WeightSheet::GoalWeight) = u"140."_s;
        sheet.comments = u"a\r\nb"_s;
        sheet.currentPicture = u"C:\\a.jpg"_s;
        sheet.weighIns.append({u"01/05/2026"_s, u"152."_s});
        Files expected = filesOf(m_test);
        std::optional<WholeFilesChange> change = m_persons.create(sheet);
        QVERIFY(change);
        const Files before = expected;
        expected[u"Anne 2027.Fil"_s] =
            "\"2\"\r\n\"\"\r\n\"\"\r\n\"140.\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n"
            "\"a\r\nb\"\r\n\"\"\r\n\"C:\\a.jpg\"\r\n\"01/05/2026\"\r\n\"152.\"\r\n";
        expected[PersonList::fileName()] = listOfHousehold + "\"Anne 2027\"\r\n";
        QCOMPARE(filesOf(m_test), expected);
        QCOMPARE(change->undo(m_test.folder()), ChangeResult::Done);
        QCOMPARE(filesOf(m_test), before);
        QCOMPARE(change->redo(m_test.folder()), ChangeResult::Done);
        QCOMPARE(filesOf(m_test), expected);
        m_test.put(u"Anne 2027.Fil"_s, "changed");
        QCOMPARE(change->undo(m_test.folder()), ChangeResult::Outdated);
    }

    void refusesNames_data()
    {
        const auto reserved = [](const QString &name) {
            return Refusal(WeightMessages::nameReserved(name + u".Fil"_s));
        };
        rows<QString, Refusal>({
            {"a name", u"Zoë M. O'Hara-Smith 2026"_s, {}},
            {"100 characters", QString(100, u'é'), {}},
            {"101 characters", QString(101, u'é'), WeightMessages::nameTooLong()},
            {"none", u"  "_s, WeightMessages::nameMissing()},
            {"a path", u"a/b\\c:d"_s, WeightMessages::nameNoFile(u"/\\:"_s)},
            {"wildcards and quotes", u"\"<*?|>\""_s, WeightMessages::nameNoFile(u"\"<*?|>"_s)},
            {"a tab", u"a\tb"_s, WeightMessages::nameNoFile(u"\t"_s)},
            {"a folder", u".."_s, WeightMessages::nameHidden()},
            {"a foreign letter", u"Ωmega"_s, WeightMessages::nameForeign(u"Ω"_s)},
            {"a device", u"con"_s, reserved(u"con"_s)},
            {"a device with an ending", u"Lpt1.old"_s, reserved(u"Lpt1.old"_s)},
            {"no device", u"Connie"_s, {}},
            {"a year", u" 2026"_s, reserved(u"2026"_s)},
            {"the list", u"weighttrker"_s, reserved(u"weighttrker"_s)},
            {"the rebuilt table", u"Temp"_s, reserved(u"Temp"_s)},
            {"colours", u"GCOLOR3"_s, reserved(u"GCOLOR3"_s)},
            {"a car", u"mcar12"_s, reserved(u"mcar12"_s)},
            {"the list of cars", u"CarMnt1"_s, reserved(u"CarMnt1"_s)},
            {"the To Do list", u"todo1"_s, reserved(u"todo1"_s)},
            {"the journal", u"DJour3"_s, reserved(u"DJour3"_s)},
            {"its key", u"DJourKey"_s, reserved(u"DJourKey"_s)},
            {"no journal", u"DJournal"_s, {}},
            {"holidays", u"holiday1"_s, reserved(u"holiday1"_s)},
            {"one who is there", u"ZOË marsh "_s, WeightMessages::nameTaken(u"ZOË marsh"_s)},
            {"a file that is in no list", u"left"_s, WeightMessages::nameTaken(u"left"_s)},
        });
    }

    void refusesNames()
    {
        const auto [name, refusal] = row<QString, Refusal>();
        m_test.put(u"Left.Fil"_s, "anything");
        const Files before = filesOf(m_test);
        QCOMPARE(m_persons.whyNotNew(name), refusal);
        if (refusal) {
            QVERIFY(!m_persons.create(sheetOf(name)));
            QVERIFY(!m_persons.save(karin, sheetOf(name)));
            QCOMPARE(filesOf(m_test), before);
        }
    }

    void reservesTheNamesOfItsOwnFiles()
    {
        QFile table(QStringLiteral(QUILLERY_TEST_DATA "/../../docs/files.md"));
        QVERIFY(table.open(QIODevice::ReadOnly));
        static const QRegularExpression file(u"`([^`<>/]+)\\.fil`"_s,
                                             QRegularExpression::CaseInsensitiveOption);
        const QString text = QString::fromUtf8(table.readAll());
        int count = 0;
        for (auto found = file.globalMatch(text); found.hasNext(); ++count) {
            const QString name = found.next().captured(1);
            QVERIFY2(name == u"Anne" || PersonFiles::whyNotNamed(name), qPrintable(name));
        }
        QVERIFY(count > 20);
    }

    void savesAndRenames()
    {
        Files expected = filesOf(m_test);
        WeightSheet sheet = m_persons.read(karin).sheet;
        sheet.weighIns.append({u"11/22/2026"_s, u"151.2"_s});
        QVERIFY(m_persons.save(karin, sheet));
        expected[u"Karin Holm.Fil"_s]
            .replace("\"1\"\r\n", "\"2\"\r\n")
            .append("\"11/22/2026\"\r\n\"151.2\"\r\n");
        QCOMPARE(filesOf(m_test), expected);

        // The file, the list and what the card may tell take another name at once.
        QVERIFY(ToldFigures::setTold(m_test.folder(), karin, true));
        sheet.field(WeightSheet::Name) = u"Karin Lind"_s;
        std::optional<WholeFilesChange> change = m_persons.save(karin, sheet);
        QVERIFY(change);
        const Files former = expected;
        expected.insert(u"Karin Lind.Fil"_s, expected.take(u"Karin Holm.Fil"_s));
        expected[PersonList::fileName()].replace("Karin Holm", "Karin Lind");
        expected[ToldFigures::fileName()] = "\"Karin Lind\"\r\n";
        QCOMPARE(filesOf(m_test), expected);
        QCOMPARE(change->undo(m_test.folder()), ChangeResult::Done);
        QCOMPARE(m_test.bytes(u"Karin Holm.Fil"_s), former[u"Karin Holm.Fil"_s]);
        QVERIFY(!m_test.folder().exists(u"Karin Lind.Fil"_s));

        // Another case is the same file.
        sheet.field(WeightSheet::Name) = u"KARIN Holm"_s;
        QVERIFY(m_persons.save(karin, sheet));
        QCOMPARE(m_persons.names().first(), u"KARIN Holm"_s);
        QCOMPARE(m_persons.read(u"KARIN Holm"_s).sheet.weighIns.rowCount(), 1);
    }

    void leavesAloneWhatIsNoPersonsFile()
    {
        m_test.put(PersonList::fileName(), "\"2026\"\r\n\"Noise\"\r\n");
        m_test.put(u"Noise.Fil"_s, noiseOf(500));
        const Files before = filesOf(m_test);
        for (const QString &name : {u"2026"_s, u"Noise"_s, u"Somebody else"_s}) {
            expectWarning("^Refused to write ");
            QVERIFY(!m_persons.save(name, sheetOf(name)));
        }
        QCOMPARE(filesOf(m_test), before);
        QVERIFY(m_persons.remove(u"2026"_s, now));
        QCOMPARE(m_test.bytes(u"2026.Fil"_s), before[u"2026.Fil"_s]);
        QCOMPARE(m_persons.names(), QStringList(u"Noise"_s));
    }

    void findsThePersonsOfAMissingList()
    {
        QVERIFY(QFile::remove(m_test.path(PersonList::fileName())));
        m_test.put(u"Budget.Fil"_s, contentOf(householdPath(u"2026.Fil"_s)));
        QStringList names{u"José Ortega"_s, karin, u"Nils Holm 2026"_s, zoe};
        QCOMPARE(m_persons.names(), names);
        // The next save writes the list again.
        QVERIFY(m_persons.save(karin, m_persons.read(karin).sheet));
        QCOMPARE(PersonList(m_test.folder()).names(), names);
        m_test.put(PersonList::fileName(), "\"Karin Holm\"\r\n\"karin holm\"\r\n\"\"\r\n\"Gone\"\r\n");
        names.removeOne(karin);
        QCOMPARE(m_persons.names(), (QStringList{karin, u"Gone"_s}));
        QCOMPARE(m_persons.unlisted(), names);
        QVERIFY(m_persons.addToList(names));
        QCOMPARE(m_persons.names(), (QStringList{karin, u"Gone"_s}) + names);
    }

    void deletesAndBringsBack()
    {
        QVERIFY(ToldFigures::setTold(m_test.folder(), zoe, true));
        const Files before = filesOf(m_test);
        std::optional<WholeFilesChange> change = m_persons.remove(zoe, now);
        QVERIFY(change);
        Files expected = before;
        expected.remove(u"Zoë Marsh.Fil"_s);
        expected[PersonList::fileName()].replace("\"Zo\xeb Marsh\"\r\n", "");
        expected[ToldFigures::fileName()] = {};
        Files found = filesOf(m_test);
        QVERIFY(found.remove(Trash::fileName) == 1);
        QCOMPARE(found, expected);
        QCOMPARE(change->undo(m_test.folder()), ChangeResult::Done);
        found = filesOf(m_test);
        found.remove(Trash::fileName);
        QCOMPARE(found, before);
        QCOMPARE(change->redo(m_test.folder()), ChangeResult::Done);

        QCOMPARE(m_persons.deletedPersons(now.addDays(31)).size(), 0U);
        const auto deleted = m_persons.deletedPersons(now);
        QCOMPARE(deleted.size(), 1U);
        QCOMPARE(deleted.front().title, zoe);
        PersonFiles::BroughtBack back = m_persons.bringBack(deleted.front());
        QVERIFY(back.isDone);
        QCOMPARE(back.name, zoe);
        QCOMPARE(m_test.bytes(u"Zoë Marsh.Fil"_s), before[u"Zoë Marsh.Fil"_s]);
        QCOMPARE(m_test.bytes(PersonList::fileName()), listOfHousehold);
        QVERIFY(m_persons.deletedPersons(now).empty());

        // Beside one who has the name by now.
        QVERIFY(m_persons.remove(zoe, now));
        QVERIFY(m_persons.create(sheetOf(zoe)));
        back = m_persons.bringBack(m_persons.deletedPersons(now).front());
        QCOMPARE(back.name, u"Zoë Marsh 2"_s);
        QCOMPARE(m_test.bytes(u"Zoë Marsh 2.Fil"_s), before[u"Zoë Marsh.Fil"_s]);
    }

    void bringsBackBesideTheLongestName()
    {
        const QString name = u"%1"_s + QString(98, u'x');
        QVERIFY(m_persons.create(sheetOf(name)));
        const QByteArray file = m_test.bytes(name + u".Fil"_s);
        QVERIFY(!file.isEmpty() && m_persons.remove(name, now));
        QVERIFY(m_persons.create(sheetOf(name)));
        const PersonFiles::BroughtBack back = m_persons.bringBack(m_persons.deletedPersons(now).front());
        QCOMPARE(back.name, name.chopped(2) + u" 2"_s);
        QCOMPARE(m_test.bytes(back.name + u".Fil"_s), file);
    }

    void isOldOrNewAfterEveryFailure_data()
    {
        using Action = bool (*)(PersonFiles &);
        rows<Action>({
            {"save",
             [](PersonFiles &persons) {
                 WeightSheet sheet = persons.read(karin).sheet;
                 sheet.weighIns.append({u"11/22/2026"_s, u"151.2"_s});
                 return persons.save(karin, sheet).has_value();
             }},
            {"rename",
             [](PersonFiles &persons) {
                 WeightSheet sheet = persons.read(karin).sheet;
                 sheet.field(WeightSheet::Name) = u"Karin Lind"_s;
                 return persons.save(karin, sheet).has_value();
             }},
            {"make", [](PersonFiles &persons) { return persons.create(sheetOf(u"Anne"_s)).has_value(); }},
            {"delete", [](PersonFiles &persons) { return persons.remove(zoe, now).has_value(); }},
        });
    }

    void isOldOrNewAfterEveryFailure()
    {
        const auto [action] = row<bool (*)(PersonFiles &)>();
        QLoggingCategory::setFilterRules(u"*.warning=false"_s);
        failAtEachStep(
            m_test.folder(), [this] { init(); }, [this, action = action] { return action(m_persons); },
            [this] {
                Files files = filesOf(m_test);
                files.remove(ChangeSet::journalName);
                return files;
            });
        QLoggingCategory::setFilterRules({});
    }

    void namesItsFiles()
    {
        m_test.put(u"Left.Fil"_s, "\"1\"\r\n" + head);
        QCOMPARE(PersonFiles::files(m_test.folder()),
                 (QStringList{u"WeightTrker.Fil"_s, u"Karin Holm.Fil"_s, u"Nils Holm 2026.Fil"_s,
                              u"Zoë Marsh.Fil"_s, u"José Ortega.Fil"_s, u"Left.Fil"_s}));
        QVERIFY(PersonFiles::files(TestFolder().folder()).isEmpty());
        // By names alone, nothing that is another function's.
        const TestFolder names;
        for (const QString &name :
             {u"WeightTrker.Fil"_s, u"Karin Holm.Fil"_s, u"2026.Fil"_s, u"Addbk1.Fil"_s})
            names.put(name, {});
        QCOMPARE(PersonFiles::files(names.folder()),
                 (QStringList{u"WeightTrker.Fil"_s, u"Karin Holm.Fil"_s}));
        QVERIFY(PersonFiles::pictures(m_test.folder()).isEmpty());
        // Under another spelling, where the folder is a different one.
        m_test.put(u"Jose Before.jpg"_s, "picture");
        const QStringList pictures = PersonFiles::pictures(m_test.folder());
        QCOMPARE(pictures.size(), 1);
        QCOMPARE(QFileInfo(pictures.first()), QFileInfo(m_test.path(u"Jose Before.jpg"_s)));
    }

private:
    static Files filesOf(const TestFolder &test)
    {
        Files files;
        for (const QString &name : QDir(test.folder().path()).entryList(QDir::Files))
            files.insert(name, test.bytes(name));
        return files;
    }

    TestFolder m_test;
    PersonFiles m_persons{m_test.folder()};
};

QTEST_GUILESS_MAIN(TestPersonFiles)
#include "tst_personfiles.moc"
