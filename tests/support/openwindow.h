// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/controls/activitybar.h"
#include "testfiles.h"
#include "testprogram.h"

#include <QAction>
#include <QLabel>
#include <QPointer>
#include <QPushButton>

/// A window on a folder of its own, and the hands that work it: for the tests that are made from it.
template <typename Window>
class OpenWindow : public QObject
{
protected:
    template <typename T>
    T *find(const QByteArray &name) const
    {
        return control<T>(*m_window, name.constData());
    }
    void click(const char *name) const { QTest::mouseClick(find<QAbstractButton>(name), Qt::LeftButton); }
    void trigger(const char *name) const { find<QAction>(name)->trigger(); }
    /// Types any characters; the toolkit's own keyClicks takes ASCII only.
    static void typeInto(QWidget *box, const QString &text)
    {
        for (const QChar character : text)
            QTest::sendKeyEvent(QTest::Click, box, Qt::Key_unknown, QString(character), Qt::NoModifier);
    }
    bool isOffered(const char *button) const { return find<QPushButton>(button)->isEnabled(); }
    QString labelText(const char *name) const { return find<QLabel>(name)->text(); }
    QString said() const { return m_window->template findChild<ActivityBar *>()->message(); }
    QList<Message> asked() const { return m_test->dialogs.takeShown(); }

    /// Changes a file while another window is in front.
    void changeElsewhere(const QString &name, const QByteArray &bytes)
    {
        QWidget other;
        showActive(other);
        m_test->setBytes(name, bytes);
        QFile file(m_test->path(name));
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.setFileTime(QDateTime(QDate(2030, 1, 1), QTime()), QFileDevice::FileModificationTime));
        showActive(*m_window);
    }
    void close()
    {
        delete m_window;
        QVERIFY(m_test->dialogs.isDone());
    }

    std::unique_ptr<TestProgram> m_test;
    QPointer<Window> m_window;
};
