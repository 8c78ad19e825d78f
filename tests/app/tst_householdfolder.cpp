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

    void anInstalledProgramKeepsNothingBesideIt_data()
    {
        enum { Installed = true, Carried = false };
        rows<QString, QString, bool>({
            {"installed", u"usr/bin"_s, u"usr/share/quillery"_s, Installed},
            {"for one user", u".local/bin"_s, u".local/share/quillery"_s, Installed},
            {"carried in a folder of that name", u"stick/bin"_s, u"stick/share"_s, Carried},
            {"carried beside an installed one", u"usr/Quillery"_s, u"usr/share/quillery"_s, Carried},
        });
    }

    void anInstalledProgramKeepsNothingBesideIt()
    {
        const auto [folder, shared, isInstalled] = row<QString, QString, bool>();
        const TestFolder disk;
        const QDir top(disk.folder().path());
        QVERIFY(top.mkpath(folder) && top.mkpath(shared));
        const QString programFolder = disk.path(folder);
        disk.put(folder % u"/Addbk1.Fil"_s, "x"); // not even a household there keeps it
        const QString own = disk.path(u"own"_s);
        QCOMPARE(HouseholdFolder::filesOfProgram(programFolder),
                 isInstalled ? disk.path(shared) : programFolder);
        QCOMPARE(HouseholdFolder::choose(DataFolder(programFolder), own).path(),
                 isInstalled ? own : programFolder);
    }
};

QTEST_GUILESS_MAIN(TestHouseholdFolder)
#include "tst_householdfolder.moc"
