// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/window/entrywork.h"

#include "keeper/model/keeper.h"
#include "keeper/model/keeperfilter.h"
#include "keeper/model/keeperkinds.h"
#include "keeper/model/keeperpayload.h"
#include "keeper/window/entryform.h"
#include "keeper/window/entryview.h"
#include "keeper/window/keeperpane.h"
#include "keeper/window/secretbox.h"
#include "keeper/window/severalview.h"
#include "keeper/window/strengthwords.h"
#include "keeper/window/windowlines.h"
#include "shell/controls/emptypage.h"
#include "shell/controls/titleline.h"
#include "shell/core/dates.h"
#include "shell/frame/commands.h"
#include "shell/frame/functionwindow.h"
#include "shell/frame/workviews.h"
#include "shell/program/functionfaces.h"
#include "shell/program/program.h"

#include <utility>

using namespace Qt::Literals::StringLiterals;

EntryWork::EntryWork(const KeeperDesk &desk, KeeperPane &pane, QObject *parent)
    : QObject(parent)
    , m_desk(desk)
    , m_pane(pane)
    , m_view(new EntryView(desk.program, &desk.window))
    , m_several(new SeveralView)
    , m_empty(new EmptyPage("password-keeper"_L1, KeeperWindowLines::emptySentence(),
                            KeeperWindowLines::emptyLine()))
    , m_none(new EmptyPage("password-keeper"_L1, KeeperWindowLines::noneSentence(),
                           KeeperWindowLines::noneLine()))
    , m_damaged(new EmptyPage("password-keeper"_L1, KeeperWindowLines::damagedSentence(),
                              KeeperWindowLines::damagedLine()))
{
    m_none->setObjectName(u"noEntryChosen"_s);
    m_empty->setObjectName(u"noEntries"_s);
    m_damaged->setObjectName(u"damagedEntry"_s);
    for (QWidget *home : std::initializer_list<QWidget *>{m_view, m_several, m_empty, m_none, m_damaged}) {
        m_desk.views.addHome(home);
        home->hide(); // until it is the one
    }
    EntryForm &form = m_view->form();
    form.setStrength(
        [&strength = desk.strength](const QString &password, const QByteArray &id, const QStringList &known) {
            return strength.ofPassword(password, id, known);
        });
    connect(&form, &EntryForm::said, this, &EntryWork::said);
    connect(&form, &EntryForm::copyWanted, this, &EntryWork::copyWanted);
    connect(&form, &EntryForm::openWanted, this, &EntryWork::openWanted);
    connect(&form, &EntryForm::makeWanted, this, &EntryWork::makeWanted);
    connect(m_view, &EntryView::edited, &m_desk.commands, &Commands::refresh);
    connect(m_several, &SeveralView::said, this, &EntryWork::said);
    connect(&desk.program.changes, &ProgramSignals::guardsChanged, this, &EntryWork::readHousehold);
}

void EntryWork::showHome(QWidget *home)
{
    m_desk.views.setHome(home);
    m_desk.commands.refresh();
}

void EntryWork::show(const QList<QByteArray> &ids)
{
    m_desk.window.closePreview();
    m_desk.views.goHome();
    if (ids.size() == 1) {
        showOne(ids.first());
        return;
    }
    close();
    if (ids.size() > 1) {
        m_several->show(chosenTitles(), KeeperFilters::tags(m_desk.keeper.entries()));
        showHome(m_several);
    } else {
        showHome(m_desk.keeper.count() == 0 ? m_empty : m_none);
    }
}

void EntryWork::showOne(const QByteArray &id)
{
    const KeeperSummary *summary = summaryOf(id);
    const auto entry = m_desk.keeper.entry(id);
    if (!summary || !entry) {
        close();
        showHome(summary && summary->damagedPlace > 0 ? m_damaged : m_none);
        return;
    }
    m_id = id;
    m_isOpen = true;
    m_isLocked = summary->isTrashed;
    offer();
    m_view->setLocked(m_isLocked);
    m_view->show(*entry, chipOf(summary, *entry), wordsOf(summary));
    showHome(m_view);
}

void EntryWork::startNew(const KeeperEntry &seed)
{
    m_pane.choose({});
    m_id.clear();
    m_isOpen = true;
    m_isLocked = false;
    KeeperEntry blank;
    blank.setKind(seed.kind());
    offer();
    m_view->setLocked(false);
    m_view->show(blank, KeeperKinds::name(seed.kind()), {}, &seed);
    showHome(m_view);
    m_desk.views.goHome();
    m_view->form().startTyping();
}

void EntryWork::close()
{
    m_view->form().setLocked(false);
    m_view->form().load({});
    m_id.clear();
    m_isOpen = false;
    m_isLocked = false;
}

QString EntryWork::chipOf(const KeeperSummary *summary, const KeeperEntry &entry) const
{
    if (summary && summary->isTrashed)
        return KeeperWindowLines::deletedChip();
    if (summary && summary->shownVersion.isValid())
        return KeeperWindowLines::earlierChip();
    return KeeperKinds::name(entry.kind());
}

QString EntryWork::wordsOf(const KeeperSummary *summary) const
{
    if (!summary || !summary->changed.isValid())
        return {};
    return KeeperWindowLines::changedOn(
        Dates::shortWithYear(summary->changed.toLocalTime().date(), m_desk.program.state.dateStyle));
}

/// Those of other entries first, then the household.
void EntryWork::offer()
{
    const QList<KeeperSummary> entries = m_desk.keeper.entries();
    QStringList members = KeeperFilters::members(entries) + m_household;
    members.removeDuplicates();
    m_view->form().setOffered(KeeperFilters::tags(entries), members);
}

/// Whom the household knows where no password guards it, while the keeper is open.
void EntryWork::readHousehold()
{
    m_household.clear();
    if (m_desk.keeper.state() != Keeper::State::Open)
        return;
    const Program &program = m_desk.program;
    for (const FunctionFace &face : FunctionFaces::cards()) {
        const FunctionEntry *function = program.functions.entry(face.function);
        if (function && function->names && !face.isGuarded(program.state.protectedAreas))
            m_household += function->names(program);
    }
}

void EntryWork::followKeeper()
{
    m_pane.followKeeper();
    offer();
    m_desk.commands.refresh();
}

/// While the keeper is locked, what the disk refused is all that can be lost.
bool EntryWork::isModified() const
{
    if (m_desk.keeper.state() != Keeper::State::Open)
        return isDraftRefused();
    return m_isOpen && !m_isLocked && m_view->form().isModified();
}

bool EntryWork::save()
{
    if (m_desk.keeper.state() != Keeper::State::Open) {
        emit said(KeeperWindowLines::draftNeedsKeeper());
        return false;
    }
    if (const QString refusal = m_view->form().refusal(); !refusal.isEmpty()) {
        emit said(refusal);
        return false;
    }
    KeeperEntry entry = m_view->form().entry();
    if (!KeeperPayload::fits(entry)) {
        emit said(KeeperWindowLines::tooLong());
        return false;
    }
    if (!m_desk.keeper.save(entry)) {
        emit said(KeeperWindowLines::notSaved());
        return false;
    }
    forgetDraft();
    m_id = entry.id;
    m_pane.followKeeper();
    m_pane.choose(m_id);
    const KeeperSummary *summary = summaryOf(m_id);
    m_view->setSaved(entry, wordsOf(summary));
    m_view->titleLine().setChip(chipOf(summary, entry));
    m_desk.commands.refresh();
    emit said(KeeperWindowLines::saved());
    return true;
}

void EntryWork::drop()
{
    m_kept.reset();
    if (m_desk.keeper.state() != Keeper::State::Open)
        return;
    forgetDraft();
    if (m_id.isEmpty())
        show({});
    else
        showOne(m_id);
}

void EntryWork::forgetDraftOf(const QList<QByteArray> &ids)
{
    if (const auto draft = m_desk.keeper.draft(); draft && ids.contains(draft->id))
        forgetDraft();
}

/// It is in the file, or given up.
void EntryWork::forgetDraft()
{
    if (m_desk.keeper.draft() && !m_desk.keeper.dropDraft())
        emit said(KeeperWindowLines::draftStays());
}

void EntryWork::sealAway()
{
    if (isModified()) {
        const KeeperEntry typed = m_view->form().entry();
        if (!m_desk.keeper.saveDraft(typed))
            m_kept = typed;
    }
    close();
    m_several->show({}, {});
    m_view->show({}, {}, {});
    m_pane.forget();
}

QString EntryWork::takeUp()
{
    m_pane.followKeeper();
    const auto draft = m_kept ? std::exchange(m_kept, {}) : m_desk.keeper.draft();
    if (!draft) {
        show({});
        return {};
    }
    const auto original = draft->id.isEmpty() ? std::nullopt : m_desk.keeper.entry(draft->id);
    if (original) {
        m_pane.choose(draft->id);
        showOne(draft->id);
        m_view->form().showTyped(*draft);
    } else {
        KeeperEntry seed = *draft; // its entry is gone: it becomes a new one
        seed.id.clear();
        startNew(seed);
    }
    m_view->form().startTyping();
    return KeeperWindowLines::draftIsBack();
}

std::optional<KeeperEntry> EntryWork::entry() const
{
    return m_isOpen ? std::optional(m_view->form().entry()) : std::nullopt;
}

QList<QByteArray> EntryWork::chosen() const
{
    return m_pane.chosen();
}

QStringList EntryWork::chosenTitles() const
{
    QStringList titles;
    for (const KeeperSummary &entry : m_pane.chosenEntries())
        titles.append(entry.title.isEmpty() ? KeeperWindowLines::withoutTitle() : entry.title);
    return titles;
}

/// Null where it is not the chosen one.
const KeeperSummary *EntryWork::summaryOf(const QByteArray &id) const
{
    const QList<KeeperSummary> &chosen = m_pane.chosenEntries();
    return chosen.size() == 1 && chosen.first().id == id ? &chosen.first() : nullptr;
}
