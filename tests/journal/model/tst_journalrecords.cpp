// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/model/journalrecords.h"
#include "tests/support/recordsback.h"
#include "tests/support/rows.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QString file = u"DJour2026.Fil"_s;
const QByteArray head = "Quillery journal 1\r\n";
const QByteArray may = "=== 2026-05-02\r\nwritten 2026-05-02 07:05\r\ntags garden, sea\r\npicture "
                       "Pictures/a.jpg | Sea\r\n\r\nRain.\r\nThen sun.\r\n";
const QByteArray mayEarlier = "=== 2026-05-02 earlier\r\n\r\nFog.\r\n";
const QByteArray june = "=== 2026-06-01\r\n\r\nJune.\r\n";

} // namespace

class TestJournalRecords : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        m_here = std::make_unique<TestFolder>();
        m_there = std::make_unique<TestFolder>();
    }

    void tellsOfDays_data()
    {
        const QStringList ofMay{u"Saturday, 2 May 2026"_s, u"Tags: garden, sea"_s,
                                u"Picture: Pictures/a.jpg Sea"_s, u"Rain."_s, u"Then sun."_s};
        const QStringList ofJune{u"Monday, 1 June 2026"_s, u"June."_s};
        rows<QByteArray, QStringList>({
            {"two days", head + may + mayEarlier + june, ofMay + ofJune},
            {"a day that was deleted", head + mayEarlier + june, ofJune},
            {"cut in its last day", QByteArray(head + june).chopped(4), {u"Monday, 1 June 2026"_s, u"Jun"_s}},
            {"sealed", "Quillery journal sealed 1\r\n" + june, {}},
            {"a later version", "Quillery journal 2\r\n" + june, {}},
            {"noise", noiseOf(900), {}},
        });
    }
    void tellsOfDays()
    {
        const auto [bytes, texts] = row<QByteArray, QStringList>();
        m_there->put(file, bytes);
        QCOMPARE(told(JournalRecords(m_there->folder(), DateStyle::Other)), texts);
        QCOMPARE(filesOf(*m_there), (FolderFiles{{file, bytes}}));
    }

    /// A day does not differ because another one stands behind it now.
    void comparesDaysAlone()
    {
        m_there->put(file, QByteArray(head + may).chopped(2));
        m_here->put(file, head + may + june);
        QCOMPARE(JournalRecords(m_here->folder(), DateStyle::Other).all().front(),
                 JournalRecords(m_there->folder(), DateStyle::Other).all().front());
    }

    void bringsBack_data()
    {
        const QByteArray other = "=== 2026-05-02\r\n\r\nSnow.\r\n";
        const QByteArray otherEarlier = "=== 2026-05-02 earlier\r\n\r\nSnow.\r\n";
        rows<QByteArray, QByteArray>({
            {"a day that is gone", head + june, head + may + mayEarlier + june},
            {"a year that is gone", {}, head + may + mayEarlier},
            {"what is there now becomes the earlier version", head + other + mayEarlier + june,
             head + may + otherEarlier + june},
            {"the earlier version of here stays", head + otherEarlier, head + may + otherEarlier},
        });
    }
    void bringsBack()
    {
        const auto [here, expected] = row<QByteArray, QByteArray>();
        m_there->put(file, head + may + mayEarlier);
        if (!here.isEmpty())
            m_here->put(file, here);
        JournalRecords records(m_here->folder(), DateStyle::Other);
        bringBackAndForth(records, JournalRecords(m_there->folder(), DateStyle::Other), {u"2026-05-02"_s},
                          *m_here, {{file, expected}});
    }

    void leavesSealedYearsAlone()
    {
        m_there->put(file, head + may);
        const QByteArray sealed = "Quillery journal sealed 1\r\nxyz";
        m_here->put(file, sealed);
        JournalRecords records(m_here->folder(), DateStyle::Other);
        const RecordsBack back =
            records.bringBack(JournalRecords(m_there->folder(), DateStyle::Other), {u"2026-05-02"_s});
        QCOMPARE(back.refusal, u"The file DJour2026.Fil cannot be read; nothing was written"_s);
        QCOMPARE(m_here->bytes(file), sealed);
    }

private:
    std::unique_ptr<TestFolder> m_here;
    std::unique_ptr<TestFolder> m_there;
};

QTEST_GUILESS_MAIN(TestJournalRecords)
#include "tst_journalrecords.moc"
