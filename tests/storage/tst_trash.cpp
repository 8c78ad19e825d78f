// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/changeset.h"
#include "storage/trash.h"
#include "tests/support/rows.h"
#include "tests/support/testfiles.h"

#include <QCryptographicHash>
#include <QDir>
#include <QLoggingCategory>

using namespace Qt::Literals::StringLiterals;

namespace {

const QDateTime noon = QDateTime::fromString(u"2026-11-21T12:00:00Z"_s, Qt::ISODate);

Trash::Item item(const QString &title, const QDateTime &deleted = noon, const QString &kind = u"Book"_s)
{
    return {kind, deleted, title, {{u"Five.Fil"_s, 3, "bytes"}}};
}

/// One item as the file holds it, written out by hand.
QByteArray fileOfOne()
{
    QByteArray bytes = QByteArray::fromHex("51545231 00000001"
                                           "00000008 0042006f006f006b"                 // Book
                                           "000001a1fdfa4600"                          // 2026-11-21 12:00 UTC
                                           "00000006 0041006e006e"                     // Ann
                                           "00000001"                                  // a piece
                                           "00000010 0046006900760065002e00460069006c" // Five.Fil
                                           "00000003 00000005 6279746573");
    return bytes + QCryptographicHash::hash(bytes, QCryptographicHash::Sha256);
}

} // namespace

class TestTrash : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        QLoggingCategory::setFilterRules(u"*.warning=false"_s);
        QDir folder(m_test.folder().path());
        QVERIFY(folder.removeRecursively() && folder.mkpath(u"."_s));
    }

    void writesWhatItHolds()
    {
        QVERIFY(put(item(u"Ann"_s)));
        QCOMPARE(m_test.bytes(Trash::fileName).toHex(), fileOfOne().toHex());
        QCOMPARE(titles(), {u"Ann"_s});
        Trash trash(m_test.folder());
        trash.take(item(u"Ann"_s));
        trash.take(item(u"nobody"_s));
        ChangeSet change(m_test.folder());
        trash.addTo(change);
        QVERIFY(change.commit());
        QCOMPARE(titles(), {});
    }

    void keepsThirtyDaysOfEachKind()
    {
        QVERIFY(put(item(u"old"_s, noon.addDays(-31))));
        QVERIFY(put(item(u"of another"_s, noon, u"Planner"_s)));
        QVERIFY(put(item(u"first"_s, noon.addDays(-30))));
        QVERIFY(put(item(u"last"_s)));
        QCOMPARE(titles(), (QStringList{u"last"_s, u"first"_s}));
        QVERIFY(!m_test.bytes(Trash::fileName).contains(QByteArray("\0o\0l\0d", 6)));
        QVERIFY(Trash(m_test.folder()).items(u"Book"_s, noon.addDays(31)).empty());
    }

    void keepsAsideWhatItCannotRead_data()
    {
        rows<QByteArray>({{"of another program", "list of chores"},
                          {"cut off", fileOfOne().chopped(1)},
                          {"a later form", QByteArray(fileOfOne()).replace(3, 1, "2")}});
    }

    void keepsAsideWhatItCannotRead()
    {
        const auto [bytes] = row<QByteArray>();
        for (const QString &kept : {u"Quillery.trash.kept"_s, u"Quillery.trash.kept-2"_s}) {
            const QByteArray foreign = kept.endsWith(u'2') ? bytes + "more" : bytes;
            m_test.put(Trash::fileName, foreign);
            QCOMPARE(Trash(m_test.folder()).state(), Trash::State::Foreign);
            QVERIFY(put(item(u"Ann"_s)));
            QCOMPARE(m_test.bytes(kept), foreign);
            QCOMPARE(titles(), {u"Ann"_s});
        }
        m_test.put(Trash::fileName, bytes); // which is kept already
        QVERIFY(put(item(u"Ann"_s)));
        QVERIFY(!QFile::exists(m_test.path(u"Quillery.trash.kept-3"_s)));
    }

    /// A folder in the place of the file.
    void letsADeletionPassWithoutIt()
    {
        QVERIFY(QDir(m_test.folder().path()).mkpath(Trash::fileName));
        QVERIFY(put(item(u"Ann"_s)));
        QCOMPARE(Trash(m_test.folder()).state(), Trash::State::OutOfReach);
        QCOMPARE(m_test.bytes(u"Five.Fil"_s), QByteArray("*****"));
    }

private:
    /// Deletes something, and puts it into the trash.
    bool put(const Trash::Item &item) const
    {
        Trash trash(m_test.folder());
        trash.put(item);
        ChangeSet change(m_test.folder());
        change.write(RecordFile(m_test.folder(), u"Five.Fil"_s, 5), 1, "*****");
        trash.addTo(change);
        return change.commit();
    }
    QStringList titles() const
    {
        QStringList titles;
        for (const Trash::Item &item : Trash(m_test.folder()).items(u"Book"_s, noon))
            titles << item.title;
        return titles;
    }

    TestFolder m_test;
};

QTEST_APPLESS_MAIN(TestTrash)
#include "tst_trash.moc"
