// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/household.h"
#include "tests/support/rows.h"
#include "tests/support/testfiles.h"
#include "todo/model/todonews.h"
#include "todo/model/todosource.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// A Sunday.
const QDate today(2026, 11, 22);

constexpr auto head = "Quillery To Do 1\r\n"
                      "list\t1\tplain\tHome\r\n"
                      "list\t2\ttemplate\tTrip\r\n"
                      "item\t90\t2\t0\t2026-11-22\t\t\t\t\tPack\t\r\n";

/// A line of an item of the list "Home".
QByteArray item(int id, const QByteArray &due, const QByteArray &text, const QByteArray &actual = {},
                const QByteArray &level = "0", const QByteArray &note = {})
{
    return "item\t" + QByteArray::number(id) + "\t1\t" + level + '\t' + due + '\t' + actual + "\t\t\t\t" +
           text + '\t' + note + "\r\n";
}

QStringList told(const QList<DayNote> &notes)
{
    static const QMap<NoteKind, QString> kinds{
        {NoteKind::ToDo, u"to do"_s}, {NoteKind::Overdue, u"overdue"_s}, {NoteKind::Done, u"done"_s}};
    QStringList lines;
    for (const DayNote &note : notes)
        lines << note.date.toString(u"MM-dd "_s) + kinds.value(note.kind) + u' ' +
                     QString::number(note.place.record) + u": "_s + note.text;
    return lines;
}

} // namespace

/// What other functions get to know of the To Do list.
class TestToDoNews : public QObject
{
    Q_OBJECT
private slots:
    void tellsTheMostUrgent_data()
    {
        const QByteArray call = item(1, "2026-11-22", "Call the chimney sweep");
        const QByteArray late = item(2, "2026-11-20", "Renew passports");
        const QByteArray later = item(3, "2026-11-24", "Paint");
        const QByteArray done = item(4, "2026-11-22", "Wash", "2026-11-22");
        const QByteArray any = item(5, "", "Read");
        rows<QByteArray, QString, QString>({
            {"nothing", done, {}, {}},
            {"overdue", late + call + later, u"1 overdue, 1 today"_s,
             u"Two things to do today, one is overdue."_s},
            {"overdue only", late + item(6, "2025-01-01", "Old") + later, u"2 overdue"_s,
             u"Two things to do are overdue."_s},
            {"today", later + call + done, u"Call the chimney sweep, today"_s, u"One thing to do today."_s},
            {"a step", item(7, "", "Tidy") + item(8, "2026-11-22", "Sort", {}, "1"), u"Sort, today"_s,
             u"One thing to do today."_s},
            {"tomorrow", item(9, "2026-11-23", "Paint"), u"Paint, tomorrow"_s, {}},
            {"this week", any + later, u"Paint, Tuesday"_s, {}},
            {"this year", item(9, "2026-12-04", "Paint"), u"Paint, Dec 4"_s, {}},
            {"later", item(9, "2027-12-04", "Paint"), u"Paint, Dec 4, 2027"_s, {}},
            {"no dates", any + item(6, "", "Rest") + item(7, "", "A step", {}, "1"), u"2 things to do"_s, {}},
            {"one", any + item(6, "", "Kitchen", {}, "h"), u"1 thing to do"_s, {}},
        });
    }

    void tellsTheMostUrgent()
    {
        const auto [items, text, sentence] = row<QByteArray, QString, QString>();
        const TestFolder test;
        test.put(u"ToDo1.Fil"_s, head + items);
        const auto line = ToDoNews::liveLine(test.folder(), DateStyle::Usa, today);
        QCOMPARE(line.has_value(), !text.isEmpty());
        if (!line)
            return;
        QCOMPARE(line->text, text);
        QCOMPARE(line->sentence, sentence);
        QCOMPARE(line->urgency, text.contains(u"overdue"_s) ? LiveLine::Overdue
                                : text.endsWith(u"today"_s) ? LiveLine::Due
                                                            : LiveLine::Plain);
    }

    void tellsOfDays()
    {
        const TestFolder test;
        test.put(u"ToDo1.Fil"_s, head + item(1, "2026-11-24", "Paint") + item(2, "2026-11-22", "Call") +
                                     item(3, "2026-11-21", "Sweep") +
                                     item(4, "2026-03-15", "Renew passports") + item(5, "", "Read") +
                                     item(6, "2026-11-01", "Wash", "2026-11-21") +
                                     item(7, "", "A step", "2026-11-22", "1") + item(8, "2025-02-01", "Old"));
        const auto notes = [&](QDate from, QDate to) {
            return told(ToDoNews::dayNotes(test.folder(), DateStyle::Other, from, to, today));
        };
        QCOMPARE(notes(today.addDays(-1), today.addDays(13)),
                 (QStringList{u"11-21 to do 3: Sweep"_s, u"11-21 done 6: Wash, done"_s,
                              u"11-22 overdue 8: Old, due 1 February 2025"_s,
                              u"11-22 overdue 4: Renew passports, due 15 March"_s,
                              u"11-22 overdue 3: Sweep, due 21 November"_s, u"11-22 to do 2: Call"_s,
                              u"11-24 to do 1: Paint"_s}));
        QCOMPARE(notes(today.addDays(1), today.addDays(1)), QStringList());
        QCOMPARE(notes(today, today.addDays(-1)), QStringList());
        QCOMPARE(notes({}, today), QStringList());
    }

    /// Nobody has opened the To Do list there yet.
    void readsWhatOtherProgramsHold()
    {
        const DataFolder folder(householdPath());
        QCOMPARE(ToDoNews::files(folder), QStringList{u"TODOActv.FIL"_s});
        QCOMPARE(ToDoNews::liveLine(folder, DateStyle::Usa, today)->text, u"Tax papers to Vera, Dec 31"_s);
        QCOMPARE(
            told(ToDoNews::dayNotes(folder, DateStyle::Usa, QDate(2027, 3, 1), QDate(2027, 3, 31), today)),
            QStringList{u"03-15 to do 1: Renew passports"_s});
    }

    void findsThings_data()
    {
        rows<QString, QList<SearchHit>>({
            {"what is open first",
             u"filter"_s,
             {{u"Change the filters"_s, u"Home, due Nov 24, 2026"_s, {.record = 3}},
              {u"Change the filters"_s, u"Home, done Nov 3, 2026"_s, {.record = 2}}}},
            {"a note", u"SHED"_s, {{u"Paint"_s, u"The key is in the shed, Home"_s, {.record = 4}}}},
            {"nothing of a template", u"pack"_s, {}},
            {"no heading", u"kitchen"_s, {}},
            {"nothing", u" "_s, {}},
        });
    }

    void findsThings()
    {
        const auto [text, hits] = row<QString, QList<SearchHit>>();
        const TestFolder test;
        test.put(u"ToDo1.Fil"_s, head + item(1, "", "Change the filters", "2025-11-03") +
                                     item(2, "", "Change the filters", "2026-11-03") +
                                     item(3, "2026-11-24", "Change the filters") +
                                     item(4, "", "Paint", {}, "0", "First\\nThe key is in the shed") +
                                     item(5, "", "Kitchen", {}, "h"));
        ToDoSource source(test.folder(), DateStyle::Usa);
        while (source.prepare()) {}
        QCOMPARE(source.matches(text, 2), hits);
        test.put(u"ToDo1.Fil"_s, head + item(7, "", "A new kitchen"));
        while (source.prepare()) {}
        QCOMPARE(source.matches(u"kitchen", 2),
                 (QList<SearchHit>{{u"A new kitchen"_s, u"Home"_s, {.record = 7}}}));
        QVERIFY(source.matches(u"shed", 2).isEmpty());
    }
};

QTEST_APPLESS_MAIN(TestToDoNews)
#include "tst_todonews.moc"
