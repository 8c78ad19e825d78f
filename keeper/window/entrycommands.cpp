// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/window/entrycommands.h"

#include "keeper/model/keeper.h"
#include "keeper/model/keeperkinds.h"
#include "keeper/model/messages.h"
#include "keeper/model/onetimecode.h"
#include "keeper/window/clipboardguard.h"
#include "keeper/window/entryform.h"
#include "keeper/window/entryview.h"
#include "keeper/window/entrywork.h"
#include "keeper/window/keeperpane.h"
#include "keeper/window/secretbox.h"
#include "keeper/window/severalview.h"
#include "keeper/window/windowlines.h"
#include "shell/controls/buttonrow.h"
#include "shell/controls/emptypage.h"
#include "shell/core/undostep.h"
#include "shell/frame/commands.h"
#include "shell/frame/commonkeys.h"
#include "shell/frame/functionwindow.h"
#include "shell/program/program.h"

#include <QDesktopServices>
#include <QListView>
#include <QMenu>
#include <QUrl>

using namespace Qt::Literals::StringLiterals;

EntryCommands::EntryCommands(const KeeperDesk &desk, EntryWork &work, KeeperPane &pane, QObject *parent)
    : QObject(parent)
    , openAddress(&QDesktopServices::openUrl)
    , m_desk(desk)
    , m_work(work)
    , m_pane(pane)
{
    connect(&desk.clipboard, &ClipboardGuard::ranOut, this,
            [this] { emit said(KeeperWindowLines::clipboardEmptied()); });
    connect(&work, &EntryWork::copyWanted, this, &EntryCommands::copyText);
    connect(&work, &EntryWork::openWanted, this, &EntryCommands::open);
    connect(&work.several(), &SeveralView::tagGiven, this,
            [this](const QString &tag) { changeTags(tag, true); });
    connect(&work.several(), &SeveralView::tagTaken, this,
            [this](const QString &tag) { changeTags(tag, false); });
}

void EntryCommands::addEntryCommands(QMenu *edit)
{
    Commands &commands = m_desk.commands;
    m_new = commands.writing(commands.add(
        edit, u"mENew"_s, u"&New Entry"_s, [this] { startNew(); }, [this] { return whyLocked(); },
        CommonKeys::newEntry));
    commands.tool(m_new, "new-entry"_L1, u"New"_s);
    commands.writing(commands.add(
        edit, u"mEChange"_s, u"&Change Entry"_s, [this] { m_work.view().form().startTyping(); },
        [this] { return m_work.isLocked() ? KeeperWindowLines::isInTrash() : whyNoEntry(); },
        CommonKeys::change));
    m_duplicate = commands.writing(commands.add(
        edit, u"mEDup"_s, u"Dupl&icate"_s, [this] { duplicate(); },
        [this] {
            return m_work.isNew() && !m_work.isModified() ? KeeperWindowLines::nothingTyped() : whyNoEntry();
        },
        Qt::CTRL | Qt::Key_D));
    m_favourite = commands.writing(commands.add(
        edit, u"mEFav"_s, u"&Favourite"_s, [this] { turnFavourite(); }, [this] { return whyNoneChosen(); }));
    m_save = commands.writing(commands.add(
        edit, u"mESave"_s, u"&Save"_s, [this] { std::ignore = m_work.save(); },
        [this] {
            return !whyLocked().isEmpty() ? whyLocked()
                   : m_work.isLocked()    ? KeeperWindowLines::isInTrash()
                   : m_work.isModified()  ? QString()
                                          : KeeperWindowLines::nothingToSave();
        },
        CommonKeys::save));
}

void EntryCommands::addCopyCommands(QMenu *edit)
{
    Commands &commands = m_desk.commands;
    const auto hasText = [this](quint8 field) {
        const KeeperSummary *entry = only();
        const bool has = entry && (field == KeeperField::UserName        ? !entry->userName.isEmpty()
                                   : field == KeeperField::Address       ? !entry->address.isEmpty()
                                   : field == KeeperField::OneTimeSecret ? entry->hasOneTimeSecret
                                                                         : entry->hasPassword);
        return has ? QString() : entry ? KeeperWindowLines::hasNone() : KeeperWindowLines::chooseOne();
    };
    commands.add(
        edit, u"mECopyUser"_s, u"Copy User Na&me"_s, [this] { copy(KeeperField::UserName); },
        [hasText] { return hasText(KeeperField::UserName); }, Qt::CTRL | Qt::Key_B);
    QAction *password = commands.add(
        edit, u"mECopyPass"_s, u"Copy &Password"_s, [this] { copy(KeeperField::Password); },
        [hasText] { return hasText(KeeperField::Password); });
    commands.setKeyIn(&m_pane.list(), password, QKeySequence(QKeySequence::Copy)[0]);
    commands.add(
        edit, u"mECopyCode"_s, u"Copy One-&Time Code"_s, [this] { copyCode(); },
        [hasText] { return hasText(KeeperField::OneTimeSecret); }, Qt::CTRL | Qt::Key_T);
    QAction *opening = commands.add(
        edit, u"mEOpen"_s, u"&Open Address"_s, [this] { open(only() ? only()->address : QString()); },
        [hasText] { return hasText(KeeperField::Address); }, Qt::CTRL | Qt::Key_O);
    commands.tool(password, "copy"_L1, u"Copy Password"_s);
    commands.tool(opening, "web"_L1, u"Open Address"_s);
}

void EntryCommands::addTrashCommands(QMenu *edit)
{
    Commands &commands = m_desk.commands;
    m_remove = commands.writing(commands.add(
        edit, u"mEDel"_s, u"De&lete"_s, [this] { isTrashChosen() ? removeForGood() : remove(); },
        [this] { return whyNoneChosen(); }));
    commands.setKeyIn(&m_pane.list(), m_remove, CommonKeys::remove);
    m_back = commands.writing(commands.add(
        edit, u"mEBack"_s, u"&Bring Back"_s, [this] { bringBack(); }, [this] { return whyNotInTrash(); }));
    commands.writing(commands.add(
        edit, u"mEEmpty"_s, u"Empty Tras&h..."_s, [this] { emptyTrash(); }, [this] { return whyLocked(); }));
    m_giveUp = commands.writing(commands.add(
        edit, u"mEGiveUp"_s, u"Give Up Damaged Entries..."_s, [this] { giveUpDamaged(); },
        [this] {
            return !whyLocked().isEmpty()                    ? whyLocked()
                   : m_desk.keeper.damagedPlaces().isEmpty() ? KeeperWindowLines::nothingDamaged()
                                                             : QString();
        }));
}

void EntryCommands::makeButtons()
{
    Commands &commands = m_desk.commands;
    ButtonRow &foot = m_work.view().foot();
    foot.addLeft(commands.button(m_remove, u"Command8"_s, m_remove->text(), &foot));
    foot.addLeft(commands.button(m_back, u"bringBackEntry"_s, m_back->text(), &foot));
    foot.addLeft(commands.button(m_duplicate, u"duplicateEntry"_s, m_duplicate->text(), &foot));
    foot.addRight(commands.button(m_save, u"Command10"_s, m_save->text(), &foot, ButtonKind::Main));
    ButtonRow &several = m_work.several().foot();
    several.addLeft(commands.button(m_remove, u"deleteSeveral"_s, m_remove->text(), &several));
    several.addLeft(commands.button(m_back, u"bringBackSeveral"_s, m_back->text(), &several));
    several.addLeft(commands.button(m_favourite, u"favouriteSeveral"_s, m_favourite->text(), &several));
    EmptyPage &empty = m_work.emptyPage();
    // The button under the list has the access key: a second one would make it lead to neither.
    empty.addButton(commands.button(m_new, u"emptyNew"_s, u"New Entry"_s, &empty, ButtonKind::Main));
    EmptyPage &damaged = m_work.damagedPage();
    damaged.addButton(commands.button(m_giveUp, u"giveUp"_s, m_giveUp->text(), &damaged));
    m_pane.addButton(commands.button(m_new, u"newEntryButton"_s, m_new->text(), &m_pane));
}

// What is chosen

/// Not while search or filter leave it out: what is copied is what the list shows.
const KeeperSummary *EntryCommands::only() const
{
    const QList<KeeperSummary> &chosen = m_pane.chosenEntries();
    return chosen.size() == 1 && m_pane.isListed(chosen.first().id) ? &chosen.first() : nullptr;
}

bool EntryCommands::isTrashChosen() const
{
    const QList<KeeperSummary> &chosen = m_pane.chosenEntries();
    return !chosen.isEmpty() && std::ranges::all_of(chosen, &KeeperSummary::isTrashed);
}

bool EntryCommands::mayReplace()
{
    bool isFree = true;
    emit replacing(&isFree);
    return isFree;
}

QString EntryCommands::whyLocked() const
{
    return m_desk.keeper.state() == Keeper::State::Open ? QString() : KeeperWindowLines::isLocked();
}

QString EntryCommands::whyNoEntry() const
{
    return m_work.entry() ? QString() : KeeperWindowLines::chooseOne();
}

QString EntryCommands::whyNoneChosen() const
{
    if (m_work.chosen().isEmpty())
        return m_pane.chosenEntries().isEmpty() ? KeeperWindowLines::chooseOne()
                                                : KeeperWindowLines::damagedSentence();
    return {};
}

QString EntryCommands::whyNotInTrash() const
{
    return isTrashChosen() ? QString() : KeeperWindowLines::notInTrash();
}

// Copying

void EntryCommands::copy(quint8 field)
{
    const KeeperSummary *summary = only();
    const auto entry = summary ? m_desk.keeper.entry(summary->id) : std::nullopt;
    if (entry)
        copyText(KeeperKinds::caption({field, false, {}, {}}), entry->text(field));
}

void EntryCommands::copyText(const QString &caption, const QString &text)
{
    if (text.isEmpty()) {
        emit said(KeeperWindowLines::hasNone());
        return;
    }
    m_desk.clipboard.copy(text);
    emit said(KeeperWindowLines::copied(caption, m_desk.clipboard.seconds()));
}

void EntryCommands::copyCode()
{
    const KeeperSummary *summary = only();
    const auto entry = summary ? m_desk.keeper.entry(summary->id) : std::nullopt;
    QString problem;
    const auto secret =
        entry ? OneTimeSecret::read(entry->text(KeeperField::OneTimeSecret), &problem) : std::nullopt;
    if (!secret) {
        emit said(problem);
        return;
    }
    copyText(KeeperWindowLines::oneTimeCode(), secret->code(m_desk.program.clock.now().toSecsSinceEpoch()));
}

/// Only what a browser shows: an address of another kind could start a program.
void EntryCommands::open(const QString &address)
{
    const QUrl url = QUrl::fromUserInput(address.trimmed());
    const bool isForBrowsers = url.scheme() == "http"_L1 || url.scheme() == "https"_L1;
    if (!url.isValid() || !isForBrowsers)
        emit said(KeeperWindowLines::noAddress());
    else if (!openAddress(url))
        emit said(KeeperWindowLines::notOpened());
}

// Changing

void EntryCommands::startNew()
{
    if (!mayReplace())
        return;
    KeeperEntry seed;
    seed.setKind(EntryKind::LogIn);
    const KeeperFilter filter = m_pane.filter();
    if (filter.what == KeeperFilter::Kind)
        seed.setKind(filter.kind);
    if (filter.what == KeeperFilter::Member)
        seed.setText(KeeperField::Member, filter.word);
    if (filter.what == KeeperFilter::Tag)
        seed.setTags({filter.word});
    m_work.startNew(seed);
}

void EntryCommands::duplicate()
{
    if (!mayReplace() || !m_work.entry())
        return;
    KeeperEntry seed = *m_work.entry();
    seed.id.clear();
    seed.setText(KeeperField::Title, KeeperWindowLines::copyOf(seed.text(KeeperField::Title)));
    m_work.startNew(seed);
}

void EntryCommands::turnFavourite()
{
    if (!mayReplace())
        return;
    const QList<QByteArray> ids = m_work.chosen();
    const bool isAny = !std::ranges::all_of(m_pane.chosenEntries(), &KeeperSummary::isFavourite);
    QList<KeeperEntry> entries;
    for (const QByteArray &id : ids) {
        if (auto entry = m_desk.keeper.entry(id)) {
            entry->setText(KeeperField::Favourite, isAny ? u"1"_s : QString());
            entries.append(*entry);
        }
    }
    if (!m_desk.keeper.saveAll(entries))
        emit said(KeeperWindowLines::notSaved());
    m_work.show(ids);
}

void EntryCommands::changeTags(const QString &tag, bool isGiven)
{
    const QList<QByteArray> ids = m_work.chosen();
    QList<KeeperEntry> entries;
    for (const QByteArray &id : ids) {
        auto entry = m_desk.keeper.entry(id);
        if (!entry || entry->tags().contains(tag) == isGiven)
            continue;
        QStringList tags = entry->tags();
        if (isGiven)
            tags.append(tag);
        else
            tags.removeAll(tag);
        entry->setTags(tags);
        entries.append(*entry);
    }
    const bool isSaved = entries.isEmpty() || m_desk.keeper.saveAll(entries);
    emit said(isSaved ? KeeperWindowLines::tagsChanged(entries.size()) : KeeperWindowLines::notSaved());
    m_work.show(ids);
}

// The trash

UndoStep EntryCommands::trashing(const QString &title, const QList<QByteArray> &ids, bool isTrashed)
{
    const auto turn = [this, ids](bool isTrash) {
        const auto isGone = [this](const QByteArray &id) { return m_desk.keeper.placeOf(id) < 0; };
        if (std::ranges::any_of(ids, isGone)) // for good, meanwhile
            return ChangeResult::Outdated;
        if (m_desk.keeper.state() != Keeper::State::Open || !m_desk.keeper.setTrashed(ids, isTrash))
            return ChangeResult::Refused;
        m_pane.choose({});
        m_work.show({});
        return ChangeResult::Done;
    };
    return {title, [turn, isTrashed] { return turn(!isTrashed); },
            [turn, isTrashed] { return turn(isTrashed); }};
}

/// What was typed goes with the entry that is deleted.
void EntryCommands::remove()
{
    const QList<QByteArray> ids = m_work.chosen();
    const QString title = KeeperWindowLines::deleted(m_work.chosenTitles());
    if (!m_desk.keeper.setTrashed(ids, true)) {
        emit said(KeeperWindowLines::notSaved());
        return;
    }
    m_work.forgetDraftOf(ids);
    m_pane.choose({});
    m_work.show({});
    emit done(title, trashing(title, ids, true));
    m_pane.list().setFocus();
}

void EntryCommands::bringBack()
{
    const QList<QByteArray> ids = m_work.chosen();
    const QString title = KeeperWindowLines::broughtBack(m_work.chosenTitles());
    if (!m_desk.keeper.setTrashed(ids, false)) {
        emit said(KeeperWindowLines::notSaved());
        return;
    }
    m_pane.choose(ids.first());
    m_work.show({ids.first()});
    emit done(title, trashing(title, ids, false));
}

void EntryCommands::removeForGood()
{
    const QList<QByteArray> ids = m_work.chosen();
    if (m_desk.program.dialogs.ask(&m_desk.window, KeeperMessages::deleteForGood(m_work.chosenTitles())) !=
        Answer::Yes)
        return;
    m_pane.choose({});
    emit said(m_desk.keeper.removeForGood(ids) ? KeeperWindowLines::goneForGood()
                                               : KeeperWindowLines::notSaved());
    m_work.show({});
}

void EntryCommands::emptyTrash()
{
    QList<QByteArray> ids;
    for (const KeeperSummary &entry : m_desk.keeper.entries()) {
        if (entry.isTrashed)
            ids.append(entry.id);
    }
    if (ids.isEmpty()) {
        emit said(KeeperWindowLines::trashIsEmpty());
        return;
    }
    if (!mayReplace() || m_desk.program.dialogs.ask(
                             &m_desk.window, KeeperMessages::emptyTrash(int(ids.size()))) != Answer::Yes)
        return;
    m_pane.choose({});
    emit said(m_desk.keeper.removeForGood(ids) ? KeeperWindowLines::goneForGood()
                                               : KeeperWindowLines::notSaved());
    m_work.show({});
}

void EntryCommands::giveUpDamaged()
{
    const QList<int> places = m_desk.keeper.damagedPlaces();
    if (places.isEmpty() ||
        m_desk.program.dialogs.ask(&m_desk.window, KeeperMessages::giveUpDamaged(places)) != Answer::Yes)
        return;
    m_pane.choose({});
    emit said(m_desk.keeper.giveUpDamaged() ? KeeperWindowLines::gaveUp() : KeeperWindowLines::notSaved());
    m_work.show({});
}
