// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/model/todoimportrun.h"
#include "tests/support/filesizelimit.h"
#include "tests/support/household.h"
#include "tests/support/plannerdays.h"
#include "tests/support/rows.h"
#include "tests/support/testprogram.h"

#include <QJsonArray>

using namespace Qt::Literals::StringLiterals;

namespace {

/// What an import into the household does, as "date|result" lines.
QStringList importAll(const TestProgram &test, QDate earliest)
{
    PlannerFiles files(test.folder);
    const auto items = ToDoImport::items(test.folder, DateStyle::Usa);
    ToDoImportRun run(files, UntimedPlacement::First, items, earliest);
    QStringList done;
    for (const DatedToDo &item : items) {
        const int made = run.made(), there = run.there(), full = run.full();
        if (!run.step())
            return {};
        if (run.made() + run.there() + run.full() > made + there + full)
            done << item.date.toString(Qt::ISODate) + (run.made() > made     ? u"|made"_s
                                                       : run.there() > there ? u"|exists"_s
                                                                             : u"|full"_s);
    }
    return done;
}

} // namespace

class TestToDoImport : public QObject
{
    Q_OBJECT
private slots:
    void importsTheHousehold()
    {
        const TestProgram test(TestProgram::Household);
        const QJsonObject expected = expectedOf(u"planner"_s)["todo_import"_L1].toObject();
        const QDate selected = QDate::fromString(expected["selected"_L1].toString(), Qt::ISODate);
        QStringList lines;
        for (const auto &row : expected["insertions"_L1].toArray())
            lines << row[0].toString() + u'|' + row[2].toString();

        QCOMPARE(importAll(test, selected), lines);
        // A second time nothing is new.
        QCOMPARE(importAll(test, selected), lines.replaceInStrings(u"made"_s, u"exists"_s));
    }

    void readsDatesEitherWay_data()
    {
        rows<QByteArray, QDate>({
            {"month first", "\"Call\",\"05/06/2026\",\"\"\r\n", {2026, 5, 6}},
            {"only day first fits", "\"Call\",\"25/06/2026\",\"\"\r\n", {2026, 6, 25}},
            {"the last ten characters", "\"Call\",\"Fri 05/06/2026 \",\"x\"", {2026, 5, 6}},
            {"no date", "\"Call\",\"\",\"\"", {}},
            {"no text", "\" \",\"05/06/2026\",\"\"", {}},
            {"no day", "\"Call\",\"02/30/2026\",\"\"", {}},
            {"cut before the third value", "\"Call\",\"05/06/2026\"", {2026, 5, 6}},
            {"noise", "\0\xff\"\",,\""_ba, {}},
        });
    }

    void readsDatesEitherWay()
    {
        const auto [file, date] = row<QByteArray, QDate>();
        const TestProgram test;
        test.setBytes(u"TODOACTV.fil"_s, file);
        const auto items = ToDoImport::items(test.folder, DateStyle::Usa);
        QCOMPARE(items.empty() ? QDate() : items.front().date, date);
    }

    void endsWhereTheDiskRefuses()
    {
#ifdef Q_OS_UNIX
        const TestProgram test;
        PlannerFiles files(test.folder);
        const QDate first(2026, 11, 21);
        ToDoImportRun run(files, UntimedPlacement::Last,
                          {{first.addDays(-1), u"Old"_s},
                           {first, u"Call"_s},
                           {first, u"Call"_s},
                           {QDate(2026, 12, 5), u"Paint"_s},
                           {QDate(2026, 12, 6), u"Ferns"_s}},
                          first);
        {
            const FileSizeLimit fullDisk(404 * 900); // 5 December is record 405
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"Cannot write"_s));
            runThrough(run);
        }
        QCOMPARE(run.done(), 4);
        QCOMPARE(run.report(false, DateStyle::Usa),
                 u"The disk refused 12/05/2026: the update ended there. Before it, 1 To Do item entered, "
                 u"1 there already, 1 dated before this day."_s);
        QCOMPARE(files.peek(first).texts[0], u"Call"_s);
        QVERIFY(files.peek(QDate(2026, 12, 6)).isEmpty());

        ToDoImportRun stopped(files, UntimedPlacement::Last, {{first, u"Call"_s}, {first, u"Bus"_s}}, first);
        QVERIFY(stopped.step());
        QCOMPARE(stopped.report(true, DateStyle::Usa),
                 u"0 To Do items entered, 1 there already, stopped before the end"_s);
#endif
    }
};

QTEST_GUILESS_MAIN(TestToDoImport)
#include "tst_todoimport.moc"
