// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/area.h"
#include "shell/frame/commonkeys.h"
#include "shell/frame/searchmodel.h"
#include "tests/support/sampletraits.h"
#include "tests/support/testprogram.h"

#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QSignalSpy>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Finds its names by their beginnings; it is read in two steps.
class SampleSource final : public SearchSource
{
public:
    explicit SampleSource(QStringList names)
        : m_names(std::move(names))
    {}

    bool prepare() override { return ++m_steps <= 2; }
    QList<SearchHit> matches(QStringView text, int most) const override
    {
        QList<SearchHit> hits;
        for (int i = 0; i < m_names.size() && hits.size() < most && m_steps >= 2; ++i) {
            if (m_names.at(i).startsWith(text, Qt::CaseInsensitive))
                hits.append({m_names.at(i), u"its line"_s, {.record = i + 1}});
        }
        return hits;
    }

private:
    QStringList m_names;
    int m_steps = 0;
};

class SampleWindow final : public FunctionWindow
{
public:
    explicit SampleWindow(Program &program)
        : FunctionWindow(program, sampleTraits())
        , box(new QLineEdit)
    {
        addMenu(u"mE"_s, u"&Edit"_s);
        setWork(box);
        finishFrame();
    }
    using FunctionWindow::setBusy;
    QLineEdit *box;
};

} // namespace

class TestEverythingBox : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_program = std::make_unique<TestProgram>();
        QStringList people;
        for (int i = 1; i <= 9; ++i)
            people << u"Anne %1"_s.arg(i);
        addSource(Function::AddressBook, people);
        addSource(Function::Planner, {u"Anniversary"_s, u"Dentist"_s});
        m_window = std::make_unique<SampleWindow>(m_program->program);
        showActive(*m_window);
        m_window->box->setFocus();
        QTest::keyClick(m_window->box, Qt::Key_K, Qt::ControlModifier);
        QTRY_VERIFY(box()->hasFocus());
    }
    void cleanup() { m_window.reset(); }

    void groupsWhatItFinds()
    {
        QVERIFY(!hits()->isVisible());
        type(u"an"_s);
        QTRY_COMPARE(shown(),
                     (QStringList{u"Address Book"_s, u"Anne 1"_s, u"Anne 2"_s, u"Anne 3"_s, u"Anne 4"_s,
                                  u"Anne 5"_s, u"4 more"_s, u"Daily Planner"_s, u"Anniversary"_s}));
        QVERIFY(hits()->isVisible());
        type(u"xx"_s);
        QCOMPARE(shown(), QStringList{u"Nothing found."_s});
        box()->clear();
        QVERIFY(!hits()->isVisible());
    }

    void opensWithTheKeys()
    {
        QSignalSpy wanted(&m_program->changes, &ProgramSignals::placeRequested);
        type(u"an"_s);
        QTRY_COMPARE(hits()->currentIndex().row(), 1);
        for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_Down, Qt::Key_PageDown, Qt::Key_Down})
            QTest::keyClick(box(), key);
        QCOMPARE(hits()->currentIndex().row(), 8); // over the head, and no further than the end
        QTest::keyClick(box(), Qt::Key_Up);
        QTest::keyClick(box(), Qt::Key_Return); // "4 more"
        QCOMPARE(shown().size(), 12);
        QCOMPARE(hits()->currentIndex().data().toString(), u"Anne 6"_s);
        QTest::keyClick(box(), Qt::Key_Down);
        QTest::keyClick(box(), Qt::Key_Return);
        QCOMPARE(wanted.size(), 1);
        QCOMPARE(wanted.first().at(0).value<Function>(), Function::AddressBook);
        QCOMPARE(wanted.first().at(1).value<Place>(), Place{.record = 7});
        QVERIFY(!box()->isVisible());
        QVERIFY(m_window->box->hasFocus());
    }

    void opensWithAClick()
    {
        QSignalSpy wanted(&m_program->changes, &ProgramSignals::placeRequested);
        type(u"den"_s);
        QTRY_COMPARE(shown().size(), 2);
        for (const int row : {0, 1}) // the head does nothing
            QTest::mouseClick(hits()->viewport(), Qt::LeftButton, {},
                              hits()->visualRect(hits()->model()->index(row, 0)).center());
        QCOMPARE(wanted.size(), 1);
        QCOMPARE(wanted.first().at(0).value<Function>(), Function::Planner);
    }

    void leavesWithEsc()
    {
        type(u"an"_s);
        QTest::keyClick(box(), Qt::Key_Escape);
        QVERIFY(!hits()->isVisible() && !box()->isVisible());
        QVERIFY(m_window->isVisible() && m_window->box->hasFocus());
        trigger();
        QVERIFY(box()->hasFocus() && box()->text().isEmpty());
        m_window->box->setFocus(); // another box is clicked
        QVERIFY(!box()->isVisible());
        m_window->setBusy(true);
        trigger();
        QVERIFY(!box()->isVisible());
    }

    void asksNoGuardedFunction()
    {
        type(u"an"_s);
        QTRY_COMPARE(shown().size(), 9);
        m_program->state.protectedAreas.setFlag(Area::AddressBookButton, u"YES"_s);
        type(u"ann"_s);
        QCOMPARE(shown(), (QStringList{u"Daily Planner"_s, u"Anniversary"_s,
                                       u"Protected and not searched: Address Book"_s}));
    }

    void standsInTheEditMenu()
    {
        const auto *menu = control<QMenu>(*m_window, "mE");
        QCOMPARE(menu->actions().last()->shortcut(), QKeySequence(CommonKeys::everything));
        QCOMPARE(menu->actions().last()->objectName(), u"searchEverything"_s);
    }

private:
    void addSource(Function function, const QStringList &names)
    {
        m_program->functions.add(
            function, {.search = [names](const Program &) { return std::make_unique<SampleSource>(names); }});
    }
    void trigger() const { control<QAction>(*m_window, "searchEverything")->trigger(); }
    QLineEdit *box() const { return control<QLineEdit>(*m_window, "everythingSearch"); }
    QListView *hits() const { return control<QListView>(*m_window, "searchHits"); }
    void type(const QString &text) const
    {
        box()->selectAll();
        QTest::keyClicks(box(), text);
    }
    QStringList shown() const
    {
        QStringList rows;
        for (int row = 0; row < hits()->model()->rowCount(); ++row)
            rows << hits()->model()->index(row, 0).data().toString();
        return rows;
    }

    std::unique_ptr<TestProgram> m_program;
    std::unique_ptr<SampleWindow> m_window;
};

QTEST_MAIN(TestEverythingBox)
#include "tst_everythingbox.moc"
