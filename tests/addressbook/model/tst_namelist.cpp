// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/model/indexline.h"
#include "addressbook/model/namelist.h"
#include "tests/support/rows.h"

using namespace Qt::Literals::StringLiterals;

namespace {

NameList listOf(const QStringList &lines)
{
    NameList list;
    for (const QString &line : lines)
        list.append(line);
    return list;
}

} // namespace

class TestNameList : public QObject
{
    Q_OBJECT
private slots:
    void keepsItsLinesApart()
    {
        NameList list = listOf({IndexLine::make(u"Müller", u"Karl", 14),
                                {},
                                IndexLine::make(u"Lind", u"Anne", 3),
                                IndexLine::make(u"Ångström", u"Bjørn", 23)});
        QCOMPARE(list.name(0), u"Müller, Karl"_s);
        QCOMPARE(list.line(1), QString());
        QCOMPARE(list.recordAt(1), 0);
        QCOMPARE(list.recordAt(2), 3);
        QCOMPARE(list.positionOf(23), 3);
        QCOMPARE(list.positionOf(0), -1);

        list.removeAt(0);
        list.removeAt(1);
        list.removeAt(7);
        list.removeAt(-1);
        list.append(IndexLine::make(u"Müller-Lind", u"Karl", 14));
        QCOMPARE(list.count(), 3);
        QCOMPARE(list.line(0), QString());
        QCOMPARE(list.line(1), IndexLine::make(u"Ångström", u"Bjørn", 23));
        QCOMPARE(list.name(2), u"Müller-Lind, Karl"_s);
        QCOMPARE(list.line(3), QString());
        QCOMPARE(list.recordAt(-1), 0);
    }

    void searchesAnywhereAndWithoutCase_data()
    {
        rows<QString, int>({
            {"inside a line", u"ILL"_s, 0},
            {"the first of several", u"miller"_s, 1},
            {"accents keep their case alike", u"MÜLLER"_s, 3},
            {"composed of two", u"mu\u0308ller"_s, 3},
            {"ring and stroke", u"åNGSTRÖM, BJØRN"_s, 4},
            {"a capital beyond Latin-1", u"\u0178"_s, 5},
            {"a letter without a capital", u"stra\u00DF"_s, 5},
            {"two letters are not one", u"strass"_s, -1},
            {"the number", u" 14"_s, 3},
            {"across two lines", u"2Miller"_s, -1},
            {"blanks count", u" Anne"_s, 1},
            {"what no file can hold", u"Ωmega"_s, -1},
            {"longer than a line", QString(100, u'a'), -1},
            {"nothing", {}, 0},
        });
    }

    void searchesAnywhereAndWithoutCase()
    {
        const auto [text, position] = row<QString, int>();
        const NameList list =
            listOf({IndexLine::make(u"Quill", u"David", 2), IndexLine::make(u"Miller", u"Anne", 4),
                    IndexLine::make(u"Miller", u"Anne", 8), IndexLine::make(u"Müller", u"Karl", 14),
                    IndexLine::make(u"Ångström", u"Bjørn", 23), IndexLine::make(u"Straß", u"L\u00FF", 24)});
        QCOMPARE(list.find(text), position);
        QCOMPARE(NameList().find(text), -1);
    }

    void searchesLongLists_data()
    {
        using Matches = QList<int>;
        rows<int, Matches, int>({
            {"2001 lines: the first", 2001, Matches({5, 2000}), 5},
            {"2002 lines: line 2001 is passed over", 2002, Matches({5, 2000}), 5},
            {"2002 lines: the match in line 2002", 2002, Matches({5, 700, 2001}), 2001},
            {"2002 lines: no further match", 2002, Matches({700, 701}), 700},
            {"5000 lines: the first beyond the bound", 5000, Matches({5, 2000, 3000, 4999}), 3000},
            {"5000 lines: all beyond the bound", 5000, Matches({2001, 4000}), 2001},
            {"5000 lines: none", 5000, {}, -1},
        });
    }

    void searchesLongLists()
    {
        const auto [lines, matches, selected] = row<int, QList<int>, int>();
        NameList list;
        for (int i = 0; i < lines; ++i)
            list.append(matches.contains(i) ? u"Lind, Anne" : u"Quill, David");
        QCOMPARE(list.find(u"anne"), selected);
        QCOMPARE(list.matches(u"anne"), matches);
    }

    void standsFromAToZ()
    {
        const QStringList byRecord{u"Lind-Berg, Anne"_s, u"Zoë, Bo"_s,     u"lind, Zoe"_s,
                                   u"Ångström, Eva"_s,   u"Anders, Per"_s, u"Lind, Anne"_s};
        NameList list = listOf(byRecord);
        const auto lines = [&list] {
            QStringList all;
            for (int position = 0; position < list.count(); ++position)
                all.append(list.line(position));
            return all;
        };
        QCOMPARE(list.placeFor(u"Berg, Kai"), 6);
        QCOMPARE(list.arrange(NameOrder::AToZ), std::vector<int>({4, 5, 3, 1, 0, 2}));
        QCOMPARE(lines(), QStringList({u"Anders, Per"_s, u"Ångström, Eva"_s, u"Lind, Anne"_s, u"lind, Zoe"_s,
                                       u"Lind-Berg, Anne"_s, u"Zoë, Bo"_s}));
        QCOMPARE(list.find(u"anne"), 2);
        QCOMPARE(list.placeFor(u"Lind, Anne"), 3); // behind its like
        list.insert(list.placeFor(u"Berg, Kai"), u"Berg, Kai");
        list.removeAt(0);
        QCOMPARE(list.line(1), u"Berg, Kai"_s);
        list.arrange(NameOrder::Record);
        QStringList left = byRecord + QStringList{u"Berg, Kai"_s};
        left.removeOne(u"Anders, Per"_s);
        QCOMPARE(lines(), left);
    }

    void listsWithinBytesItIsGiven()
    {
        NameList list("..Lind, Anne......Quill, David.."_ba + QByteArray(1000, '.'));
        list.list(2, 10);
        list.list(18, 12);
        list.list(0, 0);
        list.squeeze();
        list.append(u"Müller, Karl");
        QCOMPARE(list.line(0), u"Lind, Anne"_s);
        QCOMPARE(list.line(1), u"Quill, David"_s);
        QCOMPARE(list.line(2), QString());
        QCOMPARE(list.line(3), u"Müller, Karl"_s);
        QVERIFY(list.memoryUsed() < 300);
    }
};

QTEST_GUILESS_MAIN(TestNameList)
#include "tst_namelist.moc"
