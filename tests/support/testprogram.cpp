#include "testprogram.h"

#include <QApplication>
#include <QDir>
#include <QFile>

namespace {

QString filledFolder(const QTemporaryDir &temporary, TestProgram::Content content)
{
    const QString path = temporary.filePath(QStringLiteral("data"));
    QDir().mkpath(path + QStringLiteral("/Pictures"));
    if (content == TestProgram::Empty) {
        QDir(path).rmdir(QStringLiteral("Pictures"));
        return path;
    }
    const QDir source(QStringLiteral(QUILLERY_TEST_DATA "/household/data"));
    for (const QString &sub : {QStringLiteral("."), QStringLiteral("Pictures")}) {
        const QDir from(source.filePath(sub));
        for (const QString &name : from.entryList(QDir::Files)) {
            const QString to = path + u'/' + sub + u'/' + name;
            QFile::copy(from.filePath(name), to);
            QFile::setPermissions(to, QFile::ReadOwner | QFile::WriteOwner);
        }
    }
    return path;
}

} // namespace

TestProgram::TestProgram(Content content)
    : folder(filledFolder(temporary, content))
    , programFolder(temporary.filePath(QStringLiteral("program")))
    , settings(folder)
    , gate([](Program &, QWidget *) {})
    , store(temporary.filePath(QStringLiteral("store.ini")), QSettings::IniFormat)
    , program{folder, programFolder, settings, state, clock, dialogs, functions, gate, store, changes}
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
    QApplication::setActiveWindow(&window);
    QVERIFY(QTest::qWaitForWindowExposed(&window));
}
