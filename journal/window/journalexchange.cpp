// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/window/journalexchange.h"

#include "journal/model/journal.h"
#include "journal/model/journalexport.h"
#include "journal/model/journalhtml.h"
#include "journal/window/exportpanel.h"
#include "journal/window/journalimportpanel.h"
#include "journal/window/openday.h"
#include "journal/window/windowlines.h"
#include "shell/frame/commands.h"
#include "shell/frame/filesoutside.h"
#include "shell/frame/functionwindow.h"
#include "shell/frame/workviews.h"
#include "shell/program/program.h"

#include <QMenu>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString folderKey = QStringLiteral("Windows/DJournal/outsideFolder");

QString texts()
{
    return u"Texts (*.txt *.Fil *.md *.log);;All files (*)"_s;
}

} // namespace

JournalExchange::JournalExchange(const JournalDesk &desk, QObject *parent)
    : QObject(parent)
    , m_desk(desk)
{}

void JournalExchange::addCommands(QMenu *utilities)
{
    const auto unless = [this] { return m_desk.whyNone(); };
    m_desk.commands.writing(m_desk.commands.add(
        utilities, u"mUImport"_s, u"&Import..."_s, [this] { openImport(); }, unless));
    m_desk.commands.writing(m_desk.commands.add(
        utilities, u"mUTakeBack"_s, u"&Take the Import Back"_s, [this] { takeBack(); },
        [this] { return m_cameIn.empty() ? JournalWindowLines::nothingCameIn() : m_desk.whyNone(); }));
    m_desk.commands.add(
        utilities, u"mUExport"_s, u"&Export..."_s, [this] { openExport(); }, unless);
}

void JournalExchange::openImport()
{
    const FilesOutside outside(m_desk.program, m_desk.window, folderKey);
    const auto path = outside.askWhich(texts());
    if (!path || !m_desk.whyNone().isEmpty()) // locked meanwhile
        return;
    m_desk.day.save();
    if (!m_import) {
        m_import = new JournalImportPanel(m_desk.journal);
        m_desk.views.addPanel(m_import);
        connect(m_import, &JournalImportPanel::said, this, &JournalExchange::said);
        connect(m_import, &JournalImportPanel::progressed, this, &JournalExchange::progressed);
        connect(m_import, &JournalImportPanel::taking, &m_desk.day, &OpenDay::take);
        connect(m_import, &JournalImportPanel::taken, this, &JournalExchange::keep);
    }
    m_desk.window.closePreview();
    if (!m_import->open(*path))
        return;
    outside.keepFolder(*path);
    m_desk.views.open(m_import);
    m_import->setFocus();
}

JournalEntry JournalExchange::entryOf(QDate date) const
{
    return m_desk.journal.entry(date).value_or(JournalEntry{.date = date});
}

void JournalExchange::keep(const QList<JournalEntry> &before)
{
    m_cameIn.clear();
    m_cameIn.reserve(std::size_t(before.size()));
    for (const JournalEntry &entry : before)
        m_cameIn.emplace_back(entry, entryOf(entry.date));
    const bool isSaved = m_desk.day.save();
    emit said(isSaved ? JournalWindowLines::broughtIn(int(before.size())) : JournalWindowLines::notSaved());
    emit broughtIn();
}

void JournalExchange::takeBack()
{
    m_desk.day.take();
    int changed = 0;
    for (const auto &[before, after] : m_cameIn) {
        if (entryOf(before.date) != after || !m_desk.journal.takeBack(before))
            ++changed;
    }
    const int count = int(std::exchange(m_cameIn, {}).size());
    const bool isSaved = m_desk.day.save();
    emit tookBack();
    emit said(isSaved ? JournalWindowLines::takenBack(count - changed, changed)
                      : JournalWindowLines::notSaved());
}

void JournalExchange::openExport()
{
    m_desk.day.save();
    if (!m_export) {
        m_export = new ExportPanel(m_desk.program, &m_desk.window);
        m_desk.views.addPanel(m_export);
        connect(m_export, &ExportPanel::accepted, this, &JournalExchange::exportTo);
    }
    m_desk.window.closePreview();
    m_export->start(m_desk.day.date(), m_desk.journal.tagNames());
    m_desk.views.open(m_export);
    m_export->setFocus();
}

void JournalExchange::exportTo()
{
    const QList<JournalEntry> entries = JournalExport::entries(m_desk.journal, m_export->selection());
    if (entries.isEmpty()) {
        emit said(JournalWindowLines::nothingToPrint());
        return;
    }
    if (m_export->form() == ExportPanel::Pdf) {
        m_export->leave();
        emit pagesWanted(entries, m_export->selection().tag);
        return;
    }
    const bool isHtml = m_export->form() == ExportPanel::Html;
    const FilesOutside outside(m_desk.program, m_desk.window, folderKey);
    const auto path = outside.askWhereTo(isHtml ? u"Journal.html"_s : u"Journal.txt"_s,
                                         isHtml ? u"Pages for browsers (*.html)"_s : u"Texts (*.txt)"_s);
    if (!path || !m_desk.whyNone().isEmpty()) // locked meanwhile
        return;
    m_export->leave();
    if (!isHtml) {
        emit said(outside.save(*path, JournalExport::text(entries)));
        return;
    }
    const JournalHtml html(entries, JournalWindowLines::journalOf(m_desk.program.state.familyName.text()),
                           m_desk.program.state.dateStyle, m_desk.program.folder);
    const QStringList missing = html.copyPictures(*path);
    const QString line = outside.save(*path, html.file(*path));
    emit said(missing.isEmpty() ? line : QString(line + JournalWindowLines::picturesMissing(missing)));
}

void JournalExchange::forget()
{
    m_cameIn.clear();
    if (m_import)
        m_import->forget();
    if (m_export)
        m_export->start(QDate(2000, 1, 1), {});
}
