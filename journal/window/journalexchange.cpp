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
        connect(m_import, &JournalImportPanel::taken, this, [this](int count) {
            const bool isSaved = m_desk.day.save();
            emit broughtIn();
            emit said(isSaved ? JournalWindowLines::broughtIn(count) : JournalWindowLines::notSaved());
        });
    }
    m_desk.window.closePreview();
    if (!m_import->open(*path))
        return;
    outside.keepFolder(*path);
    m_desk.views.open(m_import);
    m_import->setFocus();
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
    m_export->start(m_desk.day.date(), m_desk.journal.tags().keys());
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
    if (m_import)
        m_import->forget();
    if (m_export)
        m_export->start(QDate(2000, 1, 1), {});
}
    if (m_export->form() == ExportPanel::Pdf) {
        m_export->leave();
        emit pagesWanted(entries, m_export->selection().tag);
        return;
    }
