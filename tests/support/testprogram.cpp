// SPDX-License-Identifier: GPL-3.0-or-later
#include "testprogram.h"

#include <QDir>
#include <QFile>

#include <filesystem>

namespace {

QString filledFolder(const QTemporaryDir &temporary, TestProgram::Content content)
{
    const QString path = temporary.filePath(QStringLiteral("data"));
    QDir().mkpath(path);
    // Not QFile::copy, which flushes each of the 85 files to the disk.
    if (content == TestProgram::Household)
        std::filesystem::copy(QDir(QStringLiteral(QUILLERY_TEST_DATA "/household/data")).filesystemPath(),
                              QDir(path).filesystemPath(), std::filesystem::copy_options::recursive);
    return path;
}

} // namespace

TestProgram::TestProgram(Content content, const QString &whyReadOnly)
    : folder(filledFolder(temporary, content), whyReadOnly)
    , programFolder(temporary.filePath(QStringLiteral("program")))
    , settings(folder)
    , gate([](Program &, QWidget *) {})
    , store(temporary.filePath(QStringLiteral("store.ini")), QSettings::IniFormat)
    , program{folder, programFolder, settings, state, clock, dialogs, functions, gate, store, changes, idle}
{
    QDir().mkpath(programFolder.path());
}

QByteArray TestProgram::bytes(const QString &name) const
{
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void TestProgram::setBytes(const QString &name, QByteArrayView bytes) const
{
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes.data(), bytes.size()) != bytes.size())
        QTest::qFail("cannot write the test's own file", __FILE__, __LINE__);
}

void showActive(QWidget &window)
{
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QVERIFY(QTest::qWaitForWindowActive(&window));
}
