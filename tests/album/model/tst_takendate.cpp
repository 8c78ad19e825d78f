// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/model/takendate.h"
#include "tests/support/rows.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QDate today(2026, 11, 23);

} // namespace

class TestTakenDate : public QObject
{
    Q_OBJECT

private slots:
    void camerasTell_data()
    {
        rows<QByteArray, QString>({{"a moment", "2026:11:21 14:03:00", u"2026-11-21T14:03:00"_s},
                                   {"a day", "2026:11:21", u"2026-11-21"_s},
                                   {"a day without its hour", "2026:11:21   :  :  ", u"2026-11-21"_s},
                                   {"with other signs", "2004-02-29 00:00:01", u"2004-02-29T00:00:01"_s},
                                   {"never set", "0000:00:00 00:00:00", {}},
                                   {"where clocks begin", "1970:01:01 00:00:00", {}},
                                   {"tomorrow in the east", "2026:11:24 01:00:00", u"2026-11-24T01:00:00"_s},
                                   {"to come", "2026:11:25 00:00:00", {}},
                                   {"before photographs", "1825:12:31 00:00:00", {}},
                                   {"no such day", "2026:02:30 00:00:00", {}},
                                   {"blanks", "    :  :     :  :  ", {}},
                                   {"nothing", {}, {}}});
    }
    void camerasTell()
    {
        const auto [text, date] = row<QByteArray, QString>();
        QCOMPARE(TakenDate::fromCamera(text, today), date);
    }

    void programsTell_data()
    {
        rows<QByteArray, QString>({{"a moment", "2026-11-21T14:03:00", u"2026-11-21T14:03:00"_s},
                                   {"with a zone", "2026-11-21T14:03:00.25+01:00", u"2026-11-21T14:03:00"_s},
                                   {"minutes", "2026-11-21T14:03Z", u"2026-11-21T14:03:00"_s},
                                   {"a day", "1974-08-01", u"1974-08-01"_s},
                                   {"a month", "1974-08", u"1974-08"_s},
                                   {"a year", "1974", u"1974"_s},
                                   {"about", "1974~", u"1974~"_s},
                                   {"a season", "1982-22", u"1982-22"_s},
                                   {"a decade", "198X", u"198X"_s},
                                   {"before", "../1950", u"../1950"_s},
                                   {"years", "1970/1975", u"1970/1975"_s},
                                   {"to come", "2031", {}},
                                   {"a day to come", "2031-01-01", {}},
                                   {"before photographs", "1800", {}},
                                   {"words", "last summer", {}},
                                   {"longer than a record", "1974/1975/1976/1977/1978/1979/1980/1981", {}}});
    }
    void programsTell()
    {
        const auto [text, date] = row<QByteArray, QString>();
        QCOMPARE(TakenDate::fromProgram(text, today), date);
    }

    void namesTell_data()
    {
        rows<QString, QString>(
            {{"a telephone", u"IMG_20190704_153012.jpg"_s, u"2019-07-04T15:30:12"_s},
             {"with thousandths", u"PXL_20201231_235959123.jpg"_s, u"2020-12-31T23:59:59"_s},
             {"sent", u"IMG-20190704-WA0012.jpg"_s, u"2019-07-04"_s},
             {"a screen", u"Screenshot_2019-07-04-15-30-12.png"_s, u"2019-07-04T15:30:12"_s},
             {"typed", u"2019-07-04 15.30.12 Lake.jpg"_s, u"2019-07-04T15:30:12"_s},
             {"in one", u"20190704153012.jpg"_s, u"2019-07-04T15:30:12"_s},
             {"a day", u"Lake 2019-07-04 (2).jpg"_s, u"2019-07-04"_s},
             {"behind a number", u"0012 20190704_153012.jpg"_s, u"2019-07-04T15:30:12"_s},
             {"a number", u"DSC_00123456.jpg"_s, {}},
             {"a long number", u"1562250000000.jpg"_s, {}},
             {"no day", u"IMG_20191304_153012.jpg"_s, {}},
             {"to come", u"IMG_20300101_000000.jpg"_s, {}},
             {"a word", u"Anne.jpg"_s, {}}});
    }
    void namesTell()
    {
        const auto [name, date] = row<QString, QString>();
        QCOMPARE(TakenDate::fromName(name, today), date);
    }
};

QTEST_GUILESS_MAIN(TestTakenDate)
#include "tst_takendate.moc"
