// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/viewer/pictureswindow.h"
#include "app/functions.h"
#include "shell/access/passwordcheck.h"
#include "shell/core/framelines.h"
#include "shell/frame/commands.h"
#include "shell/mainmenu/about.h"
#include "shell/mainmenu/mainmenuwindow.h"
#include "shell/manual/helpviewer.h"
#include "tests/support/rows.h"
#include "tests/support/testprogram.h"

#include <QAbstractButton>
#include <QDirIterator>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

using namespace Qt::Literals::StringLiterals;

namespace {

using MakeWindow = QWidget *(*)(Program &);

template <Function function>
QWidget *open(Program &program)
{
    return program.functions.open(function, program);
}

template <typename Window>
QWidget *make(Program &program)
{
    return new Window(program);
}

QMap<QString, QByteArray> contentOf(const DataFolder &folder)
{
    QMap<QString, QByteArray> files;
    for (QDirIterator it(folder.path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
         it.hasNext();) {
        QFile file(it.next());
        files[file.fileName()] = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    return files;
}

/// The commands and buttons that cannot be used for this reason, in the order of their names.
template <typename Control>
QStringList unavailable(const QWidget &window, const QString &reason)
{
    QStringList names;
    for (const Control *control : window.findChildren<Control *>()) {
        const bool isTool = qobject_cast<const QToolButton *>(control); // shows a command
        if (!control->isEnabled() && control->toolTip() == reason && !isTool)
            names << control->objectName();
    }
    names.sort();
    return names;
}

} // namespace

class TestReadingOnly : public QObject
{
    Q_OBJECT
private slots:
    void offersNothingThatWrites_data()
    {
        rows<MakeWindow, QString, QString>({
            {"address book", open<Function::AddressBook>,
             u"loadPicture mEBack mEMod1 mERedo mEUndo mOC mOClr mODel mOES mOMod mONS mOTC mUR otherScreen"_s,
             u"Command1 Command2 Command3 Command4 Command6 Command7 emptyEntryScreen emptyRestore"_s},
            {"viewer", open<Function::AddressViewer>, u"mERedo mEUndo mOC mOExp mUR"_s, {}},
            {"pictures", make<ADDBKDISPLAY2>, u"mOC mUR"_s, {}},
            {"planner", open<Function::Planner>,
             u"mEBack mEPaste mEPaste_tool mERec mERedo mEUndo mOC mOCal mOClr mOSave mUImport mUR"_s,
             u"Option7_0 Option7_1 clearDay saveDay"_s},
            {"cars", open<Function::CarLog>,
             u"clearCells createNext createSave deleteFileKey deleteFillUp loadPicture mEBack mEDelete "
             "mEPasteCells mERedo mEUndo mOC mODel mONew mOProgKilo mOProgMiles mOSave mUBringIn mUR"_s,
             u"createNew dueViewNext dueViewSave dueViewSaveExit emptyCreate emptyRestore"_s},
            {"weight", open<Function::WeightTracker>,
             u"deletePersonKey loadPicture1 loadPicture2 mEAdd mEBack mEDel mERedo mESort mEUndo mOC mODel "
             "mONew mOSave mOSaveNew mOTold mUBringIn mUR"_s,
             u"Command10 addRow createNew deleteRow emptyCreate emptyRestore"_s},
            {"to do list", open<Function::ToDoList>,
             u"addItem mEBack mEDel mEDown mEHead mEItem mENew mENoDate mEOverdue mERedo mEStep mETick "
             u"mEToday "
             "mEToday_tool mETomorrow mEUndo mEUp mLDel mLDown mLFrom mLKeep mLName mLNew mLUp mOC mOSave mOTC mUExcel mUR"_s,
             u"addItemButton moveOverdue newListButton removeItem tickItem"_s},
            {"password control", open<Function::PasswordControl>, u"mOC mOSave"_s,
             u"Check1_0 Check1_1 Check1_11 Check1_13 Check1_14 Check1_15 Check1_16 Check1_2 Check1_9 "
             u"Command1 "
             "changePassword newRecoveryCode removePassword setPassword"_s},
            {"manual", make<HelpViewer>, u"mOC"_s, {}},
            {"main menu",
             [](Program &program) -> QWidget * { return new Startfrm(program); },
             u"Toolbar2_0 Toolbar2_2 Toolbar3_0 mOBC mOPCDefault"_s,
             {}},
        });
    }

    void offersNothingThatWrites()
    {
        const auto [makeWindow, commands, buttons] = row<MakeWindow, QString, QString>();
        TestProgram test(TestProgram::Household, m_why);
        QVERIFY(
            PasswordCheck(DataFolder(test.folder.path()), PasswordCost::minimum()).setPassword(u"Klavier"_s));
        addFunctions(test.functions, test.clock);
        const QMap<QString, QByteArray> before = contentOf(test.folder);
        {
            const std::unique_ptr<QWidget> window(makeWindow(test.program));
            showActive(*window);
            QCOMPARE(unavailable<QAction>(*window, m_why), commands.split(u' ', Qt::SkipEmptyParts));
            QCOMPARE(unavailable<QAbstractButton>(*window, m_why), buttons.split(u' ', Qt::SkipEmptyParts));
            QCOMPARE(control<QLabel>(*window, "StatusBar1_ReadOnly")->accessibleDescription(), m_why);
        }
        QCOMPARE(contentOf(test.folder), before);
    }

    /// The planner is typed into and a day of another year is looked at; then the program is left.
    void writesNothingWhileItIsUsed()
    {
        TestProgram test(TestProgram::Household, m_why);
        addFunctions(test.functions, test.clock);
        const QMap<QString, QByteArray> before = contentOf(test.folder);
        {
            Startfrm menu(test.program);
            showActive(menu);
            QWidget *planner = test.functions.open(Function::Planner, test.program);
            auto *box = control<QLineEdit>(*planner, "Text2_13");
            QTest::keyClicks(box, u"Piano"_s);
            QCOMPARE(box->text(), QString());
            test.dialogs.willInput(u"Jan-05-2031"_s);
            control<QAction>(*planner, "mVGo")->trigger();
            control<QAction>(menu, "mOPS")->trigger();
            test.dialogs.willAnswer(Answer::Yes);
            QVERIFY(menu.close());
            QVERIFY(test.dialogs.isDone());
        }
        QCOMPARE(contentOf(test.folder), before);
    }

    void namesTheFolder()
    {
        const DataFolder folder(QDir::tempPath(), m_why);
        const About1 about(folder, nullptr);
        QCOMPARE(control<QLineEdit>(about, "folderBox")->text(), QDir::toNativeSeparators(folder.path()));
        QVERIFY(control<QLabel>(about, "readOnlyLabel")->text().contains(m_why));
    }

private:
    const QString m_why = FrameLines::folderCannotBeWritten();
};

QTEST_MAIN(TestReadingOnly)
#include "tst_readingonly.moc"
