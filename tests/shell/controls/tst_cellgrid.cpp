// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/cellgrid.h"
#include "shell/controls/gridcell.h"
#include "tests/support/rows.h"

#include <QLineEdit>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

/// Typing in a grid of two rows with five cells, of which the third is computed and the fourth passed over.
class TestCellGrid : public QObject
{
    Q_OBJECT

    static constexpr int computed = 2;
    static constexpr int passed = 3;

    QLineEdit *box() const
    {
        for (auto *box : m_grid->findChildren<QLineEdit *>(u"cellBox"_s)) {
            if (!box->isHidden())
                return box;
        }
        return nullptr;
    }
    void press(int key, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::keyClick(box() ? static_cast<QWidget *>(box()) : m_grid, Qt::Key(key), modifiers);
    }
    void type(char character) const
    {
        QTest::keyClick(box() ? static_cast<QWidget *>(box()) : m_grid, character);
    }
    QString place() const
    {
        const QModelIndex at = m_grid->currentIndex();
        return QString::number(at.row()) + u',' + QString::number(at.column());
    }
    QString cell(int row, int column) const { return m_model->index(row, column).data().toString(); }

    std::unique_ptr<QStandardItemModel> m_model;
    std::unique_ptr<QWidget> m_window;
    CellGrid *m_grid = nullptr;

private slots:
    void init()
    {
        m_model = std::make_unique<QStandardItemModel>(2, 5);
        for (int row = 0; row < 2; ++row) {
            for (int column = 0; column < 5; ++column)
                m_model->setItem(row, column, new QStandardItem(QString::number(10 * row + column)));
            m_model->item(row, computed)->setEditable(false);
            m_model->item(row, passed)->setData(true, GridCell::passedRole);
        }
        m_window = std::make_unique<QWidget>();
        m_grid = new CellGrid(m_window.get());
        m_grid->setModel(m_model.get());
        m_grid->resize(600, 200);
        m_window->show();
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        m_grid->setFocus();
        m_grid->setCurrentIndex(m_model->index(0, 1));
    }

    void leadsOn_data()
    {
        rows<bool, int, Qt::KeyboardModifiers, QString>({
            {"Tab passes over cells", false, Qt::Key_Tab, {}, u"0,4"_s},
            {"Shift+Tab", false, Qt::Key_Backtab, Qt::ShiftModifier, u"0,0"_s},
            {"Enter goes down", false, Qt::Key_Return, {}, u"1,1"_s},
            {"an arrow goes anywhere", false, Qt::Key_Right, {}, u"0,2"_s},
            {"Tab in something new", true, Qt::Key_Tab, {}, u"0,4"_s},
            {"Enter in something new", true, Qt::Key_Enter, {}, u"0,4"_s},
            {"Shift+Enter in something new", true, Qt::Key_Enter, Qt::ShiftModifier, u"0,0"_s},
        });
    }

    void leadsOn()
    {
        const auto [isEntry, key, modifiers, expected] = row<bool, int, Qt::KeyboardModifiers, QString>();
        if (isEntry)
            m_grid->setEntry();
        type('7');
        press(key, modifiers);
        QCOMPARE(cell(0, 1), u"7"_s);
        QCOMPARE(place(), expected);
        QCOMPARE(box() != nullptr, isEntry);
        // The same without typing.
        m_grid->setCurrentIndex(m_model->index(0, 1));
        press(key, modifiers);
        QCOMPARE(place(), expected);
    }

    void entersBehindTheLastCell()
    {
        const QSignalSpy entered(m_grid, &CellGrid::entered);
        m_grid->setEntry();
        m_grid->type(m_model->index(0, 4));
        type('7');
        press(Qt::Key_Return);
        QCOMPARE(entered.count(), 1);
        QCOMPARE(cell(0, 4), u"7"_s);
    }

    void editsWhatACellHolds()
    {
        press(Qt::Key_F2);
        type('0');
        press(Qt::Key_Right); // moves in the text
        QCOMPARE(place(), u"0,1"_s);
        press(Qt::Key_Escape);
        QCOMPARE(cell(0, 1), u"1"_s);
        const QSignalSpy refused(m_grid, &CellGrid::refused);
        m_grid->setCurrentIndex(m_model->index(0, computed));
        type('7');
        QCOMPARE(cell(0, computed), u"2"_s);
        QVERIFY(refused.count() > 0);
    }

    void typesOverNumbersAndDates_data()
    {
        rows<GridCell::Kind, QString>({{"words go on", GridCell::Kind::Words, u"17"_s},
                                       {"a number", GridCell::Kind::Number, u"7"_s},
                                       {"a date", GridCell::Kind::Date, u"7"_s}});
    }

    void typesOverNumbersAndDates()
    {
        const auto [kind, expected] = row<GridCell::Kind, QString>();
        m_model->item(0, 1)->setData(int(kind), GridCell::kindRole);
        const QPoint place = m_grid->visualRect(m_model->index(0, 1)).center();
        QTest::mouseClick(m_grid->viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(m_grid->viewport(), Qt::LeftButton, {}, place);
        type('7');
        press(Qt::Key_Return);
        QCOMPARE(cell(0, 1), expected);
    }
};

QTEST_MAIN(TestCellGrid)
#include "tst_cellgrid.moc"
