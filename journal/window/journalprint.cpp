// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/window/journalprint.h"

#include "journal/model/journal.h"
#include "journal/model/journalexport.h"
#include "journal/model/recoverysheet.h"
#include "journal/window/dayfacts.h"
#include "journal/window/journalprintpanel.h"
#include "journal/window/openday.h"
#include "journal/window/windowlines.h"
#include "shell/core/dates.h"
#include "shell/core/settingskeys.h"
#include "shell/frame/commands.h"
#include "shell/frame/commonkeys.h"
#include "shell/frame/functionwindow.h"
#include "shell/frame/workviews.h"
#include "shell/pages/pagepainter.h"
#include "shell/pictures/keptpictures.h"
#include "shell/preview/previewpane.h"
#include "shell/preview/printjob.h"
#include "shell/program/daynotes.h"
#include "shell/program/householdnames.h"
#include "shell/program/program.h"

#include <QMenu>
#include <QMimeData>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

QDate monthEnd(QDate date)
{
    return {date.year(), date.month(), date.daysInMonth()};
}

} // namespace

JournalPrint::JournalPrint(const JournalDesk &desk, QObject *parent)
    : QObject(parent)
    , m_desk(desk)
{}

void JournalPrint::addCommands(QMenu *options)
{
    QAction *print = m_desk.commands.add(
        options, u"mOPrt"_s, u"&Print"_s, [this] { openPanel(); }, [this] { return m_desk.whyNone(); },
        CommonKeys::print);
    m_desk.commands.tool(print, "print"_L1, u"Print"_s);
}

void JournalPrint::openPanel()
{
    m_desk.day.save();
    if (!m_panel) {
        m_panel = new JournalPrintPanel(m_desk.program, &m_desk.window);
        m_desk.views.addPanel(m_panel);
        connect(m_panel, &JournalPrintPanel::accepted, this, &JournalPrint::print);
    }
    m_desk.window.closePreview();
    m_panel->start(m_desk.day.date(), m_desk.journal.tagNames());
    m_desk.views.open(m_panel);
    m_panel->setFocus();
}

JournalPages::Source JournalPrint::sourceOf(const QList<JournalEntry> &entries) const
{
    JournalPages::Source source;
    source.entries = entries;
    source.picturePath = [folder = m_desk.program.folder](const QString &path) {
        return KeptPictures::locate(folder, path);
    };
    source.facts = [&program = m_desk.program](QDate date) {
        QStringList facts;
        for (const HouseholdNote &note : DayNotes::all(program, Function::Journal, date, date))
            facts.append(DayFacts::wordsOf(note.note));
        return facts;
    };
    source.people = HouseholdNames::of(m_desk.program);
    return source;
}

void JournalPrint::show(QDate from, QDate to, const QString &tag,
                        std::function<Page(const JournalPages::Source &, const PageContext &)> builder,
                        const QString &name)
{
    const QList<JournalEntry> entries = JournalExport::entries(m_desk.journal, {from, to, tag});
    if (entries.isEmpty()) {
        emit said(JournalWindowLines::nothingToPrint());
        return;
    }
    m_hasPages = true;
    m_desk.window.showPreview([source = sourceOf(entries), build = std::move(builder)](
                                  const PageContext &context) { return build(source, context); },
                              m_desk.journal.seal().isOpen() ? u"Journal"_s : name); // in a printer's queue
}

void JournalPrint::print()
{
    using Source = JournalPages::Source;
    const JournalPages::Options options = m_panel->options();
    const QDate day = m_desk.day.date();
    const QDate from = m_panel->from();
    const QDate to = m_panel->to();
    const QString tag = m_panel->tag();
    const int year = m_panel->year();
    m_desk.preview().setPaper(m_panel->paper());
    switch (m_panel->chosen()) {
    case JournalPrintPanel::Day:
        show(
            day, day, {},
            [=](const Source &source, const PageContext &context) {
                return JournalPages::day(source, day, options, context);
            },
            u"Journal "_s + day.toString(Qt::ISODate));
        return;
    case JournalPrintPanel::Range:
        show(
            from, to, {},
            [=](const Source &source, const PageContext &context) {
                return JournalPages::range(source, from, to, options, context);
            },
            u"Journal"_s);
        return;
    case JournalPrintPanel::Tag:
        show(
            {}, {}, tag,
            [=](const Source &source, const PageContext &context) {
                return JournalPages::tag(source, tag, options, context);
            },
            u"Journal"_s);
        return;
    case JournalPrintPanel::Month: {
        const QDate first(day.year(), day.month(), 1);
        const Qt::DayOfWeek begin =
            Dates::weekStart(m_desk.program.settings.number(SettingsKeys::calendarWeekStart));
        show(
            first, monthEnd(day), {},
            [=](const Source &source, const PageContext &context) {
                return JournalPages::month(source, first, begin, context);
            },
            u"Journal"_s);
        return;
    }
    case JournalPrintPanel::Yearbook:
        show(
            QDate(year, 1, 1), QDate(year, 12, 31), {},
            [=](const Source &source, const PageContext &context) {
                return JournalPages::yearbook(source, year, options, context);
            },
            u"Yearbook "_s + QString::number(year));
        return;
    }
}

void JournalPrint::showRecoverySheet(const QString &code)
{
    m_hasPages = true;
    m_desk.preview().setPaper(PreviewPane::usualSetup(m_desk.program.state.dateStyle).paper);
    m_desk.window.showPreview(
        [code](const PageContext &context) { return journalRecoverySheet(code, context); },
        u"Journal Recovery Sheet"_s);
}

PageContext JournalPrint::usualContext() const
{
    const ProgramState &state = m_desk.program.state;
    return {PreviewPane::usualSetup(state.dateStyle), state.dateStyle, m_desk.program.clock.today(),
            state.familyName.text()};
}

std::unique_ptr<QMimeData> JournalPrint::copied(const JournalEntry &entry) const
{
    const PageContext context = usualContext();
    const Page page = JournalPages::day(sourceOf({entry}), entry.date, {}, context);
    std::unique_ptr<QMimeData> data =
        PreviewPane::copied(PagePainter(page, context.setup, PreviewPane::usualFont()), 0);
    data->setText(JournalExport::plainText(entry));
    return data;
}

/// Without what others have for the days: nobody waits for thirty years of that.
void JournalPrint::savePages(const QList<JournalEntry> &entries, const QString &tag)
{
    const PageContext context = usualContext();
    JournalPages::Source source = sourceOf(entries);
    source.facts = {};
    const Page page =
        tag.isEmpty() ? JournalPages::range(source, entries.first().date, entries.last().date, {}, context)
                      : JournalPages::tag(source, tag, {}, context);
    PrintJob job(m_desk.program, m_desk.activity, &m_desk.window, u"Journal"_s);
    job.setMayGoOn([this] { return m_desk.whyNone().isEmpty(); });
    job.toFile(PagePainter(page, context.setup, PreviewPane::usualFont()));
}

void JournalPrint::forget()
{
    if (m_panel)
        m_panel->start(QDate(2000, 1, 1), {});
    m_desk.window.closePreview();
    if (std::exchange(m_hasPages, false))
        m_desk.preview().show([](const PageSetup &) { return Page(); }, {});
}
