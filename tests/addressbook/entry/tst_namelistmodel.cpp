// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/entry/namelistmodel.h"
#include "addressbook/entry/namelistview.h"

#include <QAbstractItemModelTester>
#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

static NameList someNames(int count)
{
    NameList names;
    for (int record = 2; record < count + 2; ++record)
        names.append(QString(u"Miller, Anne"_s.leftJustified(47) + QString::number(record)));
    return names;
}
class TestNameListModel : public QObject
{
    Q_OBJECT
private slots:
    void followsTheList()
    {
        NameListModel model;
        const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QSignalSpy removed(&model, &NameListModel::rowsRemoved);
        model.setNames(someNames(3));
        QCOMPARE(model.index(1).data().toString(), u"Miller, Anne"_s);
        QCOMPARE(model.index(1).data(NameListModel::LineRole).toString(),
                 u"Miller, Anne                                   3"_s);
        model.removeAt(1);
        model.append(u"Quill, Rosa                                    9"_s);
        QCOMPARE(model.rowCount(), 3);
        QCOMPARE(model.index(2).data().toString(), u"Quill, Rosa"_s);
        QCOMPARE(model.names().recordAt(1), 4);
        model.removeAt(7);
        model.removeAt(-1);
        QCOMPARE(removed.count(), 1);
    }

    void holdsAFullBook()
    {
        NameListModel model;
        NameListView view;
        view.setModel(&model);
        view.resize(260, 570);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        NameList names = someNames(50'000);
        QElapsedTimer timer;
        timer.start();
        model.setNames(std::move(names));
        view.setCurrentIndex(model.index(49'999));
        QTRY_VERIFY(view.viewport()->rect().intersects(view.visualRect(model.index(49'999))));
        model.removeAt(0);
        view.repaint();
        // A list that asked each row for its size would take seconds.
        QVERIFY2(timer.elapsed() < 1000, qPrintable(QString::number(timer.elapsed())));
    }
};

QTEST_MAIN(TestNameListModel)
#include "tst_namelistmodel.moc"
