// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/frame/menufocus.h"

#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QTest>

class TestMenuFocus final : public QObject
{
    Q_OBJECT
private slots:
    void givesTheFocusBackAfterTwoMenus()
    {
        QMainWindow window;
        for (const char *title : {"&Edit", "&View"})
            window.menuBar()->addMenu(QString::fromLatin1(title))->addAction(QStringLiteral("Something"));
        auto *text = new QLineEdit(&window);
        window.setCentralWidget(text);
        new MenuFocus(window.menuBar());
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        text->setFocus();
        for (const Qt::Key key : {Qt::Key_E, Qt::Key_V}) {
            QTest::keyClick(QApplication::focusWidget(), key, Qt::AltModifier);
            QTRY_VERIFY(QApplication::activePopupWidget());
            QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
            QTRY_VERIFY(!QApplication::activePopupWidget());
        }
        QTest::keyClick(window.menuBar(), Qt::Key_Escape);
        QTRY_COMPARE(window.focusWidget(), text);
    }

    void leavesAWindowBehindAnotherAlone()
    {
        QMainWindow window;
        window.menuBar()->addMenu(QStringLiteral("&Edit"))->addAction(QStringLiteral("Something"));
        auto *boxes = new QWidget(&window);
        auto *before = new QLineEdit(boxes);
        auto *chosen = new QLineEdit(boxes);
        window.setCentralWidget(boxes);
        new MenuFocus(window.menuBar());
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        before->setFocus();
        QWidget other;
        other.show();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        chosen->setFocus();
        QTest::qWait(200); // it is done with a key after half of that
        QCOMPARE(window.focusWidget(), chosen);
    }
};

QTEST_MAIN(TestMenuFocus)
#include "tst_menufocus.moc"
