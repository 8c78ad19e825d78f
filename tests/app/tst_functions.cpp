// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/functions.h"
#include "shell/access/passwordcheck.h"
#include "shell/controls/controls.h"
#include "shell/core/area.h"
#include "shell/core/settingskeys.h"
#include "shell/frame/commonkeys.h"
#include "shell/program/sharedprocedures.h"
#include "tests/support/testfiles.h"
#include "tests/support/testprogram.h"

#include <QAction>
#include <QSet>

#include <utility>
#include <vector>

using namespace Qt::Literals::StringLiterals;

class TestFunctions : public QObject
{
    Q_OBJECT

private slots:
    void opensTheWindowsThatAreBuiltIn()
    {
        TestProgram test(TestProgram::Household);
        addFunctions(test.functions, test.clock);
        // No window's own colour outranks the program's.
        for (int record = 202; record < 240; ++record)
            QVERIFY(test.settings.setText({SettingsKeys::colorFile3, record}, u"65535"_s));
        QString red = u"255"_s;
        QVERIFY(HINFO1::updateProgramColors(test.program, nullptr, red, HINFO1::updateWithoutAsking));
        QSet<QString> opened;
        for (int number = 0; number <= int(Function::AddressViewer); ++number) {
            const auto function = Function(number);
            const QPointer<QWidget> window = test.functions.open(function, test.program);
            QCOMPARE(window != nullptr, test.functions.has(function));
            if (!window)
                continue;
            QVERIFY2(window->isVisible() && !window->windowTitle().isEmpty(),
                     qPrintable(window->objectName()));
            QVERIFY2(!opened.contains(window->objectName()), qPrintable(window->objectName()));
            opened.insert(window->objectName());
            QCOMPARE(window->findChild<PanelFrame *>()->palette().color(QPalette::Window), QColor(Qt::red));
            QCOMPARE(test.functions.openWindows(), {window});
            QVERIFY(window->close());
            QTRY_VERIFY(!window);
        }
        QVERIFY(opened.contains(u"ADDBKVIEW"_s));
    }

    void givesTheSameKeysToTheSameCommands()
    {
        using Keys = std::vector<std::pair<QKeySequence, QStringList>>;
        const Keys expected{
            {CommonKeys::search,
             {u"ADDBKDISPLAY.mEFind"_s, u"ADDBKVIEW.mEFind"_s, u"Calendar.mVSearch"_s, u"DJournal.mVSearch"_s,
              u"Form4.mVSearch"_s, u"PhotoVIEW1.mVSearch"_s, u"ToDo1.mVSearch"_s, u"Zcalandar1.mEFind"_s}},
            {CommonKeys::everything,
             {u"ADDBKDISPLAY.searchEverything"_s, u"ADDBKVIEW.searchEverything"_s,
              u"AutoMaint.searchEverything"_s, u"Backup1.searchEverything"_s, u"Budget1.searchEverything"_s,
              u"Calendar.searchEverything"_s, u"DJournal.searchEverything"_s, u"Form31.searchEverything"_s,
              u"Form4.searchEverything"_s, u"PhotoVIEW1.searchEverything"_s, u"ToDo1.searchEverything"_s,
              u"WeightTracker.searchEverything"_s, u"Zcalandar1.searchEverything"_s}},
            {CommonKeys::newEntry,
             {u"ADDBKVIEW.mOES"_s, u"AutoMaint.mONew"_s, u"Budget1.mEInsert"_s, u"Calendar.mCNew"_s,
              u"Form4.mENew"_s, u"PhotoVIEW1.mANew"_s, u"ToDo1.mENew"_s, u"WeightTracker.mONew"_s}},
            {CommonKeys::save,
             {u"ADDBKVIEW.mONS"_s, u"AutoMaint.mOSave"_s, u"Budget1.mOSave"_s, u"Calendar.mOSave"_s,
              u"DJournal.mOSave"_s, u"Form31.mOSave"_s, u"Form4.mESave"_s, u"ToDo1.mOSave"_s,
              u"WeightTracker.mOSave"_s, u"Zcalandar1.mOSave"_s}},
            {CommonKeys::print,
             {u"ADDBKDISPLAY.mOPrt"_s, u"ADDBKVIEW.mOPrt"_s, u"AutoMaint.mOPrt"_s, u"Budget1.mOPrt"_s,
              u"Calendar.mOPrt"_s, u"DJournal.mOPrt"_s, u"Form31.mOPrt"_s, u"Form4.mOPrt"_s,
              u"PhotoVIEW1.mOPrt"_s, u"ToDo1.mOPrt"_s, u"WeightTracker.mOPrt"_s, u"Zcalandar1.mOPrt"_s}},
            {CommonKeys::undo,
             {u"ADDBKDISPLAY.mEUndo"_s, u"ADDBKVIEW.mEUndo"_s, u"AutoMaint.mEUndo"_s, u"Backup1.mEUndo"_s,
              u"Budget1.mEUndo"_s, u"Calendar.mEUndo"_s, u"DJournal.mEUndo"_s, u"Form4.mEUndo"_s,
              u"PhotoVIEW1.mEUndo"_s, u"ToDo1.mEUndo"_s, u"WeightTracker.mEUndo"_s, u"Zcalandar1.mEUndo"_s}},
            {CommonKeys::redo,
             {u"ADDBKDISPLAY.mERedo"_s, u"ADDBKVIEW.mERedo"_s, u"AutoMaint.mERedo"_s, u"Backup1.mERedo"_s,
              u"Budget1.mERedo"_s, u"Calendar.mERedo"_s, u"DJournal.mERedo"_s, u"Form4.mERedo"_s,
              u"PhotoVIEW1.mERedo"_s, u"ToDo1.mERedo"_s, u"WeightTracker.mERedo"_s, u"Zcalandar1.mERedo"_s}},
            {CommonKeys::change, {u"ADDBKVIEW.mOMod"_s, u"Form4.mEChange"_s, u"PhotoVIEW1.mECap"_s}},
            {CommonKeys::remove,
             {u"ADDBKDISPLAY.mODel"_s, u"ADDBKVIEW.mODel"_s, u"AutoMaint.clearCells"_s,
              u"AutoMaint.deleteFileKey"_s, u"AutoMaint.deleteFillUp"_s, u"AutoMaint.mEDelete"_s,
              u"Budget1.mEClear"_s, u"Calendar.mERemove"_s, u"Form4.mEDel"_s, u"PhotoVIEW1.mEOut"_s,
              u"ToDo1.mEDel"_s, u"WeightTracker.deletePersonKey"_s, u"WeightTracker.mEDel"_s}},
            {CommonKeys::help,
             {u"ADDBKDISPLAY.mH"_s, u"ADDBKVIEW.mH"_s, u"AutoMaint.mH"_s, u"Backup1.mH"_s, u"Budget1.mH"_s,
              u"Calendar.mH"_s, u"DJournal.mH"_s, u"Form31.mHPage"_s, u"Form4.mH"_s, u"PhotoVIEW1.mH"_s,
              u"ToDo1.mH"_s, u"WeightTracker.mH"_s, u"Zcalandar1.mH"_s}},
            {CommonKeys::views[0],
             {u"ADDBKVIEW.mOVS"_s, u"AutoMaint.mVDue"_s, u"Backup1.mVBackUp"_s, u"Budget1.mVPlanned"_s,
              u"Form4.mVEntries"_s, u"PhotoVIEW1.mVAll"_s, u"ToDo1.mVToday"_s, u"WeightTracker.mVWeigh"_s,
              u"Zcalandar1.mVDay"_s}},
            {CommonKeys::views[1],
             {u"AutoMaint.mVInfo"_s, u"Backup1.mVRestore"_s, u"Budget1.mVSpent"_s, u"Form4.mVFavourites"_s,
              u"PhotoVIEW1.mVNone"_s, u"ToDo1.mVComing"_s, u"WeightTracker.mVGraph"_s,
              u"Zcalandar1.mVWeek"_s}},
            {CommonKeys::views[2],
             {u"AutoMaint.mVMaint"_s, u"Backup1.mVBringBack"_s, u"Budget1.mVTotals"_s, u"Form4.mVTrash"_s,
              u"PhotoVIEW1.mVDayOf"_s, u"ToDo1.mVPerson"_s, u"WeightTracker.mVPlan"_s,
              u"Zcalandar1.mVMonth"_s}},
            {CommonKeys::views[3],
             {u"AutoMaint.mVRep"_s, u"Budget1.mVYears"_s, u"Form4.mVCheck"_s, u"PhotoVIEW1.mVNoDate"_s,
              u"ToDo1.mVDone"_s, u"WeightTracker.mVPhotos"_s}},
            {CommonKeys::views[4], {u"AutoMaint.mVFuel"_s, u"PhotoVIEW1.mVMiss"_s}},
        };
        TestProgram test;
        addFunctions(test.functions, test.clock);
        for (int number = 0; number <= int(Function::AddressViewer); ++number)
            test.functions.open(Function(number), test.program);
        for (const auto &[key, commands] : expected) {
            QStringList found;
            for (const QWidget *window : test.functions.openWindows())
                for (const QAction *action : window->findChildren<QAction *>())
                    if (action->shortcuts().contains(key))
                        found << window->objectName() + u'.' + action->objectName();
            found.sort();
            QCOMPARE(found, commands);
        }
        for (QWidget *window : test.functions.openWindows())
            QVERIFY(window->close());
    }

    void notesOfAnyYearMakeNoFile()
    {
        TestProgram test(TestProgram::Household);
        addFunctions(test.functions, test.clock);
        const QStringList before = QDir(test.folder.path()).entryList();
        for (int number = 0; number <= int(Function::AddressViewer); ++number) {
            const FunctionEntry *entry = test.functions.entry(Function(number));
            if (entry && entry->dayNotes)
                entry->dayNotes(test.program, QDate(2035, 1, 1), QDate(2035, 12, 31));
        }
        QCOMPARE(QDir(test.folder.path()).entryList(), before);
    }

    void tellsTheNewsOfTheHousehold()
    {
        TestProgram test(TestProgram::Household);
        addFunctions(test.functions, test.clock);
        const FunctionEntry *entry = test.functions.entry(Function::AddressBook);
        // Josephine Moreau was born on 28 February.
        const auto line = entry->liveLine(test.program, QDate(2027, 2, 28));
        QVERIFY(line.has_value());
        QVERIFY2(line->sentence.contains(u"Josephine Moreau"_s), qPrintable(line->sentence));
        for (const QString &name : entry->liveFiles)
            QVERIFY(test.folder.exists(name));
    }

    void tellsWhatTheHouseholdHolds()
    {
        TestProgram test(TestProgram::Household);
        addFunctions(test.functions, test.clock);
        const FunctionEntry *book = test.functions.entry(Function::AddressBook);
        QVERIFY(book->names(test.program).contains(u"Josephine Moreau"_s));
        QCOMPARE(book->files(test.program), (QStringList{u"Addbk1.Fil"_s, u"Addbk2.Fil"_s}));
        const QStringList pictures = book->pictures(test.program);
        QVERIFY(!pictures.isEmpty());
        for (const QString &picture : pictures)
            QVERIFY2(QFile::exists(picture), qPrintable(picture));
        const FunctionEntry *planner = test.functions.entry(Function::Planner);
        QCOMPARE(planner->files(test.program), (QStringList{u" 2026.Cal"_s, u" 2027.Cal"_s, u" 2028.Cal"_s}));
        const FunctionEntry *toDo = test.functions.entry(Function::ToDoList);
        QVERIFY(makeFile(test.folder.path() + u"/spell1.fil"_s, "Quillery words 1\r\n"));
        QCOMPARE(toDo->files(test.program), (QStringList{u"TODOActv.FIL"_s, u"Spell1.Fil"_s}));
        QVERIFY(toDo->liveLine(test.program, QDate(2027, 3, 16))->text.contains(u"overdue"_s));
        const TestProgram empty;
        for (const FunctionEntry *entry : {book, planner, toDo})
            QCOMPARE(entry->files(empty.program), QStringList());
    }

    void tellsWhatThePasswordGuards()
    {
        TestProgram test;
        addFunctions(test.functions, test.clock);
        const auto line = [&] {
            return test.functions.entry(Function::PasswordControl)->liveLine(test.program, {})->text;
        };
        QCOMPARE(line(), u"No password is set"_s);
        PasswordCheck file(test.folder, PasswordCost::minimum());
        QVERIFY(file.setPassword(u"Klavier"_s));
        QCOMPARE(line(), u"Nothing is protected"_s);
        test.state.protectedAreas.setFlag(Area::Planner, u"YES"_s);
        QCOMPARE(line(), u"1 area is protected"_s);
        test.state.protectedAreas.setFlag(Area::Budget, u"YES"_s);
        QCOMPARE(line(), u"2 areas are protected"_s);
        test.setBytes(u"PCtrl1.Fil"_s, "noise");
        QCOMPARE(line(), u"The password file is damaged"_s);
    }
};

QTEST_MAIN(TestFunctions)
#include "tst_functions.moc"
