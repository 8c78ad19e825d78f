// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/frame/workviews.h"
#include "shell/preview/previewpane.h"
#include "tests/support/openwindow.h"
#include "tests/support/sampletraits.h"
#include "tests/support/testpictures.h"
#include "weight/model/personfiles.h"
#include "weight/window/weightcsvpanel.h"
#include "weight/window/weightprintpanel.h"

#include <QCheckBox>
#include <QComboBox>
#include <QSignalSpy>
#include <QTableView>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A window with the two panels, over a person of the household.
class PanelWindow final : public FunctionWindow
{
public:
    PanelWindow(Program &program, const QString &name)
        : FunctionWindow(program, sampleTraits())
        , sheet(PersonFiles(program.folder).read(name).sheet)
        , print(new WeightPrintPanel(program, this, [this] { return sheet; }))
        , csv(new WeightCsvPanel(program))
        , m_views(new WorkViews(makePanel(u"panel"_s)))
    {
        m_views->addHome(new QWidget);
        m_views->addPanel(print);
        m_views->addPanel(csv);
        setViews(m_views);
        setWork(m_views);
        finishFrame();
    }
    void open(TaskPanel *panel) { m_views->open(panel); }

    WeightSheet sheet;
    WeightPrintPanel *print;
    WeightCsvPanel *csv;

private:
    WorkViews *m_views;
};

} // namespace

/// The print options, and the preview of a file that comes in.
class TestWeightPanels final : public OpenWindow<PanelWindow>
{
    Q_OBJECT
private slots:
    void cleanup() { close(); }

    void printsWhatIsChosenAndRemembersIt()
    {
        open(u"José Ortega"_s);
        makePicture(m_test->path(u"Pictures/then.jpg"_s), {900, 1200});
        m_window->sheet.beginningPicture = u"C:\\elsewhere\\then.jpg"_s;
        startPrinting();
        QVERIFY(!find<QCheckBox>("printCurrent")->isEnabled()); // there is no such photo
        find<QCheckBox>("printPlan")->click();
        find<QCheckBox>("printBorder")->click();
        click("weightPrintShow");
        QVERIFY(m_window->isPreviewShown());
        // The summary with the graph, two sheets of weigh-ins, the photo.
        QCOMPARE(m_window->findChild<PreviewPane *>()->sheetCount(), 4);
        const QImage graph(m_test->path(u"Chartxxx.jpg"_s));
        QCOMPARE(graph.size(), QSize(2250, 1350)); // 7.5 by 4.5 inches
        reopen(u"Karin Holm"_s);
        startPrinting();
        QVERIFY(!find<QCheckBox>("printPlan")->isChecked() && find<QCheckBox>("printBorder")->isChecked());
        QVERIFY(!find<QCheckBox>("printGraph")->isEnabled()); // no weigh-in has a point
        QCOMPARE(labelText("printGraphWhy"), u"There are no weigh-ins yet"_s);
        click("weightPrintShow");
        QCOMPARE(m_window->findChild<PreviewPane *>()->sheetCount(), 1);
    }

    void bringsInWhatIsNew()
    {
        open(u"Nils Holm 2026"_s);
        const QSignalSpy taken(m_window->csv, &WeightCsvPanel::taken);
        m_test->setBytes(u"scales.csv"_s,
                         "date,weight\n2026-08-10,192.2\n2026-08-12,191.9\n2026-08-13,much\n");
        QVERIFY(m_window->csv->open(m_test->path(u"scales.csv"_s), m_window->sheet.weighIns));
        m_window->open(m_window->csv);
        auto *rows = find<QTableView>("weightImportList")->model();
        QTRY_COMPARE(rows->rowCount(), 3);
        QCOMPARE(rows->index(2, 3).data(), u"Not read: no weight"_s);
        find<QComboBox>("weightImportFilter")->setCurrentIndex(3);
        QCOMPARE(rows->rowCount(), 1);
        click("weightImportTake");
        QCOMPARE(taken.size(), 1);
        QCOMPARE(taken[0][1], u"Brought in: 1 weigh-in"_s);
        const auto weighIns = taken[0][0].value<WeightTable>();
        QCOMPARE(weighIns.rowCount(), 50);
        QCOMPARE(weighIns.at(49), (WeighIn{u"08/12/2026"_s, u"191.9"_s}));
    }

    void saysWhyAFileCannotComeIn()
    {
        open(u"Nils Holm 2026"_s);
        const QSignalSpy said(m_window->csv, &WeightCsvPanel::said);
        QVERIFY(!m_window->csv->open(m_test->path(u"nothing.csv"_s), {}));
        QCOMPARE(said[0][0], u"nothing.csv cannot be read"_s);
        QVERIFY(!m_window->csv->open(m_test->folder.path(), {}));
        QFile large(m_test->path(u"large.csv"_s));
        QVERIFY(large.open(QIODevice::WriteOnly) && large.resize(qint64(64) * 1024 * 1024 + 1));
        QVERIFY(!m_window->csv->open(large.fileName(), {}));
        QCOMPARE(said[2][0], u"large.csv is too long for such a file"_s);
        m_test->setBytes(u"other.csv"_s, "name,phone\nAnne,555\n");
        QVERIFY(m_window->csv->open(m_test->path(u"other.csv"_s), {}));
        m_window->open(m_window->csv);
        QTRY_VERIFY(!isOffered("weightImportTake"));
        QCOMPARE(labelText("weightImportHint"),
                 u"No columns with dates and weights were found in this file"_s);
    }

private:
    void open(const QString &name)
    {
        m_test = std::make_unique<TestProgram>(TestProgram::Household);
        reopen(name);
    }
    void reopen(const QString &name)
    {
        delete m_window;
        m_window = new PanelWindow(m_test->program, name);
        showActive(*m_window);
    }
    void startPrinting()
    {
        m_window->print->start();
        m_window->open(m_window->print);
    }
};

QTEST_MAIN(TestWeightPanels)
#include "tst_weightpanels.moc"
