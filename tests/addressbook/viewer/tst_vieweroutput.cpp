// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/model/messages.h"
#include "shell/preview/previewpane.h"
#include "tests/addressbook/viewer/openviewer.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QListView>
#include <QSpinBox>

using namespace Qt::Literals::StringLiterals;

/// What leaves the viewer: the clipboard's text, the exported file, paper.
class TestViewerOutput : public OpenViewer
{
    Q_OBJECT
private slots:
    void init() { open(); }
    void cleanup() { close(); }

    void copiesTheRows()
    {
        choose(Information::State);
        type(u"Ortega"_s);
        trigger("mOCopy");
        QCOMPARE(asked(), {AddressMessages::dataCopied()});
        QCOMPARE(QApplication::clipboard()->text(), u"Name\tState\nOrtega, José\tOH\n"_s);
    }

    void exportsTheGrid_data()
    {
        rows<Answer, bool, QByteArray, QString>({
            // a folder of the name is in the way
            {"saved", Answer::Ok, false, "Name\tState\r\nOrtega, Jos\xE9\tOH\r\n", u"Saved as "_s},
            {"cancelled", Answer::Cancel, false, "an older file", {}},
            {"failed", Answer::Ok, true, {}, u"The file Family-Friends Data Viewer.xls could not be saved"_s},
        });
    }

    void exportsTheGrid()
    {
        const auto [answer, isInTheWay, written, words] = row<Answer, bool, QByteArray, QString>();
        const QString name = u"Family-Friends Data Viewer.xls"_s;
        if (isInTheWay) {
            QVERIFY(QDir(m_test->folder.path()).mkdir(name));
            expectWarning("Family-Friends");
        } else {
            m_test->setBytes(name, "an older file");
        }
        choose(Information::State);
        type(u"ortega"_s);
        m_test->dialogs.willAnswer(answer);
        trigger("mOExp");
        const Message notice = asked().constFirst();
        QCOMPARE(notice.title, u"Export File in Excel/Spreadsheet Format"_s);
        QVERIFY(notice.text.contains(QDir::toNativeSeparators(m_test->folder.path())) &&
                notice.text.contains(name));
        QCOMPARE(m_test->bytes(name), written);
        QVERIFY(words.isEmpty() || said().startsWith(words));
    }

    void printsTheListAsChosen()
    {
        choose(Information::State);
        trigger("mOPrt");
        find<QRadioButton>("twoColumns")->click();
        click("printList");
        QVERIFY(m_window->isPreviewShown());
        auto *preview = m_window->findChild<PreviewPane *>();
        QCOMPARE(preview->sheetCount(), 1); // forty names in two columns
        const QString names = printedPage();
        QVERIFY(names.contains(u"Family/Friends State List - Page No. 1\n"_s));
        QVERIFY(names.contains(u"Kessler, Tessa\tGermany"_s));
        QVERIFY(names.endsWith(u"Quillery\nPrinted on 11/21/2026"_s));

        QTest::keyClick(preview, Qt::Key_Escape);
        QVERIFY(!m_window->isPreviewShown());
        for (const char *option : {"printTelephones", "printAsOf", "printGridLines"})
            find<QCheckBox>(option)->click();
        find<QRadioButton>("oneColumn")->click();
        click("printList");
        const QString text = printedPage();
        QVERIFY(
            text.contains(u"Family/Friends State List - Page No. 1\tAs of  Saturday, November 21, 2026"_s));
        QVERIFY(text.contains(u"Kessler, Tessa\t    Phone: (440) 555-0100\tGermany"_s));
    }

    void printsThePictureList()
    {
        choose(Information::Pictures);
        trigger("mOPrt");
        QTRY_VERIFY_WITH_TIMEOUT(m_window->isPreviewShown(), 30000);
        QCOMPARE(m_window->findChild<PreviewPane *>()->sheetCount(), 2);
        const QString text = printedPage();
        QVERIFY(text.contains(u"Family/Friends Picture List - Saturday, November 21, 2026"_s));
        QVERIFY(text.contains(u"Vance, Ulrich"_s)); // whose picture is not there
        QVERIFY(!text.contains(u"Quill, David"_s));
    }

    void makesLabels()
    {
        type(u"Drummond"_s);
        trigger("mOLab");
        auto *sheets = find<QComboBox>("labelSheet");
        QVERIFY(sheets->currentText().contains(u"US Letter"_s));
        QCOMPARE(labelText("labelCount"), u"4 labels on 1 sheet"_s);
        type(u"Drummond, F"_s); // the labels follow the grid
        QTRY_COMPARE(labelText("labelCount"), u"1 label on 1 sheet"_s);
        type(u"Drummond"_s);
        QTRY_COMPARE(labelText("labelCount"), u"4 labels on 1 sheet"_s);
        auto *names = find<QListView>("labelNames");
        click("tickNone");
        QTRY_COMPARE(labelText("labelCount"), u"0 labels on 1 sheet"_s);
        QVERIFY(!find<QPushButton>("printLabels")->isEnabled());
        QTest::mouseClick(names->viewport(), Qt::LeftButton, {},
                          names->visualRect(names->model()->index(1, 0)).center());
        QTest::keyClick(names, Qt::Key_Down);
        QTest::keyClick(names, Qt::Key_Space);
        QTRY_COMPARE(labelText("labelCount"), u"2 labels on 1 sheet"_s);
        QCOMPARE(labelText("tickedCount"), u"Names: 2 of 4"_s);
        click("tickAll");
        QTRY_COMPARE(labelText("labelCount"), u"4 labels on 1 sheet"_s);
        find<QSpinBox>("startPosition")->setValue(28);
        QCOMPARE(labelText("labelCount"), u"4 labels on 2 sheets"_s);
        m_test->dialogs.willChooseFile(m_test->temporary.filePath(u"labels.pdf"_s));
        click("printLabels");
        QVERIFY(QFile::exists(m_test->temporary.filePath(u"labels.pdf"_s)));
        sheets->setCurrentText(u"Envelope DL, 220 x 110 mm"_s);
        QCOMPARE(labelText("labelCount"), u"4 envelopes"_s);
        QVERIFY(!find<QSpinBox>("startPosition")->isVisible());
        QTest::keyClick(sheets, Qt::Key_Escape);
        QVERIFY(grid()->isVisible());
    }

private:
    /// The text of the page that the preview shows.
    QString printedPage()
    {
        click("SSCommand80_3");
        asked();
        return QApplication::clipboard()->text();
    }
};

QTEST_MAIN(TestViewerOutput)
#include "tst_vieweroutput.moc"
