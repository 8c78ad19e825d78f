// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/model/addressnews.h"
#include "tests/addressbook/model/addressrecords.h"
#include "tests/support/rows.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QDate saturday(2026, 11, 21);

QByteArray person(const QByteArray &first, const QByteArray &last, const QByteArray &birth,
                  const QByteArray &anniversary = {})
{
    return entryBytes({last, first, birth, "", "", "", "", "", "", "", "", "", anniversary});
}

} // namespace

class TestAddressNews : public QObject
{
    Q_OBJECT
private slots:
    void tellsWhatIsNear_data()
    {
        const auto born = [](const QByteArray &date) { return person("Anne", "Lind", date); };
        const auto wed = [](const QByteArray &date) { return person("Anne", "Lind", "", date); };
        rows<QByteArray, QString, QString>({
            {"a birthday this week", born("Nov-24-1978"), u"Tuesday: Anne Lind's birthday"_s,
             u"Birthday on Tuesday: Anne Lind."_s},
            {"a birthday today", born("Nov-21-1978"), u"Today: Anne Lind's birthday"_s,
             u"Turning 48 today: Anne Lind."_s},
            {"an anniversary today", wed("Nov-21-2004"), u"Today: Anne Lind's anniversary"_s,
             u"Anniversary today: Anne Lind."_s},
            {"several birthdays: the first is named",
             born("Nov-24-1978") + person("Karl", "Quill", "Nov-22-1944"), u"2 birthdays this week"_s,
             u"Birthday on Sunday: Karl Quill."_s},
            {"several a week ahead", born("Nov-28-1978") + person("Karl", "Quill", "Nov-28-1944"),
             u"2 birthdays this week"_s, u"Birthday on Nov 28: Anne Lind."_s},
            {"both kinds", person("Anne", "Lind", "Nov-27-1978", "Nov-25-2004"),
             u"1 birthday, 1 anniversary this week"_s, u"Anniversary on Wednesday: Anne Lind."_s},
            {"a week ahead bears a date", born("Nov-28-1978"), u"Nov 28: Anne Lind's birthday"_s, {}},
            {"the next of this month's", born("Dec-21-1978") + wed("Dec-06-1944"),
             u"Dec 6: Anne Lind's anniversary"_s, QString()},
            {"31 days ahead", born("Dec-22-1978"), {}, {}},
            {"yesterday", born("Nov-20-1978"), {}, {}},
            {"born today", born("Nov-21-2026"), {}, {}},
            {"a wedding still to come", wed("Nov-24-2027"), {}, {}},
            {"no date at all", born("in spring"), {}, {}},
        });
    }

    void tellsWhatIsNear()
    {
        const auto [entries, text, sentence] = row<QByteArray, QString, QString>();
        put(entries);
        const auto line = AddressNews::liveLine(m_files.folder(), DateStyle::Usa, saturday);
        QCOMPARE(line.has_value(), !text.isEmpty());
        QCOMPARE(line.value_or(LiveLine{}).text, text);
        QCOMPARE(line.value_or(LiveLine{}).sentence, sentence);
        if (line && line->nameLength > 0)
            QCOMPARE(text.sliced(line->nameAt, line->nameLength), u"Anne Lind"_s);
    }

    void readsDatesInTheirStyle()
    {
        put(person("Anne", "Lind", "06/12/1978"));
        QVERIFY(!AddressNews::liveLine(m_files.folder(), DateStyle::Usa, saturday));
        QCOMPARE(AddressNews::liveLine(m_files.folder(), DateStyle::Other, saturday)->text,
                 u"6 Dec: Anne Lind's birthday"_s);
    }

    void saysNothingOfAnEmptyFolder()
    {
        const TestFolder empty;
        QVERIFY(!AddressNews::liveLine(empty.folder(), DateStyle::Usa, saturday));
        QVERIFY(!QFile::exists(empty.path(u"Addbk2.Fil"_s)));
    }

    void passesOverWhoIsNotListed()
    {
        put(person("", "*****", "Nov-24-1978") + person("Anne", "Lind", "Nov-24-1978") + neverWritten(724));
        QByteArray lines = m_files.bytes(u"Addbk2.Fil"_s);
        lines.replace(120, 7, QByteArray("\x2D\0#####", 7));
        m_files.put(u"Addbk2.Fil"_s, lines);
        QVERIFY(!AddressNews::liveLine(m_files.folder(), DateStyle::Usa, saturday));
    }

    void notesTheDaysOfARange()
    {
        put(person("Anne", "Lind", "Nov-24-1978", "Nov-30-2025") + person("Leap", "Day", "Feb-29-2004") +
            person("Karl", "Quill", "Nov-21-1944"));
        const auto texts = [this](QDate from, QDate to) {
            QStringList lines;
            for (const DayNote &note :
                 AddressNews::dayNotes(m_files.folder(), DateStyle::Usa, from, to, saturday))
                lines << note.date.toString(Qt::ISODate) + u' ' + note.text;
            return lines;
        };
        QCOMPARE(texts(saturday, QDate(2026, 11, 30)),
                 (QStringList{u"2026-11-21 Karl Quill turns 82"_s, u"2026-11-24 Anne Lind turns 48"_s,
                              u"2026-11-30 Anne Lind: anniversary, 1 year"_s}));
        QCOMPARE(texts(QDate(2027, 2, 28), QDate(2028, 2, 29)).filter(u"Leap"_s),
                 (QStringList{u"2027-02-28 Leap Day turns 23"_s, u"2028-02-29 Leap Day turns 24"_s}));
        QCOMPARE(texts(saturday, QDate(2026, 11, 20)), QStringList());
        const auto notes =
            AddressNews::dayNotes(m_files.folder(), DateStyle::Usa, saturday, QDate(2026, 11, 30), saturday);
        QCOMPARE(notes.last().kind, NoteKind::Anniversary);
        QCOMPARE(notes.last().place, Place{.record = 2});
        QCOMPARE(notes.first().kind, NoteKind::Birthday);
        QCOMPARE(notes.first().place, Place{.record = 4});
        QCOMPARE(texts({}, saturday), QStringList());
    }

private:
    /// Whatever entry a line leads to, it stands for the one of its own record.
    void put(const QByteArray &entries) const
    {
        m_files.put(u"Addbk1.Fil"_s, neverWritten(724) + entries);
        m_files.put(u"Addbk2.Fil"_s,
                    neverWritten(60) + lineBytes(lineOf("a name", 99)).repeated(entries.size() / 724));
    }

    TestFolder m_files;
};

QTEST_GUILESS_MAIN(TestAddressNews)
#include "tst_addressnews.moc"
