// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/sealing/recoverycode.h"
#include "tests/support/rows.h"

#include <QRegularExpression>
#include <QSet>

using namespace Qt::Literals::StringLiterals;

namespace {
const QString key = u"7HJ4KM9QRST2VWXYZ01ABC3DEF"_s;
} // namespace

class TestRecoveryCode : public QObject
{
    Q_OBJECT
private slots:
    void readsWhatWasTyped_data()
    {
        rows<QString, QString>({
            {"as it was printed", u"7HJ4-KM9Q-RST2-VWXY-Z01A-BC3D-EFJN"_s, key},
            {"small letters, blanks and other dashes", u" 7hj4 km9q\u2013rst2vwxy z01a bc3d ef-jn\n"_s, key},
            {"letters for digits", u"7HJ4-KM9Q-RST2-VWXY-ZOLA-BC3D-EFJN"_s, key},
            {"noughts", u"oOO0 oooo oooo oooo oooo oooo ooSP"_s, QString(26, u'0')},
            {"all bits set", QString(26, u'Z') + u"F5"_s, QString(26, u'Z')},
            {"one character wrong", u"7HJ4-KM9Q-RST2-VWXY-Z01A-BC3D-EGJN"_s, {}},
            {"two characters in the wrong order", u"7JH4-KM9Q-RST2-VWXY-Z01A-BC3D-EFJN"_s, {}},
            {"a wrong check character", u"7HJ4-KM9Q-RST2-VWXY-Z01A-BC3D-EFJP"_s, {}},
            {"one too few", u"7HJ4-KM9Q-RST2-VWXY-Z01A-BC3D-EFJ"_s, {}},
            {"one too many", u"7HJ4-KM9Q-RST2-VWXY-Z01A-BC3D-EFJN0"_s, {}},
            {"a letter that no code has", u"7HJ4-KM9Q-RST2-VWXY-Z01A-BC3D-EFJU"_s, {}},
            {"nothing", {}, {}},
            {"a book", QString(100'000, u'7'), {}},
        });
    }

    void readsWhatWasTyped()
    {
        const auto [typed, read] = row<QString, QString>();
        QCOMPARE(RecoveryCode::read(typed).value_or(QString()), read);
        QCOMPARE(RecoveryCode::read(typed).has_value(), !read.isEmpty());
    }

    void makesANewOneEachTime()
    {
        static const QRegularExpression form(u"^([0-9A-HJKMNP-TV-Z]{4}-){6}[0-9A-HJKMNP-TV-Z]{4}$"_s);
        QSet<QString> codes;
        for (int i = 0; i < 200; ++i) {
            const QString code = RecoveryCode::generate();
            QVERIFY2(form.match(code).hasMatch(), qPrintable(code));
            QCOMPARE(RecoveryCode::read(code), QString(code).remove(u'-').first(26));
            codes.insert(code);
        }
        QCOMPARE(codes.size(), 200);
    }
};

QTEST_GUILESS_MAIN(TestRecoveryCode)
#include "tst_recoverycode.moc"
