// SPDX-License-Identifier: GPL-3.0-or-later
#include "previewwindow.h"
#include "tests/support/rows.h"

#include <QClipboard>
#include <QMimeData>
#include <QScrollBar>
#include <QTimer>
#include <QWheelEvent>

using namespace Qt::Literals::StringLiterals;

class TestPreviewPane final : public QObject
{
    Q_OBJECT
private slots:
    void init() { m_window.emplace(); }
    void cleanup() { QVERIFY(m_window->dialogs.isDone()); }

    void startsWithTheFirstSheet()
    {
        QCOMPARE(m_window->label("Panel3d82"), u"Sample of the page font"_s);
        m_window->showSheets(3);
        m_window->click("nextPage");
        m_window->showList(100);
        QCOMPARE(m_window->pane->currentSheet(), 0);
        QVERIFY(m_window->pane->sheetCount() > 2);
        QCOMPARE(m_window->label("pageNumber"), u"Page 1 of %1"_s.arg(m_window->pane->sheetCount()));
        QVERIFY(!control<QPushButton>(m_window->window, "previousPage")->isEnabled());
    }

    void takesThePaperOfTheDateStyle()
    {
        QCOMPARE(m_window->pane->setup().paper, QSizeF(8.5, 11));
        m_window->test.state.dateStyle = DateStyle::Other;
        const PreviewPane other(m_window->test.program, *m_window->activity);
        QCOMPARE(other.setup().paper, QSizeF(210 / 25.4, 297 / 25.4));
    }

    void turnsThePageThereAndBack()
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

    void pagesMayLieAsTheySayThemselves()
    {
        QList<PageSetup::Orientation> turned;
        m_window->pane->setOwnOrientation(PageSetup::Landscape,
                                          [&turned](PageSetup::Orientation now) { turned.append(now); });
        m_window->showList(3);
        QCOMPARE(m_window->label("Panel3D80"), u" Landscape"_s);
        m_window->click("SSCommand80_1");
        QCOMPARE(turned, {PageSetup::Portrait});
        m_window->showList(3);
        QCOMPARE(m_window->label("Panel3D80"), u" Portrait"_s);
    }

    void aChosenFontIsShownAndUsed()
    {
        m_window->showList(100);
        m_window->dialogs.willChooseFont({}); // cancelled
        m_window->click("SSCommand80_0");
        QCOMPARE(m_window->builtFor.size(), 1);

        const int sheets = m_window->pane->sheetCount();
        PageFont chosen{QFont(u"DejaVu Serif"_s, 22, QFont::Bold, true), QColor(0, 0, 200)};
        chosen.font.setUnderline(true);
        chosen.font.setStrikeOut(true);
        m_window->dialogs.willChooseFont(chosen);
        m_window->click("SSCommand80_0");
        const auto *sample = control<QLabel>(m_window->window, "Panel3d82");
        QCOMPARE(sample->font().family(), chosen.font.family());
        QCOMPARE(sample->font().pointSize(), 22);
        QVERIFY(sample->font().bold() && sample->font().italic() && sample->font().underline());
        QVERIFY(sample->font().strikeOut());
        QCOMPARE(sample->palette().color(QPalette::WindowText), chosen.color);
        QVERIFY(m_window->pane->sheetCount() > sheets);
    }

    void hidesItsButtonsAndShowsThem()
    {
        auto *buttons = control<QWidget>(m_window->window, "SSPanel80");
        auto *tab = control<QPushButton>(m_window->window, "showButtons");
        QVERIFY(buttons->isVisible() && !tab->isVisible());
        m_window->click("SSCommand80_2");
        QVERIFY(!buttons->isVisible() && tab->isVisible());
        QVERIFY(tab->hasFocus());
        QTest::keyClick(tab, Qt::Key_Space);
        QVERIFY(buttons->isVisible() && !tab->isVisible());
    }

    void stepsThroughTheSheets_data()
    {
        using Keys = QList<Qt::Key>;
        rows<Keys, int>({
            {"forward", {Qt::Key_Right, Qt::Key_PageDown}, 2},
            {"back", {Qt::Key_End, Qt::Key_Left, Qt::Key_PageUp}, 3},
            {"not beyond the last", {Qt::Key_End, Qt::Key_Right, Qt::Key_PageDown}, 5},
            {"to the first", {Qt::Key_End, Qt::Key_Home}, 0},
            {"not before it", {Qt::Key_Left, Qt::Key_PageUp}, 0},
        });
    }

    void stepsThroughTheSheets()
    {
        const auto [keys, sheet] = row<QList<Qt::Key>, int>();
        m_window->showSheets(6);
        for (const Qt::Key key : keys)
            QTest::keyClick(&m_window->view(), key);
        QCOMPARE(m_window->pane->currentSheet(), sheet);

        m_window->click("nextPage");
        m_window->click("previousPage");
        m_window->pane->setFocus(); // on a button
        QTest::keyClick(m_window->window.focusWidget(), Qt::Key_End);
        QCOMPARE(m_window->pane->currentSheet(), 5);
        QTest::keyClick(m_window->window.focusWidget(), Qt::Key_PageUp);
        QCOMPARE(m_window->pane->currentSheet(), 4);

        // At either end the focus stays with the buttons that step.
        m_window->showSheets(2);
        for (const bool isForward : {true, false, true}) {
            auto *step = control<QPushButton>(m_window->window, isForward ? "nextPage" : "previousPage");
            step->setFocus();
            QTest::keyClick(step, Qt::Key_Space);
            QCOMPARE(m_window->window.focusWidget()->objectName(),
                     isForward ? u"previousPage"_s : u"nextPage"_s);
        }
    }

    void enlargesASheetAndScrollsItBeforeTurning()
    {
        m_window->showList(100);
        SheetView &view = m_window->view();
        const QRectF normal = view.sheetRect();
        QVERIFY(QRectF(view.viewport()->rect()).contains(normal));
        m_window->click("SSCommand1");
        QCOMPARE(m_window->caption("SSCommand1"), u"Normal"_s);
        QVERIFY(view.sheetRect().width() > normal.width() * 1.15);

        const QScrollBar *bar = view.verticalScrollBar();
        int presses = 0;
        for (; bar->value() < bar->maximum() && presses < 50; ++presses)
            QTest::keyClick(&view, Qt::Key_PageDown);
        QVERIFY(presses > 0);
        QCOMPARE(m_window->pane->currentSheet(), 0);
        QTest::keyClick(&view, Qt::Key_PageDown);
        QCOMPARE(m_window->pane->currentSheet(), 1);
        QCOMPARE(bar->value(), 0);
        QTest::keyClick(&view, Qt::Key_PageUp);
        QCOMPARE(m_window->pane->currentSheet(), 0);
        QCOMPARE(bar->value(), bar->maximum());

        m_window->click("SSCommand1");
        QCOMPARE(m_window->caption("SSCommand1"), u"Enlarge"_s);
        QCOMPARE(view.sheetRect(), normal);
    }

    void turnsWithTheWheel()
    {
        m_window->showList(100);
        const auto turn = [this](int angle) {
            QWidget *viewport = m_window->view().viewport();
            const QPointF middle = viewport->rect().center();
            QWheelEvent event(middle, viewport->mapToGlobal(middle), {}, {0, angle}, Qt::NoButton,
                              Qt::NoModifier, Qt::NoScrollPhase, false);
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

    void copiesTheShownSheet()
    {
        m_window->showList(100);
        m_window->click("nextPage");
        m_window->click("SSCommand80_3");
        QCOMPARE(m_window->dialogs.takeShown(), {PreviewMessages::pageCopied()});
        const QMimeData *data = QApplication::clipboard()->mimeData();
        QVERIFY(data && data->hasImage() && data->hasText());
        const QImage picture = qvariant_cast<QImage>(data->imageData());
        QCOMPARE(picture.size(), QSize(1275, 1650));
        QVERIFY(data->text().startsWith(u"\nNames\n\nName\tNumber\nZoë\t"_s));
        QVERIFY(!data->text().contains(u"\t0\n"_s)); // that is on the sheet before

        m_window->pane->show([](const PageSetup &) { return Page(); }, u"Empty"_s);
        m_window->click("SSCommand80_3");
        QCOMPARE(m_window->dialogs.takeShown(), {PreviewMessages::pageCopied()});
        QVERIFY(QApplication::clipboard()->mimeData()->hasImage());
    }

    void keepsThePageWhiteOnAColouredDesk()
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

    void isNotBuiltInsideItsOwnBuilding()
    {
        m_window->showList(1);
        int built = 0;
        QTimer::singleShot(0, m_window->pane, &PreviewPane::rebuild);
        const auto build = [&built](const PageSetup &) {
            ++built;
            return Page();
        };
        m_window->pane->show(build, {});
        QCOMPARE(built, 1);
        QCoreApplication::processEvents();
        QCOMPARE(built, 1);
    }

private:
    std::optional<PreviewWindow> m_window;
};

QTEST_MAIN(TestPreviewPane)
#include "tst_previewpane.moc"
