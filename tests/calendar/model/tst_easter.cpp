// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/model/easter.h"
#include "tests/support/rows.h"

class TestEaster : public QObject
{
    Q_OBJECT
private slots:
    void fallsOnItsSundays_data()
    {
        rows<int, QDate, QDate>({
            {"the first year", 1900, QDate(1900, 4, 15), QDate(1900, 4, 22)},
            {"the earliest of its century", 1913, QDate(1913, 3, 23), QDate(1913, 4, 27)},
            {"the latest there is", 1943, QDate(1943, 4, 25), QDate(1943, 4, 25)},
            {"a moon of April 18 that counts as the 17th", 1954, QDate(1954, 4, 18), QDate(1954, 4, 25)},
            {"a moon of April 19 that counts as the 18th", 1981, QDate(1981, 4, 19), QDate(1981, 4, 26)},
            {"the latest Orthodox one", 1983, QDate(1983, 4, 3), QDate(1983, 5, 8)},
            {"2000", 2000, QDate(2000, 4, 23), QDate(2000, 4, 30)},
            {"the earliest for long", 2008, QDate(2008, 3, 23), QDate(2008, 4, 27)},
            {"on one day", 2010, QDate(2010, 4, 4), QDate(2010, 4, 4)},
            {"2024", 2024, QDate(2024, 3, 31), QDate(2024, 5, 5)},
            {"2025", 2025, QDate(2025, 4, 20), QDate(2025, 4, 20)},
            {"2026", 2026, QDate(2026, 4, 5), QDate(2026, 4, 12)},
            {"2027", 2027, QDate(2027, 3, 28), QDate(2027, 5, 2)},
            {"2028", 2028, QDate(2028, 4, 16), QDate(2028, 4, 16)},
            {"late again", 2038, QDate(2038, 4, 25), QDate(2038, 4, 25)},
            {"a moon of April 18 once more", 2049, QDate(2049, 4, 18), QDate(2049, 4, 25)},
            {"without a leap day", 2100, QDate(2100, 3, 28), QDate(2100, 5, 2)},
            {"the last year", 2199, QDate(2199, 4, 14), QDate(2199, 4, 21)},
            {"before them", 1899, {}, {}},
            {"after them", 2200, {}, {}},
        });
    }

    void fallsOnItsSundays()
    {
        const auto [year, western, orthodox] = row<int, QDate, QDate>();
        QCOMPARE(Easter::western(year), western);
        QCOMPARE(Easter::orthodox(year), orthodox);
    }
};

QTEST_APPLESS_MAIN(TestEaster)
#include "tst_easter.moc"
