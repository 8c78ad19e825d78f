// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/folderhold.h"
#include "tests/support/rows.h"
#include "tests/support/scripteddialogs.h"
#include "tests/support/testfiles.h"

#include <QDir>

#include <optional>

using namespace Qt::Literals::StringLiterals;
using Result = FolderHold::Result;

namespace {

const bool isWindows = QSysInfo::kernelType() == "winnt"_L1;

} // namespace

class TestFolderHold : public QObject
{
    Q_OBJECT
private slots:
    void holdsTheFolderByWhateverCanBeMade_data()
    {
        enum { Lock = true, NoLock = false, Line = true, NoLine = false, Hangs = true, Alone = false };
        rows<QString, bool, bool, bool, QString, int>({
            {"lock and line", {}, Lock, Line, Alone, {}, int(Result::Ours)},
            {"the lock alone", {}, Lock, NoLine, Alone, {}, int(Result::Ours)},
            {"the folder and the line", {}, NoLock, Line, Alone, {}, int(Result::Ours)},
            {"the folder alone", {}, NoLock, NoLine, Alone, {}, int(Result::Ours)},
            {"the line alone", u"missing"_s, NoLock, Line, Alone, {}, int(Result::Ours)},
            {"nothing", u"missing"_s, NoLock, NoLine, Alone, {}, int(Result::Unknown)},
            {"another has the line alone", {}, Lock, Line, Hangs, {}, int(Result::Unknown)},
            {"for reading", {}, NoLock, NoLine, Alone, u"For reading only"_s, int(Result::Ours)},
        });
    }

    void holdsTheFolderByWhateverCanBeMade()
    {
        const auto [name, hasLock, hasLine, hangs, whyReadOnly, result] =
            row<QString, bool, bool, bool, QString, int>();
        if (isWindows && !hasLine)
            QSKIP("a line can always be made here");
        const TestFolder test;
        const DataFolder folder(test.path(name), whyReadOnly);
        if (!hasLock)
            QVERIFY(QDir().mkdir(test.path(u"Quillery.lock"_s)));
        // A program that found no room for its lock, and takes no calls while this test waits for it.
        std::optional<InstanceLink> other;
        if (hangs)
            QVERIFY(other.emplace(folder).listen());
        const QByteArray temporary = qgetenv("TMPDIR");
        if (!hasLine)
            qputenv("TMPDIR", "/dev/null");
        FolderHold hold(folder);
        const Result taken = hold.take();
        temporary.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", temporary);
        QCOMPARE(int(taken), result);
        // Who only reads leaves the lock to others.
        const bool isFree = !name.isEmpty() || !whyReadOnly.isEmpty() || taken != Result::Ours;
        QCOMPARE(FolderLock(folder).take(), isFree || (isWindows && !hasLock)); // which cannot lock folders
    }

    /// The question about a held folder: a lock can be taken over at once, but on Windows only when the
    /// program that made it has gone.
    void takesALockOverAtTheUsersWord()
    {
        const TestFolder test;
        const QString number = QString::number(QCoreApplication::applicationPid());
        std::optional<FolderLock> other(test.folder());
        QVERIFY(other->take());
        FolderHold hold(test.folder());
        ScriptedDialogs dialogs;
        if (isWindows) {
            dialogs.willAnswer(Answer::Yes);
            dialogs.willAnswer(Answer::No);
            QCOMPARE(int(hold.takeOver(dialogs)), int(Result::Locked));
            const QString why = dialogs.takeShown().value(1).text;
            QVERIFY2(why.contains(number) && why.contains("Task Manager"_L1), qPrintable(why));
            other.reset();
        }
        dialogs.willAnswer(Answer::Yes);
        QCOMPARE(int(hold.takeOver(dialogs)), int(Result::Ours));
        const QString question = dialogs.takeShown().value(0).text;
        QVERIFY2(question.contains(QDir::toNativeSeparators(test.folder().path())), qPrintable(question));
        QVERIFY(dialogs.isDone());
    }
};

QTEST_GUILESS_MAIN(TestFolderHold)
#include "tst_folderhold.moc"
