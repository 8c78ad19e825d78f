// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/model/keepernews.h"

#include "keeper/model/keeper.h"
#include "tests/support/rows.h"
#include "tests/support/testfiles.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QDate today(2026, 11, 23); // day 20780
const QString keyFile = u"Secfile2.fil"_s;

/// Record 3 of the key file, days by days from today.
QByteArray dates(const QByteArray &count, std::initializer_list<int> days)
{
    QByteArray record = count;
    for (const int day : days) {
        const int number = 20780 + day;
        record += QByteArray(1, char(number % 256)) + char(number / 256) + QByteArray(2, '\0');
    }
    return record + QByteArray(512 - record.size(), '\0');
}

} // namespace

class TestKeeperNews : public QObject
{
    Q_OBJECT
private slots:
    void saysWhatTheCardMayTell_data()
    {
        rows<QByteArray, QString, LiveLine::Urgency>({
            {"no dates", {}, u"Locked"_s, LiveLine::Plain},
            {"one soon", dates(QByteArray("\1\0\0\0", 4), {30}), u"1 document expires within 30 days"_s,
             LiveLine::Due},
            {"two soon", dates(QByteArray("\4\0\0\0", 4), {-1, 0, 5, 31}),
             u"2 documents expire within 30 days"_s, LiveLine::Due},
            {"later alone", dates(QByteArray("\1\0\0\0", 4), {31}), u"Locked"_s, LiveLine::Plain},
            {"more than there is room for", dates(QByteArray("\x80\0\0\0", 4), {1}), u"Locked"_s,
             LiveLine::Plain},
            {"cut short", dates(QByteArray("\1\0\0\0", 4), {1}).first(100), u"Locked"_s, LiveLine::Plain},
        });
    }

    void saysWhatTheCardMayTell()
    {
        const auto [record, text, urgency] = row<QByteArray, QString, LiveLine::Urgency>();
        const TestFolder files;
        const SystemClock clock;
        QCOMPARE(KeeperNews::liveLine(files.folder(), false, today), std::nullopt);
        Keeper keeper(files.folder(), clock, PasswordCost::minimum());
        KeyDerivation master = keeper.newKey(u"Sesame"_s);
        KeyDerivation code = keeper.newKey(u"code"_s);
        QVERIFY(master.run() && code.run() && keeper.create(master, code));
        files.put(keyFile, files.bytes(keyFile) + record);
        const std::optional<LiveLine> line = KeeperNews::liveLine(files.folder(), false, today);
        QCOMPARE(line->text, text);
        QCOMPARE(line->urgency, urgency);
        if (urgency == LiveLine::Plain)
            QCOMPARE(KeeperNews::liveLine(files.folder(), true, today)->text, u"Open"_s);

        QVERIFY(QFile::remove(files.path(u"Secfile1.Fil"_s)));
        QCOMPARE(KeeperNews::liveLine(files.folder(), false, today)->text,
                 u"The keeper's files are damaged"_s);
        QCOMPARE(KeeperNews::liveLine(files.folder(), false, today)->urgency, LiveLine::Overdue);
    }
};

QTEST_GUILESS_MAIN(TestKeeperNews)
#include "tst_keepernews.moc"
