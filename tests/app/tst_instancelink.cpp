// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/instancelink.h"

#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace {

using Reply = InstanceLink::Reply;

/// Whether a second start on this folder, a program of its own, gets an answer.
bool isAnswered(const QString &path)
{
    bool answered = false;
    const std::unique_ptr<QThread> second(
        QThread::create([&] { answered = InstanceLink(DataFolder(path)).callOther() == Reply::Answer; }));
    second->start();
    while (!second->wait(5))
        QCoreApplication::processEvents();
    return answered;
}

} // namespace

class TestInstanceLink : public QObject
{
    Q_OBJECT
private slots:
    void callsTheOtherOneOfAFolder()
    {
        const QTemporaryDir folder, other;
        InstanceLink first{DataFolder(folder.path())};
        QVERIFY(first.listen());
        QSignalSpy called(&first, &InstanceLink::called);
        QVERIFY(!isAnswered(other.path()));
        QCOMPARE(called.size(), 0);
        QVERIFY(isAnswered(folder.path()));
        QVERIFY(isAnswered(folder.path() + u"/../"_s + QDir(folder.path()).dirName()));
        QTRY_COMPARE(called.size(), 2);
    }

    /// The line of a program that hangs can be called, and nobody answers.
    void waitsForAnAnswer()
    {
        const QTemporaryDir folder;
        InstanceLink hanging{DataFolder(folder.path())};
        QVERIFY(hanging.listen());
        QCOMPARE(InstanceLink(DataFolder(folder.path())).callOther(), Reply::Silence);
    }

    void listensAgainAfterTheOtherOneWent()
    {
        const QTemporaryDir folder;
        {
            InstanceLink first{DataFolder(folder.path())};
            QVERIFY(first.listen());
        }
        InstanceLink next{DataFolder(folder.path())};
        QVERIFY(next.listen());
    }
};

QTEST_GUILESS_MAIN(TestInstanceLink)
#include "tst_instancelink.moc"
