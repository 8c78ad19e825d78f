// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/helpcontexts.h"
#include "shell/manual/helpentry.h"
#include "shell/manual/helpviewer.h"
#include "shell/manual/manualbrowser.h"
#include "shell/manual/manualprint.h"
#include "tests/support/openwindow.h"

#include <QLineEdit>
#include <QListWidget>

using namespace Qt::Literals::StringLiterals;

class TestHelpViewer : public OpenWindow<HelpViewer>
{
    Q_OBJECT
private slots:
    void init()
    {
        m_test = std::make_unique<TestProgram>();
        m_window = new HelpViewer(m_test->program);
        showActive(*m_window);
    }
    void cleanup() { close(); }

    void opensThePageOfAContext()
    {
        const QString title = u"Backup and Restore"_s;
        m_window->openPage(HelpContext::BackupAndRestore);
        QVERIFY(shownText().startsWith(title));
        QCOMPARE(find<QListWidget>("contents")->currentItem()->text(), title);
        m_window->openPage(4711);
        QVERIFY(shownText().startsWith(u"Program Overview"_s));
    }

    void goesBackAndForward()
    {
        auto *back = find<QAction>("mGBack");
        auto *forward = find<QAction>("mGForward");
        QVERIFY(!back->isEnabled());
        m_window->openPage(HelpContext::Appearance);
        back->trigger();
        QCOMPARE(m_window->currentContext(), HelpContext::ProgramOverview);
        QVERIFY(!back->isEnabled());
        forward->trigger();
        QCOMPARE(m_window->currentContext(), HelpContext::Appearance);
    }

    void theContentsOpenPages()
    {
        QCOMPARE(titles().first(), u"Program Overview"_s);
        auto *list = find<QListWidget>("contents");
        list->setFocus();
        QTest::keyClick(list, Qt::Key_Down);
        QCOMPARE(m_window->currentContext(), HelpContext::AddressBook);
        const int last = list->count() - 1;
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                          list->visualItemRect(list->item(last)).center());
        QVERIFY(shownText().startsWith(titles().last()));
    }

    void aSearchOpensTheFirstHit()
    {
        auto *box = find<QLineEdit>("search");
        QTest::keyClicks(box, u"stick"_s);
        QCOMPARE(labelText("count"), u"Found on 1 page"_s);
        auto *list = find<QListWidget>("contents");
        QVERIFY(list->item(0)->data(HelpEntryDelegate::excerptRole).toString().contains("stick"_L1));
        QTest::keyClick(box, Qt::Key_Return);
        QCOMPARE(m_window->currentContext(), HelpContext::BackupAndRestore);
        QVERIFY(!find<ManualBrowser>("manualPage")->extraSelections().isEmpty());
        QVERIFY(list->hasFocus());
    }

    void escClearsTheSearchBeforeItLeaves()
    {
        auto *box = find<QLineEdit>("search");
        const QStringList contents = titles();
        QTest::keyClicks(box, u"stick"_s);
        QTest::keyClick(box, Qt::Key_Escape);
        QCOMPARE(titles(), contents);
        QTest::keyClicks(box, u"zeppelin"_s);
        QTest::keyClick(box, Qt::Key_Return);
        QCOMPARE(labelText("count"), u"Nothing found"_s);
        QVERIFY(!titles().isEmpty()); // what was found last stays
        QCOMPARE(m_window->currentContext(), HelpContext::ProgramOverview);
        QTest::keyClick(box, Qt::Key_Escape);
        QVERIFY(m_window->isVisible());
        QTest::keyClick(box, Qt::Key_Escape);
        QVERIFY(!m_window->isVisible());
    }

    void isKeptWhenItIsClosed()
    {
        m_window->openPage(HelpContext::PagePreview);
        m_window->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        m_window->show();
        QCOMPARE(m_window->currentContext(), HelpContext::PagePreview);
    }

    void printsThePage()
    {
        const Manual manual(m_test->folder.path());
        const Page page = printedManualPage(manual.page(HelpContext::BackupAndRestore),
                                            PageContext{.today = QDate(2026, 11, 21)});
        QCOMPARE(page.title(), u"Backup and Restore"_s);
        const QString text = page.toText();
        QVERIFY(text.contains(u"\n2.  Leave everything ticked, or choose what goes along.\n"_s));
        QVERIFY(text.contains(
            u"\nRestoring a backup\n1.  Choose the drive, the side Restore, and one of its backups.\n"_s));
        QVERIFY(!text.contains(u'<'));

        trigger("mOPrt");
        QVERIFY(m_window->isPreviewShown());
        m_window->openPage(HelpContext::AddressBook);
        QVERIFY(!m_window->isPreviewShown());
    }

private:
    QStringList titles() const
    {
        QStringList titles;
        const auto *list = find<QListWidget>("contents");
        for (int row = 0; row < list->count(); ++row)
            titles << list->item(row)->text();
        return titles;
    }

    QString shownText() const { return find<ManualBrowser>("manualPage")->toPlainText(); }
};

QTEST_MAIN(TestHelpViewer)
#include "tst_helpviewer.moc"
