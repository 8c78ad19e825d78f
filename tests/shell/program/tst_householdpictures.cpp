// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/area.h"
#include "shell/program/householdpictures.h"
#include "tests/support/testprogram.h"

using namespace Qt::Literals::StringLiterals;

class TestHouseholdPictures : public QObject
{
    Q_OBJECT
private slots:
    void linksAnewInAllFunctionsOrInNone()
    {
        TestProgram test;
        QStringList log;
        bool refuses = false;
        const auto entry = [&log](const QString &name, const bool &isRefused) {
            return FunctionEntry{
                .missingPictures =
                    [name](const Program &) {
                        return QStringList{u"both.jpg"_s, name};
                    },
                .relinkPictures = [&log, &isRefused,
                                   name](const Program &,
                                         const QHash<QString, QString> &files) -> std::optional<UndoStep> {
                    if (isRefused)
                        return std::nullopt;
                    log << name + files.value(u"both.jpg"_s);
                    const auto back = [&log, name] {
                        log << u"back "_s + name;
                        return ChangeResult::Done;
                    };
                    return UndoStep{name, back, back};
                }};
        };
        const bool never = false;
        test.functions.add(Function::AddressBook, entry(u"book"_s, never));
        test.functions.add(Function::CarLog, entry(u"cars"_s, refuses));
        test.functions.add(Function::Budget, {});
        const auto nobody = [](int) { return false; };
        const QHash<QString, QString> files{{u"both.jpg"_s, u" at b"_s}};

        QCOMPARE(HouseholdPictures::missing(test.program, nobody),
                 QStringList({u"both.jpg"_s, u"book"_s, u"cars"_s}));
        const auto steps = HouseholdPictures::relink(test.program, files, nobody);
        QVERIFY(steps && steps->size() == 2);
        QCOMPARE(log, QStringList({u"book at b"_s, u"cars at b"_s}));

        log.clear();
        refuses = true;
        QVERIFY(!HouseholdPictures::relink(test.program, files, nobody));
        QCOMPARE(log, QStringList({u"book at b"_s, u"back book"_s}));

        log.clear();
        test.state.protectedAreas.setFlag(Area::AddressBook, u"YES"_s);
        QCOMPARE(HouseholdPictures::missing(test.program, nobody), QStringList({u"both.jpg"_s, u"cars"_s}));
        QVERIFY(!HouseholdPictures::relink(test.program, files, nobody) && log.isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestHouseholdPictures)
#include "tst_householdpictures.moc"
