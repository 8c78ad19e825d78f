// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/differences.h"
#include "tests/support/rows.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// Records as "key=content".
class TypedRecords final : public FunctionRecords
{
public:
    explicit TypedRecords(const QStringList &records)
    {
        for (const QString &record : records)
            m_records.push_back({record.section(u'=', 0, 0), record.section(u'=', 0, 0).toUpper(),
                                 record.section(u'=', 1).toUtf8()});
    }
    QString counted(int count) const override { return QString::number(count); }
    std::vector<FunctionRecord> all() const override { return m_records; }
    QStringList lines(const QString &) const override { return {}; }
    RecordsBack bringBack(const FunctionRecords &, const QStringList &) override { return {}; }

private:
    std::vector<FunctionRecord> m_records;
};

/// "-anne", "*nils", "+tom": only there, changed, only here.
QStringList textsOf(const RecordDifferences &differences)
{
    QStringList texts;
    for (const RecordDifferences::Item &item : differences.items) {
        if (item.title == item.key.toUpper())
            texts.append(u"-*+"_s[int(item.kind)] + item.key);
    }
    return texts;
}

} // namespace

class TestDifferences : public QObject
{
    Q_OBJECT
private slots:
    void compares_data()
    {
        rows<QStringList, QStringList, QStringList>({
            {"nothing", {}, {}, {}},
            {"the same", {u"a=1"_s, u"b=2"_s}, {u"a=1"_s, u"b=2"_s}, {}},
            {"the same in another order", {u"b=2"_s, u"c="_s, u"a=1"_s}, {u"a=1"_s, u"b=2"_s, u"c="_s}, {}},
            {"all kinds",
             {u"a=1"_s, u"n=1"_s, u"c=3"_s, u"m=1"_s, u"e=6"_s},
             {u"a=1"_s, u"b=2"_s, u"c=4"_s, u"d=5"_s, u"e=6"_s},
             {u"-b"_s, u"*c"_s, u"-d"_s, u"+n"_s, u"+m"_s}},
            {"an empty copy", {u"a=1"_s}, {}, {u"+a"_s}},
            {"an empty household", {}, {u"b=1"_s, u"a=1"_s}, {u"-b"_s, u"-a"_s}},
        });
    }
    void compares()
    {
        const auto [here, there, expected] = row<QStringList, QStringList, QStringList>();
        const RecordDifferences differences = RecordDifferences::of(TypedRecords(here), TypedRecords(there));
        QCOMPARE(textsOf(differences), expected);
        QCOMPARE(differences.here, int(here.size()));
        QCOMPARE(differences.there, int(there.size()));
    }
};

QTEST_GUILESS_MAIN(TestDifferences)
#include "tst_differences.moc"
