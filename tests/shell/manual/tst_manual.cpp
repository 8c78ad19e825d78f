// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/helpcontexts.h"
#include "shell/manual/manual.h"
#include "tests/support/rows.h"

#include <QDir>
#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

class TestManual : public QObject
{
    Q_OBJECT
private slots:
    void hasAPageForEveryContext()
    {
        for (const int context : HelpContext::all) {
            const ManualPage &page = m_manual.page(context);
            QCOMPARE(page.context, context);
            QVERIFY(!page.title.isEmpty());
            QVERIFY(!page.text.contains(QRegularExpression(u"&\\w+;|</"_s)));
        }
        for (const int unknown : {0, -1, 999, 31000})
            QCOMPARE(m_manual.page(unknown).context, HelpContext::ProgramOverview);
    }

    void linksLeadToPages()
    {
        static const QRegularExpression link(u"href=\"([^\"]*)\""_s);
        for (const ManualPage &page : m_manual.pages()) {
            for (auto links = link.globalMatch(page.html); links.hasNext();) {
                const int target = links.next().captured(1).toInt();
                QCOMPARE(m_manual.page(target).context, target);
            }
        }
    }

    void namesTheFolderOfTheRecords()
    {
        for (const int context : {HelpContext::ProgramOverview, HelpContext::BackupAndRestore}) {
            const QString home = QDir::toNativeSeparators(u"/home/anne/"_s);
            QVERIFY(m_manual.page(context).html.contains(
                QString(u"<b>"_s + home + u"&lt;Records&gt; &amp; more</b>"_s)));
            QVERIFY(m_manual.page(context).text.contains(QString(home + u"<Records> & more"_s)));
        }
    }

    void findsPagesByWords_data()
    {
        rows<QString, QList<int>>({
            {"nothing", {}, {}},
            {"blanks", u"  "_s, {}},
            {"one page", u"modem"_s, {1001}},
            {"any case, within words", u"ODEM"_s, {1001}},
            {"every word must be there", u"modem picture"_s, {1001}},
            {"one word is nowhere", u"modem zeppelin"_s, {}},
            {"the word in the title first", u"backup"_s, {1009, 1000, 1002, 1013, 1014}},
            {"a mark of the page is no word", u"h2"_s, {}},
        });
    }

    void findsPagesByWords()
    {
        const auto [words, expected] = row<QString, QList<int>>();
        QList<int> contexts;
        for (const ManualHit &hit : m_manual.find(words))
            contexts << hit.context;
        QCOMPARE(contexts, expected);
    }

    void excerptsShowTheWord()
    {
        for (const QString &word : {u"modem"_s, u"the"_s, u"PDF"_s, u"keeps"_s, u"again"_s}) {
            for (const ManualHit &hit : m_manual.find(word)) {
                QVERIFY2(hit.excerpt.contains(word, Qt::CaseInsensitive), qPrintable(hit.excerpt));
                QVERIFY2(hit.excerpt.size() <= 100, qPrintable(hit.excerpt));
            }
        }
    }

private:
    Manual m_manual{u"/home/anne/<Records> & more"_s};
};

QTEST_APPLESS_MAIN(TestManual)
#include "tst_manual.moc"
