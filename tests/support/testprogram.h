// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "scripteddialogs.h"
#include "shell/access/gate.h"
#include "shell/program/idleclock.h"
#include "shell/program/program.h"

#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QWidget>

/// A clock that stands still until it is set.
class FixedClock final : public Clock
{
public:
    QDateTime time{QDate(2026, 11, 21), QTime(10, 24)};
    QDateTime now() const override { return time; }
};

/// A whole program on a temporary folder: empty, or a copy of the sample household's data.
class TestProgram
{
public:
    enum Content { Empty, Household };

    /// With a reason, the household is for reading only.
    explicit TestProgram(Content content = Empty, const QString &whyReadOnly = {});

    /// Path of a file of the data folder.
    QString path(const QString &name) const { return temporary.filePath(u"data/" + name); }
    QByteArray bytes(const QString &name) const;
    void setBytes(const QString &name, QByteArrayView bytes) const;

    QTemporaryDir temporary;
    DataFolder folder;
    DataFolder programFolder;
    Settings settings;
    ProgramState state;
    FixedClock clock;
    ScriptedDialogs dialogs;
    FunctionCatalogue functions;
    AccessGate gate; ///< lets everything pass until a test puts another prompt in
    QSettings store;
    ProgramSignals changes;
    IdleClock idle;
    Program program;
};

/// The control of this type and object name; fails the test when there is none.
template <typename T>
T *control(const QObject &window, const char *name)
{
    T *found = window.findChild<T *>(QString::fromLatin1(name));
    if (!found)
        QTest::qFail(qPrintable(QStringLiteral("no control ") + QString::fromLatin1(name)), __FILE__,
                     __LINE__);
    return found;
}

/// Shows the window and makes it the active one, as a person's click would.
void showActive(QWidget &window);
