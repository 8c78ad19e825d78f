#include "app/instancelink.h"

#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class TestInstanceLink : public QObject
{
    Q_OBJECT

private slots:
    void callsTheOtherOneByAnyWayToTheFolder();
    void keepsFoldersApart();
    void listensAgainAfterTheOtherOneWent();
};

void TestInstanceLink::callsTheOtherOneByAnyWayToTheFolder()
{
    const QTemporaryDir folder;
    InstanceLink first{DataFolder(folder.path())};
    QVERIFY(first.listen());
    QSignalSpy called(&first, &InstanceLink::called);
    QVERIFY(InstanceLink(DataFolder(folder.path())).callOther());
    QVERIFY(InstanceLink(DataFolder(folder.path() + u"/../"_s + QDir(folder.path()).dirName())).callOther());
    QTRY_COMPARE(called.size(), 2);
}

void TestInstanceLink::keepsFoldersApart()
{
    const QTemporaryDir folder, other;
    InstanceLink first{DataFolder(folder.path())};
    QVERIFY(first.listen());
    QSignalSpy called(&first, &InstanceLink::called);
    QVERIFY(!InstanceLink(DataFolder(other.path())).callOther());
    QCoreApplication::processEvents();
    QCOMPARE(called.size(), 0);
}

void TestInstanceLink::listensAgainAfterTheOtherOneWent()
{
    const QTemporaryDir folder;
    {
        InstanceLink first{DataFolder(folder.path())};
        QVERIFY(first.listen());
    }
    InstanceLink next{DataFolder(folder.path())};
    QVERIFY(next.listen());
}

QTEST_GUILESS_MAIN(TestInstanceLink)
#include "tst_instancelink.moc"
