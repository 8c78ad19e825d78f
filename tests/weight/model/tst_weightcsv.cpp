// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/rows.h"
#include "weight/model/weightcsv.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

const QDate today(2026, 11, 21);

WeightTable tableOf(const QList<WeighIn> &weighIns)
{
    WeightTable table;
    for (const WeighIn &weighIn : weighIns)
        table.append(weighIn);
    return table;
}

WeightCsvImport import(const QByteArray &bytes, const QList<WeighIn> &there = {},
                       DateStyle style = DateStyle::Usa)
{
    WeightCsvImport import(bytes, tableOf(there), style, today);
    while (import.step()) {}
    return import;
}

/// "01/05/2026 180." for each row.
QStringList rowsOf(const WeightTable &table)
{
    QStringList rows;
    for (qsizetype row = 0; row < table.rowCount(); ++row)
        rows << table.date(row) + u' ' + table.weight(row);
    return rows;
}

} // namespace

/// Weigh-ins as files for spreadsheets, going out and coming in.
class TestWeightCsv final : public QObject
{
    Q_OBJECT
private slots:
    void goesOut()
    {
        const QByteArray text = WeightCsv::text(
            tableOf({{u"01/05/2026"_s, u"180."_s}, {u"soon"_s, u"178.5"_s}, {u"01/12/2026"_s, {}}}));
        QCOMPARE(text,
                 "\xef\xbb\xbf"
                 "Date of Weigh In,Current Weight\r\n2026-01-05,180\r\nsoon,178.5\r\n2026-01-12,\r\n"_ba);
        QCOMPARE(WeightCsv::fileName(u"Anne: \"A/B\""_s), u"Anne AB weight.csv"_s);
    }

    void comesIn_data()
    {
        using Rows = QStringList;
        rows<QByteArray, DateStyle, Rows>({
            {"its own",
             "\xef\xbb\xbf"
             "Date of Weigh In,Current Weight\r\n2026-01-05,180\r\n2026-01-12,178.5\r\n",
             DateStyle::Other,
             {u"01/05/2026 180."_s, u"01/12/2026 178.5"_s}},
            {"other columns and units",
             "Id;Datum;Uhr;Gewicht\n1;13.01.2026 07:15;8;80,5 kg\n",
             DateStyle::Usa,
             {u"01/13/2026 80.5"_s}},
            {"goal beside it",
             "Date,Goal weight,Weight (lb)\n01/13/2026,150,180.5 lb\n",
             DateStyle::Other,
             {u"01/13/2026 180.5"_s}},
            {"without a heading",
             "Anne,05.01.2026,80.1234,first day\nAnne,20.01.2026,79\n",
             DateStyle::Usa,
             {u"01/05/2026 80.1"_s, u"01/20/2026 79."_s}},
            {"the oldest first",
             "date,weight\n2026-02-01,170\n2026-01-01,180\n",
             DateStyle::Usa,
             {u"01/01/2026 180."_s, u"02/01/2026 170."_s}},
            {"month first, as one line tells",
             "date,weight\n1/2/2026,170\n1/20/2026,180\n",
             DateStyle::Other,
             {u"01/02/2026 170."_s, u"01/20/2026 180."_s}},
            {"nothing that is meant", "name,phone\nAnne,555\n", DateStyle::Usa, {}},
            {"noise", QByteArray("\x00\xff\x01,\x80\n\n\"", 8), DateStyle::Usa, {}},
        });
    }

    void comesIn()
    {
        const auto [bytes, style, expected] = row<QByteArray, DateStyle, QStringList>();
        QCOMPARE(rowsOf(import(bytes, {}, style).result()), expected);
    }

    void namesEachLineThatCannotBeRead()
    {
        const auto lines = import("date,weight\n2026-01-05,180\n2026-02-30,180\n,180\n2026-01-06,\n"
                                  "2026-01-07,heavy\n2026-11-22,180\n2026-01-08,\"180\n")
                               .lines();
        QStringList told;
        for (const WeightCsvLine &line : lines)
            told << QString::number(line.number) + u' ' + line.problem;
        QCOMPARE(told, QStringList({u"2 "_s, u"3 no date"_s, u"4 the date is missing"_s,
                                    u"5 the weight is missing"_s, u"6 no weight"_s, u"7 a date to come"_s,
                                    u"8 a quote has no end"_s}));
    }

    void knowsWhatIsThere()
    {
        const QByteArray bytes = "date,weight\n2026-01-05,180.04\n2026-01-01,181\n2026-01-01,181\n";
        const auto found = import(bytes, {{u"01/05/2026"_s, u"180."_s}});
        QCOMPARE(found.count(WeightCsvLine::Duplicate), 2);
        QCOMPARE(rowsOf(found.result()), QStringList({u"01/01/2026 181."_s, u"01/05/2026 180."_s}));
        // A table in an order of its own keeps it.
        QCOMPARE(rowsOf(import(bytes, {{u"01/05/2026"_s, u"180."_s}, {u"01/02/2026"_s, u"182."_s}}).result()),
                 QStringList({u"01/05/2026 180."_s, u"01/02/2026 182."_s, u"01/01/2026 181."_s}));
    }
};

QTEST_APPLESS_MAIN(TestWeightCsv)
#include "tst_weightcsv.moc"
