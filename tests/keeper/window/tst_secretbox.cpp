// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/window/secretbox.h"
#include "keeper/window/secretface.h"
#include "tests/support/testprogram.h"

#include <QAccessible>
#include <QClipboard>
#include <QGuiApplication>
#include <QPushButton>
#include <QSignalSpy>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

/// A box with "hunter2 |" in it.
class TestSecretBox : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        m_window = std::make_unique<QWidget>();
        m_box = new SecretBox(u"box"_s, u"Password"_s, m_window.get());
        auto *rows = new QVBoxLayout(m_window.get());
        rows->addWidget(m_box);
        m_box->setSecret(u"hunter2 |"_s);
        m_line = &m_box->line();
        m_face = control<SecretFace>(*m_window, "boxFace");
        m_show = control<QPushButton>(*m_window, "boxShow");
        m_window->resize(600, 300);
        showActive(*m_window);
    }

    /// Neither the length nor a letter can be had from the hidden line, by whatever way it is read.
    void hidesEvenTheLength()
    {
        const QString dots = m_line->placeholderText();
        QCOMPARE(m_line->text(), QString());
        QCOMPARE(m_line->accessibleName(), u"Password, hidden"_s);
        QCOMPARE(QAccessible::queryAccessibleInterface(m_line)->text(QAccessible::Value), QString());
        m_box->setSecret(u"x"_s);
        QCOMPARE(m_line->placeholderText(), dots);
        m_box->setSecret({});
        QCOMPARE(m_line->placeholderText(), QString());
        QVERIFY(!m_face->isVisible());
    }

    void isShownWhileTheButtonIsHeld()
    {
        QTest::mousePress(m_show, Qt::LeftButton);
        QVERIFY(m_face->isVisible());
        QTest::mouseRelease(m_show, Qt::LeftButton);
        QVERIFY(!m_face->isVisible());
        QTest::keyPress(m_show, Qt::Key_Space);
        QVERIFY(m_face->isVisible());
        QTest::keyRelease(m_show, Qt::Key_Space);
        QVERIFY(!m_face->isVisible());
    }

    void isReadLetterByLetterOnDemandOnly()
    {
        m_box->setShown(true);
        QVERIFY(!m_face->accessibleName().contains(u"small"_s));
        m_face->setFocus();
        QCOMPARE(m_face->accessibleName(), u"small h, 1 of 9"_s);
        QTest::keyClick(m_face, Qt::Key_End);
        QCOMPARE(m_face->accessibleName(), u"vertical bar, 9 of 9"_s);
        QTest::keyClick(m_face, Qt::Key_Left);
        QCOMPARE(m_face->accessibleName(), u"blank, 8 of 9"_s);
        m_line->setFocus();
        QVERIFY(!m_face->accessibleName().contains(u"blank"_s));
    }

    void takesWhatIsTypedInPlaceOfTheSecret()
    {
        QSignalSpy edited(m_box, &SecretBox::edited);
        m_line->setFocus();
        QTest::keyClicks(m_line, u"abc"_s);
        QCOMPARE(m_box->secret(), u"abc"_s);
        m_show->setFocus();
        QCOMPARE(m_line->text(), QString());
        QCOMPARE(m_box->secret(), u"abc"_s);
        m_line->setFocus();
        QTest::keyClick(m_line, Qt::Key_Backspace);
        QCOMPARE(m_box->secret(), QString());
        QCOMPARE(edited.size(), 4);
    }

    /// Shown, its characters can be changed one by one.
    void isChangedInTheMiddleWhileItIsShown()
    {
        m_box->setShown(true);
        m_line->setFocus();
        m_line->setCursorPosition(6);
        QTest::keyClick(m_line, Qt::Key_Delete);
        QCOMPARE(m_box->secret(), u"hunter |"_s);
        m_box->setShown(false);
        QCOMPARE(m_box->secret(), u"hunter |"_s);
    }

    void isNotChangedWhileItIsLocked()
    {
        m_box->setLocked(true);
        m_line->setFocus();
        QTest::keyClicks(m_line, u"abc"_s);
        QTest::keyClick(m_line, Qt::Key_Delete);
        QCOMPARE(m_box->secret(), u"hunter2 |"_s);
    }

    /// Whatever is done in the line, the clipboard gets nothing but what the keeper puts there itself.
    void givesNothingToTheClipboardByItself()
    {
        QGuiApplication::clipboard()->setText(u"before"_s);
        QSignalSpy wanted(m_box, &SecretBox::copyWanted);
        for (const bool isShown : {false, true}) {
            m_box->setShown(isShown);
            m_line->setFocus();
            m_line->selectAll();
            QTest::keyClick(m_line, Qt::Key_C, Qt::ControlModifier);
            QTest::keyClick(m_line, Qt::Key_X, Qt::ControlModifier);
        }
        QCOMPARE(wanted.size(), 4);
        QCOMPARE(QGuiApplication::clipboard()->text(), u"before"_s);
        QCOMPARE(m_box->secret(), u"hunter2 |"_s);
    }

private:
    std::unique_ptr<QWidget> m_window;
    SecretBox *m_box = nullptr;
    SecretLine *m_line = nullptr;
    SecretFace *m_face = nullptr;
    QPushButton *m_show = nullptr;
};

QTEST_MAIN(TestSecretBox)
#include "tst_secretbox.moc"
