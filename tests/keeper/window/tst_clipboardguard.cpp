// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/window/clipboardguard.h"
#include "tests/support/testprogram.h"

#include <QGuiApplication>
#include <QLineEdit>
#include <QMimeData>

using namespace Qt::Literals::StringLiterals;

class TestClipboardGuard : public QObject
{
    Q_OBJECT
private slots:
    void tellsHistoriesToLeaveItAlone()
    {
        ClipboardGuard guard(nullptr);
        guard.copy(u"correct horse"_s);
        const QMimeData *content = QGuiApplication::clipboard()->mimeData();
        QCOMPARE(content->text(), u"correct horse"_s);
        QCOMPARE(content->data(u"x-kde-passwordManagerHint"_s), "secret");
        for (const auto &format : {"ExcludeClipboardContentFromMonitorProcessing"_L1,
                                   "CanIncludeInClipboardHistory"_L1, "CanUploadToCloudClipboard"_L1}) {
            QCOMPARE(content->data(u"application/x-qt-windows-mime;value=\"%1\""_s.arg(format)),
                     QByteArray(4, '\0'));
        }
    }

    void takesBackItsOwnTextWhenTheTimeIsOver()
    {
        ClipboardGuard guard(nullptr);
        auto *time = guard.findChild<QTimer *>(u"clipboardTime"_s);
        QCOMPARE(time->interval(), 30'000);
        guard.setSeconds(5);
        QCOMPARE(guard.seconds(), 10);
        guard.setSeconds(1000);
        QCOMPARE(guard.seconds(), 120);
        guard.copy(u"correct horse"_s);
        QVERIFY(time->isActive());
        QMetaObject::invokeMethod(time, "timeout");
        QCOMPARE(QGuiApplication::clipboard()->text(), QString());
    }

    void leavesAloneWhatSomebodyElseHasCopiedSince()
    {
        ClipboardGuard guard(nullptr);
        guard.copy(u"correct horse"_s);
        QGuiApplication::clipboard()->setText(u"a recipe"_s);
        guard.empty();
        QCOMPARE(QGuiApplication::clipboard()->text(), u"a recipe"_s);
        guard.copy(u"battery"_s);
        QGuiApplication::clipboard()->setText(u"battery"_s); // a history has put it back
        guard.empty();
        QCOMPARE(QGuiApplication::clipboard()->text(), QString());
    }

    /// By the usual ways too: a note is all that some entries hold. What others copy is none of its business.
    void guardsWhatABoxOfItsWindowCopies()
    {
        QLineEdit box(u"under the stone"_s);
        showActive(box);
        ClipboardGuard guard(nullptr);
        bool isOwn = true;
        guard.owns = [&isOwn](QClipboard::Mode) { return isOwn; };
        guard.watch(&box);
        box.selectAll();
        box.copy();
        const QClipboard &clipboard = *QGuiApplication::clipboard();
        QVERIFY(clipboard.mimeData()->hasFormat(u"x-kde-passwordManagerHint"_s));
        guard.empty();
        QCOMPARE(clipboard.text(), QString());
        isOwn = false;
        box.copy();
        QLineEdit other(u"a recipe"_s);
        showActive(other);
        isOwn = true;
        other.selectAll();
        other.copy();
        guard.empty();
        QCOMPARE(clipboard.text(), u"a recipe"_s);
    }

    void emptiesItWithTheWindow()
    {
        {
            ClipboardGuard guard(nullptr);
            guard.copy(u"correct horse"_s);
        }
        QCOMPARE(QGuiApplication::clipboard()->text(), QString());
    }
};

QTEST_MAIN(TestClipboardGuard)
#include "tst_clipboardguard.moc"
