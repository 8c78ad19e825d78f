// SPDX-License-Identifier: GPL-3.0-or-later
#include "previewwindow.h"
#include "shell/core/framelines.h"

#include <QClipboard>
#include <QMimeData>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTimer>
#include <QWheelEvent>

using namespace Qt::Literals::StringLiterals;

class TestPreviewPane final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void startsWithTheFirstSheetInPortrait();
    void takesThePaperOfTheDateStyle();
    void turnsThePageThereAndBack();
    void aChosenFontIsShownAndUsed();
    void enlargesAndComesBack();
    void hidesItsButtonsAndShowsThem();
    void stepsThroughTheSheets_data();
    void stepsThroughTheSheets();
    void scrollsAnEnlargedSheetBeforeTurning();
    void turnsWithTheWheel();
    void copiesTheShownSheet();
    void keepsThePageWhiteOnAColouredDesk();
    void isNotBuiltInsideItsOwnBuilding();

private:
    std::unique_ptr<TestProgram> m_test;
    std::unique_ptr<PreviewWindow> m_window;
};

void TestPreviewPane::init()
{
    m_test = std::make_unique<TestProgram>();
    m_window = std::make_unique<PreviewWindow>(*m_test);
    showActive(*m_window);
}

void TestPreviewPane::cleanup()
{
    QVERIFY(m_test->dialogs.isDone());
    m_window.reset();
    m_test.reset();
}

void TestPreviewPane::startsWithTheFirstSheetInPortrait()
{
    QCOMPARE(m_window->label("Panel3D80"), u" Portrait"_s);
    QCOMPARE(m_window->caption("SSCommand1"), u"Enlarge"_s);
    QCOMPARE(m_window->label("Panel3d82"), u"Sample of the page font"_s);
    m_window->showList(100);
    QCOMPARE(m_window->pane->currentSheet(), 0);
    QVERIFY(m_window->pane->sheetCount() > 2);
    QCOMPARE(m_window->label("pageNumber"), u"Page 1 of %1"_s.arg(m_window->pane->sheetCount()));
    QVERIFY(!control<QPushButton>(*m_window, "previousPage")->isEnabled());
    QCOMPARE(control<QPushButton>(*m_window, "previousPage")->toolTip(), FrameLines::firstPage());
    QVERIFY(control<QPushButton>(*m_window, "nextPage")->isEnabled());
    m_window->showList(1);
    QCOMPARE(m_window->label("pageNumber"), u"Page 1 of 1"_s);
}

void TestPreviewPane::takesThePaperOfTheDateStyle()
{
    QCOMPARE(m_window->pane->setup().paper, QSizeF(8.5, 11));
    m_test->state.dateStyle = DateStyle::Other;
    const PreviewWindow other(*m_test);
    QCOMPARE(other.pane->setup().paper, QSizeF(210 / 25.4, 297 / 25.4));
}

void TestPreviewPane::turnsThePageThereAndBack()
{
    m_window->showList(60);
    QCOMPARE(m_window->caption("SSCommand80_1"), u"Landscape"_s);
    m_window->click("SSCommand80_1");
    QCOMPARE(m_window->label("Panel3D80"), u" Landscape"_s);
    QCOMPARE(m_window->caption("SSCommand80_1"), u"Portrait"_s);
    QVERIFY(m_window->view().sheetRect().width() > m_window->view().sheetRect().height());
    m_window->click("SSCommand80_1");
    QCOMPARE(m_window->label("Panel3D80"), u" Portrait"_s);
    QVERIFY(m_window->view().sheetRect().width() < m_window->view().sheetRect().height());
    QCOMPARE(m_window->builtFor.size(), 3);
    QCOMPARE(m_window->builtFor.at(1).orientation, PageSetup::Landscape);
    QCOMPARE(m_window->builtFor.at(2), m_window->builtFor.at(0));
}

void TestPreviewPane::aChosenFontIsShownAndUsed()
{
    m_window->showList(100);
    m_test->dialogs.willChooseFont({}); // cancelled
    m_window->click("SSCommand80_0");
    QCOMPARE(m_window->builtFor.size(), 1);

    const int sheets = m_window->pane->sheetCount();
    PageFont chosen{QFont(u"DejaVu Serif"_s, 22, QFont::Bold, true), QColor(0, 0, 200)};
    chosen.font.setUnderline(true);
    chosen.font.setStrikeOut(true);
    m_test->dialogs.willChooseFont(chosen);
    m_window->click("SSCommand80_0");
    const auto *sample = control<QLabel>(*m_window, "Panel3d82");
    QCOMPARE(sample->font().family(), chosen.font.family());
    QCOMPARE(sample->font().pointSize(), 22);
    QVERIFY(sample->font().bold() && sample->font().italic() && sample->font().underline());
    QVERIFY(sample->font().strikeOut());
    QCOMPARE(sample->palette().color(QPalette::WindowText), chosen.color);
    QVERIFY(m_window->pane->sheetCount() > sheets);
}

void TestPreviewPane::enlargesAndComesBack()
{
    m_window->showList(100);
    const QRectF normal = m_window->view().sheetRect();
    QVERIFY(QRectF(m_window->view().viewport()->rect()).contains(normal));
    m_window->click("SSCommand1");
    QCOMPARE(m_window->caption("SSCommand1"), u"Normal"_s);
    QVERIFY(m_window->view().sheetRect().width() > normal.width() * 1.15);
    QVERIFY(m_window->view().verticalScrollBar()->maximum() > 0);
    m_window->click("SSCommand1");
    QCOMPARE(m_window->caption("SSCommand1"), u"Enlarge"_s);
    QCOMPARE(m_window->view().sheetRect(), normal);
}

void TestPreviewPane::hidesItsButtonsAndShowsThem()
{
    auto *buttons = control<QWidget>(*m_window, "SSPanel80");
    auto *tab = control<QPushButton>(*m_window, "showButtons");
    QVERIFY(buttons->isVisible() && !tab->isVisible());
    m_window->click("SSCommand80_2");
    QVERIFY(!buttons->isVisible() && tab->isVisible());
    QVERIFY(tab->hasFocus());
    QTest::keyClick(tab, Qt::Key_Space);
    QVERIFY(buttons->isVisible() && !tab->isVisible());
}

void TestPreviewPane::stepsThroughTheSheets_data()
{
    QTest::addColumn<QList<int>>("keys");
    QTest::addColumn<int>("sheet");
    QTest::newRow("forward") << QList<int>{Qt::Key_Right, Qt::Key_PageDown} << 2;
    QTest::newRow("back") << QList<int>{Qt::Key_End, Qt::Key_Left, Qt::Key_PageUp} << 3;
    QTest::newRow("to the last") << QList<int>{Qt::Key_End} << 5;
    QTest::newRow("not beyond it") << QList<int>{Qt::Key_End, Qt::Key_Right, Qt::Key_PageDown} << 5;
    QTest::newRow("to the first") << QList<int>{Qt::Key_End, Qt::Key_Home} << 0;
    QTest::newRow("not before it") << QList<int>{Qt::Key_Left, Qt::Key_PageUp} << 0;
}

void TestPreviewPane::stepsThroughTheSheets()
{
    QFETCH(QList<int>, keys);
    m_window->showSheets(6);
    for (const int key : keys)
        QTest::keyClick(&m_window->view(), Qt::Key(key));
    QTEST(m_window->pane->currentSheet(), "sheet");

    m_window->click("nextPage");
    m_window->click("previousPage");
    m_window->pane->setFocus(); // on a button
    QTest::keyClick(m_window->focusWidget(), Qt::Key_End);
    QCOMPARE(m_window->pane->currentSheet(), 5);
}

void TestPreviewPane::scrollsAnEnlargedSheetBeforeTurning()
{
    m_window->showList(100);
    m_window->click("SSCommand1");
    SheetView &view = m_window->view();
    const QScrollBar *bar = view.verticalScrollBar();
    QTest::keyClick(&view, Qt::Key_PageDown);
    QCOMPARE(m_window->pane->currentSheet(), 0);
    QVERIFY(bar->value() > 0);
    while (bar->value() < bar->maximum())
        QTest::keyClick(&view, Qt::Key_PageDown);
    QCOMPARE(m_window->pane->currentSheet(), 0);
    QTest::keyClick(&view, Qt::Key_PageDown);
    QCOMPARE(m_window->pane->currentSheet(), 1);
    QCOMPARE(bar->value(), 0);
    QTest::keyClick(&view, Qt::Key_PageUp);
    QCOMPARE(m_window->pane->currentSheet(), 0);
    QCOMPARE(bar->value(), bar->maximum());
}

void TestPreviewPane::turnsWithTheWheel()
{
    m_window->showList(100);
    const auto turn = [this](int angle) {
        QWidget *viewport = m_window->view().viewport();
        const QPointF middle = viewport->rect().center();
        QWheelEvent event(middle, viewport->mapToGlobal(middle), {}, {0, angle}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(viewport, &event);
    };
    turn(-120);
    QCOMPARE(m_window->pane->currentSheet(), 1);
    turn(-60); // half a notch, as touchpads send
    QCOMPARE(m_window->pane->currentSheet(), 1);
    turn(-60);
    QCOMPARE(m_window->pane->currentSheet(), 2);
    turn(120);
    QCOMPARE(m_window->pane->currentSheet(), 1);
}

void TestPreviewPane::copiesTheShownSheet()
{
    m_window->showList(100);
    m_window->click("nextPage");
    m_window->click("SSCommand80_3");
    const Message copied{u"Copy Option"_s, u"Current Page has been copied to the Windows Clipboard."_s,
                         Message::Information};
    QCOMPARE(m_test->dialogs.takeShown(), {copied});
    const QMimeData *data = QApplication::clipboard()->mimeData();
    QVERIFY(data && data->hasImage() && data->hasText());
    const QImage picture = qvariant_cast<QImage>(data->imageData());
    QCOMPARE(picture.size(), QSize(1275, 1650));
    QVERIFY(data->text().startsWith(u"\nNames\n\nName\tNumber\nZoë\t"_s));
    QVERIFY(!data->text().contains(u"\t0\n"_s)); // that is on the sheet before

    m_window->pane->show([](const PageSetup &) { return Page(); }, u"Empty"_s);
    m_window->click("SSCommand80_3");
    QCOMPARE(m_test->dialogs.takeShown(), {copied});
    QVERIFY(QApplication::clipboard()->mimeData()->hasImage());
}

void TestPreviewPane::keepsThePageWhiteOnAColouredDesk()
{
    m_window->showList(1);
    const QColor desk(40, 0, 80);
    m_window->pane->setDeskColor(desk);
    QWidget *viewport = m_window->view().viewport();
    const QImage image = viewport->grab().toImage();
    QCOMPARE(image.pixelColor(viewport->width() / 2, 4), desk);
    QCOMPARE(image.pixelColor(m_window->view().sheetRect().bottomRight().toPoint() - QPoint(9, 9)),
             QColor(Qt::white));
    m_window->pane->setDeskColor({});
    QVERIFY(viewport->grab().toImage().pixelColor(viewport->width() / 2, 4) != desk);
}

void TestPreviewPane::isNotBuiltInsideItsOwnBuilding()
{
    m_window->showList(1);
    int built = 0;
    QTimer::singleShot(0, m_window->pane, &PreviewPane::rebuild);
    m_window->pane->show(
        [&built](const PageSetup &) {
            ++built;
            return Page();
        },
        {});
    QCOMPARE(built, 1);
    QCoreApplication::processEvents();
    QCOMPARE(built, 1);
}

QTEST_MAIN(TestPreviewPane)
#include "tst_previewpane.moc"
