#include "planner/model/todoimport.h"
#include "tests/support/household.h"
#include "tests/support/testprogram.h"

#include <QJsonArray>

using namespace Qt::Literals::StringLiterals;

namespace {

QString nameOf(DateResult result)
{
    switch (result) {
    case DateResult::Made:
        return u"made"_s;
    case DateResult::Exists:
        return u"exists"_s;
    case DateResult::Full:
        return u"full"_s;
    default:
        return u"failed"_s;
    }
}

/// What an import into the household does, as "date|result" lines.
QStringList importAll(const TestProgram &test, QDate selected)
{
    const PlannerFiles files(test.folder);
    QStringList done;
    for (const ToDoItem &item : ToDoImport::items(test.folder, DateStyle::Usa, QDate(2026, 11, 21))) {
        if (const auto outcome = ToDoImport::insert(files, UntimedPlacement::First, item, selected))
            done << item.date.toString(Qt::ISODate) + u'|' + nameOf(outcome->result);
    }
    return done;
}

} // namespace

class TestToDoImport : public QObject
{
    Q_OBJECT
private slots:
    void importsTheHousehold();
    void readsDatesEitherWay_data();
    void readsDatesEitherWay();
};

void TestToDoImport::importsTheHousehold()
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

void TestToDoImport::readsDatesEitherWay_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QDate>("date");
    QTest::newRow("month first") << QByteArray("\"Call\",\"05/06/2026\",\"\"\r\n") << QDate(2026, 5, 6);
    QTest::newRow("only day first fits")
        << QByteArray("\"Call\",\"25/06/2026\",\"\"\r\n") << QDate(2026, 6, 25);
    QTest::newRow("the last ten characters")
        << QByteArray("\"Call\",\"Fri 05/06/2026 \",\"x\"") << QDate(2026, 5, 6);
    QTest::newRow("no date") << QByteArray("\"Call\",\"\",\"\"") << QDate();
    QTest::newRow("no text") << QByteArray("\" \",\"05/06/2026\",\"\"") << QDate();
    QTest::newRow("no day") << QByteArray("\"Call\",\"02/30/2026\",\"\"") << QDate();
    QTest::newRow("cut before the third value") << QByteArray("\"Call\",\"05/06/2026\"") << QDate(2026, 5, 6);
    QTest::newRow("noise") << QByteArray("\0\xff\"\",,\"", 7) << QDate();
}

void TestToDoImport::readsDatesEitherWay()
{
    QFETCH(QByteArray, file);
    QFETCH(QDate, date);
    const TestProgram test;
    test.setBytes(u"TODOACTV.fil"_s, file);
    const auto items = ToDoImport::items(test.folder, DateStyle::Usa, QDate(2026, 11, 21));
    QCOMPARE(items.empty() ? QDate() : items.front().date, date);
}

QTEST_GUILESS_MAIN(TestToDoImport)
#include "tst_todoimport.moc"
