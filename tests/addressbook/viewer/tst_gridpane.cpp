// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/addressbook/model/addressrecords.h"
#include "tests/addressbook/viewer/openviewer.h"

#include <QHeaderView>

using namespace Qt::Literals::StringLiterals;

/// The viewer's rows in their grid: sorted, read anew, of long and of damaged books, and in little room.
class TestGridPane : public OpenViewer
{
    Q_OBJECT
private slots:
    void init() { open(); }
    void cleanup() { close(); }

    void sortsByItsHeadings()
    {
        QHeaderView *head = grid()->horizontalHeader();
        const auto clickHeading = [head](int column) {
            const QPoint place(head->sectionViewportPosition(column) + 20, head->height() / 2);
            QTest::mouseClick(head->viewport(), Qt::LeftButton, {}, place);
        };
        const QString first = u"Ångström, Bjørn"_s, last = u"Ziegler, Louis"_s,
                      recorded = u"Kessler, Tessa"_s;
        clickHeading(0);
        QCOMPARE(cell(0, 0), first);
        QCOMPARE(grid()->currentIndex().data().toString(), recorded);
        clickHeading(0);
        QCOMPARE(cell(0, 0), last);
        clickHeading(0);
        QCOMPARE(cell(0, 0), recorded);
        clickHeading(1);
        QCOMPARE(cell(0, 1).left(2), u"10"_s);
        // The path of a picture, which nobody sees, is not sorted by.
        trigger("mOSInfo");
        const QString byInformation = cell(0, 0);
        choose(Information::Pictures);
        QCOMPARE(cell(0, 0), recorded);
        QVERIFY(!find<QAction>("mOSInfo")->isEnabled());
        choose(Information::Address);
        QCOMPARE(cell(0, 0), byInformation);
        // The same by the menu.
        trigger("mOSName");
        QCOMPARE(cell(0, 0), first);
        trigger("mOSName");
        QCOMPARE(cell(0, 0), last);
        trigger("mOSRec");
        QCOMPARE(cell(0, 0), recorded);
    }

    void keepsTheWidthOfTheNames()
    {
        grid()->horizontalHeader()->resizeSection(0, 217);
        choose(Information::Pictures);
        choose(Information::State);
        QCOMPARE(grid()->columnWidth(0), 217);
        show();
        QCOMPARE(grid()->columnWidth(0), 217);
        // The information stays in sight; what was wished for is not forgotten.
        m_window->resize(1280, 800);
        grid()->horizontalHeader()->resizeSection(0, 5000);
        const int wide = grid()->columnWidth(0);
        QVERIFY(grid()->columnWidth(1) >= 100 && wide > grid()->columnWidth(1));
        m_window->resize(800, 600);
        QTRY_VERIFY(grid()->columnWidth(0) < wide);
        QVERIFY(grid()->columnViewportPosition(1) + 100 <= grid()->viewport()->width());
        m_window->resize(1280, 800);
        QTRY_COMPARE(grid()->columnWidth(0), wide);
    }

    void walksThroughARowByTab()
    {
        grid()->setFocus();
        QTest::keyClick(grid(), Qt::Key_Tab);
        QCOMPARE(grid()->currentIndex().column(), 1);
        QTest::keyClick(grid(), Qt::Key_Tab);
        QVERIFY(find<QPushButton>("displayMode")->hasFocus());
        QTest::keyClick(m_window->focusWidget(), Qt::Key_Tab);
        QVERIFY(find<QPushButton>("removeRow")->hasFocus());
    }

    void showsWhatTheFilesHaveNow()
    {
        choose(Information::State);
        type(u"Kessler"_s);
        select(1, 1);
        QCOMPARE(cell(0, 1), u"Germany"_s);
        changeElsewhere(u"Addbk1.Fil"_s, m_test->bytes(u"Addbk1.Fil"_s).replace(724 + 6 * 40, 7, "Austria"));
        QCOMPARE(cell(0, 1), u"Austria"_s);
        QCOMPARE(grid()->currentIndex(), grid()->model()->index(1, 1));
        QCOMPARE(mode(), u"Current Display Mode: &Search For: [Kessler]"_s);
    }

    void keepsToItsEntry_data()
    {
        rows<QByteArray, QString, QString>({
            {"renamed", "Ortiga, ", u"Ortiga, José"_s, u"No. Of Names: 39"_s},
            {"deleted", "####ga, ", {}, u"No. Of Names: 38"_s},
        });
    }

    /// Also to what was removed by hand.
    void keepsToItsEntry()
    {
        const auto [line, current, names] = row<QByteArray, QString, QString>();
        choose(Information::HomePhone);
        m_test->dialogs.willAnswer(Answer::Yes);
        QTest::keyClick(grid(), Qt::Key_Delete);
        asked();
        select(rowWhere(0, [](const QString &name) { return name.startsWith(u"Ortega"_s); }));
        changeElsewhere(u"Addbk2.Fil"_s, m_test->bytes(u"Addbk2.Fil"_s).replace("Ortega, ", line));
        QCOMPARE(grid()->currentIndex().data().toString(), current);
        QCOMPARE(count(), names);
        for (const char *button : {"Image2", "removeRow", "openEntry"})
            QCOMPARE(isOffered(button), grid()->currentIndex().isValid());
    }

    void showsALongBook()
    {
        QByteArray lines = neverWritten(60);
        for (int record = 2; record < 1002; ++record)
            lines += lineBytes(lineOf("Lind, Anne", record));
        const QByteArray entries = neverWritten(724) + entryBytes({"Lind", "Anne"}).repeated(1000);
        m_test->setBytes(u"Addbk1.Fil"_s, entries);
        m_test->setBytes(u"Addbk2.Fil"_s, lines);
        delete m_window;
        m_window = new ADDBKDISPLAY(m_test->program);
        QVERIFY(grid()->model()->rowCount() < 1000); // the first rows are there before the window is
        showActive(*m_window);
        QTRY_COMPARE(count(), u"No. Of Names: 1000"_s);
        select(900);
        choose(Information::State);
        QCOMPARE(count(), u"No. Of Names: 1000"_s);
        QCOMPARE(grid()->currentIndex().row(), 900);
    }

    void survivesMissingAndBadFiles()
    {
        for (const QByteArray &bytes : {QByteArray(), noiseOf(8000), QByteArray(5000, '\0')}) {
            m_test->setBytes(u"Addbk1.Fil"_s, bytes);
            m_test->setBytes(u"Addbk2.Fil"_s, bytes);
            if (bytes.isEmpty())
                QVERIFY(QFile::remove(m_test->path(u"Addbk2.Fil"_s)));
            show();
            for (int choice = 0; choice < informationCount; ++choice) {
                choose(Information(choice));
                grid()->selectAll();
                type(u"z"_s);
                searchBox()->clear();
            }
        }
    }
};

QTEST_MAIN(TestGridPane)
#include "tst_gridpane.moc"
