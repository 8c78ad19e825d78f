// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/model/keeper.h"
#include "keeper/model/keeperpayload.h"
#include "tests/support/testfiles.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRandomGenerator>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString master = u"Correct h\u00f6rse"_s;
const QString code = u"7HJ4-KM9Q-RST2-VWXY-Z01A-BC3D-EFJN"_s;
constexpr int entryCount = 1'000;

KeyDerivation run(KeyDerivation derivation)
{
    derivation.run();
    return derivation;
}

QString randomText(QRandomGenerator &random, int longest)
{
    static const QString letters = u"abcXYZ019 \n\"\\,;\u00e4\u00df\u0416\u4e2d\u20ac"_s;
    QString text;
    for (int length = random.bounded(longest) + 1; length > 0; --length)
        text += letters[random.bounded(int(letters.size()))];
    return text + u"\U0001f511"_s;
}

KeeperEntry randomEntry(QRandomGenerator &random)
{
    static constexpr quint8 ids[] = {2, 3, 4, 5, 6, 8, 9, 20, 33, 42, 60, 99, 200};
    KeeperEntry entry;
    entry.setKind(EntryKind(random.bounded(7)));
    for (const quint8 id : ids) {
        if (random.bounded(2) == 0)
            entry.fields.append({id, random.bounded(3) == 0, {}, randomText(random, 40)});
    }
    if (random.bounded(10) == 0)
        entry.setText(KeeperField::Notes, randomText(random, 6000));
    for (int own = random.bounded(3); own > 0; --own)
        entry.fields.append({KeeperField::Own, own == 1, randomText(random, 10), randomText(random, 20)});
    return entry;
}

QJsonArray fieldsOf(const KeeperEntry &entry)
{
    QJsonArray fields;
    for (const KeeperText &field : entry.fields)
        fields.append(QJsonObject{{u"id"_s, field.id},
                                  {u"secret"_s, field.isSecret},
                                  {u"name"_s, field.name},
                                  {u"text"_s, field.text}});
    return fields;
}

/// A script run by the Python that the system came with, which has the module it needs.
QByteArray python(const QString &script, const QStringList &arguments, const QByteArray &input)
{
    QProcess process;
    process.start(u"/usr/bin/python3"_s, QStringList{script} + arguments);
    process.write(input);
    process.closeWriteChannel();
    if (!process.waitForFinished(-1) || process.exitCode() != 0)
        qWarning() << process.readAllStandardError();
    return process.readAllStandardOutput();
}

} // namespace

/// The files as docs/files.md tells them: a program that knows nothing else opens what this one writes, and
/// the other way round.
class TestOpenKeeper : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        if (QProcess::execute(u"/usr/bin/python3"_s, {u"-c"_s, u"import nacl"_s}) != 0)
            QSKIP("python3-nacl is not installed");
    }

    void aScriptReadsWhatTheKeeperWrites()
    {
        const TestFolder files;
        Keeper keeper(files.folder(), m_clock, PasswordCost::minimum());
        QVERIFY(keeper.create(run(keeper.newKey(master)), run(keeper.newCodeKey(code))));
        QList<KeeperEntry> entries;
        for (int i = 0; i < entryCount; ++i)
            entries.append(randomEntry(m_random));
        QVERIFY(keeper.saveAll(entries));
        // Second versions, and some in the trash.
        QList<QByteArray> trashed;
        QList<KeeperEntry> changed;
        for (int i = 0; i < entryCount; i += 7) {
            entries[i].fields.append({KeeperField::Own, true, u"more"_s, randomText(m_random, 2500)});
            changed.append(entries[i]);
        }
        QVERIFY(keeper.saveAll(changed));
        for (int i = 0; i < entryCount; i += 11)
            trashed.append(entries[i].id);
        QVERIFY(keeper.setTrashed(trashed, true));
        QVERIFY(keeper.saveDraft(entries.first()));

        for (const bool hasCode : {false, true}) {
            QStringList arguments{files.folder().path(), u"--json"_s};
            if (hasCode)
                arguments += u"--code"_s;
            const QByteArray typed = (hasCode ? code : master).toUtf8() + "\n";
            const QJsonObject read = QJsonDocument::fromJson(python(m_reader, arguments, typed)).object();
            QCOMPARE(read[u"damaged"_s].toArray(), QJsonArray());
            const QJsonArray found = read[u"entries"_s].toArray();
            QCOMPARE(found.size(), entryCount);
            QHash<QByteArray, QJsonObject> byId;
            for (const QJsonValue &one : found)
                byId.insert(QByteArray::fromHex(one[u"id"_s].toString().toLatin1()), one.toObject());
            for (int i = 0; i < entryCount; ++i) {
                const QJsonObject one = byId.value(entries[i].id);
                QJsonArray fields = one[u"fields"_s].toArray();
                if (!entries[i].text(KeeperField::Password).isEmpty())
                    fields.removeLast(); // since when the password is this one
                QCOMPARE(fields, fieldsOf(entries[i]));
                QCOMPARE(one[u"state"_s].toString(), i % 11 == 0 ? u"trash"_s : u"entry"_s);
            }
        }
    }

    void theKeeperReadsWhatAScriptWrites()
    {
        const TestFolder files;
        QList<KeeperEntry> entries;
        QJsonArray written;
        for (int i = 0; i < entryCount; ++i) {
            entries.append(randomEntry(m_random));
            entries.last().id = QByteArray::number(i).rightJustified(16, '.');
            written.append(QJsonObject{{u"id"_s, QString::fromLatin1(entries.last().id.toHex())},
                                       {u"state"_s, i % 11 == 0 ? u"trash"_s : u"entry"_s},
                                       {u"version"_s, i % 5 + 1},
                                       {u"time"_s, m_clock.now().toSecsSinceEpoch()},
                                       {u"fields"_s, fieldsOf(entries.last())}});
        }
        const QJsonObject wanted{{u"password"_s, master},
                                 {u"code"_s, QString(code).remove(u'-').first(26)},
                                 {u"entries"_s, written}};
        python(m_writer, {files.folder().path()}, QJsonDocument(wanted).toJson());
        Keeper keeper(files.folder(), m_clock, PasswordCost::minimum());
        for (const auto &[typed, slot] :
             {std::pair(master, KeySlots::Password), std::pair(code, KeySlots::Recovery)}) {
            std::optional<KeeperOpening> opening = keeper.opening(typed, slot);
            QVERIFY(opening && opening->run() && keeper.unlock(std::move(*opening)));
            QCOMPARE(keeper.count(), entryCount);
            for (int i = 0; i < entryCount; ++i) {
                QCOMPARE(keeper.entry(entries[i].id), entries[i]);
                QCOMPARE(keeper.summary(keeper.placeOf(entries[i].id)).isTrashed, i % 11 == 0);
            }
            keeper.lock();
        }
    }

private:
    SystemClock m_clock;
    QRandomGenerator m_random{20261123};
    const QString m_reader = QStringLiteral(QUILLERY_TOOLS) + u"/openkeeper.py"_s;
    const QString m_writer = QStringLiteral(QUILLERY_TEST_TOOLS) + u"/makekeeper.py"_s;
};

QTEST_GUILESS_MAIN(TestOpenKeeper)
#include "tst_openkeeper.moc"
