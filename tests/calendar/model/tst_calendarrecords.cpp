// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/model/calendarrecords.h"
#include "tests/support/recordsback.h"
#include "tests/support/rows.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QByteArray fileOf(const QByteArray &title, const QByteArray &more = {})
{
    return "Quillery calendar 1\r\ntitle\t" + title + "\r\nfrom\t2027-01\r\nmonths\t12\r\n" + more;
}

const QByteArray family = fileOf("Family", "rule\tevery 2 weeks 2027-01-05\t\tPaper bin\r\nunknown\tx\r\n");
const QByteArray school = fileOf("School");

} // namespace

class TestCalendarRecords : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        m_here = std::make_unique<TestFolder>();
        m_there = std::make_unique<TestFolder>();
    }

    void tellsOfCalendars_data()
    {
        const QStringList lines{u"From: January 2027"_s, u"Months: 12"_s, u"Paper: A4"_s};
        rows<FolderFiles, QStringList>({
            {"a calendar",
             {{u"CalMk3.Fil"_s, family}},
             QStringList{u"Family"_s} + lines + QStringList{u"Paper bin: every 2 weeks 2027-01-05"_s}},
            {"two of a title",
             {{u"CalMk1.Fil"_s, school}, {u"CalMk2.Fil"_s, school}},
             QStringList{u"School"_s} + lines + QStringList{u"School"_s} + lines},
            {"cut in its title",
             {{u"CalMk1.Fil"_s, school.left(30)}},
             {u"Sch"_s, u"Months: 12"_s, u"Paper: A4"_s}},
            {"noise", {{u"CalMk1.Fil"_s, noiseOf(900)}}, {}},
        });
    }
    void tellsOfCalendars()
    {
        const auto [files, texts] = row<FolderFiles, QStringList>();
        putAll(*m_there, files);
        QCOMPARE(told(CalendarRecords(m_there->folder(), DateStyle::Other)), texts);
        QCOMPARE(filesOf(*m_there), files);
    }

    void bringsBack_data()
    {
        const QString first = u"CalMk1.Fil"_s;
        const QString second = u"CalMk2.Fil"_s;
        rows<FolderFiles, FolderFiles>({
            {"what was deleted", {}, {{first, family}}},
            {"into a free number", {{first, school}}, {{first, school}, {second, family}}},
            {"in place of what it is now",
             {{first, school}, {second, fileOf("Family")}},
             {{first, school}, {second, family}}},
        });
    }
    void bringsBack()
    {
        const auto [here, expected] = row<FolderFiles, FolderFiles>();
        putAll(*m_here, here);
        m_there->put(u"CalMk2.Fil"_s, family);
        CalendarRecords records(m_here->folder(), DateStyle::Other);
        bringBackAndForth(records, CalendarRecords(m_there->folder(), DateStyle::Other), {u"Family"_s},
                          *m_here, expected);
    }

private:
    std::unique_ptr<TestFolder> m_here;
    std::unique_ptr<TestFolder> m_there;
};

QTEST_GUILESS_MAIN(TestCalendarRecords)
#include "tst_calendarrecords.moc"
