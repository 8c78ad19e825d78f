// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/householdfolder.h"
#include "shell/core/framelines.h"
#include "tests/support/rows.h"
#include "tests/support/testfiles.h"

#include <QDir>

using namespace Qt::Literals::StringLiterals;

class TestHouseholdFolder : public QObject
{
    Q_OBJECT
private slots:
    void isNeverLeftForAnother_data()
    {
        enum { Writable = true, NotWritable = false, Own = true, Program = false };
        rows<QString, bool, bool>({
            {"nothing there", {}, Writable, Program},
            {"nothing there, not writable", {}, NotWritable, Own},
            {"a household", u"Addbk1.Fil"_s, Writable, Program},
            {"a household, not writable", u"Addbk1.Fil"_s, NotWritable, Program},
            {"in another spelling", u"ADDBK1.FIL"_s, NotWritable, Program},
            {"a year of the planner", u" 2026.Cal"_s, NotWritable, Program},
            {"somebody's weight", u"José Ortega.Fil"_s, NotWritable, Program},
            {"colours that every run leaves behind", u"gcolor3.fil"_s, NotWritable, Own},
            {"a file of the program", u"libquillery.so"_s, NotWritable, Own},
        });
    }

    void isNeverLeftForAnother()
    {
        const auto [name, isWritable, isOwn] = row<QString, bool, bool>();
        const TestFolder program, home;
        if (!name.isEmpty())
            program.put(name, "x");
        program.put(u"Addbk2.Fil"_s, {}); // looking makes a file, and no household
        const QString own = home.path(u"own/Quillery"_s);
        const DataFolder chosen =
            HouseholdFolder::choose(program.folder(), own, [&](const DataFolder &folder) {
                return isWritable || folder.path() != program.folder().path();
            });
        QCOMPARE(chosen.path(), isOwn ? own : program.folder().path());
        QCOMPARE(QDir(own).exists(), isOwn);
        const bool isForReading = !isWritable && !isOwn;
        QCOMPARE(chosen.whyReadOnly(), isForReading ? FrameLines::folderCannotBeWritten() : QString());
    }
};

QTEST_GUILESS_MAIN(TestHouseholdFolder)
#include "tst_householdfolder.moc"
