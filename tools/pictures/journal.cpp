// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/model/journal.h"
#include "journal/model/sealingwalk.h"
#include "journal/window/journalcodepanel.h"
#include "journal/window/journaltext.h"
#include "storage/sealing/recoverycode.h"
#include "tools/pictures/albums.h"
#include "tools/pictures/picturesession.h"

#include <QCheckBox>
#include <QFile>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

void put(const DataFolder &folder, const QString &name, const QByteArray &entries)
{
    QFile file(folder.filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write("Quillery journal 1\r\n" + entries) < 0)
        qFatal("the journal cannot be written");
}

/// Entries of an invented family, this autumn and in other years.
void furnish(const Program &program)
{
    const DataFolder &folder = program.folder;
    QFile::copy(program.programFolder.filePath(u"WP9.jpg"_s), folder.filePath(u"Pictures/lake.jpg"_s));
    put(folder, u"DJour2019.Fil"_s,
        "=== 2019-11-21\r\ntags sea\r\n\r\nThe last ferry of the season. Karin waved until it was a "
        "dot.\r\n");
    put(folder, u"DJour2022.Fil"_s,
        "=== 2022-11-21\r\ntags garden\r\n\r\nFirst frost. We carried the geraniums into the cellar.\r\n"
        "=== 2022-11-22\r\n\r\nSoup, and the big puzzle on the kitchen table.\r\n");
    put(folder, u"DJour2024.Fil"_s,
        "=== 2024-11-21\r\ntags school\r\n\r\nNils read his story aloud, all four pages.\r\n");
    put(folder, u"DJour2026.Fil"_s,
        "=== 2026-11-02\r\ntags garden\r\n\r\nRaked leaves until it was dark.\r\n"
        "=== 2026-11-08\r\ntags school\r\n\r\nParents' evening.\r\n"
        "=== 2026-11-14\r\ntags garden, market\r\n\r\nThe market, and a pumpkin that nobody could lift.\r\n"
        "=== 2026-11-17\r\ntags sea\r\n\r\nBooked the ferry for the summer.\r\n"
        "=== 2026-11-21\r\nwritten 2026-11-21 07:50\r\ntags market, sea\r\n"
        "picture Pictures/lake.jpg | The lake, on the way back\r\n\r\n"
        "# A quiet Saturday\r\n\r\n"
        "Oskar and I were at the **farmers' market** before it rained. He carried the apples and talked of "
        "nothing but the "
        "*big ferry*, which we take in July.\r\n\r\n"
        "What is still to be found for it:\r\n- the blue rucksack\r\n- a book for each of us\r\n  - for Nils "
        "one with maps\r\n\r\n"
        "[picture 1]\r\n\r\n"
        "In the afternoon the choir sang in St. Olaf hall, rather well. Anne says that it was the hall.\r\n");
}

/// The page of a day, the other years, and what is typed wrong.
void takeDay(const Camera &camera)
{
    PictureSession session(camera);
    furnish(session.program());
    session.open(Function::Journal);
    session.focus("entryText");
    session.key(Qt::Key_Home, Qt::ControlModifier);
    session.take("journal-day");
    session.find<QCheckBox>("daysAround").setChecked(true);
    session.take("journal-on-this-day");
    session.focus("entryText");
    session.key(Qt::Key_End, Qt::ControlModifier);
    session.type(u" We recieve them on Sunday "_s);
    session.take("journal-misspelt");
    session.trigger("mOSave");
    session.click("earlierVersion");
    session.take("journal-earlier");
}

/// Livelier words for "quiet".
void takeThesaurus(const Camera &camera)
{
    PictureSession session(camera);
    furnish(session.program());
    session.open(Function::Journal);
    session.focus("entryText");
    session.key(Qt::Key_Home, Qt::ControlModifier);
    for (int i = 0; i < 6; ++i)
        session.key(Qt::Key_Right);
    session.key(Qt::Key_F7, Qt::ShiftModifier);
    session.take("journal-thesaurus");
}

void takeSearch(const Camera &camera)
{
    PictureSession session(camera);
    furnish(session.program());
    session.open(Function::Journal);
    session.fill("journalSearch", u"ferry"_s);
    session.take("journal-search");
    session.key(Qt::Key_Down);
    session.key(Qt::Key_Down);
    session.key(Qt::Key_Return);
    session.take("journal-found");
    session.fill("journalSearch", u"tag:garden"_s);
    session.take("journal-tags");
}

void takePanels(const Camera &camera)
{
    PictureSession session(camera);
    furnish(session.program());
    session.open(Function::Journal);
    session.trigger("mOPrt");
    session.take("journal-print-options");
    session.click("journalPrintShow");
    session.take("journal-page");
    session.key(Qt::Key_Escape);
    session.trigger("mUExport");
    session.take("journal-export");
}

/// What is printed: the sheets that are not like the first one as well.
void takePages(const Camera &camera)
{
    PictureSession session(camera);
    furnish(session.program());
    session.open(Function::Journal);
    for (const auto &[what, name] : {std::pair("printWhat_0", "page-journal-day"),
                                     {"printWhat_1", "page-journal-days"},
                                     {"printWhat_2", "page-journal-tag"},
                                     {"printWhat_3", "page-journal-month"},
                                     {"printWhat_4", "page-journal-yearbook"}}) {
        session.trigger("mOPrt");
        session.click(what);
        session.click("journalPrintShow");
        session.takePage(name);
    }
    session.key(Qt::Key_PageDown);
    session.take("journal-yearbook");
    session.takePage("page-journal-contents");
    session.key(Qt::Key_PageDown);
    session.takePage("page-journal-chapter");
    session.key(Qt::Key_End);
    session.takePage("page-journal-index");
}

constexpr auto password = "correct horse battery staple"_L1;

/// Sealed in no time.
void seal(Program &program)
{
    Journal journal(program.folder, program.clock, nullptr, PasswordCost::minimum());
    KeyDerivation key = journal.seal().newKey(password);
    KeyDerivation code = journal.seal().newCodeKey(RecoveryCode::generate());
    key.run();
    code.run();
    if (!journal.seal().create(key, code))
        qFatal("the journal cannot be sealed");
    SealingWalk walk(journal.seal());
    while (walk.step()) {}
}

/// From the password to the code that is typed in from paper.
void takeSealing(const Camera &camera)
{
    PictureSession session(camera);
    furnish(session.program());
    session.open(Function::Journal);
    session.trigger("mUSeal");
    session.take("journal-seal");
    session.fill("newJournalPassword", password);
    session.fill("newJournalPasswordAgain", password);
    session.click("sealGo");
    const QWidget &work = session.find<QWidget>("journalPanel");
    const auto hasCode = [&work] { return work.findChild<QWidget *>(u"journalCodePanel"_s) != nullptr; };
    if (!QTest::qWaitFor(hasCode, 60'000))
        qFatal("no key is made");
    session.take("journal-recovery-code");
    session.click("printJournalCode");
    session.take("journal-recovery-sheet");
    session.takePage("page-journal-recovery");
}

/// One record is damaged.
void takeSealed(const Camera &camera)
{
    PictureSession session(camera);
    const DataFolder &folder = session.program().folder;
    furnish(session.program());
    seal(session.program());
    QFile year(folder.filePath(u"DJour2026.Fil"_s));
    if (!year.open(QIODevice::ReadWrite) || !year.seek(year.size() - 10) || !year.putChar('?'))
        qFatal("the journal cannot be damaged");
    year.close();
    session.open(Function::Journal);
    session.take("journal-locked");
    session.fill("journalPassword", password);
    session.click("openJournal");
    const auto isOpen = [&] { return session.find<QWidget>("journalPane").isVisible(); };
    if (!QTest::qWaitFor(isOpen, 60'000))
        qFatal("the journal does not open");
    session.take("journal-damaged");
    session.trigger("mUDamage");
    session.take("journal-damaged-records");
    session.trigger("mOLockWhen");
    session.take("journal-when-it-locks");
    session.close();
    for (const int year : {2019, 2022, 2024, 2026}) {
        QFile file(folder.filePath(u"DJour%1.Fil"_s.arg(year)));
        if (!file.open(QIODevice::ReadWrite) || !file.seek(100) || !file.putChar('?'))
            qFatal("the journal cannot be damaged");
    }
    QFile::remove(folder.filePath(u"DJourKey.Fil"_s));
    session.open(Function::Journal);
    session.take("journal-nobody-can-open");
}

void takeEmpty(const Camera &camera)
{
    PictureSession session(camera);
    session.open(Function::Journal);
    session.take("journal-empty");
}

} // namespace

void Albums::journal(const Camera &camera)
{
    takeDay(camera);
    takeThesaurus(camera);
    takeSearch(camera);
    takePanels(camera);
    takePages(camera);
    takeSealing(camera);
    takeSealed(camera);
    takeEmpty(camera);
}
