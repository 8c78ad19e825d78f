// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/helpcontexts.h"
#include "shell/manual/manual.h"

#include <QRegularExpression>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class TestManual : public QObject
{
    Q_OBJECT

private slots:
    void hasAPageForEveryContext();
    void anUnknownContextOpensTheOverview();
    void linksLeadToPages();
    void namesTheFolderOfTheRecords();
    void findsPagesByWords_data();
    void findsPagesByWords();
    void pagesWithTheWordInTheirTitleComeFirst();
    void excerptsShowTheWord();

private:
    Manual m_manual{u"/home/anne/<Records> & more"_s};
};

void TestManual::hasAPageForEveryContext()
{
    for (const int context :
         {HelpContext::ProgramOverview, HelpContext::AddressBook, HelpContext::PasswordControl,
          HelpContext::Appearance, HelpContext::PagePreview, HelpContext::BackupAndRestore}) {
        const ManualPage &page = m_manual.page(context);
        QCOMPARE(page.context, context);
        QVERIFY(!page.title.isEmpty());
        QVERIFY(!page.text.contains(QRegularExpression(u"&\\w+;|</"_s)));
    }
}

void TestManual::anUnknownContextOpensTheOverview()
{
    for (const int context : {0, -1, 999, 31000})
        QCOMPARE(m_manual.page(context).context, HelpContext::ProgramOverview);
}

void TestManual::linksLeadToPages()
{
    static const QRegularExpression link(u"href=\"([^\"]*)\""_s);
    for (const ManualPage &page : m_manual.pages()) {
        for (auto links = link.globalMatch(page.html); links.hasNext();) {
            const int target = links.next().captured(1).toInt();
            QCOMPARE(m_manual.page(target).context, target);
        }
    }
}

void TestManual::namesTheFolderOfTheRecords()
{
    for (const int context : {HelpContext::ProgramOverview, HelpContext::BackupAndRestore}) {
        QVERIFY(m_manual.page(context).html.contains("<b>/home/anne/&lt;Records&gt; &amp; more</b>"_L1));
        QVERIFY(m_manual.page(context).text.contains("/home/anne/<Records> & more"_L1));
    }
}

void TestManual::findsPagesByWords_data()
{
    QTest::addColumn<QString>("words");
    QTest::addColumn<QList<int>>("contexts");
    QTest::newRow("nothing") << QString() << QList<int>();
    QTest::newRow("blanks") << u"  "_s << QList<int>();
    QTest::newRow("one page") << u"modem"_s << QList{1001};
    QTest::newRow("any case, within words") << u"ODEM"_s << QList{1001};
    QTest::newRow("every word must be there") << u"modem picture"_s << QList{1001};
    QTest::newRow("one word is nowhere") << u"modem zeppelin"_s << QList<int>();
    QTest::newRow("a mark of the page is no word") << u"h2"_s << QList<int>();
}

void TestManual::findsPagesByWords()
{
    QFETCH(QString, words);
    QList<int> contexts;
    for (const ManualHit &hit : m_manual.find(words))
        contexts << hit.context;
    QTEST(contexts, "contexts");
}

void TestManual::pagesWithTheWordInTheirTitleComeFirst()
{
    const QList<ManualHit> hits = m_manual.find(u"backup"_s);
    QCOMPARE(hits.first().context, HelpContext::BackupAndRestore);
    QVERIFY(hits.size() > 1);
}

void TestManual::excerptsShowTheWord()
{
    for (const QString &word : {u"modem"_s, u"the"_s, u"PDF"_s, u"keeps"_s, u"again"_s}) {
        for (const ManualHit &hit : m_manual.find(word)) {
            QVERIFY2(hit.excerpt.contains(word, Qt::CaseInsensitive), qPrintable(hit.excerpt));
            QVERIFY2(hit.excerpt.size() <= 100, qPrintable(hit.excerpt));
        }
    }
}

QTEST_APPLESS_MAIN(TestManual)
#include "tst_manual.moc"
