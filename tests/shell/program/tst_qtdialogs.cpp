// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/busycursor.h"
#include "shell/controls/controls.h"
#include "shell/look/theme.h"
#include "shell/program/messagebox.h"
#include "shell/program/qtdialogs.h"
#include "tests/support/rows.h"
#include "tests/support/testprogram.h"

#include <QApplication>
#include <QColorDialog>
#include <QFontDialog>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;

/// The real boxes, answered while they are open.
class TestQtDialogs : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { Theme::apply(*qApp); }

    void init()
    {
        m_window = std::make_unique<QWidget>();
        showActive(*m_window);
    }

    void givesTheAnswerOfTheButton()
    {
        whenAsked(
            [](QWidget &box) { QTest::mouseClick(control<QPushButton>(box, "answerNo"), Qt::LeftButton); });
        const Message question{
            u"Exit"_s, u"Really?"_s, Message::Question, {Answer::Yes, Answer::No}, Answer::Yes};
        QCOMPARE(m_dialogs.ask(m_window.get(), question), Answer::No);
        QTRY_VERIFY(m_window->isActiveWindow());
    }

    void takesKeysForAnAnswer_data()
    {
        const QVector<Answer> yesNo{Answer::Yes, Answer::No}, all{Answer::Yes, Answer::No, Answer::Cancel};
        rows<QVector<Answer>, QKeyCombination, Answer>({
            {"a safe No", yesNo, Qt::Key_Escape, Answer::No},
            {"Y", yesNo, Qt::Key_Y, Answer::Yes},
            {"N", yesNo, Qt::Key_N, Answer::No},
            {"a capital letter", all, Qt::SHIFT | Qt::Key_Y, Answer::Yes},
            {"with Alt", all, Qt::ALT | Qt::Key_Y, Answer::Yes},
            {"C", all, Qt::Key_C, Answer::Cancel},
        });
    }

    void takesKeysForAnAnswer()
    {
        const auto [answers, key, answer] = row<QVector<Answer>, QKeyCombination, Answer>();
        whenAsked([key = key](QWidget &box) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_X); // means nothing
            QTest::keyClick(&box, key.key(), key.keyboardModifiers());
        });
        const Message question{u"Delete"_s, u"Really?"_s, Message::Warning, answers, Answer::No};
        QCOMPARE(m_dialogs.ask(m_window.get(), question), answer);
    }

    void tellsAnEmptyInputFromCancel()
    {
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
            whenAsked([key](QWidget &box) { QTest::keyClick(control<FieldBox>(box, "inputEdit"), key); });
            const auto text = m_dialogs.input(m_window.get(), u"Family Name"_s, u"Name?"_s, QString());
            QCOMPARE(text.has_value(), key == Qt::Key_Return);
            QTRY_VERIFY(m_window->isActiveWindow());
        }
    }

    void choosesAColor()
    {
        whenAsked([](QWidget &box) {
            auto &dialog = dynamic_cast<QColorDialog &>(box);
            QCOMPARE(dialog.currentColor(), QColor(Qt::red));
            dialog.setCurrentColor(Qt::blue);
            dialog.accept();
        });
        QCOMPARE(m_dialogs.chooseColor(m_window.get(), Qt::red), QColor(Qt::blue));
        whenAsked([](QWidget &box) { QTest::keyClick(&box, Qt::Key_Escape); });
        QCOMPARE(m_dialogs.chooseColor(m_window.get(), Qt::red), std::nullopt);
    }

    void choosesAFontWithItsColor()
    {
        PageFont preset{QApplication::font(), Qt::black};
        preset.font.setPointSize(11);
        whenAsked([](QWidget &box) {
            auto *chooser = control<QFontDialog>(box, "fontChooser");
            QFont font = chooser->currentFont();
            QCOMPARE(font.pointSize(), 11);
            font.setUnderline(true);
            chooser->setCurrentFont(font);
            QTimer::singleShot(50, &box, [] {
                auto *colors = qobject_cast<QColorDialog *>(QApplication::activeModalWidget());
                QVERIFY(colors);
                colors->setCurrentColor(Qt::darkGreen);
                colors->accept();
            });
            QTest::mouseClick(control<QPushButton>(box, "fontColor"), Qt::LeftButton);
            QTest::mouseClick(control<QPushButton>(box, "answerOk"), Qt::LeftButton);
        });
        const auto chosen = m_dialogs.chooseFont(m_window.get(), preset);
        QVERIFY(chosen);
        QVERIFY(chosen->font.underline());
        QCOMPARE(chosen->color, QColor(Qt::darkGreen));
        whenAsked([](QWidget &box) { QTest::keyClick(&box, Qt::Key_Escape); });
        QVERIFY(!m_dialogs.chooseFont(m_window.get(), preset));
    }

    void anHourglassGivesWayToTheQuestion()
    {
        const BusyCursor busy;
        whenAsked([](QWidget &box) {
            QCOMPARE(QApplication::overrideCursor()->shape(), Qt::ArrowCursor);
            box.close();
        });
        m_dialogs.ask(m_window.get(), {u"Title"_s, u"Text"_s});
        QCOMPARE(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    }

private:
    /// Acts on the modal box as soon as one is open.
    template <typename Action>
    void whenAsked(Action action)
    {
        QTimer::singleShot(50, this, [action] {
            QWidget *box = QApplication::activeModalWidget();
            QVERIFY(box);
            box->activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(box));
            action(*box);
        });
    }

    std::unique_ptr<QWidget> m_window;
    QtDialogs m_dialogs;
};

QTEST_MAIN(TestQtDialogs)
#include "tst_qtdialogs.moc"
