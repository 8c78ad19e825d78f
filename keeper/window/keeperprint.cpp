// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/window/keeperprint.h"

#include "keeper/model/keeper.h"
#include "keeper/model/messages.h"
#include "keeper/window/clipboardguard.h"
#include "keeper/window/keeperpane.h"
#include "keeper/window/keeperprintpanel.h"
#include "keeper/window/sheetpanel.h"
#include "keeper/window/windowlines.h"
#include "shell/frame/commands.h"
#include "shell/frame/commonkeys.h"
#include "shell/frame/functionwindow.h"
#include "shell/frame/workviews.h"
#include "shell/preview/previewpane.h"
#include "shell/program/program.h"

#include <QCheckBox>
#include <QMenu>
#include <QMimeData>

using namespace Qt::Literals::StringLiterals;

KeeperPrint::KeeperPrint(const KeeperDesk &desk, KeeperPane &pane, QObject *parent)
    : QObject(parent)
    , m_desk(desk)
    , m_pane(pane)
{}

QString KeeperPrint::whyNothing() const
{
    if (m_desk.keeper.state() != Keeper::State::Open)
        return KeeperWindowLines::isLocked();
    return m_desk.keeper.count() > 0 ? QString() : KeeperWindowLines::emptySentence();
}

void KeeperPrint::addPrint(QMenu *options)
{
    QAction *print = m_desk.commands.add(
        options, u"mOPrt"_s, u"&Print"_s, [this] { openPanel(); }, [this] { return whyNothing(); },
        CommonKeys::print);
    m_desk.commands.tool(print, "print"_L1, u"Print"_s);
}

void KeeperPrint::addSheet(QMenu *utilities)
{
    m_desk.commands.add(
        utilities, u"mUSheet"_s, u"Emergency &Sheet..."_s, [this] { openSheet({}); },
        [this] {
            return m_desk.keeper.state() == Keeper::State::Open ? QString() : KeeperWindowLines::isLocked();
        });
}

void KeeperPrint::openPanel()
{
    bool isFree = true;
    emit replacing(&isFree);
    if (!isFree)
        return;
    if (!m_panel) {
        m_panel = new KeeperPrintPanel;
        m_desk.views.addPanel(m_panel);
        connect(m_panel, &KeeperPrintPanel::accepted, this, &KeeperPrint::showPages);
    }
    m_desk.window.closePreview();
    m_panel->start(int(m_pane.chosen().size()), m_pane.shownCount(), m_desk.keeper.count());
    m_panel->showPrinted(m_desk.keeper.settings().printed, m_desk.program.state.dateStyle);
    m_desk.views.open(m_panel);
    m_panel->setFocus();
}

void KeeperPrint::openSheet(const QString &code)
{
    bool isFree = true;
    emit replacing(&isFree);
    if (!isFree)
        return;
    if (!m_sheet) {
        m_sheet = new SheetPanel;
        m_desk.views.addPanel(m_sheet);
        connect(m_sheet, &SheetPanel::accepted, this, &KeeperPrint::showSheet);
        connect(m_sheet, &SheetPanel::said, this, &KeeperPrint::said);
        connect(m_sheet, &TaskPanel::left, this, &KeeperPrint::sheetLeft);
    }
    m_desk.window.closePreview();
    m_sheet->start(int(m_pane.chosen().size()), code);
    m_desk.views.open(m_sheet);
    m_sheet->setFocus();
}

QList<KeeperEntry> KeeperPrint::entriesOf(const QList<QByteArray> &ids) const
{
    QList<KeeperEntry> entries;
    entries.reserve(ids.size());
    for (const QByteArray &id : ids) {
        if (const auto entry = m_desk.keeper.entry(id))
            entries.append(*entry);
    }
    return entries;
}

/// The entries are read when the page is built and not kept: with dots in it, no secret is in memory.
void KeeperPrint::showPages()
{
    m_shown.clear();
    if (m_panel->which() == KeeperPrintPanel::Chosen) {
        m_shown = m_pane.chosen();
    } else {
        const bool isAll = m_panel->which() == KeeperPrintPanel::All;
        for (const KeeperSummary &entry : isAll ? m_desk.keeper.entries() : m_pane.shown()) {
            if (!isAll || !entry.isTrashed)
                m_shown.append(entry.id);
        }
    }
    m_isSheet = false;
    show(
        [this, layout = m_panel->layoutOfPages()](const PageContext &context) {
            return KeeperPages::printout(entriesOf(m_shown), {layout, m_secrets->isChecked()}, context);
        },
        u"Password Keeper"_s);
}

void KeeperPrint::showSheet()
{
    const SheetPanel::Words words = m_sheet->words();
    m_shown = words.isWithEntries ? m_pane.chosen() : QList<QByteArray>();
    m_isSheet = !words.code.isEmpty();
    show(
        [this, words](const PageContext &context) {
            KeeperPages::EmergencySheet sheet;
            sheet.entries = entriesOf(m_shown);
            sheet.papers = words.where;
            sheet.call = words.call;
            sheet.recoveryCode = words.code;
            sheet.hasSecrets = m_secrets->isChecked();
            sheet.hasWiFiCodes = sheet.hasSecrets;
            return KeeperPages::emergencySheet(sheet, context);
        },
        u"Emergency Sheet"_s);
}

void KeeperPrint::show(const std::function<Page(const PageContext &)> &builder, const QString &name)
{
    m_name = name;
    discreetPreview();
    {
        const QSignalBlocker quiet(m_secrets);
        m_secrets->setChecked(false);
    }
    m_desk.window.showPreview(builder, name);
}

PreviewPane &KeeperPrint::discreetPreview()
{
    PreviewPane &preview = m_desk.preview();
    if (m_secrets)
        return preview;
    m_secrets = named(new QCheckBox(u"&Show Secrets"_s), u"showSecrets"_s);
    preview.addChoice(m_secrets);
    connect(m_secrets, &QCheckBox::toggled, &preview, &PreviewPane::rebuild);
    preview.setDiscretion(
        {[this](std::unique_ptr<QMimeData> page) { m_desk.clipboard.copy(std::move(page)); },
         [this] { return mayPrint(); },
         [this] {
             return (!m_isSheet && !m_secrets->isChecked()) ||
                    m_desk.program.dialogs.ask(&m_desk.window, KeeperMessages::savePdf()) == Answer::Yes;
         },
         [this] { notePrinted(); }});
    return preview;
}

/// Once, before secrets are printed for the first time.
bool KeeperPrint::mayPrint()
{
    KeeperSettings settings = m_desk.keeper.settings();
    if (settings.knowsPrinting || (!m_isSheet && !m_secrets->isChecked()))
        return true;
    if (m_desk.program.dialogs.ask(&m_desk.window, KeeperMessages::beforePrinting()) != Answer::Ok)
        return false;
    settings.knowsPrinting = true;
    if (!m_desk.keeper.saveSettings(settings))
        emit said(KeeperWindowLines::notSaved());
    return true;
}

/// So that old sheets can be found and shredded.
void KeeperPrint::notePrinted()
{
    KeeperSettings settings = m_desk.keeper.settings();
    PrintedSheet sheet{m_desk.program.clock.now(), m_name, m_secrets->isChecked(), {}};
    for (const QByteArray &id : std::as_const(m_shown)) {
        if (const int place = m_desk.keeper.placeOf(id); place >= 0)
            sheet.titles.append(m_desk.keeper.summary(place).title);
    }
    settings.printed.append(sheet);
    if (!m_desk.keeper.saveSettings(settings))
        emit said(KeeperWindowLines::notSaved());
}

void KeeperPrint::forget()
{
    m_shown.clear();
    if (m_sheet)
        m_sheet->forget();
    if (!m_secrets)
        return;
    m_desk.window.closePreview();
    m_desk.preview().show([](const PageSetup &) { return Page(); }, {});
}
